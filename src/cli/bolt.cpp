// Bolt circles.
#include "cli/bolt.h"

#include "boltcircle/document.h"
#include "boltcircle/report.h"
#include "boltcircle/solver.h"
#include "frame/text.h"
#include "services/degrees.h"
#include "services/rounding.h"

#include <array>

namespace brindlex::cli {

namespace {

using boltcircle::Pattern;

constexpr const char* NotCompleted = "the center, the diameter and the number of holes are needed";
constexpr const char* ZeroDiameter = "the diameter must be above 0";
constexpr const char* ZeroHoles = "the number of holes must be above 0";

/// What the calculator refuses, in its own order.
const char* WhyRefused(boltcircle::Refusal refusal) {
    switch (refusal) {
        case boltcircle::Refusal::NotCompleted:
            return NotCompleted;
        case boltcircle::Refusal::ZeroDiameter:
            return ZeroDiameter;
        case boltcircle::Refusal::ZeroHoles:
            return ZeroHoles;
        case boltcircle::Refusal::None:
            break;
    }
    return nullptr;
}

Item Length(std::string_view name, double value, Unit unit, bool given = false) {
    return {name, Trimmed(Str(value)), WordOf(unit), true, given};
}

Item Angle(std::string_view name, std::string text, bool words, bool given = false) {
    return {name, std::move(text), words ? "" : "deg", !words, given};
}

/// A line of a hole. Angles are shown rounded by the mask; in minutes and seconds as the report writes them.
Line HoleLine(std::size_t number, const boltcircle::Hole& hole, const Pattern& pattern, const Display& display,
              const std::string& mask) {
    const double angle = boltcircle::ShownAngle(hole.Angle);
    Line line{{"hole", std::to_string(number), "", true, false}};
    if (!pattern.AnglesOnly) {
        line.push_back(Length("x", hole.X, display.Measure));
        line.push_back(Length("y", hole.Y, display.Measure));
    }
    line.push_back(Angle(
        "angle",
        display.Minutes ? DegreesShown(boltcircle::ToDegrees(angle, mask)) : Trimmed(Str(Val(Format(angle, mask)))),
        display.Minutes));
    return line;
}

Answer AnswerBolt(boltcircle::Entries entries, const Display& display) {
    if (const char* const why = WhyRefused(boltcircle::Validate(entries))) {
        throw Failure(Exit::BadInput, why);
    }
    if (entries.StartAngle.empty()) {
        entries.StartAngle = "0";
    }
    SharedState shared = SharedFor(display);
    const std::string mask = RoundingMask(shared.DigitsR, shared);
    boltcircle::Normalize(entries);
    const Pattern pattern = boltcircle::SolveBoltCircle(entries, mask, shared.Rad);
    const auto rounded = [&](double value) { return pattern.AnglesOnly ? Val(Format(value, mask)) : value; };
    const auto angle = [&](std::string_view name, double decimal, double exact, bool given) {
        return Angle(name, display.Minutes ? DegreesShown(boltcircle::ToDegrees(exact, mask)) : Trimmed(Str(decimal)),
                     display.Minutes, given);
    };
    Answer answer{"bolt", WordOf(display.Measure), {}, {}, "hole_positions", {}};
    answer.Items = {{"holes", Trimmed(Str(pattern.Holes)), "", true, true},
                    Length("diameter", pattern.Diameter, display.Measure, true),
                    Length("center_x", pattern.CenterX, display.Measure, true),
                    Length("center_y", pattern.CenterY, display.Measure, true),
                    angle("start_angle", pattern.StartAngle, pattern.StartAngle, true),
                    angle("angle_spacing", rounded(pattern.AngleSpacing), FullTurn / pattern.Holes, false),
                    Length("chord", rounded(pattern.ChordDist), display.Measure)};
    answer.Lines.push_back(HoleLine(1, boltcircle::FirstHole(pattern), pattern, display, mask));
    for (const boltcircle::Hole& hole : pattern.Further) {
        answer.Lines.push_back(HoleLine(answer.Lines.size() + 1, hole, pattern, display, mask));
    }
    return answer;
}

std::string LengthOr0(const Arguments& given, std::string_view option, Unit unit) {
    return given.Has(option) ? LengthFrom(given, option, unit, Sign::Any) : "0";
}

}  // namespace

Answer SolveBolt(const Arguments& given) {
    const Display display = DisplayFrom(given);
    boltcircle::Entries entries;
    entries.CenterX = LengthOr0(given, "--center-x", display.Measure);
    entries.CenterY = LengthOr0(given, "--center-y", display.Measure);
    entries.Diameter = LengthFrom(given, "--diameter", display.Measure, Sign::Positive);
    entries.Holes = std::to_string(CountFrom(given, "--holes", 1, boltcircle::MostHoles));
    entries.StartAngle = given.Has("--start-angle") ? AngleFrom(given, "--start-angle", Sign::Any) : "0";
    entries.AnglesOnly = given.Has("--angles-only");
    return Solved([&] { return AnswerBolt(entries, display); });
}

Answer BoltFromDocument(const std::vector<std::string>& lines, const Display& display) {
    std::array<std::string, boltcircle::EntryLines> texts;
    for (std::size_t i = 0; i < texts.size() && i < lines.size(); ++i) {
        texts[i] = lines[i];
    }
    boltcircle::Entries entries{texts[0], texts[1], texts[2], texts[3], texts[4], false};
    if (lines.size() > texts.size() && boltcircle::StoredCheck(lines[texts.size()]) == 1) {
        // Asking for angles alone puts the center to 0 and looks at the two other numbers beforehand.
        entries.AnglesOnly = true;
        for (std::string* const center : {&entries.CenterX, &entries.CenterY}) {
            *center = center->empty() ? "0" : *center;
        }
        if (entries.Diameter.empty() || entries.Diameter == "0") {
            throw Failure(Exit::BadInput, ZeroDiameter);
        }
        if (entries.Holes.empty() || entries.Holes == "0") {
            throw Failure(Exit::BadInput, ZeroHoles);
        }
    }
    return Solved([&] { return AnswerBolt(entries, display); });
}

std::string RunBolt(const Arguments& given, const StandardInput&) {
    const Style style = StyleFrom(given);
    return Written(SolveBolt(given), style);
}

}  // namespace brindlex::cli
