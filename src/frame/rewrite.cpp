// A file's replacement in one step: a scratch file beside the target, written, closed, and renamed over it.
#include "frame/rewrite.h"

#include <cerrno>
#include <string>
#include <utility>

#if defined(_WIN32)
#include <fstream>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace brindlex {

namespace fs = std::filesystem;

namespace {

constexpr int MostLinks = 40;  // as the system itself follows
constexpr int MostScratchNames = 1000;

/// The file that a path means behind its symbolic links, which need not exist.
fs::path BehindLinks(fs::path path) {
    std::error_code error;
    for (int links = 0; fs::is_symlink(fs::symlink_status(path, error)); ++links) {
        if (links == MostLinks) {
            throw SystemFault(std::make_error_code(std::errc::too_many_symbolic_link_levels));
        }
        const fs::path target = fs::read_symlink(path, error);
        if (error) {
            throw SystemFault(error);
        }
        path = path.parent_path() / target;  // an absolute target stands for itself
    }
    return path;
}

#if defined(_WIN32)

void Replace(const fs::path& target, std::string_view content, Durability /*durability*/) {
    fs::path scratch = target;
    scratch += ".scratch.tmp";
    std::error_code error;
    {
        std::ofstream stream(scratch, std::ios::binary | std::ios::trunc);
        stream.write(content.data(), static_cast<std::streamsize>(content.size()));
        stream.close();
        if (!stream) {
            error = std::make_error_code(std::errc::io_error);
        }
    }
    if (!error) {
        fs::rename(scratch, target, error);
    }
    if (error) {
        std::error_code ignored;
        fs::remove(scratch, ignored);
        throw SystemFault(error);
    }
}

#else

Fault LastFault() {
    return SystemFault({errno, std::generic_category()});
}

/// An open file descriptor.
class Descriptor {
public:
    explicit Descriptor(int descriptor) : descriptor_(descriptor) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor(Descriptor&&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    Descriptor& operator=(Descriptor&&) = delete;
    ~Descriptor() {
        if (descriptor_ >= 0) {
            ::close(descriptor_);
        }
    }

    [[nodiscard]] bool IsOpen() const { return descriptor_ >= 0; }
    void Write(std::string_view content) const;
    void TakeOver(const struct stat& old) const;
    void Sync() const;
    void Close();

private:
    int descriptor_;
};

void Descriptor::Write(std::string_view content) const {
    while (!content.empty()) {
        const ssize_t written = ::write(descriptor_, content.data(), content.size());
        if (written > 0) {
            content.remove_prefix(static_cast<std::size_t>(written));
        } else if (written == 0) {
            throw SystemFault(std::make_error_code(std::errc::io_error));
        } else if (errno != EINTR) {
            throw LastFault();
        }
    }
}

/// Takes the old file's owner and permissions over, as far as the file system and our rights go: a file system
/// without permissions is no reason to lose the content.
void Descriptor::TakeOver(const struct stat& old) const {
    constexpr mode_t Permissions = 07777;
    struct stat own {};
    if (::fstat(descriptor_, &own) == 0 && (own.st_uid != old.st_uid || own.st_gid != old.st_gid) &&
        ::fchown(descriptor_, old.st_uid, old.st_gid) != 0) {
        errno = 0;
    }
    if (::fchmod(descriptor_, old.st_mode & Permissions) != 0) {
        errno = 0;
    }
}

void Descriptor::Sync() const {
    while (::fsync(descriptor_) != 0) {
        if (errno != EINTR) {
            throw LastFault();
        }
    }
}

void Descriptor::Close() {
    if (::close(std::exchange(descriptor_, -1)) != 0 && errno != EINTR) {
        throw LastFault();
    }
}

/// A file under a name of its own that goes away again unless it takes the target's place.
class Scratch {
public:
    Scratch(const fs::path& folder, mode_t mode) : file_(Create(folder, mode, path_)) {}
    Scratch(const Scratch&) = delete;
    Scratch(Scratch&&) = delete;
    Scratch& operator=(const Scratch&) = delete;
    Scratch& operator=(Scratch&&) = delete;
    ~Scratch() {
        if (!path_.empty()) {
            ::unlink(path_.c_str());
        }
    }

    [[nodiscard]] Descriptor& File() { return file_; }
    void Replace(const fs::path& target) {
        if (::rename(path_.c_str(), target.c_str()) != 0) {
            throw LastFault();
        }
        path_.clear();
    }

private:
    static Descriptor Create(const fs::path& folder, mode_t mode, fs::path& path);

    fs::path path_;  // declared before the descriptor, which is opened under it
    Descriptor file_;
};

Descriptor Scratch::Create(const fs::path& folder, mode_t mode, fs::path& path) {
    const std::string stem = ".brindlex-" + std::to_string(::getpid()) + '-';
    for (int i = 0; i < MostScratchNames; ++i) {
        fs::path candidate = folder / (stem + std::to_string(i) + ".tmp");
        const int descriptor = ::open(candidate.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
        if (descriptor >= 0) {
            path = std::move(candidate);
            return Descriptor(descriptor);
        }
        if (errno != EEXIST && errno != EINTR) {
            throw LastFault();
        }
    }
    throw SystemFault(std::make_error_code(std::errc::file_exists));
}

/// Presses the rename itself to the disk. Failing is no fault: the new file is in its place already.
void SyncFolder(const fs::path& folder) {
    const Descriptor descriptor(::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (descriptor.IsOpen()) {
        Guarded([&] { descriptor.Sync(); });
    }
}

void WriteDevice(const fs::path& device, std::string_view content) {
    Descriptor descriptor(::open(device.c_str(), O_WRONLY | O_CLOEXEC));
    if (!descriptor.IsOpen()) {
        throw LastFault();
    }
    descriptor.Write(content);
    descriptor.Close();
}

void Replace(const fs::path& target, std::string_view content, Durability durability) {
    constexpr mode_t AnyNewFile = 0666;  // less the user's mask
    constexpr mode_t Private = 0600;     // until the old file's permissions are taken over
    struct stat old {};
    const bool exists = ::stat(target.c_str(), &old) == 0;
    if (!exists && errno != ENOENT) {
        throw LastFault();
    }
    if (exists && !S_ISREG(old.st_mode)) {
        WriteDevice(target, content);
        return;
    }
    if (exists && ::access(target.c_str(), W_OK) != 0) {
        throw LastFault();
    }
    const fs::path folder = target.parent_path();
    Scratch scratch(folder, exists ? Private : AnyNewFile);
    scratch.File().Write(content);
    if (exists) {
        scratch.File().TakeOver(old);
    }
    if (durability == Durability::Disk) {
        scratch.File().Sync();
    }
    scratch.File().Close();
    scratch.Replace(target);
    if (durability == Durability::Disk) {
        SyncFolder(folder);
    }
}

#endif

}  // namespace

Fault SystemFault(const std::error_code& error) {
    if (!error) {
        return Fault(FaultNumber::FileIo);
    }
    FaultNumber number = FaultNumber::FileIo;
    if (error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory) {
        number = FaultNumber::FileNotFound;
    } else if (error == std::errc::permission_denied || error == std::errc::operation_not_permitted ||
               error == std::errc::read_only_file_system) {
        number = FaultNumber::PermissionDenied;
    }
    return {number, error.message()};
}

std::error_code NotAFile(const fs::path& path) {
    std::error_code error;
    switch (fs::status(path, error).type()) {
        case fs::file_type::directory:
            return std::make_error_code(std::errc::is_a_directory);
        case fs::file_type::fifo:
        case fs::file_type::socket:
            return std::make_error_code(std::errc::no_such_device_or_address);
        default:
            return {};
    }
}

void RewriteFile(const fs::path& path, std::string_view content, Durability durability) {
    const fs::path target = BehindLinks(path);
    if (const std::error_code error = NotAFile(target)) {
        throw SystemFault(error);
    }
    Replace(target, content, durability);
}

}  // namespace brindlex
