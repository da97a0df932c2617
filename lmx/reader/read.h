// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Byte sources: where a document comes from.

#pragma once

#include <cstddef>
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

#include "lmx/export.h"

namespace lmx {

/// A source of bytes. A source that has only `read` and `rewind` is complete; one that holds bytes in a row may
/// hand them out as a window, and the reader then scans them in place.
class VYR_EXPORT c_read {
public:
    virtual bool is_open() const { return true; }
    /// The next byte, 0 to 255, or -1 at the end of input.
    virtual int read() = 0;
    /// A name for reports; may be null.
    virtual const char* get_source_id() { return nullptr; }
    /// Back to the start.
    virtual void rewind() = 0;
    virtual ~c_read();

    /// Bytes that `read` would deliver next, in a row, which count as read then; empty if there are none or the
    /// source doesn't show them. Good until the next call on the source.
    virtual std::string_view take_window() { return {}; }
    /// Takes back the last bytes of the window just handed out: they count as unread.
    virtual void give_back(std::size_t count);
};

/// Bytes in memory. Borrowed: they must outlive the source.
class VYR_EXPORT c_read_memory : public c_read {
public:
    c_read_memory(const char* data, std::size_t length) : m_begin(data), m_current(data), m_end(data + length) {}

    int read() override { return m_current == m_end ? -1 : static_cast<unsigned char>(*m_current++); }
    void rewind() override { m_current = m_begin; }
    std::string_view take_window() override {
        const std::string_view rest(m_current, static_cast<std::size_t>(m_end - m_current));
        m_current = m_end;
        return rest;
    }
    void give_back(std::size_t count) override { m_current -= count; }

private:
    const char* m_begin;
    const char* m_current;
    const char* m_end;
};

/// The bytes of a string, borrowed: it must neither change nor die first.
class VYR_EXPORT c_read_string : public c_read_memory {
public:
    explicit c_read_string(const std::string& text) : c_read_memory(text.data(), text.size()) {}
};

/// A file, read in blocks of 512 bytes. Of one that can seek many blocks are read at once, which shows nowhere: what
/// a rewind serves first ends with the block in use. A file that can't be opened is a source without bytes.
class VYR_EXPORT c_read_file : public c_read {
public:
    /// Opens a file named in UTF-8.
    explicit c_read_file(const char* path);
    /// Opens a file named in UTF-16; a name that is no valid text fails like a missing file. The name for reports is
    /// made unit by unit.
    explicit c_read_file(const char16_t* path);
    /// Takes an open file, without a name, and closes it at deletion unless told not to.
    explicit c_read_file(std::FILE* file) : m_file(file) {}
    c_read_file(const c_read_file&) = delete;
    c_read_file& operator=(const c_read_file&) = delete;
    ~c_read_file() override;

    void leave_file_open_on_delete(bool leave) { m_close_on_delete = !leave; }
    void close();

    bool is_open() const override { return m_file != nullptr; }
    /// The `errno` of a read that the system refused, which looks like the end of input; 0 if none was.
    int get_read_error() const { return m_read_error; }
    int read() override;
    const char* get_source_id() override { return m_name.c_str(); }
    /// Only seeks: what is unread of the block in use comes first.
    void rewind() override;
    std::string_view take_window() override;
    void give_back(std::size_t count) override { m_buffer_index -= count; }

private:
    bool refill();
    std::size_t end_of_block() const;

    std::string m_name;
    std::FILE* m_file = nullptr;
    bool m_close_on_delete = true;
    int m_read_error = 0;
    std::unique_ptr<char[]> m_buffer;
    std::size_t m_buffer_size = 0;
    std::size_t m_buffer_count = 0;
    std::size_t m_buffer_index = 0;
};

}  // namespace lmx
