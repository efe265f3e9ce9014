// Window capture and printing, shared by all calculators.
// Units: twips on the printable area.
#pragma once

#include "frame/commondialog.h"
#include "frame/picturebox.h"
#include "frame/printer.h"

#include <functional>
#include <initializer_list>

namespace brindlex {

class Program;

/// The inside of the form's window as a picture.
[[nodiscard]] Snapshot CaptureFormClient(Form& form);

/// Draws the picture as large as fits: landscape when it is wider than high, else portrait; the full height when its
/// aspect is below the page's, else the full width.
void PrintFitPage(PrinterObject& printer, const Snapshot& picture, double left = 0, double top = 0);

/// Draws a picture box with what stands on it. A fault is shown in a box titled "Printer Error!".
void PrintBox(Program& program, PictureBox& box, double left, double top, double width, double height);

/// The route of a print handler: Cancel ends it quietly, any other fault is told in a box titled "Printer Error!", and
/// what was gathered for the printer is dropped.
void RoutePrinterFaults(Program& program, const std::function<void()>& print);

/// Shows the printer dialog with CancelError on and runs `page` once per copy, first in portrait. No copies print
/// nothing, more than 9999 are refused in a box. Cancel throws DialogCancelled, which the caller's route swallows.
void ForEachCopy(CommonDialog& dialog, const std::function<void()>& page);

/// Print Window: captures the form into the buffer, asks for the printer, prints it fitted to the page, one document
/// per copy. Cancel ends it quietly; a printer that refuses is told in a box.
void PrintWindow(Form& form, PictureBox& buffer, CommonDialog& dialog);

/// Print Picture of the triangle calculators: for each copy a heading of the form's title in 16 point bold, then the
/// picture with its overlay boxes and labels, which are moved onto the buffer meanwhile and back afterwards.
void PrintPicture(Form& form, PictureBox& picture, PictureBox& buffer, CommonDialog& dialog,
                  std::initializer_list<Control*> overlay);

}  // namespace brindlex
