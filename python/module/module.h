// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// What the sources of the extension module share. The module knows no class of the format: it walks the rows that
/// the library keeps of every class, so that one type of handle, one of descriptor and one of list serve them all. It
/// uses the stable part of Python's interface only, and so fits every Python from 3.11 on.

#pragma once

#define PY_SSIZE_T_CLEAN
#define Py_LIMITED_API 0x030B0000
#include <Python.h>

#include <cstdint>
#include <exception>
#include <new>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "lmx/binding/document.h"
#include "lmx/binding/object.h"
#include "lmx/binding/storage.h"
#include "lmx/error.h"

namespace python {

using lmx::item_kind;
using lmx::s_class;
using lmx::s_item;
using lmx::value_kind;

/// Owns a reference.
class c_ref {
public:
    c_ref() = default;
    explicit c_ref(PyObject* owned) : m_object(owned) {}
    c_ref(c_ref&& other) noexcept : m_object(std::exchange(other.m_object, nullptr)) {}
    c_ref(const c_ref&) = delete;
    c_ref& operator=(c_ref other) noexcept {
        std::swap(m_object, other.m_object);
        return *this;
    }
    ~c_ref() { Py_XDECREF(m_object); }

    PyObject* get() const { return m_object; }
    PyObject* release() { return std::exchange(m_object, nullptr); }
    explicit operator bool() const { return m_object != nullptr; }

private:
    PyObject* m_object = nullptr;
};

/// A list of Python with what a function gives for each index; null with an exception set if it gives null.
template <class Make>
PyObject* make_list(Py_ssize_t count, Make&& make) {
    c_ref list(PyList_New(count));
    for (Py_ssize_t i = 0; list && i < count; ++i) {
        PyObject* const value = make(i);
        if (value == nullptr) return nullptr;
        PyList_SetItem(list.get(), i, value);
    }
    return list.release();
}

/// Runs what may throw; a C++ exception becomes one of Python's, and the result `failed`.
template <class Result, class Action>
Result guarded(Result failed, Action&& action) {
    try {
        return action();
    } catch (const std::bad_alloc&) {
        PyErr_NoMemory();
    } catch (const std::exception& exception) {
        PyErr_SetString(PyExc_RuntimeError, exception.what());
    }
    return failed;
}

/// Runs without the interpreter's lock.
template <class Action>
void unlocked(Action&& action) {
    PyThreadState* const state = PyEval_SaveThread();
    try {
        action();
    } catch (...) {
        PyEval_RestoreThread(state);
        throw;
    }
    PyEval_RestoreThread(state);
}

/// What the package hands to the module when it is imported; never freed.
struct s_package {
    PyObject* value_error;    ///< FormatError(code, text)
    PyObject* removed_error;  ///< for what is used after it was removed
    PyObject* list;           ///< the types of lists: the usual one, and that of times
    PyObject* time_list;
    PyObject* read_time;   ///< text -> datetime
    PyObject* write_time;  ///< datetime -> text
};
extern s_package package;

// Handles

/// A handle on an object of the library. A part has one handle at most, which keeps that of its owner; the handle of
/// a root owns the object. A part that is removed leaves its handle without an object, and those of its own parts
/// too.
struct s_object {
    PyObject_HEAD void* data;  ///< null once the object is gone
    const s_class* type;
    s_object* owner;  ///< null for a root
    s_object* root;
    s_object* first_part;  ///< the live handles of its parts
    s_object* next;
    s_object* previous;
    const lmx::s_operations* operations;  ///< of a root: what ends it
    bool is_busy;                         ///< of a root: a save runs without the lock
};

PyTypeObject* object_type();
inline s_object* as_object(PyObject* value) { return reinterpret_cast<s_object*>(value); }
/// The handle on a part; made if there is none.
PyObject* part(s_object* owner, void* data, const s_class& type);
/// A new object of its own, of a Python class.
s_object* new_root(PyTypeObject* type);
/// The object behind a handle; null with an exception set if it is gone or being saved.
void* data_of(s_object* object);
/// The handle and its object if a value is one of the class or of one derived from it; null with an exception set.
s_object* expect(PyObject* value, const s_class& type, const char* what);
/// Takes the object from the handle of a part, if there is one, and from those below.
void forget(const void* data, const s_class& type);
void forget_parts(s_object* object);
bool derives(const s_class* type, const s_class& base);
/// What an alternative holds can be of a derived class.
const s_class& class_of(const s_item& row, const void* object);
/// A copy of an object, of exactly the class that the handle says; the caller's.
void* copy_of(const s_object* source);
const lmx::s_named_class* named_class(PyTypeObject* type);
/// A class by its name in the format; null if there is none.
const lmx::s_named_class* find_class(std::string_view name);
/// Whether a choice holds an alternative.
bool is_chosen(const s_class& choice, const s_item& alternative, const void* data);

// Descriptors

/// A property: an item of a class.
struct s_property {
    PyObject_HEAD const s_class* owner;
    const s_item* row;
    PyObject* schema_name;
    PyObject* name;  ///< in Python
    PyObject* doc;
    PyObject* kind;     ///< an enumeration, a class of lists, `str` for the text of a time, or None
    PyObject* members;  ///< of an enumeration, in order
};

PyTypeObject* property_type();
s_property* as_property(PyObject* value);
/// The row of an item by the name that stands behind `get_` in C++.
const s_item* find_row(const s_class& type, std::string_view name);

// Values

PyObject* to_python(const s_property& property, const void* storage);
PyObject* from_wide(const std::u16string& text);
bool to_wide(PyObject* value, std::u16string* text);
PyObject* from_narrow(const std::string& text);
/// Stores a simple value after its checks; false with an exception set.
bool store(const s_property& property, s_object* owner, PyObject* value);
/// A time for an item, after the checks of a load.
bool to_time(const s_property& property, PyObject* value, lmx::c_datetime* time);
/// True for success; otherwise sets the exception.
bool demand(lmx::elmx_error code, const s_property& property, PyObject* value);

// Lists

PyTypeObject* list_type();
PyObject* list_of(s_object* owner, s_property* property);
/// Replaces all entries; on failure those that were there stay.
bool replace_entries(s_object* owner, s_property* property, PyObject* values);
/// How entries of a list are made and ended.
const lmx::s_stored_type& stored(const s_item& row);
/// Removes the entries from `first` up to `last`, with their handles.
void remove_entries(const s_item& row, void* data, std::size_t first, std::size_t last);

// Functions of the module

PyObject* chosen(PyObject* module, PyObject* object);
PyObject* held(PyObject* module, PyObject* arguments);
PyObject* first_chosen(PyObject* module, PyObject* arguments);
PyObject* load_file(PyObject* module, PyObject* arguments);
PyObject* load_memory(PyObject* module, PyObject* arguments);
PyObject* save_file(PyObject* module, PyObject* arguments);
PyObject* save_text(PyObject* module, PyObject* arguments);
PyObject* gather(PyObject* module, PyObject* arguments);
PyObject* gather_points(PyObject* module, PyObject* arguments);
PyObject* set_points(PyObject* module, PyObject* arguments);

}  // namespace python
