// Text boxes of several lines.
#include "desktop/noteboxpeer.h"

#include "desktop/formwindow.h"

namespace brindlex {

NoteBoxPeer::NoteBoxPeer(FormWindow& window, TextBox& box)
    : Peer(window, box, new NoteBox(window.Inside(box.Container()), window, box)),
      box_(box),
      note_(static_cast<NoteBox*>(Widget())) {
    WatchMouse(note_->viewport());
}

void NoteBoxPeer::MirrorOwn(Aspect aspect) {
    const bool all = aspect == Aspect::All;
    if (all || aspect == Aspect::Locked) {
        note_->setReadOnly(box_.Locked());
    }
    if (all || aspect == Aspect::Text) {
        note_->MirrorText();
    } else if (aspect == Aspect::Selection) {
        note_->MirrorSelection();
    }
}

std::optional<PropertyValue> NoteBoxPeer::Seen(std::string_view property) const {
    if (property == "Text") {
        // The widget cannot tell the program's line ends from others.
        return note_->ShowsText() ? box_.Text() : note_->SeenText();
    }
    if (property == "SelStart") {
        return double(note_->SeenStart());
    }
    if (property == "SelLength") {
        return double(note_->SeenLength());
    }
    return Peer::Seen(property);
}

}  // namespace brindlex
