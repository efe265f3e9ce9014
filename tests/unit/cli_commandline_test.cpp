// The command line: words to arguments, refusals, help, one line on the standard error.
#include "cli/commandline.h"

#include <gtest/gtest.h>

namespace brindlex::cli {
namespace {
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
        Row{{"echo", "[a,b]"}, 0, "- [[a,b]]", ""}, Row{{"echo", "-", "{}"}, 0, "- [-] [{}]", ""},
        Row{{"echo", "--", "--", "-x"}, 0, "- [--] [-x]", ""},
        Row{{"bare", "a"}, 2, "", "brindlex-cli bare: a is one word too many\n"},
        Row{{"bare", "--nam\n"}, 2, "", "brindlex-cli bare: --nam? is no option here; --help lists them\n"},
        Row{{"echo", "--nam", "x"}, 2, "", "brindlex-cli echo: --nam is no option here; --help lists them\n"},
        Row{{"echo", "-n", "x"}, 2, "", "brindlex-cli echo: -n is no option here; --help lists them\n"},
        Row{{"echo", "--name"}, 2, "", "brindlex-cli echo: --name has nothing behind it\n"},
        Row{{"echo", "--name=", "--flag"}, 2, "", "brindlex-cli echo: --name has nothing behind it\n"},
        Row{{"echo", "--name=="}, 0, "=", ""}, Row{{"echo", "--", "--name="}, 0, "- [--name=]", ""},
        Row{{"echo", "--flag=true"}, 2, "", "brindlex-cli echo: --flag takes nothing behind it\n"},
        Row{{"echo", "--flag=no"}, 2, "", "brindlex-cli echo: --flag takes nothing behind it\n"},
        Row{{"one"}, 2, "", "brindlex-cli one: FILE is missing\n"},
        Row{{"two"}, 2, "", "brindlex-cli two: two is no command; --help lists them\n"},
        Row{{""}, 2, "", "brindlex-cli:  is no command; --help lists them\n"},
        Row{{}, 2, "", "brindlex-cli: a command is missing; --help lists them\n"},
        Row{{"--version"}, 0, "brindlex-cli 3.0.2\n", ""}));

TEST(CommandLineMessage, LeavesTheMiddleOfALongOneOut) {
    // The line that is told of is 1000 characters: 795 of the head, " ... ", 200 of the tail.
    const std::string tail = " is no command; --help lists them";
    const std::string head = "brindlex-cli " + std::string(5000, 'x');
    const Outcome outcome = Answer({std::string(5000, 'x')});
    EXPECT_EQ(outcome.Err, head.substr(0, 795) + " ... " + std::string(200 - tail.size(), 'x') + tail + "\n");
    // Two bytes a letter, of which the first comes at an odd place: none is cut in two.
    std::string letters;
    while (letters.size() < 2000) {
        letters += "\xC3\xA9";
    }
    for (const char* const before : {"", "x"}) {
        const std::string told = Answer({"bare", before + letters}).Err;
        const auto half = [&](std::size_t at) { return (static_cast<unsigned char>(told[at]) & 0xC0U) == 0x80U; };
        const std::size_t gap = told.find(" ... ");
        ASSERT_NE(gap, std::string::npos);
        EXPECT_EQ(told.substr(gap - 2, 2), "\xC3\xA9");
        EXPECT_FALSE(half(gap + 5));
    }
}

TEST(CommandLineHelp, TellsOptionsAndSketch) {
    EXPECT_EQ(Answer({"echo", "--help"}).Out,
              "brindlex-cli echo FILE... [OPTION...]\nTells its words\n\nOptions:\n"
              "  --name TEXT               a text\n  --flag                    a flag\n"
              "  --help                    tells this\n\nA sketch.\n");
}

}  // namespace
}  // namespace brindlex::cli
