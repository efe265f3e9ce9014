// Parsing and help.
#include "cli/commandline.h"

#include "cli/failure.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iterator>
#include <new>

namespace brindlex::cli {

namespace {

constexpr std::string_view Program = "brindlex-cli";
constexpr std::string_view Version = "3.0.2";
constexpr std::size_t HelpColumn = 28;

constexpr std::string_view OptionsOfAll = "  --help                    tells this";

/// Behind it all words are operands, whatever they begin with.
constexpr std::string_view OptionsEnd = "--";

/// A message may quote what a file holds: of a longer one the head and the tail are told.
constexpr std::size_t LongestMessage = 1000;
constexpr std::size_t MessageTail = 200;
constexpr std::string_view LeftOut = " ... ";

std::string HelpLine(std::string_view name, std::string_view meta, std::string_view help) {
    std::string line = "  ";
    line.append(name);
    if (!meta.empty()) {
        line.append(" ").append(meta);
    }
    line.resize(std::max(line.size() + 2, HelpColumn), ' ');
    return line.append(help).append("\n");
}

std::string Joined(std::initializer_list<std::string_view> words) {
    std::string text;
    for (const std::string_view word : words) {
        text.append(word);
    }
    return text;
}

/// The options as the parser knows them, in the order of the rows.
std::vector<CLI::Option*> AddOptions(CLI::App& app, const Command& command) {
    std::vector<CLI::Option*> options;
    for (const OptionRow& row : command.Options) {
        CLI::Option* const option = row.Meta.empty() ? app.add_flag(std::string(row.Name))->disable_flag_override()
                                                     : app.add_option(std::string(row.Name))->expected(1);
        // All are taken, so that a doubled one is told here and not silently replaced.
        options.push_back(option->multi_option_policy(CLI::MultiOptionPolicy::TakeAll));
    }
    return options;
}

Arguments TakeOptions(const Command& command, const std::vector<CLI::Option*>& options) {
    Arguments given;
    for (std::size_t i = 0; i < options.size(); ++i) {
        const std::string_view name = command.Options[i].Name;
        if (options[i]->count() > 1) {
            throw Failure(Exit::Usage, Joined({name, " is given more than once"}));
        }
        if (options[i]->count() == 1) {
            given.Set(name, command.Options[i].Meta.empty() ? std::string() : options[i]->results().front());
        }
    }
    return given;
}

/// Refuses what the parser would take in its own way: an option with nothing behind its "=" would take the next word,
/// and a flag would take a text.
void CheckEquals(const Command& command, const std::vector<std::string>& words) {
    const auto end = std::find(words.begin(), words.end(), OptionsEnd);
    for (auto word = words.begin(); word != end; ++word) {
        const std::size_t equals = word->find('=');
        const auto row = std::find_if(command.Options.begin(), command.Options.end(),
                                      [&](const OptionRow& option) { return word->substr(0, equals) == option.Name; });
        if (equals == std::string::npos || row == command.Options.end()) {
            continue;
        }
        if (row->Meta.empty()) {
            throw Failure(Exit::Usage, Joined({row->Name, " takes nothing behind it"}));
        }
        if (equals + 1 == word->size()) {
            throw Failure(Exit::Usage, Joined({row->Name, " has nothing behind it"}));
        }
    }
}

/// The operands among the words that are no options of the command.
std::vector<std::string> OperandsAmong(std::vector<std::string> words) {
    const auto end = std::find(words.begin(), words.end(), OptionsEnd);
    const auto option =
        std::find_if(words.begin(), end, [](const std::string& word) { return word.size() > 1 && word[0] == '-'; });
    if (option != end) {
        throw Failure(Exit::Usage, *option + " is no option here; --help lists them");
    }
    if (end != words.end()) {
        words.erase(end);
    }
    return words;
}

void CheckOperands(const Operands& rest, const std::vector<std::string>& words) {
    if (words.size() > rest.Most) {
        throw Failure(Exit::Usage, words[rest.Most] + " is one word too many");
    }
    if (words.size() < rest.Fewest) {
        throw Failure(Exit::Usage, Joined({rest.Meta, " is missing"}));
    }
}

/// Whether a character of UTF-8 begins there, or the text ends.
bool BeginsAt(std::string_view text, std::size_t at) {
    return at >= text.size() || (static_cast<unsigned char>(text[at]) & 0xC0U) != 0x80U;
}

std::string Shortened(std::string_view text) {
    if (text.size() <= LongestMessage) {
        return std::string(text);
    }
    std::size_t head = LongestMessage - MessageTail - LeftOut.size();
    std::size_t tail = text.size() - MessageTail;
    while (head > 0 && !BeginsAt(text, head)) {
        --head;
    }
    while (!BeginsAt(text, tail)) {
        ++tail;
    }
    return Joined({text.substr(0, head), LeftOut, text.substr(tail)});
}

/// A message as one line: what a file name or a text may hold of line ends and other controls becomes '?'.
std::string OneLine(std::string_view command, std::string_view what) {
    std::string line = Shortened(Joined({Program, command.empty() ? "" : " ", command, ": ", what}));
    std::replace_if(
        line.begin(), line.end(), [](unsigned char c) { return c < ' ' || c == 0x7F; }, '?');
    return line + '\n';
}

const Command& FindCommand(std::span<const Command> commands, const std::string& name) {
    const auto found = std::find_if(commands.begin(), commands.end(), [&](const Command& c) { return c.Name == name; });
    if (found == commands.end()) {
        throw Failure(Exit::Usage, name + " is no command; --help lists them");
    }
    return *found;
}

std::string RunCommand(const Command& command, const std::vector<std::string>& words, const StandardInput& input) {
    const auto given = ParseArguments(command, words);
    return given ? command.Run(*given, input) : HelpOf(command);
}

std::string RunFirst(std::span<const Command> commands, const std::vector<std::string>& words,
                     const StandardInput& input) {
    if (words.empty()) {
        throw Failure(Exit::Usage, "a command is missing; --help lists them");
    }
    if (words.front() == "--help" || words.front() == "-h") {
        return HelpOf(commands);
    }
    if (words.front() == "--version") {
        return Joined({Program, " ", Version, "\n"});
    }
    return RunCommand(FindCommand(commands, words.front()), {words.begin() + 1, words.end()}, input);
}

}  // namespace

void Arguments::Set(std::string_view option, std::string_view text) {
    for (auto& [name, value] : given_) {
        if (name == option) {
            value = text;
            return;
        }
    }
    given_.emplace_back(option, text);
}

const std::string* Arguments::Find(std::string_view option) const {
    for (const auto& [name, value] : given_) {
        if (name == option) {
            return &value;
        }
    }
    return nullptr;
}

std::optional<Arguments> ParseArguments(const Command& command, const std::vector<std::string>& words) {
    CLI::App app(std::string(command.Summary), std::string(command.Name));
    app.set_help_flag("--help,-h");
    app.allow_windows_style_options(false);
    // Operands are not given to the parser as such: it would take "[a,b]" for two of them.
    app.allow_extras();
    const std::vector<CLI::Option*> options = AddOptions(app, command);
    CheckEquals(command, words);
    try {
        // The parser takes them from the end.
        app.parse(std::vector<std::string>(words.rbegin(), words.rend()));
    } catch (const CLI::CallForHelp&) {
        return std::nullopt;
    } catch (const CLI::ArgumentMismatch&) {
        throw Failure(Exit::Usage,
                      words.back() + " has nothing behind it");  // it is the last word, or it had taken one
    } catch (const CLI::ParseError& error) {
        throw Failure(Exit::Usage, error.what());
    }
    std::vector<std::string> operands = OperandsAmong(app.remaining());
    Arguments given = TakeOptions(command, options);
    CheckOperands(command.Rest, operands);
    given.Words = std::move(operands);
    return given;
}

std::string HelpOf(const Command& command) {
    std::string text = Joined({Program, " ", command.Name, command.Rest.Most > 0 ? " " : "", command.Rest.Meta,
                               " [OPTION...]\n", command.Summary, "\n\nOptions:\n"});
    for (const OptionRow& row : command.Options) {
        text += HelpLine(row.Name, row.Meta, row.Help);
    }
    return Joined({text, OptionsOfAll, "\n", command.Help});
}

std::string HelpOf(std::span<const Command> commands) {
    std::string text = Joined({Program, " COMMAND [OPTION...]\n",
                               "The calculators of Brindlex for scripts, spreadsheets, drawings and machines.\n\n",
                               "Commands (COMMAND --help tells more of each):\n"});
    for (const Command& command : commands) {
        text += HelpLine(command.Name, "", command.Summary);
    }
    return Joined({text, "\nExit codes: 0 done, 2 wrong command line, 3 bad input, 4 no solution, ",
                   "5 cannot read or write.\n"});
}

Outcome RunWords(std::span<const Command> commands, const std::vector<std::string>& words, const StandardInput& input) {
    const std::string name = words.empty() || words.front().rfind('-', 0) == 0 ? "" : words.front();
    try {
        return {0, RunFirst(commands, words, input), ""};
    } catch (const Failure& failure) {
        return {static_cast<int>(failure.Code()), failure.Findings(), OneLine(name, failure.what())};
    } catch (const std::bad_alloc&) {
        return {static_cast<int>(Exit::Disk), "", OneLine(name, "there is not enough memory")};
    }
}

}  // namespace brindlex::cli
