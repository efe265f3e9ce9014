// The panel of the tangent circles, and the circles that it makes.
#include "geometry/tangentpanel.h"

#include "frame/program.h"
#include "frame/text.h"
#include "geometry/createpanel.h"
#include "services/activebox.h"

#include <cmath>

namespace brindlex::geometry {

namespace {

constexpr Colour ToFirstLine{255, 0, 0};
constexpr Colour ToSecondLine{0, 0, 0};
constexpr int CirclesMade = 4;

}  // namespace

TangentPanel::TangentPanel(ControlContainer& form, Session& work)
    : Frame(form, "Frame8", PanelPlace, "Circle Tangent to  Angle"), work_(work) {
    Combo1.ListOnly(true);
    Combo1.Click.Bind([this] {
        if (Visible()) {
            Text4.SetFocus();
        }
    });
    Option7.Value(true);
    Text4.MaxLength(EntryWidth);
    BindFocus(Text4);
    for (CommandButton* const button : KeepButtons()) {
        button->Enabled(false);
        button->Visible(false);
    }
}

void TangentPanel::Clear() {
    Combo1.Clear();
}

bool TangentPanel::PlaceIt() {
    Program& program = work_.Owner();
    if (Combo1.ListCount() == 0) {
        program.BeepBox("No Angles Exist!");
        return false;
    }
    if (Text4.Text().empty()) {
        program.BeepBox("Enter Circle Diameter\r\nOr Radius!");
        Text4.SetFocus();
        return false;
    }
    const int top = work_.Entities.CircleTop + CirclesMade * CircleWidth;
    if (top > CircleBound) {
        program.BeepBox("Sorry. Only 12 Circles Can Be Created!\r\nThis Operation Would\r\n Require " +
                        Str(static_cast<double>(top) / CircleWidth) + " Circles.");
        Text4.Text("");
        Text4.SetFocus();
        return false;
    }
    Session::Run(work_.Calls.FindAng);
    work_.DrawEntities();
    return true;
}

void TangentPanel::MoreAng(const std::vector<std::string>& lines, bool copied) {
    const Store live = work_.Live();
    if (Combo1.Text().empty() && Combo1.ListCount() > 0) {
        Combo1.ListIndex(0);
    }
    const double size = ValueOf(Text4.Text());
    const bool tooSmall = size < SmallestSize;
    const double radius = Option7.Value() ? size / 2 : size;
    if (Text4.Text().empty() || tooSmall || !std::isfinite(radius + radius)) {
        live.KillLineCopy();
        // A radius is held to the same bound as a diameter: intended.
        if (!Text4.Text().empty() && tooSmall) {
            Text4.Text("");
            work_.Owner().BeepBox("No Diameter less than .002 Allowed!");
            Text4.SetFocus();
        }
        return;
    }
    MakeCircles(copied ? live.TakeLineCopy().value_or(lines) : lines, radius);
    live.KillLineCopy();
}

void TangentPanel::MakeCircles(const std::vector<std::string>& lineRecords, double radius) {
    const std::string item = Combo1.Text();
    const auto circles = FindTangentCircles(lineRecords, item, radius, work_.Tangency());
    std::vector<std::string> records;
    for (const TangentCircle& circle : circles) {
        DrawCircle(circle, radius);
        const int number = work_.Entities.NextNumber();
        work_.Entities.EnterCircle(circle.Centre, radius, number, work_.View());
        records.push_back(CircleTangentRecord(number, radius + radius, circle.Centre, item, circle.OnA, circle.OnB));
    }
    work_.Live().Append(records);
    Text4.Text("");
    Session::Run(work_.Calls.OfferCircles);
    Session::Run(work_.Calls.TellTouching, EveryCircleTouches(lineRecords, item, radius, circles));
}

/// The circle, and its radii to the points of tangency.
void TangentPanel::DrawCircle(const TangentCircle& circle, double radius) {
    const Scale view = work_.View();
    const auto onPicture = [&](Position place) {
        return Position{place.X + view.Width / 2, place.Y + view.Height / 2};
    };
    const Position centre = onPicture(circle.Centre);
    const Position onA = onPicture(circle.OnA);
    const Position onB = onPicture(circle.OnB);
    PictureBox& picture = work_.On.Picture1;
    picture.Line(centre.X, centre.Y, onA.X, onA.Y, ToFirstLine);
    picture.Line(centre.X, centre.Y, onB.X, onB.Y, ToSecondLine);
    picture.Circle(centre.X, centre.Y, radius, work_.Pass.Marks.Ink);
}

}  // namespace brindlex::geometry
