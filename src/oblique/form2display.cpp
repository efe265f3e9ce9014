// Oblique Triangles: what is shown. Title, diagram, values in decimal degrees or in degrees, minutes and seconds, area.
#include "frame/program.h"
#include "frame/text.h"
#include "oblique/form2.h"
#include "services/degrees.h"
#include "services/rounding.h"

namespace brindlex::oblique {

namespace {

constexpr double AreaLeft = 5160;
/// A long area moves left so far that it ends here.
constexpr double AreaRightmost = 6804;
constexpr double LongAreaLeft = 5130;

constexpr std::array RoundingOrder = {Element::a, Element::b, Element::c, Element::A, Element::B, Element::C};

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

double Form2::Rounded(double number) {
    return RoundedForDisplay(number, Owner().Shared(), Owner().Shared().DigitsO);
}

void Form2::NotDegreesO() {
    Triangle rounded = triangle_;
    for (const Element element : RoundingOrder) {
        rounded.Working(element) = Rounded(triangle_.Kept(element));
    }
    triangle_ = rounded;
    ElementTexts texts;
    for (const Element element : AllElements) {
        texts[Index(element)] = Str(triangle_.Working(element));
        if (IsAngle(element)) {
            texts[Index(element)] += DegreeSign;
        }
    }
    ShowValues(texts);
}

void Form2::DegreesO() {
    Triangle rounded = triangle_;
    ElementTexts texts;
    std::array<double, 3> seconds{};
    for (const Element element : AllElements) {
        if (IsAngle(element)) {
            // The working angles stay unrounded here: intended.
            const DegreeParts parts = SplitDegrees(triangle_.Kept(element), [this](double s) { return Rounded(s); });
            seconds[Index(element)] = parts.Seconds;
            texts[Index(element)] = DegreeText(parts);
        } else {
            rounded.Working(element) = Rounded(triangle_.Kept(element));
            texts[Index(element)] = Str(rounded.Working(element));
        }
    }
    triangle_ = rounded;
    Owner().Shared().Sec1 = seconds[0];
    Owner().Shared().Sec2 = seconds[1];
    ShowValues(texts);
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
