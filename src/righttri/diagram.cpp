// Lines, letters and results of the right triangle, as tables of places.
#include "righttri/diagram.h"

#include "frame/checked.h"
#include "frame/text.h"

#include <algorithm>

namespace brindlex::righttri {

namespace {

struct Point {
    double X;
    double Y;
};

constexpr Point CornerA{1600, 2750};
constexpr Point CornerB{1600, 600};
constexpr Point CornerC{3750, 2750};
constexpr double Leg = 2150;
constexpr Colour Grey{172, 172, 200};
constexpr int CopyPen = 13;
constexpr std::string_view LegMask = ".000";

struct LetterPlace {
    Part part;
    const char* text;
    Point at;
};

constexpr std::array Letters{
    LetterPlace{Part::CornerA, "A", {1500, 2750}}, LetterPlace{Part::AngleB, "B", {1500, 400}},
    LetterPlace{Part::AngleC, "C", {3750, 2750}},  LetterPlace{Part::SideC, "c", {1450, 1575}},
    LetterPlace{Part::SideB, "b", {2575, 2750}},   LetterPlace{Part::SideA, "a", {2675, 1475}},
};

constexpr std::array InnerLetters{
    LetterPlace{Part::CornerA, "A", {1625, 2575}}, LetterPlace{Part::AngleB, "B", {1610, 700}},
    LetterPlace{Part::AngleC, "C", {3500, 2575}},  LetterPlace{Part::SideA, "a", {2650, 1475}},
    LetterPlace{Part::SideB, "b", {2600, 2575}},   LetterPlace{Part::SideC, "c", {1625, 1575}},
};

constexpr LetterPlace CornerAResult{Part::CornerA, "A= 90\xB0", {1500, 2750}};

constexpr std::array Results{
    LetterPlace{Part::AngleB, "B=", {1500, 400}}, LetterPlace{Part::AngleC, "C=", {3750, 2750}},
    LetterPlace{Part::SideA, "a=", {2850, 1475}}, LetterPlace{Part::SideB, "b=", {2675, 2950}},
    LetterPlace{Part::SideC, "c=", {500, 1575}},
};

void PrintAt(PictureBox& picture, Point at, std::string_view text, bool known) {
    picture.CurrentX(at.X);
    picture.CurrentY(at.Y);
    picture.FontBold(known);
    picture.ForeColor(known ? Red : Black);
    picture.Print(text);
}

template <std::size_t Size>
void PrintLetters(PictureBox& picture, const std::array<LetterPlace, Size>& letters, const KnownParts& known) {
    for (const LetterPlace& letter : letters) {
        PrintAt(picture, letter.at, letter.text, known[IndexOf(letter.part)]);
    }
}

/// From where the pen stands round a triangle whose right angle is corner A.
void LinesRound(PictureBox& picture, double legCTop, double legBEnd, Colour colour) {
    picture.Line(CornerA.X, legCTop, colour);
    picture.Line(legBEnd, CornerA.Y, colour);
    picture.Line(CornerA.X, CornerA.Y, colour);
}

void PenToCornerA(PictureBox& picture) {
    picture.CurrentX(CornerA.X);
    picture.CurrentY(CornerA.Y);
}

double AsShown(double leg) {
    return Val(Format(leg, LegMask));
}

}  // namespace

KnownParts KnownFrom(std::string_view inputLabel1, std::string_view inputLabel2) {
    KnownParts known{};
    known[IndexOf(Part::CornerA)] = true;
    known[IndexOf(Part::AngleB)] = inputLabel2 == "Angle B";
    known[IndexOf(Part::AngleC)] = inputLabel2 == "Angle C";
    known[IndexOf(Part::SideA)] = inputLabel1 == "Length of side a";
    for (const std::string_view label : {inputLabel1, inputLabel2}) {
        known[IndexOf(Part::SideB)] = known[IndexOf(Part::SideB)] || label == "Length of side b";
        known[IndexOf(Part::SideC)] = known[IndexOf(Part::SideC)] || label == "Length of side c";
    }
    return known;
}

void DrawTriangle(PictureBox& picture, Colour colour) {
    picture.AutoRedraw(true);
    PenToCornerA(picture);
    LinesRound(picture, CornerB.Y, CornerC.X, colour);
}

std::optional<Proportions> ProportionsOf(double sideB, double sideC) {
    double b = AsShown(sideB);
    double c = AsShown(sideC);
    if (std::max(b, c) == 0) {
        b = sideB;
        c = sideC;
    }
    if (std::max(b, c) == 0) {
        return std::nullopt;
    }
    Proportions result{CornerC.X, CornerB.Y, sideB > sideC, sideB < sideC};
    if (c >= b) {
        result.LegBEnd = (Checked(b) / c * Leg + CornerA.X).Value();
    } else {
        result.LegCTop = (CornerA.Y - Checked(c) / b * Leg).Value();
    }
    return result;
}

void SmallTriangle(PictureBox& picture, const Proportions& proportions, bool wipe) {
    picture.AutoRedraw(true);
    if (proportions.LegBLonger) {
        picture.Line(CornerA.X, proportions.LegCTop, CornerB.X, CornerB.Y, Grey);
        picture.Line(CornerB.X, CornerB.Y, CornerC.X, CornerC.Y, Grey);
    } else if (proportions.LegCLonger) {
        picture.Line(CornerB.X, CornerB.Y, CornerC.X, CornerC.Y, Grey);
        picture.Line(CornerC.X, CornerC.Y, proportions.LegBEnd, CornerC.Y, Grey);
    }
    PenToCornerA(picture);
    picture.DrawMode(CopyPen);
    LinesRound(picture, proportions.LegCTop, proportions.LegBEnd, Blue);
    if (wipe) {
        LinesRound(picture, proportions.LegCTop, proportions.LegBEnd, White);
    }
}

void PlaceLetters(PictureBox& picture, const KnownParts& known) {
    PrintLetters(picture, Letters, known);
}

void PlaceLetters2(PictureBox& picture, const KnownParts& known) {
    PrintLetters(picture, InnerLetters, known);
}

void PlaceCornerA(PictureBox& picture) {
    PrintAt(picture, CornerAResult.at, CornerAResult.text, true);
}

void PlaceResults(PictureBox& picture, const PartTexts& texts, const KnownParts& known) {
    PlaceCornerA(picture);
    for (const LetterPlace& result : Results) {
        PrintAt(picture, result.at, result.text + texts[IndexOf(result.part)], known[IndexOf(result.part)]);
    }
}

void PlainPen(PictureBox& picture) {
    picture.FontBold(false);
    picture.ForeColor(Black);
}

}  // namespace brindlex::righttri
