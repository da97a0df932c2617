// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The module `vyr._vyr`: what the package is built on. Nothing of it is for users.

#include "python/module/module.h"

namespace python {

s_package package;

namespace {

/// Takes what the package defines and the module needs.
PyObject* set_up(PyObject*, PyObject* arguments) {
    s_package& p = package;
    if (!PyArg_ParseTuple(arguments, "OOOOOO", &p.value_error, &p.removed_error, &p.list, &p.time_list, &p.read_time,
                          &p.write_time)) {
        return nullptr;
    }
    for (PyObject* const kept : {p.value_error, p.removed_error, p.list, p.time_list, p.read_time, p.write_time}) {
        Py_INCREF(kept);
    }
    Py_RETURN_NONE;
}

PyObject* describe(PyObject*, PyObject* code) {
    const long number = PyLong_AsLong(code);
    if (number == -1 && PyErr_Occurred() != nullptr) return nullptr;
    return PyUnicode_FromString(lmx::get_error_description(static_cast<lmx::elmx_error>(number)));
}

PyMethodDef functions[] = {{"set_up", set_up, METH_VARARGS, nullptr},
                           {"describe", describe, METH_O, nullptr},
                           {"chosen", chosen, METH_O, nullptr},
                           {"held", held, METH_VARARGS, nullptr},
                           {"first_chosen", first_chosen, METH_VARARGS, nullptr},
                           {"load_file", load_file, METH_VARARGS, nullptr},
                           {"load_memory", load_memory, METH_VARARGS, nullptr},
                           {"save_file", save_file, METH_VARARGS, nullptr},
                           {"save_text", save_text, METH_VARARGS, nullptr},
                           {"gather", gather, METH_VARARGS, nullptr},
                           {"gather_points", gather_points, METH_VARARGS, nullptr},
                           {"set_points", set_points, METH_VARARGS, nullptr},
                           {nullptr, nullptr, 0, nullptr}};

PyModuleDef definition = {
    PyModuleDef_HEAD_INIT, "vyr._vyr", nullptr, -1, functions, nullptr, nullptr, nullptr, nullptr};

}  // namespace
}  // namespace python

PyMODINIT_FUNC PyInit__vyr();

PyMODINIT_FUNC PyInit__vyr() {
    using namespace python;  // NOLINT(google-build-using-namespace)
    c_ref module(PyModule_Create(&definition));
    if (!module) return nullptr;
    for (PyTypeObject* const type : {object_type(), property_type(), list_type()}) {
        if (type == nullptr || PyModule_AddType(module.get(), type) != 0) return nullptr;
    }
    if (PyModule_AddStringConstant(module.get(), "version", VYR_VERSION) != 0) return nullptr;
    return module.release();
}
