// What a picture shows, in words.
#pragma once

#include <QString>

#include <string>

namespace brindlex {

class PictureBox;

/// The texts that stand on it and the shapes, by their colours, and below them a tale from elsewhere: "Texts: B, c;
/// red: a. Shapes: 3 blue lines, 1 circle. Numbered: blue: circle 1; red: circle 2." Black goes without saying. Empty
/// for an empty picture.
[[nodiscard]] QString WordsOf(const PictureBox& picture, const std::string& tale);

}  // namespace brindlex
