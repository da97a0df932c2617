// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Loading and saving with a report: not a bare code, but where and why, for whoever has to mend the document.
///
/// The calls do what `Vyr::loadFile`, `loadString`, `writeFile` and `writeString` do, to the byte and, but for two
/// faults of a save that those pass over, to the code. They throw nothing but `std::bad_alloc`: a failure of a
/// container is a fault like any other.

#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "lmx/error.h"
#include "lmx/export.h"

namespace com_vyrgraph_v2 {

class Vyr;
class c_report_builder;

/// One thing that is wrong. All texts are UTF-8 without control characters, fit to be printed as they are.
struct DocumentFault {
    lmx::elmx_error code = lmx::ELMX_OK;
    /// The code in words, such as "Value greater than specified maximum". Of the codes 1000 and 1001, what the
    /// document calls mean by them.
    std::string text;
    /// What would be right, what exactly is missing, or what was found instead: "it must be at most 100", "the
    /// element Preamble is missing; <Vyr:Palette> stands here". Empty if there is no more to say than `text` does.
    std::string detail;
    /// The file as it was named in the call; of a container, the container. Empty for strings and memory, unless
    /// `ReportOptions::name` names them.
    std::string file;
    /// From 1: where the element or the start tag begins that is wrong. 0 if there is no place in a text: on saving,
    /// and when a file or an archive can't be read.
    int line = 0;
    /// From 1, in characters as an editor counts them: where in the line. 0 if `line` is, and of a file that can't be
    /// read a second time, such as a pipe.
    int column = 0;
    /// The element, attribute or class that the fault is about, as the reader names it: "Vyr:Red", "PaletteName",
    /// "PaletteType". Empty if there is none.
    std::string item;
    /// The open elements from the outermost to the one that is wrong, without prefix, with their names and, where
    /// they repeat without a name, their numbers from 1; an attribute is a last step with an at sign. The document's
    /// own element is left out where anything stands in it: `Palette "Inks" / ColorSet "All" / Color "Ink 17" /
    /// ColorSpaceCIELab / L`, `Palette "Inks" / ColorSet[3] / @ColorSetName`, `Vyr`.
    std::string path;
    /// The offending value or name as read, shortened to a hundred characters or so. Empty if there is none, or if
    /// the value is empty.
    std::string value;
};

/// What a load or a save has to say: nothing, if all went well.
class VYR_EXPORT DocumentReport {
public:
    /// What the plain call gives: 0, or the code of the first fault. Where the plain call throws, 1 if the system
    /// refuses the file, and otherwise 1000. Of a save that the plain call has no fault to find with, the code of
    /// what it passes over: a plain file that isn't written in full, or else a value that could not be read back.
    lmx::elmx_error getCode() const { return m_code; }
    bool isOk() const { return m_code == lmx::ELMX_OK; }

    /// The faults that were kept, in the order of the document.
    std::size_t getFaultCount() const { return m_faults.size(); }
    /// A fault by its number from 0; for a number that is too high, an empty one with the code 0.
    const DocumentFault& getFault(std::size_t index) const;
    const std::vector<DocumentFault>& getFaults() const { return m_faults; }

    /// How many there were with those that the limit left out.
    std::size_t getTotalCount() const { return m_total; }
    bool hasMore() const { return m_total > m_faults.size(); }
    /// False if a fault ended the load or the save: whatever follows it in the document was not looked at, or nothing
    /// was written.
    bool isReadToEnd() const { return m_is_read_to_end; }
    /// The `errno` with which the system refused to open, read or write the file; 0 if it didn't. Where it refused in
    /// the middle of a document, the codes are those of a document that ends there.
    int getSystemError() const { return m_system_error; }

    /// One line for each fault, as `formatFault` gives them.
    std::string toString() const;

private:
    friend class c_report_builder;
    lmx::elmx_error m_code = lmx::ELMX_OK;
    std::vector<DocumentFault> m_faults;
    std::size_t m_total = 0;
    bool m_is_read_to_end = true;
    int m_system_error = 0;
};

/// How to load.
struct ReportOptions {
    /// Go on after faults and gather them. A value that is wrong (19, 20, 22, 35, 36, 37, 38) is reported once and
    /// stored as it converts, an attribute that isn't known (39) is passed over, and of one given twice (3) the
    /// second counts. An element that has no place (10, 31, 44) is read over with all that it holds, without a look
    /// at what that means, and so is what is left of one that can't be read (29); what is missing (21, 25, 32) stays
    /// missing. What is no XML ends the load (23, 34 and those of the declarations), and so does an element that
    /// isn't that of a document (16). Without this, the first fault does.
    bool collect = false;
    /// How many faults to keep. Those beyond it are counted only.
    std::size_t limit = 100;
    /// For `DocumentFault::file` of a string or of memory.
    std::string name{};
};

/// `Vyr::loadFile` with a report: a plain document, or the first entry of a container if the path ends in ".vyrz".
VYR_EXPORT DocumentReport loadFileWithReport(Vyr& document, const std::u16string& path,
                                             const ReportOptions& options = {});
/// The same with the path in the system's own form, which is UTF-8 for containers.
VYR_EXPORT DocumentReport loadFileWithReport(Vyr& document, const std::string& path,
                                             const ReportOptions& options = {});
/// `Vyr::loadString` with a report.
VYR_EXPORT DocumentReport loadStringWithReport(Vyr& document, const std::u16string& text,
                                               const ReportOptions& options = {});
/// The same from the bytes of a document in any encoding that a file may have; borrowed for the call.
VYR_EXPORT DocumentReport loadMemoryWithReport(Vyr& document, const char* data, std::size_t size,
                                               const ReportOptions& options = {});

/// `Vyr::writeFile` with a report: which element can't be written, and what it lacks. Two things that are no failure
/// of `writeFile` are faults here. A plain file that can't be written in full: 1. And a value that could not be read
/// back, with the code of reading, or 35 for a text that would come back as another: the file is written all the
/// same, as `isReadToEnd()` tells.
VYR_EXPORT DocumentReport writeFileWithReport(const Vyr& document, const std::u16string& path);
/// The same with the path in UTF-8; what is none is a fault with the code 1.
VYR_EXPORT DocumentReport writeFileWithReport(const Vyr& document, const std::string& path);
/// What `writeString` with a report would say, without the text: whether the document can be written, and would be
/// read back as it is.
VYR_EXPORT DocumentReport checkWriting(const Vyr& document);
/// `Vyr::writeString` with a report. `*text` is assigned unless the plain call fails.
VYR_EXPORT DocumentReport writeStringWithReport(const Vyr& document, std::u16string* text);

/// `file:line:column: path: text (value): detail`, without the parts that are empty; no line break at the end.
/// Without a file it begins with `line 12:5: `, and a value that `detail` names as a tag is not said twice.
VYR_EXPORT std::string formatFault(const DocumentFault& fault);

}  // namespace com_vyrgraph_v2
