// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.

using System;

namespace Vyr
{
    /// <summary>A colour's name in the three parts by which a collection orders it.</summary>
    public partial class ColorName : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorName() : this(Native.Make()) { }

        internal ColorName(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorName Clone() => (ColorName)Copy();
        internal override VyrObject Copy() => Copied(new ColorName(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>What stands ahead of the name proper.</summary>
        public string PrefixName { get => Kept(Native.get_PrefixName(Pointer)); set => Demand(Native.set_PrefixName(Pointer, Library.Whole(value))); }

        /// <summary>The name proper.</summary>
        public string BaseName { get => Kept(Native.get_BaseName(Pointer)); set => Demand(Native.set_BaseName(Pointer, Library.Whole(value))); }

        /// <summary>What follows the name proper, such as the finish.</summary>
        public string SuffixName { get => Kept(Native.get_SuffixName(Pointer)); set => Demand(Native.set_SuffixName(Pointer, Library.Whole(value))); }
    }

    /// <summary>A mixture of colorants.</summary>
    public partial class Recipe : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public Recipe() : this(Native.Make()) { }

        internal Recipe(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new Recipe Clone() => (Recipe)Copy();
        internal override VyrObject Copy() => Copied(new Recipe(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>One colorant with its share.</summary>
        public ObjectList<ColorantElement> ColorantElements => (ObjectList<ColorantElement>)(Part(0) ?? Remember(0, new ObjectList<ColorantElement>(this, "ColorantElements", Parts.ColorantElement)));
    }

    /// <summary>A colour of the TINTORA collection, by family, name and page.</summary>
    public partial class ColorSpaceTINTORAType : ColorSpaceType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceTINTORAType() : this(Native.Make()) { }

        internal ColorSpaceTINTORAType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceTINTORAType Clone() => (ColorSpaceTINTORAType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceTINTORAType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the value. Null if not set.</summary>
        public string Name { get => Is(Native.isset_Name(Pointer)) ? Kept(Native.get_Name(Pointer)) : null; set => Demand(value == null ? Native.UnsetName(Pointer) : Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Colour family.</summary>
        public string FamilyName { get => Kept(Native.get_FamilyName(Pointer)); set => Demand(Native.set_FamilyName(Pointer, Library.Whole(value))); }

        /// <summary>Name of the colour in its three parts. Null until set; assigning copies.</summary>
        public ColorName ColorName { get => (ColorName)Child(3, Parts.ColorName); set => AssignChild(3, Parts.ColorName, value); }

        /// <summary>Gives ColorName, which it makes if it isn't there.</summary>
        public ColorName CreateColorName() => (ColorName)CreateChild(3, Parts.ColorName);

        /// <summary>Page of the guide that shows the colour.</summary>
        public string Page { get => Kept(Native.get_Page(Pointer)); set => Demand(Native.set_Page(Pointer, Library.Whole(value))); }

        /// <summary>Smallest gamut in which the colour can be shown.</summary>
        public GamutKind Gamut { get => (GamutKind)Kept(Native.getenum_Gamut(Pointer)); set => Demand(Listed(Native.setenum_Gamut(Pointer, (int)value))); }

        /// <summary>How the colour is mixed. Null until set; assigning copies.</summary>
        public Recipe Recipe { get => (Recipe)Child(4, Parts.Recipe); set => AssignChild(4, Parts.Recipe, value); }

        /// <summary>Gives Recipe, which it makes if it isn't there.</summary>
        public Recipe CreateRecipe() => (Recipe)CreateChild(4, Parts.Recipe);

        /// <summary>Spectrum of the colour in one finish.</summary>
        public ObjectList<ColorAndFinish> ColorAndFinishes => (ObjectList<ColorAndFinish>)(Part(5) ?? Remember(5, new ObjectList<ColorAndFinish>(this, "ColorAndFinishes", Parts.ColorAndFinish)));
    }

    /// <summary>A dye, pigment or base ink of a recipe, known by its name.</summary>
    public partial class Colorant : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public Colorant() : this(Native.Make()) { }

        internal Colorant(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new Colorant Clone() => (Colorant)Copy();
        internal override VyrObject Copy() => Copied(new Colorant(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>A named value of the user's own.</summary>
        public ObjectList<CustomAttributes> CustomAttributes => (ObjectList<CustomAttributes>)(Part(0) ?? Remember(0, new ObjectList<CustomAttributes>(this, "CustomAttributes", Parts.CustomAttributes)));

        /// <summary>Name of the colorant; not empty.</summary>
        public string Name { get => Kept(Native.get_Name(Pointer)); set => Demand(Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Who makes the colorant; not empty. Null if not set.</summary>
        public string Manufacturer { get => Is(Native.isset_Manufacturer(Pointer)) ? Kept(Native.get_Manufacturer(Pointer)) : null; set => Demand(value == null ? Native.UnsetManufacturer(Pointer) : Native.set_Manufacturer(Pointer, Library.Whole(value))); }

        /// <summary>The maker's number for it; not empty. Null if not set.</summary>
        public string PartNumber { get => Is(Native.isset_PartNumber(Pointer)) ? Kept(Native.get_PartNumber(Pointer)) : null; set => Demand(value == null ? Native.UnsetPartNumber(Pointer) : Native.set_PartNumber(Pointer, Library.Whole(value))); }

        /// <summary>Density of the colorant, above 0; no unit is stated. Null if not set.</summary>
        public double? Density { get => Is(Native.isset_Density(Pointer)) ? Kept(Native.get_Density(Pointer)) : default(double?); set => Demand(value == null ? Native.UnsetDensity(Pointer) : Native.set_Density(Pointer, value.Value)); }
    }

    /// <summary>A colorant and its share in a mixture.</summary>
    public partial class ColorantElement : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorantElement() : this(Native.Make()) { }

        internal ColorantElement(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorantElement Clone() => (ColorantElement)Copy();
        internal override VyrObject Copy() => Copied(new ColorantElement(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>The colorant. Null until set; assigning copies.</summary>
        public Colorant Colorant { get => (Colorant)Child(0, Parts.Colorant); set => AssignChild(0, Parts.Colorant, value); }

        /// <summary>Gives Colorant, which it makes if it isn't there.</summary>
        public Colorant CreateColorant() => (Colorant)CreateChild(0, Parts.Colorant);

        /// <summary>Share of the colorant, 0 or more, in the unit of the recipe.</summary>
        public double Contribution { get => Kept(Native.get_Contribution(Pointer)); set => Demand(Native.set_Contribution(Pointer, value)); }
    }

    /// <summary>An envelope around one named value of the user's own.</summary>
    public partial class CustomAttributes : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public CustomAttributes() : this(Native.Make()) { }

        internal CustomAttributes(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new CustomAttributes Clone() => (CustomAttributes)Copy();
        internal override VyrObject Copy() => Copied(new CustomAttributes(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>The named value. Null until set; assigning copies.</summary>
        public CustomAttributeType CustomAttribute { get => (CustomAttributeType)Child(0, Parts.CustomAttribute); set => AssignChild(0, Parts.CustomAttribute, value); }

        /// <summary>Gives CustomAttribute, which it makes if it isn't there.</summary>
        public CustomAttributeType CreateCustomAttribute() => (CustomAttributeType)CreateChild(0, Parts.CustomAttribute);
    }

    /// <summary>How a colour looks in one finish of the paper.</summary>
    public partial class ColorAndFinish : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorAndFinish() : this(Native.Make()) { }

        internal ColorAndFinish(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorAndFinish Clone() => (ColorAndFinish)Copy();
        internal override VyrObject Copy() => Copied(new ColorAndFinish(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>The finish.</summary>
        public FinishKind Finish { get => (FinishKind)Kept(Native.getenum_Finish(Pointer)); set => Demand(Listed(Native.setenum_Finish(Pointer, (int)value))); }

        /// <summary>Reflectance spectrum in that finish. Null until set; assigning copies.</summary>
        public ColorSpaceSpectralType ColorSpaceSpectral { get => (ColorSpaceSpectralType)Child(0, Parts.ColorSpaceSpectral); set => AssignChild(0, Parts.ColorSpaceSpectral, value); }

        /// <summary>Gives ColorSpaceSpectral, which it makes if it isn't there.</summary>
        public ColorSpaceSpectralType CreateColorSpaceSpectral() => (ColorSpaceSpectralType)CreateChild(0, Parts.ColorSpaceSpectral);
    }

    /// <summary>A colour by its notation in the Natural Colour System.</summary>
    public partial class ColorSpaceNCSType : ColorSpaceType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceNCSType() : this(Native.Make()) { }

        internal ColorSpaceNCSType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceNCSType Clone() => (ColorSpaceNCSType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceNCSType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the value. Null if not set.</summary>
        public string Name { get => Is(Native.isset_Name(Pointer)) ? Kept(Native.get_Name(Pointer)) : null; set => Demand(value == null ? Native.UnsetName(Pointer) : Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Conditions under which the value holds. Null until set; assigning copies.</summary>
        public ColorSpaceSpecificationSpectrumGeneric ColorSpaceSpecificationSpectrumGeneric { get => (ColorSpaceSpecificationSpectrumGeneric)Child(3, Parts.ColorSpaceSpecificationSpectrumGeneric); set => AssignChild(3, Parts.ColorSpaceSpecificationSpectrumGeneric, value); }

        /// <summary>Gives ColorSpaceSpecificationSpectrumGeneric, which it makes if it isn't there.</summary>
        public ColorSpaceSpecificationSpectrumGeneric CreateColorSpaceSpecificationSpectrumGeneric() => (ColorSpaceSpecificationSpectrumGeneric)CreateChild(3, Parts.ColorSpaceSpecificationSpectrumGeneric);

        /// <summary>The notation.</summary>
        public string ColorName { get => Kept(Native.get_ColorName(Pointer)); set => Demand(Native.set_ColorName(Pointer, Library.Whole(value))); }
    }

    /// <summary>A colour by its notation in a Munsell collection.</summary>
    public partial class ColorSpaceMunsellType : ColorSpaceType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceMunsellType() : this(Native.Make()) { }

        internal ColorSpaceMunsellType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceMunsellType Clone() => (ColorSpaceMunsellType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceMunsellType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the value. Null if not set.</summary>
        public string Name { get => Is(Native.isset_Name(Pointer)) ? Kept(Native.get_Name(Pointer)) : null; set => Demand(value == null ? Native.UnsetName(Pointer) : Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Conditions under which the value holds. Null until set; assigning copies.</summary>
        public ColorSpaceSpecificationSpectrumGeneric ColorSpaceSpecificationSpectrumGeneric { get => (ColorSpaceSpecificationSpectrumGeneric)Child(3, Parts.ColorSpaceSpecificationSpectrumGeneric); set => AssignChild(3, Parts.ColorSpaceSpecificationSpectrumGeneric, value); }

        /// <summary>Gives ColorSpaceSpecificationSpectrumGeneric, which it makes if it isn't there.</summary>
        public ColorSpaceSpecificationSpectrumGeneric CreateColorSpaceSpecificationSpectrumGeneric() => (ColorSpaceSpecificationSpectrumGeneric)CreateChild(3, Parts.ColorSpaceSpecificationSpectrumGeneric);

        /// <summary>Which Munsell collection; not empty.</summary>
        public string CollectionName { get => Kept(Native.get_CollectionName(Pointer)); set => Demand(Native.set_CollectionName(Pointer, Library.Whole(value))); }

        /// <summary>The notation by hue, value and chroma; not empty.</summary>
        public string ColorName { get => Kept(Native.get_ColorName(Pointer)); set => Demand(Native.set_ColorName(Pointer, Library.Whole(value))); }
    }

    /// <summary>The carrier that colorants are mixed into.</summary>
    public partial class Base : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public Base() : this(Native.Make()) { }

        internal Base(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new Base Clone() => (Base)Copy();
        internal override VyrObject Copy() => Copied(new Base(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>A named value of the user's own.</summary>
        public ObjectList<CustomAttributeType> CustomAttributes => (ObjectList<CustomAttributeType>)(Part(0) ?? Remember(0, new ObjectList<CustomAttributeType>(this, "CustomAttributes", Parts.CustomAttribute)));

        /// <summary>Name of the base; not empty.</summary>
        public string Name { get => Kept(Native.get_Name(Pointer)); set => Demand(Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Who makes the base; not empty.</summary>
        public string Manufacturer { get => Kept(Native.get_Manufacturer(Pointer)); set => Demand(Native.set_Manufacturer(Pointer, Library.Whole(value))); }

        /// <summary>The maker's number for it; not empty.</summary>
        public string PartNumber { get => Kept(Native.get_PartNumber(Pointer)); set => Demand(Native.set_PartNumber(Pointer, Library.Whole(value))); }

        /// <summary>Density of the base, above 0; no unit is stated. Null if not set.</summary>
        public double? Density { get => Is(Native.isset_Density(Pointer)) ? Kept(Native.get_Density(Pointer)) : default(double?); set => Demand(value == null ? Native.UnsetDensity(Pointer) : Native.set_Density(Pointer, value.Value)); }
    }

    /// <summary>The base of a mixture and its share.</summary>
    public partial class BaseElementType : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public BaseElementType() : this(Native.Make()) { }

        internal BaseElementType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new BaseElementType Clone() => (BaseElementType)Copy();
        internal override VyrObject Copy() => Copied(new BaseElementType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>The base. Null until set; assigning copies.</summary>
        public Base Base { get => (Base)Child(0, Parts.Base); set => AssignChild(0, Parts.Base, value); }

        /// <summary>Gives Base, which it makes if it isn't there.</summary>
        public Base CreateBase() => (Base)CreateChild(0, Parts.Base);

        /// <summary>Share of the base, 0 or more, in the unit of the recipe.</summary>
        public double Contribution { get => Kept(Native.get_Contribution(Pointer)); set => Demand(Native.set_Contribution(Pointer, value)); }
    }

    /// <summary>A colour by the colorants that give it.</summary>
    public partial class ColorSpaceRecipeType : ColorSpaceType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceRecipeType() : this(Native.Make()) { }

        internal ColorSpaceRecipeType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceRecipeType Clone() => (ColorSpaceRecipeType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceRecipeType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the value. Null if not set.</summary>
        public string Name { get => Is(Native.isset_Name(Pointer)) ? Kept(Native.get_Name(Pointer)) : null; set => Demand(value == null ? Native.UnsetName(Pointer) : Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Conditions under which the value holds. Null until set; assigning copies.</summary>
        public ColorSpaceSpecificationSpectrumGeneric ColorSpaceSpecificationSpectrumGeneric { get => (ColorSpaceSpecificationSpectrumGeneric)Child(3, Parts.ColorSpaceSpecificationSpectrumGeneric); set => AssignChild(3, Parts.ColorSpaceSpecificationSpectrumGeneric, value); }

        /// <summary>Gives ColorSpaceSpecificationSpectrumGeneric, which it makes if it isn't there.</summary>
        public ColorSpaceSpecificationSpectrumGeneric CreateColorSpaceSpecificationSpectrumGeneric() => (ColorSpaceSpecificationSpectrumGeneric)CreateChild(3, Parts.ColorSpaceSpecificationSpectrumGeneric);

        /// <summary>One colorant with its share.</summary>
        public ObjectList<ColorantElementType> ColorantElements => (ObjectList<ColorantElementType>)(Part(4) ?? Remember(4, new ObjectList<ColorantElementType>(this, "ColorantElements", Parts.ColorantElement)));

        /// <summary>The base that the colorants are mixed into. Null until set; assigning copies.</summary>
        public BaseElementType BaseElement { get => (BaseElementType)Child(5, Parts.BaseElement); set => AssignChild(5, Parts.BaseElement, value); }

        /// <summary>Gives BaseElement, which it makes if it isn't there.</summary>
        public BaseElementType CreateBaseElement() => (BaseElementType)CreateChild(5, Parts.BaseElement);
    }

    /// <summary>A colour by the colorants that give it.</summary>
    public partial class ColorSpaceRecipe : ColorSpaceRecipeType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceRecipe() : this(Native.Make()) { }

        internal ColorSpaceRecipe(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceRecipe Clone() => (ColorSpaceRecipe)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceRecipe(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element ColorSpaceRecipe as its root.</summary>
        public static ColorSpaceRecipe Load(string path) { TryLoad(path, out ColorSpaceRecipe loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out ColorSpaceRecipe loaded, LoadOptions options = null) => Load(new ColorSpaceRecipe(), path, options, out loaded);
    }

    /// <summary>A colour of the TINTORA collection, by family, name and page.</summary>
    public partial class ColorSpaceTINTORA : ColorSpaceTINTORAType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceTINTORA() : this(Native.Make()) { }

        internal ColorSpaceTINTORA(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceTINTORA Clone() => (ColorSpaceTINTORA)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceTINTORA(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element ColorSpaceTINTORA as its root.</summary>
        public static ColorSpaceTINTORA Load(string path) { TryLoad(path, out ColorSpaceTINTORA loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out ColorSpaceTINTORA loaded, LoadOptions options = null) => Load(new ColorSpaceTINTORA(), path, options, out loaded);
    }

    /// <summary>A colour by its notation in the Natural Colour System.</summary>
    public partial class ColorSpaceNCS : ColorSpaceNCSType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceNCS() : this(Native.Make()) { }

        internal ColorSpaceNCS(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceNCS Clone() => (ColorSpaceNCS)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceNCS(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element ColorSpaceNCS as its root.</summary>
        public static ColorSpaceNCS Load(string path) { TryLoad(path, out ColorSpaceNCS loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out ColorSpaceNCS loaded, LoadOptions options = null) => Load(new ColorSpaceNCS(), path, options, out loaded);
    }

    /// <summary>A colour by its notation in a Munsell collection.</summary>
    public partial class ColorSpaceMunsell : ColorSpaceMunsellType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceMunsell() : this(Native.Make()) { }

        internal ColorSpaceMunsell(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceMunsell Clone() => (ColorSpaceMunsell)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceMunsell(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element ColorSpaceMunsell as its root.</summary>
        public static ColorSpaceMunsell Load(string path) { TryLoad(path, out ColorSpaceMunsell loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out ColorSpaceMunsell loaded, LoadOptions options = null) => Load(new ColorSpaceMunsell(), path, options, out loaded);
    }

    /// <summary>Density of the colorant, above 0 and without a stated unit, or nil where it is unknown.</summary>
    public partial class Density : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public Density() : this(Native.Make()) { }

        internal Density(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new Density Clone() => (Density)Copy();
        internal override VyrObject Copy() => Copied(new Density(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>True for an element that says that it has no value.</summary>
        public bool IsNil => Is(Native.isnil_Density(Pointer));

        /// <summary>Makes it an element that says that it has no value. `Reset` takes that back, and so does setting
        /// `Value`.</summary>
        public void SetNil() { Native.setnil_Density(Pointer); Keep(); }

        /// <summary>Density of the colorant, above 0 and without a stated unit, or nil where it is unknown.</summary>
        public double Value { get => Kept(Native.get_Density(Pointer)); set => Demand(Native.set_Density(Pointer, value)); }
    }

    /// <summary>A dye, pigment or base ink, known by name, maker and part number.</summary>
    public partial class ColorantElementType_Colorant : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorantElementType_Colorant() : this(Native.Make()) { }

        internal ColorantElementType_Colorant(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorantElementType_Colorant Clone() => (ColorantElementType_Colorant)Copy();
        internal override VyrObject Copy() => Copied(new ColorantElementType_Colorant(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>A named value of the user's own.</summary>
        public ObjectList<CustomAttributeType> CustomAttributes => (ObjectList<CustomAttributeType>)(Part(0) ?? Remember(0, new ObjectList<CustomAttributeType>(this, "CustomAttributes", Parts.CustomAttribute)));

        /// <summary>Name of the colorant; not empty.</summary>
        public string Name { get => Kept(Native.get_Name(Pointer)); set => Demand(Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Who makes the colorant; not empty.</summary>
        public string Manufacturer { get => Kept(Native.get_Manufacturer(Pointer)); set => Demand(Native.set_Manufacturer(Pointer, Library.Whole(value))); }

        /// <summary>The maker's number for it; not empty.</summary>
        public string PartNumber { get => Kept(Native.get_PartNumber(Pointer)); set => Demand(Native.set_PartNumber(Pointer, Library.Whole(value))); }

        /// <summary>Density of the colorant, above 0 and without a stated unit, or nil where it is unknown. Null
        /// until set; assigning copies.</summary>
        public Density Density { get => (Density)Child(1, Parts.Density); set => AssignChild(1, Parts.Density, value); }

        /// <summary>Gives Density, which it makes if it isn't there.</summary>
        public Density CreateDensity() => (Density)CreateChild(1, Parts.Density);
    }

    /// <summary>A colorant and its fraction of a mixture.</summary>
    public partial class ColorantElementType : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorantElementType() : this(Native.Make()) { }

        internal ColorantElementType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorantElementType Clone() => (ColorantElementType)Copy();
        internal override VyrObject Copy() => Copied(new ColorantElementType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>The colorant. Null until set; assigning copies.</summary>
        public ColorantElementType_Colorant Colorant { get => (ColorantElementType_Colorant)Child(0, Parts.Colorant); set => AssignChild(0, Parts.Colorant, value); }

        /// <summary>Gives Colorant, which it makes if it isn't there.</summary>
        public ColorantElementType_Colorant CreateColorant() => (ColorantElementType_Colorant)CreateChild(0, Parts.Colorant);

        /// <summary>Share of the colorant in the mixture, 0 to 1.</summary>
        public double Contribution { get => Kept(Native.get_Contribution(Pointer)); set => Demand(Native.set_Contribution(Pointer, value)); }
    }
}
