// The window of a form: its frame, menu bar and inside, and the peers of its controls.
// Units: pixels; the form's own sizes in twips.
#pragma once

#include "desktop/menutree.h"
#include "desktop/mirror.h"
#include "desktop/peer.h"
#include "frame/form.h"

#include <QWidget>

#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>

namespace brindlex {

class PictureBox;

/// Where a window's events come from: timers and window moves count only where a person uses the program.
enum class Hands { Person, Script };

class FormWindow : public QWidget {
public:
    /// Builds the window with all peers, and shows nothing yet.
    FormWindow(Form& form, Mirror& mirror, Hands hands);
    ~FormWindow() override;
    FormWindow(const FormWindow&) = delete;
    FormWindow& operator=(const FormWindow&) = delete;

    [[nodiscard]] Form& Surface() const { return form_; }
    [[nodiscard]] Mirror& Flag() const { return mirror_; }
    [[nodiscard]] Hands MovedBy() const { return hands_; }
    /// Whether what the widgets signal now is not the person's doing, or nobody's concern any more.
    [[nodiscard]] bool Deaf() const { return released_ || mirror_.Writing(); }
    /// Runs what a person's deed asks of the surface, unless deaf.
    template <class Deed>
    void ByPerson(Deed&& deed) {
        if (!Deaf()) {
            std::forward<Deed>(deed)();
        }
    }
    /// The form was unloaded: the window closes, hears nothing any more, and goes when its events are through.
    void Release();
    [[nodiscard]] bool Released() const { return released_; }

    // The surface has changed.

    void MirrorForm();
    void MirrorControl(Control& control, Aspect aspect);
    void MirrorMenu(MenuItem& item) { menus_.MirrorItem(item); }
    /// Gives the window system's focus to the control that has the surface's.
    void SyncFocus();
    /// Cuts the window to an ellipse; one that holds the whole window leaves it whole.
    void CutTo(const QRect& ellipse);

    /// What a reader hears of a picture besides what is drawn on it.
    using PictureTeller = std::function<std::string(const PictureBox&)>;
    void TellPicturesBy(PictureTeller teller) { teller_ = std::move(teller); }
    [[nodiscard]] std::string TaleOf(const PictureBox& picture) const {
        return teller_ ? teller_(picture) : std::string();
    }
    /// Something that readers name or tell has changed: they hear of it soon. Does nothing while there are none.
    void TellReaders();

    [[nodiscard]] QWidget* Client() const { return client_; }
    /// The widget on which a container's controls stand.
    [[nodiscard]] QWidget* Inside(ControlContainer& container) const;
    [[nodiscard]] Peer* PeerOf(const Control& control) const;
    [[nodiscard]] MenuTree& Menus() { return menus_; }
    /// The window takes an inner size, in twips, as if a person had dragged it there.
    void DragTo(double innerWidth, double innerHeight);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void BuildPeers(ControlContainer& container);
    void LayInside();
    void ClientMouse(const QMouseEvent& event);
    [[nodiscard]] QSize SizeFor(double innerWidth, double innerHeight) const;

    Form& form_;
    Mirror& mirror_;
    Hands hands_;
    bool released_ = false;
    bool tellsSoon_ = false;
    PictureTeller teller_;
    QWidget* client_;
    MenuTree menus_;
    std::unordered_map<const Control*, std::unique_ptr<Peer>> peers_;
};

}  // namespace brindlex
