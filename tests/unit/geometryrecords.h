// Lines of the live drawing built by hand: texts at columns, columns counted from 1.
#pragma once

#include "geometry/record.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace brindlex::geometry {

/// The end of a line in files.
inline const std::string End = "\r\n";

/// Each text at its column, blanks between.
inline std::string At(const std::vector<std::pair<std::size_t, std::string>>& texts) {
    std::string line;
    for (const auto& [column, text] : texts) {
        line.resize(column - 1, ' ');
        line += text;
    }
    return line;
}

inline std::string CircleLine(int number, const std::string& diameter, const std::string& x, const std::string& y) {
    return At({{1, " " + std::to_string(number)}, {15, diameter}, {43, x}, {71, y}, {99, "Circle"}});
}
inline std::string LineLine(int number, const std::string& startX, const std::string& startY, const std::string& endX,
                            const std::string& endY) {
    return At({{1, " " + std::to_string(number)}, {15, startX}, {43, startY}, {71, endX}, {99, endY}, {127, "Line"}});
}
inline std::string PointLine(int number, const std::string& x, const std::string& y) {
    return At({{1, " " + std::to_string(number)}, {15, x}, {43, y}, {71, "Point"}});
}

/// An item of the lists of pairs.
inline std::string PairText(const std::string& a, const std::string& b, const std::string& x, const std::string& y) {
    return a + " , " + b + std::string(15, ' ') + "/" + x + "\\" + y;
}

}  // namespace brindlex::geometry
