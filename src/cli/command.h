// What a subcommand of brindlex-cli is: a row of words and a function.
// Texts of the command line and of the output are UTF-8; the solvers' texts are Windows-1252.
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace brindlex::cli {

struct OptionRow {
    std::string_view Name;  ///< as it is typed: "--side-a"
    std::string_view Meta;  ///< what follows it: "LENGTH"; empty for an option that is given or not
    std::string_view Help;
};

/// The words that are no options.
struct Operands {
    std::string_view Meta;  ///< "FILE..."
    std::size_t Fewest = 0;
    std::size_t Most = 0;
};

/// What a person has given. An option stands at most once.
class Arguments {
public:
    std::vector<std::string> Words;  ///< the operands

    [[nodiscard]] bool Has(std::string_view option) const { return Find(option) != nullptr; }
    /// The text of an option; nothing where it is not given.
    [[nodiscard]] std::optional<std::string_view> Text(std::string_view option) const {
        const std::string* const text = Find(option);
        return text == nullptr ? std::nullopt : std::optional<std::string_view>(*text);
    }
    /// Gives an option another text. `option` must outlive the arguments, as a row of a table does.
    void Set(std::string_view option, std::string_view text);

private:
    [[nodiscard]] const std::string* Find(std::string_view option) const;

    std::vector<std::pair<std::string_view, std::string>> given_;
};

/// Reads the standard input to its end.
using StandardInput = std::function<std::string()>;

struct Command {
    std::string_view Name;
    std::string_view Summary;
    std::string_view Help;  ///< behind the options in --help: a sketch and an example
    std::span<const OptionRow> Options;
    Operands Rest;
    /// The whole text that is printed. Throws Failure; writes nothing but files, and these whole or not at all.
    std::string (*Run)(const Arguments& given, const StandardInput& input);
};

}  // namespace brindlex::cli
