// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Classes of the topic palettes: CollectionColorSpaceSpecificationType, PaletteType, ColorSetType, ColorType.

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
#include "schema/generated/header.h"

namespace com_vyrgraph_v2 {

/// Default measuring conditions of a collection, at most one for each kind of colour value.
class VYR_EXPORT CollectionColorSpaceSpecificationType {
public:
    CollectionColorSpaceSpecificationType();
    CollectionColorSpaceSpecificationType(const CollectionColorSpaceSpecificationType& other);
    virtual ~CollectionColorSpaceSpecificationType();
    CollectionColorSpaceSpecificationType& operator=(const CollectionColorSpaceSpecificationType& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(CollectionColorSpaceSpecificationType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Default for reflective values without fixed conditions.
    ColorSpaceSpecificationSpectrumGeneric& get_ColorSpaceSpecificationSpectrumGeneric();
    const ColorSpaceSpecificationSpectrumGeneric& get_ColorSpaceSpecificationSpectrumGeneric() const;
    ColorSpaceSpecificationSpectrumGeneric& assign_ColorSpaceSpecificationSpectrumGeneric(const ColorSpaceSpecificationSpectrumGeneric& value);
    bool isset_ColorSpaceSpecificationSpectrumGeneric() const { return m_isset_ColorSpaceSpecificationSpectrumGeneric; }
    void unset_ColorSpaceSpecificationSpectrumGeneric() { m_isset_ColorSpaceSpecificationSpectrumGeneric = false; }

    /// Default for reflectance spectra.
    ColorSpaceSpecificationSpectrumSpectral& get_ColorSpaceSpecificationSpectrumSpectral();
    const ColorSpaceSpecificationSpectrumSpectral& get_ColorSpaceSpecificationSpectrumSpectral() const;
    ColorSpaceSpecificationSpectrumSpectral& assign_ColorSpaceSpecificationSpectrumSpectral(const ColorSpaceSpecificationSpectrumSpectral& value);
    bool isset_ColorSpaceSpecificationSpectrumSpectral() const { return m_isset_ColorSpaceSpecificationSpectrumSpectral; }
    void unset_ColorSpaceSpecificationSpectrumSpectral() { m_isset_ColorSpaceSpecificationSpectrumSpectral = false; }

    /// Default for reflective tristimulus values.
    ColorSpaceSpecificationSpectrumTristimulus& get_ColorSpaceSpecificationSpectrumTristimulus();
    const ColorSpaceSpecificationSpectrumTristimulus& get_ColorSpaceSpecificationSpectrumTristimulus() const;
    ColorSpaceSpecificationSpectrumTristimulus& assign_ColorSpaceSpecificationSpectrumTristimulus(const ColorSpaceSpecificationSpectrumTristimulus& value);
    bool isset_ColorSpaceSpecificationSpectrumTristimulus() const { return m_isset_ColorSpaceSpecificationSpectrumTristimulus; }
    void unset_ColorSpaceSpecificationSpectrumTristimulus() { m_isset_ColorSpaceSpecificationSpectrumTristimulus = false; }

    /// Default for emissive values without fixed conditions.
    ColorSpaceSpecificationEmissiveGeneric& get_ColorSpaceSpecificationEmissiveGeneric();
    const ColorSpaceSpecificationEmissiveGeneric& get_ColorSpaceSpecificationEmissiveGeneric() const;
    ColorSpaceSpecificationEmissiveGeneric& assign_ColorSpaceSpecificationEmissiveGeneric(const ColorSpaceSpecificationEmissiveGeneric& value);
    bool isset_ColorSpaceSpecificationEmissiveGeneric() const { return m_isset_ColorSpaceSpecificationEmissiveGeneric; }
    void unset_ColorSpaceSpecificationEmissiveGeneric() { m_isset_ColorSpaceSpecificationEmissiveGeneric = false; }

    /// Default for emission spectra.
    ColorSpaceSpecificationEmissiveSpectral& get_ColorSpaceSpecificationEmissiveSpectral();
    const ColorSpaceSpecificationEmissiveSpectral& get_ColorSpaceSpecificationEmissiveSpectral() const;
    ColorSpaceSpecificationEmissiveSpectral& assign_ColorSpaceSpecificationEmissiveSpectral(const ColorSpaceSpecificationEmissiveSpectral& value);
    bool isset_ColorSpaceSpecificationEmissiveSpectral() const { return m_isset_ColorSpaceSpecificationEmissiveSpectral; }
    void unset_ColorSpaceSpecificationEmissiveSpectral() { m_isset_ColorSpaceSpecificationEmissiveSpectral = false; }

    /// Default for emissive tristimulus values.
    ColorSpaceSpecificationEmissiveTristimulus& get_ColorSpaceSpecificationEmissiveTristimulus();
    const ColorSpaceSpecificationEmissiveTristimulus& get_ColorSpaceSpecificationEmissiveTristimulus() const;
    ColorSpaceSpecificationEmissiveTristimulus& assign_ColorSpaceSpecificationEmissiveTristimulus(const ColorSpaceSpecificationEmissiveTristimulus& value);
    bool isset_ColorSpaceSpecificationEmissiveTristimulus() const { return m_isset_ColorSpaceSpecificationEmissiveTristimulus; }
    void unset_ColorSpaceSpecificationEmissiveTristimulus() { m_isset_ColorSpaceSpecificationEmissiveTristimulus = false; }

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    static const lmx::s_item k_items[];
    lmx::c_optional_child<ColorSpaceSpecificationSpectrumGeneric> m_ColorSpaceSpecificationSpectrumGeneric;
    lmx::c_optional_child<ColorSpaceSpecificationSpectrumSpectral> m_ColorSpaceSpecificationSpectrumSpectral;
    lmx::c_optional_child<ColorSpaceSpecificationSpectrumTristimulus> m_ColorSpaceSpecificationSpectrumTristimulus;
    lmx::c_optional_child<ColorSpaceSpecificationEmissiveGeneric> m_ColorSpaceSpecificationEmissiveGeneric;
    lmx::c_optional_child<ColorSpaceSpecificationEmissiveSpectral> m_ColorSpaceSpecificationEmissiveSpectral;
    lmx::c_optional_child<ColorSpaceSpecificationEmissiveTristimulus> m_ColorSpaceSpecificationEmissiveTristimulus;
    bool m_isset_ColorSpaceSpecificationSpectrumGeneric = false;
    bool m_isset_ColorSpaceSpecificationSpectrumSpectral = false;
    bool m_isset_ColorSpaceSpecificationSpectrumTristimulus = false;
    bool m_isset_ColorSpaceSpecificationEmissiveGeneric = false;
    bool m_isset_ColorSpaceSpecificationEmissiveSpectral = false;
    bool m_isset_ColorSpaceSpecificationEmissiveTristimulus = false;
};

/// A palette: a named, versioned collection of colour sets.
class VYR_EXPORT PaletteType {
public:
    PaletteType();
    PaletteType(const PaletteType& other);
    virtual ~PaletteType();
    PaletteType& operator=(const PaletteType& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(PaletteType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Name of the palette.
    const std::u16string& get_PaletteName() const { return m_PaletteName; }
    lmx::elmx_error set_PaletteName(const std::u16string& value);

    /// Part number under which the palette is sold or filed.
    const std::u16string& get_PalettePartNumber() const { return m_PalettePartNumber; }
    lmx::elmx_error set_PalettePartNumber(const std::u16string& value);
    bool isset_PalettePartNumber() const { return m_isset_PalettePartNumber; }
    void unset_PalettePartNumber() { m_isset_PalettePartNumber = false; }

    /// Version of the palette.
    const std::u16string& get_PaletteVersion() const { return m_PaletteVersion; }
    lmx::elmx_error set_PaletteVersion(const std::u16string& value);
    bool isset_PaletteVersion() const { return m_isset_PaletteVersion; }
    void unset_PaletteVersion() { m_isset_PaletteVersion = false; }

    /// Identifier of the palette.
    const std::u16string& get_UniqueID() const { return m_UniqueID; }
    lmx::elmx_error set_UniqueID(const std::u16string& value);
    bool isset_UniqueID() const { return m_isset_UniqueID; }
    void unset_UniqueID() { m_isset_UniqueID = false; }

    /// Free remarks on the palette.
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

    /// Who owns the palette.
    OwnerType& get_Owner();
    const OwnerType& get_Owner() const;
    OwnerType& assign_Owner(const OwnerType& value);
    bool isset_Owner() const { return m_isset_Owner; }
    void unset_Owner() { m_isset_Owner = false; }

    /// A word or notion that the palette stands for.
    std::size_t size_SemanticAssociation() const { return m_SemanticAssociation.size(); }
    const std::u16string& get_SemanticAssociation(std::size_t index) const { return m_SemanticAssociation[index]; }
    lmx::elmx_error set_SemanticAssociation(std::size_t index, const std::u16string& value);
    lmx::elmx_error append_SemanticAssociation(const std::u16string& value);
    lmx::elmx_error insert_SemanticAssociation(std::size_t index, const std::u16string& value);
    void delete_SemanticAssociation(std::size_t index);
    void clear_SemanticAssociation();

    /// Default measuring conditions for the colours below.
    CollectionColorSpaceSpecificationType& get_CollectionColorSpaceSpecification();
    const CollectionColorSpaceSpecificationType& get_CollectionColorSpaceSpecification() const;
    CollectionColorSpaceSpecificationType& assign_CollectionColorSpaceSpecification(const CollectionColorSpaceSpecificationType& value);
    bool isset_CollectionColorSpaceSpecification() const { return m_isset_CollectionColorSpaceSpecification; }
    void unset_CollectionColorSpaceSpecification() { m_isset_CollectionColorSpaceSpecification = false; }

    /// A colour set of the palette.
    std::size_t size_ColorSet() const { return m_ColorSet.size(); }
    ColorSetType& get_ColorSet(std::size_t index);
    const ColorSetType& get_ColorSet(std::size_t index) const { return m_ColorSet[index]; }
    ColorSetType& assign_ColorSet(std::size_t index, const ColorSetType& value);
    lmx::elmx_error append_ColorSet();
    lmx::elmx_error insert_ColorSet(std::size_t index);
    ColorSetType& back_ColorSet() { return m_ColorSet.back(); }
    void delete_ColorSet(std::size_t index);
    void clear_ColorSet();

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_PaletteName,
        item_PalettePartNumber,
        item_PaletteVersion,
        item_UniqueID,
        item_Comments,
        item_CustomAttribute,
        item_ChangeHistory,
        item_Owner,
        item_SemanticAssociation,
        item_CollectionColorSpaceSpecification,
        item_ColorSet,
    };
    static const lmx::s_item k_items[];
    std::u16string m_PaletteName;
    std::u16string m_PalettePartNumber;
    std::u16string m_PaletteVersion;
    std::u16string m_UniqueID;
    std::u16string m_Comments;
    lmx::c_list<CustomAttributeType> m_CustomAttribute;
    lmx::c_list<lmx::c_datetime> m_ChangeHistory;
    lmx::c_optional_child<OwnerType> m_Owner;
    lmx::c_list<std::u16string> m_SemanticAssociation;
    lmx::c_optional_child<CollectionColorSpaceSpecificationType> m_CollectionColorSpaceSpecification;
    lmx::c_list<ColorSetType> m_ColorSet;
    bool m_isset_PaletteName = false;
    bool m_isset_PalettePartNumber = false;
    bool m_isset_PaletteVersion = false;
    bool m_isset_UniqueID = false;
    bool m_isset_Comments = false;
    bool m_isset_Owner = false;
    bool m_isset_CollectionColorSpaceSpecification = false;
};

/// A named group of colours, such as a page of a fan deck or one material's range.
class VYR_EXPORT ColorSetType {
public:
    ColorSetType();
    ColorSetType(const ColorSetType& other);
    virtual ~ColorSetType();
    ColorSetType& operator=(const ColorSetType& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(ColorSetType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Name of the colour set.
    const std::u16string& get_ColorSetName() const { return m_ColorSetName; }
    lmx::elmx_error set_ColorSetName(const std::u16string& value);

    /// Identifier of the colour set.
    const std::u16string& get_UniqueID() const { return m_UniqueID; }
    lmx::elmx_error set_UniqueID(const std::u16string& value);
    bool isset_UniqueID() const { return m_isset_UniqueID; }
    void unset_UniqueID() { m_isset_UniqueID = false; }

    /// Part number under which the colour set is sold or filed.
    const std::u16string& get_PartNumber() const { return m_PartNumber; }
    lmx::elmx_error set_PartNumber(const std::u16string& value);
    bool isset_PartNumber() const { return m_isset_PartNumber; }
    void unset_PartNumber() { m_isset_PartNumber = false; }

    /// Free remarks on the colour set.
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

    /// Who owns the colour set.
    OwnerType& get_Owner();
    const OwnerType& get_Owner() const;
    OwnerType& assign_Owner(const OwnerType& value);
    bool isset_Owner() const { return m_isset_Owner; }
    void unset_Owner() { m_isset_Owner = false; }

    /// A word or notion that the colour set stands for.
    std::size_t size_SemanticAssociation() const { return m_SemanticAssociation.size(); }
    const std::u16string& get_SemanticAssociation(std::size_t index) const { return m_SemanticAssociation[index]; }
    lmx::elmx_error set_SemanticAssociation(std::size_t index, const std::u16string& value);
    lmx::elmx_error append_SemanticAssociation(const std::u16string& value);
    lmx::elmx_error insert_SemanticAssociation(std::size_t index, const std::u16string& value);
    void delete_SemanticAssociation(std::size_t index);
    void clear_SemanticAssociation();

    /// Default measuring conditions for the colours below.
    CollectionColorSpaceSpecificationType& get_CollectionColorSpaceSpecification();
    const CollectionColorSpaceSpecificationType& get_CollectionColorSpaceSpecification() const;
    CollectionColorSpaceSpecificationType& assign_CollectionColorSpaceSpecification(const CollectionColorSpaceSpecificationType& value);
    bool isset_CollectionColorSpaceSpecification() const { return m_isset_CollectionColorSpaceSpecification; }
    void unset_CollectionColorSpaceSpecification() { m_isset_CollectionColorSpaceSpecification = false; }

    /// A colour of the set.
    std::size_t size_Color() const { return m_Color.size(); }
    ColorType& get_Color(std::size_t index);
    const ColorType& get_Color(std::size_t index) const { return m_Color[index]; }
    ColorType& assign_Color(std::size_t index, const ColorType& value);
    lmx::elmx_error append_Color();
    lmx::elmx_error insert_Color(std::size_t index);
    ColorType& back_Color() { return m_Color.back(); }
    void delete_Color(std::size_t index);
    void clear_Color();

    /// What the colours of the set are printed on or coated onto.
    sg_Substrate& get_Substrate() { m_isset_Substrate = true; return m_Substrate; }
    const sg_Substrate& get_Substrate() const { return m_Substrate; }
    sg_Substrate& assign_Substrate(const sg_Substrate& value);
    bool isset_Substrate() const { return m_isset_Substrate; }
    void unset_Substrate() { m_isset_Substrate = false; }

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_ColorSetName,
        item_UniqueID,
        item_PartNumber,
        item_Comments,
        item_CustomAttribute,
        item_ChangeHistory,
        item_Owner,
        item_SemanticAssociation,
        item_CollectionColorSpaceSpecification,
        item_Color,
        item_Substrate,
    };
    static const lmx::s_item k_items[];
    std::u16string m_ColorSetName;
    std::u16string m_UniqueID;
    std::u16string m_PartNumber;
    std::u16string m_Comments;
    lmx::c_list<CustomAttributeType> m_CustomAttribute;
    lmx::c_list<lmx::c_datetime> m_ChangeHistory;
    lmx::c_optional_child<OwnerType> m_Owner;
    lmx::c_list<std::u16string> m_SemanticAssociation;
    lmx::c_optional_child<CollectionColorSpaceSpecificationType> m_CollectionColorSpaceSpecification;
    lmx::c_list<ColorType> m_Color;
    sg_Substrate m_Substrate;
    bool m_isset_ColorSetName = false;
    bool m_isset_UniqueID = false;
    bool m_isset_PartNumber = false;
    bool m_isset_Comments = false;
    bool m_isset_Owner = false;
    bool m_isset_CollectionColorSpaceSpecification = false;
    bool m_isset_Substrate = false;
};

/// A colour: its name and its values in one or more colour spaces.
class VYR_EXPORT ColorType {
public:
    ColorType();
    ColorType(const ColorType& other);
    virtual ~ColorType();
    ColorType& operator=(const ColorType& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(ColorType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Name of the colour.
    const std::u16string& get_ColorName() const { return m_ColorName; }
    lmx::elmx_error set_ColorName(const std::u16string& value);

    /// Identifier of the colour.
    const std::u16string& get_UniqueID() const { return m_UniqueID; }
    lmx::elmx_error set_UniqueID(const std::u16string& value);
    bool isset_UniqueID() const { return m_isset_UniqueID; }
    void unset_UniqueID() { m_isset_UniqueID = false; }

    /// Number of the colour in its collection.
    const std::u16string& get_ColorNumber() const { return m_ColorNumber; }
    lmx::elmx_error set_ColorNumber(const std::u16string& value);
    bool isset_ColorNumber() const { return m_isset_ColorNumber; }
    void unset_ColorNumber() { m_isset_ColorNumber = false; }

    /// Free remarks on the colour.
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

    /// Who owns the colour.
    OwnerType& get_Owner();
    const OwnerType& get_Owner() const;
    OwnerType& assign_Owner(const OwnerType& value);
    bool isset_Owner() const { return m_isset_Owner; }
    void unset_Owner() { m_isset_Owner = false; }

    /// A word or notion that the colour stands for.
    std::size_t size_SemanticAssociation() const { return m_SemanticAssociation.size(); }
    const std::u16string& get_SemanticAssociation(std::size_t index) const { return m_SemanticAssociation[index]; }
    lmx::elmx_error set_SemanticAssociation(std::size_t index, const std::u16string& value);
    lmx::elmx_error append_SemanticAssociation(const std::u16string& value);
    lmx::elmx_error insert_SemanticAssociation(std::size_t index, const std::u16string& value);
    void delete_SemanticAssociation(std::size_t index);
    void clear_SemanticAssociation();

    /// The colour's value in one colour space; the element's name says which.
    std::size_t size_ColorSpace() const { return m_ColorSpace.size(); }
    sg_ColorSpace& get_ColorSpace(std::size_t index);
    const sg_ColorSpace& get_ColorSpace(std::size_t index) const { return m_ColorSpace[index]; }
    sg_ColorSpace& assign_ColorSpace(std::size_t index, const sg_ColorSpace& value);
    lmx::elmx_error append_ColorSpace();
    lmx::elmx_error insert_ColorSpace(std::size_t index);
    sg_ColorSpace& back_ColorSpace() { return m_ColorSpace.back(); }
    void delete_ColorSpace(std::size_t index);
    void clear_ColorSpace();

    /// What the colour is printed on, coated onto or measured on.
    sg_Substrate& get_Substrate() { m_isset_Substrate = true; return m_Substrate; }
    const sg_Substrate& get_Substrate() const { return m_Substrate; }
    sg_Substrate& assign_Substrate(const sg_Substrate& value);
    bool isset_Substrate() const { return m_isset_Substrate; }
    void unset_Substrate() { m_isset_Substrate = false; }

    /// Value of the colour under one tag.
    std::size_t size_TagValues() const { return m_TagValues.size(); }
    TagValue& get_TagValues(std::size_t index);
    const TagValue& get_TagValues(std::size_t index) const { return m_TagValues[index]; }
    TagValue& assign_TagValues(std::size_t index, const TagValue& value);
    lmx::elmx_error append_TagValues();
    lmx::elmx_error insert_TagValues(std::size_t index);
    TagValue& back_TagValues() { return m_TagValues.back(); }
    void delete_TagValues(std::size_t index);
    void clear_TagValues();

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_ColorName,
        item_UniqueID,
        item_ColorNumber,
        item_Comments,
        item_CustomAttribute,
        item_ChangeHistory,
        item_Owner,
        item_SemanticAssociation,
        item_ColorSpace,
        item_Substrate,
        item_TagValues,
    };
    static const lmx::s_item k_items[];
    std::u16string m_ColorName;
    std::u16string m_UniqueID;
    std::u16string m_ColorNumber;
    std::u16string m_Comments;
    lmx::c_list<CustomAttributeType> m_CustomAttribute;
    lmx::c_list<lmx::c_datetime> m_ChangeHistory;
    lmx::c_optional_child<OwnerType> m_Owner;
    lmx::c_list<std::u16string> m_SemanticAssociation;
    lmx::c_list<sg_ColorSpace> m_ColorSpace;
    sg_Substrate m_Substrate;
    lmx::c_list<TagValue> m_TagValues;
    bool m_isset_ColorName = false;
    bool m_isset_UniqueID = false;
    bool m_isset_ColorNumber = false;
    bool m_isset_Comments = false;
    bool m_isset_Owner = false;
    bool m_isset_Substrate = false;
};

/// Default measuring conditions of a collection, standing alone.
class VYR_EXPORT CollectionColorSpaceSpecification : public CollectionColorSpaceSpecificationType {
public:
    CollectionColorSpaceSpecification() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    CollectionColorSpaceSpecification(const char* file_name, lmx::elmx_error* error);
    CollectionColorSpaceSpecification(const char* data, std::size_t size, lmx::elmx_error* error);
    CollectionColorSpaceSpecification(const std::string& text, lmx::elmx_error* error);
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
};

}  // namespace com_vyrgraph_v2
