// The peer of a text box of one line.
#pragma once

#include "desktop/linebox.h"
#include "desktop/peer.h"
#include "frame/textbox.h"

namespace brindlex {

class TextBoxPeer : public Peer {
public:
    TextBoxPeer(FormWindow& window, TextBox& box);
    [[nodiscard]] std::optional<PropertyValue> Seen(std::string_view property) const override;

protected:
    void MirrorOwn(Aspect aspect) override;
    void FocusedByMouse() override { line_->KeepSelectionOverPress(); }

private:
    TextBox& box_;
    LineBox* line_;
};

}  // namespace brindlex
