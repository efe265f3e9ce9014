// What a driven run has recorded, and what stands on a picture, as the JSON that scripts are told.
// Units: twips; regions in pixels; drawings in the scale that was in force.
#pragma once

#include "frame/drivenrun.h"

#include <nlohmann/json_fwd.hpp>

namespace brindlex {

/// [style, caption, text]
[[nodiscard]] nlohmann::json JsonOf(const MessageBox& box);
/// [kind, flags, filter, file name at the start]
[[nodiscard]] nlohmann::json JsonOf(const DialogRequest& dialog);
/// [form, left, top, right, bottom]
[[nodiscard]] nlohmann::json JsonOf(const WindowRegion& region);
/// An array of pages, each an array of items, the page's own size first.
[[nodiscard]] nlohmann::json JsonOf(const PrintedDocument& document);
/// An array in drawing order.
[[nodiscard]] nlohmann::json JsonOf(const Drawing& drawing);

}  // namespace brindlex
