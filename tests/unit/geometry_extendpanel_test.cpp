// The panel that extends two lines to their corner.
#include "form17fixture.h"
#include "unit/geometryrecords.h"

namespace brindlex::geometry {
namespace {

using Lines = std::vector<std::string>;

class GeometryExtendPanel : public Form17Test {
protected:
    void PlaceCorner() {
        Tool("Line");
        PlaceLine("0", "0", "1", "0");
        PlaceLine("2", "1", "2", "3");
    }
};

TEST_F(GeometryExtendPanel, TheToolIsReady) {
    EXPECT_TRUE(Session::HasTool("PotInt"));
    Tool("PotInt");
    EXPECT_TRUE(form->Frame10.Visible());
}

TEST_F(GeometryExtendPanel, NoPairIsRefused) {
    Tool("PotInt");
    form->Command1.Value(true);
    EXPECT_EQ(Messages(), (Lines{"No Potential Intersections Exist."}));
}

TEST_F(GeometryExtendPanel, TheTextFollowsTheChoice) {
    PlaceCorner();
    PlaceLine("-2", "-1", "-2", "-3");
    Tool("PotInt");
    ASSERT_EQ(form->Frame10.Combo2.ListCount(), 2);
    EXPECT_EQ(form->Frame10.Text5.Text(), "X 2.000000, Y .000000");
    form->Frame10.Combo2.ListIndex(1);
    EXPECT_EQ(form->Frame10.Text5.Text(), "X -2.000000, Y .000000");
}

TEST_F(GeometryExtendPanel, BothLinesEndInTheCorner) {
    PlaceCorner();
    Tool("PotInt");
    form->Command1.Value(true);
    EXPECT_EQ(form->Work.Live().Lines(),
              (Lines{LineLine(1, " 0", " 0", " 2", " 0"), LineLine(2, " 2", " 3", " 2", " 0")}));
    EXPECT_EQ(form->Frame10.Combo2.ListCount(), 0);
    EXPECT_EQ(form->Frame8.Combo1.ListCount(), 1);
    EXPECT_EQ(form->Frame10.Text5.Text(), "");
    EXPECT_EQ(form->Work.Entities.Count(Kind::Line), 2);
    EXPECT_TRUE(Messages().empty());
}

TEST_F(GeometryExtendPanel, ALineCutInItsMiddleLeavesThePicture) {
    Tool("Line");
    PlaceLine("0", "0", "2", "0");
    PlaceLine("1", "1", "1", "2");
    Tool("PotInt");
    form->Command1.Value(true);
    EXPECT_EQ(form->Work.Live().Lines(), (Lines{LineLine(2, " 1", " 2", " 1", " 0")}));
    EXPECT_EQ(form->Work.Entities.Count(Kind::Line), 1);
    EXPECT_EQ(Count(DrawKind::Line, ink::Plain), 1);
}

}  // namespace
}  // namespace brindlex::geometry
