// The report form.
#include "geometry/form18.h"

#include "form17fixture.h"

namespace brindlex::geometry {
namespace {

class Form18Test : public Form17Test {
protected:
    Form18Test() {
        program.Register("Form18", [](Program& owner) { return std::make_unique<Form18>(owner); });
    }
    Form18& Report() {
        Form18& report = dynamic_cast<Form18&>(program.Get("Form18"));
        report.Load();
        return report;
    }
};

TEST_F(Form18Test, TellsTheDrawingInItsUnit) {
    Tool("Point");
    PlacePoint("2", "3");
    form->Work.TakeUnit(Unit::Millimeter);
    Form18& report = Report();
    EXPECT_EQ(report.Text1.Text(), "Scale: Millimeters\r\n\r\n 1 Point:\r\n          X 2.,  Y 3.\r\n\r\n");
    EXPECT_EQ(report.Caption(), "Brindlex 3.0.2- Geometry Report.");
    EXPECT_TRUE(report.Command2.Enabled());
    EXPECT_TRUE(report.Text1.Locked());
}

TEST_F(Form18Test, LeavesTheFirstPairChosen) {
    Tool("Line");
    PlaceLine("0", "0", "2", "2");
    PlaceLine("0", "2", "2", "0");
    PlaceLine("0", "1", "2", "1");
    ASSERT_EQ(form->Frame8.Combo1.ListCount(), 3);
    form->Frame8.Combo1.ListIndex(2);
    Report();
    EXPECT_EQ(form->Frame8.Combo1.ListIndex(), 0);
}

TEST_F(Form18Test, TheTextGrowsWithTheForm) {
    Form18& report = Report();
    const double width = report.Text1.Width();
    const double left = report.Command2.Left();
    report.Show();
    report.ResizeByPerson(report.InnerWidth() * 2, report.InnerHeight());
    EXPECT_DOUBLE_EQ(report.Text1.Width(), width * 2);
    EXPECT_DOUBLE_EQ(report.Command2.Left(), left * 2);
}

TEST_F(Form18Test, OkCloses) {
    Form18& report = Report();
    report.Command1.Value(true);
    EXPECT_FALSE(report.Loaded());
}

}  // namespace
}  // namespace brindlex::geometry
