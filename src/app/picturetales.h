// What the forms have to say of their pictures besides what is drawn on them.
#pragma once

#include <string>

namespace brindlex {

class PictureBox;

/// The drawing board's: each entity with its number, place and size, in the words of the report. Empty for any other.
[[nodiscard]] std::string TaleOf(const PictureBox& picture);

}  // namespace brindlex
