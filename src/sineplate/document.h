// Sine-plate documents: the spacing, the two types of plate as Booleans, the two angles.
// Units: angles as texts, the spacing in inches. Includes no control, form or runtime.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace brindlex::sineplate {

inline constexpr std::size_t DocumentLines = 5;

struct Document {
    std::string Spacing;
    std::array<std::optional<bool>, 2> Types;  ///< regular, compound; nothing for a word that is no Boolean
    /// Where a document was cut off they are empty, so that old entries do not mix with it.
    std::array<std::string, 2> Angles;

    /// Whether the compound plate is chosen in the end: the later of the two wins, and without either it is regular.
    [[nodiscard]] bool IsCompound() const { return Types[1].value_or(false); }
};

/// A document of another kind begins with no number and goes on with no Boolean. An empty one is of any kind.
[[nodiscard]] bool IsDocument(const std::vector<std::string>& lines);
/// Nothing for an empty document.
[[nodiscard]] std::optional<Document> ReadDocument(const std::vector<std::string>& lines);

}  // namespace brindlex::sineplate
