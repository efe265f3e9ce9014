// One degree in radians, not taken from the program.
#pragma once

#include <cmath>

namespace brindlex {

inline const double Pi = std::acos(-1.0);
inline const double Rad = Pi / 180;

}  // namespace brindlex
