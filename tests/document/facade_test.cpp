// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The document calls: stamps, endings, what survives a failure, and documents on disk.

#include <cerrno>
#include <fstream>

#include "schema/Vyr.h"
#include "tests/files.h"
#include "zip/container.h"

namespace vyr_test {
namespace {

using namespace lmx;
using com_vyrgraph_v2::Vyr;
namespace fs = std::filesystem;

/// The smallest document that can be written.
Vyr minimal_document() {
    Vyr document;
    auto& header = document.get_Preamble().get_Header();
    header.set_Creator(u"Gr\u00FCn");
    header.set_CreatorVersion(u"1");
    header.set_Purpose(u"\U0001F3A8");
    header.append_ChangeHistory(c_datetime("2024-05-01T09:30:00Z"));
    return document;
}

class Facade : public ScratchFolder {
protected:
    std::u16string path(const char* name) const { return ScratchFolder::path(name).u16string(); }
    bool is_there(const char* name) const { return fs::exists(m_folder / name); }
};

TEST_F(Facade, AFreshDocumentIsStampedAndIncomplete) {
    const Vyr document;
    const auto& header = document.get_Preamble().get_Header();
    EXPECT_TRUE(document.is_occurs_ok());
    EXPECT_EQ(header.get_ReadSDKInformation().get_SDKName(), u"Vyr2-LMX-3.7.6");
    EXPECT_EQ(header.get_ReadSDKInformation().get_SDKVersion().get_SDKVersion(), u"1.0");
    EXPECT_FALSE(header.isset_WriteSDKInformation());
    const auto result = document.writeString();
    EXPECT_EQ(result.getElmxError(), ELMX_OCCURS_ERROR_ON_MARSHAL);
    EXPECT_TRUE(result.getXmlDocument().empty());
    EXPECT_EQ(document.writeFile(path("a.vyr")), ELMX_OCCURS_ERROR_ON_MARSHAL);
    EXPECT_FALSE(is_there("a.vyr"));
}

TEST_F(Facade, WritingStampsAndReadingKeepsWhatTheDocumentSays) {
    const Vyr document = minimal_document();
    const auto result = document.writeString();
    ASSERT_EQ(result.getElmxError(), ELMX_OK);
    EXPECT_TRUE(document.get_Preamble().get_Header().isset_WriteSDKInformation());
    std::u16string text = result.getXmlDocument();
    const std::u16string name = u"<Vyr:SDKName>Vyr2-LMX-3.7.6";
    text.replace(text.find(name), name.size(), u"<Vyr:SDKName>other");
    Vyr back;
    ASSERT_EQ(back.loadString(text), ELMX_OK);
    EXPECT_EQ(back.get_Preamble().get_Header().get_ReadSDKInformation().get_SDKName(), u"other");
    EXPECT_EQ(back.writeString().getXmlDocument(), text);
    Vyr copy(back);
    EXPECT_EQ(copy.get_Preamble().get_Header().get_ReadSDKInformation().get_SDKName(), u"Vyr2-LMX-3.7.6");
    std::string plain;
    EXPECT_EQ(minimal_document().marshal(&plain), ELMX_OK);
    EXPECT_EQ(plain.find("WriteSDKInformation"), std::string::npos);
}

TEST_F(Facade, EndingsAreComparedExactly) {
    const Vyr document = minimal_document();
    for (const char* const name : {"a", "a.xml", "a.VYR", "a.vyR", "vyr"}) {
        EXPECT_EQ(document.writeFile(path(name)), ELMX_USER_DEFINED_2) << name;
        EXPECT_FALSE(is_there(name)) << name;
    }
    ASSERT_EQ(document.writeFile(path("\xC3\xA9.vyr")), ELMX_OK);
    fs::rename(ScratchFolder::path("\xC3\xA9.vyr"), m_folder / "b.xml");
    Vyr back;
    EXPECT_EQ(back.loadFile(path("b.xml")), ELMX_OK);
    // An archive under another ending is no XML.
    ASSERT_EQ(document.writeFile(path("c.vyrz")), ELMX_OK);
    fs::rename(m_folder / "c.vyrz", m_folder / "c.VYRZ");
    EXPECT_EQ(back.loadFile(path("c.VYRZ")), ELMX_UNEXPECTED_END_OF_MESSAGE);
}

TEST_F(Facade, AContainerHoldsThePlainDocumentAndLeavesNoOther) {
    const Vyr document = minimal_document();
    ASSERT_EQ(document.writeFile(path("a.vyr")), ELMX_OK);
    const std::string plain = bytes_of(path("a.vyr"));
    ASSERT_EQ(document.writeFile(path("a.vyrz")), ELMX_OK);
    EXPECT_FALSE(is_there("a.vyr"));
    CZipContainer archive;
    ASSERT_TRUE(archive.OpenContainer(path("a.vyrz"), zip_open_read));
    EXPECT_EQ(archive.GetEntryCount(), 1U);
    EXPECT_EQ(archive.GetEntryHeader(0)->file_name, "a.vyr");
    std::string inside(plain.size() + 1, '\0');
    ASSERT_TRUE(archive.OpenEntry(0));
    inside.resize(archive.ReadEntry(inside.data(), inside.size()));
    EXPECT_EQ(inside, plain);
    EXPECT_EQ(Vyr().writeFile(path("b.vyrz")), ELMX_OCCURS_ERROR_ON_MARSHAL);
    EXPECT_FALSE(is_there("b.vyr") || is_there("b.vyrz"));
}

TEST_F(Facade, AnArchiveIsOpenedBeforeFailuresBecomeACode) {
    Vyr document = minimal_document();
    std::ofstream(m_folder / "text.vyrz") << "no archive";
    std::ofstream(m_folder / "empty.vyrz") << "PK\5\6" << std::string(18, '\0');
    for (const auto& [name, cause] : {std::pair("missing.vyrz", ENOENT), std::pair("text.vyrz", 118)}) {
        try {
            document.loadFile(path(name));
            ADD_FAILURE() << name;
        } catch (const CZipException& failure) {
            EXPECT_EQ(failure.GetCause(), cause);
            EXPECT_EQ(failure.GetFileName(), path(name));
        }
    }
    EXPECT_EQ(document.loadFile(path("empty.vyrz")), ELMX_USER_DEFINED_1);
    // What can't be created leaves the plain file; what can't be prepared leaves an archive of nothing.
    fs::create_directory(m_folder / "folder.vyrz");
    EXPECT_THROW(document.writeFile(path("folder.vyrz")), CZipException);
    EXPECT_TRUE(is_there("folder.vyr"));
    EXPECT_THROW(document.writeFile(path("missing/a.vyrz")), CZipException);
    fs::create_directory(m_folder / "taken.vyr");
    EXPECT_EQ(document.writeFile(path("taken.vyrz")), ELMX_USER_DEFINED_1);
    EXPECT_EQ(bytes_of(path("taken.vyrz")), "");
    EXPECT_TRUE(is_there("taken.vyr"));
    // Two names of one file: making the archive has emptied what was prepared.
#if !defined(_WIN32)  // where links take a right that few have
    fs::create_symlink("same.vyr", m_folder / "same.vyrz");
    EXPECT_EQ(document.writeFile(path("same.vyrz")), ELMX_USER_DEFINED_1);
#endif
    // Each byte of an archive matters: a changed one gives the code, the exception or, where only names, times and
    // attributes stand, the document.
    ASSERT_EQ(document.writeFile(path("a.vyrz")), ELMX_OK);
    const std::string good = bytes_of(path("a.vyrz"));
    for (std::size_t i = 0; i < good.size(); ++i) {
        std::string bytes = good;
        bytes[i] = static_cast<char>(~bytes[i]);
        write_file(path("b.vyrz"), bytes);
        Vyr back;
        try {
            const elmx_error code = back.loadFile(path("b.vyrz"));
            EXPECT_TRUE(code == ELMX_OK || code == ELMX_USER_DEFINED_1) << i << ": " << code;
            if (code != ELMX_OK) continue;
            EXPECT_EQ(back.get_Preamble().get_Header().get_Creator(), u"Gr\u00FCn") << i;
        } catch (const CZipException& failure) {
            EXPECT_GE(i, good.size() - 22 - 46 - 5) << failure.what();
        }
    }
}

TEST_F(Facade, NarrowPathsLeadToTheSameFiles) {
    for (const char* const name : {"Gr\u00FCn.vyr", "Gr\u00FCn.vyrz"}) {
        const std::string narrow = name_of(ScratchFolder::path(name));
        EXPECT_EQ(minimal_document().writeFile(narrow), ELMX_OK);
        Vyr wide_one;
        Vyr narrow_one;
        EXPECT_EQ(wide_one.loadFile(path(name)), ELMX_OK);
        EXPECT_EQ(narrow_one.loadFile(narrow), ELMX_OK);
        EXPECT_EQ(narrow_one.writeString().getXmlDocument(), wide_one.writeString().getXmlDocument());
        EXPECT_TRUE(com_vyrgraph_v2::writeFileWithReport(narrow_one, narrow).isOk());
    }
    EXPECT_EQ(minimal_document().writeFile("scratch/\xFF.vyr"), ELMX_NO_FILE);
    EXPECT_EQ(com_vyrgraph_v2::writeFileWithReport(minimal_document(), "\xFF.vyr").toString(),
              "\\xff.vyr: Unable to open file: the name must be UTF-8\n");
}

TEST_F(Facade, FilesThatCantBeOpened) {
    const std::u16string not_text = path("") + u"\xD800.vyr";
    Vyr document = minimal_document();
    EXPECT_EQ(document.loadFile(path("missing.vyr")), ELMX_NO_FILE);
    EXPECT_EQ(document.loadFile(not_text), ELMX_NO_FILE);
    EXPECT_EQ(document.loadFile(path("a") + u'\0' + u".vyr"), ELMX_NO_FILE);
    EXPECT_EQ(document.writeFile(path("missing/a.vyr")), ELMX_OK);
    EXPECT_EQ(document.writeFile(not_text), ELMX_OK);
    EXPECT_TRUE(fs::is_empty(m_folder));
}

TEST_F(Facade, AFailedLoadKeepsWhatWasReadAndASecondLoadAppends) {
    std::u16string text = minimal_document().writeString().getXmlDocument();
    text.insert(text.find(u"</Vyr:Vyr>"), u"<Vyr:Palette PaletteName='half'><Vyr:Oops/></Vyr:Palette>");
    Vyr document;
    EXPECT_EQ(document.loadString(text), ELMX_MANDATORY_ELEMENT_MISSING);
    EXPECT_EQ(document.loadString(text), ELMX_MANDATORY_ELEMENT_MISSING);
    ASSERT_EQ(document.size_Palette(), 2U);
    EXPECT_EQ(document.get_Palette(1).get_PaletteName(), u"half");
    EXPECT_EQ(document.get_Preamble().get_Header().size_ChangeHistory(), 2U);
    document.reset();
    EXPECT_EQ(document.size_Palette(), 0U);
    EXPECT_TRUE(document.get_Preamble().get_Header().isset_ReadSDKInformation());
    EXPECT_EQ(document.loadString(u"<Vyr/>"), ELMX_ELEMENT_NOT_FOUND);
    EXPECT_EQ(document.loadString(u"<v:Vyr xmlns:v='http://vyrgraph.com/v2'/>"), ELMX_UNEXPECTED_EMPTY_ELEMENT);
    EXPECT_EQ(document.loadString(u""), ELMX_UNEXPECTED_END_OF_MESSAGE);
    // The scanner reports the encoding; the reader sees an input that has ended.
    EXPECT_EQ(document.loadString(u"text"), ELMX_UNEXPECTED_END_OF_MESSAGE);
}

}  // namespace
}  // namespace vyr_test
