// Cutting data as lines.
#include "speedsfeeds/record.h"

#include <cstddef>
#include <iterator>

namespace brindlex::speedsfeeds {

namespace {

// Field n stands between marks n and n + 1.
constexpr char Marks[] = {'_', '!', '@', '#', '$', '%', '^'};

enum class Field : std::size_t { Tool, ToolMaterial, WorkMaterial, SpeedRange, FeedRange, PowerFactor };

constexpr char TagOf(Unit unit) {
    return unit == Unit::Inch ? 'I' : 'M';
}

std::string_view FieldOf(std::string_view line, Field field) {
    const auto number = static_cast<std::size_t>(field);
    const std::size_t before = line.find(Marks[number]);
    const std::size_t behind = line.find(Marks[number + 1]);
    const std::size_t start = before == std::string_view::npos ? 0 : before + 1;
    if (behind == std::string_view::npos || behind < start) {
        return {};
    }
    return line.substr(start, behind - start);
}

}  // namespace

std::string RecordLine(Unit unit, const Record& record) {
    const std::string* const fields[] = {&record.Tool,       &record.ToolMaterial, &record.WorkMaterial,
                                         &record.SpeedRange, &record.FeedRange,    &record.PowerFactor};
    std::string line(1, TagOf(unit));
    for (std::size_t at = 0; at < std::size(fields); ++at) {
        line += Marks[at];
        line += fields[at]->substr(0, fields[at]->find_first_of("\r\n"));
    }
    line += Marks[std::size(Marks) - 1];
    return line;
}

bool IsOfUnit(std::string_view line, Unit unit) {
    return !line.empty() && line.front() == TagOf(unit);
}

std::string_view ToolOf(std::string_view line) {
    return FieldOf(line, Field::Tool);
}

std::string_view ToolMaterialOf(std::string_view line) {
    return FieldOf(line, Field::ToolMaterial);
}

std::string_view WorkMaterialOf(std::string_view line) {
    return FieldOf(line, Field::WorkMaterial);
}

std::string_view SpeedRangeOf(std::string_view line) {
    return FieldOf(line, Field::SpeedRange);
}

std::string_view FeedRangeOf(std::string_view line) {
    return FieldOf(line, Field::FeedRange);
}

std::string_view PowerFactorOf(std::string_view line) {
    return FieldOf(line, Field::PowerFactor);
}

}  // namespace brindlex::speedsfeeds
