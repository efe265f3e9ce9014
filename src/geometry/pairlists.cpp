// The lists of pairs.
#include "geometry/pairlists.h"

#include "geometry/crossings.h"

#include <string>
#include <vector>

namespace brindlex::geometry {

namespace {

void Fill(ComboBox& list, const std::vector<std::string>& items) {
    const std::string remembered = list.Text();
    list.Clear();
    for (const std::string& item : items) {
        list.AddItem(item);
    }
    if (!items.empty()) {
        list.Text(SelectionAfter(items, remembered));
    }
}

}  // namespace

void PairLists::FindAng() {
    const Store live = work_.Live();
    const auto lines = live.TryLines();
    if (!lines) {
        // No circle is made of what can't be read.
        tangent_.Combo1.Clear();
        potential_.Clear();
        return;
    }
    const bool copied = live.WriteLineCopy(*lines);
    const Crossings pairs = FindCrossings(*lines);
    Fill(tangent_.Combo1, pairs.Crossing);
    Fill(potential_, pairs.Potential);
    tangent_.MoreAng(*lines, copied);
}

}  // namespace brindlex::geometry
