// The record shapes, byte for byte, and how any line reads.
#include "geometry/record.h"

#include "frame/fault.h"
#include "unit/geometryrecords.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace brindlex::geometry {
namespace {

const std::string Pair = PairText(" 4 ", " 5 ", " 1", " 2");

TEST(GeometryRecord, PrintsTypedShapes) {
    EXPECT_EQ(CircleRecord(1, 2, "1.50", "-2"), CircleLine(1, " 2", "1.50", "-2"));
    EXPECT_EQ(LineRecord(12, "0", ".5", "1", "-.25"), LineLine(12, "0", ".5", "1", "-.25"));
    EXPECT_EQ(PointRecord(3, "007", "1.0"), PointLine(3, "007", "1.0"));
    EXPECT_EQ(CircleRecord(1, .003, "1", "2"), CircleLine(1, " .003", "1", "2"));
}

TEST(GeometryRecord, PrintsComputedShapes) {
    EXPECT_EQ(ExtendedLineRecord(7, {{.5, -1.25}, {0, 2}}), LineLine(7, " .5", "-1.25", " 0", " 2"));
    EXPECT_EQ(LineTangentRecord(9, {{1, 2}, {3, 4}}, "1", " 2"), At({{1, " 9"},
                                                                     {15, " 1"},
                                                                     {43, " 2"},
                                                                     {71, " 3"},
                                                                     {99, " 4"},
                                                                     {127, "Line Tangent"},
                                                                     {141, "1"},
                                                                     {155, " 2"}}));
    // The fourteen letters fill their zone, so that the pair stands one zone further: 127 and not 113. The pair is 30
    // characters long and ends in column 156; two zones on is 183.
    EXPECT_EQ(CircleTangentRecord(6, 1.5, {-1, .000015}, Pair, {1, 2}, {-3, .25}), At({{1, " 6"},
                                                                                       {15, " 1.5"},
                                                                                       {43, "-1"},
                                                                                       {71, " 1.5E-05"},
                                                                                       {99, "Circle Tangent"},
                                                                                       {127, Pair},
                                                                                       {183, "# 1$ 2^-3& .25"}}));
}

struct WordColumn {
    std::size_t Length;
    std::size_t Column;
};

TEST(GeometryRecord, LongLastValuesPushTheKindWord) {
    // Behind column 71 the zones begin at 85, 99, 113, 127; a value that ends in column 84 skips the zone at 85.
    for (const WordColumn& c : {WordColumn{1, 99}, {13, 99}, {14, 113}, {15, 113}, {27, 113}}) {
        const std::string y(c.Length, '1');
        EXPECT_EQ(CircleRecord(1, 2, "0", y), At({{1, " 1"}, {15, " 2"}, {43, "0"}, {71, y}, {c.Column, "Circle"}}))
            << c.Length;
    }
    // -.123456789012345 has 17 characters, columns 99 to 115: the word moves from 127 to 141, the tail with it.
    EXPECT_EQ(LineTangentRecord(2, {{0, 0}, {0, -.123456789012345}}, "10", "11"), At({{1, " 2"},
                                                                                      {15, " 0"},
                                                                                      {43, " 0"},
                                                                                      {71, " 0"},
                                                                                      {99, "-.123456789012345"},
                                                                                      {141, "Line Tangent"},
                                                                                      {155, "10"},
                                                                                      {169, "11"}}));
}

TEST(GeometryRecord, ReadsKinds) {
    EXPECT_EQ(KindOf(CircleLine(1, "1", "2", "3")), Kind::Circle);
    EXPECT_EQ(KindOf(LineLine(1, "1", "2", "3", "4")), Kind::Line);
    EXPECT_EQ(KindOf(PointLine(1, "1", "2")), Kind::Point);
    EXPECT_EQ(KindOf(At({{14, "Line"}})), Kind::Line);
    EXPECT_EQ(KindOf(At({{13, "Line"}})), Kind::None);  // before the column from which it is looked for
    EXPECT_EQ(KindOf(At({{20, "Point Line Circle"}})), Kind::Circle);
    EXPECT_EQ(ListedKindOf(At({{20, "Point Line Circle"}})), Kind::Point);
    EXPECT_EQ(ListedKindOf("Line"), Kind::Line);
    EXPECT_EQ(KindOf(""), Kind::None);
    EXPECT_EQ(KindOf("circle                 line"), Kind::None);
}

TEST(GeometryRecord, ReadsNumbersAndValues) {
    const Record line = ReadRecord(LineLine(12, "1.50", "-2", ".25", " 3E-05"));
    EXPECT_EQ(line.Number, 12);
    EXPECT_EQ(line.Ends().Start.X, 1.5);
    EXPECT_EQ(line.Ends().Start.Y, -2);
    EXPECT_EQ(line.Ends().End.X, .25);
    EXPECT_EQ(line.Ends().End.Y, 3e-5);
    const Record circle = ReadRecord(CircleLine(4, " 2", "-1", "7"));
    EXPECT_EQ(circle.Diameter(), 2);
    EXPECT_EQ(circle.Centre().X, -1);
    EXPECT_EQ(circle.Centre().Y, 7);
    EXPECT_EQ(circle.Values[3], 0);
    EXPECT_EQ(ReadRecord(PointLine(5, "8", "9")).Place().Y, 9);
    EXPECT_EQ(NumberOf(" 100"), 10);  // three characters
    EXPECT_EQ(NumberOf(" 100", 4), 100);
    // A slice begins one column before its field and has 27 characters, so that it ends with the field's 26th.
    std::string long27(25, '0');
    long27.append("12");
    EXPECT_EQ(ReadRecord(PointLine(1, long27, "3")).Place().X, 1);
    EXPECT_EQ(ReadRecord(At({{14, "9"}, {15, "8"}, {43, "1"}, {71, "Point"}})).Place().X, 98);
}

TEST(GeometryRecord, ReadsWhatIsBeyondRangeAsZero) {
    EXPECT_EQ(ReadRecord(PointLine(1, "9E999", "1")).Place().X, 0);
    EXPECT_EQ(ReadRecord(PointLine(1, std::string(300, '9'), "1")).Shape, Kind::Point);
    EXPECT_EQ(NumberOf("9E9"), 9e9);
    EXPECT_EQ(IntegerOf("9E9"), 0);
    EXPECT_EQ(IntegerOf(" 12"), 12);
    EXPECT_EQ(IntegerOf("2.5"), 2);
    EXPECT_EQ(ValueOf("1E400"), 0);
}

struct PartnersCase {
    std::string Line;
    int First;
    int Second;
};

TEST(GeometryRecord, ReadsPartners) {
    const auto tangent = [](const std::string& behind) {
        return At({{1, " 9"}, {99, " 4"}, {127, "Line Tangent"}, {141, behind}});
    };
    const auto circle = [](const std::string& behind) {
        return At({{1, " 9"}, {71, " 4"}, {99, "Circle Tangent"}, {127, behind}});
    };
    const PartnersCase cases[] = {
        {tangent("1             2"), 1, 2},
        {tangent(" 12            13"), 12, 13},
        {tangent("123456        123456"), 0, 0},  // no 16-bit numbers
        {tangent(" , 5 "), 0, 5},
        {tangent(" 4  ,"), 4, 0},
        {tangent(" 12  ,"), 12, 0},
        {tangent(" 100  ,"), 0, 0},  // the four characters before the comma are "00  "
        {circle(Pair), 4, 5},
        {circle(PairText(" 12", " 13", " 0", " 0")), 12, 13},
        {circle(" , 5 "), 0, 5},
        {circle(" 4  ,"), 4, 0},
        {circle("4 5"), 0, 0},
        {LineLine(1, "1", "2", "3", "4"), 0, 0},
        {At({{1, ",  Tangent"}}), 0, 0},
        {"", 0, 0},
    };
    for (const PartnersCase& c : cases) {
        EXPECT_EQ(PartnersOf(c.Line).First, c.First) << c.Line;
        EXPECT_EQ(PartnersOf(c.Line).Second, c.Second) << c.Line;
    }
}

// Slices to the column.

TEST(GeometryRecord, ALineOfNoKindHasItsNumberAlone) {
    const Record record = ReadRecord(At({{1, " 5"}, {15, "7"}}));
    EXPECT_EQ(record.Number, 5);
    EXPECT_EQ(record.Values, (std::array<double, 4>{}));
    EXPECT_EQ(ReadFields("a note of mine, and more").Number, "a note of mine");
    EXPECT_EQ(NumberOf("7"), 7);
    EXPECT_EQ(NumberOf("78", 1), 7);
}

TEST(GeometryRecord, FieldsReachUpToTheNextOne) {
    const std::string x(28, '1');
    const Fields fields = ReadFields(At({{1, "12345678901234"}, {15, x}, {43, "2"}, {71, "Point"}}));
    EXPECT_EQ(fields.Number, "12345678901234");
    EXPECT_EQ(fields.Values[0], x);
    EXPECT_EQ(fields.Values[1], "2");
}

TEST(GeometryRecord, PartnersAreOfSixColumns) {
    const auto line = [](const std::string& behind) {
        return At({{1, " 9"}, {99, " 4"}, {127, "Line Tangent"}, {141, behind}});
    };
    const auto circle = [](const std::string& words, const std::string& behind) {
        return At({{1, " 9"}, {71, " 4"}, {99, words}, {127, behind}});
    };
    const PartnersCase cases[] = {
        {circle("Circle Tangent", "12,34"), 12, 34},     {circle("Circle Tangent", "9  1234,"), 1234, 0},
        {circle("Circle Tangent", ",  12349"), 0, 1234}, {circle("Circle", " 4  ,  5 "), 0, 0},
        {At({{1, ",5"}, {127, "Line Tangent"}}), 0, 5},  {line("  12345"), 1234, 12345},
        {line("              9  1234"), 0, 1234},
    };
    for (const PartnersCase& c : cases) {
        EXPECT_EQ(PartnersOf(c.Line).First, c.First) << c.Line;
        EXPECT_EQ(PartnersOf(c.Line).Second, c.Second) << c.Line;
    }
}

TEST(GeometryRecord, ReadsPointsOfTangency) {
    const Tangency both = TangencyOf("x # 1$-2^ .5& 4");
    EXPECT_TRUE(both.First && both.Second);
    EXPECT_EQ(both.X1 + "|" + both.Y1 + "|" + both.X2 + "|" + both.Y2, " 1|-2| .5| 4");
    const Tangency first = TangencyOf("# 1$-2");
    EXPECT_TRUE(first.First && !first.Second);
    EXPECT_EQ(first.X1 + "|" + first.Y1, " 1|-2");
    const Tangency second = TangencyOf("^ .5& 4");
    EXPECT_TRUE(!second.First && second.Second);
    EXPECT_EQ(second.X2 + "|" + second.Y2, " .5| 4");
    const Tangency none = TangencyOf("no marks");
    EXPECT_TRUE(!none.First && !none.Second && none.X1.empty() && none.Y2.empty());
}

TEST(GeometryRecord, RepairsLines) {
    const std::string head = At({{1, " 9"}, {15, " 1"}, {43, " 2"}, {71, " 3"}, {99, " 4"}, {127, "Line"}});
    const std::string line = LineTangentRecord(9, {{1, 2}, {3, 4}}, "7", " 8");
    EXPECT_EQ(RepairedRecord(line, true, true), line);
    EXPECT_EQ(RepairedRecord(line, false, true), At({{1, head}, {131, " Tangent"}, {141, " , 8 "}}));
    EXPECT_EQ(RepairedRecord(line, true, false), At({{1, head}, {131, " Tangent"}, {141, " 7  ,"}}));
    EXPECT_EQ(RepairedRecord(line, false, false), head);
    // What was repaired reads as a lone partner, and once that is gone, the line is no computed one.
    const std::string lone = RepairedRecord(line, false, true);
    EXPECT_EQ(PartnersOf(lone).Second, 8);
    EXPECT_EQ(RepairedRecord(lone, false, true), lone);
    EXPECT_EQ(RepairedRecord(lone, false, false), head);
    EXPECT_EQ(RepairedRecord(head, false, false), head);
    EXPECT_EQ(RepairedRecord("a note on a Tangent", false, false), "a note on a Tangent");
}

TEST(GeometryRecord, RepairsCircles) {
    const std::string head = At({{1, " 6"}, {15, " 1.5"}, {43, "-1"}, {71, " 2"}, {99, "Circle"}});
    const std::string circle = CircleTangentRecord(6, 1.5, {-1, 2}, Pair, {1, 2}, {-3, .25});
    EXPECT_EQ(RepairedRecord(circle, true, true), circle);
    // " , 5 " ends in column 131, two zones on is 155; so does " 4  ,".
    EXPECT_EQ(RepairedRecord(circle, false, true),
              At({{1, head}, {105, " Tangent"}, {127, " , 5 "}, {155, "^-3& .25"}}));
    EXPECT_EQ(RepairedRecord(circle, true, false), At({{1, head}, {105, " Tangent"}, {127, " 4  ,"}, {155, "# 1$ 2"}}));
    EXPECT_EQ(RepairedRecord(circle, false, false), head);
    EXPECT_EQ(RepairedRecord(RepairedRecord(circle, true, false), false, false), head);
}

TEST(GeometryRecord, Converts) {
    EXPECT_EQ(ConvertedRecord(CircleLine(1, " 2", "1.50", "-2"), 25.4), CircleLine(1, " 50.8", " 38.1", "-50.8"));
    EXPECT_EQ(ConvertedRecord(PointLine(2, "1", "0"), 1 / 25.4), PointLine(2, " .0393700787401575", " 0"));
    EXPECT_EQ(ConvertedRecord(PointLine(2, "0", "1"), 1 / 25.4),
              At({{1, " 2"}, {15, " 0"}, {43, " .0393700787401575"}, {85, "Point"}}));
    // The tail stays as it stands, in the old unit.
    EXPECT_EQ(ConvertedRecord(CircleTangentRecord(6, 1, {1, 2}, Pair, {1, 2}, {3, 4}), 25.4),
              CircleTangentRecord(6, 25.4, {25.4, 50.8}, Pair, {1, 2}, {3, 4}));
    EXPECT_EQ(ConvertedRecord("a note", 25.4), "a note");
    EXPECT_EQ(ConvertedRecord(PointLine(100, "1", "1"), 1), PointLine(10, " 1", " 1"));  // three characters: intended
    EXPECT_THROW(static_cast<void>(ConvertedRecord(PointLine(1, "1E308", "1"), 25.4)), Fault);
}

/// A number as a person could type it: at most 26 characters, so that the slices hold it whole.
std::string Typed(std::mt19937& random) {
    const auto upTo = [&](unsigned most) { return random() % (most + 1); };
    std::string text = upTo(1) == 0 ? "" : "-";
    for (auto i = upTo(12); i > 0; --i) {
        text += static_cast<char>('0' + upTo(9));
    }
    if (upTo(1) == 0) {
        text += '.';
        for (auto i = upTo(11); i > 0; --i) {
            text += static_cast<char>('0' + upTo(9));
        }
    }
    return text + static_cast<char>('0' + upTo(9));
}

double Computed(std::mt19937& random) {
    return std::uniform_real_distribution<double>(-1, 1)(random) * std::pow(10, static_cast<int>(random() % 30) - 15);
}

TEST(GeometryRecord, EveryPrintedRecordIsReadBack) {
    std::mt19937 random(7);
    for (int i = 0; i < 20000; ++i) {
        const int number = 1 + static_cast<int>(random() % 99);
        const std::string a = Typed(random);
        const std::string b = Typed(random);
        const std::string c = Typed(random);
        const std::string d = Typed(random);
        const std::string line = LineRecord(number, a, b, c, d);
        const Record read = ReadRecord(line);
        ASSERT_EQ(read.Shape, Kind::Line) << line;
        ASSERT_EQ(read.Number, number) << line;
        ASSERT_EQ(read.Values, (std::array{ValueOf(a), ValueOf(b), ValueOf(c), ValueOf(d)})) << line;
        const Record circle = ReadRecord(CircleRecord(number, 1.25, a, b));
        ASSERT_EQ(circle.Values, (std::array{1.25, ValueOf(a), ValueOf(b), 0.0})) << a << b;
        const std::string point = PointRecord(number, c, d);
        ASSERT_EQ(ReadRecord(point).Values, (std::array{ValueOf(c), ValueOf(d), 0.0, 0.0})) << point;
        for (const std::string& record : {line, point, CircleRecord(number, 1.25, a, b)}) {
            ASSERT_EQ(PrintFields(ReadFields(record)), record);
        }
    }
}

TEST(GeometryRecord, EveryComputedRecordIsPrintedAgainAlike) {
    std::mt19937 random(8);
    for (int i = 0; i < 20000; ++i) {
        const int number = 1 + static_cast<int>(random() % 32000);
        const Segment ends{{Computed(random), Computed(random)}, {Computed(random), Computed(random)}};
        const std::string line = LineTangentRecord(number, ends, "1", " 22");
        ASSERT_EQ(PrintFields(ReadFields(line)), line);
        ASSERT_EQ(PartnersOf(line).First, 1) << line;
        ASSERT_EQ(PartnersOf(line).Second, 22) << line;
        ASSERT_NEAR(ReadRecord(line).Values[3], ends.End.Y, std::fabs(ends.End.Y) * 1e-14) << line;
        const std::string circle =
            CircleTangentRecord(number, Computed(random), ends.Start, Pair, ends.Start, ends.End);
        ASSERT_EQ(PrintFields(ReadFields(circle)), circle);
        ASSERT_EQ(PartnersOf(circle).First, 4) << circle;
        ASSERT_EQ(PartnersOf(circle).Second, 5) << circle;
        ASSERT_EQ(ValueOf(TangencyOf(circle).X1), ReadRecord(line).Values[0]) << circle;
        ASSERT_EQ(ValueOf(TangencyOf(circle).Y2), ReadRecord(line).Values[3]) << circle;
        for (const std::string& record : {line, circle}) {
            const std::string lone = RepairedRecord(record, i % 2 == 0, i % 2 == 1);
            ASSERT_EQ(PrintFields(ReadFields(lone)), lone);
        }
    }
}

TEST(GeometryRecord, AnyLineAtAllIsRead) {
    std::mt19937 random(9);
    const std::vector<std::string> words{"Circle", "Line", "Point", "Tangent", "#",  "$", "^", "&", ",",
                                         "/",      "\\",   "E9",    " ",       "  ", "-", ".", "9", "1E308"};
    for (int i = 0; i < 20000; ++i) {
        std::string line;
        for (auto j = random() % 30; j > 0; --j) {
            line +=
                random() % 4 == 0 ? std::string(1, static_cast<char>(random() % 256)) : words[random() % words.size()];
            line.append(random() % 14, ' ');
        }
        const Record record = ReadRecord(line);
        for (const double value : record.Values) {
            ASSERT_TRUE(std::isfinite(value)) << line;
        }
        ASSERT_EQ(record.Shape == Kind::None, RepairedRecord(line, false, false) == line && KindOf(line) == Kind::None);
        static_cast<void>(PartnersOf(line));
        static_cast<void>(TangencyOf(line));
        static_cast<void>(PrintFields(ReadFields(line)));
        ASSERT_LE(RepairedRecord(line, false, false).size(), line.size());
    }
}

}  // namespace
}  // namespace brindlex::geometry
