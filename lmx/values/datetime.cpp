// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Calendar values: checks, parsing, comparison, text.

#include "lmx/values/datetime.h"

#include <charconv>
#include <chrono>
#include <iomanip>
#include <type_traits>
#include <utility>

#include "lmx/values/characters.h"
#include "lmx/values/numbers.h"

namespace lmx {

static_assert(std::is_trivially_copyable_v<c_datetime> && std::is_trivially_destructible_v<c_datetime>);

namespace {

bool skip_two_digits(const char** cursor) { return skip_digits(cursor) == 2; }
bool parse_two_digits(const char** cursor, std::uint32_t* value) { return parse_uint(cursor, value) == 2; }

bool match_char(const char** cursor, char c) {
    if (**cursor != c) return false;
    ++*cursor;
    return true;
}

/// Steps over one part of a form; returns whether all of it was there.
bool skip_part(char part, const char** cursor) {
    switch (part) {
        case 'Y':
            return skip_digits(cursor) >= 4;
        case 'M':
        case 'D':
        case 'd':
        case 'h':
        case 'm':
            return skip_two_digits(cursor);
        case 's':
            if (!skip_two_digits(cursor)) return false;
            if (match_char(cursor, '.')) skip_digits(cursor);
            return true;
        default:
            return match_char(cursor, part);
    }
}

/// Whether `[text, end)` is empty or a zone, which `*has_zone` tells then.
bool is_valid_zone(const char* text, const char* end, bool* has_zone) {
    const bool is_empty = text == end;
    if (!is_empty) {
        const bool is_zone = match_char(&text, 'Z') || (skip_sign(&text) && skip_two_digits(&text) &&
                                                        match_char(&text, ':') && skip_two_digits(&text));
        if (!is_zone || text != end) return false;
    }
    *has_zone = !is_empty;
    return true;
}

/// Enough for every value: eight numbers, of which the seconds have the 39 digits of the greatest float, and marks.
constexpr std::size_t k_text_size = 192;

/// Writes as a stream does in its default state and the classic locale.
class c_text_sink {
public:
    /// Moves `*at` on.
    explicit c_text_sink(char** at) : m_at(at) {}

    void put(char c) { *(*m_at)++ = c; }

    /// With zeros to its left, ahead of a sign too.
    template <class Number>
    void put(Number value, std::size_t width) {
        if (width == 4 && value >= Number{0} && value < Number{10000}) {
            put(value / Number{100}, 2);
            put(value % Number{100}, 2);
            return;
        }
        if (width == 2 && value >= Number{0} && value < Number{100}) {
            put(digit(value / Number{10}));
            put(digit(value % Number{10}));
            return;
        }
        std::array<char, 16> text;
        const char* const end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
        const auto size = static_cast<std::size_t>(end - text.data());
        for (std::size_t zeros = size; zeros < width; ++zeros) put('0');
        *m_at = std::copy(std::as_const(text).data(), end, *m_at);
    }

    void put_seconds(float secs) {
        const auto whole = secs >= 1.0F && secs < 100.0F ? static_cast<unsigned>(secs) : 0U;
        if (whole != 0 && static_cast<float>(whole) == secs) {
            if (whole >= 10) put(digit(whole / 10));
            put(digit(whole % 10));
            return;
        }
        constexpr std::ptrdiff_t most = 64;  // a sign, the digits, a point, 6 digits
        const auto format = needs_fixed(secs) ? std::chars_format::fixed : std::chars_format::general;
        // As a double, which is what a stream formats.
        *m_at = std::to_chars(*m_at, *m_at + most, static_cast<double>(secs), format, 6).ptr;
    }

private:
    template <class Number>
    static char digit(Number value) {
        return static_cast<char>('0' + static_cast<int>(value));
    }

    char** m_at;
};

class c_stream_sink {
public:
    explicit c_stream_sink(std::ostream* stream) : m_stream(stream) { m_stream->fill('0'); }

    void put(char c) { *m_stream << c; }

    template <class Number>
    void put(Number value, int width) {
        *m_stream << std::setw(width) << value;
    }

    void put_seconds(float secs) { write_seconds(*m_stream, secs); }

private:
    std::ostream* m_stream;
};

}  // namespace

void c_datetime_base::set_offset(std::int32_t hours, std::uint32_t minutes) {
    const std::uint32_t whole_hours = static_cast<std::uint32_t>(hours) * 60U;
    m_total_offset_mins = static_cast<std::int32_t>(hours < 0 ? whole_hours - minutes : whole_hours + minutes);
    m_is_utc = m_total_offset_mins == 0;
}

std::weak_ordering c_datetime_base::compare(const c_datetime_base& other) const {
    if (m_year != other.m_year) return m_year <=> other.m_year;
    if (m_month != other.m_month) return m_month <=> other.m_month;
    if (m_day != other.m_day) return m_day <=> other.m_day;
    if (m_hours != other.m_hours) return m_hours <=> other.m_hours;
    if (m_mins != other.m_mins) return m_mins <=> other.m_mins;
    if (m_secs == other.m_secs) return std::weak_ordering::equivalent;
    return m_secs > other.m_secs ? std::weak_ordering::greater : std::weak_ordering::less;
}

bool c_datetime_base::is_valid(const s_calendar_form& form, const std::string& text, bool* has_zone) {
    const char* cursor = text.c_str();
    if (form.sign != calendar_sign::none) skip_sign(&cursor);
    for (const char part : form.body) {
        if (!skip_part(part, &cursor)) return false;
    }
    return is_valid_zone(cursor, text.c_str() + text.size(), has_zone);
}

void c_datetime_base::assign(const s_calendar_form& form, const char* text) {
    const bool is_signed = form.sign == calendar_sign::taken;
    const bool is_negative = is_signed && *text == '-';
    if (is_signed) skip_sign(&text);
    for (const char part : form.body) {
        if (!parse_part(part, &text)) return;
    }
    if (is_negative) m_year = negated(m_year);
    parse_zone(text);
}

void c_datetime_base::assign_present_time() {
    using std::chrono::floor;
    const auto present = floor<std::chrono::seconds>(std::chrono::system_clock::now());
    const auto day = floor<std::chrono::days>(present);
    const std::chrono::year_month_day date(day);
    const std::chrono::hh_mm_ss time(present - day);
    m_year = static_cast<int>(date.year());
    m_month = static_cast<unsigned>(date.month());
    m_day = static_cast<unsigned>(date.day());
    m_hours = static_cast<std::uint32_t>(time.hours().count());
    m_mins = static_cast<std::uint32_t>(time.minutes().count());
    m_secs = static_cast<float>(time.seconds().count());
    m_is_utc = true;
}

bool c_datetime_base::assign_usual_datetime(const char* text) {
    constexpr std::string_view form = "0000-00-00T00:00:00Z";
    std::uint32_t values[6] = {};
    std::size_t field = 0;
    for (std::size_t i = 0; i < form.size(); ++i) {
        const auto digit = static_cast<unsigned>(static_cast<unsigned char>(text[i])) - '0';
        if (form[i] != '0') {
            if (text[i] != form[i]) return false;
            ++field;
        } else {
            if (digit > 9) return false;
            values[field] = values[field] * 10 + digit;
        }
    }
    m_year = static_cast<std::int32_t>(values[0]);
    m_month = values[1];
    m_day = values[2];
    m_hours = values[3];
    m_mins = values[4];
    m_secs = static_cast<float>(values[5]);
    m_total_offset_mins = 0;
    m_is_utc = true;
    return true;
}

bool c_datetime_base::parse_part(char part, const char** cursor) {
    switch (part) {
        case 'Y': {
            auto year = static_cast<std::uint32_t>(m_year);
            const std::size_t digits = parse_uint(cursor, &year);
            m_year = static_cast<std::int32_t>(year);
            return digits >= 4;
        }
        case 'M':
            return parse_two_digits(cursor, &m_month);
        case 'D':
            return parse_two_digits(cursor, &m_day);
        case 'd':
            return parse_uint(cursor, &m_day) >= 1;
        case 'h':
            return parse_two_digits(cursor, &m_hours);
        case 'm':
            return parse_two_digits(cursor, &m_mins);
        case 's':
            return parse_seconds(cursor, &m_secs) >= 2;
        default:
            return match_char(cursor, part);
    }
}

/// Takes the zone from the rest of a text; anything else than a zone or nothing changes nothing.
void c_datetime_base::parse_zone(const char* text) {
    if (*text == '\0') {
        m_total_offset_mins = 0;
        m_is_utc = false;
        return;
    }
    if (text[0] == 'Z' && text[1] == '\0') {
        m_total_offset_mins = 0;
        m_is_utc = true;
        return;
    }
    const bool is_west = *text == '-';
    std::uint32_t hours = 0;
    std::uint32_t minutes = 0;
    if (skip_sign(&text) && parse_two_digits(&text, &hours) && match_char(&text, ':') &&
        parse_two_digits(&text, &minutes) && *text == '\0') {
        const auto total = static_cast<std::int32_t>(hours * 60 + minutes);
        m_total_offset_mins = is_west ? -total : total;
        m_is_utc = false;
    }
}

template <class Sink>
void c_datetime_base::print(const s_calendar_form& form, Sink sink) const {
    for (const char part : form.body) {
        switch (part) {
            case 'Y':
                sink.put(m_year, 4);
                break;
            case 'M':
                sink.put(m_month, 2);
                break;
            case 'D':
            case 'd':
                sink.put(m_day, 2);
                break;
            case 'h':
                sink.put(m_hours, 2);
                break;
            case 'm':
                sink.put(m_mins, 2);
                break;
            case 's':
                if (m_secs < 10.0F) sink.put('0');
                sink.put_seconds(m_secs);
                break;
            default:
                sink.put(part);
        }
    }
    if (m_is_utc) {
        sink.put('Z');
    } else if (m_total_offset_mins != 0) {
        const bool is_west = m_total_offset_mins < 0;
        const auto minutes = static_cast<std::uint32_t>(is_west ? negated(m_total_offset_mins) : m_total_offset_mins);
        sink.put(is_west ? '-' : '+');
        sink.put(minutes / 60, 2);
        sink.put(':');
        sink.put(minutes % 60, 2);
    }
}

void c_datetime_base::append(const s_calendar_form& form, std::string* out) const {
    std::array<char, k_text_size> text;
    char* end = text.data();
    print(form, c_text_sink(&end));
    out->append(text.data(), end);
}

void c_datetime_base::write(const s_calendar_form& form, std::ostream& stream) const {
    print(form, c_stream_sink(&stream));
}

}  // namespace lmx
