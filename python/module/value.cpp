// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Simple values between the library and Python.

#include <limits>

#include "lmx/values/unicode.h"
#include "python/module/module.h"

namespace python {
namespace {

template <class T>
const T& as(const void* storage) {
    return *static_cast<const T*>(storage);
}

bool refuse(PyObject* value, const s_property& property, const char* expected) {
    PyErr_Format(PyExc_TypeError, "%U takes %s, not %R", property.name, expected, Py_TYPE(value));
    return false;
}

template <class T>
bool set(const s_property& property, s_object* owner, PyObject* value, const T& converted) {
    // Conversions can run a user's code, which can remove the owner.
    void* const data = data_of(owner);
    return data != nullptr && demand(lmx::set_item(*property.owner, *property.row, data, converted), property, value);
}

template <class T>
bool store_integer(const s_property& property, s_object* owner, PyObject* value) {
    if (!PyLong_Check(value) || PyBool_Check(value)) return refuse(value, property, "an int");
    int overflow = 0;
    const long long number = PyLong_AsLongLongAndOverflow(value, &overflow);
    if (number == -1 && overflow == 0 && PyErr_Occurred() != nullptr) return false;
    const bool is_above = overflow > 0 || (overflow == 0 && std::cmp_greater(number, std::numeric_limits<T>::max()));
    const bool is_below = overflow < 0 || (overflow == 0 && std::cmp_less(number, std::numeric_limits<T>::min()));
    if (is_above) return demand(lmx::ELMX_VALUE_EXCEEDS_MAX, property, value);
    if (is_below) return demand(lmx::ELMX_VALUE_BELOW_MIN, property, value);
    return set(property, owner, value, static_cast<T>(number));
}

bool store_enumerated(const s_property& property, s_object* owner, PyObject* value) {
    if (PyUnicode_Check(value)) {
        std::u16string text;
        return to_wide(value, &text) && set(property, owner, value, text);
    }
    // A member of another enumeration is a number too, but none that is meant.
    const int is_member = property.kind == Py_None ? 0 : PyObject_IsInstance(value, property.kind);
    if (is_member < 0) return false;
    if (is_member == 0 && !PyLong_CheckExact(value))
        return refuse(value, property, "a member of its enumeration or its text");
    const long number = PyLong_AsLong(value);
    if (number == -1 && PyErr_Occurred() != nullptr) return false;
    void* const data = data_of(owner);
    if (data == nullptr) return false;
    const bool is_known =
        number > 0 && number <= std::numeric_limits<std::int32_t>::max() &&
        lmx::set_enumerated(*property.owner, *property.row, data, static_cast<std::int32_t>(number));
    return demand(is_known ? lmx::ELMX_OK : lmx::ELMX_VALUE_NOT_ENUMERATED, property, value);
}

bool store_binary(const s_property& property, s_object* owner, PyObject* value) {
    if (!PyObject_CheckBuffer(value)) return refuse(value, property, "bytes");
    const c_ref bytes(PyBytes_FromObject(value));
    char* text = nullptr;
    Py_ssize_t size = 0;
    if (!bytes || PyBytes_AsStringAndSize(bytes.get(), &text, &size) != 0) return false;
    const lmx::c_binary binary(reinterpret_cast<const unsigned char*>(text), static_cast<std::size_t>(size));
    return set(property, owner, value, binary);
}

PyObject* enumerated(const s_property& property, const lmx::c_enumerated& value) {
    const std::int32_t number = value.number();
    if (number > 0 && property.members != nullptr && number <= PyTuple_Size(property.members)) {
        return Py_NewRef(PyTuple_GetItem(property.members, number - 1));
    }
    Py_RETURN_NONE;
}

}  // namespace

PyObject* from_wide(const std::u16string& text) {
    constexpr std::size_t k_short = 64;
    char ascii[k_short];  // NOLINT(modernize-avoid-c-arrays)
    std::size_t size = 0;
    if (text.size() <= k_short) {
        while (size < text.size() && text[size] < 0x80) {
            ascii[size] = static_cast<char>(text[size]);
            ++size;
        }
        if (size == text.size()) return PyUnicode_FromStringAndSize(ascii, static_cast<Py_ssize_t>(size));
    }
    int order = PY_BIG_ENDIAN ? 1 : -1;
    return PyUnicode_DecodeUTF16(reinterpret_cast<const char*>(text.data()),
                                 static_cast<Py_ssize_t>(text.size() * sizeof(char16_t)), "surrogatepass", &order);
}

PyObject* from_narrow(const std::string& text) {
    return PyUnicode_DecodeUTF8(text.data(), static_cast<Py_ssize_t>(text.size()), "replace");
}

bool to_wide(PyObject* value, std::u16string* text) {
    Py_ssize_t size = 0;
    const char* const narrow = PyUnicode_AsUTF8AndSize(value, &size);
    if (narrow == nullptr) return false;
    lmx::convert(text, std::string(narrow, static_cast<std::size_t>(size)));
    return true;
}

PyObject* to_python(const s_property& property, const void* storage) {
    switch (property.row->value) {
        case value_kind::text:
            return from_wide(as<std::u16string>(storage));
        case value_kind::enumerated:
            return enumerated(property, as<lmx::c_enumerated>(storage));
        case value_kind::boolean:
            return PyBool_FromLong(as<bool>(storage));
        case value_kind::number:
            return PyFloat_FromDouble(as<double>(storage));
        case value_kind::int32:
            return PyLong_FromLong(as<std::int32_t>(storage));
        case value_kind::uint32:
            return PyLong_FromUnsignedLong(as<std::uint32_t>(storage));
        case value_kind::uint8:
            return PyLong_FromLong(as<std::uint8_t>(storage));
        case value_kind::datetime: {
            c_ref text(from_narrow(as<lmx::c_datetime>(storage).get_as_string()));
            const bool is_text = property.kind == reinterpret_cast<PyObject*>(&PyUnicode_Type);
            if (!text || is_text) return text.release();
            return PyObject_CallFunctionObjArgs(package.read_time, text.get(), nullptr);
        }
        case value_kind::binary: {
            const auto& binary = as<lmx::c_binary>(storage);
            return PyBytes_FromStringAndSize(reinterpret_cast<const char*>(binary.data()),
                                             static_cast<Py_ssize_t>(binary.size()));
        }
        case value_kind::none:
            break;
    }
    Py_RETURN_NONE;
}

bool demand(lmx::elmx_error code, const s_property& property, PyObject* value) {
    if (code == lmx::ELMX_OK) return true;
    const c_ref text(PyUnicode_FromFormat("%s.%U: %s: %R", property.owner->name, property.name,
                                          lmx::get_error_description(code), value));
    const c_ref number(PyLong_FromLong(code));
    const c_ref error(text && number
                          ? PyObject_CallFunctionObjArgs(package.value_error, number.get(), text.get(), nullptr)
                          : nullptr);
    if (error) PyErr_SetObject(package.value_error, error.get());
    return false;
}

bool to_time(const s_property& property, PyObject* value, lmx::c_datetime* time) {
    c_ref made;
    if (!PyUnicode_Check(value)) {
        made = c_ref(PyObject_CallFunctionObjArgs(package.write_time, value, nullptr));
        if (!made) return false;
    }
    const char* const text = PyUnicode_AsUTF8AndSize(made ? made.get() : value, nullptr);
    if (text == nullptr) return false;
    const lmx::s_facets* const facets = property.row->facets;
    const std::string narrow = text;
    if (!lmx::c_datetime::is_valid(narrow)) return demand(lmx::ELMX_VALUE_BAD_FORMAT, property, value);
    if (facets != nullptr && facets->pattern != nullptr && !facets->pattern().is_match(narrow)) {
        return demand(lmx::ELMX_NO_PATTERN_MATCHED, property, value);
    }
    *time = narrow;
    return true;
}

bool store(const s_property& property, s_object* owner, PyObject* value) {
    switch (property.row->value) {
        case value_kind::text: {
            std::u16string text;
            if (!PyUnicode_Check(value)) return refuse(value, property, "a str");
            return to_wide(value, &text) && set(property, owner, value, text);
        }
        case value_kind::enumerated:
            return store_enumerated(property, owner, value);
        case value_kind::boolean:
            return PyBool_Check(value) ? set(property, owner, value, value == Py_True)
                                       : refuse(value, property, "a bool");
        case value_kind::number: {
            const double number = PyFloat_AsDouble(value);
            if (number == -1.0 && PyErr_Occurred() != nullptr) return false;
            return set(property, owner, value, number);
        }
        case value_kind::int32:
            return store_integer<std::int32_t>(property, owner, value);
        case value_kind::uint32:
            return store_integer<std::uint32_t>(property, owner, value);
        case value_kind::uint8:
            return store_integer<std::uint8_t>(property, owner, value);
        case value_kind::datetime: {
            lmx::c_datetime time;
            return to_time(property, value, &time) && set(property, owner, value, time);
        }
        case value_kind::binary:
            return store_binary(property, owner, value);
        case value_kind::none:
            break;
    }
    return refuse(value, property, "nothing");
}

}  // namespace python
