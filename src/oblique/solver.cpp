// The nineteen cases of an oblique triangle as one table, and the four ways to solve them.
#include "oblique/solver.h"

#include "frame/checked.h"

#include <algorithm>

namespace brindlex::oblique {

namespace {

using enum Element;

constexpr std::array Table{
    Case{"Angle A, Angle B, side a", Family::TwoAngles, {A, B, a}, {C, b, c}},
    Case{"Angle A, Angle C, side a", Family::TwoAngles, {A, C, a}, {B, b, c}},
    Case{"Angle B, Angle C, side a", Family::TwoAngles, {B, C, a}, {A, b, c}},
    Case{"Angle A, Angle B, side b", Family::TwoAngles, {A, B, b}, {C, a, c}},
    Case{"Angle A, Angle C, side b", Family::TwoAngles, {A, C, b}, {B, c, a}},
    Case{"Angle B, Angle C, side b", Family::TwoAngles, {B, C, b}, {A, a, c}},
    Case{"Angle A, Angle B, side c", Family::TwoAngles, {A, B, c}, {C, a, b}},
    Case{"Angle A, Angle C, side c", Family::TwoAngles, {A, C, c}, {B, a, b}},
    Case{"Angle B, Angle C, side c", Family::TwoAngles, {B, C, c}, {A, a, b}},
    Case{"Angle A, side a, side b", Family::Ambiguous, {A, a, b}, {B, C, c}},
    Case{"Angle A, side a, side c", Family::Ambiguous, {A, a, c}, {C, B, b}},
    Case{"Angle A, side b, side c", Family::IncludedAngle, {A, b, c}, {a, B, C}},
    Case{"Angle B, side a, side b", Family::Ambiguous, {B, a, b}, {A, C, c}},
    Case{"Angle B, side a, side c", Family::IncludedAngle, {B, a, c}, {b, C, A}},
    Case{"Angle B, side b, side c", Family::Ambiguous, {B, b, c}, {C, A, a}, true},
    Case{"Angle C, side a, side b", Family::IncludedAngle, {C, a, b}, {c, A, B}},
    Case{"Angle C, side a, side c", Family::Ambiguous, {C, a, c}, {A, B, b}},
    Case{"Angle C, side b, side c", Family::Ambiguous, {C, b, c}, {B, A, a}},
    Case{"Side a, side b, side c", Family::ThreeSides, {a, b, c}, {B, C, A}},
};

constexpr std::string_view ThreeAngles = "Angle A, Angle B, Angle C";

constexpr std::array<std::string_view, ElementCount> Labels = {"Angle A", "Angle B", "Angle C",
                                                               "Side a",  "Side b",  "Side c"};

constexpr std::array<double Triangle::*, ElementCount> WorkingMembers = {&Triangle::A, &Triangle::B, &Triangle::C,
                                                                         &Triangle::a, &Triangle::b, &Triangle::c};
constexpr std::array<double Triangle::*, ElementCount> KeptMembers = {&Triangle::KeptA,     &Triangle::KeptB,
                                                                      &Triangle::KeptC,     &Triangle::KeptSideA,
                                                                      &Triangle::KeptSideB, &Triangle::KeptSideC};

/// Degrees per radian, as far as the arcsine carries it: not the same as Deg, and intended so.
constexpr double ArcsineDegrees = 57.2957795130824;
constexpr double HalfTurn = 180;
constexpr double RightAngle = 90;

constexpr Element Opposite(Element element) {
    return AllElements[(Index(element) + 3) % ElementCount];
}

/// The next side around the triangle: a, b, c, a.
constexpr Element NextSide(Element side) {
    return side == c ? a : AllElements[Index(side) + 1];
}

/// One calculation. The constants are worked out afresh for each.
class Solver {
public:
    Solver(Triangle& triangle, const Case& row, bool SecondSolution)
        : triangle_(triangle), row_(row), secondSolution_(SecondSolution) {}

    void TwoAngles();
    void Ambiguous();
    void IncludedAngle();
    void ThreeSides();

private:
    [[nodiscard]] Checked Value(Element element) const { return triangle_.Working(element); }
    void Set(Element element, Checked value) { triangle_.Working(element) = value.Value(); }
    [[nodiscard]] Checked SineOf(Element angle) const { return Sin(Value(angle) * Rad); }

    void FindByAngleSum(Element angle, Element other1, Element other2);
    void FindBySines(Element side, Element knownSide, Checked knownSine);
    void FindByCosines(Element angle);
    [[nodiscard]] Checked Arcsine(Checked x) const;
    [[nodiscard]] Checked Arccosine(Checked y) const;

    Triangle& triangle_;
    const Case& row_;
    bool secondSolution_;
    Checked Pi = 4 * Atn(1);
    Checked Rad = Pi / HalfTurn;
    Checked Deg = HalfTurn / Pi;
};

void Solver::FindByAngleSum(Element angle, Element other1, Element other2) {
    Set(angle, HalfTurn - (Value(other1) + Value(other2)));
}

/// Law of sines: s = k·sin S / sin K.
void Solver::FindBySines(Element side, Element knownSide, Checked knownSine) {
    Set(side, Value(knownSide) * SineOf(Opposite(side)) / knownSine);
}

/// Law of cosines from three sides: cos W = (u·u + v·v - w·w) / (2·u·v).
void Solver::FindByCosines(Element angle) {
    const Element side = Opposite(angle);
    const Checked w = Value(side);
    const Checked u = Value(NextSide(side));
    const Checked v = Value(NextSide(NextSide(side)));
    Set(angle, Arccosine((u * u + v * v - w * w) / (2 * u * v)));
}

Checked Solver::Arcsine(Checked x) const {
    const Checked t = 1 - x * x;
    if (t == 0) {
        return RightAngle;
    }
    if (t < 0) {
        // No such triangle: a small negative number, in radians, drives the case into the test for positive values.
        // Intended, as no other check of it exists.
        return Atn(0 - Sqr(Abs(t)));
    }
    const Checked angle = Atn(x / Sqr(t)) * ArcsineDegrees;
    return row_.ObtuseFirst ? HalfTurn - angle : angle;
}

Checked Solver::Arccosine(Checked y) const {
    return (Pi / 2 - Atn(y / Sqr(1 - y * y))) * Deg;
}

void Solver::TwoAngles() {
    FindByAngleSum(row_.Found[0], row_.Given[0], row_.Given[1]);
    const Checked knownSine = SineOf(Opposite(row_.Given[2]));
    FindBySines(row_.Found[1], row_.Given[2], knownSine);
    FindBySines(row_.Found[2], row_.Given[2], knownSine);
}

void Solver::Ambiguous() {
    const Element given = row_.Given[0];
    const Element wanted = row_.Found[0];
    const Checked givenSine = SineOf(given);
    const Checked x = Value(Opposite(wanted)) * givenSine / Value(Opposite(given));
    const Checked angle = Arcsine(x);
    // Whether the second triangle exists is left to the test for positive values: intended.
    Set(wanted, secondSolution_ ? HalfTurn - angle : angle);
    FindByAngleSum(row_.Found[1], given, wanted);
    FindBySines(row_.Found[2], Opposite(given), givenSine);
}

void Solver::IncludedAngle() {
    // Law of cosines: w·w = u·u + v·v - 2·u·v·cos W.
    const Element side = row_.Found[0];
    const Checked u = Value(NextSide(side));
    const Checked v = Value(NextSide(NextSide(side)));
    Set(side, Sqr(u * u + v * v - 2 * u * v * Cos(Value(row_.Given[0]) * Rad)));
    FindByCosines(row_.Found[1]);
    FindByAngleSum(row_.Found[2], row_.Given[0], row_.Found[1]);
}

void Solver::ThreeSides() {
    FindByCosines(row_.Found[0]);
    FindByCosines(row_.Found[1]);
    FindByAngleSum(row_.Found[2], row_.Found[0], row_.Found[1]);
}

/// How a family is solved, in the order of Family.
constexpr std::array<void (Solver::*)(), 4> Ways = {&Solver::TwoAngles, &Solver::Ambiguous, &Solver::IncludedAngle,
                                                    &Solver::ThreeSides};

struct RefusalRow {
    Refusal refusal;
    FaultNumber fault;
    std::string_view name;
};
constexpr RefusalRow FaultTable[] = {
    {Refusal::Overflow, FaultNumber::Overflow, "OVERFLOW"},
    {Refusal::IllegalFunctionCall, FaultNumber::BadArgument, "ILLEGAL FUNCTION CALL"},
    {Refusal::DivisionByZero, FaultNumber::DivisionByZero, "DIVISION BY ZERO"},
};

}  // namespace

double& Triangle::Working(Element element) {
    return this->*WorkingMembers[Index(element)];
}

double Triangle::Working(Element element) const {
    return this->*WorkingMembers[Index(element)];
}

double& Triangle::Kept(Element element) {
    return this->*KeptMembers[Index(element)];
}

double Triangle::Kept(Element element) const {
    return this->*KeptMembers[Index(element)];
}

std::string_view LabelOf(Element element) {
    return Labels[Index(element)];
}

std::span<const Case> Cases() {
    return Table;
}

const Case* FindCase(std::string_view entry) {
    const auto* const found =
        std::find_if(Table.begin(), Table.end(), [&](const Case& row) { return row.Entry == entry; });
    return found == Table.end() ? nullptr : found;
}

std::optional<std::array<Element, 3>> EntriesOf(std::string_view entry) {
    if (const Case* const row = FindCase(entry)) {
        return row->Given;
    }
    if (entry == ThreeAngles) {
        return std::array{A, B, C};
    }
    return std::nullopt;
}

Refusal RefusalOf(FaultNumber fault) {
    for (const RefusalRow& row : FaultTable) {
        if (row.fault == fault) {
            return row.refusal;
        }
    }
    return Refusal::Unknown;
}

std::string RefusalText(Refusal refusal) {
    for (const RefusalRow& row : FaultTable) {
        if (row.refusal == refusal) {
            return "These Values Are Not Valid For Calculating\rSolutions To An Oblique Triangle.\rError: " +
                   std::string(row.name);
        }
    }
    switch (refusal) {
        case Refusal::None:
            return {};
        case Refusal::NotPositive:
            return "Sorry, Brindlex Does Not Calculate Negative Values.";
        default:
            return "An Unknown Error Has Ocurred";  // spelled so: intended
    }
}

void SolveOblique(Triangle& triangle, std::string_view entry, double first, double second, double third,
                  bool SecondSolution) {
    const Case* const row = FindCase(entry);
    if (row == nullptr) {
        return;
    }
    SolveOblique(triangle, *row, {first, second, third}, SecondSolution);
}

void SolveOblique(Triangle& triangle, const Case& row, const std::array<double, 3>& given, bool SecondSolution) {
    for (std::size_t entry = 0; entry < given.size(); ++entry) {
        triangle.Working(row.Given[entry]) = given[entry];
    }
    Solver solver(triangle, row, SecondSolution);
    (solver.*Ways[static_cast<std::size_t>(row.Kind)])();
}

bool AcceptOblique(Triangle& triangle) {
    if (!std::all_of(AllElements.begin(), AllElements.end(), [&](Element e) { return triangle.Working(e) > 0; })) {
        return false;
    }
    for (const Element element : AllElements) {
        triangle.Kept(element) = triangle.Working(element);
    }
    return true;
}

double ObliqueArea(double a, double b, double C) {
    const Checked Rad = 4 * Atn(1) / HalfTurn;
    const Checked t = HalfTurn - Checked(C);
    const Checked u = a * Sin(t * Rad);
    return (b * u * 0.5).Value();
}

}  // namespace brindlex::oblique
