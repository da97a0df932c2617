// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Classes of the topic device color values: ColorSpaceRGBType, ColorSpaceSRGBType, ColorSpaceAdobeRGBType,
/// ColorSpaceAdobeWideGamutRGBType, ColorSpaceCMYKType, ColorSpaceCMYKPlusNType, ColorSpaceTINTORAOctavanticType,
/// ColorSpaceHSLType, ColorSpaceHSVType, ColorSpaceYUVType, ColorSpaceYIQType, ColorSpaceYBRType, SpotColorType.

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

/// A colour in a device's own RGB, as fractions of full drive.
class VYR_EXPORT ColorSpaceRGBType : public ColorSpaceType {
public:
    ColorSpaceRGBType();
    ColorSpaceRGBType(const ColorSpaceRGBType& other);
    ColorSpaceRGBType* clone() const override;
    ~ColorSpaceRGBType() override;
    ColorSpaceRGBType& operator=(const ColorSpaceRGBType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(ColorSpaceRGBType& other);
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

    /// Red channel, 0 to 1.
    double get_Red() const { return m_Red; }
    lmx::elmx_error set_Red(double value);

    /// Green channel, 0 to 1.
    double get_Green() const { return m_Green; }
    lmx::elmx_error set_Green(double value);

    /// Blue channel, 0 to 1.
    double get_Blue() const { return m_Blue; }
    lmx::elmx_error set_Blue(double value);

    /// Opacity, 0 (transparent) to 1 (opaque).
    double get_Alpha() const { return m_Alpha; }
    lmx::elmx_error set_Alpha(double value);
    bool isset_Alpha() const { return m_isset_Alpha; }
    void unset_Alpha() { m_isset_Alpha = false; }

    /// Bits per channel that the value was quantised to.
    const std::u16string& get_ColorDepth() const { return m_ColorDepth.get(); }
    lmx::elmx_error set_ColorDepth(const std::u16string& value);
    Eenum_ColorDepth getenum_ColorDepth() const { return static_cast<Eenum_ColorDepth>(m_ColorDepth.number()); }
    bool setenum_ColorDepth(std::int32_t number);

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
        item_Red,
        item_Green,
        item_Blue,
        item_Alpha,
        item_ColorDepth,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Name;
    ColorSpaceSpecificationSpectrumTristimulus m_ColorSpaceSpecificationSpectrumTristimulus;
    double m_Red = 0;
    double m_Green = 0;
    double m_Blue = 0;
    double m_Alpha = 0;
    lmx::c_enumerated m_ColorDepth;
    bool m_isset_Name = false;
    bool m_isset_ColorSpaceSpecificationSpectrumTristimulus = false;
    bool m_isset_Red = false;
    bool m_isset_Green = false;
    bool m_isset_Blue = false;
    bool m_isset_Alpha = false;
    bool m_isset_ColorDepth = false;
};

/// A colour in sRGB (IEC 61966-2-1), as fractions of full drive.
class VYR_EXPORT ColorSpaceSRGBType : public ColorSpaceType {
public:
    ColorSpaceSRGBType();
    ColorSpaceSRGBType(const ColorSpaceSRGBType& other);
    ColorSpaceSRGBType* clone() const override;
    ~ColorSpaceSRGBType() override;
    ColorSpaceSRGBType& operator=(const ColorSpaceSRGBType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(ColorSpaceSRGBType& other);
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

    /// Red channel, 0 to 1.
    double get_Red() const { return m_Red; }
    lmx::elmx_error set_Red(double value);

    /// Green channel, 0 to 1.
    double get_Green() const { return m_Green; }
    lmx::elmx_error set_Green(double value);

    /// Blue channel, 0 to 1.
    double get_Blue() const { return m_Blue; }
    lmx::elmx_error set_Blue(double value);

    /// Opacity, 0 (transparent) to 1 (opaque).
    double get_Alpha() const { return m_Alpha; }
    lmx::elmx_error set_Alpha(double value);
    bool isset_Alpha() const { return m_isset_Alpha; }
    void unset_Alpha() { m_isset_Alpha = false; }

    /// Bits per channel that the value was quantised to.
    const std::u16string& get_ColorDepth() const { return m_ColorDepth.get(); }
    lmx::elmx_error set_ColorDepth(const std::u16string& value);
    Eenum_ColorDepth getenum_ColorDepth() const { return static_cast<Eenum_ColorDepth>(m_ColorDepth.number()); }
    bool setenum_ColorDepth(std::int32_t number);

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
        item_Red,
        item_Green,
        item_Blue,
        item_Alpha,
        item_ColorDepth,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Name;
    ColorSpaceSpecificationSpectrumTristimulus m_ColorSpaceSpecificationSpectrumTristimulus;
    double m_Red = 0;
    double m_Green = 0;
    double m_Blue = 0;
    double m_Alpha = 0;
    lmx::c_enumerated m_ColorDepth;
    bool m_isset_Name = false;
    bool m_isset_ColorSpaceSpecificationSpectrumTristimulus = false;
    bool m_isset_Red = false;
    bool m_isset_Green = false;
    bool m_isset_Blue = false;
    bool m_isset_Alpha = false;
    bool m_isset_ColorDepth = false;
};

/// A colour in Adobe RGB (1998), as fractions of full drive.
class VYR_EXPORT ColorSpaceAdobeRGBType : public ColorSpaceType {
public:
    ColorSpaceAdobeRGBType();
    ColorSpaceAdobeRGBType(const ColorSpaceAdobeRGBType& other);
    ColorSpaceAdobeRGBType* clone() const override;
    ~ColorSpaceAdobeRGBType() override;
    ColorSpaceAdobeRGBType& operator=(const ColorSpaceAdobeRGBType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(ColorSpaceAdobeRGBType& other);
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

    /// Red channel, 0 to 1.
    double get_Red() const { return m_Red; }
    lmx::elmx_error set_Red(double value);

    /// Green channel, 0 to 1.
    double get_Green() const { return m_Green; }
    lmx::elmx_error set_Green(double value);

    /// Blue channel, 0 to 1.
    double get_Blue() const { return m_Blue; }
    lmx::elmx_error set_Blue(double value);

    /// Opacity, 0 (transparent) to 1 (opaque).
    double get_Alpha() const { return m_Alpha; }
    lmx::elmx_error set_Alpha(double value);
    bool isset_Alpha() const { return m_isset_Alpha; }
    void unset_Alpha() { m_isset_Alpha = false; }

    /// Bits per channel that the value was quantised to.
    const std::u16string& get_ColorDepth() const { return m_ColorDepth.get(); }
    lmx::elmx_error set_ColorDepth(const std::u16string& value);
    Eenum_ColorDepth getenum_ColorDepth() const { return static_cast<Eenum_ColorDepth>(m_ColorDepth.number()); }
    bool setenum_ColorDepth(std::int32_t number);

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
        item_Red,
        item_Green,
        item_Blue,
        item_Alpha,
        item_ColorDepth,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Name;
    ColorSpaceSpecificationSpectrumTristimulus m_ColorSpaceSpecificationSpectrumTristimulus;
    double m_Red = 0;
    double m_Green = 0;
    double m_Blue = 0;
    double m_Alpha = 0;
    lmx::c_enumerated m_ColorDepth;
    bool m_isset_Name = false;
    bool m_isset_ColorSpaceSpecificationSpectrumTristimulus = false;
    bool m_isset_Red = false;
    bool m_isset_Green = false;
    bool m_isset_Blue = false;
    bool m_isset_Alpha = false;
    bool m_isset_ColorDepth = false;
};

/// A colour in Adobe Wide Gamut RGB, as fractions of full drive.
class VYR_EXPORT ColorSpaceAdobeWideGamutRGBType : public ColorSpaceType {
public:
    ColorSpaceAdobeWideGamutRGBType();
    ColorSpaceAdobeWideGamutRGBType(const ColorSpaceAdobeWideGamutRGBType& other);
    ColorSpaceAdobeWideGamutRGBType* clone() const override;
    ~ColorSpaceAdobeWideGamutRGBType() override;
    ColorSpaceAdobeWideGamutRGBType& operator=(const ColorSpaceAdobeWideGamutRGBType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(ColorSpaceAdobeWideGamutRGBType& other);
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

    /// Red channel, 0 to 1.
    double get_Red() const { return m_Red; }
    lmx::elmx_error set_Red(double value);

    /// Green channel, 0 to 1.
    double get_Green() const { return m_Green; }
    lmx::elmx_error set_Green(double value);

    /// Blue channel, 0 to 1.
    double get_Blue() const { return m_Blue; }
    lmx::elmx_error set_Blue(double value);

    /// Opacity, 0 (transparent) to 1 (opaque).
    double get_Alpha() const { return m_Alpha; }
    lmx::elmx_error set_Alpha(double value);
    bool isset_Alpha() const { return m_isset_Alpha; }
    void unset_Alpha() { m_isset_Alpha = false; }

    /// Bits per channel that the value was quantised to.
    const std::u16string& get_ColorDepth() const { return m_ColorDepth.get(); }
    lmx::elmx_error set_ColorDepth(const std::u16string& value);
    Eenum_ColorDepth getenum_ColorDepth() const { return static_cast<Eenum_ColorDepth>(m_ColorDepth.number()); }
    bool setenum_ColorDepth(std::int32_t number);

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
        item_Red,
        item_Green,
        item_Blue,
        item_Alpha,
        item_ColorDepth,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Name;
    ColorSpaceSpecificationSpectrumTristimulus m_ColorSpaceSpecificationSpectrumTristimulus;
    double m_Red = 0;
    double m_Green = 0;
    double m_Blue = 0;
    double m_Alpha = 0;
    lmx::c_enumerated m_ColorDepth;
    bool m_isset_Name = false;
    bool m_isset_ColorSpaceSpecificationSpectrumTristimulus = false;
    bool m_isset_Red = false;
    bool m_isset_Green = false;
    bool m_isset_Blue = false;
    bool m_isset_Alpha = false;
    bool m_isset_ColorDepth = false;
};

/// A process colour as percentages of cyan, magenta, yellow and black, with spot inks if need be.
class VYR_EXPORT ColorSpaceCMYKType : public ColorSpaceType {
public:
    ColorSpaceCMYKType();
    ColorSpaceCMYKType(const ColorSpaceCMYKType& other);
    ColorSpaceCMYKType* clone() const override;
    ~ColorSpaceCMYKType() override;
    ColorSpaceCMYKType& operator=(const ColorSpaceCMYKType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(ColorSpaceCMYKType& other);
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

    /// Cyan in percent, 0 to 100.
    double get_Cyan() const { return m_Cyan; }
    lmx::elmx_error set_Cyan(double value);

    /// Magenta in percent, 0 to 100.
    double get_Magenta() const { return m_Magenta; }
    lmx::elmx_error set_Magenta(double value);

    /// Yellow in percent, 0 to 100.
    double get_Yellow() const { return m_Yellow; }
    lmx::elmx_error set_Yellow(double value);

    /// Black in percent, 0 to 100.
    double get_Black() const { return m_Black; }
    lmx::elmx_error set_Black(double value);

    /// A spot ink printed besides the process inks.
    std::size_t size_SpotColor() const { return m_SpotColor.size(); }
    SpotColorType& get_SpotColor(std::size_t index);
    const SpotColorType& get_SpotColor(std::size_t index) const { return m_SpotColor[index]; }
    SpotColorType& assign_SpotColor(std::size_t index, const SpotColorType& value);
    lmx::elmx_error append_SpotColor();
    lmx::elmx_error insert_SpotColor(std::size_t index);
    SpotColorType& back_SpotColor() { return m_SpotColor.back(); }
    void delete_SpotColor(std::size_t index);
    void clear_SpotColor();

    /// The class's identity; `getid` and `has_id` work on its address.
    static const char* id;

    /// A new object of the type with that local name in namespace 1000, or null; the caller owns it.
    static ColorSpaceCMYKType* factory(int ns_id, const std::string& name);
    static const lmx::s_factory_row k_factory[2];

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
        item_Cyan,
        item_Magenta,
        item_Yellow,
        item_Black,
        item_SpotColor,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Name;
    ColorSpaceSpecificationSpectrumGeneric m_ColorSpaceSpecificationSpectrumGeneric;
    double m_Cyan = 0;
    double m_Magenta = 0;
    double m_Yellow = 0;
    double m_Black = 0;
    lmx::c_list<SpotColorType> m_SpotColor;
    bool m_isset_Name = false;
    bool m_isset_ColorSpaceSpecificationSpectrumGeneric = false;
    bool m_isset_Cyan = false;
    bool m_isset_Magenta = false;
    bool m_isset_Yellow = false;
    bool m_isset_Black = false;
};

/// A process colour with further named ink channels.
class VYR_EXPORT ColorSpaceCMYKPlusNType : public ColorSpaceCMYKType {
public:
    ColorSpaceCMYKPlusNType();
    ColorSpaceCMYKPlusNType(const ColorSpaceCMYKPlusNType& other);
    ColorSpaceCMYKPlusNType* clone() const override;
    ~ColorSpaceCMYKPlusNType() override;
    ColorSpaceCMYKPlusNType& operator=(const ColorSpaceCMYKPlusNType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(ColorSpaceCMYKPlusNType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Name of the ink set.
    const std::u16string& get_ColorSpaceName() const { return m_ColorSpaceName; }
    lmx::elmx_error set_ColorSpaceName(const std::u16string& value);
    bool isset_ColorSpaceName() const { return m_isset_ColorSpaceName; }
    void unset_ColorSpaceName() { m_isset_ColorSpaceName = false; }

    /// One further channel.
    std::size_t size_Color() const { return m_Color.size(); }
    Color& get_Color(std::size_t index);
    const Color& get_Color(std::size_t index) const { return m_Color[index]; }
    Color& assign_Color(std::size_t index, const Color& value);
    lmx::elmx_error append_Color();
    lmx::elmx_error insert_Color(std::size_t index);
    Color& back_Color() { return m_Color.back(); }
    void delete_Color(std::size_t index);
    void clear_Color();

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
        item_ColorSpaceName,
        item_Color,
    };
    static const lmx::s_item k_items[];
    std::u16string m_ColorSpaceName;
    lmx::c_list<Color> m_Color;
    bool m_isset_ColorSpaceName = false;
};

/// One ink channel besides the process inks, by name and amount.
class VYR_EXPORT Color {
public:
    Color();
    Color(const Color& other);
    virtual ~Color();
    Color& operator=(const Color& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(Color& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Name of the channel.
    const std::u16string& get_Name() const { return m_Name; }
    lmx::elmx_error set_Name(const std::u16string& value);

    /// Amount of the ink; no unit is stated.
    double get_Value() const { return m_Value; }
    lmx::elmx_error set_Value(double value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_Name,
        item_Value,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Name;
    double m_Value = 0;
    bool m_isset_Name = false;
    bool m_isset_Value = false;
};

/// A process colour of six inks: cyan, magenta, yellow, black, orange and green.
class VYR_EXPORT ColorSpaceTINTORAOctavanticType : public ColorSpaceType {
public:
    ColorSpaceTINTORAOctavanticType();
    ColorSpaceTINTORAOctavanticType(const ColorSpaceTINTORAOctavanticType& other);
    ColorSpaceTINTORAOctavanticType* clone() const override;
    ~ColorSpaceTINTORAOctavanticType() override;
    ColorSpaceTINTORAOctavanticType& operator=(const ColorSpaceTINTORAOctavanticType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(ColorSpaceTINTORAOctavanticType& other);
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

    /// Cyan in percent, 0 to 100.
    double get_Cyan() const { return m_Cyan; }
    lmx::elmx_error set_Cyan(double value);

    /// Magenta in percent, 0 to 100.
    double get_Magenta() const { return m_Magenta; }
    lmx::elmx_error set_Magenta(double value);

    /// Yellow in percent, 0 to 100.
    double get_Yellow() const { return m_Yellow; }
    lmx::elmx_error set_Yellow(double value);

    /// Black in percent, 0 to 100.
    double get_Black() const { return m_Black; }
    lmx::elmx_error set_Black(double value);

    /// Orange in percent, 0 to 100.
    double get_Orange() const { return m_Orange; }
    lmx::elmx_error set_Orange(double value);

    /// Green in percent, 0 to 100.
    double get_Green() const { return m_Green; }
    lmx::elmx_error set_Green(double value);

    /// A spot ink printed besides the process inks.
    std::size_t size_SpotColor() const { return m_SpotColor.size(); }
    SpotColorType& get_SpotColor(std::size_t index);
    const SpotColorType& get_SpotColor(std::size_t index) const { return m_SpotColor[index]; }
    SpotColorType& assign_SpotColor(std::size_t index, const SpotColorType& value);
    lmx::elmx_error append_SpotColor();
    lmx::elmx_error insert_SpotColor(std::size_t index);
    SpotColorType& back_SpotColor() { return m_SpotColor.back(); }
    void delete_SpotColor(std::size_t index);
    void clear_SpotColor();

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
        item_Cyan,
        item_Magenta,
        item_Yellow,
        item_Black,
        item_Orange,
        item_Green,
        item_SpotColor,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Name;
    ColorSpaceSpecificationSpectrumGeneric m_ColorSpaceSpecificationSpectrumGeneric;
    double m_Cyan = 0;
    double m_Magenta = 0;
    double m_Yellow = 0;
    double m_Black = 0;
    double m_Orange = 0;
    double m_Green = 0;
    lmx::c_list<SpotColorType> m_SpotColor;
    bool m_isset_Name = false;
    bool m_isset_ColorSpaceSpecificationSpectrumGeneric = false;
    bool m_isset_Cyan = false;
    bool m_isset_Magenta = false;
    bool m_isset_Yellow = false;
    bool m_isset_Black = false;
    bool m_isset_Orange = false;
    bool m_isset_Green = false;
};

/// A colour by hue, saturation and lightness.
class VYR_EXPORT ColorSpaceHSLType : public ColorSpaceType {
public:
    ColorSpaceHSLType();
    ColorSpaceHSLType(const ColorSpaceHSLType& other);
    ColorSpaceHSLType* clone() const override;
    ~ColorSpaceHSLType() override;
    ColorSpaceHSLType& operator=(const ColorSpaceHSLType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(ColorSpaceHSLType& other);
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

    /// Hue angle in degrees, from 0 to below 360.
    double get_Hue() const { return m_Hue; }
    lmx::elmx_error set_Hue(double value);

    /// Saturation, 0 to 1.
    double get_Saturation() const { return m_Saturation; }
    lmx::elmx_error set_Saturation(double value);

    /// Lightness, 0 to 1.
    double get_Lightness() const { return m_Lightness; }
    lmx::elmx_error set_Lightness(double value);

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
        item_Hue,
        item_Saturation,
        item_Lightness,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Name;
    ColorSpaceSpecificationSpectrumGeneric m_ColorSpaceSpecificationSpectrumGeneric;
    double m_Hue = 0;
    double m_Saturation = 0;
    double m_Lightness = 0;
    bool m_isset_Name = false;
    bool m_isset_ColorSpaceSpecificationSpectrumGeneric = false;
    bool m_isset_Hue = false;
    bool m_isset_Saturation = false;
    bool m_isset_Lightness = false;
};

/// A colour by hue, saturation and value.
class VYR_EXPORT ColorSpaceHSVType : public ColorSpaceType {
public:
    ColorSpaceHSVType();
    ColorSpaceHSVType(const ColorSpaceHSVType& other);
    ColorSpaceHSVType* clone() const override;
    ~ColorSpaceHSVType() override;
    ColorSpaceHSVType& operator=(const ColorSpaceHSVType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(ColorSpaceHSVType& other);
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

    /// Hue angle in degrees, from 0 to below 360.
    double get_Hue() const { return m_Hue; }
    lmx::elmx_error set_Hue(double value);

    /// Saturation, 0 to 1.
    double get_Saturation() const { return m_Saturation; }
    lmx::elmx_error set_Saturation(double value);

    /// Value, the largest of the channels, 0 to 1.
    double get_Value() const { return m_Value; }
    lmx::elmx_error set_Value(double value);

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
        item_Hue,
        item_Saturation,
        item_Value,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Name;
    ColorSpaceSpecificationSpectrumGeneric m_ColorSpaceSpecificationSpectrumGeneric;
    double m_Hue = 0;
    double m_Saturation = 0;
    double m_Value = 0;
    bool m_isset_Name = false;
    bool m_isset_ColorSpaceSpecificationSpectrumGeneric = false;
    bool m_isset_Hue = false;
    bool m_isset_Saturation = false;
    bool m_isset_Value = false;
};

/// A video colour by luma and the two colour differences of PAL.
class VYR_EXPORT ColorSpaceYUVType : public ColorSpaceType {
public:
    ColorSpaceYUVType();
    ColorSpaceYUVType(const ColorSpaceYUVType& other);
    ColorSpaceYUVType* clone() const override;
    ~ColorSpaceYUVType() override;
    ColorSpaceYUVType& operator=(const ColorSpaceYUVType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(ColorSpaceYUVType& other);
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

    /// Luma, 0 to 1.
    double get_Y() const { return m_Y; }
    lmx::elmx_error set_Y(double value);

    /// Blue difference, -0.436 to 0.436.
    double get_U() const { return m_U; }
    lmx::elmx_error set_U(double value);

    /// Red difference, -0.615 to 0.615.
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
        item_ColorSpaceSpecificationSpectrumGeneric,
        item_Y,
        item_U,
        item_V,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Name;
    ColorSpaceSpecificationSpectrumGeneric m_ColorSpaceSpecificationSpectrumGeneric;
    double m_Y = 0;
    double m_U = 0;
    double m_V = 0;
    bool m_isset_Name = false;
    bool m_isset_ColorSpaceSpecificationSpectrumGeneric = false;
    bool m_isset_Y = false;
    bool m_isset_U = false;
    bool m_isset_V = false;
};

/// A video colour by luma, in-phase and quadrature signal, as in NTSC.
class VYR_EXPORT ColorSpaceYIQType : public ColorSpaceType {
public:
    ColorSpaceYIQType();
    ColorSpaceYIQType(const ColorSpaceYIQType& other);
    ColorSpaceYIQType* clone() const override;
    ~ColorSpaceYIQType() override;
    ColorSpaceYIQType& operator=(const ColorSpaceYIQType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(ColorSpaceYIQType& other);
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

    /// Luma, 0 to 1.
    double get_Y() const { return m_Y; }
    lmx::elmx_error set_Y(double value);

    /// In-phase signal, orange to blue, -0.5957 to 0.5957.
    double get_I() const { return m_I; }
    lmx::elmx_error set_I(double value);

    /// Quadrature signal, purple to green, -0.5226 to 0.5226.
    double get_Q() const { return m_Q; }
    lmx::elmx_error set_Q(double value);

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
        item_Y,
        item_I,
        item_Q,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Name;
    ColorSpaceSpecificationSpectrumGeneric m_ColorSpaceSpecificationSpectrumGeneric;
    double m_Y = 0;
    double m_I = 0;
    double m_Q = 0;
    bool m_isset_Name = false;
    bool m_isset_ColorSpaceSpecificationSpectrumGeneric = false;
    bool m_isset_Y = false;
    bool m_isset_I = false;
    bool m_isset_Q = false;
};

/// A video colour by luma and the blue and red differences, all scaled to 0 to 1.
class VYR_EXPORT ColorSpaceYBRType : public ColorSpaceType {
public:
    ColorSpaceYBRType();
    ColorSpaceYBRType(const ColorSpaceYBRType& other);
    ColorSpaceYBRType* clone() const override;
    ~ColorSpaceYBRType() override;
    ColorSpaceYBRType& operator=(const ColorSpaceYBRType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(ColorSpaceYBRType& other);
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

    /// Luma, 0 to 1.
    double get_Y() const { return m_Y; }
    lmx::elmx_error set_Y(double value);

    /// Blue difference, 0 to 1.
    double get_B() const { return m_B; }
    lmx::elmx_error set_B(double value);

    /// Red difference, 0 to 1.
    double get_R() const { return m_R; }
    lmx::elmx_error set_R(double value);

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
        item_Y,
        item_B,
        item_R,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Name;
    ColorSpaceSpecificationSpectrumGeneric m_ColorSpaceSpecificationSpectrumGeneric;
    double m_Y = 0;
    double m_B = 0;
    double m_R = 0;
    bool m_isset_Name = false;
    bool m_isset_ColorSpaceSpecificationSpectrumGeneric = false;
    bool m_isset_Y = false;
    bool m_isset_B = false;
    bool m_isset_R = false;
};

/// A colour in a device's own RGB, as fractions of full drive.
class VYR_EXPORT ColorSpaceRGB : public ColorSpaceRGBType {
public:
    ColorSpaceRGB() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    ColorSpaceRGB(const char* file_name, lmx::elmx_error* error);
    ColorSpaceRGB(const char* data, std::size_t size, lmx::elmx_error* error);
    ColorSpaceRGB(const std::string& text, lmx::elmx_error* error);
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

/// A colour in sRGB (IEC 61966-2-1), as fractions of full drive.
class VYR_EXPORT ColorSpaceSRGB : public ColorSpaceSRGBType {
public:
    ColorSpaceSRGB() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    ColorSpaceSRGB(const char* file_name, lmx::elmx_error* error);
    ColorSpaceSRGB(const char* data, std::size_t size, lmx::elmx_error* error);
    ColorSpaceSRGB(const std::string& text, lmx::elmx_error* error);
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

/// A colour in Adobe RGB (1998), as fractions of full drive.
class VYR_EXPORT ColorSpaceAdobeRGB : public ColorSpaceAdobeRGBType {
public:
    ColorSpaceAdobeRGB() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    ColorSpaceAdobeRGB(const char* file_name, lmx::elmx_error* error);
    ColorSpaceAdobeRGB(const char* data, std::size_t size, lmx::elmx_error* error);
    ColorSpaceAdobeRGB(const std::string& text, lmx::elmx_error* error);
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

/// A process colour with further named ink channels.
class VYR_EXPORT ColorSpaceCMYKPlusN : public ColorSpaceCMYKPlusNType {
public:
    ColorSpaceCMYKPlusN() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    ColorSpaceCMYKPlusN(const char* file_name, lmx::elmx_error* error);
    ColorSpaceCMYKPlusN(const char* data, std::size_t size, lmx::elmx_error* error);
    ColorSpaceCMYKPlusN(const std::string& text, lmx::elmx_error* error);
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

/// A colour in Adobe Wide Gamut RGB, as fractions of full drive.
class VYR_EXPORT ColorSpaceAdobeWideGamutRGB : public ColorSpaceAdobeWideGamutRGBType {
public:
    ColorSpaceAdobeWideGamutRGB() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    ColorSpaceAdobeWideGamutRGB(const char* file_name, lmx::elmx_error* error);
    ColorSpaceAdobeWideGamutRGB(const char* data, std::size_t size, lmx::elmx_error* error);
    ColorSpaceAdobeWideGamutRGB(const std::string& text, lmx::elmx_error* error);
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

/// A colour by hue, saturation and lightness.
class VYR_EXPORT ColorSpaceHSL : public ColorSpaceHSLType {
public:
    ColorSpaceHSL() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    ColorSpaceHSL(const char* file_name, lmx::elmx_error* error);
    ColorSpaceHSL(const char* data, std::size_t size, lmx::elmx_error* error);
    ColorSpaceHSL(const std::string& text, lmx::elmx_error* error);
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

/// A colour by hue, saturation and value.
class VYR_EXPORT ColorSpaceHSV : public ColorSpaceHSVType {
public:
    ColorSpaceHSV() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    ColorSpaceHSV(const char* file_name, lmx::elmx_error* error);
    ColorSpaceHSV(const char* data, std::size_t size, lmx::elmx_error* error);
    ColorSpaceHSV(const std::string& text, lmx::elmx_error* error);
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

/// A process colour as percentages of cyan, magenta, yellow and black, with spot inks if need be.
class VYR_EXPORT ColorSpaceCMYK : public ColorSpaceCMYKType {
public:
    ColorSpaceCMYK() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    ColorSpaceCMYK(const char* file_name, lmx::elmx_error* error);
    ColorSpaceCMYK(const char* data, std::size_t size, lmx::elmx_error* error);
    ColorSpaceCMYK(const std::string& text, lmx::elmx_error* error);
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

/// A process colour of six inks: cyan, magenta, yellow, black, orange and green.
class VYR_EXPORT ColorSpaceTINTORAOctavantic : public ColorSpaceTINTORAOctavanticType {
public:
    ColorSpaceTINTORAOctavantic() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    ColorSpaceTINTORAOctavantic(const char* file_name, lmx::elmx_error* error);
    ColorSpaceTINTORAOctavantic(const char* data, std::size_t size, lmx::elmx_error* error);
    ColorSpaceTINTORAOctavantic(const std::string& text, lmx::elmx_error* error);
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

/// A video colour by luma and the two colour differences of PAL.
class VYR_EXPORT ColorSpaceYUV : public ColorSpaceYUVType {
public:
    ColorSpaceYUV() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    ColorSpaceYUV(const char* file_name, lmx::elmx_error* error);
    ColorSpaceYUV(const char* data, std::size_t size, lmx::elmx_error* error);
    ColorSpaceYUV(const std::string& text, lmx::elmx_error* error);
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

/// A video colour by luma, in-phase and quadrature signal, as in NTSC.
class VYR_EXPORT ColorSpaceYIQ : public ColorSpaceYIQType {
public:
    ColorSpaceYIQ() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    ColorSpaceYIQ(const char* file_name, lmx::elmx_error* error);
    ColorSpaceYIQ(const char* data, std::size_t size, lmx::elmx_error* error);
    ColorSpaceYIQ(const std::string& text, lmx::elmx_error* error);
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

/// A video colour by luma and the blue and red differences, all scaled to 0 to 1.
class VYR_EXPORT ColorSpaceYBR : public ColorSpaceYBRType {
public:
    ColorSpaceYBR() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    ColorSpaceYBR(const char* file_name, lmx::elmx_error* error);
    ColorSpaceYBR(const char* data, std::size_t size, lmx::elmx_error* error);
    ColorSpaceYBR(const std::string& text, lmx::elmx_error* error);
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

/// A spot ink and how much of it is printed.
class VYR_EXPORT SpotColorType {
public:
    SpotColorType();
    SpotColorType(const SpotColorType& other);
    virtual ~SpotColorType();
    SpotColorType& operator=(const SpotColorType& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(SpotColorType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Name of the ink; not empty.
    const std::u16string& get_Name() const { return m_Name; }
    lmx::elmx_error set_Name(const std::u16string& value);

    /// Tone value in percent, 0 to 100.
    double get_Percentage() const { return m_Percentage; }
    lmx::elmx_error set_Percentage(double value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_Name,
        item_Percentage,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Name;
    double m_Percentage = 0;
    bool m_isset_Name = false;
    bool m_isset_Percentage = false;
};

}  // namespace com_vyrgraph_v2
