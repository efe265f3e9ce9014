// Settings files and documents of any bytes: the readers give texts within their limits and the very lines of the file,
// they never throw, and reading changes no file.
#include "readfuzz.h"
#include "scratch.h"

#include "frame/textfile.h"
#include "services/rounding.h"
#include "services/settings.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace brindlex;

constexpr std::array<std::string_view, 4> Keys = {"DMS=", "Shape=", "Text=", "Rounding="};
constexpr std::size_t DocumentLines = 7;

/// A file that stays open and is written anew for every run.
class LastingFile {
public:
    LastingFile() : descriptor_(::open(Name().c_str(), O_RDWR | O_CREAT, S_IRUSR | S_IWUSR)) {
        Demand(descriptor_ >= 0);
    }
    ~LastingFile() { ::close(descriptor_); }
    LastingFile(const LastingFile&) = delete;
    LastingFile& operator=(const LastingFile&) = delete;

    void Put(const std::uint8_t* data, std::size_t size) const {
        Demand(::pwrite(descriptor_, data, size, 0) == static_cast<ssize_t>(size));
        Demand(::ftruncate(descriptor_, static_cast<off_t>(size)) == 0);
    }
    [[nodiscard]] bool Holds(std::string_view content) const {
        std::string held(content.size() + 1, '\0');
        const ssize_t length = ::pread(descriptor_, held.data(), held.size(), 0);
        return std::string_view(held.data(), static_cast<std::size_t>(length)) == content;
    }
    [[nodiscard]] std::string Name() const { return (scratch_.Path() / "settings.dat").string(); }

private:
    ScratchFolder scratch_;
    int descriptor_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const LastingFile file;
    static const std::string name = file.Name();
    static const Folder folder("/");
    file.Put(data, size);

    const std::vector<std::string> values = ReadSettings(folder, name, Keys);
    Demand(values.size() == Keys.size());
    for (std::size_t i = 0; i + 1 < values.size(); ++i) {
        const std::string flag = AcceptedFlag(values[i], "-1");
        Demand(flag == "-1" || flag == "0");
    }
    const std::string digits = AcceptedDigits(values.back());
    Demand(digits.size() <= 2 && !digits.empty());
    Demand(digits >= "1" && (digits <= "15" || digits == "4"));

    const std::vector<std::string> lines = ReadDocument(folder, name, DocumentLines);
    Demand(lines.size() <= DocumentLines);
    for (const std::string& line : lines) {
        Demand(!line.empty() && line.find_first_of("\r\n") == std::string::npos);
    }
    Demand(file.Holds(TextOf(data, size)));

    // The lines of what the reader reads, parted a second way.
    Demand(lines == DocumentOf(TextOf(data, size), DocumentLines));
    return 0;
}
