// Fuzzes brindlex-cli export and report: any drawing and any bolt circle into every form, with any options. The first
// line of an input is words parted by tabs, the first of them two letters for the document and what is made of it; the
// rest is the document. What is written is whole, by its form's own rules, and every number in it is finite.
#include "clifuzz.h"
#include "scratch.h"

#include "cli/csv.h"
#include "cli/documents.h"
#include "cli/exportcommand.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex::cli {
namespace {

/// The number that a whole text is, read in another way than the program's.
std::optional<double> NumberIn(std::string_view text) {
    double number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool whole = read.ec == std::errc() && read.ptr == text.data() + text.size();
    return whole && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

void RequireNumber(std::string_view text) {
    Require(NumberIn(text).has_value(), "a finite number");
}

std::size_t CountOf(std::string_view text, std::string_view part) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string_view::npos; at = text.find(part, at + part.size())) {
        ++count;
    }
    return count;
}

/// Pairs of lines, a code and its value; the values of places and sizes are numbers.
void CheckDxf(const std::string& text) {
    const std::vector<std::string> lines = Split(text, '\n');
    Require(text.ends_with('\n') && lines.size() % 2 == 0, "codes and values by turns");
    Require(lines[lines.size() - 2] == "0" && lines.back() == "EOF", "the end of the drawing");
    std::size_t shapes = 0;
    for (std::size_t i = 0; i < lines.size(); i += 2) {
        const std::size_t blanks = std::min(lines[i].find_first_not_of(' '), lines[i].size());
        const auto code = NumberIn(std::string_view(lines[i]).substr(blanks));
        Require(code && *code == std::floor(*code), "a code");
        constexpr double FirstPlace = 10;
        constexpr double LastSize = 59;
        if (*code >= FirstPlace && *code <= LastSize) {
            RequireNumber(lines[i + 1]);
        }
        const bool names = *code == 0;
        shapes += names && (lines[i + 1] == "CIRCLE" || lines[i + 1] == "LINE" || lines[i + 1] == "POINT") ? 1 : 0;
    }
    Require(shapes > 0, "a shape");
}

std::string_view AttributeOf(std::string_view tag, std::string_view name) {
    const std::string opening = " " + std::string(name) + "=\"";
    const std::size_t at = tag.find(opening);
    Require(at != std::string_view::npos, "the attribute is there");
    const std::string_view value = tag.substr(at + opening.size());
    return value.substr(0, value.find('"'));
}

void CheckSvgTag(std::string_view tag) {
    constexpr std::array<std::pair<std::string_view, std::string_view>, 9> Numbers{{{"<circle ", "cx"},
                                                                                    {"<circle ", "cy"},
                                                                                    {"<circle ", "r"},
                                                                                    {"<line ", "x1"},
                                                                                    {"<line ", "y1"},
                                                                                    {"<line ", "x2"},
                                                                                    {"<line ", "y2"},
                                                                                    {"<text ", "x"},
                                                                                    {"<text ", "y"}}};
    Require(std::count(tag.begin(), tag.end(), '"') % 2 == 0, "quotes are ended");
    for (const auto& [start, name] : Numbers) {
        if (tag.starts_with(start)) {
            RequireNumber(AttributeOf(tag, name));
        }
    }
    if (tag.starts_with("<svg ")) {
        const std::vector<std::string> view = Split(AttributeOf(tag, "viewBox"), ' ');
        Require(view.size() == 4, "a box of four numbers");
        std::for_each(view.begin(), view.end(), RequireNumber);
        Require(*NumberIn(view[2]) > 0 && *NumberIn(view[3]) > 0, "the paper has a size");
    }
}

/// Tags that open and close one another.
void CheckSvg(const std::string& text) {
    Require(text.starts_with("<?xml ") && text.ends_with("</svg>\n"), "head and end of a picture");
    Require(CountOf(text, "nan") == 0 && CountOf(text, "inf") == 0, "no word for what is no number");
    std::vector<std::string> open;
    for (std::size_t at = text.find('<'); at != std::string::npos; at = text.find('<', at + 1)) {
        const std::size_t end = text.find('>', at);
        Require(end != std::string::npos, "a tag is ended");
        const std::string_view tag = std::string_view(text).substr(at, end + 1 - at);
        CheckSvgTag(tag);
        const std::size_t nameAt = tag[1] == '/' ? 2 : 1;
        const std::string name(tag.substr(nameAt, tag.find_first_of(" >", nameAt) - nameAt));
        if (nameAt == 2) {
            Require(!open.empty() && open.back() == name, "the last open tag is closed");
            open.pop_back();
        } else if (!tag.ends_with("/>") && tag[1] != '?') {
            open.push_back(name);
        }
    }
    Require(open.empty(), "all tags are closed");
}

/// Rows of as many fields as the head; each a number, a fixed word or nothing.
void CheckCsv(const std::string& text) {
    constexpr std::array<std::string_view, 8> Words{"", "circle", "line", "point", "crossing", "extended", "in", "mm"};
    Require(text.ends_with("\r\n"), "lines are ended");
    CsvReader reader(text);
    std::vector<std::string> head;
    std::vector<std::string> fields;
    Require(reader.Next(head), "a head");
    while (reader.Next(fields)) {
        Require(fields.size() == head.size(), "as many fields as the head");
        for (const std::string& field : fields) {
            Require(std::find(Words.begin(), Words.end(), field) != Words.end() || NumberIn(field), "a field");
        }
    }
}

void CheckValues(const nlohmann::json& value) {
    Require(!value.is_null(), "no value is missing");
    for (const auto& inner : value) {
        if (value.is_structured()) {
            CheckValues(inner);
        }
    }
}

void CheckJson(const std::string& text) {
    const auto value = nlohmann::json::parse(text, nullptr, false);
    Require(!value.is_discarded() && value.is_object() && text.ends_with('\n'), "one object");
    CheckValues(value);
}

/// A word of a drilling program: a letter and a number; lengths have their point.
void CheckWord(std::string_view word) {
    constexpr double Farthest = 100000;
    Require(word.size() > 1 && word[0] >= 'A' && word[0] <= 'Z', "a letter and a number");
    const auto number = NumberIn(word.substr(1));
    Require(number && std::fabs(*number) <= Farthest * 10, "a number within a machine");
    const bool length = std::string_view("XYZRQF").find(word[0]) != std::string_view::npos;
    Require(length == (word.find('.') != std::string_view::npos), "lengths, and nothing else, with a point");
    Require(!length || std::fabs(*number) <= Farthest, "a length within a machine");
    Require(word.find_first_of("eE+") == std::string_view::npos, "no exponent");
}

/// Every way from hole to hole is above the work, and the cycle goes below it.
void CheckNc(const std::string& text) {
    Require(text.ends_with("\nG80\n" + text.substr(text.rfind("G0 Z"))) && text.ends_with("\nM5\nM2\n"),
            "the cycle ends, the tool goes up, the spindle stops");
    bool drilled = false;
    for (const std::string& line : Split(text, '\n')) {
        if (line.starts_with('(')) {
            Require(line.find_first_of("()", 1) == line.size() - 1, "a comment ends where its line does");
            continue;
        }
        bool cycle = false;
        for (const std::string& word : Split(line, ' ')) {
            CheckWord(word);
            cycle = cycle || word == "G81" || word == "G83";
            drilled = drilled || cycle;
            if (word[0] == 'Z') {
                Require((*NumberIn(std::string_view(word).substr(1)) < 0) == cycle,
                        "below the work in the cycle alone");
            }
        }
    }
    Require(drilled, "a cycle");
}

/// What each letter makes of a document.
struct FormRow {
    char Letter;
    std::string_view Ending;
    void (*Check)(const std::string& text);
};
constexpr std::array<FormRow, 5> Forms{{{'d', "dxf", CheckDxf},
                                        {'s', "svg", CheckSvg},
                                        {'c', "csv", CheckCsv},
                                        {'j', "json", CheckJson},
                                        {'n', "nc", CheckNc}}};

/// A drawing's values stand in columns, which an input that is short could not reach: a tab goes on to the next.
std::string Spread(std::string_view text) {
    constexpr std::size_t First = 14;
    constexpr std::size_t Width = 28;
    std::string spread;
    std::size_t column = 0;
    for (const char c : text) {
        if (c == '\t') {
            const std::size_t next = column < First ? First : column + Width - (column - First) % Width;
            spread.append(next - column, ' ');
            column = next;
        } else {
            spread += c;
            column = c == '\r' || c == '\n' ? 0 : column + 1;
        }
    }
    return spread;
}

void Export(const std::string& file, const FormRow& form, const std::vector<std::string>& options) {
    static constexpr std::array Table{ExportCommand};
    std::vector<std::string> words{"export", file, "-", "--as", std::string(form.Ending)};
    words.insert(words.end(), options.begin(), options.end());
    const Outcome outcome = Run(Table, words, "");
    Require(outcome.Code == 0 || outcome.Out.empty(), "nothing is printed beside a reason");
    const bool helps = outcome.Out.starts_with("brindlex-cli ");
    if (outcome.Code == 0 && !helps) {
        form.Check(outcome.Out);
    }
}

void Report(const std::string& file) {
    static constexpr std::array Table{ReportCommand};
    const Outcome outcome = Run(Table, {"report", file}, "");
    Require(outcome.Code == 0 ? outcome.Out.ends_with("\r\n") : outcome.Out.empty(), "a report or a reason");
    Require(CountOf(outcome.Out, "nan") == 0 && CountOf(outcome.Out, "inf") == 0, "no word for what is no number");
}

}  // namespace
}  // namespace brindlex::cli

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace brindlex;
    static const ScratchFolder scratch;
    const cli::Order order = cli::OrderOf(data, size);
    if (order.Deed.size() != 2) {
        return 0;
    }
    const bool isDrawing = order.Deed[0] != 'b';
    const std::string file =
        isDrawing ? scratch.Put("a.geo", cli::Spread(order.Rest)) : scratch.Put("a.bcf", order.Rest);
    if (order.Deed[0] == 'r') {
        cli::Report(file);
    }
    for (const auto& form : cli::Forms) {
        if (form.Letter == order.Deed[1]) {
            cli::Export(file, form, order.Options);
        }
    }
    return 0;
}
