// The sketch of a right triangle, its letters and its results, from plain values onto a picture.
// Corner A is at the bottom left, B at the top, C at the bottom right.
// Units: twips of the picture, y down; lengths in any one unit.
#pragma once

#include "frame/picturebox.h"
#include "frame/place.h"
#include "righttri/answer.h"

#include <array>
#include <optional>
#include <string_view>

namespace brindlex::righttri {

/// A known value is bold and red, any other plain and black.
using KnownParts = std::array<bool, PartCount>;
/// The parts that the two entry labels name, and corner A, which is known always.
[[nodiscard]] KnownParts KnownFrom(std::string_view inputLabel1, std::string_view inputLabel2);

/// The fixed sketch.
void DrawTriangle(PictureBox& picture, Colour colour = Blue);

/// The triangle with its real proportions within the sketch: the longer leg keeps the sketch's length.
struct Proportions {
    double LegBEnd = 0;  ///< x of corner C
    double LegCTop = 0;  ///< y of corner B
    bool LegBLonger = false;
    bool LegCLonger = false;
};
/// From the legs as ".000" shows them, but which is longer is told by the legs as they are: intended. Legs too small
/// for ".000" are taken as they are; nothing where no leg has a length. Throws Fault where the legs are out of range.
[[nodiscard]] std::optional<Proportions> ProportionsOf(double sideB, double sideC);
/// Draws them in blue, and in grey what the sketch leaves over. With `wipe` the blue lines are wiped again in white.
void SmallTriangle(PictureBox& picture, const Proportions& proportions, bool wipe);

/// The letters of corners and sides for results that are printed on the picture.
void PlaceLetters(PictureBox& picture, const KnownParts& known);
/// The letters moved within the triangle, to leave room for the result boxes.
void PlaceLetters2(PictureBox& picture, const KnownParts& known);
/// The results, each behind its letter. Corner A has a text of its own; the one given is not looked at.
void PlaceResults(PictureBox& picture, const PartTexts& texts, const KnownParts& known);
/// Corner A alone.
void PlaceCornerA(PictureBox& picture);

/// Puts the pen back to plain black.
void PlainPen(PictureBox& picture);

}  // namespace brindlex::righttri
