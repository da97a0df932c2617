// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The numbers that values are made of; of this folder only.

#pragma once

#include <cstdint>
#include <ostream>

namespace lmx {

/// The least number is its own.
constexpr std::int32_t negated(std::int32_t value) {
    return static_cast<std::int32_t>(0U - static_cast<std::uint32_t>(value));
}

/// The general format might print seconds below a thousandth with an exponent.
inline bool needs_fixed(float secs) { return secs != 0.0F && secs < 0.001F; }

/// Seconds, with the stream's own precision; leaves the stream without the fixed format.
inline void write_seconds(std::ostream& stream, float secs) {
    if (needs_fixed(secs)) stream.setf(std::ios_base::fixed, std::ios_base::floatfield);
    stream << secs;
    stream.unsetf(std::ios_base::fixed);
}

}  // namespace lmx
