// Sine Plates in a program and a folder of its own, shown.
#pragma once

#include "fakeruntime.h"
#include "frame/form11.h"
#include "frame/program.h"
#include "services/minutesdialog.h"
#include "services/rounddialog.h"
#include "sineplate/form12.h"
#include "testfolder.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace brindlex::sineplate {

using Texts = std::vector<std::string>;

inline constexpr const char* Incomplete = "You Haven't Completed The Form";
inline constexpr const char* TooLarge = "Angle Must Be 90 Degrees Or Less";
inline constexpr const char* NotValid = "These Values Are Not Valid For Calculating";

class SinePlates : public ::testing::Test {
protected:
    SinePlates() {
        program.Register("Form11", [](Program& owner) { return std::make_unique<Form11>(owner); });
        program.Register("Form12", [](Program& owner) { return std::make_unique<Form12>(owner); });
        program.Register("Form13", [](Program& owner) { return MakeMinutesSecondsDialog(owner, "Form13"); });
        program.Register("Form14", [](Program& owner) { return MakeRoundNumbersDialog(owner, "Form14"); });
        program.Start();
        program.Get("Form11").GoTo("Form12");
    }

    Form12& F() { return dynamic_cast<Form12&>(program.Get("Form12")); }
    void Regular(const std::string& angle) {
        F().Text1.Text(angle);
        F().Command1.Value(true);
    }
    void Compound(const std::string& bottom, const std::string& top) {
        F().Option2.Value(true);
        F().Text1.Text(bottom);
        F().Text2.Text(top);
        F().Command1.Value(true);
    }
    void Open(const std::string& content) {
        folder.Put("any.sin", content);
        run.Files.emplace_back("any.sin");
        F().OPenFile.FireClick();
    }
    /// The boxes since the last call, all of style 0, and how many beeps came with them.
    Texts Boxes(int beeps) {
        Texts texts;
        EXPECT_EQ(run.Beeps, beeps);
        for (const MessageBox& box : run.Boxes) {
            EXPECT_EQ(box.Style, 0);
            EXPECT_EQ(box.Caption, "Brindlex");
            texts.push_back(box.Text);
        }
        run.Boxes.clear();
        run.Beeps = 0;
        return texts;
    }
    std::string Focus() { return F().ActiveControl() == nullptr ? "" : F().ActiveControl()->Name(); }
    void ExpectNoResults() {
        for (const Control* const control : std::vector<Control*>{&F().Label3, &F().Text3, &F().Label5, &F().Text4}) {
            EXPECT_FALSE(control->Visible()) << control->Name();
        }
        EXPECT_EQ(F().Text3.Text(), "");
        EXPECT_EQ(F().Text4.Text(), "");
        EXPECT_EQ(F().Label7.Caption(), "");
    }

    TestFolder folder;
    DrivenRun run;
    FakeRuntime runtime{run};
    Program program{runtime, folder.Files()};
};

}  // namespace brindlex::sineplate
