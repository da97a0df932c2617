// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Classes of the topic groups: sg_ColorSpace, sg_Substrate, sg_Sample, sg_Function.

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

namespace com_vyrgraph_v2 {

/// One element of the group ColorSpace: which, and its value.
class VYR_EXPORT sg_ColorSpace {
public:
    /// Which alternative is held.
    enum elmx_chosen : std::int32_t { e_ColorSpaceRecipe, e_ColorSpaceTINTORA, e_ColorSpaceGeneric, e_ColorSpaceEmissiveGeneric, e_ColorSpaceDensity, e_ColorSpaceRGB, e_ColorSpaceSRGB, e_ColorSpaceAdobeRGB, e_ColorSpaceCMYKPlusN, e_ColorSpaceAdobeWideGamutRGB, e_ColorSpaceSpectral, e_ColorSpaceEmissiveSpectral, e_ColorSpaceCIELab, e_ColorSpaceCIELCh, e_ColorSpaceCIEXYZ, e_ColorSpaceEmissiveCIEXYZ, e_ColorSpaceCIExyY, e_ColorSpaceEmissiveCIExyY, e_ColorSpaceCIELuv, e_ColorSpaceHSL, e_ColorSpaceHSV, e_ColorSpaceCMYK, e_ColorSpaceTINTORAOctavantic, e_ColorSpaceYUV, e_ColorSpaceYIQ, e_ColorSpaceYBR, e_ColorSpaceNCS, e_ColorSpaceMunsell, e_none = e_ColorSpaceMunsell + 2 };

    sg_ColorSpace();
    sg_ColorSpace(const sg_ColorSpace& other);
    virtual ~sg_ColorSpace();
    sg_ColorSpace& operator=(const sg_ColorSpace& other);
    /// True if the current element is one of the alternatives.
    static bool is_member(lmx::c_xml_reader& reader, const std::string&);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char*) const;
    bool unmarshal(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error);
    void swap(sg_ColorSpace& other);
    void reset();
    bool is_occurs_ok() const;
    elmx_chosen getchosen() const { return static_cast<elmx_chosen>(m_choice.chosen); }
    static const lmx::s_class k_class;

    /// A colour by the colorants that give it.
    ColorSpaceRecipeType& get_ColorSpaceRecipe();
    const ColorSpaceRecipeType& get_ColorSpaceRecipe() const { return *static_cast<const ColorSpaceRecipeType*>(m_choice.object); }
    ColorSpaceRecipeType& assign_ColorSpaceRecipe(const ColorSpaceRecipeType& value);

    /// A colour of the TINTORA collection, by family, name and page.
    ColorSpaceTINTORAType& get_ColorSpaceTINTORA();
    const ColorSpaceTINTORAType& get_ColorSpaceTINTORA() const { return *static_cast<const ColorSpaceTINTORAType*>(m_choice.object); }
    ColorSpaceTINTORAType& assign_ColorSpaceTINTORA(const ColorSpaceTINTORAType& value);

    /// A reflective colour in a space that the format doesn't know, axis by axis.
    ColorSpaceGenericType& get_ColorSpaceGeneric();
    const ColorSpaceGenericType& get_ColorSpaceGeneric() const { return *static_cast<const ColorSpaceGenericType*>(m_choice.object); }
    ColorSpaceGenericType& assign_ColorSpaceGeneric(const ColorSpaceGenericType& value);

    /// An emissive colour in a space that the format doesn't know, axis by axis.
    ColorSpaceEmissiveGenericType& get_ColorSpaceEmissiveGeneric();
    const ColorSpaceEmissiveGenericType& get_ColorSpaceEmissiveGeneric() const { return *static_cast<const ColorSpaceEmissiveGenericType*>(m_choice.object); }
    ColorSpaceEmissiveGenericType& assign_ColorSpaceEmissiveGeneric(const ColorSpaceEmissiveGenericType& value);

    /// A colour by its optical densities through one or more filters.
    ColorSpaceDensityType& get_ColorSpaceDensity();
    const ColorSpaceDensityType& get_ColorSpaceDensity() const { return *static_cast<const ColorSpaceDensityType*>(m_choice.object); }
    ColorSpaceDensityType& assign_ColorSpaceDensity(const ColorSpaceDensityType& value);

    /// A colour in a device's own RGB, as fractions of full drive.
    ColorSpaceRGBType& get_ColorSpaceRGB();
    const ColorSpaceRGBType& get_ColorSpaceRGB() const { return *static_cast<const ColorSpaceRGBType*>(m_choice.object); }
    ColorSpaceRGBType& assign_ColorSpaceRGB(const ColorSpaceRGBType& value);

    /// A colour in sRGB (IEC 61966-2-1), as fractions of full drive.
    ColorSpaceSRGBType& get_ColorSpaceSRGB();
    const ColorSpaceSRGBType& get_ColorSpaceSRGB() const { return *static_cast<const ColorSpaceSRGBType*>(m_choice.object); }
    ColorSpaceSRGBType& assign_ColorSpaceSRGB(const ColorSpaceSRGBType& value);

    /// A colour in Adobe RGB (1998), as fractions of full drive.
    ColorSpaceAdobeRGBType& get_ColorSpaceAdobeRGB();
    const ColorSpaceAdobeRGBType& get_ColorSpaceAdobeRGB() const { return *static_cast<const ColorSpaceAdobeRGBType*>(m_choice.object); }
    ColorSpaceAdobeRGBType& assign_ColorSpaceAdobeRGB(const ColorSpaceAdobeRGBType& value);

    /// A process colour with further named ink channels.
    ColorSpaceCMYKPlusNType& get_ColorSpaceCMYKPlusN();
    const ColorSpaceCMYKPlusNType& get_ColorSpaceCMYKPlusN() const { return *static_cast<const ColorSpaceCMYKPlusNType*>(m_choice.object); }
    ColorSpaceCMYKPlusNType& assign_ColorSpaceCMYKPlusN(const ColorSpaceCMYKPlusNType& value);

    /// A colour in Adobe Wide Gamut RGB, as fractions of full drive.
    ColorSpaceAdobeWideGamutRGBType& get_ColorSpaceAdobeWideGamutRGB();
    const ColorSpaceAdobeWideGamutRGBType& get_ColorSpaceAdobeWideGamutRGB() const { return *static_cast<const ColorSpaceAdobeWideGamutRGBType*>(m_choice.object); }
    ColorSpaceAdobeWideGamutRGBType& assign_ColorSpaceAdobeWideGamutRGB(const ColorSpaceAdobeWideGamutRGBType& value);

    /// A reflective or transmissive colour as a sampled spectrum.
    ColorSpaceSpectralType& get_ColorSpaceSpectral();
    const ColorSpaceSpectralType& get_ColorSpaceSpectral() const { return *static_cast<const ColorSpaceSpectralType*>(m_choice.object); }
    ColorSpaceSpectralType& assign_ColorSpaceSpectral(const ColorSpaceSpectralType& value);

    /// An emissive colour as a sampled spectrum.
    ColorSpaceEmissiveSpectralType& get_ColorSpaceEmissiveSpectral();
    const ColorSpaceEmissiveSpectralType& get_ColorSpaceEmissiveSpectral() const { return *static_cast<const ColorSpaceEmissiveSpectralType*>(m_choice.object); }
    ColorSpaceEmissiveSpectralType& assign_ColorSpaceEmissiveSpectral(const ColorSpaceEmissiveSpectralType& value);

    /// A reflective colour in CIE 1976 L*a*b*.
    ColorSpaceCIELabType& get_ColorSpaceCIELab();
    const ColorSpaceCIELabType& get_ColorSpaceCIELab() const { return *static_cast<const ColorSpaceCIELabType*>(m_choice.object); }
    ColorSpaceCIELabType& assign_ColorSpaceCIELab(const ColorSpaceCIELabType& value);

    /// A reflective colour in CIE L*C*h, the polar form of CIE 1976 L*a*b*.
    ColorSpaceCIELChType& get_ColorSpaceCIELCh();
    const ColorSpaceCIELChType& get_ColorSpaceCIELCh() const { return *static_cast<const ColorSpaceCIELChType*>(m_choice.object); }
    ColorSpaceCIELChType& assign_ColorSpaceCIELCh(const ColorSpaceCIELChType& value);

    /// A reflective colour in CIE XYZ, scaled so that Y of the perfect diffuser is 1.
    ColorSpaceCIEXYZType& get_ColorSpaceCIEXYZ();
    const ColorSpaceCIEXYZType& get_ColorSpaceCIEXYZ() const { return *static_cast<const ColorSpaceCIEXYZType*>(m_choice.object); }
    ColorSpaceCIEXYZType& assign_ColorSpaceCIEXYZ(const ColorSpaceCIEXYZType& value);

    /// An emissive colour in CIE XYZ; absolute, hence without an upper bound.
    ColorSpaceEmissiveCIEXYZType& get_ColorSpaceEmissiveCIEXYZ();
    const ColorSpaceEmissiveCIEXYZType& get_ColorSpaceEmissiveCIEXYZ() const { return *static_cast<const ColorSpaceEmissiveCIEXYZType*>(m_choice.object); }
    ColorSpaceEmissiveCIEXYZType& assign_ColorSpaceEmissiveCIEXYZ(const ColorSpaceEmissiveCIEXYZType& value);

    /// A reflective colour by its CIE chromaticity and luminance factor.
    ColorSpaceCIExyYType& get_ColorSpaceCIExyY();
    const ColorSpaceCIExyYType& get_ColorSpaceCIExyY() const { return *static_cast<const ColorSpaceCIExyYType*>(m_choice.object); }
    ColorSpaceCIExyYType& assign_ColorSpaceCIExyY(const ColorSpaceCIExyYType& value);

    /// An emissive colour by its CIE chromaticity and luminance.
    ColorSpaceEmissiveCIExyYType& get_ColorSpaceEmissiveCIExyY();
    const ColorSpaceEmissiveCIExyYType& get_ColorSpaceEmissiveCIExyY() const { return *static_cast<const ColorSpaceEmissiveCIExyYType*>(m_choice.object); }
    ColorSpaceEmissiveCIExyYType& assign_ColorSpaceEmissiveCIExyY(const ColorSpaceEmissiveCIExyYType& value);

    /// A reflective colour in CIE 1976 L*u*v*.
    ColorSpaceCIELuvType& get_ColorSpaceCIELuv();
    const ColorSpaceCIELuvType& get_ColorSpaceCIELuv() const { return *static_cast<const ColorSpaceCIELuvType*>(m_choice.object); }
    ColorSpaceCIELuvType& assign_ColorSpaceCIELuv(const ColorSpaceCIELuvType& value);

    /// A colour by hue, saturation and lightness.
    ColorSpaceHSLType& get_ColorSpaceHSL();
    const ColorSpaceHSLType& get_ColorSpaceHSL() const { return *static_cast<const ColorSpaceHSLType*>(m_choice.object); }
    ColorSpaceHSLType& assign_ColorSpaceHSL(const ColorSpaceHSLType& value);

    /// A colour by hue, saturation and value.
    ColorSpaceHSVType& get_ColorSpaceHSV();
    const ColorSpaceHSVType& get_ColorSpaceHSV() const { return *static_cast<const ColorSpaceHSVType*>(m_choice.object); }
    ColorSpaceHSVType& assign_ColorSpaceHSV(const ColorSpaceHSVType& value);

    /// A process colour as percentages of cyan, magenta, yellow and black, with spot inks if need be.
    ColorSpaceCMYKType& get_ColorSpaceCMYK();
    const ColorSpaceCMYKType& get_ColorSpaceCMYK() const { return *static_cast<const ColorSpaceCMYKType*>(m_choice.object); }
    ColorSpaceCMYKType& assign_ColorSpaceCMYK(const ColorSpaceCMYKType& value);
    /// Takes an object, which may be of a derived class. Null leaves the member without one, which can't be written; the
    /// reference is then to an object of the calling thread that belongs to nothing.
    ColorSpaceCMYKType& assign_ColorSpaceCMYK(ColorSpaceCMYKType* value);

    /// A process colour of six inks: cyan, magenta, yellow, black, orange and green.
    ColorSpaceTINTORAOctavanticType& get_ColorSpaceTINTORAOctavantic();
    const ColorSpaceTINTORAOctavanticType& get_ColorSpaceTINTORAOctavantic() const { return *static_cast<const ColorSpaceTINTORAOctavanticType*>(m_choice.object); }
    ColorSpaceTINTORAOctavanticType& assign_ColorSpaceTINTORAOctavantic(const ColorSpaceTINTORAOctavanticType& value);

    /// A video colour by luma and the two colour differences of PAL.
    ColorSpaceYUVType& get_ColorSpaceYUV();
    const ColorSpaceYUVType& get_ColorSpaceYUV() const { return *static_cast<const ColorSpaceYUVType*>(m_choice.object); }
    ColorSpaceYUVType& assign_ColorSpaceYUV(const ColorSpaceYUVType& value);

    /// A video colour by luma, in-phase and quadrature signal, as in NTSC.
    ColorSpaceYIQType& get_ColorSpaceYIQ();
    const ColorSpaceYIQType& get_ColorSpaceYIQ() const { return *static_cast<const ColorSpaceYIQType*>(m_choice.object); }
    ColorSpaceYIQType& assign_ColorSpaceYIQ(const ColorSpaceYIQType& value);

    /// A video colour by luma and the blue and red differences, all scaled to 0 to 1.
    ColorSpaceYBRType& get_ColorSpaceYBR();
    const ColorSpaceYBRType& get_ColorSpaceYBR() const { return *static_cast<const ColorSpaceYBRType*>(m_choice.object); }
    ColorSpaceYBRType& assign_ColorSpaceYBR(const ColorSpaceYBRType& value);

    /// A colour by its notation in the Natural Colour System.
    ColorSpaceNCSType& get_ColorSpaceNCS();
    const ColorSpaceNCSType& get_ColorSpaceNCS() const { return *static_cast<const ColorSpaceNCSType*>(m_choice.object); }
    ColorSpaceNCSType& assign_ColorSpaceNCS(const ColorSpaceNCSType& value);

    /// A colour by its notation in a Munsell collection.
    ColorSpaceMunsellType& get_ColorSpaceMunsell();
    const ColorSpaceMunsellType& get_ColorSpaceMunsell() const { return *static_cast<const ColorSpaceMunsellType*>(m_choice.object); }
    ColorSpaceMunsellType& assign_ColorSpaceMunsell(const ColorSpaceMunsellType& value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    lmx::s_choice m_choice{e_none};

private:
    enum item : std::size_t {
        item_ColorSpaceRecipe,
        item_ColorSpaceTINTORA,
        item_ColorSpaceGeneric,
        item_ColorSpaceEmissiveGeneric,
        item_ColorSpaceDensity,
        item_ColorSpaceRGB,
        item_ColorSpaceSRGB,
        item_ColorSpaceAdobeRGB,
        item_ColorSpaceCMYKPlusN,
        item_ColorSpaceAdobeWideGamutRGB,
        item_ColorSpaceSpectral,
        item_ColorSpaceEmissiveSpectral,
        item_ColorSpaceCIELab,
        item_ColorSpaceCIELCh,
        item_ColorSpaceCIEXYZ,
        item_ColorSpaceEmissiveCIEXYZ,
        item_ColorSpaceCIExyY,
        item_ColorSpaceEmissiveCIExyY,
        item_ColorSpaceCIELuv,
        item_ColorSpaceHSL,
        item_ColorSpaceHSV,
        item_ColorSpaceCMYK,
        item_ColorSpaceTINTORAOctavantic,
        item_ColorSpaceYUV,
        item_ColorSpaceYIQ,
        item_ColorSpaceYBR,
        item_ColorSpaceNCS,
        item_ColorSpaceMunsell,
    };
    static const lmx::s_item k_items[];
};

/// One element of the group Substrate: which, and its value.
class VYR_EXPORT sg_Substrate {
public:
    /// Which alternative is held.
    enum elmx_chosen : std::int32_t { e_SubstratePaper, e_SubstrateGeneric, e_SubstrateMetal, e_SubstratePlastic, e_SubstrateWood, e_SubstrateVinyl, e_SubstrateTile, e_SubstrateFilm, e_SubstrateTextile, e_none = e_SubstrateTextile + 2 };

    sg_Substrate();
    sg_Substrate(const sg_Substrate& other);
    virtual ~sg_Substrate();
    sg_Substrate& operator=(const sg_Substrate& other);
    /// True if the current element is one of the alternatives.
    static bool is_member(lmx::c_xml_reader& reader, const std::string&);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char*) const;
    bool unmarshal(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error);
    void swap(sg_Substrate& other);
    void reset();
    bool is_occurs_ok() const;
    elmx_chosen getchosen() const { return static_cast<elmx_chosen>(m_choice.chosen); }
    static const lmx::s_class k_class;

    /// Paper or board.
    SubstratePaperType& get_SubstratePaper();
    const SubstratePaperType& get_SubstratePaper() const { return *static_cast<const SubstratePaperType*>(m_choice.object); }
    SubstratePaperType& assign_SubstratePaper(const SubstratePaperType& value);

    /// A material that has no type of its own.
    SubstrateGenericType& get_SubstrateGeneric();
    const SubstrateGenericType& get_SubstrateGeneric() const { return *static_cast<const SubstrateGenericType*>(m_choice.object); }
    SubstrateGenericType& assign_SubstrateGeneric(const SubstrateGenericType& value);

    /// Metal.
    SubstrateMetalType& get_SubstrateMetal();
    const SubstrateMetalType& get_SubstrateMetal() const { return *static_cast<const SubstrateMetalType*>(m_choice.object); }
    SubstrateMetalType& assign_SubstrateMetal(const SubstrateMetalType& value);

    /// Plastic.
    SubstratePlasticType& get_SubstratePlastic();
    const SubstratePlasticType& get_SubstratePlastic() const { return *static_cast<const SubstratePlasticType*>(m_choice.object); }
    SubstratePlasticType& assign_SubstratePlastic(const SubstratePlasticType& value);

    /// Wood.
    SubstrateWoodType& get_SubstrateWood();
    const SubstrateWoodType& get_SubstrateWood() const { return *static_cast<const SubstrateWoodType*>(m_choice.object); }
    SubstrateWoodType& assign_SubstrateWood(const SubstrateWoodType& value);

    /// Vinyl.
    SubstrateVinylType& get_SubstrateVinyl();
    const SubstrateVinylType& get_SubstrateVinyl() const { return *static_cast<const SubstrateVinylType*>(m_choice.object); }
    SubstrateVinylType& assign_SubstrateVinyl(const SubstrateVinylType& value);

    /// Ceramic or other tile.
    SubstrateTileType& get_SubstrateTile();
    const SubstrateTileType& get_SubstrateTile() const { return *static_cast<const SubstrateTileType*>(m_choice.object); }
    SubstrateTileType& assign_SubstrateTile(const SubstrateTileType& value);

    /// Film or foil.
    SubstrateFilmType& get_SubstrateFilm();
    const SubstrateFilmType& get_SubstrateFilm() const { return *static_cast<const SubstrateFilmType*>(m_choice.object); }
    SubstrateFilmType& assign_SubstrateFilm(const SubstrateFilmType& value);

    /// Textile.
    SubstrateTextileType& get_SubstrateTextile();
    const SubstrateTextileType& get_SubstrateTextile() const { return *static_cast<const SubstrateTextileType*>(m_choice.object); }
    SubstrateTextileType& assign_SubstrateTextile(const SubstrateTextileType& value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    lmx::s_choice m_choice{e_none};

private:
    enum item : std::size_t {
        item_SubstratePaper,
        item_SubstrateGeneric,
        item_SubstrateMetal,
        item_SubstratePlastic,
        item_SubstrateWood,
        item_SubstrateVinyl,
        item_SubstrateTile,
        item_SubstrateFilm,
        item_SubstrateTextile,
    };
    static const lmx::s_item k_items[];
};

/// One element of the group Sample: which, and its value.
class VYR_EXPORT sg_Sample {
public:
    /// Which alternative is held.
    enum elmx_chosen : std::int32_t { e_SampleSpot, e_SampleTarget, e_none = e_SampleTarget + 2 };

    sg_Sample();
    sg_Sample(const sg_Sample& other);
    virtual ~sg_Sample();
    sg_Sample& operator=(const sg_Sample& other);
    /// True if the current element is one of the alternatives.
    static bool is_member(lmx::c_xml_reader& reader, const std::string&);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char*) const;
    bool unmarshal(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error);
    void swap(sg_Sample& other);
    void reset();
    bool is_occurs_ok() const;
    elmx_chosen getchosen() const { return static_cast<elmx_chosen>(m_choice.chosen); }
    static const lmx::s_class k_class;

    /// A single patch of one colour.
    SampleSpotType& get_SampleSpot();
    const SampleSpotType& get_SampleSpot() const { return *static_cast<const SampleSpotType*>(m_choice.object); }
    SampleSpotType& assign_SampleSpot(const SampleSpotType& value);

    /// A test chart of many patches.
    SampleTargetType& get_SampleTarget();
    const SampleTargetType& get_SampleTarget() const { return *static_cast<const SampleTargetType*>(m_choice.object); }
    SampleTargetType& assign_SampleTarget(const SampleTargetType& value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    lmx::s_choice m_choice{e_none};

private:
    enum item : std::size_t {
        item_SampleSpot,
        item_SampleTarget,
    };
    static const lmx::s_item k_items[];
};

/// One element of the group Function: which, and its value.
class VYR_EXPORT sg_Function {
public:
    /// Which alternative is held.
    enum elmx_chosen : std::int32_t { e_Function, e_FunctionGeneric, e_FunctionDE, e_FunctionMeanDE, e_FunctionDE94, e_FunctionDE2000, e_FunctionDECMC, e_FunctionStdDevX, e_FunctionStdDevY, e_FunctionStdDevZ, e_FunctionStdDevL, e_FunctionStdDevA, e_FunctionStdDevB, e_FunctionStdDevC, e_FunctionStdDevH, e_FunctionAverageStdDevL, e_FunctionAverageStdDevA, e_FunctionAverageStdDevB, e_none = e_FunctionAverageStdDevB + 2 };

    sg_Function();
    sg_Function(const sg_Function& other);
    virtual ~sg_Function();
    sg_Function& operator=(const sg_Function& other);
    /// True if the current element is one of the alternatives.
    static bool is_member(lmx::c_xml_reader& reader, const std::string&);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char*) const;
    bool unmarshal(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error);
    void swap(sg_Function& other);
    void reset();
    bool is_occurs_ok() const;
    elmx_chosen getchosen() const { return static_cast<elmx_chosen>(m_choice.chosen); }
    static const lmx::s_class k_class;

    /// Any function, told by xsi:type; head of the functions, any of which can stand in its place.
    FunctionType& get_Function();
    const FunctionType& get_Function() const { return *static_cast<const FunctionType*>(m_choice.object); }
    FunctionType& assign_Function(const FunctionType& value);
    /// Takes an object, which may be of a derived class. Null leaves the member without one, which can't be written; the
    /// reference is then to an object of the calling thread that belongs to nothing.
    FunctionType& assign_Function(FunctionType* value);

    /// A function that the format doesn't know, by name and parameters.
    FunctionGenericType& get_FunctionGeneric();
    const FunctionGenericType& get_FunctionGeneric() const { return *static_cast<const FunctionGenericType*>(m_choice.object); }
    FunctionGenericType& assign_FunctionGeneric(const FunctionGenericType& value);

    /// CIE 1976 colour difference, the distance in L*a*b*.
    FunctionDEType& get_FunctionDE();
    const FunctionDEType& get_FunctionDE() const { return *static_cast<const FunctionDEType*>(m_choice.object); }
    FunctionDEType& assign_FunctionDE(const FunctionDEType& value);

    /// Mean of CIE 1976 colour differences.
    FunctionMeanDEType& get_FunctionMeanDE();
    const FunctionMeanDEType& get_FunctionMeanDE() const { return *static_cast<const FunctionMeanDEType*>(m_choice.object); }
    FunctionMeanDEType& assign_FunctionMeanDE(const FunctionMeanDEType& value);

    /// CIE 1994 colour difference.
    FunctionDE94Type& get_FunctionDE94();
    const FunctionDE94Type& get_FunctionDE94() const { return *static_cast<const FunctionDE94Type*>(m_choice.object); }
    FunctionDE94Type& assign_FunctionDE94(const FunctionDE94Type& value);

    /// CIEDE2000 colour difference.
    FunctionDE2000Type& get_FunctionDE2000();
    const FunctionDE2000Type& get_FunctionDE2000() const { return *static_cast<const FunctionDE2000Type*>(m_choice.object); }
    FunctionDE2000Type& assign_FunctionDE2000(const FunctionDE2000Type& value);

    /// CMC l:c colour difference.
    FunctionDEcmcType& get_FunctionDECMC();
    const FunctionDEcmcType& get_FunctionDECMC() const { return *static_cast<const FunctionDEcmcType*>(m_choice.object); }
    FunctionDEcmcType& assign_FunctionDECMC(const FunctionDEcmcType& value);

    /// Standard deviation of the tristimulus value X.
    FunctionStdDevXType& get_FunctionStdDevX();
    const FunctionStdDevXType& get_FunctionStdDevX() const { return *static_cast<const FunctionStdDevXType*>(m_choice.object); }
    FunctionStdDevXType& assign_FunctionStdDevX(const FunctionStdDevXType& value);

    /// Standard deviation of the tristimulus value Y.
    FunctionStdDevYType& get_FunctionStdDevY();
    const FunctionStdDevYType& get_FunctionStdDevY() const { return *static_cast<const FunctionStdDevYType*>(m_choice.object); }
    FunctionStdDevYType& assign_FunctionStdDevY(const FunctionStdDevYType& value);

    /// Standard deviation of the tristimulus value Z.
    FunctionStdDevZType& get_FunctionStdDevZ();
    const FunctionStdDevZType& get_FunctionStdDevZ() const { return *static_cast<const FunctionStdDevZType*>(m_choice.object); }
    FunctionStdDevZType& assign_FunctionStdDevZ(const FunctionStdDevZType& value);

    /// Standard deviation of the lightness L*.
    FunctionStdDevLType& get_FunctionStdDevL();
    const FunctionStdDevLType& get_FunctionStdDevL() const { return *static_cast<const FunctionStdDevLType*>(m_choice.object); }
    FunctionStdDevLType& assign_FunctionStdDevL(const FunctionStdDevLType& value);

    /// Standard deviation of a*.
    FunctionStdDevAType& get_FunctionStdDevA();
    const FunctionStdDevAType& get_FunctionStdDevA() const { return *static_cast<const FunctionStdDevAType*>(m_choice.object); }
    FunctionStdDevAType& assign_FunctionStdDevA(const FunctionStdDevAType& value);

    /// Standard deviation of b*.
    FunctionStdDevBType& get_FunctionStdDevB();
    const FunctionStdDevBType& get_FunctionStdDevB() const { return *static_cast<const FunctionStdDevBType*>(m_choice.object); }
    FunctionStdDevBType& assign_FunctionStdDevB(const FunctionStdDevBType& value);

    /// Standard deviation of the chroma C*.
    FunctionStdDevCType& get_FunctionStdDevC();
    const FunctionStdDevCType& get_FunctionStdDevC() const { return *static_cast<const FunctionStdDevCType*>(m_choice.object); }
    FunctionStdDevCType& assign_FunctionStdDevC(const FunctionStdDevCType& value);

    /// Standard deviation of the hue.
    FunctionStdDevHType& get_FunctionStdDevH();
    const FunctionStdDevHType& get_FunctionStdDevH() const { return *static_cast<const FunctionStdDevHType*>(m_choice.object); }
    FunctionStdDevHType& assign_FunctionStdDevH(const FunctionStdDevHType& value);

    /// Average standard deviation of the lightness L*.
    FunctionAverageStdDevLType& get_FunctionAverageStdDevL();
    const FunctionAverageStdDevLType& get_FunctionAverageStdDevL() const { return *static_cast<const FunctionAverageStdDevLType*>(m_choice.object); }
    FunctionAverageStdDevLType& assign_FunctionAverageStdDevL(const FunctionAverageStdDevLType& value);

    /// Average standard deviation of a*.
    FunctionAverageStdDevAType& get_FunctionAverageStdDevA();
    const FunctionAverageStdDevAType& get_FunctionAverageStdDevA() const { return *static_cast<const FunctionAverageStdDevAType*>(m_choice.object); }
    FunctionAverageStdDevAType& assign_FunctionAverageStdDevA(const FunctionAverageStdDevAType& value);

    /// Average standard deviation of b*.
    FunctionAverageStdDevBType& get_FunctionAverageStdDevB();
    const FunctionAverageStdDevBType& get_FunctionAverageStdDevB() const { return *static_cast<const FunctionAverageStdDevBType*>(m_choice.object); }
    FunctionAverageStdDevBType& assign_FunctionAverageStdDevB(const FunctionAverageStdDevBType& value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    lmx::s_choice m_choice{e_none};

private:
    enum item : std::size_t {
        item_Function,
        item_FunctionGeneric,
        item_FunctionDE,
        item_FunctionMeanDE,
        item_FunctionDE94,
        item_FunctionDE2000,
        item_FunctionDECMC,
        item_FunctionStdDevX,
        item_FunctionStdDevY,
        item_FunctionStdDevZ,
        item_FunctionStdDevL,
        item_FunctionStdDevA,
        item_FunctionStdDevB,
        item_FunctionStdDevC,
        item_FunctionStdDevH,
        item_FunctionAverageStdDevL,
        item_FunctionAverageStdDevA,
        item_FunctionAverageStdDevB,
    };
    static const lmx::s_item k_items[];
};

}  // namespace com_vyrgraph_v2
