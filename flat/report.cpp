// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Loads and saves with a report for hosts: the report as an opaque object, its faults by index. All texts are wide,
/// as hosts take them without effort.

#include "document/report.h"

#include <memory>
#include <string_view>

#include "document/document_calls.h"
#include "flat/call.h"
#include "flat/generated/vyr_flat.h"
#include "lmx/values/unicode.h"
#include "schema/generated/class_list.h"
#include "schema/generated/header.h"

namespace flat {
namespace {

using com_vyrgraph_v2::DocumentFault;
using com_vyrgraph_v2::DocumentReport;
using com_vyrgraph_v2::load_element_with_report;
using com_vyrgraph_v2::ReportOptions;
using com_vyrgraph_v2::Vyr;
using com_vyrgraph_v2::write_element_with_report;

ReportOptions options(std::uint32_t collect, std::uint32_t limit) {
    ReportOptions made;
    made.collect = to_bool(collect);
    made.limit = limit;
    return made;
}

/// The element that a class is the whole of; null for the other classes.
const lmx::s_document* element_of(std::string_view class_name) {
    for (const lmx::s_named_class& known : com_vyrgraph_v2::all_classes()) {
        if (known.name == class_name) return known.document;
    }
    return nullptr;
}

const DocumentFault& fault(void* report, std::uint32_t index) { return as<DocumentReport>(report).getFault(index); }

char16_t* new_wide(const std::string& text) { return new_string(lmx::convert_to_wide(text)); }

char16_t* text_of(void* report, std::uint32_t index, std::string DocumentFault::*member) {
    return guarded(
        +[](void* r, std::uint32_t i, std::string DocumentFault::*m) { return new_wide(fault(r, i).*m); }, report,
        index, member);
}

}  // namespace

extern "C" {

VYR_FLAT(const char*) VyrModule_Version() { return VYR_VERSION; }

// What each does stands in vyr_flat.h, from flat/members.toml.

VYR_FLAT(void*)
VyrModule_LoadFile(void* self, const char16_t* path, std::uint32_t collect, std::uint32_t limit) {
    return guarded(
        +[](void* s, const char16_t* p, std::uint32_t c, std::uint32_t l) -> void* {
            return new DocumentReport(loadFileWithReport(as<Vyr>(s), wide(p), options(c, l)));
        },
        self, path, collect, limit);
}

VYR_FLAT(void*)
VyrModule_LoadString(void* self, const char16_t* text, std::uint32_t collect, std::uint32_t limit) {
    return guarded(
        +[](void* s, const char16_t* t, std::uint32_t c, std::uint32_t l) -> void* {
            return new DocumentReport(loadStringWithReport(as<Vyr>(s), wide(t), options(c, l)));
        },
        self, text, collect, limit);
}

VYR_FLAT(void*)
VyrModule_LoadMemory(void* self, const void* data, std::uint32_t size, const char16_t* name, std::uint32_t collect,
                     std::uint32_t limit) {
    return guarded(
        +[](void* s, const void* d, std::uint32_t n, const char16_t* f, std::uint32_t c, std::uint32_t l) -> void* {
            ReportOptions chosen = options(c, l);
            chosen.name = lmx::convert_to_narrow(wide(f));
            return new DocumentReport(loadMemoryWithReport(as<Vyr>(s), static_cast<const char*>(d), n, chosen));
        },
        self, data, size, name, collect, limit);
}

VYR_FLAT(void*) VyrModule_WriteString(void* self, char16_t** text) {
    *text = nullptr;
    return guarded(
        +[](void* s, char16_t** t) -> void* {
            std::u16string written;
            auto report = std::make_unique<DocumentReport>(writeStringWithReport(as<Vyr>(s), &written));
            if (!report->isReadToEnd()) return report.release();
            *t = new_string(written);
            return *t == nullptr ? nullptr : report.release();
        },
        self, text);
}

VYR_FLAT(void*) VyrModule_WriteFile(void* self, const char16_t* path) {
    return guarded(
        +[](void* s, const char16_t* p) -> void* {
            return new DocumentReport(writeFileWithReport(as<Vyr>(s), wide(p)));
        },
        self, path);
}

VYR_FLAT(void*)
VyrModule_LoadElement(void* self, const char* class_name, const char16_t* path, std::uint32_t collect,
                      std::uint32_t limit) {
    return guarded(
        +[](void* s, const char* n, const char16_t* p, std::uint32_t c, std::uint32_t l) -> void* {
            const lmx::s_document* const element = element_of(n);
            return element == nullptr
                       ? nullptr
                       : new DocumentReport(load_element_with_report(*element, s, wide(p), options(c, l)));
        },
        self, class_name, path, collect, limit);
}

VYR_FLAT(void*) VyrModule_WriteElement(void* self, const char* class_name, const char16_t* path) {
    return guarded(
        +[](void* s, const char* n, const char16_t* p) -> void* {
            const lmx::s_document* const element = element_of(n);
            return element == nullptr ? nullptr : new DocumentReport(write_element_with_report(*element, s, wide(p)));
        },
        self, class_name, path);
}

VYR_FLAT(void) VyrModule_DeleteReport(void* report) { destroy<DocumentReport>(report); }

VYR_FLAT(std::int32_t) VyrModule_ReportCode(void* report) { return as<DocumentReport>(report).getCode(); }
VYR_FLAT(std::int32_t) VyrModule_ReportIsReadToEnd(void* report) { return as<DocumentReport>(report).isReadToEnd(); }
VYR_FLAT(std::int32_t) VyrModule_ReportSystemError(void* report) {
    return as<DocumentReport>(report).getSystemError();
}
VYR_FLAT(std::uint32_t) VyrModule_ReportFaultCount(void* report) {
    return static_cast<std::uint32_t>(as<DocumentReport>(report).getFaultCount());
}
VYR_FLAT(std::uint32_t) VyrModule_ReportTotalCount(void* report) {
    return static_cast<std::uint32_t>(as<DocumentReport>(report).getTotalCount());
}
VYR_FLAT(char16_t*) VyrModule_ReportText(void* report) {
    return guarded(
        +[](void* r) { return new_wide(as<DocumentReport>(r).toString()); }, report);
}

VYR_FLAT(std::int32_t) VyrModule_FaultCode(void* report, std::uint32_t index) { return fault(report, index).code; }
VYR_FLAT(std::int32_t) VyrModule_FaultLine(void* report, std::uint32_t index) { return fault(report, index).line; }
VYR_FLAT(std::int32_t) VyrModule_FaultColumn(void* report, std::uint32_t index) {
    return fault(report, index).column;
}
VYR_FLAT(char16_t*) VyrModule_FaultText(void* report, std::uint32_t index) {
    return text_of(report, index, &DocumentFault::text);
}
VYR_FLAT(char16_t*) VyrModule_FaultDetail(void* report, std::uint32_t index) {
    return text_of(report, index, &DocumentFault::detail);
}
VYR_FLAT(char16_t*) VyrModule_FaultFile(void* report, std::uint32_t index) {
    return text_of(report, index, &DocumentFault::file);
}
VYR_FLAT(char16_t*) VyrModule_FaultItem(void* report, std::uint32_t index) {
    return text_of(report, index, &DocumentFault::item);
}
VYR_FLAT(char16_t*) VyrModule_FaultPath(void* report, std::uint32_t index) {
    return text_of(report, index, &DocumentFault::path);
}
VYR_FLAT(char16_t*) VyrModule_FaultValue(void* report, std::uint32_t index) {
    return text_of(report, index, &DocumentFault::value);
}

}  // extern "C"
}  // namespace flat
