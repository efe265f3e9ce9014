// Accessible names.
#include "desktop/accessiblenames.h"

#include "desktop/formwindow.h"
#include "desktop/texts.h"
#include "frame/label.h"
#include "frame/picturebox.h"
#include "frame/scrollbar.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace brindlex {

namespace {

constexpr double NoLabel = std::numeric_limits<double>::max();

// How far a label stands from a control, in twips: to its left on the same line, else above it. What stands above
// counts double, as eyes look to the left first.
double Distance(const Place& label, const Place& control) {
    const double middle = control.Top + control.Height / 2;
    const double gap = control.Left - (label.Left + label.Width);
    constexpr double Overlap = -120;
    if (gap >= Overlap && label.Top <= middle && middle <= label.Top + label.Height) {
        return std::max(gap, 0.0);
    }
    const double drop = control.Top - (label.Top + label.Height);
    const bool over = label.Left < control.Left + control.Width && control.Left < label.Left + label.Width;
    return drop >= Overlap && over ? 2 * std::max(drop, 0.0) : NoLabel;
}

QString NameFor(const Control& control) {
    if (const auto* const frame = dynamic_cast<const Frame*>(&control)) {
        return FromText(frame->Caption()).remove(u'&');
    }
    const Label* nearest = nullptr;
    double distance = NoLabel;
    for (const Control* const sibling : control.Container().Children()) {
        const auto* const label = dynamic_cast<const Label*>(sibling);
        if (label == nullptr || label->Caption().empty()) {
            continue;
        }
        const double away = Distance(label->PlaceInTwips(), control.PlaceInTwips());
        if (away < distance) {
            nearest = label;
            distance = away;
        }
    }
    if (nearest != nullptr) {
        return FromText(nearest->Caption()).remove(u'&');
    }
    return FromText(control.ToolTipText().empty() ? control.Name() : control.ToolTipText());
}

bool NeedsName(const Control& control) {
    const bool speaks = dynamic_cast<const Button*>(&control) != nullptr ||
                        dynamic_cast<const Label*>(&control) != nullptr ||
                        dynamic_cast<const Toolbar*>(&control) != nullptr;
    return !speaks;
}

void NameOne(FormWindow& window, const Control& control) {
    const Peer* const peer = window.PeerOf(control);
    if (peer == nullptr || peer->Widget() == nullptr || !NeedsName(control)) {
        return;
    }
    const QString name = NameFor(control);
    if (peer->Widget()->accessibleName() != name) {
        peer->Widget()->setAccessibleName(name);
    }
}

}  // namespace

void NameForReaders(FormWindow& window) {
    for (const Control* const control : window.Surface().Controls()) {
        NameOne(window, *control);
    }
}

void NameAfterCaption(FormWindow& window, const Control& changed) {
    for (const Control* const sibling : changed.Container().Children()) {
        const bool beside = Distance(changed.PlaceInTwips(), sibling->PlaceInTwips()) < NoLabel;
        if (beside || sibling == &changed) {
            NameOne(window, *sibling);
        }
    }
}

}  // namespace brindlex
