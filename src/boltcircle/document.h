// Bolt-circle documents: the five entries and the check box.
// Units: as the entries. Includes no control, form or runtime.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace brindlex::boltcircle {

/// The lines of a document: center X, center Y, diameter, holes, start angle, and the check box for angles only.
inline constexpr std::size_t DocumentLines = 6;
inline constexpr std::size_t EntryLines = 5;

/// The check box as it stands in a document; nothing for what is neither 0 nor 1.
[[nodiscard]] std::optional<int> StoredCheck(std::string_view text);

}  // namespace brindlex::boltcircle
