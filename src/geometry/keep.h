// The buttons by which candidates are kept: four in each of two panels, and their copies beside the enlarged picture.
#pragma once

#include "geometry/connectpanel.h"
#include "geometry/session.h"
#include "geometry/tangentpanel.h"

#include <array>

namespace brindlex::geometry {

/// The copies beside the enlarged picture.
struct KeepStrip {
    Label& Label34;
    CommandButton& Command8;
    CommandButton& Command10;
    CommandButton& Command11;
    CommandButton& Command12;
    CommandButton& Command14;  ///< All
    CommandButton& Command15;  ///< Cancel

    [[nodiscard]] std::array<CommandButton*, 4> Copies() const {
        return {&Command8, &Command10, &Command11, &Command12};
    }
};

class Keep {
public:
    Keep(Session& work, ConnectPanel& connect, TangentPanel& tangent, const KeepStrip& strip)
        : work_(work), connect_(connect), tangent_(tangent), strip_(strip) {}

    /// The panels and all buttons to rest: no pick, no caption.
    void KillCaptions();
    /// What Place It begins with: the captions of the connect panel and of the copies go, and the strip is hidden.
    void ClearForPlacing();
    /// The enlarged view begins: copies of the captions of the pressed tool's panel.
    void ShowStrip();
    void HideStrip();

private:
    void Copy(const std::array<CommandButton*, 4>& buttons);

    Session& work_;
    ConnectPanel& connect_;
    TangentPanel& tangent_;
    KeepStrip strip_;
};

}  // namespace brindlex::geometry
