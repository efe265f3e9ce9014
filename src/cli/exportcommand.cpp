// export FILE OUT: by the ending of OUT, or by --as.
#include "cli/exportcommand.h"

#include "cli/exportdxf.h"
#include "cli/exportnc.h"
#include "cli/exportnumbers.h"
#include "cli/exportsheet.h"
#include "cli/exportsvg.h"
#include "cli/exporttables.h"
#include "cli/failure.h"
#include "cli/files.h"
#include "geometry/store.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <system_error>

namespace brindlex::cli {

namespace {

namespace fs = std::filesystem;
using geometry::Unit;

constexpr std::string_view Unprinted = "-";

[[noreturn]] void RefuseUsage(const std::string& why) {
    throw Failure(Exit::Usage, why);
}

std::string Lower(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return text;
}

std::string EndingOf(const std::string& file) {
    const std::string ending = Lower(fs::path(file).extension().string());
    return ending.empty() ? ending : ending.substr(1);
}

std::optional<double> NumberOption(const Arguments& given, std::string_view option) {
    const auto text = given.Text(option);
    if (!text) {
        return std::nullopt;
    }
    const auto number = WholeNumberText(*text);
    if (!number) {
        RefuseUsage(std::string(option) + " is no number: " + std::string(*text));
    }
    return number;
}

std::optional<int> CountOption(const Arguments& given, std::string_view option) {
    constexpr double Most = 1e6;
    const auto number = NumberOption(given, option);
    if (number && !(*number == std::floor(*number) && std::fabs(*number) < Most)) {
        RefuseUsage(std::string(option) + " is no whole number: " + std::string(*given.Text(option)));
    }
    return number ? std::optional(static_cast<int>(*number)) : std::nullopt;
}

/// What an option must be where it has no default.
double NeededOption(const Arguments& given, std::string_view option) {
    const auto number = NumberOption(given, option);
    if (!number) {
        RefuseUsage(std::string(option) + " is missing: a drilling program has no default for it");
    }
    return *number;
}

std::optional<Unit> UnitOption(const Arguments& given) {
    const auto text = given.Text("--unit");
    if (!text) {
        return std::nullopt;
    }
    for (const Unit unit : {Unit::Inch, Unit::Millimeter}) {
        if (*text == UnitWord(unit)) {
            return unit;
        }
    }
    RefuseUsage("--unit is in or mm, not " + std::string(*text));
}

/// A document, read, and the name by which failures and comments call it.
struct Source {
    std::string Name;
    std::vector<std::string> Lines;
    std::optional<Unit> Given;  ///< by --unit
};

// Drawings.

/// The unit that a drawing names, the last of several: intended, as the board takes it.
std::optional<Unit> NamedUnit(const std::vector<std::string>& lines) {
    std::optional<Unit> named;
    for (const std::string& line : lines) {
        if (const auto unit = geometry::UnitOf(line)) {
            named = unit;
        }
    }
    return named;
}

/// A drawing says its unit; --unit can only say it again, or say it for a drawing that does not.
Unit UnitOfDrawing(const Source& source) {
    const auto named = NamedUnit(source.Lines);
    if (named && source.Given && *named != *source.Given) {
        RefuseUsage("--unit is " + std::string(UnitWord(*source.Given)) + ", but the drawing is in " +
                    std::string(UnitPlural(*named)));
    }
    if (!named && !source.Given) {
        RefuseUsage("--unit is missing: the drawing names none");
    }
    return named ? *named : *source.Given;
}

Sheet DrawingSheet(const Source& source) {
    return SheetOf(source.Lines, UnitOfDrawing(source));
}

std::string DrawingAsDxf(const Source& source, const Arguments&) {
    return DxfText(DrawingSheet(source));
}

std::string DrawingAsSvg(const Source& source, const Arguments&) {
    return SvgText(DrawingSheet(source));
}

std::string DrawingAsCsv(const Source& source, const Arguments& given) {
    const Sheet sheet = DrawingSheet(source);
    return given.Has("--pairs") ? PairsCsv(PairsOf(source.Lines), sheet.Measure) : EntitiesCsv(sheet);
}

std::string DrawingAsJson(const Source& source, const Arguments&) {
    return DrawingJson(DrawingSheet(source), PairsOf(source.Lines));
}

// Bolt circles.

Unit UnitOfPattern(const Source& source) {
    if (!source.Given) {
        RefuseUsage("--unit is missing: a bolt circle names none");
    }
    return *source.Given;
}

Sheet PatternSheet(const Source& source, const Arguments& given) {
    const auto diameter = NumberOption(given, "--hole-diameter");
    if (diameter && !(*diameter > 0)) {
        RefuseUsage("--hole-diameter must be above 0, not " + ShortestText(*diameter));
    }
    return SheetOf(PatternOf(source.Lines), UnitOfPattern(source), diameter.value_or(0));
}

std::string PatternAsDxf(const Source& source, const Arguments& given) {
    return DxfText(PatternSheet(source, given));
}

std::string PatternAsSvg(const Source& source, const Arguments& given) {
    return SvgText(PatternSheet(source, given));
}

std::string PatternAsCsv(const Source& source, const Arguments&) {
    return HolesCsv(PatternOf(source.Lines), UnitOfPattern(source));
}

std::string PatternAsJson(const Source& source, const Arguments&) {
    return HolesJson(PatternOf(source.Lines), UnitOfPattern(source));
}

std::string PatternAsNc(const Source& source, const Arguments& given) {
    const Unit unit = UnitOfPattern(source);
    Drilling drilling;
    drilling.SafeHeight = NeededOption(given, "--safe-height");
    drilling.Retract = NeededOption(given, "--retract");
    drilling.Depth = NeededOption(given, "--depth");
    drilling.Feed = NeededOption(given, "--feed");
    drilling.Spindle = NeededOption(given, "--spindle");
    drilling.Peck = NumberOption(given, "--peck");
    drilling.Tool = CountOption(given, "--tool");
    drilling.Places = CountOption(given, "--places");
    return NcText(PatternOf(source.Lines), unit, drilling, fs::path(source.Name).filename().string());
}

// What can be written of what.

enum class Document { Drawing, BoltCircle };

struct FormatRow {
    Document Of;
    std::string_view Ending;
    std::string (*Write)(const Source& source, const Arguments& given);
    std::string_view Options;  ///< besides --unit, --force and --as
};
constexpr FormatRow Formats[] = {
    {Document::Drawing, "dxf", DrawingAsDxf, ""},
    {Document::Drawing, "svg", DrawingAsSvg, ""},
    {Document::Drawing, "csv", DrawingAsCsv, "--pairs"},
    {Document::Drawing, "json", DrawingAsJson, ""},
    {Document::BoltCircle, "dxf", PatternAsDxf, "--hole-diameter"},
    {Document::BoltCircle, "svg", PatternAsSvg, "--hole-diameter"},
    {Document::BoltCircle, "csv", PatternAsCsv, ""},
    {Document::BoltCircle, "json", PatternAsJson, ""},
    {Document::BoltCircle, "nc", PatternAsNc,
     "--depth --retract --safe-height --feed --spindle --peck --tool --places"},
};
constexpr std::string_view OptionsOfAll = "--unit --force --as";

/// Whether a list of words separated by blanks holds a word.
bool Holds(std::string_view list, std::string_view word) {
    const std::string padded = " " + std::string(list) + " ";
    return padded.find(" " + std::string(word) + " ") != std::string::npos;
}

Document DocumentOf(const std::string& file) {
    const std::string ending = EndingOf(file);
    if (ending == "bcf") {
        return Document::BoltCircle;
    }
    // The drawing that is on the board, too.
    if (ending != "geo" && fs::path(file).filename() != geometry::StoreFile) {
        RefuseUsage(file + " is neither a drawing (.geo) nor a bolt circle (.bcf)");
    }
    return Document::Drawing;
}

const FormatRow& FormatOf(Document document, const std::string& ending) {
    const auto named = [&](const FormatRow& row) { return row.Ending == ending; };
    const auto* const found = std::find_if(std::begin(Formats), std::end(Formats),
                                           [&](const FormatRow& row) { return named(row) && row.Of == document; });
    if (found != std::end(Formats)) {
        return *found;
    }
    if (std::any_of(std::begin(Formats), std::end(Formats), named)) {
        RefuseUsage("a drawing can't be written as ." + ending + ": it has no holes to drill");
    }
    RefuseUsage((ending.empty() ? std::string("OUT has no ending") : "." + ending + " is no ending of an export") +
                "; there are .dxf .svg .csv .json .nc");
}

void RefuseStrayOptions(const FormatRow& format, const Arguments& given) {
    for (const OptionRow& row : ExportOptions) {
        if (given.Has(row.Name) && !Holds(OptionsOfAll, row.Name) && !Holds(format.Options, row.Name)) {
            RefuseUsage(std::string(row.Name) + " has no meaning for this ." + std::string(format.Ending));
        }
    }
}

void RefuseOverwriting(const std::string& out) {
    std::error_code error;
    if (fs::exists(fs::symlink_status(out, error))) {
        throw Failure(Exit::Disk, out + " exists already; --force replaces it");
    }
}

std::string Content(const FormatRow& format, const Source& source, const Arguments& given) {
    try {
        return format.Write(source, given);
    } catch (const Failure& failure) {
        if (failure.Code() != Exit::BadInput) {
            throw;
        }
        throw Failure(failure.Code(), source.Name + ": " + failure.what());
    }
}

}  // namespace

std::string RunExport(const Arguments& given, const StandardInput&) {
    const std::string& file = given.Words.front();
    const std::string& out = given.Words.back();
    const auto as = given.Text("--as");
    const FormatRow& format = FormatOf(DocumentOf(file), as ? Lower(std::string(*as)) : EndingOf(out));
    RefuseStrayOptions(format, given);
    const auto unit = UnitOption(given);
    std::string content = Content(format, {file, LinesOf(file), unit}, given);
    if (out == Unprinted) {
        return content;
    }
    if (!given.Has("--force")) {
        RefuseOverwriting(out);
    }
    WriteWhole(out, content);
    return {};
}

}  // namespace brindlex::cli
