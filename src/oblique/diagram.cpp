// What is drawn of an oblique triangle, with its places.
#include "oblique/diagram.h"

#include <cmath>

namespace brindlex::oblique {

namespace {

struct Point {
    double x;
    double y;
};

constexpr Point CornerA{750, 2350.5};
constexpr Point CornerB{1850, 445.5};
constexpr Point CornerC{2950, 2350.5};

struct ElementRow {
    std::string_view letter;
    std::array<bool, 3> held;  ///< which of the entry labels can hold it
    Point plain;
    Point inside;
};

// In the order of Element.
constexpr std::array<ElementRow, ElementCount> Rows{{
    {"A", {true, false, false}, {200, 2400}, {850, 2175}},
    {"B", {true, true, false}, {1750, 200}, {1775, 600}},
    {"C", {true, true, true}, {3200, 2400}, {2700, 2175}},
    {"a", {true, true, true}, {2500, 1125}, {2200, 1275}},
    {"b", {false, true, true}, {1750, 2700}, {1775, 2175}},
    {"c", {false, false, true}, {775, 1400}, {1412, 1275}},
}};

constexpr double LongestSide = 2200;
constexpr double BaseLine = 2350.5;
constexpr double LeftEnd = 4000;
/// Where the base begins when the corner at A leans so far that the top swings to the left of it.
constexpr double LeaningLeftEnd = 5000;
constexpr double LeaningAngle = 105;

constexpr Colour Grey{200, 200, 200};

/// Prints one text for each element, the known ones in bold red.
void PrintElements(PictureBox& picture, const KnownElements& known, Point ElementRow::*place,
                   const ElementTexts& texts) {
    picture.AutoRedraw(true);
    for (std::size_t i = 0; i < ElementCount; ++i) {
        picture.CurrentX((Rows[i].*place).x);
        picture.CurrentY((Rows[i].*place).y);
        picture.FontBold(known[i]);
        picture.ForeColor(known[i] ? Red : Black);
        picture.Print(texts[i]);
    }
    picture.FontBold(false);
    picture.ForeColor(Black);
}

ElementTexts LetterTexts(std::string_view behind) {
    ElementTexts texts;
    for (std::size_t i = 0; i < ElementCount; ++i) {
        texts[i].append(Rows[i].letter).append(behind);
    }
    return texts;
}

struct ScaledSides {
    double b;
    double c;
};

/// Of two longest sides the first in the order a, b, c counts.
ScaledSides ScaleSides(double a, double b, double c) {
    if (a >= b && a >= c) {
        return {b / a * LongestSide, c / a * LongestSide};
    }
    if (b >= a && b >= c) {
        return {LongestSide, c / b * LongestSide};
    }
    return {b / c * LongestSide, LongestSide};
}

}  // namespace

std::optional<Element> ElementHeld(std::size_t label, std::string_view caption) {
    for (const Element element : AllElements) {
        if (Rows[Index(element)].held[label] && caption == LabelOf(element)) {
            return element;
        }
    }
    return std::nullopt;
}

KnownElements KnownFrom(const std::array<std::string, 3>& labels) {
    KnownElements known{};
    for (std::size_t label = 0; label < labels.size(); ++label) {
        if (const auto element = ElementHeld(label, labels[label])) {
            known[Index(*element)] = true;
        }
    }
    return known;
}

void DrawOblique(PictureBox& picture) {
    picture.AutoRedraw(true);
    picture.CurrentX(CornerA.x);
    picture.CurrentY(CornerA.y);
    picture.Line(CornerB.x, CornerB.y, Blue);
    picture.Line(CornerC.x, CornerC.y, Blue);
    picture.Line(CornerA.x, CornerA.y, Blue);
}

void DoLetters(PictureBox& picture, const KnownElements& known) {
    PrintElements(picture, known, &ElementRow::plain, LetterTexts(""));
}

void DoLetters2(PictureBox& picture, const KnownElements& known) {
    PrintElements(picture, known, &ElementRow::inside, LetterTexts(""));
}

void PrintValues(PictureBox& picture, const KnownElements& known, const ElementTexts& texts) {
    ElementTexts lines = LetterTexts("=");
    for (std::size_t i = 0; i < ElementCount; ++i) {
        lines[i] += texts[i];
    }
    PrintElements(picture, known, &ElementRow::plain, lines);
}

void SmallObl(PictureBox& picture, const Triangle& triangle) {
    picture.AutoRedraw(true);
    const ScaledSides sides = ScaleSides(triangle.KeptSideA, triangle.KeptSideB, triangle.KeptSideC);
    const double radians = triangle.KeptA * (4 * std::atan(1.0) / 180);
    const double p = std::cos(radians) * sides.c;
    const double q = std::sin(radians) * sides.c;
    const double left = triangle.KeptA <= LeaningAngle ? LeftEnd : LeaningLeftEnd;
    picture.CurrentX(left);
    picture.CurrentY(BaseLine);
    picture.Line(left + sides.b, BaseLine, Blue);
    picture.Line(left + p, BaseLine - q, Blue);
    picture.Line(left, BaseLine, Blue);
}

void DrawCircle(PictureBox& picture) {
    picture.Circle(1800, 1800, 1400, Grey);
}

}  // namespace brindlex::oblique
