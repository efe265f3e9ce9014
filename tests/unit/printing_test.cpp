// Fitting, copies, the two print routes, and what a printer's refusal leaves behind.
#include "services/printing.h"

#include "faultof.h"
#include "frame/label.h"
#include "frame/textbox.h"
#include "testprogram.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

class PrintedForm : public Form {
public:
    explicit PrintedForm(Program& program) : Form(program, "Sample", 6000, 3000) {
        Picture2.Visible(false);
        PrntWin.Click.Bind([this] { PrintWindow(*this, Picture2, CommonDialog1); });
        PrntPic.Click.Bind([this] {
            PrintPicture(*this, Picture1, Picture2, CommonDialog1, {&Text3, &Text4, &Label1});
        });
    }

    PictureBox Picture1{*this, "Picture1", {360, 300, 4800, 2400}};
    PictureBox Picture2{*this, "Picture2", {0, 0, 600, 600}};
    TextBox Text3{Picture1, "Text3", {120, 240, 900, 315}, "90"};
    TextBox Text4{Picture1, "Text4", {1200, 240, 900, 315}, "hidden"};
    Label Label1{Picture1, "Label1", {120, 2000, 900, 255}, "Inches"};
    CommonDialog CommonDialog1{*this, "CommonDialog1"};
    MenuItem Prnt{*this, "Prnt", "Print"};
    MenuItem PrntWin{Prnt, "PrntWin", "&Window"};
    MenuItem PrntPic{Prnt, "PrntPic", "&Picture"};
};

Snapshot PictureOf(double width, double height) {
    Snapshot picture;
    picture.Width = width;
    picture.Height = height;
    picture.Drawn = std::make_shared<const Drawing>();
    return picture;
}

class Printing : public ::testing::Test {
protected:
    Printing() {
        program.Register<PrintedForm>("Sample");
        PrintedForm& sample = form();
        sample.Show();
        sample.Caption("Brindlex 3.0.2- Sample");
        sample.Text4.Visible(false);
        sample.Picture1.Line(0, 0, 4800, 2400, Blue);
        program.Runtime.Portrait = {10000, 14000};
    }

    PrintedForm& form() { return program.Get<PrintedForm>("Sample"); }
    PrinterObject& printer() { return program.Owner.Printer(); }

    void Answer(std::optional<PrinterChoice> choice) { program.Run.Printers.push_back(choice); }
    const PrintedPage& OnlyPage(std::size_t document) {
        EXPECT_EQ(program.Run.Printed.at(document).Pages.size(), 1U);
        return program.Run.Printed.at(document).Pages.at(0);
    }

    void ExpectUnchanged() {
        EXPECT_EQ(form().Picture1.Children(), (std::vector<Control*>{&form().Text3, &form().Text4, &form().Label1}));
        EXPECT_TRUE(form().Picture2.Children().empty());
        EXPECT_TRUE(form().Picture2.Picture().Empty());
        EXPECT_TRUE(form().Picture2.Drawn().Items().empty());
        EXPECT_EQ(form().Picture1.Drawn().Items().size(), 1U);
        EXPECT_EQ(form().Text3.PlaceInTwips(), (Place{120, 240, 900, 315}));
        EXPECT_FALSE(form().Text4.Visible());
        EXPECT_FALSE(program.Owner.Ended());
    }

    TestProgram program;
};

TEST_F(Printing, AsManyCopiesAsAreTold) {
    Answer(PrinterChoice{9999, 0, 0});
    int pages = 0;
    ForEachCopy(form().CommonDialog1, [&] { ++pages; });
    EXPECT_EQ(pages, 9999);
    EXPECT_TRUE(program.Run.Boxes.empty());
}

TEST_F(Printing, ThePictureOfOneTwipIsOneToo) {
    PrintFitPage(printer(), PictureOf(1, 1));
    printer().EndDoc();
    EXPECT_EQ(std::get<PrintedPicture>(OnlyPage(0).Items.at(0)).Where, (Place{0, 0, 10000, 10000}));
}

TEST_F(Printing, FitsThePictureToThePage) {
    struct Case {
        double width;
        double height;
        double pageWidth;
        Place place;
    };
    // Portrait 10000 by 14000, landscape 14000 by 10000.
    const Case cases[] = {
        {3000, 3000, 10000, {0, 0, 10000, 10000}},  // a square: full width
        {1000, 2000, 10000, {0, 0, 7000, 14000}},   // narrower than the page: full height
        {5000, 7000, 10000, {0, 0, 10000, 14000}},  // the page's own shape
        {6000, 3000, 14000, {0, 0, 14000, 7000}},   // wider than high: landscape, full width
        {3500, 3000, 14000, {0, 0, 35000.0 / 3, 10000}},
    };
    for (const Case& c : cases) {
        PrintFitPage(printer(), PictureOf(c.width, c.height));
        printer().EndDoc();
        const PrintedPage& page = OnlyPage(program.Run.Printed.size() - 1);
        EXPECT_EQ(page.Width, c.pageWidth);
        ASSERT_EQ(page.Items.size(), 1U);
        const Place& where = std::get<PrintedPicture>(page.Items[0]).Where;
        EXPECT_DOUBLE_EQ(where.Width, c.place.Width) << c.width << " by " << c.height;
        EXPECT_DOUBLE_EQ(where.Height, c.place.Height) << c.width << " by " << c.height;
    }
    PrintFitPage(printer(), PictureOf(3000, 3000), 100, 200);
    printer().EndDoc();
    EXPECT_EQ(std::get<PrintedPicture>(OnlyPage(5).Items[0]).Where, (Place{100, 200, 10000, 10000}));
}

TEST_F(Printing, AWidePictureTurnsThePageWithItsHeading) {
    printer().Print("Heading");
    PrintFitPage(printer(), PictureOf(6000, 3000), 1500, 1000);
    printer().EndDoc();
    const PrintedPage& page = OnlyPage(0);
    EXPECT_EQ(page.Width, 14000);
    EXPECT_EQ(page.Height, 10000);
    ASSERT_EQ(page.Items.size(), 2U);
    EXPECT_EQ(std::get<PrintedText>(page.Items[0]).Text, "Heading");
    EXPECT_EQ(std::get<PrintedPicture>(page.Items[1]).Where, (Place{1500, 1000, 14000, 7000}));
}

TEST_F(Printing, APictureOfNoSizePrintsNothing) {
    PrintFitPage(printer(), PictureOf(0, 100));
    PrintFitPage(printer(), PictureOf(100, 0));
    printer().EndDoc();
    EXPECT_TRUE(program.Run.Printed.empty());
}

TEST_F(Printing, TheWindowIsCaptured) {
    const Snapshot picture = CaptureFormClient(form());
    EXPECT_EQ(picture.Width, 6000);
    EXPECT_EQ(picture.Height, 3000);
    EXPECT_EQ(dynamic_cast<const FakeImage&>(*picture.Window).Form, "Sample");
}

TEST_F(Printing, PrintWindowPrintsADocumentACopy) {
    Answer(PrinterChoice{3, 0, 0});
    EXPECT_TRUE(form().ChooseByPerson(form().PrntWin));
    ASSERT_EQ(program.Run.Printed.size(), 3U);
    for (std::size_t copy = 0; copy < 3; ++copy) {
        const PrintedPage& page = OnlyPage(copy);
        EXPECT_EQ(page.Width, 14000);
        EXPECT_EQ(page.Height, 10000);
        ASSERT_EQ(page.Items.size(), 1U);
        const auto& picture = std::get<PrintedPicture>(page.Items[0]);
        EXPECT_EQ(picture.Where, (Place{0, 0, 14000, 7000}));
        EXPECT_EQ(dynamic_cast<const FakeImage&>(*picture.Picture.Window).Form, "Sample");
    }
    ASSERT_EQ(program.Run.Dialogs.size(), 1U);
    EXPECT_EQ(program.Run.Dialogs[0].Kind, DialogKind::Printer);
    EXPECT_TRUE(program.Run.Boxes.empty());
    ExpectUnchanged();
}

TEST_F(Printing, PrintPictureHasAHeadingAndTheShownBoxes) {
    Answer(PrinterChoice{2, 0, 0});
    EXPECT_TRUE(form().ChooseByPerson(form().PrntPic));
    ASSERT_EQ(program.Run.Printed.size(), 2U);
    for (std::size_t copy = 0; copy < 2; ++copy) {
        const PrintedPage& page = OnlyPage(copy);
        EXPECT_EQ(page.Width, 10000);
        ASSERT_EQ(page.Items.size(), 6U);
        const char* const lines[] = {"", "", "    Brindlex 3.0.2- Sample", "", ""};
        for (std::size_t line = 0; line < 5; ++line) {
            const auto& text = std::get<PrintedText>(page.Items[line]);
            EXPECT_EQ(text.Text, lines[line]);
            EXPECT_EQ(text.Font.Name, "Times New Roman");
            EXPECT_EQ(text.Font.Size, 16);
            EXPECT_TRUE(text.Font.Bold);
        }
        const auto& picture = std::get<PrintedPicture>(page.Items[5]);
        // Below five lines of 16 points, 1840 twips; as wide as the page, half as high.
        EXPECT_EQ(picture.Where, (Place{0, 1840, 10000, 5000}));
        EXPECT_EQ(picture.Picture.Width, 4800);
        EXPECT_EQ(picture.Picture.Height, 2400);
        ASSERT_TRUE(picture.Picture.Drawn);
        EXPECT_EQ(picture.Picture.Drawn->Items().size(), 1U);
        ASSERT_EQ(picture.Picture.Labels.size(), 2U);
        EXPECT_EQ(picture.Picture.Labels[0].Text, "90");
        EXPECT_EQ(picture.Picture.Labels[0].Where, (Place{120, 240, 900, 315}));
        EXPECT_EQ(picture.Picture.Labels[1].Text, "Inches");
    }
    EXPECT_EQ(printer().Font().Size, 8);
    ExpectUnchanged();
}

TEST_F(Printing, APrinterWithoutPaperIsToldOf) {
    PictureBox& box = form().Picture1;
    for (const bool redraw : {false, true}) {
        box.AutoRedraw(redraw);
        program.Runtime.PaperRefusal = Fault(FaultNumber::FileIo, "No paper");
        PrintBox(program.Owner, box, 0, 0, 100, 100);
        program.Runtime.PaperRefusal.reset();
        ASSERT_EQ(program.Run.Boxes.size(), 1U);
        EXPECT_EQ(program.Run.Boxes[0].Text, "No paper");
        EXPECT_EQ(program.Run.Boxes[0].Caption, "Printer Error!");
        EXPECT_EQ(program.Run.Boxes[0].Style, 0);
        program.Run.Boxes.clear();
        EXPECT_EQ(box.AutoRedraw(), redraw);
    }
}

TEST_F(Printing, AHighPictureStaysOnThePage) {
    program.Runtime.Portrait = {10000, 4840};
    Answer(PrinterChoice{});
    EXPECT_TRUE(form().ChooseByPerson(form().PrntPic));
    // 3000 twips are left below the heading.
    EXPECT_EQ(std::get<PrintedPicture>(OnlyPage(0).Items[5]).Where, (Place{0, 1840, 6000, 3000}));
}

TEST_F(Printing, BelowTheHeadingOfALowPageThereIsNoRoom) {
    program.Runtime.Portrait = {10000, 1000};
    Answer(PrinterChoice{});
    EXPECT_TRUE(form().ChooseByPerson(form().PrntPic));
    EXPECT_EQ(std::get<PrintedPicture>(OnlyPage(0).Items[5]).Where, (Place{0, 1840, 0, 0}));
}

TEST_F(Printing, EachPrintStartsInPortrait) {
    Answer(PrinterChoice{});
    EXPECT_TRUE(form().ChooseByPerson(form().PrntWin));
    Answer(PrinterChoice{});
    EXPECT_TRUE(form().ChooseByPerson(form().PrntPic));
    EXPECT_EQ(OnlyPage(0).Width, 14000);
    EXPECT_EQ(OnlyPage(1).Width, 10000);
}

TEST_F(Printing, CancelIsQuiet) {
    for (MenuItem* const item : {&form().PrntWin, &form().PrntPic}) {
        Answer(std::nullopt);
        EXPECT_TRUE(form().ChooseByPerson(*item));
        EXPECT_TRUE(program.Run.Printed.empty());
        EXPECT_TRUE(program.Run.Boxes.empty());
        EXPECT_EQ(program.Run.Beeps, 0);
        ExpectUnchanged();
    }
}

TEST_F(Printing, ARefusalIsToldOnceAndLeavesTheFormAsItWas) {
    program.Runtime.PrinterRefusal = Fault(FaultNumber::FileIo, "The paper is out");
    for (MenuItem* const item : {&form().PrntWin, &form().PrntPic}) {
        program.Run.Boxes.clear();
        Answer(PrinterChoice{5, 0, 0});
        EXPECT_TRUE(form().ChooseByPerson(*item));
        ASSERT_EQ(program.Run.Boxes.size(), 1U);
        EXPECT_EQ(program.Run.Boxes[0].Text, "The paper is out");
        EXPECT_EQ(program.Run.Boxes[0].Caption, "Printer Error!");
        EXPECT_EQ(program.Run.Boxes[0].Style, 0);
        ExpectUnchanged();
    }
    // Nothing of it comes out with the next document.
    program.Runtime.PrinterRefusal.reset();
    Answer(PrinterChoice{});
    EXPECT_TRUE(form().ChooseByPerson(form().PrntPic));
    EXPECT_EQ(OnlyPage(0).Items.size(), 6U);
}

TEST_F(Printing, NoCopiesAndTooManyPrintNothing) {
    for (const int copies : {0, -1}) {
        Answer(PrinterChoice{copies, 0, 0});
        EXPECT_TRUE(form().ChooseByPerson(form().PrntPic));
        EXPECT_TRUE(program.Run.Boxes.empty());
    }
    Answer(PrinterChoice{10000, 0, 0});
    EXPECT_TRUE(form().ChooseByPerson(form().PrntPic));
    ASSERT_EQ(program.Run.Boxes.size(), 1U);
    EXPECT_EQ(program.Run.Boxes[0].Text, "At Most 9999 Copies Can Be Printed At Once.");
    EXPECT_EQ(program.Run.Boxes[0].Style, 48);
    EXPECT_TRUE(program.Run.Printed.empty());
    ExpectUnchanged();
}

TEST_F(Printing, ABoxKeepsItsAutoRedraw) {
    for (const bool autoRedraw : {false, true}) {
        form().Picture1.AutoRedraw(autoRedraw);
        PrintBox(program.Owner, form().Picture1, 10, 20, 300, 400);
        EXPECT_EQ(form().Picture1.AutoRedraw(), autoRedraw);
        printer().EndDoc();
    }
    ASSERT_EQ(program.Run.Printed.size(), 2U);
    // The page that opens for it holds the picture alone.
    ASSERT_EQ(OnlyPage(0).Items.size(), 1U);
    EXPECT_EQ(std::get<PrintedPicture>(OnlyPage(0).Items[0]).Where, (Place{10, 20, 300, 400}));
}

TEST_F(Printing, TheRouteSwallowsCancelAlone) {
    RoutePrinterFaults(program.Owner, [] { throw Fault(FaultNumber::DialogCancelled); });
    EXPECT_TRUE(program.Run.Boxes.empty());
    printer().Print("half a page");
    RoutePrinterFaults(program.Owner, [] { throw Fault(FaultNumber::Overflow); });
    ASSERT_EQ(program.Run.Boxes.size(), 1U);
    EXPECT_EQ(program.Run.Boxes[0].Text, "Overflow");
    printer().EndDoc();
    EXPECT_TRUE(program.Run.Printed.empty());
    EXPECT_EQ(FaultOf([&] {
                  Answer(std::nullopt);
                  ForEachCopy(form().CommonDialog1, [] {});
              }),
              FaultNumber::DialogCancelled);
}

}  // namespace
}  // namespace brindlex
