// Reading and rewriting of files.
#include "cli/files.h"

#include "cli/failure.h"
#include "cli/values.h"
#include "frame/rewrite.h"
#include "frame/textfile.h"
#include "services/settings.h"

#include <utility>

namespace brindlex::cli {

namespace {

template <class Read>
auto ReadOf(const std::filesystem::path& file, Read&& read) {
    try {
        return std::forward<Read>(read)(InputFile(file));
    } catch (const Fault& fault) {
        throw Failure(Exit::Disk, file.string() + " can't be read: " + fault.what());
    }
}

}  // namespace

std::string EndingOf(const std::filesystem::path& file) {
    const std::string ending = Lower(file.extension().string());
    return ending.empty() ? ending : ending.substr(1);
}

std::vector<std::string> LinesOf(const std::filesystem::path& file) {
    return ReadOf(file, [](InputFile open) { return open.AllLines(); });
}

std::string BytesOf(const std::filesystem::path& file) {
    return ReadOf(file, [](InputFile open) { return open.AllBytes(); });
}

std::vector<std::string> DocumentOf(const std::filesystem::path& file, std::size_t most) {
    return ReadOf(file, [most](InputFile open) { return ReadDocument(std::move(open), most); });
}

void WriteWhole(const std::filesystem::path& file, std::string_view content) {
    try {
        RewriteFile(file, content, Durability::Disk);
    } catch (const Fault& fault) {
        throw Failure(Exit::Disk, file.string() + " can't be written: " + fault.what());
    }
}

}  // namespace brindlex::cli
