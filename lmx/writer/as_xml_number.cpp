// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Text forms of numbers: two exact short cuts for what documents hold, the general conversion for the rest.

#include "lmx/writer/as_xml.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace lmx {

namespace {

std::size_t copy_text(char* buffer, std::string_view text) {
    std::memcpy(buffer, text.data(), text.size());
    return text.size();
}

/// The powers of ten from 10^-4 on that border the numbers which the general format writes without an exponent. Each
/// double is the least one that is not below its power, so a comparison with it is exact.
constexpr std::array<double, 19> k_powers = {1e-4, 1e-3, 1e-2, 1e-1, 1e0,  1e1,  1e2,  1e3,  1e4, 1e5,
                                             1e6,  1e7,  1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14};
constexpr int k_least_power = -4;
constexpr int k_digits = 14;  // of a double

constexpr std::array<std::uint64_t, 18> make_integer_powers() {
    std::array<std::uint64_t, 18> powers{};
    std::uint64_t power = 1;
    for (std::uint64_t& entry : powers) {
        entry = power;
        power *= 10;
    }
    return powers;
}
constexpr std::array<std::uint64_t, 18> k_integer_powers = make_integer_powers();

/// `a * b / 2^shift` to the nearest integer, a tie to the even one. `a` is below 2^53 and `b` below 2^57; the shift
/// is from 2 to 66, and the result below 2^62.
std::uint64_t multiply_and_shift(std::uint64_t a, std::uint64_t b, int shift) {
    constexpr std::uint64_t low_half = 0xFFFFFFFF;
    const std::uint64_t lowest = (a & low_half) * (b & low_half);
    // No sum carries: the factors leave eleven and seven bits free.
    const std::uint64_t middle = (a >> 32) * (b & low_half) + (a & low_half) * (b >> 32) + (lowest >> 32);
    const std::uint64_t low = (middle << 32) | (lowest & low_half);
    const std::uint64_t high = (a >> 32) * (b >> 32) + (middle >> 32);

    // Moved up until the point lies two bits above the low word, which then only has to be zero or not.
    const int up = 66 - shift;
    const std::uint64_t quarters = (high << up) | ((low >> 1) >> (63 - up));
    const std::uint64_t quotient = quarters >> 2;
    const std::uint64_t eighths = ((quarters & 3U) << 1) | static_cast<std::uint64_t>((low << up) != 0);
    return quotient + static_cast<std::uint64_t>(eighths > 4 || (eighths == 4 && (quotient & 1U) != 0));
}

/// The eight decimal digits of a number, one in each byte, the first in the lowest. All bytes are cut at once.
std::uint64_t spread_digits(std::uint64_t number) {
    const std::uint64_t fours = number / 10000 + ((number % 10000) << 32);
    const std::uint64_t hundreds = ((fours * 10486) >> 20) & 0x0000007F0000007F;
    const std::uint64_t pairs = hundreds + ((fours - hundreds * 100) << 16);
    const std::uint64_t tens = ((pairs * 103) >> 10) & 0x000F000F000F000F;
    return tens + ((pairs - tens * 10) << 8);
}

/// Stores eight bytes, the lowest first.
void store(char* out, std::uint64_t bytes) {
    if constexpr (std::endian::native == std::endian::little) {
        std::memcpy(out, &bytes, sizeof bytes);
    } else {
        for (unsigned i = 0; i < 8; ++i) out[i] = static_cast<char>(bytes >> (8 * i));
    }
}

/// Puts a point ahead of the byte of that index and moves the bytes from there up by one; the last one falls out.
std::uint64_t insert_point(std::uint64_t bytes, int index) {
    const std::uint64_t below = (std::uint64_t{1} << (8 * index)) - 1;
    return (bytes & below) | (std::uint64_t{'.'} << (8 * index)) | ((bytes & ~below) << 8);
}

/// Fourteen decimal digits as text, the first in the lowest byte of `head`; `tail` has the last six.
struct s_digits {
    std::uint64_t head;
    std::uint64_t tail;
    int leading_zeros;  ///< of the first four digits
    int count;          ///< without the zeros at the end

    /// Of a number below 10^14 other than 0. The digits stay in registers: read back from memory, they would have to
    /// wait for their own stores.
    explicit s_digits(std::uint64_t number) {
        constexpr std::uint64_t zeros = 0x3030303030303030;  // "00000000"
        const std::uint64_t high = spread_digits(number / 100'000'000) >> 16;
        const std::uint64_t low = spread_digits(number % 100'000'000);
        head = zeros | high | (low << 48);
        tail = zeros | (low >> 16);
        constexpr std::uint64_t fifth_digit = std::uint64_t{1} << 32;
        leading_zeros = std::countr_zero(high | fifth_digit) / 8;
        count = k_digits - (low != 0 ? std::countl_zero(low) / 8 : 8 + std::countl_zero(high << 16) / 8);
    }

    /// Drops digits at the front, at most 7.
    void drop(int digits) {
        const int bits = 8 * digits;
        head = (head >> bits) | ((tail << 1) << (63 - bits));
        tail >>= bits;
        count -= digits;
    }

    /// Writes 16 bytes or 17; returns the end of the number that has so many digits ahead of its point.
    char* write(char* out, int integers) const {
        if (integers < 8) {
            store(out, insert_point(head, integers));
            store(out + 8, (tail << 8) | (head >> 56));
        } else {
            store(out, head);
            store(out + 8, insert_point(tail, integers - 8));
        }
        return out + (count <= integers ? integers : count + 1);
    }
};

/// Whether a decimal of so many digits behind the point is the number; `*scaled` is the decimal without its point.
///
/// It is exact: a correctly rounded quotient that gives the value back proves that the value is the double nearest to
/// that decimal, and with at most 14 digits no other decimal of 14 digits is nearer.
bool is_decimal(double size, double scale, std::uint64_t* scaled) {
    constexpr double half = 0.5;
    const auto nearest = static_cast<std::int64_t>(size * scale + half);
    *scaled = static_cast<std::uint64_t>(nearest);
    return static_cast<double>(nearest) / scale == size;
}

/// Writes a number of at most 8 digits with those ahead of its point counted as 0, 2 or 4; returns 0 for others. Most
/// numbers in documents are that short, and one word holds them.
std::size_t format_eight(char* buffer, double value) {
    constexpr std::uint64_t zeros = 0x3030303030303030;  // "00000000"
    const double size = std::fabs(value);
    const int integers = size < 1 ? 0 : size < 100 ? 2 : 4;
    const double scale = size < 1 ? 1e8 : size < 100 ? 1e6 : 1e4;
    std::uint64_t scaled = 0;
    if (!(size >= 1e-4 && size < 10000.0) || !is_decimal(size, scale, &scaled)) return 0;

    char* out = buffer;
    *out = '-';
    out += static_cast<int>(value < 0);
    const std::uint64_t digits = spread_digits(scaled);
    // The bits that are added change no answer and spare the question whether there are any.
    const int count = 8 - std::countl_zero(digits | 1U) / 8;
    if (integers == 0) {
        out[0] = '0';
        out[1] = '.';
        store(out + 2, zeros | digits);
        return static_cast<std::size_t>(out + 2 + count - buffer);
    }
    // The first of them that isn't zero stands among those ahead of the point.
    const int unused = std::countr_zero(digits | (std::uint64_t{1} << 63)) / 8;
    const int ahead = integers - unused;
    const std::uint64_t text = (zeros | digits) >> (8 * unused);
    store(out, insert_point(text, ahead));
    out[8] = static_cast<char>(text >> 56);
    return static_cast<std::size_t>(out + (count <= integers ? ahead : count - unused + 1) - buffer);
}

/// The same of a number of at most 4 digits before and 10 behind the point.
std::size_t format_short(char* buffer, double value) {
    constexpr int integers = 4;
    const double size = std::fabs(value);
    std::uint64_t scaled = 0;
    // Below, the general format has an exponent.
    if (!(size >= 1e-4 && size < 10000.0) || !is_decimal(size, 1e10, &scaled)) return 0;

    char* out = buffer;
    *out = '-';
    out += static_cast<int>(value < 0);
    s_digits digits(scaled);
    const int unused = std::min(digits.leading_zeros, integers - 1);
    digits.drop(unused);
    return static_cast<std::size_t>(digits.write(out, integers - unused) - buffer);
}

/// Writes a number that the general format of 14 digits writes without an exponent; returns 0 for others.
///
/// Numbers that were computed, not measured, are mostly such. A double times a power of ten up to 10^17 fits two
/// words, so that the digits come out of one product, exactly, in less than half of the general conversion's time.
std::size_t format_plain(char* buffer, double value) {
    const double size = std::fabs(value);
    const auto power_of = [](int exponent) { return static_cast<std::size_t>(exponent - k_least_power); };
    if (!(size >= k_powers[0] && size < k_powers[power_of(k_digits)])) return 0;

    const auto bits = std::bit_cast<std::uint64_t>(size);
    const int binary_exponent = static_cast<int>(bits >> 52) - 1023;
    const std::uint64_t mantissa = (bits & 0xFFFFFFFFFFFFF) | 0x10000000000000;
    int exponent = (binary_exponent * 1233) >> 12;  // of the power of two in base ten: log10(2) is 1233 / 4096
    if (size >= k_powers[power_of(exponent + 1)]) ++exponent;
    const auto places = static_cast<std::size_t>(k_digits - 1 - exponent);
    std::uint64_t number = multiply_and_shift(mantissa, k_integer_powers[places], 52 - binary_exponent);
    if (number == k_integer_powers[k_digits]) {  // rounded up to one digit more
        if (++exponent == k_digits) return 0;
        number /= 10;
    }

    char* out = buffer;
    *out = '-';
    out += static_cast<int>(value < 0);
    const s_digits digits(number);
    if (exponent >= 0) return static_cast<std::size_t>(digits.write(out, exponent + 1) - buffer);
    copy_text(out, "0.000");
    out += 1 - exponent;
    store(out, digits.head);
    store(out + 8, digits.tail);
    return static_cast<std::size_t>(out + digits.count - buffer);
}

template <class Number>
std::size_t format_number(char* buffer, Number value, int precision) {
    switch (std::fpclassify(value)) {
        case FP_NAN:
            return copy_text(buffer, "NaN");
        case FP_INFINITE:
            return copy_text(buffer, value < 0 ? "-INF" : "INF");
        case FP_ZERO:
            return copy_text(buffer, std::signbit(value) ? "-0.0" : "0.0");
        default:
            break;
    }
    char* const end = buffer + k_number_text_size;
    return static_cast<std::size_t>(std::to_chars(buffer, end, value, std::chars_format::general, precision).ptr -
                                    buffer);
}

}  // namespace

std::size_t format_as_xml(char* buffer, double value) {
    if (const std::size_t size = format_eight(buffer, value); size != 0) return size;
    if (const std::size_t size = format_short(buffer, value); size != 0) return size;
    if (const std::size_t size = format_plain(buffer, value); size != 0) return size;
    return format_number(buffer, value, k_digits);
}

std::size_t format_as_xml(char* buffer, float value) { return format_number(buffer, value, 7); }

}  // namespace lmx
