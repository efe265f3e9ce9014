// Where the seven panels stand: all in one place, one of them shown at a time.
// Units: inches on the form; twips within a panel.
#pragma once

#include "frame/place.h"

namespace brindlex::geometry {

inline constexpr Place PanelPlace{0.2917, 0.7083, 3.7, 1.0};

}  // namespace brindlex::geometry
