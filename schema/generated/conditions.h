// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Classes of the topic conditions: DeviceFilterType, ColorSpaceSpecificationType, SpectrumType,
/// ColorSpaceSpecificationSpectrumType, ColorSpaceSpecificationEmissiveType, GeometryChoiceType,
/// IlluminationOptionsType, ColorSpaceSpecificationSpectrumGenericType,
/// ColorSpaceSpecificationSpectrumTristimulusType, ColorSpaceSpecificationSpectrumSpectralType,
/// ColorSpaceSpecificationEmissiveGenericType, ColorSpaceSpecificationEmissiveTristimulusType,
/// ColorSpaceSpecificationEmissiveSpectralType, ColorSpaceSpecificationSpectrumGeneric,
/// ColorSpaceSpecificationSpectrumTristimulus, ColorSpaceSpecificationSpectrumSpectral,
/// ColorSpaceSpecificationEmissiveGeneric, ColorSpaceSpecificationEmissiveTristimulus,
/// ColorSpaceSpecificationEmissiveSpectral, BSDFAngle.

#pragma once

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <string>

#include "lmx/binding/class_parts.h"
#include "lmx/binding/table.h"
#include "lmx/export.h"
#include "schema/generated/devices.h"
#include "schema/generated/enumerations.h"
#include "schema/generated/forward.h"

namespace com_vyrgraph_v2 {

/// Filter in the light path of an instrument.
class VYR_EXPORT DeviceFilterType {
public:
    DeviceFilterType();
    DeviceFilterType(const DeviceFilterType& other);
    virtual ~DeviceFilterType();
    DeviceFilterType& operator=(const DeviceFilterType& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(DeviceFilterType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Description of the filter where the content is Filter_Custom or Filter_Partial.
    const std::u16string& get_CustomOrPartial() const { return m_CustomOrPartial; }
    lmx::elmx_error set_CustomOrPartial(const std::u16string& value);
    bool isset_CustomOrPartial() const { return m_isset_CustomOrPartial; }
    void unset_CustomOrPartial() { m_isset_CustomOrPartial = false; }

    /// The filter.
    const std::u16string& get_DeviceFilterType() const { return m_DeviceFilterType.get(); }
    lmx::elmx_error set_DeviceFilterType(const std::u16string& value);
    Eenum_DeviceFilterType getenum_DeviceFilterType() const { return static_cast<Eenum_DeviceFilterType>(m_DeviceFilterType.number()); }
    bool setenum_DeviceFilterType(std::int32_t number);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error, bool has_body) { return lmx::unmarshal_content(k_class, this, reader, name, error, has_body); }

private:
    enum item : std::size_t {
        item_CustomOrPartial,
        item_DeviceFilterType,
    };
    static const lmx::s_item k_items[];
    std::u16string m_CustomOrPartial;
    lmx::c_enumerated m_DeviceFilterType;
    bool m_isset_CustomOrPartial = false;
    bool m_isset_DeviceFilterType = false;
};

/// Filter in the light path of the instrument, or nil. Readers may meet none; a writer needs the filter or nil.
class VYR_EXPORT DeviceFilter : public DeviceFilterType {
public:
    DeviceFilter();
    DeviceFilter(const DeviceFilter& other);
    ~DeviceFilter() override;
    DeviceFilter& operator=(const DeviceFilter& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(DeviceFilter& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Sets the content, which then isn't nil.
    lmx::elmx_error set_DeviceFilterType(const std::u16string& value);
    bool setenum_DeviceFilterType(std::int32_t number);

    /// The `xsi:nil` state: an element without a value.
    bool isnil_DeviceFilter() const { return m_isnil; }
    void setnil_DeviceFilter() { m_isnil = true; }

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error, bool has_body) { return lmx::unmarshal_content(k_class, this, reader, name, error, has_body); }

private:
    bool m_isnil = false;
};

/// Whether polarising filters were used, or nil where it is unknown.
class VYR_EXPORT DevicePolarization {
public:
    DevicePolarization();
    DevicePolarization(const DevicePolarization& other);
    virtual ~DevicePolarization();
    DevicePolarization& operator=(const DevicePolarization& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(DevicePolarization& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Whether polarising filters were used, or nil where it is unknown.
    bool get_DevicePolarization() const { return m_DevicePolarization; }
    lmx::elmx_error set_DevicePolarization(bool value);

    /// The `xsi:nil` state: an element without a value.
    bool isnil_DevicePolarization() const { return m_isnil; }
    void setnil_DevicePolarization() { m_isnil = true; }

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error, bool has_body) { return lmx::unmarshal_content(k_class, this, reader, name, error, has_body); }

private:
    enum item : std::size_t {
        item_DevicePolarization,
    };
    static const lmx::s_item k_items[];
    bool m_isnil = false;
    bool m_DevicePolarization = false;
    bool m_isset_DevicePolarization = false;
};

/// Conditions under which a colour value holds: device, filter, polarisation and profile.
class VYR_EXPORT ColorSpaceSpecificationType {
public:
    ColorSpaceSpecificationType();
    ColorSpaceSpecificationType(const ColorSpaceSpecificationType& other);
    virtual ColorSpaceSpecificationType* clone() const;
    virtual ~ColorSpaceSpecificationType();
    ColorSpaceSpecificationType& operator=(const ColorSpaceSpecificationType& other);
    virtual const char* getid() const;
    /// True for the identity of this class and of those that it derives from, as pointers.
    virtual bool has_id(const char* identity) const;
    virtual lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    virtual lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(ColorSpaceSpecificationType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Free remarks on the conditions.
    const std::u16string& get_Comments() const { return m_Comments; }
    lmx::elmx_error set_Comments(const std::u16string& value);
    bool isset_Comments() const { return m_isset_Comments; }
    void unset_Comments() { m_isset_Comments = false; }

    /// Identifier of the specification.
    const std::u16string& get_UniqueID() const { return m_UniqueID; }
    lmx::elmx_error set_UniqueID(const std::u16string& value);
    bool isset_UniqueID() const { return m_isset_UniqueID; }
    void unset_UniqueID() { m_isset_UniqueID = false; }

    /// A named value of the user's own.
    std::size_t size_CustomAttribute() const { return m_CustomAttribute.size(); }
    CustomAttributeType& get_CustomAttribute(std::size_t index);
    const CustomAttributeType& get_CustomAttribute(std::size_t index) const { return m_CustomAttribute[index]; }
    CustomAttributeType& assign_CustomAttribute(std::size_t index, const CustomAttributeType& value);
    lmx::elmx_error append_CustomAttribute();
    lmx::elmx_error insert_CustomAttribute(std::size_t index);
    CustomAttributeType& back_CustomAttribute() { return m_CustomAttribute.back(); }
    void delete_CustomAttribute(std::size_t index);
    void clear_CustomAttribute();

    /// Profile of the device.
    ProfileType& get_Profile();
    const ProfileType& get_Profile() const;
    ProfileType& assign_Profile(const ProfileType& value);
    bool isset_Profile() const { return m_isset_Profile; }
    void unset_Profile() { m_isset_Profile = false; }

    /// Instrument that measured, or device that shows the colour.
    DeviceType& get_Device();
    const DeviceType& get_Device() const;
    DeviceType& assign_Device(const DeviceType& value);
    bool isset_Device() const { return m_isset_Device; }
    void unset_Device() { m_isset_Device = false; }

    /// Filter in the light path of the instrument, or nil. Readers may meet none; a writer needs the filter or nil.
    DeviceFilter& get_DeviceFilter() { m_isset_DeviceFilter = true; return m_DeviceFilter; }
    const DeviceFilter& get_DeviceFilter() const { return m_DeviceFilter; }
    DeviceFilter& assign_DeviceFilter(const DeviceFilter& value);
    bool isset_DeviceFilter() const { return m_isset_DeviceFilter; }
    void unset_DeviceFilter() { m_isset_DeviceFilter = false; }

    /// Whether polarising filters were used, or nil where it is unknown.
    DevicePolarization& get_DevicePolarization() { m_isset_DevicePolarization = true; return m_DevicePolarization; }
    const DevicePolarization& get_DevicePolarization() const { return m_DevicePolarization; }
    DevicePolarization& assign_DevicePolarization(const DevicePolarization& value);

    /// Time of one change, with time zone.
    std::size_t size_ChangeHistory() const { return m_ChangeHistory.size(); }
    const lmx::c_datetime& get_ChangeHistory(std::size_t index) const { return m_ChangeHistory[index]; }
    lmx::elmx_error set_ChangeHistory(std::size_t index, const lmx::c_datetime& value);
    lmx::elmx_error append_ChangeHistory(const lmx::c_datetime& value);
    lmx::elmx_error insert_ChangeHistory(std::size_t index, const lmx::c_datetime& value);
    void delete_ChangeHistory(std::size_t index);
    void clear_ChangeHistory();

    /// The class's identity; `getid` and `has_id` work on its address.
    static const char* id;

    /// A new object of the type with that local name in namespace 1000, or null; the caller owns it.
    static ColorSpaceSpecificationType* factory(int ns_id, const std::string& name);
    static const lmx::s_factory_row k_factory[8];

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_Comments,
        item_UniqueID,
        item_CustomAttribute,
        item_Profile,
        item_Device,
        item_DeviceFilter,
        item_DevicePolarization,
        item_ChangeHistory,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Comments;
    std::u16string m_UniqueID;
    lmx::c_list<CustomAttributeType> m_CustomAttribute;
    lmx::c_optional_child<ProfileType> m_Profile;
    lmx::c_optional_child<DeviceType> m_Device;
    DeviceFilter m_DeviceFilter;
    DevicePolarization m_DevicePolarization;
    lmx::c_list<lmx::c_datetime> m_ChangeHistory;
    bool m_isset_Comments = false;
    bool m_isset_UniqueID = false;
    bool m_isset_Profile = false;
    bool m_isset_Device = false;
    bool m_isset_DeviceFilter = false;
    bool m_isset_DevicePolarization = false;
};

/// Which spectral quantity was measured.
class VYR_EXPORT SpectrumType {
public:
    SpectrumType();
    SpectrumType(const SpectrumType& other);
    virtual ~SpectrumType();
    SpectrumType& operator=(const SpectrumType& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(SpectrumType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Name of the quantity where the content is Spectrum_Custom.
    const std::u16string& get_CustomTypeName() const { return m_CustomTypeName; }
    lmx::elmx_error set_CustomTypeName(const std::u16string& value);
    bool isset_CustomTypeName() const { return m_isset_CustomTypeName; }
    void unset_CustomTypeName() { m_isset_CustomTypeName = false; }

    /// The quantity.
    const std::u16string& get_SpectrumType() const { return m_SpectrumType.get(); }
    lmx::elmx_error set_SpectrumType(const std::u16string& value);
    Eenum_SpectrumType getenum_SpectrumType() const { return static_cast<Eenum_SpectrumType>(m_SpectrumType.number()); }
    bool setenum_SpectrumType(std::int32_t number);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error, bool has_body) { return lmx::unmarshal_content(k_class, this, reader, name, error, has_body); }

private:
    enum item : std::size_t {
        item_CustomTypeName,
        item_SpectrumType,
    };
    static const lmx::s_item k_items[];
    std::u16string m_CustomTypeName;
    lmx::c_enumerated m_SpectrumType;
    bool m_isset_CustomTypeName = false;
    bool m_isset_SpectrumType = false;
};

/// Conditions of a reflective or transmissive value.
class VYR_EXPORT ColorSpaceSpecificationSpectrumType : public ColorSpaceSpecificationType {
public:
    ColorSpaceSpecificationSpectrumType();
    ColorSpaceSpecificationSpectrumType(const ColorSpaceSpecificationSpectrumType& other);
    ColorSpaceSpecificationSpectrumType* clone() const override;
    ~ColorSpaceSpecificationSpectrumType() override;
    ColorSpaceSpecificationSpectrumType& operator=(const ColorSpaceSpecificationSpectrumType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(ColorSpaceSpecificationSpectrumType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Which spectral quantity was measured.
    SpectrumType& get_Spectrum() { m_isset_Spectrum = true; return m_Spectrum; }
    const SpectrumType& get_Spectrum() const { return m_Spectrum; }
    SpectrumType& assign_Spectrum(const SpectrumType& value);

    /// The class's identity; `getid` and `has_id` work on its address.
    static const char* id;

    /// A new object of the type with that local name in namespace 1000, or null; the caller owns it.
    static ColorSpaceSpecificationSpectrumType* factory(int ns_id, const std::string& name);
    static const lmx::s_factory_row k_factory[4];

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    static const lmx::s_item k_items[];
    SpectrumType m_Spectrum;
    bool m_isset_Spectrum = false;
};

/// Conditions of an emissive value.
class VYR_EXPORT ColorSpaceSpecificationEmissiveType : public ColorSpaceSpecificationType {
public:
    ColorSpaceSpecificationEmissiveType();
    ColorSpaceSpecificationEmissiveType(const ColorSpaceSpecificationEmissiveType& other);
    ColorSpaceSpecificationEmissiveType* clone() const override;
    ~ColorSpaceSpecificationEmissiveType() override;
    ColorSpaceSpecificationEmissiveType& operator=(const ColorSpaceSpecificationEmissiveType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(ColorSpaceSpecificationEmissiveType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// How the light source was measured.
    const std::u16string& get_EmissiveType() const { return m_EmissiveType.get(); }
    lmx::elmx_error set_EmissiveType(const std::u16string& value);
    Eenum_EmissiveType getenum_EmissiveType() const { return static_cast<Eenum_EmissiveType>(m_EmissiveType.number()); }
    bool setenum_EmissiveType(std::int32_t number);

    /// Whether a diffuser was in place.
    const std::u16string& get_EmissiveMode() const { return m_EmissiveMode.get(); }
    lmx::elmx_error set_EmissiveMode(const std::u16string& value);
    Eenum_EmissiveMode getenum_EmissiveMode() const { return static_cast<Eenum_EmissiveMode>(m_EmissiveMode.number()); }
    bool setenum_EmissiveMode(std::int32_t number);

    /// The class's identity; `getid` and `has_id` work on its address.
    static const char* id;

    /// A new object of the type with that local name in namespace 1000, or null; the caller owns it.
    static ColorSpaceSpecificationEmissiveType* factory(int ns_id, const std::string& name);
    static const lmx::s_factory_row k_factory[4];

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_EmissiveType,
        item_EmissiveMode,
    };
    static const lmx::s_item k_items[];
    lmx::c_enumerated m_EmissiveType;
    lmx::c_enumerated m_EmissiveMode;
    bool m_isset_EmissiveType = false;
    bool m_isset_EmissiveMode = false;
};

/// Measuring geometry of an instrument: sphere, single angle, multi-angle or other.
class VYR_EXPORT GeometryChoiceType {
public:
    /// Which alternative is held.
    enum elmx_chosen : std::int32_t { e_SphereGeometry, e_Angle, e_UnknownGeometry, e_BSDFAngle, e_none = e_BSDFAngle + 1 };

    GeometryChoiceType();
    GeometryChoiceType(const GeometryChoiceType& other);
    virtual ~GeometryChoiceType();
    GeometryChoiceType& operator=(const GeometryChoiceType& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(GeometryChoiceType& other);
    void reset();
    bool is_occurs_ok() const;
    elmx_chosen getchosen() const { return static_cast<elmx_chosen>(m_choice.chosen); }
    static const lmx::s_class k_class;

    /// Integrating sphere, with the specular component included or excluded.
    const std::u16string& get_SphereGeometry() const;
    lmx::elmx_error set_SphereGeometry(const std::u16string& value);
    Eenum_SphereGeometry getenum_SphereGeometry() const;
    bool setenum_SphereGeometry(std::int32_t number);

    /// Measuring angle in degrees.
    double get_Angle() const { return m_choice.chosen == e_Angle ? m_choice.number : 0; }
    lmx::elmx_error set_Angle(double value);

    /// Another geometry in words; not empty.
    const std::u16string& get_UnknownGeometry() const;
    lmx::elmx_error set_UnknownGeometry(const std::u16string& value);

    /// Angles of a multi-angle measurement.
    BSDFAngle& get_BSDFAngle();
    const BSDFAngle& get_BSDFAngle() const { return *static_cast<const BSDFAngle*>(m_choice.object); }
    BSDFAngle& assign_BSDFAngle(const BSDFAngle& value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_SphereGeometry,
        item_Angle,
        item_UnknownGeometry,
        item_BSDFAngle,
    };
    static const lmx::s_item k_items[];
    lmx::s_choice m_choice{e_none};
};

/// Illumination by standard illuminant, chromaticity or colour temperature.
class VYR_EXPORT IlluminationOptionsType {
public:
    /// Which alternative is held.
    enum elmx_chosen : std::int32_t { e_Illuminant, e_WhitePointChromaticity, e_ColorTemperature, e_none = e_ColorTemperature + 1 };

    IlluminationOptionsType();
    IlluminationOptionsType(const IlluminationOptionsType& other);
    virtual ~IlluminationOptionsType();
    IlluminationOptionsType& operator=(const IlluminationOptionsType& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(IlluminationOptionsType& other);
    void reset();
    bool is_occurs_ok() const;
    elmx_chosen getchosen() const { return static_cast<elmx_chosen>(m_choice.chosen); }
    static const lmx::s_class k_class;

    /// Free description of the illumination.
    const std::u16string& get_Description() const { return m_Description; }
    lmx::elmx_error set_Description(const std::u16string& value);
    bool isset_Description() const { return m_isset_Description; }
    void unset_Description() { m_isset_Description = false; }

    /// The illumination as a standard illuminant.
    Illuminant& get_Illuminant();
    const Illuminant& get_Illuminant() const { return *static_cast<const Illuminant*>(m_choice.object); }
    Illuminant& assign_Illuminant(const Illuminant& value);

    /// The illumination by the chromaticity of its white.
    WhitePointChromaticity& get_WhitePointChromaticity();
    const WhitePointChromaticity& get_WhitePointChromaticity() const { return *static_cast<const WhitePointChromaticity*>(m_choice.object); }
    WhitePointChromaticity& assign_WhitePointChromaticity(const WhitePointChromaticity& value);

    /// The illumination by correlated colour temperature in kelvins, above 0.
    std::uint32_t get_ColorTemperature() const { return m_choice.chosen == e_ColorTemperature ? m_choice.uint32 : 0; }
    lmx::elmx_error set_ColorTemperature(std::uint32_t value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_Description,
        item_Illuminant,
        item_WhitePointChromaticity,
        item_ColorTemperature,
    };
    static const lmx::s_item k_items[];
    lmx::s_choice m_choice{e_none};
    std::u16string m_Description;
    bool m_isset_Description = false;
};

/// Conditions of a reflective value in any colour space.
class VYR_EXPORT ColorSpaceSpecificationSpectrumGenericType : public ColorSpaceSpecificationSpectrumType {
public:
    ColorSpaceSpecificationSpectrumGenericType();
    ColorSpaceSpecificationSpectrumGenericType(const ColorSpaceSpecificationSpectrumGenericType& other);
    ColorSpaceSpecificationSpectrumGenericType* clone() const override;
    ~ColorSpaceSpecificationSpectrumGenericType() override;
    ColorSpaceSpecificationSpectrumGenericType& operator=(const ColorSpaceSpecificationSpectrumGenericType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(ColorSpaceSpecificationSpectrumGenericType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Measuring geometry.
    GeometryChoiceType& get_GeometryChoice();
    const GeometryChoiceType& get_GeometryChoice() const;
    GeometryChoiceType& assign_GeometryChoice(const GeometryChoiceType& value);
    bool isset_GeometryChoice() const { return m_isset_GeometryChoice; }
    void unset_GeometryChoice() { m_isset_GeometryChoice = false; }

    /// Illumination that the value holds for.
    IlluminationOptionsType& get_IlluminationOptions();
    const IlluminationOptionsType& get_IlluminationOptions() const;
    IlluminationOptionsType& assign_IlluminationOptions(const IlluminationOptionsType& value);
    bool isset_IlluminationOptions() const { return m_isset_IlluminationOptions; }
    void unset_IlluminationOptions() { m_isset_IlluminationOptions = false; }

    /// Standard observer that the value holds for.
    const std::u16string& get_FieldOfView() const { return m_FieldOfView.get(); }
    lmx::elmx_error set_FieldOfView(const std::u16string& value);
    Eenum_FieldOfView getenum_FieldOfView() const { return static_cast<Eenum_FieldOfView>(m_FieldOfView.number()); }
    bool setenum_FieldOfView(std::int32_t number);
    bool isset_FieldOfView() const { return m_isset_FieldOfView; }
    void unset_FieldOfView() { m_isset_FieldOfView = false; }

    /// Weighting tables used for the tristimulus integration.
    const std::u16string& get_ASTM_Table() const { return m_ASTM_Table.get(); }
    lmx::elmx_error set_ASTM_Table(const std::u16string& value);
    Eenum_ASTM_Table getenum_ASTM_Table() const { return static_cast<Eenum_ASTM_Table>(m_ASTM_Table.number()); }
    bool setenum_ASTM_Table(std::int32_t number);
    bool isset_ASTM_Table() const { return m_isset_ASTM_Table; }
    void unset_ASTM_Table() { m_isset_ASTM_Table = false; }

    /// Gamma of the device, the exponent of its tone curve.
    double get_Gamma() const { return m_Gamma; }
    lmx::elmx_error set_Gamma(double value);
    bool isset_Gamma() const { return m_isset_Gamma; }
    void unset_Gamma() { m_isset_Gamma = false; }

    /// Density status that the value was computed with.
    const std::u16string& get_DensityStatus() const { return m_DensityStatus.get(); }
    lmx::elmx_error set_DensityStatus(const std::u16string& value);
    Eenum_DensityStatus getenum_DensityStatus() const { return static_cast<Eenum_DensityStatus>(m_DensityStatus.number()); }
    bool setenum_DensityStatus(std::int32_t number);
    bool isset_DensityStatus() const { return m_isset_DensityStatus; }
    void unset_DensityStatus() { m_isset_DensityStatus = false; }

    /// The class's identity; `getid` and `has_id` work on its address.
    static const char* id;

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_GeometryChoice,
        item_IlluminationOptions,
        item_FieldOfView,
        item_ASTM_Table,
        item_Gamma,
        item_DensityStatus,
    };
    static const lmx::s_item k_items[];
    lmx::c_optional_child<GeometryChoiceType> m_GeometryChoice;
    lmx::c_optional_child<IlluminationOptionsType> m_IlluminationOptions;
    lmx::c_enumerated m_FieldOfView;
    lmx::c_enumerated m_ASTM_Table;
    double m_Gamma = 0;
    lmx::c_enumerated m_DensityStatus;
    bool m_isset_GeometryChoice = false;
    bool m_isset_IlluminationOptions = false;
    bool m_isset_FieldOfView = false;
    bool m_isset_ASTM_Table = false;
    bool m_isset_Gamma = false;
    bool m_isset_DensityStatus = false;
};

/// Conditions of a reflective tristimulus value: illumination and observer are told.
class VYR_EXPORT ColorSpaceSpecificationSpectrumTristimulusType : public ColorSpaceSpecificationSpectrumType {
public:
    ColorSpaceSpecificationSpectrumTristimulusType();
    ColorSpaceSpecificationSpectrumTristimulusType(const ColorSpaceSpecificationSpectrumTristimulusType& other);
    ColorSpaceSpecificationSpectrumTristimulusType* clone() const override;
    ~ColorSpaceSpecificationSpectrumTristimulusType() override;
    ColorSpaceSpecificationSpectrumTristimulusType& operator=(const ColorSpaceSpecificationSpectrumTristimulusType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(ColorSpaceSpecificationSpectrumTristimulusType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Illumination that the value holds for.
    IlluminationOptionsType& get_IlluminationOptions() { m_isset_IlluminationOptions = true; return m_IlluminationOptions; }
    const IlluminationOptionsType& get_IlluminationOptions() const { return m_IlluminationOptions; }
    IlluminationOptionsType& assign_IlluminationOptions(const IlluminationOptionsType& value);

    /// Standard observer that the value holds for.
    const std::u16string& get_FieldOfView() const { return m_FieldOfView.get(); }
    lmx::elmx_error set_FieldOfView(const std::u16string& value);
    Eenum_FieldOfView getenum_FieldOfView() const { return static_cast<Eenum_FieldOfView>(m_FieldOfView.number()); }
    bool setenum_FieldOfView(std::int32_t number);

    /// Measuring geometry.
    GeometryChoiceType& get_GeometryChoice();
    const GeometryChoiceType& get_GeometryChoice() const;
    GeometryChoiceType& assign_GeometryChoice(const GeometryChoiceType& value);
    bool isset_GeometryChoice() const { return m_isset_GeometryChoice; }
    void unset_GeometryChoice() { m_isset_GeometryChoice = false; }

    /// Weighting tables used for the tristimulus integration.
    const std::u16string& get_ASTM_Table() const { return m_ASTM_Table.get(); }
    lmx::elmx_error set_ASTM_Table(const std::u16string& value);
    Eenum_ASTM_Table getenum_ASTM_Table() const { return static_cast<Eenum_ASTM_Table>(m_ASTM_Table.number()); }
    bool setenum_ASTM_Table(std::int32_t number);
    bool isset_ASTM_Table() const { return m_isset_ASTM_Table; }
    void unset_ASTM_Table() { m_isset_ASTM_Table = false; }

    /// Gamma of the device, the exponent of its tone curve.
    double get_Gamma() const { return m_Gamma; }
    lmx::elmx_error set_Gamma(double value);
    bool isset_Gamma() const { return m_isset_Gamma; }
    void unset_Gamma() { m_isset_Gamma = false; }

    /// The class's identity; `getid` and `has_id` work on its address.
    static const char* id;

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_IlluminationOptions,
        item_FieldOfView,
        item_GeometryChoice,
        item_ASTM_Table,
        item_Gamma,
    };
    static const lmx::s_item k_items[];
    IlluminationOptionsType m_IlluminationOptions;
    lmx::c_enumerated m_FieldOfView;
    lmx::c_optional_child<GeometryChoiceType> m_GeometryChoice;
    lmx::c_enumerated m_ASTM_Table;
    double m_Gamma = 0;
    bool m_isset_IlluminationOptions = false;
    bool m_isset_FieldOfView = false;
    bool m_isset_GeometryChoice = false;
    bool m_isset_ASTM_Table = false;
    bool m_isset_Gamma = false;
};

/// Conditions of a reflectance spectrum: the geometry is told.
class VYR_EXPORT ColorSpaceSpecificationSpectrumSpectralType : public ColorSpaceSpecificationSpectrumType {
public:
    ColorSpaceSpecificationSpectrumSpectralType();
    ColorSpaceSpecificationSpectrumSpectralType(const ColorSpaceSpecificationSpectrumSpectralType& other);
    ColorSpaceSpecificationSpectrumSpectralType* clone() const override;
    ~ColorSpaceSpecificationSpectrumSpectralType() override;
    ColorSpaceSpecificationSpectrumSpectralType& operator=(const ColorSpaceSpecificationSpectrumSpectralType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(ColorSpaceSpecificationSpectrumSpectralType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Measuring geometry.
    GeometryChoiceType& get_GeometryChoice() { m_isset_GeometryChoice = true; return m_GeometryChoice; }
    const GeometryChoiceType& get_GeometryChoice() const { return m_GeometryChoice; }
    GeometryChoiceType& assign_GeometryChoice(const GeometryChoiceType& value);

    /// Weighting tables for a later tristimulus integration.
    const std::u16string& get_ASTM_Table() const { return m_ASTM_Table.get(); }
    lmx::elmx_error set_ASTM_Table(const std::u16string& value);
    Eenum_ASTM_Table getenum_ASTM_Table() const { return static_cast<Eenum_ASTM_Table>(m_ASTM_Table.number()); }
    bool setenum_ASTM_Table(std::int32_t number);
    bool isset_ASTM_Table() const { return m_isset_ASTM_Table; }
    void unset_ASTM_Table() { m_isset_ASTM_Table = false; }

    /// The class's identity; `getid` and `has_id` work on its address.
    static const char* id;

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_GeometryChoice,
        item_ASTM_Table,
    };
    static const lmx::s_item k_items[];
    GeometryChoiceType m_GeometryChoice;
    lmx::c_enumerated m_ASTM_Table;
    bool m_isset_GeometryChoice = false;
    bool m_isset_ASTM_Table = false;
};

/// Conditions of an emissive value in any colour space.
class VYR_EXPORT ColorSpaceSpecificationEmissiveGenericType : public ColorSpaceSpecificationEmissiveType {
public:
    ColorSpaceSpecificationEmissiveGenericType();
    ColorSpaceSpecificationEmissiveGenericType(const ColorSpaceSpecificationEmissiveGenericType& other);
    ColorSpaceSpecificationEmissiveGenericType* clone() const override;
    ~ColorSpaceSpecificationEmissiveGenericType() override;
    ColorSpaceSpecificationEmissiveGenericType& operator=(const ColorSpaceSpecificationEmissiveGenericType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(ColorSpaceSpecificationEmissiveGenericType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Measuring geometry.
    GeometryChoiceType& get_GeometryChoice();
    const GeometryChoiceType& get_GeometryChoice() const;
    GeometryChoiceType& assign_GeometryChoice(const GeometryChoiceType& value);
    bool isset_GeometryChoice() const { return m_isset_GeometryChoice; }
    void unset_GeometryChoice() { m_isset_GeometryChoice = false; }

    /// Illumination that the value holds for.
    IlluminationOptionsType& get_IlluminationOptions();
    const IlluminationOptionsType& get_IlluminationOptions() const;
    IlluminationOptionsType& assign_IlluminationOptions(const IlluminationOptionsType& value);
    bool isset_IlluminationOptions() const { return m_isset_IlluminationOptions; }
    void unset_IlluminationOptions() { m_isset_IlluminationOptions = false; }

    /// Standard observer that the value holds for.
    const std::u16string& get_FieldOfView() const { return m_FieldOfView.get(); }
    lmx::elmx_error set_FieldOfView(const std::u16string& value);
    Eenum_FieldOfView getenum_FieldOfView() const { return static_cast<Eenum_FieldOfView>(m_FieldOfView.number()); }
    bool setenum_FieldOfView(std::int32_t number);
    bool isset_FieldOfView() const { return m_isset_FieldOfView; }
    void unset_FieldOfView() { m_isset_FieldOfView = false; }

    /// Weighting tables used for the tristimulus integration.
    const std::u16string& get_ASTM_Table() const { return m_ASTM_Table.get(); }
    lmx::elmx_error set_ASTM_Table(const std::u16string& value);
    Eenum_ASTM_Table getenum_ASTM_Table() const { return static_cast<Eenum_ASTM_Table>(m_ASTM_Table.number()); }
    bool setenum_ASTM_Table(std::int32_t number);
    bool isset_ASTM_Table() const { return m_isset_ASTM_Table; }
    void unset_ASTM_Table() { m_isset_ASTM_Table = false; }

    /// Gamma of the device, the exponent of its tone curve.
    double get_Gamma() const { return m_Gamma; }
    lmx::elmx_error set_Gamma(double value);
    bool isset_Gamma() const { return m_isset_Gamma; }
    void unset_Gamma() { m_isset_Gamma = false; }

    /// Density status that the value was computed with.
    const std::u16string& get_DensityStatus() const { return m_DensityStatus.get(); }
    lmx::elmx_error set_DensityStatus(const std::u16string& value);
    Eenum_DensityStatus getenum_DensityStatus() const { return static_cast<Eenum_DensityStatus>(m_DensityStatus.number()); }
    bool setenum_DensityStatus(std::int32_t number);
    bool isset_DensityStatus() const { return m_isset_DensityStatus; }
    void unset_DensityStatus() { m_isset_DensityStatus = false; }

    /// The class's identity; `getid` and `has_id` work on its address.
    static const char* id;

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_GeometryChoice,
        item_IlluminationOptions,
        item_FieldOfView,
        item_ASTM_Table,
        item_Gamma,
        item_DensityStatus,
    };
    static const lmx::s_item k_items[];
    lmx::c_optional_child<GeometryChoiceType> m_GeometryChoice;
    lmx::c_optional_child<IlluminationOptionsType> m_IlluminationOptions;
    lmx::c_enumerated m_FieldOfView;
    lmx::c_enumerated m_ASTM_Table;
    double m_Gamma = 0;
    lmx::c_enumerated m_DensityStatus;
    bool m_isset_GeometryChoice = false;
    bool m_isset_IlluminationOptions = false;
    bool m_isset_FieldOfView = false;
    bool m_isset_ASTM_Table = false;
    bool m_isset_Gamma = false;
    bool m_isset_DensityStatus = false;
};

/// Conditions of an emissive tristimulus value: illumination and observer are told.
class VYR_EXPORT ColorSpaceSpecificationEmissiveTristimulusType : public ColorSpaceSpecificationEmissiveType {
public:
    ColorSpaceSpecificationEmissiveTristimulusType();
    ColorSpaceSpecificationEmissiveTristimulusType(const ColorSpaceSpecificationEmissiveTristimulusType& other);
    ColorSpaceSpecificationEmissiveTristimulusType* clone() const override;
    ~ColorSpaceSpecificationEmissiveTristimulusType() override;
    ColorSpaceSpecificationEmissiveTristimulusType& operator=(const ColorSpaceSpecificationEmissiveTristimulusType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(ColorSpaceSpecificationEmissiveTristimulusType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Illumination that the value holds for.
    IlluminationOptionsType& get_IlluminationOptions() { m_isset_IlluminationOptions = true; return m_IlluminationOptions; }
    const IlluminationOptionsType& get_IlluminationOptions() const { return m_IlluminationOptions; }
    IlluminationOptionsType& assign_IlluminationOptions(const IlluminationOptionsType& value);

    /// Standard observer that the value holds for.
    const std::u16string& get_FieldOfView() const { return m_FieldOfView.get(); }
    lmx::elmx_error set_FieldOfView(const std::u16string& value);
    Eenum_FieldOfView getenum_FieldOfView() const { return static_cast<Eenum_FieldOfView>(m_FieldOfView.number()); }
    bool setenum_FieldOfView(std::int32_t number);

    /// Measuring geometry.
    GeometryChoiceType& get_GeometryChoice();
    const GeometryChoiceType& get_GeometryChoice() const;
    GeometryChoiceType& assign_GeometryChoice(const GeometryChoiceType& value);
    bool isset_GeometryChoice() const { return m_isset_GeometryChoice; }
    void unset_GeometryChoice() { m_isset_GeometryChoice = false; }

    /// Weighting tables used for the tristimulus integration.
    const std::u16string& get_ASTM_Table() const { return m_ASTM_Table.get(); }
    lmx::elmx_error set_ASTM_Table(const std::u16string& value);
    Eenum_ASTM_Table getenum_ASTM_Table() const { return static_cast<Eenum_ASTM_Table>(m_ASTM_Table.number()); }
    bool setenum_ASTM_Table(std::int32_t number);
    bool isset_ASTM_Table() const { return m_isset_ASTM_Table; }
    void unset_ASTM_Table() { m_isset_ASTM_Table = false; }

    /// Gamma of the device, the exponent of its tone curve.
    double get_Gamma() const { return m_Gamma; }
    lmx::elmx_error set_Gamma(double value);
    bool isset_Gamma() const { return m_isset_Gamma; }
    void unset_Gamma() { m_isset_Gamma = false; }

    /// The class's identity; `getid` and `has_id` work on its address.
    static const char* id;

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_IlluminationOptions,
        item_FieldOfView,
        item_GeometryChoice,
        item_ASTM_Table,
        item_Gamma,
    };
    static const lmx::s_item k_items[];
    IlluminationOptionsType m_IlluminationOptions;
    lmx::c_enumerated m_FieldOfView;
    lmx::c_optional_child<GeometryChoiceType> m_GeometryChoice;
    lmx::c_enumerated m_ASTM_Table;
    double m_Gamma = 0;
    bool m_isset_IlluminationOptions = false;
    bool m_isset_FieldOfView = false;
    bool m_isset_GeometryChoice = false;
    bool m_isset_ASTM_Table = false;
    bool m_isset_Gamma = false;
};

/// Conditions of an emission spectrum: the geometry is told.
class VYR_EXPORT ColorSpaceSpecificationEmissiveSpectralType : public ColorSpaceSpecificationEmissiveType {
public:
    ColorSpaceSpecificationEmissiveSpectralType();
    ColorSpaceSpecificationEmissiveSpectralType(const ColorSpaceSpecificationEmissiveSpectralType& other);
    ColorSpaceSpecificationEmissiveSpectralType* clone() const override;
    ~ColorSpaceSpecificationEmissiveSpectralType() override;
    ColorSpaceSpecificationEmissiveSpectralType& operator=(const ColorSpaceSpecificationEmissiveSpectralType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(ColorSpaceSpecificationEmissiveSpectralType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Measuring geometry.
    GeometryChoiceType& get_GeometryChoice() { m_isset_GeometryChoice = true; return m_GeometryChoice; }
    const GeometryChoiceType& get_GeometryChoice() const { return m_GeometryChoice; }
    GeometryChoiceType& assign_GeometryChoice(const GeometryChoiceType& value);

    /// Weighting tables for a later tristimulus integration.
    const std::u16string& get_ASTM_Table() const { return m_ASTM_Table.get(); }
    lmx::elmx_error set_ASTM_Table(const std::u16string& value);
    Eenum_ASTM_Table getenum_ASTM_Table() const { return static_cast<Eenum_ASTM_Table>(m_ASTM_Table.number()); }
    bool setenum_ASTM_Table(std::int32_t number);
    bool isset_ASTM_Table() const { return m_isset_ASTM_Table; }
    void unset_ASTM_Table() { m_isset_ASTM_Table = false; }

    /// The class's identity; `getid` and `has_id` work on its address.
    static const char* id;

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_GeometryChoice,
        item_ASTM_Table,
    };
    static const lmx::s_item k_items[];
    GeometryChoiceType m_GeometryChoice;
    lmx::c_enumerated m_ASTM_Table;
    bool m_isset_GeometryChoice = false;
    bool m_isset_ASTM_Table = false;
};

/// Head of the specifications.
class VYR_EXPORT ColorSpaceSpecification : public ColorSpaceSpecificationType {
public:
    static const lmx::s_ns_map* ns_map();
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    static const lmx::s_document k_document;
};

/// Conditions of a reflective value that has no kind of its own.
class VYR_EXPORT ColorSpaceSpecificationSpectrum : public ColorSpaceSpecificationSpectrumType {
public:
    ColorSpaceSpecificationSpectrum() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    ColorSpaceSpecificationSpectrum(const char* file_name, lmx::elmx_error* error);
    ColorSpaceSpecificationSpectrum(const char* data, std::size_t size, lmx::elmx_error* error);
    ColorSpaceSpecificationSpectrum(const std::string& text, lmx::elmx_error* error);
    static const lmx::s_ns_map* ns_map();
    lmx::elmx_error unmarshal(const char* file_name);
    lmx::elmx_error unmarshal(const char* data, std::size_t size);
    lmx::elmx_error unmarshal(const std::string& text);
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader);
    lmx::elmx_error marshal(const char* file_name) const;
    lmx::elmx_error marshal(std::string* text) const;
    lmx::elmx_error marshal(std::ostream& stream) const;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    static const lmx::s_document k_document;
};

/// Conditions of a reflective value in any colour space, or nil.
class VYR_EXPORT ColorSpaceSpecificationSpectrumGeneric : public ColorSpaceSpecificationSpectrumGenericType {
public:
    ColorSpaceSpecificationSpectrumGeneric();
    ColorSpaceSpecificationSpectrumGeneric(const ColorSpaceSpecificationSpectrumGeneric& other);
    /// Reads a document with this element as its root; failures are the reader's codes.
    ColorSpaceSpecificationSpectrumGeneric(const char* file_name, lmx::elmx_error* error);
    ColorSpaceSpecificationSpectrumGeneric(const char* data, std::size_t size, lmx::elmx_error* error);
    ColorSpaceSpecificationSpectrumGeneric(const std::string& text, lmx::elmx_error* error);
    ~ColorSpaceSpecificationSpectrumGeneric() override;
    ColorSpaceSpecificationSpectrumGeneric& operator=(const ColorSpaceSpecificationSpectrumGeneric& other);
    static const lmx::s_ns_map* ns_map();
    lmx::elmx_error unmarshal(const char* file_name);
    lmx::elmx_error unmarshal(const char* data, std::size_t size);
    lmx::elmx_error unmarshal(const std::string& text);
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader);
    lmx::elmx_error marshal(const char* file_name) const;
    lmx::elmx_error marshal(std::string* text) const;
    lmx::elmx_error marshal(std::ostream& stream) const;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    static const lmx::s_document k_document;
    void swap(ColorSpaceSpecificationSpectrumGeneric& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// The `xsi:nil` state: an element without a value.
    bool isnil_ColorSpaceSpecificationSpectrumGeneric() const { return m_isnil; }
    void setnil_ColorSpaceSpecificationSpectrumGeneric() { m_isnil = true; }

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    bool m_isnil = false;
};

/// Conditions of a reflective tristimulus value, or nil.
class VYR_EXPORT ColorSpaceSpecificationSpectrumTristimulus : public ColorSpaceSpecificationSpectrumTristimulusType {
public:
    ColorSpaceSpecificationSpectrumTristimulus();
    ColorSpaceSpecificationSpectrumTristimulus(const ColorSpaceSpecificationSpectrumTristimulus& other);
    /// Reads a document with this element as its root; failures are the reader's codes.
    ColorSpaceSpecificationSpectrumTristimulus(const char* file_name, lmx::elmx_error* error);
    ColorSpaceSpecificationSpectrumTristimulus(const char* data, std::size_t size, lmx::elmx_error* error);
    ColorSpaceSpecificationSpectrumTristimulus(const std::string& text, lmx::elmx_error* error);
    ~ColorSpaceSpecificationSpectrumTristimulus() override;
    ColorSpaceSpecificationSpectrumTristimulus& operator=(const ColorSpaceSpecificationSpectrumTristimulus& other);
    static const lmx::s_ns_map* ns_map();
    lmx::elmx_error unmarshal(const char* file_name);
    lmx::elmx_error unmarshal(const char* data, std::size_t size);
    lmx::elmx_error unmarshal(const std::string& text);
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader);
    lmx::elmx_error marshal(const char* file_name) const;
    lmx::elmx_error marshal(std::string* text) const;
    lmx::elmx_error marshal(std::ostream& stream) const;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    static const lmx::s_document k_document;
    void swap(ColorSpaceSpecificationSpectrumTristimulus& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// The `xsi:nil` state: an element without a value.
    bool isnil_ColorSpaceSpecificationSpectrumTristimulus() const { return m_isnil; }
    void setnil_ColorSpaceSpecificationSpectrumTristimulus() { m_isnil = true; }

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    bool m_isnil = false;
};

/// Conditions of a reflectance spectrum, or nil.
class VYR_EXPORT ColorSpaceSpecificationSpectrumSpectral : public ColorSpaceSpecificationSpectrumSpectralType {
public:
    ColorSpaceSpecificationSpectrumSpectral();
    ColorSpaceSpecificationSpectrumSpectral(const ColorSpaceSpecificationSpectrumSpectral& other);
    /// Reads a document with this element as its root; failures are the reader's codes.
    ColorSpaceSpecificationSpectrumSpectral(const char* file_name, lmx::elmx_error* error);
    ColorSpaceSpecificationSpectrumSpectral(const char* data, std::size_t size, lmx::elmx_error* error);
    ColorSpaceSpecificationSpectrumSpectral(const std::string& text, lmx::elmx_error* error);
    ~ColorSpaceSpecificationSpectrumSpectral() override;
    ColorSpaceSpecificationSpectrumSpectral& operator=(const ColorSpaceSpecificationSpectrumSpectral& other);
    static const lmx::s_ns_map* ns_map();
    lmx::elmx_error unmarshal(const char* file_name);
    lmx::elmx_error unmarshal(const char* data, std::size_t size);
    lmx::elmx_error unmarshal(const std::string& text);
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader);
    lmx::elmx_error marshal(const char* file_name) const;
    lmx::elmx_error marshal(std::string* text) const;
    lmx::elmx_error marshal(std::ostream& stream) const;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    static const lmx::s_document k_document;
    void swap(ColorSpaceSpecificationSpectrumSpectral& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// The `xsi:nil` state: an element without a value.
    bool isnil_ColorSpaceSpecificationSpectrumSpectral() const { return m_isnil; }
    void setnil_ColorSpaceSpecificationSpectrumSpectral() { m_isnil = true; }

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    bool m_isnil = false;
};

/// Conditions of an emissive value that has no kind of its own.
class VYR_EXPORT ColorSpaceSpecificationEmissive : public ColorSpaceSpecificationEmissiveType {
public:
    ColorSpaceSpecificationEmissive() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    ColorSpaceSpecificationEmissive(const char* file_name, lmx::elmx_error* error);
    ColorSpaceSpecificationEmissive(const char* data, std::size_t size, lmx::elmx_error* error);
    ColorSpaceSpecificationEmissive(const std::string& text, lmx::elmx_error* error);
    static const lmx::s_ns_map* ns_map();
    lmx::elmx_error unmarshal(const char* file_name);
    lmx::elmx_error unmarshal(const char* data, std::size_t size);
    lmx::elmx_error unmarshal(const std::string& text);
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader);
    lmx::elmx_error marshal(const char* file_name) const;
    lmx::elmx_error marshal(std::string* text) const;
    lmx::elmx_error marshal(std::ostream& stream) const;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    static const lmx::s_document k_document;
};

/// Conditions of an emissive value in any colour space, or nil.
class VYR_EXPORT ColorSpaceSpecificationEmissiveGeneric : public ColorSpaceSpecificationEmissiveGenericType {
public:
    ColorSpaceSpecificationEmissiveGeneric();
    ColorSpaceSpecificationEmissiveGeneric(const ColorSpaceSpecificationEmissiveGeneric& other);
    /// Reads a document with this element as its root; failures are the reader's codes.
    ColorSpaceSpecificationEmissiveGeneric(const char* file_name, lmx::elmx_error* error);
    ColorSpaceSpecificationEmissiveGeneric(const char* data, std::size_t size, lmx::elmx_error* error);
    ColorSpaceSpecificationEmissiveGeneric(const std::string& text, lmx::elmx_error* error);
    ~ColorSpaceSpecificationEmissiveGeneric() override;
    ColorSpaceSpecificationEmissiveGeneric& operator=(const ColorSpaceSpecificationEmissiveGeneric& other);
    static const lmx::s_ns_map* ns_map();
    lmx::elmx_error unmarshal(const char* file_name);
    lmx::elmx_error unmarshal(const char* data, std::size_t size);
    lmx::elmx_error unmarshal(const std::string& text);
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader);
    lmx::elmx_error marshal(const char* file_name) const;
    lmx::elmx_error marshal(std::string* text) const;
    lmx::elmx_error marshal(std::ostream& stream) const;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    static const lmx::s_document k_document;
    void swap(ColorSpaceSpecificationEmissiveGeneric& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// The `xsi:nil` state: an element without a value.
    bool isnil_ColorSpaceSpecificationEmissiveGeneric() const { return m_isnil; }
    void setnil_ColorSpaceSpecificationEmissiveGeneric() { m_isnil = true; }

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    bool m_isnil = false;
};

/// Conditions of an emissive tristimulus value, or nil.
class VYR_EXPORT ColorSpaceSpecificationEmissiveTristimulus : public ColorSpaceSpecificationEmissiveTristimulusType {
public:
    ColorSpaceSpecificationEmissiveTristimulus();
    ColorSpaceSpecificationEmissiveTristimulus(const ColorSpaceSpecificationEmissiveTristimulus& other);
    /// Reads a document with this element as its root; failures are the reader's codes.
    ColorSpaceSpecificationEmissiveTristimulus(const char* file_name, lmx::elmx_error* error);
    ColorSpaceSpecificationEmissiveTristimulus(const char* data, std::size_t size, lmx::elmx_error* error);
    ColorSpaceSpecificationEmissiveTristimulus(const std::string& text, lmx::elmx_error* error);
    ~ColorSpaceSpecificationEmissiveTristimulus() override;
    ColorSpaceSpecificationEmissiveTristimulus& operator=(const ColorSpaceSpecificationEmissiveTristimulus& other);
    static const lmx::s_ns_map* ns_map();
    lmx::elmx_error unmarshal(const char* file_name);
    lmx::elmx_error unmarshal(const char* data, std::size_t size);
    lmx::elmx_error unmarshal(const std::string& text);
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader);
    lmx::elmx_error marshal(const char* file_name) const;
    lmx::elmx_error marshal(std::string* text) const;
    lmx::elmx_error marshal(std::ostream& stream) const;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    static const lmx::s_document k_document;
    void swap(ColorSpaceSpecificationEmissiveTristimulus& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// The `xsi:nil` state: an element without a value.
    bool isnil_ColorSpaceSpecificationEmissiveTristimulus() const { return m_isnil; }
    void setnil_ColorSpaceSpecificationEmissiveTristimulus() { m_isnil = true; }

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    bool m_isnil = false;
};

/// Conditions of an emission spectrum, or nil.
class VYR_EXPORT ColorSpaceSpecificationEmissiveSpectral : public ColorSpaceSpecificationEmissiveSpectralType {
public:
    ColorSpaceSpecificationEmissiveSpectral();
    ColorSpaceSpecificationEmissiveSpectral(const ColorSpaceSpecificationEmissiveSpectral& other);
    /// Reads a document with this element as its root; failures are the reader's codes.
    ColorSpaceSpecificationEmissiveSpectral(const char* file_name, lmx::elmx_error* error);
    ColorSpaceSpecificationEmissiveSpectral(const char* data, std::size_t size, lmx::elmx_error* error);
    ColorSpaceSpecificationEmissiveSpectral(const std::string& text, lmx::elmx_error* error);
    ~ColorSpaceSpecificationEmissiveSpectral() override;
    ColorSpaceSpecificationEmissiveSpectral& operator=(const ColorSpaceSpecificationEmissiveSpectral& other);
    static const lmx::s_ns_map* ns_map();
    lmx::elmx_error unmarshal(const char* file_name);
    lmx::elmx_error unmarshal(const char* data, std::size_t size);
    lmx::elmx_error unmarshal(const std::string& text);
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader);
    lmx::elmx_error marshal(const char* file_name) const;
    lmx::elmx_error marshal(std::string* text) const;
    lmx::elmx_error marshal(std::ostream& stream) const;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    static const lmx::s_document k_document;
    void swap(ColorSpaceSpecificationEmissiveSpectral& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// The `xsi:nil` state: an element without a value.
    bool isnil_ColorSpaceSpecificationEmissiveSpectral() const { return m_isnil; }
    void setnil_ColorSpaceSpecificationEmissiveSpectral() { m_isnil = true; }

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    bool m_isnil = false;
};

/// A standard illuminant, or a custom one by name.
class VYR_EXPORT Illuminant {
public:
    Illuminant();
    Illuminant(const Illuminant& other);
    virtual ~Illuminant();
    Illuminant& operator=(const Illuminant& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(Illuminant& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Name of the illuminant where the content is Illuminant_Custom.
    const std::u16string& get_CustomName() const { return m_CustomName; }
    lmx::elmx_error set_CustomName(const std::u16string& value);
    bool isset_CustomName() const { return m_isset_CustomName; }
    void unset_CustomName() { m_isset_CustomName = false; }

    /// The illuminant.
    const std::u16string& get_Illuminant() const { return m_Illuminant.get(); }
    lmx::elmx_error set_Illuminant(const std::u16string& value);
    Eenum_Illuminant getenum_Illuminant() const { return static_cast<Eenum_Illuminant>(m_Illuminant.number()); }
    bool setenum_Illuminant(std::int32_t number);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error, bool has_body) { return lmx::unmarshal_content(k_class, this, reader, name, error, has_body); }

private:
    enum item : std::size_t {
        item_CustomName,
        item_Illuminant,
    };
    static const lmx::s_item k_items[];
    std::u16string m_CustomName;
    lmx::c_enumerated m_Illuminant;
    bool m_isset_CustomName = false;
    bool m_isset_Illuminant = false;
};

/// CIE 1931 chromaticity of a white point.
class VYR_EXPORT WhitePointChromaticity {
public:
    WhitePointChromaticity();
    WhitePointChromaticity(const WhitePointChromaticity& other);
    virtual ~WhitePointChromaticity();
    WhitePointChromaticity& operator=(const WhitePointChromaticity& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(WhitePointChromaticity& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Chromaticity coordinate x, 0 to 1.
    double get_CoordinateX() const { return m_CoordinateX; }
    lmx::elmx_error set_CoordinateX(double value);

    /// Chromaticity coordinate y, 0 to 1.
    double get_CoordinateY() const { return m_CoordinateY; }
    lmx::elmx_error set_CoordinateY(double value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_CoordinateX,
        item_CoordinateY,
    };
    static const lmx::s_item k_items[];
    double m_CoordinateX = 0;
    double m_CoordinateY = 0;
    bool m_isset_CoordinateX = false;
    bool m_isset_CoordinateY = false;
};

/// Angles of a measurement with a multi-angle instrument.
class VYR_EXPORT BSDFAngle {
public:
    BSDFAngle();
    BSDFAngle(const BSDFAngle& other);
    virtual ~BSDFAngle();
    BSDFAngle& operator=(const BSDFAngle& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(BSDFAngle& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Angle of the illumination from the surface normal, in degrees.
    double get_IlluminantAngle() const { return m_IlluminantAngle; }
    lmx::elmx_error set_IlluminantAngle(double value);

    /// Angle of the detector from the specular direction, in degrees.
    double get_Aspecular() const { return m_Aspecular; }
    lmx::elmx_error set_Aspecular(double value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_IlluminantAngle,
        item_Aspecular,
        item_Azimuth,
    };
    static const lmx::s_item k_items[];
    double m_IlluminantAngle = 0;
    double m_Aspecular = 0;
    bool m_isset_IlluminantAngle = false;
    bool m_isset_Aspecular = false;
};

/// An empty mark.
class VYR_EXPORT Azimuth {
public:
    Azimuth();
    Azimuth(const Azimuth& other);
    virtual ~Azimuth();
    Azimuth& operator=(const Azimuth& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(Azimuth& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }
};

}  // namespace com_vyrgraph_v2
