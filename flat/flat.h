// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The flat call interface: plain functions, one per member of a class, for hosts that can't call C++. The names of
/// all of them, with the bytes of their arguments, stand in flat/generated/exports.txt.
///
/// 1. Names. CSharp_<class>_<member>; CSharp_new_<class>, CSharp_delete_<class>, CSharp_<class>Upcast to the base
///    class. Overloads end in __SWIG_<n>, n being the member's place among those of its name in the class.
///    VyrModule_<what> stands for what no class has: strings, loads and saves with a report (flat/report.cpp).
/// 2. Ownership. The caller owns what new_, clone, factory and writeString return, and releases it with the delete_
///    of its class, and reports, for which there is VyrModule_DeleteReport. Every other object is part of the one
///    that it came from and lives as long as that keeps it.
/// 3. Null. `self` isn't checked. A null object or narrow text is reported to the argument-null callback, with
///    "<type> is null" or "null string" and a null parameter name; the function then does nothing and returns 0.
///    Null wide text is empty text; file names, buffers and identities pass as they are; delete_ ignores null.
/// 4. Callbacks are registered before the first call. Only that for null arguments is ever called.
/// 5. Strings that are returned belong to the caller: the length in bytes as a 32-bit number right ahead of the
///    text, and two zero bytes behind it. A managed marshaller frees them; others call VyrModule_FreeString.
///    What id_get and get_error_description return isn't copied and stays the library's.
/// 6. Encoding. Wide text is UTF-16 and ends with a zero unit, narrow text is UTF-8 and ends with a zero byte.
/// 7. Widths. Integers, enumerations and result codes have 32 bits, sizes and indexes too, unsigned. A boolean
///    result is a whole 32-bit 0 or 1; of a boolean argument only the low byte counts.
/// 8. Indexes count from 0.
/// 9. Failures are results: a member's code as it is. No exception leaves a function; one that would becomes 1000
///    where a result code is returned, and 0 or null elsewhere.
/// 10. Threads. Nothing is locked: an object belongs to one thread at a time.

#pragma once

#include "lmx/export.h"

// The one place for a function's export and calling convention. On Windows the names come from the list of exports.
#if defined(_WIN32)
#define VYR_FLAT_CALL __stdcall
#define VYR_FLAT(result) result VYR_FLAT_CALL
#else
#define VYR_FLAT_CALL
#define VYR_FLAT(result) VYR_EXPORT result
#endif
