// Reading of polygon documents.
#include "polygon/document.h"

#include "frame/fault.h"
#include "frame/text.h"
#include "services/words.h"

#include <algorithm>
#include <limits>

namespace brindlex::polygon {

bool IsDocument(const std::vector<std::string>& lines) {
    double sides = 1;
    Guarded([&] { sides = lines.empty() ? 1 : Val(lines.front()); });
    return sides != 0 || (lines.size() > 1 && (lines[1] == BooleanWord(true) || lines[1] == BooleanWord(false)));
}

std::optional<Document> ReadDocument(const std::vector<std::string>& lines) {
    if (lines.empty()) {
        return std::nullopt;
    }
    Document document;
    document.Sides = lines.front();
    for (std::size_t at = 0; at < ChoiceCount && at + 1 < lines.size(); ++at) {
        document.Choices[at] = BooleanFromWord(lines[at + 1]);
    }
    if (lines.size() == DocumentLines) {
        document.Dimension = lines.back();
    }
    return document;
}

double SidesTyped(std::string_view text) {
    double sides = std::numeric_limits<double>::max();
    Guarded([&] { sides = Val(text); });
    return sides;
}

int SidesOf(std::string_view text) {
    return CInt(std::clamp(SidesTyped(text), 0.0, MostSides + 1.0));
}

}  // namespace brindlex::polygon
