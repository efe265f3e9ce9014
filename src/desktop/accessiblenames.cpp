// Accessible names.
#include "desktop/accessiblenames.h"

#include "desktop/formwindow.h"
#include "desktop/texts.h"
#include "frame/buttons.h"
#include "frame/combobox.h"
#include "frame/label.h"
#include "frame/picturebox.h"
#include "frame/scrollbar.h"
#include "frame/textbox.h"

#include <QAccessible>
#include <QComboBox>
#include <QLineEdit>

#include <algorithm>
#include <cmath>
#include <limits>

namespace brindlex {

namespace {

constexpr double NoLabel = std::numeric_limits<double>::max();
// A name so short needs the heading above it: X or Y of what?
constexpr int ShortName = 2;
// From a letter's corner to its middle, in twips.
constexpr double HalfLetter = 90;

bool SideBySide(const Place& a, const Place& b) {
    return a.Left < b.Left + b.Width && b.Left < a.Left + a.Width;
}

bool OnLineOf(const Place& beside, const Place& control) {
    const double middle = control.Top + control.Height / 2;
    return beside.Top <= middle && middle <= beside.Top + beside.Height;
}

// How far a label stands from a control, in twips: to its left on the same line, else above it. What stands above
// counts double, as eyes look to the left first.
double Distance(const Place& label, const Place& control) {
    const double gap = control.Left - (label.Left + label.Width);
    constexpr double Overlap = -120;
    if (gap >= Overlap && OnLineOf(label, control)) {
        return std::max(gap, 0.0);
    }
    const double drop = control.Top - (label.Top + label.Height);
    return drop >= Overlap && SideBySide(label, control) ? 2 * std::max(drop, 0.0) : NoLabel;
}

QString Spoken(const std::string& caption) {
    return FromText(caption).remove(u'&').simplified();
}

// Of the controls of a kind that stand in the same container, the one for which the measure is least; null where it is
// NoLabel for all.
template <class Kind, class Measure>
const Kind* Nearest(const Control& control, Measure&& measure) {
    const Kind* nearest = nullptr;
    double least = NoLabel;
    for (const Control* const sibling : control.Container().Children()) {
        const auto* const candidate = dynamic_cast<const Kind*>(sibling);
        if (candidate != nullptr && sibling != &control) {
            const double away = measure(*candidate);
            if (away < least) {
                nearest = candidate;
                least = away;
            }
        }
    }
    return nearest;
}

// A label's words; those of a short one with the heading above it in front.
QString NameOf(const Label& label, const Control& control) {
    QString name = Spoken(label.Caption());
    if (QString(name).remove(u':').size() > ShortName) {
        return name;
    }
    const Place own = label.PlaceInTwips();
    const Place box = control.PlaceInTwips();
    const Place both{own.Left, own.Top, box.Left + box.Width - own.Left, own.Height};
    const auto* const heading = Nearest<Label>(label, [&](const Label& other) {
        const double drop = both.Top - (other.PlaceInTwips().Top + other.PlaceInTwips().Height);
        const bool heads = Spoken(other.Caption()).remove(u':').size() > ShortName;
        return heads && drop >= 0 && SideBySide(other.PlaceInTwips(), both) ? drop : NoLabel;
    });
    return heading == nullptr ? name : Spoken(heading->Caption()) + u' ' + name;
}

QString FromLabel(const Control& control) {
    const auto* const label = Nearest<Label>(control, [&](const Label& candidate) {
        return Spoken(candidate.Caption()).isEmpty() ? NoLabel
                                                     : Distance(candidate.PlaceInTwips(), control.PlaceInTwips());
    });
    return label == nullptr ? QString() : NameOf(*label, control);
}

QString FrameAround(const Control& control) {
    const auto* const frame = dynamic_cast<const Frame*>(control.Container().ContainerControl());
    return frame == nullptr ? QString() : Spoken(frame->Caption());
}

// The options on the same line to the left: one for the kind that the box takes, or several for what it means.
QString FromOptions(const Control& control) {
    QStringList options;
    for (const Control* const sibling : control.Container().Children()) {
        const auto* const option = dynamic_cast<const OptionButton*>(sibling);
        if (option != nullptr && sibling->PlaceInTwips().Left < control.PlaceInTwips().Left &&
            OnLineOf(sibling->PlaceInTwips(), control.PlaceInTwips())) {
            options << Spoken(option->Caption());
        }
    }
    return options.isEmpty() ? QString() : FrameAround(control) + u' ' + options.join(QStringLiteral(" or "));
}

// The frame's caption, numbered where several controls of the frame have no other name.
QString FromFrame(const Control& control) {
    const QString name = FrameAround(control);
    int number = 0;
    int alike = 0;
    for (const Control* const sibling : control.Container().Children()) {
        if (dynamic_cast<const EditControl*>(sibling) != nullptr && FromLabel(*sibling).isEmpty()) {
            ++alike;
            number = sibling == &control ? alike : number;
        }
    }
    return name.isEmpty() || alike < 2 ? name : QStringLiteral("%1 %2").arg(name).arg(number);
}

// A frame beside or below stands for what is chosen for it.
QString FromFrameBeside(const Control& control) {
    const auto* const frame = Nearest<Frame>(control, [&](const Frame& candidate) {
        const Place place = candidate.PlaceInTwips();
        const Place own = control.PlaceInTwips();
        return std::hypot(std::max(place.Left - own.Left - own.Width, 0.0),
                          std::max(place.Top - own.Top - own.Height, 0.0));
    });
    return frame == nullptr ? QString() : Spoken(frame->Caption());
}

// The letter that is drawn nearest to a box on a picture. A capital one names an angle, a small one a side, as always
// in a triangle.
QString FromDrawnLetter(const Control& control) {
    const auto* const picture = dynamic_cast<const PictureBox*>(control.Container().ContainerControl());
    if (picture == nullptr) {
        return {};
    }
    const Place box = control.PlaceInTwips();
    QString nearest;
    double least = NoLabel;
    for (const DrawItem& item : picture->Drawn().Items()) {
        const QString letter = item.Kind == DrawKind::Text ? FromText(item.Text).trimmed().left(2) : QString();
        const bool names = letter.size() == 1 || letter.endsWith(u'=');
        if (!names || !letter.at(0).isLetter() || item.Scale.Width == 0 || item.Scale.Height == 0) {
            continue;
        }
        const Place own = picture->PlaceInTwips();
        const double x = (item.X1 - item.Scale.Left) * own.Width / item.Scale.Width + HalfLetter;
        const double y = (item.Y1 - item.Scale.Top) * own.Height / item.Scale.Height + HalfLetter;
        const double away = std::hypot(x - std::clamp(x, box.Left, box.Left + box.Width),
                                       y - std::clamp(y, box.Top, box.Top + box.Height));
        if (away < least) {
            nearest = letter.left(1);
            least = away;
        }
    }
    if (nearest.isEmpty()) {
        return nearest;
    }
    return (nearest.at(0).isUpper() ? QStringLiteral("Angle ") : QStringLiteral("Side ")) + nearest;
}

QString FromKind(const Control& control) {
    if (const auto* const frame = dynamic_cast<const Frame*>(&control)) {
        return Spoken(frame->Caption());
    }
    if (const auto* const bar = dynamic_cast<const ScrollBar*>(&control)) {
        return bar->Orientation() == ScrollBar::Direction::Horizontal ? QStringLiteral("Horizontal Scroll Bar")
                                                                      : QStringLiteral("Vertical Scroll Bar");
    }
    if (dynamic_cast<const PictureBox*>(&control) != nullptr) {
        return QStringLiteral("Drawing");
    }
    if (dynamic_cast<const Toolbar*>(&control) != nullptr) {
        return QStringLiteral("Tools");
    }
    const auto* const box = dynamic_cast<const TextBox*>(&control);
    return box != nullptr && box->MultiLine() ? QStringLiteral("Report") : QString();
}

QString NameFor(const Control& control) {
    using Namer = QString (*)(const Control&);
    // The first that finds a name gives it.
    constexpr Namer Namers[] = {FromKind, FromDrawnLetter, FromLabel, FromOptions, FromFrame, FromFrameBeside};
    for (const Namer namer : Namers) {
        if (QString name = namer(control); !name.isEmpty()) {
            return name;
        }
    }
    return Spoken(control.ToolTipText().empty() ? control.Name() : control.ToolTipText());
}

bool NeedsName(const Control& control) {
    return dynamic_cast<const Button*>(&control) == nullptr && dynamic_cast<const Label*>(&control) == nullptr;
}

// What a box is for that another one has the caption of; nothing where the caption tells.
QString PurposeOf(const CheckBox& box) {
    const auto* const other = Nearest<CheckBox>(box, [&](const CheckBox& candidate) {
        return Spoken(candidate.Caption()) == Spoken(box.Caption()) ? 0 : NoLabel;
    });
    return other == nullptr ? QString() : FromLabel(box);
}

void SetName(QWidget* widget, const QString& name) {
    if (widget != nullptr && widget->accessibleName() != name) {
        widget->setAccessibleName(name);
    }
}

}  // namespace

void NameForReaders(FormWindow& window) {
    for (const Control* const control : window.Surface().Controls()) {
        const Peer* const peer = window.PeerOf(*control);
        if (peer == nullptr || peer->Widget() == nullptr) {
            continue;
        }
        if (const auto* const box = dynamic_cast<const CheckBox*>(control)) {
            const QString purpose = PurposeOf(*box);
            if (peer->Widget()->accessibleDescription() != purpose) {
                peer->Widget()->setAccessibleDescription(purpose);
            }
        }
        if (!NeedsName(*control)) {
            continue;
        }
        const QString name = NameFor(*control);
        SetName(peer->Widget(), name);
        if (dynamic_cast<const PictureBox*>(control) != nullptr) {
            QAccessibleEvent told(peer->Widget(), QAccessible::DescriptionChanged);
            QAccessible::updateAccessibility(&told);
        }
        if (const auto* const list = qobject_cast<QComboBox*>(peer->Widget())) {
            SetName(list->lineEdit(), name);
        }
    }
}

}  // namespace brindlex
