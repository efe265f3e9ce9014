// The runtime without a screen and the hands on it: what they record, answer and do where no script stands between.
#include "headless/headlessplayer.h"
#include "headless/headlessruntime.h"
#include "scriptforms.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(HeadlessRuntimeTest, Letter) {
    DrivenRun run;
    HeadlessRuntime runtime(run, {1024, 768});
    EXPECT_EQ(runtime.PrintableSize(PaperOrientation::Portrait).Width, 11520);
    EXPECT_EQ(runtime.PrintableSize(PaperOrientation::Portrait).Height, 15120);
    EXPECT_EQ(runtime.PrintableSize(PaperOrientation::Landscape).Width, 15120);
    EXPECT_EQ(runtime.PrintableSize(PaperOrientation::Landscape).Height, 11520);
}

TEST(HeadlessRuntimeTest, CaptureHasTheFormsInnerSize) {
    ScriptStand stand;
    const Snapshot client = stand.World().CaptureClient(stand.Main());
    EXPECT_FALSE(client.Empty());
    EXPECT_EQ(client.Width, 6000);
    EXPECT_EQ(client.Height, 4500);
    EXPECT_EQ(client.Scale, (PictureScale{0, 0, 6000, 4500}));
}

TEST(HeadlessRuntimeTest, DefaultAnswers) {
    DrivenRun run;
    HeadlessRuntime runtime(run, {1024, 768});
    EXPECT_EQ(runtime.ShowMessageBox({"a", style::Exclamation, "b"}), Answer::Ok);
    EXPECT_EQ(runtime.ShowMessageBox({"a", style::YesNo, "b"}), Answer::Yes);
    EXPECT_EQ(runtime.ShowMessageBox({"a", style::YesNo + style::SecondDefault, "b"}), Answer::No);
    EXPECT_EQ(runtime.ShowMessageBox({"a", style::OkCancel + style::SecondDefault, "b"}), Answer::Cancel);
    EXPECT_EQ(runtime.ShowInputBox({"a", "b", "c"}), "");
    EXPECT_EQ(runtime.ShowFileDialog({}), std::nullopt);
    EXPECT_FALSE(runtime.ShowPrinterDialog({DialogKind::Printer, 0, "", ""}).has_value());
    EXPECT_EQ(run.Boxes.size(), 4U);
    EXPECT_EQ(run.Dialogs.size(), 2U);
}

TEST(HeadlessRuntimeTest, ClipboardHoldsNoTextUntilItIsGivenOne) {
    DrivenRun run;
    HeadlessRuntime runtime(run, {1024, 768});
    EXPECT_FALSE(runtime.ClipboardText().has_value());
    runtime.ClipboardText("");
    EXPECT_EQ(runtime.ClipboardText(), "");
    runtime.ClearClipboard();
    EXPECT_FALSE(runtime.ClipboardText().has_value());
}

TEST(HeadlessRuntimeTest, AModalFormThatNobodyDrivesDoesNotWait) {
    ScriptStand stand;
    stand.App().Start();
    stand.App().Get("Form2").ShowModal();
    EXPECT_FALSE(stand.App().Get("Form2").Visible());
    EXPECT_EQ(stand.App().ModalForm(), nullptr);
}

class HeadlessPlayerTest : public ::testing::Test {
protected:
    HeadlessPlayerTest() { stand_.App().Start(); }

    ScriptStand stand_;
    MainForm& form_ = stand_.Main();
    HeadlessPlayer& hands_ = stand_.Hands();
};

TEST_F(HeadlessPlayerTest, MouseUpThatTakesTheControlAwayIsNoClick) {
    form_.Picture1.MouseUp.Bind([this](const Mouse&) { form_.Picture1.Visible(false); });
    hands_.MouseOn(form_.Picture1, MouseAct::Up, {LeftButton, 0, 1, 2});
    EXPECT_EQ(stand_.Heard, (Log{"Form11_Resize", "Text1_GotFocus"}));
}

TEST_F(HeadlessPlayerTest, ChoosingMovesTheFocusFirst) {
    form_.Text1.LostFocus.Bind([this] { form_.Combo1.Enabled(false); });
    hands_.ChooseItem(form_.Combo1, 1);
    EXPECT_EQ(form_.Combo1.Text(), "");
}

TEST_F(HeadlessPlayerTest, MaximizeOnASmallScreen) {
    ScriptStand small({640, 490});
    small.App().Start();
    small.Hands().Maximize(small.Main());
    // 9600 by 7350 twips less the borders of 120, the title bar of 405 and the menu bar of 285.
    EXPECT_EQ(small.Main().InnerWidth(), 9480);
    EXPECT_EQ(small.Main().InnerHeight(), 6540);
}

TEST_F(HeadlessPlayerTest, SeesAndPicturesNothing) {
    EXPECT_EQ(hands_.Seen(form_.Text1, "Text"), std::nullopt);
    EXPECT_EQ(hands_.Seen(form_.Copy, "Enabled"), std::nullopt);
    Form& form = form_;
    EXPECT_EQ(hands_.Seen(form, "Caption"), std::nullopt);
    EXPECT_FALSE(hands_.Shot(form_, (stand_.Files().Path() / "a.png").string()));
}

}  // namespace
}  // namespace brindlex
