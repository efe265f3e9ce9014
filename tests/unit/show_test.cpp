// What `show` tells: the state of the run, drawings, printed pages, records; property names of every kind of thing.
#include "headless/show.h"
#include "scriptforms.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(ShowTest, FormsAndTheirNames) {
    ScriptStand stand;
    EXPECT_EQ(stand.AfterStart("show forms\n"
                               "show loaded\n"
                               "show modal\n"
                               "show ended\n"
                               "show Form11.Focus\n"
                               "set Form11.Text1.Enabled 0\n"
                               "show Form11.Focus\n"
                               "set Form11.Visible 0\n"
                               "show forms\n"
                               "show loaded\n"),
              (Log{"ok [\"Form11\"]", "ok [\"Form11\"]", "ok \"\"", "ok 0", "ok \"Text1\"", "ok", "ok \"\"", "ok",
                   "ok []", "ok [\"Form11\"]"}));
}

TEST(ShowTest, PropertiesOfForms) {
    ScriptStand stand;
    // The window adds 120 twips of border, 405 of title bar, 285 of menu bar.
    EXPECT_EQ(stand.AfterStart("show Form11.Caption\n"
                               "show Form11.Visible\n"
                               "show Form11.Left\n"
                               "show Form11.Width\n"
                               "show Form11.Height\n"
                               "show Form11.ScaleWidth\n"
                               "show Form11.ScaleHeight\n"
                               "show Form11.ScaleMode\n"
                               "show Form4.Visible\n"
                               "show Form4.ScaleWidth\n"
                               "show Form4.ScaleMode\n"
                               "show Form4.Text1.Left\n"
                               "show Form4.Focus\n"
                               "show Form9.Visible\n"),
              (Log{"ok \"Main\"", "ok -1", "ok 0", "ok 6120", "ok 5310", "ok 6000", "ok 4500", "ok 1", "ok 0", "ok 4",
                   "ok 5", "ok 0.5", "ok \"\"", "error there is no form Form9"}));
}

TEST(ShowTest, PropertiesOfMenusAndToolButtons) {
    ScriptStand stand;
    EXPECT_EQ(stand.AfterStart("show Form11.Edit.Caption\n"
                               "show Form11.Copy.Checked\n"
                               "set Form11.Copy.Checked -1\n"
                               "show Form11.Copy.Checked\n"
                               "show Form11.Copy.Enabled\n"
                               "show Form11.Copy.Visible\n"
                               "show Form11.Copy.Left\n"
                               "show Form11.Toolbar1.Delete.Enabled\n"
                               "set Form11.Toolbar1.Delete.Enabled -1\n"
                               "show Form11.Toolbar1.Delete.Enabled\n"
                               "show Form11.Toolbar1.Delete.ToolTipText\n"
                               "set Form11.Toolbar1.Point.Value 1\n"
                               "show Form11.Toolbar1.Point.Value\n"
                               "show Form11.Toolbar1.Line.Value\n"
                               "show Form11.Toolbar1.None.Value\n"
                               "show Form11.Toolbar1.Line.Speed\n"
                               "show Form11.Toolbar1..Value\n"
                               "show Form11.Text1.Line.Value\n"
                               "show Form11.Toolbar1.Line.Value.More\n"
                               "set Form11.Toolbar1.Line.ToolTipText \"x\"\n"),
              (Log{"ok \"&Edit\"",
                   "ok 0",
                   "ok",
                   "ok -1",
                   "ok -1",
                   "ok -1",
                   "error Copy has no property Left",
                   "ok 0",
                   "ok",
                   "ok -1",
                   "ok \"Delete Entity\"",
                   "ok",
                   "ok 1",
                   "ok 0",
                   "error Toolbar1 has no button None",
                   "error Toolbar1 has no property Speed",
                   "error there is no Form11.Toolbar1..Value",
                   "error there is no Form11.Text1.Line.Value",
                   "error there is no Form11.Toolbar1.Line.Value.More",
                   "error Toolbar1.ToolTipText can only be read"}));
}

TEST(ShowTest, DrawingInOrder) {
    ScriptStand stand;
    PictureBox& picture = stand.Main().Picture1;
    stand.Main().OnCommand1 = [&] {
        picture.Cls();
        picture.DrawWidth(2);
        picture.DrawStyle(1);
        picture.Line(1, 2, 3.5, -4, {1, 171, 255});
        picture.Circle(10, 20, 5, Red);
        picture.Box(1, 1, 9, 9, Blue, true);
        picture.Box(1, 1, 9, 8, Blue);
        picture.ForeColor({16, 0, 0});
        picture.FontBold(true);
        picture.FontSize(8.25);
        picture.CurrentX(7);
        picture.CurrentY(6);
        picture.Print("A\xB0");
    };
    EXPECT_EQ(stand.AfterStart("show Form11.Picture1.Drawing\n"
                               "press Form11.Command1\n"
                               "show Form11.Picture1.Drawing\n"
                               "set Form11.Picture1.Drawing 0\n"
                               "show Form11.Label1.Drawing\n"),
              (Log{"ok []", "ok",
                   "ok [[\"line\",1,2,3.5,-4,\"#01ABFF\",2,1],[\"circle\",10,20,5,\"#FF0000\",2,1],"
                   "[\"box\",1,1,9,9,\"#0000FF\",-1],[\"box\",1,1,9,8,\"#0000FF\",0],"
                   "[\"text\",\"A\\u00b0\",7,6,\"#100000\",-1,8.25]]",
                   "error Picture1 has no property Drawing", "error Label1 has no property Drawing"}));
}

// A number is printed with its leading blank or minus sign and one blank behind it.
TEST(ShowTest, NumbersOnPictures) {
    ScriptStand stand;
    stand.Main().OnCommand1 = [&] {
        stand.Main().Picture1.Print(1.5);
        stand.Main().Picture1.CurrentX(0);
        stand.Main().Picture1.CurrentY(0);
        stand.Main().Picture1.Print(-2);
    };
    EXPECT_EQ(stand.AfterStart("press Form11.Command1\nshow Form11.Picture1.Drawing\n").back(),
              "ok [[\"text\",\" 1.5 \",0,0,\"#000000\",0,8.25],[\"text\",\"-2 \",0,0,\"#000000\",0,8.25]]");
}

TEST(ShowTest, PrintedDocuments) {
    ScriptStand stand;
    stand.Main().OnCommand1 = [&] {
        PrinterObject& printer = stand.App().Printer();
        printer.Font({"Courier New", 12, true});
        printer.PrintAtTab(3, "Title");
        printer.Font({"Arial", 9.5, false});
        printer.Print();
        printer.Print("a\r\nb");
        printer.Orientation(PaperOrientation::Landscape);
        printer.NewPage();
        printer.PaintPicture(stand.Main().Picture1.Image(), 100, 200, 300.5, 400);
        printer.EndDoc();
        printer.Print("next");
        printer.EndDoc();
    };
    EXPECT_EQ(stand.AfterStart("show printed\npress Form11.Command1\nshow printed\nshow printed\n"),
              (Log{"ok []", "ok",
                   "ok [[[[\"page\",11520,15120],[\"text\",\"  Title\",\"Courier New\",12,-1],"
                   "[\"text\",\"\",\"Arial\",9.5,0],[\"text\",\"a\\r\\nb\",\"Arial\",9.5,0]],"
                   "[[\"page\",15120,11520],[\"picture\",100,200,300.5,400]]],"
                   "[[[\"page\",15120,11520],[\"text\",\"next\",\"Arial\",9.5,0]]]]",
                   "ok []"}));
}

TEST(ShowTest, ProgramsAddressesRegionsAndToolbars) {
    ScriptStand stand;
    stand.Main().OnCommand1 = [&] {
        stand.App().WinCalc();
        stand.App().ShellExecute("open", "https://example.org/");
        stand.App().Platform().SetWindowRegion(stand.Main(), 77, -90, 5, 461);
        stand.Main().Toolbar1.SaveToolbar("Toolbar1", "Geometry", "Version");
    };
    EXPECT_EQ(stand.AfterStart("show toolbars\n"
                               "press Form11.Command1\n"
                               "show started\n"
                               "show started\n"
                               "show regions\n"
                               "show regions\n"
                               "show toolbars\n"
                               "show toolbars\n"
                               "show boxes\n"),
              (Log{"ok []", "ok", "ok [\"CALC.EXE\",\"https://example.org/\"]", "ok []",
                   "ok [[\"Form11\",77,-90,5,461]]", "ok []", "ok [[\"Toolbar1\",\"Geometry\",\"Version\"]]",
                   "ok [[\"Toolbar1\",\"Geometry\",\"Version\"]]", "ok []"}));
}

TEST(ShowTest, SharedVariablesAndScreen) {
    ScriptStand stand({800, 600});
    stand.App().Shared().DigitsR = "4";
    stand.App().Shared().SideA = 2.5;
    stand.App().Shared().LoopI = -3;
    EXPECT_EQ(stand.AfterStart("show shared.DigitsR\n"
                               "show shared.SideA\n"
                               "show shared.LoopI\n"
                               "show shared.VerCaption\n"
                               "show screen\n"
                               "show nothing\n"
                               "show \"forms\"\n"),
              (Log{"ok \"4\"", "ok 2.5", "ok -3", "ok \"\"", "ok [12000,9000]", "error there is no nothing",
                   "error there is no \"forms\""}));
}

TEST(ShowTest, FilesAreTheFolderOwn) {
    ScriptStand stand;
    std::filesystem::create_directory(stand.Files().Path() / "folder");
    stand.Files().Put("\xC3\xA9.txt", "1");
    stand.Files().Put("Z", "2");
    EXPECT_EQ(stand.Answers("show files\nshow file \"folder\"\nshow file \"\\u00e9.txt\"\n"),
              (Log{"ok [\"Z\",\"\\u00e9.txt\"]", "error there is no file folder", "ok \"1\""}));
}

// What a failed expectation has told is told.
TEST(ShowTest, ExpectTakesTheRecordAsShowDoes) {
    ScriptStand stand;
    stand.Run().Beeps = 2;
    EXPECT_EQ(stand.Answers("expect beeps [2\nexpect beeps 1\nshow beeps\n"),
              (Log{"error a value is not understood", "error expected 1 but it is 2", "ok 0"}));
}

/// Hands that see another text in each thing than the surface holds.
class SeeingPlayer : public HeadlessPlayer {
public:
    using HeadlessPlayer::HeadlessPlayer;
    std::optional<PropertyValue> Seen(Control& control, std::string_view property) override {
        return property == "Text" || property == "Line.Enabled" ? std::optional<PropertyValue>("seen " + control.Name())
                                                                : std::nullopt;
    }
    std::optional<PropertyValue> Seen(MenuItem& item, std::string_view /*property*/) override {
        return "seen " + item.Name();
    }
    std::optional<PropertyValue> Seen(Form& form, std::string_view property) override {
        return "seen " + form.Name() + "." + std::string(property);
    }
};

TEST(ShowTest, WhatAPersonSeesGoesFirst) {
    ScriptStand stand;
    SeeingPlayer player(stand.World());
    std::istringstream in(
        "start\nshow Form11.Text1.Text\nshow Form11.Text1.Left\nshow Form11.Copy.Enabled\nshow Form11.Caption\n"
        "show Form11.Focus\nshow Form11.Toolbar1.Line.Enabled\nshow Form11.Text1.Speed\nshow Form2.Text1.Text\n");
    std::ostringstream out;
    Script(stand.App(), stand.Run(), player, in, out, Script::AtError::GoOn).Run();
    EXPECT_EQ(out.str(),
              "ok\nok \"seen Text1\"\nok 120\nok \"seen Copy\"\nok \"seen Form11.Caption\"\n"
              "ok \"seen Form11.Focus\"\nok \"seen Toolbar1\"\nerror Text1 has no property Speed\nok \"\"\n");
}

}  // namespace
}  // namespace brindlex
