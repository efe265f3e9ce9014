// The four Minutes and Seconds dialogs: opening, the limits, OK, Cancel.
#include "services/minutesdialog.h"

#include "faultof.h"
#include "frame/fontwidths.h"
#include "testprogram.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

/// A calculator with two angles; its check boxes open the dialog as the real ones do.
class SampleOwner : public Form, public AngleOwner {
public:
    SampleOwner(Program& program, const std::string& name, const std::string& dialog)
        : Form(program, name, 3000, 2000), dialog_(dialog) {
        for (CheckBox* const check : {&Check1, &Check2}) {
            check->Click.Bind([this, check] {
                Log += check->Name() + "=" + std::to_string(check->Value()) + " ";
                if (check->Value() != 0) {
                    Owner().Get(dialog_).ShowModal();
                }
            });
        }
        for (TextBox* const box : {&Text1, &Text2}) {
            box->Change.Bind([this, box] { Log += box->Name() + "<" + box->Text() + "> "; });
        }
    }

    std::vector<AngleField> AngleFields() override {
        return {{&Check1, &Text1, "Required Angle:"}, {&Check2, &Text2, "Top Angle:"}};
    }

    TextBox Text1{*this, "Text1", {0, 0, 900, 300}};
    TextBox Text2{*this, "Text2", {0, 300, 900, 300}};
    CheckBox Check1{*this, "Check1", {0, 600, 900, 300}, "Add D/M/S"};
    CheckBox Check2{*this, "Check2", {0, 900, 900, 300}, "Add D/M/S"};
    std::string Log;

private:
    std::string dialog_;
};

const std::string TooManyMinutes =
    "These Values Will Not Work. Neither Minutes NOR\r\nSeconds Can Be Equal To, Or Greater Than 60.\"";
const std::string TooManyDegrees =
    "The Sum Of These Values Is Equal To, Or Greater Than 90.\r\nPlease Re-Check Your Information And Try Again.";

struct Pair {
    const char* dialog;
    const char* owner;
};
constexpr Pair Pairs[] = {{"Form3", "Form1"}, {"Form4", "Form2"}, {"Form13", "Form12"}, {"Form15", "Form8"}};

using Person = std::function<void(MinutesSecondsDialog&)>;

class MinutesDialog : public ::testing::Test {
protected:
    MinutesDialog() {
        program.Owner.Shared().VerCaption = "Brindlex 3.0.2- ";
        for (const Pair& pair : Pairs) {
            const std::string dialog = pair.dialog;
            program.Register<SampleOwner>(pair.owner, std::string(pair.owner), dialog);
            program.Owner.Register(dialog,
                                   [dialog](Program& owner) { return MakeMinutesSecondsDialog(owner, dialog); });
        }
    }

    SampleOwner& Owner(const std::string& name) {
        auto& owner = program.Get<SampleOwner>(name);
        owner.Show();
        return owner;
    }

    /// Opens the dialog on the first angle with a text in its box.
    SampleOwner& Open(const Pair& pair, const std::string& angle, const Person& person) {
        SampleOwner& owner = Owner(pair.owner);
        owner.Text1.Text(angle);
        owner.Log.clear();
        program.Run.Boxes.clear();
        program.Run.ModalLoop = [&](Form& form) { person(dynamic_cast<MinutesSecondsDialog&>(form)); };
        owner.Check1.PressByPerson();
        return owner;
    }

    /// Fills the boxes and presses OK. The box texts that came, or the owner's angle where the dialog went.
    std::string Ok(const Pair& pair, const std::string& degrees, const std::string& minutes,
                   const std::string& seconds) {
        bool stays = false;
        SampleOwner& owner = Open(pair, "", [&](MinutesSecondsDialog& dialog) {
            dialog.Text1.Text(degrees);
            dialog.Text2.Text(minutes);
            dialog.Text3.Text(seconds);
            dialog.PressByPerson(dialog.Command1);
            stays = dialog.Visible();
            if (stays) {
                EXPECT_EQ(dialog.Text1.Text() + dialog.Text2.Text() + dialog.Text3.Text(), degrees + minutes + seconds);
                dialog.CloseByPerson();
            }
        });
        EXPECT_EQ(owner.Check1.Value(), 0);
        EXPECT_EQ(program.Run.Beeps, 0);
        if (!stays) {
            EXPECT_TRUE(program.Run.Boxes.empty());
            return owner.Text1.Text();
        }
        EXPECT_EQ(program.Run.Boxes.size(), 1U);
        EXPECT_EQ(program.Run.Boxes.at(0).Style, 0);
        EXPECT_EQ(program.Run.Boxes.at(0).Caption, "Brindlex");
        return program.Run.Boxes.at(0).Text;
    }

    TestProgram program;
};

TEST_F(MinutesDialog, StandsInTheMiddleWithTheCursorBehindTheDegrees) {
    bool shown = false;
    program.Owner.Shared().ScreenH = 768;
    Open(Pairs[0], "45.5", [&](MinutesSecondsDialog& dialog) {
        shown = true;
        EXPECT_EQ(dialog.Text1.SelStart(), 2);
        const Size screen = program.Owner.Screen();
        EXPECT_EQ(2 * dialog.Left() + dialog.Width(), screen.Width);
        EXPECT_EQ(2 * dialog.Top() + dialog.Height(), screen.Height);
        dialog.CloseByPerson();
    });
    EXPECT_TRUE(shown);
}

TEST_F(MinutesDialog, WithoutACheckTheFirstAngleIsMeant) {
    Owner("Form2").Text2.Text("7");
    std::string label;
    program.Run.ModalLoop = [&](Form& form) { label = dynamic_cast<MinutesSecondsDialog&>(form).Label1.Caption(); };
    program.Owner.Get("Form4").ShowModal();
    EXPECT_EQ(label, "Required Angle:");
}

TEST_F(MinutesDialog, AFormWithoutAnglesHasNone) {
    program.Register<Form>("Form1", "Form1", 600.0, 600.0);
    program.Owner.Get("Form3").ShowModal();
    ASSERT_FALSE(program.Run.Boxes.empty());
    EXPECT_NE(program.Run.Boxes[0].Text.find("Form1 has no angles"), std::string::npos);
    EXPECT_TRUE(program.Owner.Ended());
    EXPECT_EQ(WordsOf([&] { static_cast<void>(MakeMinutesSecondsDialog(program.Owner, "Form1")); }),
              "There is no Minutes and Seconds dialog Form1");
}

TEST_F(MinutesDialog, OpensWithItsTexts) {
    for (const Pair& pair : Pairs) {
        SCOPED_TRACE(pair.dialog);
        Open(pair, "30", [&](MinutesSecondsDialog& dialog) {
            EXPECT_EQ(dialog.Name(), pair.dialog);
            EXPECT_EQ(dialog.DialogOf(), pair.owner);
            EXPECT_EQ(dialog.InnerWidth(), 4665);
            EXPECT_EQ(dialog.InnerHeight(), 1695);
            EXPECT_EQ(dialog.Caption(), "Brindlex 3.0.2- Add Minutes And Seconds");
            EXPECT_EQ(dialog.Label1.Caption(), dialog.Name() == "Form15" ? "Degrees" : "Required Angle:");
            EXPECT_EQ(dialog.Label2.Caption(), "Minutes");
            EXPECT_EQ(dialog.Label3.Caption(), "Seconds");
            EXPECT_EQ(dialog.Command1.Caption(), "&OK");
            EXPECT_EQ(dialog.Command2.Caption(), "&Cancel");
            EXPECT_TRUE(dialog.Command1.Default());
            EXPECT_TRUE(dialog.Command2.Cancel());
            EXPECT_EQ(dialog.Text1.Text(), "30");
            EXPECT_EQ(dialog.Text2.Text(), "");
            EXPECT_EQ(dialog.Text3.Text(), "");
        });
    }
}

TEST_F(MinutesDialog, TheOwnerLosesItsFractionAtOnce) {
    struct Case {
        const char* angle;
        const char* opens;
        const char* log;
    };
    for (const Case& c : {Case{"30.5", "30", "Check1=1 Text1<30> "}, Case{"30", "30", "Check1=1 "},
                          Case{"30.", "30", "Check1=1 Text1<30> "}, Case{".5", "", "Check1=1 Text1<> "},
                          Case{"1.2.3", "1", "Check1=1 Text1<1> "}, Case{"-7.25", "-7", "Check1=1 Text1<-7> "},
                          Case{"", "", "Check1=1 "}}) {
        SCOPED_TRACE(c.angle);
        const SampleOwner& owner = Open(Pairs[0], c.angle, [&](MinutesSecondsDialog& dialog) {
            EXPECT_EQ(dialog.Text1.Text(), c.opens);
            EXPECT_EQ(program.Get<SampleOwner>("Form1").Log, c.log);
            dialog.PressByPerson(dialog.Command2);
        });
        // Cancel does not bring it back.
        EXPECT_EQ(owner.Text1.Text(), c.opens);
        EXPECT_EQ(owner.Log, std::string(c.log) + "Check1=0 ");
    }
}

TEST_F(MinutesDialog, TheFocusStartsWhereTheEntryGoesOn) {
    Open(Pairs[1], "30", [](MinutesSecondsDialog& dialog) {
        EXPECT_EQ(dialog.ActiveControl(), &dialog.Text2);
        EXPECT_EQ(dialog.Text2.TabIndex(), 0);
        EXPECT_EQ(dialog.Text3.TabIndex(), 1);
        EXPECT_EQ(dialog.Command1.TabIndex(), 2);
        EXPECT_EQ(dialog.Command2.TabIndex(), 3);
        dialog.TabByPerson();
        EXPECT_EQ(dialog.ActiveControl(), &dialog.Text3);
        dialog.TabByPerson();
        EXPECT_EQ(dialog.ActiveControl(), &dialog.Command1);
        dialog.CloseByPerson();
    });
    Open(Pairs[1], "", [](MinutesSecondsDialog& dialog) {
        EXPECT_EQ(dialog.ActiveControl(), &dialog.Text1);
        dialog.TabByPerson();
        EXPECT_EQ(dialog.ActiveControl(), &dialog.Text2);
        dialog.CloseByPerson();
    });
}

TEST_F(MinutesDialog, BoxesSelectTheirTextAndLeaveActiveTextAlone) {
    program.Owner.Shared().ActiveText = "Text2";
    Open(Pairs[0], "30", [&](MinutesSecondsDialog& dialog) {
        dialog.FocusByPerson(dialog.Text1);
        EXPECT_EQ(dialog.Text1.SelText(), "30");
        dialog.CloseByPerson();
    });
    EXPECT_EQ(program.Owner.Shared().ActiveText, "Text2");
}

TEST_F(MinutesDialog, OkAddsUp) {
    struct Case {
        const char* degrees;
        const char* minutes;
        const char* seconds;
        const char* angle;
    };
    const Case cases[] = {
        {"45", "30", "0", "45.5"},
        {"45", "", "", "45"},
        {"", "30", "", ".5"},
        {"", "", "", "0"},
        {"10", "59", "59.9", "10.9999722222222"},
        {"0", "0", "0.036", "1E-05"},
        // Without its first character a negative angle loses its sign.
        {"-30", "30", "", "29.5"},
    };
    for (const Pair& pair : Pairs) {
        for (const Case& c : cases) {
            EXPECT_EQ(Ok(pair, c.degrees, c.minutes, c.seconds), c.angle) << pair.dialog << " " << c.angle;
        }
    }
}

TEST_F(MinutesDialog, SixtyMinutesOrSecondsAreRefused) {
    for (const Pair& pair : Pairs) {
        for (const auto& [minutes, seconds] : {std::pair{"60", "0"}, {"0", "60"}, {"61", "61"}, {"0", "60.0"}}) {
            EXPECT_EQ(Ok(pair, "30", minutes, seconds), TooManyMinutes) << pair.dialog;
        }
        EXPECT_EQ(Ok(pair, "30", "59", "0"), "30.9833333333333");
    }
    // The minutes are looked at first.
    EXPECT_EQ(Ok(Pairs[0], "95", "60", "0"), TooManyMinutes);
}

TEST_F(MinutesDialog, OnlyRightTrianglesStopAtNinety) {
    EXPECT_EQ(Ok(Pairs[0], "89", "59", "59.9"), "89.9999722222222");
    EXPECT_EQ(Ok(Pairs[0], "90", "", ""), TooManyDegrees);
    EXPECT_EQ(Ok(Pairs[0], "120", "0", "0"), TooManyDegrees);
    for (const Pair& pair : {Pairs[1], Pairs[2], Pairs[3]}) {
        EXPECT_EQ(Ok(pair, "120", "", ""), "120") << pair.dialog;
    }
}

TEST_F(MinutesDialog, NumbersOutOfRangeAreRefused) {
    const std::string huge(400, '9');
    for (const Pair& pair : Pairs) {
        EXPECT_EQ(Ok(pair, "1", huge, "0"), TooManyMinutes);
        EXPECT_EQ(Ok(pair, "1", "0", huge), TooManyMinutes);
    }
    EXPECT_EQ(Ok(Pairs[0], huge, "0", "0"), TooManyDegrees);
    EXPECT_EQ(Ok(Pairs[1], huge, "0", "0"), "The Sum Of These Values Is Too Large.");
    EXPECT_FALSE(program.Owner.Ended());
}

TEST_F(MinutesDialog, OkWritesTextThenCheckThenGoes) {
    const SampleOwner& owner = Open(Pairs[1], "12.5", [](MinutesSecondsDialog& dialog) {
        dialog.Text2.Text("15");
        dialog.TypeByPerson(dialog.Text2, 13);
        EXPECT_FALSE(dialog.Loaded());
    });
    EXPECT_EQ(owner.Log, "Check1=1 Text1<12> Text1<12.25> Check1=0 ");
}

TEST_F(MinutesDialog, TheCheckedBoxIsServed) {
    for (const Pair& pair : Pairs) {
        SCOPED_TRACE(pair.dialog);
        SampleOwner& owner = Owner(pair.owner);
        owner.Text1.Text("1.5");
        owner.Text2.Text("2.5");
        program.Run.ModalLoop = [&](Form& form) {
            auto& dialog = dynamic_cast<MinutesSecondsDialog&>(form);
            EXPECT_EQ(dialog.Label1.Caption(), form.Name() == "Form15" ? "Degrees" : "Top Angle:");
            dialog.Text3.Text("36");
            dialog.PressByPerson(dialog.Command1);
        };
        owner.Check2.PressByPerson();
        EXPECT_EQ(owner.Text1.Text(), "1.5");
        EXPECT_EQ(owner.Text2.Text(), "2.01");
        EXPECT_EQ(owner.Check2.Value(), 0);
    }
}

TEST_F(MinutesDialog, CancelUnchecksBothAndUnloads) {
    const Person ways[] = {
        [](MinutesSecondsDialog& dialog) { dialog.PressByPerson(dialog.Command2); },
        [](MinutesSecondsDialog& dialog) { dialog.TypeByPerson(dialog.Text2, 27); },
        [](MinutesSecondsDialog& dialog) { dialog.CloseByPerson(); },
    };
    for (const Pair& pair : Pairs) {
        for (const Person& leave : ways) {
            const SampleOwner& owner = Open(pair, "30.5", [&](MinutesSecondsDialog& dialog) {
                program.Get<SampleOwner>(pair.owner).Check2.Click.Bind([] {});
                program.Get<SampleOwner>(pair.owner).Check2.Value(1);
                dialog.Text2.Text("15");
                leave(dialog);
                EXPECT_FALSE(dialog.Loaded());
            });
            EXPECT_EQ(owner.Text1.Text(), "30");
            EXPECT_EQ(owner.Check1.Value(), 0);
            EXPECT_EQ(owner.Check2.Value(), 0);
        }
    }
}

TEST_F(MinutesDialog, KeysAreFiltered) {
    Open(Pairs[3], "", [&](MinutesSecondsDialog& dialog) {
        for (const char key : std::string("1.2.3")) {
            dialog.TypeByPerson(dialog.Text3, key);
        }
        EXPECT_EQ(dialog.Text3.Text(), "1.2.3");
        EXPECT_EQ(program.Run.Beeps, 0);
        dialog.TypeByPerson(dialog.Text1, '.');
        EXPECT_EQ(program.Run.Beeps, 1);
        // 1.2 seconds.
        dialog.PressByPerson(dialog.Command1);
    });
    EXPECT_EQ(Owner("Form8").Text1.Text(), ".000333333333333333");
}

TEST_F(MinutesDialog, NothingIsClipped) {
    for (const Pair& pair : Pairs) {
        Open(pair, "30", [&](MinutesSecondsDialog& dialog) {
            for (const char* const name : {"Required Angle:", "Bottom Angle:", "Angle B", "Degrees"}) {
                EXPECT_LE(TextWidth(name, dialog.Label1.FontSize(), false), dialog.Label1.Width()) << name;
            }
            for (const Control* const control : dialog.Controls()) {
                EXPECT_LE(control->Left() + control->Width(), dialog.InnerWidth()) << control->Name();
                EXPECT_LE(control->Top() + control->Height(), dialog.InnerHeight()) << control->Name();
            }
            dialog.CloseByPerson();
        });
    }
}

TEST_F(MinutesDialog, OtherNamesAreRefused) {
    EXPECT_EQ(FaultOf([&] { (void)MakeMinutesSecondsDialog(program.Owner, "Form5"); }), FaultNumber::BadArgument);
}

}  // namespace
}  // namespace brindlex
