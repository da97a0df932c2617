// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Classes of the topic sampled color values: ColorSpaceDensityType, ColorSpaceSpectralType,
/// ColorSpaceEmissiveSpectralType, ColorSpaceGenericType, ColorSpaceEmissiveGenericType, ReflectancePointType,
/// EmissiveSpectralPointType, AxisType, FloatingPointValueType, DensityType.

#pragma once

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <string>

#include "lmx/binding/class_parts.h"
#include "lmx/binding/table.h"
#include "lmx/export.h"
#include "schema/generated/color_values.h"
#include "schema/generated/conditions.h"
#include "schema/generated/enumerations.h"
#include "schema/generated/forward.h"

namespace com_vyrgraph_v2 {

/// A colour by its optical densities through one or more filters.
class VYR_EXPORT ColorSpaceDensityType : public ColorSpaceType {
public:
    ColorSpaceDensityType();
    ColorSpaceDensityType(const ColorSpaceDensityType& other);
    ColorSpaceDensityType* clone() const override;
    ~ColorSpaceDensityType() override;
    ColorSpaceDensityType& operator=(const ColorSpaceDensityType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(ColorSpaceDensityType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Name of the value.
    const std::u16string& get_Name() const { return m_Name; }
    lmx::elmx_error set_Name(const std::u16string& value);
    bool isset_Name() const { return m_isset_Name; }
    void unset_Name() { m_isset_Name = false; }

    /// Conditions under which the value holds.
    ColorSpaceSpecificationSpectrumGeneric& get_ColorSpaceSpecificationSpectrumGeneric() { m_isset_ColorSpaceSpecificationSpectrumGeneric = true; return m_ColorSpaceSpecificationSpectrumGeneric; }
    const ColorSpaceSpecificationSpectrumGeneric& get_ColorSpaceSpecificationSpectrumGeneric() const { return m_ColorSpaceSpecificationSpectrumGeneric; }
    ColorSpaceSpecificationSpectrumGeneric& assign_ColorSpaceSpecificationSpectrumGeneric(const ColorSpaceSpecificationSpectrumGeneric& value);

    /// Density through one filter.
    std::size_t size_Density() const { return m_Density.size(); }
    DensityType& get_Density(std::size_t index);
    const DensityType& get_Density(std::size_t index) const { return m_Density[index]; }
    DensityType& assign_Density(std::size_t index, const DensityType& value);
    lmx::elmx_error append_Density();
    lmx::elmx_error insert_Density(std::size_t index);
    DensityType& back_Density() { return m_Density.back(); }
    void delete_Density(std::size_t index);
    void clear_Density();

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
        item_ColorSpaceSpecificationSpectrumGeneric,
        item_Density,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Name;
    ColorSpaceSpecificationSpectrumGeneric m_ColorSpaceSpecificationSpectrumGeneric;
    lmx::c_list<DensityType> m_Density;
    bool m_isset_Name = false;
    bool m_isset_ColorSpaceSpecificationSpectrumGeneric = false;
};

/// A reflective or transmissive colour as a sampled spectrum.
class VYR_EXPORT ColorSpaceSpectralType : public ColorSpaceType {
public:
    ColorSpaceSpectralType();
    ColorSpaceSpectralType(const ColorSpaceSpectralType& other);
    ColorSpaceSpectralType* clone() const override;
    ~ColorSpaceSpectralType() override;
    ColorSpaceSpectralType& operator=(const ColorSpaceSpectralType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(ColorSpaceSpectralType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Name of the value.
    const std::u16string& get_Name() const { return m_Name; }
    lmx::elmx_error set_Name(const std::u16string& value);
    bool isset_Name() const { return m_isset_Name; }
    void unset_Name() { m_isset_Name = false; }

    /// Conditions under which the value holds.
    ColorSpaceSpecificationSpectrumSpectral& get_ColorSpaceSpecificationSpectrumSpectral() { m_isset_ColorSpaceSpecificationSpectrumSpectral = true; return m_ColorSpaceSpecificationSpectrumSpectral; }
    const ColorSpaceSpecificationSpectrumSpectral& get_ColorSpaceSpecificationSpectrumSpectral() const { return m_ColorSpaceSpecificationSpectrumSpectral; }
    ColorSpaceSpecificationSpectrumSpectral& assign_ColorSpaceSpecificationSpectrumSpectral(const ColorSpaceSpecificationSpectrumSpectral& value);

    /// One sample, in document order.
    std::size_t size_ReflectancePoint() const { return m_ReflectancePoint.size(); }
    ReflectancePointType& get_ReflectancePoint(std::size_t index);
    const ReflectancePointType& get_ReflectancePoint(std::size_t index) const { return m_ReflectancePoint[index]; }
    ReflectancePointType& assign_ReflectancePoint(std::size_t index, const ReflectancePointType& value);
    lmx::elmx_error append_ReflectancePoint();
    lmx::elmx_error insert_ReflectancePoint(std::size_t index);
    ReflectancePointType& back_ReflectancePoint() { return m_ReflectancePoint.back(); }
    void delete_ReflectancePoint(std::size_t index);
    void clear_ReflectancePoint();

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
        item_ColorSpaceSpecificationSpectrumSpectral,
        item_ReflectancePoint,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Name;
    ColorSpaceSpecificationSpectrumSpectral m_ColorSpaceSpecificationSpectrumSpectral;
    lmx::c_list<ReflectancePointType> m_ReflectancePoint;
    bool m_isset_Name = false;
    bool m_isset_ColorSpaceSpecificationSpectrumSpectral = false;
};

/// An emissive colour as a sampled spectrum.
class VYR_EXPORT ColorSpaceEmissiveSpectralType : public ColorSpaceType {
public:
    ColorSpaceEmissiveSpectralType();
    ColorSpaceEmissiveSpectralType(const ColorSpaceEmissiveSpectralType& other);
    ColorSpaceEmissiveSpectralType* clone() const override;
    ~ColorSpaceEmissiveSpectralType() override;
    ColorSpaceEmissiveSpectralType& operator=(const ColorSpaceEmissiveSpectralType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(ColorSpaceEmissiveSpectralType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Name of the value.
    const std::u16string& get_Name() const { return m_Name; }
    lmx::elmx_error set_Name(const std::u16string& value);
    bool isset_Name() const { return m_isset_Name; }
    void unset_Name() { m_isset_Name = false; }

    /// Conditions under which the value holds.
    ColorSpaceSpecificationEmissiveSpectral& get_ColorSpaceSpecificationEmissiveSpectral() { m_isset_ColorSpaceSpecificationEmissiveSpectral = true; return m_ColorSpaceSpecificationEmissiveSpectral; }
    const ColorSpaceSpecificationEmissiveSpectral& get_ColorSpaceSpecificationEmissiveSpectral() const { return m_ColorSpaceSpecificationEmissiveSpectral; }
    ColorSpaceSpecificationEmissiveSpectral& assign_ColorSpaceSpecificationEmissiveSpectral(const ColorSpaceSpecificationEmissiveSpectral& value);

    /// One sample, in document order.
    std::size_t size_EmissiveSpectralPoint() const { return m_EmissiveSpectralPoint.size(); }
    EmissiveSpectralPointType& get_EmissiveSpectralPoint(std::size_t index);
    const EmissiveSpectralPointType& get_EmissiveSpectralPoint(std::size_t index) const { return m_EmissiveSpectralPoint[index]; }
    EmissiveSpectralPointType& assign_EmissiveSpectralPoint(std::size_t index, const EmissiveSpectralPointType& value);
    lmx::elmx_error append_EmissiveSpectralPoint();
    lmx::elmx_error insert_EmissiveSpectralPoint(std::size_t index);
    EmissiveSpectralPointType& back_EmissiveSpectralPoint() { return m_EmissiveSpectralPoint.back(); }
    void delete_EmissiveSpectralPoint(std::size_t index);
    void clear_EmissiveSpectralPoint();

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
        item_ColorSpaceSpecificationEmissiveSpectral,
        item_EmissiveSpectralPoint,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Name;
    ColorSpaceSpecificationEmissiveSpectral m_ColorSpaceSpecificationEmissiveSpectral;
    lmx::c_list<EmissiveSpectralPointType> m_EmissiveSpectralPoint;
    bool m_isset_Name = false;
    bool m_isset_ColorSpaceSpecificationEmissiveSpectral = false;
};

/// A reflective colour in a space that the format doesn't know, axis by axis.
class VYR_EXPORT ColorSpaceGenericType : public ColorSpaceType {
public:
    ColorSpaceGenericType();
    ColorSpaceGenericType(const ColorSpaceGenericType& other);
    ColorSpaceGenericType* clone() const override;
    ~ColorSpaceGenericType() override;
    ColorSpaceGenericType& operator=(const ColorSpaceGenericType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(ColorSpaceGenericType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Name of the colour space.
    const std::u16string& get_Name() const { return m_Name; }
    lmx::elmx_error set_Name(const std::u16string& value);

    /// Conditions under which the value holds.
    ColorSpaceSpecificationSpectrumGeneric& get_ColorSpaceSpecificationSpectrumGeneric() { m_isset_ColorSpaceSpecificationSpectrumGeneric = true; return m_ColorSpaceSpecificationSpectrumGeneric; }
    const ColorSpaceSpecificationSpectrumGeneric& get_ColorSpaceSpecificationSpectrumGeneric() const { return m_ColorSpaceSpecificationSpectrumGeneric; }
    ColorSpaceSpecificationSpectrumGeneric& assign_ColorSpaceSpecificationSpectrumGeneric(const ColorSpaceSpecificationSpectrumGeneric& value);

    /// Value on one axis.
    std::size_t size_Axis() const { return m_Axis.size(); }
    AxisType& get_Axis(std::size_t index);
    const AxisType& get_Axis(std::size_t index) const { return m_Axis[index]; }
    AxisType& assign_Axis(std::size_t index, const AxisType& value);
    lmx::elmx_error append_Axis();
    lmx::elmx_error insert_Axis(std::size_t index);
    AxisType& back_Axis() { return m_Axis.back(); }
    void delete_Axis(std::size_t index);
    void clear_Axis();

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
        item_ColorSpaceSpecificationSpectrumGeneric,
        item_Axis,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Name;
    ColorSpaceSpecificationSpectrumGeneric m_ColorSpaceSpecificationSpectrumGeneric;
    lmx::c_list<AxisType> m_Axis;
    bool m_isset_Name = false;
    bool m_isset_ColorSpaceSpecificationSpectrumGeneric = false;
};

/// An emissive colour in a space that the format doesn't know, axis by axis.
class VYR_EXPORT ColorSpaceEmissiveGenericType : public ColorSpaceType {
public:
    ColorSpaceEmissiveGenericType();
    ColorSpaceEmissiveGenericType(const ColorSpaceEmissiveGenericType& other);
    ColorSpaceEmissiveGenericType* clone() const override;
    ~ColorSpaceEmissiveGenericType() override;
    ColorSpaceEmissiveGenericType& operator=(const ColorSpaceEmissiveGenericType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(ColorSpaceEmissiveGenericType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Name of the colour space.
    const std::u16string& get_Name() const { return m_Name; }
    lmx::elmx_error set_Name(const std::u16string& value);

    /// Conditions under which the value holds.
    ColorSpaceSpecificationEmissiveGeneric& get_ColorSpaceSpecificationEmissiveGeneric() { m_isset_ColorSpaceSpecificationEmissiveGeneric = true; return m_ColorSpaceSpecificationEmissiveGeneric; }
    const ColorSpaceSpecificationEmissiveGeneric& get_ColorSpaceSpecificationEmissiveGeneric() const { return m_ColorSpaceSpecificationEmissiveGeneric; }
    ColorSpaceSpecificationEmissiveGeneric& assign_ColorSpaceSpecificationEmissiveGeneric(const ColorSpaceSpecificationEmissiveGeneric& value);

    /// Value on one axis.
    std::size_t size_Axis() const { return m_Axis.size(); }
    AxisType& get_Axis(std::size_t index);
    const AxisType& get_Axis(std::size_t index) const { return m_Axis[index]; }
    AxisType& assign_Axis(std::size_t index, const AxisType& value);
    lmx::elmx_error append_Axis();
    lmx::elmx_error insert_Axis(std::size_t index);
    AxisType& back_Axis() { return m_Axis.back(); }
    void delete_Axis(std::size_t index);
    void clear_Axis();

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
        item_ColorSpaceSpecificationEmissiveGeneric,
        item_Axis,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Name;
    ColorSpaceSpecificationEmissiveGeneric m_ColorSpaceSpecificationEmissiveGeneric;
    lmx::c_list<AxisType> m_Axis;
    bool m_isset_Name = false;
    bool m_isset_ColorSpaceSpecificationEmissiveGeneric = false;
};

/// A reflective colour in a space that the format doesn't know, axis by axis.
class VYR_EXPORT ColorSpaceGeneric : public ColorSpaceGenericType {
public:
    ColorSpaceGeneric() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    ColorSpaceGeneric(const char* file_name, lmx::elmx_error* error);
    ColorSpaceGeneric(const char* data, std::size_t size, lmx::elmx_error* error);
    ColorSpaceGeneric(const std::string& text, lmx::elmx_error* error);
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

/// An emissive colour in a space that the format doesn't know, axis by axis.
class VYR_EXPORT ColorSpaceEmissiveGeneric : public ColorSpaceEmissiveGenericType {
public:
    ColorSpaceEmissiveGeneric() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    ColorSpaceEmissiveGeneric(const char* file_name, lmx::elmx_error* error);
    ColorSpaceEmissiveGeneric(const char* data, std::size_t size, lmx::elmx_error* error);
    ColorSpaceEmissiveGeneric(const std::string& text, lmx::elmx_error* error);
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

/// A colour by its optical densities through one or more filters.
class VYR_EXPORT ColorSpaceDensity : public ColorSpaceDensityType {
public:
    ColorSpaceDensity() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    ColorSpaceDensity(const char* file_name, lmx::elmx_error* error);
    ColorSpaceDensity(const char* data, std::size_t size, lmx::elmx_error* error);
    ColorSpaceDensity(const std::string& text, lmx::elmx_error* error);
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

/// A reflective or transmissive colour as a sampled spectrum.
class VYR_EXPORT ColorSpaceSpectral : public ColorSpaceSpectralType {
public:
    ColorSpaceSpectral() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    ColorSpaceSpectral(const char* file_name, lmx::elmx_error* error);
    ColorSpaceSpectral(const char* data, std::size_t size, lmx::elmx_error* error);
    ColorSpaceSpectral(const std::string& text, lmx::elmx_error* error);
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

/// An emissive colour as a sampled spectrum.
class VYR_EXPORT ColorSpaceEmissiveSpectral : public ColorSpaceEmissiveSpectralType {
public:
    ColorSpaceEmissiveSpectral() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    ColorSpaceEmissiveSpectral(const char* file_name, lmx::elmx_error* error);
    ColorSpaceEmissiveSpectral(const char* data, std::size_t size, lmx::elmx_error* error);
    ColorSpaceEmissiveSpectral(const std::string& text, lmx::elmx_error* error);
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

/// Reflectance factor at one wavelength.
class VYR_EXPORT ReflectancePointType {
public:
    ReflectancePointType();
    ReflectancePointType(const ReflectancePointType& other);
    virtual ~ReflectancePointType();
    ReflectancePointType& operator=(const ReflectancePointType& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(ReflectancePointType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Wavelength in nanometres, above 0.
    double get_Wavelength() const { return m_Wavelength; }
    lmx::elmx_error set_Wavelength(double value);

    /// Reflectance factor as a fraction, between -1 and 10 without the ends: noise can push it below 0, fluorescence
    /// above 1.
    double get_ReflectancePointType() const { return m_ReflectancePointType; }
    lmx::elmx_error set_ReflectancePointType(double value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error, bool has_body) { return lmx::unmarshal_content(k_class, this, reader, name, error, has_body); }

private:
    enum item : std::size_t {
        item_Wavelength,
        item_ReflectancePointType,
    };
    static const lmx::s_item k_items[];
    double m_Wavelength = 0;
    double m_ReflectancePointType = 0;
    bool m_isset_Wavelength = false;
    bool m_isset_ReflectancePointType = false;
};

/// Spectral power at one wavelength.
class VYR_EXPORT EmissiveSpectralPointType {
public:
    EmissiveSpectralPointType();
    EmissiveSpectralPointType(const EmissiveSpectralPointType& other);
    virtual ~EmissiveSpectralPointType();
    EmissiveSpectralPointType& operator=(const EmissiveSpectralPointType& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(EmissiveSpectralPointType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Wavelength in nanometres, above 0.
    double get_Wavelength() const { return m_Wavelength; }
    lmx::elmx_error set_Wavelength(double value);

    /// Spectral power, in the unit of the measurement.
    double get_EmissiveSpectralPointType() const { return m_EmissiveSpectralPointType; }
    lmx::elmx_error set_EmissiveSpectralPointType(double value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error, bool has_body) { return lmx::unmarshal_content(k_class, this, reader, name, error, has_body); }

private:
    enum item : std::size_t {
        item_Wavelength,
        item_EmissiveSpectralPointType,
    };
    static const lmx::s_item k_items[];
    double m_Wavelength = 0;
    double m_EmissiveSpectralPointType = 0;
    bool m_isset_Wavelength = false;
    bool m_isset_EmissiveSpectralPointType = false;
};

/// A coordinate: a number with its nominal range, or a text.
class VYR_EXPORT AxisValueChoice {
public:
    /// Which alternative is held.
    enum elmx_chosen : std::int32_t { e_AxisFloatingPointValue, e_AxisStringValue, e_none = e_AxisStringValue + 1 };

    AxisValueChoice();
    AxisValueChoice(const AxisValueChoice& other);
    virtual ~AxisValueChoice();
    AxisValueChoice& operator=(const AxisValueChoice& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(AxisValueChoice& other);
    void reset();
    bool is_occurs_ok() const;
    elmx_chosen getchosen() const { return static_cast<elmx_chosen>(m_choice.chosen); }
    static const lmx::s_class k_class;

    /// The coordinate as a number.
    FloatingPointValueType& get_AxisFloatingPointValue();
    const FloatingPointValueType& get_AxisFloatingPointValue() const { return *static_cast<const FloatingPointValueType*>(m_choice.object); }
    FloatingPointValueType& assign_AxisFloatingPointValue(const FloatingPointValueType& value);

    /// The coordinate as a text.
    const std::u16string& get_AxisStringValue() const;
    lmx::elmx_error set_AxisStringValue(const std::u16string& value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_AxisFloatingPointValue,
        item_AxisStringValue,
    };
    static const lmx::s_item k_items[];
    lmx::s_choice m_choice{e_none};
};

/// Value on one axis of a colour space that the format doesn't know.
class VYR_EXPORT AxisType {
public:
    AxisType();
    AxisType(const AxisType& other);
    virtual ~AxisType();
    AxisType& operator=(const AxisType& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(AxisType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Name of the axis.
    const std::u16string& get_AxisName() const { return m_AxisName; }
    lmx::elmx_error set_AxisName(const std::u16string& value);

    /// Value on the axis.
    AxisValueChoice& get_AxisValueChoice() { m_isset_AxisValueChoice = true; return m_AxisValueChoice; }
    const AxisValueChoice& get_AxisValueChoice() const { return m_AxisValueChoice; }
    AxisValueChoice& assign_AxisValueChoice(const AxisValueChoice& value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_AxisName,
        item_AxisValueChoice,
    };
    static const lmx::s_item k_items[];
    std::u16string m_AxisName;
    AxisValueChoice m_AxisValueChoice;
    bool m_isset_AxisName = false;
    bool m_isset_AxisValueChoice = false;
};

/// A number on an axis, with the nominal range and the scale of the axis.
class VYR_EXPORT FloatingPointValueType {
public:
    FloatingPointValueType();
    FloatingPointValueType(const FloatingPointValueType& other);
    virtual ~FloatingPointValueType();
    FloatingPointValueType& operator=(const FloatingPointValueType& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(FloatingPointValueType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Upper end of the axis's nominal range.
    double get_AxisNominalMax() const { return m_AxisNominalMax; }
    lmx::elmx_error set_AxisNominalMax(double value);

    /// Lower end of the axis's nominal range.
    double get_AxisNominalMin() const { return m_AxisNominalMin; }
    lmx::elmx_error set_AxisNominalMin(double value);

    /// Scale of the axis; a new object holds Scale_Linear, without counting as set.
    const std::u16string& get_AxisNominalScale() const { return m_AxisNominalScale.get(); }
    lmx::elmx_error set_AxisNominalScale(const std::u16string& value);
    Eenum_AxisNominalScale getenum_AxisNominalScale() const { return static_cast<Eenum_AxisNominalScale>(m_AxisNominalScale.number()); }
    bool setenum_AxisNominalScale(std::int32_t number);
    bool isset_AxisNominalScale() const { return m_isset_AxisNominalScale; }
    void unset_AxisNominalScale() { m_isset_AxisNominalScale = false; }

    /// The coordinate.
    double get_FloatingPointValueType() const { return m_FloatingPointValueType; }
    lmx::elmx_error set_FloatingPointValueType(double value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error, bool has_body) { return lmx::unmarshal_content(k_class, this, reader, name, error, has_body); }

private:
    enum item : std::size_t {
        item_AxisNominalMax,
        item_AxisNominalMin,
        item_AxisNominalScale,
        item_FloatingPointValueType,
    };
    static const lmx::s_item k_items[];
    double m_AxisNominalMax = 0;
    double m_AxisNominalMin = 0;
    lmx::c_enumerated m_AxisNominalScale;
    double m_FloatingPointValueType = 0;
    bool m_isset_AxisNominalMax = false;
    bool m_isset_AxisNominalMin = false;
    bool m_isset_AxisNominalScale = false;
    bool m_isset_FloatingPointValueType = false;
};

/// Optical density through one filter of a status.
class VYR_EXPORT DensityType {
public:
    DensityType();
    DensityType(const DensityType& other);
    virtual ~DensityType();
    DensityType& operator=(const DensityType& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(DensityType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Density status, the set of filter responses.
    const std::u16string& get_DensityStatus() const { return m_DensityStatus.get(); }
    lmx::elmx_error set_DensityStatus(const std::u16string& value);
    Eenum_DensityStatus getenum_DensityStatus() const { return static_cast<Eenum_DensityStatus>(m_DensityStatus.number()); }
    bool setenum_DensityStatus(std::int32_t number);

    /// Filter of the status.
    const std::u16string& get_DensityFilter() const { return m_DensityFilter.get(); }
    lmx::elmx_error set_DensityFilter(const std::u16string& value);
    Eenum_DensityFilter getenum_DensityFilter() const { return static_cast<Eenum_DensityFilter>(m_DensityFilter.number()); }
    bool setenum_DensityFilter(std::int32_t number);

    /// The density, a common logarithm.
    double get_DensityType() const { return m_DensityType; }
    lmx::elmx_error set_DensityType(double value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error, bool has_body) { return lmx::unmarshal_content(k_class, this, reader, name, error, has_body); }

private:
    enum item : std::size_t {
        item_DensityStatus,
        item_DensityFilter,
        item_DensityType,
    };
    static const lmx::s_item k_items[];
    lmx::c_enumerated m_DensityStatus;
    lmx::c_enumerated m_DensityFilter;
    double m_DensityType = 0;
    bool m_isset_DensityStatus = false;
    bool m_isset_DensityFilter = false;
    bool m_isset_DensityType = false;
};

}  // namespace com_vyrgraph_v2
