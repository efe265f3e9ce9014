// The Keep buttons and their copies.
#include "geometry/keep.h"

#include "frame/text.h"
#include "geometry/rules.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

namespace brindlex::geometry {

namespace {

bool NoCaption(const std::array<CommandButton*, 4>& buttons) {
    return std::all_of(buttons.begin(), buttons.end(),
                       [](const CommandButton* button) { return button->Caption().empty(); });
}

}  // namespace

Keep::Keep(Session& work, ConnectPanel& connect, TangentPanel& tangent, const KeepStrip& strip)
    : work_(work), connect_(connect), tangent_(tangent), strip_(strip) {
    BindButtons();
}

void Keep::BindButtons() {
    for (const Buttons& buttons : {connect_.KeepButtons(), tangent_.KeepButtons()}) {
        for (CommandButton* const button : buttons) {
            button->Click.Bind([this, button] { KeepOne(*button); });
        }
    }
    const Buttons copies = strip_.Copies();
    for (std::size_t i = 0; i < copies.size(); ++i) {
        copies[i]->Click.Bind([this, i] {
            if (work_.Pressed("Connect")) {
                connect_.KeepButtons()[i]->Value(true);
            } else if (work_.Pressed("CircTan")) {
                tangent_.KeepButtons()[i]->Value(true);
            }
            strip_.Copies()[i]->Caption("");
        });
    }
    work_.On.Command13.Click.Bind([this] { KeepAll(); });
}

void Keep::KeepOne(CommandButton& button) {
    if (button.Caption().empty()) {
        return;
    }
    button.Caption("");
    KeepStuff();
    KillCaptions();
}

void Keep::KeepAll() {
    for (const Buttons& buttons : {connect_.KeepButtons(), tangent_.KeepButtons()}) {
        for (CommandButton* const button : buttons) {
            button->Caption("");
        }
    }
    KeepStuff();
    KillCaptions();
}

void Keep::KeepStuff() {
    // The pointer has gone to a button: nothing lights up on the picture.
    work_.Pass.View.PointerOver = false;
    const bool connecting = work_.Pressed("Connect");
    const bool tangent = work_.Pressed("CircTan");
    if ((connecting && NoCaption(connect_.KeepButtons())) || (tangent && NoCaption(tangent_.KeepButtons()))) {
        return;
    }
    std::vector<std::string> dropped;
    if (connecting || tangent) {
        for (const CommandButton* const button : connecting ? connect_.KeepButtons() : tangent_.KeepButtons()) {
            dropped.push_back(button->Caption());
        }
    }
    const Store live = work_.Live();
    // What can't be read is not rewritten.
    if (const auto lines = live.TryLines()) {
        live.Rewrite(scratch::Rewrite, WithoutCandidates(*lines, dropped));
    }
    work_.ReDraw();
    Clear(connect_.KeepButtons());
    Clear(tangent_.KeepButtons());
    HideStrip();
    Session::Run(work_.Calls.TellTouching, true);
}

/// Empties the captions; the buttons stay where they are.
void Keep::Clear(const Buttons& buttons) {
    for (CommandButton* const button : buttons) {
        button->Caption("");
    }
}

void Keep::ForgetCandidates() {
    for (const Buttons& buttons : {connect_.KeepButtons(), tangent_.KeepButtons()}) {
        Clear(buttons);
        for (CommandButton* const button : buttons) {
            work_.Withdraw(*button);
        }
    }
    HideStrip();
    work_.Withdraw(work_.On.Command13);
    Session::Run(work_.Calls.TellTouching, true);
}

void Keep::KillCaptions() {
    work_.Pass.Pick.Shape = Kind::None;
    work_.Withdraw(work_.On.Command3);
    connect_.Rest();
    ForgetCandidates();
}

void Keep::Offer(const Buttons& buttons, int first, int count) {
    const Buttons copies = strip_.Copies();
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        const bool candidate = static_cast<int>(i) < count;
        const std::string caption = candidate ? Str(first + static_cast<int>(i)) : std::string();
        buttons[i]->Caption(caption);
        copies[i]->Caption(caption);
        if (candidate) {
            work_.Offer(*buttons[i]);
        } else {
            work_.Withdraw(*buttons[i]);
        }
    }
    work_.Offer(work_.On.Command13);
    work_.Offer(work_.On.Command3);
    if (work_.Enlarged()) {
        Copy(buttons);
    }
}

void Keep::OfferLines(int first, int count) {
    Offer(connect_.KeepButtons(), first, count);
}

void Keep::OfferCircles() {
    Offer(tangent_.KeepButtons(), work_.Entities.EntNum - 3, 4);
}

void Keep::WithdrawLines() {
    Clear(connect_.KeepButtons());
    for (CommandButton* const button : connect_.KeepButtons()) {
        work_.Withdraw(*button);
    }
    HideStrip();
    work_.Withdraw(work_.On.Command13);
}

void Keep::CommandCaptions() {
    const bool connecting = work_.Pressed("Connect");
    const bool tangent = work_.Pressed("CircTan");
    if ((!connecting && !tangent) || work_.Pass.Pick.Stage == 1) {
        return;
    }
    if (connecting && !work_.On.Command13.Enabled()) {
        const int count = connect_.LinesAskedFor();
        // A pick whose partner was taken out of its box meanwhile has made none: nothing else may be offered for it.
        if (count > 0 && connect_.LinesMade() == count) {
            OfferLines(work_.Entities.EntNum - count + 1, count);
        }
    }
    if (connecting && work_.Enlarged()) {
        Copy(connect_.KeepButtons());
    }
    connect_.LockBoxes();
    if (tangent) {
        OfferCircles();
    }
}

void Keep::ClearForPlacing() {
    Clear(connect_.KeepButtons());
    HideStrip();
    if (NoCaption(tangent_.KeepButtons())) {
        Session::Run(work_.Calls.TellTouching, true);
    }
}

void Keep::Copy(const Buttons& buttons) {
    const Buttons copies = strip_.Copies();
    bool any = false;
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        const std::string& caption = buttons[i]->Caption();
        if (!caption.empty()) {
            copies[i]->Caption(caption);
            work_.Offer(*copies[i]);
            any = true;
        } else {
            copies[i]->Caption("");
            work_.Withdraw(*copies[i]);
        }
    }
    if (any) {
        strip_.Label34.Visible(true);
        work_.Offer(strip_.Command14);
        work_.Offer(strip_.Command15);
    }
}

void Keep::ShowStrip() {
    if (work_.Pressed("Connect")) {
        work_.EnableTool("Connect", false);
        Copy(connect_.KeepButtons());
    }
    if (work_.Pressed("CircTan")) {
        work_.EnableTool("CircTan", false);
        Copy(tangent_.KeepButtons());
    }
}

void Keep::HideStrip() {
    for (CommandButton* const copy : strip_.Copies()) {
        copy->Caption("");
        work_.Withdraw(*copy);
    }
    strip_.Label34.Visible(false);
    work_.Withdraw(strip_.Command14);
    work_.Withdraw(strip_.Command15);
}

}  // namespace brindlex::geometry
