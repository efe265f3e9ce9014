// The hands of a person where there are no windows: straight on the surface.
// Units: positions in the control's own scale, sizes in twips.
#pragma once

#include "frame/player.h"
#include "frame/runtime.h"

namespace brindlex {

class HeadlessPlayer : public Player {
public:
    /// The runtime tells the screen's size and outlives the player.
    explicit HeadlessPlayer(Runtime& runtime) : runtime_(runtime) {}

    void Press(Control& control) override;
    bool Choose(MenuItem& item) override;
    void Tool(Toolbar& toolbar, std::string_view key) override;
    void Focus(InputControl& control) override;
    void Key(InputControl& control, int keyAscii) override;
    void Tab(Form& form) override;
    void ChooseItem(ComboBox& combo, int index) override;
    void Select(EditControl& box, int start, int length) override;
    void Scroll(ScrollBar& bar, int value) override;
    void Resize(Form& form, double innerWidth, double innerHeight) override;
    /// The window takes the screen from corner to corner.
    void Maximize(Form& form) override;
    void Close(Form& form) override;
    void MouseOn(Control& control, MouseAct act, const Mouse& mouse) override;
    void MouseOn(Form& form, MouseAct act, const Mouse& mouse) override;

    /// The surface is all there is.
    std::optional<PropertyValue> Seen(Control& /*control*/, std::string_view /*property*/) override { return {}; }
    std::optional<PropertyValue> Seen(MenuItem& /*item*/, std::string_view /*property*/) override { return {}; }
    std::optional<PropertyValue> Seen(Form& /*form*/, std::string_view /*property*/) override { return {}; }
    void Settle() override {}
    bool Shot(Form& /*form*/, const std::string& /*path*/) override { return false; }

private:
    Runtime& runtime_;
};

}  // namespace brindlex
