// DXF by way of dxflib, into memory.
#include "cli/exportdxf.h"

#include "cli/exportnumbers.h"

#include <dxflib/dl_dxf.h>

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <utility>

namespace brindlex::cli {

namespace {

using geometry::Kind;
using geometry::Unit;

/// dxflib writes into a file, and numbers with 16 decimals into a buffer of 256 characters, which a large number
/// passes. This writer keeps the text and writes the digits that the number needs. No file is opened.
class MemoryWriter : public DL_WriterA {
public:
    MemoryWriter() : DL_WriterA("", DL_Codes::AC1015) {}

    void dxfReal(int code, double value) const override { Put(code, ShortestText(value)); }
    void dxfInt(int code, int value) const override { Put(code, std::to_string(value)); }
    void dxfHex(int code, int value) const override {
        if (code == PointerCode && pointer_) {
            value = *pointer_;
        }
        constexpr std::string_view Digits = "0123456789ABCDEF";
        constexpr unsigned Base = 16;
        std::string text;
        auto rest = static_cast<unsigned>(value);
        do {
            text.insert(text.begin(), Digits[rest % Base]);
            rest /= Base;
        } while (rest > 0);
        Put(code, text);
    }
    void dxfString(int code, const char* value) const override { Put(code, value); }
    void dxfString(int code, const std::string& value) const override { Put(code, value); }

    /// What stands from now on where an object points to another; nothing: what the library says.
    void PointTo(std::optional<int> handle) { pointer_ = handle; }

    [[nodiscard]] std::string Take() { return std::move(text_); }

private:
    void Put(int code, std::string_view value) const {
        text_ += std::to_string(code);
        text_ += '\n';
        text_ += value;
        text_ += '\n';
    }

    static constexpr int PointerCode = 340;

    std::optional<int> pointer_;
    mutable std::string text_;  // the library's functions of writing are all const
};

/// Colours as DXF counts them: 7 is black on white or white on black, 1 red, 3 green, 4 cyan, 5 blue.
struct LayerRow {
    Layer On;
    int Colour;
    const char* LineType;
};
constexpr std::array<LayerRow, 5> Layers{{
    {Layer::Circles, 5, "CONTINUOUS"},
    {Layer::Lines, 7, "CONTINUOUS"},
    {Layer::Points, 1, "CONTINUOUS"},
    {Layer::BoltCircle, 4, "CONTINUOUS"},
    {Layer::Holes, 3, "CONTINUOUS"},
}};
constexpr int LayerZeroColour = 7;
constexpr int ByLayer = 256;
constexpr int DefaultWidth = -1;

/// The section that names the unit: 1 inches, 4 millimetres; measurement 0 English, 1 metric.
void PutHeader(DL_Dxf& library, MemoryWriter& file, Unit unit) {
    const bool inch = unit == Unit::Inch;
    library.writeHeader(file);
    file.dxfString(9, "$INSUNITS");
    file.dxfInt(70, inch ? 1 : 4);
    file.dxfString(9, "$MEASUREMENT");
    file.dxfInt(70, inch ? 0 : 1);
    file.sectionEnd();
}

bool Uses(const Sheet& sheet, Layer layer) {
    return std::any_of(sheet.Shapes.begin(), sheet.Shapes.end(),
                       [layer](const Shape& shape) { return shape.On == layer; });
}

void PutLayers(DL_Dxf& library, MemoryWriter& file, const Sheet& sheet) {
    const auto used =
        std::count_if(Layers.begin(), Layers.end(), [&](const LayerRow& row) { return Uses(sheet, row.On); });
    file.tableLayers(static_cast<int>(used) + 1);
    library.writeLayer(file, DL_LayerData("0", 0), DL_Attributes("", LayerZeroColour, DefaultWidth, "CONTINUOUS", 1));
    for (const LayerRow& row : Layers) {
        if (Uses(sheet, row.On)) {
            library.writeLayer(file, DL_LayerData(std::string(LayerName(row.On)), 0),
                               DL_Attributes("", row.Colour, DefaultWidth, row.LineType, 1));
        }
    }
    file.tableEnd();
}

void PutLineTypes(DL_Dxf& library, MemoryWriter& file) {
    constexpr std::array<std::pair<const char*, const char*>, 3> Types{
        {{"BYBLOCK", ""}, {"BYLAYER", ""}, {"CONTINUOUS", "Solid line"}}};
    file.tableLinetypes(static_cast<int>(Types.size()));
    for (const auto& [name, description] : Types) {
        library.writeLinetype(file, DL_LinetypeData(name, description, 0, 0, 0.0));
    }
    file.tableEnd();
}

void PutTables(DL_Dxf& library, MemoryWriter& file, const Sheet& sheet) {
    file.sectionTables();
    library.writeVPort(file);
    PutLineTypes(library, file);
    PutLayers(library, file, sheet);
    constexpr double TextHeight = 2.5;
    file.tableStyle(1);
    const auto style = static_cast<int>(file.getNextHandle());
    library.writeStyle(file, DL_StyleData("standard", 0, TextHeight, 1.0, 0.0, 0, TextHeight, "txt", ""));
    file.tableEnd();
    library.writeView(file);
    library.writeUcs(file);
    file.tableAppid(1);
    library.writeAppid(file, "ACAD");
    file.tableEnd();
    // The library leaves the style that dimensions point to as the memory happens to be.
    file.PointTo(style);
    library.writeDimStyle(file, TextHeight, 1, 1, 1, TextHeight);
    file.PointTo(std::nullopt);
    library.writeBlockRecord(file);
    file.tableEnd();
    file.sectionEnd();
}

void PutBlocks(DL_Dxf& library, MemoryWriter& file) {
    file.sectionBlocks();
    for (const char* const block : {"*Model_Space", "*Paper_Space", "*Paper_Space0"}) {
        library.writeBlock(file, DL_BlockData(block, 0, 0, 0, 0));
        library.writeEndBlock(file, block);
    }
    file.sectionEnd();
}

void PutShape(DL_Dxf& library, MemoryWriter& file, const Shape& shape) {
    const DL_Attributes attributes(std::string(LayerName(shape.On)), ByLayer, DefaultWidth, "BYLAYER", 1);
    const geometry::Record& record = shape.Record;
    if (record.Shape == Kind::Circle) {
        const geometry::Position centre = record.Centre();
        library.writeCircle(file, DL_CircleData(centre.X, centre.Y, 0, record.Diameter() / 2), attributes);
    } else if (record.Shape == Kind::Line) {
        const geometry::Segment ends = record.Ends();
        library.writeLine(file, DL_LineData(ends.Start.X, ends.Start.Y, 0, ends.End.X, ends.End.Y, 0), attributes);
    } else {
        library.writePoint(file, DL_PointData(record.Place().X, record.Place().Y, 0), attributes);
    }
}

}  // namespace

std::string DxfText(const Sheet& sheet) {
    DL_Dxf library;
    MemoryWriter file;
    PutHeader(library, file, sheet.Measure);
    PutTables(library, file, sheet);
    PutBlocks(library, file);
    file.sectionEntities();
    for (const Shape& shape : sheet.Shapes) {
        PutShape(library, file, shape);
    }
    file.sectionEnd();
    library.writeObjects(file);
    library.writeObjectsEnd(file);
    file.dxfEOF();
    return file.Take();
}

}  // namespace brindlex::cli
