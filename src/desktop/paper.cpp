// Printing.
#include "desktop/paper.h"

#include "desktop/looks.h"
#include "desktop/painting.h"
#include "desktop/texts.h"
#include "frame/fault.h"
#include "frame/fontwidths.h"

#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>

#include <algorithm>
#include <cmath>
#include <utility>
#include <variant>

namespace brindlex {

namespace {

constexpr double LetterWidth = 11520;
constexpr double LetterHeight = 15120;
constexpr double QuarterInch = 18;  // points
constexpr int PdfResolution = 1200;

QPageLayout::Orientation OrientationOf(const PrintedPage& page) {
    return page.Width > page.Height ? QPageLayout::Landscape : QPageLayout::Portrait;
}

// Paints pages one after the other. Texts flow down from the top, though never over a picture that was there first. A
// line that the page has no room for goes on the next page; a line or picture that is too wide is made smaller.
class PageWriter {
public:
    PageWriter(QPagedPaintDevice& device, QPainter& painter) : device_(device), painter_(painter) {}

    [[nodiscard]] bool Write(const PrintedPage& page, bool first) {
        width_ = page.Width;
        height_ = page.Height;
        if (!first && !Turn(OrientationOf(page))) {
            return false;
        }
        Begin();
        return std::all_of(page.Items.begin(), page.Items.end(), [this](const auto& item) {
            return std::visit([this](const auto& own) { return Put(own); }, item);
        });
    }

private:
    [[nodiscard]] bool Turn(QPageLayout::Orientation orientation) {
        device_.setPageOrientation(orientation);
        return device_.newPage();
    }
    void Begin() {
        down_ = 0;
        covered_ = 0;
        painter_.resetTransform();
        painter_.scale(device_.logicalDpiX() / TwipsPerInch, device_.logicalDpiY() / TwipsPerInch);
    }
    [[nodiscard]] bool Put(const PrintedText& item) {
        const double line = TextHeight(item.Font.Size);
        for (const QString& words : FromLines(item.Text).split(u'\n')) {
            if (!words.isEmpty()) {
                down_ = std::max(down_, covered_);
            }
            if (down_ > 0 && down_ + line > height_) {
                if (!device_.newPage()) {
                    return false;
                }
                Begin();
            }
            painter_.setPen(Qt::black);
            painter_.setFont(FontFor(words, item.Font));
            painter_.drawText(QPointF(0, down_ + QFontMetricsF(painter_.font()).ascent()), words);
            down_ += line;
        }
        return true;
    }
    [[nodiscard]] QFont FontFor(const QString& words, const PrinterFont& font) const {
        const QFont own = TwipFont(font.Name, font.Size, font.Bold);
        const double across = QFontMetricsF(own).horizontalAdvance(words);
        if (across <= width_) {
            return own;
        }
        // Whole twips, the smaller ones.
        const double twips = std::floor(font.Size * TwipsPerPoint * width_ / across);
        return TwipFont(font.Name, twips / TwipsPerPoint, font.Bold);
    }
    [[nodiscard]] bool Put(const PrintedPicture& item) {
        const Place& place = item.Where;
        // What would go over the edge of the page is made smaller.
        const double across = (width_ - place.Left) / place.Width;
        const double down = (height_ - place.Top) / place.Height;
        const double scale = std::clamp(std::min(across, down), 0.0, 1.0);
        const QRectF target(place.Left, place.Top, place.Width * scale, place.Height * scale);
        PaintSnapshot(painter_, item.Picture, target);
        covered_ = std::max(covered_, target.bottom());
        return true;
    }

    QPagedPaintDevice& device_;
    QPainter& painter_;
    double width_ = 0;
    double height_ = 0;
    double down_ = 0;
    double covered_ = 0;  // by pictures, from the top
};

bool PaintPages(const PrintedDocument& document, QPagedPaintDevice& device) {
    if (document.Pages.empty()) {
        return true;
    }
    device.setPageOrientation(OrientationOf(document.Pages.front()));
    QPainter painter;
    if (!painter.begin(&device)) {
        return false;
    }
    PageWriter writer(device, painter);
    bool first = true;
    const bool whole = std::all_of(document.Pages.begin(), document.Pages.end(), [&](const PrintedPage& page) {
        return writer.Write(page, std::exchange(first, false));
    });
    return painter.end() && whole;
}

Size Turned(Size portrait, PaperOrientation orientation) {
    return orientation == PaperOrientation::Portrait ? portrait : Size{portrait.Height, portrait.Width};
}

}  // namespace

Paper::Paper() = default;
Paper::~Paper() = default;

QPrinter& Paper::Chosen() {
    if (printer_ == nullptr) {
        printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    }
    return *printer_;
}

std::optional<PrinterChoice> Paper::Ask(QWidget* parent) {
    QPrinter& printer = Chosen();
    printer.setCopyCount(1);
    QPrintDialog dialog(&printer, parent);
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    // The program prints each copy itself.
    PrinterChoice choice{std::max(printer.copyCount(), 1), printer.fromPage(), printer.toPage()};
    printer.setCopyCount(1);
    return choice;
}

Size Paper::Printable(PaperOrientation orientation) {
    QPageLayout layout = Chosen().pageLayout();
    layout.setOrientation(QPageLayout::Portrait);
    const QRectF points = layout.paintRect(QPageLayout::Point);
    return Turned({points.width() * TwipsPerPoint, points.height() * TwipsPerPoint}, orientation);
}

void Paper::Print(const PrintedDocument& document) {
    QPrinter& printer = Chosen();
    if (!PaintPages(document, printer) || printer.printerState() == QPrinter::Error) {
        const std::string name = ToText(printer.printerName());
        throw Fault(FaultNumber::FileIo, name.empty() ? "The document could not be printed"
                                                      : "The document could not be printed on " + name);
    }
}

Size LetterSize(PaperOrientation orientation) {
    return Turned({LetterWidth, LetterHeight}, orientation);
}

bool WritePdf(const PrintedDocument& document, const QString& path) {
    QPdfWriter writer(path);
    writer.setResolution(PdfResolution);
    writer.setPageLayout(QPageLayout(QPageSize(QPageSize::Letter), QPageLayout::Portrait,
                                     QMarginsF(QuarterInch, QuarterInch, QuarterInch, QuarterInch),
                                     QPageLayout::Point));
    return PaintPages(document, writer);
}

}  // namespace brindlex
