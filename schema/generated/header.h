// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Classes of the topic header: SDKType, PlatformType, OwnerType, Vyr, CustomAttributeType, TagCategory, Tag,
/// TagValue.

#pragma once

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <string>

#include "lmx/binding/class_parts.h"
#include "lmx/binding/table.h"
#include "lmx/export.h"
#include "schema/generated/enumerations.h"
#include "schema/generated/forward.h"

namespace com_vyrgraph_v2 {

/// Version of the library, or nil where it is unknown.
class VYR_EXPORT SDKVersion {
public:
    SDKVersion();
    SDKVersion(const SDKVersion& other);
    virtual ~SDKVersion();
    SDKVersion& operator=(const SDKVersion& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(SDKVersion& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Version of the library, or nil where it is unknown.
    const std::u16string& get_SDKVersion() const { return m_SDKVersion; }
    lmx::elmx_error set_SDKVersion(const std::u16string& value);

    /// The `xsi:nil` state: an element without a value.
    bool isnil_SDKVersion() const { return m_isnil; }
    void setnil_SDKVersion() { m_isnil = true; }

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error, bool has_body) { return lmx::unmarshal_content(k_class, this, reader, name, error, has_body); }

private:
    enum item : std::size_t {
        item_SDKVersion,
    };
    static const lmx::s_item k_items[];
    bool m_isnil = false;
    std::u16string m_SDKVersion;
    bool m_isset_SDKVersion = false;
};

/// Name and version of a library that reads or writes documents.
class VYR_EXPORT SDKType {
public:
    SDKType();
    SDKType(const SDKType& other);
    virtual ~SDKType();
    SDKType& operator=(const SDKType& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(SDKType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Name of the library.
    const std::u16string& get_SDKName() const { return m_SDKName; }
    lmx::elmx_error set_SDKName(const std::u16string& value);

    /// Version of the library, or nil where it is unknown.
    SDKVersion& get_SDKVersion() { m_isset_SDKVersion = true; return m_SDKVersion; }
    const SDKVersion& get_SDKVersion() const { return m_SDKVersion; }
    SDKVersion& assign_SDKVersion(const SDKVersion& value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_SDKName,
        item_SDKVersion,
    };
    static const lmx::s_item k_items[];
    std::u16string m_SDKName;
    SDKVersion m_SDKVersion;
    bool m_isset_SDKName = false;
    bool m_isset_SDKVersion = false;
};

/// Platform on which a document was read or written.
class VYR_EXPORT PlatformType {
public:
    PlatformType();
    PlatformType(const PlatformType& other);
    virtual ~PlatformType();
    PlatformType& operator=(const PlatformType& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(PlatformType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Name of the operating system.
    const std::u16string& get_OperatingSystem() const { return m_OperatingSystem; }
    lmx::elmx_error set_OperatingSystem(const std::u16string& value);

    /// Version of the operating system.
    const std::u16string& get_OperatingSystemVersion() const { return m_OperatingSystemVersion; }
    lmx::elmx_error set_OperatingSystemVersion(const std::u16string& value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_OperatingSystem,
        item_OperatingSystemVersion,
    };
    static const lmx::s_item k_items[];
    std::u16string m_OperatingSystem;
    std::u16string m_OperatingSystemVersion;
    bool m_isset_OperatingSystem = false;
    bool m_isset_OperatingSystemVersion = false;
};

/// Provenance of a document: who made it with what, when it changed and what it is for.
class VYR_EXPORT Header {
public:
    Header();
    Header(const Header& other);
    virtual ~Header();
    Header& operator=(const Header& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(Header& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// A named value of the user's own.
    std::size_t size_CustomAttribute() const { return m_CustomAttribute.size(); }
    CustomAttributeType& get_CustomAttribute(std::size_t index);
    const CustomAttributeType& get_CustomAttribute(std::size_t index) const { return m_CustomAttribute[index]; }
    CustomAttributeType& assign_CustomAttribute(std::size_t index, const CustomAttributeType& value);
    lmx::elmx_error append_CustomAttribute();
    lmx::elmx_error insert_CustomAttribute(std::size_t index);
    CustomAttributeType& back_CustomAttribute() { return m_CustomAttribute.back(); }
    void delete_CustomAttribute(std::size_t index);
    void clear_CustomAttribute();

    /// Name of the person or program that made the document.
    const std::u16string& get_Creator() const { return m_Creator; }
    lmx::elmx_error set_Creator(const std::u16string& value);

    /// Version of the creating program.
    const std::u16string& get_CreatorVersion() const { return m_CreatorVersion; }
    lmx::elmx_error set_CreatorVersion(const std::u16string& value);

    /// Time of one change of the document, with time zone; the first entry is its creation.
    std::size_t size_ChangeHistory() const { return m_ChangeHistory.size(); }
    const lmx::c_datetime& get_ChangeHistory(std::size_t index) const { return m_ChangeHistory[index]; }
    lmx::elmx_error set_ChangeHistory(std::size_t index, const lmx::c_datetime& value);
    lmx::elmx_error append_ChangeHistory(const lmx::c_datetime& value);
    lmx::elmx_error insert_ChangeHistory(std::size_t index, const lmx::c_datetime& value);
    void delete_ChangeHistory(std::size_t index);
    void clear_ChangeHistory();

    /// What the document is meant for.
    const std::u16string& get_Purpose() const { return m_Purpose; }
    lmx::elmx_error set_Purpose(const std::u16string& value);

    /// Title of the document.
    const std::u16string& get_Name() const { return m_Name; }
    lmx::elmx_error set_Name(const std::u16string& value);
    bool isset_Name() const { return m_isset_Name; }
    void unset_Name() { m_isset_Name = false; }

    /// Free remarks on the document.
    const std::u16string& get_Comments() const { return m_Comments; }
    lmx::elmx_error set_Comments(const std::u16string& value);
    bool isset_Comments() const { return m_isset_Comments; }
    void unset_Comments() { m_isset_Comments = false; }

    /// Library that last read the document into memory.
    SDKType& get_ReadSDKInformation();
    const SDKType& get_ReadSDKInformation() const;
    SDKType& assign_ReadSDKInformation(const SDKType& value);
    bool isset_ReadSDKInformation() const { return m_isset_ReadSDKInformation; }
    void unset_ReadSDKInformation() { m_isset_ReadSDKInformation = false; }

    /// Library that last wrote the document.
    SDKType& get_WriteSDKInformation();
    const SDKType& get_WriteSDKInformation() const;
    SDKType& assign_WriteSDKInformation(const SDKType& value);
    bool isset_WriteSDKInformation() const { return m_isset_WriteSDKInformation; }
    void unset_WriteSDKInformation() { m_isset_WriteSDKInformation = false; }

    /// Platform on which the document was last read.
    PlatformType& get_ReadPlatformInformation();
    const PlatformType& get_ReadPlatformInformation() const;
    PlatformType& assign_ReadPlatformInformation(const PlatformType& value);
    bool isset_ReadPlatformInformation() const { return m_isset_ReadPlatformInformation; }
    void unset_ReadPlatformInformation() { m_isset_ReadPlatformInformation = false; }

    /// Platform on which the document was last written.
    PlatformType& get_WritePlatformInformation();
    const PlatformType& get_WritePlatformInformation() const;
    PlatformType& assign_WritePlatformInformation(const PlatformType& value);
    bool isset_WritePlatformInformation() const { return m_isset_WritePlatformInformation; }
    void unset_WritePlatformInformation() { m_isset_WritePlatformInformation = false; }

    /// Notes on one revision, in markup of the user's own.
    std::size_t size_Revision() const { return m_Revision.size(); }
    Revision& get_Revision(std::size_t index);
    const Revision& get_Revision(std::size_t index) const { return m_Revision[index]; }
    Revision& assign_Revision(std::size_t index, const Revision& value);
    lmx::elmx_error append_Revision();
    lmx::elmx_error insert_Revision(std::size_t index);
    Revision& back_Revision() { return m_Revision.back(); }
    void delete_Revision(std::size_t index);
    void clear_Revision();

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_CustomAttribute,
        item_Creator,
        item_CreatorVersion,
        item_ChangeHistory,
        item_Purpose,
        item_Name,
        item_Comments,
        item_ReadSDKInformation,
        item_WriteSDKInformation,
        item_ReadPlatformInformation,
        item_WritePlatformInformation,
        item_Revision,
    };
    static const lmx::s_item k_items[];
    lmx::c_list<CustomAttributeType> m_CustomAttribute;
    std::u16string m_Creator;
    std::u16string m_CreatorVersion;
    lmx::c_list<lmx::c_datetime> m_ChangeHistory;
    std::u16string m_Purpose;
    std::u16string m_Name;
    std::u16string m_Comments;
    lmx::c_optional_child<SDKType> m_ReadSDKInformation;
    lmx::c_optional_child<SDKType> m_WriteSDKInformation;
    lmx::c_optional_child<PlatformType> m_ReadPlatformInformation;
    lmx::c_optional_child<PlatformType> m_WritePlatformInformation;
    lmx::c_list<Revision> m_Revision;
    bool m_isset_Creator = false;
    bool m_isset_CreatorVersion = false;
    bool m_isset_Purpose = false;
    bool m_isset_Name = false;
    bool m_isset_Comments = false;
    bool m_isset_ReadSDKInformation = false;
    bool m_isset_WriteSDKInformation = false;
    bool m_isset_ReadPlatformInformation = false;
    bool m_isset_WritePlatformInformation = false;
};

/// Who owns a document, palette, colour set or colour: people, companies and copyright lines.
class VYR_EXPORT OwnerType {
public:
    OwnerType();
    OwnerType(const OwnerType& other);
    virtual ~OwnerType();
    OwnerType& operator=(const OwnerType& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(OwnerType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// A named value of the user's own.
    std::size_t size_CustomAttribute() const { return m_CustomAttribute.size(); }
    CustomAttributeType& get_CustomAttribute(std::size_t index);
    const CustomAttributeType& get_CustomAttribute(std::size_t index) const { return m_CustomAttribute[index]; }
    CustomAttributeType& assign_CustomAttribute(std::size_t index, const CustomAttributeType& value);
    lmx::elmx_error append_CustomAttribute();
    lmx::elmx_error insert_CustomAttribute(std::size_t index);
    CustomAttributeType& back_CustomAttribute() { return m_CustomAttribute.back(); }
    void delete_CustomAttribute(std::size_t index);
    void clear_CustomAttribute();

    /// A person among the owners.
    std::size_t size_Person() const { return m_Person.size(); }
    Person& get_Person(std::size_t index);
    const Person& get_Person(std::size_t index) const { return m_Person[index]; }
    Person& assign_Person(std::size_t index, const Person& value);
    lmx::elmx_error append_Person();
    lmx::elmx_error insert_Person(std::size_t index);
    Person& back_Person() { return m_Person.back(); }
    void delete_Person(std::size_t index);
    void clear_Person();

    /// A copyright line.
    std::size_t size_Copyright() const { return m_Copyright.size(); }
    const std::u16string& get_Copyright(std::size_t index) const { return m_Copyright[index]; }
    lmx::elmx_error set_Copyright(std::size_t index, const std::u16string& value);
    lmx::elmx_error append_Copyright(const std::u16string& value);
    lmx::elmx_error insert_Copyright(std::size_t index, const std::u16string& value);
    void delete_Copyright(std::size_t index);
    void clear_Copyright();

    /// A company among the owners.
    std::size_t size_Company() const { return m_Company.size(); }
    const std::u16string& get_Company(std::size_t index) const { return m_Company[index]; }
    lmx::elmx_error set_Company(std::size_t index, const std::u16string& value);
    lmx::elmx_error append_Company(const std::u16string& value);
    lmx::elmx_error insert_Company(std::size_t index, const std::u16string& value);
    void delete_Company(std::size_t index);
    void clear_Company();

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_CustomAttribute,
        item_Person,
        item_Copyright,
        item_Company,
    };
    static const lmx::s_item k_items[];
    lmx::c_list<CustomAttributeType> m_CustomAttribute;
    lmx::c_list<Person> m_Person;
    lmx::c_list<std::u16string> m_Copyright;
    lmx::c_list<std::u16string> m_Company;
};

/// Version of a document, and the versions that it replaces.
class VYR_EXPORT Version {
public:
    Version();
    Version(const Version& other);
    virtual ~Version();
    Version& operator=(const Version& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(Version& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// A named value of the user's own.
    std::size_t size_CustomAttribute() const { return m_CustomAttribute.size(); }
    CustomAttributeType& get_CustomAttribute(std::size_t index);
    const CustomAttributeType& get_CustomAttribute(std::size_t index) const { return m_CustomAttribute[index]; }
    CustomAttributeType& assign_CustomAttribute(std::size_t index, const CustomAttributeType& value);
    lmx::elmx_error append_CustomAttribute();
    lmx::elmx_error insert_CustomAttribute(std::size_t index);
    CustomAttributeType& back_CustomAttribute() { return m_CustomAttribute.back(); }
    void delete_CustomAttribute(std::size_t index);
    void clear_CustomAttribute();

    /// Text of this version.
    const std::u16string& get_Version() const { return m_Version; }
    lmx::elmx_error set_Version(const std::u16string& value);

    /// Text of a version that this one replaces.
    std::size_t size_Predecessor() const { return m_Predecessor.size(); }
    const std::u16string& get_Predecessor(std::size_t index) const { return m_Predecessor[index]; }
    lmx::elmx_error set_Predecessor(std::size_t index, const std::u16string& value);
    lmx::elmx_error append_Predecessor(const std::u16string& value);
    lmx::elmx_error insert_Predecessor(std::size_t index, const std::u16string& value);
    void delete_Predecessor(std::size_t index);
    void clear_Predecessor();

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_CustomAttribute,
        item_Version,
        item_Predecessor,
    };
    static const lmx::s_item k_items[];
    lmx::c_list<CustomAttributeType> m_CustomAttribute;
    std::u16string m_Version;
    lmx::c_list<std::u16string> m_Predecessor;
    bool m_isset_Version = false;
};

/// What stands ahead of a document's content: its header, its owner and its version.
class VYR_EXPORT Preamble {
public:
    Preamble();
    Preamble(const Preamble& other);
    virtual ~Preamble();
    Preamble& operator=(const Preamble& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(Preamble& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Provenance of the document.
    Header& get_Header() { m_isset_Header = true; return m_Header; }
    const Header& get_Header() const { return m_Header; }
    Header& assign_Header(const Header& value);

    /// Who owns the document.
    OwnerType& get_Owner();
    const OwnerType& get_Owner() const;
    OwnerType& assign_Owner(const OwnerType& value);
    bool isset_Owner() const { return m_isset_Owner; }
    void unset_Owner() { m_isset_Owner = false; }

    /// Version of the document.
    Version& get_Version();
    const Version& get_Version() const;
    Version& assign_Version(const Version& value);
    bool isset_Version() const { return m_isset_Version; }
    void unset_Version() { m_isset_Version = false; }

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    static const lmx::s_item k_items[];
    Header m_Header;
    lmx::c_optional_child<OwnerType> m_Owner;
    lmx::c_optional_child<Version> m_Version;
    bool m_isset_Header = false;
    bool m_isset_Owner = false;
    bool m_isset_Version = false;
};

/// A whole document: where it comes from, and the colours, palettes and quality-control records that it holds.
class VYR_EXPORT Vyr {
public:
    Vyr();
    Vyr(const Vyr& other);
    /// Reads a document with this element as its root; failures are the reader's codes.
    Vyr(const char* file_name, lmx::elmx_error* error);
    Vyr(const char* data, std::size_t size, lmx::elmx_error* error);
    Vyr(const std::string& text, lmx::elmx_error* error);
    virtual ~Vyr();
    Vyr& operator=(const Vyr& other);
    static const lmx::s_ns_map* ns_map();
    lmx::elmx_error unmarshal(const char* file_name);
    lmx::elmx_error unmarshal(const char* data, std::size_t size);
    lmx::elmx_error unmarshal(const std::string& text);
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader);
    lmx::elmx_error marshal(const char* file_name) const;
    lmx::elmx_error marshal(std::string* text) const;
    lmx::elmx_error marshal(std::ostream& stream) const;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    static const lmx::s_document k_document;
    void swap(Vyr& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Where the document comes from; the only part that every document has.
    Preamble& get_Preamble() { m_isset_Preamble = true; return m_Preamble; }
    const Preamble& get_Preamble() const { return m_Preamble; }
    Preamble& assign_Preamble(const Preamble& value);

    /// A loose colour that belongs to no palette.
    std::size_t size_Color() const { return m_Color.size(); }
    ColorType& get_Color(std::size_t index);
    const ColorType& get_Color(std::size_t index) const { return m_Color[index]; }
    ColorType& assign_Color(std::size_t index, const ColorType& value);
    lmx::elmx_error append_Color();
    lmx::elmx_error insert_Color(std::size_t index);
    ColorType& back_Color() { return m_Color.back(); }
    void delete_Color(std::size_t index);
    void clear_Color();

    /// A palette of colour sets.
    std::size_t size_Palette() const { return m_Palette.size(); }
    PaletteType& get_Palette(std::size_t index);
    const PaletteType& get_Palette(std::size_t index) const { return m_Palette[index]; }
    PaletteType& assign_Palette(std::size_t index, const PaletteType& value);
    lmx::elmx_error append_Palette();
    lmx::elmx_error insert_Palette(std::size_t index);
    PaletteType& back_Palette() { return m_Palette.back(); }
    void delete_Palette(std::size_t index);
    void clear_Palette();

    /// A comparison of measurements with a standard.
    std::size_t size_ColorQualityControl() const { return m_ColorQualityControl.size(); }
    ColorQualityControlType& get_ColorQualityControl(std::size_t index);
    const ColorQualityControlType& get_ColorQualityControl(std::size_t index) const { return m_ColorQualityControl[index]; }
    ColorQualityControlType& assign_ColorQualityControl(std::size_t index, const ColorQualityControlType& value);
    lmx::elmx_error append_ColorQualityControl();
    lmx::elmx_error insert_ColorQualityControl(std::size_t index);
    ColorQualityControlType& back_ColorQualityControl() { return m_ColorQualityControl.back(); }
    void delete_ColorQualityControl(std::size_t index);
    void clear_ColorQualityControl();

    /// Reads a document from its text. Appends to lists: `reset` an object before using it again.
    lmx::elmx_error loadString(const std::u16string& document);

    /// Reads a document from an XML file, or, if the path ends in exactly ".vyrz", from the first entry of a ZIP archive.
    /// An archive that can't be opened is a `CZipException`; one whose entry isn't what its header says gives
    /// `ELMX_USER_DEFINED_1`. Appends to lists, like `loadString`.
    lmx::elmx_error loadFile(const std::u16string& path);

    /// The same with the path in UTF-8; of a plain document, in whatever bytes the system's names are made of.
    lmx::elmx_error loadFile(const std::string& path);

    /// Writes the document as text, after stamping `WriteSDKInformation`.
    XMLDocumentResult writeString() const;

    /// Writes a document, after stamping `WriteSDKInformation`, to a path that ends in ".vyr", or into a new ZIP archive
    /// if it ends in ".vyrz"; any other ending gives `ELMX_USER_DEFINED_2`. A ".vyr" file that can't be opened stays
    /// unwritten without a failure. An archive is made of a ".vyr" file beside it, of the same stem: one that is there
    /// already is lost. An archive that can't be created is a `CZipException`; any later failure gives
    /// `ELMX_USER_DEFINED_1` and leaves the ".vyr" file.
    lmx::elmx_error writeFile(const std::u16string& path) const;

    /// The same with the path in UTF-8; what is none gives `ELMX_NO_FILE`.
    lmx::elmx_error writeFile(const std::string& path) const;

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    /// Stamps the library's identity as `ReadSDKInformation` of the header.
    void init();
    static const lmx::s_item k_items[];
    mutable Preamble m_Preamble;
    lmx::c_list<ColorType> m_Color;
    lmx::c_list<PaletteType> m_Palette;
    lmx::c_list<ColorQualityControlType> m_ColorQualityControl;
    bool m_isset_Preamble = false;
};

/// Open content: elements of any name in any namespace, kept as they were written.
class VYR_EXPORT Revision {
public:
    Revision();
    Revision(const Revision& other);
    virtual ~Revision();
    Revision& operator=(const Revision& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(Revision& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// One element with its tags, verbatim.
    std::size_t size_any() const { return m_any.size(); }
    void get_any(std::size_t index, std::string* ns, std::string* name, std::string* value) const;
    lmx::elmx_error append_any(const std::string& value);
    lmx::elmx_error insert_any(std::size_t index, const std::string& value);
    void delete_any(std::size_t index);
    void clear_any();

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    static const lmx::s_item k_items[];
    lmx::c_list<lmx::c_any_info> m_any;
};

/// A person by name, with a way to reach them.
class VYR_EXPORT Person {
public:
    Person();
    Person(const Person& other);
    virtual ~Person();
    Person& operator=(const Person& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(Person& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// The person's name.
    const std::u16string& get_Name() const { return m_Name; }
    lmx::elmx_error set_Name(const std::u16string& value);

    /// Address, telephone number or the like.
    const std::u16string& get_ContactInfo() const { return m_ContactInfo; }
    lmx::elmx_error set_ContactInfo(const std::u16string& value);
    bool isset_ContactInfo() const { return m_isset_ContactInfo; }
    void unset_ContactInfo() { m_isset_ContactInfo = false; }

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_Name,
        item_ContactInfo,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Name;
    std::u16string m_ContactInfo;
    bool m_isset_Name = false;
    bool m_isset_ContactInfo = false;
};

/// A floating-point number, an integer or a text.
class VYR_EXPORT CustomAttributeType_ValueChoice {
public:
    /// Which alternative is held.
    enum elmx_chosen : std::int32_t { e_DoubleValue, e_IntegerValue, e_StringValue, e_none = e_StringValue + 1 };

    CustomAttributeType_ValueChoice();
    CustomAttributeType_ValueChoice(const CustomAttributeType_ValueChoice& other);
    virtual ~CustomAttributeType_ValueChoice();
    CustomAttributeType_ValueChoice& operator=(const CustomAttributeType_ValueChoice& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(CustomAttributeType_ValueChoice& other);
    void reset();
    bool is_occurs_ok() const;
    elmx_chosen getchosen() const { return static_cast<elmx_chosen>(m_choice.chosen); }
    static const lmx::s_class k_class;

    /// The value as a floating-point number.
    double get_DoubleValue() const { return m_choice.chosen == e_DoubleValue ? m_choice.number : 0; }
    lmx::elmx_error set_DoubleValue(double value);

    /// The value as an integer.
    std::int32_t get_IntegerValue() const { return m_choice.chosen == e_IntegerValue ? m_choice.int32 : 0; }
    lmx::elmx_error set_IntegerValue(std::int32_t value);

    /// The value as a text.
    const std::u16string& get_StringValue() const;
    lmx::elmx_error set_StringValue(const std::u16string& value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_DoubleValue,
        item_IntegerValue,
        item_StringValue,
    };
    static const lmx::s_item k_items[];
    lmx::s_choice m_choice{e_none};
};

/// A named value of the user's own, kept by the format without a meaning of its own.
class VYR_EXPORT CustomAttributeType {
public:
    CustomAttributeType();
    CustomAttributeType(const CustomAttributeType& other);
    virtual ~CustomAttributeType();
    CustomAttributeType& operator=(const CustomAttributeType& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(CustomAttributeType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Name of the attribute; not empty.
    const std::u16string& get_Name() const { return m_Name; }
    lmx::elmx_error set_Name(const std::u16string& value);

    /// Value of the attribute.
    CustomAttributeType_ValueChoice& get_ValueChoice() { m_isset_ValueChoice = true; return m_ValueChoice; }
    const CustomAttributeType_ValueChoice& get_ValueChoice() const { return m_ValueChoice; }
    CustomAttributeType_ValueChoice& assign_ValueChoice(const CustomAttributeType_ValueChoice& value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_Name,
        item_ValueChoice,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Name;
    CustomAttributeType_ValueChoice m_ValueChoice;
    bool m_isset_Name = false;
    bool m_isset_ValueChoice = false;
};

/// Category that a tag belongs to.
class VYR_EXPORT TagCategory {
public:
    TagCategory();
    TagCategory(const TagCategory& other);
    virtual ~TagCategory();
    TagCategory& operator=(const TagCategory& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(TagCategory& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Identifier of the category, unique among categories.
    const std::u16string& get_UniqueID() const { return m_UniqueID; }
    lmx::elmx_error set_UniqueID(const std::u16string& value);
    bool isset_UniqueID() const { return m_isset_UniqueID; }
    void unset_UniqueID() { m_isset_UniqueID = false; }

    /// Name of the category.
    const std::u16string& get_Name() const { return m_Name; }
    lmx::elmx_error set_Name(const std::u16string& value);
    bool isset_Name() const { return m_isset_Name; }
    void unset_Name() { m_isset_Name = false; }

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_UniqueID,
        item_Name,
    };
    static const lmx::s_item k_items[];
    std::u16string m_UniqueID;
    std::u16string m_Name;
    bool m_isset_UniqueID = false;
    bool m_isset_Name = false;
};

/// A label within a category, by which colours can be searched and grouped.
class VYR_EXPORT Tag {
public:
    Tag();
    Tag(const Tag& other);
    virtual ~Tag();
    Tag& operator=(const Tag& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(Tag& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Name of the tag.
    const std::u16string& get_Name() const { return m_Name; }
    lmx::elmx_error set_Name(const std::u16string& value);
    bool isset_Name() const { return m_isset_Name; }
    void unset_Name() { m_isset_Name = false; }

    /// Identifier of the tag, unique among tags.
    const std::u16string& get_UniqueID() const { return m_UniqueID; }
    lmx::elmx_error set_UniqueID(const std::u16string& value);
    bool isset_UniqueID() const { return m_isset_UniqueID; }
    void unset_UniqueID() { m_isset_UniqueID = false; }

    /// Category of the tag; always written, if need be as an empty element.
    TagCategory& get_Category() { m_isset_Category = true; return m_Category; }
    const TagCategory& get_Category() const { return m_Category; }
    TagCategory& assign_Category(const TagCategory& value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_Name,
        item_UniqueID,
        item_Category,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Name;
    std::u16string m_UniqueID;
    TagCategory m_Category;
    bool m_isset_Name = false;
    bool m_isset_UniqueID = false;
    bool m_isset_Category = false;
};

/// A text or a number, as the tag asks.
class VYR_EXPORT anon_TextValue {
public:
    /// Which alternative is held.
    enum elmx_chosen : std::int32_t { e_TextValue, e_NumberValue, e_none = e_NumberValue + 1 };

    anon_TextValue();
    anon_TextValue(const anon_TextValue& other);
    virtual ~anon_TextValue();
    anon_TextValue& operator=(const anon_TextValue& other);
    /// True if the current element is one of the alternatives.
    static bool is_member(lmx::c_xml_reader& reader, const std::string&);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char*) const;
    bool unmarshal(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error);
    void swap(anon_TextValue& other);
    void reset();
    bool is_occurs_ok() const;
    elmx_chosen getchosen() const { return static_cast<elmx_chosen>(m_choice.chosen); }
    static const lmx::s_class k_class;

    /// The value as a text.
    const std::u16string& get_TextValue() const;
    lmx::elmx_error set_TextValue(const std::u16string& value);

    /// The value as a number.
    double get_NumberValue() const { return m_choice.chosen == e_NumberValue ? m_choice.number : 0; }
    lmx::elmx_error set_NumberValue(double value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }

private:
    enum item : std::size_t {
        item_TextValue,
        item_NumberValue,
    };
    static const lmx::s_item k_items[];
    lmx::s_choice m_choice{e_none};
};

/// Value that a colour has under one tag: a text or a number.
class VYR_EXPORT TagValue {
public:
    TagValue();
    TagValue(const TagValue& other);
    virtual ~TagValue();
    TagValue& operator=(const TagValue& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(TagValue& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Identifier of this value.
    const std::u16string& get_UniqueID() const { return m_UniqueID; }
    lmx::elmx_error set_UniqueID(const std::u16string& value);
    bool isset_UniqueID() const { return m_isset_UniqueID; }
    void unset_UniqueID() { m_isset_UniqueID = false; }

    /// The tag that is valued.
    Tag& get_Tag() { m_isset_Tag = true; return m_Tag; }
    const Tag& get_Tag() const { return m_Tag; }
    Tag& assign_Tag(const Tag& value);

    /// A text or a number, as the tag asks.
    anon_TextValue& get_anon_TextValue() { m_isset_anon_TextValue = true; return m_anon_TextValue; }
    const anon_TextValue& get_anon_TextValue() const { return m_anon_TextValue; }
    anon_TextValue& assign_anon_TextValue(const anon_TextValue& value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_UniqueID,
        item_Tag,
        item_anon_TextValue,
    };
    static const lmx::s_item k_items[];
    std::u16string m_UniqueID;
    Tag m_Tag;
    anon_TextValue m_anon_TextValue;
    bool m_isset_UniqueID = false;
    bool m_isset_Tag = false;
    bool m_isset_anon_TextValue = false;
};

}  // namespace com_vyrgraph_v2
