// The scaling of the form.
#include "speedsfeeds/layout.h"

#include "frame/form.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace brindlex::speedsfeeds {

namespace {

/// What the arrow of a combo box takes of its width.
constexpr double ArrowWidth = 268;
constexpr double SmallestFont = 1;
constexpr int LastBox = 16;

struct Cover {
    std::string_view Box;
    std::string_view Combo;
};
constexpr Cover Covers[] = {{"Text17", "Combo2"}, {"Text18", "Combo3"}, {"Text19", "Combo4"}};

}  // namespace

void Layout::SaveLayout(const Form& form) {
    startWidth_ = form.ScaleWidth();
    startHeight_ = form.ScaleHeight();
    shares_.clear();
    for (Control* const control : form.Controls()) {
        shares_.push_back(
            {control, {control->Left(), control->Top(), control->Width(), control->Height()}, control->FontSize()});
    }
}

void Layout::SortItOut(const Form& form) const {
    const double across = form.ScaleWidth() / startWidth_;
    const double down = form.ScaleHeight() / startHeight_;
    // By the smaller growth, so that a text fits its place in both directions.
    const double font = std::min(across, down);
    for (const Share& share : shares_) {
        const Place& start = share.Start;
        share.Of->Move(start.Left * across, start.Top * down, start.Width * across, start.Height * down);
        share.Of->FontSize(std::max(share.FontSize * font, SmallestFont));
    }
    for (const Cover& cover : Covers) {
        const Control& combo = *form.FindControl(cover.Combo);
        Control& box = *form.FindControl(cover.Box);
        box.Height(combo.Height());
        box.Width(std::max(combo.Width() - ArrowWidth, 0.0));
    }
    const double boxHeight = form.FindControl("Combo1")->Height();
    for (int number = 1; number <= LastBox; ++number) {
        form.FindControl("Text" + std::to_string(number))->Height(boxHeight);
    }
}

}  // namespace brindlex::speedsfeeds
