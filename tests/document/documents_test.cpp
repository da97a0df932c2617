// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Whole documents: those in `valid` come back byte for byte by every road, those in `invalid` fail with the code,
/// the item and the line that the table beside them gives, and with the reports of `lines.txt`, a line for each
/// fault. Adding a case is adding a file and its lines.

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <sstream>

#include "schema/Vyr.h"
#include "tests/files.h"

namespace vyr_test {
namespace {

using namespace lmx;
using com_vyrgraph_v2::Vyr;
namespace fs = std::filesystem;

const fs::path k_documents = VYR_TEST_DOCUMENTS;

TEST(Documents, ValidOnesComeBackByEveryRoad) {
    const std::vector<fs::path> files = documents_in({"valid"});
    ASSERT_GE(files.size(), 33U);
    for (const fs::path& file : files) {
        SCOPED_TRACE(file);
        const std::string bytes = bytes_of(file);
        Vyr from_file;
        ASSERT_EQ(from_file.loadFile(file.u16string()), ELMX_OK);
        ASSERT_EQ(from_file.writeFile(u"documents_test.vyr"), ELMX_OK);
        EXPECT_EQ(bytes_of("documents_test.vyr"), bytes);

        std::u16string text;
        convert(&text, bytes);
        Vyr from_string;
        ASSERT_EQ(from_string.loadString(text), ELMX_OK);
        EXPECT_EQ(from_string.writeString().getXmlDocument(), text);
        EXPECT_EQ(writeStringWithReport(from_string, &text).toString(), "");

        Vyr unmarshalled;
        std::string written;
        ASSERT_EQ(unmarshalled.unmarshal(bytes), ELMX_OK);
        ASSERT_EQ(unmarshalled.marshal(&written), ELMX_OK);
        EXPECT_EQ(written, bytes);
    }
}

TEST(Documents, InvalidOnesFailInTheirPlace) {
    std::ifstream reports(k_documents / "invalid/lines.txt");
    std::ifstream table(k_documents / "invalid/expected.tsv");
    std::string line;
    std::map<std::string, std::string> reported;
    while (std::getline(reports, line)) reported[line.substr(0, line.find(':'))] += line + '\n';
    std::getline(table, line);
    std::size_t rows = 0;
    while (std::getline(table, line)) {
        SCOPED_TRACE(line);
        std::istringstream fields(line);
        std::string file, item;
        int code = 0;
        int line_no = 0;
        fields >> file >> code >> item >> line_no;
        const std::string bytes = bytes_of(k_documents / "invalid" / file);
        c_xml_reader_memory reader(bytes.data(), bytes.size());
        Vyr document;
        const auto report =
            loadMemoryWithReport(document, bytes.data(), bytes.size(), {.collect = true, .name = file});
        EXPECT_EQ(report.toString(), reported[file]);
        EXPECT_EQ(report.getCode(), code);
        document.reset();
        EXPECT_EQ(document.unmarshal(reader), code);
        EXPECT_EQ(reader.get_error_item_name(), item);
        EXPECT_EQ(reader.get_line_no(), line_no);
        // What was read by then can be copied, written as far as it goes, and used again.
        Vyr copy(document);
        std::string written;
        copy.marshal(&written);
        document.reset();
        EXPECT_EQ(document.loadFile((k_documents / "valid/all-01.vyr").u16string()), ELMX_OK);
        ++rows;
    }
    EXPECT_EQ(rows, documents_in({"invalid"}).size());
    EXPECT_GE(rows, 70U);
}

}  // namespace
}  // namespace vyr_test
