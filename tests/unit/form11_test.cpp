// The main menu, the about box, the way out.
#include "frame/form11.h"
#include "app/forms.h"
#include "fakeruntime.h"
#include "frame/form7.h"
#include "frame/program.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <tuple>
#include <vector>

namespace brindlex {
namespace {

class MenuTest : public ::testing::Test {
protected:
    MenuTest() {
        std::filesystem::remove_all(directory);
        std::filesystem::create_directories(directory);
    }
    ~MenuTest() override { std::filesystem::remove_all(directory); }

    std::filesystem::path directory = std::filesystem::path(::testing::TempDir()) / "brindlex-menu-test";
    DrivenRun run;
};

struct Started {
    Started(DrivenRun& run, const std::filesystem::path& directory, Size screen)
        : runtime(run, screen), program(runtime, Folder(directory)) {
        RegisterForms(program);
        program.Start();
    }
    Form11& Menu() { return dynamic_cast<Form11&>(program.Get("Form11")); }

    FakeRuntime runtime;
    Program program;
};

TEST_F(MenuTest, TooLowScreenEndsBeforeAnyFileIsTouched) {
    Started started(run, directory, {1024, 480});
    EXPECT_TRUE(started.program.Ended());
    ASSERT_EQ(run.Boxes.size(), 1U);
    EXPECT_EQ(run.Boxes[0].Text, "Brindlex Will Not Function Properly\r\nIn Resolutions Less Than 800 x 600");
    EXPECT_EQ(run.Boxes[0].Style, 0);
    EXPECT_EQ(run.Boxes[0].Caption, "Brindlex");
    EXPECT_EQ(run.Beeps, 1);
    EXPECT_TRUE(std::filesystem::is_empty(directory));
}

TEST_F(MenuTest, LowScreenIsWarnedOf) {
    for (const int height : {481, 599}) {
        run = {};
        Started started(run, directory, {800.0, static_cast<double>(height)});
        ASSERT_EQ(run.Boxes.size(), 1U);
        EXPECT_EQ(run.Boxes[0].Text, "This Program Is Best Viewed\r\nIn Resolutions Greater Than 800 x 600");
        EXPECT_EQ(run.Boxes[0].Style, 0);
        EXPECT_FALSE(started.program.Ended());
        EXPECT_EQ(started.program.Shared().ScreenH, height);
    }
    run = {};
    const Started started(run, directory, {800, 600});
    EXPECT_TRUE(run.Boxes.empty());
}

TEST_F(MenuTest, TitleIsDrawnInOrder) {
    Started started(run, directory, {1024, 768});
    EXPECT_EQ(started.Menu().Caption(), "Brindlex 3.0.2- Menu");
    using Row = std::tuple<std::string, double, double, int, double>;
    const std::vector<Row> letters{
        {"B", 144, 525, 31, 24},
        {"R", 84, 1090, 62, 24},
        {"I", 204, 1608, 93, 24},
        {"N", 144, 2100, 124, 24},
        {" D  L  E  X", 600, 2520, 155, 24},
        {"3", 1100, 300, 51, 28},
        {".", 1500, 540, 102, 28},
        {"0", 1800, 840, 153, 28},
        {".", 2100, 1080, 204, 28},
        {"2", 2400, 1500, 255, 28},
    };
    std::vector<Row> drawn;
    std::vector<std::vector<double>> lines;
    for (const DrawItem& item : started.Menu().Picture1.Drawn().Items()) {
        if (item.Kind == DrawKind::Text) {
            drawn.emplace_back(item.Text, item.X1, item.Y1, item.Ink.Blue, item.FontSize);
        } else {
            EXPECT_EQ(item.Ink, Blue);
            lines.push_back({item.X1, item.Y1, item.X2, item.Y2});
        }
    }
    EXPECT_EQ(drawn, letters);
    EXPECT_EQ(lines, (std::vector<std::vector<double>>{
                         {720, 660, 720, 2460}, {720, 2460, 2520, 2460}, {2520, 2460, 720, 660}}));
}

TEST_F(MenuTest, OpensAsAGrowingCircle) {
    const Started started(run, directory, {1024, 768});
    std::vector<std::vector<int>> regions;
    for (const WindowRegion& region : run.Regions) {
        EXPECT_EQ(region.Form, "Form11");
        regions.push_back({region.Left, region.Top, region.Right, region.Bottom});
    }
    EXPECT_EQ(regions, (std::vector<std::vector<int>>{{38, 38, 333, 333},
                                                      {-90, -90, 461, 461},
                                                      {-218, -218, 589, 589},
                                                      {-346, -346, 717, 717},
                                                      {-474, -474, 845, 845}}));
}

TEST_F(MenuTest, ExitRemovesTheLiveDrawingAndEnds) {
    Started started(run, directory, {1024, 768});
    started.program.Files().Touch("geometry.dat");
    started.Menu().PressByPerson(started.Menu().Command5);
    EXPECT_TRUE(started.program.Ended());
    EXPECT_FALSE(started.program.Files().Exists("geometry.dat"));
}

TEST_F(MenuTest, CloseBoxEndsToo) {
    Started started(run, directory, {1024, 768});
    started.Menu().CloseByPerson();
    EXPECT_TRUE(started.program.Ended());
    EXPECT_TRUE(std::filesystem::is_empty(directory));
}

TEST_F(MenuTest, AboutOpensAddressesAndCloses) {
    Started started(run, directory, {1024, 768});
    run.ModalLoop = [&](Form& form) {
        EXPECT_EQ(form.Name(), "Form7");
        EXPECT_EQ(form.Caption(), "Brindlex 3.0.2- Contacts");
        auto& about = dynamic_cast<Form7&>(form);
        EXPECT_EQ(about.Label2.Caption(), "Version 3.0.2");
        const Colour before = about.Label4.ForeColor();
        about.Label4.Fire(about.Label4.MouseMove, "MouseMove", Mouse{});
        EXPECT_NE(about.Label4.ForeColor(), before);
        about.MouseMoveByPerson(Mouse{});
        EXPECT_EQ(about.Label4.ForeColor(), before);
        about.PressByPerson(about.Label4);
    };
    started.Menu().PressByPerson(started.Menu().Command9);
    EXPECT_EQ(run.Started, (std::vector<std::string>{"https://www.brindlex.example"}));
    EXPECT_TRUE(started.Menu().Visible());
    EXPECT_FALSE(started.program.Get("Form7").Loaded());
}

}  // namespace
}  // namespace brindlex
