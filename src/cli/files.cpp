// Reading and rewriting of files.
#include "cli/files.h"

#include "cli/failure.h"
#include "frame/rewrite.h"
#include "frame/textfile.h"

namespace brindlex::cli {

std::vector<std::string> LinesOf(const std::filesystem::path& file) {
    try {
        return InputFile(file).AllLines();
    } catch (const Fault& fault) {
        throw Failure(Exit::Disk, file.string() + " can't be read: " + fault.what());
    }
}

void WriteWhole(const std::filesystem::path& file, std::string_view content) {
    try {
        RewriteFile(file, content, Durability::Disk);
    } catch (const Fault& fault) {
        throw Failure(Exit::Disk, file.string() + " can't be written: " + fault.what());
    }
}

}  // namespace brindlex::cli
