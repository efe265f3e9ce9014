// Documents of Sine Plates: saved, opened, cut off, spoilt.
#include "form12fixture.h"
#include "sineplate/form12.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

namespace brindlex::sineplate {
namespace {

TEST_F(SinePlates, SavesItsFiveLines) {
    F().Combo1.Text(" 10\" ");
    Compound("45", "60");
    run.Files.emplace_back("plate.sin");
    F().SaveFileAs.FireClick();
    EXPECT_EQ(folder.Get("plate.sin"), " 10\" \r\nFalse\r\nTrue\r\n45\r\n60\r\n");
    ASSERT_EQ(run.Dialogs.size(), 1U);
    EXPECT_EQ(run.Dialogs[0].Kind, DialogKind::Save);
    EXPECT_EQ(run.Dialogs[0].Flags, 14);
    EXPECT_EQ(run.Dialogs[0].Filter, "Sine Files(*.sin)|*.sin");
    F().Option1.Value(true);
    Regular("30");
    run.Files.emplace_back("plate.sin");
    F().SaveFileAs.FireClick();
    EXPECT_EQ(folder.Get("plate.sin"), " 10\" \r\nTrue\r\nFalse\r\n30\r\n\r\n");
}

TEST_F(SinePlates, SavesNothingThatIsNotCompleted) {
    F().Text1.Text("30");
    F().SaveFileAs.FireClick();
    EXPECT_EQ(Boxes(1), Texts{"The Form Has Not Been Completed!"});
    F().Command1.Value(true);
    F().Combo1.Text("");
    F().SaveFileAs.FireClick();
    EXPECT_EQ(Boxes(1), Texts{"The Form Has Not Been Completed!"});
    EXPECT_TRUE(run.Dialogs.empty());
}

TEST_F(SinePlates, SavesTheFirstLineOfWhatWasPasted) {
    F().Combo1.Text("5\"\r\nand more");
    Regular("30\r\n40");
    run.Files.emplace_back("plate.sin");
    F().SaveFileAs.FireClick();
    EXPECT_EQ(folder.Get("plate.sin"), "5\"\r\nTrue\r\nFalse\r\n30\r\n\r\n");
}

TEST_F(SinePlates, OpensACompoundDocument) {
    Regular("30");
    Open(" 10\" \r\nFalse\r\nTrue\r\n45\r\n60\r\n");
    EXPECT_EQ(run.Dialogs.back().Flags, 12);
    EXPECT_EQ(F().Combo1.ListIndex(), 9);
    EXPECT_TRUE(F().Option2.Value());
    EXPECT_EQ(F().Text1.Text(), "45");
    EXPECT_EQ(F().Text2.Text(), "60");
    EXPECT_EQ(F().Text3.Text(), "4.4721");
    EXPECT_EQ(F().Text4.Text(), "8.6603");
    EXPECT_EQ(F().Caption(), "Brindlex 3.0.2- any.sin");
    F().Command1.Value(true);
    EXPECT_EQ(F().Caption(), "Brindlex 3.0.2- Solutions To Sines");
}

TEST_F(SinePlates, AWordOfMoreDigitsThanANumberHasIsPassedOver) {
    Open("5\"\r\n" + std::string(400, '9') + "\r\nTrue\r\n45\r\n60\r\n");
    EXPECT_FALSE(program.Ended());
    EXPECT_TRUE(F().Option2.Value());
    EXPECT_EQ(F().Text3.Text(), "2.2361");  // 5 / sqrt(5)
    EXPECT_EQ(F().Text4.Text(), "4.3301");  // 5 sin 60
}

TEST_F(SinePlates, OpensARegularDocumentWithItsEmptyLastLine) {
    Compound("45", "60");
    Open("5\"\r\nTrue\r\nFalse\r\n30\r\n\r\n");
    EXPECT_TRUE(F().Option1.Value());
    EXPECT_EQ(F().Text1.Text(), "30");
    EXPECT_EQ(F().Text2.Text(), "");
    EXPECT_EQ(F().Text3.Text(), "2.5000");
    EXPECT_EQ(Boxes(0), Texts{});
}

TEST_F(SinePlates, DocumentsCutOffDoNotMixWithOldEntries) {
    const Texts lines{" 10\" ", "False", "True", "45", "60"};
    for (std::size_t count = 1; count < lines.size(); ++count) {
        Compound("12", "34");
        F().Combo1.Text("7");
        Texts rest(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(count));
        std::string content;
        for (const std::string& line : rest) {
            content += line + "\r\n";
        }
        Open(content);
        EXPECT_EQ(Boxes(0), Texts{Incomplete}) << count;
        EXPECT_EQ(F().Combo1.Text(), " 10\" ") << count;
        EXPECT_EQ(F().Text1.Text(), count == 4 ? "45" : "") << count;
        EXPECT_EQ(F().Text2.Text(), "") << count;
        EXPECT_TRUE(F().Option2.Value()) << count;
    }
}

TEST_F(SinePlates, EmptyDocumentChangesNothing) {
    Regular("30");
    Open("");
    EXPECT_EQ(F().Text1.Text(), "30");
    EXPECT_EQ(F().Text3.Text(), "2.5000");
    EXPECT_EQ(F().Caption(), "Brindlex 3.0.2- any.sin");
}

TEST_F(SinePlates, FurtherLinesAreNotRead) {
    Open("5\"\r\nTrue\r\nFalse\r\n30\r\n20\r\n99\r\nTrue\r\n");
    EXPECT_EQ(F().Text1.Text(), "30");
    EXPECT_EQ(F().Text2.Text(), "20");
    EXPECT_EQ(F().Text3.Text(), "2.5000");
}

TEST_F(SinePlates, WordsThatAreNoBooleanLeaveTheOption) {
    Open("5\"\r\nperhaps\r\ntrue\r\n45\r\n60\r\n");
    EXPECT_TRUE(F().Option2.Value());
    EXPECT_EQ(F().Text3.Text(), "2.2361");  // half of that with 10"
    Open("5\"\r\nperhaps\r\nperhaps\r\n30\r\n20\r\n");
    EXPECT_TRUE(F().Option2.Value());
    EXPECT_EQ(F().Text1.Text(), "30");
    Open("5\"\r\nFalse\r\nFalse\r\n30\r\n");
    EXPECT_TRUE(F().Option1.Value());
    EXPECT_EQ(F().Text3.Text(), "2.5000");
}

TEST_F(SinePlates, AnotherKindOfFileTakesNothing) {
    Regular("30");
    for (const char* const content : {"Side a and side b\r\n5\r\n3\r\n", "words", "\xFF\xFE\x01\r\n\r\n"}) {
        Open(content);
        EXPECT_EQ(Boxes(1), Texts{"This Is Not A Sine File!"}) << content;
        EXPECT_EQ(F().Text1.Text(), "30");
        EXPECT_EQ(F().Text3.Text(), "2.5000");
        EXPECT_EQ(F().Combo1.Text(), "5\"");
    }
    F().Command1.Value(true);
    EXPECT_EQ(F().Caption(), "Brindlex 3.0.2- Solutions To Sines");
}

TEST_F(SinePlates, CancelAndAMissingFileEndQuietly) {
    Regular("30");
    F().OPenFile.FireClick();
    run.Files.emplace_back("missing.sin");
    F().OPenFile.FireClick();
    EXPECT_EQ(Boxes(0), Texts{});
    EXPECT_EQ(F().Text3.Text(), "2.5000");
    F().Command1.Value(true);
    EXPECT_EQ(F().Caption(), "Brindlex 3.0.2- Solutions To Sines");
}

TEST_F(SinePlates, FailedSaveSaysSo) {
    Regular("30");
    run.Files.emplace_back("no/such/folder.sin");
    F().SaveFileAs.FireClick();
    ASSERT_EQ(run.Boxes.size(), 1U);
    EXPECT_EQ(run.Boxes[0].Text, "The File Could Not Be Saved:\r\nno/such/folder.sin\r\nNo such file or directory");
    EXPECT_EQ(F().Text1.Text(), "30");
}

}  // namespace
}  // namespace brindlex::sineplate
