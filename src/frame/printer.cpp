// Gathering of printed pages.
#include "frame/printer.h"

#include "frame/runtime.h"
#include "frame/text.h"

#include <utility>

namespace brindlex {

double PrinterObject::Width() const {
    return runtime_.PrintableSize(orientation_).Width;
}

double PrinterObject::Height() const {
    return runtime_.PrintableSize(orientation_).Height;
}

void PrinterObject::Orientation(PaperOrientation value) {
    orientation_ = value;
    if (!document_.Pages.empty() && document_.Pages.back().Items.empty()) {
        Turn(document_.Pages.back());
    }
}

void PrinterObject::Turn(PrintedPage& page) const {
    page.Width = Width();
    page.Height = Height();
}

PrintedPage& PrinterObject::Page() {
    if (document_.Pages.empty()) {
        NewPage();
    }
    return document_.Pages.back();
}

void PrinterObject::Print(std::string_view text) {
    Page().Items.emplace_back(PrintedText{std::string(text), font_});
}

void PrinterObject::PrintAtTab(int column, std::string_view text) {
    Print(Space(column - 1).append(text));
}

void PrinterObject::PaintPicture(const Snapshot& picture, double left, double top, double width, double height) {
    Turn(Page());
    Page().Items.emplace_back(PrintedPicture{{left, top, width, height}, picture});
}

void PrinterObject::NewPage() {
    document_.Pages.push_back({Width(), Height(), {}});
}

void PrinterObject::EndDoc() {
    const PrintedDocument document = std::exchange(document_, {});
    if (!document.Pages.empty()) {
        runtime_.PrintDocument(document);
    }
}

}  // namespace brindlex
