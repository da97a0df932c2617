# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
"""Classes of the topic groups."""

from .._objects import Choice, ChoiceList, _creator, _first
from .._vyr import Property

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

    __slots__ = ()
    schema_name = "sg_ColorSpace"
    recipe = Property("ColorSpaceRecipe", "A colour by the colorants that give it.")
    choose_recipe = _creator(recipe)
    tintora = Property("ColorSpaceTINTORA", "A colour of the TINTORA collection, by family, name and page.")
    choose_tintora = _creator(tintora)
    generic = Property(
        "ColorSpaceGeneric",
        "A reflective colour in a space that the format doesn't know, axis by axis.",
    )
    choose_generic = _creator(generic)
    emissive_generic = Property(
        "ColorSpaceEmissiveGeneric",
        "An emissive colour in a space that the format doesn't know, axis by axis.",
    )
    choose_emissive_generic = _creator(emissive_generic)
    density = Property("ColorSpaceDensity", "A colour by its optical densities through one or more filters.")
    choose_density = _creator(density)
    rgb = Property("ColorSpaceRGB", "A colour in a device's own RGB, as fractions of full drive.")
    choose_rgb = _creator(rgb)
    srgb = Property("ColorSpaceSRGB", "A colour in sRGB (IEC 61966-2-1), as fractions of full drive.")
    choose_srgb = _creator(srgb)
    adobe_rgb = Property("ColorSpaceAdobeRGB", "A colour in Adobe RGB (1998), as fractions of full drive.")
    choose_adobe_rgb = _creator(adobe_rgb)
    cmyk_plus_n = Property("ColorSpaceCMYKPlusN", "A process colour with further named ink channels.")
    choose_cmyk_plus_n = _creator(cmyk_plus_n)
    adobe_wide_gamut_rgb = Property(
        "ColorSpaceAdobeWideGamutRGB",
        "A colour in Adobe Wide Gamut RGB, as fractions of full drive.",
    )
    choose_adobe_wide_gamut_rgb = _creator(adobe_wide_gamut_rgb)
    spectral = Property("ColorSpaceSpectral", "A reflective or transmissive colour as a sampled spectrum.")
    choose_spectral = _creator(spectral)
    emissive_spectral = Property("ColorSpaceEmissiveSpectral", "An emissive colour as a sampled spectrum.")
    choose_emissive_spectral = _creator(emissive_spectral)
    lab = Property("ColorSpaceCIELab", "A reflective colour in CIE 1976 L*a*b*.")
    choose_lab = _creator(lab)
    lch = Property("ColorSpaceCIELCh", "A reflective colour in CIE L*C*h, the polar form of CIE 1976 L*a*b*.")
    choose_lch = _creator(lch)
    xyz = Property(
        "ColorSpaceCIEXYZ",
        "A reflective colour in CIE XYZ, scaled so that Y of the perfect diffuser is 1.",
    )
    choose_xyz = _creator(xyz)
    emissive_xyz = Property(
        "ColorSpaceEmissiveCIEXYZ",
        "An emissive colour in CIE XYZ; absolute, hence without an upper bound.",
    )
    choose_emissive_xyz = _creator(emissive_xyz)
    xyy = Property("ColorSpaceCIExyY", "A reflective colour by its CIE chromaticity and luminance factor.")
    choose_xyy = _creator(xyy)
    emissive_xyy = Property("ColorSpaceEmissiveCIExyY", "An emissive colour by its CIE chromaticity and luminance.")
    choose_emissive_xyy = _creator(emissive_xyy)
    luv = Property("ColorSpaceCIELuv", "A reflective colour in CIE 1976 L*u*v*.")
    choose_luv = _creator(luv)
    hsl = Property("ColorSpaceHSL", "A colour by hue, saturation and lightness.")
    choose_hsl = _creator(hsl)
    hsv = Property("ColorSpaceHSV", "A colour by hue, saturation and value.")
    choose_hsv = _creator(hsv)
    cmyk = Property(
        "ColorSpaceCMYK",
        "A process colour as percentages of cyan, magenta, yellow and black, with spot inks if need be.",
    )
    choose_cmyk = _creator(cmyk)
    tintora_octavantic = Property(
        "ColorSpaceTINTORAOctavantic",
        "A process colour of six inks: cyan, magenta, yellow, black, orange and green.",
    )
    choose_tintora_octavantic = _creator(tintora_octavantic)
    yuv = Property("ColorSpaceYUV", "A video colour by luma and the two colour differences of PAL.")
    choose_yuv = _creator(yuv)
    yiq = Property("ColorSpaceYIQ", "A video colour by luma, in-phase and quadrature signal, as in NTSC.")
    choose_yiq = _creator(yiq)
    ybr = Property("ColorSpaceYBR", "A video colour by luma and the blue and red differences, all scaled to 0 to 1.")
    choose_ybr = _creator(ybr)
    ncs = Property("ColorSpaceNCS", "A colour by its notation in the Natural Colour System.")
    choose_ncs = _creator(ncs)
    munsell = Property("ColorSpaceMunsell", "A colour by its notation in a Munsell collection.")
    choose_munsell = _creator(munsell)
    alternatives = (
        "recipe",
        "tintora",
        "generic",
        "emissive_generic",
        "density",
        "rgb",
        "srgb",
        "adobe_rgb",
        "cmyk_plus_n",
        "adobe_wide_gamut_rgb",
        "spectral",
        "emissive_spectral",
        "lab",
        "lch",
        "xyz",
        "emissive_xyz",
        "xyy",
        "emissive_xyy",
        "luv",
        "hsl",
        "hsv",
        "cmyk",
        "tintora_octavantic",
        "yuv",
        "yiq",
        "ybr",
        "ncs",
        "munsell",
    )


class ColorSpaceChoiceList(ChoiceList[ColorSpaceChoice]):
    """A list of ColorSpaceChoice, which gives the first alternative of each kind."""

    __slots__ = ()
    recipe = _first(ColorSpaceChoice.recipe)
    tintora = _first(ColorSpaceChoice.tintora)
    generic = _first(ColorSpaceChoice.generic)
    emissive_generic = _first(ColorSpaceChoice.emissive_generic)
    density = _first(ColorSpaceChoice.density)
    rgb = _first(ColorSpaceChoice.rgb)
    srgb = _first(ColorSpaceChoice.srgb)
    adobe_rgb = _first(ColorSpaceChoice.adobe_rgb)
    cmyk_plus_n = _first(ColorSpaceChoice.cmyk_plus_n)
    adobe_wide_gamut_rgb = _first(ColorSpaceChoice.adobe_wide_gamut_rgb)
    spectral = _first(ColorSpaceChoice.spectral)
    emissive_spectral = _first(ColorSpaceChoice.emissive_spectral)
    lab = _first(ColorSpaceChoice.lab)
    lch = _first(ColorSpaceChoice.lch)
    xyz = _first(ColorSpaceChoice.xyz)
    emissive_xyz = _first(ColorSpaceChoice.emissive_xyz)
    xyy = _first(ColorSpaceChoice.xyy)
    emissive_xyy = _first(ColorSpaceChoice.emissive_xyy)
    luv = _first(ColorSpaceChoice.luv)
    hsl = _first(ColorSpaceChoice.hsl)
    hsv = _first(ColorSpaceChoice.hsv)
    cmyk = _first(ColorSpaceChoice.cmyk)
    tintora_octavantic = _first(ColorSpaceChoice.tintora_octavantic)
    yuv = _first(ColorSpaceChoice.yuv)
    yiq = _first(ColorSpaceChoice.yiq)
    ybr = _first(ColorSpaceChoice.ybr)
    ncs = _first(ColorSpaceChoice.ncs)
    munsell = _first(ColorSpaceChoice.munsell)


class SubstrateChoice(Choice):
    """One element of the group Substrate: which, and its value."""

    __slots__ = ()
    schema_name = "sg_Substrate"
    paper = Property("SubstratePaper", "Paper or board.")
    choose_paper = _creator(paper)
    generic = Property("SubstrateGeneric", "A material that has no type of its own.")
    choose_generic = _creator(generic)
    metal = Property("SubstrateMetal", "Metal.")
    choose_metal = _creator(metal)
    plastic = Property("SubstratePlastic", "Plastic.")
    choose_plastic = _creator(plastic)
    wood = Property("SubstrateWood", "Wood.")
    choose_wood = _creator(wood)
    vinyl = Property("SubstrateVinyl", "Vinyl.")
    choose_vinyl = _creator(vinyl)
    tile = Property("SubstrateTile", "Ceramic or other tile.")
    choose_tile = _creator(tile)
    film = Property("SubstrateFilm", "Film or foil.")
    choose_film = _creator(film)
    textile = Property("SubstrateTextile", "Textile.")
    choose_textile = _creator(textile)
    alternatives = ("paper", "generic", "metal", "plastic", "wood", "vinyl", "tile", "film", "textile")


class SampleChoice(Choice):
    """One element of the group Sample: which, and its value."""

    __slots__ = ()
    schema_name = "sg_Sample"
    spot = Property("SampleSpot", "A single patch of one colour.")
    choose_spot = _creator(spot)
    target = Property("SampleTarget", "A test chart of many patches.")
    choose_target = _creator(target)
    alternatives = ("spot", "target")


class FunctionChoice(Choice):
    """One element of the group Function: which, and its value."""

    __slots__ = ()
    schema_name = "sg_Function"
    function = Property(
        "Function",
        "Any function, told by xsi:type; head of the functions, any of which can stand in its place.",
    )
    generic = Property("FunctionGeneric", "A function that the format doesn't know, by name and parameters.")
    choose_generic = _creator(generic)
    de = Property("FunctionDE", "CIE 1976 colour difference, the distance in L*a*b*.")
    choose_de = _creator(de)
    mean_de = Property("FunctionMeanDE", "Mean of CIE 1976 colour differences.")
    choose_mean_de = _creator(mean_de)
    de94 = Property("FunctionDE94", "CIE 1994 colour difference.")
    choose_de94 = _creator(de94)
    de2000 = Property("FunctionDE2000", "CIEDE2000 colour difference.")
    choose_de2000 = _creator(de2000)
    decmc = Property("FunctionDECMC", "CMC l:c colour difference.")
    choose_decmc = _creator(decmc)
    std_dev_x = Property("FunctionStdDevX", "Standard deviation of the tristimulus value X.")
    choose_std_dev_x = _creator(std_dev_x)
    std_dev_y = Property("FunctionStdDevY", "Standard deviation of the tristimulus value Y.")
    choose_std_dev_y = _creator(std_dev_y)
    std_dev_z = Property("FunctionStdDevZ", "Standard deviation of the tristimulus value Z.")
    choose_std_dev_z = _creator(std_dev_z)
    std_dev_l = Property("FunctionStdDevL", "Standard deviation of the lightness L*.")
    choose_std_dev_l = _creator(std_dev_l)
    std_dev_a = Property("FunctionStdDevA", "Standard deviation of a*.")
    choose_std_dev_a = _creator(std_dev_a)
    std_dev_b = Property("FunctionStdDevB", "Standard deviation of b*.")
    choose_std_dev_b = _creator(std_dev_b)
    std_dev_c = Property("FunctionStdDevC", "Standard deviation of the chroma C*.")
    choose_std_dev_c = _creator(std_dev_c)
    std_dev_h = Property("FunctionStdDevH", "Standard deviation of the hue.")
    choose_std_dev_h = _creator(std_dev_h)
    average_std_dev_l = Property("FunctionAverageStdDevL", "Average standard deviation of the lightness L*.")
    choose_average_std_dev_l = _creator(average_std_dev_l)
    average_std_dev_a = Property("FunctionAverageStdDevA", "Average standard deviation of a*.")
    choose_average_std_dev_a = _creator(average_std_dev_a)
    average_std_dev_b = Property("FunctionAverageStdDevB", "Average standard deviation of b*.")
    choose_average_std_dev_b = _creator(average_std_dev_b)
    alternatives = (
        "function",
        "generic",
        "de",
        "mean_de",
        "de94",
        "de2000",
        "decmc",
        "std_dev_x",
        "std_dev_y",
        "std_dev_z",
        "std_dev_l",
        "std_dev_a",
        "std_dev_b",
        "std_dev_c",
        "std_dev_h",
        "average_std_dev_l",
        "average_std_dev_a",
        "average_std_dev_b",
    )


class FunctionChoiceList(ChoiceList[FunctionChoice]):
    """A list of FunctionChoice, which gives the first alternative of each kind."""

    __slots__ = ()
    function = _first(FunctionChoice.function)
    generic = _first(FunctionChoice.generic)
    de = _first(FunctionChoice.de)
    mean_de = _first(FunctionChoice.mean_de)
    de94 = _first(FunctionChoice.de94)
    de2000 = _first(FunctionChoice.de2000)
    decmc = _first(FunctionChoice.decmc)
    std_dev_x = _first(FunctionChoice.std_dev_x)
    std_dev_y = _first(FunctionChoice.std_dev_y)
    std_dev_z = _first(FunctionChoice.std_dev_z)
    std_dev_l = _first(FunctionChoice.std_dev_l)
    std_dev_a = _first(FunctionChoice.std_dev_a)
    std_dev_b = _first(FunctionChoice.std_dev_b)
    std_dev_c = _first(FunctionChoice.std_dev_c)
    std_dev_h = _first(FunctionChoice.std_dev_h)
    average_std_dev_l = _first(FunctionChoice.average_std_dev_l)
    average_std_dev_a = _first(FunctionChoice.average_std_dev_a)
    average_std_dev_b = _first(FunctionChoice.average_std_dev_b)
