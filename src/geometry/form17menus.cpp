// Geometry: menus and printing.
#include "geometry/form17.h"

#include "frame/navigation.h"
#include "frame/program.h"
#include "geometry/unitchange.h"
#include "services/printing.h"

namespace brindlex::geometry {

namespace {

constexpr const char* HeadingFont = "Times New Roman";
constexpr double HeadingPoints = 18;
constexpr int HeadingColumn = 5;
constexpr Place PicturePlace{1500, 1000, 0, 0};

}  // namespace

void Form17::BindMenus() {
    NewGeo.Click.Bind(this, &Form17::NewGeo_Click);
    OpenIt.Click.Bind([this] { Files.Open(); });
    SaveAs.Click.Bind([this] { Files.SaveAs(); });
    InchTo.Click.Bind([this] { ChangeUnit(Work, Unit::Inch); });
    MM.Click.Bind([this] { ChangeUnit(Work, Unit::Millimeter); });
    PrntWin.Click.Bind(this, &Form17::PrntWin_Click);
    PrntPic.Click.Bind(this, &Form17::PrntPic_Click);
    Exit.Click.Bind(this, &Form17::Exit_Click);
    RemoveIt.Click.Bind([this] {
        Hand.Leave();
        Work.RemoveStuff();
    });
    AutoFit.Click.Bind([this] { AutoFit.Checked(!AutoFit.Checked()); });
    NoNums.Click.Bind(this, &Form17::NoNums_Click);
    ExactTan.Click.Bind([this] { ExactTan.Checked(!ExactTan.Checked()); });
    if (Owner().Knows("Form18")) {
        GeoRpt.Click.Bind(this, &Form17::GeoRpt_Click);
    }
    for (MenuItem* const item : {&OpenIt, &InchTo, &MM, &GeoRpt}) {
        item->Enabled(item->Click.IsBound());
    }
    BindNavigation(RightTri, "Form1");
    BindNavigation(Oblique, "Form2");
    BindNavigation(BoltCirc, "Form8");
    BindNavigation(Sines, "Form12");
    BindNavigation(Polygons, "Form16");
    BindNavigation(SpdFd, "Form19");
    BindNavigation(Menu, "Form11");
    BindCalculator(WinCalc);
    BindAbout(About);
}

void Form17::NewGeo_Click() {
    NewStuff();
    ShowFile("");
}

void Form17::ShowFile(const std::string& file) {
    Caption(Owner().Shared().VerCaption + "Geometry" + (file.empty() ? "" : "- " + file));
}

void Form17::GeoRpt_Click() {
    Owner().Get("Form18").ShowModal();
}

void Form17::NoNums_Click() {
    NoNums.Checked(!NoNums.Checked());
    Work.Paint();
}

bool Form17::NothingToPrint() {
    if (!Work.Live().FirstLine().empty()) {
        return false;
    }
    Owner().BeepBox("Nothing to Print!");
    return true;
}

void Form17::PrntWin_Click() {
    if (!NothingToPrint()) {
        PrintWindow(*this, Picture2, CommonDialog1);
    }
}

void Form17::PrntPic_Click() {
    if (NothingToPrint()) {
        return;
    }
    PrinterObject& printer = Owner().Printer();
    const auto page = [&] {
        printer.Font({HeadingFont, HeadingPoints, true});
        printer.Print();
        printer.Print();
        printer.PrintAtTab(HeadingColumn, Caption());
        printer.Print();
        printer.Print();
        PrintFitPage(printer, Picture1.Image(), PicturePlace.Left, PicturePlace.Top);
        printer.EndDoc();
    };
    RoutePrinterFaults(Owner(), [&] { ForEachCopy(CommonDialog1, page); });
}

}  // namespace brindlex::geometry
