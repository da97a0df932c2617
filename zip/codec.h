// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Compression methods: bytes in, bytes out, in steps of any size.

#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace zip {

/// Compression methods as an archive numbers them.
enum e_method : std::uint16_t { method_stored = 0, method_deflated = 8, method_bzip2 = 12 };

/// What is left to take from and to fill; a step moves the pointers on.
struct s_flow {
    const char* in = nullptr;
    std::size_t in_left = 0;
    char* out = nullptr;
    std::size_t out_left = 0;
};

/// One stream of data, compressed or decompressed.
class c_codec {
public:
    virtual ~c_codec();
    /// Takes and fills as much as it can; `is_last` says that no input follows what is left of this one. True once
    /// the stream has ended and all of it has been delivered. An error of the compression library is a
    /// `CZipException` with its code and no file name.
    virtual bool step(s_flow& flow, bool is_last) = 0;
};

/// Null for a method that isn't known.
std::unique_ptr<c_codec> make_decompressor(std::uint16_t method);
/// The level is 1 to 9, or -1 for the library's own.
std::unique_ptr<c_codec> make_compressor(std::uint16_t method, int level);
/// One step for the archive of that name, which a failure then carries.
bool step(c_codec& codec, s_flow& flow, bool is_last, const std::u16string& path);

/// Whether so many stored bytes may become that many by decompression: as many as deflate can make of them, for bzip2
/// too. None may by a method that isn't known.
bool can_inflate_to(std::uint16_t method, std::uint64_t stored, std::uint64_t original);

/// The check sum of an archive, carried on over further data.
std::uint32_t crc32_of(std::uint32_t crc, std::string_view data);

}  // namespace zip
