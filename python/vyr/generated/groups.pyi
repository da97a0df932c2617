# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
"""Classes of the topic groups."""

import builtins
from collections.abc import Iterable
from datetime import datetime
from typing import Any, Literal

from .._objects import Choice, ChoiceList
from .._vyr import Property
from .color_values import (
    ColorSpaceCIELChType,
    ColorSpaceCIELabType,
    ColorSpaceCIELuvType,
    ColorSpaceCIEXYZType,
    ColorSpaceCIExyYType,
    ColorSpaceEmissiveCIEXYZType,
    ColorSpaceEmissiveCIExyYType,
)
from .device_color_values import (
    ColorSpaceAdobeRGBType,
    ColorSpaceAdobeWideGamutRGBType,
    ColorSpaceCMYKPlusNType,
    ColorSpaceCMYKType,
    ColorSpaceHSLType,
    ColorSpaceHSVType,
    ColorSpaceRGBType,
    ColorSpaceSRGBType,
    ColorSpaceTINTORAOctavanticType,
    ColorSpaceYBRType,
    ColorSpaceYIQType,
    ColorSpaceYUVType,
)
from .sampled_color_values import (
    ColorSpaceDensityType,
    ColorSpaceEmissiveGenericType,
    ColorSpaceEmissiveSpectralType,
    ColorSpaceGenericType,
    ColorSpaceSpectralType,
)
from .recipes import ColorSpaceMunsellType, ColorSpaceNCSType, ColorSpaceRecipeType, ColorSpaceTINTORAType
from .substrates import (
    SubstrateFilmType,
    SubstrateGenericType,
    SubstrateMetalType,
    SubstratePaperType,
    SubstratePlasticType,
    SubstrateTextileType,
    SubstrateTileType,
    SubstrateVinylType,
    SubstrateWoodType,
)
from .samples import SampleSpotType, SampleTargetType
from .functions import (
    FunctionDE2000Type,
    FunctionDE94Type,
    FunctionDEType,
    FunctionDEcmcType,
    FunctionGenericType,
    FunctionMeanDEType,
    FunctionType,
)
from .statistics import (
    FunctionAverageStdDevAType,
    FunctionAverageStdDevBType,
    FunctionAverageStdDevLType,
    FunctionStdDevAType,
    FunctionStdDevBType,
    FunctionStdDevCType,
    FunctionStdDevHType,
    FunctionStdDevLType,
    FunctionStdDevXType,
    FunctionStdDevYType,
    FunctionStdDevZType,
)

__all__ = (
    "ColorSpaceChoice",
    "ColorSpaceChoiceList",
    "SubstrateChoice",
    "SampleChoice",
    "FunctionChoice",
    "FunctionChoiceList",
)


class ColorSpaceChoice(Choice):
    """One element of the group ColorSpace: which, and its value."""
    def __init__(
        self,
        *,
        recipe: ColorSpaceRecipeType = ...,
        tintora: ColorSpaceTINTORAType = ...,
        generic: ColorSpaceGenericType = ...,
        emissive_generic: ColorSpaceEmissiveGenericType = ...,
        density: ColorSpaceDensityType = ...,
        rgb: ColorSpaceRGBType = ...,
        srgb: ColorSpaceSRGBType = ...,
        adobe_rgb: ColorSpaceAdobeRGBType = ...,
        cmyk_plus_n: ColorSpaceCMYKPlusNType = ...,
        adobe_wide_gamut_rgb: ColorSpaceAdobeWideGamutRGBType = ...,
        spectral: ColorSpaceSpectralType = ...,
        emissive_spectral: ColorSpaceEmissiveSpectralType = ...,
        lab: ColorSpaceCIELabType = ...,
        lch: ColorSpaceCIELChType = ...,
        xyz: ColorSpaceCIEXYZType = ...,
        emissive_xyz: ColorSpaceEmissiveCIEXYZType = ...,
        xyy: ColorSpaceCIExyYType = ...,
        emissive_xyy: ColorSpaceEmissiveCIExyYType = ...,
        luv: ColorSpaceCIELuvType = ...,
        hsl: ColorSpaceHSLType = ...,
        hsv: ColorSpaceHSVType = ...,
        cmyk: ColorSpaceCMYKType = ...,
        tintora_octavantic: ColorSpaceTINTORAOctavanticType = ...,
        yuv: ColorSpaceYUVType = ...,
        yiq: ColorSpaceYIQType = ...,
        ybr: ColorSpaceYBRType = ...,
        ncs: ColorSpaceNCSType = ...,
        munsell: ColorSpaceMunsellType = ...,
    ) -> None: ...
    recipe: Property[ColorSpaceRecipeType | None, ColorSpaceRecipeType]
    """A colour by the colorants that give it."""
    def choose_recipe(self, **values: Any) -> ColorSpaceRecipeType:
        """Gives `recipe`, which it makes if it isn't chosen, and sets properties of it."""
    tintora: Property[ColorSpaceTINTORAType | None, ColorSpaceTINTORAType]
    """A colour of the TINTORA collection, by family, name and page."""
    def choose_tintora(self, **values: Any) -> ColorSpaceTINTORAType:
        """Gives `tintora`, which it makes if it isn't chosen, and sets properties of it."""
    generic: Property[ColorSpaceGenericType | None, ColorSpaceGenericType]
    """A reflective colour in a space that the format doesn't know, axis by axis."""
    def choose_generic(self, **values: Any) -> ColorSpaceGenericType:
        """Gives `generic`, which it makes if it isn't chosen, and sets properties of it."""
    emissive_generic: Property[ColorSpaceEmissiveGenericType | None, ColorSpaceEmissiveGenericType]
    """An emissive colour in a space that the format doesn't know, axis by axis."""
    def choose_emissive_generic(self, **values: Any) -> ColorSpaceEmissiveGenericType:
        """Gives `emissive_generic`, which it makes if it isn't chosen, and sets properties of it."""
    density: Property[ColorSpaceDensityType | None, ColorSpaceDensityType]
    """A colour by its optical densities through one or more filters."""
    def choose_density(self, **values: Any) -> ColorSpaceDensityType:
        """Gives `density`, which it makes if it isn't chosen, and sets properties of it."""
    rgb: Property[ColorSpaceRGBType | None, ColorSpaceRGBType]
    """A colour in a device's own RGB, as fractions of full drive."""
    def choose_rgb(self, **values: Any) -> ColorSpaceRGBType:
        """Gives `rgb`, which it makes if it isn't chosen, and sets properties of it."""
    srgb: Property[ColorSpaceSRGBType | None, ColorSpaceSRGBType]
    """A colour in sRGB (IEC 61966-2-1), as fractions of full drive."""
    def choose_srgb(self, **values: Any) -> ColorSpaceSRGBType:
        """Gives `srgb`, which it makes if it isn't chosen, and sets properties of it."""
    adobe_rgb: Property[ColorSpaceAdobeRGBType | None, ColorSpaceAdobeRGBType]
    """A colour in Adobe RGB (1998), as fractions of full drive."""
    def choose_adobe_rgb(self, **values: Any) -> ColorSpaceAdobeRGBType:
        """Gives `adobe_rgb`, which it makes if it isn't chosen, and sets properties of it."""
    cmyk_plus_n: Property[ColorSpaceCMYKPlusNType | None, ColorSpaceCMYKPlusNType]
    """A process colour with further named ink channels."""
    def choose_cmyk_plus_n(self, **values: Any) -> ColorSpaceCMYKPlusNType:
        """Gives `cmyk_plus_n`, which it makes if it isn't chosen, and sets properties of it."""
    adobe_wide_gamut_rgb: Property[ColorSpaceAdobeWideGamutRGBType | None, ColorSpaceAdobeWideGamutRGBType]
    """A colour in Adobe Wide Gamut RGB, as fractions of full drive."""
    def choose_adobe_wide_gamut_rgb(self, **values: Any) -> ColorSpaceAdobeWideGamutRGBType:
        """Gives `adobe_wide_gamut_rgb`, which it makes if it isn't chosen, and sets properties of it."""
    spectral: Property[ColorSpaceSpectralType | None, ColorSpaceSpectralType]
    """A reflective or transmissive colour as a sampled spectrum."""
    def choose_spectral(self, **values: Any) -> ColorSpaceSpectralType:
        """Gives `spectral`, which it makes if it isn't chosen, and sets properties of it."""
    emissive_spectral: Property[ColorSpaceEmissiveSpectralType | None, ColorSpaceEmissiveSpectralType]
    """An emissive colour as a sampled spectrum."""
    def choose_emissive_spectral(self, **values: Any) -> ColorSpaceEmissiveSpectralType:
        """Gives `emissive_spectral`, which it makes if it isn't chosen, and sets properties of it."""
    lab: Property[ColorSpaceCIELabType | None, ColorSpaceCIELabType]
    """A reflective colour in CIE 1976 L*a*b*."""
    def choose_lab(self, **values: Any) -> ColorSpaceCIELabType:
        """Gives `lab`, which it makes if it isn't chosen, and sets properties of it."""
    lch: Property[ColorSpaceCIELChType | None, ColorSpaceCIELChType]
    """A reflective colour in CIE L*C*h, the polar form of CIE 1976 L*a*b*."""
    def choose_lch(self, **values: Any) -> ColorSpaceCIELChType:
        """Gives `lch`, which it makes if it isn't chosen, and sets properties of it."""
    xyz: Property[ColorSpaceCIEXYZType | None, ColorSpaceCIEXYZType]
    """A reflective colour in CIE XYZ, scaled so that Y of the perfect diffuser is 1."""
    def choose_xyz(self, **values: Any) -> ColorSpaceCIEXYZType:
        """Gives `xyz`, which it makes if it isn't chosen, and sets properties of it."""
    emissive_xyz: Property[ColorSpaceEmissiveCIEXYZType | None, ColorSpaceEmissiveCIEXYZType]
    """An emissive colour in CIE XYZ; absolute, hence without an upper bound."""
    def choose_emissive_xyz(self, **values: Any) -> ColorSpaceEmissiveCIEXYZType:
        """Gives `emissive_xyz`, which it makes if it isn't chosen, and sets properties of it."""
    xyy: Property[ColorSpaceCIExyYType | None, ColorSpaceCIExyYType]
    """A reflective colour by its CIE chromaticity and luminance factor."""
    def choose_xyy(self, **values: Any) -> ColorSpaceCIExyYType:
        """Gives `xyy`, which it makes if it isn't chosen, and sets properties of it."""
    emissive_xyy: Property[ColorSpaceEmissiveCIExyYType | None, ColorSpaceEmissiveCIExyYType]
    """An emissive colour by its CIE chromaticity and luminance."""
    def choose_emissive_xyy(self, **values: Any) -> ColorSpaceEmissiveCIExyYType:
        """Gives `emissive_xyy`, which it makes if it isn't chosen, and sets properties of it."""
    luv: Property[ColorSpaceCIELuvType | None, ColorSpaceCIELuvType]
    """A reflective colour in CIE 1976 L*u*v*."""
    def choose_luv(self, **values: Any) -> ColorSpaceCIELuvType:
        """Gives `luv`, which it makes if it isn't chosen, and sets properties of it."""
    hsl: Property[ColorSpaceHSLType | None, ColorSpaceHSLType]
    """A colour by hue, saturation and lightness."""
    def choose_hsl(self, **values: Any) -> ColorSpaceHSLType:
        """Gives `hsl`, which it makes if it isn't chosen, and sets properties of it."""
    hsv: Property[ColorSpaceHSVType | None, ColorSpaceHSVType]
    """A colour by hue, saturation and value."""
    def choose_hsv(self, **values: Any) -> ColorSpaceHSVType:
        """Gives `hsv`, which it makes if it isn't chosen, and sets properties of it."""
    cmyk: Property[ColorSpaceCMYKType | None, ColorSpaceCMYKType]
    """A process colour as percentages of cyan, magenta, yellow and black, with spot inks if need be."""
    def choose_cmyk(self, **values: Any) -> ColorSpaceCMYKType:
        """Gives `cmyk`, which it makes if it isn't chosen, and sets properties of it."""
    tintora_octavantic: Property[ColorSpaceTINTORAOctavanticType | None, ColorSpaceTINTORAOctavanticType]
    """A process colour of six inks: cyan, magenta, yellow, black, orange and green."""
    def choose_tintora_octavantic(self, **values: Any) -> ColorSpaceTINTORAOctavanticType:
        """Gives `tintora_octavantic`, which it makes if it isn't chosen, and sets properties of it."""
    yuv: Property[ColorSpaceYUVType | None, ColorSpaceYUVType]
    """A video colour by luma and the two colour differences of PAL."""
    def choose_yuv(self, **values: Any) -> ColorSpaceYUVType:
        """Gives `yuv`, which it makes if it isn't chosen, and sets properties of it."""
    yiq: Property[ColorSpaceYIQType | None, ColorSpaceYIQType]
    """A video colour by luma, in-phase and quadrature signal, as in NTSC."""
    def choose_yiq(self, **values: Any) -> ColorSpaceYIQType:
        """Gives `yiq`, which it makes if it isn't chosen, and sets properties of it."""
    ybr: Property[ColorSpaceYBRType | None, ColorSpaceYBRType]
    """A video colour by luma and the blue and red differences, all scaled to 0 to 1."""
    def choose_ybr(self, **values: Any) -> ColorSpaceYBRType:
        """Gives `ybr`, which it makes if it isn't chosen, and sets properties of it."""
    ncs: Property[ColorSpaceNCSType | None, ColorSpaceNCSType]
    """A colour by its notation in the Natural Colour System."""
    def choose_ncs(self, **values: Any) -> ColorSpaceNCSType:
        """Gives `ncs`, which it makes if it isn't chosen, and sets properties of it."""
    munsell: Property[ColorSpaceMunsellType | None, ColorSpaceMunsellType]
    """A colour by its notation in a Munsell collection."""
    def choose_munsell(self, **values: Any) -> ColorSpaceMunsellType:
        """Gives `munsell`, which it makes if it isn't chosen, and sets properties of it."""
    @property
    def chosen(self) -> Literal["recipe", "tintora", "generic", "emissive_generic", "density", "rgb", "srgb", "adobe_rgb", "cmyk_plus_n", "adobe_wide_gamut_rgb", "spectral", "emissive_spectral", "lab", "lch", "xyz", "emissive_xyz", "xyy", "emissive_xyy", "luv", "hsl", "hsv", "cmyk", "tintora_octavantic", "yuv", "yiq", "ybr", "ncs", "munsell"] | None:
        """The name of the alternative that is held; None if none was chosen."""

class ColorSpaceChoiceList(ChoiceList[ColorSpaceChoice]):
    """A list of ColorSpaceChoice, which gives the first alternative of each kind."""
    @property
    def recipe(self) -> ColorSpaceRecipeType | None:
        """A colour by the colorants that give it."""
    @property
    def tintora(self) -> ColorSpaceTINTORAType | None:
        """A colour of the TINTORA collection, by family, name and page."""
    @property
    def generic(self) -> ColorSpaceGenericType | None:
        """A reflective colour in a space that the format doesn't know, axis by axis."""
    @property
    def emissive_generic(self) -> ColorSpaceEmissiveGenericType | None:
        """An emissive colour in a space that the format doesn't know, axis by axis."""
    @property
    def density(self) -> ColorSpaceDensityType | None:
        """A colour by its optical densities through one or more filters."""
    @property
    def rgb(self) -> ColorSpaceRGBType | None:
        """A colour in a device's own RGB, as fractions of full drive."""
    @property
    def srgb(self) -> ColorSpaceSRGBType | None:
        """A colour in sRGB (IEC 61966-2-1), as fractions of full drive."""
    @property
    def adobe_rgb(self) -> ColorSpaceAdobeRGBType | None:
        """A colour in Adobe RGB (1998), as fractions of full drive."""
    @property
    def cmyk_plus_n(self) -> ColorSpaceCMYKPlusNType | None:
        """A process colour with further named ink channels."""
    @property
    def adobe_wide_gamut_rgb(self) -> ColorSpaceAdobeWideGamutRGBType | None:
        """A colour in Adobe Wide Gamut RGB, as fractions of full drive."""
    @property
    def spectral(self) -> ColorSpaceSpectralType | None:
        """A reflective or transmissive colour as a sampled spectrum."""
    @property
    def emissive_spectral(self) -> ColorSpaceEmissiveSpectralType | None:
        """An emissive colour as a sampled spectrum."""
    @property
    def lab(self) -> ColorSpaceCIELabType | None:
        """A reflective colour in CIE 1976 L*a*b*."""
    @property
    def lch(self) -> ColorSpaceCIELChType | None:
        """A reflective colour in CIE L*C*h, the polar form of CIE 1976 L*a*b*."""
    @property
    def xyz(self) -> ColorSpaceCIEXYZType | None:
        """A reflective colour in CIE XYZ, scaled so that Y of the perfect diffuser is 1."""
    @property
    def emissive_xyz(self) -> ColorSpaceEmissiveCIEXYZType | None:
        """An emissive colour in CIE XYZ; absolute, hence without an upper bound."""
    @property
    def xyy(self) -> ColorSpaceCIExyYType | None:
        """A reflective colour by its CIE chromaticity and luminance factor."""
    @property
    def emissive_xyy(self) -> ColorSpaceEmissiveCIExyYType | None:
        """An emissive colour by its CIE chromaticity and luminance."""
    @property
    def luv(self) -> ColorSpaceCIELuvType | None:
        """A reflective colour in CIE 1976 L*u*v*."""
    @property
    def hsl(self) -> ColorSpaceHSLType | None:
        """A colour by hue, saturation and lightness."""
    @property
    def hsv(self) -> ColorSpaceHSVType | None:
        """A colour by hue, saturation and value."""
    @property
    def cmyk(self) -> ColorSpaceCMYKType | None:
        """A process colour as percentages of cyan, magenta, yellow and black, with spot inks if need be."""
    @property
    def tintora_octavantic(self) -> ColorSpaceTINTORAOctavanticType | None:
        """A process colour of six inks: cyan, magenta, yellow, black, orange and green."""
    @property
    def yuv(self) -> ColorSpaceYUVType | None:
        """A video colour by luma and the two colour differences of PAL."""
    @property
    def yiq(self) -> ColorSpaceYIQType | None:
        """A video colour by luma, in-phase and quadrature signal, as in NTSC."""
    @property
    def ybr(self) -> ColorSpaceYBRType | None:
        """A video colour by luma and the blue and red differences, all scaled to 0 to 1."""
    @property
    def ncs(self) -> ColorSpaceNCSType | None:
        """A colour by its notation in the Natural Colour System."""
    @property
    def munsell(self) -> ColorSpaceMunsellType | None:
        """A colour by its notation in a Munsell collection."""

class SubstrateChoice(Choice):
    """One element of the group Substrate: which, and its value."""
    def __init__(
        self,
        *,
        paper: SubstratePaperType = ...,
        generic: SubstrateGenericType = ...,
        metal: SubstrateMetalType = ...,
        plastic: SubstratePlasticType = ...,
        wood: SubstrateWoodType = ...,
        vinyl: SubstrateVinylType = ...,
        tile: SubstrateTileType = ...,
        film: SubstrateFilmType = ...,
        textile: SubstrateTextileType = ...,
    ) -> None: ...
    paper: Property[SubstratePaperType | None, SubstratePaperType]
    """Paper or board."""
    def choose_paper(self, **values: Any) -> SubstratePaperType:
        """Gives `paper`, which it makes if it isn't chosen, and sets properties of it."""
    generic: Property[SubstrateGenericType | None, SubstrateGenericType]
    """A material that has no type of its own."""
    def choose_generic(self, **values: Any) -> SubstrateGenericType:
        """Gives `generic`, which it makes if it isn't chosen, and sets properties of it."""
    metal: Property[SubstrateMetalType | None, SubstrateMetalType]
    """Metal."""
    def choose_metal(self, **values: Any) -> SubstrateMetalType:
        """Gives `metal`, which it makes if it isn't chosen, and sets properties of it."""
    plastic: Property[SubstratePlasticType | None, SubstratePlasticType]
    """Plastic."""
    def choose_plastic(self, **values: Any) -> SubstratePlasticType:
        """Gives `plastic`, which it makes if it isn't chosen, and sets properties of it."""
    wood: Property[SubstrateWoodType | None, SubstrateWoodType]
    """Wood."""
    def choose_wood(self, **values: Any) -> SubstrateWoodType:
        """Gives `wood`, which it makes if it isn't chosen, and sets properties of it."""
    vinyl: Property[SubstrateVinylType | None, SubstrateVinylType]
    """Vinyl."""
    def choose_vinyl(self, **values: Any) -> SubstrateVinylType:
        """Gives `vinyl`, which it makes if it isn't chosen, and sets properties of it."""
    tile: Property[SubstrateTileType | None, SubstrateTileType]
    """Ceramic or other tile."""
    def choose_tile(self, **values: Any) -> SubstrateTileType:
        """Gives `tile`, which it makes if it isn't chosen, and sets properties of it."""
    film: Property[SubstrateFilmType | None, SubstrateFilmType]
    """Film or foil."""
    def choose_film(self, **values: Any) -> SubstrateFilmType:
        """Gives `film`, which it makes if it isn't chosen, and sets properties of it."""
    textile: Property[SubstrateTextileType | None, SubstrateTextileType]
    """Textile."""
    def choose_textile(self, **values: Any) -> SubstrateTextileType:
        """Gives `textile`, which it makes if it isn't chosen, and sets properties of it."""
    @property
    def chosen(self) -> Literal["paper", "generic", "metal", "plastic", "wood", "vinyl", "tile", "film", "textile"] | None:
        """The name of the alternative that is held; None if none was chosen."""

class SampleChoice(Choice):
    """One element of the group Sample: which, and its value."""
    def __init__(self, *, spot: SampleSpotType = ..., target: SampleTargetType = ...) -> None: ...
    spot: Property[SampleSpotType | None, SampleSpotType]
    """A single patch of one colour."""
    def choose_spot(self, **values: Any) -> SampleSpotType:
        """Gives `spot`, which it makes if it isn't chosen, and sets properties of it."""
    target: Property[SampleTargetType | None, SampleTargetType]
    """A test chart of many patches."""
    def choose_target(self, **values: Any) -> SampleTargetType:
        """Gives `target`, which it makes if it isn't chosen, and sets properties of it."""
    @property
    def chosen(self) -> Literal["spot", "target"] | None:
        """The name of the alternative that is held; None if none was chosen."""

class FunctionChoice(Choice):
    """One element of the group Function: which, and its value."""
    def __init__(
        self,
        *,
        function: FunctionType = ...,
        generic: FunctionGenericType = ...,
        de: FunctionDEType = ...,
        mean_de: FunctionMeanDEType = ...,
        de94: FunctionDE94Type = ...,
        de2000: FunctionDE2000Type = ...,
        decmc: FunctionDEcmcType = ...,
        std_dev_x: FunctionStdDevXType = ...,
        std_dev_y: FunctionStdDevYType = ...,
        std_dev_z: FunctionStdDevZType = ...,
        std_dev_l: FunctionStdDevLType = ...,
        std_dev_a: FunctionStdDevAType = ...,
        std_dev_b: FunctionStdDevBType = ...,
        std_dev_c: FunctionStdDevCType = ...,
        std_dev_h: FunctionStdDevHType = ...,
        average_std_dev_l: FunctionAverageStdDevLType = ...,
        average_std_dev_a: FunctionAverageStdDevAType = ...,
        average_std_dev_b: FunctionAverageStdDevBType = ...,
    ) -> None: ...
    function: Property[FunctionType | None, FunctionType]
    """Any function, told by xsi:type; head of the functions, any of which can stand in its place."""
    generic: Property[FunctionGenericType | None, FunctionGenericType]
    """A function that the format doesn't know, by name and parameters."""
    def choose_generic(self, **values: Any) -> FunctionGenericType:
        """Gives `generic`, which it makes if it isn't chosen, and sets properties of it."""
    de: Property[FunctionDEType | None, FunctionDEType]
    """CIE 1976 colour difference, the distance in L*a*b*."""
    def choose_de(self, **values: Any) -> FunctionDEType:
        """Gives `de`, which it makes if it isn't chosen, and sets properties of it."""
    mean_de: Property[FunctionMeanDEType | None, FunctionMeanDEType]
    """Mean of CIE 1976 colour differences."""
    def choose_mean_de(self, **values: Any) -> FunctionMeanDEType:
        """Gives `mean_de`, which it makes if it isn't chosen, and sets properties of it."""
    de94: Property[FunctionDE94Type | None, FunctionDE94Type]
    """CIE 1994 colour difference."""
    def choose_de94(self, **values: Any) -> FunctionDE94Type:
        """Gives `de94`, which it makes if it isn't chosen, and sets properties of it."""
    de2000: Property[FunctionDE2000Type | None, FunctionDE2000Type]
    """CIEDE2000 colour difference."""
    def choose_de2000(self, **values: Any) -> FunctionDE2000Type:
        """Gives `de2000`, which it makes if it isn't chosen, and sets properties of it."""
    decmc: Property[FunctionDEcmcType | None, FunctionDEcmcType]
    """CMC l:c colour difference."""
    def choose_decmc(self, **values: Any) -> FunctionDEcmcType:
        """Gives `decmc`, which it makes if it isn't chosen, and sets properties of it."""
    std_dev_x: Property[FunctionStdDevXType | None, FunctionStdDevXType]
    """Standard deviation of the tristimulus value X."""
    def choose_std_dev_x(self, **values: Any) -> FunctionStdDevXType:
        """Gives `std_dev_x`, which it makes if it isn't chosen, and sets properties of it."""
    std_dev_y: Property[FunctionStdDevYType | None, FunctionStdDevYType]
    """Standard deviation of the tristimulus value Y."""
    def choose_std_dev_y(self, **values: Any) -> FunctionStdDevYType:
        """Gives `std_dev_y`, which it makes if it isn't chosen, and sets properties of it."""
    std_dev_z: Property[FunctionStdDevZType | None, FunctionStdDevZType]
    """Standard deviation of the tristimulus value Z."""
    def choose_std_dev_z(self, **values: Any) -> FunctionStdDevZType:
        """Gives `std_dev_z`, which it makes if it isn't chosen, and sets properties of it."""
    std_dev_l: Property[FunctionStdDevLType | None, FunctionStdDevLType]
    """Standard deviation of the lightness L*."""
    def choose_std_dev_l(self, **values: Any) -> FunctionStdDevLType:
        """Gives `std_dev_l`, which it makes if it isn't chosen, and sets properties of it."""
    std_dev_a: Property[FunctionStdDevAType | None, FunctionStdDevAType]
    """Standard deviation of a*."""
    def choose_std_dev_a(self, **values: Any) -> FunctionStdDevAType:
        """Gives `std_dev_a`, which it makes if it isn't chosen, and sets properties of it."""
    std_dev_b: Property[FunctionStdDevBType | None, FunctionStdDevBType]
    """Standard deviation of b*."""
    def choose_std_dev_b(self, **values: Any) -> FunctionStdDevBType:
        """Gives `std_dev_b`, which it makes if it isn't chosen, and sets properties of it."""
    std_dev_c: Property[FunctionStdDevCType | None, FunctionStdDevCType]
    """Standard deviation of the chroma C*."""
    def choose_std_dev_c(self, **values: Any) -> FunctionStdDevCType:
        """Gives `std_dev_c`, which it makes if it isn't chosen, and sets properties of it."""
    std_dev_h: Property[FunctionStdDevHType | None, FunctionStdDevHType]
    """Standard deviation of the hue."""
    def choose_std_dev_h(self, **values: Any) -> FunctionStdDevHType:
        """Gives `std_dev_h`, which it makes if it isn't chosen, and sets properties of it."""
    average_std_dev_l: Property[FunctionAverageStdDevLType | None, FunctionAverageStdDevLType]
    """Average standard deviation of the lightness L*."""
    def choose_average_std_dev_l(self, **values: Any) -> FunctionAverageStdDevLType:
        """Gives `average_std_dev_l`, which it makes if it isn't chosen, and sets properties of it."""
    average_std_dev_a: Property[FunctionAverageStdDevAType | None, FunctionAverageStdDevAType]
    """Average standard deviation of a*."""
    def choose_average_std_dev_a(self, **values: Any) -> FunctionAverageStdDevAType:
        """Gives `average_std_dev_a`, which it makes if it isn't chosen, and sets properties of it."""
    average_std_dev_b: Property[FunctionAverageStdDevBType | None, FunctionAverageStdDevBType]
    """Average standard deviation of b*."""
    def choose_average_std_dev_b(self, **values: Any) -> FunctionAverageStdDevBType:
        """Gives `average_std_dev_b`, which it makes if it isn't chosen, and sets properties of it."""
    @property
    def chosen(self) -> Literal["function", "generic", "de", "mean_de", "de94", "de2000", "decmc", "std_dev_x", "std_dev_y", "std_dev_z", "std_dev_l", "std_dev_a", "std_dev_b", "std_dev_c", "std_dev_h", "average_std_dev_l", "average_std_dev_a", "average_std_dev_b"] | None:
        """The name of the alternative that is held; None if none was chosen."""

class FunctionChoiceList(ChoiceList[FunctionChoice]):
    """A list of FunctionChoice, which gives the first alternative of each kind."""
    @property
    def function(self) -> FunctionType | None:
        """Any function, told by xsi:type; head of the functions, any of which can stand in its place."""
    @property
    def generic(self) -> FunctionGenericType | None:
        """A function that the format doesn't know, by name and parameters."""
    @property
    def de(self) -> FunctionDEType | None:
        """CIE 1976 colour difference, the distance in L*a*b*."""
    @property
    def mean_de(self) -> FunctionMeanDEType | None:
        """Mean of CIE 1976 colour differences."""
    @property
    def de94(self) -> FunctionDE94Type | None:
        """CIE 1994 colour difference."""
    @property
    def de2000(self) -> FunctionDE2000Type | None:
        """CIEDE2000 colour difference."""
    @property
    def decmc(self) -> FunctionDEcmcType | None:
        """CMC l:c colour difference."""
    @property
    def std_dev_x(self) -> FunctionStdDevXType | None:
        """Standard deviation of the tristimulus value X."""
    @property
    def std_dev_y(self) -> FunctionStdDevYType | None:
        """Standard deviation of the tristimulus value Y."""
    @property
    def std_dev_z(self) -> FunctionStdDevZType | None:
        """Standard deviation of the tristimulus value Z."""
    @property
    def std_dev_l(self) -> FunctionStdDevLType | None:
        """Standard deviation of the lightness L*."""
    @property
    def std_dev_a(self) -> FunctionStdDevAType | None:
        """Standard deviation of a*."""
    @property
    def std_dev_b(self) -> FunctionStdDevBType | None:
        """Standard deviation of b*."""
    @property
    def std_dev_c(self) -> FunctionStdDevCType | None:
        """Standard deviation of the chroma C*."""
    @property
    def std_dev_h(self) -> FunctionStdDevHType | None:
        """Standard deviation of the hue."""
    @property
    def average_std_dev_l(self) -> FunctionAverageStdDevLType | None:
        """Average standard deviation of the lightness L*."""
    @property
    def average_std_dev_a(self) -> FunctionAverageStdDevAType | None:
        """Average standard deviation of a*."""
    @property
    def average_std_dev_b(self) -> FunctionAverageStdDevBType | None:
        """Average standard deviation of b*."""
