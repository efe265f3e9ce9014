// Lines of the report.
#include "boltcircle/report.h"

#include "frame/text.h"
#include "services/degrees.h"

#include <cstddef>
#include <initializer_list>

namespace brindlex::boltcircle {

namespace {

constexpr std::string_view LineEnd = "\r\n";
constexpr std::string_view Degree(&DegreeSign, 1);
// A line of a hole is seldom longer.
constexpr std::size_t UsualLine = 48;

void AddLine(std::string& report, std::initializer_list<std::string_view> words) {
    for (const std::string_view word : words) {
        report += word;
    }
    report += LineEnd;
}

// How the line of the centre is punctuated, which differs in its blanks from case to case: intended.
struct CenterWords {
    std::string_view x;
    std::string_view y;
};
constexpr CenterWords CoordinatesFromZero{"Center at: X=", ", Y="};
constexpr CenterWords Coordinates{"Center at: X=", " , Y="};
constexpr CenterWords Angles{"Center at: X= ", " , Y= "};

// Of hole 1 where the start angle is 0: the centre's values as well.
void AddCenter(std::string& report, const Pattern& pattern) {
    if (pattern.StartAngle == 0) {
        const CenterWords& words = pattern.AnglesOnly ? Angles : CoordinatesFromZero;
        AddLine(report, {words.x, Str(pattern.HoleX), words.y, Str(pattern.HoleY)});
    } else {
        const CenterWords& words = pattern.AnglesOnly ? Angles : Coordinates;
        AddLine(report, {words.x, Str(pattern.CenterX), words.y, Str(pattern.CenterY)});
    }
}

void AddCoordinatesHead(std::string& report, const Pattern& pattern, std::string_view startAngle) {
    AddLine(report, {"Holes: ", Str(pattern.Holes)});
    AddLine(report, {"Chordal Distance: ", Str(pattern.ChordDist)});
    AddLine(report, {"Angle Spacing: ", Str(pattern.AngleSpacing), Degree});
    AddLine(report, {"Diameter Of Circle:", Str(pattern.Diameter)});
    AddCenter(report, pattern);
    AddLine(report, {"Start Angle: ", startAngle, Degree});
    const Hole first = FirstHole(pattern);
    AddLine(report, {"Hole 1: X= ", Str(first.X), " , Y= ", Str(first.Y)});
}

void AddAnglesHead(std::string& report, const Pattern& pattern, std::string_view mask) {
    AddLine(report, {"Holes: ", Str(pattern.Holes)});
    AddLine(report, {"Chordal Distance:  ", Format(pattern.ChordDist, mask)});
    AddLine(report, {"Angle Spacing:  ", Format(pattern.AngleSpacing, mask), Degree});
    AddLine(report, {"Diameter Of Circle:", Str(pattern.Diameter)});
    AddCenter(report, pattern);
    if (pattern.StartAngle == 0) {
        AddLine(report, {"Hole 1= 0", Degree});
    } else {
        AddLine(report, {"Hole 1= ", ToDegrees(pattern.StartAngle, mask)});
    }
}

}  // namespace

std::string ToDegrees(double angle, std::string_view mask) {
    const DegreeParts parts = SplitDegrees(angle);
    std::string text = Str(parts.Degrees);
    text += Degree;
    if (parts.Seconds != 0 || parts.Minutes != 0) {
        text.append(" ").append(Str(parts.Minutes)).append("'");
    }
    if (parts.Seconds != 0) {
        text.append("  ").append(Format(parts.Seconds, mask)).append("\"");
    }
    return text;
}

Hole FirstHole(const Pattern& pattern) {
    const double x = pattern.StartAngle == 0 ? pattern.Radius + pattern.HoleX : pattern.HoleX;
    return {pattern.StartAngle, x, pattern.HoleY};
}

double ShownAngle(double angle) {
    return angle >= FullTurn ? angle - FullTurn : angle;
}

std::string ReportText(const Pattern& pattern, std::string_view startAngle, std::string_view mask) {
    std::string report;
    report.reserve((pattern.Further.size() + 8) * UsualLine);
    if (pattern.AnglesOnly) {
        AddAnglesHead(report, pattern, mask);
    } else {
        AddCoordinatesHead(report, pattern, startAngle);
    }
    int number = 1;
    for (const Hole& hole : pattern.Further) {
        ++number;
        if (pattern.AnglesOnly) {
            AddLine(report, {"Hole", Str(number), "= ", ToDegrees(ShownAngle(hole.Angle), mask)});
        } else {
            AddLine(report, {"Hole", Str(number), ": ", "X= ", Str(hole.X), " , ", "Y= ", Str(hole.Y)});
        }
    }
    return report;
}

}  // namespace brindlex::boltcircle
