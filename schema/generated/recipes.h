// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Classes of the topic recipes: ColorSpaceTINTORAType, ColorSpaceNCSType, ColorSpaceMunsellType, BaseElementType,
/// ColorSpaceRecipeType, ColorantElementType.

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
#include "schema/generated/header.h"
#include "schema/generated/sampled_color_values.h"

namespace com_vyrgraph_v2 {

/// A colour's name in the three parts by which a collection orders it.
class VYR_EXPORT ColorName {
public:
    ColorName();
    ColorName(const ColorName& other);
    virtual ~ColorName();
    ColorName& operator=(const ColorName& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(ColorName& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// What stands ahead of the name proper.
    const std::u16string& get_PrefixName() const { return m_PrefixName; }
    lmx::elmx_error set_PrefixName(const std::u16string& value);

    /// The name proper.
    const std::u16string& get_BaseName() const { return m_BaseName; }
    lmx::elmx_error set_BaseName(const std::u16string& value);

    /// What follows the name proper, such as the finish.
    const std::u16string& get_SuffixName() const { return m_SuffixName; }
    lmx::elmx_error set_SuffixName(const std::u16string& value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_PrefixName,
        item_BaseName,
        item_SuffixName,
    };
    static const lmx::s_item k_items[];
    std::u16string m_PrefixName;
    std::u16string m_BaseName;
    std::u16string m_SuffixName;
    bool m_isset_PrefixName = false;
    bool m_isset_BaseName = false;
    bool m_isset_SuffixName = false;
};

/// A mixture of colorants.
class VYR_EXPORT Recipe {
public:
    Recipe();
    Recipe(const Recipe& other);
    virtual ~Recipe();
    Recipe& operator=(const Recipe& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(Recipe& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// One colorant with its share.
    std::size_t size_ColorantElement() const { return m_ColorantElement.size(); }
    ColorantElement& get_ColorantElement(std::size_t index);
    const ColorantElement& get_ColorantElement(std::size_t index) const { return m_ColorantElement[index]; }
    ColorantElement& assign_ColorantElement(std::size_t index, const ColorantElement& value);
    lmx::elmx_error append_ColorantElement();
    lmx::elmx_error insert_ColorantElement(std::size_t index);
    ColorantElement& back_ColorantElement() { return m_ColorantElement.back(); }
    void delete_ColorantElement(std::size_t index);
    void clear_ColorantElement();

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    static const lmx::s_item k_items[];
    lmx::c_list<ColorantElement> m_ColorantElement;
};

/// A colour of the TINTORA collection, by family, name and page.
class VYR_EXPORT ColorSpaceTINTORAType : public ColorSpaceType {
public:
    ColorSpaceTINTORAType();
    ColorSpaceTINTORAType(const ColorSpaceTINTORAType& other);
    ColorSpaceTINTORAType* clone() const override;
    ~ColorSpaceTINTORAType() override;
    ColorSpaceTINTORAType& operator=(const ColorSpaceTINTORAType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(ColorSpaceTINTORAType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Name of the value.
    const std::u16string& get_Name() const { return m_Name; }
    lmx::elmx_error set_Name(const std::u16string& value);
    bool isset_Name() const { return m_isset_Name; }
    void unset_Name() { m_isset_Name = false; }

    /// Colour family.
    const std::u16string& get_FamilyName() const { return m_FamilyName; }
    lmx::elmx_error set_FamilyName(const std::u16string& value);

    /// Name of the colour in its three parts.
    ColorName& get_ColorName() { m_isset_ColorName = true; return m_ColorName; }
    const ColorName& get_ColorName() const { return m_ColorName; }
    ColorName& assign_ColorName(const ColorName& value);

    /// Page of the guide that shows the colour.
    const std::u16string& get_Page() const { return m_Page; }
    lmx::elmx_error set_Page(const std::u16string& value);

    /// Smallest gamut in which the colour can be shown.
    const std::u16string& get_Gamut() const { return m_Gamut.get(); }
    lmx::elmx_error set_Gamut(const std::u16string& value);
    Eenum_Gamut getenum_Gamut() const { return static_cast<Eenum_Gamut>(m_Gamut.number()); }
    bool setenum_Gamut(std::int32_t number);

    /// How the colour is mixed.
    Recipe& get_Recipe();
    const Recipe& get_Recipe() const;
    Recipe& assign_Recipe(const Recipe& value);
    bool isset_Recipe() const { return m_isset_Recipe; }
    void unset_Recipe() { m_isset_Recipe = false; }

    /// Spectrum of the colour in one finish.
    std::size_t size_ColorAndFinish() const { return m_ColorAndFinish.size(); }
    ColorAndFinish& get_ColorAndFinish(std::size_t index);
    const ColorAndFinish& get_ColorAndFinish(std::size_t index) const { return m_ColorAndFinish[index]; }
    ColorAndFinish& assign_ColorAndFinish(std::size_t index, const ColorAndFinish& value);
    lmx::elmx_error append_ColorAndFinish();
    lmx::elmx_error insert_ColorAndFinish(std::size_t index);
    ColorAndFinish& back_ColorAndFinish() { return m_ColorAndFinish.back(); }
    void delete_ColorAndFinish(std::size_t index);
    void clear_ColorAndFinish();

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
        item_FamilyName,
        item_ColorName,
        item_Page,
        item_Gamut,
        item_Recipe,
        item_ColorAndFinish,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Name;
    std::u16string m_FamilyName;
    ColorName m_ColorName;
    std::u16string m_Page;
    lmx::c_enumerated m_Gamut;
    lmx::c_optional_child<Recipe> m_Recipe;
    lmx::c_list<ColorAndFinish> m_ColorAndFinish;
    bool m_isset_Name = false;
    bool m_isset_FamilyName = false;
    bool m_isset_ColorName = false;
    bool m_isset_Page = false;
    bool m_isset_Gamut = false;
    bool m_isset_Recipe = false;
};

/// A dye, pigment or base ink of a recipe, known by its name.
class VYR_EXPORT Colorant {
public:
    Colorant();
    Colorant(const Colorant& other);
    virtual ~Colorant();
    Colorant& operator=(const Colorant& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(Colorant& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// A named value of the user's own.
    std::size_t size_CustomAttributes() const { return m_CustomAttributes.size(); }
    CustomAttributes& get_CustomAttributes(std::size_t index);
    const CustomAttributes& get_CustomAttributes(std::size_t index) const { return m_CustomAttributes[index]; }
    CustomAttributes& assign_CustomAttributes(std::size_t index, const CustomAttributes& value);
    lmx::elmx_error append_CustomAttributes();
    lmx::elmx_error insert_CustomAttributes(std::size_t index);
    CustomAttributes& back_CustomAttributes() { return m_CustomAttributes.back(); }
    void delete_CustomAttributes(std::size_t index);
    void clear_CustomAttributes();

    /// Name of the colorant; not empty.
    const std::u16string& get_Name() const { return m_Name; }
    lmx::elmx_error set_Name(const std::u16string& value);

    /// Who makes the colorant; not empty.
    const std::u16string& get_Manufacturer() const { return m_Manufacturer; }
    lmx::elmx_error set_Manufacturer(const std::u16string& value);
    bool isset_Manufacturer() const { return m_isset_Manufacturer; }
    void unset_Manufacturer() { m_isset_Manufacturer = false; }

    /// The maker's number for it; not empty.
    const std::u16string& get_PartNumber() const { return m_PartNumber; }
    lmx::elmx_error set_PartNumber(const std::u16string& value);
    bool isset_PartNumber() const { return m_isset_PartNumber; }
    void unset_PartNumber() { m_isset_PartNumber = false; }

    /// Density of the colorant, above 0; no unit is stated.
    double get_Density() const { return m_Density; }
    lmx::elmx_error set_Density(double value);
    bool isset_Density() const { return m_isset_Density; }
    void unset_Density() { m_isset_Density = false; }

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_CustomAttributes,
        item_Name,
        item_Manufacturer,
        item_PartNumber,
        item_Density,
    };
    static const lmx::s_item k_items[];
    lmx::c_list<CustomAttributes> m_CustomAttributes;
    std::u16string m_Name;
    std::u16string m_Manufacturer;
    std::u16string m_PartNumber;
    double m_Density = 0;
    bool m_isset_Name = false;
    bool m_isset_Manufacturer = false;
    bool m_isset_PartNumber = false;
    bool m_isset_Density = false;
};

/// A colorant and its share in a mixture.
class VYR_EXPORT ColorantElement {
public:
    ColorantElement();
    ColorantElement(const ColorantElement& other);
    virtual ~ColorantElement();
    ColorantElement& operator=(const ColorantElement& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(ColorantElement& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// The colorant.
    Colorant& get_Colorant() { m_isset_Colorant = true; return m_Colorant; }
    const Colorant& get_Colorant() const { return m_Colorant; }
    Colorant& assign_Colorant(const Colorant& value);

    /// Share of the colorant, 0 or more, in the unit of the recipe.
    double get_Contribution() const { return m_Contribution; }
    lmx::elmx_error set_Contribution(double value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_Colorant,
        item_Contribution,
    };
    static const lmx::s_item k_items[];
    Colorant m_Colorant;
    double m_Contribution = 0;
    bool m_isset_Colorant = false;
    bool m_isset_Contribution = false;
};

/// An envelope around one named value of the user's own.
class VYR_EXPORT CustomAttributes {
public:
    CustomAttributes();
    CustomAttributes(const CustomAttributes& other);
    virtual ~CustomAttributes();
    CustomAttributes& operator=(const CustomAttributes& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(CustomAttributes& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// The named value.
    CustomAttributeType& get_CustomAttribute() { m_isset_CustomAttribute = true; return m_CustomAttribute; }
    const CustomAttributeType& get_CustomAttribute() const { return m_CustomAttribute; }
    CustomAttributeType& assign_CustomAttribute(const CustomAttributeType& value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    static const lmx::s_item k_items[];
    CustomAttributeType m_CustomAttribute;
    bool m_isset_CustomAttribute = false;
};

/// How a colour looks in one finish of the paper.
class VYR_EXPORT ColorAndFinish {
public:
    ColorAndFinish();
    ColorAndFinish(const ColorAndFinish& other);
    virtual ~ColorAndFinish();
    ColorAndFinish& operator=(const ColorAndFinish& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(ColorAndFinish& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// The finish.
    const std::u16string& get_Finish() const { return m_Finish.get(); }
    lmx::elmx_error set_Finish(const std::u16string& value);
    Eenum_Finish getenum_Finish() const { return static_cast<Eenum_Finish>(m_Finish.number()); }
    bool setenum_Finish(std::int32_t number);

    /// Reflectance spectrum in that finish.
    ColorSpaceSpectralType& get_ColorSpaceSpectral() { m_isset_ColorSpaceSpectral = true; return m_ColorSpaceSpectral; }
    const ColorSpaceSpectralType& get_ColorSpaceSpectral() const { return m_ColorSpaceSpectral; }
    ColorSpaceSpectralType& assign_ColorSpaceSpectral(const ColorSpaceSpectralType& value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_Finish,
        item_ColorSpaceSpectral,
    };
    static const lmx::s_item k_items[];
    lmx::c_enumerated m_Finish;
    ColorSpaceSpectralType m_ColorSpaceSpectral;
    bool m_isset_Finish = false;
    bool m_isset_ColorSpaceSpectral = false;
};

/// A colour by its notation in the Natural Colour System.
class VYR_EXPORT ColorSpaceNCSType : public ColorSpaceType {
public:
    ColorSpaceNCSType();
    ColorSpaceNCSType(const ColorSpaceNCSType& other);
    ColorSpaceNCSType* clone() const override;
    ~ColorSpaceNCSType() override;
    ColorSpaceNCSType& operator=(const ColorSpaceNCSType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(ColorSpaceNCSType& other);
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

    /// The notation.
    const std::u16string& get_ColorName() const { return m_ColorName; }
    lmx::elmx_error set_ColorName(const std::u16string& value);

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
        item_ColorName,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Name;
    ColorSpaceSpecificationSpectrumGeneric m_ColorSpaceSpecificationSpectrumGeneric;
    std::u16string m_ColorName;
    bool m_isset_Name = false;
    bool m_isset_ColorSpaceSpecificationSpectrumGeneric = false;
    bool m_isset_ColorName = false;
};

/// A colour by its notation in a Munsell collection.
class VYR_EXPORT ColorSpaceMunsellType : public ColorSpaceType {
public:
    ColorSpaceMunsellType();
    ColorSpaceMunsellType(const ColorSpaceMunsellType& other);
    ColorSpaceMunsellType* clone() const override;
    ~ColorSpaceMunsellType() override;
    ColorSpaceMunsellType& operator=(const ColorSpaceMunsellType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(ColorSpaceMunsellType& other);
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

    /// Which Munsell collection; not empty.
    const std::u16string& get_CollectionName() const { return m_CollectionName; }
    lmx::elmx_error set_CollectionName(const std::u16string& value);

    /// The notation by hue, value and chroma; not empty.
    const std::u16string& get_ColorName() const { return m_ColorName; }
    lmx::elmx_error set_ColorName(const std::u16string& value);

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
        item_CollectionName,
        item_ColorName,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Name;
    ColorSpaceSpecificationSpectrumGeneric m_ColorSpaceSpecificationSpectrumGeneric;
    std::u16string m_CollectionName;
    std::u16string m_ColorName;
    bool m_isset_Name = false;
    bool m_isset_ColorSpaceSpecificationSpectrumGeneric = false;
    bool m_isset_CollectionName = false;
    bool m_isset_ColorName = false;
};

/// The carrier that colorants are mixed into.
class VYR_EXPORT Base {
public:
    Base();
    Base(const Base& other);
    virtual ~Base();
    Base& operator=(const Base& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(Base& other);
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

    /// Name of the base; not empty.
    const std::u16string& get_Name() const { return m_Name; }
    lmx::elmx_error set_Name(const std::u16string& value);

    /// Who makes the base; not empty.
    const std::u16string& get_Manufacturer() const { return m_Manufacturer; }
    lmx::elmx_error set_Manufacturer(const std::u16string& value);

    /// The maker's number for it; not empty.
    const std::u16string& get_PartNumber() const { return m_PartNumber; }
    lmx::elmx_error set_PartNumber(const std::u16string& value);

    /// Density of the base, above 0; no unit is stated.
    double get_Density() const { return m_Density; }
    lmx::elmx_error set_Density(double value);
    bool isset_Density() const { return m_isset_Density; }
    void unset_Density() { m_isset_Density = false; }

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_CustomAttribute,
        item_Name,
        item_Manufacturer,
        item_PartNumber,
        item_Density,
    };
    static const lmx::s_item k_items[];
    lmx::c_list<CustomAttributeType> m_CustomAttribute;
    std::u16string m_Name;
    std::u16string m_Manufacturer;
    std::u16string m_PartNumber;
    double m_Density = 0;
    bool m_isset_Name = false;
    bool m_isset_Manufacturer = false;
    bool m_isset_PartNumber = false;
    bool m_isset_Density = false;
};

/// The base of a mixture and its share.
class VYR_EXPORT BaseElementType {
public:
    BaseElementType();
    BaseElementType(const BaseElementType& other);
    virtual ~BaseElementType();
    BaseElementType& operator=(const BaseElementType& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(BaseElementType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// The base.
    Base& get_Base() { m_isset_Base = true; return m_Base; }
    const Base& get_Base() const { return m_Base; }
    Base& assign_Base(const Base& value);

    /// Share of the base, 0 or more, in the unit of the recipe.
    double get_Contribution() const { return m_Contribution; }
    lmx::elmx_error set_Contribution(double value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_Base,
        item_Contribution,
    };
    static const lmx::s_item k_items[];
    Base m_Base;
    double m_Contribution = 0;
    bool m_isset_Base = false;
    bool m_isset_Contribution = false;
};

/// A colour by the colorants that give it.
class VYR_EXPORT ColorSpaceRecipeType : public ColorSpaceType {
public:
    ColorSpaceRecipeType();
    ColorSpaceRecipeType(const ColorSpaceRecipeType& other);
    ColorSpaceRecipeType* clone() const override;
    ~ColorSpaceRecipeType() override;
    ColorSpaceRecipeType& operator=(const ColorSpaceRecipeType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(ColorSpaceRecipeType& other);
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

    /// One colorant with its share.
    std::size_t size_ColorantElement() const { return m_ColorantElement.size(); }
    ColorantElementType& get_ColorantElement(std::size_t index);
    const ColorantElementType& get_ColorantElement(std::size_t index) const { return m_ColorantElement[index]; }
    ColorantElementType& assign_ColorantElement(std::size_t index, const ColorantElementType& value);
    lmx::elmx_error append_ColorantElement();
    lmx::elmx_error insert_ColorantElement(std::size_t index);
    ColorantElementType& back_ColorantElement() { return m_ColorantElement.back(); }
    void delete_ColorantElement(std::size_t index);
    void clear_ColorantElement();

    /// The base that the colorants are mixed into.
    BaseElementType& get_BaseElement();
    const BaseElementType& get_BaseElement() const;
    BaseElementType& assign_BaseElement(const BaseElementType& value);
    bool isset_BaseElement() const { return m_isset_BaseElement; }
    void unset_BaseElement() { m_isset_BaseElement = false; }

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
        item_ColorantElement,
        item_BaseElement,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Name;
    ColorSpaceSpecificationSpectrumGeneric m_ColorSpaceSpecificationSpectrumGeneric;
    lmx::c_list<ColorantElementType> m_ColorantElement;
    lmx::c_optional_child<BaseElementType> m_BaseElement;
    bool m_isset_Name = false;
    bool m_isset_ColorSpaceSpecificationSpectrumGeneric = false;
    bool m_isset_BaseElement = false;
};

/// A colour by the colorants that give it.
class VYR_EXPORT ColorSpaceRecipe : public ColorSpaceRecipeType {
public:
    ColorSpaceRecipe() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    ColorSpaceRecipe(const char* file_name, lmx::elmx_error* error);
    ColorSpaceRecipe(const char* data, std::size_t size, lmx::elmx_error* error);
    ColorSpaceRecipe(const std::string& text, lmx::elmx_error* error);
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

/// A colour of the TINTORA collection, by family, name and page.
class VYR_EXPORT ColorSpaceTINTORA : public ColorSpaceTINTORAType {
public:
    ColorSpaceTINTORA() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    ColorSpaceTINTORA(const char* file_name, lmx::elmx_error* error);
    ColorSpaceTINTORA(const char* data, std::size_t size, lmx::elmx_error* error);
    ColorSpaceTINTORA(const std::string& text, lmx::elmx_error* error);
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

/// A colour by its notation in the Natural Colour System.
class VYR_EXPORT ColorSpaceNCS : public ColorSpaceNCSType {
public:
    ColorSpaceNCS() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    ColorSpaceNCS(const char* file_name, lmx::elmx_error* error);
    ColorSpaceNCS(const char* data, std::size_t size, lmx::elmx_error* error);
    ColorSpaceNCS(const std::string& text, lmx::elmx_error* error);
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

/// A colour by its notation in a Munsell collection.
class VYR_EXPORT ColorSpaceMunsell : public ColorSpaceMunsellType {
public:
    ColorSpaceMunsell() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    ColorSpaceMunsell(const char* file_name, lmx::elmx_error* error);
    ColorSpaceMunsell(const char* data, std::size_t size, lmx::elmx_error* error);
    ColorSpaceMunsell(const std::string& text, lmx::elmx_error* error);
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

/// Density of the colorant, above 0 and without a stated unit, or nil where it is unknown.
class VYR_EXPORT Density {
public:
    Density();
    Density(const Density& other);
    virtual ~Density();
    Density& operator=(const Density& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(Density& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Density of the colorant, above 0 and without a stated unit, or nil where it is unknown.
    double get_Density() const { return m_Density; }
    lmx::elmx_error set_Density(double value);

    /// The `xsi:nil` state: an element without a value.
    bool isnil_Density() const { return m_isnil; }
    void setnil_Density() { m_isnil = true; }

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error, bool has_body) { return lmx::unmarshal_content(k_class, this, reader, name, error, has_body); }

private:
    enum item : std::size_t {
        item_Density,
    };
    static const lmx::s_item k_items[];
    bool m_isnil = false;
    double m_Density = 0;
    bool m_isset_Density = false;
};

/// A dye, pigment or base ink, known by name, maker and part number.
class VYR_EXPORT ColorantElementType_Colorant {
public:
    ColorantElementType_Colorant();
    ColorantElementType_Colorant(const ColorantElementType_Colorant& other);
    virtual ~ColorantElementType_Colorant();
    ColorantElementType_Colorant& operator=(const ColorantElementType_Colorant& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(ColorantElementType_Colorant& other);
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

    /// Name of the colorant; not empty.
    const std::u16string& get_Name() const { return m_Name; }
    lmx::elmx_error set_Name(const std::u16string& value);

    /// Who makes the colorant; not empty.
    const std::u16string& get_Manufacturer() const { return m_Manufacturer; }
    lmx::elmx_error set_Manufacturer(const std::u16string& value);

    /// The maker's number for it; not empty.
    const std::u16string& get_PartNumber() const { return m_PartNumber; }
    lmx::elmx_error set_PartNumber(const std::u16string& value);

    /// Density of the colorant, above 0 and without a stated unit, or nil where it is unknown.
    Density& get_Density() { m_isset_Density = true; return m_Density; }
    const Density& get_Density() const { return m_Density; }
    Density& assign_Density(const Density& value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_CustomAttribute,
        item_Name,
        item_Manufacturer,
        item_PartNumber,
        item_Density,
    };
    static const lmx::s_item k_items[];
    lmx::c_list<CustomAttributeType> m_CustomAttribute;
    std::u16string m_Name;
    std::u16string m_Manufacturer;
    std::u16string m_PartNumber;
    Density m_Density;
    bool m_isset_Name = false;
    bool m_isset_Manufacturer = false;
    bool m_isset_PartNumber = false;
    bool m_isset_Density = false;
};

/// A colorant and its fraction of a mixture.
class VYR_EXPORT ColorantElementType {
public:
    ColorantElementType();
    ColorantElementType(const ColorantElementType& other);
    virtual ~ColorantElementType();
    ColorantElementType& operator=(const ColorantElementType& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(ColorantElementType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// The colorant.
    ColorantElementType_Colorant& get_Colorant() { m_isset_Colorant = true; return m_Colorant; }
    const ColorantElementType_Colorant& get_Colorant() const { return m_Colorant; }
    ColorantElementType_Colorant& assign_Colorant(const ColorantElementType_Colorant& value);

    /// Share of the colorant in the mixture, 0 to 1.
    double get_Contribution() const { return m_Contribution; }
    lmx::elmx_error set_Contribution(double value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_Colorant,
        item_Contribution,
    };
    static const lmx::s_item k_items[];
    ColorantElementType_Colorant m_Colorant;
    double m_Contribution = 0;
    bool m_isset_Colorant = false;
    bool m_isset_Contribution = false;
};

}  // namespace com_vyrgraph_v2
