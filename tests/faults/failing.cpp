// A disk that fails on demand, loaded in front of the system's library (LD_PRELOAD). It counts the calls that open,
// write, sync, rename and close what lies in one folder, and fails the one it is told to.
//
//     FAILING_FOLDER  the folder; what lies elsewhere is left alone
//     FAILING_CALL    which call fails, from 1; 0 fails none
//     FAILING_ERROR   the number of the error
//     FAILING_WAY     once: that call alone; onwards: every call of its kind from there on; half: a write that writes
//                     half of what it was given, and every later one fails
//     FAILING_COUNT   where the number of calls is left, a file outside of the folder
//
// The counting goes on between the opening of a file named failing.begin and one named failing.end in that folder.
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/uio.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

namespace {

enum class Call { None, Open, Write, Sync, Rename, Close };
enum class Way { Once, Onwards, Half };

/// The system's own function of that name.
template <class Function>
Function* Real(const char* name) {
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

std::string_view Told(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr ? std::string_view() : value;
}

class Disk {
public:
    Disk() : folder_(Told("FAILING_FOLDER")), count_(Told("FAILING_COUNT")) {
        at_ = std::atoi(std::string(Told("FAILING_CALL")).c_str());
        error_ = std::atoi(std::string(Told("FAILING_ERROR")).c_str());
        way_ =
            Told("FAILING_WAY") == "onwards" ? Way::Onwards : (Told("FAILING_WAY") == "half" ? Way::Half : Way::Once);
    }

    [[nodiscard]] bool Holds(const char* path) const {
        return path != nullptr && !folder_.empty() && std::string_view(path).starts_with(folder_);
    }
    /// Whether this path starts or ends the counting.
    bool Marks(const char* path) {
        const std::string_view name(path);
        if (name.ends_with("/failing.begin")) {
            counting_ = true;
        } else if (name.ends_with("/failing.end")) {
            counting_ = false;
            TellCount();
        } else {
            return false;
        }
        return true;
    }
    void Follow(int descriptor) { followed_.at(Slot(descriptor)) = true; }
    bool Follows(int descriptor) const {
        return descriptor >= 0 && Slot(descriptor) < followed_.size() && followed_.at(Slot(descriptor));
    }
    void Forget(int descriptor) { followed_.at(Slot(descriptor)) = false; }

    /// Counts one call; whether it is to fail, with errno set.
    bool Fails(Call call) {
        if (!counting_) {
            return false;
        }
        ++calls_;
        if (calls_ == at_) {
            broken_ = call;
        }
        const bool now = calls_ == at_ || (way_ != Way::Once && broken_ == call);
        if (now) {
            errno = error_;
        }
        return now;
    }
    /// How much of a write that fails gets through.
    [[nodiscard]] std::size_t Through(std::size_t size) const {
        return way_ == Way::Half && calls_ == at_ ? size / 2 : 0;
    }

private:
    static std::size_t Slot(int descriptor) { return static_cast<std::size_t>(descriptor); }
    void TellCount() const {
        const int file = Real<int(const char*, int, ...)>("open")(count_.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        const std::string text = std::to_string(calls_);
        static_cast<void>(!Real<ssize_t(int, const void*, std::size_t)>("write")(file, text.data(), text.size()));
        Real<int(int)>("close")(file);
    }

    std::string folder_;
    std::string count_;
    int at_ = 0;
    int error_ = 0;
    Way way_ = Way::Once;
    bool counting_ = false;
    int calls_ = 0;
    Call broken_ = Call::None;
    std::array<bool, 1024> followed_{};
};

Disk& TheDisk() {
    static Disk disk;
    return disk;
}

/// Opens by way of `open`, which gives a descriptor.
template <class Open>
int Opened(const char* path, Open&& open) {
    Disk& disk = TheDisk();
    if (!disk.Holds(path) || disk.Marks(path)) {
        return open();
    }
    if (disk.Fails(Call::Open)) {
        return -1;
    }
    const int descriptor = open();
    if (descriptor >= 0) {
        disk.Follow(descriptor);
    }
    return descriptor;
}

template <class Open>
FILE* OpenedStream(const char* path, Open&& open) {
    FILE* stream = nullptr;
    const int descriptor = Opened(path, [&] {
        stream = open();
        return stream == nullptr ? -1 : ::fileno(stream);
    });
    return descriptor < 0 ? nullptr : stream;
}

template <class Sync>
int Synced(int descriptor, Sync&& sync) {
    return TheDisk().Follows(descriptor) && TheDisk().Fails(Call::Sync) ? -1 : sync();
}

mode_t ModeOf(int flags, std::va_list& rest) {
    return (flags & (O_CREAT | __O_TMPFILE)) != 0 ? va_arg(rest, mode_t) : 0;
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
    std::va_list rest;
    va_start(rest, flags);
    const mode_t mode = ModeOf(flags, rest);
    va_end(rest);
    return Opened(path, [&] { return Real<int(const char*, int, ...)>("open")(path, flags, mode); });
}

int open64(const char* path, int flags, ...) {
    std::va_list rest;
    va_start(rest, flags);
    const mode_t mode = ModeOf(flags, rest);
    va_end(rest);
    return Opened(path, [&] { return Real<int(const char*, int, ...)>("open64")(path, flags, mode); });
}

FILE* fopen(const char* path, const char* mode) {
    return OpenedStream(path, [&] { return Real<FILE*(const char*, const char*)>("fopen")(path, mode); });
}

FILE* fopen64(const char* path, const char* mode) {
    return OpenedStream(path, [&] { return Real<FILE*(const char*, const char*)>("fopen64")(path, mode); });
}

ssize_t write(int descriptor, const void* bytes, std::size_t size) {
    static auto* const real = Real<ssize_t(int, const void*, std::size_t)>("write");
    Disk& disk = TheDisk();
    if (!disk.Follows(descriptor) || !disk.Fails(Call::Write)) {
        return real(descriptor, bytes, size);
    }
    const std::size_t through = disk.Through(size);
    return through > 0 ? real(descriptor, bytes, through) : -1;
}

ssize_t writev(int descriptor, const struct iovec* parts, int count) {
    Disk& disk = TheDisk();
    if (!disk.Follows(descriptor)) {
        return Real<ssize_t(int, const struct iovec*, int)>("writev")(descriptor, parts, count);
    }
    std::string all;
    for (int i = 0; i < count; ++i) {
        all.append(static_cast<const char*>(parts[i].iov_base), parts[i].iov_len);
    }
    return write(descriptor, all.data(), all.size());
}

int fsync(int descriptor) {
    return Synced(descriptor, [&] { return Real<int(int)>("fsync")(descriptor); });
}

int fdatasync(int descriptor) {
    return Synced(descriptor, [&] { return Real<int(int)>("fdatasync")(descriptor); });
}

int rename(const char* from, const char* to) {
    Disk& disk = TheDisk();
    if (disk.Holds(to) && disk.Fails(Call::Rename)) {
        return -1;
    }
    return Real<int(const char*, const char*)>("rename")(from, to);
}

// A close that fails has closed all the same, as the system's does.
int close(int descriptor) {
    static auto* const real = Real<int(int)>("close");
    Disk& disk = TheDisk();
    if (!disk.Follows(descriptor)) {
        return real(descriptor);
    }
    disk.Forget(descriptor);
    const bool fails = disk.Fails(Call::Close);
    const int error = errno;
    const int result = real(descriptor);
    errno = fails ? error : errno;
    return fails ? -1 : result;
}

int fclose(FILE* stream) {
    static auto* const real = Real<int(FILE*)>("fclose");
    Disk& disk = TheDisk();
    const int descriptor = ::fileno(stream);
    if (!disk.Follows(descriptor)) {
        return real(stream);
    }
    disk.Forget(descriptor);
    const bool fails = disk.Fails(Call::Close);
    const int error = errno;
    const int result = real(stream);
    errno = fails ? error : errno;
    return fails ? EOF : result;
}
}
