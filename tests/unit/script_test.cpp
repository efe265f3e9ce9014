// The interpreter of scripts: answers, order of things, modal nesting, the end, stopping at an error.
#include "headless/script.h"
#include "scriptforms.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(ScriptTest, BlankLinesAndCommentsGetNoAnswer) {
    ScriptStand stand;
    EXPECT_EQ(stand.Answers("\n# start\n   \n\t# more\nshow ended\r\n"), (Log{"ok 0"}));
}

TEST(ScriptTest, WhatIsNotUnderstoodIsAnError) {
    ScriptStand stand;
    EXPECT_EQ(stand.AfterStart("jump\n"
                               "press\n"
                               "press Form11\n"
                               "press Form11.Command9\n"
                               "press Form9.Command1\n"
                               "press Form11.Command1 twice\n"
                               "Press Form11.Command1\n"
                               "type Form11.Text1 abc\n"
                               "type Form11.Text1 \"abc\n"
                               "type Form11.Text1 \"\\q\"\n"
                               "type Form11.Text1 \"a\"b\n"
                               "type Form11.Text1 \"\\u0100\"\n"
                               "type Form11.Text1 \"\\u0000\"\n"
                               "key Form11.Text1 1.5\n"
                               "key Form11.Text1 0\n"
                               "key Form11.Text1 256\n"
                               "key Form11.Text1 x\n"
                               "wait -1\n"
                               "wait nan\n"
                               "show\n"
                               "show Form11.Command1\n"
                               "show Form11.Text1.Speed\n"
                               "show Form11.Text1.Text 1\n"
                               "show shared.Nothing\n"
                               "show file\n"
                               "show file \"none.txt\"\n"
                               "expect ended\n"
                               "expect ended [0\n"),
              (Log{"error there is no command jump",
                   "error too little is said",
                   "error a name such as Form1.Text1 is wanted",
                   "error Form11 has no Command9",
                   "error there is no form Form9",
                   "error too much is said",
                   "error there is no command Press",
                   "error a text in double quotes is wanted",
                   "error a text does not end",
                   "error a value is not understood",
                   "error a blank is wanted behind a text",
                   "error a text has a character above 255",
                   "error there is no key of code 0",
                   "error a whole number is wanted",
                   "error a code from 1 to 255 is wanted",
                   "error a code from 1 to 255 is wanted",
                   "error a number is wanted",
                   "error time does not go back",
                   "error a number is wanted",
                   "error too little is said",
                   "error Form11 has no property Command1",
                   "error Text1 has no property Speed",
                   "error too much is said",
                   "error there is no shared variable Nothing",
                   "error a text in double quotes is wanted",
                   "error there is no file none.txt",
                   "error a value is wanted",
                   "error a value is not understood"}));
    EXPECT_EQ(stand.Heard, (Log{"Form11_Resize", "Text1_GotFocus"}));
}

TEST(ScriptTest, BeforeTheStartOnlyPreparations) {
    ScriptStand stand;
    EXPECT_EQ(stand.Answers("press Form11.Command1\n"
                            "set Form11.Caption \"x\"\n"
                            "wait 1\n"
                            "tab\n"
                            "clipboard \"a\"\n"
                            "answer yes\n"
                            "input \"b\"\n"
                            "dialog \"c.txt\"\n"
                            "printer 2\n"
                            "write \"d.txt\" \"e\"\n"
                            "show files\n"
                            "show screen\n"
                            "show loaded\n"
                            "start\n"
                            "start\n"
                            "show loaded\n"),
              (Log{"error the program has not started", "error the program has not started",
                   "error the program has not started", "error the program has not started", "ok", "ok", "ok", "ok",
                   "ok", "ok", "ok [\"d.txt\"]", "ok [15360,11520]", "ok []", "ok",
                   "error the program has started already", "ok [\"Form11\"]"}));
    EXPECT_EQ(stand.Run().Answers.front(), Answer::Yes);
    EXPECT_EQ(stand.Run().Inputs.front(), "b");
    EXPECT_EQ(stand.Run().Files.front(), "c.txt");
    EXPECT_EQ(stand.Run().Printers.front()->Copies, 2);
}

TEST(ScriptTest, ModalFormAnswersItsOpenerAtOnceAndItsCloserAtTheEnd) {
    ScriptStand stand;
    const Log answers = stand.AfterStart(
        "press Form11.Command2\n"
        "show modal\n"
        "show forms\n"
        "press Form11.Command1\n"
        "type Form2.Text1 \"5\"\n"
        "show Form2.Text1.Text\n"
        "press Form2.Command1\n"
        "show modal\n"
        "show forms\n"
        "show loaded\n"
        "press Form2.Command1\n"
        "press Form11.Command1\n");
    EXPECT_EQ(answers, (Log{"ok", "ok \"Form2\"", "ok [\"Form11\",\"Form2\"]", "error Form11 is behind Form2", "ok",
                            "ok \"5\"", "ok", "ok \"\"", "ok [\"Form11\"]", "ok [\"Form11\",\"Form2\"]",
                            "error Form2 is not visible", "ok"}));
    EXPECT_EQ(stand.Heard,
              (Log{"Form11_Resize", "Text1_GotFocus", "Text1_LostFocus", "Command2 after Form2", "Command1_Click"}));
}

// The order of answers against what the handlers do is seen in the output itself: each writes there too.
TEST(ScriptTest, CloserIsAnsweredAfterTheWaitingHandlerHasRunOn) {
    ScriptStand stand;
    std::ostringstream out;
    stand.Main().OnCommand1 = [&] {
        stand.App().Get("Form2").ShowModal();
        out << "handler runs on\n";
    };
    std::istringstream in("start\npress Form11.Command1\nclose Form2\nshow modal\n");
    Script(stand.App(), stand.Run(), stand.Hands(), in, out, Script::AtError::GoOn).Run();
    EXPECT_EQ(out.str(), "ok\nok\nhandler runs on\nok\nok \"\"\n");
}

TEST(ScriptTest, HandlerThatGoesFromOneModalFormToTheNextAnswersInBetween) {
    ScriptStand stand;
    std::ostringstream out;
    stand.Main().OnCommand1 = [&] {
        stand.App().Get("Form2").ShowModal();
        out << "between\n";
        stand.App().Get("Form3").ShowModal();
        out << "after\n";
    };
    std::istringstream in(
        "start\npress Form11.Command1\nshow modal\nclose Form2\nshow modal\nclose Form3\nshow modal\n");
    Script(stand.App(), stand.Run(), stand.Hands(), in, out, Script::AtError::GoOn).Run();
    EXPECT_EQ(out.str(), "ok\nok\nok \"Form2\"\nbetween\nok\nok \"Form3\"\nafter\nok\nok \"\"\n");
}

TEST(ScriptTest, ModalFormsNestTwoDeep) {
    ScriptStand stand;
    EXPECT_EQ(stand.AfterStart("press Form11.Command2\n"
                               "press Form2.Command2\n"
                               "show modal\n"
                               "press Form2.Command1\n"
                               "press Form3.Command1\n"
                               "show modal\n"
                               "press Form2.Command1\n"
                               "show modal\n"),
              (Log{"ok", "ok", "ok \"Form3\"", "error Form2 is behind Form3", "ok", "ok \"Form2\"", "ok", "ok \"\""}));
    EXPECT_EQ(stand.Heard,
              (Log{"Form11_Resize", "Text1_GotFocus", "Text1_LostFocus", "Form2 after Form3", "Command2 after Form2"}));
}

TEST(ScriptTest, OneCommandMayCloseTwoModalForms) {
    ScriptStand stand;
    EXPECT_EQ(stand.AfterStart("press Form11.Command2\n"
                               "press Form2.Command3\n"
                               "press Form3.Command1\n"
                               "show modal\n"
                               "show forms\n"),
              (Log{"ok", "ok", "ok", "ok \"\"", "ok [\"Form11\"]"}));
    EXPECT_EQ(stand.Heard,
              (Log{"Form11_Resize", "Text1_GotFocus", "Text1_LostFocus", "Form2 hides", "Command2 after Form2"}));
}

TEST(ScriptTest, EndOfTheProgramInsideAModalForm) {
    ScriptStand stand;
    EXPECT_EQ(stand.AfterStart("press Form11.Command2\n"
                               "press Form2.Command2\n"
                               "press Form3.Command4\n"
                               "show ended\n"
                               "show forms\n"
                               "show loaded\n"
                               "show modal\n"
                               "press Form11.Command1\n"
                               "clipboard \"a\"\n"
                               "start\n"
                               "wait 1\n"
                               "jump\n"
                               "expect ended -1\n"
                               "near ended -1 0\n"
                               "quit\n"),
              (Log{"ok", "ok", "ok", "ok -1", "ok []", "ok []", "ok \"\"", "error the program has ended",
                   "error the program has ended", "error the program has ended", "error the program has ended",
                   "error the program has ended", "ok -1", "ok -1", "ok"}));
    // Neither handler that waited ran on.
    EXPECT_EQ(stand.Heard, (Log{"Form11_Resize", "Text1_GotFocus", "Text1_LostFocus"}));
}

TEST(ScriptTest, CommandsThatEndInsideAModalFormUnwindIt) {
    for (const std::string last : {"", "quit\n"}) {
        ScriptStand stand;
        const Log answers = stand.AfterStart("press Form11.Command2\npress Form2.Command2\n" + last);
        EXPECT_EQ(answers, last.empty() ? (Log{"ok", "ok"}) : (Log{"ok", "ok", "ok"}));
        EXPECT_TRUE(stand.App().Ended());
        EXPECT_EQ(stand.App().ModalForm(), nullptr);
        EXPECT_EQ(stand.Heard, (Log{"Form11_Resize", "Text1_GotFocus", "Text1_LostFocus"}));
    }
}

TEST(ScriptTest, NothingIsReadBehindQuit) {
    ScriptStand stand;
    EXPECT_EQ(stand.Answers("quit now\nquit\nshow ended\n"), (Log{"error too much is said", "ok"}));
}

TEST(ScriptTest, AnErrorStopsAScript) {
    ScriptStand stand;
    const Log answers = stand.Answers("start\n\n# two\npress Form11.Nothing\nshow ended\n", Script::AtError::Stop);
    EXPECT_EQ(answers, (Log{"ok", "error Form11 has no Nothing"}));
    ASSERT_TRUE(stand.Stop.has_value());
    EXPECT_EQ(stand.Stop->Line, 4);
    EXPECT_EQ(stand.Stop->Command, "press Form11.Nothing");
    EXPECT_EQ(stand.Stop->Answer, "error Form11 has no Nothing");
}

TEST(ScriptTest, AnErrorInsideAModalFormStopsAScript) {
    ScriptStand stand;
    const Log answers =
        stand.Answers("start\npress Form11.Command2\nexpect modal \"\"\nshow ended\n", Script::AtError::Stop);
    EXPECT_EQ(answers, (Log{"ok", "ok", "error expected \"\" but it is \"Form2\""}));
    ASSERT_TRUE(stand.Stop.has_value());
    EXPECT_EQ(stand.Stop->Line, 3);
    EXPECT_TRUE(stand.App().Ended());
}

TEST(ScriptTest, AScriptWithoutErrorDoesNotStop) {
    ScriptStand stand;
    EXPECT_EQ(stand.Answers("start\nexpect ended 0\n", Script::AtError::Stop), (Log{"ok", "ok 0"}));
    EXPECT_FALSE(stand.Stop.has_value());
}

TEST(ScriptTest, ExpectComparesExactly) {
    ScriptStand stand;
    EXPECT_EQ(stand.AfterStart("expect Form11.Text1.Text \"abc\"\n"
                               "expect Form11.Text1.Text \"abc \"\n"
                               "expect Form11.Text1.Left 120.0\n"
                               "expect Form11.Text1.Left \"120\"\n"
                               "expect Form11.Combo1.List [\"Inch\", \"Metric\"]\n"
                               "expect Form11.Combo1.List [\"Metric\", \"Inch\"]\n"
                               "expect Form11.Text1.Text\n"),
              (Log{"ok \"abc\"", "error expected \"abc \" but it is \"abc\"", "ok 120",
                   "error expected \"120\" but it is 120", "ok [\"Inch\",\"Metric\"]",
                   "error expected [\"Metric\",\"Inch\"] but it is [\"Inch\",\"Metric\"]", "error a value is wanted"}));
}

TEST(ScriptTest, NearTakesNumbersAndTextsByVal) {
    ScriptStand stand;
    EXPECT_EQ(stand.AfterStart("set Form11.Text1.Text \" 3.14 in\"\n"
                               "near Form11.Text1.Text 3 0.15\n"
                               "near Form11.Text1.Text 3 0.1\n"
                               "near Form11.Text1.Left 121 1\n"
                               "near Form11.Text1.Left 122 1\n"
                               "near Form11.Combo1.List 1 1\n"
                               "set Form11.Text1.Text \"1E999\"\n"
                               "near Form11.Text1.Text 3 0.1\n"
                               "near Form11.Text1.Left 1\n"),
              (Log{"ok", "ok \" 3.14 in\"", "error expected 3 within 0.1 but it is \" 3.14 in\"", "ok 120",
                   "error expected 122 within 1 but it is 120", "error a list is no number", "ok", "error Overflow",
                   "error too little is said"}));
}

TEST(ScriptTest, AnswersAreAsciiAndNumbersReadBack) {
    ScriptStand stand;
    EXPECT_EQ(stand.AfterStart("set Form11.Text1.Text \"30\\u00b0 \u00e9\\r\\n\\t\\\"\\\\\\u0080\"\n"
                               "show Form11.Text1.Text\n"
                               "set Form11.Picture1.CurrentX 0.1\n"
                               "show Form11.Picture1.CurrentX\n"
                               "set Form11.Picture1.CurrentX 1e300\n"
                               "show Form11.Picture1.CurrentX\n"
                               "set Form11.Picture1.CurrentX -2.50\n"
                               "show Form11.Picture1.CurrentX\n"
                               "set Form11.Picture1.CurrentX 12345678901\n"
                               "show Form11.Picture1.CurrentX\n"
                               "show Form11.\u00e9.Text\n"),
              (Log{"ok", "ok \"30\\u00b0 \\u00e9\\r\\n\\t\\\"\\\\\\u0080\"", "ok", "ok 0.1", "ok", "ok 1e+300", "ok",
                   "ok -2.5", "ok", "ok 12345678901", "error Form11 has no ??"}));
}

}  // namespace
}  // namespace brindlex
