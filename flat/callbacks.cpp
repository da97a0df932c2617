// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Registration of the host's callbacks. Of the table that a host hands over, null arguments need one slot.

#include "flat/callbacks.h"

#include <cstddef>

#include "flat/flat.h"
#include "flat/generated/vyr_flat.h"

namespace flat {
namespace {

using exception_callback = void(VYR_FLAT_CALL*)(const char* text);
using argument_callback = void(VYR_FLAT_CALL*)(const char* text, const char* parameter);
using string_callback = char*(VYR_FLAT_CALL*)(const char* text);

template <class Callback>
struct s_slot {
    int code;
    Callback callback;
};

enum argument_code : int { argument_exception, argument_null_exception, argument_out_of_range_exception };

// Which exception of the host a slot stands for, by its place.
s_slot<exception_callback> exception_slots[] = {
    {0, nullptr},   // ApplicationException
    {1, nullptr},   // ArithmeticException
    {2, nullptr},   // DivideByZeroException
    {3, nullptr},   // IndexOutOfRangeException
    {4, nullptr},   // InvalidCastException
    {5, nullptr},   // InvalidOperationException
    {6, nullptr},   // IOException
    {7, nullptr},   // NullReferenceException
    {8, nullptr},   // OutOfMemoryException
    {9, nullptr},   // OverflowException
    {10, nullptr},  // SystemException
};
s_slot<argument_callback> argument_slots[] = {
    {argument_exception, nullptr}, {argument_null_exception, nullptr}, {argument_out_of_range_exception, nullptr}};
string_callback string_slot = nullptr;

template <class Callback, std::size_t size>
void store(s_slot<Callback> (&slots)[size], const Callback (&callbacks)[size]) {
    for (std::size_t i = 0; i < size; ++i) slots[i].callback = callbacks[i];
}

}  // namespace

void report_null(const char* text) { argument_slots[argument_null_exception].callback(text, nullptr); }

extern "C" {

VYR_FLAT(void)
SWIGRegisterExceptionCallbacks_VyrModule(exception_callback application, exception_callback arithmetic,
                                         exception_callback divide_by_zero, exception_callback index_out_of_range,
                                         exception_callback invalid_cast, exception_callback invalid_operation,
                                         exception_callback io, exception_callback null_reference,
                                         exception_callback out_of_memory, exception_callback overflow,
                                         exception_callback system) {
    store(exception_slots, {application, arithmetic, divide_by_zero, index_out_of_range, invalid_cast,
                            invalid_operation, io, null_reference, out_of_memory, overflow, system});
}

VYR_FLAT(void)
SWIGRegisterExceptionArgumentCallbacks_VyrModule(argument_callback argument, argument_callback null,
                                                 argument_callback out_of_range) {
    store(argument_slots, {argument, null, out_of_range});
}

VYR_FLAT(void) SWIGRegisterStringCallback_VyrModule(string_callback callback) { string_slot = callback; }

}  // extern "C"
}  // namespace flat
