// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The flat functions that are neither a line per member of the schema nor one of flat/members.toml: their arguments
/// or results take more than one step.

#include "document/result.h"
#include "flat/call.h"
#include "flat/generated/vyr_flat.h"
#include "lmx/values/unicode.h"
#include "schema/generated/header.h"

namespace flat {

using com_vyrgraph_v2::Revision;
using com_vyrgraph_v2::Vyr;
using com_vyrgraph_v2::XMLDocumentResult;

extern "C" {

/// The caller deletes the result.
VYR_FLAT(void*) CSharp_Vyr_writeString(void* self) {
    return guarded(
        +[](void* s) -> void* { return new XMLDocumentResult(as<Vyr>(s).writeString()); }, self);
}

/// The three texts are copied on their way in, as all narrow arguments are, so nothing comes back through them.
VYR_FLAT(void)
CSharp_Revision_get_any(void* self, std::uint32_t index, const char* ns, const char* name, const char* value) {
    for (const char* text : {ns, name, value})
        if (is_null(text, k_null_string)) return;
    guarded(
        +[](void* s, std::uint32_t i) {
            std::string texts[3];
            as<Revision>(s).get_any(i, &texts[0], &texts[1], &texts[2]);
        },
        self, index);
}

/// The target comes back as the result.
VYR_FLAT(char*) CSharp_convert__SWIG_0(const char* target, const char16_t* source) {
    return checked(
        k_null_string,
        +[](const char*, const char16_t* text) { return new_string(lmx::convert_to_narrow(wide(text))); }, target,
        source);
}

}  // extern "C"
}  // namespace flat
