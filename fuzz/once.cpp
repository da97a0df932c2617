// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// In the fuzzing engine's place where there is none: runs each input of a corpus once. A finding ends the program.

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);

int main(int count, char** arguments) {
    if (count != 2) return 2;
    int runs = 0;
    for (const auto& entry : std::filesystem::directory_iterator(arguments[1])) {
        std::ifstream file(entry.path(), std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(file), {}};
        // The last one to be told is the one that was found.
        std::fprintf(stderr, "%s\n", entry.path().filename().string().c_str());
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
        ++runs;
    }
    std::printf("%d runs\n", runs);
    return runs > 0 ? 0 : 1;
}
