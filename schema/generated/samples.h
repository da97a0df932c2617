// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Classes of the topic samples: SampleType, SampleSpotType, SampleTargetType.

#pragma once

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <string>

#include "lmx/binding/class_parts.h"
#include "lmx/binding/table.h"
#include "lmx/export.h"
#include "schema/generated/enumerations.h"
#include "schema/generated/forward.h"
#include "schema/generated/groups.h"

namespace com_vyrgraph_v2 {

/// The physical thing that carried a measurement.
class VYR_EXPORT SampleType {
public:
    SampleType();
    SampleType(const SampleType& other);
    virtual SampleType* clone() const;
    virtual ~SampleType();
    SampleType& operator=(const SampleType& other);
    virtual const char* getid() const;
    /// True for the identity of this class and of those that it derives from, as pointers.
    virtual bool has_id(const char* identity) const;
    virtual lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    virtual lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(SampleType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

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

    /// Material of the sample.
    sg_Substrate& get_Substrate() { m_isset_Substrate = true; return m_Substrate; }
    const sg_Substrate& get_Substrate() const { return m_Substrate; }
    sg_Substrate& assign_Substrate(const sg_Substrate& value);

    /// What lay behind the sample while it was measured.
    const std::u16string& get_Backing() const { return m_Backing.get(); }
    lmx::elmx_error set_Backing(const std::u16string& value);
    Eenum_Backing getenum_Backing() const { return static_cast<Eenum_Backing>(m_Backing.number()); }
    bool setenum_Backing(std::int32_t number);
    bool isset_Backing() const { return m_isset_Backing; }
    void unset_Backing() { m_isset_Backing = false; }

    /// Who made the sample.
    const std::u16string& get_Manufacturer() const { return m_Manufacturer; }
    lmx::elmx_error set_Manufacturer(const std::u16string& value);
    bool isset_Manufacturer() const { return m_isset_Manufacturer; }
    void unset_Manufacturer() { m_isset_Manufacturer = false; }

    /// When the sample was made, with time zone.
    const lmx::c_datetime& get_ProductionDate() const { return m_ProductionDate; }
    lmx::elmx_error set_ProductionDate(const lmx::c_datetime& value);
    bool isset_ProductionDate() const { return m_isset_ProductionDate; }
    void unset_ProductionDate() { m_isset_ProductionDate = false; }

    /// Serial number of the sample.
    const std::u16string& get_SerialNumber() const { return m_SerialNumber; }
    lmx::elmx_error set_SerialNumber(const std::u16string& value);
    bool isset_SerialNumber() const { return m_isset_SerialNumber; }
    void unset_SerialNumber() { m_isset_SerialNumber = false; }

    /// Free remarks on the sample.
    const std::u16string& get_Comment() const { return m_Comment; }
    lmx::elmx_error set_Comment(const std::u16string& value);
    bool isset_Comment() const { return m_isset_Comment; }
    void unset_Comment() { m_isset_Comment = false; }

    /// The class's identity; `getid` and `has_id` work on its address.
    static const char* id;

    /// A new object of the type with that local name in namespace 1000, or null; the caller owns it.
    static SampleType* factory(int ns_id, const std::string& name);
    static const lmx::s_factory_row k_factory[2];

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_CustomAttribute,
        item_Substrate,
        item_Backing,
        item_Manufacturer,
        item_ProductionDate,
        item_SerialNumber,
        item_Comment,
    };
    static const lmx::s_item k_items[];
    lmx::c_list<CustomAttributeType> m_CustomAttribute;
    sg_Substrate m_Substrate;
    lmx::c_enumerated m_Backing;
    std::u16string m_Manufacturer;
    lmx::c_datetime m_ProductionDate;
    std::u16string m_SerialNumber;
    std::u16string m_Comment;
    bool m_isset_Substrate = false;
    bool m_isset_Backing = false;
    bool m_isset_Manufacturer = false;
    bool m_isset_ProductionDate = false;
    bool m_isset_SerialNumber = false;
    bool m_isset_Comment = false;
};

/// Head of the samples: any of them can stand in its place.
class VYR_EXPORT Sample : public SampleType {
public:
    static const lmx::s_ns_map* ns_map();
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    static const lmx::s_document k_document;
};

/// Width and height of a patch.
class VYR_EXPORT Specification {
public:
    Specification();
    Specification(const Specification& other);
    virtual ~Specification();
    Specification& operator=(const Specification& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(Specification& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Width; no unit is stated.
    double get_SampleWidth() const { return m_SampleWidth; }
    lmx::elmx_error set_SampleWidth(double value);

    /// Height; no unit is stated.
    double get_SampleHeight() const { return m_SampleHeight; }
    lmx::elmx_error set_SampleHeight(double value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_SampleWidth,
        item_SampleHeight,
    };
    static const lmx::s_item k_items[];
    double m_SampleWidth = 0;
    double m_SampleHeight = 0;
    bool m_isset_SampleWidth = false;
    bool m_isset_SampleHeight = false;
};

/// A single patch of one colour.
class VYR_EXPORT SampleSpotType : public SampleType {
public:
    SampleSpotType();
    SampleSpotType(const SampleSpotType& other);
    SampleSpotType* clone() const override;
    ~SampleSpotType() override;
    SampleSpotType& operator=(const SampleSpotType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(SampleSpotType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Size of the patch.
    Specification& get_Specification() { m_isset_Specification = true; return m_Specification; }
    const Specification& get_Specification() const { return m_Specification; }
    Specification& assign_Specification(const Specification& value);

    /// The class's identity; `getid` and `has_id` work on its address.
    static const char* id;

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    static const lmx::s_item k_items[];
    Specification m_Specification;
    bool m_isset_Specification = false;
};

/// A test chart of many patches.
class VYR_EXPORT SampleTargetType : public SampleType {
public:
    SampleTargetType();
    SampleTargetType(const SampleTargetType& other);
    SampleTargetType* clone() const override;
    ~SampleTargetType() override;
    SampleTargetType& operator=(const SampleTargetType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(SampleTargetType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Name of the chart where Target is Target_Custom.
    const std::u16string& get_CustomTarget() const { return m_CustomTarget; }
    lmx::elmx_error set_CustomTarget(const std::u16string& value);
    bool isset_CustomTarget() const { return m_isset_CustomTarget; }
    void unset_CustomTarget() { m_isset_CustomTarget = false; }

    /// The chart.
    const std::u16string& get_Target() const { return m_Target.get(); }
    lmx::elmx_error set_Target(const std::u16string& value);
    Eenum_Target getenum_Target() const { return static_cast<Eenum_Target>(m_Target.number()); }
    bool setenum_Target(std::int32_t number);

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
        item_CustomTarget,
        item_Target,
    };
    static const lmx::s_item k_items[];
    std::u16string m_CustomTarget;
    lmx::c_enumerated m_Target;
    bool m_isset_CustomTarget = false;
    bool m_isset_Target = false;
};

/// A single patch of one colour.
class VYR_EXPORT SampleSpot : public SampleSpotType {
public:
    SampleSpot() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    SampleSpot(const char* file_name, lmx::elmx_error* error);
    SampleSpot(const char* data, std::size_t size, lmx::elmx_error* error);
    SampleSpot(const std::string& text, lmx::elmx_error* error);
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

/// A test chart of many patches.
class VYR_EXPORT SampleTarget : public SampleTargetType {
public:
    SampleTarget() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    SampleTarget(const char* file_name, lmx::elmx_error* error);
    SampleTarget(const char* data, std::size_t size, lmx::elmx_error* error);
    SampleTarget(const std::string& text, lmx::elmx_error* error);
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
