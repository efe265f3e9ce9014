// export FILE OUT: by the ending of OUT, or by --as.
#include "cli/exportcommand.h"

#include "cli/drawing.h"
#include "cli/exportdxf.h"
#include "cli/exportnc.h"
#include "cli/exportsheet.h"
#include "cli/exportsvg.h"
#include "cli/exporttables.h"
#include "cli/failure.h"
#include "cli/files.h"
#include "cli/values.h"
#include "frame/text.h"
#include "geometry/store.h"

#include <algorithm>
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

std::optional<double> LengthOption(const Arguments& given, std::string_view option, Unit unit) {
    return given.Has(option) ? std::optional(Val(LengthFrom(given, option, unit, Sign::Any))) : std::nullopt;
}

std::optional<int> CountOption(const Arguments& given, std::string_view option, int most) {
    return given.Has(option) ? std::optional(CountFrom(given, option, 1, most)) : std::nullopt;
}

/// For an option that a drilling program needs.
void RequireForDrilling(const Arguments& given, std::string_view option) {
    if (!given.Has(option)) {
        RefuseUsage(std::string(option) + " is missing: a drilling program has no default for it");
    }
}

std::optional<Unit> GivenUnit(const Arguments& given) {
    return given.Has("--unit") ? std::optional(DisplayFrom(given).Measure) : std::nullopt;
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
        RefuseUsage("--unit is " + std::string(WordOf(*source.Given)) + ", but the drawing is in " +
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
    const Unit unit = UnitOfPattern(source);
    const double diameter =
        given.Has("--hole-diameter") ? Val(LengthFrom(given, "--hole-diameter", unit, Sign::Positive)) : 0;
    return SheetOf(PatternOf(source.Lines), unit, diameter);
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
    for (const std::string_view option : {"--safe-height", "--retract", "--depth", "--feed", "--spindle"}) {
        RequireForDrilling(given, option);
    }
    Drilling drilling;
    drilling.SafeHeight = *LengthOption(given, "--safe-height", unit);
    drilling.Retract = *LengthOption(given, "--retract", unit);
    drilling.Depth = *LengthOption(given, "--depth", unit);
    drilling.Feed = Val(NumberFrom(given, "--feed", Sign::Positive));
    drilling.Spindle = CountFrom(given, "--spindle", 1, FastestSpindle);
    drilling.Peck = LengthOption(given, "--peck", unit);
    drilling.Tool = CountOption(given, "--tool", MostTool);
    drilling.Places = CountOption(given, "--places", MostNcPlaces);
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
constexpr std::string_view OptionsOfAllFormats = "--unit --force --as";

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
        if (given.Has(row.Name) && !Holds(OptionsOfAllFormats, row.Name) && !Holds(format.Options, row.Name)) {
            RefuseUsage(std::string(row.Name) + " has no meaning for this ." + std::string(format.Ending));
        }
    }
}

/// The document itself is never replaced, not even by another name of it.
void RefuseTheDocument(const std::string& file, const std::string& out) {
    std::error_code error;
    if (fs::equivalent(file, out, error)) {
        RefuseUsage(out + " is the document itself");
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
    const Document document = DocumentOf(file);
    const FormatRow& format = FormatOf(document, as ? Lower(std::string(*as)) : EndingOf(out));
    RefuseStrayOptions(format, given);
    const auto unit = GivenUnit(given);
    const Source source{file, LinesOf(file), unit};
    if (document == Document::Drawing) {
        RefuseUnlessDrawing(file, source.Lines);
    }
    std::string content = Content(format, source, given);
    if (out == Unprinted) {
        return content;
    }
    RefuseTheDocument(file, out);
    if (!given.Has("--force")) {
        RefuseOverwriting(out);
    }
    WriteWhole(out, content);
    return {};
}

}  // namespace brindlex::cli
