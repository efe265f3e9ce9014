// Rewrites in one step: the new content or the old one, whole, and nothing left beside it.
#include "frame/rewrite.h"

#include "frame/textfile.h"
#include "unit/faultof.h"
#include "unit/smalldisk.h"
#include "unit/testfolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

namespace brindlex {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

mode_t ModeOf(const fs::path& path) {
    struct stat status {};
    EXPECT_EQ(::stat(path.c_str(), &status), 0);
    return status.st_mode & 07777U;
}

TEST(Rewrite, ReplacesTheWholeFile) {
    const TestFolder folder;
    folder.Put("Mill.dat", "a much longer old content");
    for (const Durability durability : {Durability::Disk, Durability::Step}) {
        folder.Files().Rewrite("Mill.dat", "new", durability);
        EXPECT_EQ(folder.Get("Mill.dat"), "new");
        folder.Files().Rewrite("Mill.dat", "", durability);
        EXPECT_EQ(folder.Get("Mill.dat"), "");
        folder.Files().Rewrite("fresh.dat", std::string("\0\r\n\xFF", 4), durability);
        EXPECT_EQ(folder.Get("fresh.dat"), std::string("\0\r\n\xFF", 4));
        folder.Files().Kill("fresh.dat");
        EXPECT_EQ(folder.Names(), Names{"Mill.dat"});
    }
}

TEST(Rewrite, LinesGetTheirEnds) {
    const TestFolder folder;
    folder.Files().RewriteLines("a.rgt", {"one", "", "three"});
    EXPECT_EQ(folder.Get("a.rgt"), "one\r\n\r\nthree\r\n");
    folder.Files().RewriteLines("a.rgt", {}, Durability::Step);
    EXPECT_EQ(folder.Get("a.rgt"), "");
}

TEST(Rewrite, AReaderOfTheOldFileKeepsIt) {
    const TestFolder folder;
    folder.Put("f.txt", "old\r\n");
    InputFile file = folder.Files().OpenInput("f.txt");
    folder.Files().Rewrite("f.txt", "new\r\n");
    EXPECT_EQ(file.LineInput(), "old");
    EXPECT_EQ(folder.Get("f.txt"), "new\r\n");
}

TEST(Rewrite, KeepsThePermissions) {
    const TestFolder folder;
    for (const mode_t mode : {0600U, 0644U, 0660U, 0755U}) {
        folder.Put("f.txt", "old");
        ASSERT_EQ(::chmod((folder.Path() / "f.txt").c_str(), mode), 0);
        folder.Files().Rewrite("f.txt", "new");
        EXPECT_EQ(ModeOf(folder.Path() / "f.txt"), mode);
        EXPECT_EQ(folder.Get("f.txt"), "new");
    }
}

TEST(Rewrite, ANewFileHasTheUsersMask) {
    const TestFolder folder;
    const mode_t mask = ::umask(027);
    folder.Files().Rewrite("f.txt", "new");
    ::umask(mask);
    EXPECT_EQ(ModeOf(folder.Path() / "f.txt"), 0640U);
    const mode_t same = ::umask(0);
    folder.Files().Rewrite("open.txt", "new");
    ::umask(same);
    EXPECT_EQ(ModeOf(folder.Path() / "open.txt"), 0666U);
}

TEST(Rewrite, FollowsLinks) {
    const TestFolder folder;
    fs::create_directory(folder.Path() / "real");
    folder.Put("real/f.txt", "old");
    fs::create_symlink("real/f.txt", folder.Path() / "near.txt");
    fs::create_symlink(folder.Path() / "near.txt", folder.Path() / "far.txt");
    folder.Files().Rewrite("far.txt", "new");
    EXPECT_EQ(folder.Get("real/f.txt"), "new");
    EXPECT_TRUE(fs::is_symlink(folder.Path() / "near.txt"));
    EXPECT_TRUE(fs::is_symlink(folder.Path() / "far.txt"));
    EXPECT_EQ(folder.Names(), (Names{"far.txt", "near.txt", "real"}));
}

TEST(Rewrite, FollowsALinkToNothing) {
    const TestFolder folder;
    fs::create_symlink("target.txt", folder.Path() / "link.txt");
    folder.Files().Rewrite("link.txt", "new");
    EXPECT_EQ(folder.Get("target.txt"), "new");
    EXPECT_TRUE(fs::is_symlink(folder.Path() / "link.txt"));
}

TEST(Rewrite, RefusesLinksInACircle) {
    const TestFolder folder;
    fs::create_symlink("b", folder.Path() / "a");
    fs::create_symlink("a", folder.Path() / "b");
    EXPECT_EQ(FaultOf([&] { folder.Files().Rewrite("a", "new"); }), FaultNumber::FileIo);
    EXPECT_EQ(folder.Names(), (Names{"a", "b"}));
}

TEST(Rewrite, RefusesWhatIsNoFile) {
    const TestFolder folder;
    fs::create_directory(folder.Path() / "sub");
    ASSERT_EQ(::mkfifo((folder.Path() / "pipe").c_str(), 0600), 0);
    const Folder& files = folder.Files();
    EXPECT_EQ(FaultOf([&] { files.Rewrite("sub", "new"); }), FaultNumber::FileIo);
    EXPECT_EQ(FaultOf([&] { files.Rewrite("", "new"); }), FaultNumber::FileIo);
    EXPECT_EQ(FaultOf([&] { files.Rewrite("pipe", "new"); }), FaultNumber::FileIo);
    EXPECT_EQ(FaultOf([&] { static_cast<void>(files.OpenInput("pipe")); }), FaultNumber::FileIo);
    EXPECT_EQ(FaultOf([&] { static_cast<void>(files.OpenOutput("pipe")); }), FaultNumber::FileIo);
    EXPECT_EQ(FaultOf([&] { files.Rewrite("gone/f.txt", "new"); }), FaultNumber::FileNotFound);
    EXPECT_EQ(WordsOf([&] { files.Rewrite("gone/f.txt", "new"); }), "No such file or directory");
    EXPECT_EQ(WordsOf([&] { files.Rewrite(std::string(300, 'x'), "new"); }), "File name too long");
    EXPECT_EQ(folder.Names(), (Names{"pipe", "sub"}));
}

TEST(Rewrite, ALongNameIsNoTrouble) {
    const TestFolder folder;
    const std::string name(255, 'x');  // as long as names may be: the scratch name must not build on it
    folder.Files().Rewrite(name, "new");
    EXPECT_EQ(folder.Get(name), "new");
}

TEST(Rewrite, AFullDiskLeavesTheOldFile) {
    const TestFolder folder;
    folder.Put("f.txt", "old");
    const std::string content(100000, 'x');
    for (const char* name : {"f.txt", "fresh.txt"}) {
        std::string words;
        {
            const SmallDisk disk(4096);
            words = WordsOf([&] { folder.Files().Rewrite(name, content); });
        }
        EXPECT_EQ(words, "File too large");
    }
    EXPECT_EQ(folder.Get("f.txt"), "old");
    EXPECT_EQ(folder.Names(), Names{"f.txt"});
}

TEST(Rewrite, ADeviceIsWrittenToWhereItStands) {
    const TestFolder folder;
    if (!fs::exists("/dev/full")) {
        GTEST_SKIP() << "no /dev/full here";
    }
    fs::create_symlink("/dev/full", folder.Path() / "full");
    fs::create_symlink("/dev/null", folder.Path() / "null");
    EXPECT_EQ(WordsOf([&] { folder.Files().Rewrite("full", "new"); }), "No space left on device");
    EXPECT_EQ(FaultOf([&] { folder.Files().Rewrite("full", "new"); }), FaultNumber::FileIo);
    EXPECT_EQ(FaultOf([&] { folder.Files().Rewrite("null", "new"); }), std::nullopt);
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
    EXPECT_EQ(folder.Names(), (Names{"full", "null"}));
}

TEST(Rewrite, ADeviceIsNotReadFrom) {
    const TestFolder folder;
    if (!fs::exists("/dev/zero")) {
        GTEST_SKIP() << "no /dev/zero here";
    }
    fs::create_symlink("/dev/zero", folder.Path() / "zeros");
    for (const char* const device : {"/dev/zero", "zeros"}) {
        EXPECT_EQ(FaultOf([&] { static_cast<void>(folder.Files().OpenInput(device)); }), FaultNumber::FileIo) << device;
    }
}

TEST(Rewrite, LeavesAForeignScratchFileAlone) {
    const TestFolder folder;
    const std::string taken = ".brindlex-" + std::to_string(::getpid()) + "-0.tmp";
    folder.Put(taken, "foreign");
    folder.Files().Rewrite("f.txt", "new");
    EXPECT_EQ(folder.Get(taken), "foreign");
    EXPECT_EQ(folder.Get("f.txt"), "new");
    EXPECT_EQ(folder.Names(), (Names{taken, "f.txt"}));
}

TEST(Rewrite, AThousandForeignScratchFilesLeaveNoName) {
    const TestFolder folder;
    folder.Put("f.txt", "old");
    const auto name = [](int i) {
        return ".brindlex-" + std::to_string(::getpid()) + "-" + std::to_string(i) + ".tmp";
    };
    folder.Put(name(0), "foreign");
    for (int i = 1; i < 1000; ++i) {
        fs::create_hard_link(folder.Path() / name(0), folder.Path() / name(i));
    }
    EXPECT_EQ(FaultOf([&] { folder.Files().Rewrite("f.txt", "new"); }), FaultNumber::FileIo);
    EXPECT_EQ(folder.Get("f.txt"), "old");
    EXPECT_EQ(folder.Get(name(0)), "foreign");
    fs::remove(folder.Path() / name(999));
    folder.Files().Rewrite("f.txt", "new");
    EXPECT_EQ(folder.Get("f.txt"), "new");
    EXPECT_FALSE(folder.Files().Exists(name(999)));
}

TEST(Rewrite, RespectsWriteProtection) {
    if (::geteuid() == 0) {
        GTEST_SKIP() << "nothing is protected from this user";
    }
    const TestFolder folder;
    folder.Put("f.txt", "old");
    ASSERT_EQ(::chmod((folder.Path() / "f.txt").c_str(), 0444), 0);
    EXPECT_EQ(FaultOf([&] { folder.Files().Rewrite("f.txt", "new"); }), FaultNumber::PermissionDenied);
    EXPECT_EQ(folder.Get("f.txt"), "old");
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0555), 0);
    EXPECT_EQ(FaultOf([&] { folder.Files().Rewrite("g.txt", "new"); }), FaultNumber::PermissionDenied);
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0755), 0);
    EXPECT_EQ(folder.Names(), Names{"f.txt"});
}

TEST(SystemFault, NumbersAndWords) {
    const struct {
        int error;
        FaultNumber number;
        std::string words;
    } cases[] = {
        {0, FaultNumber::FileIo, "Device I/O error"},
        {ENOSPC, FaultNumber::FileIo, "No space left on device"},
        {EISDIR, FaultNumber::FileIo, "Is a directory"},
        {ENOENT, FaultNumber::FileNotFound, "No such file or directory"},
        {ENOTDIR, FaultNumber::FileNotFound, "Not a directory"},
        {EACCES, FaultNumber::PermissionDenied, "Permission denied"},
        {EPERM, FaultNumber::PermissionDenied, "Operation not permitted"},
        {EROFS, FaultNumber::PermissionDenied, "Read-only file system"},
    };
    for (const auto& c : cases) {
        const Fault fault = SystemFault({c.error, std::generic_category()});
        EXPECT_EQ(fault.Number(), c.number) << c.words;
        EXPECT_EQ(fault.what(), c.words);
    }
}

}  // namespace
}  // namespace brindlex
