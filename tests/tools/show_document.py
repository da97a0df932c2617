# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""Documents for the tests of `vyr show`: one of everything that a page shows in its own way, and large ones."""

import math
import re

DATE = "<Vyr:ChangeHistory>2026-05-01T12:00:00Z</Vyr:ChangeHistory>"
NIL = 'xsi:nil="true"'


def element(name, content="", **attributes):
    written = "".join(f' {key}="{value}"' for key, value in attributes.items())
    return f"<Vyr:{name}{written}>{content}</Vyr:{name}>"


def texts(**values):
    return "".join(element(name, value) for name, value in values.items())


def document(content, creator="By hand", more=""):
    header = element("Header", texts(Creator=creator, CreatorVersion="1.0") + DATE + texts(Purpose="Spot colours"))
    return ('<?xml version="1.0" encoding="UTF-8"?>\n<Vyr:Vyr xmlns:Vyr="http://vyrgraph.com/v2" '
            'xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance">'
            f"{element('Preamble', header + more)}{content}</Vyr:Vyr>\n")


def conditions(kind, illuminant="D50", observer="2", spectrum="Reflectance"):
    name = f"ColorSpaceSpecificationSpectrum{kind}"
    own = texts(DeviceFilter="Filter_None", DevicePolarization="false") + DATE
    own += element("Spectrum", f"Spectrum_{spectrum}")
    geometry = element("GeometryChoice", texts(Angle="45"))
    if kind == "Spectral":
        return element(name, own + geometry)
    light = element("IlluminationOptions", texts(Illuminant=f"Illuminant_{illuminant}"))
    return element(name, own + light + texts(FieldOfView=f"FieldOfView_{observer}_Degree"))


def unknown(kind):
    return f"<Vyr:ColorSpaceSpecificationSpectrum{kind} {NIL}/>"


def value(space, content, specification="", **attributes):
    return element(f"ColorSpace{space}", DATE + specification + content, **attributes)


def srgb(red, green, blue):
    return value("SRGB", texts(Red=red, Green=green, Blue=blue, ColorDepth="ColorDepth_8"), unknown("Tristimulus"))


def lab(l, a, b, **more):
    return value("CIELab", texts(L=l, A=a, B=b), conditions("Tristimulus", **more))


def profiled():
    """Conditions with all that is no condition."""
    parameter = element("Parameters", texts(Name="g") + element("ValueChoice", texts(DoubleValue="2.2")))
    profile = element("Profile", element("ProfileChoice", element("ProfileFile", "AAEC", ProfileName="Press 7"))
                      + parameter,
                      Direction="Profile_Output")
    tristimulus = conditions("Tristimulus").replace("<Vyr:DeviceFilter>", profile + "<Vyr:DeviceFilter>")
    return tristimulus.replace("Tristimulus>", 'Tristimulus Comments="under the lamp">', 1)


def spectrum(level=0.1, turn=590, step=10, specification=None):
    points = "".join(
        element("ReflectancePoint", round(level + 0.7 / (1 + math.exp((turn - nm) / 14)), 4), Wavelength=nm)
        for nm in range(380, 731, step))
    return value("Spectral", points, conditions("Spectral") if specification is None else specification)


def emission(*points):
    return value("EmissiveSpectral", "".join(element("EmissiveSpectralPoint", v, Wavelength=nm) for nm, v in points),
                 f"<Vyr:ColorSpaceSpecificationEmissiveSpectral {NIL}/>")


def recipe():
    def colorant(kind, name, maker, part, share, density):
        ink = element(kind, texts(Name=name, Manufacturer=maker, PartNumber=part) + density)
        return element(f"{kind}Element", ink + texts(Contribution=share))
    nil = f"<Vyr:Density {NIL}/>"
    return value("Recipe", colorant("Colorant", "Rubine", "Inks &amp; Co", "008", "0.42", nil)
                 + colorant("Colorant", "Yellow 12", "Inks &amp; Co", "0042", "0.08", texts(Density="1.1"))
                 + colorant("Base", "Clear", "Inks &amp; Co", "B7", "0.5", ""), unknown("Generic"), Name="Lab mix")


def color(name, *values, **attributes):
    return element("Color", DATE + "".join(values), ColorName=name, **attributes)


def palette(name, *sets, before=""):
    return element("Palette", DATE + before + "".join(sets), PaletteName=name)


def color_set(name, *colors, after=""):
    return element("ColorSet", DATE + "".join(colors) + after, ColorSetName=name)


def device():
    return element("Device", texts(Manufacturer="Optics", Model="S-45", SerialNumber="0815"))


def tolerance(name, function, high=None, low=None, warning=None):
    limits = ""
    if high is not None:
        limits = element("Limits", texts(HighTolerance=high) + (texts(LowTolerance=low) if low is not None else ""))
    rest = texts(PrimaryIlluminant="Illuminant_D50", FieldOfView="FieldOfView_2_Degree")
    return element("Tolerance", function + limits + rest + (texts(WarningLevel=warning) if warning else ""), Name=name)


def function(kind, result=None, **parameters):
    return element(f"Function{kind}", (texts(Result=result) if result is not None else "") + texts(**parameters))


def full():
    """One of everything."""
    standard = color("Warm red, standard", srgb("0.83", "0.22", "0.2"), lab("50", "62", "42"), spectrum(0.06))
    made_from = (f"<Vyr:ColorSpaceCIELab>{element('ParentColorSpace', spectrum(0.05, 600, 20))}{DATE}"
                 f"{conditions('Tristimulus', illuminant='A', observer='10')}{texts(L='51', A='61', B='40')}"
                 "</Vyr:ColorSpaceCIELab>")
    parameters = "".join(element("Parameters", texts(HighValue=high, ToleranceParameter=f"Param_{kind}", LowValue=low))
                         for kind, low, high in (("L", "-1", "1"), ("a", "-0.5", "0.75")))
    by_parameter = ('<Vyr:Function xsi:type="Vyr:FunctionTolerance"><Vyr:ToleranceType>L*a*b*</Vyr:ToleranceType>'
                    f"{parameters}</Vyr:Function>")
    de2000 = {"Param_l": "1", "Param_c": "1", "Param_h": "1"}

    def measurement(name, *functions):
        return element("Measurement", device() + color(name, lab("50.4", "61", "41"), spectrum(0.07))
                       + "".join(functions))

    generic = element("FunctionGeneric", texts(Result="1", Name="by hand") + element(
        "Parameters", texts(Name="order") + element("ValueChoice", texts(String="first"))))
    pairs = element("StandardAndMeasurement",
                    measurement("Sheet 1", function("DE2000", "0.7", **de2000), function("DE", "1.25"), generic)
                    + measurement("Sheet 2", function("DE2000", "1.6", **de2000), function("MeanDE", "0.2"))
                    + measurement("Sheet 3", function("DE2000", "2.25", **de2000),
                                  function("DE2000", "0.1", Param_l="2", Param_c="1", Param_h="1"),
                                  function("DE", "-0.5"))
                    + element("Standard", device() + standard
                              + tolerance("Delta E 2000", function("DE2000", **de2000), "2", warning="1.5")))
    sample = element("PhysicalSample", texts(Coating="none") + element(
        "SampleSpot", element("SubstratePaper", texts(PaperThickness="0.12")) + texts(Backing="Backing_White")
        + element("Specification", texts(SampleWidth="10", SampleHeight="12"))))
    record = element("ColorQualityControl", DATE + pairs + sample
                     + tolerance("Plain", function("DE"), "3", "0") + tolerance("Coordinates", by_parameter),
                     Name="Run 7", Comments="first line&#10;second line")
    defaults = element("CollectionColorSpaceSpecification", conditions("Tristimulus", "D65", "10").replace(
        "Tristimulus>", 'Tristimulus Comments="house light">', 1))
    inks = color_set(
        "Spot",
        color("Warm red", srgb("0.8392", "0.2196", "0.2"), lab("50.2", "62.1", "42.7"), spectrum(), recipe(),
              UniqueID="ink-1", ColorNumber="0042"),
        color("Deep blue", value("CMYK", texts(Cyan="100", Magenta="72", Yellow="0", Black="18"), unknown("Generic")),
              value("CIELab", texts(L="27", A="8", B="-52"), unknown("Tristimulus")),
              value("Generic", element("Axis", texts(AxisName="far") + element(
                  "AxisValueChoice", texts(AxisStringValue="near"))), unknown("Generic"), Name="by axis"),
              lab("1", "2", "3").replace("<Vyr:Illuminant>", '<Vyr:Illuminant CustomName="neon">').replace(
                  DATE, element("CustomAttribute", texts(Name="own") + element(
                      "ValueChoice", texts(StringValue="kept"))) + DATE, 1),
              spectrum(specification=conditions("Spectral", spectrum="Custom").replace(
                  "<Vyr:Spectrum>", '<Vyr:Spectrum CustomTypeName="gloss">'))),
        color("Leaf", srgb("0.2", "0.55", "0.24"), made_from,
              value("CIELab", texts(L="52", A="60", B="41"), profiled())),
        after=element("SubstratePaper", color("Sheet white", srgb("0.97", "0.97", "0.94"))
                      + texts(PaperThickness="0.12", PaperType="coated")))
    outside = color("Lamp", emission((700, 2.5), (400, -0.25), (500, 12.5), (600, 40)))
    owner = element("Owner", element("Person", texts(Name="Ada", ContactInfo="ada at work")) + texts(Company="Works"))
    return document(outside + palette("Inks", inks, before=defaults) + record, more=owner)


# Where a stranger's text can stand in full().
TEXTS = ("Creator|Purpose|Company|Name|ContactInfo|Manufacturer|Model|SerialNumber|PartNumber|Coating|PaperType|String|"
         "StringValue|AxisName|AxisStringValue")
NAMES = "PaletteName|ColorSetName|ColorName|ProfileName|CustomName|CustomTypeName|UniqueID|ColorNumber|Name|Comments"


def hostile():
    """Markup, and what turns or hides text, wherever a text can stand."""
    bad = "&lt;/title>&lt;/style>&lt;script>alert(1)&lt;/script>&quot; onload=&quot;alert(1)' x='&amp;lt;\u202e\u009b"
    text = re.sub(rf"(<Vyr:({TEXTS})>)[^<]{{2,}}", rf"\g<1>{bad}", full())
    return re.sub(rf'( ({NAMES})=")[^"]*', rf"\g<1>{bad}", text)


def large(count):
    """Colours with spectra, by sets of a thousand."""
    sets = []
    for first in range(0, count, 1000):
        colors = (color(f"Ink {i}", lab(20 + i % 60, i % 50, -(i % 40)), spectrum(0.05 + i % 7 / 100, 420 + i % 280))
                  for i in range(first, min(count, first + 1000)))
        sets.append(color_set(f"From {first}", *colors))
    return document(palette("Large", *sets))
