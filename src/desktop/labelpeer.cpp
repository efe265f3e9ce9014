// Labels.
#include "desktop/labelpeer.h"

#include "desktop/formwindow.h"
#include "desktop/linklabel.h"
#include "desktop/looks.h"
#include "desktop/texts.h"
#include "frame/picturebox.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <algorithm>

namespace brindlex {

namespace {

// In the order of Label::Alignment.
constexpr Qt::AlignmentFlag Alignments[] = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};
// A hair's breadth, in pixels, that a caption may lose without a word.
constexpr int Hair = 2;

// Where a line is too long an ellipsis marks its end, as a number that lost digits may look like a whole one; the
// pointer brings up all of it.
class LineLabel : public QLabel {
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent* event) override {
        if (!IsCut()) {
            QLabel::paintEvent(event);
            return;
        }
        QPainter painter(this);
        const QRect place = contentsRect();
        style()->drawItemText(&painter, place, static_cast<int>(alignment()), palette(), isEnabled(),
                              fontMetrics().elidedText(text(), Qt::ElideRight, place.width()), foregroundRole());
    }

    bool event(QEvent* event) override {
        if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && IsCut()) {
            QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text().toHtmlEscaped(), this);
            return true;
        }
        return QLabel::event(event);
    }

private:
    [[nodiscard]] bool IsCut() const {
        return !wordWrap() && !text().contains(u'\n') &&
               fontMetrics().horizontalAdvance(text()) > contentsRect().width() + Hair;
    }
};

QLabel* MakeLabel(FormWindow& window, Label& label) {
    QWidget* const inside = window.Inside(label.Container());
    if (!label.Click.IsBound()) {
        return new LineLabel(inside);
    }
    return new LinkLabel(inside, [&window, &label] {
        window.ByPerson([&] {
            if (label.IsUsable()) {
                label.Fire(label.Click, "Click");
            }
        });
    });
}

// It stands on one, or over one of its neighbours.
bool LiesOnPicture(const Label& label) {
    if (dynamic_cast<const PictureBox*>(&label.Container()) != nullptr) {
        return true;
    }
    const double x = label.Left() + label.Width() / 2;
    const double y = label.Top() + label.Height() / 2;
    const auto& siblings = label.Container().Children();
    return std::any_of(siblings.begin(), siblings.end(), [&](const Control* sibling) {
        return dynamic_cast<const PictureBox*>(sibling) != nullptr && sibling->Visible() && x > sibling->Left() &&
               x < sibling->Left() + sibling->Width() && y > sibling->Top() && y < sibling->Top() + sibling->Height();
    });
}

}  // namespace

LabelPeer::LabelPeer(FormWindow& window, Label& label)
    : Peer(window, label, MakeLabel(window, label)), label_(label), text_(static_cast<QLabel*>(Widget())) {
    text_->setTextFormat(Qt::PlainText);
    text_->setAlignment(Alignments[static_cast<std::size_t>(label.Align())] |
                        (label.Click.IsBound() ? Qt::AlignVCenter : Qt::AlignTop));
}

void LabelPeer::MirrorOwn(Aspect aspect) {
    if (aspect == Aspect::All || aspect == Aspect::Caption) {
        text_->setText(FromLines(label_.Caption()));
    }
    if ((aspect == Aspect::All || aspect == Aspect::Look) && label_.Click.IsBound()) {
        // The mark of a link that does not lie in its colour alone.
        QFont font = text_->font();
        font.setUnderline(true);
        text_->setFont(font);
    }
    const bool looks = aspect == Aspect::All || aspect == Aspect::Place || aspect == Aspect::Look;
    if (looks && !label_.AutoSize()) {
        // A label that is one line high does not lose its last word for a hair's breadth.
        text_->setWordWrap(text_->height() >= 2 * text_->fontMetrics().height());
    }
    if (looks || aspect == Aspect::Order) {
        MirrorGround();
    }
}

// On a picture a label covers what is drawn beneath it, unless it lets it shine through. The picture is white whatever
// the window is, so the ink goes with it.
void LabelPeer::MirrorGround() {
    const bool onPicture = LiesOnPicture(label_);
    if (onPicture) {
        QPalette palette = text_->palette();
        palette.setColor(QPalette::Window, Qt::white);
        palette.setColor(QPalette::WindowText, ToQt(label_.ForeColor()));
        text_->setPalette(palette);
    } else if (onPicture_) {
        text_->setPalette(QPalette());
    }
    onPicture_ = onPicture;
    text_->setAutoFillBackground(onPicture && !label_.Transparent() && !label_.Caption().empty());
}

std::optional<PropertyValue> LabelPeer::Seen(std::string_view property) const {
    if (property == "Caption") {
        const bool shows = text_->text() == FromLines(label_.Caption());
        return shows ? label_.Caption() : ToText(text_->text());
    }
    return Peer::Seen(property);
}

}  // namespace brindlex
