// One answer, or a table of them.
#include "cli/calculation.h"

#include "cli/csv.h"

#include <algorithm>

namespace brindlex::cli {

namespace {

[[noreturn]] void RefuseLine(Exit code, std::size_t line, std::string_view why) {
    throw Failure(code, "line " + std::to_string(line) + ": " + std::string(why));
}

/// The option that a column names: "side-a", "side_a" or "--side-a"; blanks around it do not count.
std::string_view OptionOf(const Command& command, std::string_view head) {
    std::string column = Trimmed(head);
    std::replace(column.begin(), column.end(), '_', '-');
    const std::string option = column.rfind("--", 0) == 0 ? column : "--" + column;
    const auto row = std::find_if(command.Options.begin(), command.Options.end(), [&](const OptionRow& candidate) {
        return candidate.Name == option && !candidate.Meta.empty();
    });
    if (row == command.Options.end()) {
        throw Failure(Exit::BadInput, "line 1: " + column + " is no option with a value");
    }
    return row->Name;
}

std::vector<std::string_view> Columns(const Command& command, const Arguments& given,
                                      const std::vector<std::string>& head) {
    std::vector<std::string_view> options;
    for (const std::string& column : head) {
        const std::string_view option = OptionOf(command, column);
        if (given.Has(option)) {
            throw Failure(Exit::Usage, std::string(option) + " stands in the command and in the input");
        }
        if (std::find(options.begin(), options.end(), option) != options.end()) {
            RefuseLine(Exit::BadInput, 1, std::string(option) + " stands there more than once");
        }
        options.push_back(option);
    }
    return options;
}

std::string AnswersTo(const Command& command, Solve solve, const Arguments& given, std::string_view csv, Style style) {
    CsvReader reader(csv);
    std::vector<std::string> fields;
    if (!reader.Next(fields)) {
        throw Failure(Exit::BadInput, "the standard input is empty: a head of option names is missing");
    }
    const std::vector<std::string_view> options = Columns(command, given, fields);
    RowWriter answers(style);
    while (reader.Next(fields)) {
        if (fields.size() != options.size()) {
            RefuseLine(Exit::BadInput, reader.LineNumber(),
                       std::to_string(fields.size()) + " fields, where the head has " + std::to_string(options.size()));
        }
        Arguments row = given;
        for (std::size_t i = 0; i < fields.size(); ++i) {
            if (!Trimmed(fields[i]).empty()) {
                row.Set(options[i], fields[i]);
            }
        }
        try {
            answers.Add(solve(row));
        } catch (const Failure& failure) {
            RefuseLine(failure.Code() == Exit::Usage ? Exit::BadInput : failure.Code(), reader.LineNumber(),
                       failure.what());
        }
    }
    return answers.Text();
}

}  // namespace

std::string RunCalculation(const Command& command, Solve solve, const Arguments& given, const StandardInput& input) {
    if (!given.Has("--batch")) {
        const Style style = StyleFrom(given);
        return Written(solve(given), style);
    }
    const Style style = StyleFrom(given, Style::Csv);
    const std::string csv = input();
    return AnswersTo(command, solve, given, csv, style);
}

SharedState SharedFor(const Display& display) {
    SharedState shared;
    WorkOutPi(shared);
    shared.DigitsR = std::to_string(display.Places);
    shared.DigitsO = shared.DigitsR;
    return shared;
}

}  // namespace brindlex::cli
