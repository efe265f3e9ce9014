// The commands of scripts for scroll bars, windows, the mouse, time, and the world around the program.
#include "headless/acts.h"
#include "scriptforms.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(ActsOnFormsTest, ScrollWithinTheRangeBothWays) {
    ScriptStand stand;
    EXPECT_EQ(stand.AfterStart("scroll Form11.VScroll1 32767\n"
                               "scroll Form11.VScroll1 32768\n"
                               "scroll Form11.VScroll1 -1\n"
                               "scroll Form11.HScroll1 -100\n"
                               "scroll Form11.HScroll1 -101\n"
                               "scroll Form11.HScroll1 101\n"
                               "show Form11.HScroll1.Value\n"
                               "scroll Form11.Text1 1\n"
                               "set Form11.VScroll1.Enabled 0\n"
                               "scroll Form11.VScroll1 1\n"
                               "show Form11.Focus\n"),
              (Log{"ok", "error the value is outside the scroll bar's range",
                   "error the value is outside the scroll bar's range", "ok",
                   "error the value is outside the scroll bar's range",
                   "error the value is outside the scroll bar's range", "ok -100",
                   "error Form11.Text1 is no scroll bar", "ok", "error Form11.VScroll1 is disabled", "ok \"Text1\""}));
    EXPECT_EQ(HeardOf(stand), (Log{"VScroll1_Change 32767", "HScroll1_Change -100"}));
}

TEST(ActsOnFormsTest, SizeOfASizableForm) {
    ScriptStand stand;
    EXPECT_EQ(stand.AfterStart("size Form11 7500 6000\n"
                               "show Form11.ScaleWidth\n"
                               "show Form11.ScaleHeight\n"
                               "size Form11 0 6000\n"
                               "size Form11 7500\n"
                               "set Form4.Caption \"x\"\n"),
              (Log{"ok", "ok 7500", "ok 6000", "error a form has a size", "error too little is said",
                   "error Form4 is not loaded"}));
    EXPECT_EQ(HeardOf(stand), (Log{"Form11_Resize"}));
}

TEST(ActsOnFormsTest, ShowingAFormByItsPropertyLoadsIt) {
    ScriptStand stand;
    EXPECT_EQ(stand.AfterStart("set Form4.Visible -1\n"
                               "show forms\n"
                               "set Form4.Visible 0\n"
                               "show forms\n"
                               "show loaded\n"),
              (Log{"ok", R"(ok ["Form11","Form4"])", "ok", R"(ok ["Form11"])", R"(ok ["Form11","Form4"])"}));
}

TEST(ActsOnFormsTest, FormsOfFixedSizeKeepIt) {
    ScriptStand stand;
    EXPECT_EQ(stand.AfterStart("press Form11.Command2\n"
                               "size Form2 4000 4000\n"
                               "maximize Form2\n"
                               "size Form11 4000 4000\n"
                               "maximize Form11\n"
                               "size Form3 4000 4000\n"
                               "show Form2.ScaleWidth\n"),
              (Log{"ok", "error Form2 keeps its size", "error Form2 keeps its size", "error Form11 is behind Form2",
                   "error Form11 is behind Form2", "error Form3 is not visible", "ok 3000"}));
}

// The window's outside takes the whole screen: 1024 by 768 pixels of 15 twips.
TEST(ActsOnFormsTest, MaximizeFillsTheScreen) {
    ScriptStand stand;
    EXPECT_EQ(stand.AfterStart("maximize Form11\n"
                               "show Form11.Left\n"
                               "show Form11.Top\n"
                               "show Form11.Width\n"
                               "show Form11.Height\n"),
              (Log{"ok", "ok 0", "ok 0", "ok 15360", "ok 11520"}));
    EXPECT_EQ(HeardOf(stand), (Log{"Form11_Resize"}));
}

TEST(ActsOnFormsTest, CloseDoesWhatTheCloseBoxDoes) {
    ScriptStand stand;
    EXPECT_EQ(stand.AfterStart("press Form11.Command2\n"
                               "close Form11\n"
                               "close Form2\n"
                               "close Form2\n"
                               "show loaded\n"
                               "close Form11\n"
                               "show loaded\n"
                               "close Form9\n"),
              (Log{"ok", "error Form11 is behind Form2", "ok", "error Form2 is not visible", "ok [\"Form11\"]", "ok",
                   "ok []", "error there is no form Form9"}));
    EXPECT_EQ(HeardOf(stand), (Log{"Text1_LostFocus", "Form2_Unload", "Command2 after Form2", "Form11_Unload"}));
}

TEST(ActsOnFormsTest, MouseOverAControl) {
    ScriptStand stand;
    EXPECT_EQ(stand.AfterStart("mouse Form11.Picture1 move 10 20.5\n"
                               "mouse Form11.Picture1 move 11 21 1\n"
                               "mouse Form11.Picture1 down 1 12 22\n"
                               "mouse Form11.Picture1 up 1 13 -23\n"
                               "mouse Form11.Picture1 dblclick 14 24\n"
                               "show popup\n"
                               "mouse Form11.Picture1 down 2 1 2\n"
                               "mouse Form11.Picture1 up 2 1 2\n"
                               "show popup\n"
                               "show popup\n"
                               "show Form11.Focus\n"),
              (Log{"ok", "ok", "ok", "ok", "ok", "ok \"\"", "ok", "ok", "ok \"Edit\"", "ok \"\"", "ok \"Text1\""}));
    EXPECT_EQ(HeardOf(stand),
              (Log{"Picture1_MouseMove 0 10 20.5", "Picture1_MouseMove 1 11 21", "Picture1_MouseDown 1 12 22",
                   "Picture1_MouseUp 1 13 -23", "Picture1_Click", "Picture1_DblClick", "Picture1_MouseDown 2 1 2",
                   "Picture1_MouseUp 2 1 2", "Edit_Click"}));
}

TEST(ActsOnFormsTest, MouseOnAButtonPressesIt) {
    ScriptStand stand;
    EXPECT_EQ(stand.AfterStart("mouse Form11.Command1 down 1 5 5\n"
                               "show Form11.Focus\n"
                               "mouse Form11.Command1 up 1 5 5\n"
                               "mouse Form11.Check1 up 1 5 5\n"
                               "mouse Form11.Combo1 up 1 5 5\n"
                               "mouse Form11.Label1 up 2 5 5\n"
                               "mouse Form11.Label1 up 1 5 5\n"),
              (Log{"ok", "ok \"Command1\"", "ok", "ok", "ok", "ok", "ok"}));
    EXPECT_EQ(HeardOf(stand), (Log{"Text1_LostFocus", "Command1_Click", "Check1_Click 1", "Label1_Click"}));
}

TEST(ActsOnFormsTest, MouseOverTheBareForm) {
    ScriptStand stand;
    EXPECT_EQ(stand.AfterStart("mouse Form11 move 1 2\n"
                               "mouse Form11 down 2 3 4\n"
                               "mouse Form11 up 2 3 4\n"
                               "mouse Form11 down 1 5 6\n"
                               "mouse Form11 up 1 5 6\n"
                               "mouse Form11 dblclick 5 6\n"),
              (Log{"ok", "ok", "ok", "ok", "ok", "error a form takes no double click"}));
    EXPECT_EQ(HeardOf(stand), (Log{"Form11_MouseMove 0 1 2", "Form11_MouseDown 2 3 4", "Form11_MouseUp 2 3 4",
                                   "Form11_MouseDown 1 5 6", "Form11_MouseUp 1 5 6", "Form11_Click"}));
}

TEST(ActsOnFormsTest, WhatTheMouseCanNotDo) {
    ScriptStand stand;
    EXPECT_EQ(stand.AfterStart("mouse Form11.Picture1 hover 1 2\n"
                               "mouse Form11.Picture1 down 3 1 2\n"
                               "mouse Form11.Picture1 down 0 1 2\n"
                               "mouse Form11.Picture1 down 1 2\n"
                               "mouse Form11.Picture1 move 1 2 3\n"
                               "mouse Form11.Picture1 move 1 2 1 1\n"
                               "mouse Form11.Copy move 1 2\n"
                               "set Form11.Picture1.Enabled 0\n"
                               "mouse Form11.Picture1 move 1 2\n"
                               "press Form11.Command2\n"
                               "mouse Form11 move 1 2\n"),
              (Log{"error move, down, up or dblclick is wanted", "error there is no such mouse button",
                   "error there is no such mouse button", "error too little is said",
                   "error there is no such mouse button", "error too much is said", "error Form11.Copy is a menu item",
                   "ok", "error Form11.Picture1 is disabled", "ok", "error Form11 is behind Form2"}));
    EXPECT_EQ(HeardOf(stand), (Log{"Text1_LostFocus"}));
}

// Every 100 ms; held while a modal form is up.
TEST(ActsOnFormsTest, WaitLetsTimersRun) {
    ScriptStand stand;
    EXPECT_EQ(stand.AfterStart("wait 99\nwait 1\nwait 250\nwait 0\n"), (Log{"ok", "ok", "ok", "ok"}));
    EXPECT_EQ(HeardOf(stand), (Log{"Timer1_Timer", "Timer1_Timer", "Timer1_Timer"}));
    ScriptStand held;
    EXPECT_EQ(held.AfterStart("press Form11.Command2\nwait 1000\npress Form2.Command1\n"), (Log{"ok", "ok", "ok"}));
    EXPECT_EQ(HeardOf(held), (Log{"Text1_LostFocus", "Command2 after Form2"}));
}

TEST(ActsOnFormsTest, ClipboardTextAndNone) {
    ScriptStand stand;
    EXPECT_EQ(stand.Answers("clipboard \"a\\u00b0\"\nshow clipboard\nclipboard \"\"\nshow clipboard\nclipboard a\n"),
              (Log{"ok", "ok \"a\\u00b0\"", "ok", "ok \"\"", "error a text in double quotes is wanted"}));
    EXPECT_FALSE(stand.World().ClipboardText().has_value());
}

TEST(ActsOnFormsTest, QueuedAnswersAndTheRecord) {
    ScriptStand stand;
    Log got;
    stand.Main().OnCommand3 = [&] {
        Program& app = stand.App();
        for (int box = 0; box < 3; ++box) {
            const Answer answer = app.BeepBox("Sure?", style::Question + style::YesNo);
            got.push_back(answer == Answer::Yes ? "yes" : "no");
        }
        got.push_back(app.InputBox("P", "T", "D"));
        got.push_back(app.InputBox("P", "T", "D"));
    };
    EXPECT_EQ(stand.AfterStart("answer no\n"
                               "answer yes\n"
                               "answer perhaps\n"
                               "answer ok no\n"
                               "input \"7\"\n"
                               "press Form11.Command3\n"
                               "show boxes\n"
                               "show boxes\n"
                               "show beeps\n"
                               "show beeps\n"),
              (Log{"ok", "ok", "error ok, cancel, yes or no is wanted", "error too much is said", "ok", "ok",
                   "ok [[36,\"Brindlex\",\"Sure?\"],[36,\"Brindlex\",\"Sure?\"],[36,\"Brindlex\",\"Sure?\"]]", "ok []",
                   "ok 3", "ok 0"}));
    EXPECT_EQ(got, (Log{"no", "yes", "yes", "7", ""}));
}

TEST(ActsOnFormsTest, QueuedDialogsAndTheRecord) {
    ScriptStand stand;
    Log got;
    stand.Main().OnCommand3 = [&] {
        CommonDialog& dialog = stand.Main().CommonDialog1;
        dialog.Flags(14);
        dialog.Filter("All (*.*)|*.*");
        dialog.FileName("old.rgt");
        for (int asked = 0; asked < 2; ++asked) {
            dialog.ShowSave();
            got.push_back(dialog.FileName());
        }
        dialog.ShowOpen();
        got.push_back(dialog.FileName());
        for (int asked = 0; asked < 3; ++asked) {
            dialog.ShowPrinter();
            got.push_back(std::to_string(dialog.Copies()));
        }
    };
    EXPECT_EQ(stand.AfterStart("dialog cancel\n"
                               "dialog \"cancel\"\n"
                               "dialog perhaps\n"
                               "printer cancel\n"
                               "printer 3\n"
                               "printer -1\n"
                               "printer 1.5\n"
                               "press Form11.Command3\n"
                               "show dialogs\n"
                               "show dialogs\n"),
              (Log{"ok", "ok", "error a text in double quotes is wanted", "ok", "ok",
                   "error a number of copies is wanted", "error a whole number is wanted", "ok",
                   "ok [[\"save\",14,\"All (*.*)|*.*\",\"old.rgt\"],[\"save\",14,\"All (*.*)|*.*\",\"old.rgt\"],"
                   "[\"open\",14,\"All (*.*)|*.*\",\"cancel\"],[\"printer\",14,\"All (*.*)|*.*\",\"cancel\"],"
                   "[\"printer\",14,\"All (*.*)|*.*\",\"cancel\"],[\"printer\",14,\"All (*.*)|*.*\",\"cancel\"]]",
                   "ok []"}));
    EXPECT_EQ(got, (Log{"old.rgt", "cancel", "cancel", "1", "3", "3"}));
}

TEST(ActsOnFormsTest, WriteKeepsTheBytes) {
    ScriptStand stand;
    EXPECT_EQ(stand.Answers("write \"b.txt\" \"30\\u00b0\\r\\n\\u0000\\u001a\"\n"
                            "write \"A.txt\" \"\"\n"
                            "show file \"b.txt\"\n"
                            "expect file \"A.txt\" \"\"\n"
                            "show files\n"
                            "write \"none/a.txt\" \"\"\n"
                            "write \"a\\u0000b\" \"\"\n"),
              (Log{"ok", "ok", "ok \"30\\u00b0\\r\\n\\u0000\\u001a\"", "ok \"\"", "ok [\"A.txt\",\"b.txt\"]",
                   "error the file can't be written", "error File not found"}));
    EXPECT_EQ(stand.Files().Get("b.txt"), std::string("30\xB0\r\n\0\x1A", 7));
}

TEST(ActsOnFormsTest, ThereAreNoPicturesWithoutWindows) {
    ScriptStand stand;
    EXPECT_EQ(stand.AfterStart("shot Form11 \"a.png\"\nshot Form2 \"a.png\"\nshow files\n"),
              (Log{"error there is no picture of Form11", "error Form2 is not visible", "ok []"}));
}

}  // namespace
}  // namespace brindlex
