// Key filters: what the families do with a key, and who belongs to them.
#include "services/filters.h"

#include "frame/form.h"
#include "frame/program.h"
#include "frame/textbox.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace brindlex {

namespace {

constexpr int Backspace = 8;
constexpr int Minus = '-';
constexpr int Point = '.';

struct FilterRow;

/// One key on its way to a box.
struct Stroke {
    EditControl& Box;
    int& Key;
    const FilterRow& Row;

    [[nodiscard]] Program& Owner() const { return Box.Parent().Owner(); }
};

/// Works on the key. Returns whether the handler ran to its end; a message stops it.
using Family = bool (*)(const Stroke& stroke);

/// What follows when a handler has run to its end, whether the key was swallowed or not.
enum class Effect { None, UnitsOn, UnitsOnBreakOff };

struct FilterRow {
    std::string_view Form;
    std::string_view Controls;  ///< names with a blank between them
    Family Filter = nullptr;
    int BoxStyle = style::Plain;
    Effect After = Effect::None;
};

bool Rejected(int key, std::string_view punctuation) {
    const bool allowed = key > 0 && key < '0' && punctuation.find(static_cast<char>(key)) != std::string_view::npos;
    return key != Backspace && ((key < '0' && !allowed) || key > '9');
}

void SwallowRejected(const Stroke& stroke, std::string_view punctuation) {
    if (Rejected(stroke.Key, punctuation)) {
        stroke.Key = 0;
        stroke.Owner().Beep();
    }
}

/// Whether the key is a mark that the text has already; a selection of the whole text lifts that.
bool IsSecond(const Stroke& stroke, int mark) {
    const std::string& text = stroke.Box.Text();
    return stroke.Key == mark && stroke.Box.SelLength() != static_cast<int>(text.size()) &&
           text.find(static_cast<char>(mark)) != std::string::npos;
}

bool RefuseSecond(const Stroke& stroke, int mark) {
    stroke.Key = 0;
    stroke.Owner().BeepBox("Only one instance of \"" + std::string(1, static_cast<char>(mark)) + "\" allowed",
                           stroke.Row.BoxStyle);
    return false;
}

// D: digits.
bool Digits(const Stroke& stroke) {
    SwallowRejected(stroke, "");
    return true;
}

// P: digits and one point.
bool OnePoint(const Stroke& stroke) {
    if (IsSecond(stroke, Point)) {
        return RefuseSecond(stroke, Point);
    }
    SwallowRejected(stroke, ".");
    return true;
}

// Q: digits and points, several too: intended.
bool Points(const Stroke& stroke) {
    SwallowRejected(stroke, ".");
    return true;
}

// C: digits and one point; any other key pastes the clipboard over the whole text, Space and Escape too, and an empty
// clipboard wipes it: intended, these boxes have no other paste by keyboard.
bool PointOrPaste(const Stroke& stroke) {
    if (IsSecond(stroke, Point)) {
        return RefuseSecond(stroke, Point);
    }
    if (Rejected(stroke.Key, ".")) {
        dynamic_cast<TextBox&>(stroke.Box).Text(stroke.Owner().Clipboard().GetText());
        stroke.Key = 0;
        stroke.Owner().Beep();
    }
    return true;
}

// S: signed numbers; a minus typed anywhere goes to the front, with a beep: intended.
bool Signed(const Stroke& stroke) {
    const std::string text = stroke.Box.Text();
    const bool wholeSelected = stroke.Box.SelLength() == static_cast<int>(text.size());
    if (stroke.Key == Minus && !wholeSelected && text.find('-') == std::string::npos) {
        auto& box = dynamic_cast<TextBox&>(stroke.Box);
        box.Text("-" + text);
        stroke.Key = 0;
        box.SelStart(static_cast<int>(box.Text().size()));
    }
    for (const int mark : {Minus, Point}) {
        if (IsSecond(stroke, mark)) {
            return RefuseSecond(stroke, mark);
        }
    }
    SwallowRejected(stroke, "-.");
    return true;
}

// L: ranges in boxes that can be locked. The first holds whole numbers.
bool WholeRange(const Stroke& stroke) {
    if (stroke.Box.Locked()) {
        return true;
    }
    if (IsSecond(stroke, Minus)) {
        return RefuseSecond(stroke, Minus);
    }
    SwallowRejected(stroke, "-");
    return true;
}

/// Whether the side of the minus that the point would go to has a point already; a selection across it joins both.
bool SideHasPoint(const EditControl& box) {
    std::string_view side = box.Text();
    const std::size_t minus = side.find('-');
    const auto from = static_cast<std::size_t>(box.SelStart());
    const std::size_t to = from + static_cast<std::size_t>(box.SelLength());
    if (minus != std::string_view::npos && minus < from) {
        side.remove_prefix(minus + 1);
    } else if (minus != std::string_view::npos && minus >= to) {
        side = side.substr(0, minus);
    }
    return side.find('.') != std::string_view::npos;
}

// L, the second: one point on each side of the minus.
bool Range(const Stroke& stroke) {
    if (stroke.Box.Locked()) {
        return true;
    }
    if (IsSecond(stroke, Minus)) {
        return RefuseSecond(stroke, Minus);
    }
    if (IsSecond(stroke, Point) && SideHasPoint(stroke.Box)) {
        return RefuseSecond(stroke, Point);
    }
    SwallowRejected(stroke, "-.");
    return true;
}

// N: no typing, backspace neither: intended.
bool NoKey(const Stroke& stroke) {
    stroke.Key = 0;
    stroke.Owner().Beep();
    return true;
}

// N on two of the dialogs: code 0 passes.
bool NoKeyAboveZero(const Stroke& stroke) {
    return stroke.Key > 0 ? NoKey(stroke) : true;
}

constexpr FilterRow FilterRows[] = {
    {"Form1", "Text1 Text2", PointOrPaste, style::Exclamation, Effect::UnitsOnBreakOff},
    {"Form1", "Combo1", NoKey},

    {"Form2", "Text1 Text2 Text3", PointOrPaste, style::Plain, Effect::UnitsOn},
    {"Form2", "Combo1", NoKey},

    {"Form3", "Text1 Text2", Digits},
    {"Form3", "Text3", OnePoint},
    {"Form4", "Text1 Text2", Digits},
    {"Form4", "Text3", OnePoint},
    {"Form13", "Text1 Text2", Digits},
    {"Form13", "Text3", OnePoint},
    {"Form15", "Text1 Text2", Digits},
    {"Form15", "Text3", Points},

    {"Form5", "Combo1", NoKeyAboveZero},
    {"Form6", "Combo1", NoKey},
    {"Form9", "Combo1", NoKey},
    {"Form14", "Combo1", NoKeyAboveZero},

    {"Form8", "Text1 Text2", Signed, style::Plain, Effect::UnitsOn},
    {"Form8", "Text3 Text5", OnePoint, style::Plain, Effect::UnitsOn},
    {"Form8", "Text4", Digits, style::Plain, Effect::UnitsOn},

    {"Form12", "Text1 Text2", OnePoint},
    {"Form12", "Combo1", Points},

    {"Form16", "Text1", OnePoint},
    {"Form16", "Combo1", Digits},

    {"Form17", "Text1", Signed, style::Exclamation},
    {"Form17", "Text2 Text6 Text7 Text8 Text9 Text10 Text11", Signed},
    {"Form17", "Text3 Text4", OnePoint},
    {"Form17", "Text12 Text13 Text14 Text15 Text16 Text17", Digits},

    {"Form19", "Text1", WholeRange, style::Exclamation},
    {"Form19", "Text2", Range, style::Exclamation},
    {"Form19", "Text3 Text6", Digits},
    {"Form19", "Text4 Text5 Text7 Text8 Text9 Text14 Text15", OnePoint, style::Exclamation},
};

void Follow(Effect effect, const Form& form) {
    if (effect == Effect::None) {
        return;
    }
    for (const std::string_view name : {"Inches", "Millimeters"}) {
        if (MenuItem* const item = form.FindMenu(name)) {
            item->Enabled(true);
        }
    }
    if (effect == Effect::UnitsOnBreakOff) {
        if (MenuItem* const separator = form.FindMenu("break10")) {
            separator->Visible(false);
        }
    }
}

void BindFilter(EditControl& box, const FilterRow& row) {
    box.KeyPress.Bind([&box, &row](int& key) {
        if (row.Filter({box, key, row})) {
            Follow(row.After, box.Parent());
        }
    });
}

}  // namespace

void BindFilters(Form& form) {
    for (const FilterRow& row : FilterRows) {
        if (row.Form != form.Name()) {
            continue;
        }
        for (std::string_view names = row.Controls; !names.empty();) {
            const std::string_view name = names.substr(0, names.find(' '));
            names.remove_prefix(std::min(name.size() + 1, names.size()));
            auto* const box = dynamic_cast<EditControl*>(form.FindControl(name));
            if (box == nullptr) {
                throw Fault(FaultNumber::BadArgument, form.Name() + " has no box " + std::string(name));
            }
            BindFilter(*box, row);
        }
    }
}

}  // namespace brindlex
