// SVG. Its Y grows downward: every Y is written negated, and nothing is mirrored, so that numbers read upright.
#include "cli/exportsvg.h"

#include "cli/exportnumbers.h"
#include "cli/values.h"
#include "services/units.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>
#include <utility>

namespace brindlex::cli {

namespace {

using geometry::Kind;
using geometry::Position;
using geometry::Record;
using geometry::Unit;

// Sizes on the paper, in millimetres.
constexpr double Margin = 10;
constexpr double LineWeight = 0.25;
constexpr double CrossArm = 1.5;
constexpr double TextHeight = 3;
constexpr double TextGap = 0.8;
// Of what is only looks; values of the drawing keep all their digits.
constexpr int LookDecimals = 4;

/// The box around all shapes.
struct Box {
    double MinX = std::numeric_limits<double>::infinity();
    double MaxX = -MinX;
    double MinY = MinX;
    double MaxY = -MinX;

    void Take(Position place, double reach) {
        MinX = std::min(MinX, place.X - reach);
        MaxX = std::max(MaxX, place.X + reach);
        MinY = std::min(MinY, place.Y - reach);
        MaxY = std::max(MaxY, place.Y + reach);
    }
};

Box BoxOf(const Sheet& sheet) {
    Box box;
    for (const Shape& shape : sheet.Shapes) {
        const Record& record = shape.Record;
        if (record.Shape == Kind::Circle) {
            box.Take(record.Centre(), record.Diameter() / 2);
        } else {
            box.Take(record.Ends().Start, 0);
            if (record.Shape == Kind::Line) {
                box.Take(record.Ends().End, 0);
            }
        }
    }
    return box;
}

/// Where a number's base line stands, and which end of the number stands there.
struct LabelPlace {
    Position Place;
    std::string_view Anchor;
};

/// Above a line, a third from its start: two lines often cross in the middle.
LabelPlace PlaceOnLine(const geometry::Segment& ends, double gap) {
    constexpr double Third = 1.0 / 3;
    constexpr double NearlyLevel = 0.1;
    const double dx = ends.End.X - ends.Start.X;
    const double dy = ends.End.Y - ends.Start.Y;
    const double length = std::hypot(dx, dy);
    // The slope of the line as it is walked to the right; the way to its upper side is a quarter turn on.
    const double sign = dx < 0 || (dx == 0 && dy < 0) ? -1 : 1;
    const double across = length > 0 ? sign * dx / length : 1;
    const double rise = length > 0 ? sign * dy / length : 0;
    const Position place{ends.Start.X + dx * Third - rise * gap, ends.Start.Y + dy * Third + across * gap};
    return {place, rise > NearlyLevel ? "end" : rise < -NearlyLevel ? "start" : "middle"};
}

/// Left of a circle's left edge, above a line, to the upper right of a point.
LabelPlace PlaceOfNumber(const Record& record, double gap) {
    if (record.Shape == Kind::Circle) {
        return {{record.Centre().X - record.Diameter() / 2 - gap, record.Centre().Y}, "end"};
    }
    if (record.Shape == Kind::Line) {
        return PlaceOnLine(record.Ends(), gap);
    }
    return {{record.Place().X + gap, record.Place().Y + gap}, "start"};
}

class Writer {
public:
    explicit Writer(const Sheet& sheet)
        : sheet_(sheet), perMillimeter_(sheet.Measure == Unit::Inch ? 1 / MillimetersPerInch : 1) {}

    [[nodiscard]] std::string Write();

private:
    void Head();
    void Put(const Shape& shape);
    void Number(const Shape& shape);
    void Numbers();
    /// Text of a length on the paper, in the unit of the sheet.
    [[nodiscard]] std::string Paper(double millimeters) const {
        return DecimalText(millimeters * perMillimeter_, LookDecimals);
    }
    /// Opens an element; the text of the last attribute stands without a blank before what follows.
    void Attribute(std::string_view name, std::string_view value) {
        text_.append(" ").append(name).append("=\"").append(value).append("\"");
    }
    void Attribute(std::string_view name, double value) { Attribute(name, ShortestText(value)); }

    const Sheet& sheet_;
    double perMillimeter_;  // how much of the unit one millimetre is
    std::string text_;
};

void Writer::Head() {
    const Box box = BoxOf(sheet_);
    const double margin = Margin * perMillimeter_;
    const double width = box.MaxX - box.MinX + 2 * margin;
    const double height = box.MaxY - box.MinY + 2 * margin;
    const std::string unit(WordOf(sheet_.Measure));
    text_ += "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.1\"";
    Attribute("width", ShortestText(width) + unit);
    Attribute("height", ShortestText(height) + unit);
    Attribute("viewBox", ShortestText(box.MinX - margin) + " " + ShortestText(-box.MaxY - margin) + " " +
                             ShortestText(width) + " " + ShortestText(height));
    text_.append(">\n<title>Brindlex, scale 1:1, ").append(UnitPlural(sheet_.Measure)).append("</title>\n");
}

void Writer::Put(const Shape& shape) {
    const Record& record = shape.Record;
    if (record.Shape == Kind::Circle) {
        text_ += "<circle";
        Attribute("cx", record.Centre().X);
        Attribute("cy", -record.Centre().Y);
        Attribute("r", record.Diameter() / 2);
    } else if (record.Shape == Kind::Line) {
        text_ += "<line";
        Attribute("x1", record.Ends().Start.X);
        Attribute("y1", -record.Ends().Start.Y);
        Attribute("x2", record.Ends().End.X);
        Attribute("y2", -record.Ends().End.Y);
    } else {
        const std::string arm = Paper(CrossArm);
        const std::string whole = Paper(2 * CrossArm);
        text_ += "<path";
        Attribute("d", "M" + ShortestText(record.Place().X) + " " + ShortestText(-record.Place().Y) + "m-" + arm +
                           " 0h" + whole + "m-" + arm + " -" + arm + "v" + whole);
    }
    if (shape.On == Layer::BoltCircle) {
        Attribute("stroke-dasharray", Paper(4) + " " + Paper(1) + " " + Paper(0.5) + " " + Paper(1));
    }
    text_ += "/>\n";
}

void Writer::Number(const Shape& shape) {
    if (shape.Number == 0) {
        return;
    }
    const LabelPlace label = PlaceOfNumber(shape.Record, TextGap * perMillimeter_);
    text_ += "<text";
    Attribute("x", DecimalText(label.Place.X / perMillimeter_, LookDecimals));
    Attribute("y", DecimalText(-label.Place.Y / perMillimeter_, LookDecimals));
    Attribute("text-anchor", label.Anchor);
    text_.append(">").append(std::to_string(shape.Number)).append("</text>\n");
}

/// In millimetres whatever the unit: letters that are a tenth of a unit high come out crooked in some viewers.
void Writer::Numbers() {
    text_ += "<g";
    Attribute("id", "NUMBERS");
    Attribute("fill", "black");
    Attribute("font-family", "sans-serif");
    Attribute("font-size", TextHeight);
    if (perMillimeter_ != 1) {
        Attribute("transform", "scale(" + ShortestText(perMillimeter_) + ")");
    }
    text_ += ">\n";
    for (const Shape& shape : sheet_.Shapes) {
        Number(shape);
    }
    text_ += "</g>\n";
}

std::string Writer::Write() {
    Head();
    // A group for each kind of shape, as the layers of other formats.
    for (const Layer layer : {Layer::Circles, Layer::Lines, Layer::Points, Layer::BoltCircle, Layer::Holes}) {
        const auto here = [layer](const Shape& shape) { return shape.On == layer; };
        if (std::none_of(sheet_.Shapes.begin(), sheet_.Shapes.end(), here)) {
            continue;
        }
        text_ += "<g";
        Attribute("id", LayerName(layer));
        Attribute("fill", "none");
        Attribute("stroke", "black");
        Attribute("stroke-width", Paper(LineWeight));
        text_ += ">\n";
        for (const Shape& shape : sheet_.Shapes) {
            if (here(shape)) {
                Put(shape);
            }
        }
        text_ += "</g>\n";
    }
    Numbers();
    text_ += "</svg>\n";
    return std::move(text_);
}

}  // namespace

std::string SvgText(const Sheet& sheet) {
    return Writer(sheet).Write();
}

}  // namespace brindlex::cli
