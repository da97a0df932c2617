// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/writer/output.h"

#include <algorithm>
#include <locale>
#include <streambuf>

#include "lmx/large_memory.h"

namespace lmx {

namespace {

class c_appending_buffer : public std::streambuf {
public:
    explicit c_appending_buffer(std::string& text) : m_text(text) {}

private:
    int_type overflow(int_type c) override {
        if (!traits_type::eq_int_type(c, traits_type::eof())) m_text += traits_type::to_char_type(c);
        return traits_type::not_eof(c);
    }
    std::streamsize xsputn(const char* text, std::streamsize size) override {
        m_text.append(text, static_cast<std::size_t>(size));
        return size;
    }

    std::string& m_text;
};

/// As `append`, with fresh memory at less cost where a text grows long: in large pages, and in steps of four times
/// the size, which leaves three quarters of the copying out. Memory that isn't touched costs addresses only, of which
/// small systems have few.
void append_to(std::string& target, const char* text, std::size_t size) {
    constexpr std::size_t long_text = std::size_t{1} << 20U;
    constexpr std::size_t growth = sizeof(void*) >= 8 ? 4 : 2;
    if (target.size() >= long_text && target.capacity() - target.size() < size) {
        std::string larger;
        larger.reserve(growth * target.size() + size);
        wish_for_large_pages(larger.data(), larger.capacity());
        larger += target;
        target.swap(larger);
    }
    target.append(text, size);
}

}  // namespace

struct c_output::s_string_stream {
    explicit s_string_stream(std::string& text)
        : buffer(std::make_unique<c_appending_buffer>(text)), stream(buffer.get()) {
        stream.imbue(std::locale::classic());
        stream.exceptions(std::ios_base::badbit);
    }
    std::unique_ptr<std::streambuf> buffer;
    std::ostream stream;
};

c_output::c_output(std::ostream& stream) : m_stream(&stream) {}

c_output::c_output(std::string& text) : m_text(&text) {}

c_output::~c_output() = default;

void c_output::hand_on(const char* text, std::size_t size) {
    if (m_text != nullptr) {
        append_to(*m_text, text, size);
    } else {
        m_stream->write(text, static_cast<std::streamsize>(size));
    }
}

void c_output::flush() {
    if (m_at == m_block.get()) return;
    const auto size = static_cast<std::size_t>(m_at - m_block.get());
    m_at = m_block.get();
    hand_on(m_block.get(), size);
}

void c_output::make_room(std::size_t size) {
    flush();
    if (static_cast<std::size_t>(m_end - m_at) >= size) return;
    const std::size_t capacity = std::max(size, k_block);
    m_block = std::make_unique_for_overwrite<char[]>(capacity);
    m_at = m_block.get();
    m_end = m_at + capacity;
}

void c_output::append_long(std::string_view text) {
    if (text.size() <= k_block) {
        append(text);
        return;
    }
    flush();
    hand_on(text.data(), text.size());
}

std::ostream& c_output::get_stream() {
    flush();
    if (m_text == nullptr) return *m_stream;
    if (m_string_stream == nullptr) m_string_stream = std::make_unique<s_string_stream>(*m_text);
    return m_string_stream->stream;
}

}  // namespace lmx
