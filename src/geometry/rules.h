// What stays in the drawing: keep, delete, remove and repair, as functions over the lines of the store; the limits.
// Includes no control, form or runtime.
#pragma once

#include "geometry/board.h"
#include "geometry/record.h"

#include <string>
#include <string_view>
#include <vector>

namespace brindlex::geometry {

/// What a limit says, or empty where there is room for one more entity of the kind.
[[nodiscard]] std::string_view LimitMessage(const Board& board, Kind kind);
inline constexpr std::string_view CirclesFull = "Sorry. Only 12 Circles Can Be Created!";
inline constexpr std::string_view LinesFull = "Sorry. Only 14 Lines Can Be Created!";
inline constexpr std::string_view PointsFull = "Sorry. Only 14 Points Can Be Created!";

/// The items of the lists of entities: number, 15 blanks, "/", kind word; none for a number 0 or no kind word.
[[nodiscard]] std::vector<std::string> EntityItems(const std::vector<std::string>& lines);
/// The number at the head of an item: the integer of its first 4 characters, 0 for an empty text.
[[nodiscard]] int ItemNumber(std::string_view item);

/// Without the records that one of the items names, compared by 4 characters.
[[nodiscard]] std::vector<std::string> WithoutItems(const std::vector<std::string>& lines,
                                                    const std::vector<std::string>& items);
/// Without the candidates that one of the captions names, compared by 3 characters; an empty caption names none.
[[nodiscard]] std::vector<std::string> WithoutCandidates(const std::vector<std::string>& lines,
                                                         const std::vector<std::string>& captions);

/// The entities taken by the pointer, as indices into the arrays of the board; one can stand there more than once.
struct Picks {
    std::vector<int> Circles;
    std::vector<int> Lines;
    std::vector<int> Points;
};
/// Takes the picked entities out of the board's arrays. Only entries 1 up to half the count (ties to even) of a list
/// are looked at, since every pick stands there twice; entry 0 is not looked at, and where none is, the entities of
/// that kind all go, unless an earlier comparison of the run had set the keep mark. All this is intended.
void RemovePicked(Board& board, const Picks& picks);
/// The numbers of the picked entities, each once, the smallest first.
[[nodiscard]] std::vector<double> NumbersPicked(const Board& board, const Picks& picks);
/// The lines after a removal: a record once for each array that still holds its number. `before` is the board before
/// the removal: a record that was in none of its arrays could not be picked, and stays.
[[nodiscard]] std::vector<std::string> LinesLeft(const std::vector<std::string>& lines, const Board& before,
                                                 const Board& after);

/// With the tails of computed records repaired whose partners went.
[[nodiscard]] std::vector<std::string> CheckTangents(const std::vector<std::string>& lines);

}  // namespace brindlex::geometry
