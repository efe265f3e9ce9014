// Connecting two entities: every straight line that joins them, tangent where a circle takes part.
// A step that faults is skipped and its target keeps its value; the results are built on that.
// Units: drawing coordinates, degrees. Includes no control, form or runtime.
#pragma once

#include "geometry/board.h"
#include "geometry/record.h"
#include "geometry/steps.h"

#include <string>
#include <string_view>
#include <vector>

namespace brindlex::geometry {

/// An entity as a person names it.
struct Named {
    Kind Shape = Kind::None;
    std::string NumberText;  ///< as typed or picked; it stands so in the tails
};
/// Of the three boxes of a side: circle, line, point. A later box wins over an earlier one.
[[nodiscard]] Named NamedBy(std::string_view circle, std::string_view line, std::string_view point);

/// Why a connection is refused, in the order of the tests: there is no room for four entities more of a kind, or one
/// more, although only lines are made. Intended.
enum class ConnectLimit { None, Circles, Lines, Points };
/// `panelShown`: the connect panel is visible; the lines are tested only then.
[[nodiscard]] ConnectLimit TestConnectLimits(const Board& board, bool panelShown);
/// The message of a limit; "\r\n" within.
[[nodiscard]] std::string ConnectLimitMessage(const Board& board, ConnectLimit limit);

/// All candidates in their order of creation, four at most. Data come from the store's lines; a number that names
/// nothing leaves its values 0. Two kinds that make no pair give none.
[[nodiscard]] std::vector<Segment> Connect(const std::vector<std::string>& lines, const Named& first,
                                           const Named& second, Tangents tangents);

/// Whether every candidate's distance from the centre of each circle that it is to touch is the radius, within 1e-6 of
/// it.
[[nodiscard]] bool EveryLineTouches(const std::vector<std::string>& lines, const Named& first, const Named& second,
                                    const std::vector<Segment>& candidates);

}  // namespace brindlex::geometry
