// The hands of a person on the real windows: key and mouse events on the real widgets, and what can be read off them.
// Units: positions in the control's own scale, rounded to the nearest pixel; sizes in twips.
#pragma once

#include "desktop/desktopruntime.h"
#include "frame/player.h"

class QPoint;
class QWidget;

namespace brindlex {

class DesktopPlayer : public Player {
public:
    /// The runtime outlives the player.
    explicit DesktopPlayer(DesktopRuntime& runtime) : runtime_(runtime) {}

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
    void Maximize(Form& form) override;
    void Close(Form& form) override;
    void MouseOn(Control& control, MouseAct act, const Mouse& mouse) override;
    void MouseOn(Form& form, MouseAct act, const Mouse& mouse) override;

    std::optional<PropertyValue> Seen(Control& control, std::string_view property) override;
    std::optional<PropertyValue> Seen(MenuItem& item, std::string_view property) override;
    std::optional<PropertyValue> Seen(Form& form, std::string_view property) override;
    void Settle() override;
    bool Shot(Form& form, const std::string& path) override;

private:
    [[nodiscard]] Peer* PeerOf(const Control& control) const;
    [[nodiscard]] QWidget* WidgetOf(const Control& control) const;

    DesktopRuntime& runtime_;
};

}  // namespace brindlex
