// What a script acts upon, and the names on it: Form1, Form1.Text1, Form1.Text1.Text, Form17.Toolbar1.Zoom.Enabled.
// Whatever names nothing throws ScriptError.
#pragma once

#include "frame/drivenrun.h"
#include "frame/player.h"
#include "frame/program.h"

#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

struct Stage {
    Program& App;
    DrivenRun& Run;
    Player& Hands;
    bool Started = false;
    /// The form that the person used last, or that came up since; where Tab goes.
    Form* Front = nullptr;
    /// What was visible when that was last looked at.
    std::vector<Form*> Seen = {};
};

/// Something on a form. Without a control and an item it is the form itself.
struct Named {
    Form* Where = nullptr;
    Control* What = nullptr;
    MenuItem* Item = nullptr;
};

/// A property of something: of a toolbar's button where there is a key.
struct NamedProperty {
    Named Of;
    std::string Key;
    std::string Property;
};

/// The parts between the points.
[[nodiscard]] std::vector<std::string> PartsOf(std::string_view name);
/// Makes the form where it was not used yet.
[[nodiscard]] Form& FormNamed(Program& program, std::string_view name);
/// F.C or F.M.
[[nodiscard]] Named ThingNamed(Program& program, std::string_view name);
/// F.Property, F.C.Property, F.M.Property or F.T.KEY.Property.
[[nodiscard]] NamedProperty PropertyNamed(Program& program, std::string_view name);

}  // namespace brindlex
