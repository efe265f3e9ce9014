// Which peer a control gets.
#include "desktop/buttonpeer.h"
#include "desktop/comboboxpeer.h"
#include "desktop/formwindow.h"
#include "desktop/framepeer.h"
#include "desktop/labelpeer.h"
#include "desktop/noteboxpeer.h"
#include "desktop/picturepeer.h"
#include "desktop/scrollbarpeer.h"
#include "desktop/textboxpeer.h"
#include "desktop/timerpeer.h"
#include "desktop/toolbarpeer.h"

namespace brindlex {

namespace {

using Maker = std::unique_ptr<Peer> (*)(FormWindow&, Control&);

template <class Kind, class KindPeer>
std::unique_ptr<Peer> Make(FormWindow& window, Control& control) {
    auto* const own = dynamic_cast<Kind*>(&control);
    return own == nullptr ? nullptr : std::make_unique<KindPeer>(window, *own);
}

std::unique_ptr<Peer> MakeTextBox(FormWindow& window, Control& control) {
    auto* const box = dynamic_cast<TextBox*>(&control);
    if (box == nullptr) {
        return nullptr;
    }
    if (box->MultiLine()) {
        return std::make_unique<NoteBoxPeer>(window, *box);
    }
    return std::make_unique<TextBoxPeer>(window, *box);
}

std::unique_ptr<Peer> MakeTimer(FormWindow& window, Control& control) {
    return window.MovedBy() == Hands::Person ? Make<TimerControl, TimerPeer>(window, control) : nullptr;
}

// The most frequent kinds first.
constexpr Maker Makers[] = {
    MakeTextBox,
    Make<Label, LabelPeer>,
    Make<CommandButton, CommandButtonPeer>,
    Make<ComboBox, ComboBoxPeer>,
    Make<CheckBox, CheckBoxPeer>,
    Make<OptionButton, OptionButtonPeer>,
    Make<Frame, FramePeer>,
    Make<PictureBox, PicturePeer>,
    Make<ScrollBar, ScrollBarPeer>,
    Make<Toolbar, ToolbarPeer>,
    MakeTimer,
};

}  // namespace

std::unique_ptr<Peer> MakePeer(FormWindow& window, Control& control) {
    for (const Maker make : Makers) {
        if (auto peer = make(window, control)) {
            return peer;
        }
    }
    return nullptr;
}

}  // namespace brindlex
