// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.

using System;

namespace Vyr
{
    /// <summary>A colour in a device's own RGB, as fractions of full drive.</summary>
    public partial class ColorSpaceRGBType : ColorSpaceType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceRGBType() : this(Native.Make()) { }

        internal ColorSpaceRGBType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceRGBType Clone() => (ColorSpaceRGBType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceRGBType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the value. Null if not set.</summary>
        public string Name { get => Is(Native.isset_Name(Pointer)) ? Kept(Native.get_Name(Pointer)) : null; set => Demand(value == null ? Native.UnsetName(Pointer) : Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Conditions under which the value holds. Null until set; assigning copies.</summary>
        public ColorSpaceSpecificationSpectrumTristimulus ColorSpaceSpecificationSpectrumTristimulus { get => (ColorSpaceSpecificationSpectrumTristimulus)Child(3, Parts.ColorSpaceSpecificationSpectrumTristimulus); set => AssignChild(3, Parts.ColorSpaceSpecificationSpectrumTristimulus, value); }

        /// <summary>Gives ColorSpaceSpecificationSpectrumTristimulus, which it makes if it isn't there.</summary>
        public ColorSpaceSpecificationSpectrumTristimulus CreateColorSpaceSpecificationSpectrumTristimulus() => (ColorSpaceSpecificationSpectrumTristimulus)CreateChild(3, Parts.ColorSpaceSpecificationSpectrumTristimulus);

        /// <summary>Red channel, 0 to 1.</summary>
        public double Red { get => Kept(Native.get_Red(Pointer)); set => Demand(Native.set_Red(Pointer, value)); }

        /// <summary>Green channel, 0 to 1.</summary>
        public double Green { get => Kept(Native.get_Green(Pointer)); set => Demand(Native.set_Green(Pointer, value)); }

        /// <summary>Blue channel, 0 to 1.</summary>
        public double Blue { get => Kept(Native.get_Blue(Pointer)); set => Demand(Native.set_Blue(Pointer, value)); }

        /// <summary>Opacity, 0 (transparent) to 1 (opaque). Null if not set.</summary>
        public double? Alpha { get => Is(Native.isset_Alpha(Pointer)) ? Kept(Native.get_Alpha(Pointer)) : default(double?); set => Demand(value == null ? Native.UnsetAlpha(Pointer) : Native.set_Alpha(Pointer, value.Value)); }

        /// <summary>Bits per channel that the value was quantised to.</summary>
        public ColorDepthKind ColorDepth { get => (ColorDepthKind)Kept(Native.getenum_ColorDepth(Pointer)); set => Demand(Listed(Native.setenum_ColorDepth(Pointer, (int)value))); }
    }

    /// <summary>A colour in sRGB (IEC 61966-2-1), as fractions of full drive.</summary>
    public partial class ColorSpaceSRGBType : ColorSpaceType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceSRGBType() : this(Native.Make()) { }

        internal ColorSpaceSRGBType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceSRGBType Clone() => (ColorSpaceSRGBType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceSRGBType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the value. Null if not set.</summary>
        public string Name { get => Is(Native.isset_Name(Pointer)) ? Kept(Native.get_Name(Pointer)) : null; set => Demand(value == null ? Native.UnsetName(Pointer) : Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Conditions under which the value holds. Null until set; assigning copies.</summary>
        public ColorSpaceSpecificationSpectrumTristimulus ColorSpaceSpecificationSpectrumTristimulus { get => (ColorSpaceSpecificationSpectrumTristimulus)Child(3, Parts.ColorSpaceSpecificationSpectrumTristimulus); set => AssignChild(3, Parts.ColorSpaceSpecificationSpectrumTristimulus, value); }

        /// <summary>Gives ColorSpaceSpecificationSpectrumTristimulus, which it makes if it isn't there.</summary>
        public ColorSpaceSpecificationSpectrumTristimulus CreateColorSpaceSpecificationSpectrumTristimulus() => (ColorSpaceSpecificationSpectrumTristimulus)CreateChild(3, Parts.ColorSpaceSpecificationSpectrumTristimulus);

        /// <summary>Red channel, 0 to 1.</summary>
        public double Red { get => Kept(Native.get_Red(Pointer)); set => Demand(Native.set_Red(Pointer, value)); }

        /// <summary>Green channel, 0 to 1.</summary>
        public double Green { get => Kept(Native.get_Green(Pointer)); set => Demand(Native.set_Green(Pointer, value)); }

        /// <summary>Blue channel, 0 to 1.</summary>
        public double Blue { get => Kept(Native.get_Blue(Pointer)); set => Demand(Native.set_Blue(Pointer, value)); }

        /// <summary>Opacity, 0 (transparent) to 1 (opaque). Null if not set.</summary>
        public double? Alpha { get => Is(Native.isset_Alpha(Pointer)) ? Kept(Native.get_Alpha(Pointer)) : default(double?); set => Demand(value == null ? Native.UnsetAlpha(Pointer) : Native.set_Alpha(Pointer, value.Value)); }

        /// <summary>Bits per channel that the value was quantised to.</summary>
        public ColorDepthKind ColorDepth { get => (ColorDepthKind)Kept(Native.getenum_ColorDepth(Pointer)); set => Demand(Listed(Native.setenum_ColorDepth(Pointer, (int)value))); }
    }

    /// <summary>A colour in Adobe RGB (1998), as fractions of full drive.</summary>
    public partial class ColorSpaceAdobeRGBType : ColorSpaceType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceAdobeRGBType() : this(Native.Make()) { }

        internal ColorSpaceAdobeRGBType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceAdobeRGBType Clone() => (ColorSpaceAdobeRGBType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceAdobeRGBType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the value. Null if not set.</summary>
        public string Name { get => Is(Native.isset_Name(Pointer)) ? Kept(Native.get_Name(Pointer)) : null; set => Demand(value == null ? Native.UnsetName(Pointer) : Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Conditions under which the value holds. Null until set; assigning copies.</summary>
        public ColorSpaceSpecificationSpectrumTristimulus ColorSpaceSpecificationSpectrumTristimulus { get => (ColorSpaceSpecificationSpectrumTristimulus)Child(3, Parts.ColorSpaceSpecificationSpectrumTristimulus); set => AssignChild(3, Parts.ColorSpaceSpecificationSpectrumTristimulus, value); }

        /// <summary>Gives ColorSpaceSpecificationSpectrumTristimulus, which it makes if it isn't there.</summary>
        public ColorSpaceSpecificationSpectrumTristimulus CreateColorSpaceSpecificationSpectrumTristimulus() => (ColorSpaceSpecificationSpectrumTristimulus)CreateChild(3, Parts.ColorSpaceSpecificationSpectrumTristimulus);

        /// <summary>Red channel, 0 to 1.</summary>
        public double Red { get => Kept(Native.get_Red(Pointer)); set => Demand(Native.set_Red(Pointer, value)); }

        /// <summary>Green channel, 0 to 1.</summary>
        public double Green { get => Kept(Native.get_Green(Pointer)); set => Demand(Native.set_Green(Pointer, value)); }

        /// <summary>Blue channel, 0 to 1.</summary>
        public double Blue { get => Kept(Native.get_Blue(Pointer)); set => Demand(Native.set_Blue(Pointer, value)); }

        /// <summary>Opacity, 0 (transparent) to 1 (opaque). Null if not set.</summary>
        public double? Alpha { get => Is(Native.isset_Alpha(Pointer)) ? Kept(Native.get_Alpha(Pointer)) : default(double?); set => Demand(value == null ? Native.UnsetAlpha(Pointer) : Native.set_Alpha(Pointer, value.Value)); }

        /// <summary>Bits per channel that the value was quantised to.</summary>
        public ColorDepthKind ColorDepth { get => (ColorDepthKind)Kept(Native.getenum_ColorDepth(Pointer)); set => Demand(Listed(Native.setenum_ColorDepth(Pointer, (int)value))); }
    }

    /// <summary>A colour in Adobe Wide Gamut RGB, as fractions of full drive.</summary>
    public partial class ColorSpaceAdobeWideGamutRGBType : ColorSpaceType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceAdobeWideGamutRGBType() : this(Native.Make()) { }

        internal ColorSpaceAdobeWideGamutRGBType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceAdobeWideGamutRGBType Clone() => (ColorSpaceAdobeWideGamutRGBType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceAdobeWideGamutRGBType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the value. Null if not set.</summary>
        public string Name { get => Is(Native.isset_Name(Pointer)) ? Kept(Native.get_Name(Pointer)) : null; set => Demand(value == null ? Native.UnsetName(Pointer) : Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Conditions under which the value holds. Null until set; assigning copies.</summary>
        public ColorSpaceSpecificationSpectrumTristimulus ColorSpaceSpecificationSpectrumTristimulus { get => (ColorSpaceSpecificationSpectrumTristimulus)Child(3, Parts.ColorSpaceSpecificationSpectrumTristimulus); set => AssignChild(3, Parts.ColorSpaceSpecificationSpectrumTristimulus, value); }

        /// <summary>Gives ColorSpaceSpecificationSpectrumTristimulus, which it makes if it isn't there.</summary>
        public ColorSpaceSpecificationSpectrumTristimulus CreateColorSpaceSpecificationSpectrumTristimulus() => (ColorSpaceSpecificationSpectrumTristimulus)CreateChild(3, Parts.ColorSpaceSpecificationSpectrumTristimulus);

        /// <summary>Red channel, 0 to 1.</summary>
        public double Red { get => Kept(Native.get_Red(Pointer)); set => Demand(Native.set_Red(Pointer, value)); }

        /// <summary>Green channel, 0 to 1.</summary>
        public double Green { get => Kept(Native.get_Green(Pointer)); set => Demand(Native.set_Green(Pointer, value)); }

        /// <summary>Blue channel, 0 to 1.</summary>
        public double Blue { get => Kept(Native.get_Blue(Pointer)); set => Demand(Native.set_Blue(Pointer, value)); }

        /// <summary>Opacity, 0 (transparent) to 1 (opaque). Null if not set.</summary>
        public double? Alpha { get => Is(Native.isset_Alpha(Pointer)) ? Kept(Native.get_Alpha(Pointer)) : default(double?); set => Demand(value == null ? Native.UnsetAlpha(Pointer) : Native.set_Alpha(Pointer, value.Value)); }

        /// <summary>Bits per channel that the value was quantised to.</summary>
        public ColorDepthKind ColorDepth { get => (ColorDepthKind)Kept(Native.getenum_ColorDepth(Pointer)); set => Demand(Listed(Native.setenum_ColorDepth(Pointer, (int)value))); }
    }

    /// <summary>A process colour as percentages of cyan, magenta, yellow and black, with spot inks if need
    /// be.</summary>
    public partial class ColorSpaceCMYKType : ColorSpaceType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceCMYKType() : this(Native.Make()) { }

        internal ColorSpaceCMYKType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceCMYKType Clone() => (ColorSpaceCMYKType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceCMYKType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the value. Null if not set.</summary>
        public string Name { get => Is(Native.isset_Name(Pointer)) ? Kept(Native.get_Name(Pointer)) : null; set => Demand(value == null ? Native.UnsetName(Pointer) : Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Conditions under which the value holds. Null until set; assigning copies.</summary>
        public ColorSpaceSpecificationSpectrumGeneric ColorSpaceSpecificationSpectrumGeneric { get => (ColorSpaceSpecificationSpectrumGeneric)Child(3, Parts.ColorSpaceSpecificationSpectrumGeneric); set => AssignChild(3, Parts.ColorSpaceSpecificationSpectrumGeneric, value); }

        /// <summary>Gives ColorSpaceSpecificationSpectrumGeneric, which it makes if it isn't there.</summary>
        public ColorSpaceSpecificationSpectrumGeneric CreateColorSpaceSpecificationSpectrumGeneric() => (ColorSpaceSpecificationSpectrumGeneric)CreateChild(3, Parts.ColorSpaceSpecificationSpectrumGeneric);

        /// <summary>Cyan in percent, 0 to 100.</summary>
        public double Cyan { get => Kept(Native.get_Cyan(Pointer)); set => Demand(Native.set_Cyan(Pointer, value)); }

        /// <summary>Magenta in percent, 0 to 100.</summary>
        public double Magenta { get => Kept(Native.get_Magenta(Pointer)); set => Demand(Native.set_Magenta(Pointer, value)); }

        /// <summary>Yellow in percent, 0 to 100.</summary>
        public double Yellow { get => Kept(Native.get_Yellow(Pointer)); set => Demand(Native.set_Yellow(Pointer, value)); }

        /// <summary>Black in percent, 0 to 100.</summary>
        public double Black { get => Kept(Native.get_Black(Pointer)); set => Demand(Native.set_Black(Pointer, value)); }

        /// <summary>A spot ink printed besides the process inks.</summary>
        public ObjectList<SpotColorType> SpotColors => (ObjectList<SpotColorType>)(Part(4) ?? Remember(4, new ObjectList<SpotColorType>(this, "SpotColors", Parts.SpotColor)));

        internal static ColorSpaceCMYKType Of(Handle handle)
        {
            switch (Native.Identity(handle.Pointer))
            {
                case "ColorSpaceCMYKPlusNType": return new ColorSpaceCMYKPlusNType(handle);
                default: return new ColorSpaceCMYKType(handle);
            }
        }
    }

    /// <summary>A process colour with further named ink channels.</summary>
    public partial class ColorSpaceCMYKPlusNType : ColorSpaceCMYKType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceCMYKPlusNType() : this(Native.Make()) { }

        internal ColorSpaceCMYKPlusNType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceCMYKPlusNType Clone() => (ColorSpaceCMYKPlusNType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceCMYKPlusNType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the ink set. Null if not set.</summary>
        public string ColorSpaceName { get => Is(Native.isset_ColorSpaceName(Pointer)) ? Kept(Native.get_ColorSpaceName(Pointer)) : null; set => Demand(value == null ? Native.UnsetColorSpaceName(Pointer) : Native.set_ColorSpaceName(Pointer, Library.Whole(value))); }

        /// <summary>One further channel.</summary>
        public ObjectList<Color> Colors => (ObjectList<Color>)(Part(5) ?? Remember(5, new ObjectList<Color>(this, "Colors", Parts.Color)));
    }

    /// <summary>One ink channel besides the process inks, by name and amount.</summary>
    public partial class Color : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public Color() : this(Native.Make()) { }

        internal Color(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new Color Clone() => (Color)Copy();
        internal override VyrObject Copy() => Copied(new Color(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the channel.</summary>
        public string Name { get => Kept(Native.get_Name(Pointer)); set => Demand(Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Amount of the ink; no unit is stated.</summary>
        public double Value { get => Kept(Native.get_Value(Pointer)); set => Demand(Native.set_Value(Pointer, value)); }
    }

    /// <summary>A process colour of six inks: cyan, magenta, yellow, black, orange and green.</summary>
    public partial class ColorSpaceTINTORAOctavanticType : ColorSpaceType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceTINTORAOctavanticType() : this(Native.Make()) { }

        internal ColorSpaceTINTORAOctavanticType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceTINTORAOctavanticType Clone() => (ColorSpaceTINTORAOctavanticType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceTINTORAOctavanticType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the value. Null if not set.</summary>
        public string Name { get => Is(Native.isset_Name(Pointer)) ? Kept(Native.get_Name(Pointer)) : null; set => Demand(value == null ? Native.UnsetName(Pointer) : Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Conditions under which the value holds. Null until set; assigning copies.</summary>
        public ColorSpaceSpecificationSpectrumGeneric ColorSpaceSpecificationSpectrumGeneric { get => (ColorSpaceSpecificationSpectrumGeneric)Child(3, Parts.ColorSpaceSpecificationSpectrumGeneric); set => AssignChild(3, Parts.ColorSpaceSpecificationSpectrumGeneric, value); }

        /// <summary>Gives ColorSpaceSpecificationSpectrumGeneric, which it makes if it isn't there.</summary>
        public ColorSpaceSpecificationSpectrumGeneric CreateColorSpaceSpecificationSpectrumGeneric() => (ColorSpaceSpecificationSpectrumGeneric)CreateChild(3, Parts.ColorSpaceSpecificationSpectrumGeneric);

        /// <summary>Cyan in percent, 0 to 100.</summary>
        public double Cyan { get => Kept(Native.get_Cyan(Pointer)); set => Demand(Native.set_Cyan(Pointer, value)); }

        /// <summary>Magenta in percent, 0 to 100.</summary>
        public double Magenta { get => Kept(Native.get_Magenta(Pointer)); set => Demand(Native.set_Magenta(Pointer, value)); }

        /// <summary>Yellow in percent, 0 to 100.</summary>
        public double Yellow { get => Kept(Native.get_Yellow(Pointer)); set => Demand(Native.set_Yellow(Pointer, value)); }

        /// <summary>Black in percent, 0 to 100.</summary>
        public double Black { get => Kept(Native.get_Black(Pointer)); set => Demand(Native.set_Black(Pointer, value)); }

        /// <summary>Orange in percent, 0 to 100.</summary>
        public double Orange { get => Kept(Native.get_Orange(Pointer)); set => Demand(Native.set_Orange(Pointer, value)); }

        /// <summary>Green in percent, 0 to 100.</summary>
        public double Green { get => Kept(Native.get_Green(Pointer)); set => Demand(Native.set_Green(Pointer, value)); }

        /// <summary>A spot ink printed besides the process inks.</summary>
        public ObjectList<SpotColorType> SpotColors => (ObjectList<SpotColorType>)(Part(4) ?? Remember(4, new ObjectList<SpotColorType>(this, "SpotColors", Parts.SpotColor)));
    }

    /// <summary>A colour by hue, saturation and lightness.</summary>
    public partial class ColorSpaceHSLType : ColorSpaceType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceHSLType() : this(Native.Make()) { }

        internal ColorSpaceHSLType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceHSLType Clone() => (ColorSpaceHSLType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceHSLType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the value. Null if not set.</summary>
        public string Name { get => Is(Native.isset_Name(Pointer)) ? Kept(Native.get_Name(Pointer)) : null; set => Demand(value == null ? Native.UnsetName(Pointer) : Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Conditions under which the value holds. Null until set; assigning copies.</summary>
        public ColorSpaceSpecificationSpectrumGeneric ColorSpaceSpecificationSpectrumGeneric { get => (ColorSpaceSpecificationSpectrumGeneric)Child(3, Parts.ColorSpaceSpecificationSpectrumGeneric); set => AssignChild(3, Parts.ColorSpaceSpecificationSpectrumGeneric, value); }

        /// <summary>Gives ColorSpaceSpecificationSpectrumGeneric, which it makes if it isn't there.</summary>
        public ColorSpaceSpecificationSpectrumGeneric CreateColorSpaceSpecificationSpectrumGeneric() => (ColorSpaceSpecificationSpectrumGeneric)CreateChild(3, Parts.ColorSpaceSpecificationSpectrumGeneric);

        /// <summary>Hue angle in degrees, from 0 to below 360.</summary>
        public double Hue { get => Kept(Native.get_Hue(Pointer)); set => Demand(Native.set_Hue(Pointer, value)); }

        /// <summary>Saturation, 0 to 1.</summary>
        public double Saturation { get => Kept(Native.get_Saturation(Pointer)); set => Demand(Native.set_Saturation(Pointer, value)); }

        /// <summary>Lightness, 0 to 1.</summary>
        public double Lightness { get => Kept(Native.get_Lightness(Pointer)); set => Demand(Native.set_Lightness(Pointer, value)); }
    }

    /// <summary>A colour by hue, saturation and value.</summary>
    public partial class ColorSpaceHSVType : ColorSpaceType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceHSVType() : this(Native.Make()) { }

        internal ColorSpaceHSVType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceHSVType Clone() => (ColorSpaceHSVType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceHSVType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the value. Null if not set.</summary>
        public string Name { get => Is(Native.isset_Name(Pointer)) ? Kept(Native.get_Name(Pointer)) : null; set => Demand(value == null ? Native.UnsetName(Pointer) : Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Conditions under which the value holds. Null until set; assigning copies.</summary>
        public ColorSpaceSpecificationSpectrumGeneric ColorSpaceSpecificationSpectrumGeneric { get => (ColorSpaceSpecificationSpectrumGeneric)Child(3, Parts.ColorSpaceSpecificationSpectrumGeneric); set => AssignChild(3, Parts.ColorSpaceSpecificationSpectrumGeneric, value); }

        /// <summary>Gives ColorSpaceSpecificationSpectrumGeneric, which it makes if it isn't there.</summary>
        public ColorSpaceSpecificationSpectrumGeneric CreateColorSpaceSpecificationSpectrumGeneric() => (ColorSpaceSpecificationSpectrumGeneric)CreateChild(3, Parts.ColorSpaceSpecificationSpectrumGeneric);

        /// <summary>Hue angle in degrees, from 0 to below 360.</summary>
        public double Hue { get => Kept(Native.get_Hue(Pointer)); set => Demand(Native.set_Hue(Pointer, value)); }

        /// <summary>Saturation, 0 to 1.</summary>
        public double Saturation { get => Kept(Native.get_Saturation(Pointer)); set => Demand(Native.set_Saturation(Pointer, value)); }

        /// <summary>Value, the largest of the channels, 0 to 1.</summary>
        public double Value { get => Kept(Native.get_Value(Pointer)); set => Demand(Native.set_Value(Pointer, value)); }
    }

    /// <summary>A video colour by luma and the two colour differences of PAL.</summary>
    public partial class ColorSpaceYUVType : ColorSpaceType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceYUVType() : this(Native.Make()) { }

        internal ColorSpaceYUVType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceYUVType Clone() => (ColorSpaceYUVType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceYUVType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the value. Null if not set.</summary>
        public string Name { get => Is(Native.isset_Name(Pointer)) ? Kept(Native.get_Name(Pointer)) : null; set => Demand(value == null ? Native.UnsetName(Pointer) : Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Conditions under which the value holds. Null until set; assigning copies.</summary>
        public ColorSpaceSpecificationSpectrumGeneric ColorSpaceSpecificationSpectrumGeneric { get => (ColorSpaceSpecificationSpectrumGeneric)Child(3, Parts.ColorSpaceSpecificationSpectrumGeneric); set => AssignChild(3, Parts.ColorSpaceSpecificationSpectrumGeneric, value); }

        /// <summary>Gives ColorSpaceSpecificationSpectrumGeneric, which it makes if it isn't there.</summary>
        public ColorSpaceSpecificationSpectrumGeneric CreateColorSpaceSpecificationSpectrumGeneric() => (ColorSpaceSpecificationSpectrumGeneric)CreateChild(3, Parts.ColorSpaceSpecificationSpectrumGeneric);

        /// <summary>Luma, 0 to 1.</summary>
        public double Y { get => Kept(Native.get_Y(Pointer)); set => Demand(Native.set_Y(Pointer, value)); }

        /// <summary>Blue difference, -0.436 to 0.436.</summary>
        public double U { get => Kept(Native.get_U(Pointer)); set => Demand(Native.set_U(Pointer, value)); }

        /// <summary>Red difference, -0.615 to 0.615.</summary>
        public double V { get => Kept(Native.get_V(Pointer)); set => Demand(Native.set_V(Pointer, value)); }
    }

    /// <summary>A video colour by luma, in-phase and quadrature signal, as in NTSC.</summary>
    public partial class ColorSpaceYIQType : ColorSpaceType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceYIQType() : this(Native.Make()) { }

        internal ColorSpaceYIQType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceYIQType Clone() => (ColorSpaceYIQType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceYIQType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the value. Null if not set.</summary>
        public string Name { get => Is(Native.isset_Name(Pointer)) ? Kept(Native.get_Name(Pointer)) : null; set => Demand(value == null ? Native.UnsetName(Pointer) : Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Conditions under which the value holds. Null until set; assigning copies.</summary>
        public ColorSpaceSpecificationSpectrumGeneric ColorSpaceSpecificationSpectrumGeneric { get => (ColorSpaceSpecificationSpectrumGeneric)Child(3, Parts.ColorSpaceSpecificationSpectrumGeneric); set => AssignChild(3, Parts.ColorSpaceSpecificationSpectrumGeneric, value); }

        /// <summary>Gives ColorSpaceSpecificationSpectrumGeneric, which it makes if it isn't there.</summary>
        public ColorSpaceSpecificationSpectrumGeneric CreateColorSpaceSpecificationSpectrumGeneric() => (ColorSpaceSpecificationSpectrumGeneric)CreateChild(3, Parts.ColorSpaceSpecificationSpectrumGeneric);

        /// <summary>Luma, 0 to 1.</summary>
        public double Y { get => Kept(Native.get_Y(Pointer)); set => Demand(Native.set_Y(Pointer, value)); }

        /// <summary>In-phase signal, orange to blue, -0.5957 to 0.5957.</summary>
        public double I { get => Kept(Native.get_I(Pointer)); set => Demand(Native.set_I(Pointer, value)); }

        /// <summary>Quadrature signal, purple to green, -0.5226 to 0.5226.</summary>
        public double Q { get => Kept(Native.get_Q(Pointer)); set => Demand(Native.set_Q(Pointer, value)); }
    }

    /// <summary>A video colour by luma and the blue and red differences, all scaled to 0 to 1.</summary>
    public partial class ColorSpaceYBRType : ColorSpaceType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceYBRType() : this(Native.Make()) { }

        internal ColorSpaceYBRType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceYBRType Clone() => (ColorSpaceYBRType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceYBRType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the value. Null if not set.</summary>
        public string Name { get => Is(Native.isset_Name(Pointer)) ? Kept(Native.get_Name(Pointer)) : null; set => Demand(value == null ? Native.UnsetName(Pointer) : Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Conditions under which the value holds. Null until set; assigning copies.</summary>
        public ColorSpaceSpecificationSpectrumGeneric ColorSpaceSpecificationSpectrumGeneric { get => (ColorSpaceSpecificationSpectrumGeneric)Child(3, Parts.ColorSpaceSpecificationSpectrumGeneric); set => AssignChild(3, Parts.ColorSpaceSpecificationSpectrumGeneric, value); }

        /// <summary>Gives ColorSpaceSpecificationSpectrumGeneric, which it makes if it isn't there.</summary>
        public ColorSpaceSpecificationSpectrumGeneric CreateColorSpaceSpecificationSpectrumGeneric() => (ColorSpaceSpecificationSpectrumGeneric)CreateChild(3, Parts.ColorSpaceSpecificationSpectrumGeneric);

        /// <summary>Luma, 0 to 1.</summary>
        public double Y { get => Kept(Native.get_Y(Pointer)); set => Demand(Native.set_Y(Pointer, value)); }

        /// <summary>Blue difference, 0 to 1.</summary>
        public double B { get => Kept(Native.get_B(Pointer)); set => Demand(Native.set_B(Pointer, value)); }

        /// <summary>Red difference, 0 to 1.</summary>
        public double R { get => Kept(Native.get_R(Pointer)); set => Demand(Native.set_R(Pointer, value)); }
    }

    /// <summary>A colour in a device's own RGB, as fractions of full drive.</summary>
    public partial class ColorSpaceRGB : ColorSpaceRGBType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceRGB() : this(Native.Make()) { }

        internal ColorSpaceRGB(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceRGB Clone() => (ColorSpaceRGB)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceRGB(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element ColorSpaceRGB as its root.</summary>
        public static ColorSpaceRGB Load(string path) { TryLoad(path, out ColorSpaceRGB loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out ColorSpaceRGB loaded, LoadOptions options = null) => Load(new ColorSpaceRGB(), path, options, out loaded);
    }

    /// <summary>A colour in sRGB (IEC 61966-2-1), as fractions of full drive.</summary>
    public partial class ColorSpaceSRGB : ColorSpaceSRGBType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceSRGB() : this(Native.Make()) { }

        internal ColorSpaceSRGB(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceSRGB Clone() => (ColorSpaceSRGB)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceSRGB(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element ColorSpaceSRGB as its root.</summary>
        public static ColorSpaceSRGB Load(string path) { TryLoad(path, out ColorSpaceSRGB loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out ColorSpaceSRGB loaded, LoadOptions options = null) => Load(new ColorSpaceSRGB(), path, options, out loaded);
    }

    /// <summary>A colour in Adobe RGB (1998), as fractions of full drive.</summary>
    public partial class ColorSpaceAdobeRGB : ColorSpaceAdobeRGBType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceAdobeRGB() : this(Native.Make()) { }

        internal ColorSpaceAdobeRGB(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceAdobeRGB Clone() => (ColorSpaceAdobeRGB)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceAdobeRGB(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element ColorSpaceAdobeRGB as its root.</summary>
        public static ColorSpaceAdobeRGB Load(string path) { TryLoad(path, out ColorSpaceAdobeRGB loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out ColorSpaceAdobeRGB loaded, LoadOptions options = null) => Load(new ColorSpaceAdobeRGB(), path, options, out loaded);
    }

    /// <summary>A process colour with further named ink channels.</summary>
    public partial class ColorSpaceCMYKPlusN : ColorSpaceCMYKPlusNType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceCMYKPlusN() : this(Native.Make()) { }

        internal ColorSpaceCMYKPlusN(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceCMYKPlusN Clone() => (ColorSpaceCMYKPlusN)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceCMYKPlusN(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element ColorSpaceCMYKPlusN as its root.</summary>
        public static ColorSpaceCMYKPlusN Load(string path) { TryLoad(path, out ColorSpaceCMYKPlusN loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out ColorSpaceCMYKPlusN loaded, LoadOptions options = null) => Load(new ColorSpaceCMYKPlusN(), path, options, out loaded);
    }

    /// <summary>A colour in Adobe Wide Gamut RGB, as fractions of full drive.</summary>
    public partial class ColorSpaceAdobeWideGamutRGB : ColorSpaceAdobeWideGamutRGBType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceAdobeWideGamutRGB() : this(Native.Make()) { }

        internal ColorSpaceAdobeWideGamutRGB(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceAdobeWideGamutRGB Clone() => (ColorSpaceAdobeWideGamutRGB)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceAdobeWideGamutRGB(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element ColorSpaceAdobeWideGamutRGB as its root.</summary>
        public static ColorSpaceAdobeWideGamutRGB Load(string path) { TryLoad(path, out ColorSpaceAdobeWideGamutRGB loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out ColorSpaceAdobeWideGamutRGB loaded, LoadOptions options = null) => Load(new ColorSpaceAdobeWideGamutRGB(), path, options, out loaded);
    }

    /// <summary>A colour by hue, saturation and lightness.</summary>
    public partial class ColorSpaceHSL : ColorSpaceHSLType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceHSL() : this(Native.Make()) { }

        internal ColorSpaceHSL(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceHSL Clone() => (ColorSpaceHSL)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceHSL(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element ColorSpaceHSL as its root.</summary>
        public static ColorSpaceHSL Load(string path) { TryLoad(path, out ColorSpaceHSL loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out ColorSpaceHSL loaded, LoadOptions options = null) => Load(new ColorSpaceHSL(), path, options, out loaded);
    }

    /// <summary>A colour by hue, saturation and value.</summary>
    public partial class ColorSpaceHSV : ColorSpaceHSVType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceHSV() : this(Native.Make()) { }

        internal ColorSpaceHSV(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceHSV Clone() => (ColorSpaceHSV)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceHSV(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element ColorSpaceHSV as its root.</summary>
        public static ColorSpaceHSV Load(string path) { TryLoad(path, out ColorSpaceHSV loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out ColorSpaceHSV loaded, LoadOptions options = null) => Load(new ColorSpaceHSV(), path, options, out loaded);
    }

    /// <summary>A process colour as percentages of cyan, magenta, yellow and black, with spot inks if need
    /// be.</summary>
    public partial class ColorSpaceCMYK : ColorSpaceCMYKType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceCMYK() : this(Native.Make()) { }

        internal ColorSpaceCMYK(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceCMYK Clone() => (ColorSpaceCMYK)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceCMYK(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element ColorSpaceCMYK as its root.</summary>
        public static ColorSpaceCMYK Load(string path) { TryLoad(path, out ColorSpaceCMYK loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out ColorSpaceCMYK loaded, LoadOptions options = null) => Load(new ColorSpaceCMYK(), path, options, out loaded);
    }

    /// <summary>A process colour of six inks: cyan, magenta, yellow, black, orange and green.</summary>
    public partial class ColorSpaceTINTORAOctavantic : ColorSpaceTINTORAOctavanticType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceTINTORAOctavantic() : this(Native.Make()) { }

        internal ColorSpaceTINTORAOctavantic(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceTINTORAOctavantic Clone() => (ColorSpaceTINTORAOctavantic)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceTINTORAOctavantic(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element ColorSpaceTINTORAOctavantic as its root.</summary>
        public static ColorSpaceTINTORAOctavantic Load(string path) { TryLoad(path, out ColorSpaceTINTORAOctavantic loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out ColorSpaceTINTORAOctavantic loaded, LoadOptions options = null) => Load(new ColorSpaceTINTORAOctavantic(), path, options, out loaded);
    }

    /// <summary>A video colour by luma and the two colour differences of PAL.</summary>
    public partial class ColorSpaceYUV : ColorSpaceYUVType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceYUV() : this(Native.Make()) { }

        internal ColorSpaceYUV(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceYUV Clone() => (ColorSpaceYUV)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceYUV(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element ColorSpaceYUV as its root.</summary>
        public static ColorSpaceYUV Load(string path) { TryLoad(path, out ColorSpaceYUV loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out ColorSpaceYUV loaded, LoadOptions options = null) => Load(new ColorSpaceYUV(), path, options, out loaded);
    }

    /// <summary>A video colour by luma, in-phase and quadrature signal, as in NTSC.</summary>
    public partial class ColorSpaceYIQ : ColorSpaceYIQType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceYIQ() : this(Native.Make()) { }

        internal ColorSpaceYIQ(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceYIQ Clone() => (ColorSpaceYIQ)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceYIQ(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element ColorSpaceYIQ as its root.</summary>
        public static ColorSpaceYIQ Load(string path) { TryLoad(path, out ColorSpaceYIQ loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out ColorSpaceYIQ loaded, LoadOptions options = null) => Load(new ColorSpaceYIQ(), path, options, out loaded);
    }

    /// <summary>A video colour by luma and the blue and red differences, all scaled to 0 to 1.</summary>
    public partial class ColorSpaceYBR : ColorSpaceYBRType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceYBR() : this(Native.Make()) { }

        internal ColorSpaceYBR(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceYBR Clone() => (ColorSpaceYBR)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceYBR(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element ColorSpaceYBR as its root.</summary>
        public static ColorSpaceYBR Load(string path) { TryLoad(path, out ColorSpaceYBR loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out ColorSpaceYBR loaded, LoadOptions options = null) => Load(new ColorSpaceYBR(), path, options, out loaded);
    }

    /// <summary>A spot ink and how much of it is printed.</summary>
    public partial class SpotColorType : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public SpotColorType() : this(Native.Make()) { }

        internal SpotColorType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new SpotColorType Clone() => (SpotColorType)Copy();
        internal override VyrObject Copy() => Copied(new SpotColorType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the ink; not empty.</summary>
        public string Name { get => Kept(Native.get_Name(Pointer)); set => Demand(Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Tone value in percent, 0 to 100.</summary>
        public double Percentage { get => Kept(Native.get_Percentage(Pointer)); set => Demand(Native.set_Percentage(Pointer, value)); }
    }
}
