// The refresh that lists the pairs of lines anew: those that cross, and those that would cross if they were longer.
// Whatever changes the lines of the drawing calls it.
// Units: drawing coordinates.
#pragma once

#include "frame/combobox.h"
#include "geometry/session.h"
#include "geometry/tangentpanel.h"

namespace brindlex::geometry {

class PairLists {
public:
    /// `potential` is the list of the extend panel.
    PairLists(Session& work, TangentPanel& tangent, ComboBox& potential)
        : work_(work), tangent_(tangent), potential_(potential) {}

    /// Fills both lists; each keeps its selection while that is still there, else it shows its first item. Ends with
    /// the tangent circles, which are made in any refresh while a size is entered: intended.
    void FindAng();

private:
    Session& work_;
    TangentPanel& tangent_;
    ComboBox& potential_;
};

}  // namespace brindlex::geometry
