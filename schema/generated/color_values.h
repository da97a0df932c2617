// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Classes of the topic color values: ColorSpaceType, ColorSpaceCIELabType, ColorSpaceCIELChType,
/// ColorSpaceCIELuvType, ColorSpaceCIEXYZType, ColorSpaceCIExyYType, ColorSpaceEmissiveCIEXYZType,
/// ColorSpaceEmissiveCIExyYType.

#pragma once

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <string>

#include "lmx/binding/class_parts.h"
#include "lmx/binding/table.h"
#include "lmx/export.h"
#include "schema/generated/conditions.h"
#include "schema/generated/enumerations.h"
#include "schema/generated/forward.h"
#include "schema/generated/groups.h"

namespace com_vyrgraph_v2 {

/// The value from which another one was derived, or nil where there is none to tell.
class VYR_EXPORT ParentColorSpace : public sg_ColorSpace {
public:
    ParentColorSpace();
    ParentColorSpace(const ParentColorSpace& other);
    ~ParentColorSpace() override;
    ParentColorSpace& operator=(const ParentColorSpace& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(ParentColorSpace& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// The parent's value; the element's name says in which colour space.
    sg_ColorSpace& get_ColorSpace() { m_choice.is_touched = true; return *this; }
    const sg_ColorSpace& get_ColorSpace() const { return *this; }
    sg_ColorSpace& assign_ColorSpace(const sg_ColorSpace& value);
    bool isset_ColorSpace() const { return m_choice.is_touched; }
    void unset_ColorSpace() { m_choice.is_touched = false; }

    /// The `xsi:nil` state: an element without a value.
    bool isnil_ParentColorSpace() const { return m_isnil; }
    void setnil_ParentColorSpace() { m_isnil = true; }

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    static const lmx::s_item k_items[];
    bool m_isnil = false;
};

/// A colour value in some colour space.
class VYR_EXPORT ColorSpaceType {
public:
    ColorSpaceType();
    ColorSpaceType(const ColorSpaceType& other);
    virtual ColorSpaceType* clone() const;
    virtual ~ColorSpaceType();
    ColorSpaceType& operator=(const ColorSpaceType& other);
    virtual const char* getid() const;
    /// True for the identity of this class and of those that it derives from, as pointers.
    virtual bool has_id(const char* identity) const;
    virtual lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    virtual lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(ColorSpaceType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Free remarks on the value.
    const std::u16string& get_Comments() const { return m_Comments; }
    lmx::elmx_error set_Comments(const std::u16string& value);
    bool isset_Comments() const { return m_isset_Comments; }
    void unset_Comments() { m_isset_Comments = false; }

    /// Identifier of the value.
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

    /// The value that this one was computed from.
    ParentColorSpace& get_ParentColorSpace();
    const ParentColorSpace& get_ParentColorSpace() const;
    ParentColorSpace& assign_ParentColorSpace(const ParentColorSpace& value);
    bool isset_ParentColorSpace() const { return m_isset_ParentColorSpace; }
    void unset_ParentColorSpace() { m_isset_ParentColorSpace = false; }

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
    static ColorSpaceType* factory(int ns_id, const std::string& name);
    static const lmx::s_factory_row k_factory[28];

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
        item_ParentColorSpace,
        item_ChangeHistory,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Comments;
    std::u16string m_UniqueID;
    lmx::c_list<CustomAttributeType> m_CustomAttribute;
    lmx::c_optional_child<ParentColorSpace> m_ParentColorSpace;
    lmx::c_list<lmx::c_datetime> m_ChangeHistory;
    bool m_isset_Comments = false;
    bool m_isset_UniqueID = false;
    bool m_isset_ParentColorSpace = false;
};

/// Head of the colour values: any of them can stand in its place.
class VYR_EXPORT ColorSpace : public ColorSpaceType {
public:
    static const lmx::s_ns_map* ns_map();
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    static const lmx::s_document k_document;
};

/// A reflective colour in CIE 1976 L*a*b*.
class VYR_EXPORT ColorSpaceCIELabType : public ColorSpaceType {
public:
    ColorSpaceCIELabType();
    ColorSpaceCIELabType(const ColorSpaceCIELabType& other);
    ColorSpaceCIELabType* clone() const override;
    ~ColorSpaceCIELabType() override;
    ColorSpaceCIELabType& operator=(const ColorSpaceCIELabType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(ColorSpaceCIELabType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Name of the value.
    const std::u16string& get_Name() const { return m_Name; }
    lmx::elmx_error set_Name(const std::u16string& value);
    bool isset_Name() const { return m_isset_Name; }
    void unset_Name() { m_isset_Name = false; }

    /// Conditions under which the value holds.
    ColorSpaceSpecificationSpectrumTristimulus& get_ColorSpaceSpecificationSpectrumTristimulus() { m_isset_ColorSpaceSpecificationSpectrumTristimulus = true; return m_ColorSpaceSpecificationSpectrumTristimulus; }
    const ColorSpaceSpecificationSpectrumTristimulus& get_ColorSpaceSpecificationSpectrumTristimulus() const { return m_ColorSpaceSpecificationSpectrumTristimulus; }
    ColorSpaceSpecificationSpectrumTristimulus& assign_ColorSpaceSpecificationSpectrumTristimulus(const ColorSpaceSpecificationSpectrumTristimulus& value);

    /// Lightness L*, 0 (black) to 150; 100 is the perfect diffuser.
    double get_L() const { return m_L; }
    lmx::elmx_error set_L(double value);

    /// a*, from green (negative) to red, -150 to 150.
    double get_A() const { return m_A; }
    lmx::elmx_error set_A(double value);

    /// b*, from blue (negative) to yellow, -150 to 150.
    double get_B() const { return m_B; }
    lmx::elmx_error set_B(double value);

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
        item_Name,
        item_ColorSpaceSpecificationSpectrumTristimulus,
        item_L,
        item_A,
        item_B,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Name;
    ColorSpaceSpecificationSpectrumTristimulus m_ColorSpaceSpecificationSpectrumTristimulus;
    double m_L = 0;
    double m_A = 0;
    double m_B = 0;
    bool m_isset_Name = false;
    bool m_isset_ColorSpaceSpecificationSpectrumTristimulus = false;
    bool m_isset_L = false;
    bool m_isset_A = false;
    bool m_isset_B = false;
};

/// A reflective colour in CIE L*C*h, the polar form of CIE 1976 L*a*b*.
class VYR_EXPORT ColorSpaceCIELChType : public ColorSpaceType {
public:
    ColorSpaceCIELChType();
    ColorSpaceCIELChType(const ColorSpaceCIELChType& other);
    ColorSpaceCIELChType* clone() const override;
    ~ColorSpaceCIELChType() override;
    ColorSpaceCIELChType& operator=(const ColorSpaceCIELChType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(ColorSpaceCIELChType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Name of the value.
    const std::u16string& get_Name() const { return m_Name; }
    lmx::elmx_error set_Name(const std::u16string& value);
    bool isset_Name() const { return m_isset_Name; }
    void unset_Name() { m_isset_Name = false; }

    /// Conditions under which the value holds.
    ColorSpaceSpecificationSpectrumTristimulus& get_ColorSpaceSpecificationSpectrumTristimulus() { m_isset_ColorSpaceSpecificationSpectrumTristimulus = true; return m_ColorSpaceSpecificationSpectrumTristimulus; }
    const ColorSpaceSpecificationSpectrumTristimulus& get_ColorSpaceSpecificationSpectrumTristimulus() const { return m_ColorSpaceSpecificationSpectrumTristimulus; }
    ColorSpaceSpecificationSpectrumTristimulus& assign_ColorSpaceSpecificationSpectrumTristimulus(const ColorSpaceSpecificationSpectrumTristimulus& value);

    /// Lightness L*, 0 to 100.
    double get_L() const { return m_L; }
    lmx::elmx_error set_L(double value);

    /// Chroma C*, 0 (neutral) to 150.
    double get_C() const { return m_C; }
    lmx::elmx_error set_C(double value);

    /// Hue angle h in degrees, from 0 to below 360.
    double get_H() const { return m_H; }
    lmx::elmx_error set_H(double value);

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
        item_Name,
        item_ColorSpaceSpecificationSpectrumTristimulus,
        item_L,
        item_C,
        item_H,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Name;
    ColorSpaceSpecificationSpectrumTristimulus m_ColorSpaceSpecificationSpectrumTristimulus;
    double m_L = 0;
    double m_C = 0;
    double m_H = 0;
    bool m_isset_Name = false;
    bool m_isset_ColorSpaceSpecificationSpectrumTristimulus = false;
    bool m_isset_L = false;
    bool m_isset_C = false;
    bool m_isset_H = false;
};

/// A reflective colour in CIE 1976 L*u*v*.
class VYR_EXPORT ColorSpaceCIELuvType : public ColorSpaceType {
public:
    ColorSpaceCIELuvType();
    ColorSpaceCIELuvType(const ColorSpaceCIELuvType& other);
    ColorSpaceCIELuvType* clone() const override;
    ~ColorSpaceCIELuvType() override;
    ColorSpaceCIELuvType& operator=(const ColorSpaceCIELuvType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(ColorSpaceCIELuvType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Name of the value.
    const std::u16string& get_Name() const { return m_Name; }
    lmx::elmx_error set_Name(const std::u16string& value);
    bool isset_Name() const { return m_isset_Name; }
    void unset_Name() { m_isset_Name = false; }

    /// Conditions under which the value holds.
    ColorSpaceSpecificationSpectrumTristimulus& get_ColorSpaceSpecificationSpectrumTristimulus() { m_isset_ColorSpaceSpecificationSpectrumTristimulus = true; return m_ColorSpaceSpecificationSpectrumTristimulus; }
    const ColorSpaceSpecificationSpectrumTristimulus& get_ColorSpaceSpecificationSpectrumTristimulus() const { return m_ColorSpaceSpecificationSpectrumTristimulus; }
    ColorSpaceSpecificationSpectrumTristimulus& assign_ColorSpaceSpecificationSpectrumTristimulus(const ColorSpaceSpecificationSpectrumTristimulus& value);

    /// Lightness L*, 0 to 100.
    double get_L() const { return m_L; }
    lmx::elmx_error set_L(double value);

    /// u*, from green (negative) to red, -134 to 220.
    double get_U() const { return m_U; }
    lmx::elmx_error set_U(double value);

    /// v*, from blue (negative) to yellow, -140 to 122.
    double get_V() const { return m_V; }
    lmx::elmx_error set_V(double value);

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
        item_Name,
        item_ColorSpaceSpecificationSpectrumTristimulus,
        item_L,
        item_U,
        item_V,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Name;
    ColorSpaceSpecificationSpectrumTristimulus m_ColorSpaceSpecificationSpectrumTristimulus;
    double m_L = 0;
    double m_U = 0;
    double m_V = 0;
    bool m_isset_Name = false;
    bool m_isset_ColorSpaceSpecificationSpectrumTristimulus = false;
    bool m_isset_L = false;
    bool m_isset_U = false;
    bool m_isset_V = false;
};

/// A reflective colour in CIE XYZ, scaled so that Y of the perfect diffuser is 1.
class VYR_EXPORT ColorSpaceCIEXYZType : public ColorSpaceType {
public:
    ColorSpaceCIEXYZType();
    ColorSpaceCIEXYZType(const ColorSpaceCIEXYZType& other);
    ColorSpaceCIEXYZType* clone() const override;
    ~ColorSpaceCIEXYZType() override;
    ColorSpaceCIEXYZType& operator=(const ColorSpaceCIEXYZType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(ColorSpaceCIEXYZType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Name of the value.
    const std::u16string& get_Name() const { return m_Name; }
    lmx::elmx_error set_Name(const std::u16string& value);
    bool isset_Name() const { return m_isset_Name; }
    void unset_Name() { m_isset_Name = false; }

    /// Conditions under which the value holds.
    ColorSpaceSpecificationSpectrumTristimulus& get_ColorSpaceSpecificationSpectrumTristimulus() { m_isset_ColorSpaceSpecificationSpectrumTristimulus = true; return m_ColorSpaceSpecificationSpectrumTristimulus; }
    const ColorSpaceSpecificationSpectrumTristimulus& get_ColorSpaceSpecificationSpectrumTristimulus() const { return m_ColorSpaceSpecificationSpectrumTristimulus; }
    ColorSpaceSpecificationSpectrumTristimulus& assign_ColorSpaceSpecificationSpectrumTristimulus(const ColorSpaceSpecificationSpectrumTristimulus& value);

    /// Tristimulus value X, 0 to 1.
    double get_X() const { return m_X; }
    lmx::elmx_error set_X(double value);

    /// Tristimulus value Y, the luminance factor, 0 to 1.
    double get_Y() const { return m_Y; }
    lmx::elmx_error set_Y(double value);

    /// Tristimulus value Z, 0 to 1.
    double get_Z() const { return m_Z; }
    lmx::elmx_error set_Z(double value);

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
        item_Name,
        item_ColorSpaceSpecificationSpectrumTristimulus,
        item_X,
        item_Y,
        item_Z,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Name;
    ColorSpaceSpecificationSpectrumTristimulus m_ColorSpaceSpecificationSpectrumTristimulus;
    double m_X = 0;
    double m_Y = 0;
    double m_Z = 0;
    bool m_isset_Name = false;
    bool m_isset_ColorSpaceSpecificationSpectrumTristimulus = false;
    bool m_isset_X = false;
    bool m_isset_Y = false;
    bool m_isset_Z = false;
};

/// A reflective colour by its CIE chromaticity and luminance factor.
class VYR_EXPORT ColorSpaceCIExyYType : public ColorSpaceType {
public:
    ColorSpaceCIExyYType();
    ColorSpaceCIExyYType(const ColorSpaceCIExyYType& other);
    ColorSpaceCIExyYType* clone() const override;
    ~ColorSpaceCIExyYType() override;
    ColorSpaceCIExyYType& operator=(const ColorSpaceCIExyYType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(ColorSpaceCIExyYType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Name of the value.
    const std::u16string& get_Name() const { return m_Name; }
    lmx::elmx_error set_Name(const std::u16string& value);
    bool isset_Name() const { return m_isset_Name; }
    void unset_Name() { m_isset_Name = false; }

    /// Conditions under which the value holds.
    ColorSpaceSpecificationSpectrumTristimulus& get_ColorSpaceSpecificationSpectrumTristimulus() { m_isset_ColorSpaceSpecificationSpectrumTristimulus = true; return m_ColorSpaceSpecificationSpectrumTristimulus; }
    const ColorSpaceSpecificationSpectrumTristimulus& get_ColorSpaceSpecificationSpectrumTristimulus() const { return m_ColorSpaceSpecificationSpectrumTristimulus; }
    ColorSpaceSpecificationSpectrumTristimulus& assign_ColorSpaceSpecificationSpectrumTristimulus(const ColorSpaceSpecificationSpectrumTristimulus& value);

    /// Chromaticity coordinate x, 0 to 1.
    double get_X() const { return m_X; }
    lmx::elmx_error set_X(double value);

    /// Chromaticity coordinate y, 0 to 1.
    double get_Y() const { return m_Y; }
    lmx::elmx_error set_Y(double value);

    /// Luminance factor Y, 0 to 1.
    double get_CapY() const { return m_CapY; }
    lmx::elmx_error set_CapY(double value);

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
        item_Name,
        item_ColorSpaceSpecificationSpectrumTristimulus,
        item_X,
        item_Y,
        item_CapY,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Name;
    ColorSpaceSpecificationSpectrumTristimulus m_ColorSpaceSpecificationSpectrumTristimulus;
    double m_X = 0;
    double m_Y = 0;
    double m_CapY = 0;
    bool m_isset_Name = false;
    bool m_isset_ColorSpaceSpecificationSpectrumTristimulus = false;
    bool m_isset_X = false;
    bool m_isset_Y = false;
    bool m_isset_CapY = false;
};

/// An emissive colour in CIE XYZ; absolute, hence without an upper bound.
class VYR_EXPORT ColorSpaceEmissiveCIEXYZType : public ColorSpaceType {
public:
    ColorSpaceEmissiveCIEXYZType();
    ColorSpaceEmissiveCIEXYZType(const ColorSpaceEmissiveCIEXYZType& other);
    ColorSpaceEmissiveCIEXYZType* clone() const override;
    ~ColorSpaceEmissiveCIEXYZType() override;
    ColorSpaceEmissiveCIEXYZType& operator=(const ColorSpaceEmissiveCIEXYZType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(ColorSpaceEmissiveCIEXYZType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Name of the value.
    const std::u16string& get_Name() const { return m_Name; }
    lmx::elmx_error set_Name(const std::u16string& value);
    bool isset_Name() const { return m_isset_Name; }
    void unset_Name() { m_isset_Name = false; }

    /// Conditions under which the value holds.
    ColorSpaceSpecificationEmissiveTristimulus& get_ColorSpaceSpecificationEmissiveTristimulus() { m_isset_ColorSpaceSpecificationEmissiveTristimulus = true; return m_ColorSpaceSpecificationEmissiveTristimulus; }
    const ColorSpaceSpecificationEmissiveTristimulus& get_ColorSpaceSpecificationEmissiveTristimulus() const { return m_ColorSpaceSpecificationEmissiveTristimulus; }
    ColorSpaceSpecificationEmissiveTristimulus& assign_ColorSpaceSpecificationEmissiveTristimulus(const ColorSpaceSpecificationEmissiveTristimulus& value);

    /// Tristimulus value X, 0 or more.
    double get_X() const { return m_X; }
    lmx::elmx_error set_X(double value);

    /// Tristimulus value Y, 0 or more.
    double get_Y() const { return m_Y; }
    lmx::elmx_error set_Y(double value);

    /// Tristimulus value Z, 0 or more.
    double get_Z() const { return m_Z; }
    lmx::elmx_error set_Z(double value);

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
        item_Name,
        item_ColorSpaceSpecificationEmissiveTristimulus,
        item_X,
        item_Y,
        item_Z,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Name;
    ColorSpaceSpecificationEmissiveTristimulus m_ColorSpaceSpecificationEmissiveTristimulus;
    double m_X = 0;
    double m_Y = 0;
    double m_Z = 0;
    bool m_isset_Name = false;
    bool m_isset_ColorSpaceSpecificationEmissiveTristimulus = false;
    bool m_isset_X = false;
    bool m_isset_Y = false;
    bool m_isset_Z = false;
};

/// An emissive colour by its CIE chromaticity and luminance.
class VYR_EXPORT ColorSpaceEmissiveCIExyYType : public ColorSpaceType {
public:
    ColorSpaceEmissiveCIExyYType();
    ColorSpaceEmissiveCIExyYType(const ColorSpaceEmissiveCIExyYType& other);
    ColorSpaceEmissiveCIExyYType* clone() const override;
    ~ColorSpaceEmissiveCIExyYType() override;
    ColorSpaceEmissiveCIExyYType& operator=(const ColorSpaceEmissiveCIExyYType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(ColorSpaceEmissiveCIExyYType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Name of the value.
    const std::u16string& get_Name() const { return m_Name; }
    lmx::elmx_error set_Name(const std::u16string& value);
    bool isset_Name() const { return m_isset_Name; }
    void unset_Name() { m_isset_Name = false; }

    /// Conditions under which the value holds.
    ColorSpaceSpecificationEmissiveTristimulus& get_ColorSpaceSpecificationEmissiveTristimulus() { m_isset_ColorSpaceSpecificationEmissiveTristimulus = true; return m_ColorSpaceSpecificationEmissiveTristimulus; }
    const ColorSpaceSpecificationEmissiveTristimulus& get_ColorSpaceSpecificationEmissiveTristimulus() const { return m_ColorSpaceSpecificationEmissiveTristimulus; }
    ColorSpaceSpecificationEmissiveTristimulus& assign_ColorSpaceSpecificationEmissiveTristimulus(const ColorSpaceSpecificationEmissiveTristimulus& value);

    /// Chromaticity coordinate x, 0 to 1.
    double get_X() const { return m_X; }
    lmx::elmx_error set_X(double value);

    /// Chromaticity coordinate y, 0 to 1.
    double get_Y() const { return m_Y; }
    lmx::elmx_error set_Y(double value);

    /// Luminance Y, 0 or more.
    double get_CapY() const { return m_CapY; }
    lmx::elmx_error set_CapY(double value);

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
        item_Name,
        item_ColorSpaceSpecificationEmissiveTristimulus,
        item_X,
        item_Y,
        item_CapY,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Name;
    ColorSpaceSpecificationEmissiveTristimulus m_ColorSpaceSpecificationEmissiveTristimulus;
    double m_X = 0;
    double m_Y = 0;
    double m_CapY = 0;
    bool m_isset_Name = false;
    bool m_isset_ColorSpaceSpecificationEmissiveTristimulus = false;
    bool m_isset_X = false;
    bool m_isset_Y = false;
    bool m_isset_CapY = false;
};

/// A reflective colour in CIE 1976 L*a*b*.
class VYR_EXPORT ColorSpaceCIELab : public ColorSpaceCIELabType {
public:
    ColorSpaceCIELab() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    ColorSpaceCIELab(const char* file_name, lmx::elmx_error* error);
    ColorSpaceCIELab(const char* data, std::size_t size, lmx::elmx_error* error);
    ColorSpaceCIELab(const std::string& text, lmx::elmx_error* error);
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

/// A reflective colour in CIE L*C*h, the polar form of CIE 1976 L*a*b*.
class VYR_EXPORT ColorSpaceCIELCh : public ColorSpaceCIELChType {
public:
    ColorSpaceCIELCh() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    ColorSpaceCIELCh(const char* file_name, lmx::elmx_error* error);
    ColorSpaceCIELCh(const char* data, std::size_t size, lmx::elmx_error* error);
    ColorSpaceCIELCh(const std::string& text, lmx::elmx_error* error);
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

/// A reflective colour in CIE XYZ, scaled so that Y of the perfect diffuser is 1.
class VYR_EXPORT ColorSpaceCIEXYZ : public ColorSpaceCIEXYZType {
public:
    ColorSpaceCIEXYZ() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    ColorSpaceCIEXYZ(const char* file_name, lmx::elmx_error* error);
    ColorSpaceCIEXYZ(const char* data, std::size_t size, lmx::elmx_error* error);
    ColorSpaceCIEXYZ(const std::string& text, lmx::elmx_error* error);
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

/// An emissive colour in CIE XYZ; absolute, hence without an upper bound.
class VYR_EXPORT ColorSpaceEmissiveCIEXYZ : public ColorSpaceEmissiveCIEXYZType {
public:
    ColorSpaceEmissiveCIEXYZ() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    ColorSpaceEmissiveCIEXYZ(const char* file_name, lmx::elmx_error* error);
    ColorSpaceEmissiveCIEXYZ(const char* data, std::size_t size, lmx::elmx_error* error);
    ColorSpaceEmissiveCIEXYZ(const std::string& text, lmx::elmx_error* error);
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

/// A reflective colour by its CIE chromaticity and luminance factor.
class VYR_EXPORT ColorSpaceCIExyY : public ColorSpaceCIExyYType {
public:
    ColorSpaceCIExyY() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    ColorSpaceCIExyY(const char* file_name, lmx::elmx_error* error);
    ColorSpaceCIExyY(const char* data, std::size_t size, lmx::elmx_error* error);
    ColorSpaceCIExyY(const std::string& text, lmx::elmx_error* error);
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

/// An emissive colour by its CIE chromaticity and luminance.
class VYR_EXPORT ColorSpaceEmissiveCIExyY : public ColorSpaceEmissiveCIExyYType {
public:
    ColorSpaceEmissiveCIExyY() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    ColorSpaceEmissiveCIExyY(const char* file_name, lmx::elmx_error* error);
    ColorSpaceEmissiveCIExyY(const char* data, std::size_t size, lmx::elmx_error* error);
    ColorSpaceEmissiveCIExyY(const std::string& text, lmx::elmx_error* error);
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

/// A reflective colour in CIE 1976 L*u*v*.
class VYR_EXPORT ColorSpaceCIELuv : public ColorSpaceCIELuvType {
public:
    ColorSpaceCIELuv() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    ColorSpaceCIELuv(const char* file_name, lmx::elmx_error* error);
    ColorSpaceCIELuv(const char* data, std::size_t size, lmx::elmx_error* error);
    ColorSpaceCIELuv(const std::string& text, lmx::elmx_error* error);
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

}  // namespace com_vyrgraph_v2
