// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Classes of the topic functions: FunctionType, FunctionGenericType, FunctionDEType, FunctionMeanDEType,
/// FunctionDE94Type, FunctionDE2000Type, FunctionDEcmcType, FunctionTolerance, ToleranceParameterType.

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

/// A function of colours, such as a colour difference, with its result once it has been evaluated.
class VYR_EXPORT FunctionType {
public:
    FunctionType();
    FunctionType(const FunctionType& other);
    virtual FunctionType* clone() const;
    virtual ~FunctionType();
    FunctionType& operator=(const FunctionType& other);
    virtual const char* getid() const;
    /// True for the identity of this class and of those that it derives from, as pointers.
    virtual bool has_id(const char* identity) const;
    virtual lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    virtual lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(FunctionType& other);
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

    /// Value of the function, in the unit of its formula.
    double get_Result() const { return m_Result; }
    lmx::elmx_error set_Result(double value);
    bool isset_Result() const { return m_isset_Result; }
    void unset_Result() { m_isset_Result = false; }

    /// The class's identity; `getid` and `has_id` work on its address.
    static const char* id;

    /// A new object of the type with that local name in namespace 1000, or null; the caller owns it.
    static FunctionType* factory(int ns_id, const std::string& name);
    static const lmx::s_factory_row k_factory[18];

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_CustomAttribute,
        item_Result,
    };
    static const lmx::s_item k_items[];
    lmx::c_list<CustomAttributeType> m_CustomAttribute;
    double m_Result = 0;
    bool m_isset_Result = false;
};

/// Any function, told by xsi:type; head of the functions, any of which can stand in its place.
class VYR_EXPORT Function : public FunctionType {
public:
    Function() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    Function(const char* file_name, lmx::elmx_error* error);
    Function(const char* data, std::size_t size, lmx::elmx_error* error);
    Function(const std::string& text, lmx::elmx_error* error);
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

/// A function that the format doesn't know, by name and parameters.
class VYR_EXPORT FunctionGenericType : public FunctionType {
public:
    FunctionGenericType();
    FunctionGenericType(const FunctionGenericType& other);
    FunctionGenericType* clone() const override;
    ~FunctionGenericType() override;
    FunctionGenericType& operator=(const FunctionGenericType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(FunctionGenericType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Name of the function; not empty.
    const std::u16string& get_Name() const { return m_Name; }
    lmx::elmx_error set_Name(const std::u16string& value);

    /// A parameter of the function.
    std::size_t size_Parameters() const { return m_Parameters.size(); }
    Parameters& get_Parameters(std::size_t index);
    const Parameters& get_Parameters(std::size_t index) const { return m_Parameters[index]; }
    Parameters& assign_Parameters(std::size_t index, const Parameters& value);
    lmx::elmx_error append_Parameters();
    lmx::elmx_error insert_Parameters(std::size_t index);
    Parameters& back_Parameters() { return m_Parameters.back(); }
    void delete_Parameters(std::size_t index);
    void clear_Parameters();

    /// The class's identity; `getid` and `has_id` work on its address.
    static const char* id;

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_Name,
        item_Parameters,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Name;
    lmx::c_list<Parameters> m_Parameters;
    bool m_isset_Name = false;
};

/// A number or a text.
class VYR_EXPORT ValueChoice {
public:
    /// Which alternative is held.
    enum elmx_chosen : std::int32_t { e_Double, e_String, e_none = e_String + 1 };

    ValueChoice();
    ValueChoice(const ValueChoice& other);
    virtual ~ValueChoice();
    ValueChoice& operator=(const ValueChoice& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(ValueChoice& other);
    void reset();
    bool is_occurs_ok() const;
    elmx_chosen getchosen() const { return static_cast<elmx_chosen>(m_choice.chosen); }
    static const lmx::s_class k_class;

    /// The value as a number.
    double get_Double() const { return m_choice.chosen == e_Double ? m_choice.number : 0; }
    lmx::elmx_error set_Double(double value);

    /// The value as a text.
    const std::u16string& get_String() const;
    lmx::elmx_error set_String(const std::u16string& value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_Double,
        item_String,
    };
    static const lmx::s_item k_items[];
    lmx::s_choice m_choice{e_none};
};

/// A parameter of a function, by name and value.
class VYR_EXPORT Parameters {
public:
    Parameters();
    Parameters(const Parameters& other);
    virtual ~Parameters();
    Parameters& operator=(const Parameters& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(Parameters& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Name of the parameter.
    const std::u16string& get_Name() const { return m_Name; }
    lmx::elmx_error set_Name(const std::u16string& value);

    /// Value of the parameter.
    ValueChoice& get_ValueChoice() { m_isset_ValueChoice = true; return m_ValueChoice; }
    const ValueChoice& get_ValueChoice() const { return m_ValueChoice; }
    ValueChoice& assign_ValueChoice(const ValueChoice& value);

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
    ValueChoice m_ValueChoice;
    bool m_isset_Name = false;
    bool m_isset_ValueChoice = false;
};

/// CIE 1976 colour difference, the distance in L*a*b*.
class VYR_EXPORT FunctionDEType : public FunctionType {
public:
    FunctionDEType();
    FunctionDEType(const FunctionDEType& other);
    FunctionDEType* clone() const override;
    ~FunctionDEType() override;
    FunctionDEType& operator=(const FunctionDEType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(FunctionDEType& other);
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

/// Mean of CIE 1976 colour differences.
class VYR_EXPORT FunctionMeanDEType : public FunctionType {
public:
    FunctionMeanDEType();
    FunctionMeanDEType(const FunctionMeanDEType& other);
    FunctionMeanDEType* clone() const override;
    ~FunctionMeanDEType() override;
    FunctionMeanDEType& operator=(const FunctionMeanDEType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(FunctionMeanDEType& other);
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

/// CIE 1994 colour difference.
class VYR_EXPORT FunctionDE94Type : public FunctionType {
public:
    FunctionDE94Type();
    FunctionDE94Type(const FunctionDE94Type& other);
    FunctionDE94Type* clone() const override;
    ~FunctionDE94Type() override;
    FunctionDE94Type& operator=(const FunctionDE94Type& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(FunctionDE94Type& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Weight of the lightness difference, 0 or more; a new object holds 2, without counting as set.
    double get_Param_l() const { return m_Param_l; }
    lmx::elmx_error set_Param_l(double value);

    /// Weight of the chroma difference, 0 or more; a new object holds 1, without counting as set.
    double get_Param_c() const { return m_Param_c; }
    lmx::elmx_error set_Param_c(double value);

    /// Weight of the hue difference, 0 or more; a new object holds 1, without counting as set.
    double get_Param_h() const { return m_Param_h; }
    lmx::elmx_error set_Param_h(double value);

    /// The class's identity; `getid` and `has_id` work on its address.
    static const char* id;

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_Param_l,
        item_Param_c,
        item_Param_h,
    };
    static const lmx::s_item k_items[];
    double m_Param_l = 2;
    double m_Param_c = 1;
    double m_Param_h = 1;
    bool m_isset_Param_l = false;
    bool m_isset_Param_c = false;
    bool m_isset_Param_h = false;
};

/// CIEDE2000 colour difference.
class VYR_EXPORT FunctionDE2000Type : public FunctionType {
public:
    FunctionDE2000Type();
    FunctionDE2000Type(const FunctionDE2000Type& other);
    FunctionDE2000Type* clone() const override;
    ~FunctionDE2000Type() override;
    FunctionDE2000Type& operator=(const FunctionDE2000Type& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(FunctionDE2000Type& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Weight of the lightness difference, 0 or more; a new object holds 2, without counting as set.
    double get_Param_l() const { return m_Param_l; }
    lmx::elmx_error set_Param_l(double value);

    /// Weight of the chroma difference, 0 or more; a new object holds 1, without counting as set.
    double get_Param_c() const { return m_Param_c; }
    lmx::elmx_error set_Param_c(double value);

    /// Weight of the hue difference, 0 or more; a new object holds 1, without counting as set.
    double get_Param_h() const { return m_Param_h; }
    lmx::elmx_error set_Param_h(double value);

    /// The class's identity; `getid` and `has_id` work on its address.
    static const char* id;

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_Param_l,
        item_Param_c,
        item_Param_h,
    };
    static const lmx::s_item k_items[];
    double m_Param_l = 2;
    double m_Param_c = 1;
    double m_Param_h = 1;
    bool m_isset_Param_l = false;
    bool m_isset_Param_c = false;
    bool m_isset_Param_h = false;
};

/// CMC l:c colour difference.
class VYR_EXPORT FunctionDEcmcType : public FunctionType {
public:
    FunctionDEcmcType();
    FunctionDEcmcType(const FunctionDEcmcType& other);
    FunctionDEcmcType* clone() const override;
    ~FunctionDEcmcType() override;
    FunctionDEcmcType& operator=(const FunctionDEcmcType& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(FunctionDEcmcType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Weight l of the lightness difference, 0 or more; a new object holds 2, without counting as set.
    double get_Param_l() const { return m_Param_l; }
    lmx::elmx_error set_Param_l(double value);

    /// Weight c of the chroma difference, 0 or more; a new object holds 1, without counting as set.
    double get_Param_c() const { return m_Param_c; }
    lmx::elmx_error set_Param_c(double value);

    /// The class's identity; `getid` and `has_id` work on its address.
    static const char* id;

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_Param_l,
        item_Param_c,
    };
    static const lmx::s_item k_items[];
    double m_Param_l = 2;
    double m_Param_c = 1;
    bool m_isset_Param_l = false;
    bool m_isset_Param_c = false;
};

/// A function that the format doesn't know, by name and parameters.
class VYR_EXPORT FunctionGeneric : public FunctionGenericType {
public:
    FunctionGeneric() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    FunctionGeneric(const char* file_name, lmx::elmx_error* error);
    FunctionGeneric(const char* data, std::size_t size, lmx::elmx_error* error);
    FunctionGeneric(const std::string& text, lmx::elmx_error* error);
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

/// CIE 1976 colour difference, the distance in L*a*b*.
class VYR_EXPORT FunctionDE : public FunctionDEType {
public:
    FunctionDE() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    FunctionDE(const char* file_name, lmx::elmx_error* error);
    FunctionDE(const char* data, std::size_t size, lmx::elmx_error* error);
    FunctionDE(const std::string& text, lmx::elmx_error* error);
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

/// Mean of CIE 1976 colour differences.
class VYR_EXPORT FunctionMeanDE : public FunctionMeanDEType {
public:
    FunctionMeanDE() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    FunctionMeanDE(const char* file_name, lmx::elmx_error* error);
    FunctionMeanDE(const char* data, std::size_t size, lmx::elmx_error* error);
    FunctionMeanDE(const std::string& text, lmx::elmx_error* error);
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

/// CIE 1994 colour difference.
class VYR_EXPORT FunctionDE94 : public FunctionDE94Type {
public:
    FunctionDE94() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    FunctionDE94(const char* file_name, lmx::elmx_error* error);
    FunctionDE94(const char* data, std::size_t size, lmx::elmx_error* error);
    FunctionDE94(const std::string& text, lmx::elmx_error* error);
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

/// CIEDE2000 colour difference.
class VYR_EXPORT FunctionDE2000 : public FunctionDE2000Type {
public:
    FunctionDE2000() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    FunctionDE2000(const char* file_name, lmx::elmx_error* error);
    FunctionDE2000(const char* data, std::size_t size, lmx::elmx_error* error);
    FunctionDE2000(const std::string& text, lmx::elmx_error* error);
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

/// CMC l:c colour difference.
class VYR_EXPORT FunctionDECMC : public FunctionDEcmcType {
public:
    FunctionDECMC() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    FunctionDECMC(const char* file_name, lmx::elmx_error* error);
    FunctionDECMC(const char* data, std::size_t size, lmx::elmx_error* error);
    FunctionDECMC(const std::string& text, lmx::elmx_error* error);
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

/// A tolerance formula with limits for its parameters; reached through Function with xsi:type.
class VYR_EXPORT FunctionTolerance : public FunctionType {
public:
    FunctionTolerance();
    FunctionTolerance(const FunctionTolerance& other);
    FunctionTolerance* clone() const override;
    ~FunctionTolerance() override;
    FunctionTolerance& operator=(const FunctionTolerance& other);
    const char* getid() const override;
    /// True for the identity of this class and of those that it derives from, as pointers.
    bool has_id(const char* identity) const override;
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const override;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name) override;
    void swap(FunctionTolerance& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// The formula.
    const std::u16string& get_ToleranceType() const { return m_ToleranceType.get(); }
    lmx::elmx_error set_ToleranceType(const std::u16string& value);
    Eenum_ToleranceType getenum_ToleranceType() const { return static_cast<Eenum_ToleranceType>(m_ToleranceType.number()); }
    bool setenum_ToleranceType(std::int32_t number);

    /// Limits of one parameter.
    std::size_t size_Parameters() const { return m_Parameters.size(); }
    ToleranceParameterType& get_Parameters(std::size_t index);
    const ToleranceParameterType& get_Parameters(std::size_t index) const { return m_Parameters[index]; }
    ToleranceParameterType& assign_Parameters(std::size_t index, const ToleranceParameterType& value);
    lmx::elmx_error append_Parameters();
    lmx::elmx_error insert_Parameters(std::size_t index);
    ToleranceParameterType& back_Parameters() { return m_Parameters.back(); }
    void delete_Parameters(std::size_t index);
    void clear_Parameters();

    /// The class's identity; `getid` and `has_id` work on its address.
    static const char* id;

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_ToleranceType,
        item_Parameters,
    };
    static const lmx::s_item k_items[];
    lmx::c_enumerated m_ToleranceType;
    lmx::c_list<ToleranceParameterType> m_Parameters;
    bool m_isset_ToleranceType = false;
};

/// Limits of one parameter of a tolerance formula.
class VYR_EXPORT ToleranceParameterType {
public:
    ToleranceParameterType();
    ToleranceParameterType(const ToleranceParameterType& other);
    virtual ~ToleranceParameterType();
    ToleranceParameterType& operator=(const ToleranceParameterType& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(ToleranceParameterType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Upper limit, in the unit of the parameter.
    double get_HighValue() const { return m_HighValue; }
    lmx::elmx_error set_HighValue(double value);
    bool isset_HighValue() const { return m_isset_HighValue; }
    void unset_HighValue() { m_isset_HighValue = false; }

    /// Which parameter is limited.
    const std::u16string& get_ToleranceParameter() const { return m_ToleranceParameter.get(); }
    lmx::elmx_error set_ToleranceParameter(const std::u16string& value);
    Eenum_ToleranceParameter getenum_ToleranceParameter() const { return static_cast<Eenum_ToleranceParameter>(m_ToleranceParameter.number()); }
    bool setenum_ToleranceParameter(std::int32_t number);
    bool isset_ToleranceParameter() const { return m_isset_ToleranceParameter; }
    void unset_ToleranceParameter() { m_isset_ToleranceParameter = false; }

    /// Lower limit, in the unit of the parameter.
    double get_LowValue() const { return m_LowValue; }
    lmx::elmx_error set_LowValue(double value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_HighValue,
        item_ToleranceParameter,
        item_LowValue,
    };
    static const lmx::s_item k_items[];
    double m_HighValue = 0;
    lmx::c_enumerated m_ToleranceParameter;
    double m_LowValue = 0;
    bool m_isset_HighValue = false;
    bool m_isset_ToleranceParameter = false;
    bool m_isset_LowValue = false;
};

}  // namespace com_vyrgraph_v2
