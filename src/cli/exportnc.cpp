// The program is plain: absolute places, one drilling cycle, the tool up at the safe height between the holes. Only
// words that nearly every control knows stand in it, and every length has its point, since older controls read a length
// without one as a count of their smallest step.
#include "cli/exportnc.h"

#include "cli/exportnumbers.h"
#include "cli/failure.h"

#include <array>
#include <cmath>
#include <initializer_list>
#include <string_view>

namespace brindlex::cli {

namespace {

using geometry::Position;
using geometry::Unit;

constexpr int PlacesOfInch = 6;
constexpr int PlacesOfMillimeter = 4;
constexpr double Farthest = 100000;
constexpr std::size_t LongestComment = 60;

void Require(bool kept, std::string_view rule, double given) {
    if (!kept) {
        throw Failure(Exit::Usage, std::string(rule) + ", not " + ShortestText(given));
    }
}

/// A value as it will stand in the program.
double Written(double value, int places) {
    return *WholeNumberText(DecimalText(value, places));
}

/// Values as written, so that one that rounds to 0 is refused as 0.
void CheckDrilling(const Drilling& d, int places) {
    const double depth = Written(d.Depth, places);
    const double retract = Written(d.Retract, places);
    const double safe = Written(d.SafeHeight, places);
    Require(depth < 0,
            "--depth is the Z of the bottom of the holes, with Z 0 at the top of the work: it must be below 0",
            d.Depth);
    Require(retract > 0, "--retract is the Z where the feed begins: it must be above the work, that is above 0",
            d.Retract);
    Require(safe > 0, "--safe-height must be above the work, that is above 0", d.SafeHeight);
    Require(safe >= retract, "--safe-height must not be below --retract", d.SafeHeight);
    Require(Written(d.Feed, places) > 0, "--feed must be above 0", d.Feed);
    Require(d.Spindle >= 1 && d.Spindle <= FastestSpindle, "--spindle must be 1 to 999999 revolutions", d.Spindle);
    Require(!d.Peck || Written(*d.Peck, places) > 0, "--peck must be above 0", d.Peck.value_or(0));
    Require(!d.Tool || (*d.Tool >= 1 && *d.Tool <= MostTool), "--tool must be 1 to 9999", d.Tool.value_or(0));
    for (const double value : {d.Depth, d.Retract, d.SafeHeight, d.Feed, d.Peck.value_or(0)}) {
        Require(std::fabs(value) < Farthest, "a length is too large for a machine: it must be below 100000", value);
    }
}

class NcProgram {
public:
    NcProgram(const HolePattern& pattern, Unit unit, const Drilling& drilling, int places)
        : pattern_(pattern), unit_(unit), drilling_(drilling), places_(places) {}

    [[nodiscard]] std::string Write(const std::string& source);

private:
    void Line(std::initializer_list<std::string_view> words);
    void Comment(const std::string& text) { Line({"(" + CommentText(text) + ")"}); }
    /// Parts with commas between them, on as many lines as they need: a number that is cut short would be another.
    void Comments(std::initializer_list<std::string> parts);
    /// A word with a length: "X12.5".
    [[nodiscard]] std::string Word(std::string_view letter, double value) const {
        return std::string(letter) + DecimalText(value, places_);
    }
    void Head(const std::string& source);
    void Start();
    void Drill();

    const HolePattern& pattern_;
    Unit unit_;
    const Drilling& drilling_;
    int places_;
    std::string text_;
};

void NcProgram::Line(std::initializer_list<std::string_view> words) {
    bool first = true;
    for (const std::string_view word : words) {
        text_ += first ? "" : " ";
        text_ += word;
        first = false;
    }
    text_ += '\n';
}

void NcProgram::Comments(std::initializer_list<std::string> parts) {
    constexpr std::string_view Comma = ", ";
    std::string line;
    for (const std::string& part : parts) {
        if (!line.empty() && line.size() + Comma.size() + part.size() > LongestComment) {
            Comment(line);
            line.clear();
        }
        line.append(line.empty() ? "" : Comma).append(part);
    }
    Comment(line);
}

void NcProgram::Head(const std::string& source) {
    const Drilling& d = drilling_;
    Comment("Brindlex: " + std::to_string(pattern_.Holes.size()) + " holes on a bolt circle, from " + source);
    Comment("Check this program before it is run on a machine");
    Comment("Lengths in " + std::string(UnitPlural(unit_)) + ", Z 0 is the top of the work");
    Comments({"Center " + Word("X", pattern_.Centre.X) + " " + Word("Y", pattern_.Centre.Y),
              "diameter " + Word("", pattern_.Diameter), "start angle " + Word("", pattern_.StartAngle)});
    Comments({(d.Peck ? "Pecks of " + Word("", *d.Peck) + " to " : std::string("One plunge to ")) + Word("Z", d.Depth),
              "feed from " + Word("Z", d.Retract), "ways at " + Word("Z", d.SafeHeight)});
}

/// G17 the plane of X and Y, G40 no cutter compensation, G80 no cycle left over, G90 absolute, G94 feed a minute. The
/// length offset stays as the operator has set it, unless the program changes the tool.
void NcProgram::Start() {
    Line({unit_ == Unit::Inch ? "G20" : "G21", "G17", "G40", "G80", "G90", "G94"});
    if (drilling_.Tool) {
        const std::string number = std::to_string(*drilling_.Tool);
        Line({"T" + number, "M6"});
        Line({"G43", "H" + number});
    }
    Line({"S" + std::to_string(drilling_.Spindle), "M3"});
    Line({"G0", Word("Z", drilling_.SafeHeight)});
}

/// G98: back to the safe height after each hole, and not only to where the feed begins.
void NcProgram::Drill() {
    const Position first = pattern_.Holes.front().Place;
    Line({"G0", Word("X", first.X), Word("Y", first.Y)});
    const bool pecks = drilling_.Peck.has_value();
    std::string cycle = pecks ? "G98 G83 " : "G98 G81 ";
    cycle += Word("X", first.X) + " " + Word("Y", first.Y) + " " + Word("Z", drilling_.Depth) + " " +
             Word("R", drilling_.Retract);
    if (pecks) {
        cycle += " " + Word("Q", *drilling_.Peck);
    }
    Line({cycle, Word("F", drilling_.Feed)});
    for (std::size_t i = 1; i < pattern_.Holes.size(); ++i) {
        const Position place = pattern_.Holes[i].Place;
        Line({Word("X", place.X), Word("Y", place.Y)});
    }
    Line({"G80"});
}

std::string NcProgram::Write(const std::string& source) {
    Head(source);
    Start();
    Drill();
    Line({"G0", Word("Z", drilling_.SafeHeight)});
    Line({"M5"});
    Line({"M2"});
    return text_;
}

}  // namespace

int DefaultPlaces(Unit unit) {
    return unit == Unit::Inch ? PlacesOfInch : PlacesOfMillimeter;
}

std::string NcText(const HolePattern& pattern, Unit unit, const Drilling& drilling, const std::string& source) {
    const int places = drilling.Places.value_or(DefaultPlaces(unit));
    Require(places >= 1 && places <= MostNcPlaces, "--places must be 1 to 6 for a drilling program", places);
    CheckDrilling(drilling, places);
    if (pattern.Holes.empty()) {
        throw Failure(Exit::BadInput, "there are no holes");
    }
    for (const Hole& hole : pattern.Holes) {
        if (!(std::fabs(hole.Place.X) < Farthest && std::fabs(hole.Place.Y) < Farthest)) {
            throw Failure(Exit::BadInput, "hole " + std::to_string(hole.Number) + " is too far away for a machine");
        }
    }
    return NcProgram(pattern, unit, drilling, places).Write(source);
}

std::string CommentText(const std::string& text) {
    constexpr std::string_view Marks = ".,:=+-/";
    std::string comment;
    for (const char c : text.substr(0, LongestComment)) {
        const bool small = c >= 'a' && c <= 'z';
        const bool kept = (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || Marks.find(c) != std::string_view::npos;
        comment += small ? static_cast<char>(c - 'a' + 'A') : kept ? c : ' ';
    }
    return comment;
}

}  // namespace brindlex::cli
