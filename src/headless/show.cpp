// Telling.
#include "headless/show.h"

#include "frame/picturebox.h"
#include "frame/scrollbar.h"
#include "headless/properties.h"
#include "headless/records.h"
#include "headless/scripterror.h"
#include "headless/scriptjson.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>
#include <utility>
#include <variant>

namespace brindlex {

using nlohmann::json;

namespace {

constexpr std::string_view SharedPrefix = "shared.";
constexpr std::string_view FileWord = "file";

json TextJson(std::string_view text) {
    return JsonOf(text);
}

// The list of what was recorded, which starts afresh.
template <class Items>
json Taken(Items& items) {
    json list = json::array();
    for (const auto& item : std::exchange(items, {})) {
        list.push_back(JsonOf(item));
    }
    return list;
}

json NamesOfForms(const Stage& stage, bool onlyVisible) {
    json names = json::array();
    if (!stage.App.Ended()) {
        for (const Form* const form : stage.App.Forms()) {
            if (!onlyVisible || form->Visible()) {
                names.push_back(TextJson(form->Name()));
            }
        }
    }
    return names;
}

json TellModal(Stage& stage) {
    const Form* const modal = stage.App.Ended() ? nullptr : stage.App.ModalForm();
    return TextJson(modal == nullptr ? std::string_view() : std::string_view(modal->Name()));
}

json TellToolbars(Stage& stage) {
    json list = json::array();
    for (const auto& kept : stage.Run.Toolbars) {
        list.push_back(json::array({TextJson(kept[0]), TextJson(kept[1]), TextJson(kept[2])}));
    }
    return list;
}

json TellFiles(Stage& stage) {
    std::vector<std::string> names;
    std::error_code failure;
    for (const auto& entry : std::filesystem::directory_iterator(stage.App.Files().Path(), failure)) {
        if (entry.is_regular_file(failure)) {
            names.push_back(TextFromUtf8(entry.path().filename().string()));
        }
    }
    std::sort(names.begin(), names.end());
    return JsonOf(PropertyValue(std::move(names)));
}

json TellScreen(Stage& stage) {
    const Size screen = stage.App.Screen();
    return json::array({JsonOf(screen.Width), JsonOf(screen.Height)});
}

struct Telling {
    std::string_view what;
    json (*tell)(Stage& stage);
};

constexpr Telling Tellings[] = {
    {"forms", [](Stage& stage) { return NamesOfForms(stage, true); }},
    {"loaded", [](Stage& stage) { return NamesOfForms(stage, false); }},
    {"modal", TellModal},
    {"boxes", [](Stage& stage) { return Taken(stage.Run.Boxes); }},
    {"dialogs", [](Stage& stage) { return Taken(stage.Run.Dialogs); }},
    {"beeps", [](Stage& stage) { return json(std::exchange(stage.Run.Beeps, 0)); }},
    {"popup", [](Stage& stage) { return TextJson(std::exchange(stage.Run.Popup, {})); }},
    {"started", [](Stage& stage) { return JsonOf(PropertyValue(std::exchange(stage.Run.Started, {}))); }},
    {"clipboard", [](Stage& stage) { return TextJson(stage.App.ClipboardText()); }},
    {"files", TellFiles},
    {"printed", [](Stage& stage) { return Taken(stage.Run.Printed); }},
    {"screen", TellScreen},
    {"regions", [](Stage& stage) { return Taken(stage.Run.Regions); }},
    {"toolbars", TellToolbars},
    {"ended", [](Stage& stage) { return JsonOfFlag(stage.App.Ended()); }},
};

json TellShared(Stage& stage, std::string_view name) {
    const auto value = SharedByName(stage.App.Shared(), name);
    if (!value) {
        throw ScriptError("there is no shared variable " + std::string(name));
    }
    return std::visit([](const auto& held) { return JsonOf(PropertyValue(held)); }, *value);
}

json TellFile(Stage& stage, const std::string& name) {
    const std::filesystem::path path = stage.App.Files().PathOf(name);
    std::error_code failure;
    std::ifstream file(path, std::ios::binary);
    if (!file || !std::filesystem::is_regular_file(path, failure)) {
        throw ScriptError("there is no file " + name);
    }
    const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    return TextJson(bytes);
}

PropertyValue HeldByForm(Form& form, const std::string& property) {
    if (property != "Focus") {
        return ReadProperty(form, property);
    }
    const InputControl* const active = form.ActiveControl();
    return active == nullptr ? std::string() : active->Name();
}

json TellProperty(Stage& stage, const NamedProperty& named) {
    Form& form = *named.Of.Where;
    const bool hasWindow = form.Loaded() && !stage.App.Ended();
    // What a person sees goes before what the surface holds, as long as there is something to see.
    const auto seenOr = [&](PropertyValue held, auto& thing, const std::string& property) {
        return JsonOf(hasWindow ? stage.Hands.Seen(thing, property).value_or(std::move(held)) : std::move(held));
    };
    if (MenuItem* const item = named.Of.Item) {
        return seenOr(ReadProperty(*item, named.Property), *item, named.Property);
    }
    Control* const control = named.Of.What;
    if (control == nullptr) {
        return seenOr(HeldByForm(form, named.Property), form, named.Property);
    }
    if (!named.Key.empty()) {
        return seenOr(ReadProperty(dynamic_cast<Toolbar&>(*control), named.Key, named.Property), *control,
                      named.Key + "." + named.Property);
    }
    if (const auto* const picture = dynamic_cast<PictureBox*>(control);
        picture != nullptr && named.Property == "Drawing") {
        return JsonOf(picture->Drawn());
    }
    return seenOr(ReadProperty(*control, named.Property), *control, named.Property);
}

}  // namespace

Question ReadQuestion(ScriptLine& line) {
    Question question{line.Word(), {}};
    if (question.What == FileWord) {
        question.File = line.Text();
    }
    return question;
}

json Tell(Stage& stage, const Question& question) {
    const std::string_view what = question.What;
    for (const Telling& telling : Tellings) {
        if (telling.what == what) {
            return telling.tell(stage);
        }
    }
    if (what == FileWord) {
        return TellFile(stage, question.File);
    }
    if (what.starts_with(SharedPrefix)) {
        return TellShared(stage, what.substr(SharedPrefix.size()));
    }
    return TellProperty(stage, PropertyNamed(stage.App, what));
}

}  // namespace brindlex
