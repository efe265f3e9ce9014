// Placing circles, lines and points.
#include "geometry/createpanel.h"

#include "frame/program.h"
#include "frame/text.h"
#include "services/activebox.h"

#include <initializer_list>
#include <string>
#include <string_view>

namespace brindlex::geometry {

namespace {

constexpr double SmallestCircle = 0.002;

/// An entry counts as filled when it ends with a digit: "2." and a lone minus sign do not.
bool Filled(const TextBox& box) {
    const std::string& text = box.Text();
    return !text.empty() && text.back() >= '0' && text.back() <= '9';
}

/// What is asked for an entry that is not filled.
struct Question {
    TextBox& Box;
    const char* Text;
};

/// Asks for the first entry that is not filled; false where there is one.
bool AllFilled(Program& program, std::initializer_list<Question> questions) {
    for (const Question& question : questions) {
        if (!Filled(question.Box)) {
            program.BeepBox(question.Text, style::Question);
            question.Box.SetFocus();
            return false;
        }
    }
    return true;
}

void ClearBoxes(std::initializer_list<TextBox*> boxes) {
    for (TextBox* const box : boxes) {
        box->Text("");
    }
}

bool RefuseByLimit(const Session& work, Kind kind, std::initializer_list<TextBox*> boxes) {
    const std::string_view message = LimitMessage(work.Entities, kind);
    if (message.empty()) {
        return false;
    }
    work.Owner().BeepBox(std::string(message));
    ClearBoxes(boxes);
    return true;
}

void BindEntries(std::initializer_list<TextBox*> boxes) {
    for (TextBox* const box : boxes) {
        box->MaxLength(EntryWidth);
        BindFocus(*box);
    }
}

/// A place of the drawing on the picture.
Position OnPicture(Position place, const Scale& view) {
    return {place.X + view.Width / 2, place.Y + view.Height / 2};
}

/// The number of a new entity, also where No Numbers is checked: intended, it shows what was placed.
void PrintNumber(PictureBox& picture, Position at, int number) {
    picture.CurrentX(at.X);
    picture.CurrentY(at.Y);
    picture.Print(number);
}

}  // namespace

CirclePanel::CirclePanel(ControlContainer& form, Session& work)
    : Frame(form, "Frame1", PanelPlace, "Create a Diameter"), work_(work) {
    Check2.Click.Bind(this, &CirclePanel::Check2_Click);
    BindEntries({&Text1, &Text2, &Text3});
}

void CirclePanel::Check2_Click() {
    Label4.Caption(Check2.Value() != 0 ? "Radius:" : "Diameter:");
}

bool CirclePanel::RefuseByLimit() {
    return geometry::RefuseByLimit(work_, Kind::Circle, {&Text3, &Text1, &Text2});
}

void CirclePanel::Clear() {
    ClearBoxes({&Text1, &Text2, &Text3});
}

bool CirclePanel::CheckEntries() {
    Program& program = work_.Owner();
    const auto refuseSize = [&](const char* message, int boxStyle) {
        program.BeepBox(message, boxStyle);
        Text3.Text("");
        Text3.SetFocus();
        return false;
    };
    const double size = ValueOf(Text3.Text());
    if (size == 0) {
        return refuseSize("What is the Diameter?", style::Question);
    }
    if (!Filled(Text3)) {
        return refuseSize("The Form Has Not Been Completed#", style::Stop);
    }
    if (!AllFilled(program, {{Text1, "Where is X located?"}, {Text2, "Where is Y located?"}})) {
        return false;
    }
    // A radius is held to the same bound as a diameter: intended.
    if (size < SmallestCircle) {
        return refuseSize("No Diameter less than .002 Allowed!", style::Exclamation);
    }
    return true;
}

bool CirclePanel::PlaceIt() {
    if (!CheckEntries()) {
        return false;
    }
    const Scale view = work_.View();
    const double size = ValueOf(Text3.Text());
    const double radius = Check2.Value() != 0 ? size : size / 2;
    const Position centre{ValueOf(Text1.Text()), ValueOf(Text2.Text())};
    const Position drawn = OnPicture(centre, view);
    const int number = work_.Entities.NextNumber();
    PictureBox& picture = work_.On.Picture1;
    picture.Circle(drawn.X, drawn.Y, radius, ink::Plain);
    work_.Entities.EnterCircle(centre, radius, number, view);
    PrintNumber(picture, {drawn.X - radius, drawn.Y}, number);
    Text3.SetFocus();
    work_.Live().Append(CircleRecord(number, radius + radius, Text1.Text(), Text2.Text()));
    return true;
}

LinePanel::LinePanel(ControlContainer& form, Session& work)
    : Frame(form, "Frame2", PanelPlace, "Create a Line"), work_(work) {
    Check1.Click.Bind(this, &LinePanel::Check1_Click);
    BindEntries({&Text6, &Text7, &Text8, &Text9});
}

bool LinePanel::RefuseByLimit() {
    return geometry::RefuseByLimit(work_, Kind::Line, {&Text6, &Text7, &Text8, &Text9});
}

void LinePanel::Clear() {
    ClearBoxes({&Text6, &Text7, &Text8, &Text9});
}

void LinePanel::Chain() {
    Text6.Text(Text8.Text());
    Text7.Text(Text9.Text());
    ClearBoxes({&Text8, &Text9});
}

void LinePanel::Check1_Click() {
    if (Check1.Value() != 0) {
        for (TextBox* const box : {&Text6, &Text7, &Text8, &Text9}) {
            if (!Filled(*box)) {
                box->SetFocus();
                return;
            }
        }
        // Clearing and ticking run this handler again, which only moves the focus.
        Check1.Value(0);
        Chain();
        Check1.Value(1);
        Text8.SetFocus();
    }
    if (!Text6.Text().empty() && !Text7.Text().empty()) {
        Text8.SetFocus();
    }
}

bool LinePanel::PlaceIt() {
    if (!AllFilled(work_.Owner(), {{Text6, "Where does X start?"},
                                   {Text7, "Where does Y start?"},
                                   {Text8, "Where does X end?"},
                                   {Text9, "Where does Y end?"}})) {
        return false;
    }
    const Scale view = work_.View();
    const int number = work_.Entities.NextNumber();
    const Segment line{{ValueOf(Text6.Text()), ValueOf(Text7.Text())}, {ValueOf(Text8.Text()), ValueOf(Text9.Text())}};
    const Position start = OnPicture(line.Start, view);
    const Position end = OnPicture(line.End, view);
    PictureBox& picture = work_.On.Picture1;
    picture.Line(start.X, start.Y, end.X, end.Y, ink::Plain);
    work_.Entities.EnterLine(line, number, view);
    PrintNumber(picture, {(start.X + end.X) / 2, (start.Y + end.Y) / 2}, number);
    work_.Live().Append(LineRecord(number, Text6.Text(), Text7.Text(), Text8.Text(), Text9.Text()));
    if (Check1.Value() != 0) {
        Chain();
        Text8.SetFocus();
    } else {
        Text6.SetFocus();
    }
    Session::Run(work_.Calls.FindAng);
    return true;
}

PointPanel::PointPanel(ControlContainer& form, Session& work)
    : Frame(form, "Frame3", PanelPlace, "Create a Point"), work_(work) {
    BindEntries({&Text10, &Text11});
}

bool PointPanel::RefuseByLimit() {
    return geometry::RefuseByLimit(work_, Kind::Point, {&Text10, &Text11});
}

void PointPanel::Clear() {
    ClearBoxes({&Text10, &Text11});
}

bool PointPanel::PlaceIt() {
    if (!AllFilled(work_.Owner(), {{Text10, "Where is X at?"}, {Text11, "Where is Y at?"}})) {
        return false;
    }
    const Scale view = work_.View();
    const int number = work_.Entities.NextNumber();
    const Position place{ValueOf(Text10.Text()), ValueOf(Text11.Text())};
    const Position drawn = OnPicture(place, view);
    PictureBox& picture = work_.On.Picture1;
    DrawCross(picture, drawn, CrossSize(work_.Measure()), ink::Plain);
    work_.Entities.EnterPoint(place, number, view);
    PrintNumber(picture, drawn, number);
    Text10.SetFocus();
    work_.Live().Append(PointRecord(number, Text10.Text(), Text11.Text()));
    return true;
}

}  // namespace brindlex::geometry
