// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "zip/codec.h"

#include <bzlib.h>
#include <zlib.h>

#include <algorithm>
#include <cstring>

#include "zip/exception.h"

namespace zip {

c_codec::~c_codec() = default;

namespace {

/// The best that deflate can do: 258 bytes from the two bits of a length and a distance code. Bzip2 could do a
/// thousand times better, and is held to the same.
constexpr std::uint64_t k_growth_limit = 1032;

/// The libraries count in `unsigned int`; a step may do less than it was given.
unsigned bounded(std::size_t count) { return static_cast<unsigned>(std::min<std::size_t>(count, 1U << 30U)); }

[[noreturn]] void fail(int code) { throw CZipException(code); }

class c_copy : public c_codec {
public:
    bool step(s_flow& flow, bool is_last) override {
        const std::size_t count = std::min(flow.in_left, flow.out_left);
        if (count > 0) std::memcpy(flow.out, flow.in, count);
        flow.in += count;
        flow.in_left -= count;
        flow.out += count;
        flow.out_left -= count;
        return is_last && flow.in_left == 0;
    }
};

/// zlib's and bzip2's streams have the same members under the same names, so one step serves both. `t_char` is the
/// library's type of a byte, `t_call` the call that does the work and returns the library's code.
template <typename t_char, typename t_stream, typename t_call>
int step_stream(t_stream& stream, s_flow& flow, t_call call) {
    const unsigned in = bounded(flow.in_left);
    const unsigned out = bounded(flow.out_left);
    // Neither library writes to its input; their types don't say so.
    stream.next_in = reinterpret_cast<t_char*>(const_cast<char*>(flow.in));
    stream.avail_in = in;
    stream.next_out = reinterpret_cast<t_char*>(flow.out);
    stream.avail_out = out;
    const int code = call();
    flow.in += in - stream.avail_in;
    flow.in_left -= in - stream.avail_in;
    flow.out += out - stream.avail_out;
    flow.out_left -= out - stream.avail_out;
    return code;
}

/// Z_BUF_ERROR says that there was nothing to do yet, which is no failure.
bool has_ended(int zlib_code) {
    if (zlib_code < 0 && zlib_code != Z_BUF_ERROR) fail(zlib_code);
    if (zlib_code == Z_NEED_DICT) fail(Z_DATA_ERROR);
    return zlib_code == Z_STREAM_END;
}

// Archives hold raw deflate data: negative window bits leave out the library's own wrapper.
constexpr int k_window_bits = -15;
constexpr int k_memory_level = 8;

class c_inflate : public c_codec {
public:
    c_inflate() {
        const int code = inflateInit2(&m_stream, k_window_bits);
        if (code != Z_OK) fail(code);
    }
    c_inflate(const c_inflate&) = delete;
    c_inflate& operator=(const c_inflate&) = delete;
    ~c_inflate() override { inflateEnd(&m_stream); }
    bool step(s_flow& flow, bool) override {
        return has_ended(step_stream<Bytef>(m_stream, flow, [this] { return inflate(&m_stream, Z_NO_FLUSH); }));
    }

private:
    z_stream m_stream{};
};

class c_deflate : public c_codec {
public:
    explicit c_deflate(int level) {
        const int code =
            deflateInit2(&m_stream, level, Z_DEFLATED, k_window_bits, k_memory_level, Z_DEFAULT_STRATEGY);
        if (code != Z_OK) fail(code);
    }
    c_deflate(const c_deflate&) = delete;
    c_deflate& operator=(const c_deflate&) = delete;
    ~c_deflate() override { deflateEnd(&m_stream); }
    bool step(s_flow& flow, bool is_last) override {
        const int flush = is_last ? Z_FINISH : Z_NO_FLUSH;
        return has_ended(step_stream<Bytef>(m_stream, flow, [this, flush] { return deflate(&m_stream, flush); }));
    }

private:
    z_stream m_stream{};
};

class c_bzip2_decompress : public c_codec {
public:
    c_bzip2_decompress() {
        const int code = BZ2_bzDecompressInit(&m_stream, 0, 0);
        if (code != BZ_OK) fail(code);
    }
    c_bzip2_decompress(const c_bzip2_decompress&) = delete;
    c_bzip2_decompress& operator=(const c_bzip2_decompress&) = delete;
    ~c_bzip2_decompress() override { BZ2_bzDecompressEnd(&m_stream); }
    bool step(s_flow& flow, bool) override {
        const int code = step_stream<char>(m_stream, flow, [this] { return BZ2_bzDecompress(&m_stream); });
        if (code < 0) fail(code);
        return code == BZ_STREAM_END;
    }

private:
    bz_stream m_stream{};
};

class c_bzip2_compress : public c_codec {
public:
    explicit c_bzip2_compress(int level) {
        const int code = BZ2_bzCompressInit(&m_stream, level < 1 ? 9 : level, 0, 0);
        if (code != BZ_OK) fail(code);
    }
    c_bzip2_compress(const c_bzip2_compress&) = delete;
    c_bzip2_compress& operator=(const c_bzip2_compress&) = delete;
    ~c_bzip2_compress() override { BZ2_bzCompressEnd(&m_stream); }
    bool step(s_flow& flow, bool is_last) override {
        // Asked to run without input it would report misuse.
        if (!is_last && flow.in_left == 0) return false;
        const int action = is_last ? BZ_FINISH : BZ_RUN;
        const int code =
            step_stream<char>(m_stream, flow, [this, action] { return BZ2_bzCompress(&m_stream, action); });
        if (code < 0) fail(code);
        return code == BZ_STREAM_END;
    }

private:
    bz_stream m_stream{};
};

}  // namespace

std::unique_ptr<c_codec> make_decompressor(std::uint16_t method) {
    switch (method) {
        case method_stored:
            return std::make_unique<c_copy>();
        case method_deflated:
            return std::make_unique<c_inflate>();
        case method_bzip2:
            return std::make_unique<c_bzip2_decompress>();
        default:
            return nullptr;
    }
}

std::unique_ptr<c_codec> make_compressor(std::uint16_t method, int level) {
    switch (method) {
        case method_deflated:
            return std::make_unique<c_deflate>(level);
        case method_bzip2:
            return std::make_unique<c_bzip2_compress>(level);
        default:
            return std::make_unique<c_copy>();
    }
}

bool step(c_codec& codec, s_flow& flow, bool is_last, const std::u16string& path) {
    try {
        return codec.step(flow, is_last);
    } catch (const CZipException& failure) {
        throw CZipException(failure.GetCause(), path);
    }
}

bool can_inflate_to(std::uint16_t method, std::uint64_t stored, std::uint64_t original) {
    switch (method) {
        case method_stored:
            return original <= stored;
        case method_deflated:
        case method_bzip2:
            return original <= k_growth_limit * stored;
        default:
            return false;
    }
}

std::uint32_t crc32_of(std::uint32_t crc, std::string_view data) {
    return static_cast<std::uint32_t>(crc32_z(crc, reinterpret_cast<const Bytef*>(data.data()), data.size()));
}

}  // namespace zip
