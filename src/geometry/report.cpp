// Blocks of the report.
#include "geometry/report.h"

#include "frame/checked.h"
#include "frame/text.h"
#include "geometry/record.h"
#include "geometry/steps.h"
#include "geometry/tips.h"

#include <cmath>
#include <string_view>
#include <unordered_map>

namespace brindlex::geometry {

namespace {

constexpr std::string_view LineEnd = "\r\n";
constexpr std::string_view BlockEnd = "\r\n\r\n";
constexpr std::string_view Indent = "          ";
constexpr std::string_view DeepIndent = "                     ";
constexpr std::size_t PartnerCharacters = 3;

/// A text from a column on, counted from 1.
std::string_view From(std::string_view text, std::size_t column, std::size_t length = std::string_view::npos) {
    return column > text.size() ? std::string_view{} : text.substr(column - 1, length);
}

/// A computed value's text; 0 where it is beyond the range of a double.
template <class Value>
std::string Shown(Value&& value) {
    Checked shown;
    Step(shown, std::forward<Value>(value));
    return Str(shown.Value());
}

/// The kinds of the entities by number; of several of one number the last.
using Kinds = std::unordered_map<double, Kind>;

Kinds KindsOf(const std::vector<std::string>& lines) {
    Kinds kinds;
    for (const std::string& line : lines) {
        if (const Kind kind = KindOf(line); kind != Kind::None) {
            kinds[NumberOf(line)] = kind;
        }
    }
    return kinds;
}

Kind KindIn(const Kinds& kinds, double number) {
    const auto found = kinds.find(number);
    return found == kinds.end() ? Kind::None : found->second;
}

struct PartnerNumbers {
    double First = 0;
    double Second = 0;
};

/// The report reads partners by slices of its own: intended.
PartnerNumbers PartnersOfCircle(std::string_view line) {
    const auto comma = static_cast<std::size_t>(InStr(line, ",", KindColumn));
    if (comma == 0) {
        return {};
    }
    constexpr std::size_t Before = 6;
    constexpr std::size_t Behind = 7;
    return {ValueOf(From(line, comma - Before, comma - 1)), ValueOf(From(line, comma + 1, comma + Behind))};
}

PartnerNumbers PartnersOfLine(std::string_view line) {
    if (const auto comma = static_cast<std::size_t>(InStr(line, ",")); comma > 0) {
        constexpr std::size_t Before = 4;
        const std::size_t start = comma > Before ? comma - Before : 1;
        return {ValueOf(From(line, start, comma - start)), ValueOf(From(line, comma + 1))};
    }
    constexpr std::size_t Word = 7;
    const auto tangent = static_cast<std::size_t>(InStr(line, "Tangent", KindColumn));
    return {ValueOf(From(line, tangent + Word, Word)), ValueOf(line.substr(line.size() - PartnerCharacters))};
}

std::string CirclePartner(const Kinds& kinds, double number, const std::string& x, const std::string& y) {
    if (number == 0) {
        return {};
    }
    std::string text(LineEnd);
    text += Indent;
    text += "Tangent to ";
    text += KindWord(KindIn(kinds, number));
    text += " " + Str(number) + " at:";
    for (const std::string& line : {"X " + x, "Y " + y}) {
        text += LineEnd;
        text += DeepIndent;
        text += line;
    }
    return text;
}

std::string LinePartner(const Kinds& kinds, double number, Position place) {
    if (number == 0) {
        return {};
    }
    const Kind kind = KindIn(kinds, number);
    std::string text(LineEnd);
    text += Indent;
    if (kind != Kind::None) {
        text += kind == Kind::Circle ? "Tangent to " : "Intersects ";
        text += KindWord(kind);
    }
    text += " " + Str(number) + " at: X " + Str(place.X) + ",  Y " + Str(place.Y);
    return text;
}

std::string CircleBlock(std::string_view line, const Record& record, const Kinds& kinds) {
    const double pi = 4 * std::atan(1.0);
    const Checked diameter = record.Diameter();
    const std::string number = Str(record.Number);
    // Without the blank that stands before a line's number: intended.
    std::string text = (number.front() == ' ' ? number.substr(1) : number) + " Circle:";
    for (const std::string& value :
         {"Center X " + Str(record.Centre().X) + ",  Y" + Str(record.Centre().Y), "Diameter: " + Str(record.Diameter()),
          "Radius: " + Shown([&] { return diameter / 2.0; }),
          "Area: " + Shown([&] { return (diameter / 2.0) * (diameter / 2.0) * pi; }),
          "Circumference: " + Shown([&] { return diameter * pi; })}) {
        text += LineEnd;
        text += Indent;
        text += value;
    }
    if (IsComputed(line)) {
        const PartnerNumbers partners = PartnersOfCircle(line);
        const Tangency tangency = TangencyOf(line);
        text += CirclePartner(kinds, partners.First, tangency.X1, tangency.Y1);
        text += CirclePartner(kinds, partners.Second, tangency.X2, tangency.Y2);
    }
    return text;
}

/// What the crossings say of the lines, by number.
using CrossingTexts = std::unordered_map<double, std::string>;

/// A line may stand on either side of the comma.
CrossingTexts CrossingTextsOf(const std::vector<std::string>& crossings) {
    constexpr std::size_t Blanks = 15;
    CrossingTexts texts;
    for (const std::string_view item : crossings) {
        const auto comma = static_cast<std::size_t>(InStr(item, ","));
        const auto slash = static_cast<std::size_t>(InStr(item, "/"));
        const auto backslash = static_cast<std::size_t>(InStr(item, "\\"));
        const double first = ValueOf(item.substr(0, comma > 0 ? comma - 1 : 0));
        const double second = ValueOf(From(item, comma + 1, slash > Blanks ? slash - Blanks : 0));
        const std::string where =
            " at X " + Str(ValueOf(From(item, slash + 1))) + ",  Y " + Str(ValueOf(From(item, backslash + 1)));
        const auto tell = [&](double line, double other) {
            texts[line] += std::string(LineEnd) + std::string(Indent) + "Intersects Line " + Str(other) + where;
        };
        tell(first, second);
        if (second != first) {
            tell(second, first);
        }
    }
    return texts;
}

std::string LineBlock(std::string_view line, const Record& record, const Kinds& kinds, const CrossingTexts& crossings) {
    const Segment ends = record.Ends();
    const auto length = [&] {
        const Checked dx = Checked(ends.Start.X) - ends.End.X;
        const Checked dy = Checked(ends.Start.Y) - ends.End.Y;
        return Sqr(dx * dx + dy * dy);
    };
    std::string text = Str(record.Number) + " Line:";
    for (const std::string& value : {"Start: X " + Str(ends.Start.X) + ",  Y " + Str(ends.Start.Y),
                                     "End: X " + Str(ends.End.X) + ",  Y " + Str(ends.End.Y),
                                     "Length: " + Shown(length), "Angle: " + Str(AngleOf(ends))}) {
        text += LineEnd;
        text += Indent;
        text += value;
    }
    if (IsComputed(line)) {
        const PartnerNumbers partners = PartnersOfLine(line);
        text += LinePartner(kinds, partners.First, ends.Start);
        text += LinePartner(kinds, partners.Second, ends.End);
    }
    const auto found = crossings.find(record.Number);
    return found == crossings.end() ? text : text + found->second;
}

std::string PointBlock(const Record& record) {
    // To the whole, with a bare point behind it: intended.
    constexpr std::string_view Mask = ".";
    return Str(record.Number) + " Point:" + std::string(LineEnd) + std::string(Indent) + "X " +
           Format(record.Place().X, Mask) + ",  Y " + Format(record.Place().Y, Mask);
}

std::string Block(std::string_view line, const Record& record, const Kinds& kinds, const CrossingTexts& crossings) {
    if (record.Shape == Kind::Circle) {
        return CircleBlock(line, record, kinds);
    }
    return record.Shape == Kind::Line ? LineBlock(line, record, kinds, crossings) : PointBlock(record);
}

}  // namespace

std::string ReportText(const std::vector<std::string>& lines, Unit unit, const std::vector<std::string>& crossings) {
    const Kinds kinds = KindsOf(lines);
    const CrossingTexts texts = CrossingTextsOf(crossings);
    std::string text = unit == Unit::Inch ? "Scale: Inches" : "Scale: Millimeters";
    text += BlockEnd;
    for (const std::string& line : lines) {
        const Record record = ReadRecord(line);
        if (record.Shape != Kind::None) {
            text += Block(line, record, kinds, texts);
            text += BlockEnd;
        }
    }
    return text;
}

}  // namespace brindlex::geometry
