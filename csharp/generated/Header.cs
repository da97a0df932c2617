// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.

using System;

namespace Vyr
{
    /// <summary>Version of the library, or nil where it is unknown.</summary>
    public partial class SDKVersion : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public SDKVersion() : this(Native.Make()) { }

        internal SDKVersion(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new SDKVersion Clone() => (SDKVersion)Copy();
        internal override VyrObject Copy() => Copied(new SDKVersion(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>True for an element that says that it has no value.</summary>
        public bool IsNil => Is(Native.isnil_SDKVersion(Pointer));

        /// <summary>Makes it an element that says that it has no value. `Reset` takes that back, and so does setting
        /// `Value`.</summary>
        public void SetNil() { Native.setnil_SDKVersion(Pointer); Keep(); }

        /// <summary>Version of the library, or nil where it is unknown.</summary>
        public string Value { get => Kept(Native.get_SDKVersion(Pointer)); set => Demand(Native.set_SDKVersion(Pointer, Library.Whole(value))); }
    }

    /// <summary>Name and version of a library that reads or writes documents.</summary>
    public partial class SDKType : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public SDKType() : this(Native.Make()) { }

        internal SDKType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new SDKType Clone() => (SDKType)Copy();
        internal override VyrObject Copy() => Copied(new SDKType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the library.</summary>
        public string SDKName { get => Kept(Native.get_SDKName(Pointer)); set => Demand(Native.set_SDKName(Pointer, Library.Whole(value))); }

        /// <summary>Version of the library, or nil where it is unknown. Null until set; assigning copies.</summary>
        public SDKVersion SDKVersion { get => (SDKVersion)Child(0, Parts.SDKVersion); set => AssignChild(0, Parts.SDKVersion, value); }

        /// <summary>Gives SDKVersion, which it makes if it isn't there.</summary>
        public SDKVersion CreateSDKVersion() => (SDKVersion)CreateChild(0, Parts.SDKVersion);
    }

    /// <summary>Platform on which a document was read or written.</summary>
    public partial class PlatformType : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public PlatformType() : this(Native.Make()) { }

        internal PlatformType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new PlatformType Clone() => (PlatformType)Copy();
        internal override VyrObject Copy() => Copied(new PlatformType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the operating system.</summary>
        public string OperatingSystem { get => Kept(Native.get_OperatingSystem(Pointer)); set => Demand(Native.set_OperatingSystem(Pointer, Library.Whole(value))); }

        /// <summary>Version of the operating system.</summary>
        public string OperatingSystemVersion { get => Kept(Native.get_OperatingSystemVersion(Pointer)); set => Demand(Native.set_OperatingSystemVersion(Pointer, Library.Whole(value))); }
    }

    /// <summary>Provenance of a document: who made it with what, when it changed and what it is for.</summary>
    public partial class Header : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public Header() : this(Native.Make()) { }

        internal Header(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new Header Clone() => (Header)Copy();
        internal override VyrObject Copy() => Copied(new Header(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>A named value of the user's own.</summary>
        public ObjectList<CustomAttributeType> CustomAttributes => (ObjectList<CustomAttributeType>)(Part(0) ?? Remember(0, new ObjectList<CustomAttributeType>(this, "CustomAttributes", Parts.CustomAttribute)));

        /// <summary>Name of the person or program that made the document.</summary>
        public string Creator { get => Kept(Native.get_Creator(Pointer)); set => Demand(Native.set_Creator(Pointer, Library.Whole(value))); }

        /// <summary>Version of the creating program.</summary>
        public string CreatorVersion { get => Kept(Native.get_CreatorVersion(Pointer)); set => Demand(Native.set_CreatorVersion(Pointer, Library.Whole(value))); }

        /// <summary>Time of one change of the document, with time zone; the first entry is its creation.</summary>
        public DateTimeList ChangeHistory => ListOfTimes(1, Parts.ChangeHistory, @".+T.+(Z|[+\-].+)");

        /// <summary>What the document is meant for.</summary>
        public string Purpose { get => Kept(Native.get_Purpose(Pointer)); set => Demand(Native.set_Purpose(Pointer, Library.Whole(value))); }

        /// <summary>Title of the document. Null if not set.</summary>
        public string Name { get => Is(Native.isset_Name(Pointer)) ? Kept(Native.get_Name(Pointer)) : null; set => Demand(value == null ? Native.UnsetName(Pointer) : Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Free remarks on the document. Null if not set.</summary>
        public string Comments { get => Is(Native.isset_Comments(Pointer)) ? Kept(Native.get_Comments(Pointer)) : null; set => Demand(value == null ? Native.UnsetComments(Pointer) : Native.set_Comments(Pointer, Library.Whole(value))); }

        /// <summary>Library that last read the document into memory. Null until set; assigning copies.</summary>
        public SDKType ReadSDKInformation { get => (SDKType)Child(2, Parts.ReadSDKInformation); set => AssignChild(2, Parts.ReadSDKInformation, value); }

        /// <summary>Gives ReadSDKInformation, which it makes if it isn't there.</summary>
        public SDKType CreateReadSDKInformation() => (SDKType)CreateChild(2, Parts.ReadSDKInformation);

        /// <summary>Library that last wrote the document. Null until set; assigning copies.</summary>
        public SDKType WriteSDKInformation { get => (SDKType)Child(3, Parts.WriteSDKInformation); set => AssignChild(3, Parts.WriteSDKInformation, value); }

        /// <summary>Gives WriteSDKInformation, which it makes if it isn't there.</summary>
        public SDKType CreateWriteSDKInformation() => (SDKType)CreateChild(3, Parts.WriteSDKInformation);

        /// <summary>Platform on which the document was last read. Null until set; assigning copies.</summary>
        public PlatformType ReadPlatformInformation { get => (PlatformType)Child(4, Parts.ReadPlatformInformation); set => AssignChild(4, Parts.ReadPlatformInformation, value); }

        /// <summary>Gives ReadPlatformInformation, which it makes if it isn't there.</summary>
        public PlatformType CreateReadPlatformInformation() => (PlatformType)CreateChild(4, Parts.ReadPlatformInformation);

        /// <summary>Platform on which the document was last written. Null until set; assigning copies.</summary>
        public PlatformType WritePlatformInformation { get => (PlatformType)Child(5, Parts.WritePlatformInformation); set => AssignChild(5, Parts.WritePlatformInformation, value); }

        /// <summary>Gives WritePlatformInformation, which it makes if it isn't there.</summary>
        public PlatformType CreateWritePlatformInformation() => (PlatformType)CreateChild(5, Parts.WritePlatformInformation);

        /// <summary>Notes on one revision, in markup of the user's own.</summary>
        public ObjectList<Revision> Revisions => (ObjectList<Revision>)(Part(6) ?? Remember(6, new ObjectList<Revision>(this, "Revisions", Parts.Revision)));
    }

    /// <summary>Who owns a document, palette, colour set or colour: people, companies and copyright lines.</summary>
    public partial class OwnerType : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public OwnerType() : this(Native.Make()) { }

        internal OwnerType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new OwnerType Clone() => (OwnerType)Copy();
        internal override VyrObject Copy() => Copied(new OwnerType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>A named value of the user's own.</summary>
        public ObjectList<CustomAttributeType> CustomAttributes => (ObjectList<CustomAttributeType>)(Part(0) ?? Remember(0, new ObjectList<CustomAttributeType>(this, "CustomAttributes", Parts.CustomAttribute)));

        /// <summary>A person among the owners.</summary>
        public ObjectList<Person> Persons => (ObjectList<Person>)(Part(1) ?? Remember(1, new ObjectList<Person>(this, "Persons", Parts.Person)));

        /// <summary>A copyright line.</summary>
        public TextList Copyrights => ListOfTexts(2, Parts.Copyright);

        /// <summary>A company among the owners.</summary>
        public TextList Companies => ListOfTexts(3, Parts.Company);
    }

    /// <summary>Version of a document, and the versions that it replaces.</summary>
    public partial class Version : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public Version() : this(Native.Make()) { }

        internal Version(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new Version Clone() => (Version)Copy();
        internal override VyrObject Copy() => Copied(new Version(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>A named value of the user's own.</summary>
        public ObjectList<CustomAttributeType> CustomAttributes => (ObjectList<CustomAttributeType>)(Part(0) ?? Remember(0, new ObjectList<CustomAttributeType>(this, "CustomAttributes", Parts.CustomAttribute)));

        /// <summary>Text of this version.</summary>
        public string Value { get => Kept(Native.get_Version(Pointer)); set => Demand(Native.set_Version(Pointer, Library.Whole(value))); }

        /// <summary>Text of a version that this one replaces.</summary>
        public TextList Predecessors => ListOfTexts(1, Parts.Predecessor);
    }

    /// <summary>What stands ahead of a document's content: its header, its owner and its version.</summary>
    public partial class Preamble : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public Preamble() : this(Native.Make()) { }

        internal Preamble(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new Preamble Clone() => (Preamble)Copy();
        internal override VyrObject Copy() => Copied(new Preamble(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Provenance of the document. Null until set; assigning copies.</summary>
        public Header Header { get => (Header)Child(0, Parts.Header); set => AssignChild(0, Parts.Header, value); }

        /// <summary>Gives Header, which it makes if it isn't there.</summary>
        public Header CreateHeader() => (Header)CreateChild(0, Parts.Header);

        /// <summary>Who owns the document. Null until set; assigning copies.</summary>
        public OwnerType Owner { get => (OwnerType)Child(1, Parts.Owner); set => AssignChild(1, Parts.Owner, value); }

        /// <summary>Gives Owner, which it makes if it isn't there.</summary>
        public OwnerType CreateOwner() => (OwnerType)CreateChild(1, Parts.Owner);

        /// <summary>Version of the document. Null until set; assigning copies.</summary>
        public Version Version { get => (Version)Child(2, Parts.Version); set => AssignChild(2, Parts.Version, value); }

        /// <summary>Gives Version, which it makes if it isn't there.</summary>
        public Version CreateVersion() => (Version)CreateChild(2, Parts.Version);
    }

    /// <summary>A whole document: where it comes from, and the colours, palettes and quality-control records that it
    /// holds.</summary>
    public partial class Document : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public Document() : this(Native.Make()) { }

        internal Document(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new Document Clone() => (Document)Copy();
        internal override VyrObject Copy() => Copied(new Document(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Where the document comes from; the only part that every document has. Null until set; assigning
        /// copies.</summary>
        public Preamble Preamble { get => (Preamble)Child(0, Parts.Preamble); set => AssignChild(0, Parts.Preamble, value); }

        /// <summary>Gives Preamble, which it makes if it isn't there.</summary>
        public Preamble CreatePreamble() => (Preamble)CreateChild(0, Parts.Preamble);

        /// <summary>A loose colour that belongs to no palette.</summary>
        public ObjectList<ColorType> Colors => (ObjectList<ColorType>)(Part(1) ?? Remember(1, new ObjectList<ColorType>(this, "Colors", Parts.Color)));

        /// <summary>A palette of colour sets.</summary>
        public ObjectList<PaletteType> Palettes => (ObjectList<PaletteType>)(Part(2) ?? Remember(2, new ObjectList<PaletteType>(this, "Palettes", Parts.Palette)));

        /// <summary>A comparison of measurements with a standard.</summary>
        public ObjectList<ColorQualityControlType> ColorQualityControls => (ObjectList<ColorQualityControlType>)(Part(3) ?? Remember(3, new ObjectList<ColorQualityControlType>(this, "ColorQualityControls", Parts.ColorQualityControl)));
    }

    /// <summary>Open content: elements of any name in any namespace, kept as they were written.</summary>
    public partial class Revision : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public Revision() : this(Native.Make()) { }

        internal Revision(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new Revision Clone() => (Revision)Copy();
        internal override VyrObject Copy() => Copied(new Revision(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>One element with its tags, verbatim.</summary>
        public MarkupList Markup => ListOfMarkup(0, Parts.any);
    }

    /// <summary>A person by name, with a way to reach them.</summary>
    public partial class Person : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public Person() : this(Native.Make()) { }

        internal Person(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new Person Clone() => (Person)Copy();
        internal override VyrObject Copy() => Copied(new Person(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>The person's name.</summary>
        public string Name { get => Kept(Native.get_Name(Pointer)); set => Demand(Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Address, telephone number or the like. Null if not set.</summary>
        public string ContactInfo { get => Is(Native.isset_ContactInfo(Pointer)) ? Kept(Native.get_ContactInfo(Pointer)) : null; set => Demand(value == null ? Native.UnsetContactInfo(Pointer) : Native.set_ContactInfo(Pointer, Library.Whole(value))); }
    }

    /// <summary>A floating-point number, an integer or a text.</summary>
    public partial class CustomAttributeType_ValueChoice : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public CustomAttributeType_ValueChoice() : this(Native.Make()) { }

        internal CustomAttributeType_ValueChoice(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new CustomAttributeType_ValueChoice Clone() => (CustomAttributeType_ValueChoice)Copy();
        internal override VyrObject Copy() => Copied(new CustomAttributeType_ValueChoice(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Which alternative an object holds.</summary>
        public enum Alternative
        {
            /// <summary>The value as a floating-point number.</summary>
            DoubleValue = 0,
            /// <summary>The value as an integer.</summary>
            IntegerValue = 1,
            /// <summary>The value as a text.</summary>
            StringValue = 2,
            /// <summary>Nothing was chosen yet.</summary>
            None = 3,
        }

        /// <summary>Which alternative is held.</summary>
        public Alternative Chosen => (Alternative)Kept(Native.getchosen(Pointer));

        /// <summary>The value as a floating-point number. Null if another is chosen.</summary>
        public double? AsDoubleValue => Chosen == Alternative.DoubleValue ? Kept(Native.get_DoubleValue(Pointer)) : default(double?);

        /// <summary>Chooses DoubleValue in place of what was chosen.</summary>
        public void ChooseDoubleValue(double value) => Choose(0, Native.set_DoubleValue(Pointer, value));

        /// <summary>The value as an integer. Null if another is chosen.</summary>
        public int? AsIntegerValue => Chosen == Alternative.IntegerValue ? Kept(Native.get_IntegerValue(Pointer)) : default(int?);

        /// <summary>Chooses IntegerValue in place of what was chosen.</summary>
        public void ChooseIntegerValue(int value) => Choose(0, Native.set_IntegerValue(Pointer, value));

        /// <summary>The value as a text. Null if another is chosen.</summary>
        public string AsStringValue => Chosen == Alternative.StringValue ? Kept(Native.get_StringValue(Pointer)) : null;

        /// <summary>Chooses StringValue in place of what was chosen.</summary>
        public void ChooseStringValue(string value) => Choose(0, Native.set_StringValue(Pointer, Library.Whole(value)));
    }

    /// <summary>A named value of the user's own, kept by the format without a meaning of its own.</summary>
    public partial class CustomAttributeType : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public CustomAttributeType() : this(Native.Make()) { }

        internal CustomAttributeType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new CustomAttributeType Clone() => (CustomAttributeType)Copy();
        internal override VyrObject Copy() => Copied(new CustomAttributeType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the attribute; not empty.</summary>
        public string Name { get => Kept(Native.get_Name(Pointer)); set => Demand(Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Value of the attribute. Null until set; assigning copies.</summary>
        public CustomAttributeType_ValueChoice ValueChoice { get => (CustomAttributeType_ValueChoice)Child(0, Parts.ValueChoice); set => AssignChild(0, Parts.ValueChoice, value); }

        /// <summary>Gives ValueChoice, which it makes if it isn't there.</summary>
        public CustomAttributeType_ValueChoice CreateValueChoice() => (CustomAttributeType_ValueChoice)CreateChild(0, Parts.ValueChoice);
    }

    /// <summary>Category that a tag belongs to.</summary>
    public partial class TagCategory : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public TagCategory() : this(Native.Make()) { }

        internal TagCategory(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new TagCategory Clone() => (TagCategory)Copy();
        internal override VyrObject Copy() => Copied(new TagCategory(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Identifier of the category, unique among categories. Null if not set.</summary>
        public string UniqueID { get => Is(Native.isset_UniqueID(Pointer)) ? Kept(Native.get_UniqueID(Pointer)) : null; set => Demand(value == null ? Native.UnsetUniqueID(Pointer) : Native.set_UniqueID(Pointer, Library.Whole(value))); }

        /// <summary>Name of the category. Null if not set.</summary>
        public string Name { get => Is(Native.isset_Name(Pointer)) ? Kept(Native.get_Name(Pointer)) : null; set => Demand(value == null ? Native.UnsetName(Pointer) : Native.set_Name(Pointer, Library.Whole(value))); }
    }

    /// <summary>A label within a category, by which colours can be searched and grouped.</summary>
    public partial class Tag : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public Tag() : this(Native.Make()) { }

        internal Tag(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new Tag Clone() => (Tag)Copy();
        internal override VyrObject Copy() => Copied(new Tag(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the tag. Null if not set.</summary>
        public string Name { get => Is(Native.isset_Name(Pointer)) ? Kept(Native.get_Name(Pointer)) : null; set => Demand(value == null ? Native.UnsetName(Pointer) : Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Identifier of the tag, unique among tags. Null if not set.</summary>
        public string UniqueID { get => Is(Native.isset_UniqueID(Pointer)) ? Kept(Native.get_UniqueID(Pointer)) : null; set => Demand(value == null ? Native.UnsetUniqueID(Pointer) : Native.set_UniqueID(Pointer, Library.Whole(value))); }

        /// <summary>Category of the tag; always written, if need be as an empty element. Null until set; assigning
        /// copies.</summary>
        public TagCategory Category { get => (TagCategory)Child(0, Parts.Category); set => AssignChild(0, Parts.Category, value); }

        /// <summary>Gives Category, which it makes if it isn't there.</summary>
        public TagCategory CreateCategory() => (TagCategory)CreateChild(0, Parts.Category);
    }

    /// <summary>A text or a number, as the tag asks.</summary>
    public partial class TagValueChoice : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public TagValueChoice() : this(Native.Make()) { }

        internal TagValueChoice(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new TagValueChoice Clone() => (TagValueChoice)Copy();
        internal override VyrObject Copy() => Copied(new TagValueChoice(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Which alternative an object holds.</summary>
        public enum Alternative
        {
            /// <summary>The value as a text.</summary>
            TextValue = 0,
            /// <summary>The value as a number.</summary>
            NumberValue = 1,
            /// <summary>Nothing was chosen yet.</summary>
            None = 2,
        }

        /// <summary>Which alternative is held.</summary>
        public Alternative Chosen => (Alternative)Kept(Native.getchosen(Pointer));

        /// <summary>The value as a text. Null if another is chosen.</summary>
        public string AsTextValue => Chosen == Alternative.TextValue ? Kept(Native.get_TextValue(Pointer)) : null;

        /// <summary>Chooses TextValue in place of what was chosen.</summary>
        public void ChooseTextValue(string value) => Choose(0, Native.set_TextValue(Pointer, Library.Whole(value)));

        /// <summary>The value as a number. Null if another is chosen.</summary>
        public double? AsNumberValue => Chosen == Alternative.NumberValue ? Kept(Native.get_NumberValue(Pointer)) : default(double?);

        /// <summary>Chooses NumberValue in place of what was chosen.</summary>
        public void ChooseNumberValue(double value) => Choose(0, Native.set_NumberValue(Pointer, value));
    }

    /// <summary>Value that a colour has under one tag: a text or a number.</summary>
    public partial class TagValue : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public TagValue() : this(Native.Make()) { }

        internal TagValue(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new TagValue Clone() => (TagValue)Copy();
        internal override VyrObject Copy() => Copied(new TagValue(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Identifier of this value. Null if not set.</summary>
        public string UniqueID { get => Is(Native.isset_UniqueID(Pointer)) ? Kept(Native.get_UniqueID(Pointer)) : null; set => Demand(value == null ? Native.UnsetUniqueID(Pointer) : Native.set_UniqueID(Pointer, Library.Whole(value))); }

        /// <summary>The tag that is valued. Null until set; assigning copies.</summary>
        public Tag Tag { get => (Tag)Child(0, Parts.Tag); set => AssignChild(0, Parts.Tag, value); }

        /// <summary>Gives Tag, which it makes if it isn't there.</summary>
        public Tag CreateTag() => (Tag)CreateChild(0, Parts.Tag);

        /// <summary>A text or a number, as the tag asks. Null until set; assigning copies.</summary>
        public TagValueChoice Value { get => (TagValueChoice)Child(1, Parts.anon_TextValue); set => AssignChild(1, Parts.anon_TextValue, value); }

        /// <summary>Gives Value, which it makes if it isn't there.</summary>
        public TagValueChoice CreateValue() => (TagValueChoice)CreateChild(1, Parts.anon_TextValue);
    }
}
