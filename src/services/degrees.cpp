// Degrees, minutes and seconds from decimal degrees and from text.
#include "services/degrees.h"

#include "frame/checked.h"
#include "frame/text.h"

namespace brindlex {

namespace {

constexpr std::string_view Degree(&DegreeSign, 1);
constexpr std::string_view MinutesMark = "'";
constexpr std::string_view SecondsMark = "\"";
// A mark, a blank and the blank of a number that isn't negative: a part begins at the third place behind a mark.
constexpr int ToNextPart = 3;

}  // namespace

DegreeParts SplitDegrees(double degrees, const std::function<double(double)>& roundSeconds) {
    DegreeParts parts;
    parts.Degrees = CInt(Fix(degrees));
    const double minutes = (degrees - Fix(degrees)) * PerWhole;
    parts.Minutes = Fix(minutes);
    parts.Seconds = (minutes - Fix(minutes)) * PerWhole;
    if (roundSeconds) {
        parts.Seconds = roundSeconds(parts.Seconds);
    }
    if (parts.Seconds == PerWhole) {
        parts.Seconds = 0;
        parts.Minutes += 1;
    }
    if (parts.Minutes == PerWhole) {
        parts.Minutes = 0;
        parts.Degrees = CInt(parts.Degrees + 1.0);
    }
    return parts;
}

DegreeParts SplitDegrees(double degrees) {
    return SplitDegrees(degrees, {});
}

std::string DegreeText(const DegreeParts& parts) {
    std::string text = Str(parts.Degrees);
    text.append(Degree).append(" ").append(Str(parts.Minutes)).append(MinutesMark);
    return text.append(" ").append(Str(parts.Seconds)).append(SecondsMark);
}

std::string DegreeReader::NormalizeDmsText(const std::string& text) {
    const int degree = InStr(text, Degree);
    if (degree == 0) {
        return text;
    }
    const int apostrophe = InStr(text, MinutesMark);
    if (apostrophe != 0) {
        minuteText_ = Mid(text, degree + ToNextPart, apostrophe - (degree + ToNextPart));
    }
    const int quote = InStr(text, SecondsMark);
    if (quote != 0) {
        // Without an apostrophe its place counts as 0: intended.
        secondText_ = Mid(text, apostrophe + ToNextPart, quote - (apostrophe + ToNextPart));
    }
    const Checked value = Checked(Val(Left(text, degree - 1))) + Checked(Val(minuteText_)) / PerWhole +
                          Checked(Val(secondText_)) / SecondsPerDegree;
    return Str(value.Value());
}

}  // namespace brindlex
