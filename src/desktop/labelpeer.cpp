// Labels.
#include "desktop/labelpeer.h"

#include "desktop/formwindow.h"
#include "desktop/looks.h"
#include "desktop/texts.h"
#include "frame/picturebox.h"

#include <QLabel>

namespace brindlex {

namespace {

// In the order of Label::Alignment.
constexpr Qt::AlignmentFlag Alignments[] = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};

}  // namespace

LabelPeer::LabelPeer(FormWindow& window, Label& label)
    : Peer(window, label, new QLabel(window.Inside(label.Container()))),
      label_(label),
      text_(static_cast<QLabel*>(Widget())) {
    text_->setTextFormat(Qt::PlainText);
    text_->setAlignment(Alignments[static_cast<std::size_t>(label.Align())] | Qt::AlignTop);
    text_->setWordWrap(!label.AutoSize());
    if (label.Click.IsBound()) {
        text_->setCursor(Qt::PointingHandCursor);
    }
}

void LabelPeer::MirrorOwn(Aspect aspect) {
    if (aspect == Aspect::All || aspect == Aspect::Caption) {
        text_->setText(FromLines(label_.Caption()));
    }
    if (aspect == Aspect::All || aspect == Aspect::Order || aspect == Aspect::Look) {
        // On a picture a label covers what is drawn beneath it, unless it lets it shine through.
        const bool onPicture = dynamic_cast<const PictureBox*>(&label_.Container()) != nullptr;
        if (onPicture) {
            QPalette palette = text_->palette();
            palette.setColor(QPalette::Window, Qt::white);
            palette.setColor(QPalette::WindowText, ToQt(label_.ForeColor()));
            text_->setPalette(palette);
        }
        text_->setAutoFillBackground(onPicture && !label_.Transparent() && !label_.Caption().empty());
    }
}

std::optional<PropertyValue> LabelPeer::Seen(std::string_view property) const {
    if (property == "Caption") {
        const bool shows = text_->text() == FromLines(label_.Caption());
        return shows ? label_.Caption() : ToText(text_->text());
    }
    return Peer::Seen(property);
}

}  // namespace brindlex
