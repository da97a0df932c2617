// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Classes of the topic statistics: FunctionStdDevXType, FunctionStdDevYType, FunctionStdDevZType,
/// FunctionStdDevLType, FunctionStdDevAType, FunctionStdDevBType, FunctionStdDevCType, FunctionStdDevHType,
/// FunctionAverageStdDevLType, FunctionAverageStdDevAType, FunctionAverageStdDevBType.

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
#include "schema/generated/functions.h"

namespace com_vyrgraph_v2 {

/// Standard deviation of the tristimulus value X.
class VYR_EXPORT FunctionStdDevXType : public FunctionType {
public:
    FunctionStdDevXType();
    FunctionStdDevXType(const FunctionStdDevXType& other);
    FunctionStdDevXType* clone() const override;
    ~FunctionStdDevXType() override;
    FunctionStdDevXType& operator=(const FunctionStdDevXType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(FunctionStdDevXType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// The class's identity; `getid` and `has_id` work on its address.
    static const char* id;

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }
};

/// Standard deviation of the tristimulus value Y.
class VYR_EXPORT FunctionStdDevYType : public FunctionType {
public:
    FunctionStdDevYType();
    FunctionStdDevYType(const FunctionStdDevYType& other);
    FunctionStdDevYType* clone() const override;
    ~FunctionStdDevYType() override;
    FunctionStdDevYType& operator=(const FunctionStdDevYType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(FunctionStdDevYType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// The class's identity; `getid` and `has_id` work on its address.
    static const char* id;

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }
};

/// Standard deviation of the tristimulus value Z.
class VYR_EXPORT FunctionStdDevZType : public FunctionType {
public:
    FunctionStdDevZType();
    FunctionStdDevZType(const FunctionStdDevZType& other);
    FunctionStdDevZType* clone() const override;
    ~FunctionStdDevZType() override;
    FunctionStdDevZType& operator=(const FunctionStdDevZType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(FunctionStdDevZType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// The class's identity; `getid` and `has_id` work on its address.
    static const char* id;

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }
};

/// Standard deviation of the lightness L*.
class VYR_EXPORT FunctionStdDevLType : public FunctionType {
public:
    FunctionStdDevLType();
    FunctionStdDevLType(const FunctionStdDevLType& other);
    FunctionStdDevLType* clone() const override;
    ~FunctionStdDevLType() override;
    FunctionStdDevLType& operator=(const FunctionStdDevLType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(FunctionStdDevLType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// The class's identity; `getid` and `has_id` work on its address.
    static const char* id;

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }
};

/// Standard deviation of a*.
class VYR_EXPORT FunctionStdDevAType : public FunctionType {
public:
    FunctionStdDevAType();
    FunctionStdDevAType(const FunctionStdDevAType& other);
    FunctionStdDevAType* clone() const override;
    ~FunctionStdDevAType() override;
    FunctionStdDevAType& operator=(const FunctionStdDevAType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(FunctionStdDevAType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// The class's identity; `getid` and `has_id` work on its address.
    static const char* id;

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }
};

/// Standard deviation of b*.
class VYR_EXPORT FunctionStdDevBType : public FunctionType {
public:
    FunctionStdDevBType();
    FunctionStdDevBType(const FunctionStdDevBType& other);
    FunctionStdDevBType* clone() const override;
    ~FunctionStdDevBType() override;
    FunctionStdDevBType& operator=(const FunctionStdDevBType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(FunctionStdDevBType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// The class's identity; `getid` and `has_id` work on its address.
    static const char* id;

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }
};

/// Standard deviation of the chroma C*.
class VYR_EXPORT FunctionStdDevCType : public FunctionType {
public:
    FunctionStdDevCType();
    FunctionStdDevCType(const FunctionStdDevCType& other);
    FunctionStdDevCType* clone() const override;
    ~FunctionStdDevCType() override;
    FunctionStdDevCType& operator=(const FunctionStdDevCType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(FunctionStdDevCType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// The class's identity; `getid` and `has_id` work on its address.
    static const char* id;

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }
};

/// Standard deviation of the hue.
class VYR_EXPORT FunctionStdDevHType : public FunctionType {
public:
    FunctionStdDevHType();
    FunctionStdDevHType(const FunctionStdDevHType& other);
    FunctionStdDevHType* clone() const override;
    ~FunctionStdDevHType() override;
    FunctionStdDevHType& operator=(const FunctionStdDevHType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(FunctionStdDevHType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// The class's identity; `getid` and `has_id` work on its address.
    static const char* id;

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }
};

/// Average standard deviation of the lightness L*.
class VYR_EXPORT FunctionAverageStdDevLType : public FunctionType {
public:
    FunctionAverageStdDevLType();
    FunctionAverageStdDevLType(const FunctionAverageStdDevLType& other);
    FunctionAverageStdDevLType* clone() const override;
    ~FunctionAverageStdDevLType() override;
    FunctionAverageStdDevLType& operator=(const FunctionAverageStdDevLType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(FunctionAverageStdDevLType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// The class's identity; `getid` and `has_id` work on its address.
    static const char* id;

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }
};

/// Average standard deviation of a*.
class VYR_EXPORT FunctionAverageStdDevAType : public FunctionType {
public:
    FunctionAverageStdDevAType();
    FunctionAverageStdDevAType(const FunctionAverageStdDevAType& other);
    FunctionAverageStdDevAType* clone() const override;
    ~FunctionAverageStdDevAType() override;
    FunctionAverageStdDevAType& operator=(const FunctionAverageStdDevAType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(FunctionAverageStdDevAType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// The class's identity; `getid` and `has_id` work on its address.
    static const char* id;

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }
};

/// Average standard deviation of b*.
class VYR_EXPORT FunctionAverageStdDevBType : public FunctionType {
public:
    FunctionAverageStdDevBType();
    FunctionAverageStdDevBType(const FunctionAverageStdDevBType& other);
    FunctionAverageStdDevBType* clone() const override;
    ~FunctionAverageStdDevBType() override;
    FunctionAverageStdDevBType& operator=(const FunctionAverageStdDevBType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(FunctionAverageStdDevBType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// The class's identity; `getid` and `has_id` work on its address.
    static const char* id;

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }
};

/// Standard deviation of the tristimulus value X.
class VYR_EXPORT FunctionStdDevX : public FunctionStdDevXType {
public:
    FunctionStdDevX() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    FunctionStdDevX(const char* file_name, lmx::elmx_error* error);
    FunctionStdDevX(const char* data, std::size_t size, lmx::elmx_error* error);
    FunctionStdDevX(const std::string& text, lmx::elmx_error* error);
    static const lmx::s_ns_map* ns_map();
    lmx::elmx_error unmarshal(const char* file_name);
    lmx::elmx_error unmarshal(const char* data, std::size_t size);
    lmx::elmx_error unmarshal(const std::string& text);
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader);
    lmx::elmx_error marshal(const char* file_name) const;
    lmx::elmx_error marshal(std::string* text) const;
    lmx::elmx_error marshal(std::ostream& stream) const;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    static const lmx::s_document k_document;
};

/// Standard deviation of the tristimulus value Y.
class VYR_EXPORT FunctionStdDevY : public FunctionStdDevYType {
public:
    FunctionStdDevY() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    FunctionStdDevY(const char* file_name, lmx::elmx_error* error);
    FunctionStdDevY(const char* data, std::size_t size, lmx::elmx_error* error);
    FunctionStdDevY(const std::string& text, lmx::elmx_error* error);
    static const lmx::s_ns_map* ns_map();
    lmx::elmx_error unmarshal(const char* file_name);
    lmx::elmx_error unmarshal(const char* data, std::size_t size);
    lmx::elmx_error unmarshal(const std::string& text);
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader);
    lmx::elmx_error marshal(const char* file_name) const;
    lmx::elmx_error marshal(std::string* text) const;
    lmx::elmx_error marshal(std::ostream& stream) const;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    static const lmx::s_document k_document;
};

/// Standard deviation of the tristimulus value Z.
class VYR_EXPORT FunctionStdDevZ : public FunctionStdDevZType {
public:
    FunctionStdDevZ() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    FunctionStdDevZ(const char* file_name, lmx::elmx_error* error);
    FunctionStdDevZ(const char* data, std::size_t size, lmx::elmx_error* error);
    FunctionStdDevZ(const std::string& text, lmx::elmx_error* error);
    static const lmx::s_ns_map* ns_map();
    lmx::elmx_error unmarshal(const char* file_name);
    lmx::elmx_error unmarshal(const char* data, std::size_t size);
    lmx::elmx_error unmarshal(const std::string& text);
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader);
    lmx::elmx_error marshal(const char* file_name) const;
    lmx::elmx_error marshal(std::string* text) const;
    lmx::elmx_error marshal(std::ostream& stream) const;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    static const lmx::s_document k_document;
};

/// Standard deviation of the lightness L*.
class VYR_EXPORT FunctionStdDevL : public FunctionStdDevLType {
public:
    FunctionStdDevL() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    FunctionStdDevL(const char* file_name, lmx::elmx_error* error);
    FunctionStdDevL(const char* data, std::size_t size, lmx::elmx_error* error);
    FunctionStdDevL(const std::string& text, lmx::elmx_error* error);
    static const lmx::s_ns_map* ns_map();
    lmx::elmx_error unmarshal(const char* file_name);
    lmx::elmx_error unmarshal(const char* data, std::size_t size);
    lmx::elmx_error unmarshal(const std::string& text);
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader);
    lmx::elmx_error marshal(const char* file_name) const;
    lmx::elmx_error marshal(std::string* text) const;
    lmx::elmx_error marshal(std::ostream& stream) const;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    static const lmx::s_document k_document;
};

/// Standard deviation of a*.
class VYR_EXPORT FunctionStdDevA : public FunctionStdDevAType {
public:
    FunctionStdDevA() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    FunctionStdDevA(const char* file_name, lmx::elmx_error* error);
    FunctionStdDevA(const char* data, std::size_t size, lmx::elmx_error* error);
    FunctionStdDevA(const std::string& text, lmx::elmx_error* error);
    static const lmx::s_ns_map* ns_map();
    lmx::elmx_error unmarshal(const char* file_name);
    lmx::elmx_error unmarshal(const char* data, std::size_t size);
    lmx::elmx_error unmarshal(const std::string& text);
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader);
    lmx::elmx_error marshal(const char* file_name) const;
    lmx::elmx_error marshal(std::string* text) const;
    lmx::elmx_error marshal(std::ostream& stream) const;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    static const lmx::s_document k_document;
};

/// Standard deviation of b*.
class VYR_EXPORT FunctionStdDevB : public FunctionStdDevBType {
public:
    FunctionStdDevB() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    FunctionStdDevB(const char* file_name, lmx::elmx_error* error);
    FunctionStdDevB(const char* data, std::size_t size, lmx::elmx_error* error);
    FunctionStdDevB(const std::string& text, lmx::elmx_error* error);
    static const lmx::s_ns_map* ns_map();
    lmx::elmx_error unmarshal(const char* file_name);
    lmx::elmx_error unmarshal(const char* data, std::size_t size);
    lmx::elmx_error unmarshal(const std::string& text);
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader);
    lmx::elmx_error marshal(const char* file_name) const;
    lmx::elmx_error marshal(std::string* text) const;
    lmx::elmx_error marshal(std::ostream& stream) const;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    static const lmx::s_document k_document;
};

/// Standard deviation of the chroma C*.
class VYR_EXPORT FunctionStdDevC : public FunctionStdDevCType {
public:
    FunctionStdDevC() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    FunctionStdDevC(const char* file_name, lmx::elmx_error* error);
    FunctionStdDevC(const char* data, std::size_t size, lmx::elmx_error* error);
    FunctionStdDevC(const std::string& text, lmx::elmx_error* error);
    static const lmx::s_ns_map* ns_map();
    lmx::elmx_error unmarshal(const char* file_name);
    lmx::elmx_error unmarshal(const char* data, std::size_t size);
    lmx::elmx_error unmarshal(const std::string& text);
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader);
    lmx::elmx_error marshal(const char* file_name) const;
    lmx::elmx_error marshal(std::string* text) const;
    lmx::elmx_error marshal(std::ostream& stream) const;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    static const lmx::s_document k_document;
};

/// Standard deviation of the hue.
class VYR_EXPORT FunctionStdDevH : public FunctionStdDevHType {
public:
    FunctionStdDevH() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    FunctionStdDevH(const char* file_name, lmx::elmx_error* error);
    FunctionStdDevH(const char* data, std::size_t size, lmx::elmx_error* error);
    FunctionStdDevH(const std::string& text, lmx::elmx_error* error);
    static const lmx::s_ns_map* ns_map();
    lmx::elmx_error unmarshal(const char* file_name);
    lmx::elmx_error unmarshal(const char* data, std::size_t size);
    lmx::elmx_error unmarshal(const std::string& text);
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader);
    lmx::elmx_error marshal(const char* file_name) const;
    lmx::elmx_error marshal(std::string* text) const;
    lmx::elmx_error marshal(std::ostream& stream) const;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    static const lmx::s_document k_document;
};

/// Average standard deviation of the lightness L*.
class VYR_EXPORT FunctionAverageStdDevL : public FunctionAverageStdDevLType {
public:
    FunctionAverageStdDevL() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    FunctionAverageStdDevL(const char* file_name, lmx::elmx_error* error);
    FunctionAverageStdDevL(const char* data, std::size_t size, lmx::elmx_error* error);
    FunctionAverageStdDevL(const std::string& text, lmx::elmx_error* error);
    static const lmx::s_ns_map* ns_map();
    lmx::elmx_error unmarshal(const char* file_name);
    lmx::elmx_error unmarshal(const char* data, std::size_t size);
    lmx::elmx_error unmarshal(const std::string& text);
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader);
    lmx::elmx_error marshal(const char* file_name) const;
    lmx::elmx_error marshal(std::string* text) const;
    lmx::elmx_error marshal(std::ostream& stream) const;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    static const lmx::s_document k_document;
};

/// Average standard deviation of a*.
class VYR_EXPORT FunctionAverageStdDevA : public FunctionAverageStdDevAType {
public:
    FunctionAverageStdDevA() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    FunctionAverageStdDevA(const char* file_name, lmx::elmx_error* error);
    FunctionAverageStdDevA(const char* data, std::size_t size, lmx::elmx_error* error);
    FunctionAverageStdDevA(const std::string& text, lmx::elmx_error* error);
    static const lmx::s_ns_map* ns_map();
    lmx::elmx_error unmarshal(const char* file_name);
    lmx::elmx_error unmarshal(const char* data, std::size_t size);
    lmx::elmx_error unmarshal(const std::string& text);
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader);
    lmx::elmx_error marshal(const char* file_name) const;
    lmx::elmx_error marshal(std::string* text) const;
    lmx::elmx_error marshal(std::ostream& stream) const;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    static const lmx::s_document k_document;
};

/// Average standard deviation of b*.
class VYR_EXPORT FunctionAverageStdDevB : public FunctionAverageStdDevBType {
public:
    FunctionAverageStdDevB() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    FunctionAverageStdDevB(const char* file_name, lmx::elmx_error* error);
    FunctionAverageStdDevB(const char* data, std::size_t size, lmx::elmx_error* error);
    FunctionAverageStdDevB(const std::string& text, lmx::elmx_error* error);
    static const lmx::s_ns_map* ns_map();
    lmx::elmx_error unmarshal(const char* file_name);
    lmx::elmx_error unmarshal(const char* data, std::size_t size);
    lmx::elmx_error unmarshal(const std::string& text);
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader);
    lmx::elmx_error marshal(const char* file_name) const;
    lmx::elmx_error marshal(std::string* text) const;
    lmx::elmx_error marshal(std::ostream& stream) const;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    static const lmx::s_document k_document;
};

}  // namespace com_vyrgraph_v2
