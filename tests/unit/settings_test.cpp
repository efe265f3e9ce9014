// Settings files and documents: what is read of whole, cut off and broken files, and what a failed save leaves.
#include "services/settings.h"

#include "frame/fault.h"
#include "testfolder.h"

#include <gtest/gtest.h>

#include <array>

namespace brindlex {
namespace {

using Lines = std::vector<std::string>;

constexpr std::array<std::string_view, 4> Keys = {"DMS=", "Shape=", "Text=", "Rounding="};

Lines Read(const TestFolder& folder) {
    return ReadSettings(folder.Files(), "brindr.ini", Keys);
}

TEST(Settings, ReadsTheTextBehindTheKeys) {
    struct Case {
        const char* content;
        Lines values;
    };
    const Case cases[] = {
        {"DMS=-1\r\nShape=0\r\nText=-1\r\nRounding=12\r\n", {"-1", "0", "-1", "12"}},
        {"DMS=-1\nShape=0\nText=-1\nRounding=12", {"-1", "0", "-1", "12"}},
        // The keys are not compared.
        {"abcd-1\r\n------0\r\n     x\r\nrounding:7\r\n", {"-1", "0", "x", "7"}},
        // Up to the first empty line, or the end.
        {"DMS=-1\r\n\r\nText=-1\r\nRounding=12\r\n", {"-1", "", "", ""}},
        {"DMS=0\r\nShape=-1", {"0", "-1", "", ""}},
        {"", {"", "", "", ""}},
        {"\r\nDMS=0\r\n", {"", "", "", ""}},
        // A line that is shorter than its key, and one that is just as long.
        {"DMS\r\nShape=\r\nText=0\r\nRound\r\n", {"", "", "0", ""}},
        {"DMS=0\r\nShape=0\r\nText=0\r\nRounding=1\r\nRounding=2\r\n", {"0", "0", "0", "1"}},
    };
    for (const Case& c : cases) {
        const TestFolder folder;
        folder.Put("brindr.ini", c.content);
        EXPECT_EQ(Read(folder), c.values) << c.content;
        EXPECT_EQ(folder.Get("brindr.ini"), c.content);
    }
}

TEST(Settings, AMissingFileIsCreatedEmpty) {
    const TestFolder folder;
    EXPECT_EQ(Read(folder), (Lines{"", "", "", ""}));
    EXPECT_EQ(folder.Get("brindr.ini"), "");
}

TEST(Settings, WhatCannotBeReadGivesEmptyTexts) {
    const TestFolder folder;
    std::filesystem::create_directory(folder.Path() / "brindr.ini");
    EXPECT_EQ(Read(folder), (Lines{"", "", "", ""}));
    EXPECT_EQ(ReadSettings(Folder(folder.Path() / "gone"), "brindr.ini", Keys), (Lines{"", "", "", ""}));
    EXPECT_EQ(folder.Names(), Lines{"brindr.ini"});
}

TEST(Settings, BinaryAndHugeFilesAreReadAsTheyStand) {
    const TestFolder folder;
    folder.Put("brindr.ini", std::string("DMS=\0\x1A\xFF\r\n", 9) + "Shape=0\r\n");
    EXPECT_EQ(Read(folder), (Lines{std::string("\0\x1A\xFF", 3), "0", "", ""}));
    std::string many = "DMS=0\r\nShape=0\r\nText=0\r\nRounding=1\r\n";
    for (int line = 0; line < 1'000'000; ++line) {
        many += "x\r\n";
    }
    folder.Put("brindr.ini", many);
    EXPECT_EQ(Read(folder), (Lines{"0", "0", "0", "1"}));
}

TEST(Settings, FlagsAreOneOfTwoTexts) {
    EXPECT_EQ(AcceptedFlag("-1", "0"), "-1");
    EXPECT_EQ(AcceptedFlag("0", "-1"), "0");
    for (const char* const other : {"", "1", "-1 ", " 0", "00", "True", "x"}) {
        EXPECT_EQ(AcceptedFlag(other, "-1"), "-1") << other;
        EXPECT_EQ(AcceptedFlag(other, "0"), "0") << other;
    }
}

TEST(Settings, AreWrittenAnew) {
    const TestFolder folder;
    folder.Put("boltcirc.ini", "something longer than what comes\r\nand more\r\n");
    WriteSettings(folder.Files(), "boltcirc.ini", {"Rounding=4"});
    EXPECT_EQ(folder.Get("boltcirc.ini"), "Rounding=4\r\n");
    WriteSettings(folder.Files(), "brindr.ini", {"DMS=0", "Shape=-1", "Text=-1", "Rounding=10"});
    EXPECT_EQ(folder.Get("brindr.ini"), "DMS=0\r\nShape=-1\r\nText=-1\r\nRounding=10\r\n");
    EXPECT_EQ(folder.Names(), (Lines{"boltcirc.ini", "brindr.ini"}));
}

TEST(Settings, AFailedWriteIsQuiet) {
    const TestFolder folder;
    std::filesystem::create_directory(folder.Path() / "brindr.ini");
    EXPECT_NO_THROW(WriteSettings(folder.Files(), "brindr.ini", {"DMS=0"}));
    EXPECT_NO_THROW(WriteSettings(Folder(folder.Path() / "gone"), "brindr.ini", {"DMS=0"}));
    EXPECT_TRUE(std::filesystem::is_directory(folder.Path() / "brindr.ini"));
    EXPECT_EQ(folder.Names(), Lines{"brindr.ini"});
}

TEST(Settings, DocumentsAreReadUpToTheFirstEmptyLine) {
    struct Case {
        const char* content;
        Lines lines;
    };
    const Case cases[] = {
        {"Side a and side b\r\n5\r\n3\r\n", {"Side a and side b", "5", "3"}},
        {"Side a and side b\r\n5\r\n3", {"Side a and side b", "5", "3"}},
        {"one\r\ntwo\r\nthree\r\nfour\r\n", {"one", "two", "three"}},
        {"one\r\n\r\nthree\r\n", {"one"}},
        {"one", {"one"}},
        {"", {}},
        {" \r\n\t\r\n", {" ", "\t"}},
    };
    for (const Case& c : cases) {
        const TestFolder folder;
        folder.Put("part.rgt", c.content);
        EXPECT_EQ(ReadDocument(folder.Files(), "part.rgt", 3), c.lines) << c.content;
        EXPECT_EQ(ReadDocument(folder.Files(), (folder.Path() / "part.rgt").string(), 3), c.lines) << c.content;
        EXPECT_EQ(ReadDocument(folder.Files().OpenInput("part.rgt"), 3), c.lines) << c.content;
    }
}

TEST(Settings, DocumentsThatCannotBeReadOrWrittenFault) {
    const TestFolder folder;
    std::filesystem::create_directory(folder.Path() / "folder.rgt");
    EXPECT_THROW((void)ReadDocument(folder.Files(), "none.rgt", 3), Fault);
    EXPECT_THROW((void)ReadDocument(folder.Files(), "folder.rgt", 3), Fault);
    EXPECT_THROW(WriteDocument(folder.Files(), "folder.rgt", {"x"}), Fault);
    EXPECT_THROW(WriteDocument(folder.Files(), "gone/part.rgt", {"x"}), Fault);
    EXPECT_EQ(folder.Names(), Lines{"folder.rgt"});
}

TEST(Settings, DocumentsAreWrittenWithLineEnds) {
    const TestFolder folder;
    WriteDocument(folder.Files(), "part.rgt", {"Angle B and side c", " 45.5", ""});
    EXPECT_EQ(folder.Get("part.rgt"), "Angle B and side c\r\n 45.5\r\n\r\n");
}

}  // namespace
}  // namespace brindlex
