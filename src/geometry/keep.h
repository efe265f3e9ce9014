// The buttons by which candidates are kept: four in each of two panels, and their copies beside the enlarged picture.
// A candidate is a full record from the start. A caption that is empty marks one that stays; that is all that a panel
// and KeepStuff know of each other.
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
    Keep(Session& work, ConnectPanel& connect, TangentPanel& tangent, const KeepStrip& strip);
    Keep(const Keep&) = delete;
    Keep& operator=(const Keep&) = delete;

    /// Drops every candidate whose button has a caption, with the connect or the tangent tool pressed.
    void KeepStuff();
    /// Every candidate stays.
    void KeepAll();
    /// The panels and all buttons to rest: no pick, no caption.
    void KillCaptions();
    /// Shows the buttons of a connection made by clicks, and the copies beside the enlarged picture. Called by the
    /// draw passes for each named entity while a kind is picked.
    void CommandCaptions();
    /// Offers the lines, or the last four circles, to be kept.
    void OfferLines(int first, int count);
    void OfferCircles();
    void WithdrawLines();
    /// The candidates of a drawing that is given up.
    void ForgetCandidates();

    /// What Place It begins with: the captions of the connect panel and of the copies go, and the strip is hidden.
    void ClearForPlacing();
    /// The enlarged view begins: copies of the captions of the pressed tool's panel.
    void ShowStrip();
    void HideStrip();

private:
    using Buttons = std::array<CommandButton*, 4>;

    void BindButtons();
    void KeepOne(CommandButton& button);
    void Offer(const Buttons& buttons, int first, int count);
    void Clear(const Buttons& buttons);
    void Copy(const Buttons& buttons);

    Session& work_;
    ConnectPanel& connect_;
    TangentPanel& tangent_;
    KeepStrip strip_;
};

}  // namespace brindlex::geometry
