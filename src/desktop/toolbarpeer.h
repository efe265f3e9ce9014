// The peer of a toolbar: a row of buttons with pictures that never take the focus.
#pragma once

#include "desktop/peer.h"
#include "frame/scrollbar.h"

#include <string>
#include <vector>

class QToolButton;

namespace brindlex {

class ToolbarPeer : public Peer {
public:
    ToolbarPeer(FormWindow& window, Toolbar& toolbar);
    /// A property of the toolbar, or of a button as KEY.Property.
    [[nodiscard]] std::optional<PropertyValue> Seen(std::string_view property) const override;
    /// Null where there is no such button.
    [[nodiscard]] QToolButton* ButtonOf(std::string_view key) const;

protected:
    void MirrorOwn(Aspect aspect) override;

private:
    struct Tool {
        std::string key;
        QToolButton* button;
    };
    void AddTool(const ToolButton& tool);
    void LayOut();

    Toolbar& toolbar_;
    std::vector<Tool> tools_;
};

}  // namespace brindlex
