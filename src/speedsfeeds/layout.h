// The layout of a form that grows with its window: every control keeps its share of the form.
// Units: twips; font sizes in points.
#pragma once

#include "frame/place.h"

#include <vector>

namespace brindlex {
class Control;
class Form;
}  // namespace brindlex

namespace brindlex::speedsfeeds {

class Layout {
public:
    /// Takes the present places and font sizes of all controls as the shares.
    void SaveLayout(const Form& form);
    /// Puts the controls where they belong at the form's present size. The names over the combo boxes then take their
    /// combo's height and leave its arrow free; the other boxes take the height of the first combo.
    void SortItOut(const Form& form) const;

private:
    struct Share {
        Control* Of;
        Place Start;
        double FontSize;
    };

    double startWidth_ = 0;
    double startHeight_ = 0;
    std::vector<Share> shares_;
};

}  // namespace brindlex::speedsfeeds
