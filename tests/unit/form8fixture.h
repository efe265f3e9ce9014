// Bolt Circles in a program of its own, shown, in a folder of its own.
#pragma once

#include "app/forms.h"
#include "boltcircle/form8.h"
#include "fakeruntime.h"
#include "frame/program.h"
#include "testfolder.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace brindlex::boltcircle {

inline const std::string Degree = "\xB0";
inline constexpr const char* Title = "Brindlex 3.0.2- Solutions To Bolt Circles";
inline constexpr const char* NotCompleted = "The Form Has Not Been Completed!";
inline constexpr const char* ZeroDiameter = "Diameter Must Be Greater Than Zero";
inline constexpr const char* ZeroHoles = "Number Of Holes Must Be Greater Than Zero";
inline constexpr const char* Trap =
    "An Unexpected Error Has Occured.\r\nTry Reducing the Number of Holes In The Pattern.";
inline constexpr const char* FourHoles =
    "Holes:  4\r\nChordal Distance:  7.0711\r\nAngle Spacing:  90\xB0\r\nDiameter Of Circle: 10\r\n"
    "Center at: X= 0, Y= 0\r\nStart Angle: 0\xB0\r\nHole 1: X=  5 , Y=  0\r\nHole 2: X=  0 , Y=  5\r\n"
    "Hole 3: X= -5 , Y=  0\r\nHole 4: X=  0 , Y= -5\r\n";

class Form8Test : public ::testing::Test {
protected:
    Form8Test() { Begin(); }

    /// A fresh program in the same folder, with Bolt Circles shown.
    void Begin() {
        program.reset();
        runtime = std::make_unique<FakeRuntime>(run);
        program = std::make_unique<Program>(*runtime, folder.Files());
        RegisterForms(*program);
        program->Start();
        program->Get("Form11").GoTo("Form8");
        form = &dynamic_cast<Form8&>(program->Get("Form8"));
    }
    Form8& F() { return *form; }

    void Enter(const std::vector<std::string>& texts) {
        TextBox* const boxes[] = {&F().Text1, &F().Text2, &F().Text3, &F().Text4, &F().Text5};
        for (std::size_t i = 0; i < texts.size(); ++i) {
            boxes[i]->Text(texts[i]);
        }
    }
    void Solve(const std::vector<std::string>& texts) {
        Enter(texts);
        F().Command1.Value(true);
    }
    std::vector<std::string> Entered() {
        return {F().Text1.Text(), F().Text2.Text(), F().Text3.Text(), F().Text4.Text(), F().Text5.Text()};
    }
    /// The texts of the boxes since the last call; each must have been preceded by a beep and have this style.
    std::vector<std::string> Boxes(int boxStyle = style::Exclamation) {
        std::vector<std::string> texts;
        EXPECT_EQ(run.Beeps, static_cast<int>(run.Boxes.size()));
        for (const MessageBox& box : run.Boxes) {
            EXPECT_EQ(box.Style, boxStyle);
            EXPECT_EQ(box.Caption, "Brindlex");
            texts.push_back(box.Text);
        }
        run.Boxes.clear();
        run.Beeps = 0;
        return texts;
    }
    void Open(const std::string& name) {
        run.Files.emplace_back(name);
        F().OpenFile.FireClick();
    }

    using Texts = std::vector<std::string>;

    TestFolder folder;
    DrivenRun run;
    std::unique_ptr<FakeRuntime> runtime;
    std::unique_ptr<Program> program;
    Form8* form = nullptr;
};

}  // namespace brindlex::boltcircle
