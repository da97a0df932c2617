// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.

using System;

namespace Vyr
{
    /// <summary>One element of the group ColorSpace: which, and its value.</summary>
    public partial class ColorSpaceChoice : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceChoice() : this(Native.Make()) { }

        internal ColorSpaceChoice(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceChoice Clone() => (ColorSpaceChoice)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceChoice(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Which alternative an object holds.</summary>
        public enum Alternative
        {
            /// <summary>A colour by the colorants that give it.</summary>
            ColorSpaceRecipe = 0,
            /// <summary>A colour of the TINTORA collection, by family, name and page.</summary>
            ColorSpaceTINTORA = 1,
            /// <summary>A reflective colour in a space that the format doesn't know, axis by axis.</summary>
            ColorSpaceGeneric = 2,
            /// <summary>An emissive colour in a space that the format doesn't know, axis by axis.</summary>
            ColorSpaceEmissiveGeneric = 3,
            /// <summary>A colour by its optical densities through one or more filters.</summary>
            ColorSpaceDensity = 4,
            /// <summary>A colour in a device's own RGB, as fractions of full drive.</summary>
            ColorSpaceRGB = 5,
            /// <summary>A colour in sRGB (IEC 61966-2-1), as fractions of full drive.</summary>
            ColorSpaceSRGB = 6,
            /// <summary>A colour in Adobe RGB (1998), as fractions of full drive.</summary>
            ColorSpaceAdobeRGB = 7,
            /// <summary>A process colour with further named ink channels.</summary>
            ColorSpaceCMYKPlusN = 8,
            /// <summary>A colour in Adobe Wide Gamut RGB, as fractions of full drive.</summary>
            ColorSpaceAdobeWideGamutRGB = 9,
            /// <summary>A reflective or transmissive colour as a sampled spectrum.</summary>
            ColorSpaceSpectral = 10,
            /// <summary>An emissive colour as a sampled spectrum.</summary>
            ColorSpaceEmissiveSpectral = 11,
            /// <summary>A reflective colour in CIE 1976 L*a*b*.</summary>
            ColorSpaceCIELab = 12,
            /// <summary>A reflective colour in CIE L*C*h, the polar form of CIE 1976 L*a*b*.</summary>
            ColorSpaceCIELCh = 13,
            /// <summary>A reflective colour in CIE XYZ, scaled so that Y of the perfect diffuser is 1.</summary>
            ColorSpaceCIEXYZ = 14,
            /// <summary>An emissive colour in CIE XYZ; absolute, hence without an upper bound.</summary>
            ColorSpaceEmissiveCIEXYZ = 15,
            /// <summary>A reflective colour by its CIE chromaticity and luminance factor.</summary>
            ColorSpaceCIExyY = 16,
            /// <summary>An emissive colour by its CIE chromaticity and luminance.</summary>
            ColorSpaceEmissiveCIExyY = 17,
            /// <summary>A reflective colour in CIE 1976 L*u*v*.</summary>
            ColorSpaceCIELuv = 18,
            /// <summary>A colour by hue, saturation and lightness.</summary>
            ColorSpaceHSL = 19,
            /// <summary>A colour by hue, saturation and value.</summary>
            ColorSpaceHSV = 20,
            /// <summary>A process colour as percentages of cyan, magenta, yellow and black, with spot inks if need
            /// be.</summary>
            ColorSpaceCMYK = 21,
            /// <summary>A process colour of six inks: cyan, magenta, yellow, black, orange and green.</summary>
            ColorSpaceTINTORAOctavantic = 22,
            /// <summary>A video colour by luma and the two colour differences of PAL.</summary>
            ColorSpaceYUV = 23,
            /// <summary>A video colour by luma, in-phase and quadrature signal, as in NTSC.</summary>
            ColorSpaceYIQ = 24,
            /// <summary>A video colour by luma and the blue and red differences, all scaled to 0 to 1.</summary>
            ColorSpaceYBR = 25,
            /// <summary>A colour by its notation in the Natural Colour System.</summary>
            ColorSpaceNCS = 26,
            /// <summary>A colour by its notation in a Munsell collection.</summary>
            ColorSpaceMunsell = 27,
            /// <summary>Nothing was chosen yet.</summary>
            None = 29,
        }

        /// <summary>Which alternative is held.</summary>
        public Alternative Chosen => (Alternative)Kept(Native.getchosen(Pointer));

        /// <summary>A colour by the colorants that give it. Null if another is chosen.</summary>
        public ColorSpaceRecipeType AsColorSpaceRecipe => Chosen == Alternative.ColorSpaceRecipe ? (ColorSpaceRecipeType)Held(0, Parts.ColorSpaceRecipe) : null;

        /// <summary>Gives ColorSpaceRecipe, which it makes in place of another one if it isn't chosen.</summary>
        public ColorSpaceRecipeType ChooseColorSpaceRecipe() => AsColorSpaceRecipe ?? (ColorSpaceRecipeType)Choose(0, Parts.ColorSpaceRecipe);

        /// <summary>Chooses ColorSpaceRecipe with a copy of a value.</summary>
        public ColorSpaceRecipeType ChooseColorSpaceRecipe(ColorSpaceRecipeType value) => (ColorSpaceRecipeType)Choose(0, Parts.ColorSpaceRecipe, value);

        /// <summary>A colour of the TINTORA collection, by family, name and page. Null if another is
        /// chosen.</summary>
        public ColorSpaceTINTORAType AsColorSpaceTINTORA => Chosen == Alternative.ColorSpaceTINTORA ? (ColorSpaceTINTORAType)Held(0, Parts.ColorSpaceTINTORA) : null;

        /// <summary>Gives ColorSpaceTINTORA, which it makes in place of another one if it isn't chosen.</summary>
        public ColorSpaceTINTORAType ChooseColorSpaceTINTORA() => AsColorSpaceTINTORA ?? (ColorSpaceTINTORAType)Choose(0, Parts.ColorSpaceTINTORA);

        /// <summary>Chooses ColorSpaceTINTORA with a copy of a value.</summary>
        public ColorSpaceTINTORAType ChooseColorSpaceTINTORA(ColorSpaceTINTORAType value) => (ColorSpaceTINTORAType)Choose(0, Parts.ColorSpaceTINTORA, value);

        /// <summary>A reflective colour in a space that the format doesn't know, axis by axis. Null if another is
        /// chosen.</summary>
        public ColorSpaceGenericType AsColorSpaceGeneric => Chosen == Alternative.ColorSpaceGeneric ? (ColorSpaceGenericType)Held(0, Parts.ColorSpaceGeneric) : null;

        /// <summary>Gives ColorSpaceGeneric, which it makes in place of another one if it isn't chosen.</summary>
        public ColorSpaceGenericType ChooseColorSpaceGeneric() => AsColorSpaceGeneric ?? (ColorSpaceGenericType)Choose(0, Parts.ColorSpaceGeneric);

        /// <summary>Chooses ColorSpaceGeneric with a copy of a value.</summary>
        public ColorSpaceGenericType ChooseColorSpaceGeneric(ColorSpaceGenericType value) => (ColorSpaceGenericType)Choose(0, Parts.ColorSpaceGeneric, value);

        /// <summary>An emissive colour in a space that the format doesn't know, axis by axis. Null if another is
        /// chosen.</summary>
        public ColorSpaceEmissiveGenericType AsColorSpaceEmissiveGeneric => Chosen == Alternative.ColorSpaceEmissiveGeneric ? (ColorSpaceEmissiveGenericType)Held(0, Parts.ColorSpaceEmissiveGeneric) : null;

        /// <summary>Gives ColorSpaceEmissiveGeneric, which it makes in place of another one if it isn't
        /// chosen.</summary>
        public ColorSpaceEmissiveGenericType ChooseColorSpaceEmissiveGeneric() => AsColorSpaceEmissiveGeneric ?? (ColorSpaceEmissiveGenericType)Choose(0, Parts.ColorSpaceEmissiveGeneric);

        /// <summary>Chooses ColorSpaceEmissiveGeneric with a copy of a value.</summary>
        public ColorSpaceEmissiveGenericType ChooseColorSpaceEmissiveGeneric(ColorSpaceEmissiveGenericType value) => (ColorSpaceEmissiveGenericType)Choose(0, Parts.ColorSpaceEmissiveGeneric, value);

        /// <summary>A colour by its optical densities through one or more filters. Null if another is
        /// chosen.</summary>
        public ColorSpaceDensityType AsColorSpaceDensity => Chosen == Alternative.ColorSpaceDensity ? (ColorSpaceDensityType)Held(0, Parts.ColorSpaceDensity) : null;

        /// <summary>Gives ColorSpaceDensity, which it makes in place of another one if it isn't chosen.</summary>
        public ColorSpaceDensityType ChooseColorSpaceDensity() => AsColorSpaceDensity ?? (ColorSpaceDensityType)Choose(0, Parts.ColorSpaceDensity);

        /// <summary>Chooses ColorSpaceDensity with a copy of a value.</summary>
        public ColorSpaceDensityType ChooseColorSpaceDensity(ColorSpaceDensityType value) => (ColorSpaceDensityType)Choose(0, Parts.ColorSpaceDensity, value);

        /// <summary>A colour in a device's own RGB, as fractions of full drive. Null if another is chosen.</summary>
        public ColorSpaceRGBType AsColorSpaceRGB => Chosen == Alternative.ColorSpaceRGB ? (ColorSpaceRGBType)Held(0, Parts.ColorSpaceRGB) : null;

        /// <summary>Gives ColorSpaceRGB, which it makes in place of another one if it isn't chosen.</summary>
        public ColorSpaceRGBType ChooseColorSpaceRGB() => AsColorSpaceRGB ?? (ColorSpaceRGBType)Choose(0, Parts.ColorSpaceRGB);

        /// <summary>Chooses ColorSpaceRGB with a copy of a value.</summary>
        public ColorSpaceRGBType ChooseColorSpaceRGB(ColorSpaceRGBType value) => (ColorSpaceRGBType)Choose(0, Parts.ColorSpaceRGB, value);

        /// <summary>A colour in sRGB (IEC 61966-2-1), as fractions of full drive. Null if another is
        /// chosen.</summary>
        public ColorSpaceSRGBType AsColorSpaceSRGB => Chosen == Alternative.ColorSpaceSRGB ? (ColorSpaceSRGBType)Held(0, Parts.ColorSpaceSRGB) : null;

        /// <summary>Gives ColorSpaceSRGB, which it makes in place of another one if it isn't chosen.</summary>
        public ColorSpaceSRGBType ChooseColorSpaceSRGB() => AsColorSpaceSRGB ?? (ColorSpaceSRGBType)Choose(0, Parts.ColorSpaceSRGB);

        /// <summary>Chooses ColorSpaceSRGB with a copy of a value.</summary>
        public ColorSpaceSRGBType ChooseColorSpaceSRGB(ColorSpaceSRGBType value) => (ColorSpaceSRGBType)Choose(0, Parts.ColorSpaceSRGB, value);

        /// <summary>A colour in Adobe RGB (1998), as fractions of full drive. Null if another is chosen.</summary>
        public ColorSpaceAdobeRGBType AsColorSpaceAdobeRGB => Chosen == Alternative.ColorSpaceAdobeRGB ? (ColorSpaceAdobeRGBType)Held(0, Parts.ColorSpaceAdobeRGB) : null;

        /// <summary>Gives ColorSpaceAdobeRGB, which it makes in place of another one if it isn't chosen.</summary>
        public ColorSpaceAdobeRGBType ChooseColorSpaceAdobeRGB() => AsColorSpaceAdobeRGB ?? (ColorSpaceAdobeRGBType)Choose(0, Parts.ColorSpaceAdobeRGB);

        /// <summary>Chooses ColorSpaceAdobeRGB with a copy of a value.</summary>
        public ColorSpaceAdobeRGBType ChooseColorSpaceAdobeRGB(ColorSpaceAdobeRGBType value) => (ColorSpaceAdobeRGBType)Choose(0, Parts.ColorSpaceAdobeRGB, value);

        /// <summary>A process colour with further named ink channels. Null if another is chosen.</summary>
        public ColorSpaceCMYKPlusNType AsColorSpaceCMYKPlusN => Chosen == Alternative.ColorSpaceCMYKPlusN ? (ColorSpaceCMYKPlusNType)Held(0, Parts.ColorSpaceCMYKPlusN) : null;

        /// <summary>Gives ColorSpaceCMYKPlusN, which it makes in place of another one if it isn't chosen.</summary>
        public ColorSpaceCMYKPlusNType ChooseColorSpaceCMYKPlusN() => AsColorSpaceCMYKPlusN ?? (ColorSpaceCMYKPlusNType)Choose(0, Parts.ColorSpaceCMYKPlusN);

        /// <summary>Chooses ColorSpaceCMYKPlusN with a copy of a value.</summary>
        public ColorSpaceCMYKPlusNType ChooseColorSpaceCMYKPlusN(ColorSpaceCMYKPlusNType value) => (ColorSpaceCMYKPlusNType)Choose(0, Parts.ColorSpaceCMYKPlusN, value);

        /// <summary>A colour in Adobe Wide Gamut RGB, as fractions of full drive. Null if another is
        /// chosen.</summary>
        public ColorSpaceAdobeWideGamutRGBType AsColorSpaceAdobeWideGamutRGB => Chosen == Alternative.ColorSpaceAdobeWideGamutRGB ? (ColorSpaceAdobeWideGamutRGBType)Held(0, Parts.ColorSpaceAdobeWideGamutRGB) : null;

        /// <summary>Gives ColorSpaceAdobeWideGamutRGB, which it makes in place of another one if it isn't
        /// chosen.</summary>
        public ColorSpaceAdobeWideGamutRGBType ChooseColorSpaceAdobeWideGamutRGB() => AsColorSpaceAdobeWideGamutRGB ?? (ColorSpaceAdobeWideGamutRGBType)Choose(0, Parts.ColorSpaceAdobeWideGamutRGB);

        /// <summary>Chooses ColorSpaceAdobeWideGamutRGB with a copy of a value.</summary>
        public ColorSpaceAdobeWideGamutRGBType ChooseColorSpaceAdobeWideGamutRGB(ColorSpaceAdobeWideGamutRGBType value) => (ColorSpaceAdobeWideGamutRGBType)Choose(0, Parts.ColorSpaceAdobeWideGamutRGB, value);

        /// <summary>A reflective or transmissive colour as a sampled spectrum. Null if another is chosen.</summary>
        public ColorSpaceSpectralType AsColorSpaceSpectral => Chosen == Alternative.ColorSpaceSpectral ? (ColorSpaceSpectralType)Held(0, Parts.ColorSpaceSpectral) : null;

        /// <summary>Gives ColorSpaceSpectral, which it makes in place of another one if it isn't chosen.</summary>
        public ColorSpaceSpectralType ChooseColorSpaceSpectral() => AsColorSpaceSpectral ?? (ColorSpaceSpectralType)Choose(0, Parts.ColorSpaceSpectral);

        /// <summary>Chooses ColorSpaceSpectral with a copy of a value.</summary>
        public ColorSpaceSpectralType ChooseColorSpaceSpectral(ColorSpaceSpectralType value) => (ColorSpaceSpectralType)Choose(0, Parts.ColorSpaceSpectral, value);

        /// <summary>An emissive colour as a sampled spectrum. Null if another is chosen.</summary>
        public ColorSpaceEmissiveSpectralType AsColorSpaceEmissiveSpectral => Chosen == Alternative.ColorSpaceEmissiveSpectral ? (ColorSpaceEmissiveSpectralType)Held(0, Parts.ColorSpaceEmissiveSpectral) : null;

        /// <summary>Gives ColorSpaceEmissiveSpectral, which it makes in place of another one if it isn't
        /// chosen.</summary>
        public ColorSpaceEmissiveSpectralType ChooseColorSpaceEmissiveSpectral() => AsColorSpaceEmissiveSpectral ?? (ColorSpaceEmissiveSpectralType)Choose(0, Parts.ColorSpaceEmissiveSpectral);

        /// <summary>Chooses ColorSpaceEmissiveSpectral with a copy of a value.</summary>
        public ColorSpaceEmissiveSpectralType ChooseColorSpaceEmissiveSpectral(ColorSpaceEmissiveSpectralType value) => (ColorSpaceEmissiveSpectralType)Choose(0, Parts.ColorSpaceEmissiveSpectral, value);

        /// <summary>A reflective colour in CIE 1976 L*a*b*. Null if another is chosen.</summary>
        public ColorSpaceCIELabType AsColorSpaceCIELab => Chosen == Alternative.ColorSpaceCIELab ? (ColorSpaceCIELabType)Held(0, Parts.ColorSpaceCIELab) : null;

        /// <summary>Gives ColorSpaceCIELab, which it makes in place of another one if it isn't chosen.</summary>
        public ColorSpaceCIELabType ChooseColorSpaceCIELab() => AsColorSpaceCIELab ?? (ColorSpaceCIELabType)Choose(0, Parts.ColorSpaceCIELab);

        /// <summary>Chooses ColorSpaceCIELab with a copy of a value.</summary>
        public ColorSpaceCIELabType ChooseColorSpaceCIELab(ColorSpaceCIELabType value) => (ColorSpaceCIELabType)Choose(0, Parts.ColorSpaceCIELab, value);

        /// <summary>A reflective colour in CIE L*C*h, the polar form of CIE 1976 L*a*b*. Null if another is
        /// chosen.</summary>
        public ColorSpaceCIELChType AsColorSpaceCIELCh => Chosen == Alternative.ColorSpaceCIELCh ? (ColorSpaceCIELChType)Held(0, Parts.ColorSpaceCIELCh) : null;

        /// <summary>Gives ColorSpaceCIELCh, which it makes in place of another one if it isn't chosen.</summary>
        public ColorSpaceCIELChType ChooseColorSpaceCIELCh() => AsColorSpaceCIELCh ?? (ColorSpaceCIELChType)Choose(0, Parts.ColorSpaceCIELCh);

        /// <summary>Chooses ColorSpaceCIELCh with a copy of a value.</summary>
        public ColorSpaceCIELChType ChooseColorSpaceCIELCh(ColorSpaceCIELChType value) => (ColorSpaceCIELChType)Choose(0, Parts.ColorSpaceCIELCh, value);

        /// <summary>A reflective colour in CIE XYZ, scaled so that Y of the perfect diffuser is 1. Null if another is
        /// chosen.</summary>
        public ColorSpaceCIEXYZType AsColorSpaceCIEXYZ => Chosen == Alternative.ColorSpaceCIEXYZ ? (ColorSpaceCIEXYZType)Held(0, Parts.ColorSpaceCIEXYZ) : null;

        /// <summary>Gives ColorSpaceCIEXYZ, which it makes in place of another one if it isn't chosen.</summary>
        public ColorSpaceCIEXYZType ChooseColorSpaceCIEXYZ() => AsColorSpaceCIEXYZ ?? (ColorSpaceCIEXYZType)Choose(0, Parts.ColorSpaceCIEXYZ);

        /// <summary>Chooses ColorSpaceCIEXYZ with a copy of a value.</summary>
        public ColorSpaceCIEXYZType ChooseColorSpaceCIEXYZ(ColorSpaceCIEXYZType value) => (ColorSpaceCIEXYZType)Choose(0, Parts.ColorSpaceCIEXYZ, value);

        /// <summary>An emissive colour in CIE XYZ; absolute, hence without an upper bound. Null if another is
        /// chosen.</summary>
        public ColorSpaceEmissiveCIEXYZType AsColorSpaceEmissiveCIEXYZ => Chosen == Alternative.ColorSpaceEmissiveCIEXYZ ? (ColorSpaceEmissiveCIEXYZType)Held(0, Parts.ColorSpaceEmissiveCIEXYZ) : null;

        /// <summary>Gives ColorSpaceEmissiveCIEXYZ, which it makes in place of another one if it isn't
        /// chosen.</summary>
        public ColorSpaceEmissiveCIEXYZType ChooseColorSpaceEmissiveCIEXYZ() => AsColorSpaceEmissiveCIEXYZ ?? (ColorSpaceEmissiveCIEXYZType)Choose(0, Parts.ColorSpaceEmissiveCIEXYZ);

        /// <summary>Chooses ColorSpaceEmissiveCIEXYZ with a copy of a value.</summary>
        public ColorSpaceEmissiveCIEXYZType ChooseColorSpaceEmissiveCIEXYZ(ColorSpaceEmissiveCIEXYZType value) => (ColorSpaceEmissiveCIEXYZType)Choose(0, Parts.ColorSpaceEmissiveCIEXYZ, value);

        /// <summary>A reflective colour by its CIE chromaticity and luminance factor. Null if another is
        /// chosen.</summary>
        public ColorSpaceCIExyYType AsColorSpaceCIExyY => Chosen == Alternative.ColorSpaceCIExyY ? (ColorSpaceCIExyYType)Held(0, Parts.ColorSpaceCIExyY) : null;

        /// <summary>Gives ColorSpaceCIExyY, which it makes in place of another one if it isn't chosen.</summary>
        public ColorSpaceCIExyYType ChooseColorSpaceCIExyY() => AsColorSpaceCIExyY ?? (ColorSpaceCIExyYType)Choose(0, Parts.ColorSpaceCIExyY);

        /// <summary>Chooses ColorSpaceCIExyY with a copy of a value.</summary>
        public ColorSpaceCIExyYType ChooseColorSpaceCIExyY(ColorSpaceCIExyYType value) => (ColorSpaceCIExyYType)Choose(0, Parts.ColorSpaceCIExyY, value);

        /// <summary>An emissive colour by its CIE chromaticity and luminance. Null if another is chosen.</summary>
        public ColorSpaceEmissiveCIExyYType AsColorSpaceEmissiveCIExyY => Chosen == Alternative.ColorSpaceEmissiveCIExyY ? (ColorSpaceEmissiveCIExyYType)Held(0, Parts.ColorSpaceEmissiveCIExyY) : null;

        /// <summary>Gives ColorSpaceEmissiveCIExyY, which it makes in place of another one if it isn't
        /// chosen.</summary>
        public ColorSpaceEmissiveCIExyYType ChooseColorSpaceEmissiveCIExyY() => AsColorSpaceEmissiveCIExyY ?? (ColorSpaceEmissiveCIExyYType)Choose(0, Parts.ColorSpaceEmissiveCIExyY);

        /// <summary>Chooses ColorSpaceEmissiveCIExyY with a copy of a value.</summary>
        public ColorSpaceEmissiveCIExyYType ChooseColorSpaceEmissiveCIExyY(ColorSpaceEmissiveCIExyYType value) => (ColorSpaceEmissiveCIExyYType)Choose(0, Parts.ColorSpaceEmissiveCIExyY, value);

        /// <summary>A reflective colour in CIE 1976 L*u*v*. Null if another is chosen.</summary>
        public ColorSpaceCIELuvType AsColorSpaceCIELuv => Chosen == Alternative.ColorSpaceCIELuv ? (ColorSpaceCIELuvType)Held(0, Parts.ColorSpaceCIELuv) : null;

        /// <summary>Gives ColorSpaceCIELuv, which it makes in place of another one if it isn't chosen.</summary>
        public ColorSpaceCIELuvType ChooseColorSpaceCIELuv() => AsColorSpaceCIELuv ?? (ColorSpaceCIELuvType)Choose(0, Parts.ColorSpaceCIELuv);

        /// <summary>Chooses ColorSpaceCIELuv with a copy of a value.</summary>
        public ColorSpaceCIELuvType ChooseColorSpaceCIELuv(ColorSpaceCIELuvType value) => (ColorSpaceCIELuvType)Choose(0, Parts.ColorSpaceCIELuv, value);

        /// <summary>A colour by hue, saturation and lightness. Null if another is chosen.</summary>
        public ColorSpaceHSLType AsColorSpaceHSL => Chosen == Alternative.ColorSpaceHSL ? (ColorSpaceHSLType)Held(0, Parts.ColorSpaceHSL) : null;

        /// <summary>Gives ColorSpaceHSL, which it makes in place of another one if it isn't chosen.</summary>
        public ColorSpaceHSLType ChooseColorSpaceHSL() => AsColorSpaceHSL ?? (ColorSpaceHSLType)Choose(0, Parts.ColorSpaceHSL);

        /// <summary>Chooses ColorSpaceHSL with a copy of a value.</summary>
        public ColorSpaceHSLType ChooseColorSpaceHSL(ColorSpaceHSLType value) => (ColorSpaceHSLType)Choose(0, Parts.ColorSpaceHSL, value);

        /// <summary>A colour by hue, saturation and value. Null if another is chosen.</summary>
        public ColorSpaceHSVType AsColorSpaceHSV => Chosen == Alternative.ColorSpaceHSV ? (ColorSpaceHSVType)Held(0, Parts.ColorSpaceHSV) : null;

        /// <summary>Gives ColorSpaceHSV, which it makes in place of another one if it isn't chosen.</summary>
        public ColorSpaceHSVType ChooseColorSpaceHSV() => AsColorSpaceHSV ?? (ColorSpaceHSVType)Choose(0, Parts.ColorSpaceHSV);

        /// <summary>Chooses ColorSpaceHSV with a copy of a value.</summary>
        public ColorSpaceHSVType ChooseColorSpaceHSV(ColorSpaceHSVType value) => (ColorSpaceHSVType)Choose(0, Parts.ColorSpaceHSV, value);

        /// <summary>A process colour as percentages of cyan, magenta, yellow and black, with spot inks if need be.
        /// Null if another is chosen.</summary>
        public ColorSpaceCMYKType AsColorSpaceCMYK => Chosen == Alternative.ColorSpaceCMYK ? (ColorSpaceCMYKType)Held(0, Parts.ColorSpaceCMYK) : null;

        /// <summary>Gives ColorSpaceCMYK, which it makes in place of another one if it isn't chosen.</summary>
        public ColorSpaceCMYKType ChooseColorSpaceCMYK() => AsColorSpaceCMYK ?? (ColorSpaceCMYKType)Choose(0, Parts.ColorSpaceCMYK);

        /// <summary>Chooses ColorSpaceCMYK with a copy of a value.</summary>
        public ColorSpaceCMYKType ChooseColorSpaceCMYK(ColorSpaceCMYKType value) => (ColorSpaceCMYKType)Choose(0, Parts.ColorSpaceCMYK, value);

        /// <summary>A process colour of six inks: cyan, magenta, yellow, black, orange and green. Null if another is
        /// chosen.</summary>
        public ColorSpaceTINTORAOctavanticType AsColorSpaceTINTORAOctavantic => Chosen == Alternative.ColorSpaceTINTORAOctavantic ? (ColorSpaceTINTORAOctavanticType)Held(0, Parts.ColorSpaceTINTORAOctavantic) : null;

        /// <summary>Gives ColorSpaceTINTORAOctavantic, which it makes in place of another one if it isn't
        /// chosen.</summary>
        public ColorSpaceTINTORAOctavanticType ChooseColorSpaceTINTORAOctavantic() => AsColorSpaceTINTORAOctavantic ?? (ColorSpaceTINTORAOctavanticType)Choose(0, Parts.ColorSpaceTINTORAOctavantic);

        /// <summary>Chooses ColorSpaceTINTORAOctavantic with a copy of a value.</summary>
        public ColorSpaceTINTORAOctavanticType ChooseColorSpaceTINTORAOctavantic(ColorSpaceTINTORAOctavanticType value) => (ColorSpaceTINTORAOctavanticType)Choose(0, Parts.ColorSpaceTINTORAOctavantic, value);

        /// <summary>A video colour by luma and the two colour differences of PAL. Null if another is
        /// chosen.</summary>
        public ColorSpaceYUVType AsColorSpaceYUV => Chosen == Alternative.ColorSpaceYUV ? (ColorSpaceYUVType)Held(0, Parts.ColorSpaceYUV) : null;

        /// <summary>Gives ColorSpaceYUV, which it makes in place of another one if it isn't chosen.</summary>
        public ColorSpaceYUVType ChooseColorSpaceYUV() => AsColorSpaceYUV ?? (ColorSpaceYUVType)Choose(0, Parts.ColorSpaceYUV);

        /// <summary>Chooses ColorSpaceYUV with a copy of a value.</summary>
        public ColorSpaceYUVType ChooseColorSpaceYUV(ColorSpaceYUVType value) => (ColorSpaceYUVType)Choose(0, Parts.ColorSpaceYUV, value);

        /// <summary>A video colour by luma, in-phase and quadrature signal, as in NTSC. Null if another is
        /// chosen.</summary>
        public ColorSpaceYIQType AsColorSpaceYIQ => Chosen == Alternative.ColorSpaceYIQ ? (ColorSpaceYIQType)Held(0, Parts.ColorSpaceYIQ) : null;

        /// <summary>Gives ColorSpaceYIQ, which it makes in place of another one if it isn't chosen.</summary>
        public ColorSpaceYIQType ChooseColorSpaceYIQ() => AsColorSpaceYIQ ?? (ColorSpaceYIQType)Choose(0, Parts.ColorSpaceYIQ);

        /// <summary>Chooses ColorSpaceYIQ with a copy of a value.</summary>
        public ColorSpaceYIQType ChooseColorSpaceYIQ(ColorSpaceYIQType value) => (ColorSpaceYIQType)Choose(0, Parts.ColorSpaceYIQ, value);

        /// <summary>A video colour by luma and the blue and red differences, all scaled to 0 to 1. Null if another is
        /// chosen.</summary>
        public ColorSpaceYBRType AsColorSpaceYBR => Chosen == Alternative.ColorSpaceYBR ? (ColorSpaceYBRType)Held(0, Parts.ColorSpaceYBR) : null;

        /// <summary>Gives ColorSpaceYBR, which it makes in place of another one if it isn't chosen.</summary>
        public ColorSpaceYBRType ChooseColorSpaceYBR() => AsColorSpaceYBR ?? (ColorSpaceYBRType)Choose(0, Parts.ColorSpaceYBR);

        /// <summary>Chooses ColorSpaceYBR with a copy of a value.</summary>
        public ColorSpaceYBRType ChooseColorSpaceYBR(ColorSpaceYBRType value) => (ColorSpaceYBRType)Choose(0, Parts.ColorSpaceYBR, value);

        /// <summary>A colour by its notation in the Natural Colour System. Null if another is chosen.</summary>
        public ColorSpaceNCSType AsColorSpaceNCS => Chosen == Alternative.ColorSpaceNCS ? (ColorSpaceNCSType)Held(0, Parts.ColorSpaceNCS) : null;

        /// <summary>Gives ColorSpaceNCS, which it makes in place of another one if it isn't chosen.</summary>
        public ColorSpaceNCSType ChooseColorSpaceNCS() => AsColorSpaceNCS ?? (ColorSpaceNCSType)Choose(0, Parts.ColorSpaceNCS);

        /// <summary>Chooses ColorSpaceNCS with a copy of a value.</summary>
        public ColorSpaceNCSType ChooseColorSpaceNCS(ColorSpaceNCSType value) => (ColorSpaceNCSType)Choose(0, Parts.ColorSpaceNCS, value);

        /// <summary>A colour by its notation in a Munsell collection. Null if another is chosen.</summary>
        public ColorSpaceMunsellType AsColorSpaceMunsell => Chosen == Alternative.ColorSpaceMunsell ? (ColorSpaceMunsellType)Held(0, Parts.ColorSpaceMunsell) : null;

        /// <summary>Gives ColorSpaceMunsell, which it makes in place of another one if it isn't chosen.</summary>
        public ColorSpaceMunsellType ChooseColorSpaceMunsell() => AsColorSpaceMunsell ?? (ColorSpaceMunsellType)Choose(0, Parts.ColorSpaceMunsell);

        /// <summary>Chooses ColorSpaceMunsell with a copy of a value.</summary>
        public ColorSpaceMunsellType ChooseColorSpaceMunsell(ColorSpaceMunsellType value) => (ColorSpaceMunsellType)Choose(0, Parts.ColorSpaceMunsell, value);
    }

    /// <summary>One element of the group Substrate: which, and its value.</summary>
    public partial class SubstrateChoice : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public SubstrateChoice() : this(Native.Make()) { }

        internal SubstrateChoice(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new SubstrateChoice Clone() => (SubstrateChoice)Copy();
        internal override VyrObject Copy() => Copied(new SubstrateChoice(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Which alternative an object holds.</summary>
        public enum Alternative
        {
            /// <summary>Paper or board.</summary>
            SubstratePaper = 0,
            /// <summary>A material that has no type of its own.</summary>
            SubstrateGeneric = 1,
            /// <summary>Metal.</summary>
            SubstrateMetal = 2,
            /// <summary>Plastic.</summary>
            SubstratePlastic = 3,
            /// <summary>Wood.</summary>
            SubstrateWood = 4,
            /// <summary>Vinyl.</summary>
            SubstrateVinyl = 5,
            /// <summary>Ceramic or other tile.</summary>
            SubstrateTile = 6,
            /// <summary>Film or foil.</summary>
            SubstrateFilm = 7,
            /// <summary>Textile.</summary>
            SubstrateTextile = 8,
            /// <summary>Nothing was chosen yet.</summary>
            None = 10,
        }

        /// <summary>Which alternative is held.</summary>
        public Alternative Chosen => (Alternative)Kept(Native.getchosen(Pointer));

        /// <summary>Paper or board. Null if another is chosen.</summary>
        public SubstratePaperType AsSubstratePaper => Chosen == Alternative.SubstratePaper ? (SubstratePaperType)Held(0, Parts.SubstratePaper) : null;

        /// <summary>Gives SubstratePaper, which it makes in place of another one if it isn't chosen.</summary>
        public SubstratePaperType ChooseSubstratePaper() => AsSubstratePaper ?? (SubstratePaperType)Choose(0, Parts.SubstratePaper);

        /// <summary>Chooses SubstratePaper with a copy of a value.</summary>
        public SubstratePaperType ChooseSubstratePaper(SubstratePaperType value) => (SubstratePaperType)Choose(0, Parts.SubstratePaper, value);

        /// <summary>A material that has no type of its own. Null if another is chosen.</summary>
        public SubstrateGenericType AsSubstrateGeneric => Chosen == Alternative.SubstrateGeneric ? (SubstrateGenericType)Held(0, Parts.SubstrateGeneric) : null;

        /// <summary>Gives SubstrateGeneric, which it makes in place of another one if it isn't chosen.</summary>
        public SubstrateGenericType ChooseSubstrateGeneric() => AsSubstrateGeneric ?? (SubstrateGenericType)Choose(0, Parts.SubstrateGeneric);

        /// <summary>Chooses SubstrateGeneric with a copy of a value.</summary>
        public SubstrateGenericType ChooseSubstrateGeneric(SubstrateGenericType value) => (SubstrateGenericType)Choose(0, Parts.SubstrateGeneric, value);

        /// <summary>Metal. Null if another is chosen.</summary>
        public SubstrateMetalType AsSubstrateMetal => Chosen == Alternative.SubstrateMetal ? (SubstrateMetalType)Held(0, Parts.SubstrateMetal) : null;

        /// <summary>Gives SubstrateMetal, which it makes in place of another one if it isn't chosen.</summary>
        public SubstrateMetalType ChooseSubstrateMetal() => AsSubstrateMetal ?? (SubstrateMetalType)Choose(0, Parts.SubstrateMetal);

        /// <summary>Chooses SubstrateMetal with a copy of a value.</summary>
        public SubstrateMetalType ChooseSubstrateMetal(SubstrateMetalType value) => (SubstrateMetalType)Choose(0, Parts.SubstrateMetal, value);

        /// <summary>Plastic. Null if another is chosen.</summary>
        public SubstratePlasticType AsSubstratePlastic => Chosen == Alternative.SubstratePlastic ? (SubstratePlasticType)Held(0, Parts.SubstratePlastic) : null;

        /// <summary>Gives SubstratePlastic, which it makes in place of another one if it isn't chosen.</summary>
        public SubstratePlasticType ChooseSubstratePlastic() => AsSubstratePlastic ?? (SubstratePlasticType)Choose(0, Parts.SubstratePlastic);

        /// <summary>Chooses SubstratePlastic with a copy of a value.</summary>
        public SubstratePlasticType ChooseSubstratePlastic(SubstratePlasticType value) => (SubstratePlasticType)Choose(0, Parts.SubstratePlastic, value);

        /// <summary>Wood. Null if another is chosen.</summary>
        public SubstrateWoodType AsSubstrateWood => Chosen == Alternative.SubstrateWood ? (SubstrateWoodType)Held(0, Parts.SubstrateWood) : null;

        /// <summary>Gives SubstrateWood, which it makes in place of another one if it isn't chosen.</summary>
        public SubstrateWoodType ChooseSubstrateWood() => AsSubstrateWood ?? (SubstrateWoodType)Choose(0, Parts.SubstrateWood);

        /// <summary>Chooses SubstrateWood with a copy of a value.</summary>
        public SubstrateWoodType ChooseSubstrateWood(SubstrateWoodType value) => (SubstrateWoodType)Choose(0, Parts.SubstrateWood, value);

        /// <summary>Vinyl. Null if another is chosen.</summary>
        public SubstrateVinylType AsSubstrateVinyl => Chosen == Alternative.SubstrateVinyl ? (SubstrateVinylType)Held(0, Parts.SubstrateVinyl) : null;

        /// <summary>Gives SubstrateVinyl, which it makes in place of another one if it isn't chosen.</summary>
        public SubstrateVinylType ChooseSubstrateVinyl() => AsSubstrateVinyl ?? (SubstrateVinylType)Choose(0, Parts.SubstrateVinyl);

        /// <summary>Chooses SubstrateVinyl with a copy of a value.</summary>
        public SubstrateVinylType ChooseSubstrateVinyl(SubstrateVinylType value) => (SubstrateVinylType)Choose(0, Parts.SubstrateVinyl, value);

        /// <summary>Ceramic or other tile. Null if another is chosen.</summary>
        public SubstrateTileType AsSubstrateTile => Chosen == Alternative.SubstrateTile ? (SubstrateTileType)Held(0, Parts.SubstrateTile) : null;

        /// <summary>Gives SubstrateTile, which it makes in place of another one if it isn't chosen.</summary>
        public SubstrateTileType ChooseSubstrateTile() => AsSubstrateTile ?? (SubstrateTileType)Choose(0, Parts.SubstrateTile);

        /// <summary>Chooses SubstrateTile with a copy of a value.</summary>
        public SubstrateTileType ChooseSubstrateTile(SubstrateTileType value) => (SubstrateTileType)Choose(0, Parts.SubstrateTile, value);

        /// <summary>Film or foil. Null if another is chosen.</summary>
        public SubstrateFilmType AsSubstrateFilm => Chosen == Alternative.SubstrateFilm ? (SubstrateFilmType)Held(0, Parts.SubstrateFilm) : null;

        /// <summary>Gives SubstrateFilm, which it makes in place of another one if it isn't chosen.</summary>
        public SubstrateFilmType ChooseSubstrateFilm() => AsSubstrateFilm ?? (SubstrateFilmType)Choose(0, Parts.SubstrateFilm);

        /// <summary>Chooses SubstrateFilm with a copy of a value.</summary>
        public SubstrateFilmType ChooseSubstrateFilm(SubstrateFilmType value) => (SubstrateFilmType)Choose(0, Parts.SubstrateFilm, value);

        /// <summary>Textile. Null if another is chosen.</summary>
        public SubstrateTextileType AsSubstrateTextile => Chosen == Alternative.SubstrateTextile ? (SubstrateTextileType)Held(0, Parts.SubstrateTextile) : null;

        /// <summary>Gives SubstrateTextile, which it makes in place of another one if it isn't chosen.</summary>
        public SubstrateTextileType ChooseSubstrateTextile() => AsSubstrateTextile ?? (SubstrateTextileType)Choose(0, Parts.SubstrateTextile);

        /// <summary>Chooses SubstrateTextile with a copy of a value.</summary>
        public SubstrateTextileType ChooseSubstrateTextile(SubstrateTextileType value) => (SubstrateTextileType)Choose(0, Parts.SubstrateTextile, value);
    }

    /// <summary>One element of the group Sample: which, and its value.</summary>
    public partial class SampleChoice : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public SampleChoice() : this(Native.Make()) { }

        internal SampleChoice(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new SampleChoice Clone() => (SampleChoice)Copy();
        internal override VyrObject Copy() => Copied(new SampleChoice(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Which alternative an object holds.</summary>
        public enum Alternative
        {
            /// <summary>A single patch of one colour.</summary>
            SampleSpot = 0,
            /// <summary>A test chart of many patches.</summary>
            SampleTarget = 1,
            /// <summary>Nothing was chosen yet.</summary>
            None = 3,
        }

        /// <summary>Which alternative is held.</summary>
        public Alternative Chosen => (Alternative)Kept(Native.getchosen(Pointer));

        /// <summary>A single patch of one colour. Null if another is chosen.</summary>
        public SampleSpotType AsSampleSpot => Chosen == Alternative.SampleSpot ? (SampleSpotType)Held(0, Parts.SampleSpot) : null;

        /// <summary>Gives SampleSpot, which it makes in place of another one if it isn't chosen.</summary>
        public SampleSpotType ChooseSampleSpot() => AsSampleSpot ?? (SampleSpotType)Choose(0, Parts.SampleSpot);

        /// <summary>Chooses SampleSpot with a copy of a value.</summary>
        public SampleSpotType ChooseSampleSpot(SampleSpotType value) => (SampleSpotType)Choose(0, Parts.SampleSpot, value);

        /// <summary>A test chart of many patches. Null if another is chosen.</summary>
        public SampleTargetType AsSampleTarget => Chosen == Alternative.SampleTarget ? (SampleTargetType)Held(0, Parts.SampleTarget) : null;

        /// <summary>Gives SampleTarget, which it makes in place of another one if it isn't chosen.</summary>
        public SampleTargetType ChooseSampleTarget() => AsSampleTarget ?? (SampleTargetType)Choose(0, Parts.SampleTarget);

        /// <summary>Chooses SampleTarget with a copy of a value.</summary>
        public SampleTargetType ChooseSampleTarget(SampleTargetType value) => (SampleTargetType)Choose(0, Parts.SampleTarget, value);
    }

    /// <summary>One element of the group Function: which, and its value.</summary>
    public partial class FunctionChoice : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public FunctionChoice() : this(Native.Make()) { }

        internal FunctionChoice(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FunctionChoice Clone() => (FunctionChoice)Copy();
        internal override VyrObject Copy() => Copied(new FunctionChoice(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Which alternative an object holds.</summary>
        public enum Alternative
        {
            /// <summary>Any function, told by xsi:type; head of the functions, any of which can stand in its
            /// place.</summary>
            Function = 0,
            /// <summary>A function that the format doesn't know, by name and parameters.</summary>
            FunctionGeneric = 1,
            /// <summary>CIE 1976 colour difference, the distance in L*a*b*.</summary>
            FunctionDE = 2,
            /// <summary>Mean of CIE 1976 colour differences.</summary>
            FunctionMeanDE = 3,
            /// <summary>CIE 1994 colour difference.</summary>
            FunctionDE94 = 4,
            /// <summary>CIEDE2000 colour difference.</summary>
            FunctionDE2000 = 5,
            /// <summary>CMC l:c colour difference.</summary>
            FunctionDECMC = 6,
            /// <summary>Standard deviation of the tristimulus value X.</summary>
            FunctionStdDevX = 7,
            /// <summary>Standard deviation of the tristimulus value Y.</summary>
            FunctionStdDevY = 8,
            /// <summary>Standard deviation of the tristimulus value Z.</summary>
            FunctionStdDevZ = 9,
            /// <summary>Standard deviation of the lightness L*.</summary>
            FunctionStdDevL = 10,
            /// <summary>Standard deviation of a*.</summary>
            FunctionStdDevA = 11,
            /// <summary>Standard deviation of b*.</summary>
            FunctionStdDevB = 12,
            /// <summary>Standard deviation of the chroma C*.</summary>
            FunctionStdDevC = 13,
            /// <summary>Standard deviation of the hue.</summary>
            FunctionStdDevH = 14,
            /// <summary>Average standard deviation of the lightness L*.</summary>
            FunctionAverageStdDevL = 15,
            /// <summary>Average standard deviation of a*.</summary>
            FunctionAverageStdDevA = 16,
            /// <summary>Average standard deviation of b*.</summary>
            FunctionAverageStdDevB = 17,
            /// <summary>Nothing was chosen yet.</summary>
            None = 19,
        }

        /// <summary>Which alternative is held.</summary>
        public Alternative Chosen => (Alternative)Kept(Native.getchosen(Pointer));

        /// <summary>Any function, told by xsi:type; head of the functions, any of which can stand in its place. Null
        /// if another is chosen.</summary>
        public FunctionType AsFunction => Chosen == Alternative.Function ? (FunctionType)Held(0, Parts.Function) : null;

        /// <summary>Chooses Function with a copy of a value.</summary>
        public FunctionType ChooseFunction(FunctionType value) => (FunctionType)Choose(0, Parts.Function, value);

        /// <summary>A function that the format doesn't know, by name and parameters. Null if another is
        /// chosen.</summary>
        public FunctionGenericType AsFunctionGeneric => Chosen == Alternative.FunctionGeneric ? (FunctionGenericType)Held(0, Parts.FunctionGeneric) : null;

        /// <summary>Gives FunctionGeneric, which it makes in place of another one if it isn't chosen.</summary>
        public FunctionGenericType ChooseFunctionGeneric() => AsFunctionGeneric ?? (FunctionGenericType)Choose(0, Parts.FunctionGeneric);

        /// <summary>Chooses FunctionGeneric with a copy of a value.</summary>
        public FunctionGenericType ChooseFunctionGeneric(FunctionGenericType value) => (FunctionGenericType)Choose(0, Parts.FunctionGeneric, value);

        /// <summary>CIE 1976 colour difference, the distance in L*a*b*. Null if another is chosen.</summary>
        public FunctionDEType AsFunctionDE => Chosen == Alternative.FunctionDE ? (FunctionDEType)Held(0, Parts.FunctionDE) : null;

        /// <summary>Gives FunctionDE, which it makes in place of another one if it isn't chosen.</summary>
        public FunctionDEType ChooseFunctionDE() => AsFunctionDE ?? (FunctionDEType)Choose(0, Parts.FunctionDE);

        /// <summary>Chooses FunctionDE with a copy of a value.</summary>
        public FunctionDEType ChooseFunctionDE(FunctionDEType value) => (FunctionDEType)Choose(0, Parts.FunctionDE, value);

        /// <summary>Mean of CIE 1976 colour differences. Null if another is chosen.</summary>
        public FunctionMeanDEType AsFunctionMeanDE => Chosen == Alternative.FunctionMeanDE ? (FunctionMeanDEType)Held(0, Parts.FunctionMeanDE) : null;

        /// <summary>Gives FunctionMeanDE, which it makes in place of another one if it isn't chosen.</summary>
        public FunctionMeanDEType ChooseFunctionMeanDE() => AsFunctionMeanDE ?? (FunctionMeanDEType)Choose(0, Parts.FunctionMeanDE);

        /// <summary>Chooses FunctionMeanDE with a copy of a value.</summary>
        public FunctionMeanDEType ChooseFunctionMeanDE(FunctionMeanDEType value) => (FunctionMeanDEType)Choose(0, Parts.FunctionMeanDE, value);

        /// <summary>CIE 1994 colour difference. Null if another is chosen.</summary>
        public FunctionDE94Type AsFunctionDE94 => Chosen == Alternative.FunctionDE94 ? (FunctionDE94Type)Held(0, Parts.FunctionDE94) : null;

        /// <summary>Gives FunctionDE94, which it makes in place of another one if it isn't chosen.</summary>
        public FunctionDE94Type ChooseFunctionDE94() => AsFunctionDE94 ?? (FunctionDE94Type)Choose(0, Parts.FunctionDE94);

        /// <summary>Chooses FunctionDE94 with a copy of a value.</summary>
        public FunctionDE94Type ChooseFunctionDE94(FunctionDE94Type value) => (FunctionDE94Type)Choose(0, Parts.FunctionDE94, value);

        /// <summary>CIEDE2000 colour difference. Null if another is chosen.</summary>
        public FunctionDE2000Type AsFunctionDE2000 => Chosen == Alternative.FunctionDE2000 ? (FunctionDE2000Type)Held(0, Parts.FunctionDE2000) : null;

        /// <summary>Gives FunctionDE2000, which it makes in place of another one if it isn't chosen.</summary>
        public FunctionDE2000Type ChooseFunctionDE2000() => AsFunctionDE2000 ?? (FunctionDE2000Type)Choose(0, Parts.FunctionDE2000);

        /// <summary>Chooses FunctionDE2000 with a copy of a value.</summary>
        public FunctionDE2000Type ChooseFunctionDE2000(FunctionDE2000Type value) => (FunctionDE2000Type)Choose(0, Parts.FunctionDE2000, value);

        /// <summary>CMC l:c colour difference. Null if another is chosen.</summary>
        public FunctionDEcmcType AsFunctionDECMC => Chosen == Alternative.FunctionDECMC ? (FunctionDEcmcType)Held(0, Parts.FunctionDECMC) : null;

        /// <summary>Gives FunctionDECMC, which it makes in place of another one if it isn't chosen.</summary>
        public FunctionDEcmcType ChooseFunctionDECMC() => AsFunctionDECMC ?? (FunctionDEcmcType)Choose(0, Parts.FunctionDECMC);

        /// <summary>Chooses FunctionDECMC with a copy of a value.</summary>
        public FunctionDEcmcType ChooseFunctionDECMC(FunctionDEcmcType value) => (FunctionDEcmcType)Choose(0, Parts.FunctionDECMC, value);

        /// <summary>Standard deviation of the tristimulus value X. Null if another is chosen.</summary>
        public FunctionStdDevXType AsFunctionStdDevX => Chosen == Alternative.FunctionStdDevX ? (FunctionStdDevXType)Held(0, Parts.FunctionStdDevX) : null;

        /// <summary>Gives FunctionStdDevX, which it makes in place of another one if it isn't chosen.</summary>
        public FunctionStdDevXType ChooseFunctionStdDevX() => AsFunctionStdDevX ?? (FunctionStdDevXType)Choose(0, Parts.FunctionStdDevX);

        /// <summary>Chooses FunctionStdDevX with a copy of a value.</summary>
        public FunctionStdDevXType ChooseFunctionStdDevX(FunctionStdDevXType value) => (FunctionStdDevXType)Choose(0, Parts.FunctionStdDevX, value);

        /// <summary>Standard deviation of the tristimulus value Y. Null if another is chosen.</summary>
        public FunctionStdDevYType AsFunctionStdDevY => Chosen == Alternative.FunctionStdDevY ? (FunctionStdDevYType)Held(0, Parts.FunctionStdDevY) : null;

        /// <summary>Gives FunctionStdDevY, which it makes in place of another one if it isn't chosen.</summary>
        public FunctionStdDevYType ChooseFunctionStdDevY() => AsFunctionStdDevY ?? (FunctionStdDevYType)Choose(0, Parts.FunctionStdDevY);

        /// <summary>Chooses FunctionStdDevY with a copy of a value.</summary>
        public FunctionStdDevYType ChooseFunctionStdDevY(FunctionStdDevYType value) => (FunctionStdDevYType)Choose(0, Parts.FunctionStdDevY, value);

        /// <summary>Standard deviation of the tristimulus value Z. Null if another is chosen.</summary>
        public FunctionStdDevZType AsFunctionStdDevZ => Chosen == Alternative.FunctionStdDevZ ? (FunctionStdDevZType)Held(0, Parts.FunctionStdDevZ) : null;

        /// <summary>Gives FunctionStdDevZ, which it makes in place of another one if it isn't chosen.</summary>
        public FunctionStdDevZType ChooseFunctionStdDevZ() => AsFunctionStdDevZ ?? (FunctionStdDevZType)Choose(0, Parts.FunctionStdDevZ);

        /// <summary>Chooses FunctionStdDevZ with a copy of a value.</summary>
        public FunctionStdDevZType ChooseFunctionStdDevZ(FunctionStdDevZType value) => (FunctionStdDevZType)Choose(0, Parts.FunctionStdDevZ, value);

        /// <summary>Standard deviation of the lightness L*. Null if another is chosen.</summary>
        public FunctionStdDevLType AsFunctionStdDevL => Chosen == Alternative.FunctionStdDevL ? (FunctionStdDevLType)Held(0, Parts.FunctionStdDevL) : null;

        /// <summary>Gives FunctionStdDevL, which it makes in place of another one if it isn't chosen.</summary>
        public FunctionStdDevLType ChooseFunctionStdDevL() => AsFunctionStdDevL ?? (FunctionStdDevLType)Choose(0, Parts.FunctionStdDevL);

        /// <summary>Chooses FunctionStdDevL with a copy of a value.</summary>
        public FunctionStdDevLType ChooseFunctionStdDevL(FunctionStdDevLType value) => (FunctionStdDevLType)Choose(0, Parts.FunctionStdDevL, value);

        /// <summary>Standard deviation of a*. Null if another is chosen.</summary>
        public FunctionStdDevAType AsFunctionStdDevA => Chosen == Alternative.FunctionStdDevA ? (FunctionStdDevAType)Held(0, Parts.FunctionStdDevA) : null;

        /// <summary>Gives FunctionStdDevA, which it makes in place of another one if it isn't chosen.</summary>
        public FunctionStdDevAType ChooseFunctionStdDevA() => AsFunctionStdDevA ?? (FunctionStdDevAType)Choose(0, Parts.FunctionStdDevA);

        /// <summary>Chooses FunctionStdDevA with a copy of a value.</summary>
        public FunctionStdDevAType ChooseFunctionStdDevA(FunctionStdDevAType value) => (FunctionStdDevAType)Choose(0, Parts.FunctionStdDevA, value);

        /// <summary>Standard deviation of b*. Null if another is chosen.</summary>
        public FunctionStdDevBType AsFunctionStdDevB => Chosen == Alternative.FunctionStdDevB ? (FunctionStdDevBType)Held(0, Parts.FunctionStdDevB) : null;

        /// <summary>Gives FunctionStdDevB, which it makes in place of another one if it isn't chosen.</summary>
        public FunctionStdDevBType ChooseFunctionStdDevB() => AsFunctionStdDevB ?? (FunctionStdDevBType)Choose(0, Parts.FunctionStdDevB);

        /// <summary>Chooses FunctionStdDevB with a copy of a value.</summary>
        public FunctionStdDevBType ChooseFunctionStdDevB(FunctionStdDevBType value) => (FunctionStdDevBType)Choose(0, Parts.FunctionStdDevB, value);

        /// <summary>Standard deviation of the chroma C*. Null if another is chosen.</summary>
        public FunctionStdDevCType AsFunctionStdDevC => Chosen == Alternative.FunctionStdDevC ? (FunctionStdDevCType)Held(0, Parts.FunctionStdDevC) : null;

        /// <summary>Gives FunctionStdDevC, which it makes in place of another one if it isn't chosen.</summary>
        public FunctionStdDevCType ChooseFunctionStdDevC() => AsFunctionStdDevC ?? (FunctionStdDevCType)Choose(0, Parts.FunctionStdDevC);

        /// <summary>Chooses FunctionStdDevC with a copy of a value.</summary>
        public FunctionStdDevCType ChooseFunctionStdDevC(FunctionStdDevCType value) => (FunctionStdDevCType)Choose(0, Parts.FunctionStdDevC, value);

        /// <summary>Standard deviation of the hue. Null if another is chosen.</summary>
        public FunctionStdDevHType AsFunctionStdDevH => Chosen == Alternative.FunctionStdDevH ? (FunctionStdDevHType)Held(0, Parts.FunctionStdDevH) : null;

        /// <summary>Gives FunctionStdDevH, which it makes in place of another one if it isn't chosen.</summary>
        public FunctionStdDevHType ChooseFunctionStdDevH() => AsFunctionStdDevH ?? (FunctionStdDevHType)Choose(0, Parts.FunctionStdDevH);

        /// <summary>Chooses FunctionStdDevH with a copy of a value.</summary>
        public FunctionStdDevHType ChooseFunctionStdDevH(FunctionStdDevHType value) => (FunctionStdDevHType)Choose(0, Parts.FunctionStdDevH, value);

        /// <summary>Average standard deviation of the lightness L*. Null if another is chosen.</summary>
        public FunctionAverageStdDevLType AsFunctionAverageStdDevL => Chosen == Alternative.FunctionAverageStdDevL ? (FunctionAverageStdDevLType)Held(0, Parts.FunctionAverageStdDevL) : null;

        /// <summary>Gives FunctionAverageStdDevL, which it makes in place of another one if it isn't
        /// chosen.</summary>
        public FunctionAverageStdDevLType ChooseFunctionAverageStdDevL() => AsFunctionAverageStdDevL ?? (FunctionAverageStdDevLType)Choose(0, Parts.FunctionAverageStdDevL);

        /// <summary>Chooses FunctionAverageStdDevL with a copy of a value.</summary>
        public FunctionAverageStdDevLType ChooseFunctionAverageStdDevL(FunctionAverageStdDevLType value) => (FunctionAverageStdDevLType)Choose(0, Parts.FunctionAverageStdDevL, value);

        /// <summary>Average standard deviation of a*. Null if another is chosen.</summary>
        public FunctionAverageStdDevAType AsFunctionAverageStdDevA => Chosen == Alternative.FunctionAverageStdDevA ? (FunctionAverageStdDevAType)Held(0, Parts.FunctionAverageStdDevA) : null;

        /// <summary>Gives FunctionAverageStdDevA, which it makes in place of another one if it isn't
        /// chosen.</summary>
        public FunctionAverageStdDevAType ChooseFunctionAverageStdDevA() => AsFunctionAverageStdDevA ?? (FunctionAverageStdDevAType)Choose(0, Parts.FunctionAverageStdDevA);

        /// <summary>Chooses FunctionAverageStdDevA with a copy of a value.</summary>
        public FunctionAverageStdDevAType ChooseFunctionAverageStdDevA(FunctionAverageStdDevAType value) => (FunctionAverageStdDevAType)Choose(0, Parts.FunctionAverageStdDevA, value);

        /// <summary>Average standard deviation of b*. Null if another is chosen.</summary>
        public FunctionAverageStdDevBType AsFunctionAverageStdDevB => Chosen == Alternative.FunctionAverageStdDevB ? (FunctionAverageStdDevBType)Held(0, Parts.FunctionAverageStdDevB) : null;

        /// <summary>Gives FunctionAverageStdDevB, which it makes in place of another one if it isn't
        /// chosen.</summary>
        public FunctionAverageStdDevBType ChooseFunctionAverageStdDevB() => AsFunctionAverageStdDevB ?? (FunctionAverageStdDevBType)Choose(0, Parts.FunctionAverageStdDevB);

        /// <summary>Chooses FunctionAverageStdDevB with a copy of a value.</summary>
        public FunctionAverageStdDevBType ChooseFunctionAverageStdDevB(FunctionAverageStdDevBType value) => (FunctionAverageStdDevBType)Choose(0, Parts.FunctionAverageStdDevB, value);
    }
}
