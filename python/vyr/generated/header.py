# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
"""Classes of the topic header."""

from .._documents import Whole
from .._objects import Choice, Object, _creator
from .._vyr import Property

__all__ = (
    "SDKVersion",
    "SDKType",
    "PlatformType",
    "Header",
    "OwnerType",
    "Version",
    "Preamble",
    "Document",
    "Revision",
    "Person",
    "CustomAttributeType_ValueChoice",
    "CustomAttributeType",
    "TagCategory",
    "Tag",
    "TagValueChoice",
    "TagValue",
)


class SDKVersion(Object):
    """Version of the library, or nil where it is unknown."""

    __slots__ = ()
    schema_name = "SDKVersion"
    value = Property("SDKVersion", "Version of the library, or nil where it is unknown.")


class SDKType(Object):
    """Name and version of a library that reads or writes documents."""

    __slots__ = ()
    schema_name = "SDKType"
    sdk_name = Property("SDKName", "Name of the library.")
    sdk_version = Property("SDKVersion", "Version of the library, or nil where it is unknown.")
    create_sdk_version = _creator(sdk_version)


class PlatformType(Object):
    """Platform on which a document was read or written."""

    __slots__ = ()
    schema_name = "PlatformType"
    operating_system = Property("OperatingSystem", "Name of the operating system.")
    operating_system_version = Property("OperatingSystemVersion", "Version of the operating system.")


class Header(Object):
    """Provenance of a document: who made it with what, when it changed and what it is for."""

    __slots__ = ()
    schema_name = "Header"
    custom_attributes = Property("CustomAttribute", "A named value of the user's own.")
    creator = Property("Creator", "Name of the person or program that made the document.")
    creator_version = Property("CreatorVersion", "Version of the creating program.")
    change_history = Property(
        "ChangeHistory",
        "Time of one change of the document, with time zone; the first entry is its creation.",
    )
    purpose = Property("Purpose", "What the document is meant for.")
    name = Property("Name", "Title of the document.")
    comments = Property("Comments", "Free remarks on the document.")
    read_sdk_information = Property("ReadSDKInformation", "Library that last read the document into memory.")
    create_read_sdk_information = _creator(read_sdk_information)
    write_sdk_information = Property("WriteSDKInformation", "Library that last wrote the document.")
    create_write_sdk_information = _creator(write_sdk_information)
    read_platform_information = Property("ReadPlatformInformation", "Platform on which the document was last read.")
    create_read_platform_information = _creator(read_platform_information)
    write_platform_information = Property(
        "WritePlatformInformation",
        "Platform on which the document was last written.",
    )
    create_write_platform_information = _creator(write_platform_information)
    revisions = Property("Revision", "Notes on one revision, in markup of the user's own.")


class OwnerType(Object):
    """Who owns a document, palette, colour set or colour: people, companies and copyright lines."""

    __slots__ = ()
    schema_name = "OwnerType"
    custom_attributes = Property("CustomAttribute", "A named value of the user's own.")
    persons = Property("Person", "A person among the owners.")
    copyrights = Property("Copyright", "A copyright line.")
    companies = Property("Company", "A company among the owners.")


class Version(Object):
    """Version of a document, and the versions that it replaces."""

    __slots__ = ()
    schema_name = "Version"
    custom_attributes = Property("CustomAttribute", "A named value of the user's own.")
    value = Property("Version", "Text of this version.")
    predecessors = Property("Predecessor", "Text of a version that this one replaces.")


class Preamble(Object):
    """What stands ahead of a document's content: its header, its owner and its version."""

    __slots__ = ()
    schema_name = "Preamble"
    header = Property("Header", "Provenance of the document.")
    create_header = _creator(header)
    owner = Property("Owner", "Who owns the document.")
    create_owner = _creator(owner)
    version = Property("Version", "Version of the document.")
    create_version = _creator(version)


class Document(Whole, Object):
    """A whole document: where it comes from, and the colours, palettes and quality-control records that it holds."""

    __slots__ = ()
    schema_name = "Vyr"
    preamble = Property("Preamble", "Where the document comes from; the only part that every document has.")
    create_preamble = _creator(preamble)
    colors = Property("Color", "A loose colour that belongs to no palette.")
    palettes = Property("Palette", "A palette of colour sets.")
    color_quality_controls = Property("ColorQualityControl", "A comparison of measurements with a standard.")


class Revision(Object):
    """Open content: elements of any name in any namespace, kept as they were written."""

    __slots__ = ()
    schema_name = "Revision"
    markup = Property("any", "One element with its tags, verbatim.")


class Person(Object):
    """A person by name, with a way to reach them."""

    __slots__ = ()
    schema_name = "Person"
    name = Property("Name", "The person's name.")
    contact_info = Property("ContactInfo", "Address, telephone number or the like.")


class CustomAttributeType_ValueChoice(Choice):
    """A floating-point number, an integer or a text."""

    __slots__ = ()
    schema_name = "CustomAttributeType_ValueChoice"
    double_value = Property("DoubleValue", "The value as a floating-point number.")
    integer_value = Property("IntegerValue", "The value as an integer.")
    string_value = Property("StringValue", "The value as a text.")
    alternatives = ("double_value", "integer_value", "string_value")


class CustomAttributeType(Object):
    """A named value of the user's own, kept by the format without a meaning of its own."""

    __slots__ = ()
    schema_name = "CustomAttributeType"
    name = Property("Name", "Name of the attribute; not empty.")
    value_choice = Property("ValueChoice", "Value of the attribute.")
    create_value_choice = _creator(value_choice)


class TagCategory(Object):
    """Category that a tag belongs to."""

    __slots__ = ()
    schema_name = "TagCategory"
    unique_id = Property("UniqueID", "Identifier of the category, unique among categories.")
    name = Property("Name", "Name of the category.")


class Tag(Object):
    """A label within a category, by which colours can be searched and grouped."""

    __slots__ = ()
    schema_name = "Tag"
    name = Property("Name", "Name of the tag.")
    unique_id = Property("UniqueID", "Identifier of the tag, unique among tags.")
    category = Property("Category", "Category of the tag; always written, if need be as an empty element.")
    create_category = _creator(category)


class TagValueChoice(Choice):
    """A text or a number, as the tag asks."""

    __slots__ = ()
    schema_name = "anon_TextValue"
    text_value = Property("TextValue", "The value as a text.")
    number_value = Property("NumberValue", "The value as a number.")
    alternatives = ("text_value", "number_value")


class TagValue(Object):
    """Value that a colour has under one tag: a text or a number."""

    __slots__ = ()
    schema_name = "TagValue"
    unique_id = Property("UniqueID", "Identifier of this value.")
    tag = Property("Tag", "The tag that is valued.")
    create_tag = _creator(tag)
    value = Property("anon_TextValue", "A text or a number, as the tag asks.")
    create_value = _creator(value)
