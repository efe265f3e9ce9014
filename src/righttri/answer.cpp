// Rounding and texts of a solved triangle.
#include "righttri/answer.h"

#include "frame/checked.h"
#include "frame/text.h"
#include "services/degrees.h"
#include "services/rounding.h"

#include <utility>

namespace brindlex::righttri {

namespace {

/// The rounding of this calculator empties its slot.
double Rounded(double number, SharedState& shared) {
    const double rounded = RoundedForDisplay(number, shared, shared.DigitsR);
    shared.NumIn.clear();
    return rounded;
}

PartTexts TextsOf(const Triangle& rounded, std::string angleB, std::string angleC) {
    return {"", std::move(angleB), std::move(angleC), Str(rounded.SideA), Str(rounded.SideB), Str(rounded.SideC)};
}

}  // namespace

Answer InDegrees(const Triangle& found, SharedState& shared) {
    Answer answer;
    answer.Rounded = {Rounded(found.SideA, shared), Rounded(found.SideB, shared), Rounded(found.SideC, shared),
                      Rounded(found.AngleB, shared), Rounded(found.AngleC, shared)};
    answer.Texts =
        TextsOf(answer.Rounded, Str(answer.Rounded.AngleB) + DegreeSign, Str(answer.Rounded.AngleC) + DegreeSign);
    return answer;
}

Answer InMinutes(const Triangle& found, SharedState& shared) {
    const auto round = [&](double seconds) { return Rounded(seconds, shared); };
    const DegreeParts angleB = SplitDegrees(found.AngleB, round);
    const DegreeParts angleC = SplitDegrees(found.AngleC, round);
    Answer answer;
    answer.Rounded = {Rounded(found.SideA, shared), Rounded(found.SideB, shared), Rounded(found.SideC, shared), 0, 0};
    answer.Texts = TextsOf(answer.Rounded, DegreeText(angleB), DegreeText(angleC));
    answer.SecondsB = angleB.Seconds;
    answer.SecondsC = angleC.Seconds;
    return answer;
}

double AreaOf(double sideB, double sideC) {
    return (Checked(sideB) * sideC * 0.5).Value();
}

bool IsDocument(const std::vector<std::string>& lines) {
    return lines.empty() || FindCase(lines.front());
}

}  // namespace brindlex::righttri
