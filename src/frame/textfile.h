// The language of the program's text files: lines ended by carriage return and line feed, print zones and tabs,
// rewrites in one step. A Folder is a working directory; names without a path lie in it, and the process's own
// working directory is never looked at nor moved.
// Ground floor: includes only the standard library.
#pragma once

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// A text of Windows-1252 characters as UTF-8, and back ('?' where there is no such character). The five codes that
/// the code page leaves open stand for the code points of the same number, so every text comes back as it was.
[[nodiscard]] std::string Utf8FromText(std::string_view text);
[[nodiscard]] std::string TextFromUtf8(std::string_view utf8);

/// Builds one line as the print statement does: zones of 14 columns, tab columns counted from 1.
class PrintLine {
public:
    PrintLine& Text(std::string_view text);
    /// A number as the print statement writes it: Str and one blank behind it.
    PrintLine& Number(double number);
    /// Moves on to the start of a later zone; a text that ends exactly at a zone's end skips the zone that starts
    /// there. This is intended: records depend on it.
    PrintLine& Comma();
    /// Moves to a column (from 1). Where the line is past it already, the runtime starts a new line, and so does this.
    PrintLine& Tab(int column);

    [[nodiscard]] const std::string& Str() const noexcept { return line_; }

private:
    [[nodiscard]] std::size_t Column() const { return line_.size() - start_; }  // from 0, within the last line

    std::string line_;
    std::size_t start_ = 0;  // of the last line
};

/// A file open for input. Lines end at carriage return and line feed, at a lone carriage return or a lone line feed.
class InputFile {
public:
    /// Throws FileNotFound or FileIo (PermissionDenied where it is that) when the file can't be opened; a folder, a
    /// pipe or a socket in the file's place can't. A device can't be read from: a source of zeros never ends.
    explicit InputFile(const std::filesystem::path& path);

    /// The next line without its line end. Throws FileIo (input past end) at the end of the file.
    [[nodiscard]] std::string LineInput();
    [[nodiscard]] bool Eof();
    /// The lines that are left.
    [[nodiscard]] std::vector<std::string> AllLines();
    /// The bytes that are left, line ends among them.
    [[nodiscard]] std::string AllBytes();

private:
    std::ifstream stream_;
};

/// A file open for output or append. Failures of the disk come out as FileIo from Print or, at the latest, Close.
class OutputFile {
public:
    /// One print statement: the text, then carriage return and line feed.
    void Print(std::string_view text);
    /// One write statement: the texts in double quotes with commas between them, then the line end.
    void Write(const std::vector<std::string>& items);
    void Close();

private:
    friend class Folder;
    explicit OutputFile(std::ofstream stream) : stream_(std::move(stream)) {}
    void Check();

    std::ofstream stream_;
};

/// How hard a rewrite is pressed to the disk before the old file goes.
enum class Durability {
    Step,  ///< the one step of the rename only (live drawing, scratch files)
    Disk,  ///< the new file has reached the disk before it takes the old one's place (documents, settings, data)
};

/// A working directory.
class Folder {
public:
    explicit Folder(std::filesystem::path directory);

    [[nodiscard]] const std::filesystem::path& Path() const noexcept { return directory_; }
    /// The path of a file name given as program text; an absolute name stands for itself. Throws FileNotFound for a
    /// name with a NUL, which the system would cut there.
    [[nodiscard]] std::filesystem::path PathOf(std::string_view name) const;
    /// Whether a file, no folder, has this name.
    [[nodiscard]] bool Exists(std::string_view name) const;

    /// Throw as InputFile does when the file can't be opened.
    [[nodiscard]] InputFile OpenInput(std::string_view name) const;
    [[nodiscard]] OutputFile OpenOutput(std::string_view name) const;
    [[nodiscard]] OutputFile OpenAppend(std::string_view name) const;
    /// Makes sure that the file exists: opened for append and closed.
    void Touch(std::string_view name) const;
    /// Deletes the file. Throws FileNotFound where there is none.
    void Kill(std::string_view name) const;
    /// Deletes the file where it exists; never throws.
    void KillIfThere(std::string_view name) const noexcept;
    /// Renames; throws FileNotFound where there is nothing to rename, FileIo where the target exists (58 of the
    /// runtime) or the rename fails.
    void Name(std::string_view from, std::string_view to) const;

    /// Writes a whole file in one step: into a scratch file beside it, which then replaces it, so that a crash or a
    /// full disk at any moment leaves the old file or the new one, whole. Keeps the old file's permissions and
    /// follows a symbolic link to its target. On failure, also for a write-protected file, throws Fault, and the old
    /// file stands untouched, and no scratch file is left. A device in the file's place is written to directly.
    void Rewrite(std::string_view name, std::string_view content, Durability durability = Durability::Disk) const;
    /// The same, of lines that each get carriage return and line feed.
    void RewriteLines(std::string_view name, const std::vector<std::string>& lines,
                      Durability durability = Durability::Disk) const;

private:
    std::filesystem::path directory_;
};

}  // namespace brindlex
