// The language of the program's text files (see the header), on the streams of the standard library.
#include "frame/textfile.h"

#include "frame/fault.h"
#include "frame/rewrite.h"
#include "frame/text.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <ios>
#include <system_error>
#include <utility>

namespace brindlex {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view LineEnd = "\r\n";
constexpr std::size_t ZoneWidth = 14;

/// Windows-1252 from code 128 to 159; the codes around these are Latin-1. The five codes that the code page leaves
/// open stand for the code points of the same number, so that every byte comes back as it went.
constexpr char32_t UpperStart = 0x80;
constexpr std::array<char32_t, 32> UpperCodes{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};
constexpr char32_t UpperEnd = UpperStart + UpperCodes.size();

void AppendUtf8(std::string& utf8, char32_t point) {
    const auto trail = [](char32_t bits) { return static_cast<char>(0x80U | (bits & 0x3FU)); };
    if (point < 0x80) {
        utf8 += static_cast<char>(point);
    } else if (point < 0x800) {
        utf8 += static_cast<char>(0xC0U | (point >> 6U));
        utf8 += trail(point);
    } else {
        utf8 += static_cast<char>(0xE0U | (point >> 12U));
        utf8 += trail(point >> 6U);
        utf8 += trail(point);
    }
}

/// A sequence's shape by its first byte: the bits of the first byte, its length, the smallest point it may stand for.
struct Sequence {
    unsigned char mask;
    unsigned char lead;
    std::size_t length;
    char32_t smallest;
};
constexpr std::array Sequences{
    Sequence{0x80, 0x00, 1, 0x0},
    Sequence{0xE0, 0xC0, 2, 0x80},
    Sequence{0xF0, 0xE0, 3, 0x800},
    Sequence{0xF8, 0xF0, 4, 0x10000},
};
constexpr char32_t NoCharacter = 0xFFFFFFFF;

/// Takes one character off the front of a text that isn't empty; NoCharacter, and one byte off, where it is malformed.
char32_t TakeUtf8(std::string_view& utf8) {
    const auto first = static_cast<unsigned char>(utf8.front());
    for (const Sequence& sequence : Sequences) {
        if ((first & sequence.mask) != sequence.lead) {
            continue;
        }
        char32_t point = first & static_cast<unsigned char>(~sequence.mask);
        std::size_t taken = 1;
        while (taken < std::min(sequence.length, utf8.size()) && (utf8[taken] & 0xC0) == 0x80) {
            point = (point << 6U) | (static_cast<unsigned char>(utf8[taken]) & 0x3FU);
            ++taken;
        }
        if (taken == sequence.length && point >= sequence.smallest) {
            utf8.remove_prefix(taken);
            return point;
        }
        break;
    }
    utf8.remove_prefix(1);
    return NoCharacter;
}

char TextCharacter(char32_t point) {
    if (point < UpperStart || (point >= UpperEnd && point <= 0xFF)) {
        return static_cast<char>(static_cast<unsigned char>(point));
    }
    const auto* const found = std::find(UpperCodes.begin(), UpperCodes.end(), point);
    if (found == UpperCodes.end()) {
        return '?';
    }
    return static_cast<char>(
        static_cast<unsigned char>(UpperStart + static_cast<char32_t>(found - UpperCodes.begin())));
}

/// The fault behind a stream that has failed since errno was last set to 0.
Fault StreamFault() {
    return SystemFault({errno, std::generic_category()});
}

std::ofstream OpenForWriting(const fs::path& path, std::ios::openmode mode) {
    if (const std::error_code error = NotAFile(path)) {
        throw SystemFault(error);
    }
    errno = 0;
    std::ofstream stream(path, std::ios::out | std::ios::binary | mode);
    if (!stream) {
        throw StreamFault();
    }
    return stream;
}

/// Whether something of any kind, a dangling link included, bears the name.
bool IsTaken(const fs::path& path) {
    std::error_code error;
    return fs::exists(fs::symlink_status(path, error));
}

}  // namespace

std::string Utf8FromText(std::string_view text) {
    std::string utf8;
    utf8.reserve(text.size());
    for (const char c : text) {
        const char32_t code = static_cast<unsigned char>(c);
        AppendUtf8(utf8, code >= UpperStart && code < UpperEnd ? UpperCodes[code - UpperStart] : code);
    }
    return utf8;
}

std::string TextFromUtf8(std::string_view utf8) {
    std::string text;
    text.reserve(utf8.size());
    while (!utf8.empty()) {
        text += TextCharacter(TakeUtf8(utf8));
    }
    return text;
}

PrintLine& PrintLine::Text(std::string_view text) {
    // A line end may stand in the text, or begin with what stands before it.
    const std::size_t seam = std::max(line_.size(), start_ + 1) - 1;
    line_ += text;
    for (std::size_t end = line_.find(LineEnd, seam); end != std::string::npos; end = line_.find(LineEnd, start_)) {
        start_ = end + LineEnd.size();
    }
    return *this;
}

PrintLine& PrintLine::Number(double number) {
    line_ += brindlex::Str(number);
    line_ += ' ';
    return *this;
}

PrintLine& PrintLine::Comma() {
    const std::size_t column = Column();
    line_.append(ZoneWidth - column % ZoneWidth, ' ');
    return *this;
}

PrintLine& PrintLine::Tab(int column) {
    const std::size_t target = static_cast<std::size_t>(std::max(column, 1)) - 1;
    if (Column() > target) {
        Text(LineEnd);
    }
    line_.append(target - Column(), ' ');
    return *this;
}

InputFile::InputFile(const fs::path& path) {
    std::error_code error = NotAFile(path);
    if (error) {
        throw SystemFault(error);
    }
    const fs::file_type type = fs::status(path, error).type();
    if (type == fs::file_type::not_found) {
        throw Fault(FaultNumber::FileNotFound);
    }
    if (type == fs::file_type::character) {
        throw SystemFault(std::make_error_code(std::errc::no_such_device_or_address));  // some never end
    }
    errno = 0;
    stream_.open(path, std::ios::binary);
    if (!stream_) {
        throw StreamFault();
    }
}

std::string InputFile::LineInput() {
    if (Eof()) {
        throw Fault(FaultNumber::FileIo, "Input past end of file");
    }
    using Traits = std::char_traits<char>;
    std::streambuf& buffer = *stream_.rdbuf();
    std::string line;
    try {
        for (int c = buffer.sbumpc(); c != Traits::eof() && c != '\n'; c = buffer.sbumpc()) {
            if (c == '\r') {
                if (buffer.sgetc() == '\n') {
                    buffer.sbumpc();
                }
                break;
            }
            line += Traits::to_char_type(c);
        }
    } catch (const std::ios_base::failure& failure) {
        throw SystemFault(failure.code());  // the disk gave up in the middle of a line
    }
    return line;
}

bool InputFile::Eof() {
    try {
        return std::char_traits<char>::eq_int_type(stream_.rdbuf()->sgetc(), std::char_traits<char>::eof());
    } catch (const std::ios_base::failure& failure) {
        throw SystemFault(failure.code());
    }
}

std::vector<std::string> InputFile::AllLines() {
    std::vector<std::string> lines;
    while (!Eof()) {
        lines.push_back(LineInput());
    }
    return lines;
}

std::string InputFile::AllBytes() {
    std::string bytes;
    try {
        bytes.assign(std::istreambuf_iterator<char>(stream_), {});
    } catch (const std::ios_base::failure& failure) {
        throw SystemFault(failure.code());
    }
    return bytes;
}

void OutputFile::Print(std::string_view text) {
    // In one piece, so that no kill comes between a line and its end.
    const std::string line = std::string(text) + std::string(LineEnd);
    errno = 0;
    stream_.write(line.data(), static_cast<std::streamsize>(line.size()));
    Check();
}

void OutputFile::Write(const std::vector<std::string>& items) {
    std::string line;
    for (const std::string& item : items) {
        if (!line.empty()) {
            line += ',';
        }
        line += '"';
        line += item;  // a quote within stays as it is: the write statement doubles none
        line += '"';
    }
    Print(line);
}

void OutputFile::Close() {
    if (!stream_.is_open()) {
        return;
    }
    errno = 0;
    stream_.close();
    Check();
}

void OutputFile::Check() {
    if (!stream_) {
        throw StreamFault();
    }
}

Folder::Folder(fs::path directory) : directory_(std::move(directory)) {
}

fs::path Folder::PathOf(std::string_view name) const {
    if (name.find('\0') != std::string_view::npos) {
        throw Fault(FaultNumber::FileNotFound);  // the system would cut the name there and take another file
    }
    const std::string utf8 = Utf8FromText(name);
    return directory_ / fs::path(std::u8string(utf8.begin(), utf8.end()));
}

bool Folder::Exists(std::string_view name) const {
    bool exists = false;
    Guarded([&] {
        std::error_code error;
        const fs::file_status status = fs::status(PathOf(name), error);
        exists = fs::exists(status) && !fs::is_directory(status);
    });
    return exists;
}

InputFile Folder::OpenInput(std::string_view name) const {
    return InputFile(PathOf(name));
}

OutputFile Folder::OpenOutput(std::string_view name) const {
    return OutputFile(OpenForWriting(PathOf(name), std::ios::trunc));
}

OutputFile Folder::OpenAppend(std::string_view name) const {
    return OutputFile(OpenForWriting(PathOf(name), std::ios::app));
}

void Folder::Touch(std::string_view name) const {
    OpenAppend(name).Close();
}

void Folder::Kill(std::string_view name) const {
    const fs::path path = PathOf(name);
    std::error_code error;
    if (fs::is_directory(fs::symlink_status(path, error))) {
        throw SystemFault(std::make_error_code(std::errc::is_a_directory));
    }
    const bool removed = fs::remove(path, error);
    if (error) {
        throw SystemFault(error);
    }
    if (!removed) {
        throw Fault(FaultNumber::FileNotFound);
    }
}

void Folder::KillIfThere(std::string_view name) const noexcept {
    try {
        Kill(name);
    } catch (const std::exception&) {  // NOLINT(bugprone-empty-catch): what can't be deleted stays
    }
}

void Folder::Name(std::string_view from, std::string_view to) const {
    const fs::path source = PathOf(from);
    const fs::path target = PathOf(to);
    if (!IsTaken(source)) {
        throw Fault(FaultNumber::FileNotFound);
    }
    if (IsTaken(target)) {
        throw Fault(FaultNumber::FileIo, "File already exists");
    }
    std::error_code error;
    fs::rename(source, target, error);
    if (error) {
        throw SystemFault(error);
    }
}

void Folder::Rewrite(std::string_view name, std::string_view content, Durability durability) const {
    RewriteFile(PathOf(name), content, durability);
}

void Folder::RewriteLines(std::string_view name, const std::vector<std::string>& lines, Durability durability) const {
    std::size_t size = 0;
    for (const std::string& line : lines) {
        size += line.size() + LineEnd.size();
    }
    std::string content;
    content.reserve(size);
    for (const std::string& line : lines) {
        content += line;
        content += LineEnd;
    }
    Rewrite(name, content, durability);
}

}  // namespace brindlex
