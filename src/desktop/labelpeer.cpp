// Labels.
#include "desktop/labelpeer.h"

#include "desktop/formwindow.h"
#include "desktop/linklabel.h"
#include "desktop/looks.h"
#include "desktop/texts.h"
#include "frame/picturebox.h"

namespace brindlex {

namespace {

// In the order of Label::Alignment.
constexpr Qt::AlignmentFlag Alignments[] = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};

QLabel* MakeWidget(FormWindow& window, Label& label) {
    QWidget* const inside = window.Inside(label.Container());
    if (!label.Click.IsBound()) {
        return new QLabel(inside);
    }
    return new LinkLabel(inside, [&window, &label] {
        window.ByPerson([&] {
            if (label.IsUsable()) {
                label.Fire(label.Click, "Click");
            }
        });
    });
}

}  // namespace

LabelPeer::LabelPeer(FormWindow& window, Label& label)
    : Peer(window, label, MakeWidget(window, label)), label_(label), text_(static_cast<QLabel*>(Widget())) {
    text_->setTextFormat(Qt::PlainText);
    text_->setAlignment(Alignments[static_cast<std::size_t>(label.Align())] |
                        (label.Click.IsBound() ? Qt::AlignVCenter : Qt::AlignTop));
    text_->setWordWrap(!label.AutoSize());
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
