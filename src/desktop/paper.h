// The printer: the dialog, the page, the document on paper.
// Units: twips on the printable area.
#pragma once

#include "frame/printer.h"
#include "frame/runtime.h"

#include <memory>
#include <optional>

class QPagedPaintDevice;
class QPrinter;
class QString;
class QWidget;

namespace brindlex {

/// The printer that a person chooses. Nothing of the printing system is touched before the first use.
class Paper {
public:
    Paper();
    ~Paper();
    Paper(const Paper&) = delete;
    Paper& operator=(const Paper&) = delete;

    [[nodiscard]] std::optional<PrinterChoice> Ask(QWidget* parent);
    [[nodiscard]] Size Printable(PaperOrientation orientation);
    /// Throws Fault with the printer's words when it refuses.
    void Print(const PrintedDocument& document);

private:
    [[nodiscard]] QPrinter& Chosen();

    std::unique_ptr<QPrinter> printer_;
};

/// The printable size that a script works with: Letter with margins of a quarter inch.
[[nodiscard]] Size LetterSize(PaperOrientation orientation);
/// Writes a document of such pages as a PDF file; false where that fails.
bool WritePdf(const PrintedDocument& document, const QString& path);

}  // namespace brindlex
