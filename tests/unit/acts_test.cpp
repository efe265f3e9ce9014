// The commands of scripts: what each does, and what it refuses because a person could not do it.
#include "headless/acts.h"
#include "scriptforms.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

struct Refusal {
    const char* before;  ///< a command that leads there
    const char* command;
    const char* answer;
};

void ExpectRefusals(const std::vector<Refusal>& refusals) {
    for (const Refusal& refusal : refusals) {
        ScriptStand stand;
        const Log answers = stand.AfterStart(std::string(refusal.before) + "\nshow beeps\n" + refusal.command + "\n");
        const std::size_t heard = stand.Heard.size();
        EXPECT_EQ(answers.back(), refusal.answer) << refusal.before << " / " << refusal.command;
        ScriptStand same;
        same.AfterStart(std::string(refusal.before) + "\n");
        EXPECT_EQ(heard, same.Heard.size()) << "something happened: " << refusal.command;
    }
}

TEST(ActsTest, PressMovesTheFocusThenClicks) {
    ScriptStand stand;
    EXPECT_EQ(stand.AfterStart("press Form11.Command1\nshow Form11.Focus\n"), (Log{"ok", "ok \"Command1\""}));
    EXPECT_EQ(HeardOf(stand), (Log{"Text1_LostFocus", "Command1_Click"}));
}

TEST(ActsTest, PressOfCheckBoxOptionAndLabel) {
    ScriptStand stand;
    EXPECT_EQ(stand.AfterStart("press Form11.Check1\n"
                               "show Form11.Check1.Value\n"
                               "press Form11.Check1\n"
                               "show Form11.Check1.Value\n"
                               "press Form11.Option2\n"
                               "show Form11.Option1.Value\n"
                               "show Form11.Option2.Value\n"
                               "press Form11.Label1\n"
                               "show Form11.Focus\n"),
              (Log{"ok", "ok 1", "ok", "ok 0", "ok", "ok 0", "ok -1", "ok", "ok \"Option2\""}));
    EXPECT_EQ(HeardOf(stand),
              (Log{"Text1_LostFocus", "Check1_Click 1", "Check1_Click 0", "Option2_Click", "Label1_Click"}));
}

TEST(ActsTest, WhatCanNotBePressed) {
    ExpectRefusals({
        {"", "press Form11.Text1", "error Text1 can't be clicked"},
        {"", "press Form11.Combo1", "error Combo1 can't be clicked"},
        {"", "press Form11.VScroll1", "error VScroll1 can't be clicked"},
        {"", "press Form11.Label2", "error Label2 can't be clicked"},
        {"", "press Form11.Copy", "error Form11.Copy is a menu item"},
        {"set Form11.Command1.Enabled 0", "press Form11.Command1", "error Form11.Command1 is disabled"},
        {"set Form11.Command1.Visible 0", "press Form11.Command1", "error Form11.Command1 is not visible"},
        {"set Form11.Frame1.Enabled 0", "press Form11.Option2", "error Form11.Option2 is disabled"},
        {"set Form11.Frame1.Visible 0", "press Form11.Option2", "error Form11.Option2 is not visible"},
        {"set Form11.Visible 0", "press Form11.Command1", "error Form11 is not visible"},
        {"", "press Form2.Command1", "error Form2 is not visible"},
        {"press Form11.Command2", "press Form11.Command1", "error Form11 is behind Form2"},
    });
}

TEST(ActsTest, MenuOpensThenChooses) {
    ScriptStand stand;
    EXPECT_EQ(stand.AfterStart("menu Form11.Copy\n"
                               "menu Form11.Deep\n"
                               "menu Form11.Alone\n"
                               "menu Form11.Edit\n"),
              (Log{"ok", "ok", "ok", "ok"}));
    EXPECT_EQ(HeardOf(stand),
              (Log{"Edit_Click", "Copy_Click", "Edit_Click", "Deep_Click", "Alone_Click", "Edit_Click"}));
}

// Whether Paste is enabled is decided when its menu opens.
TEST(ActsTest, MenuItemThatTurnsOutDisabled) {
    ScriptStand stand;
    EXPECT_EQ(
        stand.AfterStart("menu Form11.Paste\n"
                         "show Form11.Paste.Enabled\n"
                         "clipboard \"7\"\n"
                         "menu Form11.Paste\n"
                         "clipboard \"\"\n"
                         "menu Form11.Paste\n"),
        (Log{"error Form11.Paste can't be chosen", "ok 0", "ok", "ok", "ok", "error Form11.Paste can't be chosen"}));
    EXPECT_EQ(HeardOf(stand), (Log{"Edit_Click", "Edit_Click", "Paste_Click", "Edit_Click"}));
}

TEST(ActsTest, WhatCanNotBeChosenFromMenus) {
    ExpectRefusals({
        {"", "menu Form11.Sep1", "error Form11.Sep1 is a separator"},
        {"", "menu Form11.Text1", "error Form11.Text1 is no menu item"},
        {"set Form11.Edit.Enabled 0", "menu Form11.Copy", "error Form11.Copy is disabled or hidden"},
        {"set Form11.Edit.Visible 0", "menu Form11.Copy", "error Form11.Copy is disabled or hidden"},
        {"press Form11.Command2", "menu Form11.Copy", "error Form11 is behind Form2"},
    });
    for (const char* const hidden : {"Copy.Enabled", "Copy.Visible", "More.Enabled", "More.Visible"}) {
        ScriptStand stand;
        const std::string item = std::string(hidden).substr(0, 4) == "Copy" ? "Copy" : "Deep";
        EXPECT_EQ(stand.AfterStart("set Form11." + std::string(hidden) + " 0\nmenu Form11." + item + "\n").back(),
                  "error Form11." + item + " can't be chosen");
        EXPECT_EQ(HeardOf(stand), (Log{"Edit_Click"}));
    }
}

TEST(ActsTest, ToolLeavesTheFocus) {
    ScriptStand stand;
    EXPECT_EQ(stand.AfterStart("tool Form11.Toolbar1 \"Line\"\n"
                               "show Form11.Toolbar1.Line.Value\n"
                               "tool Form11.Toolbar1 \"Point\"\n"
                               "show Form11.Toolbar1.Line.Value\n"
                               "show Form11.Toolbar1.Point.Value\n"
                               "show Form11.Focus\n"),
              (Log{"ok", "ok 1", "ok", "ok 0", "ok 1", "ok \"Text1\""}));
    EXPECT_EQ(HeardOf(stand), (Log{"Toolbar1 Line", "Toolbar1 Point"}));
    ExpectRefusals({
        {"", "tool Form11.Toolbar1 \"Delete\"", "error the button Delete is disabled"},
        {"", "tool Form11.Toolbar1 \"None\"", "error Toolbar1 has no button None"},
        {"", "tool Form11.Toolbar1 \"\"", "error Toolbar1 has no button "},
        {"", "tool Form11.Command1 \"Line\"", "error Form11.Command1 is no toolbar"},
        {"set Form11.Toolbar1.Enabled 0", "tool Form11.Toolbar1 \"Line\"", "error Form11.Toolbar1 is disabled"},
    });
}

TEST(ActsTest, Focus) {
    ScriptStand stand;
    EXPECT_EQ(stand.AfterStart("focus Form11.Text3\nshow Form11.Focus\nfocus Form11.Text2\nshow Form11.Focus\n"),
              (Log{"ok", "ok \"Text3\"", "ok", "ok \"Text2\""}));
    EXPECT_EQ(HeardOf(stand), (Log{"Text1_LostFocus", "Text3_GotFocus", "Text3_LostFocus", "Text2_GotFocus"}));
    ExpectRefusals({
        {"", "focus Form11.Label1", "error Form11.Label1 takes no focus"},
        {"", "focus Form11.Picture1", "error Form11.Picture1 takes no focus"},
        {"set Form11.Text3.Enabled 0", "focus Form11.Text3", "error Form11.Text3 is disabled"},
        {"press Form11.Command2", "focus Form11.Text3", "error Form11 is behind Form2"},
    });
}

TEST(ActsTest, TypeGivesTheFocusAndAKeyForEachCharacter) {
    ScriptStand stand;
    EXPECT_EQ(stand.AfterStart("type Form11.Text3 \"1.5\"\n"
                               "show Form11.Text3.Text\n"
                               "type Form11.Text1 \"zx\\u00b0\"\n"
                               "show Form11.Text1.Text\n"
                               "show Form11.Text1.SelStart\n"),
              (Log{"ok", "ok \"1.5\"", "ok", "ok \"z\\u00b0abc\"", "ok 2"}));
    EXPECT_EQ(HeardOf(stand), (Log{"Text1_LostFocus", "Text3_GotFocus", "Text3_Change 1", "Text3_Change 1.",
                                   "Text3_Change 1.5", "Text3_LostFocus", "Text1_GotFocus", "Text1_KeyPress 122",
                                   "Text1_Change zabc", "Text1_KeyPress 120", "Text1_KeyPress 176",
                                   "Text1_Change z\xB0"
                                   "abc"}));
}

TEST(ActsTest, KeysFollowTheFocus) {
    ScriptStand stand;
    EXPECT_EQ(stand.AfterStart("type Form11.Text1 \">7\"\nshow Form11.Text3.Text\nshow Form11.Text1.Text\n"),
              (Log{"ok", "ok \"7\"", "ok \"abc\""}));
}

TEST(ActsTest, KeysEndWhenTheFormGoes) {
    ScriptStand stand;
    stand.Main().OnCommand1 = [&] { stand.Main().Hide(); };
    EXPECT_EQ(stand.AfterStart("type Form11.Text3 \"1\\r2\"\nshow Form11.Text3.Text\nshow forms\n"),
              (Log{"ok", "ok \"1\"", "ok []"}));
}

TEST(ActsTest, KeyByItsCode) {
    ScriptStand stand;
    EXPECT_EQ(stand.AfterStart("select Form11.Text1 3 0\n"
                               "key Form11.Text1 8\n"
                               "show Form11.Text1.Text\n"
                               "key Form11.Text1 13\n"
                               "show Form11.Focus\n"
                               "key Form11.Text3 13\n"
                               "show Form11.Focus\n"),
              (Log{"ok", "ok", "ok \"ab\"", "ok", "ok \"Text1\"", "ok", "ok \"Text3\""}));
    EXPECT_EQ(HeardOf(stand), (Log{"Text1_KeyPress 8", "Text1_Change ab", "Command1_Click", "Text1_LostFocus",
                                   "Text3_GotFocus", "Command1_Click"}));
}

TEST(ActsTest, WhereNothingCanBeTyped) {
    for (const std::string command : {"type Form11.X \"1\"", "key Form11.X 49"}) {
        const auto on = [&](const char* name) {
            std::string text = command;
            text.replace(text.find('X'), 1, name);
            return text;
        };
        ExpectRefusals({
            {"", on("Text2").c_str(), "error Form11.Text2 is locked"},
            {"", on("Label1").c_str(), "error Form11.Label1 takes no focus"},
            {"", on("Picture1").c_str(), "error Form11.Picture1 takes no focus"},
            {"set Form11.Combo1.Locked -1", on("Combo1").c_str(), "error Form11.Combo1 is locked"},
            {"set Form11.Text3.Enabled 0", on("Text3").c_str(), "error Form11.Text3 is disabled"},
            {"set Form11.Text3.Visible 0", on("Text3").c_str(), "error Form11.Text3 is not visible"},
            {"press Form11.Command2", on("Text3").c_str(), "error Form11 is behind Form2"},
        });
    }
}

TEST(ActsTest, EnterPassesALockedBoxToTheDefaultButton) {
    ScriptStand stand;
    EXPECT_EQ(stand.AfterStart("key Form11.Text2 13\n"
                               "show Form11.Focus\n"
                               "key Form11.Text2 8\n"
                               "set Form11.Command1.Default 0\n"
                               "key Form11.Text2 13\n"),
              (Log{"ok", "ok \"Text2\"", "error Form11.Text2 is locked", "ok", "error Form11.Text2 is locked"}));
    EXPECT_EQ(HeardOf(stand), (Log{"Text1_LostFocus", "Text2_GotFocus", "Command1_Click"}));
}

TEST(ActsTest, TypingIntoAComboBoxAndOnAButton) {
    ScriptStand stand;
    EXPECT_EQ(stand.AfterStart("type Form11.Combo1 \"ab\"\n"
                               "show Form11.Combo1.Text\n"
                               "type Form11.Check1 \" \"\n"
                               "show Form11.Check1.Value\n"),
              (Log{"ok", "ok \"ab\"", "ok", "ok 1"}));
}

// Text2 is no tab stop, and of the two options Tab comes to the set one alone.
TEST(ActsTest, TabGoesOnInTabOrder) {
    ScriptStand stand;
    EXPECT_EQ(stand.AfterStart("tab\nshow Form11.Focus\ntab\nshow Form11.Focus\ntab\nshow Form11.Focus\n"
                               "focus Form11.HScroll1\ntab\nshow Form11.Focus\n"),
              (Log{"ok", "ok \"Text3\"", "ok", "ok \"Option1\"", "ok", "ok \"Check1\"", "ok", "ok", "ok \"Text1\""}));
}

TEST(ActsTest, TabGoesToTheFormInFront) {
    ScriptStand stand;
    stand.Main().OnCommand1 = [&] { stand.App().Get("Form3").Show(); };
    EXPECT_EQ(stand.AfterStart("press Form11.Command1\n"
                               "tab\n"
                               "show Form3.Focus\n"
                               "show Form11.Focus\n"
                               "focus Form11.Text1\n"
                               "tab\n"
                               "show Form3.Focus\n"
                               "show Form11.Focus\n"
                               "press Form11.Command2\n"
                               "tab\n"
                               "show Form2.Focus\n"),
              (Log{"ok", "ok", "ok \"Command1\"", "ok \"Command1\"", "ok", "ok", "ok \"Command1\"", "ok \"Text3\"",
                   "ok", "ok", "ok \"Command1\""}));
    ExpectRefusals({{"set Form11.Visible 0", "tab", "error no form is visible"}});
}

TEST(ActsTest, ChooseTakesTheFocusAndClicks) {
    ScriptStand stand;
    EXPECT_EQ(stand.AfterStart("choose Form11.Combo1 \"Metric\"\n"
                               "show Form11.Combo1.Text\n"
                               "show Form11.Combo1.ListIndex\n"
                               "show Form11.Focus\n"),
              (Log{"ok", "ok \"Metric\"", "ok 1", "ok \"Combo1\""}));
    EXPECT_EQ(HeardOf(stand), (Log{"Text1_LostFocus", "Combo1_Click Metric"}));
    ExpectRefusals({
        {"", "choose Form11.Combo1 \"metric\"", "error the list has no such item"},
        {"", "choose Form11.Text1 \"abc\"", "error Form11.Text1 is no combo box"},
        {"set Form11.Combo1.Locked -1", "choose Form11.Combo1 \"Metric\"", "error Combo1 is locked"},
        {"set Form11.Combo1.Enabled 0", "choose Form11.Combo1 \"Metric\"", "error Form11.Combo1 is disabled"},
    });
}

TEST(ActsTest, SelectAsWithTheMouse) {
    ScriptStand stand;
    EXPECT_EQ(stand.AfterStart("select Form11.Text1 1 2\n"
                               "show Form11.Text1.SelStart\n"
                               "show Form11.Text1.SelLength\n"
                               "show Form11.Text1.SelText\n"
                               "type Form11.Text1 \"Z\"\n"
                               "show Form11.Text1.Text\n"
                               "select Form11.Text1 1 9\n"
                               "show Form11.Text1.SelLength\n"
                               "select Form11.Text2 0 0\n"
                               "show Form11.Focus\n"),
              (Log{"ok", "ok 1", "ok 2", "ok \"bc\"", "ok", "ok \"aZ\"", "ok", "ok 1", "ok", "ok \"Text2\""}));
    ExpectRefusals({
        {"", "select Form11.Text1 -1 0", "error a selection is not negative"},
        {"", "select Form11.Text1 0 -1", "error a selection is not negative"},
        {"", "select Form11.Command1 0 1", "error Form11.Command1 is no box with a text"},
        {"set Form11.Text1.Enabled 0", "select Form11.Text1 0 1", "error Form11.Text1 is disabled"},
    });
}

TEST(ActsTest, SetFiresAsCodeWould) {
    ScriptStand stand;
    EXPECT_EQ(stand.AfterStart("set Form11.Text1.Text \"abc\"\n"
                               "set Form11.Text1.Text \"d\"\n"
                               "set Form11.Text2.Text \"locked too\"\n"
                               "set Form11.Combo1.Text \"Metric\"\n"
                               "set Form11.Combo1.Text \"Feet\"\n"
                               "set Form11.Check1.Value 1\n"
                               "set Form11.Option2.Value true\n"
                               "set Form11.Command1.Value -1\n"
                               "set Form11.VScroll1.Value 5\n"
                               "show Form11.Combo1.ListIndex\n"),
              (Log{"ok", "ok", "ok", "ok", "ok", "ok", "ok", "ok", "ok", "ok -1"}));
    EXPECT_EQ(HeardOf(stand),
              (Log{"Text1_Change d", "Text2_Change locked too", "Combo1_Click Metric", "Combo1_Change Feet",
                   "Check1_Click 1", "Option2_Click", "Command1_Click", "VScroll1_Change 5"}));
}

TEST(ActsTest, SetActsBehindAModalFormAndOnHiddenFormsButNotOnUnloadedOnes) {
    ScriptStand stand;
    EXPECT_EQ(stand.AfterStart("set Form2.Text1.Text \"1\"\n"
                               "press Form11.Command2\n"
                               "set Form11.Text3.Text \"2\"\n"
                               "press Form2.Command1\n"
                               "set Form2.Text1.Text \"3\"\n"
                               "show Form2.Text1.Text\n"),
              (Log{"error Form2 is not loaded", "ok", "ok", "ok", "ok", "ok \"3\""}));
}

TEST(ActsTest, AddItem) {
    ScriptStand stand;
    EXPECT_EQ(stand.AfterStart("additem Form11.Combo1 \"Feet\"\n"
                               "show Form11.Combo1.List\n"
                               "additem Form11.Text1 \"Feet\"\n"
                               "additem Form11.Edit \"Feet\"\n"
                               "additem Form2.Command1 \"Feet\"\n"),
              (Log{"ok", "ok [\"Inch\",\"Metric\",\"Feet\"]", "error Form11.Text1 is no combo box",
                   "error Form11.Edit is no combo box", "error Form2.Command1 is no combo box"}));
}

}  // namespace
}  // namespace brindlex
