// Focus, tips, Copy and Paste by ActiveText.
#include "services/activebox.h"

#include "testprogram.h"

#include <gtest/gtest.h>

#include <array>

namespace brindlex {
namespace {

class SampleForm : public Form {
public:
    explicit SampleForm(Program& program) : Form(program, "Sample", 3000, 2000) {
        BindFocus(Text1, &Paste, true);
        BindFocus(Text2, &Paste, false);
        BindFocus(Text3, &Paste);
        BindFocus(Text4);
        BindTextTip(Text1);
        Edit.Click.Bind([this] { FollowClipboard(Paste); });
    }

    CommandButton Command1{*this, "Command1", {1500, 0, 900, 300}};
    TextBox Text1{*this, "Text1", {0, 0, 900, 300}, "12.5"};
    TextBox Text2{*this, "Text2", {0, 300, 900, 300}, "abc"};
    TextBox Text3{*this, "Text3", {0, 600, 900, 300}};
    TextBox Text4{*this, "Text4", {0, 900, 900, 300}, "7"};
    MenuItem Edit{*this, "Edit", "&Edit"};
    MenuItem Paste{Edit, "Paste", "Paste"};
};

class ActiveBox : public ::testing::Test {
protected:
    ActiveBox() {
        program.Register<SampleForm>("Sample");
        form().Show();
    }
    SampleForm& form() { return program.Get<SampleForm>("Sample"); }
    std::string& active() { return program.Owner.Shared().ActiveText; }

    TestProgram program;
    static constexpr std::array<std::string_view, 2> Boxes = {"Text1", "Text2"};
};

TEST_F(ActiveBox, FocusSelectsAllAndNamesTheBox) {
    EXPECT_EQ(active(), "");
    form().FocusByPerson(form().Text1);
    EXPECT_EQ(form().Text1.SelStart(), 0);
    EXPECT_EQ(form().Text1.SelLength(), 4);
    EXPECT_EQ(active(), "Text1");
    EXPECT_TRUE(form().Paste.Enabled());

    form().FocusByPerson(form().Text2);
    EXPECT_EQ(form().Text2.SelText(), "abc");
    EXPECT_EQ(active(), "Text2");
    EXPECT_FALSE(form().Paste.Enabled());
}

TEST_F(ActiveBox, ABoxMayLeavePasteOrAllOfItAlone) {
    form().FocusByPerson(form().Text2);
    form().FocusByPerson(form().Text3);
    EXPECT_EQ(active(), "Text3");
    EXPECT_FALSE(form().Paste.Enabled());

    form().FocusByPerson(form().Text4);
    EXPECT_EQ(form().Text4.SelText(), "7");
    EXPECT_EQ(active(), "Text3");
}

TEST_F(ActiveBox, TheTipFollowsTheTextWhenThePointerComes) {
    EXPECT_EQ(form().Text1.ToolTipText(), "");
    form().Text1.Fire(form().Text1.MouseMove, "MouseMove", Mouse{});
    EXPECT_EQ(form().Text1.ToolTipText(), "12.5");
    form().Text1.Text("3");
    EXPECT_EQ(form().Text1.ToolTipText(), "12.5");
    form().Text1.Fire(form().Text1.MouseMove, "MouseMove", Mouse{});
    EXPECT_EQ(form().Text1.ToolTipText(), "3");
}

TEST_F(ActiveBox, CopyTakesTheNamedBoxOnly) {
    active() = "Text2";
    CopyActiveBox(form(), Boxes);
    EXPECT_EQ(program.Runtime.Clipboard, "abc");
    for (const char* const other : {"", "Text4", "Command1", "Text9", "text1"}) {
        active() = other;
        CopyActiveBox(form(), Boxes);
        EXPECT_EQ(program.Runtime.Clipboard, "abc") << other;
    }
}

TEST_F(ActiveBox, PasteFillsTheNamedBoxOnly) {
    int changes = 0;
    form().Text1.Change.Bind([&] { ++changes; });
    program.Runtime.Clipboard = "99";
    active() = "Text1";
    PasteIntoActiveBox(form(), Boxes);
    EXPECT_EQ(form().Text1.Text(), "99");
    EXPECT_EQ(changes, 1);
    active() = "Text4";
    PasteIntoActiveBox(form(), Boxes);
    EXPECT_EQ(form().Text4.Text(), "7");
    program.Runtime.Clipboard.reset();
    active() = "Text2";
    PasteIntoActiveBox(form(), Boxes);
    EXPECT_EQ(form().Text2.Text(), "");
}

TEST_F(ActiveBox, NamesOfOtherControlsDoNothing) {
    constexpr std::array<std::string_view, 2> odd = {"Command1", "Text9"};
    program.Runtime.Clipboard = "99";
    for (const std::string_view name : odd) {
        active() = name;
        CopyActiveBox(form(), odd);
        PasteIntoActiveBox(form(), odd);
    }
    EXPECT_EQ(program.Runtime.Clipboard, "99");
}

TEST_F(ActiveBox, PasteFollowsTheClipboardWhenTheMenuOpens) {
    form().OpenMenuByPerson(form().Edit);
    EXPECT_FALSE(form().Paste.Enabled());
    program.Runtime.Clipboard = "5";
    form().OpenMenuByPerson(form().Edit);
    EXPECT_TRUE(form().Paste.Enabled());
}

}  // namespace
}  // namespace brindlex
