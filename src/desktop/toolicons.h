// The pictures of the tool buttons, drawn by strokes, so that they are sharp at any size and fit light and dark.
#pragma once

#include <QColor>
#include <QIcon>

#include <string>

namespace brindlex {

/// The picture for a tool's key; a plain square where there is none. What is there already stands in ink, what is made
/// or meant in the accent.
[[nodiscard]] QIcon ToolIcon(const std::string& key, const QColor& ink, const QColor& accent);

}  // namespace brindlex
