// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.

using System;

namespace Vyr
{
    /// <summary>Default measuring conditions of a collection, at most one for each kind of colour value.</summary>
    public partial class CollectionColorSpaceSpecificationType : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public CollectionColorSpaceSpecificationType() : this(Native.Make()) { }

        internal CollectionColorSpaceSpecificationType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new CollectionColorSpaceSpecificationType Clone() => (CollectionColorSpaceSpecificationType)Copy();
        internal override VyrObject Copy() => Copied(new CollectionColorSpaceSpecificationType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Default for reflective values without fixed conditions. Null until set; assigning
        /// copies.</summary>
        public ColorSpaceSpecificationSpectrumGeneric ColorSpaceSpecificationSpectrumGeneric { get => (ColorSpaceSpecificationSpectrumGeneric)Child(0, Parts.ColorSpaceSpecificationSpectrumGeneric); set => AssignChild(0, Parts.ColorSpaceSpecificationSpectrumGeneric, value); }

        /// <summary>Gives ColorSpaceSpecificationSpectrumGeneric, which it makes if it isn't there.</summary>
        public ColorSpaceSpecificationSpectrumGeneric CreateColorSpaceSpecificationSpectrumGeneric() => (ColorSpaceSpecificationSpectrumGeneric)CreateChild(0, Parts.ColorSpaceSpecificationSpectrumGeneric);

        /// <summary>Default for reflectance spectra. Null until set; assigning copies.</summary>
        public ColorSpaceSpecificationSpectrumSpectral ColorSpaceSpecificationSpectrumSpectral { get => (ColorSpaceSpecificationSpectrumSpectral)Child(1, Parts.ColorSpaceSpecificationSpectrumSpectral); set => AssignChild(1, Parts.ColorSpaceSpecificationSpectrumSpectral, value); }

        /// <summary>Gives ColorSpaceSpecificationSpectrumSpectral, which it makes if it isn't there.</summary>
        public ColorSpaceSpecificationSpectrumSpectral CreateColorSpaceSpecificationSpectrumSpectral() => (ColorSpaceSpecificationSpectrumSpectral)CreateChild(1, Parts.ColorSpaceSpecificationSpectrumSpectral);

        /// <summary>Default for reflective tristimulus values. Null until set; assigning copies.</summary>
        public ColorSpaceSpecificationSpectrumTristimulus ColorSpaceSpecificationSpectrumTristimulus { get => (ColorSpaceSpecificationSpectrumTristimulus)Child(2, Parts.ColorSpaceSpecificationSpectrumTristimulus); set => AssignChild(2, Parts.ColorSpaceSpecificationSpectrumTristimulus, value); }

        /// <summary>Gives ColorSpaceSpecificationSpectrumTristimulus, which it makes if it isn't there.</summary>
        public ColorSpaceSpecificationSpectrumTristimulus CreateColorSpaceSpecificationSpectrumTristimulus() => (ColorSpaceSpecificationSpectrumTristimulus)CreateChild(2, Parts.ColorSpaceSpecificationSpectrumTristimulus);

        /// <summary>Default for emissive values without fixed conditions. Null until set; assigning copies.</summary>
        public ColorSpaceSpecificationEmissiveGeneric ColorSpaceSpecificationEmissiveGeneric { get => (ColorSpaceSpecificationEmissiveGeneric)Child(3, Parts.ColorSpaceSpecificationEmissiveGeneric); set => AssignChild(3, Parts.ColorSpaceSpecificationEmissiveGeneric, value); }

        /// <summary>Gives ColorSpaceSpecificationEmissiveGeneric, which it makes if it isn't there.</summary>
        public ColorSpaceSpecificationEmissiveGeneric CreateColorSpaceSpecificationEmissiveGeneric() => (ColorSpaceSpecificationEmissiveGeneric)CreateChild(3, Parts.ColorSpaceSpecificationEmissiveGeneric);

        /// <summary>Default for emission spectra. Null until set; assigning copies.</summary>
        public ColorSpaceSpecificationEmissiveSpectral ColorSpaceSpecificationEmissiveSpectral { get => (ColorSpaceSpecificationEmissiveSpectral)Child(4, Parts.ColorSpaceSpecificationEmissiveSpectral); set => AssignChild(4, Parts.ColorSpaceSpecificationEmissiveSpectral, value); }

        /// <summary>Gives ColorSpaceSpecificationEmissiveSpectral, which it makes if it isn't there.</summary>
        public ColorSpaceSpecificationEmissiveSpectral CreateColorSpaceSpecificationEmissiveSpectral() => (ColorSpaceSpecificationEmissiveSpectral)CreateChild(4, Parts.ColorSpaceSpecificationEmissiveSpectral);

        /// <summary>Default for emissive tristimulus values. Null until set; assigning copies.</summary>
        public ColorSpaceSpecificationEmissiveTristimulus ColorSpaceSpecificationEmissiveTristimulus { get => (ColorSpaceSpecificationEmissiveTristimulus)Child(5, Parts.ColorSpaceSpecificationEmissiveTristimulus); set => AssignChild(5, Parts.ColorSpaceSpecificationEmissiveTristimulus, value); }

        /// <summary>Gives ColorSpaceSpecificationEmissiveTristimulus, which it makes if it isn't there.</summary>
        public ColorSpaceSpecificationEmissiveTristimulus CreateColorSpaceSpecificationEmissiveTristimulus() => (ColorSpaceSpecificationEmissiveTristimulus)CreateChild(5, Parts.ColorSpaceSpecificationEmissiveTristimulus);
    }

    /// <summary>A palette: a named, versioned collection of colour sets.</summary>
    public partial class PaletteType : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public PaletteType() : this(Native.Make()) { }

        internal PaletteType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new PaletteType Clone() => (PaletteType)Copy();
        internal override VyrObject Copy() => Copied(new PaletteType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the palette.</summary>
        public string PaletteName { get => Kept(Native.get_PaletteName(Pointer)); set => Demand(Native.set_PaletteName(Pointer, Library.Whole(value))); }

        /// <summary>Part number under which the palette is sold or filed. Null if not set.</summary>
        public string PalettePartNumber { get => Is(Native.isset_PalettePartNumber(Pointer)) ? Kept(Native.get_PalettePartNumber(Pointer)) : null; set => Demand(value == null ? Native.UnsetPalettePartNumber(Pointer) : Native.set_PalettePartNumber(Pointer, Library.Whole(value))); }

        /// <summary>Version of the palette. Null if not set.</summary>
        public string PaletteVersion { get => Is(Native.isset_PaletteVersion(Pointer)) ? Kept(Native.get_PaletteVersion(Pointer)) : null; set => Demand(value == null ? Native.UnsetPaletteVersion(Pointer) : Native.set_PaletteVersion(Pointer, Library.Whole(value))); }

        /// <summary>Identifier of the palette. Null if not set.</summary>
        public string UniqueID { get => Is(Native.isset_UniqueID(Pointer)) ? Kept(Native.get_UniqueID(Pointer)) : null; set => Demand(value == null ? Native.UnsetUniqueID(Pointer) : Native.set_UniqueID(Pointer, Library.Whole(value))); }

        /// <summary>Free remarks on the palette. Null if not set.</summary>
        public string Comments { get => Is(Native.isset_Comments(Pointer)) ? Kept(Native.get_Comments(Pointer)) : null; set => Demand(value == null ? Native.UnsetComments(Pointer) : Native.set_Comments(Pointer, Library.Whole(value))); }

        /// <summary>A named value of the user's own.</summary>
        public ObjectList<CustomAttributeType> CustomAttributes => (ObjectList<CustomAttributeType>)(Part(0) ?? Remember(0, new ObjectList<CustomAttributeType>(this, "CustomAttributes", Parts.CustomAttribute)));

        /// <summary>Time of one change, with time zone.</summary>
        public DateTimeList ChangeHistory => ListOfTimes(1, Parts.ChangeHistory, @".+T.+(Z|[+\-].+)");

        /// <summary>Who owns the palette. Null until set; assigning copies.</summary>
        public OwnerType Owner { get => (OwnerType)Child(2, Parts.Owner); set => AssignChild(2, Parts.Owner, value); }

        /// <summary>Gives Owner, which it makes if it isn't there.</summary>
        public OwnerType CreateOwner() => (OwnerType)CreateChild(2, Parts.Owner);

        /// <summary>A word or notion that the palette stands for.</summary>
        public TextList SemanticAssociations => ListOfTexts(3, Parts.SemanticAssociation);

        /// <summary>Default measuring conditions for the colours below. Null until set; assigning copies.</summary>
        public CollectionColorSpaceSpecificationType CollectionColorSpaceSpecification { get => (CollectionColorSpaceSpecificationType)Child(4, Parts.CollectionColorSpaceSpecification); set => AssignChild(4, Parts.CollectionColorSpaceSpecification, value); }

        /// <summary>Gives CollectionColorSpaceSpecification, which it makes if it isn't there.</summary>
        public CollectionColorSpaceSpecificationType CreateCollectionColorSpaceSpecification() => (CollectionColorSpaceSpecificationType)CreateChild(4, Parts.CollectionColorSpaceSpecification);

        /// <summary>A colour set of the palette.</summary>
        public ObjectList<ColorSetType> ColorSets => (ObjectList<ColorSetType>)(Part(5) ?? Remember(5, new ObjectList<ColorSetType>(this, "ColorSets", Parts.ColorSet)));
    }

    /// <summary>A named group of colours, such as a page of a fan deck or one material's range.</summary>
    public partial class ColorSetType : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSetType() : this(Native.Make()) { }

        internal ColorSetType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSetType Clone() => (ColorSetType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSetType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the colour set.</summary>
        public string ColorSetName { get => Kept(Native.get_ColorSetName(Pointer)); set => Demand(Native.set_ColorSetName(Pointer, Library.Whole(value))); }

        /// <summary>Identifier of the colour set. Null if not set.</summary>
        public string UniqueID { get => Is(Native.isset_UniqueID(Pointer)) ? Kept(Native.get_UniqueID(Pointer)) : null; set => Demand(value == null ? Native.UnsetUniqueID(Pointer) : Native.set_UniqueID(Pointer, Library.Whole(value))); }

        /// <summary>Part number under which the colour set is sold or filed. Null if not set.</summary>
        public string PartNumber { get => Is(Native.isset_PartNumber(Pointer)) ? Kept(Native.get_PartNumber(Pointer)) : null; set => Demand(value == null ? Native.UnsetPartNumber(Pointer) : Native.set_PartNumber(Pointer, Library.Whole(value))); }

        /// <summary>Free remarks on the colour set. Null if not set.</summary>
        public string Comments { get => Is(Native.isset_Comments(Pointer)) ? Kept(Native.get_Comments(Pointer)) : null; set => Demand(value == null ? Native.UnsetComments(Pointer) : Native.set_Comments(Pointer, Library.Whole(value))); }

        /// <summary>A named value of the user's own.</summary>
        public ObjectList<CustomAttributeType> CustomAttributes => (ObjectList<CustomAttributeType>)(Part(0) ?? Remember(0, new ObjectList<CustomAttributeType>(this, "CustomAttributes", Parts.CustomAttribute)));

        /// <summary>Time of one change, with time zone.</summary>
        public DateTimeList ChangeHistory => ListOfTimes(1, Parts.ChangeHistory, @".+T.+(Z|[+\-].+)");

        /// <summary>Who owns the colour set. Null until set; assigning copies.</summary>
        public OwnerType Owner { get => (OwnerType)Child(2, Parts.Owner); set => AssignChild(2, Parts.Owner, value); }

        /// <summary>Gives Owner, which it makes if it isn't there.</summary>
        public OwnerType CreateOwner() => (OwnerType)CreateChild(2, Parts.Owner);

        /// <summary>A word or notion that the colour set stands for.</summary>
        public TextList SemanticAssociations => ListOfTexts(3, Parts.SemanticAssociation);

        /// <summary>Default measuring conditions for the colours below. Null until set; assigning copies.</summary>
        public CollectionColorSpaceSpecificationType CollectionColorSpaceSpecification { get => (CollectionColorSpaceSpecificationType)Child(4, Parts.CollectionColorSpaceSpecification); set => AssignChild(4, Parts.CollectionColorSpaceSpecification, value); }

        /// <summary>Gives CollectionColorSpaceSpecification, which it makes if it isn't there.</summary>
        public CollectionColorSpaceSpecificationType CreateCollectionColorSpaceSpecification() => (CollectionColorSpaceSpecificationType)CreateChild(4, Parts.CollectionColorSpaceSpecification);

        /// <summary>A colour of the set.</summary>
        public ObjectList<ColorType> Colors => (ObjectList<ColorType>)(Part(5) ?? Remember(5, new ObjectList<ColorType>(this, "Colors", Parts.Color)));

        /// <summary>What the colours of the set are printed on or coated onto. Null until set; assigning
        /// copies.</summary>
        public SubstrateChoice Substrate { get => (SubstrateChoice)Child(6, Parts.Substrate); set => AssignChild(6, Parts.Substrate, value); }

        /// <summary>Gives Substrate, which it makes if it isn't there.</summary>
        public SubstrateChoice CreateSubstrate() => (SubstrateChoice)CreateChild(6, Parts.Substrate);
    }

    /// <summary>A colour: its name and its values in one or more colour spaces.</summary>
    public partial class ColorType : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorType() : this(Native.Make()) { }

        internal ColorType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorType Clone() => (ColorType)Copy();
        internal override VyrObject Copy() => Copied(new ColorType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the colour.</summary>
        public string ColorName { get => Kept(Native.get_ColorName(Pointer)); set => Demand(Native.set_ColorName(Pointer, Library.Whole(value))); }

        /// <summary>Identifier of the colour. Null if not set.</summary>
        public string UniqueID { get => Is(Native.isset_UniqueID(Pointer)) ? Kept(Native.get_UniqueID(Pointer)) : null; set => Demand(value == null ? Native.UnsetUniqueID(Pointer) : Native.set_UniqueID(Pointer, Library.Whole(value))); }

        /// <summary>Number of the colour in its collection. Null if not set.</summary>
        public string ColorNumber { get => Is(Native.isset_ColorNumber(Pointer)) ? Kept(Native.get_ColorNumber(Pointer)) : null; set => Demand(value == null ? Native.UnsetColorNumber(Pointer) : Native.set_ColorNumber(Pointer, Library.Whole(value))); }

        /// <summary>Free remarks on the colour. Null if not set.</summary>
        public string Comments { get => Is(Native.isset_Comments(Pointer)) ? Kept(Native.get_Comments(Pointer)) : null; set => Demand(value == null ? Native.UnsetComments(Pointer) : Native.set_Comments(Pointer, Library.Whole(value))); }

        /// <summary>A named value of the user's own.</summary>
        public ObjectList<CustomAttributeType> CustomAttributes => (ObjectList<CustomAttributeType>)(Part(0) ?? Remember(0, new ObjectList<CustomAttributeType>(this, "CustomAttributes", Parts.CustomAttribute)));

        /// <summary>Time of one change, with time zone.</summary>
        public DateTimeList ChangeHistory => ListOfTimes(1, Parts.ChangeHistory, @".+T.+(Z|[+\-].+)");

        /// <summary>Who owns the colour. Null until set; assigning copies.</summary>
        public OwnerType Owner { get => (OwnerType)Child(2, Parts.Owner); set => AssignChild(2, Parts.Owner, value); }

        /// <summary>Gives Owner, which it makes if it isn't there.</summary>
        public OwnerType CreateOwner() => (OwnerType)CreateChild(2, Parts.Owner);

        /// <summary>A word or notion that the colour stands for.</summary>
        public TextList SemanticAssociations => ListOfTexts(3, Parts.SemanticAssociation);

        /// <summary>The colour's value in one colour space; the element's name says which.</summary>
        public ObjectList<ColorSpaceChoice> ColorSpaces => (ObjectList<ColorSpaceChoice>)(Part(4) ?? Remember(4, new ObjectList<ColorSpaceChoice>(this, "ColorSpaces", Parts.ColorSpace)));

        /// <summary>What the colour is printed on, coated onto or measured on. Null until set; assigning
        /// copies.</summary>
        public SubstrateChoice Substrate { get => (SubstrateChoice)Child(5, Parts.Substrate); set => AssignChild(5, Parts.Substrate, value); }

        /// <summary>Gives Substrate, which it makes if it isn't there.</summary>
        public SubstrateChoice CreateSubstrate() => (SubstrateChoice)CreateChild(5, Parts.Substrate);

        /// <summary>Value of the colour under one tag.</summary>
        public ObjectList<TagValue> TagValues => (ObjectList<TagValue>)(Part(6) ?? Remember(6, new ObjectList<TagValue>(this, "TagValues", Parts.TagValues)));
    }

    /// <summary>Default measuring conditions of a collection, standing alone.</summary>
    public partial class CollectionColorSpaceSpecification : CollectionColorSpaceSpecificationType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public CollectionColorSpaceSpecification() : this(Native.Make()) { }

        internal CollectionColorSpaceSpecification(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new CollectionColorSpaceSpecification Clone() => (CollectionColorSpaceSpecification)Copy();
        internal override VyrObject Copy() => Copied(new CollectionColorSpaceSpecification(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element CollectionColorSpaceSpecification as its root.</summary>
        public static CollectionColorSpaceSpecification Load(string path) { TryLoad(path, out CollectionColorSpaceSpecification loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out CollectionColorSpaceSpecification loaded, LoadOptions options = null) => Load(new CollectionColorSpaceSpecification(), path, options, out loaded);
    }
}
