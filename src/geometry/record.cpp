// The record shapes: printing by zones and tabs, reading by columns.
#include "geometry/record.h"

#include "frame/checked.h"
#include "frame/text.h"
#include "frame/textfile.h"

#include <algorithm>
#include <cstddef>

namespace brindlex::geometry {

namespace {

constexpr std::array KindOrder{Kind::Circle, Kind::Line, Kind::Point};
constexpr std::string_view Tangent = "Tangent";

/// Where the values are printed, and one column before, where their slices begin.
constexpr std::array ValueColumns{15, 43, 71, 99};
constexpr int SliceWidth = 27;
constexpr int NumberWidth = 14;

/// How many values a record of a kind has.
int ValueCount(Kind kind) {
    switch (kind) {
        case Kind::Circle:
            return 3;
        case Kind::Line:
            return 4;
        case Kind::Point:
            return 2;
        case Kind::None:
            break;
    }
    return 0;
}

/// Columns from..to of a line, as far as there are such columns.
std::string_view Columns(std::string_view line, int from, int to) {
    const int first = std::max(from, 1);
    const int last = std::min(to, Len(line));
    if (last < first) {
        return {};
    }
    return line.substr(static_cast<std::size_t>(first) - 1, static_cast<std::size_t>(last - first) + 1);
}

std::string TrimmedRight(std::string_view text) {
    return std::string(text.substr(0, text.find_last_not_of(' ') + 1));
}

/// Where the word of a kind, not of none, begins; 0 where it is not there.
int KindPosition(std::string_view line, Kind kind) {
    return InStr(line, KindWord(kind), KindColumn);
}

/// The text behind one mark up to another, or to the end where the other does not follow.
std::string Between(std::string_view line, char from, char to) {
    const std::size_t start = line.find(from);
    if (start == std::string_view::npos) {
        return {};
    }
    const std::string_view behind = line.substr(start + 1);
    return std::string(behind.substr(0, behind.find(to)));
}

std::string Print(int number, const std::array<std::string, 4>& values, Kind kind, std::string_view tail) {
    return PrintFields({kind, Str(number), values, std::string(tail)});
}

std::array<std::string, 4> Texts(const Segment& line) {
    return {Str(line.Start.X), Str(line.Start.Y), Str(line.End.X), Str(line.End.Y)};
}

/// The two words of a computed kind; what follows starts in a later zone of the line.
std::string ComputedWords(Kind kind) {
    return std::string(KindWord(kind)) + " " + std::string(Tangent);
}

}  // namespace

std::string_view KindWord(Kind kind) {
    switch (kind) {
        case Kind::Circle:
            return "Circle";
        case Kind::Line:
            return "Line";
        case Kind::Point:
            return "Point";
        case Kind::None:
            break;
    }
    return {};
}

double ValueOf(std::string_view text) {
    double value = 0;
    Guarded([&] { value = Val(text); });
    return value;
}

int IntegerOf(std::string_view text) {
    int value = 0;
    Guarded([&] { value = CInt(Val(text)); });
    return value;
}

Kind KindOf(std::string_view line) {
    const auto* const found =
        std::find_if(KindOrder.begin(), KindOrder.end(), [&](Kind kind) { return KindPosition(line, kind) > 0; });
    return found == KindOrder.end() ? Kind::None : *found;
}

Kind ListedKindOf(std::string_view line) {
    Kind listed = Kind::None;
    for (const Kind kind : KindOrder) {
        if (InStr(line, KindWord(kind)) > 0) {
            listed = kind;
        }
    }
    return listed;
}

bool IsComputed(std::string_view line) {
    return InStr(line, Tangent, KindColumn) > 0;
}

double NumberOf(std::string_view line, int characters) {
    return ValueOf(Columns(line, 1, characters));
}

Record ReadRecord(std::string_view line) {
    Record record{KindOf(line), NumberOf(line), {}};
    for (std::size_t i = 0; i < static_cast<std::size_t>(ValueCount(record.Shape)); ++i) {
        const int from = ValueColumns[i] - 1;
        record.Values[i] = ValueOf(Columns(line, from, from + SliceWidth - 1));
    }
    return record;
}

Fields ReadFields(std::string_view line) {
    Fields fields;
    fields.Shape = KindOf(line);
    fields.Number = TrimmedRight(Columns(line, 1, NumberWidth));
    if (fields.Shape == Kind::None) {
        return fields;
    }
    const int word = KindPosition(line, fields.Shape);
    const auto count = static_cast<std::size_t>(ValueCount(fields.Shape));
    for (std::size_t i = 0; i < count; ++i) {
        const int end = i + 1 == count ? word : std::min(word, ValueColumns[i + 1]);
        fields.Values[i] = TrimmedRight(Columns(line, ValueColumns[i], end - 1));
    }
    fields.Tail = Columns(line, word, Len(line));
    return fields;
}

std::string PrintFields(const Fields& fields) {
    PrintLine line;
    line.Text(fields.Number);
    for (std::size_t i = 0; i < static_cast<std::size_t>(ValueCount(fields.Shape)); ++i) {
        line.Tab(ValueColumns[i]).Text(fields.Values[i]);
    }
    return line.Comma().Comma().Text(fields.Tail).Str();
}

Partners PartnersOf(std::string_view line) {
    constexpr int BesideComma = 4;
    constexpr int PairWidth = 6;
    constexpr int BehindTangent = 9;
    if (!IsComputed(line)) {
        return {};
    }
    const int comma = InStr(line, ",");
    const auto around = [&](int width) {
        return Partners{IntegerOf(Columns(line, comma - width, comma - 1)),
                        IntegerOf(Columns(line, comma + 1, comma + width))};
    };
    switch (KindOf(line)) {
        case Kind::Circle:
            return comma > 0 ? around(PairWidth) : Partners{};
        case Kind::Line: {
            if (comma > 0) {
                return around(BesideComma);
            }
            const int first = InStr(line, Tangent, KindColumn) + BehindTangent;
            return {IntegerOf(Columns(line, first, first + PairWidth - 1)),
                    IntegerOf(Columns(line, Len(line) - PairWidth + 1, Len(line)))};
        }
        default:
            return {};
    }
}

Tangency TangencyOf(std::string_view line) {
    Tangency tangency;
    tangency.First = InStr(line, "#") > 0;
    tangency.Second = InStr(line, "^") > 0;
    if (tangency.First) {
        tangency.X1 = Between(line, '#', '$');
        tangency.Y1 = Between(line, '$', '^');
    }
    if (tangency.Second) {
        tangency.X2 = Between(line, '^', '&');
        const std::size_t mark = line.find('&');
        tangency.Y2 = mark == std::string_view::npos ? std::string_view() : line.substr(mark + 1);
    }
    return tangency;
}

std::string CircleRecord(int number, double diameter, std::string_view x, std::string_view y) {
    return Print(number, {Str(diameter), std::string(x), std::string(y)}, Kind::Circle, KindWord(Kind::Circle));
}

std::string LineRecord(int number, std::string_view startX, std::string_view startY, std::string_view endX,
                       std::string_view endY) {
    return Print(number, {std::string(startX), std::string(startY), std::string(endX), std::string(endY)}, Kind::Line,
                 KindWord(Kind::Line));
}

std::string PointRecord(int number, std::string_view x, std::string_view y) {
    return Print(number, {std::string(x), std::string(y)}, Kind::Point, KindWord(Kind::Point));
}

std::string ExtendedLineRecord(int number, const Segment& line) {
    return Print(number, Texts(line), Kind::Line, KindWord(Kind::Line));
}

std::string LineTangentRecord(int number, const Segment& line, std::string_view first, std::string_view second) {
    PrintLine record;
    record.Text(Print(number, Texts(line), Kind::Line, ComputedWords(Kind::Line)));
    return record.Comma().Text(first).Comma().Text(second).Str();
}

std::string CircleTangentRecord(int number, double diameter, Position centre, std::string_view pair, Position onFirst,
                                Position onSecond) {
    PrintLine record;
    record.Text(
        Print(number, {Str(diameter), Str(centre.X), Str(centre.Y)}, Kind::Circle, ComputedWords(Kind::Circle)));
    record.Comma().Text(pair).Comma().Comma();
    record.Text("#").Text(Str(onFirst.X)).Text("$").Text(Str(onFirst.Y));
    return record.Text("^").Text(Str(onSecond.X)).Text("&").Text(Str(onSecond.Y)).Str();
}

std::string ConvertedRecord(std::string_view line, double factor) {
    const Record record = ReadRecord(line);
    if (record.Shape == Kind::None) {
        return std::string(line);
    }
    Fields fields = ReadFields(line);
    fields.Number = Str(record.Number);
    for (std::size_t i = 0; i < static_cast<std::size_t>(ValueCount(record.Shape)); ++i) {
        fields.Values[i] = Str((Checked(record.Values[i]) * factor).Value());
    }
    return PrintFields(fields);
}

std::string RepairedRecord(std::string_view line, bool firstThere, bool secondThere) {
    const Kind kind = KindOf(line);
    if ((firstThere && secondThere) || kind == Kind::None || kind == Kind::Point || !IsComputed(line)) {
        return std::string(line);
    }
    PrintLine repaired;
    repaired.Text(Columns(line, 1, KindPosition(line, kind) + Len(KindWord(kind)) - 1));
    if (!firstThere && !secondThere) {
        return repaired.Str();
    }
    const Partners partners = PartnersOf(line);
    repaired.Text(" ").Text(Tangent).Comma();
    if (firstThere) {
        repaired.Number(partners.First).Text(" ,");
    } else {
        repaired.Text(" ,").Number(partners.Second);
    }
    if (kind == Kind::Circle) {
        const Tangency points = TangencyOf(line);
        repaired.Comma().Comma();
        if (firstThere) {
            repaired.Text("#").Text(points.X1).Text("$").Text(points.Y1);
        } else {
            repaired.Text("^").Text(points.X2).Text("&").Text(points.Y2);
        }
    }
    return repaired.Str();
}

}  // namespace brindlex::geometry
