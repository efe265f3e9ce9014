// The connect panel: options and boxes, the checks of typed numbers, the lines of a connection.
#include "geometry/connectpanel.h"

#include "frame/program.h"
#include "frame/text.h"
#include "geometry/createpanel.h"
#include "services/activebox.h"

#include <string>
#include <vector>

namespace brindlex::geometry {

namespace {

/// Of each box of a side: its own kind, and the kinds that its number may turn out to be, in the order of the search.
struct KindSearch {
    Kind Own;
    std::array<Kind, 2> Others;
};
constexpr std::array<KindSearch, SideBoxes> Searches{{{Kind::Circle, {Kind::Line, Kind::Point}},
                                                      {Kind::Line, {Kind::Circle, Kind::Point}},
                                                      {Kind::Point, {Kind::Line, Kind::Circle}}}};

}  // namespace

ConnectPanel::ConnectPanel(ControlContainer& form, Session& work)
    : Frame(form, "Frame4", PanelPlace, "Connect Two Entities"), work_(work) {
    for (TextBox* const box : Boxes()) {
        BindFocus(*box);
        box->MaxLength(EntryWidth);
        box->Enabled(false);
        box->Locked(true);
    }
    for (CommandButton* const button : KeepButtons()) {
        button->Enabled(false);
        button->Visible(false);
    }
    for (std::size_t i = 0; i < Options().size(); ++i) {
        Options()[i]->Click.Bind([this, i] { SelectKind(i); });
    }
}

std::array<double, 6> ConnectPanel::NamedNumbers() const {
    return {ValueOf(Text12.Text()), ValueOf(Text13.Text()), ValueOf(Text14.Text()),
            ValueOf(Text15.Text()), ValueOf(Text16.Text()), ValueOf(Text17.Text())};
}

void ConnectPanel::ClearBoxes() {
    for (TextBox* const box : Boxes()) {
        box->Text("");
    }
}

void ConnectPanel::LockBoxes() {
    for (TextBox* const box : Boxes()) {
        box->Locked(true);
    }
}

void ConnectPanel::Rest() {
    for (OptionButton* const option : Options()) {
        option->Value(false);
    }
    ClearBoxes();
    LockBoxes();
    for (TextBox* const box : Boxes()) {
        box->Enabled(false);
    }
}

/// An option opens its own box and shuts the other two of its side.
void ConnectPanel::SelectKind(std::size_t option) {
    const auto boxes = Boxes();
    const std::size_t side = option / SideBoxes * SideBoxes;
    for (std::size_t i = side; i < side + SideBoxes; ++i) {
        boxes[i]->Enabled(i == option);
        if (i == option) {
            boxes[i]->Locked(false);
        } else {
            boxes[i]->Text("");
        }
    }
}

int ConnectPanel::LinesAskedFor() const {
    const bool first = Option1.Value() || Option2.Value();
    const bool second = Option4.Value() || Option5.Value();
    if (first && second) {
        return 4;
    }
    if ((first && Option6.Value()) || (Option3.Value() && second)) {
        return 2;
    }
    return Option3.Value() && Option6.Value() ? 1 : 0;
}

bool ConnectPanel::SidesNamed() const {
    const bool first = !Text12.Text().empty() || !Text13.Text().empty() || !Text14.Text().empty();
    const bool second = !Text15.Text().empty() || !Text16.Text().empty() || !Text17.Text().empty();
    return first && second;
}

bool ConnectPanel::PlaceIt() {
    if (!SidesNamed()) {
        work_.Owner().BeepBox("Nothing to Connect.", style::Stop);
        return false;
    }
    const bool found = CheckForError();
    // While a clicked entity is held the button does no more than check: intended.
    if (!found || work_.Pass.Pick.Stage != 0 || work_.Pass.Pick.Shape != Kind::None) {
        return false;
    }
    // The one line between two points is not offered here, it stays: intended.
    if (const int lines = LinesAskedFor(); lines > 1) {
        Session::Run(work_.Calls.OfferLines, work_.Entities.EntNum + 1, lines);
    }
    ConnectStuff();
    work_.DrawEntities();
    return true;
}

bool ConnectPanel::CheckForError() {
    const auto boxes = Boxes();
    for (std::size_t i = 0; i < SideBoxes; ++i) {
        TextBox& first = *boxes[i];
        TextBox& second = *boxes[i + SideBoxes];
        if (ValueOf(second.Text()) == ValueOf(first.Text()) && first.Enabled() && second.Enabled()) {
            work_.Owner().BeepBox("Can Not Connect an Entity To It's Self.");
            first.SetFocus();
            return false;
        }
    }
    return CheckSide(0) && CheckSide(SideBoxes);
}

/// Checks the first box of a side that is not empty.
bool ConnectPanel::CheckSide(std::size_t firstBox) {
    const auto boxes = Boxes();
    for (std::size_t i = 0; i < SideBoxes; ++i) {
        TextBox& box = *boxes[firstBox + i];
        if (box.Text().empty()) {
            continue;
        }
        const double number = ValueOf(box.Text());
        if (work_.Entities.Has(Searches[i].Own, number)) {
            return true;
        }
        std::string what = " Does Not Exist.";
        for (const Kind other : Searches[i].Others) {
            if (work_.Entities.Has(other, number)) {
                what = " Is A " + std::string(KindWord(other)) + ".";
                break;
            }
        }
        work_.Owner().BeepBox("Entity " + Str(number) + what);
        box.SetFocus();
        return false;
    }
    return false;
}

void ConnectPanel::ConnectStuff() {
    made_ = 0;
    if (const ConnectLimit limit = TestConnectLimits(work_.Entities, Visible()); limit != ConnectLimit::None) {
        RefuseByLimit(limit);
        return;
    }
    const Named first = NamedBy(Text12.Text(), Text13.Text(), Text14.Text());
    const Named second = NamedBy(Text15.Text(), Text16.Text(), Text17.Text());
    const Store live = work_.Live();
    const auto stored = live.TryLines();
    if (!stored) {
        // No line is made of what can't be read.
        Session::Run(work_.Calls.WithdrawLines);
        return;
    }
    const std::vector<std::string>& lines = *stored;
    const std::vector<Segment> candidates = Connect(lines, first, second, work_.Tangency());
    std::vector<std::string> records;
    for (const Segment& line : candidates) {
        const int number = work_.Entities.NextNumber();
        work_.Entities.EnterLine(line, number, work_.View());
        records.push_back(LineTangentRecord(number, line, first.NumberText, second.NumberText));
    }
    live.Append(records);
    made_ = static_cast<int>(candidates.size());
    const bool touching = EveryLineTouches(lines, first, second, candidates);
    Session::Run(work_.Calls.TellTouching, touching);
    Session::Run(work_.Calls.FindAng);
    if (!touching) {
        // Circles of a size that was left in its box, which touch, do not speak for the lines.
        Session::Run(work_.Calls.TellTouching, false);
    }
}

void ConnectPanel::RefuseByLimit(ConnectLimit limit) {
    const std::string message = ConnectLimitMessage(work_.Entities, limit);
    // Of the other two limits a typed connection leaves its buttons standing, with numbers that nothing has: intended.
    if (limit == ConnectLimit::Lines) {
        Session::Run(work_.Calls.WithdrawLines);
    }
    ResetPick();
    work_.Owner().BeepBox(message);
}

void ConnectPanel::ResetPick() {
    DrawPass& pass = work_.Pass;
    pass.View.Selecting = false;
    pass.View.Picking = false;
    pass.View.Box = {};
    pass.Marks.Hits = {};
    pass.Pick = {};
    ClearBoxes();
    for (TextBox* const box : Boxes()) {
        box->Enabled(false);
    }
    for (OptionButton* const option : Options()) {
        option->Value(false);
    }
    work_.Withdraw(work_.On.Command3);
    work_.OfferPlacing();
}

}  // namespace brindlex::geometry
