// The records of the live drawing: one line of text an entity, fields found by column, columns counted from 1.
// Units: those of the drawing; coordinates are drawing coordinates (origin in the middle of the picture).
// Includes no control, form or runtime.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace brindlex::geometry {

enum class Kind { None, Circle, Line, Point };

/// "Circle", "Line", "Point"; empty for None.
[[nodiscard]] std::string_view KindWord(Kind kind);

struct Position {
    double X = 0;
    double Y = 0;
};

struct Segment {
    Position Start;
    Position End;
};

/// Kind words are looked for from this column on.
inline constexpr int KindColumn = 14;

// Reading. Any line at all is read without a fault: what is no number, or beyond the range of one, reads as 0.

/// Val of a text; 0 where it is beyond the range of a double.
[[nodiscard]] double ValueOf(std::string_view text);
/// The same as a 16-bit integer, ties to even; 0 where it is beyond that range.
[[nodiscard]] int IntegerOf(std::string_view text);

/// The kind by the kind word at or behind column 14, searched in the order circle, line, point.
[[nodiscard]] Kind KindOf(std::string_view line);
/// The kind by the whole line, a later word of circle, line, point replacing an earlier one (the lists of entities).
[[nodiscard]] Kind ListedKindOf(std::string_view line);
/// Whether "Tangent" stands at or behind column 14.
[[nodiscard]] bool IsComputed(std::string_view line);
/// Val of the first `characters` of a line. Most readers take 3, so that 100 reads as 10: intended.
[[nodiscard]] double NumberOf(std::string_view line, int characters = 3);

/// A record as most readers see it.
struct Record {
    Kind Shape = Kind::None;  ///< None for a line that is no record
    double Number = 0;        ///< Val of the first 3 characters
    /// Circle: diameter, X, Y. Line: start X, start Y, end X, end Y. Point: X, Y.
    std::array<double, 4> Values{};

    [[nodiscard]] double Diameter() const { return Values[0]; }
    [[nodiscard]] Position Centre() const { return {Values[1], Values[2]}; }
    [[nodiscard]] Segment Ends() const { return {{Values[0], Values[1]}, {Values[2], Values[3]}}; }
    [[nodiscard]] Position Place() const { return {Values[0], Values[1]}; }
};
[[nodiscard]] Record ReadRecord(std::string_view line);

/// A record as texts, byte for byte: PrintFields(ReadFields(record)) is the record, for every record printed here.
struct Fields {
    Kind Shape = Kind::None;
    std::string Number;
    std::array<std::string, 4> Values;  ///< as in Record; empty where the kind has no such value
    std::string Tail;                   ///< from the kind word to the end of the line
};
[[nodiscard]] Fields ReadFields(std::string_view line);
/// The number in column 1, the values in columns 15, 43, 71, 99, the tail two zones on. Values have at most 27
/// characters.
[[nodiscard]] std::string PrintFields(const Fields& fields);

/// The numbers of the entities that a computed record hangs on; 0 for a side that is blank.
struct Partners {
    int First = 0;
    int Second = 0;
};
/// Of a computed line or circle; both 0 for anything else.
[[nodiscard]] Partners PartnersOf(std::string_view line);

/// The texts of a computed circle's points of tangency, as they stand between the marks.
struct Tangency {
    bool First = false;   ///< "#" is there: X1, Y1 on the first line of the pair
    bool Second = false;  ///< "^" is there: X2, Y2 on the second
    std::string X1, Y1, X2, Y2;
};
[[nodiscard]] Tangency TangencyOf(std::string_view line);

// Printing. Numbers go through Str, texts stand as they are; texts have at most 27 characters.

[[nodiscard]] std::string CircleRecord(int number, double diameter, std::string_view x, std::string_view y);
[[nodiscard]] std::string LineRecord(int number, std::string_view startX, std::string_view startY,
                                     std::string_view endX, std::string_view endY);
[[nodiscard]] std::string PointRecord(int number, std::string_view x, std::string_view y);
/// A line that an extension has moved: numbers, and the bare kind word.
[[nodiscard]] std::string ExtendedLineRecord(int number, const Segment& line);
/// `first` and `second` are the partners' number texts, as typed or picked.
[[nodiscard]] std::string LineTangentRecord(int number, const Segment& line, std::string_view first,
                                            std::string_view second);
/// `pair` is the chosen item of the list of crossing lines.
[[nodiscard]] std::string CircleTangentRecord(int number, double diameter, Position centre, std::string_view pair,
                                              Position onFirst, Position onSecond);

/// A record with all its values multiplied and in Str form; the tail stays as it stands, in the old unit. A line that
/// is no record stays as it is. Throws Overflow where a product is beyond the range of a double.
[[nodiscard]] std::string ConvertedRecord(std::string_view line, double factor);

/// The repaired record of a computed line or circle, by which of its partners are still there: with both the line as
/// it stands, with one its lone number beside a comma, with none no computed record any more.
[[nodiscard]] std::string RepairedRecord(std::string_view line, bool firstThere, bool secondThere);

}  // namespace brindlex::geometry
