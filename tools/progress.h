// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// What is being done, for whoever waits for it at a terminal.

#pragma once

#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

namespace vyr_tool {

/// Puts a line into the terminal's last row, in place of the one before. A long text is cut ahead of its end: what
/// took two rows could not be taken away again.
void show_status(const std::string& text, const std::string& end = {});
void clear_status();

/// Shows a line with the time that has gone by, once that is more than a second, and takes it away at the end. Shows
/// nothing where standard error is no terminal. One at a time.
class c_progress_line {
public:
    explicit c_progress_line(const std::string& text);
    c_progress_line(const c_progress_line&) = delete;
    c_progress_line& operator=(const c_progress_line&) = delete;
    ~c_progress_line();

    /// Takes the line away for good, if there is one: something else is about to be printed.
    static void make_way();

private:
    void end();

    static c_progress_line* s_shown;
    std::mutex m_mutex;
    std::condition_variable m_ended;
    bool m_is_ended = false;
    std::thread m_thread;
};

}  // namespace vyr_tool
