// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The tables that describe a schema-bound class: one row per item in schema order, one record per class.
///
/// Generated code fills them; the functions of this folder walk them. Nothing here knows any particular schema.
/// All rows are constants, built at compile time.

#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

#include "lmx/binding/enumerated.h"
#include "lmx/binding/list.h"
#include "lmx/binding/optional_child.h"
#include "lmx/binding/stored_type.h"
#include "lmx/error.h"
#include "lmx/ns_map.h"
#include "lmx/reader/name_list.h"
#include "lmx/values/binary.h"
#include "lmx/values/datetime.h"
#include "lmx/values/pattern.h"
#include "lmx/values/scalars.h"

namespace lmx {

class c_xml_reader;
class c_xml_writer;
class c_any_info;
struct s_class;
struct s_document;

/// Raised whenever rows change their meaning: generated code asserts the value it was made for.
inline constexpr int k_binding_version = 7;

/// What an item is, and with it how it's stored.
enum class item_kind : std::uint8_t {
    attribute,       ///< simple attribute: a value and a flag
    element,         ///< simple child element: a value and a flag
    element_list,    ///< repeating simple child element: `c_list` of values
    child,           ///< child element of a class: the object and a flag
    optional_child,  ///< the same if it may be absent: `c_optional_child` and a flag
    child_list,      ///< repeating child element of a class: `c_list` of objects
    group,           ///< substitution-group holder or inline choice: the object and a flag
    group_list,      ///< repeating holder: `c_list` of holders
    marker,          ///< child element without content that nothing stores
    content,         ///< the element's own simple content: a value and a flag
    any,             ///< open content kept as text: `c_list` of `c_any_info`
    alternative,     ///< simple or class alternative of a choice, or a group's member: lives in `s_choice`
};

constexpr bool is_repeating(item_kind kind) {
    switch (kind) {
        case item_kind::element_list:
        case item_kind::child_list:
        case item_kind::group_list:
        case item_kind::any:
            return true;
        default:
            return false;
    }
}

/// The C++ type of a simple value.
enum class value_kind : std::uint8_t {
    none,
    text,
    enumerated,
    boolean,
    number,
    int32,
    uint32,
    uint8,
    datetime,
    binary
};

/// How an item takes part in reading, checking, writing and copying; a mask.
enum item_use : std::uint8_t {
    use_optional = 0,
    use_demanded = 1,  ///< the reader reports its absence
    use_asked = 2,     ///< `is_occurs_ok` asks for it
    use_written = 4,   ///< the writer prints it without asking for the flag
    use_copied = 8,    ///< a copy takes it without asking for the flag, and raises the flag
    use_lax = 16,      ///< a group that is read without asking whether the element is a member
    use_name = 32,     ///< its text names the object in reports
    use_required = use_demanded | use_asked | use_written | use_copied,
};

/// What a simple value must meet besides its lexical form. One object per distinct set; shared by reading and
/// setting. The defaults mean "no such facet".
struct s_facets {
    const c_enumeration* enumeration = nullptr;
    double minimum = -std::numeric_limits<double>::infinity();
    double maximum = std::numeric_limits<double>::infinity();
    bool minimum_exclusive = false;
    bool maximum_exclusive = false;
    bool setter_skips_minimum = false;
    bool pattern_takes_zoned = false;  ///< the pattern takes every valid dateTime that names a time zone
    std::size_t minimum_length = 0;    ///< in code points
    // In brackets, since <windows.h> has a macro of that name.
    std::size_t maximum_length = (std::numeric_limits<std::size_t>::max)();
    const char* minimum_integer = nullptr;  ///< for integers: the bounds that a text is compared with
    const char* maximum_integer = nullptr;
    const c_pattern& (*pattern)() = nullptr;  ///< compiled when it is first asked for

    /// Whether a number breaks a bound. NaN breaks none.
    constexpr bool is_below(double number) const {
        return number < minimum || (minimum_exclusive && number == minimum);
    }
    constexpr bool is_above(double number) const {
        return number > maximum || (maximum_exclusive && number == maximum);
    }
};

/// One class that a factory knows, by its local type name.
struct s_factory_row {
    std::string_view name;
    const s_class* type;
};

/// One item of a class.
struct s_item {
    item_kind kind;
    value_kind value;
    std::uint8_t use;               ///< mask of `item_use`
    elmx_whitespace whitespace;     ///< of a simple value's text
    std::string_view name;          ///< as printed: "Name" for attributes, "Vyr:Name" for elements; null-terminated
    int token;                      ///< of attributes and elements; 0 for content, groups and open content
    std::uint32_t offset;           ///< of the value, object or list in the class
    std::uint32_t flag;             ///< offset of the present flag, or `k_no_flag`
    const s_class* type = nullptr;  ///< of children, groups and class alternatives
    const s_facets* facets = nullptr;          ///< null when there are none
    std::span<const s_factory_row> factory{};  ///< of group members that `xsi:type` may specialise
};

constexpr bool is_repeating(const s_item& item) { return is_repeating(item.kind); }
/// Whether the row stands for the members of a group or of an inline choice.
constexpr bool is_group(const s_item& item) {
    return item.kind == item_kind::group || item.kind == item_kind::group_list;
}

/// How many of the rows of a class are attributes, which come first.
constexpr std::size_t attribute_count(std::span<const s_item> items) {
    std::size_t count = 0;
    while (count < items.size() && items[count].kind == item_kind::attribute) ++count;
    return count;
}

inline constexpr std::uint32_t k_no_flag = (std::numeric_limits<std::uint32_t>::max)();

/// What stands between a class's tags.
enum class content_kind : std::uint8_t {
    empty,     ///< nothing at all
    simple,    ///< a value
    children,  ///< child elements, in sequence
    choice,    ///< one of several children
    group,     ///< a substitution group's holder: like a choice, without an element of its own
};

/// The operations of a class that differ by type, with the type taken away.
struct s_operations {
    s_stored_type stored;
    void* (*create)();
    void (*destroy)(void* object);  ///< of one that `create` or `clone` made
    void (*assign)(void* target, const void* source);
    void (*swap)(void* one, void* other);
    /// The most derived copy; null for classes without `clone`.
    void* (*clone)(const void* object);
    /// Of classes that stand for an element; null for holders and inline choices.
    elmx_error (*unmarshal)(void* object, c_xml_reader& reader, const std::string& name);
    /// Of holders and inline choices; null for elements.
    bool (*unmarshal_part)(void* object, c_xml_reader& reader, std::string* name, elmx_error* error);
    elmx_error (*marshal)(const void* object, c_xml_writer& writer, const char* name);
};

/// One class. `items` holds its own items only, attributes first; the base's come from `base`.
struct s_class {
    const char* name;            ///< "PaletteType": named when a required attribute is missing
    const char* qualified_name;  ///< "Vyr:PaletteType": named when a list is too short or nothing is chosen
    const s_class* base = nullptr;
    content_kind content;                ///< of the class with its bases
    bool may_be_empty = false;           ///< an element without children is no error
    const s_name_lists* names;           ///< of the schema
    const s_ns_map* ns_map = nullptr;    ///< declared on an outermost element; null for anonymous local classes
    std::uint32_t nil_flag = k_no_flag;  ///< offset of the nil flag
    std::uint32_t choice = k_no_flag;    ///< offset of the `s_choice`
    const char* const* id = nullptr;     ///< the class's identity; null outside the type families
    std::span<const s_item> attributes{};
    std::span<const s_item> elements{};  ///< children, content, or alternatives
    const s_operations* operations = nullptr;
};

/// The state of a choice or of a holder: which alternative lives, and the alternative.
/// Numbers, booleans and enumerated texts lie in the slot; texts and objects are owned through it.
struct s_choice {
    explicit s_choice(std::int32_t nothing, bool touched = false) : chosen(nothing), is_touched(touched) {}

    std::int32_t chosen;
    bool is_touched;          ///< raised with every choice: the present flag of a class that is a holder itself
    bool is_adopted = false;  ///< the object is one that `delete` ends, or null; others are parts
    union {
        double number;
        std::int32_t int32;
        std::uint32_t uint32;
        void* object = nullptr;
    };
};

/// The number that means that nothing is chosen: one past the last alternative of a choice, two past that of a
/// group.
constexpr std::int32_t none_chosen(const s_class& type) {
    return static_cast<std::int32_t>(type.elements.size()) + (type.content == content_kind::group ? 1 : 0);
}

/// The class of a type family that a class stands for: itself, or the nearest base that has the identity.
inline const s_class& family_member(const s_class& type) {
    const s_class* member = &type;
    while (member->base != nullptr && member->base->id == type.id) member = member->base;
    return *member;
}

namespace detail {

template <class T>
void* create() {
    return new T();
}
template <class T>
void destroy(void* object) {
    delete static_cast<T*>(object);
}
template <class T>
void assign(void* target, const void* source) {
    *static_cast<T*>(target) = *static_cast<const T*>(source);
}
template <class T>
void swap(void* one, void* other) {
    static_cast<T*>(one)->swap(*static_cast<T*>(other));
}
template <class T>
void* clone(const void* object) {
    return static_cast<const T*>(object)->clone();
}
template <class T>
elmx_error unmarshal(void* object, c_xml_reader& reader, const std::string& name) {
    return static_cast<T*>(object)->unmarshal(reader, name);
}
template <class T>
bool unmarshal_part(void* object, c_xml_reader& reader, std::string* name, elmx_error* error) {
    return static_cast<T*>(object)->unmarshal(reader, name, error);
}
template <class T>
elmx_error marshal(const void* object, c_xml_writer& writer, const char* name) {
    return static_cast<const T*>(object)->marshal(writer, name);
}

template <class T>
constexpr s_operations make_operations() {
    s_operations operations{k_stored_type<T>, create<T>, destroy<T>, assign<T>, swap<T>,
                            nullptr,          nullptr,   nullptr,    marshal<T>};
    if constexpr (requires(const T& object) { object.clone(); }) operations.clone = clone<T>;
    if constexpr (requires(T & object, c_xml_reader & r, const std::string& n) { object.unmarshal(r, n); }) {
        operations.unmarshal = unmarshal<T>;
    } else {
        operations.unmarshal_part = unmarshal_part<T>;
    }
    return operations;
}

/// The storage that an item of a kind must have in its class.
template <class Member>
constexpr value_kind value_kind_of() {
    if constexpr (std::is_same_v<Member, std::u16string>)
        return value_kind::text;
    else if constexpr (std::is_same_v<Member, c_enumerated>)
        return value_kind::enumerated;
    else if constexpr (std::is_same_v<Member, bool>)
        return value_kind::boolean;
    else if constexpr (std::is_same_v<Member, double>)
        return value_kind::number;
    else if constexpr (std::is_same_v<Member, std::int32_t>)
        return value_kind::int32;
    else if constexpr (std::is_same_v<Member, std::uint32_t>)
        return value_kind::uint32;
    else if constexpr (std::is_same_v<Member, std::uint8_t>)
        return value_kind::uint8;
    else if constexpr (std::is_same_v<Member, c_datetime>)
        return value_kind::datetime;
    else if constexpr (std::is_same_v<Member, c_binary>)
        return value_kind::binary;
    else
        return value_kind::none;
}

template <class T>
struct s_entry_of {
    using type = T;
};
template <class T>
struct s_entry_of<c_list<T>> {
    using type = T;
};

/// Builds the storage half of a row and refuses at compile time a member whose type doesn't fit the row.
template <class Member, item_kind Kind, value_kind Value>
constexpr std::uint32_t checked_offset(std::size_t offset) {
    static_assert(is_repeating(Kind) == std::is_base_of_v<c_list_base, Member>, "a repeating item lies in a c_list");
    static_assert((Kind == item_kind::optional_child) == std::is_base_of_v<c_optional_child_base, Member>,
                  "an optional child lies in a c_optional_child");
    static_assert(value_kind_of<typename s_entry_of<Member>::type>() == Value, "the member's type is another");
    return static_cast<std::uint32_t>(offset);
}

}  // namespace detail

/// The operations of class `T`.
template <class T>
inline constexpr s_operations k_operations = detail::make_operations<T>();

// `offsetof` on classes with virtual functions is conditionally supported; both compilers of this project
// support it and warn. The macros also hold the member's type against the row's kind.
#define LMX_OFFSET(owner, member, kind, value)                                                                \
    ::lmx::detail::checked_offset<decltype(owner::member), ::lmx::item_kind::kind, ::lmx::value_kind::value>( \
        __builtin_offsetof(owner, member))
#define LMX_FLAG(owner, member)                                                                                    \
    ::lmx::detail::checked_offset<decltype(owner::member), ::lmx::item_kind::element, ::lmx::value_kind::boolean>( \
        __builtin_offsetof(owner, member))
#define LMX_CHOICE(owner, member) static_cast<std::uint32_t>(__builtin_offsetof(owner, member))

}  // namespace lmx
