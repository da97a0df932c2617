// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Descriptors: what reading, setting and deleting a property does to an item of the object.

#include <memory>

#include "python/module/module.h"

namespace python {
namespace {

PyTypeObject* the_property_type = nullptr;

/// Whether a value can be taken away: what is copied without a look at its flag is always there.
bool is_optional(const s_item& row) {
    return (row.use & (lmx::use_demanded | lmx::use_copied)) == 0 && row.flag != lmx::k_no_flag;
}

PyObject* get_alternative(const s_property& property, s_object* object, void* data) {
    const s_item& row = *property.row;
    if (!is_chosen(*property.owner, row, data)) Py_RETURN_NONE;
    // It is chosen already: this only tells where the value lies.
    if (row.type == nullptr) return to_python(property, lmx::choose(*property.owner, row, data));
    void* const alternative = lmx::choice_of(*property.owner, data).object;
    if (alternative == nullptr) Py_RETURN_NONE;
    return part(object, alternative, class_of(row, alternative));
}

PyObject* get(s_property& property, s_object* object) {
    void* const data = data_of(object);
    if (data == nullptr) return nullptr;
    const s_item& row = *property.row;
    switch (row.kind) {
        case item_kind::element_list:
        case item_kind::child_list:
        case item_kind::group_list:
        case item_kind::any:
            return list_of(object, &property);
        case item_kind::alternative:
            return get_alternative(property, object, data);
        case item_kind::child:
        case item_kind::optional_child:
        case item_kind::group:
            if (!lmx::is_set(row, data)) Py_RETURN_NONE;
            return part(object, lmx::touch_child(row, data), *row.type);
        case item_kind::marker:
            Py_RETURN_NONE;
        case item_kind::attribute:
        case item_kind::element:
        case item_kind::content:
            break;
    }
    if (is_optional(row) && !lmx::is_set(row, data)) Py_RETURN_NONE;
    return to_python(property, &lmx::member<std::byte>(data, row.offset));
}

/// Ends what an item of the object holds, and the handles on it. What a child held doesn't come back with it.
void empty_child(const s_item& row, void* data) {
    if (lmx::child_of(row, data) == nullptr) return;
    void* const child = lmx::touch_child(row, data);
    void* const fresh = row.type->operations->create();
    forget(child, *row.type);
    lmx::exchange(*row.type, child, fresh);
    row.type->operations->destroy(fresh);
}

/// The object that a choice holds, and its class; null for none.
std::pair<const void*, const s_class*> held(const s_class& owner, void* data) {
    const lmx::s_choice& choice = lmx::choice_of(owner, data);
    const s_item* const row = lmx::chosen_row(owner, choice);
    if (row == nullptr || row->type == nullptr || choice.object == nullptr) return {};
    return {choice.object, &class_of(*row, choice.object)};
}

void forget_alternative(const s_class& owner, void* data) {
    if (const auto [object, type] = held(owner, data); object != nullptr) forget(object, *type);
}

/// A copy of an object of an alternative, which can be of a derived class.
bool assign_alternative(const s_property& property, void* data, PyObject* value) {
    const s_item& row = *property.row;
    s_object* const source = expect(value, *row.type, row.name.data());
    if (source == nullptr) return false;
    void* const copy = copy_of(source);
    forget_alternative(*property.owner, data);
    lmx::release_choice(*property.owner, data);
    lmx::adopt(*property.owner, row, data, copy);
    return true;
}

bool assign_child(const s_property& property, void* data, PyObject* value) {
    const s_item& row = *property.row;
    s_object* const source = expect(value, *row.type, row.name.data());
    if (source == nullptr) return false;
    if (source->type != row.type) {
        PyErr_Format(PyExc_TypeError, "%U takes a %s only, not the %s derived from it", property.name, row.type->name,
                     source->type->name);
        return false;
    }
    void* const target = lmx::touch_child(row, data);
    if (source->data == target) return true;
    // The copy comes first: the value may be a part of what it replaces.
    const lmx::s_operations& operations = *row.type->operations;
    const std::unique_ptr<void, void (*)(void*)> copy(copy_of(source), operations.destroy);
    forget(target, *row.type);
    lmx::exchange(*row.type, target, copy.get());
    lmx::mark_set(row, data);
    return true;
}

bool unset(const s_property& property, void* data) {
    const s_item& row = *property.row;
    if (row.kind == item_kind::alternative || !is_optional(row)) {
        PyErr_Format(PyExc_TypeError, "%U can't be None", property.name);
        return false;
    }
    if (row.type != nullptr) empty_child(row, data);
    lmx::member<bool>(data, row.flag) = false;
    return true;
}

bool assign(s_property& property, s_object* object, PyObject* value) {
    void* const data = data_of(object);
    if (data == nullptr) return false;
    const s_item& row = *property.row;
    if (lmx::is_repeating(row)) return replace_entries(object, &property, value);
    if (value == Py_None || value == nullptr) return unset(property, data);
    if (row.kind == item_kind::alternative) {
        if (row.type != nullptr) return assign_alternative(property, data, value);
        // A value that is refused leaves what was chosen.
        const auto [object_before, type] = held(*property.owner, data);
        if (!store(property, object, value)) return false;
        if (object_before != nullptr) forget(object_before, *type);
        return true;
    }
    if (row.type != nullptr) return assign_child(property, data, value);
    if (!store(property, object, value)) return false;
    // The nil state can lie in a class derived from that of the content.
    if (row.kind == item_kind::content && object->type->nil_flag != lmx::k_no_flag) {
        lmx::member<bool>(data, object->type->nil_flag) = false;
    }
    return true;
}

s_object* owner_of(const s_property& property, PyObject* object) {
    if (property.row == nullptr) {
        PyErr_SetString(PyExc_TypeError, "the property belongs to no class");
        return nullptr;
    }
    s_object* const owner = as_object(object);
    const bool is_fit = PyObject_TypeCheck(object, object_type()) && derives(owner->type, *property.owner);
    if (is_fit) return owner;
    PyErr_Format(PyExc_TypeError, "%U is a property of %s, not of %R", property.name, property.owner->name,
                 Py_TYPE(object));
    return nullptr;
}

// Slots

PyObject* descriptor_get(PyObject* self, PyObject* object, PyObject*) {
    if (object == nullptr || object == Py_None) return Py_NewRef(self);
    s_property* const property = as_property(self);
    s_object* const owner = owner_of(*property, object);
    if (owner == nullptr) return nullptr;
    return guarded<PyObject*>(nullptr, [&] { return get(*property, owner); });
}

int descriptor_set(PyObject* self, PyObject* object, PyObject* value) {
    s_property* const property = as_property(self);
    s_object* const owner = owner_of(*property, object);
    if (owner == nullptr) return -1;
    return guarded(-1, [&] { return assign(*property, owner, value) ? 0 : -1; });
}

/// The child, which is made if it isn't there; the alternative, which is chosen if it isn't.
PyObject* create(PyObject* self, PyObject* object) {
    s_property& property = *as_property(self);
    s_object* const owner = owner_of(property, object);
    void* const data = owner == nullptr ? nullptr : data_of(owner);
    if (data == nullptr) return nullptr;
    const s_item& row = *property.row;
    if (row.type == nullptr || lmx::is_repeating(row) || row.kind == item_kind::marker) {
        return PyErr_Format(PyExc_TypeError, "%U is no object", property.name);
    }
    return guarded<PyObject*>(nullptr, [&] {
        if (row.kind == item_kind::alternative) {
            if (!is_chosen(*property.owner, row, data)) forget_alternative(*property.owner, data);
            lmx::choose(*property.owner, row, data);
        } else {
            lmx::touch_child(row, data);
            lmx::mark_set(row, data);
        }
        return get(property, owner);
    });
}

PyObject* set_name(PyObject* self, PyObject* arguments) {
    s_property* const property = as_property(self);
    PyObject* type = nullptr;
    PyObject* name = nullptr;
    if (!PyArg_ParseTuple(arguments, "OU", &type, &name)) return nullptr;
    const c_ref class_name(PyObject_GetAttrString(type, "schema_name"));
    if (!class_name) return nullptr;
    return guarded<PyObject*>(nullptr, [&]() -> PyObject* {
        const char* const wanted = PyUnicode_AsUTF8AndSize(class_name.get(), nullptr);
        const char* const item = PyUnicode_AsUTF8AndSize(property->schema_name, nullptr);
        if (wanted == nullptr || item == nullptr) return nullptr;
        const lmx::s_named_class* const known = find_class(wanted);
        property->owner = known == nullptr ? nullptr : known->type;
        property->row = known == nullptr ? nullptr : find_row(*known->type, item);
        if (property->row == nullptr) {
            return PyErr_Format(PyExc_ValueError, "the format has no item %s.%s", wanted, item);
        }
        Py_XDECREF(std::exchange(property->name, Py_NewRef(name)));
        Py_RETURN_NONE;
    });
}

PyObject* make(PyTypeObject* type, PyObject* arguments, PyObject*) {
    PyObject* schema_name = nullptr;
    PyObject* doc = nullptr;
    PyObject* kind = Py_None;
    if (!PyArg_ParseTuple(arguments, "UU|O:Property", &schema_name, &doc, &kind)) return nullptr;
    const bool is_list =
        PyType_Check(kind) && PyType_IsSubtype(reinterpret_cast<PyTypeObject*>(kind), list_type()) != 0;
    const bool is_enumeration = kind != Py_None && kind != reinterpret_cast<PyObject*>(&PyUnicode_Type) && !is_list;
    c_ref members(is_enumeration ? PySequence_Tuple(kind) : nullptr);
    if (is_enumeration && !members) return nullptr;
    c_ref made(PyType_GenericAlloc(type, 0));
    if (!made) return nullptr;
    s_property* const property = as_property(made.get());
    property->schema_name = Py_NewRef(schema_name);
    property->doc = Py_NewRef(doc);
    property->kind = Py_NewRef(kind);
    property->members = members.release();
    return made.release();
}

void end(PyObject* self) {
    s_property* const property = as_property(self);
    PyTypeObject* const type = Py_TYPE(self);
    for (PyObject* const kept :
         {property->schema_name, property->doc, property->kind, property->members, property->name}) {
        Py_XDECREF(kept);
    }
    reinterpret_cast<freefunc>(PyType_GetSlot(type, Py_tp_free))(self);
    Py_DECREF(type);
}

template <PyObject* s_property::*Field>
PyObject* field(PyObject* self, void*) {
    PyObject* const value = as_property(self)->*Field;
    return Py_NewRef(value != nullptr ? value : Py_None);
}

/// A word for what the item is: "list", "object", "alternative", "value".
PyObject* shape(PyObject* self, void*) {
    const s_item* const row = as_property(self)->row;
    const bool is_list = row != nullptr && lmx::is_repeating(*row);
    const bool is_alternative = row != nullptr && row->kind == item_kind::alternative;
    const bool is_object = row != nullptr && row->type != nullptr;
    return PyUnicode_FromString(is_list ? "list" : is_alternative ? "alternative" : is_object ? "object" : "value");
}

PyObject* optional(PyObject* self, void*) {
    const s_item* const row = as_property(self)->row;
    return PyBool_FromLong(row != nullptr && is_optional(*row));
}

PyMethodDef methods[] = {{"__set_name__", set_name, METH_VARARGS, nullptr},
                         {"create", create, METH_O, "The object of an item, which is made or chosen if need be."},
                         {nullptr, nullptr, 0, nullptr}};
PyGetSetDef getters[] = {{"schema_name", field<&s_property::schema_name>, nullptr, nullptr, nullptr},
                         {"__name__", field<&s_property::name>, nullptr, nullptr, nullptr},
                         {"__doc__", field<&s_property::doc>, nullptr, nullptr, nullptr},
                         {"kind", field<&s_property::kind>, nullptr, nullptr, nullptr},
                         {"shape", shape, nullptr, nullptr, nullptr},
                         {"is_optional", optional, nullptr, nullptr, nullptr},
                         {nullptr, nullptr, nullptr, nullptr, nullptr}};
PyType_Slot slots[] = {{Py_tp_new, reinterpret_cast<void*>(make)},
                       {Py_tp_dealloc, reinterpret_cast<void*>(end)},
                       {Py_tp_descr_get, reinterpret_cast<void*>(descriptor_get)},
                       {Py_tp_descr_set, reinterpret_cast<void*>(descriptor_set)},
                       {Py_tp_methods, methods},
                       {Py_tp_getset, getters},
                       {0, nullptr}};
PyType_Spec spec = {"vyr._vyr.Property", sizeof(s_property), 0, Py_TPFLAGS_DEFAULT, slots};

}  // namespace

PyTypeObject* property_type() {
    if (the_property_type == nullptr) the_property_type = reinterpret_cast<PyTypeObject*>(PyType_FromSpec(&spec));
    return the_property_type;
}

s_property* as_property(PyObject* value) { return reinterpret_cast<s_property*>(value); }

const s_item* find_row(const s_class& type, std::string_view name) {
    constexpr std::string_view k_prefix = "Vyr:";
    for (const auto& rows : {type.attributes, type.elements}) {
        for (const s_item& row : rows) {
            std::string_view known = row.name;
            if (known.starts_with(k_prefix)) known.remove_prefix(k_prefix.size());
            if (row.kind == item_kind::any) known = "any";
            if (row.kind == item_kind::content) known = type.name;
            if (known.empty() && row.type != nullptr) known = row.type->name;
            if (known == name) return &row;
        }
    }
    return nullptr;
}

PyObject* chosen(PyObject*, PyObject* object) {
    if (!PyObject_TypeCheck(object, object_type())) {
        return PyErr_Format(PyExc_TypeError, "this is no object of a document");
    }
    s_object* const choice = as_object(object);
    const void* const data = data_of(choice);
    if (data == nullptr) return nullptr;
    const s_class* owner = choice->type;
    while (owner != nullptr && owner->choice == lmx::k_no_flag) owner = owner->base;
    const s_item* const row = owner == nullptr ? nullptr : lmx::chosen_row(*owner, lmx::choice_of(*owner, data));
    return PyLong_FromSsize_t(row == nullptr ? -1 : row - owner->elements.data());
}

}  // namespace python
