// Cutting data.
#include "cli/data.h"

#include "cli/csv.h"
#include "cli/files.h"
#include "cli/speeds.h"
#include "frame/textfile.h"
#include "speedsfeeds/record.h"

#include <algorithm>
#include <map>
#include <unordered_set>

namespace brindlex::cli {

namespace {

using DataUnit = speedsfeeds::Unit;
using Lines = std::vector<std::string>;

constexpr std::string_view LineEnd = "\r\n";

/// A field of a record: its column, how a person calls it, and whether a record can't do without it.
struct FieldRow {
    std::string_view Name;
    std::string_view Spoken;
    std::string speedsfeeds::Record::*Text;
    bool Needed;
};
constexpr FieldRow Fields[] = {{"tool", "tool", &speedsfeeds::Record::Tool, true},
                               {"tool_material", "tool material", &speedsfeeds::Record::ToolMaterial, true},
                               {"work_material", "work material", &speedsfeeds::Record::WorkMaterial, true},
                               {"speed_range", "speed range", &speedsfeeds::Record::SpeedRange, true},
                               {"feed_range", "feed range", &speedsfeeds::Record::FeedRange, true},
                               {"power_factor", "power factor", &speedsfeeds::Record::PowerFactor, false}};
constexpr std::string_view ColumnNames =
    "line,unit,tool,tool_material,work_material,speed_range,feed_range,power_factor,text\n";

/// A line of the file as the calculator reads it.
struct Parsed {
    DataUnit Unit = DataUnit::Inch;
    speedsfeeds::Record Data;
    bool Whole = false;  ///< written anew it is the same line, and nothing needed is missing
};

Parsed Parse(const std::string& line) {
    Parsed parsed;
    parsed.Unit = speedsfeeds::IsOfUnit(line, DataUnit::Metric) ? DataUnit::Metric : DataUnit::Inch;
    parsed.Data = {std::string(speedsfeeds::ToolOf(line)),         std::string(speedsfeeds::ToolMaterialOf(line)),
                   std::string(speedsfeeds::WorkMaterialOf(line)), std::string(speedsfeeds::SpeedRangeOf(line)),
                   std::string(speedsfeeds::FeedRangeOf(line)),    std::string(speedsfeeds::PowerFactorOf(line))};
    parsed.Whole = RecordLine(parsed.Unit, parsed.Data) == line &&
                   std::all_of(std::begin(Fields), std::end(Fields),
                               [&](const FieldRow& row) { return !row.Needed || !(parsed.Data.*row.Text).empty(); });
    return parsed;
}

std::string_view DataWordOf(DataUnit unit) {
    return unit == DataUnit::Inch ? "in" : "mm";
}

// Lists.

/// Whether a line is wanted; one that is no record only where nothing is filtered.
bool Wanted(const Parsed& parsed, const Arguments& given) {
    constexpr std::pair<std::string_view, std::string speedsfeeds::Record::*> Filters[] = {
        {"--tool", &speedsfeeds::Record::Tool},
        {"--tool-material", &speedsfeeds::Record::ToolMaterial},
        {"--work-material", &speedsfeeds::Record::WorkMaterial}};
    const auto unit = given.Text("--unit");
    if (unit && (!parsed.Whole || *unit != DataWordOf(parsed.Unit))) {
        return false;
    }
    return std::all_of(std::begin(Filters), std::end(Filters), [&](const auto& filter) {
        const auto text = given.Text(filter.first);
        return !text || (parsed.Whole && Utf8FromText(parsed.Data.*filter.second) == *text);
    });
}

Line RowOf(std::size_t number, const std::string& line, const Parsed& parsed) {
    Line row{{"line", std::to_string(number), "", true, false}};
    row.push_back({"unit", parsed.Whole ? std::string(DataWordOf(parsed.Unit)) : "", "", false, false});
    for (const FieldRow& field : Fields) {
        row.push_back({field.Name, parsed.Whole ? Utf8FromText(parsed.Data.*field.Text) : "", "", false, false});
    }
    row.push_back({"text", parsed.Whole ? "" : Utf8FromText(line), "", false, false});
    return row;
}

std::string List(const std::string& file, const Arguments& given, Style style) {
    static_cast<void>(DisplayFrom(given));  // refuses a unit that is none
    Answer answer{"data", given.Text("--unit").value_or(""), {}, {}, "lines", file};
    const Lines lines = LinesOf(file);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const Parsed parsed = Parse(lines[i]);
        if (!lines[i].empty() && Wanted(parsed, given)) {
            answer.Lines.push_back(RowOf(i + 1, lines[i], parsed));
        }
    }
    if (style == Style::Csv && answer.Lines.empty()) {
        return std::string(ColumnNames);
    }
    if (style != Style::Csv) {
        answer.Items.push_back({"lines_listed", std::to_string(answer.Lines.size()), "", true, false});
    }
    return Written(answer, style);
}

// Checks.

/// What is wrong with a record by itself; nothing where all is well.
std::string FaultOf(const Parsed& parsed) {
    if (!parsed.Whole) {
        return "this is no record";
    }
    const speedsfeeds::Record& data = parsed.Data;
    for (const FieldRow& field : {Fields[3], Fields[4]}) {
        if (!IsRange(data.*field.Text)) {
            return "the " + std::string(field.Spoken) + " is no range above 0: " + data.*field.Text;
        }
    }
    if (!data.PowerFactor.empty() && !IsPositive(data.PowerFactor)) {
        return "the power factor is no number above 0: " + data.PowerFactor;
    }
    return "";
}

/// What is wrong with a record beside those before it.
class Doubles {
public:
    std::string FaultOf(std::size_t number, const std::string& line, const Parsed& parsed) {
        const auto [same, fresh] = lines_.emplace(line, number);
        if (!fresh) {
            return "this is line " + std::to_string(same->second) + " once more";
        }
        const std::string path = line.substr(0, line.find('#'));
        const auto [other, freshPath] = paths_.emplace(path, number);
        if (parsed.Whole && !freshPath) {
            return "this hides line " + std::to_string(other->second) + ", of the same tool and materials";
        }
        return "";
    }

private:
    std::map<std::string, std::size_t> lines_;
    std::map<std::string, std::size_t> paths_;
};

std::string CheckedText(const std::string& file) {
    std::string findings;
    std::size_t bad = 0;
    Doubles doubles;
    const Lines lines = LinesOf(file);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (lines[i].empty()) {
            continue;
        }
        const Parsed parsed = Parse(lines[i]);
        for (const std::string& fault : {FaultOf(parsed), doubles.FaultOf(i + 1, lines[i], parsed)}) {
            if (!fault.empty()) {
                ++bad;
                findings += file + " line " + std::to_string(i + 1) + ": " + Utf8FromText(fault) + '\n';
            }
        }
    }
    if (bad != 0) {
        throw Failure(Exit::BadInput, file + ": " + std::to_string(bad) + " findings", findings);
    }
    return file + ": " + std::to_string(lines.size()) + " lines, nothing found\n";
}

// Merges.

[[noreturn]] void RefuseDataLine(std::size_t line, const std::string& why) {
    throw Failure(Exit::BadInput, "line " + std::to_string(line) + ": " + why);
}

/// A text of the CSV as the file can hold it.
std::string Storable(const std::string& utf8, std::size_t line) {
    std::string text = TextFromUtf8(utf8);
    if (Utf8FromText(text) != utf8) {
        RefuseDataLine(line, "cutting data can't hold a character of " + utf8);
    }
    if (text.find_first_of("\r\n") != std::string::npos) {
        RefuseDataLine(line, "cutting data can't hold a line end within a field");
    }
    return text;
}

/// A row by the columns of its head.
class CsvRow {
public:
    CsvRow(const std::vector<std::string>& head, std::size_t line) : line_(line) {
        for (std::size_t i = 0; i < head.size(); ++i) {
            if ((ColumnNames.find(head[i] + ",") == std::string_view::npos && head[i] != "text") || head[i].empty()) {
                RefuseDataLine(line, head[i] + " is no column of cutting data");
            }
            if (!columns_.emplace(head[i], i).second) {
                RefuseDataLine(line, head[i] + " stands there more than once");
            }
        }
    }

    /// The line that a row means; empty for a row without one. Throws Failure (BadInput).
    [[nodiscard]] std::string LineOf(const std::vector<std::string>& fields, std::size_t line) {
        line_ = line;
        if (fields.size() != columns_.size()) {
            RefuseDataLine(
                line, std::to_string(fields.size()) + " fields, where the head has " + std::to_string(columns_.size()));
        }
        std::string text = Field(fields, "text");
        speedsfeeds::Record record;
        bool filled = !Field(fields, "unit").empty();
        for (const FieldRow& row : Fields) {
            record.*row.Text = Field(fields, row.Name);
            filled = filled || !(record.*row.Text).empty();
        }
        if (!filled) {
            return text;
        }
        if (!text.empty()) {
            RefuseDataLine(line, "there are a record and a text in one line");
        }
        return Composed(record, Field(fields, "unit"));
    }

private:
    [[nodiscard]] std::string Field(const std::vector<std::string>& fields, std::string_view name) const {
        const auto column = columns_.find(name);
        return column == columns_.end() ? "" : Storable(fields[column->second], line_);
    }

    [[nodiscard]] std::string Composed(const speedsfeeds::Record& record, const std::string& unit) const {
        if (unit != "in" && unit != "mm") {
            RefuseDataLine(line_, "the unit must be in or mm, not " + unit);
        }
        for (const FieldRow& row : Fields) {
            if (row.Needed && (record.*row.Text).empty()) {
                RefuseDataLine(line_, "the " + std::string(row.Spoken) + " is missing");
            }
        }
        std::string line = RecordLine(unit == "in" ? DataUnit::Inch : DataUnit::Metric, record);
        const speedsfeeds::Record again = Parse(line).Data;
        for (const FieldRow& row : Fields) {
            if (again.*row.Text != record.*row.Text) {
                RefuseDataLine(line_, "the " + std::string(row.Spoken) + " holds a mark of the file: one of _!@#$%^");
            }
        }
        return line;
    }

    std::map<std::string, std::size_t, std::less<>> columns_;
    std::size_t line_;
};

Lines LinesOfCsv(const std::string& csv) {
    CsvReader reader(csv);
    std::vector<std::string> fields;
    if (!reader.Next(fields)) {
        throw Failure(Exit::BadInput, "there is no head of columns");
    }
    CsvRow row(fields, reader.LineNumber());
    Lines lines;
    while (reader.Next(fields)) {
        lines.push_back(row.LineOf(fields, reader.LineNumber()));
    }
    return lines;
}

Lines LinesToAdd(const Arguments& given, const StandardInput& input) {
    if (const auto other = given.Text("--merge")) {
        return LinesOf(*other);
    }
    const std::string source(*given.Text("--merge-csv"));
    const std::string csv = source == "-" ? input() : BytesOf(source);
    try {
        return LinesOfCsv(csv);
    } catch (const Failure& failure) {
        throw Failure(failure.Code(), (source == "-" ? "the standard input" : source) + ": " + failure.what());
    }
}

std::string Merge(const std::string& file, const Lines& others) {
    std::error_code error;
    const bool there = std::filesystem::exists(std::filesystem::symlink_status(file, error));
    const Lines own = there ? LinesOf(file) : Lines();
    std::unordered_set<std::string> seen(own.begin(), own.end());
    std::string content;
    for (const std::string& line : own) {
        content.append(line).append(LineEnd);
    }
    std::size_t added = 0;
    std::size_t known = 0;
    for (const std::string& line : others) {
        if (line.empty()) {
            continue;
        }
        if (seen.insert(line).second) {
            content.append(line).append(LineEnd);
            ++added;
        } else {
            ++known;
        }
    }
    if (added != 0) {
        WriteWhole(file, content);
    }
    return file + ": " + std::to_string(added) + " lines added, " + std::to_string(known) + " were there already\n";
}

}  // namespace

std::string RunData(const Arguments& given, const StandardInput& input) {
    static constexpr std::string_view Deeds[] = {"--check", "--merge", "--merge-csv"};
    const auto deeds = std::count_if(std::begin(Deeds), std::end(Deeds), [&](auto deed) { return given.Has(deed); });
    const Style style = StyleFrom(given);
    const std::string& file = given.Words.front();
    if (deeds == 0) {
        return List(file, given, style);
    }
    for (const OptionRow& row : DataOptions) {
        if (given.Has(row.Name) &&
            (deeds > 1 || std::find(std::begin(Deeds), std::end(Deeds), row.Name) == std::end(Deeds))) {
            throw Failure(Exit::Usage, std::string(row.Name) + " does not go with --check, --merge or --merge-csv");
        }
    }
    return given.Has("--check") ? CheckedText(file) : Merge(file, LinesToAdd(given, input));
}

}  // namespace brindlex::cli
