// Answers as tables, JSON and CSV.
#include "cli/answer.h"

#include "cli/failure.h"
#include "frame/fault.h"
#include "frame/text.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace brindlex::cli {

namespace {

using Json = nlohmann::ordered_json;

constexpr std::size_t Gap = 2;

/// What an item shows; one without a text is not there.
bool Shown(const Item& item) {
    return !item.Text.empty();
}

/// The characters of a UTF-8 text, each as wide as another.
std::size_t Width(std::string_view text) {
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](unsigned char c) { return (c & 0xC0U) != 0x80U; }));
}

void Pad(std::string& text, std::size_t count) {
    text.append(count, ' ');
}

/// Lines of cells as columns; blanks at the end of a line go.
std::string Aligned(const std::vector<std::vector<std::string>>& lines) {
    std::vector<std::size_t> widths;
    for (const auto& line : lines) {
        widths.resize(std::max(widths.size(), line.size()));
        for (std::size_t i = 0; i < line.size(); ++i) {
            widths[i] = std::max(widths[i], Width(line[i]));
        }
    }
    std::string text;
    for (const auto& line : lines) {
        for (std::size_t i = 0; i < line.size(); ++i) {
            text += line[i];
            Pad(text, widths[i] - Width(line[i]) + Gap);
        }
        text.resize(text.find_last_not_of(' ') + 1);
        text += '\n';
    }
    return text;
}

std::string TableOf(const Answer& answer) {
    std::vector<std::vector<std::string>> lines;
    for (const Item& item : answer.Items) {
        if (Shown(item)) {
            lines.push_back({Spoken(item.Name), item.Text, std::string(item.Unit), item.Given ? "given" : ""});
        }
    }
    std::string text = Aligned(lines);
    if (answer.Lines.empty()) {
        return text;
    }
    lines.assign(1, {});
    for (const Item& item : answer.Lines.front()) {
        lines.front().push_back(Spoken(item.Name));
    }
    for (const Line& line : answer.Lines) {
        auto& cells = lines.emplace_back();
        std::transform(line.begin(), line.end(), std::back_inserter(cells), [](const Item& item) { return item.Text; });
    }
    return text + '\n' + Aligned(lines);
}

Json ValueOf(const Item& item) {
    if (!item.Number) {
        return item.Text;
    }
    double value = 0;
    // The fifteen digits of the very largest numbers round up to more than there is.
    if (!Guarded([&] { value = Val(item.Text); })) {
        throw Failure(Exit::NoSolution, "the " + Spoken(item.Name) + " is beyond the range of numbers");
    }
    constexpr double Exact = 9007199254740992.0;  // 2 to the 53rd: whole numbers up to here are written as such
    if (Fix(value) == value && std::abs(value) <= Exact) {
        return static_cast<std::int64_t>(value);
    }
    return value;
}

Json JsonOf(const Answer& answer) {
    Json json;
    if (!answer.File.empty()) {
        json["file"] = answer.File;
    }
    json["calculation"] = answer.Calculation;
    json["unit"] = answer.Unit;
    Json given = Json::array();
    for (const Item& item : answer.Items) {
        if (Shown(item)) {
            json[std::string(item.Name)] = ValueOf(item);
            if (item.Given) {
                given.push_back(item.Name);
            }
        }
    }
    json["given"] = given;
    if (!answer.Lines.empty()) {
        Json& lines = json[std::string(answer.LinesName)] = Json::array();
        for (const Line& line : answer.Lines) {
            Json& row = lines.emplace_back();
            for (const Item& item : line) {
                row[std::string(item.Name)] = ValueOf(item);
            }
        }
    }
    return json;
}

/// Bytes of a file name that are no UTF-8 become the replacement character.
std::string Dumped(const Json& json) {
    return json.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
}

void AddNames(std::string& csv, const std::vector<Item>& items) {
    for (const Item& item : items) {
        csv.append(&item == items.data() ? "" : ",").append(item.Name);
    }
    csv += '\n';
}

void AddTexts(std::string& csv, const std::vector<Item>& items) {
    for (const Item& item : items) {
        csv.append(&item == items.data() ? "" : ",");
        if (item.Number) {
            csv.append(item.Text);
        } else {
            csv.append(CsvField(item.Text));
        }
    }
    csv += '\n';
}

std::string CsvOf(const Answer& answer) {
    std::string csv;
    if (answer.Lines.empty()) {
        AddNames(csv, answer.Items);
        AddTexts(csv, answer.Items);
        return csv;
    }
    AddNames(csv, answer.Lines.front());
    for (const Line& line : answer.Lines) {
        AddTexts(csv, line);
    }
    return csv;
}

std::string ValuesOf(std::span<const Answer> answers) {
    std::string csv = "file,calculation,name,number,value,unit\n";
    const auto add = [&](const Answer& answer, const Item& item, const std::string& number) {
        csv.append(CsvField(answer.File)).append(",").append(answer.Calculation).append(",").append(item.Name);
        csv.append(",").append(number).append(",").append(CsvField(item.Text)).append(",").append(item.Unit);
        csv += '\n';
    };
    for (const Answer& answer : answers) {
        for (const Item& item : answer.Items) {
            if (Shown(item)) {
                add(answer, item, "");
            }
        }
        for (const Line& line : answer.Lines) {
            for (std::size_t i = 1; i < line.size(); ++i) {
                add(answer, line[i], line.front().Text);
            }
        }
    }
    return csv;
}

Json ArrayOf(std::span<const Answer> answers) {
    Json all = Json::array();
    std::transform(answers.begin(), answers.end(), std::back_inserter(all), JsonOf);
    return all;
}

}  // namespace

std::string Written(const Answer& answer, Style style) {
    switch (style) {
        case Style::Json:
            return Dumped(JsonOf(answer));
        case Style::Csv:
            return CsvOf(answer);
        case Style::Table:
            break;
    }
    return TableOf(answer);
}

std::string WrittenWithFiles(std::span<const Answer> answers, Style style) {
    if (style == Style::Json) {
        return Dumped(ArrayOf(answers));
    }
    if (style == Style::Csv) {
        return ValuesOf(answers);
    }
    std::string text;
    for (const Answer& answer : answers) {
        text.append(text.empty() ? "" : "\n").append(answer.File).append(":\n").append(TableOf(answer));
    }
    return text;
}

void RowWriter::Add(const Answer& answer) {
    if (style_ == Style::Json) {
        text_.append(text_.empty() ? "[\n" : ",\n").append(JsonOf(answer).dump());
        return;
    }
    if (text_.empty()) {
        AddNames(text_, answer.Items);
    }
    AddTexts(text_, answer.Items);
}

std::string RowWriter::Text() {
    if (style_ == Style::Json) {
        text_.append(text_.empty() ? "[" : "\n").append("]\n");
    }
    return std::move(text_);
}

std::string Spoken(std::string_view name) {
    std::string spoken(name);
    std::replace(spoken.begin(), spoken.end(), '_', ' ');
    return spoken;
}

std::string CsvField(std::string_view text) {
    if (text.find_first_of(",\"\r\n") == std::string_view::npos) {
        return std::string(text);
    }
    std::string field = "\"";
    for (const char c : text) {
        field.append(c == '"' ? 2 : 1, c);
    }
    return field + '"';
}

}  // namespace brindlex::cli
