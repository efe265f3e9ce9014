// The Oblique Triangles form: redisplays, units, files, paper, ways out.
#include "form2fixture.h"
#include "oblique/form2.h"

#include <gtest/gtest.h>

#include <string>
#include <variant>
#include <vector>

namespace brindlex::oblique {
namespace {

TEST_F(Form2Test, RedisplaysShowTheLastAcceptedTriangle) {
    Form2& form = Shown();
    form.TextOn.Checked(false);
    program.Shared().DigitsO = "2";
    Solve(form, "Side a, side b, side c", "7", "3", "8");
    const auto shown = Texts(form);
    EXPECT_EQ(shown, (std::vector<std::string>{"A= 60\xB0", "B= 21.79\xB0", "C= 98.21\xB0", "a= 7", "b= 3", "c= 8"}));
    form.Text1.Text("12");
    EXPECT_EQ(Texts(form), Letters);
    form.DIDMSO.FireClick();
    form.DIDMSO.FireClick();
    EXPECT_EQ(Texts(form), shown);
    form.Text1.Text("");
    form.DIDMSO.FireClick();
    EXPECT_EQ(Texts(form), Letters);  // an entry is missing
    form.DIDMSO.FireClick();
    form.RNO.FireClick();  // looks at the kept values only
    EXPECT_EQ(Texts(form), shown);
}

TEST_F(Form2Test, NothingIsRedisplayedBeforeThereIsAResult) {
    Form2& form = Shown();
    form.TextOn.FireClick();
    Enter(form, "Side a, side b, side c", "7", "3", "8");
    form.DIDMSO.FireClick();
    EXPECT_EQ(Texts(form), Letters);
    form.RNO.FireClick();
    form.TextOn.FireClick();
    EXPECT_EQ(Texts(form), Letters);
    EXPECT_EQ(Boxes(form), std::vector<std::string>(6));
    EXPECT_TRUE(Messages().empty());
}

TEST_F(Form2Test, AFreshFormHasNoResult) {
    Form2& form = Shown();
    Solve(form, "Side a, side b, side c", "7", "3", "8");
    form.CloseByPerson();
    EXPECT_FALSE(form.Loaded());
    form.Show();
    form.RNO.FireClick();
    EXPECT_EQ(Texts(form), Letters);
    EXPECT_EQ(form.Text1.Text(), "");
}

TEST_F(Form2Test, ARedisplayThatFaultsLeavesTheDisplay) {
    Form2& form = Shown();
    form.TextOn.Checked(false);
    // A side near the end of the range: its 15 digits read back lie beyond it.
    Solve(form, "Side a, side b, side c", "7", "3", "8");
    const auto shown = Texts(form);
    Solve(form, "Angle A, Angle B, side c", "60", "60", "1.79769313486231E+308");
    EXPECT_EQ(Messages(), std::vector<std::string>{OverflowText});  // the area is too large
    EXPECT_NE(Texts(form), shown);
    Solve(form, "Angle A, Angle B, side c", "60", "60", "1.7976931348623157E+308");
    Messages();
    const auto bare = Texts(form);
    form.RNO.FireClick();
    EXPECT_FALSE(program.Ended());
    EXPECT_TRUE(Messages().empty());
    EXPECT_EQ(Texts(form), bare);
}

TEST_F(Form2Test, AnEntryTooLargeToConvertIsToldAndKept) {
    Form2& form = Shown();
    Enter(form, "Angle A, side a, side b", "30", "5", "1E308");
    form.Inches2Millimeters.FireClick();
    EXPECT_EQ(Messages(), std::vector<std::string>{"These Values Are Too Large To Convert!"});
    EXPECT_EQ(run.Beeps, 1);
    EXPECT_EQ(form.Text1.Text(), "30");
    EXPECT_EQ(form.Text2.Text(), "5");
    EXPECT_EQ(form.Text3.Text(), "1E308");
    EXPECT_TRUE(form.Inches.Enabled());
    EXPECT_EQ(form.Label4.Caption(), "");
    form.Text3.Text("1E999");
    form.Millimeters2Inches.FireClick();
    EXPECT_EQ(Messages(), std::vector<std::string>{"These Values Are Too Large To Convert!"});
    EXPECT_EQ(form.Text3.Text(), "1E999");
}

TEST_F(Form2Test, LeavingWritesTheSettingsOnEveryWay) {
    const struct {
        const char* item;
        const char* form;
    } ways[] = {{"TriR", "Form1"},      {"BoltHoles", "Form8"}, {"Sines", "Form12"}, {"Poly", "Form16"},
                {"Geometry", "Form17"}, {"SpdFd", "Form19"},    {"Menu", "Form11"},  {"Ext2", "Form11"}};
    for (const auto& way : ways) {
        Form2& form = Shown();
        folder.Put("brindo.ini", "old\r\n");
        program.Shared().DigitsO = "7";
        form.DIDMSO.Checked(true);
        form.TextOn.Checked(false);
        form.FindMenu(way.item)->FireClick();
        EXPECT_EQ(folder.Get("brindo.ini"), "DMS=-1\r\nShape=-1\r\nText=0\r\nRounding=7\r\n") << way.item;
        EXPECT_FALSE(form.Visible());
        EXPECT_TRUE(program.Get(way.form).Visible()) << way.item;
        EXPECT_EQ(form.Loaded(), std::string(way.item) != "Ext2");
        program.Get(way.form).Hide();
    }
}

TEST_F(Form2Test, SettingsOfAnyContentAreTakenOrReplaced) {
    const struct {
        const char* content;
        bool dms, shape, text;
        const char* digits;
    } files[] = {
        {"", false, true, true, "4"},
        {"DMS=-1\r\nShape=0\r\nText=0\r\nRounding=12\r\n", true, false, false, "12"},
        {"XXX=-1\r\nYYYYY=0\r\n\r\nRounding=12\r\n", true, false, true, "4"},
        {"DMS=1\r\nShape=yes\r\nText=\r\nRounding=6\r\n", false, true, true, "4"},
        {"DMS\r\nS\r\nT\r\nR\r\n", false, true, true, "4"},
        {"DMS=0\r\nShape=-1\r\nText=-1\r\nRounding=1x\r\n", false, true, true, "4"},
    };
    for (const auto& file : files) {
        folder.Put("brindo.ini", file.content);
        Form2& form = Shown();
        EXPECT_EQ(form.DIDMSO.Checked(), file.dms) << file.content;
        EXPECT_EQ(form.ShapeO.Checked(), file.shape) << file.content;
        EXPECT_EQ(form.TextOn.Checked(), file.text) << file.content;
        EXPECT_EQ(program.Shared().DigitsO, file.digits) << file.content;
        EXPECT_FALSE(form.ShapeO.Enabled());
        form.Unload();
    }
}

TEST_F(Form2Test, AFileThatIsNoTriangleIsRefusedAndNothingIsLost) {
    folder.Put("other.obl", "no case\r\n1\r\n2\r\n3\r\n");
    Form2& form = Shown();
    Solve(form, "Side a, side b, side c", "3", "4", "5");
    const auto shown = Boxes(form);
    run.Files.emplace_back("other.obl");
    form.OPenFile.FireClick();
    EXPECT_EQ(Messages(), std::vector<std::string>{"This Is Not An Oblique Triangle File!"});
    EXPECT_EQ(form.Combo1.Text(), "Side a, side b, side c");
    EXPECT_EQ(form.Text1.Text(), "3");
    EXPECT_EQ(Boxes(form), shown);
    EXPECT_EQ(form.CommonDialog1.FileName(), "");
    run.Files.emplace_back("missing.obl");
    form.OPenFile.FireClick();
    EXPECT_TRUE(Messages().empty());
    EXPECT_EQ(Boxes(form), shown);
}

TEST_F(Form2Test, ASaveThatFailsKeepsEverything) {
    Form2& form = Shown();
    Solve(form, "Side a, side b, side c", "3", "4", "5");
    run.Files.emplace_back("no/such/folder/a.obl");
    form.SaveFileAs.FireClick();
    EXPECT_TRUE(Messages().empty());
    EXPECT_EQ(form.CommonDialog1.FileName(), "");
    EXPECT_EQ(form.Text3.Text(), "5");
}

TEST_F(Form2Test, PastedLineEndsDoNotPartTheFile) {
    Form2& form = Shown();
    Solve(form, "Side a, side b, side c", "3\r\nrest", "4", "5");
    run.Files.emplace_back("a.obl");
    form.SaveFileAs.FireClick();
    EXPECT_EQ(folder.Get("a.obl"), "Side a, side b, side c\r\n3\r\n4\r\n5\r\n");
}

TEST_F(Form2Test, PrintsThePictureWithItsBoxes) {
    Form2& form = Shown();
    Solve(form, "Side a, side b, side c", "3", "4", "5");
    run.Printers.emplace_back(PrinterChoice{2, 0, 0});
    form.PrntPic.FireClick();
    ASSERT_EQ(run.Printed.size(), 2U);
    ASSERT_EQ(run.Printed[0].Pages.size(), 1U);
    const PrintedPage& page = run.Printed[0].Pages[0];
    std::size_t pictures = 0;
    for (const auto& item : page.Items) {
        if (const auto* const picture = std::get_if<PrintedPicture>(&item)) {
            ++pictures;
            EXPECT_EQ(picture->Picture.Labels.size(), 8U);
            EXPECT_LE(picture->Where.Left + picture->Where.Width, page.Width + 1e-6);
        }
    }
    EXPECT_EQ(pictures, 1U);
    EXPECT_EQ(&form.Text4.Container(), static_cast<ControlContainer*>(&form.Picture1));
    EXPECT_EQ(form.Text9.Left(), 90);
    EXPECT_TRUE(Messages().empty());
}

}  // namespace
}  // namespace brindlex::oblique
