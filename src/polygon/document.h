// Polygon documents: the sides, the five options as Booleans, the dimension.
// Units: the dimension as text. Includes no control, form or runtime.
#pragma once

#include "polygon/solver.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex::polygon {

inline constexpr std::size_t DocumentLines = 7;

/// The options in the order of the file: across one flat stands before flat to corner there: intended.
enum class Choice { Inscribed, Circumscribed, AcrossFlats, OneFlat, FlatToCorner };
inline constexpr std::size_t ChoiceCount = 5;

struct Document {
    std::string Sides;
    std::array<std::optional<bool>, ChoiceCount> Choices;  ///< by Choice; nothing for a word that is no Boolean
    std::optional<std::string> Dimension;                  ///< only of a document that is whole

    [[nodiscard]] bool Chosen(Choice choice) const { return Choices[static_cast<std::size_t>(choice)].value_or(false); }
    /// Which circle and dimension are chosen in the end: of those that exclude each other the later wins.
    [[nodiscard]] bool IsInscribed() const { return !Chosen(Choice::Circumscribed); }
    [[nodiscard]] bool IsOneFlat() const { return Chosen(Choice::OneFlat) && !Chosen(Choice::FlatToCorner); }
};

/// A document of another kind begins with no number and goes on with no Boolean. An empty one is of any kind.
[[nodiscard]] bool IsDocument(const std::vector<std::string>& lines);
/// Nothing for an empty document.
[[nodiscard]] std::optional<Document> ReadDocument(const std::vector<std::string>& lines);

/// The number of sides of a text; the largest double for one beyond the range.
[[nodiscard]] double SidesTyped(std::string_view text);
/// The same as a whole number from 0 to MostSides + 1.
[[nodiscard]] int SidesOf(std::string_view text);

}  // namespace brindlex::polygon
