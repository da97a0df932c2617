// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/progress.h"

#include <chrono>

#include "tools/system.h"
#include "tools/text.h"

namespace vyr_tool {

namespace {

/// Past the streams: standard error is tied to standard output, which makes way for itself by ending the line, and a
/// line that is about to be shown would wait for its own end.
void write_status(const std::string& line) { system::write(system::k_errors, line.data(), line.size()); }

}  // namespace

void show_status(const std::string& text, const std::string& end) {
    constexpr std::size_t k_widest = 76;
    const std::string shown = printable(text);
    write_status("\r" + std::string(narrowed(shown, k_widest - width(end))) + end + "\x1B[K");
}

void clear_status() { write_status("\r\x1B[K"); }

c_progress_line* c_progress_line::s_shown = nullptr;

c_progress_line::c_progress_line(const std::string& text) {
    if (!system::obeys_sequences(system::k_errors)) return;
    s_shown = this;
    m_thread = std::thread([this, text] {
        bool is_shown = false;
        std::unique_lock lock(m_mutex);
        for (int seconds = 1; !m_ended.wait_for(lock, std::chrono::seconds(1), [this] { return m_is_ended; });
             ++seconds) {
            show_status(text, ", " + std::to_string(seconds) + " s");
            is_shown = true;
        }
        if (is_shown) clear_status();
    });
}

c_progress_line::~c_progress_line() { end(); }

void c_progress_line::make_way() {
    if (s_shown != nullptr) s_shown->end();
}

void c_progress_line::end() {
    s_shown = nullptr;
    if (!m_thread.joinable()) return;
    {
        const std::scoped_lock lock(m_mutex);
        m_is_ended = true;
    }
    m_ended.notify_one();
    m_thread.join();
}

}  // namespace vyr_tool
