// The captions of the form by unit and machine.
// Includes no control, form or runtime.
#pragma once

#include "speedsfeeds/setup.h"

#include <span>
#include <string_view>

namespace brindlex::speedsfeeds {

/// A control or menu item, by name, and its captions.
struct CaptionRow {
    std::string_view Name;
    std::string_view InchMill;
    std::string_view MetricMill;
    std::string_view InchLathe;
    std::string_view MetricLathe;

    [[nodiscard]] std::string_view For(Unit unit, Machine machine) const;
    /// Whether the captions are the same on either machine.
    [[nodiscard]] bool OfUnitAlone() const;
};

[[nodiscard]] std::span<const CaptionRow> CaptionRows();

/// What stands beside the feed rate after a conversion, in place of the table's: other than "MPM" in metric, and the
/// same on either machine: intended.
[[nodiscard]] std::string_view ConvertedFeedRateCaption(Unit unit);

}  // namespace brindlex::speedsfeeds
