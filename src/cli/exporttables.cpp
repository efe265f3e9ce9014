// CSV and JSON. No field needs quotes: all are numbers and fixed words.
#include "cli/exporttables.h"

#include "cli/exportnumbers.h"
#include "cli/values.h"

#include <nlohmann/json.hpp>

#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <string_view>
#include <utility>

namespace brindlex::cli {

namespace {

using geometry::Kind;
using geometry::Position;
using geometry::Record;
using geometry::Unit;
using Json = nlohmann::ordered_json;

constexpr int Indent = 2;

void AddRow(std::string& table, std::initializer_list<std::string_view> fields) {
    bool first = true;
    for (const std::string_view field : fields) {
        if (!first) {
            table += ',';
        }
        first = false;
        table += field;
    }
    table += "\r\n";
}

std::string_view KindName(Kind kind) {
    return kind == Kind::Circle ? "circle" : kind == Kind::Line ? "line" : "point";
}

std::string_view MeetName(const LinePair& pair) {
    return pair.Cross ? "crossing" : "extended";
}

/// A number as JSON takes it: whole ones without a point. Refuses what is not finite, which would read null.
Json Finite(double number) {
    constexpr double LargestWhole = 1e15;
    RefuseUnlessFinite(number);
    if (number == std::floor(number) && std::fabs(number) < LargestWhole) {
        return static_cast<std::int64_t>(number);
    }
    return number;
}

Json EntityJson(const Shape& shape) {
    const Record& record = shape.Record;
    Json entity{{"number", shape.Number}, {"kind", KindName(record.Shape)}};
    const Position first = record.Shape == Kind::Circle ? record.Centre() : record.Place();
    entity["x"] = Finite(first.X);
    entity["y"] = Finite(first.Y);
    if (record.Shape == Kind::Circle) {
        entity["diameter"] = Finite(record.Diameter());
    } else if (record.Shape == Kind::Line) {
        entity["x2"] = Finite(record.Ends().End.X);
        entity["y2"] = Finite(record.Ends().End.Y);
    }
    return entity;
}

}  // namespace

std::string EntitiesCsv(const Sheet& sheet) {
    std::string table;
    AddRow(table, {"number", "kind", "x", "y", "x2", "y2", "diameter", "unit"});
    for (const Shape& shape : sheet.Shapes) {
        const Record& record = shape.Record;
        const bool circle = record.Shape == Kind::Circle;
        const bool line = record.Shape == Kind::Line;
        const Position first = circle ? record.Centre() : record.Place();
        AddRow(table,
               {std::to_string(shape.Number), KindName(record.Shape), ShortestText(first.X), ShortestText(first.Y),
                line ? ShortestText(record.Ends().End.X) : "", line ? ShortestText(record.Ends().End.Y) : "",
                circle ? ShortestText(record.Diameter()) : "", WordOf(sheet.Measure)});
    }
    return table;
}

std::string PairsCsv(const std::vector<LinePair>& pairs, Unit unit) {
    std::string table;
    AddRow(table, {"first", "second", "meet", "x", "y", "angle", "unit"});
    for (const LinePair& pair : pairs) {
        AddRow(table,
               {std::to_string(pair.First), std::to_string(pair.Second), MeetName(pair), ShortestText(pair.Crossing.X),
                ShortestText(pair.Crossing.Y), ShortestText(pair.Angle), WordOf(unit)});
    }
    return table;
}

std::string HolesCsv(const HolePattern& pattern, Unit unit) {
    std::string table;
    AddRow(table, {"hole", "x", "y", "angle", "unit"});
    for (const Hole& hole : pattern.Holes) {
        AddRow(table, {std::to_string(hole.Number), ShortestText(hole.Place.X), ShortestText(hole.Place.Y),
                       ShortestText(hole.Angle), WordOf(unit)});
    }
    return table;
}

std::string DrawingJson(const Sheet& sheet, const std::vector<LinePair>& pairs) {
    Json entities = Json::array();
    for (const Shape& shape : sheet.Shapes) {
        entities.push_back(EntityJson(shape));
    }
    Json items = Json::array();
    for (const LinePair& pair : pairs) {
        items.push_back({{"first", pair.First},
                         {"second", pair.Second},
                         {"meet", MeetName(pair)},
                         {"x", Finite(pair.Crossing.X)},
                         {"y", Finite(pair.Crossing.Y)},
                         {"angle", Finite(pair.Angle)}});
    }
    Json drawing{{"unit", WordOf(sheet.Measure)}};
    drawing["entities"] = std::move(entities);
    drawing["pairs"] = std::move(items);
    return drawing.dump(Indent) + "\n";
}

std::string HolesJson(const HolePattern& pattern, Unit unit) {
    Json places = Json::array();
    for (const Hole& hole : pattern.Holes) {
        places.push_back({{"hole", hole.Number},
                          {"x", Finite(hole.Place.X)},
                          {"y", Finite(hole.Place.Y)},
                          {"angle", Finite(hole.Angle)}});
    }
    Json holes{{"unit", WordOf(unit)},
               {"center", {{"x", Finite(pattern.Centre.X)}, {"y", Finite(pattern.Centre.Y)}}},
               {"diameter", Finite(pattern.Diameter)},
               {"startAngle", Finite(pattern.StartAngle)}};
    holes["holes"] = std::move(places);
    return holes.dump(Indent) + "\n";
}

}  // namespace brindlex::cli
