// Documents of Polygons: saved, opened, cut off, spoilt.
#include "form16fixture.h"
#include "polygon/form16.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

namespace brindlex::polygon {
namespace {

TEST_F(Polygons, SavesItsSevenLines) {
    F().Combo1.Text(" 7");
    Solve("1.5");
    run.Files.emplace_back("seven.pgf");
    F().SaveFileAs.FireClick();
    EXPECT_EQ(folder.Get("seven.pgf"), " 7\r\nTrue\r\nFalse\r\nFalse\r\nFalse\r\nTrue\r\n1.5\r\n");
    EXPECT_EQ(run.Dialogs[0].Flags, 14);
    EXPECT_EQ(run.Dialogs[0].Filter, "Polygon Files(*.pgf)|*.pgf");
    F().Option3.Value(true);
    F().Option5.Value(true);
    run.Files.emplace_back("seven.pgf");
    F().SaveFileAs.FireClick();
    EXPECT_EQ(folder.Get("seven.pgf"), " 7\r\nFalse\r\nTrue\r\nFalse\r\nTrue\r\nFalse\r\n1.5\r\n");
}

TEST_F(Polygons, OpensADocument) {
    Solve("9");
    Open(" 7\r\nFalse\r\nTrue\r\nFalse\r\nTrue\r\nFalse\r\n1.5\r\n");
    EXPECT_EQ(run.Dialogs.back().Flags, 12);
    EXPECT_TRUE(F().Option5.Value());
    EXPECT_TRUE(F().Option3.Value());
    EXPECT_EQ(F().Text1.Text(), "1.5");
    EXPECT_EQ(F().Text2.Text(), "3.1148");  // 1.5 / tan(180 / 7)
    EXPECT_EQ(F().Caption(), "Brindlex 3.0.2- any.pgf");
    EXPECT_EQ(Boxes(), Texts{});
    F().Command1.Value(true);
    EXPECT_EQ(F().Caption(), Title);
}

TEST_F(Polygons, AWordOfMoreDigitsThanANumberHasIsPassedOver) {
    Open(" 7\r\n" + std::string(400, '9') + "\r\nTrue\r\nFalse\r\nTrue\r\nFalse\r\n1.5\r\n");
    EXPECT_FALSE(program.Ended());
    EXPECT_TRUE(F().Option5.Value());
    EXPECT_EQ(F().Text2.Text(), "3.1148");  // 1.5 / tan(180 / 7)
}

TEST_F(Polygons, OpensOverEntriesOfTheSameSides) {
    Solve("9");
    Open("6\r\nFalse\r\nTrue\r\nTrue\r\nFalse\r\nFalse\r\n1.5\r\n");
    EXPECT_EQ(F().Text2.Text(), "1.5000");
    EXPECT_EQ(F().Caption(), "Brindlex 3.0.2- any.pgf");
}

TEST_F(Polygons, DocumentsCutOffAskForTheDimension) {
    const Texts lines{" 7", "False", "True", "False", "True", "False", "1.5"};
    std::string content;
    for (std::size_t count = 1; count < lines.size(); ++count) {
        content += lines[count - 1] + "\r\n";
        F().Combo1.Text(" 6");
        F().Option4.Value(true);
        Solve("9");
        Open(content);
        EXPECT_EQ(Boxes(), Texts{Incomplete}) << count;
        EXPECT_EQ(F().Combo1.Text(), " 7");
        EXPECT_EQ(F().Text1.Text(), "");
        EXPECT_EQ(F().Option4.Value(), count < 3) << count;
        EXPECT_EQ(F().Option5.Value(), count >= 3) << count;
        EXPECT_TRUE(F().Option2.Value() || F().Option3.Value()) << count;
        EXPECT_EQ(FigureSides(), 7);
    }
}

TEST_F(Polygons, OptionsThatDoNotGoWithTheSidesArePutRight) {
    Open(" 7\r\nTrue\r\nFalse\r\nTrue\r\nFalse\r\nFalse\r\n1\r\n");
    EXPECT_TRUE(F().Option2.Value());
    EXPECT_FALSE(F().Option1.Value());
    // Across 1: 2 * f / (2 * sin H) with f = 2 * tan(H / 2), H = 180 / 7.
    EXPECT_EQ(F().Text2.Text(), "1.0521");
    EXPECT_EQ(F().Caption(), "Brindlex 3.0.2- any.pgf");
    Open(" 8\r\nFalse\r\nFalse\r\nFalse\r\nFalse\r\nTrue\r\n1\r\n");
    EXPECT_TRUE(F().Option1.Value());
    EXPECT_TRUE(F().Option4.Value());
    EXPECT_EQ(F().Text2.Text(), "1.0824");  // 1 / cos 22.5
}

TEST_F(Polygons, WordsThatAreNoBooleanLeaveTheOption) {
    Open(" 8\r\nperhaps\r\nFalse\r\nTrue\r\nno\r\nno\r\n1\r\n9\r\n9\r\n");
    EXPECT_TRUE(F().Option4.Value());
    EXPECT_TRUE(F().Option1.Value());
    EXPECT_EQ(F().Text2.Text(), "1.0824");
    EXPECT_EQ(Boxes(), Texts{});
}

TEST_F(Polygons, DocumentsWithSidesOutOfRange) {
    Open("99\r\nTrue\r\nFalse\r\nTrue\r\nFalse\r\nFalse\r\n1\r\n");
    EXPECT_EQ(Boxes(), Texts{TooMany});
    EXPECT_EQ(F().Combo1.Text(), "6");
    EXPECT_EQ(F().Text2.Text(), "1.1547");
    Open("sides\r\nTrue\r\nFalse\r\nTrue\r\nFalse\r\nFalse\r\n1\r\n");
    EXPECT_EQ(Boxes(), Texts{TooFew});
    EXPECT_EQ(F().Combo1.Text(), "6");
}

TEST_F(Polygons, WordInPlaceOfTheDimensionIsANought) {
    Open("6\r\nTrue\r\nFalse\r\nTrue\r\nFalse\r\nFalse\r\nwords\r\n");
    EXPECT_EQ(F().Text1.Text(), "words");
    EXPECT_EQ(F().Text2.Text(), ".0000");
    EXPECT_EQ(F().Label1.Caption(), "Area= .00000");
}

TEST_F(Polygons, AnotherKindOfFileTakesNothing) {
    Solve("1");
    for (const char* const content : {"Side a and side b\r\n5\r\n3\r\n", "words", "\xFF\xFE\x01\r\n\r\n"}) {
        Open(content);
        EXPECT_EQ(Boxes(), Texts{"This Is Not A Polygon File!"}) << content;
        EXPECT_EQ(F().Text1.Text(), "1");
        EXPECT_EQ(F().Text2.Text(), "1.1547");
    }
    F().Command1.Value(true);
    EXPECT_EQ(F().Caption(), Title);
}

TEST_F(Polygons, CancelAMissingAndAnEmptyFile) {
    Solve("1");
    F().OpenFile.FireClick();
    run.Files.emplace_back("missing.pgf");
    F().OpenFile.FireClick();
    EXPECT_EQ(F().Caption(), Title);
    Open("");
    EXPECT_EQ(Boxes(), Texts{});
    EXPECT_EQ(F().Text2.Text(), "1.1547");
    EXPECT_EQ(F().Caption(), "Brindlex 3.0.2- any.pgf");
}

TEST_F(Polygons, SavesTheFirstLineOfWhatWasPasted) {
    Solve("1\r\n2");
    run.Files.emplace_back("pasted.pgf");
    F().SaveFileAs.FireClick();
    EXPECT_EQ(folder.Get("pasted.pgf"), "6\r\nTrue\r\nFalse\r\nTrue\r\nFalse\r\nFalse\r\n1\r\n");
}

}  // namespace
}  // namespace brindlex::polygon
