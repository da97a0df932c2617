// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// What the document calls do with a container: one document, in its first entry.

#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

class CZipContainer;

namespace com_vyrgraph_v2 {

/// A document's bytes. Not a string: that would write every byte once before the entry is read into it.
struct s_document_bytes {
    std::unique_ptr<char[]> data;
    std::size_t size = 0;
};

/// The bytes of the first entry of an open archive. An entry that isn't exactly what its header says is a
/// `CZipException`. Memory is taken for no more than the stored bytes can become.
s_document_bytes read_first_entry(CZipContainer& archive, const std::u16string& path);

/// Adds a file of so many bytes as the only entry of a new archive, and closes the archive. Anything but success is a
/// `CZipException`, a file of another size included: a full disk has cut it short, or the archive has overwritten it,
/// being the same file under another name.
void write_only_entry(CZipContainer& archive, const std::u16string& path, std::int64_t size);

}  // namespace com_vyrgraph_v2
