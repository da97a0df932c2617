// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/progress.h"

#include <chrono>
#include <iostream>

#include "tools/system.h"
#include "tools/text.h"

namespace vyr_tool {

c_progress_line* c_progress_line::s_shown = nullptr;

c_progress_line::c_progress_line(const std::string& text) {
    if (!system::is_terminal(system::k_errors)) return;
    s_shown = this;
    m_thread = std::thread([this, line = printable(text)] {
        bool is_shown = false;
        std::unique_lock lock(m_mutex);
        for (int seconds = 1; !m_ended.wait_for(lock, std::chrono::seconds(1), [this] { return m_is_ended; });
             ++seconds) {
            std::cerr << '\r' << line << ", " << seconds << " s\x1B[K" << std::flush;
            is_shown = true;
        }
        if (is_shown) std::cerr << "\r\x1B[K" << std::flush;
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
