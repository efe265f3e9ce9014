// Names of forms, of what stands on them, and of properties.
#include "headless/stage.h"

#include "frame/scrollbar.h"
#include "headless/scripterror.h"

namespace brindlex {

namespace {

Named On(Form& form, const std::string& name) {
    if (Control* const control = form.FindControl(name)) {
        return {&form, control, nullptr};
    }
    if (MenuItem* const item = form.FindMenu(name)) {
        return {&form, nullptr, item};
    }
    throw ScriptError(form.Name() + " has no " + name);
}

}  // namespace

std::vector<std::string> PartsOf(std::string_view name) {
    std::vector<std::string> parts;
    std::size_t start = 0;
    for (std::size_t point = name.find('.'); point != std::string_view::npos; point = name.find('.', start)) {
        parts.emplace_back(name.substr(start, point - start));
        start = point + 1;
    }
    parts.emplace_back(name.substr(start));
    return parts;
}

Form& FormNamed(Program& program, std::string_view name) {
    if (!program.Knows(name)) {
        throw ScriptError("there is no form " + std::string(name));
    }
    return program.Get(name);
}

Named ThingNamed(Program& program, std::string_view name) {
    const auto parts = PartsOf(name);
    if (parts.size() != 2) {
        throw ScriptError("a name such as Form1.Text1 is wanted");
    }
    return On(FormNamed(program, parts[0]), parts[1]);
}

NamedProperty PropertyNamed(Program& program, std::string_view name) {
    const auto parts = PartsOf(name);
    if (parts.size() < 2 || parts.size() > 4) {
        throw ScriptError("there is no " + std::string(name));
    }
    Form& form = FormNamed(program, parts[0]);
    if (parts.size() == 2) {
        return {{&form, nullptr, nullptr}, {}, parts[1]};
    }
    const Named thing = On(form, parts[1]);
    if (parts.size() == 3) {
        return {thing, {}, parts[2]};
    }
    if (dynamic_cast<Toolbar*>(thing.What) == nullptr || parts[2].empty()) {
        throw ScriptError("there is no " + std::string(name));
    }
    return {thing, parts[2], parts[3]};
}

}  // namespace brindlex
