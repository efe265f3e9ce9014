// Oblique Triangles: what is shown. Title, diagram, values in decimal degrees or in degrees, minutes and seconds, area.
#include "frame/program.h"
#include "frame/text.h"
#include "oblique/form2.h"

namespace brindlex::oblique {

namespace {

constexpr double AreaLeft = 5160;
/// A long area moves left so far that it ends here.
constexpr double AreaRightmost = 6804;
constexpr double LongAreaLeft = 5130;

}  // namespace

void Form2::ShowTitle() {
    const std::string& file = CommonDialog1.FileName();
    Caption(Owner().Shared().VerCaption + (file.empty() ? "Solutions To Oblique Triangles" : file));
    // A file's name stands only for the first calculation with it: intended.
    CommonDialog1.FileName("");
}

KnownElements Form2::Known() const {
    return KnownFrom({Label1.Caption(), Label2.Caption(), Label3.Caption()});
}

TextBox& Form2::OverlayBox(Element element) {
    return *overlay_[Index(element)];
}

void Form2::ShowOverlay(bool visible) {
    for (TextBox* const box : overlay_) {
        box->Visible(visible);
    }
}

void Form2::DrawLetters() {
    (TextOn.Checked() ? DoLetters2 : DoLetters)(Picture1, Known());
}

void Form2::ShowBareDiagram() {
    Picture1.Cls();
    DrawOblique(Picture1);
    DrawLetters();
}

void Form2::AllowBothUnits() {
    Inches.Enabled(true);
    Millimeters.Enabled(true);
}

void Form2::ForgetArea() {
    Label4.Caption("");
    Label5.Caption("");
    Label5.ToolTipText("");
}

void Form2::TransferText() {
    if (!TextOn.Checked()) {
        return;
    }
    for (std::size_t i = 0; i < entries_.size(); ++i) {
        if (const auto element = ElementHeld(i, entryLabels_[i]->Caption())) {
            TextBox& box = OverlayBox(*element);
            box.FontBold(true);
            box.ForeColor(Red);
            box.Text(entries_[i]->Text());
        }
    }
}

void Form2::NotDegreesO() {
    const Answer answer = InDegrees(triangle_, Owner().Shared());
    triangle_ = answer.Shown;
    ShowValues(answer.Texts);
}

void Form2::DegreesO() {
    const Answer answer = InMinutes(triangle_, Owner().Shared());
    triangle_ = answer.Shown;
    Owner().Shared().Sec1 = answer.Seconds[0];
    Owner().Shared().Sec2 = answer.Seconds[1];
    ShowValues(answer.Texts);
}

void Form2::ShowValues(const ElementTexts& texts) {
    const KnownElements known = Known();
    Picture1.AutoRedraw(true);
    Picture1.Cls();
    DrawOblique(Picture1);
    if (!TextOn.Checked()) {
        PrintValues(Picture1, known, texts);
        return;
    }
    for (const Element element : AllElements) {
        TextBox& box = OverlayBox(element);
        const bool stands = known[Index(element)];
        box.FontBold(stands);
        box.ForeColor(stands ? Red : Black);
        box.Text(texts[Index(element)]);
    }
    DoLetters2(Picture1, known);
}

void Form2::ShowTriangle() {
    if (DIDMSO.Checked()) {
        DegreesO();
    } else {
        NotDegreesO();
    }
    SmallObl(Picture1, triangle_);
}

/// From the kept values, whatever the entries are by now. A value that can't be shown leaves the display as it was.
void Form2::Redisplay() {
    Guarded([this] { ShowTriangle(); });
}

void Form2::ShowArea() {
    const double area = ObliqueArea(triangle_.a, triangle_.b, triangle_.C);
    Label5.Left(AreaLeft);
    Label5.Caption("Area= " + Format(area, ".00000"));
    const double right = Label5.Width() + Label5.Left();
    if (right >= AreaRightmost) {
        Label5.Left(LongAreaLeft - (right - AreaRightmost));
    }
    Label5.ToolTipText(Str(area));
}

}  // namespace brindlex::oblique
