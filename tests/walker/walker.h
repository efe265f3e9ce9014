// A random walker: presses, types, pastes, picks and closes anything that a person could, on the whole program, and
// watches what must hold after every act.
#pragma once

#include "watch.h"

#include "frame/drivenrun.h"
#include "frame/player.h"
#include "frame/program.h"

#include <deque>
#include <functional>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace brindlex {

class ComboBox;
class EditControl;
class Toolbar;

class Walker {
public:
    Walker(Program& program, DrivenRun& run, Player& player, unsigned seed);

    /// Goes on until so many acts are done or the program has ended. Returns how many were done.
    int Walk(int acts);
    /// A look of the caller's own after every act: it tells what does not hold.
    void AlsoLook(std::function<std::string()> look) { also_ = std::move(look); }
    /// What did not hold; empty while all holds.
    [[nodiscard]] const std::string& Broken() const { return broken_; }
    /// The last acts, oldest first.
    [[nodiscard]] std::string Trail() const;

private:
    void Step();
    void Prepare();
    void ActOn(Form& form);
    void ActOn(Control& control);
    void ActOnMenu(Form& form);
    void ActOnWindow(Form& form);
    void ActOnEntry(EditControl& box);
    void ActOnCombo(ComboBox& combo);
    void ActOnToolbar(Toolbar& toolbar);
    void PointAt(Control& control);
    void Drag(Control& control, Mouse mouse, Size to);
    void Look();
    void Say(const std::string& act);
    [[nodiscard]] bool GoesOn() const { return left_ > 0 && broken_.empty() && !program_.Ended(); }

    template <class Item>
    const Item& AnyOf(const std::vector<Item>& items) {
        return items[static_cast<std::size_t>(Number(static_cast<int>(items.size())))];
    }
    /// From 0 up to below the limit.
    int Number(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
    bool Chance(int oneIn) { return Number(oneIn) == 0; }

    Program& program_;
    DrivenRun& run_;
    Player& player_;
    Watch watch_;
    std::function<std::string()> also_;
    std::mt19937 random_;
    int left_ = 0;
    int done_ = 0;
    bool mayEnd_ = false;
    std::string broken_;
    std::deque<std::string> trail_;
};

}  // namespace brindlex
