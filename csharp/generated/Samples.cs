// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.

using System;

namespace Vyr
{
    /// <summary>The physical thing that carried a measurement.</summary>
    public partial class SampleType : VyrObject
    {
        internal SampleType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new SampleType Clone() => (SampleType)Copy();
        internal override VyrObject Copy() => Copied(new SampleType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>A named value of the user's own.</summary>
        public ObjectList<CustomAttributeType> CustomAttributes => (ObjectList<CustomAttributeType>)(Part(0) ?? Remember(0, new ObjectList<CustomAttributeType>(this, "CustomAttributes", Parts.CustomAttribute)));

        /// <summary>Material of the sample. Null until set; assigning copies.</summary>
        public SubstrateChoice Substrate { get => (SubstrateChoice)Child(1, Parts.Substrate); set => AssignChild(1, Parts.Substrate, value); }

        /// <summary>Gives Substrate, which it makes if it isn't there.</summary>
        public SubstrateChoice CreateSubstrate() => (SubstrateChoice)CreateChild(1, Parts.Substrate);

        /// <summary>What lay behind the sample while it was measured. Null if not set.</summary>
        public BackingKind? Backing { get => Is(Native.isset_Backing(Pointer)) ? (BackingKind)Kept(Native.getenum_Backing(Pointer)) : default(BackingKind?); set => Demand(value == null ? Native.UnsetBacking(Pointer) : Listed(Native.setenum_Backing(Pointer, (int)value.Value))); }

        /// <summary>Who made the sample. Null if not set.</summary>
        public string Manufacturer { get => Is(Native.isset_Manufacturer(Pointer)) ? Kept(Native.get_Manufacturer(Pointer)) : null; set => Demand(value == null ? Native.UnsetManufacturer(Pointer) : Native.set_Manufacturer(Pointer, Library.Whole(value))); }

        /// <summary>When the sample was made, with time zone. Null if not set.</summary>
        public DateTimeOffset? ProductionDate { get => Is(Native.isset_ProductionDate(Pointer)) ? DateTimeText.Parse(Kept(DateTimeText.Read(Native.get_ProductionDate(Pointer)))) : default(DateTimeOffset?); set => Demand(value == null ? Native.UnsetProductionDate(Pointer) : DateTimeText.Give(DateTimeText.Format(value.Value), @".+T.+(Z|[+\-].+)", time => Native.set_ProductionDate(Pointer, time))); }

        /// <summary>The same as a document writes it: ProductionDate throws what a DateTimeOffset can't hold. Null if
        /// not set.</summary>
        public string ProductionDateText { get => Is(Native.isset_ProductionDate(Pointer)) ? Kept(DateTimeText.Read(Native.get_ProductionDate(Pointer))) : null; set => Demand(value == null ? Native.UnsetProductionDate(Pointer) : DateTimeText.Give(value, @".+T.+(Z|[+\-].+)", time => Native.set_ProductionDate(Pointer, time))); }

        /// <summary>Serial number of the sample. Null if not set.</summary>
        public string SerialNumber { get => Is(Native.isset_SerialNumber(Pointer)) ? Kept(Native.get_SerialNumber(Pointer)) : null; set => Demand(value == null ? Native.UnsetSerialNumber(Pointer) : Native.set_SerialNumber(Pointer, Library.Whole(value))); }

        /// <summary>Free remarks on the sample. Null if not set.</summary>
        public string Comment { get => Is(Native.isset_Comment(Pointer)) ? Kept(Native.get_Comment(Pointer)) : null; set => Demand(value == null ? Native.UnsetComment(Pointer) : Native.set_Comment(Pointer, Library.Whole(value))); }
    }

    /// <summary>Head of the samples: any of them can stand in its place.</summary>
    public abstract partial class Sample : SampleType
    {
        internal Sample(Handle handle) : base(handle) { }
    }

    /// <summary>Width and height of a patch.</summary>
    public partial class Specification : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public Specification() : this(Native.Make()) { }

        internal Specification(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new Specification Clone() => (Specification)Copy();
        internal override VyrObject Copy() => Copied(new Specification(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Width; no unit is stated.</summary>
        public double SampleWidth { get => Kept(Native.get_SampleWidth(Pointer)); set => Demand(Native.set_SampleWidth(Pointer, value)); }

        /// <summary>Height; no unit is stated.</summary>
        public double SampleHeight { get => Kept(Native.get_SampleHeight(Pointer)); set => Demand(Native.set_SampleHeight(Pointer, value)); }
    }

    /// <summary>A single patch of one colour.</summary>
    public partial class SampleSpotType : SampleType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public SampleSpotType() : this(Native.Make()) { }

        internal SampleSpotType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new SampleSpotType Clone() => (SampleSpotType)Copy();
        internal override VyrObject Copy() => Copied(new SampleSpotType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Size of the patch. Null until set; assigning copies.</summary>
        public Specification Specification { get => (Specification)Child(2, Parts.Specification); set => AssignChild(2, Parts.Specification, value); }

        /// <summary>Gives Specification, which it makes if it isn't there.</summary>
        public Specification CreateSpecification() => (Specification)CreateChild(2, Parts.Specification);
    }

    /// <summary>A test chart of many patches.</summary>
    public partial class SampleTargetType : SampleType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public SampleTargetType() : this(Native.Make()) { }

        internal SampleTargetType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new SampleTargetType Clone() => (SampleTargetType)Copy();
        internal override VyrObject Copy() => Copied(new SampleTargetType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the chart where Target is Target_Custom. Null if not set.</summary>
        public string CustomTarget { get => Is(Native.isset_CustomTarget(Pointer)) ? Kept(Native.get_CustomTarget(Pointer)) : null; set => Demand(value == null ? Native.UnsetCustomTarget(Pointer) : Native.set_CustomTarget(Pointer, Library.Whole(value))); }

        /// <summary>The chart.</summary>
        public TargetKind Target { get => (TargetKind)Kept(Native.getenum_Target(Pointer)); set => Demand(Listed(Native.setenum_Target(Pointer, (int)value))); }
    }

    /// <summary>A single patch of one colour.</summary>
    public partial class SampleSpot : SampleSpotType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public SampleSpot() : this(Native.Make()) { }

        internal SampleSpot(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new SampleSpot Clone() => (SampleSpot)Copy();
        internal override VyrObject Copy() => Copied(new SampleSpot(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element SampleSpot as its root.</summary>
        public static SampleSpot Load(string path) { TryLoad(path, out SampleSpot loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out SampleSpot loaded, LoadOptions options = null) => Load(new SampleSpot(), path, options, out loaded);
    }

    /// <summary>A test chart of many patches.</summary>
    public partial class SampleTarget : SampleTargetType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public SampleTarget() : this(Native.Make()) { }

        internal SampleTarget(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new SampleTarget Clone() => (SampleTarget)Copy();
        internal override VyrObject Copy() => Copied(new SampleTarget(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element SampleTarget as its root.</summary>
        public static SampleTarget Load(string path) { TryLoad(path, out SampleTarget loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out SampleTarget loaded, LoadOptions options = null) => Load(new SampleTarget(), path, options, out loaded);
    }
}
