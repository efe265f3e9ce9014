// The peer of a text box of several lines.
#pragma once

#include "desktop/notebox.h"
#include "desktop/peer.h"

namespace brindlex {

class NoteBoxPeer : public Peer {
public:
    NoteBoxPeer(FormWindow& window, TextBox& box);
    [[nodiscard]] std::optional<PropertyValue> Seen(std::string_view property) const override;

protected:
    void MirrorOwn(Aspect aspect) override;

private:
    TextBox& box_;
    NoteBox* note_;
};

}  // namespace brindlex
