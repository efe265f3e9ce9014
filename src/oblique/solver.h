// Oblique triangles: the three missing elements from three known ones, by the law of sines and the law of cosines.
// Units: angles in decimal degrees, sides in any one unit. Includes no control, form or runtime.
#pragma once

#include "frame/fault.h"

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace brindlex::oblique {

/// The six elements in the order in which they are shown. The side of a letter lies opposite the angle of that letter.
enum class Element { A, B, C, a, b, c };

inline constexpr std::size_t ElementCount = 6;
inline constexpr std::array<Element, ElementCount> AllElements = {Element::A, Element::B, Element::C,
                                                                  Element::a, Element::b, Element::c};

[[nodiscard]] constexpr std::size_t Index(Element element) {
    return static_cast<std::size_t>(element);
}
[[nodiscard]] constexpr bool IsAngle(Element element) {
    return element <= Element::C;
}
/// The name that an entry label shows: "Angle A", "Side a".
[[nodiscard]] std::string_view LabelOf(Element element);

/// The triangle: working values, which the display rounds, and the unrounded values of the last accepted calculation.
struct Triangle {
    double A = 0;
    double B = 0;
    double C = 0;
    double a = 0;
    double b = 0;
    double c = 0;

    double KeptA = 0;
    double KeptB = 0;
    double KeptC = 0;
    double KeptSideA = 0;
    double KeptSideB = 0;
    double KeptSideC = 0;

    [[nodiscard]] double& Working(Element element);
    [[nodiscard]] double Working(Element element) const;
    [[nodiscard]] double& Kept(Element element);
    [[nodiscard]] double Kept(Element element) const;
    /// Whether a calculation has been accepted.
    [[nodiscard]] bool HasResult() const { return KeptB != 0 || KeptC != 0; }
};

enum class Family { TwoAngles, Ambiguous, IncludedAngle, ThreeSides };

struct Case {
    std::string_view Entry;  ///< as a person chooses it
    Family Kind;
    std::array<Element, 3> Given;  ///< what the three entries are
    std::array<Element, 3> Found;  ///< what is worked out, in this order
    bool ObtuseFirst = false;      ///< the one ambiguous case that gives the obtuse solution first: intended
};

/// The nineteen cases in the order of the list.
[[nodiscard]] std::span<const Case> Cases();
/// The case of that text; null where there is none.
[[nodiscard]] const Case* FindCase(std::string_view entry);
/// What the three entries of a case are. Knows "Angle A, Angle B, Angle C" too, which no list offers.
[[nodiscard]] std::optional<std::array<Element, 3>> EntriesOf(std::string_view entry);

/// Why a triangle is not shown.
enum class Refusal {
    None,
    NotPositive,          ///< one of the six values is not above 0, an entered one or a found one
    Overflow,             ///< a value out of range, or 0 divided by 0
    IllegalFunctionCall,  ///< the root of a negative number, degree marks in an impossible order
    DivisionByZero,       ///< a number that isn't 0 divided by 0
    Unknown,              ///< any other fault
};

[[nodiscard]] Refusal RefusalOf(FaultNumber fault);
/// The message of a refusal; lines are joined by a single carriage return. Empty for None.
[[nodiscard]] std::string RefusalText(Refusal refusal);

/// Works out the triangle of a case from its three values, into the working values. `SecondSolution` takes the other
/// solution of an ambiguous case. A text that is no case leaves the working values as they stand: intended. Throws
/// Fault; the working values then hold what was reached.
void SolveOblique(Triangle& triangle, std::string_view entry, double first, double second, double third,
                  bool SecondSolution);
/// The same for a case of the table.
void SolveOblique(Triangle& triangle, const Case& row, const std::array<double, 3>& given, bool SecondSolution);

/// Whether all six working values are above 0; if so they become the kept values.
[[nodiscard]] bool AcceptOblique(Triangle& triangle);

/// The area from two sides and the angle between them. Throws Overflow.
[[nodiscard]] double ObliqueArea(double a, double b, double C);

}  // namespace brindlex::oblique
