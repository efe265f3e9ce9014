// Scroll bars.
#include "desktop/scrollbarpeer.h"

#include "desktop/formwindow.h"

#include <QScrollBar>

#include <algorithm>

namespace brindlex {

ScrollBarPeer::ScrollBarPeer(FormWindow& window, ScrollBar& bar)
    : Peer(window, bar,
           new QScrollBar(bar.Orientation() == ScrollBar::Direction::Horizontal ? Qt::Horizontal : Qt::Vertical,
                          window.Inside(bar.Container()))),
      bar_(bar),
      shown_(static_cast<QScrollBar*>(Widget())) {
    shown_->setFocusPolicy(Qt::StrongFocus);
    // The style fills a scroll bar to its edges, though it says otherwise: so it is not painted with every change of a
    // picture whose edge it covers.
    shown_->ensurePolished();
    shown_->setAttribute(Qt::WA_OpaquePaintEvent);
    shown_->setContextMenuPolicy(Qt::PreventContextMenu);
    connect(shown_, &QScrollBar::valueChanged, this, [this](int value) {
        Window().ByPerson([&] {
            if (shown_->isSliderDown()) {
                bar_.DragByPerson(Turned(value));
            } else {
                bar_.Value(Turned(value));
            }
        });
    });
    connect(shown_, &QScrollBar::sliderReleased, this,
            [this] { Window().ByPerson([this] { bar_.ReleaseByPerson(); }); });
}

int ScrollBarPeer::Turned(int value) const {
    return bar_.Min() > bar_.Max() ? bar_.Min() + bar_.Max() - value : value;
}

void ScrollBarPeer::MirrorOwn(Aspect aspect) {
    if (aspect == Aspect::All || aspect == Aspect::Range) {
        shown_->setRange(std::min(bar_.Min(), bar_.Max()), std::max(bar_.Min(), bar_.Max()));
        shown_->setSingleStep(std::max(bar_.SmallChange(), 1));
        shown_->setPageStep(std::max(bar_.LargeChange(), 1));
    }
    if (aspect == Aspect::All || aspect == Aspect::Range || aspect == Aspect::Value) {
        shown_->setValue(Turned(bar_.Value()));
    }
}

std::optional<PropertyValue> ScrollBarPeer::Seen(std::string_view property) const {
    if (property == "Value") {
        return double(Turned(shown_->value()));
    }
    return Peer::Seen(property);
}

}  // namespace brindlex
