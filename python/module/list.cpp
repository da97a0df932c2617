// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Lists: what a repeating item holds, as a mutable sequence. The package's own class adds what follows from the
/// rest.

#include <algorithm>

#include "lmx/binding/any_info.h"
#include "lmx/values/unicode.h"
#include "python/module/module.h"

namespace python {
namespace {

struct s_list {
    PyObject_HEAD s_object* owner;
    s_property* property;
};

PyTypeObject* the_list_type = nullptr;

s_list& as_list(PyObject* self) { return *reinterpret_cast<s_list*>(self); }

lmx::c_list_base& entries(const s_item& row, void* data) { return lmx::member<lmx::c_list_base>(data, row.offset); }

/// The alternative of a choice that takes objects of a class: the only one that does.
const s_item* alternative_for(const s_class& choice, const s_class& type) {
    const s_item* found = nullptr;
    for (const s_item& row : choice.elements) {
        if (row.kind != item_kind::alternative || row.type == nullptr || !derives(&type, *row.type)) continue;
        if (row.type == &type) return &row;
        if (found != nullptr) return nullptr;
        found = &row;
    }
    return found;
}

bool insert_object(const s_property& property, s_object* owner, std::size_t index, PyObject* value) {
    const s_item& row = *property.row;
    const s_item* alternative = nullptr;
    if (row.type->choice != lmx::k_no_flag && PyObject_TypeCheck(value, object_type())) {
        alternative = alternative_for(*row.type, *as_object(value)->type);
    }
    s_object* const source = expect(value, alternative != nullptr ? *alternative->type : *row.type,
                                    row.name.empty() ? row.type->name : row.name.data());
    if (source == nullptr) return false;
    const lmx::s_operations& operations = *row.type->operations;
    void* const data = data_of(owner);
    if (data == nullptr) return false;
    lmx::c_list_base& list = entries(row, data);
    void* const entry = list.emplace(index, operations.stored);
    try {
        if (alternative == nullptr) {
            operations.assign(entry, source->data);
        } else {
            lmx::adopt(*row.type, *alternative, entry, copy_of(source));
        }
    } catch (...) {
        list.remove(index, operations.stored);
        throw;
    }
    return true;
}

/// Puts a copy of a value before an entry that is there, or at the end.
bool insert(const s_property& property, s_object* owner, std::size_t index, PyObject* value) {
    const s_item& row = *property.row;
    if (row.type != nullptr) return insert_object(property, owner, index, value);
    if (row.value == value_kind::datetime && row.kind != item_kind::any) {
        lmx::c_datetime time;
        if (!to_time(property, value, &time)) return false;
        void* const data = data_of(owner);
        return data != nullptr && demand(lmx::insert_entry(row, data, index, time), property, value);
    }
    if (!PyUnicode_Check(value)) {
        PyErr_Format(PyExc_TypeError, "%U takes texts, not %R", property.name, Py_TYPE(value));
        return false;
    }
    std::u16string text;
    void* const data = to_wide(value, &text) ? data_of(owner) : nullptr;
    if (data == nullptr) return false;
    if (row.kind != item_kind::any) return demand(lmx::insert_entry(row, data, index, text), property, value);
    void* const entry = entries(row, data).emplace(index, stored(row));
    static_cast<lmx::c_any_info*>(entry)->set_value(lmx::convert_to_narrow(text));
    return true;
}

PyObject* entry(const s_property& property, s_object* owner, std::size_t index) {
    const s_item& row = *property.row;
    void* const place = entries(row, owner->data).entry(index);
    if (row.type != nullptr) return part(owner, place, *row.type);
    if (row.kind == item_kind::any) return from_narrow(static_cast<lmx::c_any_info*>(place)->get_value());
    return to_python(property, place);
}

/// The number of entries; -1 with an exception set if the owner is gone.
Py_ssize_t size_of(const s_list& list) {
    void* const data = data_of(list.owner);
    return data == nullptr ? -1 : static_cast<Py_ssize_t>(entries(*list.property->row, data).size());
}

// Slots

Py_ssize_t length(PyObject* self) { return size_of(as_list(self)); }

PyObject* no_entry(Py_ssize_t size) { return PyErr_Format(PyExc_IndexError, "the list has %zd entries", size); }

PyObject* get_entry(PyObject* self, Py_ssize_t index) {
    const s_list& list = as_list(self);
    const Py_ssize_t size = size_of(list);
    if (size < 0) return nullptr;
    if (index < 0 || index >= size) return no_entry(size);
    return guarded<PyObject*>(nullptr,
                              [&] { return entry(*list.property, list.owner, static_cast<std::size_t>(index)); });
}

/// An index from Python, counted from the end if it is negative; -1 with an exception set for none.
Py_ssize_t index_of(PyObject* key, Py_ssize_t size) {
    const Py_ssize_t index = PyNumber_AsSsize_t(key, PyExc_IndexError);
    if (index == -1 && PyErr_Occurred() != nullptr) return -1;
    const Py_ssize_t found = index < 0 ? index + size : index;
    if (found >= 0 && found < size) return found;
    no_entry(size);
    return -1;
}

struct s_slice {
    Py_ssize_t start, stop, step, count;
};

bool read_slice(PyObject* key, const s_list& list, s_slice* slice) {
    if (PySlice_Unpack(key, &slice->start, &slice->stop, &slice->step) != 0) return false;
    const Py_ssize_t size = size_of(list);
    if (size < 0) return false;
    slice->count = PySlice_AdjustIndices(size, &slice->start, &slice->stop, slice->step);
    return true;
}

PyObject* get_slice(PyObject* self, PyObject* key) {
    s_slice slice{};
    if (!read_slice(key, as_list(self), &slice)) return nullptr;
    return make_list(slice.count, [&](Py_ssize_t i) { return get_entry(self, slice.start + i * slice.step); });
}

PyObject* subscript(PyObject* self, PyObject* key) {
    if (PySlice_Check(key)) return get_slice(self, key);
    const Py_ssize_t size = size_of(as_list(self));
    if (size < 0) return nullptr;
    const Py_ssize_t index = index_of(key, size);
    return index < 0 ? nullptr : get_entry(self, index);
}

/// Puts copies of values before an entry; on failure none of them stays.
bool insert_all(const s_property& property, s_object* owner, std::size_t index, PyObject* values) {
    const Py_ssize_t count = PyList_Size(values);
    for (Py_ssize_t i = 0; i < count; ++i) {
        const std::size_t place = index + static_cast<std::size_t>(i);
        bool is_done = false;
        try {
            is_done = insert(property, owner, place, PyList_GetItem(values, i));
        } catch (...) {
            remove_entries(*property.row, owner->data, index, place);
            throw;
        }
        if (is_done) continue;
        remove_entries(*property.row, owner->data, index, place);
        return false;
    }
    return true;
}

/// Puts a copy of each value in the place of an entry; the entries have others between them.
bool assign_steps(const s_property& property, s_object* owner, const s_slice& slice, PyObject* values) {
    const Py_ssize_t given = values == nullptr ? 0 : PyList_Size(values);
    if (values != nullptr && given != slice.count) {
        PyErr_Format(PyExc_ValueError, "%zd values can't take the place of %zd entries", given, slice.count);
        return false;
    }
    // From the end on, so that the indexes before stay what they are.
    const auto number = [&](Py_ssize_t i) { return slice.step > 0 ? slice.count - 1 - i : i; };
    const auto index = [&](Py_ssize_t i) { return static_cast<std::size_t>(slice.start + number(i) * slice.step); };
    Py_ssize_t added = 0;
    while (added < given && insert(property, owner, index(added) + 1, PyList_GetItem(values, number(added)))) ++added;
    // Of each entry and the copy behind it one goes: the copy, if a value was refused.
    const bool is_refused = added < given;
    for (Py_ssize_t i = 0; i < (values != nullptr ? added : slice.count); ++i) {
        const Py_ssize_t copies_before = values != nullptr ? added - 1 - i : 0;
        const std::size_t place = index(i) + static_cast<std::size_t>(copies_before) + (is_refused ? 1 : 0);
        remove_entries(*property.row, owner->data, place, place + 1);
    }
    return !is_refused;
}

/// Puts copies of values, a list of Python or null for none, in the place of entries.
bool assign_slice(const s_property& property, s_object* owner, const s_slice& slice, PyObject* values) {
    if (slice.step != 1) return assign_steps(property, owner, slice, values);
    const auto start = static_cast<std::size_t>(slice.start);
    const auto end = start + static_cast<std::size_t>(slice.count);
    if (values != nullptr && !insert_all(property, owner, end, values)) return false;
    remove_entries(*property.row, owner->data, start, end);
    return true;
}

int assign(PyObject* self, PyObject* key, PyObject* value) {
    const s_list& list = as_list(self);
    if (PySlice_Check(key)) {
        const c_ref values(value == nullptr ? nullptr : PySequence_List(value));
        s_slice slice{};
        if ((value != nullptr && !values) || !read_slice(key, list, &slice)) return -1;
        return guarded(-1, [&] { return assign_slice(*list.property, list.owner, slice, values.get()) ? 0 : -1; });
    }
    const Py_ssize_t size = size_of(list);
    const Py_ssize_t index = size < 0 ? -1 : index_of(key, size);
    if (index < 0) return -1;
    return guarded(-1, [&] {
        const auto place = static_cast<std::size_t>(index);
        if (value != nullptr && !insert(*list.property, list.owner, place + 1, value)) return -1;
        remove_entries(*list.property->row, list.owner->data, place, place + 1);
        return 0;
    });
}

PyObject* insert_value(PyObject* self, PyObject* arguments) {
    const s_list& list = as_list(self);
    Py_ssize_t index = 0;
    PyObject* value = nullptr;
    if (!PyArg_ParseTuple(arguments, "nO:insert", &index, &value)) return nullptr;
    const Py_ssize_t size = size_of(list);
    if (size < 0) return nullptr;
    if (index < 0) index = index + size < 0 ? 0 : index + size;
    return guarded<PyObject*>(nullptr, [&]() -> PyObject* {
        const auto place = static_cast<std::size_t>(index > size ? size : index);
        if (!insert(*list.property, list.owner, place, value)) return nullptr;
        Py_RETURN_NONE;
    });
}

PyObject* add(PyObject* self, PyObject*) {
    const s_list& list = as_list(self);
    const Py_ssize_t size = size_of(list);
    if (size < 0) return nullptr;
    const s_item& row = *list.property->row;
    if (row.type == nullptr)
        return PyErr_Format(PyExc_TypeError, "%U holds no objects: append a value", list.property->name);
    return guarded<PyObject*>(nullptr, [&] {
        entries(row, list.owner->data).append(stored(row));
        return entry(*list.property, list.owner, static_cast<std::size_t>(size));
    });
}

PyObject* texts(PyObject* self, void*) {
    const s_list& list = as_list(self);
    const Py_ssize_t size = size_of(list);
    const s_item& row = *list.property->row;
    if (size < 0) return nullptr;
    if (row.value != value_kind::datetime)
        return PyErr_Format(PyExc_AttributeError, "%U has no times", list.property->name);
    return guarded<PyObject*>(nullptr, [&] {
        return make_list(size, [&](Py_ssize_t i) {
            const void* const time = entries(row, list.owner->data).entry(static_cast<std::size_t>(i));
            return from_narrow(static_cast<const lmx::c_datetime*>(time)->get_as_string());
        });
    });
}

void end(PyObject* self) {
    PyTypeObject* const type = Py_TYPE(self);
    Py_XDECREF(reinterpret_cast<PyObject*>(as_list(self).owner));
    Py_XDECREF(reinterpret_cast<PyObject*>(as_list(self).property));
    reinterpret_cast<freefunc>(PyType_GetSlot(type, Py_tp_free))(self);
    Py_DECREF(type);
}

PyMethodDef methods[] = {{"insert", insert_value, METH_VARARGS, "Puts a copy of a value before an entry."},
                         {"_add", add, METH_NOARGS, nullptr},
                         {nullptr, nullptr, 0, nullptr}};
PyGetSetDef getters[] = {{"_texts", texts, nullptr, nullptr, nullptr}, {nullptr, nullptr, nullptr, nullptr, nullptr}};
PyType_Slot slots[] = {{Py_tp_dealloc, reinterpret_cast<void*>(end)},
                       {Py_tp_methods, methods},
                       {Py_tp_getset, getters},
                       {Py_tp_iter, reinterpret_cast<void*>(PySeqIter_New)},
                       {Py_sq_length, reinterpret_cast<void*>(length)},
                       {Py_sq_item, reinterpret_cast<void*>(get_entry)},
                       {Py_mp_length, reinterpret_cast<void*>(length)},
                       {Py_mp_subscript, reinterpret_cast<void*>(subscript)},
                       {Py_mp_ass_subscript, reinterpret_cast<void*>(assign)},
                       {0, nullptr}};
PyType_Spec spec = {"vyr._vyr.List", sizeof(s_list), 0,
                    Py_TPFLAGS_DEFAULT | Py_TPFLAGS_BASETYPE | Py_TPFLAGS_DISALLOW_INSTANTIATION, slots};

}  // namespace

PyTypeObject* list_type() {
    if (the_list_type == nullptr) the_list_type = reinterpret_cast<PyTypeObject*>(PyType_FromSpec(&spec));
    return the_list_type;
}

const lmx::s_stored_type& stored(const s_item& row) {
    if (row.type != nullptr) return row.type->operations->stored;
    if (row.kind == item_kind::any) return lmx::k_stored_type<lmx::c_any_info>;
    return row.value == value_kind::datetime ? lmx::k_stored_type<lmx::c_datetime>
                                             : lmx::k_stored_type<std::u16string>;
}

PyObject* list_of(s_object* owner, s_property* property) {
    const bool is_of_times = property->row->value == value_kind::datetime && property->row->type == nullptr;
    // A choice's list has a class of its own, which the property names.
    PyObject* const type = property->kind != Py_None ? property->kind
                           : is_of_times             ? package.time_list
                                                     : package.list;
    PyObject* const made = PyType_GenericAlloc(reinterpret_cast<PyTypeObject*>(type), 0);
    if (made == nullptr) return nullptr;
    as_list(made).owner = as_object(Py_NewRef(reinterpret_cast<PyObject*>(owner)));
    as_list(made).property = as_property(Py_NewRef(reinterpret_cast<PyObject*>(property)));
    return made;
}

bool replace_entries(s_object* owner, s_property* property, PyObject* values) {
    const c_ref given(values == nullptr ? nullptr : PySequence_List(values));
    void* const data = values != nullptr && !given ? nullptr : data_of(owner);
    if (data == nullptr) return false;
    const auto size = static_cast<Py_ssize_t>(entries(*property->row, data).size());
    return assign_slice(*property, owner, {0, 0, 1, size}, given.get());
}

void remove_entries(const s_item& row, void* data, std::size_t first, std::size_t last) {
    if (data == nullptr) return;
    lmx::c_list_base& list = entries(row, data);
    for (last = std::min(last, list.size()); last > first;) {
        --last;
        if (row.type != nullptr) forget(list.entry(last), *row.type);
        list.remove(last, stored(row));
    }
}

PyObject* held(PyObject*, PyObject* arguments) {
    PyObject* objects = nullptr;
    PyObject* list = nullptr;
    PyObject* wanted = nullptr;
    if (!PyArg_ParseTuple(arguments, "O!O!O!", &PyList_Type, &objects, property_type(), &list, property_type(),
                          &wanted)) {
        return nullptr;
    }
    const s_property& choices = *as_property(list);
    const s_property& alternative = *as_property(wanted);
    if (choices.row == nullptr || choices.row->kind != item_kind::group_list ||
        choices.row->type != alternative.owner || alternative.row->type == nullptr) {
        return PyErr_Format(PyExc_TypeError, "this is no list of such choices");
    }
    return guarded<PyObject*>(nullptr, [&]() -> PyObject* {
        const c_ref numbers(PyList_New(0));
        const c_ref found(PyList_New(0));
        for (Py_ssize_t i = 0; numbers && found && i < PyList_Size(objects); ++i) {
            s_object* const owner = expect(PyList_GetItem(objects, i), *choices.owner, "held");
            if (owner == nullptr) return nullptr;
            const s_class& type = *choices.row->type;
            for (std::size_t k = 0; k < entries(*choices.row, owner->data).size(); ++k) {
                void* const place = entries(*choices.row, owner->data).entry(k);
                if (!is_chosen(type, *alternative.row, place)) continue;
                const c_ref number(PyLong_FromSsize_t(i));
                const c_ref choice(part(owner, place, type));
                const c_ref value(choice ? PyObject_GetAttr(choice.get(), alternative.name) : nullptr);
                if (!number || !value || PyList_Append(numbers.get(), number.get()) != 0 ||
                    PyList_Append(found.get(), value.get()) != 0) {
                    return nullptr;
                }
            }
        }
        return numbers && found ? Py_BuildValue("(OO)", numbers.get(), found.get()) : nullptr;
    });
}

PyObject* first_chosen(PyObject*, PyObject* arguments) {
    PyObject* self = nullptr;
    PyObject* wanted = nullptr;
    if (!PyArg_ParseTuple(arguments, "O!O!", list_type(), &self, property_type(), &wanted)) return nullptr;
    const s_list& list = as_list(self);
    const s_item& row = *list.property->row;
    const s_property& alternative = *as_property(wanted);
    const Py_ssize_t size = size_of(list);
    if (size < 0) return nullptr;
    if (row.type != alternative.owner) return PyErr_Format(PyExc_TypeError, "the list has no such entries");
    for (Py_ssize_t i = 0; i < size; ++i) {
        const void* const place = entries(row, list.owner->data).entry(static_cast<std::size_t>(i));
        if (!is_chosen(*row.type, *alternative.row, place)) continue;
        const c_ref holder(get_entry(self, i));
        return holder ? PyObject_GetAttr(holder.get(), alternative.name) : nullptr;
    }
    Py_RETURN_NONE;
}

}  // namespace python
