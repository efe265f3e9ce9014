// A rewrite under a system whose calls fail one by one: the old file or the new one, whole, and nothing left beside it.
// The calls below stand in for the system's in the whole program of unit tests, and pass on what is not to fail.
#include "frame/rewrite.h"
#include "frame/textfile.h"
#include "unit/failing.h"
#include "unit/faultof.h"
#include "unit/testfolder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <filesystem>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

using brindlex::Failing;

extern "C" {

ssize_t write(int file, const void* bytes, size_t size) {
    if (Failing::At("write nothing")) {
        return 0;
    }
    if (Failing::At("write half")) {
        size = (size + 1) / 2;
    }
    return Failing::At("write") ? -1 : ::syscall(SYS_write, file, bytes, size);
}

int fsync(int file) {
    return Failing::At("fsync") ? -1 : static_cast<int>(::syscall(SYS_fsync, file));
}

int close(int file) {
    const int done = static_cast<int>(::syscall(SYS_close, file));
    return Failing::At("close") ? -1 : done;
}

int fchmod(int file, mode_t mode) noexcept {
    return Failing::At("fchmod") ? -1 : static_cast<int>(::syscall(SYS_fchmod, file, mode));
}

int fchown(int file, uid_t user, gid_t group) noexcept {
    if (Failing::At("fchown for another")) {
        return 0;  // as if we had the right to
    }
    return Failing::At("fchown") ? -1 : static_cast<int>(::syscall(SYS_fchown, file, user, group));
}

int fstat(int file, struct stat* status) noexcept {
    const int done = ::fstatat(file, "", status, AT_EMPTY_PATH);
    if (Failing::At("fstat")) {
        return -1;
    }
    // The file belongs to somebody else.
    status->st_uid += Failing::At("other user") ? 1 : 0;
    status->st_gid += Failing::At("other group") ? 1 : 0;
    return done;
}

int stat(const char* path, struct stat* status) noexcept {
    return Failing::At("stat") ? -1 : ::fstatat(AT_FDCWD, path, status, 0);
}

int access(const char* path, int mode) noexcept {
    return Failing::At("access") ? -1 : ::faccessat(AT_FDCWD, path, mode, 0);
}

int rename(const char* from, const char* to) noexcept {
    return Failing::At("rename") ? -1 : ::renameat(AT_FDCWD, from, AT_FDCWD, to);
}

ssize_t readlink(const char* path, char* target, size_t size) noexcept {
    return Failing::At("readlink") ? -1 : ::readlinkat(AT_FDCWD, path, target, size);
}

ssize_t read(int file, void* bytes, size_t size) {
    return Failing::At("read") ? -1 : ::syscall(SYS_read, file, bytes, size);
}

int remove(const char* path) noexcept {
    if (Failing::At("remove")) {
        return -1;
    }
    const int done = ::unlinkat(AT_FDCWD, path, 0);
    return done != 0 && errno == EISDIR ? ::unlinkat(AT_FDCWD, path, AT_REMOVEDIR) : done;
}

int open(const char* path, int flags, ...) {  // NOLINT(cert-dcl50-cpp): the system's own way
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return Failing::At("open") ? -1 : ::openat(AT_FDCWD, path, flags, mode);
}

}  // extern "C"

namespace brindlex {
namespace {

using Names = std::vector<std::string>;

constexpr int Always = 1'000'000;

/// What a rewrite of f.txt from "old" to "new" ends in under a failing system, and what stands there then.
struct RewriteOutcome {
    std::string words;
    std::string content;
    bool operator==(const RewriteOutcome&) const = default;
};

std::ostream& operator<<(std::ostream& stream, const RewriteOutcome& outcome) {
    return stream << '"' << outcome.words << "\", \"" << outcome.content << '"';
}

RewriteOutcome Rewritten(const TestFolder& folder, Durability durability = Durability::Disk) {
    const std::string words = WordsOf([&] { folder.Files().Rewrite("f.txt", "new", durability); });
    EXPECT_EQ(folder.Names(), Names{"f.txt"});
    return {words, folder.Get("f.txt")};
}

TEST(RewriteFaults, EachCallInTurn) {
    const struct {
        const char* call;
        int error;
        int first;
        int times;
        RewriteOutcome outcome;
    } cases[] = {
        {"write", ENOSPC, 1, 1, {"No space left on device", "old"}},
        {"write", EINTR, 1, 3, {"", "new"}},
        {"write half", 0, 1, 1, {"", "new"}},
        {"write half", 0, 1, Always, {"", "new"}},
        {"write nothing", 0, 1, 1, {"Input/output error", "old"}},
        {"fchmod", EPERM, 1, 1, {"", "new"}},
        {"fstat", EIO, 1, 1, {"", "new"}},
        {"stat", EIO, 1, Always, {"Input/output error", "old"}},
        {"fsync", EINTR, 1, 2, {"", "new"}},
        {"fsync", EIO, 1, 1, {"Input/output error", "old"}},
        {"fsync", EIO, 2, 1, {"", "new"}},  // of the folder: the new file is in its place already
        {"close", EINTR, 1, 1, {"", "new"}},
        {"close", EDQUOT, 1, 1, {"Disk quota exceeded", "old"}},
        {"rename", EACCES, 1, 1, {"Permission denied", "old"}},
        {"access", EACCES, 1, 1, {"Permission denied", "old"}},
        {"open", ENOSPC, 1, 1, {"No space left on device", "old"}},
        {"open", EINTR, 1, 2, {"", "new"}},
        {"open", EEXIST, 1, 999, {"", "new"}},
        {"open", EEXIST, 1, Always, {"File exists", "old"}},
        {"open", EMFILE, 2, 1, {"", "new"}},  // of the folder
    };
    for (const auto& c : cases) {
        const TestFolder folder;
        folder.Put("f.txt", "old");
        const Failing failing(c.call, c.error, c.first, c.times);
        EXPECT_EQ(Rewritten(folder), c.outcome) << c.call << ' ' << c.error << ' ' << c.first;
        EXPECT_GE(failing.Calls(), c.first) << c.call;
    }
}

TEST(RewriteFaults, WherePermissionsCannotBeTakenOverTheFileIsItsOwnersAlone) {
    const TestFolder folder;
    folder.Put("f.txt", "old");
    ASSERT_EQ(::chmod((folder.Path() / "f.txt").c_str(), 0666), 0);
    const mode_t mask = ::umask(0);
    {
        const Failing failing("fchmod", EPERM);
        EXPECT_EQ(Rewritten(folder), (RewriteOutcome{"", "new"}));
    }
    ::umask(mask);
    EXPECT_EQ(std::filesystem::status(folder.Path() / "f.txt").permissions(),
              std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
}

TEST(RewriteFaults, AsManyNamesAreTriedAsTheCommentSays) {
    const TestFolder folder;
    const Failing failing("open", EEXIST, 1, Always);
    EXPECT_EQ(FaultOf([&] { folder.Files().Rewrite("f.txt", "new"); }), FaultNumber::FileIo);
    EXPECT_EQ(failing.Calls(), 1000);
    EXPECT_EQ(folder.Names(), Names{});
}

TEST(RewriteFaults, TheDiskIsWaitedForWhereThatIsWanted) {
    const struct {
        Durability durability;
        int syncs;  // the file and the folder, or none
    } cases[] = {{Durability::Disk, 2}, {Durability::Step, 0}};
    for (const auto& c : cases) {
        const TestFolder folder;
        folder.Put("f.txt", "old");
        const Failing counting("fsync", 0, Always);
        EXPECT_EQ(Rewritten(folder, c.durability), (RewriteOutcome{"", "new"}));
        EXPECT_EQ(counting.Calls(), c.syncs);
    }
}

TEST(RewriteFaults, EveryDescriptorIsClosed) {
    const TestFolder folder;
    folder.Put("f.txt", "old");
    {
        const Failing counting("close", 0, Always);
        EXPECT_EQ(Rewritten(folder).content, "new");
        EXPECT_GE(counting.Calls(), 2);  // the file and the folder
    }
    // A descriptor that is left open would keep the lowest number from coming back.
    const int before = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
    ::close(before);
    for (const char* const call : {"write", "fsync", "rename", "close"}) {
        const Failing failing(call, EIO);
        EXPECT_EQ(Rewritten(folder).words, "Input/output error") << call;
    }
    const int after = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
    ::close(after);
    EXPECT_EQ(after, before);
}

TEST(RewriteFaults, AnotherOwnerIsKeptWhereThatCanBe) {
    for (const char* const other : {"other user", "other group"}) {
        const TestFolder folder;
        folder.Put("f.txt", "old");
        const Failing different(other, 0);
        const Failing refused("fchown", EPERM);
        EXPECT_EQ(Rewritten(folder), (RewriteOutcome{"", "new"})) << other;
        EXPECT_EQ(different.Calls(), 1) << other;
        EXPECT_EQ(refused.Calls(), 1) << other;
    }
    {
        const TestFolder folder;
        folder.Put("f.txt", "old");
        const Failing different("other user", 0);
        const Failing granted("fchown for another", 0);
        EXPECT_EQ(Rewritten(folder), (RewriteOutcome{"", "new"}));
        EXPECT_EQ(granted.Calls(), 1);
    }
    const TestFolder folder;
    folder.Put("f.txt", "old");
    // The same owner is not set again.
    const Failing counting("fchown", EPERM);
    EXPECT_EQ(Rewritten(folder), (RewriteOutcome{"", "new"}));
    EXPECT_EQ(counting.Calls(), 0);
}

TEST(RewriteFaults, AFileWithoutAFolderBeforeItsName) {
    const TestFolder folder;
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(folder.Path());
    const Failing counting("fsync", 0, Always);
    RewriteFile("f.txt", "new", Durability::Disk);
    std::filesystem::current_path(before);
    EXPECT_EQ(folder.Get("f.txt"), "new");
    EXPECT_EQ(counting.Calls(), 2);
}

TEST(RewriteFaults, TheFirstDescriptorIsAsGoodAsAnother) {
    const TestFolder folder;
    folder.Put("f.txt", "old");
    const int kept = ::dup(0);
    ::close(0);
    const Failing counting("fsync", 0, Always);
    const RewriteOutcome outcome = Rewritten(folder);
    const int again = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
    if (kept >= 0) {
        ::dup2(kept, 0);
        ::close(kept);
    }
    EXPECT_EQ(outcome, (RewriteOutcome{"", "new"}));
    EXPECT_EQ(counting.Calls(), 2);
    EXPECT_EQ(again, 0);  // it was closed
}

TEST(RewriteFaults, FortyLinksAreFollowed) {
    const TestFolder folder;
    folder.Put("f.txt", "old");
    std::string target = "f.txt";
    for (int i = 1; i <= 41; ++i) {
        const std::string link = "link" + std::to_string(i);
        std::filesystem::create_symlink(target, folder.Path() / link);
        target = link;
    }
    folder.Files().Rewrite("link40", "new");
    EXPECT_EQ(folder.Get("f.txt"), "new");
    EXPECT_EQ(FaultOf([&] { folder.Files().Rewrite("link41", "more"); }), FaultNumber::FileIo);
    EXPECT_EQ(folder.Get("f.txt"), "new");
}

TEST(RewriteFaults, ASocketIsNoFile) {
    const TestFolder folder;
    ASSERT_EQ(::mknod((folder.Path() / "socket").c_str(), S_IFSOCK | 0600, 0), 0);
    EXPECT_EQ(WordsOf([&] { folder.Files().Rewrite("socket", "new"); }), "No such device or address");
    EXPECT_EQ(folder.Names(), Names{"socket"});
}

TEST(RewriteFaults, ADiskThatGivesUpWhileItIsRead) {
    const TestFolder folder;
    folder.Put("long.txt", std::string(20000, 'x'));  // more than is read at once
    for (const int first : {1, 2}) {
        InputFile file = folder.Files().OpenInput("long.txt");
        const Failing failing("read", EIO, first);
        EXPECT_EQ(FaultOf([&] { static_cast<void>(file.LineInput()); }), FaultNumber::FileIo) << first;
        EXPECT_EQ(failing.Calls(), first);
    }
    for (const int first : {1, 2}) {
        InputFile file = folder.Files().OpenInput("long.txt");
        const Failing failing("read", EIO, first);
        EXPECT_EQ(FaultOf([&] { static_cast<void>(file.AllBytes()); }), FaultNumber::FileIo) << first;
    }
}

TEST(RewriteFaults, WhatCannotBeDeletedOrOpened) {
    const TestFolder folder;
    folder.Put("f.txt", "old");
    {
        const Failing failing("remove", EACCES);
        EXPECT_EQ(FaultOf([&] { folder.Files().Kill("f.txt"); }), FaultNumber::PermissionDenied);
    }
    const NoDescriptors none;
    EXPECT_EQ(WordsOf([&] { static_cast<void>(folder.Files().OpenInput("f.txt")); }), "Too many open files");
    EXPECT_EQ(WordsOf([&] { static_cast<void>(folder.Files().OpenOutput("f.txt")); }), "Too many open files");
    EXPECT_TRUE(folder.Files().Exists("f.txt"));
}

TEST(RewriteFaults, ALinkThatCannotBeRead) {
    const TestFolder folder;
    std::filesystem::create_symlink("f.txt", folder.Path() / "link");
    const Failing failing("readlink", EIO);
    EXPECT_EQ(WordsOf([&] { folder.Files().Rewrite("link", "new"); }), "Input/output error");
    EXPECT_EQ(folder.Names(), Names{"link"});
}

TEST(RewriteFaults, ADeviceThatCannotBeOpened) {
    const TestFolder folder;
    std::filesystem::create_symlink("/dev/null", folder.Path() / "null");
    for (const char* const call : {"open", "write", "close"}) {
        const Failing failing(call, EIO);
        EXPECT_EQ(WordsOf([&] { folder.Files().Rewrite("null", "new"); }), "Input/output error") << call;
    }
    EXPECT_EQ(folder.Names(), Names{"null"});
}

}  // namespace
}  // namespace brindlex
