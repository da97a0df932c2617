// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Loads and saves, without the interpreter's lock. Each gives the report as a tuple of its fields.

#include <memory>

#include "document/report.h"
#include "flat/generated/vyr_flat.h"
#include "lmx/values/unicode.h"
#include "python/module/module.h"
#include "schema/generated/header.h"

namespace python {
namespace {

using com_vyrgraph_v2::DocumentFault;
using com_vyrgraph_v2::DocumentReport;
using com_vyrgraph_v2::ReportOptions;
using com_vyrgraph_v2::Vyr;

PyObject* to_python(const DocumentFault& fault) {
    c_ref made(PyTuple_New(9));
    if (!made) return nullptr;
    const std::string DocumentFault::*const texts[] = {&DocumentFault::text, &DocumentFault::detail,
                                                       &DocumentFault::file, &DocumentFault::item,
                                                       &DocumentFault::path, &DocumentFault::value};
    Py_ssize_t place = 0;
    for (const int number : {static_cast<int>(fault.code), fault.line, fault.column}) {
        PyTuple_SetItem(made.get(), place++, PyLong_FromLong(number));
    }
    for (const auto text : texts) PyTuple_SetItem(made.get(), place++, from_narrow(fault.*text));
    return PyErr_Occurred() != nullptr ? nullptr : made.release();
}

PyObject* to_python(const DocumentReport& report) {
    c_ref faults(make_list(static_cast<Py_ssize_t>(report.getFaultCount()),
                           [&](Py_ssize_t i) { return to_python(report.getFault(static_cast<std::size_t>(i))); }));
    if (!faults) return nullptr;
    return Py_BuildValue("(iNniis)", static_cast<int>(report.getCode()), faults.release(),
                         static_cast<Py_ssize_t>(report.getTotalCount()), static_cast<int>(report.isReadToEnd()),
                         report.getSystemError(), report.toString().c_str());
}

/// A loaded object with its report.
PyObject* pair(c_ref object, const DocumentReport& report) {
    c_ref told(to_python(report));
    return told ? Py_BuildValue("(NN)", object.release(), told.release()) : nullptr;
}

/// The flat functions give a report that is the caller's.
DocumentReport take(void* report) {
    if (report == nullptr) throw std::bad_alloc();
    const std::unique_ptr<DocumentReport> owned(static_cast<DocumentReport*>(report));
    return std::move(*owned);
}

bool is_whole(const s_object* object) { return object->type == find_class("Vyr")->type; }

/// Nobody else touches the object for as long as the lock is released.
class c_busy {
public:
    explicit c_busy(s_object* object) : m_root(object->root) { m_root->is_busy = true; }
    c_busy(const c_busy&) = delete;
    c_busy& operator=(const c_busy&) = delete;
    ~c_busy() { m_root->is_busy = false; }

private:
    s_object* m_root;
};

const lmx::s_named_class* element_of(PyTypeObject* type) {
    const lmx::s_named_class* const known = named_class(type);
    if (known != nullptr && known->document != nullptr) return known;
    PyErr_SetString(PyExc_TypeError, "objects of this class are no documents");
    return nullptr;
}

}  // namespace

PyObject* load_file(PyObject*, PyObject* arguments) {
    PyTypeObject* type = nullptr;
    PyObject* path = nullptr;
    int collect = 0;
    Py_ssize_t limit = 0;
    if (!PyArg_ParseTuple(arguments, "O!Spn", &PyType_Type, &type, &path, &collect, &limit)) return nullptr;
    const lmx::s_named_class* const element = element_of(type);
    if (element == nullptr) return nullptr;
    return guarded<PyObject*>(nullptr, [&]() -> PyObject* {
        c_ref made(reinterpret_cast<PyObject*>(new_root(type)));
        if (!made) return nullptr;
        void* const data = as_object(made.get())->data;
        const std::string name = PyBytes_AsString(path);
        const bool is_document = is_whole(as_object(made.get()));
        DocumentReport report;
        unlocked([&] {
            const auto kept = static_cast<std::size_t>(limit);
            if (is_document) {
                report = loadFileWithReport(*static_cast<Vyr*>(data), name, {.collect = collect != 0, .limit = kept});
            } else {
                report = take(VyrModule_LoadElement(data, std::string(element->name).c_str(),
                                                    lmx::convert_to_wide(name).c_str(), collect != 0 ? 1U : 0U,
                                                    static_cast<std::uint32_t>(kept)));
            }
        });
        return pair(std::move(made), report);
    });
}

PyObject* load_memory(PyObject*, PyObject* arguments) {
    PyTypeObject* type = nullptr;
    PyObject* source = nullptr;
    const char* name = nullptr;
    int collect = 0;
    Py_ssize_t limit = 0;
    if (!PyArg_ParseTuple(arguments, "O!Ospn", &PyType_Type, &type, &source, &name, &collect, &limit)) return nullptr;
    return guarded<PyObject*>(nullptr, [&]() -> PyObject* {
        c_ref made(reinterpret_cast<PyObject*>(new_root(type)));
        if (!made) return nullptr;
        if (!is_whole(as_object(made.get())))
            return PyErr_Format(PyExc_TypeError, "objects of this class are files only");
        Vyr& document = *static_cast<Vyr*>(as_object(made.get())->data);
        const ReportOptions options{.collect = collect != 0, .limit = static_cast<std::size_t>(limit), .name = name};
        DocumentReport report;
        if (PyUnicode_Check(source)) {
            std::u16string text;
            if (!to_wide(source, &text)) return nullptr;
            unlocked([&] { report = loadStringWithReport(document, text, options); });
            return pair(std::move(made), report);
        }
        char* bytes = nullptr;
        Py_ssize_t size = 0;
        // Kept by the arguments, and never changed.
        if (PyBytes_AsStringAndSize(source, &bytes, &size) != 0) return nullptr;
        unlocked([&] { report = loadMemoryWithReport(document, bytes, static_cast<std::size_t>(size), options); });
        return pair(std::move(made), report);
    });
}

PyObject* save_file(PyObject*, PyObject* arguments) {
    PyObject* self = nullptr;
    PyObject* path = nullptr;
    if (!PyArg_ParseTuple(arguments, "O!S", object_type(), &self, &path)) return nullptr;
    s_object* const object = as_object(self);
    void* const data = data_of(object);
    const lmx::s_named_class* const element = data == nullptr ? nullptr : element_of(Py_TYPE(self));
    if (element == nullptr) return nullptr;
    return guarded<PyObject*>(nullptr, [&] {
        const std::string name = PyBytes_AsString(path);
        DocumentReport report;
        {
            const c_busy busy(object);
            unlocked([&] {
                report = is_whole(object) ? writeFileWithReport(*static_cast<Vyr*>(data), name)
                                          : take(VyrModule_WriteElement(data, std::string(element->name).c_str(),
                                                                        lmx::convert_to_wide(name).c_str()));
            });
        }
        return to_python(report);
    });
}

PyObject* save_text(PyObject*, PyObject* arguments) {
    PyObject* self = nullptr;
    if (!PyArg_ParseTuple(arguments, "O!", object_type(), &self)) return nullptr;
    s_object* const object = as_object(self);
    void* const data = data_of(object);
    if (data == nullptr) return nullptr;
    return guarded<PyObject*>(nullptr, [&]() -> PyObject* {
        if (!is_whole(object)) return PyErr_Format(PyExc_TypeError, "only a whole document has a text");
        std::u16string text;
        std::string bytes;
        DocumentReport report;
        {
            const c_busy busy(object);
            unlocked([&] {
                report = writeStringWithReport(*static_cast<Vyr*>(data), &text);
                lmx::convert(&bytes, text);
            });
        }
        c_ref told(to_python(report));
        c_ref made(told ? PyBytes_FromStringAndSize(bytes.data(), static_cast<Py_ssize_t>(bytes.size())) : nullptr);
        return made ? Py_BuildValue("(NN)", made.release(), told.release()) : nullptr;
    });
}

}  // namespace python
