// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// What the fuzzers share: sources that show their bytes in windows of a chosen size, a recorder of reports, and the
/// end of a program that has found something.

#pragma once

#include <fuzzer/FuzzedDataProvider.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "lmx/error.h"
#include "lmx/reader/read.h"

namespace vyr_fuzz {

/// Ends the program, so that the fuzzer keeps the input.
[[noreturn]] inline void fail(const char* what, std::string_view detail = {}) {
    std::fprintf(stderr, "fault: %s %.*s\n", what, static_cast<int>(detail.size()), detail.data());
    std::abort();
}

inline void require(bool holds, const char* what, std::string_view detail = {}) {
    if (!holds) fail(what, detail);
}

/// Shows windows of so many bytes; none at all for 0, so that each byte is read by itself.
class c_windows : public lmx::c_read_memory {
public:
    c_windows(const std::string& text, std::size_t size) : c_read_memory(text.data(), text.size()), m_size(size) {}
    std::string_view take_window() override {
        if (m_size == 0) return {};
        const std::string_view rest = c_read_memory::take_window();
        if (rest.size() <= m_size) return rest;
        c_read_memory::give_back(rest.size() - m_size);
        return rest.substr(0, m_size);
    }

private:
    std::size_t m_size;
};

/// Writes every report down.
class c_recorder : public lmx::c_error {
public:
    void report_error(lmx::elmx_error_type type, lmx::elmx_error code, const char*, int line,
                      const char* text) override {
        m_log += std::to_string(type) + '/' + std::to_string(code) + '@' + std::to_string(line) + ':' + text + ';';
    }
    std::string m_log;
};

/// Decisions from a few bytes, over and over, so that a change of one byte changes some of them and not all.
class c_script {
public:
    explicit c_script(std::string bytes) : m_bytes(std::move(bytes)) {}
    unsigned below(unsigned end) {
        const std::size_t at = m_next++;
        if (m_bytes.empty()) return 0;
        const std::size_t round = at / m_bytes.size();
        return static_cast<unsigned>(static_cast<unsigned char>(m_bytes[at % m_bytes.size()]) + round) % end;
    }
    bool once_in(unsigned count) { return below(count) == count - 1; }

private:
    std::string m_bytes;
    std::size_t m_next = 0;
};

/// Takes a script from the end of the input.
inline c_script take_script(FuzzedDataProvider& input) {
    std::string bytes;
    for (int i = 0; i < 16; ++i) bytes += static_cast<char>(input.ConsumeIntegral<std::uint8_t>());
    return c_script(std::move(bytes));
}

}  // namespace vyr_fuzz
