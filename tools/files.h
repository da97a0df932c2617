// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Files of the command: documents in, documents out, and what the system says when it refuses.

#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <streambuf>
#include <string>
#include <string_view>
#include <vector>

#include "document/report.h"
#include "schema/Vyr.h"
#include "tools/commands.h"
#include "tools/long_text.h"
#include "tools/system.h"
#include "tools/tree.h"

namespace vyr_tool {

/// Standard input or output, where a file name is asked for.
inline constexpr char k_standard_stream[] = "-";

/// What came of reading a file.
struct s_reading {
    /// Why the file itself could not be read, such as "permission denied"; empty if it could. Then the report counts.
    std::string refusal;
    com_vyrgraph_v2::DocumentReport report;
    std::uint64_t size = 0;  ///< of the file, in bytes

    bool is_ok() const { return refusal.empty() && report.isOk(); }
};

/// Takes the text of a document piece by piece, as it stands in the file or in the container.
using text_taker = std::function<void(std::string_view piece)>;

/// Reads a document: a file, whatever bytes its name is made of, a pipe or "-". A container is known by its name, in
/// a pipe by its first bytes.
s_reading read_document(const std::string& file, com_vyrgraph_v2::Vyr& document,
                        const com_vyrgraph_v2::ReportOptions& options = {}, const text_taker& take_text = {});

/// The same from the bytes of a plain document or of a container.
s_reading read_document_bytes(const std::string& bytes, com_vyrgraph_v2::Vyr& document,
                              const text_taker& take_text = {});

/// Reads a document for a command that needs a valid one, and says on standard error what is wrong with it. `size`,
/// which may be null, receives that of the file.
exit_code read_or_explain(const std::string& file, com_vyrgraph_v2::Vyr& document, std::uint64_t* size = nullptr,
                          const text_taker& take_text = {});

/// Says on standard error what came of a reading.
exit_code explain(const std::string& file, const s_reading& reading);

/// The same as the text that the library writes, without layout.
exit_code read_text(const std::string& file, c_long_text& text, std::uint64_t* size = nullptr);

/// The same as a tree.
exit_code read_tree(const std::string& file, c_tree& tree, std::uint64_t* size = nullptr);

/// The bytes of a file, a pipe or "-" as they come, at most 1 GB.
class c_input : public std::streambuf {
public:
    explicit c_input(const std::string& file);
    /// Of an open file, which is borrowed.
    explicit c_input(int descriptor) : m_descriptor(descriptor) {}
    c_input(const c_input&) = delete;
    c_input& operator=(const c_input&) = delete;
    ~c_input() override;

    /// Why there is no more, if that is not because all was read; otherwise empty.
    const std::string& refusal() const { return m_refusal; }
    /// The first character that is no blank, as far as it can be seen without reading on; 0 if there is none.
    char first_character();
    /// All that has not been read yet.
    std::string rest();

protected:
    int_type underflow() override;

private:
    bool fill();

    int m_descriptor;
    bool m_is_owned = false;
    std::size_t m_total = 0;
    std::string m_refusal;
    std::vector<char> m_buffer = std::vector<char>(std::size_t{1} << 16U);
};

/// Everything that a file, a pipe or "-" holds. Returns why it could not be read, or nothing.
std::string read_file(const std::string& file, std::string& bytes);

/// A folder for what must have a name for a while; removed with everything in it.
class c_scratch_folder {
public:
    /// In the folder for temporary files.
    c_scratch_folder();
    /// Where a file for this target can be made that takes its place at once: beside it, or, for what is no file, in
    /// the folder for temporary files.
    explicit c_scratch_folder(const std::string& target);
    c_scratch_folder(const c_scratch_folder&) = delete;
    c_scratch_folder& operator=(const c_scratch_folder&) = delete;
    ~c_scratch_folder();
    /// Empty if it could not be made: `refusal` says why.
    const std::filesystem::path& path() const { return m_path; }
    const std::string& refusal() const { return m_refusal; }

private:
    void make(const std::filesystem::path& parent);

    std::filesystem::path m_path;
    std::string m_refusal;
};

/// Puts a finished file in the place of another, or copies it to "-" or a device: either all of it, or nothing that
/// stays. An existing file keeps its permissions, a link stays one. Returns why it could not be done, or nothing.
std::string deliver(const std::filesystem::path& finished, const std::string& target);

/// The same for bytes.
std::string write_file(const std::string& target, const std::string& bytes);

/// The library's form of a file name; nothing for bytes that are no UTF-8.
std::optional<std::u16string> widen(const std::string& text);

/// What is wrong with a save, a line for each fault, and whether it is the document's doing or the system's.
exit_code explain_failed_write(const com_vyrgraph_v2::DocumentReport& report, std::string* reasons);

/// A printable name for messages.
std::string shown_name(const std::string& file);

bool is_container_name(const std::string& file);
/// The name of a container or of a plain document.
bool is_document_name(const std::string& file);

/// A fault as the library words it, under the file's printable name.
std::string fault_text(const std::string& file, com_vyrgraph_v2::DocumentFault fault);

/// Complains about a file on standard error.
void complain(const std::string& file, const std::string& text);

}  // namespace vyr_tool
