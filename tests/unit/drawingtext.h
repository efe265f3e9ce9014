// A display list as lines of text, one an item, so that a test reads as the list of what must stand there.
#pragma once

#include "frame/drawing.h"
#include "frame/picturebox.h"

#include <sstream>
#include <string>
#include <vector>

namespace brindlex {

inline std::string ColourName(const Colour& colour) {
    if (colour == Blue) {
        return "blue";
    }
    if (colour == Red) {
        return "red";
    }
    if (colour == White) {
        return "white";
    }
    if (colour == Black) {
        return "black";
    }
    return colour == Colour{172, 172, 200} ? "grey" : "another colour";
}

/// "line 1600 2750 1600 600 blue", "text A 1500 2750 red bold".
inline std::string ItemText(const DrawItem& item) {
    std::ostringstream text;
    text.precision(12);
    if (item.Kind == DrawKind::Line) {
        text << "line " << item.X1 << ' ' << item.Y1 << ' ' << item.X2 << ' ' << item.Y2 << ' ' << ColourName(item.Ink);
    } else if (item.Kind == DrawKind::Text) {
        text << "text " << item.Text << ' ' << item.X1 << ' ' << item.Y1 << ' ' << ColourName(item.Ink)
             << (item.Bold ? " bold" : "");
    } else {
        text << "another kind";
    }
    return text.str();
}

inline std::vector<std::string> DrawingText(const PictureBox& picture) {
    std::vector<std::string> lines;
    for (const DrawItem& item : picture.Drawn().Items()) {
        lines.push_back(ItemText(item));
    }
    return lines;
}

}  // namespace brindlex
