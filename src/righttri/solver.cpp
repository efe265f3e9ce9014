// The nine cases of a right triangle, each with its test and its formulas in the order of their evaluation.
#include "righttri/solver.h"

#include "frame/checked.h"
#include "frame/text.h"
#include "services/degrees.h"

#include <algorithm>
#include <array>

namespace brindlex::righttri {

namespace {

/// Degrees per radian, as far as it is carried here: not the same as 180 / Pi, and intended so.
constexpr double DegreesPerRadian = 57.2957795130824;
/// The largest angle that is solved.
constexpr double AngleLimit = 89.99999;
constexpr double RightAngle = 90;

struct Given {
    Checked First;    ///< a side
    Checked Second;   ///< a side or an angle in degrees
    Checked Radians;  ///< the second as radians, for the cases where it is an angle
};

Triangle Assemble(Checked a, Checked b, Checked c, Checked angleB, Checked angleC) {
    return {a.Value(), b.Value(), c.Value(), angleB.Value(), angleC.Value()};
}

/// Both acute angles from the legs, by their tangents.
Triangle FromSides(Checked a, Checked b, Checked c) {
    const Checked angleB = Atn(b / c) * DegreesPerRadian;
    const Checked angleC = Atn(c / b) * DegreesPerRadian;
    return Assemble(a, b, c, angleB, angleC);
}

// Pythagoras.

Triangle SidesAB(const Given& given) {
    const Checked a = given.First;
    const Checked b = given.Second;
    return FromSides(a, b, Sqr(a * a - b * b));
}

Triangle SidesBC(const Given& given) {
    const Checked b = given.First;
    const Checked c = given.Second;
    return FromSides(Sqr(b * b + c * c), b, c);
}

// An angle and a side: b = a sin B = c tan B, c = a cos B.

Triangle AngleBSideA(const Given& given) {
    const Checked a = given.First;
    const Checked b = a * Sin(given.Radians);
    const Checked c = a * Cos(given.Radians);
    return Assemble(a, b, c, given.Second, RightAngle - given.Second);
}

Triangle AngleBSideB(const Given& given) {
    const Checked b = given.First;
    const Checked a = b / Sin(given.Radians);
    const Checked c = b / Tan(given.Radians);
    return Assemble(a, b, c, given.Second, RightAngle - given.Second);
}

Triangle AngleBSideC(const Given& given) {
    const Checked c = given.First;
    const Checked a = c / Cos(given.Radians);
    const Checked b = c * Tan(given.Radians);
    return Assemble(a, b, c, given.Second, RightAngle - given.Second);
}

/// The same with legs and angles exchanged: what is known of B and b holds for C and c.
template <auto Solver>
Triangle Mirrored(const Given& given) {
    const Triangle found = Solver(given);
    return {found.SideA, found.SideC, found.SideB, found.AngleC, found.AngleB};
}

enum class Test { None, LegBelowHypotenuse, AngleWithinLimit };

struct CaseRow {
    CaseLabels labels;
    Test test;
    Triangle (*solve)(const Given&);
};

constexpr std::string_view LabelA = "Length of side a";
constexpr std::string_view LabelB = "Length of side b";
constexpr std::string_view LabelC = "Length of side c";

constexpr std::array Table{
    CaseRow{{"Side a and side b", LabelA, LabelB}, Test::LegBelowHypotenuse, SidesAB},
    CaseRow{{"Side a and side c", LabelA, LabelC}, Test::LegBelowHypotenuse, Mirrored<SidesAB>},
    CaseRow{{"Side b and side c", LabelB, LabelC}, Test::None, SidesBC},
    CaseRow{{"Angle B and side a", LabelA, "Angle B"}, Test::AngleWithinLimit, AngleBSideA},
    CaseRow{{"Angle B and side b", LabelB, "Angle B"}, Test::AngleWithinLimit, AngleBSideB},
    CaseRow{{"Angle B and side c", LabelC, "Angle B"}, Test::AngleWithinLimit, AngleBSideC},
    CaseRow{{"Angle C and side a", LabelA, "Angle C"}, Test::AngleWithinLimit, Mirrored<AngleBSideA>},
    CaseRow{{"Angle C and side b", LabelB, "Angle C"}, Test::AngleWithinLimit, Mirrored<AngleBSideC>},
    CaseRow{{"Angle C and side c", LabelC, "Angle C"}, Test::AngleWithinLimit, Mirrored<AngleBSideB>},
};

constexpr auto LabelTable = [] {
    std::array<CaseLabels, Table.size()> labels{};
    std::transform(Table.begin(), Table.end(), labels.begin(), [](const CaseRow& row) { return row.labels; });
    return labels;
}();

bool Passes(Test test, double first, double second) {
    switch (test) {
        case Test::LegBelowHypotenuse:
            return first > second;
        case Test::AngleWithinLimit:
            return second <= AngleLimit;
        case Test::None:
            break;
    }
    return true;
}

/// What can be told before a degree text is read.
Refusal CheckTexts(const Entries& entries) {
    if (entries.Text1.empty()) {
        return Refusal::Text1Missing;
    }
    if (entries.Text2.empty()) {
        return Refusal::Text2Missing;
    }
    return Val(entries.Text1) == 0 || Val(entries.Text2) == 0 ? Refusal::InvalidValues : Refusal::None;
}

}  // namespace

std::span<const CaseLabels> Cases() {
    return LabelTable;
}

std::optional<CaseLabels> FindCase(std::string_view name) {
    const auto found = std::find_if(LabelTable.begin(), LabelTable.end(),
                                    [name](const CaseLabels& labels) { return labels.Name == name; });
    return found == LabelTable.end() ? std::nullopt : std::optional(*found);
}

Solution Solve(std::string_view caseName, Entries& entries, double rad) {
    if (const Refusal refusal = CheckTexts(entries); refusal != Refusal::None) {
        return {refusal, {}};
    }
    // One reader for both: a second entry without minutes takes those of the first. Intended.
    DegreeReader reader;
    entries.Text1 = reader.NormalizeDmsText(entries.Text1);
    entries.Text2 = reader.NormalizeDmsText(entries.Text2);

    const auto row =
        std::find_if(Table.begin(), Table.end(), [&](const CaseRow& other) { return other.labels.Name == caseName; });
    const double first = Val(entries.Text1);
    const double second = Val(entries.Text2);
    if (row == Table.end() || !Passes(row->test, first, second)) {
        return {Refusal::InvalidValues, {}};
    }
    const Checked radians = row->test == Test::AngleWithinLimit ? Checked(second) * rad : Checked();
    return {Refusal::None, row->solve({first, second, radians})};
}

}  // namespace brindlex::righttri
