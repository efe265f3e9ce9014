// Right Triangles: the sketch and the results on it.
#include "righttri/form1.h"

#include "frame/program.h"
#include "frame/text.h"

namespace brindlex::righttri {

namespace {

const std::string Degree(1, DegreeSign);

}  // namespace

KnownParts Form1::Known() const {
    return KnownFrom(InputLabel1.Caption(), InputLabel2.Caption());
}

void Form1::DrawTriangle() {
    righttri::DrawTriangle(Picture1);
}

void Form1::SmallTriangle() {
    ShowProportions(ProportionsOf(Shared().SideB, Shared().SideC));
}

/// The triangle in proportion, wiped again while the sketch is to be seen; the sketch where the legs have no length.
void Form1::ShowProportions(const std::optional<Proportions>& proportions) {
    if (proportions) {
        righttri::SmallTriangle(Picture1, *proportions, !ShapeR.Checked());
    } else {
        DrawTriangle();
    }
}

void Form1::PlaceLetters() {
    righttri::PlaceLetters(Picture1, Known());
}

void Form1::PlaceLetters2() {
    if (TextOn.Checked()) {
        righttri::PlaceLetters2(Picture1, Known());
    }
}

void Form1::LettersOrRoomForBoxes() {
    if (TextOn.Checked()) {
        PlaceLetters2();
    } else {
        PlaceLetters();
    }
}

void Form1::ClearBoxes() {
    for (TextBox* const box : boxes_) {
        box->Text("");
    }
}

void Form1::ShowInBox(Part part, const std::string& text, bool known) {
    TextBox& box = *boxes_[IndexOf(part)];
    box.Text(text);
    box.FontBold(known);
    box.ForeColor(known ? Red : Black);
}

/// The triangle as computed.
Triangle Form1::Kept() const {
    const SharedState& shared = Shared();
    return {shared.KeepA, shared.KeepB, shared.KeepC, shared.KeepAngleB, shared.KeepAngleC};
}

/// Shows the angles as decimal degrees. A fault comes out before anything has changed on the picture.
void Form1::NotDegrees() {
    SharedState& shared = Shared();
    const Answer answer = InDegrees(Kept(), shared);
    ShowAnswer(answer, "90" + Degree);
    shared.AngleB = answer.Rounded.AngleB;
    shared.AngleC = answer.Rounded.AngleC;
}

/// Shows the angles in degrees, minutes and seconds; AngleB and AngleC stay as they are. A fault likewise.
void Form1::Degrees() {
    SharedState& shared = Shared();
    const Answer answer = InMinutes(Kept(), shared);
    ShowAnswer(answer, "90");
    shared.Sec1 = answer.SecondsB;
    shared.Sec2 = answer.SecondsC;
    shared.DmsTextB = answer.Texts[IndexOf(Part::AngleB)];
    shared.DmsTextC = answer.Texts[IndexOf(Part::AngleC)];
}

void Form1::ShowAnswer(const Answer& answer, const std::string& cornerA) {
    const Triangle& rounded = answer.Rounded;
    const auto shape = ShapeR.Checked() ? ProportionsOf(rounded.SideB, rounded.SideC) : std::optional<Proportions>();
    SharedState& shared = Shared();
    shared.SideA = rounded.SideA;
    shared.SideB = rounded.SideB;
    shared.SideC = rounded.SideC;

    Picture1.AutoRedraw(true);
    Picture1.Cls();
    DrawTriangle();
    const KnownParts known = Known();
    if (TextOn.Checked()) {
        ShowInBox(Part::CornerA, cornerA, true);
        for (const Part part : {Part::AngleB, Part::AngleC, Part::SideA, Part::SideB, Part::SideC}) {
            ShowInBox(part, answer.Texts[IndexOf(part)], known[IndexOf(part)]);
        }
        PlaceLetters2();
    } else {
        PlaceResults(Picture1, answer.Texts, known);
    }
    PlainPen(Picture1);
    ShowProportions(shape);
}

/// Shows the last solved triangle again. Where that faults the display stays as it was.
void Form1::Redisplay() {
    Guarded([this] {
        if (DIDMS.Checked()) {
            Degrees();
        } else {
            NotDegrees();
        }
    });
}

}  // namespace brindlex::righttri
