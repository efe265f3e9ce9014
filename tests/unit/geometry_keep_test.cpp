// Which candidates stay: the protocol of the captions.
#include "geometry/keep.h"

#include "form17fixture.h"
#include "geometryrecords.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace brindlex::geometry {
namespace {

class Keeping : public Form17Test {
protected:
    /// A circle 1 and a point 2, and the two lines from the one to the other.
    void Candidates() {
        Tool("Circle");
        PlaceCircle("0", "0", "1");
        Tool("Point");
        PlacePoint("1", "0");
        Tool("Connect");
        form->Frame4.Option1.Value(true);
        form->Frame4.Text12.Text("1");
        form->Frame4.Option6.Value(true);
        form->Frame4.Text17.Text("2");
        form->Command1.Value(true);
    }
    [[nodiscard]] std::vector<int> Numbers() const {
        std::vector<int> numbers;
        for (const std::string& line : form->Work.Live().Lines()) {
            numbers.push_back(static_cast<int>(NumberOf(line)));
        }
        return numbers;
    }
};

using Ints = std::vector<int>;

TEST_F(Keeping, OneStaysAndEntNumFollows) {
    Candidates();
    EXPECT_EQ(Numbers(), (Ints{1, 2, 3, 4}));
    form->Frame4.Command4.Value(true);
    EXPECT_EQ(Numbers(), (Ints{1, 2, 3}));
    EXPECT_EQ(form->Work.Entities.EntNum, 3);
    EXPECT_EQ(form->Work.Entities.LineTop, 5);
    EXPECT_FALSE(form->Command13.IsUsable());
    EXPECT_FALSE(form->Command3.Visible());
}

TEST_F(Keeping, TheHighestStays) {
    Candidates();
    form->Frame4.Command5.Value(true);
    EXPECT_EQ(Numbers(), (Ints{1, 2, 4}));
    EXPECT_EQ(form->Work.Entities.EntNum, 4);
}

TEST_F(Keeping, AnEmptyButtonDoesNothing) {
    Candidates();
    form->Frame4.Command6.Value(true);
    EXPECT_EQ(Numbers(), (Ints{1, 2, 3, 4}));
    EXPECT_EQ(form->Frame4.Command4.Caption(), " 3");
    EXPECT_TRUE(form->Command3.IsUsable());
}

TEST_F(Keeping, AllOrNone) {
    Candidates();
    form->Command13.Value(true);
    EXPECT_EQ(Numbers(), (Ints{1, 2, 3, 4}));
    EXPECT_FALSE(form->Frame4.Command4.Visible());
    Candidates();
    EXPECT_EQ(Numbers(), (Ints{1, 2, 3, 4, 5, 6, 7, 8})) << "a circle, a point and two lines more";
    form->Command3.Value(true);
    EXPECT_EQ(Numbers(), (Ints{1, 2, 3, 4, 5, 6}));
}

TEST_F(Keeping, CancelRepaintsWithoutTheCandidates) {
    Candidates();
    EXPECT_EQ(Count(DrawKind::Line, ink::Plain), 4) << "the cross of the point as it was, and two lines";
    form->Command3.Value(true);
    EXPECT_EQ(Count(DrawKind::Line, ink::Plain), 2) << "the cross is left";
    EXPECT_EQ(Count(DrawKind::Line, ink::Named), 0);
    EXPECT_EQ(form->Work.Entities.LineTop, 0);
}

TEST_F(Keeping, LeavingTheCancelButtonGivesUpTheChoice) {
    Candidates();
    form->Command3.SetFocus();
    form->Command1.SetFocus();
    EXPECT_EQ(form->Frame4.Command4.Caption(), "");
    EXPECT_EQ(Numbers(), (Ints{1, 2, 3, 4}));
}

TEST_F(Keeping, LinesOfNoKindStayThroughARewrite) {
    Candidates();
    const std::string before = folder.Get("geometry.dat");
    folder.Put("geometry.dat", "a note" + End + before);
    form->Command3.Value(true);
    EXPECT_EQ(folder.Get("geometry.dat"),
              "a note" + End + CircleLine(1, " 1", "0", "0") + End + PointLine(2, "1", "0") + End);
}

TEST_F(Keeping, AnotherToolDropsNothing) {
    Candidates();
    Tool("Circle");
    form->Command3.Value(true);
    EXPECT_EQ(Numbers(), (Ints{1, 2, 3, 4}));
}

TEST_F(Keeping, ANewDrawingForgetsTheNumbers) {
    Candidates();
    form->NewGeo.FireClick();
    for (const CommandButton* const button : form->Frame4.KeepButtons()) {
        EXPECT_EQ(button->Caption(), "");
        EXPECT_FALSE(button->Visible());
    }
    EXPECT_FALSE(form->Label34.Visible());
}

TEST_F(Keeping, TheCopiesPressTheirButtons) {
    form->ResizeByPerson(15000, 10800);
    Candidates();
    form->Command9.Value(true);
    ASSERT_TRUE(form->Work.Enlarged());
    EXPECT_TRUE(form->Command8.IsUsable());
    EXPECT_TRUE(form->Command10.IsUsable());
    EXPECT_FALSE(form->Command11.Visible());
    EXPECT_TRUE(form->Label34.Visible());
    form->Command10.Value(true);
    EXPECT_EQ(Numbers(), (Ints{1, 2, 4}));
    EXPECT_EQ(form->Command10.Caption(), "");
    EXPECT_FALSE(form->Command14.Visible());
    EXPECT_FALSE(form->Command1.Visible()) << "behind the enlarged picture";
}

}  // namespace
}  // namespace brindlex::geometry
