// The connect panel: entities clicked on the picture.
#include "frame/program.h"
#include "frame/text.h"
#include "geometry/connectpanel.h"
#include "geometry/rules.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace brindlex::geometry {

namespace {

/// The place of a kind among the options and boxes of a side.
std::size_t IndexOf(Kind kind) {
    return kind == Kind::Circle ? 0 : (kind == Kind::Line ? 1 : 2);
}

}  // namespace

void ConnectPanel::ConnectStat() {
    PickState& pick = work_.Pass.Pick;
    if (pick.Shape == Kind::None) {
        return;
    }
    NamePicked();
    if (RefuseOverfull()) {
        return;
    }
    Visible(true);
    Enabled(true);
    pick.Stage = 1;
    work_.Withdraw(work_.On.Command1);
    work_.Offer(work_.On.Command3);
    if (!Text15.Text().empty() || !Text16.Text().empty() || !Text17.Text().empty()) {
        pick.Stage = 0;
        work_.OfferPlacing();
        work_.EnableTool("Delete", false);
        work_.Withdraw(work_.On.Command2);
        ConnectStuff();
    }
}

void ConnectPanel::NamePicked() {
    PickState& pick = work_.Pass.Pick;
    const std::size_t place = IndexOf(pick.Shape) + (pick.Stage == 1 ? SideBoxes : 0);
    const std::string number = Str(pick.Number);
    TextBox& box = *Boxes()[place];
    Options()[place]->Value(true);
    box.Text(number);
    const auto same = [&](const TextBox& first) { return first.Text() == number; };
    if (pick.Stage == 1 && (same(Text12) || same(Text13) || same(Text14))) {
        box.Text("");
        pick.Refused = pick.Number;
        pick.Number = 0;
        work_.Owner().BeepBox("Can't Connect an Entity to It's Self");
    }
}

/// No room: too many circles or points for a pick of their kind, or for the lines of a second pick. Lines and circles
/// connected to lines are not looked at here: intended, the connection itself tests them.
bool ConnectPanel::RefuseOverfull() {
    Board& board = work_.Entities;
    const Kind shape = work_.Pass.Pick.Shape;
    const bool second = work_.Pass.Pick.Stage == 1;
    const auto linesLeft = [&](int lines) { return board.LineTop + lines * LineWidth <= LineBound; };
    const auto pair = [&](const OptionButton& one, const OptionButton& other) {
        return second && one.Value() && other.Value();
    };
    std::string_view message;
    if (shape == Kind::Circle && board.CircleTop > CircleBound) {
        message = CirclesFull;
    } else if ((pair(Option3, Option6) && !linesLeft(1)) || (pair(Option3, Option4) && !linesLeft(2)) ||
               (pair(Option1, Option6) && !linesLeft(2)) || (pair(Option1, Option4) && !linesLeft(4))) {
        message = LinesFull;
    } else if (shape == Kind::Point && board.PointTop > PointBound) {
        board.PointTop = PointBound;
        message = PointsFull;
    } else {
        return false;
    }
    ResetPick();
    work_.Owner().BeepBox(std::string(message));
    return true;
}

}  // namespace brindlex::geometry
