// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.

using System;

namespace Vyr
{
    /// <summary>The value from which another one was derived, or nil where there is none to tell.</summary>
    public partial class ParentColorSpace : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ParentColorSpace() : this(Native.Make()) { }

        internal ParentColorSpace(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ParentColorSpace Clone() => (ParentColorSpace)Copy();
        internal override VyrObject Copy() => Copied(new ParentColorSpace(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>True for an element that says that it has no value.</summary>
        public bool IsNil => Is(Native.isnil_ParentColorSpace(Pointer));

        /// <summary>Makes it an element that says that it has no value. `Reset` takes that back; what it holds until
        /// then isn't saved.</summary>
        public void SetNil() { Native.setnil_ParentColorSpace(Pointer); Keep(); }

        /// <summary>The parent's value; the element's name says in which colour space. Null until set; assigning
        /// copies.</summary>
        public ColorSpaceChoice ColorSpace { get => (ColorSpaceChoice)Child(0, Parts.ColorSpace); set => AssignChild(0, Parts.ColorSpace, value); }

        /// <summary>Gives ColorSpace, which it makes if it isn't there.</summary>
        public ColorSpaceChoice CreateColorSpace() => (ColorSpaceChoice)CreateChild(0, Parts.ColorSpace);
    }

    /// <summary>A colour value in some colour space.</summary>
    public partial class ColorSpaceType : VyrObject
    {
        internal ColorSpaceType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceType Clone() => (ColorSpaceType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Free remarks on the value. Null if not set.</summary>
        public string Comments { get => Is(Native.isset_Comments(Pointer)) ? Kept(Native.get_Comments(Pointer)) : null; set => Demand(value == null ? Native.UnsetComments(Pointer) : Native.set_Comments(Pointer, Library.Whole(value))); }

        /// <summary>Identifier of the value. Null if not set.</summary>
        public string UniqueID { get => Is(Native.isset_UniqueID(Pointer)) ? Kept(Native.get_UniqueID(Pointer)) : null; set => Demand(value == null ? Native.UnsetUniqueID(Pointer) : Native.set_UniqueID(Pointer, Library.Whole(value))); }

        /// <summary>A named value of the user's own.</summary>
        public ObjectList<CustomAttributeType> CustomAttributes => (ObjectList<CustomAttributeType>)(Part(0) ?? Remember(0, new ObjectList<CustomAttributeType>(this, "CustomAttributes", Parts.CustomAttribute)));

        /// <summary>The value that this one was computed from. Null until set; assigning copies.</summary>
        public ParentColorSpace ParentColorSpace { get => (ParentColorSpace)Child(1, Parts.ParentColorSpace); set => AssignChild(1, Parts.ParentColorSpace, value); }

        /// <summary>Gives ParentColorSpace, which it makes if it isn't there.</summary>
        public ParentColorSpace CreateParentColorSpace() => (ParentColorSpace)CreateChild(1, Parts.ParentColorSpace);

        /// <summary>Time of one change, with time zone.</summary>
        public DateTimeList ChangeHistory => ListOfTimes(2, Parts.ChangeHistory, @".+T.+(Z|[+\-].+)");
    }

    /// <summary>Head of the colour values: any of them can stand in its place.</summary>
    public abstract partial class ColorSpace : ColorSpaceType
    {
        internal ColorSpace(Handle handle) : base(handle) { }
    }

    /// <summary>A reflective colour in CIE 1976 L*a*b*.</summary>
    public partial class ColorSpaceCIELabType : ColorSpaceType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceCIELabType() : this(Native.Make()) { }

        internal ColorSpaceCIELabType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceCIELabType Clone() => (ColorSpaceCIELabType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceCIELabType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the value. Null if not set.</summary>
        public string Name { get => Is(Native.isset_Name(Pointer)) ? Kept(Native.get_Name(Pointer)) : null; set => Demand(value == null ? Native.UnsetName(Pointer) : Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Conditions under which the value holds. Null until set; assigning copies.</summary>
        public ColorSpaceSpecificationSpectrumTristimulus ColorSpaceSpecificationSpectrumTristimulus { get => (ColorSpaceSpecificationSpectrumTristimulus)Child(3, Parts.ColorSpaceSpecificationSpectrumTristimulus); set => AssignChild(3, Parts.ColorSpaceSpecificationSpectrumTristimulus, value); }

        /// <summary>Gives ColorSpaceSpecificationSpectrumTristimulus, which it makes if it isn't there.</summary>
        public ColorSpaceSpecificationSpectrumTristimulus CreateColorSpaceSpecificationSpectrumTristimulus() => (ColorSpaceSpecificationSpectrumTristimulus)CreateChild(3, Parts.ColorSpaceSpecificationSpectrumTristimulus);

        /// <summary>Lightness L*, 0 (black) to 150; 100 is the perfect diffuser.</summary>
        public double L { get => Kept(Native.get_L(Pointer)); set => Demand(Native.set_L(Pointer, value)); }

        /// <summary>a*, from green (negative) to red, -150 to 150.</summary>
        public double A { get => Kept(Native.get_A(Pointer)); set => Demand(Native.set_A(Pointer, value)); }

        /// <summary>b*, from blue (negative) to yellow, -150 to 150.</summary>
        public double B { get => Kept(Native.get_B(Pointer)); set => Demand(Native.set_B(Pointer, value)); }
    }

    /// <summary>A reflective colour in CIE L*C*h, the polar form of CIE 1976 L*a*b*.</summary>
    public partial class ColorSpaceCIELChType : ColorSpaceType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceCIELChType() : this(Native.Make()) { }

        internal ColorSpaceCIELChType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceCIELChType Clone() => (ColorSpaceCIELChType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceCIELChType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the value. Null if not set.</summary>
        public string Name { get => Is(Native.isset_Name(Pointer)) ? Kept(Native.get_Name(Pointer)) : null; set => Demand(value == null ? Native.UnsetName(Pointer) : Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Conditions under which the value holds. Null until set; assigning copies.</summary>
        public ColorSpaceSpecificationSpectrumTristimulus ColorSpaceSpecificationSpectrumTristimulus { get => (ColorSpaceSpecificationSpectrumTristimulus)Child(3, Parts.ColorSpaceSpecificationSpectrumTristimulus); set => AssignChild(3, Parts.ColorSpaceSpecificationSpectrumTristimulus, value); }

        /// <summary>Gives ColorSpaceSpecificationSpectrumTristimulus, which it makes if it isn't there.</summary>
        public ColorSpaceSpecificationSpectrumTristimulus CreateColorSpaceSpecificationSpectrumTristimulus() => (ColorSpaceSpecificationSpectrumTristimulus)CreateChild(3, Parts.ColorSpaceSpecificationSpectrumTristimulus);

        /// <summary>Lightness L*, 0 to 100.</summary>
        public double L { get => Kept(Native.get_L(Pointer)); set => Demand(Native.set_L(Pointer, value)); }

        /// <summary>Chroma C*, 0 (neutral) to 150.</summary>
        public double C { get => Kept(Native.get_C(Pointer)); set => Demand(Native.set_C(Pointer, value)); }

        /// <summary>Hue angle h in degrees, from 0 to below 360.</summary>
        public double H { get => Kept(Native.get_H(Pointer)); set => Demand(Native.set_H(Pointer, value)); }
    }

    /// <summary>A reflective colour in CIE 1976 L*u*v*.</summary>
    public partial class ColorSpaceCIELuvType : ColorSpaceType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceCIELuvType() : this(Native.Make()) { }

        internal ColorSpaceCIELuvType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceCIELuvType Clone() => (ColorSpaceCIELuvType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceCIELuvType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the value. Null if not set.</summary>
        public string Name { get => Is(Native.isset_Name(Pointer)) ? Kept(Native.get_Name(Pointer)) : null; set => Demand(value == null ? Native.UnsetName(Pointer) : Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Conditions under which the value holds. Null until set; assigning copies.</summary>
        public ColorSpaceSpecificationSpectrumTristimulus ColorSpaceSpecificationSpectrumTristimulus { get => (ColorSpaceSpecificationSpectrumTristimulus)Child(3, Parts.ColorSpaceSpecificationSpectrumTristimulus); set => AssignChild(3, Parts.ColorSpaceSpecificationSpectrumTristimulus, value); }

        /// <summary>Gives ColorSpaceSpecificationSpectrumTristimulus, which it makes if it isn't there.</summary>
        public ColorSpaceSpecificationSpectrumTristimulus CreateColorSpaceSpecificationSpectrumTristimulus() => (ColorSpaceSpecificationSpectrumTristimulus)CreateChild(3, Parts.ColorSpaceSpecificationSpectrumTristimulus);

        /// <summary>Lightness L*, 0 to 100.</summary>
        public double L { get => Kept(Native.get_L(Pointer)); set => Demand(Native.set_L(Pointer, value)); }

        /// <summary>u*, from green (negative) to red, -134 to 220.</summary>
        public double U { get => Kept(Native.get_U(Pointer)); set => Demand(Native.set_U(Pointer, value)); }

        /// <summary>v*, from blue (negative) to yellow, -140 to 122.</summary>
        public double V { get => Kept(Native.get_V(Pointer)); set => Demand(Native.set_V(Pointer, value)); }
    }

    /// <summary>A reflective colour in CIE XYZ, scaled so that Y of the perfect diffuser is 1.</summary>
    public partial class ColorSpaceCIEXYZType : ColorSpaceType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceCIEXYZType() : this(Native.Make()) { }

        internal ColorSpaceCIEXYZType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceCIEXYZType Clone() => (ColorSpaceCIEXYZType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceCIEXYZType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the value. Null if not set.</summary>
        public string Name { get => Is(Native.isset_Name(Pointer)) ? Kept(Native.get_Name(Pointer)) : null; set => Demand(value == null ? Native.UnsetName(Pointer) : Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Conditions under which the value holds. Null until set; assigning copies.</summary>
        public ColorSpaceSpecificationSpectrumTristimulus ColorSpaceSpecificationSpectrumTristimulus { get => (ColorSpaceSpecificationSpectrumTristimulus)Child(3, Parts.ColorSpaceSpecificationSpectrumTristimulus); set => AssignChild(3, Parts.ColorSpaceSpecificationSpectrumTristimulus, value); }

        /// <summary>Gives ColorSpaceSpecificationSpectrumTristimulus, which it makes if it isn't there.</summary>
        public ColorSpaceSpecificationSpectrumTristimulus CreateColorSpaceSpecificationSpectrumTristimulus() => (ColorSpaceSpecificationSpectrumTristimulus)CreateChild(3, Parts.ColorSpaceSpecificationSpectrumTristimulus);

        /// <summary>Tristimulus value X, 0 to 1.</summary>
        public double X { get => Kept(Native.get_X(Pointer)); set => Demand(Native.set_X(Pointer, value)); }

        /// <summary>Tristimulus value Y, the luminance factor, 0 to 1.</summary>
        public double Y { get => Kept(Native.get_Y(Pointer)); set => Demand(Native.set_Y(Pointer, value)); }

        /// <summary>Tristimulus value Z, 0 to 1.</summary>
        public double Z { get => Kept(Native.get_Z(Pointer)); set => Demand(Native.set_Z(Pointer, value)); }
    }

    /// <summary>A reflective colour by its CIE chromaticity and luminance factor.</summary>
    public partial class ColorSpaceCIExyYType : ColorSpaceType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceCIExyYType() : this(Native.Make()) { }

        internal ColorSpaceCIExyYType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceCIExyYType Clone() => (ColorSpaceCIExyYType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceCIExyYType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the value. Null if not set.</summary>
        public string Name { get => Is(Native.isset_Name(Pointer)) ? Kept(Native.get_Name(Pointer)) : null; set => Demand(value == null ? Native.UnsetName(Pointer) : Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Conditions under which the value holds. Null until set; assigning copies.</summary>
        public ColorSpaceSpecificationSpectrumTristimulus ColorSpaceSpecificationSpectrumTristimulus { get => (ColorSpaceSpecificationSpectrumTristimulus)Child(3, Parts.ColorSpaceSpecificationSpectrumTristimulus); set => AssignChild(3, Parts.ColorSpaceSpecificationSpectrumTristimulus, value); }

        /// <summary>Gives ColorSpaceSpecificationSpectrumTristimulus, which it makes if it isn't there.</summary>
        public ColorSpaceSpecificationSpectrumTristimulus CreateColorSpaceSpecificationSpectrumTristimulus() => (ColorSpaceSpecificationSpectrumTristimulus)CreateChild(3, Parts.ColorSpaceSpecificationSpectrumTristimulus);

        /// <summary>Chromaticity coordinate x, 0 to 1.</summary>
        public double X { get => Kept(Native.get_X(Pointer)); set => Demand(Native.set_X(Pointer, value)); }

        /// <summary>Chromaticity coordinate y, 0 to 1.</summary>
        public double Y { get => Kept(Native.get_Y(Pointer)); set => Demand(Native.set_Y(Pointer, value)); }

        /// <summary>Luminance factor Y, 0 to 1.</summary>
        public double CapY { get => Kept(Native.get_CapY(Pointer)); set => Demand(Native.set_CapY(Pointer, value)); }
    }

    /// <summary>An emissive colour in CIE XYZ; absolute, hence without an upper bound.</summary>
    public partial class ColorSpaceEmissiveCIEXYZType : ColorSpaceType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceEmissiveCIEXYZType() : this(Native.Make()) { }

        internal ColorSpaceEmissiveCIEXYZType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceEmissiveCIEXYZType Clone() => (ColorSpaceEmissiveCIEXYZType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceEmissiveCIEXYZType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the value. Null if not set.</summary>
        public string Name { get => Is(Native.isset_Name(Pointer)) ? Kept(Native.get_Name(Pointer)) : null; set => Demand(value == null ? Native.UnsetName(Pointer) : Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Conditions under which the value holds. Null until set; assigning copies.</summary>
        public ColorSpaceSpecificationEmissiveTristimulus ColorSpaceSpecificationEmissiveTristimulus { get => (ColorSpaceSpecificationEmissiveTristimulus)Child(3, Parts.ColorSpaceSpecificationEmissiveTristimulus); set => AssignChild(3, Parts.ColorSpaceSpecificationEmissiveTristimulus, value); }

        /// <summary>Gives ColorSpaceSpecificationEmissiveTristimulus, which it makes if it isn't there.</summary>
        public ColorSpaceSpecificationEmissiveTristimulus CreateColorSpaceSpecificationEmissiveTristimulus() => (ColorSpaceSpecificationEmissiveTristimulus)CreateChild(3, Parts.ColorSpaceSpecificationEmissiveTristimulus);

        /// <summary>Tristimulus value X, 0 or more.</summary>
        public double X { get => Kept(Native.get_X(Pointer)); set => Demand(Native.set_X(Pointer, value)); }

        /// <summary>Tristimulus value Y, 0 or more.</summary>
        public double Y { get => Kept(Native.get_Y(Pointer)); set => Demand(Native.set_Y(Pointer, value)); }

        /// <summary>Tristimulus value Z, 0 or more.</summary>
        public double Z { get => Kept(Native.get_Z(Pointer)); set => Demand(Native.set_Z(Pointer, value)); }
    }

    /// <summary>An emissive colour by its CIE chromaticity and luminance.</summary>
    public partial class ColorSpaceEmissiveCIExyYType : ColorSpaceType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceEmissiveCIExyYType() : this(Native.Make()) { }

        internal ColorSpaceEmissiveCIExyYType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceEmissiveCIExyYType Clone() => (ColorSpaceEmissiveCIExyYType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceEmissiveCIExyYType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the value. Null if not set.</summary>
        public string Name { get => Is(Native.isset_Name(Pointer)) ? Kept(Native.get_Name(Pointer)) : null; set => Demand(value == null ? Native.UnsetName(Pointer) : Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Conditions under which the value holds. Null until set; assigning copies.</summary>
        public ColorSpaceSpecificationEmissiveTristimulus ColorSpaceSpecificationEmissiveTristimulus { get => (ColorSpaceSpecificationEmissiveTristimulus)Child(3, Parts.ColorSpaceSpecificationEmissiveTristimulus); set => AssignChild(3, Parts.ColorSpaceSpecificationEmissiveTristimulus, value); }

        /// <summary>Gives ColorSpaceSpecificationEmissiveTristimulus, which it makes if it isn't there.</summary>
        public ColorSpaceSpecificationEmissiveTristimulus CreateColorSpaceSpecificationEmissiveTristimulus() => (ColorSpaceSpecificationEmissiveTristimulus)CreateChild(3, Parts.ColorSpaceSpecificationEmissiveTristimulus);

        /// <summary>Chromaticity coordinate x, 0 to 1.</summary>
        public double X { get => Kept(Native.get_X(Pointer)); set => Demand(Native.set_X(Pointer, value)); }

        /// <summary>Chromaticity coordinate y, 0 to 1.</summary>
        public double Y { get => Kept(Native.get_Y(Pointer)); set => Demand(Native.set_Y(Pointer, value)); }

        /// <summary>Luminance Y, 0 or more.</summary>
        public double CapY { get => Kept(Native.get_CapY(Pointer)); set => Demand(Native.set_CapY(Pointer, value)); }
    }

    /// <summary>A reflective colour in CIE 1976 L*a*b*.</summary>
    public partial class ColorSpaceCIELab : ColorSpaceCIELabType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceCIELab() : this(Native.Make()) { }

        internal ColorSpaceCIELab(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceCIELab Clone() => (ColorSpaceCIELab)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceCIELab(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element ColorSpaceCIELab as its root.</summary>
        public static ColorSpaceCIELab Load(string path) { TryLoad(path, out ColorSpaceCIELab loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out ColorSpaceCIELab loaded, LoadOptions options = null) => Load(new ColorSpaceCIELab(), path, options, out loaded);
    }

    /// <summary>A reflective colour in CIE L*C*h, the polar form of CIE 1976 L*a*b*.</summary>
    public partial class ColorSpaceCIELCh : ColorSpaceCIELChType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceCIELCh() : this(Native.Make()) { }

        internal ColorSpaceCIELCh(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceCIELCh Clone() => (ColorSpaceCIELCh)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceCIELCh(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element ColorSpaceCIELCh as its root.</summary>
        public static ColorSpaceCIELCh Load(string path) { TryLoad(path, out ColorSpaceCIELCh loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out ColorSpaceCIELCh loaded, LoadOptions options = null) => Load(new ColorSpaceCIELCh(), path, options, out loaded);
    }

    /// <summary>A reflective colour in CIE XYZ, scaled so that Y of the perfect diffuser is 1.</summary>
    public partial class ColorSpaceCIEXYZ : ColorSpaceCIEXYZType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceCIEXYZ() : this(Native.Make()) { }

        internal ColorSpaceCIEXYZ(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceCIEXYZ Clone() => (ColorSpaceCIEXYZ)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceCIEXYZ(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element ColorSpaceCIEXYZ as its root.</summary>
        public static ColorSpaceCIEXYZ Load(string path) { TryLoad(path, out ColorSpaceCIEXYZ loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out ColorSpaceCIEXYZ loaded, LoadOptions options = null) => Load(new ColorSpaceCIEXYZ(), path, options, out loaded);
    }

    /// <summary>An emissive colour in CIE XYZ; absolute, hence without an upper bound.</summary>
    public partial class ColorSpaceEmissiveCIEXYZ : ColorSpaceEmissiveCIEXYZType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceEmissiveCIEXYZ() : this(Native.Make()) { }

        internal ColorSpaceEmissiveCIEXYZ(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceEmissiveCIEXYZ Clone() => (ColorSpaceEmissiveCIEXYZ)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceEmissiveCIEXYZ(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element ColorSpaceEmissiveCIEXYZ as its root.</summary>
        public static ColorSpaceEmissiveCIEXYZ Load(string path) { TryLoad(path, out ColorSpaceEmissiveCIEXYZ loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out ColorSpaceEmissiveCIEXYZ loaded, LoadOptions options = null) => Load(new ColorSpaceEmissiveCIEXYZ(), path, options, out loaded);
    }

    /// <summary>A reflective colour by its CIE chromaticity and luminance factor.</summary>
    public partial class ColorSpaceCIExyY : ColorSpaceCIExyYType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceCIExyY() : this(Native.Make()) { }

        internal ColorSpaceCIExyY(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceCIExyY Clone() => (ColorSpaceCIExyY)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceCIExyY(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element ColorSpaceCIExyY as its root.</summary>
        public static ColorSpaceCIExyY Load(string path) { TryLoad(path, out ColorSpaceCIExyY loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out ColorSpaceCIExyY loaded, LoadOptions options = null) => Load(new ColorSpaceCIExyY(), path, options, out loaded);
    }

    /// <summary>An emissive colour by its CIE chromaticity and luminance.</summary>
    public partial class ColorSpaceEmissiveCIExyY : ColorSpaceEmissiveCIExyYType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceEmissiveCIExyY() : this(Native.Make()) { }

        internal ColorSpaceEmissiveCIExyY(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceEmissiveCIExyY Clone() => (ColorSpaceEmissiveCIExyY)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceEmissiveCIExyY(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element ColorSpaceEmissiveCIExyY as its root.</summary>
        public static ColorSpaceEmissiveCIExyY Load(string path) { TryLoad(path, out ColorSpaceEmissiveCIExyY loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out ColorSpaceEmissiveCIExyY loaded, LoadOptions options = null) => Load(new ColorSpaceEmissiveCIExyY(), path, options, out loaded);
    }

    /// <summary>A reflective colour in CIE 1976 L*u*v*.</summary>
    public partial class ColorSpaceCIELuv : ColorSpaceCIELuvType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceCIELuv() : this(Native.Make()) { }

        internal ColorSpaceCIELuv(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceCIELuv Clone() => (ColorSpaceCIELuv)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceCIELuv(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element ColorSpaceCIELuv as its root.</summary>
        public static ColorSpaceCIELuv Load(string path) { TryLoad(path, out ColorSpaceCIELuv loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out ColorSpaceCIELuv loaded, LoadOptions options = null) => Load(new ColorSpaceCIELuv(), path, options, out loaded);
    }
}
