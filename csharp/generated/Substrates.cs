// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.

using System;

namespace Vyr
{
    /// <summary>What a colour is printed on, coated onto or measured on.</summary>
    public partial class SubstrateType : VyrObject
    {
        internal SubstrateType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new SubstrateType Clone() => (SubstrateType)Copy();
        internal override VyrObject Copy() => Copied(new SubstrateType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>A named value of the user's own.</summary>
        public ObjectList<CustomAttributeType> CustomAttributes => (ObjectList<CustomAttributeType>)(Part(0) ?? Remember(0, new ObjectList<CustomAttributeType>(this, "CustomAttributes", Parts.CustomAttribute)));

        /// <summary>The maker's number for the material. Null if not set.</summary>
        public string PartNumber { get => Is(Native.isset_PartNumber(Pointer)) ? Kept(Native.get_PartNumber(Pointer)) : null; set => Demand(value == null ? Native.UnsetPartNumber(Pointer) : Native.set_PartNumber(Pointer, Library.Whole(value))); }

        /// <summary>Colour of the bare substrate. Null until set; assigning copies.</summary>
        public ColorType Color { get => (ColorType)Child(1, Parts.Color); set => AssignChild(1, Parts.Color, value); }

        /// <summary>Gives Color, which it makes if it isn't there.</summary>
        public ColorType CreateColor() => (ColorType)CreateChild(1, Parts.Color);
    }

    /// <summary>Head of the substrates: any of them can stand in its place.</summary>
    public abstract partial class Substrate : SubstrateType
    {
        internal Substrate(Handle handle) : base(handle) { }
    }

    /// <summary>Paper or board.</summary>
    public partial class SubstratePaperType : SubstrateType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public SubstratePaperType() : this(Native.Make()) { }

        internal SubstratePaperType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new SubstratePaperType Clone() => (SubstratePaperType)Copy();
        internal override VyrObject Copy() => Copied(new SubstratePaperType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Thickness of the paper; no unit is stated. Null if not set.</summary>
        public double? PaperThickness { get => Is(Native.isset_PaperThickness(Pointer)) ? Kept(Native.get_PaperThickness(Pointer)) : default(double?); set => Demand(value == null ? Native.UnsetPaperThickness(Pointer) : Native.set_PaperThickness(Pointer, value.Value)); }

        /// <summary>Kind of paper in words. Null if not set.</summary>
        public string PaperType { get => Is(Native.isset_PaperType(Pointer)) ? Kept(Native.get_PaperType(Pointer)) : null; set => Demand(value == null ? Native.UnsetPaperType(Pointer) : Native.set_PaperType(Pointer, Library.Whole(value))); }
    }

    /// <summary>A material that has no type of its own.</summary>
    public partial class SubstrateGenericType : SubstrateType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public SubstrateGenericType() : this(Native.Make()) { }

        internal SubstrateGenericType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new SubstrateGenericType Clone() => (SubstrateGenericType)Copy();
        internal override VyrObject Copy() => Copied(new SubstrateGenericType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Kind of material in words; not empty.</summary>
        public string Type { get => Kept(Native.get_Type(Pointer)); set => Demand(Native.set_Type(Pointer, Library.Whole(value))); }
    }

    /// <summary>Metal.</summary>
    public partial class SubstrateMetalType : SubstrateType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public SubstrateMetalType() : this(Native.Make()) { }

        internal SubstrateMetalType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new SubstrateMetalType Clone() => (SubstrateMetalType)Copy();
        internal override VyrObject Copy() => Copied(new SubstrateMetalType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Weight of the metal; no unit is stated. Null if not set.</summary>
        public double? MetalWeight { get => Is(Native.isset_MetalWeight(Pointer)) ? Kept(Native.get_MetalWeight(Pointer)) : default(double?); set => Demand(value == null ? Native.UnsetMetalWeight(Pointer) : Native.set_MetalWeight(Pointer, value.Value)); }

        /// <summary>Kind of metal in words. Null if not set.</summary>
        public string MetalType { get => Is(Native.isset_MetalType(Pointer)) ? Kept(Native.get_MetalType(Pointer)) : null; set => Demand(value == null ? Native.UnsetMetalType(Pointer) : Native.set_MetalType(Pointer, Library.Whole(value))); }
    }

    /// <summary>Plastic.</summary>
    public partial class SubstratePlasticType : SubstrateType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public SubstratePlasticType() : this(Native.Make()) { }

        internal SubstratePlasticType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new SubstratePlasticType Clone() => (SubstratePlasticType)Copy();
        internal override VyrObject Copy() => Copied(new SubstratePlasticType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Weight of the plastic; no unit is stated. Null if not set.</summary>
        public double? PlasticWeight { get => Is(Native.isset_PlasticWeight(Pointer)) ? Kept(Native.get_PlasticWeight(Pointer)) : default(double?); set => Demand(value == null ? Native.UnsetPlasticWeight(Pointer) : Native.set_PlasticWeight(Pointer, value.Value)); }

        /// <summary>Kind of plastic in words. Null if not set.</summary>
        public string PlasticType { get => Is(Native.isset_PlasticType(Pointer)) ? Kept(Native.get_PlasticType(Pointer)) : null; set => Demand(value == null ? Native.UnsetPlasticType(Pointer) : Native.set_PlasticType(Pointer, Library.Whole(value))); }
    }

    /// <summary>Wood.</summary>
    public partial class SubstrateWoodType : SubstrateType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public SubstrateWoodType() : this(Native.Make()) { }

        internal SubstrateWoodType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new SubstrateWoodType Clone() => (SubstrateWoodType)Copy();
        internal override VyrObject Copy() => Copied(new SubstrateWoodType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Weight of the wood; no unit is stated. Null if not set.</summary>
        public double? WoodWeight { get => Is(Native.isset_WoodWeight(Pointer)) ? Kept(Native.get_WoodWeight(Pointer)) : default(double?); set => Demand(value == null ? Native.UnsetWoodWeight(Pointer) : Native.set_WoodWeight(Pointer, value.Value)); }

        /// <summary>Kind of wood in words. Null if not set.</summary>
        public string WoodType { get => Is(Native.isset_WoodType(Pointer)) ? Kept(Native.get_WoodType(Pointer)) : null; set => Demand(value == null ? Native.UnsetWoodType(Pointer) : Native.set_WoodType(Pointer, Library.Whole(value))); }
    }

    /// <summary>Vinyl.</summary>
    public partial class SubstrateVinylType : SubstrateType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public SubstrateVinylType() : this(Native.Make()) { }

        internal SubstrateVinylType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new SubstrateVinylType Clone() => (SubstrateVinylType)Copy();
        internal override VyrObject Copy() => Copied(new SubstrateVinylType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Weight of the vinyl; no unit is stated. Null if not set.</summary>
        public double? VinylWeight { get => Is(Native.isset_VinylWeight(Pointer)) ? Kept(Native.get_VinylWeight(Pointer)) : default(double?); set => Demand(value == null ? Native.UnsetVinylWeight(Pointer) : Native.set_VinylWeight(Pointer, value.Value)); }

        /// <summary>Kind of vinyl in words. Null if not set.</summary>
        public string VinylType { get => Is(Native.isset_VinylType(Pointer)) ? Kept(Native.get_VinylType(Pointer)) : null; set => Demand(value == null ? Native.UnsetVinylType(Pointer) : Native.set_VinylType(Pointer, Library.Whole(value))); }
    }

    /// <summary>Ceramic or other tile.</summary>
    public partial class SubstrateTileType : SubstrateType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public SubstrateTileType() : this(Native.Make()) { }

        internal SubstrateTileType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new SubstrateTileType Clone() => (SubstrateTileType)Copy();
        internal override VyrObject Copy() => Copied(new SubstrateTileType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Weight of the tile; no unit is stated. Null if not set.</summary>
        public double? TileWeight { get => Is(Native.isset_TileWeight(Pointer)) ? Kept(Native.get_TileWeight(Pointer)) : default(double?); set => Demand(value == null ? Native.UnsetTileWeight(Pointer) : Native.set_TileWeight(Pointer, value.Value)); }

        /// <summary>Kind of tile in words. Null if not set.</summary>
        public string TileType { get => Is(Native.isset_TileType(Pointer)) ? Kept(Native.get_TileType(Pointer)) : null; set => Demand(value == null ? Native.UnsetTileType(Pointer) : Native.set_TileType(Pointer, Library.Whole(value))); }
    }

    /// <summary>Film or foil.</summary>
    public partial class SubstrateFilmType : SubstrateType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public SubstrateFilmType() : this(Native.Make()) { }

        internal SubstrateFilmType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new SubstrateFilmType Clone() => (SubstrateFilmType)Copy();
        internal override VyrObject Copy() => Copied(new SubstrateFilmType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Weight of the film; no unit is stated. Null if not set.</summary>
        public double? FilmWeight { get => Is(Native.isset_FilmWeight(Pointer)) ? Kept(Native.get_FilmWeight(Pointer)) : default(double?); set => Demand(value == null ? Native.UnsetFilmWeight(Pointer) : Native.set_FilmWeight(Pointer, value.Value)); }

        /// <summary>Kind of film in words. Null if not set.</summary>
        public string FilmType { get => Is(Native.isset_FilmType(Pointer)) ? Kept(Native.get_FilmType(Pointer)) : null; set => Demand(value == null ? Native.UnsetFilmType(Pointer) : Native.set_FilmType(Pointer, Library.Whole(value))); }
    }

    /// <summary>Textile.</summary>
    public partial class SubstrateTextileType : SubstrateType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public SubstrateTextileType() : this(Native.Make()) { }

        internal SubstrateTextileType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new SubstrateTextileType Clone() => (SubstrateTextileType)Copy();
        internal override VyrObject Copy() => Copied(new SubstrateTextileType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Weight of the textile; no unit is stated. Null if not set.</summary>
        public double? TextileWeight { get => Is(Native.isset_TextileWeight(Pointer)) ? Kept(Native.get_TextileWeight(Pointer)) : default(double?); set => Demand(value == null ? Native.UnsetTextileWeight(Pointer) : Native.set_TextileWeight(Pointer, value.Value)); }

        /// <summary>Kind of textile in words. Null if not set.</summary>
        public string TextileType { get => Is(Native.isset_TextileType(Pointer)) ? Kept(Native.get_TextileType(Pointer)) : null; set => Demand(value == null ? Native.UnsetTextileType(Pointer) : Native.set_TextileType(Pointer, Library.Whole(value))); }
    }

    /// <summary>Paper or board.</summary>
    public partial class SubstratePaper : SubstratePaperType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public SubstratePaper() : this(Native.Make()) { }

        internal SubstratePaper(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new SubstratePaper Clone() => (SubstratePaper)Copy();
        internal override VyrObject Copy() => Copied(new SubstratePaper(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element SubstratePaper as its root.</summary>
        public static SubstratePaper Load(string path) { TryLoad(path, out SubstratePaper loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out SubstratePaper loaded, LoadOptions options = null) => Load(new SubstratePaper(), path, options, out loaded);
    }

    /// <summary>A material that has no type of its own.</summary>
    public partial class SubstrateGeneric : SubstrateGenericType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public SubstrateGeneric() : this(Native.Make()) { }

        internal SubstrateGeneric(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new SubstrateGeneric Clone() => (SubstrateGeneric)Copy();
        internal override VyrObject Copy() => Copied(new SubstrateGeneric(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element SubstrateGeneric as its root.</summary>
        public static SubstrateGeneric Load(string path) { TryLoad(path, out SubstrateGeneric loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out SubstrateGeneric loaded, LoadOptions options = null) => Load(new SubstrateGeneric(), path, options, out loaded);
    }

    /// <summary>Metal.</summary>
    public partial class SubstrateMetal : SubstrateMetalType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public SubstrateMetal() : this(Native.Make()) { }

        internal SubstrateMetal(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new SubstrateMetal Clone() => (SubstrateMetal)Copy();
        internal override VyrObject Copy() => Copied(new SubstrateMetal(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element SubstrateMetal as its root.</summary>
        public static SubstrateMetal Load(string path) { TryLoad(path, out SubstrateMetal loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out SubstrateMetal loaded, LoadOptions options = null) => Load(new SubstrateMetal(), path, options, out loaded);
    }

    /// <summary>Plastic.</summary>
    public partial class SubstratePlastic : SubstratePlasticType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public SubstratePlastic() : this(Native.Make()) { }

        internal SubstratePlastic(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new SubstratePlastic Clone() => (SubstratePlastic)Copy();
        internal override VyrObject Copy() => Copied(new SubstratePlastic(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element SubstratePlastic as its root.</summary>
        public static SubstratePlastic Load(string path) { TryLoad(path, out SubstratePlastic loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out SubstratePlastic loaded, LoadOptions options = null) => Load(new SubstratePlastic(), path, options, out loaded);
    }

    /// <summary>Wood.</summary>
    public partial class SubstrateWood : SubstrateWoodType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public SubstrateWood() : this(Native.Make()) { }

        internal SubstrateWood(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new SubstrateWood Clone() => (SubstrateWood)Copy();
        internal override VyrObject Copy() => Copied(new SubstrateWood(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element SubstrateWood as its root.</summary>
        public static SubstrateWood Load(string path) { TryLoad(path, out SubstrateWood loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out SubstrateWood loaded, LoadOptions options = null) => Load(new SubstrateWood(), path, options, out loaded);
    }

    /// <summary>Vinyl.</summary>
    public partial class SubstrateVinyl : SubstrateVinylType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public SubstrateVinyl() : this(Native.Make()) { }

        internal SubstrateVinyl(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new SubstrateVinyl Clone() => (SubstrateVinyl)Copy();
        internal override VyrObject Copy() => Copied(new SubstrateVinyl(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element SubstrateVinyl as its root.</summary>
        public static SubstrateVinyl Load(string path) { TryLoad(path, out SubstrateVinyl loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out SubstrateVinyl loaded, LoadOptions options = null) => Load(new SubstrateVinyl(), path, options, out loaded);
    }

    /// <summary>Ceramic or other tile.</summary>
    public partial class SubstrateTile : SubstrateTileType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public SubstrateTile() : this(Native.Make()) { }

        internal SubstrateTile(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new SubstrateTile Clone() => (SubstrateTile)Copy();
        internal override VyrObject Copy() => Copied(new SubstrateTile(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element SubstrateTile as its root.</summary>
        public static SubstrateTile Load(string path) { TryLoad(path, out SubstrateTile loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out SubstrateTile loaded, LoadOptions options = null) => Load(new SubstrateTile(), path, options, out loaded);
    }

    /// <summary>Film or foil.</summary>
    public partial class SubstrateFilm : SubstrateFilmType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public SubstrateFilm() : this(Native.Make()) { }

        internal SubstrateFilm(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new SubstrateFilm Clone() => (SubstrateFilm)Copy();
        internal override VyrObject Copy() => Copied(new SubstrateFilm(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element SubstrateFilm as its root.</summary>
        public static SubstrateFilm Load(string path) { TryLoad(path, out SubstrateFilm loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out SubstrateFilm loaded, LoadOptions options = null) => Load(new SubstrateFilm(), path, options, out loaded);
    }

    /// <summary>Textile.</summary>
    public partial class SubstrateTextile : SubstrateTextileType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public SubstrateTextile() : this(Native.Make()) { }

        internal SubstrateTextile(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new SubstrateTextile Clone() => (SubstrateTextile)Copy();
        internal override VyrObject Copy() => Copied(new SubstrateTextile(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element SubstrateTextile as its root.</summary>
        public static SubstrateTextile Load(string path) { TryLoad(path, out SubstrateTextile loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out SubstrateTextile loaded, LoadOptions options = null) => Load(new SubstrateTextile(), path, options, out loaded);
    }
}
