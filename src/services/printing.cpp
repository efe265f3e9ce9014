// Fit to the page, copies, and the two print routes.
#include "services/printing.h"

#include "frame/fontwidths.h"
#include "frame/form.h"
#include "frame/program.h"

#include <algorithm>
#include <vector>

namespace brindlex {

namespace {

constexpr const char* HeadingFont = "Times New Roman";
constexpr double HeadingPoints = 16;
constexpr double PicturePoints = 8;
constexpr int HeadingLines = 5;
constexpr int HeadingColumn = 5;
constexpr int MostCopies = 9999;

void TellPrinterFault(Program& program, const Fault& fault) {
    program.MsgBox(fault.what(), style::Plain, "Printer Error!");
}

/// Puts a picture into a print buffer, and takes it out again on every way.
class BufferedPicture {
public:
    BufferedPicture(PictureBox& buffer, Snapshot picture) : buffer_(buffer) { buffer_.Picture(std::move(picture)); }
    ~BufferedPicture() {
        buffer_.Cls();
        buffer_.Picture({});
    }
    BufferedPicture(const BufferedPicture&) = delete;
    BufferedPicture& operator=(const BufferedPicture&) = delete;

private:
    PictureBox& buffer_;
};

/// Moves controls onto another container, and back on every way.
class MovedControls {
public:
    MovedControls(std::initializer_list<Control*> controls, ControlContainer& home, ControlContainer& guest)
        : controls_(controls), home_(home) {
        for (Control* const control : controls_) {
            control->Container(guest);
        }
    }
    ~MovedControls() {
        for (Control* const control : controls_) {
            control->Container(home_);
        }
    }
    MovedControls(const MovedControls&) = delete;
    MovedControls& operator=(const MovedControls&) = delete;

private:
    std::vector<Control*> controls_;
    ControlContainer& home_;
};

void PrintHeading(PrinterObject& printer, const std::string& title) {
    PrinterFont font{HeadingFont, HeadingPoints, true};
    printer.Font(font);
    printer.Print();
    printer.Print();
    printer.PrintAtTab(HeadingColumn, title);
    printer.Print();
    printer.Print();
    font.Size = PicturePoints;
    printer.Font(font);
}

/// The largest place below the heading that has a picture's proportions.
Place PlaceBelowHeading(const PrinterObject& printer, const Place& picture) {
    const double top = HeadingLines * TextHeight(HeadingPoints);
    const double across = printer.Width() / picture.Width;
    const double down = std::max(printer.Height() - top, 0.0) / picture.Height;
    const double scale = std::min(across, down);
    return {0, top, picture.Width * scale, picture.Height * scale};
}

}  // namespace

Snapshot CaptureFormClient(Form& form) {
    return form.Owner().Platform().CaptureClient(form);
}

void PrintFitPage(PrinterObject& printer, const Snapshot& picture, double left, double top) {
    if (picture.Width <= 0 || picture.Height <= 0) {
        return;
    }
    printer.Orientation(picture.Width > picture.Height ? PaperOrientation::Landscape : PaperOrientation::Portrait);
    const double aspect = picture.Width / picture.Height;
    double width = printer.ScaleWidth();
    double height = printer.ScaleHeight();
    if (aspect < width / height) {
        width = height * aspect;
    } else {
        height = width / aspect;
    }
    printer.PaintPicture(picture, left, top, width, height);
}

void PrintBox(Program& program, PictureBox& box, double left, double top, double width, double height) {
    const bool autoRedraw = box.AutoRedraw();
    box.AutoRedraw(true);
    try {
        program.Printer().PaintPicture(box.Image(), left, top, width, height);
    } catch (const Fault& fault) {
        TellPrinterFault(program, fault);
    }
    box.AutoRedraw(autoRedraw);
}

void RoutePrinterFaults(Program& program, const std::function<void()>& print) {
    try {
        print();
    } catch (const Fault& fault) {
        program.Printer().KillDoc();
        if (fault.Number() != FaultNumber::DialogCancelled) {
            TellPrinterFault(program, fault);
        }
    }
}

void ForEachCopy(CommonDialog& dialog, const std::function<void()>& page) {
    dialog.CancelError(true);
    dialog.ShowPrinter();
    Program& program = dialog.Parent().Owner();
    if (dialog.Copies() > MostCopies) {
        program.BeepBox("At Most " + std::to_string(MostCopies) + " Copies Can Be Printed At Once.");
        return;
    }
    // A printer that was just chosen stands upright, whatever the print before it wanted.
    program.Printer().Orientation(PaperOrientation::Portrait);
    for (int copy = 1; copy <= dialog.Copies(); ++copy) {
        page();
    }
}

void PrintWindow(Form& form, PictureBox& buffer, CommonDialog& dialog) {
    const BufferedPicture window(buffer, CaptureFormClient(form));
    Program& program = form.Owner();
    RoutePrinterFaults(program, [&] {
        ForEachCopy(dialog, [&] {
            PrintFitPage(program.Printer(), buffer.Picture());
            program.Printer().EndDoc();
        });
    });
}

void PrintPicture(Form& form, PictureBox& picture, PictureBox& buffer, CommonDialog& dialog,
                  std::initializer_list<Control*> overlay) {
    Program& program = form.Owner();
    PrinterObject& printer = program.Printer();
    const auto page = [&] {
        PrintHeading(printer, form.Caption());
        const MovedControls moved(overlay, picture, buffer);
        const BufferedPicture image(buffer, picture.Image());
        const Place place = PlaceBelowHeading(printer, picture.PlaceInTwips());
        PrintBox(program, buffer, place.Left, place.Top, place.Width, place.Height);
        printer.EndDoc();
    };
    RoutePrinterFaults(program, [&] { ForEachCopy(dialog, page); });
}

}  // namespace brindlex
