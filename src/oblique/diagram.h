// The picture of an oblique triangle: a schematic one with the letters of its elements or their values, and beside it
// the solved one to scale.
// Units: twips from the picture's top left corner, y downwards.
#pragma once

#include "frame/picturebox.h"
#include "oblique/answer.h"
#include "oblique/solver.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace brindlex::oblique {

/// Which elements were entered; they stand in bold red.
using KnownElements = std::array<bool, ElementCount>;

/// The element that an entry label (0 to 2) names, where this label can hold that element.
[[nodiscard]] std::optional<Element> ElementHeld(std::size_t label, std::string_view caption);
[[nodiscard]] KnownElements KnownFrom(const std::array<std::string, 3>& labels);

/// The schematic triangle.
void DrawOblique(PictureBox& picture);
/// Its letters outside, in the plain layout.
void DoLetters(PictureBox& picture, const KnownElements& known);
/// Its letters inside, in the layout with boxes over the picture.
void DoLetters2(PictureBox& picture, const KnownElements& known);
/// Values in place of the letters of the plain layout, as "A=" and the text.
void PrintValues(PictureBox& picture, const KnownElements& known, const ElementTexts& texts);
/// The kept triangle to scale, its longest side 2200 long.
void SmallObl(PictureBox& picture, const Triangle& triangle);
/// A grey circle that nothing calls for.
void DrawCircle(PictureBox& picture);

}  // namespace brindlex::oblique
