// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Numbers of many objects at once, as the bytes of arrays of doubles.

#include <cstring>
#include <limits>

#include "python/module/module.h"

namespace python {
namespace {

PyObject* bytes_of(const std::vector<double>& numbers) {
    return PyBytes_FromStringAndSize(reinterpret_cast<const char*>(numbers.data()),
                                     static_cast<Py_ssize_t>(numbers.size() * sizeof(double)));
}

bool holds_number(const s_item& row) {
    return row.value == value_kind::number && !lmx::is_repeating(row) && row.kind != item_kind::alternative;
}

/// The properties of a tuple that are numbers of a class.
bool read_properties(PyObject* tuple, std::vector<const s_property*>* found) {
    for (Py_ssize_t i = 0; i < PyTuple_Size(tuple); ++i) {
        PyObject* const value = PyTuple_GetItem(tuple, i);
        if (!PyObject_TypeCheck(value, property_type()) || as_property(value)->row == nullptr ||
            !holds_number(*as_property(value)->row)) {
            PyErr_SetString(PyExc_TypeError, "these are not the properties of numbers");
            return false;
        }
        found->push_back(as_property(value));
    }
    return true;
}

/// What a list of points and the names of their columns say.
struct s_columns {
    const s_property* list = nullptr;
    std::vector<const s_item*> rows;
};

bool read_columns(PyObject* list, PyObject* names, s_columns* columns) {
    columns->list = as_property(list);
    const s_item* const row = columns->list->row;
    const bool is_list = row != nullptr && row->kind == item_kind::child_list;
    for (Py_ssize_t i = 0; is_list && i < PyTuple_Size(names); ++i) {
        const char* const name = PyUnicode_AsUTF8AndSize(PyTuple_GetItem(names, i), nullptr);
        if (name == nullptr) return false;
        const s_item* const column = find_row(*row->type, name);
        if (column == nullptr || !holds_number(*column)) break;
        columns->rows.push_back(column);
    }
    if (is_list && static_cast<Py_ssize_t>(columns->rows.size()) == PyTuple_Size(names)) return true;
    PyErr_SetString(PyExc_TypeError, "these are not the columns of a list");
    return false;
}

double number_of(const s_item& row, const void* object) {
    // What isn't there is no number.
    if (row.flag != lmx::k_no_flag && !lmx::is_set(row, object)) return std::numeric_limits<double>::quiet_NaN();
    return lmx::member<double>(object, row.offset);
}

/// A borrowed view of contiguous doubles.
class c_doubles {
public:
    c_doubles() = default;
    c_doubles(const c_doubles&) = delete;
    c_doubles& operator=(const c_doubles&) = delete;
    ~c_doubles() {
        if (m_is_held) PyBuffer_Release(&m_view);
    }

    bool take(PyObject* value) {
        m_is_held = PyObject_GetBuffer(value, &m_view, PyBUF_FORMAT | PyBUF_C_CONTIGUOUS) == 0;
        if (!m_is_held) return false;
        const bool is_fit = m_view.ndim == 1 && m_view.format != nullptr && std::strcmp(m_view.format, "d") == 0;
        if (!is_fit) PyErr_SetString(PyExc_TypeError, "this is no row of doubles");
        return is_fit;
    }
    std::size_t size() const { return static_cast<std::size_t>(m_view.len) / sizeof(double); }
    double operator[](std::size_t index) const { return static_cast<const double*>(m_view.buf)[index]; }

private:
    Py_buffer m_view{};
    bool m_is_held = false;
};

}  // namespace

PyObject* gather(PyObject*, PyObject* arguments) {
    PyObject* objects = nullptr;
    PyObject* properties = nullptr;
    if (!PyArg_ParseTuple(arguments, "O!O!", &PyList_Type, &objects, &PyTuple_Type, &properties)) return nullptr;
    return guarded<PyObject*>(nullptr, [&]() -> PyObject* {
        std::vector<const s_property*> columns;
        if (!read_properties(properties, &columns)) return nullptr;
        std::vector<double> numbers;
        numbers.reserve(columns.size() * static_cast<std::size_t>(PyList_Size(objects)));
        for (Py_ssize_t i = 0; i < PyList_Size(objects); ++i) {
            for (const s_property* const column : columns) {
                s_object* const object = expect(PyList_GetItem(objects, i), *column->owner, "gather");
                if (object == nullptr) return nullptr;
                numbers.push_back(number_of(*column->row, object->data));
            }
        }
        return bytes_of(numbers);
    });
}

PyObject* gather_points(PyObject*, PyObject* arguments) {
    PyObject* objects = nullptr;
    PyObject* list = nullptr;
    PyObject* names = nullptr;
    if (!PyArg_ParseTuple(arguments, "O!O!O!", &PyList_Type, &objects, property_type(), &list, &PyTuple_Type,
                          &names)) {
        return nullptr;
    }
    return guarded<PyObject*>(nullptr, [&]() -> PyObject* {
        s_columns columns;
        if (!read_columns(list, names, &columns)) return nullptr;
        std::vector<std::vector<double>> numbers(columns.rows.size());
        c_ref counts(PyList_New(PyList_Size(objects)));
        for (Py_ssize_t i = 0; counts && i < PyList_Size(objects); ++i) {
            s_object* const object = expect(PyList_GetItem(objects, i), *columns.list->owner, "gather_points");
            if (object == nullptr) return nullptr;
            const lmx::c_list_base& entries = lmx::list_of(*columns.list->row, object->data);
            const std::size_t count = entries.size();
            for (std::size_t k = 0; k < count; ++k) {
                const void* const entry = entries.entry(k);
                for (std::size_t c = 0; c < columns.rows.size(); ++c) {
                    numbers[c].push_back(lmx::member<double>(entry, columns.rows[c]->offset));
                }
            }
            PyList_SetItem(counts.get(), i, PyLong_FromSize_t(count));
        }
        c_ref result(counts ? PyTuple_New(static_cast<Py_ssize_t>(numbers.size()) + 1) : nullptr);
        if (!result) return nullptr;
        PyTuple_SetItem(result.get(), 0, counts.release());
        for (std::size_t c = 0; c < numbers.size(); ++c) {
            PyTuple_SetItem(result.get(), static_cast<Py_ssize_t>(c) + 1, bytes_of(numbers[c]));
        }
        return PyErr_Occurred() != nullptr ? nullptr : result.release();
    });
}

PyObject* set_points(PyObject*, PyObject* arguments) {
    PyObject* self = nullptr;
    PyObject* list = nullptr;
    PyObject* names = nullptr;
    PyObject* arrays = nullptr;
    if (!PyArg_ParseTuple(arguments, "O!O!O!O!", object_type(), &self, property_type(), &list, &PyTuple_Type, &names,
                          &PyTuple_Type, &arrays)) {
        return nullptr;
    }
    return guarded<PyObject*>(nullptr, [&]() -> PyObject* {
        s_columns columns;
        if (!read_columns(list, names, &columns)) return nullptr;
        if (PyTuple_Size(arrays) != PyTuple_Size(names)) {
            return PyErr_Format(PyExc_TypeError, "%zd columns are set at once, not %zd", PyTuple_Size(names),
                                PyTuple_Size(arrays));
        }
        s_object* const object = expect(self, *columns.list->owner, "set_points");
        if (object == nullptr) return nullptr;
        std::vector<c_doubles> given(columns.rows.size());
        for (std::size_t c = 0; c < given.size(); ++c) {
            PyObject* const array = PyTuple_GetItem(arrays, static_cast<Py_ssize_t>(c));
            if (!given[c].take(array)) return nullptr;
            if (given[c].size() != given[0].size()) {
                return PyErr_Format(PyExc_ValueError, "the columns have different lengths");
            }
        }
        const s_item& row = *columns.list->row;
        const std::size_t before = lmx::list_of(row, object->data).size();
        const std::size_t count = given.empty() ? 0 : given[0].size();
        auto& entries = lmx::member<lmx::c_list_base>(object->data, row.offset);
        for (std::size_t i = 0; i < count; ++i) {
            void* const entry = entries.append(stored(row));
            for (std::size_t c = 0; c < columns.rows.size(); ++c) {
                const lmx::elmx_error code = lmx::set_item(*row.type, *columns.rows[c], entry, given[c][i]);
                if (code == lmx::ELMX_OK) continue;
                // What was there stays.
                remove_entries(row, object->data, before, entries.size());
                const c_ref value(PyFloat_FromDouble(given[c][i]));
                if (value) demand(code, *columns.list, value.get());
                return nullptr;
            }
        }
        remove_entries(row, object->data, 0, before);
        Py_RETURN_NONE;
    });
}

}  // namespace python
