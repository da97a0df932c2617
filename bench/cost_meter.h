// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// What a piece of work costs: time, and instructions and cycles where the system counts them.

#pragma once

#include <array>
#include <chrono>

namespace vyr_bench {

/// Sums over all stretches between `start` and `stop`.
struct s_cost {
    double seconds = 0;
    double instructions = 0;  ///< 0 where nothing is counted
    double cycles = 0;
};

/// Counts this thread's work, in the program and, where the system lets it, in the kernel on its behalf.
class c_cost_meter {
public:
    c_cost_meter();
    c_cost_meter(const c_cost_meter&) = delete;
    c_cost_meter& operator=(const c_cost_meter&) = delete;
    ~c_cost_meter();

    void start();
    void stop();
    s_cost total() const;

    /// "user and kernel", "user", or "" where nothing is counted.
    const char* scope() const { return m_scope; }

private:
    bool open(bool with_kernel);
    void close();

    std::array<int, 2> m_counters{-1, -1};  ///< descriptors: instructions, cycles
    const char* m_scope = "";
    std::chrono::steady_clock::time_point m_start;
    double m_seconds = 0;
};

}  // namespace vyr_bench
