// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.

using System;

namespace Vyr
{
    /// <summary>Limits of a function's result.</summary>
    public partial class LimitsType : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public LimitsType() : this(Native.Make()) { }

        internal LimitsType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new LimitsType Clone() => (LimitsType)Copy();
        internal override VyrObject Copy() => Copied(new LimitsType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>A named value of the user's own.</summary>
        public ObjectList<CustomAttributeType> CustomAttributes => (ObjectList<CustomAttributeType>)(Part(0) ?? Remember(0, new ObjectList<CustomAttributeType>(this, "CustomAttributes", Parts.CustomAttribute)));

        /// <summary>Upper limit, in the unit of the result.</summary>
        public double HighTolerance { get => Kept(Native.get_HighTolerance(Pointer)); set => Demand(Native.set_HighTolerance(Pointer, value)); }

        /// <summary>Lower limit, in the unit of the result. Null if not set.</summary>
        public double? LowTolerance { get => Is(Native.isset_LowTolerance(Pointer)) ? Kept(Native.get_LowTolerance(Pointer)) : default(double?); set => Demand(value == null ? Native.UnsetLowTolerance(Pointer) : Native.set_LowTolerance(Pointer, value.Value)); }
    }

    /// <summary>A function, the limits for its result, and the viewing conditions that it is evaluated for.</summary>
    public partial class ToleranceType : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ToleranceType() : this(Native.Make()) { }

        internal ToleranceType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ToleranceType Clone() => (ToleranceType)Copy();
        internal override VyrObject Copy() => Copied(new ToleranceType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the tolerance. Null if not set.</summary>
        public string Name { get => Is(Native.isset_Name(Pointer)) ? Kept(Native.get_Name(Pointer)) : null; set => Demand(value == null ? Native.UnsetName(Pointer) : Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>A named value of the user's own.</summary>
        public ObjectList<CustomAttributeType> CustomAttributes => (ObjectList<CustomAttributeType>)(Part(0) ?? Remember(0, new ObjectList<CustomAttributeType>(this, "CustomAttributes", Parts.CustomAttribute)));

        /// <summary>The function whose result is limited. Null until set; assigning copies.</summary>
        public FunctionChoice Function { get => (FunctionChoice)Child(1, Parts.Function); set => AssignChild(1, Parts.Function, value); }

        /// <summary>Gives Function, which it makes if it isn't there.</summary>
        public FunctionChoice CreateFunction() => (FunctionChoice)CreateChild(1, Parts.Function);

        /// <summary>Limits of the result. Null until set; assigning copies.</summary>
        public LimitsType Limits { get => (LimitsType)Child(2, Parts.Limits); set => AssignChild(2, Parts.Limits, value); }

        /// <summary>Gives Limits, which it makes if it isn't there.</summary>
        public LimitsType CreateLimits() => (LimitsType)CreateChild(2, Parts.Limits);

        /// <summary>First illuminant of the evaluation. Null if not set.</summary>
        public IlluminantKind? PrimaryIlluminant { get => Is(Native.isset_PrimaryIlluminant(Pointer)) ? (IlluminantKind)Kept(Native.getenum_PrimaryIlluminant(Pointer)) : default(IlluminantKind?); set => Demand(value == null ? Native.UnsetPrimaryIlluminant(Pointer) : Listed(Native.setenum_PrimaryIlluminant(Pointer, (int)value.Value))); }

        /// <summary>Second illuminant, for metamerism. Null if not set.</summary>
        public IlluminantKind? SecondaryIlluminant { get => Is(Native.isset_SecondaryIlluminant(Pointer)) ? (IlluminantKind)Kept(Native.getenum_SecondaryIlluminant(Pointer)) : default(IlluminantKind?); set => Demand(value == null ? Native.UnsetSecondaryIlluminant(Pointer) : Listed(Native.setenum_SecondaryIlluminant(Pointer, (int)value.Value))); }

        /// <summary>Third illuminant, for metamerism. Null if not set.</summary>
        public IlluminantKind? TertiaryIlluminant { get => Is(Native.isset_TertiaryIlluminant(Pointer)) ? (IlluminantKind)Kept(Native.getenum_TertiaryIlluminant(Pointer)) : default(IlluminantKind?); set => Demand(value == null ? Native.UnsetTertiaryIlluminant(Pointer) : Listed(Native.setenum_TertiaryIlluminant(Pointer, (int)value.Value))); }

        /// <summary>Standard observer of the evaluation. Null if not set.</summary>
        public ObserverKind? FieldOfView { get => Is(Native.isset_FieldOfView(Pointer)) ? (ObserverKind)Kept(Native.getenum_FieldOfView(Pointer)) : default(ObserverKind?); set => Demand(value == null ? Native.UnsetFieldOfView(Pointer) : Listed(Native.setenum_FieldOfView(Pointer, (int)value.Value))); }

        /// <summary>Level from which a result calls for attention though it still passes. Null if not set.</summary>
        public double? WarningLevel { get => Is(Native.isset_WarningLevel(Pointer)) ? Kept(Native.get_WarningLevel(Pointer)) : default(double?); set => Demand(value == null ? Native.UnsetWarningLevel(Pointer) : Native.set_WarningLevel(Pointer, value.Value)); }

        /// <summary>Identifier of the tolerance. Null if not set.</summary>
        public string UniqueID { get => Is(Native.isset_UniqueID(Pointer)) ? Kept(Native.get_UniqueID(Pointer)) : null; set => Demand(value == null ? Native.UnsetUniqueID(Pointer) : Native.set_UniqueID(Pointer, Library.Whole(value))); }

        /// <summary>Whether the tolerance holds for all measurements. Null if not set.</summary>
        public bool? Global { get => Is(Native.isset_Global(Pointer)) ? Is(Native.get_Global(Pointer)) : default(bool?); set => Demand(value == null ? Native.UnsetGlobal(Pointer) : Native.set_Global(Pointer, value.Value ? 1u : 0u)); }

        /// <summary>Measuring geometry that the tolerance holds for. Null until set; assigning copies.</summary>
        public GeometryChoiceType Geometry { get => (GeometryChoiceType)Child(3, Parts.Geometry); set => AssignChild(3, Parts.Geometry, value); }

        /// <summary>Gives Geometry, which it makes if it isn't there.</summary>
        public GeometryChoiceType CreateGeometry() => (GeometryChoiceType)CreateChild(3, Parts.Geometry);
    }

    /// <summary>A production process.</summary>
    public partial class Process : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public Process() : this(Native.Make()) { }

        internal Process(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new Process Clone() => (Process)Copy();
        internal override VyrObject Copy() => Copied(new Process(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the process; not empty.</summary>
        public string Name { get => Kept(Native.get_Name(Pointer)); set => Demand(Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Thickness that the process leaves, 0 or more; no unit is stated. Null if not set.</summary>
        public double? Thickness { get => Is(Native.isset_Thickness(Pointer)) ? Kept(Native.get_Thickness(Pointer)) : default(double?); set => Demand(value == null ? Native.UnsetThickness(Pointer) : Native.set_Thickness(Pointer, value.Value)); }
    }

    /// <summary>A physical sample and how it was made.</summary>
    public partial class PhysicalSampleType : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public PhysicalSampleType() : this(Native.Make()) { }

        internal PhysicalSampleType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new PhysicalSampleType Clone() => (PhysicalSampleType)Copy();
        internal override VyrObject Copy() => Copied(new PhysicalSampleType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>A named value of the user's own.</summary>
        public ObjectList<CustomAttributeType> CustomAttributes => (ObjectList<CustomAttributeType>)(Part(0) ?? Remember(0, new ObjectList<CustomAttributeType>(this, "CustomAttributes", Parts.CustomAttribute)));

        /// <summary>Coating of the sample in words. Null if not set.</summary>
        public string Coating { get => Is(Native.isset_Coating(Pointer)) ? Kept(Native.get_Coating(Pointer)) : null; set => Demand(value == null ? Native.UnsetCoating(Pointer) : Native.set_Coating(Pointer, Library.Whole(value))); }

        /// <summary>How the sample was made. Null until set; assigning copies.</summary>
        public Process Process { get => (Process)Child(1, Parts.Process); set => AssignChild(1, Parts.Process, value); }

        /// <summary>Gives Process, which it makes if it isn't there.</summary>
        public Process CreateProcess() => (Process)CreateChild(1, Parts.Process);

        /// <summary>The sample: a spot or a target. Null until set; assigning copies.</summary>
        public SampleChoice Sample { get => (SampleChoice)Child(2, Parts.Sample); set => AssignChild(2, Parts.Sample, value); }

        /// <summary>Gives Sample, which it makes if it isn't there.</summary>
        public SampleChoice CreateSample() => (SampleChoice)CreateChild(2, Parts.Sample);
    }

    /// <summary>A comparison of measurements with their standards under given tolerances.</summary>
    public partial class ColorQualityControlType : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorQualityControlType() : this(Native.Make()) { }

        internal ColorQualityControlType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorQualityControlType Clone() => (ColorQualityControlType)Copy();
        internal override VyrObject Copy() => Copied(new ColorQualityControlType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the record. Null if not set.</summary>
        public string Name { get => Is(Native.isset_Name(Pointer)) ? Kept(Native.get_Name(Pointer)) : null; set => Demand(value == null ? Native.UnsetName(Pointer) : Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Description of the record. Null if not set.</summary>
        public string Description { get => Is(Native.isset_Description(Pointer)) ? Kept(Native.get_Description(Pointer)) : null; set => Demand(value == null ? Native.UnsetDescription(Pointer) : Native.set_Description(Pointer, Library.Whole(value))); }

        /// <summary>Identifier of the record. Null if not set.</summary>
        public string UniqueID { get => Is(Native.isset_UniqueID(Pointer)) ? Kept(Native.get_UniqueID(Pointer)) : null; set => Demand(value == null ? Native.UnsetUniqueID(Pointer) : Native.set_UniqueID(Pointer, Library.Whole(value))); }

        /// <summary>Free remarks on the record. Null if not set.</summary>
        public string Comments { get => Is(Native.isset_Comments(Pointer)) ? Kept(Native.get_Comments(Pointer)) : null; set => Demand(value == null ? Native.UnsetComments(Pointer) : Native.set_Comments(Pointer, Library.Whole(value))); }

        /// <summary>A named value of the user's own.</summary>
        public ObjectList<CustomAttributeType> CustomAttributes => (ObjectList<CustomAttributeType>)(Part(0) ?? Remember(0, new ObjectList<CustomAttributeType>(this, "CustomAttributes", Parts.CustomAttribute)));

        /// <summary>Time of one change, with time zone.</summary>
        public DateTimeList ChangeHistory => ListOfTimes(1, Parts.ChangeHistory, @".+T.+(Z|[+\-].+)");

        /// <summary>A standard with what was measured against it.</summary>
        public ObjectList<StandardAndMeasurementType> StandardAndMeasurements => (ObjectList<StandardAndMeasurementType>)(Part(2) ?? Remember(2, new ObjectList<StandardAndMeasurementType>(this, "StandardAndMeasurements", Parts.StandardAndMeasurement)));

        /// <summary>The physical sample that was measured. Null until set; assigning copies.</summary>
        public PhysicalSampleType PhysicalSample { get => (PhysicalSampleType)Child(3, Parts.PhysicalSample); set => AssignChild(3, Parts.PhysicalSample, value); }

        /// <summary>Gives PhysicalSample, which it makes if it isn't there.</summary>
        public PhysicalSampleType CreatePhysicalSample() => (PhysicalSampleType)CreateChild(3, Parts.PhysicalSample);

        /// <summary>A tolerance for all comparisons of the record.</summary>
        public ObjectList<ToleranceType> Tolerances => (ObjectList<ToleranceType>)(Part(4) ?? Remember(4, new ObjectList<ToleranceType>(this, "Tolerances", Parts.Tolerance)));
    }

    /// <summary>A measured colour, the device that measured it, and what was computed from it.</summary>
    public partial class Measurement : VyrObject, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public Measurement() : this(Native.Make()) { }

        internal Measurement(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new Measurement Clone() => (Measurement)Copy();
        internal override VyrObject Copy() => Copied(new Measurement(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Loads a file that has the element Measurement as its root.</summary>
        public static Measurement Load(string path) { TryLoad(path, out Measurement loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out Measurement loaded, LoadOptions options = null) => Load(new Measurement(), path, options, out loaded);

        /// <summary>A named value of the user's own.</summary>
        public ObjectList<CustomAttributeType> CustomAttributes => (ObjectList<CustomAttributeType>)(Part(0) ?? Remember(0, new ObjectList<CustomAttributeType>(this, "CustomAttributes", Parts.CustomAttribute)));

        /// <summary>Instrument of the measurement. Null until set; assigning copies.</summary>
        public DeviceType Device { get => (DeviceType)Child(1, Parts.Device); set => AssignChild(1, Parts.Device, value); }

        /// <summary>Gives Device, which it makes if it isn't there.</summary>
        public DeviceType CreateDevice() => (DeviceType)CreateChild(1, Parts.Device);

        /// <summary>The colour measured. Null until set; assigning copies.</summary>
        public ColorType Color { get => (ColorType)Child(2, Parts.Color); set => AssignChild(2, Parts.Color, value); }

        /// <summary>Gives Color, which it makes if it isn't there.</summary>
        public ColorType CreateColor() => (ColorType)CreateChild(2, Parts.Color);

        /// <summary>A function of this measurement and its standard.</summary>
        public ObjectList<FunctionChoice> Functions => (ObjectList<FunctionChoice>)(Part(3) ?? Remember(3, new ObjectList<FunctionChoice>(this, "Functions", Parts.Function)));
    }

    /// <summary>A target colour, the device that measured it, and the tolerances around it.</summary>
    public partial class Standard : VyrObject, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public Standard() : this(Native.Make()) { }

        internal Standard(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new Standard Clone() => (Standard)Copy();
        internal override VyrObject Copy() => Copied(new Standard(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>True for an element that says that it has no value.</summary>
        public bool IsNil => Is(Native.isnil_Standard(Pointer));

        /// <summary>Makes it an element that says that it has no value. `Reset` takes that back; what it holds until
        /// then isn't saved.</summary>
        public void SetNil() { Native.setnil_Standard(Pointer); Keep(); }

        /// <summary>Loads a file that has the element Standard as its root.</summary>
        public static Standard Load(string path) { TryLoad(path, out Standard loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out Standard loaded, LoadOptions options = null) => Load(new Standard(), path, options, out loaded);

        /// <summary>A named value of the user's own.</summary>
        public ObjectList<CustomAttributeType> CustomAttributes => (ObjectList<CustomAttributeType>)(Part(0) ?? Remember(0, new ObjectList<CustomAttributeType>(this, "CustomAttributes", Parts.CustomAttribute)));

        /// <summary>Instrument that measured the standard. Null until set; assigning copies.</summary>
        public DeviceType Device { get => (DeviceType)Child(1, Parts.Device); set => AssignChild(1, Parts.Device, value); }

        /// <summary>Gives Device, which it makes if it isn't there.</summary>
        public DeviceType CreateDevice() => (DeviceType)CreateChild(1, Parts.Device);

        /// <summary>The target colour. Null until set; assigning copies.</summary>
        public ColorType Color { get => (ColorType)Child(2, Parts.Color); set => AssignChild(2, Parts.Color, value); }

        /// <summary>Gives Color, which it makes if it isn't there.</summary>
        public ColorType CreateColor() => (ColorType)CreateChild(2, Parts.Color);

        /// <summary>A tolerance around the target.</summary>
        public ObjectList<ToleranceType> Tolerances => (ObjectList<ToleranceType>)(Part(3) ?? Remember(3, new ObjectList<ToleranceType>(this, "Tolerances", Parts.Tolerance)));
    }

    /// <summary>A standard and the measurements that are compared with it.</summary>
    public partial class StandardAndMeasurementType : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public StandardAndMeasurementType() : this(Native.Make()) { }

        internal StandardAndMeasurementType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new StandardAndMeasurementType Clone() => (StandardAndMeasurementType)Copy();
        internal override VyrObject Copy() => Copied(new StandardAndMeasurementType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>A named value of the user's own.</summary>
        public ObjectList<CustomAttributeType> CustomAttributes => (ObjectList<CustomAttributeType>)(Part(0) ?? Remember(0, new ObjectList<CustomAttributeType>(this, "CustomAttributes", Parts.CustomAttribute)));

        /// <summary>A measurement.</summary>
        public ObjectList<Measurement> Measurements => (ObjectList<Measurement>)(Part(1) ?? Remember(1, new ObjectList<Measurement>(this, "Measurements", Parts.Measurement)));

        /// <summary>The standard. Null until set; assigning copies.</summary>
        public Standard Standard { get => (Standard)Child(2, Parts.Standard); set => AssignChild(2, Parts.Standard, value); }

        /// <summary>Gives Standard, which it makes if it isn't there.</summary>
        public Standard CreateStandard() => (Standard)CreateChild(2, Parts.Standard);
    }
}
