// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The seconds of calendar values and durations on a stream; of this folder only.

#pragma once

#include <ostream>

namespace lmx {

/// The general format might print seconds below a thousandth with an exponent.
inline bool needs_fixed(float secs) { return secs != 0.0F && secs < 0.001F; }

/// With the stream's own precision; leaves the stream without the fixed format.
inline void write_seconds(std::ostream& stream, float secs) {
    if (needs_fixed(secs)) stream.setf(std::ios_base::fixed, std::ios_base::floatfield);
    stream << secs;
    stream.unsetf(std::ios_base::fixed);
}

}  // namespace lmx
