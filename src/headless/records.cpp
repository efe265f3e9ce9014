// Records as JSON.
#include "headless/records.h"

#include "headless/scriptjson.h"

#include <nlohmann/json.hpp>

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

namespace brindlex {

using nlohmann::json;

namespace {

json JsonOfKind(DialogKind kind) {
    return kind == DialogKind::Open ? "open" : kind == DialogKind::Save ? "save" : "printer";
}

std::string ColourCode(const Colour& colour) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string code = "#";
    for (const std::uint8_t part : {colour.Red, colour.Green, colour.Blue}) {
        code += digits[part >> 4U];
        code += digits[part & 15U];
    }
    return code;
}

json PrintedJson(const PrintedText& text) {
    return json::array({"text", JsonOf(std::string_view(text.Text)), JsonOf(std::string_view(text.Font.Name)),
                        JsonOf(text.Font.Size), JsonOfFlag(text.Font.Bold)});
}

json PrintedJson(const PrintedPicture& picture) {
    return json::array({"picture", JsonOf(picture.Where.Left), JsonOf(picture.Where.Top), JsonOf(picture.Where.Width),
                        JsonOf(picture.Where.Height)});
}

json PageJson(const PrintedPage& page) {
    json items = json::array();
    items.push_back(json::array({"page", JsonOf(page.Width), JsonOf(page.Height)}));
    for (const auto& item : page.Items) {
        items.push_back(std::visit([](const auto& printed) { return PrintedJson(printed); }, item));
    }
    return items;
}

json ItemJson(const DrawItem& item) {
    const json x1 = JsonOf(item.X1);
    const json y1 = JsonOf(item.Y1);
    const json colour = ColourCode(item.Ink);
    switch (item.Kind) {
        case DrawKind::Line:
            return json::array(
                {"line", x1, y1, JsonOf(item.X2), JsonOf(item.Y2), colour, item.DrawWidth, item.DrawStyle});
        case DrawKind::Box:
            return json::array({"box", x1, y1, JsonOf(item.X2), JsonOf(item.Y2), colour, JsonOfFlag(item.Filled)});
        case DrawKind::Circle:
            return json::array({"circle", x1, y1, JsonOf(item.Radius), colour, item.DrawWidth, item.DrawStyle});
        case DrawKind::Text:
            break;
    }
    return json::array(
        {"text", JsonOf(std::string_view(item.Text)), x1, y1, colour, JsonOfFlag(item.Bold), JsonOf(item.FontSize)});
}

}  // namespace

json JsonOf(const MessageBox& box) {
    return json::array({box.Style, JsonOf(std::string_view(box.Caption)), JsonOf(std::string_view(box.Text))});
}

json JsonOf(const DialogRequest& dialog) {
    return json::array({JsonOfKind(dialog.Kind), dialog.Flags, JsonOf(std::string_view(dialog.Filter)),
                        JsonOf(std::string_view(dialog.FileName))});
}

json JsonOf(const WindowRegion& region) {
    return json::array({JsonOf(std::string_view(region.Form)), region.Left, region.Top, region.Right, region.Bottom});
}

json JsonOf(const PrintedDocument& document) {
    json pages = json::array();
    for (const PrintedPage& page : document.Pages) {
        pages.push_back(PageJson(page));
    }
    return pages;
}

json JsonOf(const Drawing& drawing) {
    json items = json::array();
    for (const DrawItem& item : drawing.Items()) {
        items.push_back(ItemJson(item));
    }
    return items;
}

}  // namespace brindlex
