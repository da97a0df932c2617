# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
"""Classes of the topic header."""

import builtins
from collections.abc import Iterable
from datetime import datetime
from typing import Any, Literal

from .._documents import Whole
from .._objects import Choice, List, Object, TimeList
from .._vyr import Property
from .palettes import ColorType, PaletteType
from .quality_control import ColorQualityControlType

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
    def __init__(self, *, value: str = ...) -> None: ...
    value: Property[str, str]
    """Version of the library, or nil where it is unknown."""

class SDKType(Object):
    """Name and version of a library that reads or writes documents."""
    def __init__(self, *, sdk_name: str = ..., sdk_version: SDKVersion = ...) -> None: ...
    sdk_name: Property[str, str]
    """Name of the library."""
    sdk_version: Property[SDKVersion | None, SDKVersion]
    """Version of the library, or nil where it is unknown."""
    def create_sdk_version(self, **values: Any) -> SDKVersion:
        """Gives `sdk_version`, which it makes if it isn't there, and sets properties of it."""

class PlatformType(Object):
    """Platform on which a document was read or written."""
    def __init__(self, *, operating_system: str = ..., operating_system_version: str = ...) -> None: ...
    operating_system: Property[str, str]
    """Name of the operating system."""
    operating_system_version: Property[str, str]
    """Version of the operating system."""

class Header(Object):
    """Provenance of a document: who made it with what, when it changed and what it is for."""
    def __init__(
        self,
        *,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        creator: str = ...,
        creator_version: str = ...,
        change_history: Iterable[datetime | str] = ...,
        purpose: str = ...,
        name: str | None = ...,
        comments: str | None = ...,
        read_sdk_information: SDKType | None = ...,
        write_sdk_information: SDKType | None = ...,
        read_platform_information: PlatformType | None = ...,
        write_platform_information: PlatformType | None = ...,
        revisions: Iterable[Revision] = ...,
    ) -> None: ...
    custom_attributes: Property[List[CustomAttributeType], Iterable[CustomAttributeType]]
    """A named value of the user's own."""
    creator: Property[str, str]
    """Name of the person or program that made the document."""
    creator_version: Property[str, str]
    """Version of the creating program."""
    change_history: Property[TimeList, Iterable[datetime | str]]
    """Time of one change of the document, with time zone; the first entry is its creation."""
    purpose: Property[str, str]
    """What the document is meant for."""
    name: Property[str | None, str | None]
    """Title of the document."""
    comments: Property[str | None, str | None]
    """Free remarks on the document."""
    read_sdk_information: Property[SDKType | None, SDKType | None]
    """Library that last read the document into memory."""
    def create_read_sdk_information(self, **values: Any) -> SDKType:
        """Gives `read_sdk_information`, which it makes if it isn't there, and sets properties of it."""
    write_sdk_information: Property[SDKType | None, SDKType | None]
    """Library that last wrote the document."""
    def create_write_sdk_information(self, **values: Any) -> SDKType:
        """Gives `write_sdk_information`, which it makes if it isn't there, and sets properties of it."""
    read_platform_information: Property[PlatformType | None, PlatformType | None]
    """Platform on which the document was last read."""
    def create_read_platform_information(self, **values: Any) -> PlatformType:
        """Gives `read_platform_information`, which it makes if it isn't there, and sets properties of it."""
    write_platform_information: Property[PlatformType | None, PlatformType | None]
    """Platform on which the document was last written."""
    def create_write_platform_information(self, **values: Any) -> PlatformType:
        """Gives `write_platform_information`, which it makes if it isn't there, and sets properties of it."""
    revisions: Property[List[Revision], Iterable[Revision]]
    """Notes on one revision, in markup of the user's own."""

class OwnerType(Object):
    """Who owns a document, palette, colour set or colour: people, companies and copyright lines."""
    def __init__(
        self,
        *,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        persons: Iterable[Person] = ...,
        copyrights: Iterable[str] = ...,
        companies: Iterable[str] = ...,
    ) -> None: ...
    custom_attributes: Property[List[CustomAttributeType], Iterable[CustomAttributeType]]
    """A named value of the user's own."""
    persons: Property[List[Person], Iterable[Person]]
    """A person among the owners."""
    copyrights: Property[List[str], Iterable[str]]
    """A copyright line."""
    companies: Property[List[str], Iterable[str]]
    """A company among the owners."""

class Version(Object):
    """Version of a document, and the versions that it replaces."""
    def __init__(
        self,
        *,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        value: str = ...,
        predecessors: Iterable[str] = ...,
    ) -> None: ...
    custom_attributes: Property[List[CustomAttributeType], Iterable[CustomAttributeType]]
    """A named value of the user's own."""
    value: Property[str, str]
    """Text of this version."""
    predecessors: Property[List[str], Iterable[str]]
    """Text of a version that this one replaces."""

class Preamble(Object):
    """What stands ahead of a document's content: its header, its owner and its version."""
    def __init__(self, *, header: Header = ..., owner: OwnerType | None = ..., version: Version | None = ...) -> None: ...
    header: Property[Header | None, Header]
    """Provenance of the document."""
    def create_header(self, **values: Any) -> Header:
        """Gives `header`, which it makes if it isn't there, and sets properties of it."""
    owner: Property[OwnerType | None, OwnerType | None]
    """Who owns the document."""
    def create_owner(self, **values: Any) -> OwnerType:
        """Gives `owner`, which it makes if it isn't there, and sets properties of it."""
    version: Property[Version | None, Version | None]
    """Version of the document."""
    def create_version(self, **values: Any) -> Version:
        """Gives `version`, which it makes if it isn't there, and sets properties of it."""

class Document(Whole, Object):
    """A whole document: where it comes from, and the colours, palettes and quality-control records that it holds."""
    def __init__(
        self,
        *,
        preamble: Preamble = ...,
        colors: Iterable[ColorType] = ...,
        palettes: Iterable[PaletteType] = ...,
        color_quality_controls: Iterable[ColorQualityControlType] = ...,
    ) -> None: ...
    preamble: Property[Preamble, Preamble]
    """Where the document comes from; the only part that every document has."""
    def create_preamble(self, **values: Any) -> Preamble:
        """Gives `preamble`, which it makes if it isn't there, and sets properties of it."""
    colors: Property[List[ColorType], Iterable[ColorType]]
    """A loose colour that belongs to no palette."""
    palettes: Property[List[PaletteType], Iterable[PaletteType]]
    """A palette of colour sets."""
    color_quality_controls: Property[List[ColorQualityControlType], Iterable[ColorQualityControlType]]
    """A comparison of measurements with a standard."""

class Revision(Object):
    """Open content: elements of any name in any namespace, kept as they were written."""
    def __init__(self, *, markup: Iterable[str] = ...) -> None: ...
    markup: Property[List[str], Iterable[str]]
    """One element with its tags, verbatim."""

class Person(Object):
    """A person by name, with a way to reach them."""
    def __init__(self, *, name: str = ..., contact_info: str | None = ...) -> None: ...
    name: Property[str, str]
    """The person's name."""
    contact_info: Property[str | None, str | None]
    """Address, telephone number or the like."""

class CustomAttributeType_ValueChoice(Choice):
    """A floating-point number, an integer or a text."""
    def __init__(self, *, double_value: float = ..., integer_value: int = ..., string_value: str = ...) -> None: ...
    double_value: Property[float | None, float]
    """The value as a floating-point number."""
    integer_value: Property[int | None, int]
    """The value as an integer."""
    string_value: Property[str | None, str]
    """The value as a text."""
    @property
    def chosen(self) -> Literal["double_value", "integer_value", "string_value"] | None:
        """The name of the alternative that is held; None if none was chosen."""

class CustomAttributeType(Object):
    """A named value of the user's own, kept by the format without a meaning of its own."""
    def __init__(self, *, name: str = ..., value_choice: CustomAttributeType_ValueChoice = ...) -> None: ...
    name: Property[str, str]
    """Name of the attribute; not empty."""
    value_choice: Property[CustomAttributeType_ValueChoice | None, CustomAttributeType_ValueChoice]
    """Value of the attribute."""
    def create_value_choice(self, **values: Any) -> CustomAttributeType_ValueChoice:
        """Gives `value_choice`, which it makes if it isn't there, and sets properties of it."""

class TagCategory(Object):
    """Category that a tag belongs to."""
    def __init__(self, *, unique_id: str | None = ..., name: str | None = ...) -> None: ...
    unique_id: Property[str | None, str | None]
    """Identifier of the category, unique among categories."""
    name: Property[str | None, str | None]
    """Name of the category."""

class Tag(Object):
    """A label within a category, by which colours can be searched and grouped."""
    def __init__(self, *, name: str | None = ..., unique_id: str | None = ..., category: TagCategory = ...) -> None: ...
    name: Property[str | None, str | None]
    """Name of the tag."""
    unique_id: Property[str | None, str | None]
    """Identifier of the tag, unique among tags."""
    category: Property[TagCategory | None, TagCategory]
    """Category of the tag; always written, if need be as an empty element."""
    def create_category(self, **values: Any) -> TagCategory:
        """Gives `category`, which it makes if it isn't there, and sets properties of it."""

class TagValueChoice(Choice):
    """A text or a number, as the tag asks."""
    def __init__(self, *, text_value: str = ..., number_value: float = ...) -> None: ...
    text_value: Property[str | None, str]
    """The value as a text."""
    number_value: Property[float | None, float]
    """The value as a number."""
    @property
    def chosen(self) -> Literal["text_value", "number_value"] | None:
        """The name of the alternative that is held; None if none was chosen."""

class TagValue(Object):
    """Value that a colour has under one tag: a text or a number."""
    def __init__(self, *, unique_id: str | None = ..., tag: Tag = ..., value: TagValueChoice = ...) -> None: ...
    unique_id: Property[str | None, str | None]
    """Identifier of this value."""
    tag: Property[Tag | None, Tag]
    """The tag that is valued."""
    def create_tag(self, **values: Any) -> Tag:
        """Gives `tag`, which it makes if it isn't there, and sets properties of it."""
    value: Property[TagValueChoice | None, TagValueChoice]
    """A text or a number, as the tag asks."""
    def create_value(self, **values: Any) -> TagValueChoice:
        """Gives `value`, which it makes if it isn't there, and sets properties of it."""
