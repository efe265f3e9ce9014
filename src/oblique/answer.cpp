// Rounding and texts of a solved triangle.
#include "oblique/answer.h"

#include "frame/text.h"
#include "services/degrees.h"
#include "services/rounding.h"

namespace brindlex::oblique {

namespace {

constexpr std::array RoundingOrder = {Element::a, Element::b, Element::c, Element::A, Element::B, Element::C};

double Rounded(double number, SharedState& shared) {
    return RoundedForDisplay(number, shared, shared.DigitsO);
}

}  // namespace

Answer InDegrees(const Triangle& accepted, SharedState& shared) {
    Answer answer{accepted, {}, {}};
    for (const Element element : RoundingOrder) {
        answer.Shown.Working(element) = Rounded(accepted.Kept(element), shared);
    }
    for (const Element element : AllElements) {
        answer.Texts[Index(element)] = Str(answer.Shown.Working(element));
        if (IsAngle(element)) {
            answer.Texts[Index(element)] += DegreeSign;
        }
    }
    return answer;
}

Answer InMinutes(const Triangle& accepted, SharedState& shared) {
    Answer answer{accepted, {}, {}};
    for (const Element element : AllElements) {
        std::string& text = answer.Texts[Index(element)];
        if (IsAngle(element)) {
            const DegreeParts parts =
                SplitDegrees(accepted.Kept(element), [&](double seconds) { return Rounded(seconds, shared); });
            answer.Seconds[Index(element)] = parts.Seconds;
            text = DegreeText(parts);
        } else {
            answer.Shown.Working(element) = Rounded(accepted.Kept(element), shared);
            text = Str(answer.Shown.Working(element));
        }
    }
    return answer;
}

bool IsDocument(const std::vector<std::string>& lines) {
    return lines.empty() || EntriesOf(lines.front());
}

}  // namespace brindlex::oblique
