// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Any bytes as an archive: every entry is read, and the document call takes the file as well.

#if !defined(_WIN32)
#include <sys/mman.h>
#include <unistd.h>
#endif

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

#include "schema/Vyr.h"
#include "zip/container.h"

namespace {

/// Enough for any document of a fuzzer's corpus; what claims to be larger is read in part.
constexpr std::size_t k_read_limit = std::size_t{1} << 20U;

void read_all(const std::u16string& path) try {
    CZipContainer archive;
    archive.OpenContainer(path, zip_open_read);
    std::vector<char> data(k_read_limit);
    for (std::size_t i = 0; i < archive.GetEntryCount(); ++i) {
        static_cast<void>(archive.GetEntryHeader(i)->GetFileName());
        if (!archive.OpenEntry(i)) continue;
        try {
            archive.ReadEntry(data.data(), data.size());
        } catch (const CZipException&) {
        }
        archive.CloseEntry(nullptr, true);
    }
} catch (const CZipException&) {
    // An answer like any other.
}

void load(const std::u16string& path) {
    try {
        static_cast<void>(com_vyrgraph_v2::Vyr().loadFile(path));
    } catch (const CZipException&) {
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
#if defined(_WIN32)
    std::ofstream("fuzz.vyrz", std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes), static_cast<std::streamsize>(size));
    const std::u16string path = u"fuzz.vyrz";
    read_all(path);
    load(path);
#else
    static const int file = memfd_create("fuzz.vyrz", 0);
    if (ftruncate(file, 0) != 0 || pwrite(file, bytes, size, 0) != static_cast<ssize_t>(size)) std::abort();
    std::u16string path;
    lmx::convert(&path, "/proc/self/fd/" + std::to_string(file));
    read_all(path);
    // The document call knows a container by its name, so the file gets one for as long as the call takes.
    const std::string name = "fuzz." + std::to_string(getpid()) + ".vyrz";
    if (symlink(("/proc/self/fd/" + std::to_string(file)).c_str(), name.c_str()) != 0) std::abort();
    lmx::convert(&path, name);
    load(path);
    unlink(name.c_str());
#endif
    return 0;
}
