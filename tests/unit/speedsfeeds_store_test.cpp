// The store of cutting data: records as lines, rewrites that lose nothing, the lists of a path.
#include "speedsfeeds/store.h"

#include "faultof.h"
#include "smalldisk.h"
#include "speedsfeeds/record.h"
#include "testfolder.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <string>
#include <vector>

namespace brindlex::speedsfeeds {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

const std::string EndMill = "I_End Mill!HSS@D2#80-120$.001-.004%.8^";
const std::string Drill = "I_Drill!HSS@D2#60-90$.002-.006%^";
const std::string MetricReamer = "M_Reamer!Carbide@4140#20-30$.1%^";

TEST(CuttingRecord, IsALineOfMarks) {
    const Record whole{"End Mill", "HSS", "D2", "80-120", ".001-.004", ".8"};
    EXPECT_EQ(RecordLine(Unit::Inch, whole), EndMill);
    EXPECT_EQ(RecordLine(Unit::Metric, {"Reamer", "Carbide", "4140", "20-30", ".1", ""}), MetricReamer);
    EXPECT_EQ(RecordLine(Unit::Inch, {}), "I_!@#$%^");
    // A pasted line end would part the record.
    EXPECT_EQ(RecordLine(Unit::Inch, {"End Mill\r\nx", "HSS\ny", "D2\r", "80-120", ".001-.004", ".8"}), EndMill);
}

TEST(CuttingRecord, FieldsOfAnyLine) {
    const struct {
        const char* line;
        Names fields;
    } cases[] = {
        {"I_End Mill!HSS@D2#80-120$.001-.004%.8^", {"End Mill", "HSS", "D2", "80-120", ".001-.004", ".8"}},
        {"I_!@#$%^", {"", "", "", "", "", ""}},
        {"", {"", "", "", "", "", ""}},
        {"I", {"", "", "", "", "", ""}},
        {"no marks", {"", "", "", "", "", ""}},
        {"I_A_B!C@D#1$2%3^", {"A_B", "C", "D", "1", "2", "3"}},     // the first of a mark counts
        {"I_A!B!C@D#1$2%3^", {"A", "B!C", "D", "1", "2", "3"}},     // a mark in a name parts it there
        {"I_A@B!C@D#1$2%3^", {"A@B", "", "B!C@D", "1", "2", "3"}},  // marks in a wrong order
        {"I_Tool", {"", "", "", "", "", ""}},                       // cut off
        {"I_Tool!HSS", {"Tool", "", "", "", "", ""}},
        {"Tool!HSS@D2#1$2%3^", {"Tool", "HSS", "D2", "1", "2", "3"}},  // without its first mark
        {"^%$#@!_", {"", "", "", "", "", ""}},                         // all the wrong way round
    };
    for (const auto& c : cases) {
        const std::string line = c.line;
        const Names fields{std::string(ToolOf(line)),         std::string(ToolMaterialOf(line)),
                           std::string(WorkMaterialOf(line)), std::string(SpeedRangeOf(line)),
                           std::string(FeedRangeOf(line)),    std::string(PowerFactorOf(line))};
        EXPECT_EQ(fields, c.fields) << line;
    }
    EXPECT_TRUE(IsOfUnit(EndMill, Unit::Inch));
    EXPECT_FALSE(IsOfUnit(EndMill, Unit::Metric));
    EXPECT_TRUE(IsOfUnit(MetricReamer, Unit::Metric));
    EXPECT_FALSE(IsOfUnit("", Unit::Inch));
    EXPECT_FALSE(IsOfUnit("i_x!", Unit::Inch));
}

class CuttingStore : public ::testing::Test {
protected:
    void Put(const Names& lines) const {
        std::string content;
        for (const std::string& line : lines) {
            content += line + "\r\n";
        }
        folder.Put("Mill.dat", content);
    }

    TestFolder folder;
    Store store{folder.Files(), "Mill"};
};

TEST_F(CuttingStore, IsMadeWhereThereIsNone) {
    store.EnsureStore();
    EXPECT_EQ(folder.Get("Mill.dat"), "");
    EXPECT_EQ(store.Tools(Unit::Inch, {}), Names{});
    folder.Put("Mill.dat", "x");
    store.EnsureStore();
    EXPECT_EQ(folder.Get("Mill.dat"), "x");
    EXPECT_EQ(store.FileName(), "Mill.dat");
    Store(folder.Files(), "Lathe").EnsureStore();
    EXPECT_EQ(folder.Names(), (Names{"Lathe.dat", "Mill.dat"}));
}

TEST_F(CuttingStore, AppendsAtTheEnd) {
    store.AppendRecord(Drill);
    EXPECT_EQ(folder.Get("Mill.dat"), Drill + "\r\n");
    store.AppendRecord(EndMill);
    EXPECT_EQ(folder.Get("Mill.dat"), Drill + "\r\n" + EndMill + "\r\n");
    store.AppendRecord(Drill);
    EXPECT_EQ(folder.Get("Mill.dat"), EndMill + "\r\n" + Drill + "\r\n");
    EXPECT_EQ(folder.Names(), Names{"Mill.dat"});
}

TEST_F(CuttingStore, RewritesDropEmptyLinesAndKeepTheRest) {
    const std::string strange("\0\xFF no record", 12);
    folder.Put("Mill.dat", "\r\n" + strange + "\r\n\r\n" + Drill + "\r\n" + Drill + "x\r\n" + Drill + "\r\n \r\nI_cut");
    store.AppendRecord(EndMill);
    EXPECT_EQ(folder.Get("Mill.dat"),
              strange + "\r\n" + Drill + "\r\n" + Drill + "x\r\n" + Drill + "\r\n \r\nI_cut\r\n" + EndMill + "\r\n");
    // All lines that are equal go.
    store.DeleteRecord(Drill);
    EXPECT_EQ(folder.Get("Mill.dat"), strange + "\r\n" + Drill + "x\r\n \r\nI_cut\r\n" + EndMill + "\r\n");
    store.DeleteRecord("not there");
    EXPECT_EQ(folder.Get("Mill.dat"), strange + "\r\n" + Drill + "x\r\n \r\nI_cut\r\n" + EndMill + "\r\n");
}

TEST_F(CuttingStore, AnyLineEndIsRead) {
    folder.Put("Mill.dat", EndMill + "\n" + Drill);
    EXPECT_EQ(store.Tools(Unit::Inch, {}), (Names{"End Mill", "Drill"}));
    store.DeleteRecord(EndMill);
    EXPECT_EQ(folder.Get("Mill.dat"), Drill + "\r\n");
}

TEST_F(CuttingStore, AScratchFileThatWasLeftOverGoesFirst) {
    Put({Drill});
    folder.Put("Mill.tmp", "I_Ghost!a@b#1$2%3^\r\n");
    store.AppendRecord(EndMill);
    EXPECT_EQ(folder.Get("Mill.dat"), Drill + "\r\n" + EndMill + "\r\n");
    EXPECT_EQ(folder.Names(), Names{"Mill.dat"});
    // A folder in its place is no trouble.
    fs::create_directory(folder.Path() / "Mill.tmp");
    store.DeleteRecord(EndMill);
    EXPECT_EQ(folder.Get("Mill.dat"), Drill + "\r\n");
    EXPECT_EQ(folder.Names(), (Names{"Mill.dat", "Mill.tmp"}));
}

TEST_F(CuttingStore, ToolsOfTheUnitInTheOrderOfTheirAppearance) {
    Put({EndMill, MetricReamer, Drill, EndMill, "I_!no tool@x#1$2%^", "I_Tap!HSS@D2#1$2%^", "Itself"});
    EXPECT_EQ(store.Tools(Unit::Inch, {}), (Names{"End Mill", "Drill", "Tap"}));
    EXPECT_EQ(store.Tools(Unit::Metric, {}), Names{"Reamer"});
    EXPECT_EQ(store.Tools(Unit::Inch, {"Drill", ""}), (Names{"End Mill", "Tap"}));
    // Exactly the same text, or it is another tool.
    EXPECT_EQ(store.Tools(Unit::Inch, {"drill", "End Mill ", "Tap"}), (Names{"End Mill", "Drill"}));
}

TEST_F(CuttingStore, WalksDownAPath) {
    Put({"I_T!HSS@D2#80$.001%.8^", "I_T!Carbide@D2#90$.002%^", "M_T!Ceramic@D2#1$2%^", "I_T!HSS@Brass#300$.005%.3^",
         "I_U!HSS@Alu#1$2%^", "I_T!HSS@D2#100$.003%^", "I_T!HSS@D2#110$.004%0^", "I_T!!HSS@D2#5$5%5^"});
    Choices found = store.WalkDown({"T", "", ""});
    EXPECT_EQ(found.ToolMaterials, (Names{"HSS", "Carbide", "Ceramic", "!HSS"}));
    EXPECT_EQ(found.WorkMaterials, Names{});
    EXPECT_FALSE(found.Data);
    found = store.WalkDown({"T", "HSS", ""});
    EXPECT_EQ(found.ToolMaterials, (Names{"Carbide", "Ceramic", "!HSS"}));
    EXPECT_EQ(found.WorkMaterials, (Names{"D2", "Brass"}));
    EXPECT_FALSE(found.Data);
    found = store.WalkDown({"T", "HSS", "D2"});
    EXPECT_EQ(found.WorkMaterials, Names{"Brass"});
    ASSERT_TRUE(found.Data);
    EXPECT_EQ(found.Data->SpeedRange, "110");
    EXPECT_EQ(found.Data->FeedRange, ".004");
    EXPECT_EQ(found.Data->PowerFactor, ".8");
    found = store.WalkDown({"T", "Carbide", "D2"});
    ASSERT_TRUE(found.Data);
    EXPECT_EQ(found.Data->PowerFactor, "");
    for (const Path& path : {Path{}, Path{"", "HSS", "D2"}, Path{"t", "HSS", "D2"}}) {
        found = store.WalkDown(path);
        EXPECT_TRUE(found.ToolMaterials.empty() && found.WorkMaterials.empty() && !found.Data);
    }
}

TEST_F(CuttingStore, AFactorBeyondAllNumbersIsNone) {
    Put({"I_T!M@W#1$2%.5^", "I_T!M@W#3$4%1E999^", "I_T!M@W#5$6%word^"});
    const Choices found = store.WalkDown({"T", "M", "W"});
    ASSERT_TRUE(found.Data);
    EXPECT_EQ(found.Data->SpeedRange, "5");
    EXPECT_EQ(found.Data->PowerFactor, ".5");
}

TEST_F(CuttingStore, AFolderInItsPlaceIsRefused) {
    fs::create_directory(folder.Path() / "Mill.dat");
    EXPECT_NE(FaultOf([&] { store.EnsureStore(); }), std::nullopt);
    EXPECT_NE(FaultOf([&] { store.AppendRecord(Drill); }), std::nullopt);
    EXPECT_NE(FaultOf([&] { store.DeleteRecord(Drill); }), std::nullopt);
    EXPECT_NE(FaultOf([&] { static_cast<void>(store.Tools(Unit::Inch, {})); }), std::nullopt);
    EXPECT_NE(FaultOf([&] { static_cast<void>(store.WalkDown({"T", "", ""})); }), std::nullopt);
    EXPECT_TRUE(fs::is_directory(folder.Path() / "Mill.dat"));
    EXPECT_EQ(folder.Names(), Names{"Mill.dat"});
}

TEST_F(CuttingStore, WhatCanNotBeReadIsNotRewritten) {
    if (::geteuid() == 0) {
        GTEST_SKIP() << "everything can be read by this user";
    }
    Put({Drill});
    fs::permissions(folder.Path() / "Mill.dat", fs::perms::owner_write);
    EXPECT_EQ(FaultOf([&] { store.AppendRecord(EndMill); }), FaultNumber::PermissionDenied);
    fs::permissions(folder.Path() / "Mill.dat", fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(folder.Get("Mill.dat"), Drill + "\r\n");
}

Names ManyRecords(int count) {
    Names lines;
    for (int i = 0; i < count; ++i) {
        lines.push_back("I_Tool " + std::to_string(i) + "!HSS@D2#80-120$.001-.004%.8^");
    }
    return lines;
}

TEST_F(CuttingStore, AFullDiskLosesNothing) {
    Put(ManyRecords(500));
    const std::string before = folder.Get("Mill.dat");
    // The disk is full at the first byte, in the middle, and at the very last byte of the new record.
    const rlim_t whole = before.size() + EndMill.size() + 2;
    for (const rlim_t size : {rlim_t{0}, rlim_t{1}, whole / 2, whole - 1}) {
        const SmallDisk disk(size);
        EXPECT_EQ(FaultOf([&] { store.AppendRecord(EndMill); }), FaultNumber::FileIo) << size;
        EXPECT_EQ(folder.Get("Mill.dat"), before) << size;
        EXPECT_EQ(folder.Names(), Names{"Mill.dat"}) << size;
    }
    {
        const SmallDisk disk(whole);
        store.AppendRecord(EndMill);
    }
    EXPECT_EQ(folder.Get("Mill.dat"), before + EndMill + "\r\n");
}

/// Saves one record after the other until it is killed, and tells of each beginning.
[[noreturn]] void SaveForEver(const Store& store, int tell) {
    for (int i = 0;; ++i) {
        if (::write(tell, "x", 1) != 1) {
            ::_exit(1);
        }
        store.AppendRecord("I_New " + std::to_string(i) + "!HSS@D2#80$.001%^");
    }
}

TEST_F(CuttingStore, AKillAtAnyMomentLosesNothing) {
    const Names old = ManyRecords(300);
    for (int round = 0; round < 25; ++round) {
        Put(old);
        int pipe[2];
        ASSERT_EQ(::pipe(pipe), 0);
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            SaveForEver(store, pipe[1]);
        }
        // Killed within the save after the last one that was told of, at whatever point it has reached.
        char byte = 0;
        for (int told = 0; told <= round % 5; ++told) {
            ASSERT_EQ(::read(pipe[0], &byte, 1), 1);
        }
        for (int step = 0; step < round * 2000; ++step) {
            static_cast<void>(::getppid());  // a little time, a little more each round
        }
        ::kill(child, SIGKILL);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status));
        ::close(pipe[0]);
        ::close(pipe[1]);

        std::string expected;
        for (const std::string& line : old) {
            expected += line + "\r\n";
        }
        const std::string content = folder.Get("Mill.dat");
        ASSERT_GE(content.size(), expected.size());
        for (int i = 0; expected.size() < content.size(); ++i) {
            expected += "I_New " + std::to_string(i) + "!HSS@D2#80$.001%^\r\n";
        }
        ASSERT_EQ(content, expected) << "round " << round;
        // Whatever was left beside it, the next save goes on.
        store.AppendRecord(EndMill);
        ASSERT_EQ(folder.Get("Mill.dat"), expected + EndMill + "\r\n");
    }
}

TEST_F(CuttingStore, TwentyThousandToolsAreListed) {
    Put(ManyRecords(20000));
    const Names tools = store.Tools(Unit::Inch, {"Tool 7"});
    ASSERT_EQ(tools.size(), 19999U);
    EXPECT_EQ(tools.front(), "Tool 0");
    EXPECT_EQ(tools[7], "Tool 8");
    EXPECT_EQ(tools.back(), "Tool 19999");
}

}  // namespace
}  // namespace brindlex::speedsfeeds
