// What stays in the drawing.
#include "geometry/rules.h"

#include "frame/text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <set>
#include <unordered_set>

namespace brindlex::geometry {

namespace {

constexpr int ItemCharacters = 4;

struct KindLimit {
    Kind Shape;
    int Bound;
    int Width;
    int Board::*Top;
    std::string_view Message;
};

constexpr std::array Limits{
    KindLimit{Kind::Circle, CircleBound, CircleWidth, &Board::CircleTop, CirclesFull},
    KindLimit{Kind::Line, LineBound, LineWidth, &Board::LineTop, LinesFull},
    KindLimit{Kind::Point, PointBound, PointWidth, &Board::PointTop, PointsFull},
};

/// The lines but those records that a test drops. A line without a kind word always stays.
template <class Drops>
std::vector<std::string> Without(const std::vector<std::string>& lines, Drops drops) {
    std::vector<std::string> kept;
    std::copy_if(lines.begin(), lines.end(), std::back_inserter(kept),
                 [&](const std::string& line) { return KindOf(line) == Kind::None || !drops(line); });
    return kept;
}

/// The marks of a removal. The keep mark stays set from one entity to the next: intended.
struct Marks {
    bool Keep = false;
    bool Drop = false;
};

void Compare(int index, const std::vector<int>& picks, Marks& marks) {
    const auto last = static_cast<std::size_t>(std::nearbyint(static_cast<double>(picks.size()) / 2));
    for (std::size_t j = 1; j <= last; ++j) {  // from entry 1: intended; half of them is never all
        (picks[j] == index ? marks.Drop : marks.Keep) = true;
    }
}

template <std::size_t Bound>
void RemoveKind(std::array<double, Bound>& values, int& top, int& idx, int width, const std::vector<int>& picks,
                Marks& marks) {
    std::array<double, Bound> left{};
    int count = 0;
    for (int i = 0; i < std::min(top, static_cast<int>(Bound)); i += width) {
        Compare(i, picks, marks);
        if (marks.Keep && !marks.Drop) {
            std::copy_n(values.begin() + i, width, left.begin() + count);
            count += width;
        }
        marks.Drop = false;
    }
    if (!picks.empty()) {
        values = left;
        top = count;
        idx = count;
    }
}

bool IsThere(int number, const std::unordered_set<int>& numbers) {
    return number != 0 && numbers.contains(number);
}

}  // namespace

std::string_view LimitMessage(const Board& board, Kind kind) {
    for (const KindLimit& limit : Limits) {
        if (limit.Shape == kind && board.*limit.Top + limit.Width > limit.Bound) {
            return limit.Message;
        }
    }
    return {};
}

std::vector<std::string> EntityItems(const std::vector<std::string>& lines) {
    constexpr int Gap = 15;
    std::vector<std::string> items;
    for (const std::string& line : lines) {
        const int number = ItemNumber(line);
        if (number != 0 && KindOf(line) != Kind::None) {
            items.push_back(Str(number) + Space(Gap) + "/" + std::string(KindWord(ListedKindOf(line))));
        }
    }
    return items;
}

int ItemNumber(std::string_view item) {
    return IntegerOf(item.substr(0, ItemCharacters));
}

std::vector<std::string> WithoutItems(const std::vector<std::string>& lines, const std::vector<std::string>& items) {
    return Without(lines, [&](const std::string& line) {
        const int number = ItemNumber(line);
        return number != 0 && std::any_of(items.begin(), items.end(), [&](const std::string& item) {
                   return number == NumberOf(item, ItemCharacters);
               });
    });
}

std::vector<std::string> WithoutCandidates(const std::vector<std::string>& lines,
                                           const std::vector<std::string>& captions) {
    return Without(lines, [&](const std::string& line) {
        const double number = NumberOf(line);
        return number != 0 && std::any_of(captions.begin(), captions.end(),
                                          [&](const std::string& caption) { return number == ValueOf(caption); });
    });
}

void RemovePicked(Board& board, const Picks& picks) {
    Marks marks;
    RemoveKind(board.CircleArr, board.CircleTop, board.CircleIdx, CircleWidth, picks.Circles, marks);
    RemoveKind(board.LineArr, board.LineTop, board.LineIdx, LineWidth, picks.Lines, marks);
    RemoveKind(board.PointArr, board.PointTop, board.PointIdx, PointWidth, picks.Points, marks);
}

std::vector<double> NumbersPicked(const Board& board, const Picks& picks) {
    std::set<double> numbers;
    const auto add = [&](const auto& values, int width, const std::vector<int>& indices) {
        for (const int index : indices) {
            numbers.insert(values.at(static_cast<std::size_t>(index + width - 1)));
        }
    };
    add(board.CircleArr, CircleWidth, picks.Circles);
    add(board.LineArr, LineWidth, picks.Lines);
    add(board.PointArr, PointWidth, picks.Points);
    return {numbers.begin(), numbers.end()};
}

std::vector<std::string> LinesLeft(const std::vector<std::string>& lines, const Board& before, const Board& after) {
    constexpr std::array Kinds{Kind::Circle, Kind::Line, Kind::Point};
    std::vector<std::string> left;
    for (const std::string& line : lines) {
        const double number = NumberOf(line);
        const auto holds = [&](const Board& board) {
            return std::count_if(Kinds.begin(), Kinds.end(), [&](Kind kind) { return board.Has(kind, number); });
        };
        // Once for each array: two kinds whose numbers read alike double their records. Intended.
        const bool pickable = KindOf(line) != Kind::None && holds(before) > 0;
        left.insert(left.end(), pickable ? static_cast<std::size_t>(holds(after)) : 1, line);
    }
    return left;
}

std::vector<std::string> CheckTangents(const std::vector<std::string>& lines) {
    std::unordered_set<int> numbers;
    for (const std::string& line : lines) {
        if (KindOf(line) != Kind::None) {
            numbers.insert(ItemNumber(line));
        }
    }
    std::vector<std::string> repaired;
    repaired.reserve(lines.size());
    for (const std::string& line : lines) {
        const Partners partners = PartnersOf(line);
        repaired.push_back(RepairedRecord(line, IsThere(partners.First, numbers), IsThere(partners.Second, numbers)));
    }
    return repaired;
}

}  // namespace brindlex::geometry
