// The drawn pattern of a bolt circle.
#include "boltcircle/diagram.h"
#include "fakeruntime.h"
#include "frame/fontwidths.h"
#include "frame/program.h"
#include "radians.h"
#include "testfolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace brindlex::boltcircle {
namespace {

constexpr double Near = 1e-9;

class BoltCircleDiagram : public ::testing::Test {
protected:
    class Board : public Form {
    public:
        explicit Board(Program& program) : Form(program, "Board", 4092, 4092) {}
        PictureBox Picture1{*this, "Picture1", {240, 240, 3612, 3612}};
    };

    std::vector<DrawItem> Draw(const std::string& holes, const std::string& startAngle) {
        DrawCircle(picture);
        DrawHoles(picture, SolveBoltCircle({"0", "0", "10", holes, startAngle}, ".0000", Rad), Rad);
        return Items();
    }
    std::vector<DrawItem> Items() const { return {picture.Drawn().Items().begin(), picture.Drawn().Items().end()}; }

    static std::ptrdiff_t Count(const std::vector<DrawItem>& items, DrawKind kind) {
        return std::count_if(items.begin(), items.end(), [&](const DrawItem& item) { return item.Kind == kind; });
    }
    static void ExpectCircle(const DrawItem& item, double x, double y, double radius) {
        EXPECT_EQ(item.Kind, DrawKind::Circle);
        EXPECT_NEAR(item.X1, x, Near);
        EXPECT_NEAR(item.Y1, y, Near);
        EXPECT_EQ(item.Radius, radius);
    }

    TestFolder folder;
    DrivenRun run;
    FakeRuntime runtime{run};
    Program program{runtime, folder.Files()};
    Board board{program};
    PictureBox& picture = board.Picture1;
};

TEST_F(BoltCircleDiagram, BareCircle) {
    DrawBaseCircle(picture);
    EXPECT_EQ(picture.DrawStyle(), 3);
    DrawCircle(picture);
    EXPECT_EQ(picture.DrawStyle(), 0);
    EXPECT_TRUE(picture.AutoRedraw());
    const auto items = Items();
    ASSERT_EQ(items.size(), 1U);
    ExpectCircle(items[0], 1806, 1806, 1400);
    EXPECT_EQ(items[0].Ink, Blue);
    EXPECT_EQ(items[0].DrawStyle, 3);
    EXPECT_EQ(picture.CurrentX(), 1806);
    EXPECT_EQ(picture.CurrentY(), 1806);
}

TEST_F(BoltCircleDiagram, FourHolesFromZero) {
    const auto items = Draw("4", "0");
    ASSERT_EQ(items.size(), 9U);
    EXPECT_EQ(items[1].Kind, DrawKind::Line);
    EXPECT_EQ(items[1].X1, 1806);
    EXPECT_EQ(items[1].Y1, 1806);
    EXPECT_EQ(items[1].X2, 3206);
    EXPECT_EQ(items[1].Y2, 1806);
    EXPECT_EQ(items[1].Ink, (Colour{255, 150, 150}));
    EXPECT_EQ(items[1].DrawStyle, 0);
    ExpectCircle(items[2], 3206, 1806, 100);
    EXPECT_EQ(items[2].Ink, Black);
    const struct {
        double x, y, textX, textY;
        const char* text;
    } further[] = {{1806, 406, 1706, 531, " 2"}, {406, 1806, 531, 1706, " 3"}, {1806, 3206, 1706, 2881, " 4"}};
    for (std::size_t i = 0; i < 3; ++i) {
        ExpectCircle(items[3 + 2 * i], further[i].x, further[i].y, 100);
        const DrawItem& number = items[4 + 2 * i];
        EXPECT_EQ(number.Kind, DrawKind::Text);
        EXPECT_EQ(number.Text, further[i].text);
        EXPECT_NEAR(number.X1, further[i].textX, Near);
        EXPECT_NEAR(number.Y1, further[i].textY, Near);
    }
}

TEST_F(BoltCircleDiagram, FirstHoleAtItsStartAngle) {
    const auto items = Draw("1", "30");
    ASSERT_EQ(items.size(), 3U);
    EXPECT_NEAR(items[1].X2, 1400 * std::sqrt(3) / 2 + 1806, Near);
    EXPECT_NEAR(items[1].Y2, 1106, Near);
    ExpectCircle(items[2], 1400 * std::sqrt(3) / 2 + 1806, 1106, 100);
}

TEST_F(BoltCircleDiagram, NumbersStopAtFortyOneHoles) {
    auto items = Draw("40", "0");
    EXPECT_EQ(Count(items, DrawKind::Circle), 41);
    EXPECT_EQ(Count(items, DrawKind::Text), 39);
    EXPECT_EQ(items.back().Text, " 40");
    items = Draw("41", "0");
    EXPECT_EQ(Count(items, DrawKind::Circle), 42);
    EXPECT_EQ(Count(items, DrawKind::Text), 0);
    // A fraction below 41 still has its numbers.
    EXPECT_EQ(Count(Draw("40.6", "0"), DrawKind::Text), 40);
}

TEST_F(BoltCircleDiagram, NumbersStandClearOfTheirHoles) {
    const auto items = Draw("12", "0");
    for (std::size_t i = 3; i + 1 < items.size(); i += 2) {
        const DrawItem& hole = items[i];
        const DrawItem& number = items[i + 1];
        ASSERT_EQ(number.Kind, DrawKind::Text);
        const double middleX = number.X1 + TextWidth(number.Text, number.FontSize, number.Bold) / 2;
        const double middleY = number.Y1 + TextHeight(number.FontSize) / 2;
        EXPECT_GT(std::hypot(middleX - hole.X1, middleY - hole.Y1), 100 + 70) << number.Text;
    }
}

}  // namespace
}  // namespace brindlex::boltcircle
