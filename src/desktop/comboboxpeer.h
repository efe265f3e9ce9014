// The peer of a combo box, and its widget.
#pragma once

#include "desktop/linebox.h"
#include "desktop/peer.h"
#include "frame/combobox.h"

#include <QComboBox>

namespace brindlex {

/// Keys and choices go to the surface. The wheel turns the list only while the box has the focus.
class ListBox : public QComboBox {
public:
    ListBox(QWidget* parent, FormWindow& window, ComboBox& combo);
    void showPopup() override;
    void hidePopup() override;
    /// Opens the list, unless it is empty, for a box that lies on it and gets the focus back when the list is gone.
    void OpenFor(InputControl& box);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    [[nodiscard]] bool Walk(const QKeyEvent& event);
    [[nodiscard]] int Stand() const;

    FormWindow& window_;
    ComboBox& combo_;
    InputControl* over_ = nullptr;
};

class ComboBoxPeer : public Peer {
public:
    ComboBoxPeer(FormWindow& window, ComboBox& combo);
    [[nodiscard]] std::optional<PropertyValue> Seen(std::string_view property) const override;
    [[nodiscard]] ListBox* Box() const { return list_; }
    /// Null where nothing can be typed.
    [[nodiscard]] LineBox* Line() const { return line_; }

protected:
    void MirrorOwn(Aspect aspect) override;
    void FocusedByMouse() override;

private:
    void MirrorList();
    void MirrorChoice();

    ComboBox& combo_;
    ListBox* list_;
    LineBox* line_ = nullptr;
};

}  // namespace brindlex
