// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.

using System;

namespace Vyr
{
    /// <summary>A colour by its optical densities through one or more filters.</summary>
    public partial class ColorSpaceDensityType : ColorSpaceType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceDensityType() : this(Native.Make()) { }

        internal ColorSpaceDensityType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceDensityType Clone() => (ColorSpaceDensityType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceDensityType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the value. Null if not set.</summary>
        public string Name { get => Is(Native.isset_Name(Pointer)) ? Kept(Native.get_Name(Pointer)) : null; set => Demand(value == null ? Native.UnsetName(Pointer) : Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Conditions under which the value holds. Null until set; assigning copies.</summary>
        public ColorSpaceSpecificationSpectrumGeneric ColorSpaceSpecificationSpectrumGeneric { get => (ColorSpaceSpecificationSpectrumGeneric)Child(3, Parts.ColorSpaceSpecificationSpectrumGeneric); set => AssignChild(3, Parts.ColorSpaceSpecificationSpectrumGeneric, value); }

        /// <summary>Gives ColorSpaceSpecificationSpectrumGeneric, which it makes if it isn't there.</summary>
        public ColorSpaceSpecificationSpectrumGeneric CreateColorSpaceSpecificationSpectrumGeneric() => (ColorSpaceSpecificationSpectrumGeneric)CreateChild(3, Parts.ColorSpaceSpecificationSpectrumGeneric);

        /// <summary>Density through one filter.</summary>
        public ObjectList<DensityType> Densities => (ObjectList<DensityType>)(Part(4) ?? Remember(4, new ObjectList<DensityType>(this, "Densities", Parts.Density)));
    }

    /// <summary>A reflective or transmissive colour as a sampled spectrum.</summary>
    public partial class ColorSpaceSpectralType : ColorSpaceType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceSpectralType() : this(Native.Make()) { }

        internal ColorSpaceSpectralType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceSpectralType Clone() => (ColorSpaceSpectralType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceSpectralType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the value. Null if not set.</summary>
        public string Name { get => Is(Native.isset_Name(Pointer)) ? Kept(Native.get_Name(Pointer)) : null; set => Demand(value == null ? Native.UnsetName(Pointer) : Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Conditions under which the value holds. Null until set; assigning copies.</summary>
        public ColorSpaceSpecificationSpectrumSpectral ColorSpaceSpecificationSpectrumSpectral { get => (ColorSpaceSpecificationSpectrumSpectral)Child(3, Parts.ColorSpaceSpecificationSpectrumSpectral); set => AssignChild(3, Parts.ColorSpaceSpecificationSpectrumSpectral, value); }

        /// <summary>Gives ColorSpaceSpecificationSpectrumSpectral, which it makes if it isn't there.</summary>
        public ColorSpaceSpecificationSpectrumSpectral CreateColorSpaceSpecificationSpectrumSpectral() => (ColorSpaceSpecificationSpectrumSpectral)CreateChild(3, Parts.ColorSpaceSpecificationSpectrumSpectral);

        /// <summary>One sample, in document order.</summary>
        public ObjectList<ReflectancePointType> ReflectancePoints => (ObjectList<ReflectancePointType>)(Part(4) ?? Remember(4, new ObjectList<ReflectancePointType>(this, "ReflectancePoints", Parts.ReflectancePoint)));

        /// <summary>Wavelengths of all ReflectancePoints, in one call. Setting them makes ReflectancePoints as
        /// many.</summary>
        public double[] Wavelengths { get => Column(Parts.ReflectancePointItem, Parts.ReflectancePointWavelengthItem); set => SetColumn(ReflectancePoints, Parts.ReflectancePointItem, Parts.ReflectancePointWavelengthItem, value); }

        /// <summary>Values of all ReflectancePoints, in one call. Setting them makes ReflectancePoints as
        /// many.</summary>
        public double[] Values { get => Column(Parts.ReflectancePointItem, Parts.ReflectancePointReflectancePointTypeItem); set => SetColumn(ReflectancePoints, Parts.ReflectancePointItem, Parts.ReflectancePointReflectancePointTypeItem, value); }
    }

    /// <summary>An emissive colour as a sampled spectrum.</summary>
    public partial class ColorSpaceEmissiveSpectralType : ColorSpaceType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceEmissiveSpectralType() : this(Native.Make()) { }

        internal ColorSpaceEmissiveSpectralType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceEmissiveSpectralType Clone() => (ColorSpaceEmissiveSpectralType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceEmissiveSpectralType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the value. Null if not set.</summary>
        public string Name { get => Is(Native.isset_Name(Pointer)) ? Kept(Native.get_Name(Pointer)) : null; set => Demand(value == null ? Native.UnsetName(Pointer) : Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Conditions under which the value holds. Null until set; assigning copies.</summary>
        public ColorSpaceSpecificationEmissiveSpectral ColorSpaceSpecificationEmissiveSpectral { get => (ColorSpaceSpecificationEmissiveSpectral)Child(3, Parts.ColorSpaceSpecificationEmissiveSpectral); set => AssignChild(3, Parts.ColorSpaceSpecificationEmissiveSpectral, value); }

        /// <summary>Gives ColorSpaceSpecificationEmissiveSpectral, which it makes if it isn't there.</summary>
        public ColorSpaceSpecificationEmissiveSpectral CreateColorSpaceSpecificationEmissiveSpectral() => (ColorSpaceSpecificationEmissiveSpectral)CreateChild(3, Parts.ColorSpaceSpecificationEmissiveSpectral);

        /// <summary>One sample, in document order.</summary>
        public ObjectList<EmissiveSpectralPointType> EmissiveSpectralPoints => (ObjectList<EmissiveSpectralPointType>)(Part(4) ?? Remember(4, new ObjectList<EmissiveSpectralPointType>(this, "EmissiveSpectralPoints", Parts.EmissiveSpectralPoint)));

        /// <summary>Wavelengths of all EmissiveSpectralPoints, in one call. Setting them makes EmissiveSpectralPoints
        /// as many.</summary>
        public double[] Wavelengths { get => Column(Parts.EmissiveSpectralPointItem, Parts.EmissiveSpectralPointWavelengthItem); set => SetColumn(EmissiveSpectralPoints, Parts.EmissiveSpectralPointItem, Parts.EmissiveSpectralPointWavelengthItem, value); }

        /// <summary>Values of all EmissiveSpectralPoints, in one call. Setting them makes EmissiveSpectralPoints as
        /// many.</summary>
        public double[] Values { get => Column(Parts.EmissiveSpectralPointItem, Parts.EmissiveSpectralPointEmissiveSpectralPointTypeItem); set => SetColumn(EmissiveSpectralPoints, Parts.EmissiveSpectralPointItem, Parts.EmissiveSpectralPointEmissiveSpectralPointTypeItem, value); }
    }

    /// <summary>A reflective colour in a space that the format doesn't know, axis by axis.</summary>
    public partial class ColorSpaceGenericType : ColorSpaceType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceGenericType() : this(Native.Make()) { }

        internal ColorSpaceGenericType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceGenericType Clone() => (ColorSpaceGenericType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceGenericType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the colour space.</summary>
        public string Name { get => Kept(Native.get_Name(Pointer)); set => Demand(Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Conditions under which the value holds. Null until set; assigning copies.</summary>
        public ColorSpaceSpecificationSpectrumGeneric ColorSpaceSpecificationSpectrumGeneric { get => (ColorSpaceSpecificationSpectrumGeneric)Child(3, Parts.ColorSpaceSpecificationSpectrumGeneric); set => AssignChild(3, Parts.ColorSpaceSpecificationSpectrumGeneric, value); }

        /// <summary>Gives ColorSpaceSpecificationSpectrumGeneric, which it makes if it isn't there.</summary>
        public ColorSpaceSpecificationSpectrumGeneric CreateColorSpaceSpecificationSpectrumGeneric() => (ColorSpaceSpecificationSpectrumGeneric)CreateChild(3, Parts.ColorSpaceSpecificationSpectrumGeneric);

        /// <summary>Value on one axis.</summary>
        public ObjectList<AxisType> Axes => (ObjectList<AxisType>)(Part(4) ?? Remember(4, new ObjectList<AxisType>(this, "Axes", Parts.Axis)));
    }

    /// <summary>An emissive colour in a space that the format doesn't know, axis by axis.</summary>
    public partial class ColorSpaceEmissiveGenericType : ColorSpaceType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceEmissiveGenericType() : this(Native.Make()) { }

        internal ColorSpaceEmissiveGenericType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceEmissiveGenericType Clone() => (ColorSpaceEmissiveGenericType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceEmissiveGenericType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the colour space.</summary>
        public string Name { get => Kept(Native.get_Name(Pointer)); set => Demand(Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Conditions under which the value holds. Null until set; assigning copies.</summary>
        public ColorSpaceSpecificationEmissiveGeneric ColorSpaceSpecificationEmissiveGeneric { get => (ColorSpaceSpecificationEmissiveGeneric)Child(3, Parts.ColorSpaceSpecificationEmissiveGeneric); set => AssignChild(3, Parts.ColorSpaceSpecificationEmissiveGeneric, value); }

        /// <summary>Gives ColorSpaceSpecificationEmissiveGeneric, which it makes if it isn't there.</summary>
        public ColorSpaceSpecificationEmissiveGeneric CreateColorSpaceSpecificationEmissiveGeneric() => (ColorSpaceSpecificationEmissiveGeneric)CreateChild(3, Parts.ColorSpaceSpecificationEmissiveGeneric);

        /// <summary>Value on one axis.</summary>
        public ObjectList<AxisType> Axes => (ObjectList<AxisType>)(Part(4) ?? Remember(4, new ObjectList<AxisType>(this, "Axes", Parts.Axis)));
    }

    /// <summary>A reflective colour in a space that the format doesn't know, axis by axis.</summary>
    public partial class ColorSpaceGeneric : ColorSpaceGenericType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceGeneric() : this(Native.Make()) { }

        internal ColorSpaceGeneric(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceGeneric Clone() => (ColorSpaceGeneric)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceGeneric(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element ColorSpaceGeneric as its root.</summary>
        public static ColorSpaceGeneric Load(string path) { TryLoad(path, out ColorSpaceGeneric loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out ColorSpaceGeneric loaded, LoadOptions options = null) => Load(new ColorSpaceGeneric(), path, options, out loaded);
    }

    /// <summary>An emissive colour in a space that the format doesn't know, axis by axis.</summary>
    public partial class ColorSpaceEmissiveGeneric : ColorSpaceEmissiveGenericType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceEmissiveGeneric() : this(Native.Make()) { }

        internal ColorSpaceEmissiveGeneric(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceEmissiveGeneric Clone() => (ColorSpaceEmissiveGeneric)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceEmissiveGeneric(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element ColorSpaceEmissiveGeneric as its root.</summary>
        public static ColorSpaceEmissiveGeneric Load(string path) { TryLoad(path, out ColorSpaceEmissiveGeneric loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out ColorSpaceEmissiveGeneric loaded, LoadOptions options = null) => Load(new ColorSpaceEmissiveGeneric(), path, options, out loaded);
    }

    /// <summary>A colour by its optical densities through one or more filters.</summary>
    public partial class ColorSpaceDensity : ColorSpaceDensityType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceDensity() : this(Native.Make()) { }

        internal ColorSpaceDensity(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceDensity Clone() => (ColorSpaceDensity)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceDensity(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element ColorSpaceDensity as its root.</summary>
        public static ColorSpaceDensity Load(string path) { TryLoad(path, out ColorSpaceDensity loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out ColorSpaceDensity loaded, LoadOptions options = null) => Load(new ColorSpaceDensity(), path, options, out loaded);
    }

    /// <summary>A reflective or transmissive colour as a sampled spectrum.</summary>
    public partial class ColorSpaceSpectral : ColorSpaceSpectralType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceSpectral() : this(Native.Make()) { }

        internal ColorSpaceSpectral(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceSpectral Clone() => (ColorSpaceSpectral)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceSpectral(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element ColorSpaceSpectral as its root.</summary>
        public static ColorSpaceSpectral Load(string path) { TryLoad(path, out ColorSpaceSpectral loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out ColorSpaceSpectral loaded, LoadOptions options = null) => Load(new ColorSpaceSpectral(), path, options, out loaded);
    }

    /// <summary>An emissive colour as a sampled spectrum.</summary>
    public partial class ColorSpaceEmissiveSpectral : ColorSpaceEmissiveSpectralType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceEmissiveSpectral() : this(Native.Make()) { }

        internal ColorSpaceEmissiveSpectral(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceEmissiveSpectral Clone() => (ColorSpaceEmissiveSpectral)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceEmissiveSpectral(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element ColorSpaceEmissiveSpectral as its root.</summary>
        public static ColorSpaceEmissiveSpectral Load(string path) { TryLoad(path, out ColorSpaceEmissiveSpectral loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out ColorSpaceEmissiveSpectral loaded, LoadOptions options = null) => Load(new ColorSpaceEmissiveSpectral(), path, options, out loaded);
    }

    /// <summary>Reflectance factor at one wavelength.</summary>
    public partial class ReflectancePointType : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ReflectancePointType() : this(Native.Make()) { }

        internal ReflectancePointType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ReflectancePointType Clone() => (ReflectancePointType)Copy();
        internal override VyrObject Copy() => Copied(new ReflectancePointType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Wavelength in nanometres, above 0.</summary>
        public double Wavelength { get => Kept(Native.get_Wavelength(Pointer)); set => Demand(Native.set_Wavelength(Pointer, value)); }

        /// <summary>Reflectance factor as a fraction, between -1 and 10 without the ends: noise can push it below 0,
        /// fluorescence above 1.</summary>
        public double Value { get => Kept(Native.get_ReflectancePointType(Pointer)); set => Demand(Native.set_ReflectancePointType(Pointer, value)); }
    }

    /// <summary>Spectral power at one wavelength.</summary>
    public partial class EmissiveSpectralPointType : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public EmissiveSpectralPointType() : this(Native.Make()) { }

        internal EmissiveSpectralPointType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new EmissiveSpectralPointType Clone() => (EmissiveSpectralPointType)Copy();
        internal override VyrObject Copy() => Copied(new EmissiveSpectralPointType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Wavelength in nanometres, above 0.</summary>
        public double Wavelength { get => Kept(Native.get_Wavelength(Pointer)); set => Demand(Native.set_Wavelength(Pointer, value)); }

        /// <summary>Spectral power, in the unit of the measurement.</summary>
        public double Value { get => Kept(Native.get_EmissiveSpectralPointType(Pointer)); set => Demand(Native.set_EmissiveSpectralPointType(Pointer, value)); }
    }

    /// <summary>A coordinate: a number with its nominal range, or a text.</summary>
    public partial class AxisValueChoice : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public AxisValueChoice() : this(Native.Make()) { }

        internal AxisValueChoice(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new AxisValueChoice Clone() => (AxisValueChoice)Copy();
        internal override VyrObject Copy() => Copied(new AxisValueChoice(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Which alternative an object holds.</summary>
        public enum Alternative
        {
            /// <summary>The coordinate as a number.</summary>
            AxisFloatingPointValue = 0,
            /// <summary>The coordinate as a text.</summary>
            AxisStringValue = 1,
            /// <summary>Nothing was chosen yet.</summary>
            None = 2,
        }

        /// <summary>Which alternative is held.</summary>
        public Alternative Chosen => (Alternative)Kept(Native.getchosen(Pointer));

        /// <summary>The coordinate as a number. Null if another is chosen.</summary>
        public FloatingPointValueType AsAxisFloatingPointValue => Chosen == Alternative.AxisFloatingPointValue ? (FloatingPointValueType)Held(0, Parts.AxisFloatingPointValue) : null;

        /// <summary>Gives AxisFloatingPointValue, which it makes in place of another one if it isn't
        /// chosen.</summary>
        public FloatingPointValueType ChooseAxisFloatingPointValue() => AsAxisFloatingPointValue ?? (FloatingPointValueType)Choose(0, Parts.AxisFloatingPointValue);

        /// <summary>Chooses AxisFloatingPointValue with a copy of a value.</summary>
        public FloatingPointValueType ChooseAxisFloatingPointValue(FloatingPointValueType value) => (FloatingPointValueType)Choose(0, Parts.AxisFloatingPointValue, value);

        /// <summary>The coordinate as a text. Null if another is chosen.</summary>
        public string AsAxisStringValue => Chosen == Alternative.AxisStringValue ? Kept(Native.get_AxisStringValue(Pointer)) : null;

        /// <summary>Chooses AxisStringValue in place of what was chosen.</summary>
        public void ChooseAxisStringValue(string value) => Choose(0, Native.set_AxisStringValue(Pointer, Library.Whole(value)));
    }

    /// <summary>Value on one axis of a colour space that the format doesn't know.</summary>
    public partial class AxisType : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public AxisType() : this(Native.Make()) { }

        internal AxisType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new AxisType Clone() => (AxisType)Copy();
        internal override VyrObject Copy() => Copied(new AxisType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the axis.</summary>
        public string AxisName { get => Kept(Native.get_AxisName(Pointer)); set => Demand(Native.set_AxisName(Pointer, Library.Whole(value))); }

        /// <summary>Value on the axis. Null until set; assigning copies.</summary>
        public AxisValueChoice AxisValueChoice { get => (AxisValueChoice)Child(0, Parts.AxisValueChoice); set => AssignChild(0, Parts.AxisValueChoice, value); }

        /// <summary>Gives AxisValueChoice, which it makes if it isn't there.</summary>
        public AxisValueChoice CreateAxisValueChoice() => (AxisValueChoice)CreateChild(0, Parts.AxisValueChoice);
    }

    /// <summary>A number on an axis, with the nominal range and the scale of the axis.</summary>
    public partial class FloatingPointValueType : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public FloatingPointValueType() : this(Native.Make()) { }

        internal FloatingPointValueType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FloatingPointValueType Clone() => (FloatingPointValueType)Copy();
        internal override VyrObject Copy() => Copied(new FloatingPointValueType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Upper end of the axis's nominal range.</summary>
        public double AxisNominalMax { get => Kept(Native.get_AxisNominalMax(Pointer)); set => Demand(Native.set_AxisNominalMax(Pointer, value)); }

        /// <summary>Lower end of the axis's nominal range.</summary>
        public double AxisNominalMin { get => Kept(Native.get_AxisNominalMin(Pointer)); set => Demand(Native.set_AxisNominalMin(Pointer, value)); }

        /// <summary>Scale of the axis; a new object holds Scale_Linear, without counting as set. Null if not
        /// set.</summary>
        public AxisScaleKind? AxisNominalScale { get => Is(Native.isset_AxisNominalScale(Pointer)) ? (AxisScaleKind)Kept(Native.getenum_AxisNominalScale(Pointer)) : default(AxisScaleKind?); set => Demand(value == null ? Native.UnsetAxisNominalScale(Pointer) : Listed(Native.setenum_AxisNominalScale(Pointer, (int)value.Value))); }

        /// <summary>The coordinate.</summary>
        public double Value { get => Kept(Native.get_FloatingPointValueType(Pointer)); set => Demand(Native.set_FloatingPointValueType(Pointer, value)); }
    }

    /// <summary>Optical density through one filter of a status.</summary>
    public partial class DensityType : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public DensityType() : this(Native.Make()) { }

        internal DensityType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new DensityType Clone() => (DensityType)Copy();
        internal override VyrObject Copy() => Copied(new DensityType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Density status, the set of filter responses.</summary>
        public DensityStatusKind DensityStatus { get => (DensityStatusKind)Kept(Native.getenum_DensityStatus(Pointer)); set => Demand(Listed(Native.setenum_DensityStatus(Pointer, (int)value))); }

        /// <summary>Filter of the status.</summary>
        public DensityFilterKind DensityFilter { get => (DensityFilterKind)Kept(Native.getenum_DensityFilter(Pointer)); set => Demand(Listed(Native.setenum_DensityFilter(Pointer, (int)value))); }

        /// <summary>The density, a common logarithm.</summary>
        public double Value { get => Kept(Native.get_DensityType(Pointer)); set => Demand(Native.set_DensityType(Pointer, value)); }
    }
}
