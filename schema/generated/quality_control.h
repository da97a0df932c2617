// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Classes of the topic quality control: LimitsType, ToleranceType, PhysicalSampleType, ColorQualityControlType,
/// Measurement, Standard, StandardAndMeasurementType.

#pragma once

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <string>

#include "lmx/binding/class_parts.h"
#include "lmx/binding/table.h"
#include "lmx/export.h"
#include "schema/generated/conditions.h"
#include "schema/generated/devices.h"
#include "schema/generated/enumerations.h"
#include "schema/generated/forward.h"
#include "schema/generated/groups.h"
#include "schema/generated/palettes.h"

namespace com_vyrgraph_v2 {

/// Limits of a function's result.
class VYR_EXPORT LimitsType {
public:
    LimitsType();
    LimitsType(const LimitsType& other);
    virtual ~LimitsType();
    LimitsType& operator=(const LimitsType& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(LimitsType& other);
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

    /// Upper limit, in the unit of the result.
    double get_HighTolerance() const { return m_HighTolerance; }
    lmx::elmx_error set_HighTolerance(double value);

    /// Lower limit, in the unit of the result.
    double get_LowTolerance() const { return m_LowTolerance; }
    lmx::elmx_error set_LowTolerance(double value);
    bool isset_LowTolerance() const { return m_isset_LowTolerance; }
    void unset_LowTolerance() { m_isset_LowTolerance = false; }

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_CustomAttribute,
        item_HighTolerance,
        item_LowTolerance,
    };
    static const lmx::s_item k_items[];
    lmx::c_list<CustomAttributeType> m_CustomAttribute;
    double m_HighTolerance = 0;
    double m_LowTolerance = 0;
    bool m_isset_HighTolerance = false;
    bool m_isset_LowTolerance = false;
};

/// A function, the limits for its result, and the viewing conditions that it is evaluated for.
class VYR_EXPORT ToleranceType {
public:
    ToleranceType();
    ToleranceType(const ToleranceType& other);
    virtual ~ToleranceType();
    ToleranceType& operator=(const ToleranceType& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(ToleranceType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Name of the tolerance.
    const std::u16string& get_Name() const { return m_Name; }
    lmx::elmx_error set_Name(const std::u16string& value);
    bool isset_Name() const { return m_isset_Name; }
    void unset_Name() { m_isset_Name = false; }

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

    /// The function whose result is limited.
    sg_Function& get_Function() { m_isset_Function = true; return m_Function; }
    const sg_Function& get_Function() const { return m_Function; }
    sg_Function& assign_Function(const sg_Function& value);

    /// Limits of the result.
    LimitsType& get_Limits();
    const LimitsType& get_Limits() const;
    LimitsType& assign_Limits(const LimitsType& value);
    bool isset_Limits() const { return m_isset_Limits; }
    void unset_Limits() { m_isset_Limits = false; }

    /// First illuminant of the evaluation.
    const std::u16string& get_PrimaryIlluminant() const { return m_PrimaryIlluminant.get(); }
    lmx::elmx_error set_PrimaryIlluminant(const std::u16string& value);
    Eenum_PrimaryIlluminant getenum_PrimaryIlluminant() const { return static_cast<Eenum_PrimaryIlluminant>(m_PrimaryIlluminant.number()); }
    bool setenum_PrimaryIlluminant(std::int32_t number);
    bool isset_PrimaryIlluminant() const { return m_isset_PrimaryIlluminant; }
    void unset_PrimaryIlluminant() { m_isset_PrimaryIlluminant = false; }

    /// Second illuminant, for metamerism.
    const std::u16string& get_SecondaryIlluminant() const { return m_SecondaryIlluminant.get(); }
    lmx::elmx_error set_SecondaryIlluminant(const std::u16string& value);
    Eenum_SecondaryIlluminant getenum_SecondaryIlluminant() const { return static_cast<Eenum_SecondaryIlluminant>(m_SecondaryIlluminant.number()); }
    bool setenum_SecondaryIlluminant(std::int32_t number);
    bool isset_SecondaryIlluminant() const { return m_isset_SecondaryIlluminant; }
    void unset_SecondaryIlluminant() { m_isset_SecondaryIlluminant = false; }

    /// Third illuminant, for metamerism.
    const std::u16string& get_TertiaryIlluminant() const { return m_TertiaryIlluminant.get(); }
    lmx::elmx_error set_TertiaryIlluminant(const std::u16string& value);
    Eenum_TertiaryIlluminant getenum_TertiaryIlluminant() const { return static_cast<Eenum_TertiaryIlluminant>(m_TertiaryIlluminant.number()); }
    bool setenum_TertiaryIlluminant(std::int32_t number);
    bool isset_TertiaryIlluminant() const { return m_isset_TertiaryIlluminant; }
    void unset_TertiaryIlluminant() { m_isset_TertiaryIlluminant = false; }

    /// Standard observer of the evaluation.
    const std::u16string& get_FieldOfView() const { return m_FieldOfView.get(); }
    lmx::elmx_error set_FieldOfView(const std::u16string& value);
    Eenum_FieldOfView getenum_FieldOfView() const { return static_cast<Eenum_FieldOfView>(m_FieldOfView.number()); }
    bool setenum_FieldOfView(std::int32_t number);
    bool isset_FieldOfView() const { return m_isset_FieldOfView; }
    void unset_FieldOfView() { m_isset_FieldOfView = false; }

    /// Level from which a result calls for attention though it still passes.
    double get_WarningLevel() const { return m_WarningLevel; }
    lmx::elmx_error set_WarningLevel(double value);
    bool isset_WarningLevel() const { return m_isset_WarningLevel; }
    void unset_WarningLevel() { m_isset_WarningLevel = false; }

    /// Identifier of the tolerance.
    const std::u16string& get_UniqueID() const { return m_UniqueID; }
    lmx::elmx_error set_UniqueID(const std::u16string& value);
    bool isset_UniqueID() const { return m_isset_UniqueID; }
    void unset_UniqueID() { m_isset_UniqueID = false; }

    /// Whether the tolerance holds for all measurements.
    bool get_Global() const { return m_Global; }
    lmx::elmx_error set_Global(bool value);
    bool isset_Global() const { return m_isset_Global; }
    void unset_Global() { m_isset_Global = false; }

    /// Measuring geometry that the tolerance holds for.
    GeometryChoiceType& get_Geometry();
    const GeometryChoiceType& get_Geometry() const;
    GeometryChoiceType& assign_Geometry(const GeometryChoiceType& value);
    bool isset_Geometry() const { return m_isset_Geometry; }
    void unset_Geometry() { m_isset_Geometry = false; }

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_Name,
        item_CustomAttribute,
        item_Function,
        item_Limits,
        item_PrimaryIlluminant,
        item_SecondaryIlluminant,
        item_TertiaryIlluminant,
        item_FieldOfView,
        item_WarningLevel,
        item_UniqueID,
        item_Global,
        item_Geometry,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Name;
    lmx::c_list<CustomAttributeType> m_CustomAttribute;
    sg_Function m_Function;
    lmx::c_optional_child<LimitsType> m_Limits;
    lmx::c_enumerated m_PrimaryIlluminant;
    lmx::c_enumerated m_SecondaryIlluminant;
    lmx::c_enumerated m_TertiaryIlluminant;
    lmx::c_enumerated m_FieldOfView;
    double m_WarningLevel = 0;
    std::u16string m_UniqueID;
    bool m_Global = false;
    lmx::c_optional_child<GeometryChoiceType> m_Geometry;
    bool m_isset_Name = false;
    bool m_isset_Function = false;
    bool m_isset_Limits = false;
    bool m_isset_PrimaryIlluminant = false;
    bool m_isset_SecondaryIlluminant = false;
    bool m_isset_TertiaryIlluminant = false;
    bool m_isset_FieldOfView = false;
    bool m_isset_WarningLevel = false;
    bool m_isset_UniqueID = false;
    bool m_isset_Global = false;
    bool m_isset_Geometry = false;
};

/// A production process.
class VYR_EXPORT Process {
public:
    Process();
    Process(const Process& other);
    virtual ~Process();
    Process& operator=(const Process& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(Process& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Name of the process; not empty.
    const std::u16string& get_Name() const { return m_Name; }
    lmx::elmx_error set_Name(const std::u16string& value);

    /// Thickness that the process leaves, 0 or more; no unit is stated.
    double get_Thickness() const { return m_Thickness; }
    lmx::elmx_error set_Thickness(double value);
    bool isset_Thickness() const { return m_isset_Thickness; }
    void unset_Thickness() { m_isset_Thickness = false; }

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_Name,
        item_Thickness,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Name;
    double m_Thickness = 0;
    bool m_isset_Name = false;
    bool m_isset_Thickness = false;
};

/// A physical sample and how it was made.
class VYR_EXPORT PhysicalSampleType {
public:
    PhysicalSampleType();
    PhysicalSampleType(const PhysicalSampleType& other);
    virtual ~PhysicalSampleType();
    PhysicalSampleType& operator=(const PhysicalSampleType& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(PhysicalSampleType& other);
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

    /// Coating of the sample in words.
    const std::u16string& get_Coating() const { return m_Coating; }
    lmx::elmx_error set_Coating(const std::u16string& value);
    bool isset_Coating() const { return m_isset_Coating; }
    void unset_Coating() { m_isset_Coating = false; }

    /// How the sample was made.
    Process& get_Process();
    const Process& get_Process() const;
    Process& assign_Process(const Process& value);
    bool isset_Process() const { return m_isset_Process; }
    void unset_Process() { m_isset_Process = false; }

    /// The sample: a spot or a target.
    sg_Sample& get_Sample() { m_isset_Sample = true; return m_Sample; }
    const sg_Sample& get_Sample() const { return m_Sample; }
    sg_Sample& assign_Sample(const sg_Sample& value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_CustomAttribute,
        item_Coating,
        item_Process,
        item_Sample,
    };
    static const lmx::s_item k_items[];
    lmx::c_list<CustomAttributeType> m_CustomAttribute;
    std::u16string m_Coating;
    lmx::c_optional_child<Process> m_Process;
    sg_Sample m_Sample;
    bool m_isset_Coating = false;
    bool m_isset_Process = false;
    bool m_isset_Sample = false;
};

/// A comparison of measurements with their standards under given tolerances.
class VYR_EXPORT ColorQualityControlType {
public:
    ColorQualityControlType();
    ColorQualityControlType(const ColorQualityControlType& other);
    virtual ~ColorQualityControlType();
    ColorQualityControlType& operator=(const ColorQualityControlType& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(ColorQualityControlType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Name of the record.
    const std::u16string& get_Name() const { return m_Name; }
    lmx::elmx_error set_Name(const std::u16string& value);
    bool isset_Name() const { return m_isset_Name; }
    void unset_Name() { m_isset_Name = false; }

    /// Description of the record.
    const std::u16string& get_Description() const { return m_Description; }
    lmx::elmx_error set_Description(const std::u16string& value);
    bool isset_Description() const { return m_isset_Description; }
    void unset_Description() { m_isset_Description = false; }

    /// Identifier of the record.
    const std::u16string& get_UniqueID() const { return m_UniqueID; }
    lmx::elmx_error set_UniqueID(const std::u16string& value);
    bool isset_UniqueID() const { return m_isset_UniqueID; }
    void unset_UniqueID() { m_isset_UniqueID = false; }

    /// Free remarks on the record.
    const std::u16string& get_Comments() const { return m_Comments; }
    lmx::elmx_error set_Comments(const std::u16string& value);
    bool isset_Comments() const { return m_isset_Comments; }
    void unset_Comments() { m_isset_Comments = false; }

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

    /// Time of one change, with time zone.
    std::size_t size_ChangeHistory() const { return m_ChangeHistory.size(); }
    const lmx::c_datetime& get_ChangeHistory(std::size_t index) const { return m_ChangeHistory[index]; }
    lmx::elmx_error set_ChangeHistory(std::size_t index, const lmx::c_datetime& value);
    lmx::elmx_error append_ChangeHistory(const lmx::c_datetime& value);
    lmx::elmx_error insert_ChangeHistory(std::size_t index, const lmx::c_datetime& value);
    void delete_ChangeHistory(std::size_t index);
    void clear_ChangeHistory();

    /// A standard with what was measured against it.
    std::size_t size_StandardAndMeasurement() const { return m_StandardAndMeasurement.size(); }
    StandardAndMeasurementType& get_StandardAndMeasurement(std::size_t index);
    const StandardAndMeasurementType& get_StandardAndMeasurement(std::size_t index) const { return m_StandardAndMeasurement[index]; }
    StandardAndMeasurementType& assign_StandardAndMeasurement(std::size_t index, const StandardAndMeasurementType& value);
    lmx::elmx_error append_StandardAndMeasurement();
    lmx::elmx_error insert_StandardAndMeasurement(std::size_t index);
    StandardAndMeasurementType& back_StandardAndMeasurement() { return m_StandardAndMeasurement.back(); }
    void delete_StandardAndMeasurement(std::size_t index);
    void clear_StandardAndMeasurement();

    /// The physical sample that was measured.
    PhysicalSampleType& get_PhysicalSample();
    const PhysicalSampleType& get_PhysicalSample() const;
    PhysicalSampleType& assign_PhysicalSample(const PhysicalSampleType& value);
    bool isset_PhysicalSample() const { return m_isset_PhysicalSample; }
    void unset_PhysicalSample() { m_isset_PhysicalSample = false; }

    /// A tolerance for all comparisons of the record.
    std::size_t size_Tolerance() const { return m_Tolerance.size(); }
    ToleranceType& get_Tolerance(std::size_t index);
    const ToleranceType& get_Tolerance(std::size_t index) const { return m_Tolerance[index]; }
    ToleranceType& assign_Tolerance(std::size_t index, const ToleranceType& value);
    lmx::elmx_error append_Tolerance();
    lmx::elmx_error insert_Tolerance(std::size_t index);
    ToleranceType& back_Tolerance() { return m_Tolerance.back(); }
    void delete_Tolerance(std::size_t index);
    void clear_Tolerance();

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_Name,
        item_Description,
        item_UniqueID,
        item_Comments,
        item_CustomAttribute,
        item_ChangeHistory,
        item_StandardAndMeasurement,
        item_PhysicalSample,
        item_Tolerance,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Name;
    std::u16string m_Description;
    std::u16string m_UniqueID;
    std::u16string m_Comments;
    lmx::c_list<CustomAttributeType> m_CustomAttribute;
    lmx::c_list<lmx::c_datetime> m_ChangeHistory;
    lmx::c_list<StandardAndMeasurementType> m_StandardAndMeasurement;
    lmx::c_optional_child<PhysicalSampleType> m_PhysicalSample;
    lmx::c_list<ToleranceType> m_Tolerance;
    bool m_isset_Name = false;
    bool m_isset_Description = false;
    bool m_isset_UniqueID = false;
    bool m_isset_Comments = false;
    bool m_isset_PhysicalSample = false;
};

/// A measured colour, the device that measured it, and what was computed from it.
class VYR_EXPORT Measurement {
public:
    Measurement();
    Measurement(const Measurement& other);
    /// Reads a document with this element as its root; failures are the reader's codes.
    Measurement(const char* file_name, lmx::elmx_error* error);
    Measurement(const char* data, std::size_t size, lmx::elmx_error* error);
    Measurement(const std::string& text, lmx::elmx_error* error);
    virtual ~Measurement();
    Measurement& operator=(const Measurement& other);
    static const lmx::s_ns_map* ns_map();
    lmx::elmx_error unmarshal(const char* file_name);
    lmx::elmx_error unmarshal(const char* data, std::size_t size);
    lmx::elmx_error unmarshal(const std::string& text);
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader);
    lmx::elmx_error marshal(const char* file_name) const;
    lmx::elmx_error marshal(std::string* text) const;
    lmx::elmx_error marshal(std::ostream& stream) const;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    static const lmx::s_document k_document;
    void swap(Measurement& other);
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

    /// Instrument of the measurement.
    DeviceType& get_Device() { m_isset_Device = true; return m_Device; }
    const DeviceType& get_Device() const { return m_Device; }
    DeviceType& assign_Device(const DeviceType& value);

    /// The colour measured.
    ColorType& get_Color() { m_isset_Color = true; return m_Color; }
    const ColorType& get_Color() const { return m_Color; }
    ColorType& assign_Color(const ColorType& value);

    /// A function of this measurement and its standard.
    std::size_t size_Function() const { return m_Function.size(); }
    sg_Function& get_Function(std::size_t index);
    const sg_Function& get_Function(std::size_t index) const { return m_Function[index]; }
    sg_Function& assign_Function(std::size_t index, const sg_Function& value);
    lmx::elmx_error append_Function();
    lmx::elmx_error insert_Function(std::size_t index);
    sg_Function& back_Function() { return m_Function.back(); }
    void delete_Function(std::size_t index);
    void clear_Function();

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    static const lmx::s_item k_items[];
    lmx::c_list<CustomAttributeType> m_CustomAttribute;
    DeviceType m_Device;
    ColorType m_Color;
    lmx::c_list<sg_Function> m_Function;
    bool m_isset_Device = false;
    bool m_isset_Color = false;
};

/// A target colour, the device that measured it, and the tolerances around it.
class VYR_EXPORT Standard {
public:
    Standard();
    Standard(const Standard& other);
    /// Reads a document with this element as its root; failures are the reader's codes.
    Standard(const char* file_name, lmx::elmx_error* error);
    Standard(const char* data, std::size_t size, lmx::elmx_error* error);
    Standard(const std::string& text, lmx::elmx_error* error);
    virtual ~Standard();
    Standard& operator=(const Standard& other);
    static const lmx::s_ns_map* ns_map();
    lmx::elmx_error unmarshal(const char* file_name);
    lmx::elmx_error unmarshal(const char* data, std::size_t size);
    lmx::elmx_error unmarshal(const std::string& text);
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader);
    lmx::elmx_error marshal(const char* file_name) const;
    lmx::elmx_error marshal(std::string* text) const;
    lmx::elmx_error marshal(std::ostream& stream) const;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    static const lmx::s_document k_document;
    void swap(Standard& other);
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

    /// Instrument that measured the standard.
    DeviceType& get_Device() { m_isset_Device = true; return m_Device; }
    const DeviceType& get_Device() const { return m_Device; }
    DeviceType& assign_Device(const DeviceType& value);

    /// The target colour.
    ColorType& get_Color() { m_isset_Color = true; return m_Color; }
    const ColorType& get_Color() const { return m_Color; }
    ColorType& assign_Color(const ColorType& value);

    /// A tolerance around the target.
    std::size_t size_Tolerance() const { return m_Tolerance.size(); }
    ToleranceType& get_Tolerance(std::size_t index);
    const ToleranceType& get_Tolerance(std::size_t index) const { return m_Tolerance[index]; }
    ToleranceType& assign_Tolerance(std::size_t index, const ToleranceType& value);
    lmx::elmx_error append_Tolerance();
    lmx::elmx_error insert_Tolerance(std::size_t index);
    ToleranceType& back_Tolerance() { return m_Tolerance.back(); }
    void delete_Tolerance(std::size_t index);
    void clear_Tolerance();

    /// The `xsi:nil` state: an element without a value.
    bool isnil_Standard() const { return m_isnil; }
    void setnil_Standard() { m_isnil = true; }

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    static const lmx::s_item k_items[];
    bool m_isnil = false;
    lmx::c_list<CustomAttributeType> m_CustomAttribute;
    DeviceType m_Device;
    ColorType m_Color;
    lmx::c_list<ToleranceType> m_Tolerance;
    bool m_isset_Device = false;
    bool m_isset_Color = false;
};

/// A standard and the measurements that are compared with it.
class VYR_EXPORT StandardAndMeasurementType {
public:
    StandardAndMeasurementType();
    StandardAndMeasurementType(const StandardAndMeasurementType& other);
    virtual ~StandardAndMeasurementType();
    StandardAndMeasurementType& operator=(const StandardAndMeasurementType& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(StandardAndMeasurementType& other);
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

    /// A measurement.
    std::size_t size_Measurement() const { return m_Measurement.size(); }
    Measurement& get_Measurement(std::size_t index);
    const Measurement& get_Measurement(std::size_t index) const { return m_Measurement[index]; }
    Measurement& assign_Measurement(std::size_t index, const Measurement& value);
    lmx::elmx_error append_Measurement();
    lmx::elmx_error insert_Measurement(std::size_t index);
    Measurement& back_Measurement() { return m_Measurement.back(); }
    void delete_Measurement(std::size_t index);
    void clear_Measurement();

    /// The standard.
    Standard& get_Standard() { m_isset_Standard = true; return m_Standard; }
    const Standard& get_Standard() const { return m_Standard; }
    Standard& assign_Standard(const Standard& value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    static const lmx::s_item k_items[];
    lmx::c_list<CustomAttributeType> m_CustomAttribute;
    lmx::c_list<Measurement> m_Measurement;
    Standard m_Standard;
    bool m_isset_Standard = false;
};

}  // namespace com_vyrgraph_v2
