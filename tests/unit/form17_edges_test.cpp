// Corners of the draw passes and of the drawing's files: an entity of number 0, what lies beyond the range, a store
// that can't be read or written.
#include "form17fixture.h"
#include "geometry/drawpass.h"
#include "geometry/hover.h"
#include "unit/failing.h"
#include "unit/geometryrecords.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <limits>
#include <string>
#include <vector>

namespace brindlex::geometry {
namespace {

class PassEdges : public Form17Test {
protected:
    PassEdges() {
        pass.Calls = {};
        picture.Scale(-10, 10, 10, -10);
        picture.Cls();
    }
    /// How many items of a kind there are.
    [[nodiscard]] long Items(DrawKind kind) const {
        const auto& items = picture.Drawn().Items();
        return std::count_if(items.begin(), items.end(), [&](const DrawItem& item) { return item.Kind == kind; });
    }

    PictureBox& picture = form->Picture1;
    Board board;
    DrawPass pass{picture, board};
    const Scale scale{20, -20};
};

TEST_F(PassEdges, AnEntityInTheBoxAndUnderThePointerIsPickedOnce) {
    board.EnterPoint({5, 5}, 0, scale);
    pass.View.Picking = true;
    pass.View.Box = {14, -4, 16, -6};
    pass.View.PointerOver = true;
    pass.View.Pointer = {5, 5};
    int picked = 0;
    pass.Calls.Picked = [&] { ++picked; };
    pass.PointStuff();
    EXPECT_EQ(picked, 1);
    EXPECT_EQ(pass.Pick.Shape, Kind::Point);
    EXPECT_EQ(pass.Marks.Hits.Points, (std::vector<int>{0, 0}));
}

TEST_F(PassEdges, APickedNumberIsOfSixteenBits) {
    const struct {
        double number;
        int picked;
    } cases[] = {{32766, 32766}, {32767, 32767}, {40000, 32767}, {1e300, 32767}, {-32767, -32767}, {-40000, -32767}};
    for (const auto& c : cases) {
        board = {};
        board.EnterPoint({5, 5}, c.number, scale);
        pass.View.Picking = true;
        pass.View.PointerOver = true;
        pass.View.Pointer = {5, 5};
        pass.Pick = {};
        pass.PointStuff();
        EXPECT_EQ(pass.Pick.Number, c.picked);
    }
}

TEST_F(PassEdges, HitsAreAsManyAsTheirArrayHasRoomFor) {
    board.EnterCircle({1, 1}, 1, 1, scale);
    board.EnterLine({{2, 2}, {3, 3}}, 2, scale);
    board.EnterPoint({4, 4}, 3, scale);
    pass.View.Selecting = true;
    pass.View.Box = {1, -1, 19, -19};
    for (int i = 0; i < 100; ++i) {
        pass.CircleStuff();
        pass.LineStuff();
        pass.PointStuff();
    }
    EXPECT_EQ(pass.Marks.Hits.Circles.size(), 48U);
    EXPECT_EQ(pass.Marks.Hits.Lines.size(), 70U);
    EXPECT_EQ(pass.Marks.Hits.Points.size(), 42U);
}

TEST_F(PassEdges, ThePointerAloneTakesAsTheBoxDoes) {
    board.EnterPoint({5, 5}, 3, scale);
    pass.View.Selecting = true;
    pass.View.PointerOver = true;
    pass.View.Pointer = {5, 5};
    pass.PointStuff();
    EXPECT_TRUE(pass.Marks.BoxHit);
    EXPECT_EQ(pass.Marks.Hits.Points, (std::vector<int>{0}));
}

TEST_F(PassEdges, WhoIsToldOfANameMayHideIt) {
    board.EnterPoint({5, 5}, 3, scale);
    bool told = false;
    pass.Pick.Shape = Kind::Point;
    pass.Calls.NamedNumbers = [] { return std::array<double, 6>{3}; };
    pass.Calls.Named = [&] { told = true; };
    pass.Calls.Filter = [&] { return told ? PassFilter{PassFilter::Rule::Hide, {3}} : PassFilter{}; };
    pass.PointStuff();
    EXPECT_TRUE(told);
    EXPECT_TRUE(picture.Drawn().Items().empty());
}

TEST_F(PassEdges, ABoxHoldsItsEdges) {
    for (const PickBox& box : {PickBox{1, 2, 5, 8}, PickBox{5, 8, 1, 2}, PickBox{5, 2, 1, 8}}) {
        for (const Position inside : {Position{1, 2}, {5, 8}, {1, 8}, {5, 2}, {1, 5}, {5, 5}, {3, 2}, {3, 8}}) {
            EXPECT_TRUE(box.Holds(inside)) << inside.X << ' ' << inside.Y;
        }
        for (const Position outside : {Position{0.9, 5}, {5.1, 5}, {3, 1.9}, {3, 8.1}}) {
            EXPECT_FALSE(box.Holds(outside)) << outside.X << ' ' << outside.Y;
        }
    }
}

TEST_F(PassEdges, TheCrossReachesOverTheWholeView) {
    pass.CrossHairs();
    const std::vector<DrawItem> items(picture.Drawn().Items().begin(), picture.Drawn().Items().end());
    ASSERT_EQ(items.size(), 2U);
    const auto ends = [&](std::size_t i) { return std::array{items[i].X1, items[i].Y1, items[i].X2, items[i].Y2}; };
    EXPECT_EQ(ends(0), (std::array<double, 4>{10, 10, 10, -10}));
    EXPECT_EQ(ends(1), (std::array<double, 4>{-10, -10, 10, -10}));
    EXPECT_EQ(items[0].DrawStyle, 4);
    EXPECT_EQ(items[1].DrawStyle, 4);
    EXPECT_EQ(picture.DrawStyle(), 0);
}

TEST_F(PassEdges, EachPassAsksTheFilterAnew) {
    board.EnterCircle({0, 0}, 1, 7, scale);
    board.EnterLine({{0, 0}, {1, 1}}, 7, scale);
    board.EnterPoint({5, 5}, 7, scale);
    for (void (DrawPass::*const stuff)() : {&DrawPass::CircleStuff, &DrawPass::LineStuff, &DrawPass::PointStuff}) {
        picture.Cls();
        DrawPass fresh(picture, board);
        fresh.Calls.Filter = [] { return PassFilter{PassFilter::Rule::Hide, {7}}; };
        (fresh.*stuff)();
        EXPECT_TRUE(picture.Drawn().Items().empty());
        fresh.Calls.Filter = [] { return PassFilter{PassFilter::Rule::Only, {7}}; };
        fresh.Calls.NamedNumbers = [] { return std::array<double, 6>{7}; };
        (fresh.*stuff)();
        EXPECT_FALSE(picture.Drawn().Items().empty());
        EXPECT_EQ(fresh.Marks.Ink, ink::Named);
    }
}

TEST_F(PassEdges, NobodyNeedListen) {
    board.EnterPoint({5, 5}, 3, scale);
    pass.View.Picking = true;
    pass.View.PointerOver = true;
    pass.View.Pointer = {5, 5};
    pass.Calls.NamedNumbers = [] { return std::array<double, 6>{3}; };
    pass.PointStuff();
    EXPECT_EQ(pass.Pick.Number, 3);
    EXPECT_EQ(pass.Marks.Ink, ink::Named);
}

TEST_F(PassEdges, ZeroNamesNothing) {
    board.EnterPoint({5, 5}, 0, scale);
    pass.Calls.NamedNumbers = [] { return std::array<double, 6>{}; };
    pass.PointStuff();
    EXPECT_EQ(pass.Marks.Ink, ink::Plain);
}

TEST_F(PassEdges, ANumberBeyondTheRangeIsNotPrinted) {
    const double infinity = std::numeric_limits<double>::infinity();
    board.EnterLine({{0, infinity}, {1, infinity}}, 1, scale);
    board.EnterLine({{infinity, 0}, {infinity, 1}}, 2, scale);
    pass.LineStuff();
    EXPECT_EQ(Items(DrawKind::Text), 0);
    board.EnterLine({{0, 0}, {1, 1}}, 3, scale);
    pass.LineStuff();
    EXPECT_EQ(Items(DrawKind::Text), 1);
}

TEST_F(PassEdges, ACircleOfNegativeRadiusShowsItsNumberAlone) {
    board.EnterCircle({0, 0}, -1, 4, scale);
    pass.CircleStuff();
    EXPECT_EQ(Items(DrawKind::Circle), 0);
    EXPECT_EQ(Items(DrawKind::Text), 1);
    board.EnterCircle({0, 0}, 0, 5, scale);
    pass.CircleStuff();
    EXPECT_EQ(Items(DrawKind::Circle), 1);
}

class FileEdges : public Form17Test {
protected:
    /// A folder stands where the live drawing belongs.
    void BlockTheStore() {
        std::filesystem::remove(folder.Path() / "geometry.dat");
        std::filesystem::create_directory(folder.Path() / "geometry.dat");
    }
    const std::string NotConverted = "The Drawing Could Not Be Converted!";
};

TEST_F(FileEdges, AnEmptyDrawingChangesItsUnit) {
    EXPECT_TRUE(form->ChooseByPerson(form->MM));
    EXPECT_EQ(form->Label26.Caption(), "Millimeters");
    EXPECT_EQ(Messages(), std::vector<std::string>{});
}

TEST_F(FileEdges, ThePictureFollowsScrollBarsThatStay) {
    // Beyond the reach of the scroll bars in either unit.
    PlaceCircle("40000", "40000", "1");
    Tool("Fit");
    EXPECT_EQ(form->HScroll1.Value(), 32767);
    EXPECT_EQ(form->VScroll1.Value(), 32767);
    EXPECT_TRUE(form->ChooseByPerson(form->MM));
    EXPECT_EQ(form->HScroll1.Value(), 32767);
    EXPECT_EQ(form->Picture1.ScaleLeft(), 32767);
    EXPECT_EQ(form->Picture1.ScaleTop(), 32767);
    // It was painted there: the level line of the cross begins at its left edge.
    const auto& items = form->Picture1.Drawn().Items();
    EXPECT_TRUE(std::any_of(items.begin(), items.end(), [](const DrawItem& item) { return item.X1 == 32767; }));
}

TEST_F(FileEdges, AnEmptyDrawingFollowsNoScrollBar) {
    form->HScroll1.Value(7);
    form->VScroll1.Value(-3);
    EXPECT_EQ(form->Picture1.ScaleLeft(), 7);
    EXPECT_EQ(form->Picture1.ScaleTop(), -3);
    EXPECT_TRUE(form->ChooseByPerson(form->MM));
    EXPECT_EQ(form->Picture1.ScaleLeft(), 0);
    EXPECT_EQ(form->Picture1.ScaleTop(), 0);
    EXPECT_EQ(form->Picture1.ScaleWidth(), 113.665);
}

TEST_F(FileEdges, ADrawingInItsNewUnitIsFitted) {
    PlaceCircle("1", "1", "2");
    EXPECT_TRUE(form->ChooseByPerson(form->MM));
    EXPECT_NEAR(form->Picture1.ScaleHeight(), -50.8, 1e-9);
    // What fits no view is shown in the first one.
    folder.Put("dot.geo", "I\r\n" + CircleLine(1, "0", "5", "5") + "\r\n");
    run.Files = {"dot.geo"};
    EXPECT_TRUE(form->ChooseByPerson(form->OpenIt));
    EXPECT_TRUE(form->ChooseByPerson(form->MM));
    EXPECT_EQ(form->Picture1.ScaleWidth(), 113.665);
}

TEST_F(FileEdges, ThePictureFollowsOneScrollBarThatStays) {
    for (const bool up : {false, true}) {
        EXPECT_TRUE(form->ChooseByPerson(form->NewGeo));
        PlaceCircle(up ? "0" : "40000", up ? "40000" : "0", "1");
        Tool("Fit");
        EXPECT_TRUE(form->ChooseByPerson(form->MM));
        EXPECT_EQ(form->HScroll1.Value(), up ? 0 : 32767);
        EXPECT_EQ(form->VScroll1.Value(), up ? 32767 : 0);
        EXPECT_EQ(form->Picture1.ScaleLeft(), up ? 0 : 32767);
        EXPECT_EQ(form->Picture1.ScaleTop(), up ? 32767 : 0);
    }
}

TEST_F(FileEdges, ADrawingThatCannotBeReadIsNotConverted) {
    PlaceCircle("1", "1", "1");
    BlockTheStore();
    EXPECT_TRUE(form->ChooseByPerson(form->MM));
    EXPECT_EQ(Messages(), std::vector<std::string>{NotConverted});
    EXPECT_EQ(form->Label26.Caption(), "Inches");
}

TEST_F(FileEdges, ADrawingThatCannotBeWrittenIsNotConverted) {
    PlaceCircle("1", "1", "1");
    const std::string before = folder.Get("geometry.dat");
    const Failing failing("rename", EACCES);
    EXPECT_TRUE(form->ChooseByPerson(form->MM));
    EXPECT_EQ(Messages(), std::vector<std::string>{NotConverted});
    EXPECT_EQ(folder.Get("geometry.dat"), before);
}

TEST_F(FileEdges, CancelChangesNothing) {
    PlaceCircle("1", "1", "1");
    const std::string before = folder.Get("geometry.dat");
    run.Files = {std::nullopt, std::nullopt};
    EXPECT_TRUE(form->ChooseByPerson(form->OpenIt));
    EXPECT_EQ(folder.Get("geometry.dat"), before);
    EXPECT_EQ(form->Work.Entities.CircleTop, 4);
    EXPECT_TRUE(form->ChooseByPerson(form->SaveAs));
    ASSERT_EQ(run.Dialogs.size(), 2U);
    EXPECT_EQ(run.Dialogs[0].Flags, 12);  // no read-only box, the working directory stays
    EXPECT_EQ(run.Dialogs[1].Flags, 14);  // and it is asked before a file is replaced
    EXPECT_EQ(folder.Names(), (std::vector<std::string>{"aaaa.tmp", "geometry.dat"}));
}

TEST_F(FileEdges, AFileThatCannotBeReadGivesNoName) {
    run.Files = {"none.geo", std::nullopt};
    EXPECT_TRUE(form->ChooseByPerson(form->OpenIt));
    EXPECT_FALSE(form->SaveAs.Enabled());
    EXPECT_TRUE(form->ChooseByPerson(form->OpenIt));
    EXPECT_EQ(run.Dialogs.back().FileName, "");
}

TEST_F(FileEdges, TheLiveDrawingIsNoNameForAFile) {
    PlaceCircle("1", "1", "1");
    const std::string caption = form->Caption();
    run.Files = {"geometry.dat", std::nullopt};
    EXPECT_TRUE(form->ChooseByPerson(form->SaveAs));
    EXPECT_EQ(form->Caption(), caption);
    EXPECT_TRUE(form->ChooseByPerson(form->SaveAs));
    EXPECT_EQ(run.Dialogs.back().FileName, "");
    EXPECT_EQ(Messages(), std::vector<std::string>{"The File Could Not Be Saved:\r\ngeometry.dat"});
}

TEST_F(FileEdges, ASaveThatIsCancelledGivesANewDrawingNoName) {
    folder.Put("part.geo", "I\r\n" + PointLine(1, "0", "0") + "\r\n");
    run.Files = {"part.geo", std::nullopt};
    EXPECT_TRUE(form->ChooseByPerson(form->OpenIt));
    EXPECT_NE(form->Caption().find("part.geo"), std::string::npos);
    EXPECT_TRUE(form->ChooseByPerson(form->NewGeo));
    PlaceCircle("1", "1", "1");
    EXPECT_TRUE(form->ChooseByPerson(form->SaveAs));
    EXPECT_EQ(run.Dialogs.size(), 2U);
    EXPECT_EQ(form->Caption().find("part.geo"), std::string::npos);
}

TEST_F(FileEdges, TwoEntitiesCanBeConnected) {
    const std::string one = PointLine(1, "0", "0") + "\r\n";
    folder.Put("one.geo", "I\r\n" + one);
    folder.Put("two.geo", "I\r\n" + one + PointLine(2, "1", "1") + "\r\n");
    const auto enabled = [&](const std::string& key) {
        const auto& buttons = form->Toolbar1.Buttons();
        return std::find_if(buttons.begin(), buttons.end(), [&](const ToolButton& tool) { return tool.Key == key; })
            ->Enabled;
    };
    for (const bool two : {false, true}) {
        run.Files = {two ? "two.geo" : "one.geo"};
        EXPECT_TRUE(form->ChooseByPerson(form->OpenIt));
        EXPECT_EQ(enabled("Connect"), two);
        EXPECT_TRUE(enabled("Zoom"));
        EXPECT_TRUE(enabled("UnZoom"));
    }
}

TEST_F(FileEdges, AFileInMillimetersIsViewedInThem) {
    // A circle without a size fits no view, so that the first view stays.
    folder.Put("dot.geo", "M\r\n" + CircleLine(1, "0", "5", "5") + "\r\n");
    run.Files = {"dot.geo"};
    EXPECT_TRUE(form->ChooseByPerson(form->OpenIt));
    EXPECT_EQ(form->Picture1.ScaleWidth(), 113.665);
    // The unit stands between two points: the first is entered by the view in inches. Together they reach over 100 and
    // half a cross of .0884 inches to each side.
    folder.Put("late.geo", PointLine(1, "0", "0") + "\r\nM\r\n" + PointLine(2, "100", "60") + "\r\n");
    run.Files = {"late.geo"};
    EXPECT_TRUE(form->ChooseByPerson(form->OpenIt));
    EXPECT_NEAR(form->Picture1.ScaleWidth(), 100 + 2 * .0884 * 25.4, 1e-9);
}

TEST_F(FileEdges, ADrawingThatCannotBeReadHasNoPairs) {
    Tool("Line");
    PlaceLine("0", "0", "1", "0");
    PlaceLine("3", "1", "3", "2");
    Tool("PotInt");
    EXPECT_EQ(form->Frame10.Combo2.ListCount(), 1);
    BlockTheStore();
    Tool("CircTan");
    EXPECT_EQ(form->Frame10.Combo2.ListCount(), 0);
}

TEST_F(FileEdges, ADrawingThatCannotBeReadIsNotSaved) {
    PlaceCircle("1", "1", "1");
    BlockTheStore();
    run.Files.push_back("out.geo");
    EXPECT_TRUE(form->ChooseByPerson(form->SaveAs));
    EXPECT_FALSE(folder.Files().Exists("out.geo"));
}

}  // namespace
}  // namespace brindlex::geometry
