// The command line: words to arguments, refusals, help, one line on the standard error.
#include "cli/commandline.h"

#include <gtest/gtest.h>

namespace {

using namespace brindlex::cli;
using Words = std::vector<std::string>;

std::string Echo(const Arguments& given, const StandardInput&) {
    std::string text = std::string(given.Text("--name").value_or("-")) + (given.Has("--flag") ? " flag" : "");
    for (const std::string& word : given.Words) {
        text += " [" + word + "]";
    }
    return text;
}

constexpr OptionRow EchoOptions[] = {{"--name", "TEXT", "a text"}, {"--flag", "", "a flag"}};
constexpr Command Table[] = {{"echo", "Tells its words", "\nA sketch.\n", EchoOptions, {"FILE...", 0, 2}, Echo},
                             {"bare", "Takes nothing", "", {}, {}, Echo},
                             {"one", "Takes one", "", {}, {"FILE", 1, 1}, Echo}};

Outcome Answer(const Words& words) {
    return RunWords(Table, words, [] { return std::string(); });
}

struct Row {
    Words Given;
    int Code;
    std::string Out;
    std::string Err;
};

class CommandLine : public testing::TestWithParam<Row> {};

TEST_P(CommandLine, AnswersOrRefuses) {
    const Outcome outcome = Answer(GetParam().Given);
    EXPECT_EQ(outcome.Code, GetParam().Code);
    EXPECT_EQ(outcome.Out, GetParam().Out);
    EXPECT_EQ(outcome.Err, GetParam().Err);
}

INSTANTIATE_TEST_SUITE_P(
    Words, CommandLine,
    testing::Values(
        Row{{"echo"}, 0, "-", ""}, Row{{"echo", "--name", "x"}, 0, "x", ""}, Row{{"echo", "--name=x"}, 0, "x", ""},
        Row{{"echo", "--name", "-1.5", "--flag"}, 0, "-1.5 flag", ""},
        Row{{"echo", "a", "--name", "x", "b"}, 0, "x [a] [b]", ""}, Row{{"echo", "--", "--flag"}, 0, "- [--flag]", ""},
        Row{{"echo", "--name", "[1,2]"}, 0, "[1,2]", ""}, Row{{"echo", "--name", ""}, 0, "", ""},
        Row{{"echo", "--name", "x", "--name", "y"}, 2, "", "brindlex-cli echo: --name is given more than once\n"},
        Row{{"echo", "--flag", "--flag"}, 2, "", "brindlex-cli echo: --flag is given more than once\n"},
        Row{{"echo", "a", "b", "c"}, 2, "", "brindlex-cli echo: c is one word too many\n"},
        Row{{"bare", "a"}, 2, "", "brindlex-cli bare: The following argument was not expected: a\n"},
        Row{{"bare", "--nam\n"}, 2, "", "brindlex-cli bare: The following argument was not expected: --nam?\n"},
        Row{{"one"}, 2, "", "brindlex-cli one: FILE is missing\n"},
        Row{{"two"}, 2, "", "brindlex-cli two: two is no command; --help lists them\n"},
        Row{{""}, 2, "", "brindlex-cli:  is no command; --help lists them\n"},
        Row{{}, 2, "", "brindlex-cli: a command is missing; --help lists them\n"},
        Row{{"--version"}, 0, "brindlex-cli 3.0.2\n", ""}));

TEST(CommandLineHelp, TellsOptionsAndSketch) {
    EXPECT_EQ(Answer({"echo", "--help"}).Out,
              "brindlex-cli echo FILE... [OPTION...]\nTells its words\n\nOptions:\n"
              "  --name TEXT               a text\n  --flag                    a flag\n"
              "  --help                    tells this\n\nA sketch.\n");
}

}  // namespace
