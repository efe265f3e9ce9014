// The printer: what is printed is gathered as a document of pages and goes to the runtime as a whole.
// Units: twips on the printable area of the page, fonts in points.
#pragma once

#include "frame/snapshot.h"

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace brindlex {

class Runtime;

struct PrinterFont {
    std::string Name = "Arial";
    double Size = 10;
    bool Bold = false;
};

/// One print statement. Printed below what was printed before it.
struct PrintedText {
    std::string Text;
    PrinterFont Font;
};

struct PrintedPicture {
    Place Where;
    Snapshot Picture;
};

struct PrintedPage {
    double Width = 0;
    double Height = 0;
    std::vector<std::variant<PrintedText, PrintedPicture>> Items;
};

struct PrintedDocument {
    std::vector<PrintedPage> Pages;
};

enum class PaperOrientation { Portrait = 1, Landscape = 2 };

class PrinterObject {
public:
    explicit PrinterObject(Runtime& runtime) : runtime_(runtime) {}

    [[nodiscard]] const PrinterFont& Font() const { return font_; }
    void Font(const PrinterFont& value) { font_ = value; }
    [[nodiscard]] double FontSize() const { return font_.Size; }
    void FontSize(double points) { font_.Size = points; }
    /// Twips always.
    [[nodiscard]] int ScaleMode() const { return 1; }
    /// The printable size of a page in the present orientation.
    [[nodiscard]] double Width() const;
    [[nodiscard]] double Height() const;
    [[nodiscard]] double ScaleWidth() const { return Width(); }
    [[nodiscard]] double ScaleHeight() const { return Height(); }
    [[nodiscard]] PaperOrientation Orientation() const { return orientation_; }
    /// Takes effect on pages that are not open yet, and on the open one while nothing stands on it or once a picture
    /// goes on it, which was fitted to it.
    void Orientation(PaperOrientation value);

    void Print(std::string_view text = {});
    /// Text from a column (from 1) on: leading blanks.
    void PrintAtTab(int column, std::string_view text);
    void PaintPicture(const Snapshot& picture, double left, double top, double width, double height);
    void NewPage();
    /// Hands the document to the runtime and starts afresh. A document of no page at all is not printed.
    void EndDoc();
    /// Drops what was gathered.
    void KillDoc() { document_ = {}; }

private:
    PrintedPage& Page();
    /// Lays a page in the present orientation.
    void Turn(PrintedPage& page) const;

    Runtime& runtime_;
    PrinterFont font_;
    PaperOrientation orientation_ = PaperOrientation::Portrait;
    PrintedDocument document_;
};

}  // namespace brindlex
