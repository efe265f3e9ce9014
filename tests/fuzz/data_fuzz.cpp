// Fuzzes brindlex-cli data: any cutting data, any CSV, any filters. The first line of an input is words parted by tabs,
// the first of them a letter for what is done; the rest is the file, and behind a form feed a CSV to be merged. No line
// of the file is ever lost or changed, and what was listed as CSV comes back by a merge.
#include "clifuzz.h"
#include "scratch.h"

#include "cli/csv.h"
#include "cli/data.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex::cli {
namespace {

constexpr std::array Table{DataCommand};
constexpr const char* File = "Mill.dat";
constexpr const char* Second = "Second.dat";

using Lines = std::vector<std::string>;

Lines LinesIn(std::string_view text) {
    Lines lines;
    while (!text.empty()) {
        lines.emplace_back(TakeLine(text));
    }
    return lines;
}

/// The lines that a merge can bring: those that hold something, each once.
Lines Distinct(const Lines& lines) {
    Lines distinct;
    for (const std::string& line : lines) {
        if (!line.empty() && std::find(distinct.begin(), distinct.end(), line) == distinct.end()) {
            distinct.push_back(line);
        }
    }
    return distinct;
}

/// Whether a word is given as an option, and not as the text behind one.
bool IsGiven(std::string_view option, const std::vector<std::string>& words) {
    bool isText = false;
    for (const std::string& word : words) {
        if (!isText && word == option) {
            return true;
        }
        isText = !isText && std::any_of(std::begin(DataOptions), std::end(DataOptions),
                                        [&](const OptionRow& row) { return row.Name == word && !row.Meta.empty(); });
    }
    return false;
}

void List(const std::string& file, const std::vector<std::string>& options) {
    std::vector<std::string> words{"data", file};
    words.insert(words.end(), options.begin(), options.end());
    const Outcome outcome = Run(Table, words, "");
    const bool helps = outcome.Out.starts_with("brindlex-cli ");
    if (outcome.Code != 0 || helps) {
        return;
    }
    if (IsGiven("--json", options)) {
        const auto value = nlohmann::json::parse(outcome.Out, nullptr, false);
        Require(value.is_object() &&
                    value.value("lines_listed", std::size_t(0)) == value.value("lines", nlohmann::json::array()).size(),
                "as many lines as are told");
    } else {
        Require(!outcome.Out.empty() && outcome.Out.ends_with('\n'), "a list");
    }
}

/// Nothing but findings, and as many as the reason tells.
void Check(const std::string& file) {
    const Outcome outcome = Run(Table, {"data", file, "--check"}, "");
    const auto findings = std::count(outcome.Out.begin(), outcome.Out.end(), '\n');
    Require(outcome.Code == 0 ? findings == 1
                              : outcome.Err.ends_with(": " + std::to_string(findings) + " findings\n") && findings > 0,
            "the findings are counted");
}

/// The whole list as CSV, merged into a file that is not there yet.
void ThereAndBack(const ScratchFolder& scratch, const std::string& file, const Lines& lines) {
    const Outcome listed = Run(Table, {"data", file, "--csv"}, "");
    Require(listed.Code == 0, "a list");
    std::filesystem::remove(scratch.Path() / Second);
    const Outcome merged = Run(Table, {"data", (scratch.Path() / Second).string(), "--merge-csv", "-"}, listed.Out);
    Require(merged.Code == 0, "a list is merged");
    Require(LinesIn(scratch.Content(Second)) == Distinct(lines), "the lines come back");
}

/// The file's own lines stay as they are, and what comes behind them is new.
void CheckMerged(const Lines& before, const Lines& after) {
    Require(after.size() >= before.size() && std::equal(before.begin(), before.end(), after.begin()), "its own lines");
    const Lines added(after.begin() + static_cast<std::ptrdiff_t>(before.size()), after.end());
    for (const std::string& line : added) {
        Require(!line.empty() && std::count(after.begin(), after.end(), line) == 1, "a new line");
    }
}

void Merge(const ScratchFolder& scratch, const std::string& file, const std::string& content, std::string_view csv) {
    const Outcome outcome = Run(Table, {"data", file, "--merge-csv", "-"}, csv);
    Require(outcome.Code == 0 || outcome.Out.empty(), "nothing is printed beside a reason");
    const std::string after = scratch.Content(File);
    if (outcome.Code != 0 || outcome.Out.find(": 0 lines added") != std::string::npos) {
        Require(after == content, "the file is left alone");
        return;
    }
    CheckMerged(LinesIn(content), LinesIn(after));
}

}  // namespace
}  // namespace brindlex::cli

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace brindlex;
    static const ScratchFolder scratch;
    cli::Order order = cli::OrderOf(data, size);
    const auto names = [](const std::string& option) { return option.find("--merge") != std::string::npos; };
    // Merges are asked for by the letter; the words could name any file.
    if (order.Deed.empty() || std::any_of(order.Options.begin(), order.Options.end(), names)) {
        return 0;
    }
    const std::string content(TakeUpTo(order.Rest, '\f'));
    const std::string file = scratch.Put(cli::File, content);
    switch (order.Deed[0]) {
        case 'l':
            cli::List(file, order.Options);
            break;
        case 'c':
            cli::Check(file);
            break;
        case 't':
            cli::ThereAndBack(scratch, file, cli::LinesIn(content));
            break;
        default:
            cli::Merge(scratch, file, content, order.Rest);
            return 0;
    }
    cli::Require(scratch.Content(cli::File) == content, "looking changes nothing");
    return 0;
}
