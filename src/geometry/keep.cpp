// The Keep buttons and their copies.
#include "geometry/keep.h"

#include <cstddef>
#include <string>

namespace brindlex::geometry {

void Keep::KillCaptions() {
    work_.Pass.Pick.Shape = Kind::None;
    work_.Withdraw(work_.On.Command3);
    connect_.Rest();
    for (const auto& buttons : {connect_.KeepButtons(), tangent_.KeepButtons()}) {
        for (CommandButton* const button : buttons) {
            button->Caption("");
            work_.Withdraw(*button);
        }
    }
    for (CommandButton* const copy : strip_.Copies()) {
        copy->Caption("");
        copy->Enabled(false);
    }
    strip_.Label34.Visible(false);
    for (CommandButton* const button : {&work_.On.Command13, &strip_.Command14, &strip_.Command15}) {
        button->Enabled(false);
    }
}

void Keep::ClearForPlacing() {
    for (CommandButton* const button : connect_.KeepButtons()) {
        button->Caption("");
    }
    for (CommandButton* const copy : strip_.Copies()) {
        copy->Caption("");
        work_.Withdraw(*copy);
    }
    strip_.Label34.Visible(false);
}

void Keep::Copy(const std::array<CommandButton*, 4>& buttons) {
    const auto copies = strip_.Copies();
    bool any = false;
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        const std::string& caption = buttons[i]->Caption();
        if (!caption.empty()) {
            copies[i]->Caption(caption);
            work_.Offer(*copies[i]);
            any = true;
        }
    }
    if (any) {
        strip_.Label34.Visible(true);
        work_.Offer(strip_.Command14);
        work_.Offer(strip_.Command15);
    }
}

void Keep::ShowStrip() {
    if (work_.On.Toolbar1.Buttons("Connect").Value != 0) {
        work_.EnableTool("Connect", false);
        Copy(connect_.KeepButtons());
    }
    if (work_.On.Toolbar1.Buttons("CircTan").Value != 0) {
        work_.EnableTool("CircTan", false);
        Copy(tangent_.KeepButtons());
    }
}

void Keep::HideStrip() {
    for (CommandButton* const copy : strip_.Copies()) {
        work_.Withdraw(*copy);
    }
    strip_.Label34.Visible(false);
    work_.Withdraw(strip_.Command14);
    work_.Withdraw(strip_.Command15);
}

}  // namespace brindlex::geometry
