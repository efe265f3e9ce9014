// Reading of sine-plate documents.
#include "sineplate/document.h"

#include "frame/fault.h"
#include "frame/text.h"
#include "services/words.h"

namespace brindlex::sineplate {

bool IsDocument(const std::vector<std::string>& lines) {
    double spacing = 1;
    Guarded([&] { spacing = lines.empty() ? 1 : Val(lines.front()); });
    return spacing != 0 || (lines.size() > 1 && (lines[1] == BooleanWord(true) || lines[1] == BooleanWord(false)));
}

std::optional<Document> ReadDocument(const std::vector<std::string>& lines) {
    if (lines.empty()) {
        return std::nullopt;
    }
    Document document;
    document.Spacing = lines.front();
    std::size_t at = 1;
    for (auto& type : document.Types) {
        type = at < lines.size() ? BooleanFromWord(lines[at]) : std::nullopt;
        ++at;
    }
    for (std::string& angle : document.Angles) {
        angle = at < lines.size() ? lines[at] : "";
        ++at;
    }
    return document;
}

}  // namespace brindlex::sineplate
