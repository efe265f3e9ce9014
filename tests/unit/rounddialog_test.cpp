// The four Round Numbers dialogs: what they show, what OK and Cancel write, when they load.
#include "services/rounddialog.h"

#include "faultof.h"
#include "frame/fontwidths.h"
#include "testprogram.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

class RoundDialog : public ::testing::Test {
protected:
    RoundDialog() {
        for (const char* const name : {"Form5", "Form6", "Form9", "Form14"}) {
            program.Owner.Register(name, [name](Program& owner) { return MakeRoundNumbersDialog(owner, name); });
        }
        shared.VerCaption = "Brindlex 3.0.2- ";
        shared.DigitsR = "10";
        shared.DigitsO = "7";
        shared.DigitsB = "12";
        shared.DigitsS = 3;
    }

    RoundNumbersDialog& Dialog(const std::string& name) { return program.Get<RoundNumbersDialog>(name); }

    void RunModal(const std::string& name, const std::function<void(RoundNumbersDialog&)>& person) {
        program.Run.ModalLoop = [&](Form& form) { person(dynamic_cast<RoundNumbersDialog&>(form)); };
        Dialog(name).ShowModal();
    }

    /// "R O B S" digits.
    std::string Digits() {
        return shared.DigitsR + " " + shared.DigitsO + " " + shared.DigitsB + " " + std::to_string(shared.DigitsS);
    }

    TestProgram program;
    SharedState& shared = program.Owner.Shared();
};

TEST_F(RoundDialog, ShowsTheDigitsOfItsOwner) {
    struct Case {
        const char* form;
        const char* owner;
        const char* label;
        const char* text;
    };
    for (const Case& c :
         {Case{"Form5", "Form1", "Round To", "10"}, Case{"Form6", "Form2", "Round To", "7"},
          Case{"Form9", "Form8", "Round Numbers To", "12"}, Case{"Form14", "Form12", "Round to ", "4"}}) {
        SCOPED_TRACE(c.form);
        RoundNumbersDialog& dialog = Dialog(c.form);
        dialog.Load();
        EXPECT_EQ(dialog.DialogOf(), c.owner);
        EXPECT_EQ(dialog.InnerWidth(), 4365);
        EXPECT_EQ(dialog.InnerHeight(), 1455);
        EXPECT_EQ(dialog.Caption(), "Brindlex 3.0.2- Round Numbers");
        EXPECT_EQ(dialog.Label1.Caption(), c.label);
        EXPECT_EQ(dialog.Label2.Caption(), "Decimal Places");
        EXPECT_EQ(dialog.Command1.Caption(), "&OK");
        EXPECT_EQ(dialog.Command2.Caption(), "&Cancel");
        EXPECT_EQ(dialog.Combo1.Text(), c.text);
        EXPECT_EQ(dialog.Combo1.List(), (std::vector<std::string>{"1", "2", "3", "4", "5", "6", "7", "8", "9", "10",
                                                                  "11", "12", "13", "14", "15"}));
        EXPECT_TRUE(dialog.Command1.Default());
        EXPECT_TRUE(dialog.Command2.Cancel());
        EXPECT_EQ(dialog.Label1.Align(), Label::Alignment::Right);
        EXPECT_TRUE(dialog.Combo1.ListOnly());
    }
}

TEST_F(RoundDialog, StandsInTheMiddleOfTheScreen) {
    shared.ScreenH = 768;
    RoundNumbersDialog& dialog = Dialog("Form5");
    dialog.Load();
    const Size screen = program.Owner.Screen();
    EXPECT_EQ(2 * dialog.Left() + dialog.Width(), screen.Width);
    EXPECT_EQ(2 * dialog.Top() + dialog.Height(), screen.Height);
}

TEST_F(RoundDialog, OkTakesTheChosenDigits) {
    struct Case {
        const char* form;
        const char* digits;
    };
    for (const Case& c :
         {Case{"Form5", "2 7 12 3"}, Case{"Form6", "2 2 12 3"}, Case{"Form9", "2 2 2 3"}, Case{"Form14", "2 2 2 2"}}) {
        RunModal(c.form, [](RoundNumbersDialog& dialog) {
            dialog.Combo1.ChooseByPerson(1);
            dialog.PressByPerson(dialog.Command1);
        });
        EXPECT_EQ(Digits(), c.digits) << c.form;
        EXPECT_FALSE(Dialog(c.form).Visible());
        EXPECT_TRUE(Dialog(c.form).Loaded());
    }
}

TEST_F(RoundDialog, CancelWritesTheDigitsOfRightTriangles) {
    struct Case {
        const char* form;
        const char* digits;
    };
    const auto pressCancel = [](RoundNumbersDialog& dialog) { dialog.PressByPerson(dialog.Command2); };
    const auto escape = [](RoundNumbersDialog& dialog) { dialog.TypeByPerson(dialog.Combo1, 27); };
    const auto close = [](RoundNumbersDialog& dialog) { dialog.CloseByPerson(); };
    for (const std::function<void(RoundNumbersDialog&)>& leave :
         {std::function<void(RoundNumbersDialog&)>(pressCancel), std::function<void(RoundNumbersDialog&)>(escape),
          std::function<void(RoundNumbersDialog&)>(close)}) {
        for (const Case& c : {Case{"Form5", "10 7 12 3"}, Case{"Form14", "10 7 12 3"}, Case{"Form6", "7 7 12 3"},
                              Case{"Form9", "12 7 12 3"}}) {
            shared.DigitsR = "10";
            RunModal(c.form, [&](RoundNumbersDialog& dialog) {
                dialog.Combo1.ChooseByPerson(0);
                leave(dialog);
                EXPECT_FALSE(dialog.Visible());
            });
            EXPECT_EQ(Digits(), c.digits) << c.form;
            EXPECT_TRUE(Dialog(c.form).Loaded());
        }
    }
}

TEST_F(RoundDialog, TheComboKeepsItsTextOverCancel) {
    for (const char* const name : {"Form5", "Form6", "Form9", "Form14"}) {
        RunModal(name, [](RoundNumbersDialog& dialog) {
            dialog.Combo1.ChooseByPerson(8);
            dialog.PressByPerson(dialog.Command2);
        });
        RunModal(name, [&](RoundNumbersDialog& dialog) { EXPECT_EQ(dialog.Combo1.Text(), "9") << name; });
    }
}

TEST_F(RoundDialog, AFreshDialogShowsTheRealDigits) {
    RunModal("Form6", [](RoundNumbersDialog& dialog) { dialog.Combo1.ChooseByPerson(8); });
    Dialog("Form6").Unload();
    shared.DigitsO = "4";
    RunModal("Form6", [&](RoundNumbersDialog& dialog) { EXPECT_EQ(dialog.Combo1.Text(), "4"); });
}

TEST_F(RoundDialog, EnterIsOkAndTypingBeeps) {
    RunModal("Form5", [&](RoundNumbersDialog& dialog) {
        EXPECT_EQ(dialog.ActiveControl(), &dialog.Combo1);
        dialog.TypeByPerson(dialog.Combo1, '5');
        dialog.TypeByPerson(dialog.Combo1, 8);
        EXPECT_EQ(dialog.Combo1.Text(), "10");
        EXPECT_EQ(program.Run.Beeps, 2);
        dialog.Combo1.ChooseByPerson(14);
        dialog.TypeByPerson(dialog.Combo1, 13);
        EXPECT_FALSE(dialog.Visible());
    });
    EXPECT_EQ(shared.DigitsR, "15");
}

TEST_F(RoundDialog, NothingIsClipped) {
    for (const char* const name : {"Form5", "Form6", "Form9", "Form14"}) {
        const RoundNumbersDialog& dialog = Dialog(name);
        for (const Label* const label : {&dialog.Label1, &dialog.Label2}) {
            EXPECT_LE(TextWidth(label->Caption(), label->FontSize(), label->FontBold()), label->Width()) << name;
        }
        for (const Control* const control : dialog.Controls()) {
            EXPECT_LE(control->Left() + control->Width(), dialog.InnerWidth()) << control->Name();
            EXPECT_LE(control->Top() + control->Height(), dialog.InnerHeight()) << control->Name();
        }
    }
}

TEST_F(RoundDialog, OtherNamesAreRefused) {
    EXPECT_EQ(FaultOf([&] { (void)MakeRoundNumbersDialog(program.Owner, "Form7"); }), FaultNumber::BadArgument);
    EXPECT_EQ(WordsOf([&] { (void)MakeRoundNumbersDialog(program.Owner, "Form7"); }),
              "There is no Round Numbers dialog Form7");
}

}  // namespace
}  // namespace brindlex
