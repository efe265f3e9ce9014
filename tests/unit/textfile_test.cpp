// Text files: the code page, print lines, reading, writing, and the folder's names.
#include "frame/textfile.h"

#include "frame/fault.h"
#include "unit/faultof.h"
#include "unit/testfolder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace brindlex {
namespace {

namespace fs = std::filesystem;

std::string EveryByte() {
    std::string text;
    for (int code = 0; code < 256; ++code) {
        text += static_cast<char>(static_cast<unsigned char>(code));
    }
    return text;
}

std::vector<std::string> LinesOf(InputFile file) {
    std::vector<std::string> lines;
    while (!file.Eof()) {
        lines.push_back(file.LineInput());
    }
    return lines;
}

TEST(CodePage, BecomesUtf8) {
    EXPECT_EQ(Utf8FromText("plain"), "plain");
    EXPECT_EQ(Utf8FromText("30\xB0"), "30\xC2\xB0");
    EXPECT_EQ(Utf8FromText("\xE9\xFF"), "\xC3\xA9\xC3\xBF");
    EXPECT_EQ(Utf8FromText("\x80"), "\xE2\x82\xAC");          // euro sign
    EXPECT_EQ(Utf8FromText("\x9F\x83"), "\xC5\xB8\xC6\x92");  // capital y with diaeresis, florin sign
    EXPECT_EQ(Utf8FromText("\x99\x93\x94"), "\xE2\x84\xA2\xE2\x80\x9C\xE2\x80\x9D");
    EXPECT_EQ(Utf8FromText("\x81\x8D\x8F\x90\x9D"), "\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D");
}

TEST(CodePage, TheThirtyTwoThatLatin1DoesNotHave) {
    const char* const characters[] = {
        "\xE2\x82\xAC", "\xC2\x81",     "\xE2\x80\x9A", "\xC6\x92",     "\xE2\x80\x9E", "\xE2\x80\xA6", "\xE2\x80\xA0",
        "\xE2\x80\xA1", "\xCB\x86",     "\xE2\x80\xB0", "\xC5\xA0",     "\xE2\x80\xB9", "\xC5\x92",     "\xC2\x8D",
        "\xC5\xBD",     "\xC2\x8F",     "\xC2\x90",     "\xE2\x80\x98", "\xE2\x80\x99", "\xE2\x80\x9C", "\xE2\x80\x9D",
        "\xE2\x80\xA2", "\xE2\x80\x93", "\xE2\x80\x94", "\xCB\x9C",     "\xE2\x84\xA2", "\xC5\xA1",     "\xE2\x80\xBA",
        "\xC5\x93",     "\xC2\x9D",     "\xC5\xBE",     "\xC5\xB8"};
    int code = 0x80;
    for (const char* const utf8 : characters) {
        const std::string text(1, static_cast<char>(static_cast<unsigned char>(code)));
        EXPECT_EQ(Utf8FromText(text), utf8) << code;
        EXPECT_EQ(TextFromUtf8(utf8), text) << code;
        ++code;
    }
}

TEST(CodePage, EveryByteComesBack) {
    const std::string text = EveryByte();
    const std::string utf8 = Utf8FromText(text);
    EXPECT_EQ(TextFromUtf8(utf8), text);
    // 128 of one byte; of the upper half 17 codes lie above U+07FF and take three, the others two.
    EXPECT_EQ(utf8.size(), 128U + 17U * 3U + 111U * 2U);
}

TEST(CodePage, WhatItLacksIsAQuestionMark) {
    const struct {
        std::string utf8;
        std::string text;
    } cases[] = {
        {"\xC5\x82", "?"},              // l with stroke
        {"a\xF0\x9F\x98\x80z", "a?z"},  // beyond the basic plane
        {"\xC2\x80", "?"},              // the code point 128 itself, whose code means another character
        {"\xE2\x82", "??"},             // cut short
        {"\xC0\x80", "??"},             // an overlong form
        {"\xE0\x80\x80", "???"},        // likewise
        {"\x80", "?"},                  // a trail without a lead
        {"\xFF\xFE", "??"},
        {"\xC3(", "?("},
        {std::string("\0", 1), std::string("\0", 1)},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(TextFromUtf8(c.utf8), c.text);
    }
    // The last one of Latin-1, and the first one behind it.
    EXPECT_EQ(TextFromUtf8("\xC3\xBF\xC4\x80\xC4\x81"), "\xFF??");
}

TEST(CodePage, AtTheBoundsOfTheSequences) {
    // One question mark for a character that it lacks, one for each byte of what is malformed.
    const struct {
        std::string utf8;
        std::string text;
    } cases[] = {
        {"\x7F", "\x7F"},              // U+007F, the last of one byte
        {"\xC1\xBF", "??"},            // the same in two
        {"\xC2\x81", "\x81"},          // U+0081, the first of two bytes that the code page has
        {"\xDF\xBF", "?"},             // U+07FF, the last of two bytes
        {"\xE0\x9F\xBF", "???"},       // the same in three
        {"\xE0\xA0\x80", "?"},         // U+0800, the first of three
        {"\xE1\x80\x80", "?"},         // an odd first byte of three
        {"\xEF\xBF\xBF", "?"},         // U+FFFF, the last of three
        {"\xF0\x8F\xBF\xBF", "????"},  // the same in four
        {"\xF0\x90\x80\x80", "?"},     // U+10000, the first of four
        {"\xF1\x80\x80\x80", "?"},     // an odd first byte of four
        {"\xF4\x8F\xBF\xBF", "?"},     // U+10FFFF, the last of all
        {"\xF8\x80\x80\x80", "????"},  // no first byte
        {"\xF8\x90\x80\x80\x80", "?????"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(TextFromUtf8(c.utf8), c.text) << testing::PrintToString(c.utf8);
        EXPECT_EQ(TextFromUtf8("a" + c.utf8 + "z"), "a" + c.text + "z") << testing::PrintToString(c.utf8);
    }
}

TEST(PrintLine, CommaMovesToTheNextZone) {
    EXPECT_EQ(PrintLine().Text("ab").Comma().Text("c").Str(), "ab            c");
    EXPECT_EQ(PrintLine().Comma().Text("x").Str(), std::string(14, ' ') + "x");
    EXPECT_EQ(PrintLine().Text("a").Comma().Comma().Text("b").Str(), "a" + std::string(27, ' ') + "b");
    EXPECT_EQ(PrintLine().Text(std::string(13, 'a')).Comma().Str().size(), 14U);
    EXPECT_EQ(PrintLine().Text(std::string(15, 'a')).Comma().Str().size(), 28U);
}

TEST(PrintLine, AFullZoneSkipsTheNextOne) {
    EXPECT_EQ(PrintLine().Text(std::string(14, 'a')).Comma().Str().size(), 28U);
    EXPECT_EQ(PrintLine().Text(std::string(28, 'a')).Comma().Str().size(), 42U);
}

TEST(PrintLine, ZonesBeginAtTheirColumns) {
    PrintLine line;
    for (const std::size_t column : {15U, 29U, 43U, 57U, 71U, 85U, 99U, 113U, 127U, 141U, 155U, 169U}) {
        EXPECT_EQ(line.Comma().Str().size() + 1, column);
    }
}

TEST(PrintLine, TabPadsUpToAColumn) {
    EXPECT_EQ(PrintLine().Text(" 1").Tab(15).Text("x").Str(), " 1            x");
    EXPECT_EQ(PrintLine().Tab(1).Text("x").Str(), "x");
    EXPECT_EQ(PrintLine().Tab(0).Text("x").Str(), "x");
    EXPECT_EQ(PrintLine().Text("abc").Tab(4).Text("d").Str(), "abcd");
}

TEST(PrintLine, TabBehindAColumnStartsANewLine) {
    EXPECT_EQ(PrintLine().Text("abcdef").Tab(4).Text("x").Str(), "abcdef\r\n   x");
    EXPECT_EQ(PrintLine().Text("abc").Tab(3).Text("x").Str(), "abc\r\n  x");
    EXPECT_EQ(PrintLine().Text("abc").Tab(1).Comma().Text("x").Str(), "abc\r\n" + std::string(14, ' ') + "x");
}

TEST(PrintLine, ColumnsAreThoseOfTheLastLine) {
    EXPECT_EQ(PrintLine().Text("abc\r\nd\r\nef").Tab(4).Text("x").Str(), "abc\r\nd\r\nef x");
    EXPECT_EQ(PrintLine().Text("abc\r\n").Comma().Text("x").Str(), "abc\r\n" + std::string(14, ' ') + "x");
    EXPECT_EQ(PrintLine().Text("abc\r").Text("\ndef").Tab(5).Text("x").Str(), "abc\r\ndef x");
    EXPECT_EQ(PrintLine().Text("a\rb\nc").Tab(7).Text("x").Str(), "a\rb\nc x");
    EXPECT_EQ(PrintLine().Text("\r\n").Text("\n").Tab(3).Text("x").Str(), "\r\n\n x");
}

TEST(PrintLine, NumbersHaveABlankBehind) {
    EXPECT_EQ(PrintLine().Number(7.0).Text("x").Str(), " 7 x");
    EXPECT_EQ(PrintLine().Number(-0.5).Str(), "-.5 ");
}

TEST(PrintLine, BuildsARecord) {
    EXPECT_EQ(
        PrintLine()
            .Text(" 1")
            .Tab(15)
            .Text(" .5")
            .Tab(43)
            .Text("1.50")
            .Tab(71)
            .Text("-2")
            .Comma()
            .Comma()
            .Text("Circle")
            .Str(),
        " 1             .5                         1.50                        -2                          Circle");
}

TEST(InputFile, KnowsThreeLineEnds) {
    const TestFolder folder;
    const struct {
        std::string content;
        std::vector<std::string> lines;
    } cases[] = {
        {"", {}},
        {"a", {"a"}},
        {"a\r\n", {"a"}},
        {"a\r\nb", {"a", "b"}},
        {"a\rb\r", {"a", "b"}},
        {"a\nb\n", {"a", "b"}},
        {"a\r\r\nb", {"a", "", "b"}},
        {"\r\n\r\n", {"", ""}},
        {"a\n\rb", {"a", "", "b"}},
        {"a\r", {"a"}},
        {std::string("a\0b\r\n\0", 6), {std::string("a\0b", 3), std::string("\0", 1)}},
        {"\xFF\xB0\x1A\r\nz", {"\xFF\xB0\x1A", "z"}},
    };
    for (const auto& c : cases) {
        folder.Put("in.txt", c.content);
        EXPECT_EQ(LinesOf(folder.Files().OpenInput("in.txt")), c.lines) << c.content;
    }
}

TEST(InputFile, LineEndsAcrossItsBuffer) {
    const TestFolder folder;
    std::string content;
    std::vector<std::string> lines;
    for (std::size_t length = 8180; length < 8200; ++length) {
        lines.emplace_back(length, 'x');
        content += lines.back() + "\r\n";
    }
    folder.Put("in.txt", content);
    EXPECT_EQ(LinesOf(folder.Files().OpenInput("in.txt")), lines);
}

TEST(InputFile, ReadsAMillionLines) {
    const TestFolder folder;
    std::string content;
    for (int i = 0; i < 1000000; ++i) {
        content += "12345\r\n";
    }
    folder.Put("in.txt", content);
    InputFile file = folder.Files().OpenInput("in.txt");
    int count = 0;
    while (!file.Eof()) {
        ASSERT_EQ(file.LineInput(), "12345");
        ++count;
    }
    EXPECT_EQ(count, 1000000);
}

TEST(InputFile, FaultsPastTheEnd) {
    const TestFolder folder;
    folder.Put("in.txt", "only\r\n");
    InputFile file = folder.Files().OpenInput("in.txt");
    EXPECT_EQ(file.LineInput(), "only");
    EXPECT_TRUE(file.Eof());
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(FaultOf([&] { static_cast<void>(file.LineInput()); }), FaultNumber::FileIo);
        EXPECT_EQ(WordsOf([&] { static_cast<void>(file.LineInput()); }), "Input past end of file");
    }
}

TEST(InputFile, GivesTheBytesThatAreLeft) {
    const TestFolder folder;
    const std::string content("one\r\ntwo\n\r\0\xFF\x1A", 13);
    folder.Put("in.txt", content);
    EXPECT_EQ(folder.Files().OpenInput("in.txt").AllBytes(), content);
    InputFile file = folder.Files().OpenInput("in.txt");
    EXPECT_EQ(file.LineInput(), "one");
    EXPECT_EQ(file.AllBytes(), std::string("two\n\r\0\xFF\x1A", 8));
    EXPECT_TRUE(file.Eof());
    EXPECT_EQ(file.AllBytes(), "");
    folder.Put("in.txt", std::string(20000, 'x'));  // more than is read at once
    EXPECT_EQ(folder.Files().OpenInput("in.txt").AllBytes(), std::string(20000, 'x'));
}

TEST(OutputFile, PrintsAndWritesLines) {
    const TestFolder folder;
    OutputFile file = folder.Files().OpenOutput("out.txt");
    file.Print("Rounding=4");
    file.Print("");
    file.Write({"Form8", "", "a\"b"});
    file.Write({"", "x"});
    file.Write({});
    file.Close();
    file.Close();
    EXPECT_EQ(folder.Get("out.txt"), "Rounding=4\r\n\r\n\"Form8\",\"\",\"a\"b\"\r\n\"\",\"x\"\r\n\r\n");
}

TEST(OutputFile, OutputStartsAfreshAndAppendGoesOn) {
    const TestFolder folder;
    folder.Put("f.txt", "old\r\n");
    OutputFile more = folder.Files().OpenAppend("f.txt");
    more.Print("new");
    more.Close();
    EXPECT_EQ(folder.Get("f.txt"), "old\r\nnew\r\n");
    OutputFile fresh = folder.Files().OpenOutput("f.txt");
    fresh.Print("fresh");
    fresh.Close();
    EXPECT_EQ(folder.Get("f.txt"), "fresh\r\n");
}

TEST(OutputFile, EveryByteComesBack) {
    const TestFolder folder;
    std::string text = EveryByte();
    std::erase_if(text, [](char c) { return c == '\r' || c == '\n'; });
    OutputFile file = folder.Files().OpenOutput("bytes.txt");
    file.Print(text);
    file.Close();
    EXPECT_EQ(LinesOf(folder.Files().OpenInput("bytes.txt")), std::vector<std::string>{text});
}

TEST(OutputFile, AFullDiskIsAFault) {
    const TestFolder folder;
    if (!fs::exists("/dev/full")) {
        GTEST_SKIP() << "no /dev/full here";
    }
    for (const bool append : {false, true}) {
        OutputFile file = append ? folder.Files().OpenAppend("/dev/full") : folder.Files().OpenOutput("/dev/full");
        file.Print("small enough for the buffer");
        EXPECT_EQ(FaultOf([&] { file.Close(); }), FaultNumber::FileIo);
        OutputFile large = folder.Files().OpenOutput("/dev/full");
        EXPECT_EQ(WordsOf([&] { large.Print(std::string(1000000, 'x')); }), "No space left on device");
    }
}

TEST(OutputFile, FaultsWhenItIsClosed) {
    const TestFolder folder;
    OutputFile file = folder.Files().OpenOutput("out.txt");
    file.Close();
    // The system refused nothing: the fault is not that of an earlier call elsewhere.
    const std::function<void()> late = [&] {
        errno = EACCES;
        file.Print("late");
    };
    EXPECT_EQ(FaultOf(late), FaultNumber::FileIo);
    EXPECT_EQ(WordsOf(late), "Device I/O error");
}

TEST(OutputFile, ClosingWhatHasFailedIsAFaultOfItsOwn) {
    if (!fs::exists("/dev/full")) {
        GTEST_SKIP() << "no /dev/full here";
    }
    const TestFolder folder;
    OutputFile file = folder.Files().OpenOutput("/dev/full");
    EXPECT_EQ(WordsOf([&] { file.Print(std::string(1000000, 'x')); }), "No space left on device");
    try {
        errno = EACCES;  // of another call, meanwhile
        file.Close();
        ADD_FAILURE();
    } catch (const Fault& fault) {
        EXPECT_EQ(fault.Number(), FaultNumber::FileIo);
        EXPECT_STREQ(fault.what(), "Device I/O error");
    }
}

TEST(Folder, NamesLieInIt) {
    const Folder folder("/some/where");
    EXPECT_EQ(folder.Path(), "/some/where");
    EXPECT_EQ(folder.PathOf("geometry.dat"), "/some/where/geometry.dat");
    EXPECT_EQ(folder.PathOf("/else/where.geo"), "/else/where.geo");
    EXPECT_EQ(folder.PathOf("\xE9.rgt").string(), "/some/where/\xC3\xA9.rgt");
    EXPECT_EQ(FaultOf([&] { static_cast<void>(folder.PathOf(std::string("a\0b", 3))); }), FaultNumber::FileNotFound);
    EXPECT_FALSE(folder.Exists(std::string("a\0b", 3)));
}

TEST(Folder, KnowsWhatExists) {
    const TestFolder folder;
    folder.Put("there.txt", "");
    fs::create_directory(folder.Path() / "sub");
    EXPECT_TRUE(folder.Files().Exists("there.txt"));
    EXPECT_FALSE(folder.Files().Exists("gone.txt"));
    EXPECT_FALSE(folder.Files().Exists("sub"));
    EXPECT_FALSE(folder.Files().Exists(""));
    EXPECT_FALSE(folder.Files().Exists("there.txt/below"));
    EXPECT_FALSE(folder.Files().Exists(std::string(5000, 'x')));
}

TEST(Folder, OpensNothingMissing) {
    const TestFolder folder;
    const Folder& files = folder.Files();
    EXPECT_EQ(FaultOf([&] { static_cast<void>(files.OpenInput("gone.txt")); }), FaultNumber::FileNotFound);
    EXPECT_EQ(WordsOf([&] { static_cast<void>(files.OpenInput("gone.txt")); }), "File not found");
    EXPECT_EQ(FaultOf([&] { static_cast<void>(files.OpenOutput("gone/x.txt")); }), FaultNumber::FileNotFound);
    EXPECT_EQ(folder.Names(), std::vector<std::string>{});
}

TEST(Folder, OpensNoFolder) {
    const TestFolder folder;
    fs::create_directory(folder.Path() / "sub");
    const Folder& files = folder.Files();
    for (const char* name : {"sub", "", "."}) {
        const std::function<void()> steps[] = {
            [&] { static_cast<void>(files.OpenInput(name)); },
            [&] { static_cast<void>(files.OpenOutput(name)); },
            [&] { static_cast<void>(files.OpenAppend(name)); },
            [&] { files.Touch(name); },
            [&] { files.Kill(name); },
        };
        for (const auto& step : steps) {
            EXPECT_EQ(FaultOf(step), FaultNumber::FileIo) << name;
            EXPECT_EQ(WordsOf(step), "Is a directory") << name;
        }
    }
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"sub"});
}

TEST(Folder, TouchMakesAFileAndChangesNone) {
    const TestFolder folder;
    folder.Files().Touch("new.ini");
    EXPECT_EQ(folder.Get("new.ini"), "");
    folder.Put("old.ini", "kept");
    folder.Files().Touch("old.ini");
    EXPECT_EQ(folder.Get("old.ini"), "kept");
}

TEST(Folder, KillDeletes) {
    const TestFolder folder;
    folder.Put("a.txt", "");
    folder.Put("b.txt", "");
    folder.Files().Kill("a.txt");
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"b.txt"});
    EXPECT_EQ(FaultOf([&] { folder.Files().Kill("a.txt"); }), FaultNumber::FileNotFound);
    folder.Files().KillIfThere("a.txt");
    folder.Files().KillIfThere("b.txt");
    EXPECT_EQ(folder.Names(), std::vector<std::string>{});
    fs::create_directory(folder.Path() / "sub");
    folder.Files().KillIfThere("sub");
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"sub"});
}

TEST(Folder, NameRenamesOntoNothing) {
    const TestFolder folder;
    folder.Put("geo.tmp", "new");
    folder.Put("geometry.dat", "old");
    EXPECT_EQ(FaultOf([&] { folder.Files().Name("geo.tmp", "geometry.dat"); }), FaultNumber::FileIo);
    EXPECT_EQ(WordsOf([&] { folder.Files().Name("geo.tmp", "geometry.dat"); }), "File already exists");
    EXPECT_EQ(FaultOf([&] { folder.Files().Name("gone.tmp", "geometry.dat"); }), FaultNumber::FileNotFound);
    EXPECT_EQ(folder.Get("geometry.dat"), "old");
    EXPECT_EQ(folder.Get("geo.tmp"), "new");
    folder.Files().Kill("geometry.dat");
    folder.Files().Name("geo.tmp", "geometry.dat");
    EXPECT_EQ(folder.Get("geometry.dat"), "new");
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"geometry.dat"});
    EXPECT_EQ(FaultOf([&] { folder.Files().Name("geo.tmp", "x.dat"); }), FaultNumber::FileNotFound);
    EXPECT_EQ(FaultOf([&] { folder.Files().Name("geometry.dat", "gone/x.dat"); }), FaultNumber::FileNotFound);
}

}  // namespace
}  // namespace brindlex
