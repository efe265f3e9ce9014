// The panel that shows, hides and deletes.
#include "form17fixture.h"
#include "unit/geometryrecords.h"

namespace brindlex::geometry {
namespace {

using Lines = std::vector<std::string>;

std::string Item(int number, const std::string& kind) {
    return " " + std::to_string(number) + std::string(15, ' ') + "/" + kind;
}

class GeometryShowHidePanel : public Form17Test {
protected:
    GeometryShowHidePanel() {
        PlaceCircle("0", "0", "1");
        PlaceCircle("1", "0", "1");
        Tool("Point");
        PlacePoint("0", "1");
        Tool("ID");
    }
    ShowHidePanel& panel = form->Frame12;
};

TEST_F(GeometryShowHidePanel, AChoiceLeavesTheOtherFive) {
    panel.Combo4.Text(Item(2, "Circle"));
    EXPECT_EQ(panel.Combo4.ListCount(), 3);
    for (const ComboBox* const list : panel.Lists()) {
        if (list != &panel.Combo4) {
            EXPECT_EQ(list->List(), (Lines{Item(1, "Circle"), Item(3, "Point")}));
        }
    }
    panel.Command16.Value(true);
    for (const ComboBox* const list : panel.Lists()) {
        EXPECT_EQ(list->ListCount(), 3);
        EXPECT_EQ(list->Text(), "");
    }
}

TEST_F(GeometryShowHidePanel, ShowOnlyAndHideOnly) {
    panel.Combo3.Text(Item(1, "Circle"));
    EXPECT_FALSE(panel.ShowFilter);
    form->Command1.Value(true);
    EXPECT_TRUE(panel.ShowFilter);
    EXPECT_EQ(Count(DrawKind::Circle, ink::Plain), 1);
    EXPECT_EQ(Count(DrawKind::Line, ink::Plain), 0);
    panel.Option10.Value(true);
    EXPECT_EQ(Count(DrawKind::Circle, ink::Plain), 1);
    EXPECT_EQ(Count(DrawKind::Line, ink::Plain), 2);
    panel.Command16.Value(true);
    EXPECT_FALSE(panel.ShowFilter);
    EXPECT_EQ(Count(DrawKind::Circle, ink::Plain), 2);
    EXPECT_EQ(form->Work.Live().Count(), 3);
}

TEST_F(GeometryShowHidePanel, AnOptionWithoutAChoiceFiltersNothing) {
    panel.Option10.Value(true);
    panel.Option9.Value(true);
    EXPECT_FALSE(panel.ShowFilter);
    form->Command1.Value(true);
    EXPECT_FALSE(panel.ShowFilter);
    EXPECT_EQ(Messages(), (Lines{"Choose Entity From A Dropdown List."}));
}

TEST_F(GeometryShowHidePanel, DeleteTakesWhatIsChosen) {
    panel.Combo5.Text(Item(3, "Point"));
    panel.Option11.Value(true);
    EXPECT_EQ(form->Command1.Caption(), "&Delete");
    form->Command1.Value(true);
    EXPECT_EQ(form->Work.Live().Lines(), (Lines{CircleLine(1, " 1", "0", "0"), CircleLine(2, " 1", "1", "0")}));
    EXPECT_EQ(panel.Combo5.List(), (Lines{Item(1, "Circle"), Item(2, "Circle")}));
    EXPECT_EQ(Count(DrawKind::Line, ink::Plain), 0);
    // The number of what was deleted is not given out again before a reload: intended.
    EXPECT_EQ(form->Work.Entities.EntNum, 3);
    EXPECT_TRUE(Messages().empty());
}

TEST_F(GeometryShowHidePanel, AnEmptyStoreHasItsOwnWords) {
    form->NewStuff();
    form->Command1.Value(true);
    EXPECT_EQ(Messages(), (Lines{"No Entities Exist."}));
}

TEST_F(GeometryShowHidePanel, AnotherToolEndsTheFilter) {
    panel.Combo3.Text(Item(1, "Circle"));
    form->Command1.Value(true);
    Tool("Circle");
    EXPECT_FALSE(panel.ShowFilter);
    EXPECT_EQ(panel.Combo3.ListCount(), 0);
    EXPECT_EQ(form->Command1.Caption(), "&Place It");
}

}  // namespace
}  // namespace brindlex::geometry
