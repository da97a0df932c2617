// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// What those who read or print elements note for whom describes a failure.

#pragma once

namespace lmx {

struct s_open_element;
struct s_fault_site;

struct s_fault_notes {
    s_open_element* open_element = nullptr;    ///< the innermost open one; null outside of all
    const s_fault_site* fault_site = nullptr;  ///< while a failure is passed on, what it is about
    /// Of a load: whether the value or attribute at hand was found wrong, for handlers that let more than one failure
    /// pass.
    bool is_value_faulty = false;
    /// Of a load that goes on: whether an end tag, the reader's `m_name`, is on its way to the element that it ends.
    bool is_unwinding = false;
};

}  // namespace lmx
