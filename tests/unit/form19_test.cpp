// Speeds + Feeds: what no session can show: that nothing is clipped, what happens with stores that can't be used, and
// that no value faults in any handler.
#include "speedsfeeds/form19.h"

#include "fakeruntime.h"
#include "frame/fontwidths.h"
#include "frame/form11.h"
#include "frame/program.h"
#include "speedsfeeds/captions.h"
#include "testprogram.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex::speedsfeeds {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

class SpeedsAndFeeds : public ::testing::Test {
protected:
    SpeedsAndFeeds() {
        program.Register<Form11>("Form11");
        program.Register<Form19>("Form19");
    }

    /// The form, shown for the first time by this, with the store as it stands then.
    Form19& F() {
        auto& form = program.Get<Form19>("Form19");
        if (!program.Owner.Find("Form11")) {
            program.Owner.Start();
            program.Owner.Get("Form11").GoTo("Form19");
        }
        return form;
    }
    void EnterRecord() {
        F().DataOp.FireClick();
        F().Text17.Text("End Mill");
        F().Text18.Text("HSS");
        F().Text19.Text("D2");
        F().Text1.Text("80-120");
        F().Text2.Text(".001-.004");
        F().Text9.Text(".8");
    }
    Names Messages() {
        Names texts;
        for (const MessageBox& box : program.Run.Boxes) {
            texts.push_back(box.Text);
        }
        program.Run.Boxes.clear();
        return texts;
    }

    TestProgram program;
};

const std::string Saved = "I_End Mill!HSS@D2#80-120$.001-.004%.8^\r\n";

TEST_F(SpeedsAndFeeds, NothingIsClipped) {
    // The caption of a frame stands in its edge, some way in.
    constexpr double FrameEdge = 105;
    for (const Control* const control : F().Controls()) {
        const auto* const label = dynamic_cast<const Label*>(control);
        const auto* const frame = dynamic_cast<const Frame*>(control);
        const auto* const button = dynamic_cast<const Button*>(control);
        const double room = control->Width() - (frame != nullptr ? 2 * FrameEdge : 0);
        Names captions;
        if (label != nullptr) {
            captions.push_back(label->Caption());
        } else if (frame != nullptr) {
            captions.push_back(frame->Caption());
        } else if (button != nullptr) {
            captions.push_back(button->Caption());
        }
        for (const CaptionRow& row : CaptionRows()) {
            if (row.Name == control->Name()) {
                for (const std::string_view text : {row.InchMill, row.MetricMill, row.InchLathe, row.MetricLathe}) {
                    captions.emplace_back(text);
                }
            }
        }
        if (control->Name() == "Frame2") {
            captions.emplace_back("Operations (Mode: ENTER DATA)");
        }
        for (const std::string& caption : captions) {
            EXPECT_LE(TextWidth(caption, control->FontSize(), false), room) << control->Name() << ": " << caption;
            EXPECT_LE(TextHeight(control->FontSize()), control->Height()) << control->Name();
        }
    }
}

TEST_F(SpeedsAndFeeds, ControlsStandOnOneGridWithinTheirContainers) {
    for (const Control* const control : F().Controls()) {
        const Control* const outer = control->Container().ContainerControl();
        const double width = outer != nullptr ? outer->Width() : F().ScaleWidth();
        const double height = outer != nullptr ? outer->Height() : F().ScaleHeight();
        EXPECT_GE(control->Left(), 0) << control->Name();
        EXPECT_GE(control->Top(), 0) << control->Name();
        EXPECT_LE(control->Left() + control->Width(), width) << control->Name();
        EXPECT_LE(control->Top() + control->Height(), height) << control->Name();
        // Whole pixels, but for the names that leave an arrow of 268 twips free.
        EXPECT_EQ(static_cast<long>(control->Left()) % 15, 0) << control->Name();
        EXPECT_EQ(static_cast<long>(control->Top()) % 15, 0) << control->Name();
    }
    // No two controls of a container overlap, but the names with their combo boxes.
    for (const Control* const a : F().Controls()) {
        for (const Control* const b : F().Controls()) {
            const bool cover =
                dynamic_cast<const ComboBox*>(a) != nullptr && dynamic_cast<const TextBox*>(b) != nullptr;
            const bool covered =
                dynamic_cast<const ComboBox*>(b) != nullptr && dynamic_cast<const TextBox*>(a) != nullptr;
            if (a == b || &a->Container() != &b->Container() || cover || covered) {
                continue;
            }
            const bool apart = a->Left() + a->Width() <= b->Left() || b->Left() + b->Width() <= a->Left() ||
                               a->Top() + a->Height() <= b->Top() || b->Top() + b->Height() <= a->Top();
            EXPECT_TRUE(apart) << a->Name() << " and " << b->Name();
        }
    }
}

TEST_F(SpeedsAndFeeds, TheNamesCoverTheirCombosAtAnySize) {
    const struct {
        const TextBox& Box;
        const ComboBox& Combo;
    } pairs[] = {{F().Text17, F().Combo2}, {F().Text18, F().Combo3}, {F().Text19, F().Combo4}};
    for (const double growth : {1.0, .75, 1.5, 2.0}) {
        F().ResizeByPerson(8064 * growth, 4236 * growth);
        for (const auto& pair : pairs) {
            EXPECT_DOUBLE_EQ(pair.Box.Left(), pair.Combo.Left());
            EXPECT_DOUBLE_EQ(pair.Box.Top(), pair.Combo.Top());
            EXPECT_DOUBLE_EQ(pair.Box.Height(), pair.Combo.Height());
            EXPECT_DOUBLE_EQ(pair.Box.Width(), pair.Combo.Width() - 268);
            // In front of it.
            const auto& stack = pair.Box.Container().Children();
            EXPECT_GT(std::find(stack.begin(), stack.end(), &pair.Box),
                      std::find(stack.begin(), stack.end(), &pair.Combo));
        }
        EXPECT_DOUBLE_EQ(F().Text3.Height(), F().Combo1.Height());
        EXPECT_DOUBLE_EQ(F().Text3.FontSize(), 8.25 * growth);
    }
}

TEST_F(SpeedsAndFeeds, IsSizable) {
    EXPECT_TRUE(F().Sizable());
}

TEST_F(SpeedsAndFeeds, AFolderInTheStoresPlaceSaysSoOnSavingAndKeepsTheEntries) {
    fs::create_directory(program.Directory.Path() / "Mill.dat");
    EXPECT_EQ(F().Combo2.List(), Names{});
    EnterRecord();
    EXPECT_EQ(Messages(), Names{});
    F().Command1.Value(true);
    EXPECT_EQ(Messages(), Names{"The Cutting Data Could Not Be Saved:\r\nMill.dat\r\nIs a directory"});
    EXPECT_EQ(program.Run.Beeps, 1);
    EXPECT_EQ(F().Text17.Text(), "End Mill");
    EXPECT_EQ(F().Text1.Text(), "80-120");
    EXPECT_EQ(F().Text9.Text(), ".8");
    EXPECT_FALSE(F().ConvDat.Enabled());
    EXPECT_FALSE(program.Owner.Ended());
    // Once the way is free, the same press saves.
    fs::remove(program.Directory.Path() / "Mill.dat");
    F().Command1.Value(true);
    EXPECT_EQ(Messages(), Names{});
    EXPECT_EQ(program.Directory.Get("Mill.dat"), Saved);
    EXPECT_EQ(F().Text17.Text(), "");
}

TEST_F(SpeedsAndFeeds, AFailedSaveKeepsTheResultsOfTheCalculation) {
    fs::create_directory(program.Directory.Path() / "Mill.dat");
    EnterRecord();
    F().Text3.Text("100");
    F().Text4.Text(".002");
    F().Text5.Text(".5");
    F().Text6.Text("4");
    F().Command1.Value(true);
    EXPECT_EQ(Messages().size(), 1U);
    EXPECT_EQ(F().Text10.Text(), "763.9");
    EXPECT_TRUE(F().ConvDat.Enabled());
}

TEST_F(SpeedsAndFeeds, AFailedDeleteKeepsTheFields) {
    program.Directory.Put("Mill.dat", Saved);
    EnterRecord();
    fs::remove(program.Directory.Path() / "Mill.dat");
    fs::create_directory(program.Directory.Path() / "Mill.dat");
    program.Run.Answers.push_back(Answer::Yes);
    F().DelDat.FireClick();
    EXPECT_EQ(Messages(), (Names{"Delete This Operations Data?",
                                 "The Cutting Data Could Not Be Saved:\r\nMill.dat\r\nIs a directory"}));
    EXPECT_EQ(F().Text17.Text(), "End Mill");
    EXPECT_EQ(F().Text2.Text(), ".001-.004");
}

TEST_F(SpeedsAndFeeds, AMachineNamedLikeNoFileIsNoTrouble) {
    F().Combo1.AddItem(std::string("no\0file", 7));
    F().Combo1.AddItem("no/such/folder");
    for (int item = 1; item <= 2; ++item) {
        F().Combo1.ListIndex(item);
        EXPECT_EQ(F().Combo2.List(), Names{});
        EXPECT_EQ(F().Label9.Caption(), "Tool Dia.");
    }
    EXPECT_FALSE(program.Owner.Ended());
    EXPECT_EQ(program.Directory.Names(), Names{"Mill.dat"});
}

TEST_F(SpeedsAndFeeds, WithoutAMachineNothingIsSavedAndNothingLost) {
    EnterRecord();
    F().Combo1.Text("");
    F().Command1.Value(true);
    EXPECT_EQ(program.Directory.Get("Mill.dat"), "");
    EXPECT_EQ(F().Text17.Text(), "End Mill");
    EXPECT_FALSE(F().ConvDat.Enabled());
}

TEST_F(SpeedsAndFeeds, NoValueFaultsInAnyHandler) {
    const Names values = {"",
                          "0",
                          "-",
                          ".",
                          "words",
                          "1E999",
                          "-1E999",
                          "1E308",
                          "-1E308",
                          "1E-320",
                          "1-2",
                          "2-1",
                          "1E308-1",
                          "--",
                          "1E-",
                          " 5",
                          "5 ",
                          "\xB0",
                          "1E308-1E308",
                          "1E999-1E999",
                          "\r\n5",
                          std::string(3, '\0'),
                          std::string(10000, '9')};
    F().Combo1.AddItem("Lathe");
    for (const std::string machine : {"Mill", "Lathe"}) {
        for (std::size_t shift = 0; shift < values.size(); ++shift) {
            F().Combo1.Text(machine);
            F().DataOp.FireClick();
            std::size_t at = shift;
            for (TextBox* const box :
                 {&F().Text17, &F().Text18, &F().Text19, &F().Text1, &F().Text2, &F().Text3, &F().Text4, &F().Text5,
                  &F().Text6, &F().Text7, &F().Text8, &F().Text9, &F().Text14, &F().Text15}) {
                box->Text(values[at++ % values.size()]);
            }
            F().Command1.Value(true);
            // The ranges out of the way, all of it is calculated.
            F().DataOp.FireClick();
            at = shift;
            for (TextBox* const box : {&F().Text3, &F().Text4, &F().Text5, &F().Text6, &F().Text7, &F().Text8,
                                       &F().Text9, &F().Text14, &F().Text15}) {
                const std::string& value = values[at++ % values.size()];
                box->Text(value.empty() ? "0" : value);
            }
            F().Command1.Value(true);
            EXPECT_FALSE(F().Text10.Text().empty());
            F().Text1.Text(values[shift]);
            F().Text2.Text(values[(shift + 7) % values.size()]);
            F().ConvDat.FireClick();
            F().ConvDat.FireClick();
            program.Run.Answers.push_back(Answer::Yes);
            F().DelDat.FireClick();
            F().MMTo.FireClick();
            ASSERT_FALSE(program.Owner.Ended());
        }
    }
    for (const std::string& message : Messages()) {
        EXPECT_EQ(message.find("Run-time error"), std::string::npos) << message;
    }
}

TEST_F(SpeedsAndFeeds, TwentyThousandRecordsFillTheLists) {
    std::string content;
    for (int i = 0; i < 20000; ++i) {
        content += "I_Tool " + std::to_string(i % 5000) + "!Material " + std::to_string(i / 5000) + "@D2#80$.001%^\r\n";
    }
    program.Directory.Put("Mill.dat", content);
    EXPECT_EQ(F().Combo2.ListCount(), 5000);
    F().Combo2.Text("Tool 4999");
    EXPECT_EQ(F().Combo3.List(), (Names{"Material 0", "Material 1", "Material 2", "Material 3"}));
    F().Combo3.Text("Material 3");
    EXPECT_EQ(F().Combo4.List(), Names{"D2"});
    F().Combo4.Text("D2");
    EXPECT_EQ(F().Text1.Text(), "80");
    EXPECT_EQ(F().Text3.Text(), "80");
}

TEST_F(SpeedsAndFeeds, UnloadingComesBackToTheMenu) {
    F().CloseByPerson();
    EXPECT_TRUE(program.Owner.Get("Form11").Visible());
    EXPECT_FALSE(F().Loaded());
}

}  // namespace
}  // namespace brindlex::speedsfeeds
