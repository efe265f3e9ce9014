// Polygons in a program and a folder of its own, shown.
#pragma once

#include "fakeruntime.h"
#include "frame/form11.h"
#include "frame/program.h"
#include "polygon/form16.h"
#include "testfolder.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace brindlex::polygon {

using Texts = std::vector<std::string>;

inline constexpr const char* Incomplete = "The Form Has Not Been Completed!";
inline constexpr const char* TooFew = "The Number of Sides Must Be Greater Than 2!";
inline constexpr const char* TooMany = "Can Not Exceed 36 Sides!";
inline constexpr const char* NotValid = "These Values Are Not Valid For Calculating";
inline constexpr const char* Title = "Brindlex 3.0.2- Solutions To Polygons";

class Polygons : public ::testing::Test {
protected:
    Polygons() {
        program.Register("Form11", [](Program& owner) { return std::make_unique<Form11>(owner); });
        program.Register("Form16", [](Program& owner) { return std::make_unique<Form16>(owner); });
        program.Start();
        program.Get("Form11").GoTo("Form16");
    }

    Form16& F() { return dynamic_cast<Form16&>(program.Get("Form16")); }
    void Solve(const std::string& dimension) {
        F().Text1.Text(dimension);
        F().Command1.Value(true);
    }
    void Open(const std::string& content) {
        folder.Put("any.pgf", content);
        run.Files.emplace_back("any.pgf");
        F().OpenFile.FireClick();
    }
    /// The boxes since the last call, all of style 0 and each with a beep.
    Texts Boxes() {
        Texts texts;
        EXPECT_EQ(run.Beeps, static_cast<int>(run.Boxes.size()));
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
    /// The number of lines of the figure, circle and arrows apart.
    int FigureSides() {
        int lines = 0;
        for (const DrawItem& item : F().Picture1.Drawn().Items()) {
            lines += item.Kind == DrawKind::Line && item.Ink == Blue ? 1 : 0;
        }
        return lines;
    }
    double CircleRadius() {
        for (const DrawItem& item : F().Picture1.Drawn().Items()) {
            if (item.Kind == DrawKind::Circle) {
                return item.Radius;
            }
        }
        return 0;
    }
    void ExpectNoResults() {
        EXPECT_EQ(F().Text2.Text(), "");
        EXPECT_EQ(F().Label1.Caption(), "");
        EXPECT_EQ(F().Label3.Caption(), "");
        EXPECT_TRUE(F().Inch2.Enabled());
        EXPECT_TRUE(F().Mill2.Enabled());
        EXPECT_EQ(CircleRadius(), 0);
    }

    TestFolder folder;
    DrivenRun run;
    FakeRuntime runtime{run};
    Program program{runtime, folder.Files()};
};

}  // namespace brindlex::polygon
