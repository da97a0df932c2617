// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Classes of the topic substrates: SubstrateType, SubstratePaperType, SubstrateGenericType, SubstrateMetalType,
/// SubstratePlasticType, SubstrateWoodType, SubstrateVinylType, SubstrateTileType, SubstrateFilmType,
/// SubstrateTextileType.

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
#include "schema/generated/palettes.h"

namespace com_vyrgraph_v2 {

/// What a colour is printed on, coated onto or measured on.
class VYR_EXPORT SubstrateType {
public:
    SubstrateType();
    SubstrateType(const SubstrateType& other);
    virtual SubstrateType* clone() const;
    virtual ~SubstrateType();
    SubstrateType& operator=(const SubstrateType& other);
    virtual const char* getid() const;
    /// True for the identity of this class and of those that it derives from, as pointers.
    virtual bool has_id(const char* identity) const;
    virtual lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    virtual lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(SubstrateType& other);
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

    /// The maker's number for the material.
    const std::u16string& get_PartNumber() const { return m_PartNumber; }
    lmx::elmx_error set_PartNumber(const std::u16string& value);
    bool isset_PartNumber() const { return m_isset_PartNumber; }
    void unset_PartNumber() { m_isset_PartNumber = false; }

    /// Colour of the bare substrate.
    ColorType& get_Color();
    const ColorType& get_Color() const;
    ColorType& assign_Color(const ColorType& value);
    bool isset_Color() const { return m_isset_Color; }
    void unset_Color() { m_isset_Color = false; }

    /// The class's identity; `getid` and `has_id` work on its address.
    static const char* id;

    /// A new object of the type with that local name in namespace 1000, or null; the caller owns it.
    static SubstrateType* factory(int ns_id, const std::string& name);
    static const lmx::s_factory_row k_factory[9];

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_CustomAttribute,
        item_PartNumber,
        item_Color,
    };
    static const lmx::s_item k_items[];
    lmx::c_list<CustomAttributeType> m_CustomAttribute;
    std::u16string m_PartNumber;
    lmx::c_optional_child<ColorType> m_Color;
    bool m_isset_PartNumber = false;
    bool m_isset_Color = false;
};

/// Head of the substrates: any of them can stand in its place.
class VYR_EXPORT Substrate : public SubstrateType {
public:
    static const lmx::s_ns_map* ns_map();
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    static const lmx::s_document k_document;
};

/// Paper or board.
class VYR_EXPORT SubstratePaperType : public SubstrateType {
public:
    SubstratePaperType();
    SubstratePaperType(const SubstratePaperType& other);
    SubstratePaperType* clone() const override;
    ~SubstratePaperType() override;
    SubstratePaperType& operator=(const SubstratePaperType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(SubstratePaperType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Thickness of the paper; no unit is stated.
    double get_PaperThickness() const { return m_PaperThickness; }
    lmx::elmx_error set_PaperThickness(double value);
    bool isset_PaperThickness() const { return m_isset_PaperThickness; }
    void unset_PaperThickness() { m_isset_PaperThickness = false; }

    /// Kind of paper in words.
    const std::u16string& get_PaperType() const { return m_PaperType; }
    lmx::elmx_error set_PaperType(const std::u16string& value);
    bool isset_PaperType() const { return m_isset_PaperType; }
    void unset_PaperType() { m_isset_PaperType = false; }

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
        item_PaperThickness,
        item_PaperType,
    };
    static const lmx::s_item k_items[];
    double m_PaperThickness = 0;
    std::u16string m_PaperType;
    bool m_isset_PaperThickness = false;
    bool m_isset_PaperType = false;
};

/// A material that has no type of its own.
class VYR_EXPORT SubstrateGenericType : public SubstrateType {
public:
    SubstrateGenericType();
    SubstrateGenericType(const SubstrateGenericType& other);
    SubstrateGenericType* clone() const override;
    ~SubstrateGenericType() override;
    SubstrateGenericType& operator=(const SubstrateGenericType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(SubstrateGenericType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Kind of material in words; not empty.
    const std::u16string& get_Type() const { return m_Type; }
    lmx::elmx_error set_Type(const std::u16string& value);

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
        item_Type,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Type;
    bool m_isset_Type = false;
};

/// Metal.
class VYR_EXPORT SubstrateMetalType : public SubstrateType {
public:
    SubstrateMetalType();
    SubstrateMetalType(const SubstrateMetalType& other);
    SubstrateMetalType* clone() const override;
    ~SubstrateMetalType() override;
    SubstrateMetalType& operator=(const SubstrateMetalType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(SubstrateMetalType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Weight of the metal; no unit is stated.
    double get_MetalWeight() const { return m_MetalWeight; }
    lmx::elmx_error set_MetalWeight(double value);
    bool isset_MetalWeight() const { return m_isset_MetalWeight; }
    void unset_MetalWeight() { m_isset_MetalWeight = false; }

    /// Kind of metal in words.
    const std::u16string& get_MetalType() const { return m_MetalType; }
    lmx::elmx_error set_MetalType(const std::u16string& value);
    bool isset_MetalType() const { return m_isset_MetalType; }
    void unset_MetalType() { m_isset_MetalType = false; }

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
        item_MetalWeight,
        item_MetalType,
    };
    static const lmx::s_item k_items[];
    double m_MetalWeight = 0;
    std::u16string m_MetalType;
    bool m_isset_MetalWeight = false;
    bool m_isset_MetalType = false;
};

/// Plastic.
class VYR_EXPORT SubstratePlasticType : public SubstrateType {
public:
    SubstratePlasticType();
    SubstratePlasticType(const SubstratePlasticType& other);
    SubstratePlasticType* clone() const override;
    ~SubstratePlasticType() override;
    SubstratePlasticType& operator=(const SubstratePlasticType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(SubstratePlasticType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Weight of the plastic; no unit is stated.
    double get_PlasticWeight() const { return m_PlasticWeight; }
    lmx::elmx_error set_PlasticWeight(double value);
    bool isset_PlasticWeight() const { return m_isset_PlasticWeight; }
    void unset_PlasticWeight() { m_isset_PlasticWeight = false; }

    /// Kind of plastic in words.
    const std::u16string& get_PlasticType() const { return m_PlasticType; }
    lmx::elmx_error set_PlasticType(const std::u16string& value);
    bool isset_PlasticType() const { return m_isset_PlasticType; }
    void unset_PlasticType() { m_isset_PlasticType = false; }

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
        item_PlasticWeight,
        item_PlasticType,
    };
    static const lmx::s_item k_items[];
    double m_PlasticWeight = 0;
    std::u16string m_PlasticType;
    bool m_isset_PlasticWeight = false;
    bool m_isset_PlasticType = false;
};

/// Wood.
class VYR_EXPORT SubstrateWoodType : public SubstrateType {
public:
    SubstrateWoodType();
    SubstrateWoodType(const SubstrateWoodType& other);
    SubstrateWoodType* clone() const override;
    ~SubstrateWoodType() override;
    SubstrateWoodType& operator=(const SubstrateWoodType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(SubstrateWoodType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Weight of the wood; no unit is stated.
    double get_WoodWeight() const { return m_WoodWeight; }
    lmx::elmx_error set_WoodWeight(double value);
    bool isset_WoodWeight() const { return m_isset_WoodWeight; }
    void unset_WoodWeight() { m_isset_WoodWeight = false; }

    /// Kind of wood in words.
    const std::u16string& get_WoodType() const { return m_WoodType; }
    lmx::elmx_error set_WoodType(const std::u16string& value);
    bool isset_WoodType() const { return m_isset_WoodType; }
    void unset_WoodType() { m_isset_WoodType = false; }

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
        item_WoodWeight,
        item_WoodType,
    };
    static const lmx::s_item k_items[];
    double m_WoodWeight = 0;
    std::u16string m_WoodType;
    bool m_isset_WoodWeight = false;
    bool m_isset_WoodType = false;
};

/// Vinyl.
class VYR_EXPORT SubstrateVinylType : public SubstrateType {
public:
    SubstrateVinylType();
    SubstrateVinylType(const SubstrateVinylType& other);
    SubstrateVinylType* clone() const override;
    ~SubstrateVinylType() override;
    SubstrateVinylType& operator=(const SubstrateVinylType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(SubstrateVinylType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Weight of the vinyl; no unit is stated.
    double get_VinylWeight() const { return m_VinylWeight; }
    lmx::elmx_error set_VinylWeight(double value);
    bool isset_VinylWeight() const { return m_isset_VinylWeight; }
    void unset_VinylWeight() { m_isset_VinylWeight = false; }

    /// Kind of vinyl in words.
    const std::u16string& get_VinylType() const { return m_VinylType; }
    lmx::elmx_error set_VinylType(const std::u16string& value);
    bool isset_VinylType() const { return m_isset_VinylType; }
    void unset_VinylType() { m_isset_VinylType = false; }

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
        item_VinylWeight,
        item_VinylType,
    };
    static const lmx::s_item k_items[];
    double m_VinylWeight = 0;
    std::u16string m_VinylType;
    bool m_isset_VinylWeight = false;
    bool m_isset_VinylType = false;
};

/// Ceramic or other tile.
class VYR_EXPORT SubstrateTileType : public SubstrateType {
public:
    SubstrateTileType();
    SubstrateTileType(const SubstrateTileType& other);
    SubstrateTileType* clone() const override;
    ~SubstrateTileType() override;
    SubstrateTileType& operator=(const SubstrateTileType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(SubstrateTileType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Weight of the tile; no unit is stated.
    double get_TileWeight() const { return m_TileWeight; }
    lmx::elmx_error set_TileWeight(double value);
    bool isset_TileWeight() const { return m_isset_TileWeight; }
    void unset_TileWeight() { m_isset_TileWeight = false; }

    /// Kind of tile in words.
    const std::u16string& get_TileType() const { return m_TileType; }
    lmx::elmx_error set_TileType(const std::u16string& value);
    bool isset_TileType() const { return m_isset_TileType; }
    void unset_TileType() { m_isset_TileType = false; }

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
        item_TileWeight,
        item_TileType,
    };
    static const lmx::s_item k_items[];
    double m_TileWeight = 0;
    std::u16string m_TileType;
    bool m_isset_TileWeight = false;
    bool m_isset_TileType = false;
};

/// Film or foil.
class VYR_EXPORT SubstrateFilmType : public SubstrateType {
public:
    SubstrateFilmType();
    SubstrateFilmType(const SubstrateFilmType& other);
    SubstrateFilmType* clone() const override;
    ~SubstrateFilmType() override;
    SubstrateFilmType& operator=(const SubstrateFilmType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(SubstrateFilmType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Weight of the film; no unit is stated.
    double get_FilmWeight() const { return m_FilmWeight; }
    lmx::elmx_error set_FilmWeight(double value);
    bool isset_FilmWeight() const { return m_isset_FilmWeight; }
    void unset_FilmWeight() { m_isset_FilmWeight = false; }

    /// Kind of film in words.
    const std::u16string& get_FilmType() const { return m_FilmType; }
    lmx::elmx_error set_FilmType(const std::u16string& value);
    bool isset_FilmType() const { return m_isset_FilmType; }
    void unset_FilmType() { m_isset_FilmType = false; }

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
        item_FilmWeight,
        item_FilmType,
    };
    static const lmx::s_item k_items[];
    double m_FilmWeight = 0;
    std::u16string m_FilmType;
    bool m_isset_FilmWeight = false;
    bool m_isset_FilmType = false;
};

/// Textile.
class VYR_EXPORT SubstrateTextileType : public SubstrateType {
public:
    SubstrateTextileType();
    SubstrateTextileType(const SubstrateTextileType& other);
    SubstrateTextileType* clone() const override;
    ~SubstrateTextileType() override;
    SubstrateTextileType& operator=(const SubstrateTextileType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(SubstrateTextileType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Weight of the textile; no unit is stated.
    double get_TextileWeight() const { return m_TextileWeight; }
    lmx::elmx_error set_TextileWeight(double value);
    bool isset_TextileWeight() const { return m_isset_TextileWeight; }
    void unset_TextileWeight() { m_isset_TextileWeight = false; }

    /// Kind of textile in words.
    const std::u16string& get_TextileType() const { return m_TextileType; }
    lmx::elmx_error set_TextileType(const std::u16string& value);
    bool isset_TextileType() const { return m_isset_TextileType; }
    void unset_TextileType() { m_isset_TextileType = false; }

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
        item_TextileWeight,
        item_TextileType,
    };
    static const lmx::s_item k_items[];
    double m_TextileWeight = 0;
    std::u16string m_TextileType;
    bool m_isset_TextileWeight = false;
    bool m_isset_TextileType = false;
};

/// Paper or board.
class VYR_EXPORT SubstratePaper : public SubstratePaperType {
public:
    SubstratePaper() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    SubstratePaper(const char* file_name, lmx::elmx_error* error);
    SubstratePaper(const char* data, std::size_t size, lmx::elmx_error* error);
    SubstratePaper(const std::string& text, lmx::elmx_error* error);
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

/// A material that has no type of its own.
class VYR_EXPORT SubstrateGeneric : public SubstrateGenericType {
public:
    SubstrateGeneric() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    SubstrateGeneric(const char* file_name, lmx::elmx_error* error);
    SubstrateGeneric(const char* data, std::size_t size, lmx::elmx_error* error);
    SubstrateGeneric(const std::string& text, lmx::elmx_error* error);
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

/// Metal.
class VYR_EXPORT SubstrateMetal : public SubstrateMetalType {
public:
    SubstrateMetal() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    SubstrateMetal(const char* file_name, lmx::elmx_error* error);
    SubstrateMetal(const char* data, std::size_t size, lmx::elmx_error* error);
    SubstrateMetal(const std::string& text, lmx::elmx_error* error);
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

/// Plastic.
class VYR_EXPORT SubstratePlastic : public SubstratePlasticType {
public:
    SubstratePlastic() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    SubstratePlastic(const char* file_name, lmx::elmx_error* error);
    SubstratePlastic(const char* data, std::size_t size, lmx::elmx_error* error);
    SubstratePlastic(const std::string& text, lmx::elmx_error* error);
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

/// Wood.
class VYR_EXPORT SubstrateWood : public SubstrateWoodType {
public:
    SubstrateWood() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    SubstrateWood(const char* file_name, lmx::elmx_error* error);
    SubstrateWood(const char* data, std::size_t size, lmx::elmx_error* error);
    SubstrateWood(const std::string& text, lmx::elmx_error* error);
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

/// Vinyl.
class VYR_EXPORT SubstrateVinyl : public SubstrateVinylType {
public:
    SubstrateVinyl() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    SubstrateVinyl(const char* file_name, lmx::elmx_error* error);
    SubstrateVinyl(const char* data, std::size_t size, lmx::elmx_error* error);
    SubstrateVinyl(const std::string& text, lmx::elmx_error* error);
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

/// Ceramic or other tile.
class VYR_EXPORT SubstrateTile : public SubstrateTileType {
public:
    SubstrateTile() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    SubstrateTile(const char* file_name, lmx::elmx_error* error);
    SubstrateTile(const char* data, std::size_t size, lmx::elmx_error* error);
    SubstrateTile(const std::string& text, lmx::elmx_error* error);
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

/// Film or foil.
class VYR_EXPORT SubstrateFilm : public SubstrateFilmType {
public:
    SubstrateFilm() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    SubstrateFilm(const char* file_name, lmx::elmx_error* error);
    SubstrateFilm(const char* data, std::size_t size, lmx::elmx_error* error);
    SubstrateFilm(const std::string& text, lmx::elmx_error* error);
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

/// Textile.
class VYR_EXPORT SubstrateTextile : public SubstrateTextileType {
public:
    SubstrateTextile() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    SubstrateTextile(const char* file_name, lmx::elmx_error* error);
    SubstrateTextile(const char* data, std::size_t size, lmx::elmx_error* error);
    SubstrateTextile(const std::string& text, lmx::elmx_error* error);
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
