// Text boxes of one line.
#include "desktop/textboxpeer.h"

#include "desktop/formwindow.h"
#include "desktop/texts.h"

namespace brindlex {

TextBoxPeer::TextBoxPeer(FormWindow& window, TextBox& box)
    : Peer(window, box, new LineBox(window.Inside(box.Container()), window, box)),
      box_(box),
      line_(static_cast<LineBox*>(Widget())) {
    line_->setAlignment((box.RightAligned() ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
}

void TextBoxPeer::MirrorOwn(Aspect aspect) {
    const bool all = aspect == Aspect::All;
    if (all || aspect == Aspect::Locked) {
        line_->setReadOnly(box_.Locked());
    }
    if (all || aspect == Aspect::Text) {
        line_->MirrorText();
    } else if (aspect == Aspect::Selection) {
        line_->MirrorSelection();
    }
}

std::optional<PropertyValue> TextBoxPeer::Seen(std::string_view property) const {
    if (property == "Text") {
        return ToText(line_->text());
    }
    if (property == "SelStart") {
        return double(line_->SeenStart());
    }
    if (property == "SelLength") {
        return double(line_->SeenLength());
    }
    return Peer::Seen(property);
}

}  // namespace brindlex
