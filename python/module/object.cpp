// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Handles: which Python class an object has, which handle a part, and what is left of the handles of what is
/// removed.

#include <functional>
#include <unordered_map>

#include "python/module/module.h"
#include "schema/generated/class_list.h"

namespace python {
namespace {

/// A part begins where its first member does, so that only the class tells the two apart.
struct s_place {
    const void* data;
    const s_class* type;
    bool operator==(const s_place&) const = default;
};
struct s_place_hash {
    std::size_t operator()(const s_place& place) const {
        return std::hash<const void*>()(place.data) ^ (std::hash<const void*>()(place.type) << 1);
    }
};

// Guarded by the interpreter's lock, like all that follows.
std::unordered_map<s_place, s_object*, s_place_hash>& live_parts() {
    static auto& parts = *new std::unordered_map<s_place, s_object*, s_place_hash>();
    return parts;
}

struct s_classes {
    std::unordered_map<PyTypeObject*, const lmx::s_named_class*> named;
    std::unordered_map<const s_class*, PyTypeObject*> types;  ///< those that add nothing to another left out
};
s_classes& classes() {
    static auto& known = *new s_classes();
    return known;
}

PyTypeObject* the_object_type = nullptr;

PyObject* as_python(s_object* object) { return reinterpret_cast<PyObject*>(object); }

s_object* allocate(PyTypeObject* type) { return as_object(PyType_GenericAlloc(type, 0)); }

/// Takes a handle and those below it from the objects; they may end at any time after.
void detach(s_object* object) {
    if (object->owner != nullptr) {
        live_parts().erase({object->data, object->type});
        s_object*& before = object->previous != nullptr ? object->previous->next : object->owner->first_part;
        before = object->next;
        if (object->next != nullptr) object->next->previous = object->previous;
        object->next = object->previous = nullptr;
    }
    object->data = nullptr;
}

void forget_object(s_object* object) {
    forget_parts(object);
    detach(object);
}

// Slots

PyObject* make(PyTypeObject* type, PyObject*, PyObject*) {
    return guarded<PyObject*>(nullptr, [&] { return as_python(new_root(type)); });
}

void end(PyObject* self) {
    s_object* const object = as_object(self);
    PyTypeObject* const type = Py_TYPE(self);
    void* const data = object->data;
    const lmx::s_operations* const operations = object->operations;
    s_object* const owner = object->owner;
    if (data != nullptr) detach(object);
    reinterpret_cast<freefunc>(PyType_GetSlot(type, Py_tp_free))(self);
    Py_DECREF(type);
    if (operations != nullptr && data != nullptr) operations->destroy(data);
    Py_XDECREF(as_python(owner));
}

PyObject* init_subclass(PyObject* cls, PyObject*) {
    const c_ref name(PyObject_GetAttrString(cls, "schema_name"));
    if (!name) {
        PyErr_Clear();  // one of the package's own bases
        Py_RETURN_NONE;
    }
    const char* const text = PyUnicode_AsUTF8AndSize(name.get(), nullptr);
    if (text == nullptr) return nullptr;
    auto* const type = reinterpret_cast<PyTypeObject*>(cls);
    return guarded<PyObject*>(nullptr, [&]() -> PyObject* {
        const lmx::s_named_class* const known = find_class(text);
        if (known == nullptr) return PyErr_Format(PyExc_ValueError, "the format has no class %s", text);
        // A user's class may lie where one lay that is gone.
        classes().named.insert_or_assign(type, known);
        // The first is the package's; a user may derive from it.
        const bool is_own = known->name == known->type->name;
        if (is_own && classes().types.emplace(known->type, type).second) Py_INCREF(cls);
        Py_RETURN_NONE;
    });
}

PyObject* copy(PyObject* self, PyObject*) {
    const void* const data = data_of(as_object(self));
    if (data == nullptr) return nullptr;
    return guarded<PyObject*>(nullptr, [&] {
        c_ref made(as_python(new_root(Py_TYPE(self))));
        if (made) as_object(made.get())->operations->assign(as_object(made.get())->data, data);
        return made.release();
    });
}

PyObject* reset(PyObject* self, PyObject*) {
    s_object* const object = as_object(self);
    void* const data = data_of(object);
    if (data == nullptr) return nullptr;
    return guarded<PyObject*>(nullptr, [&]() -> PyObject* {
        const lmx::s_operations& operations = *object->type->operations;
        void* const fresh = operations.create();
        forget_parts(object);
        lmx::exchange(*object->type, data, fresh);
        operations.destroy(fresh);
        Py_RETURN_NONE;
    });
}

PyObject* is_complete(PyObject* self, void*) {
    const void* const data = data_of(as_object(self));
    return data == nullptr ? nullptr : PyBool_FromLong(lmx::is_occurs_ok(*as_object(self)->type, data));
}

PyObject* is_alive(PyObject* self, void*) { return PyBool_FromLong(as_object(self)->data != nullptr); }

PyObject* is_nil(PyObject* self, void*) {
    const void* const data = data_of(as_object(self));
    return data == nullptr ? nullptr : PyBool_FromLong(lmx::is_nil(*as_object(self)->type, data));
}

PyObject* set_nil(PyObject* self, PyObject*) {
    void* const data = data_of(as_object(self));
    if (data == nullptr) return nullptr;
    const s_class& type = *as_object(self)->type;
    if (type.nil_flag == lmx::k_no_flag) {
        return PyErr_Format(PyExc_TypeError, "%s always has a value", type.name);
    }
    lmx::member<bool>(data, type.nil_flag) = true;
    Py_RETURN_NONE;
}

PyMethodDef methods[] = {
    {"__init_subclass__", init_subclass, METH_NOARGS | METH_CLASS, nullptr},
    {"copy", copy, METH_NOARGS, "A copy that stands on its own. What the format demands counts as set in a copy."},
    {"reset", reset, METH_NOARGS, "Back to a new object: all parts are removed, all values unset."},
    {"set_nil", set_nil, METH_NOARGS,
     "Makes it an element that says that it has no value. `reset` takes that back, and so does setting `value`."},
    {nullptr, nullptr, 0, nullptr}};

PyGetSetDef getters[] = {
    {"is_complete", is_complete, nullptr,
     "True if all is there that the format demands of this object, without a look into its parts.", nullptr},
    {"is_alive", is_alive, nullptr, "False once the object was removed from its document.", nullptr},
    {"is_nil", is_nil, nullptr, "True for an element that says that it has no value.", nullptr},
    {nullptr, nullptr, nullptr, nullptr, nullptr}};

PyType_Slot slots[] = {{Py_tp_new, reinterpret_cast<void*>(make)},
                       {Py_tp_dealloc, reinterpret_cast<void*>(end)},
                       {Py_tp_methods, methods},
                       {Py_tp_getset, getters},
                       {0, nullptr}};
PyType_Spec spec = {"vyr._vyr.Object", sizeof(s_object), 0, Py_TPFLAGS_DEFAULT | Py_TPFLAGS_BASETYPE, slots};

}  // namespace

PyTypeObject* object_type() {
    if (the_object_type == nullptr) the_object_type = reinterpret_cast<PyTypeObject*>(PyType_FromSpec(&spec));
    return the_object_type;
}

const lmx::s_named_class* named_class(PyTypeObject* type) {
    const auto found = classes().named.find(type);
    return found == classes().named.end() ? nullptr : found->second;
}

const lmx::s_named_class* find_class(std::string_view name) {
    for (const lmx::s_named_class& known : com_vyrgraph_v2::all_classes()) {
        if (known.name == name) return &known;
    }
    return nullptr;
}

bool is_chosen(const s_class& choice, const s_item& alternative, const void* data) {
    return lmx::chosen_row(choice, lmx::choice_of(choice, data)) == &alternative;
}

s_object* new_root(PyTypeObject* type) {
    const lmx::s_named_class* const known = named_class(type);
    if (known == nullptr || known->operations->create == nullptr || known->type->name == std::string_view()) {
        PyErr_SetString(PyExc_TypeError, "this class has no objects of its own");
        return nullptr;
    }
    void* const data = known->operations->create();
    s_object* const object = allocate(type);
    if (object == nullptr) {
        known->operations->destroy(data);
        return nullptr;
    }
    object->data = data;
    object->type = known->type;
    object->operations = known->operations;
    object->root = object;
    return object;
}

PyObject* part(s_object* owner, void* data, const s_class& type) {
    auto& parts = live_parts();
    const auto [place, is_new] = parts.try_emplace({data, &type}, nullptr);
    if (!is_new) return Py_NewRef(as_python(place->second));
    const auto known = classes().types.find(&type);
    s_object* object = nullptr;
    if (known == classes().types.end()) {
        PyErr_Format(PyExc_SystemError, "there is no Python class for %s", type.name);
    } else {
        object = allocate(known->second);
    }
    if (object == nullptr) {
        parts.erase(place);
        return nullptr;
    }
    place->second = object;
    object->data = data;
    object->type = &type;
    object->root = owner->root;
    object->owner = as_object(Py_NewRef(as_python(owner)));
    object->next = owner->first_part;
    if (object->next != nullptr) object->next->previous = object;
    owner->first_part = object;
    return as_python(object);
}

void* data_of(s_object* object) {
    if (object->root->is_busy) {
        PyErr_SetString(PyExc_RuntimeError, "the document is being saved by another thread");
        return nullptr;
    }
    if (object->data == nullptr) PyErr_SetString(package.removed_error, "the object was removed from its document");
    return object->data;
}

bool derives(const s_class* type, const s_class& base) {
    while (type != nullptr && type != &base) type = type->base;
    return type != nullptr;
}

s_object* expect(PyObject* value, const s_class& type, const char* what) {
    if (!PyObject_TypeCheck(value, object_type()) || !derives(as_object(value)->type, type)) {
        PyErr_Format(PyExc_TypeError, "%s takes an object of the class %s, not %R", what, type.name, Py_TYPE(value));
        return nullptr;
    }
    return data_of(as_object(value)) == nullptr ? nullptr : as_object(value);
}

void forget(const void* data, const s_class& type) {
    const auto found = live_parts().find({data, &type});
    if (found != live_parts().end()) forget_object(found->second);
}

void forget_parts(s_object* object) {
    while (object->first_part != nullptr) forget_object(object->first_part);
}

const s_class& class_of(const s_item& row, const void* object) {
    if (row.factory.empty()) return *row.type;
    // All objects of a class, and no others, begin with the same pointer: that to the table of its virtual functions.
    const auto table_of = [](const void* known) { return *static_cast<const void* const*>(known); };
    static auto& tables = *new std::unordered_map<const void*, const s_class*>();
    for (const lmx::s_factory_row& known : row.factory) {
        const auto found = tables.find(table_of(object));
        if (found != tables.end()) return *found->second;
        void* const sample = known.type->operations->create();
        tables.emplace(table_of(sample), known.type);
        known.type->operations->destroy(sample);
    }
    const auto found = tables.find(table_of(object));
    return found == tables.end() ? *row.type : *found->second;
}

void* copy_of(const s_object* source) {
    const lmx::s_operations& operations = *source->type->operations;
    void* const copy = operations.create();
    try {
        operations.assign(copy, source->data);
    } catch (...) {
        operations.destroy(copy);
        throw;
    }
    return copy;
}

}  // namespace python
