// The driver as a program: its options, its exit codes, what it says on which stream.
#include "headless/driver.h"
#include "scriptforms.h"

#include <gtest/gtest.h>

#include <iostream>

namespace brindlex {
namespace {

/// What a run of the driver gave.
struct Outcome {
    int Code = 0;
    std::string Out;
    std::string Errors;
};

/// Puts a buffer in a standard stream's place as long as it lives.
class Diverted {
public:
    Diverted(std::ios& stream, std::streambuf* buffer) : stream_(stream), own_(stream.rdbuf(buffer)) {}
    Diverted(const Diverted&) = delete;
    Diverted& operator=(const Diverted&) = delete;
    ~Diverted() { stream_.rdbuf(own_); }

private:
    std::ios& stream_;
    std::streambuf* own_;
};

Outcome Drive(std::vector<std::string> options, const std::string& input = "") {
    Log heard;
    DriverParts parts;
    parts.MakeRuntime = [](DrivenRun& run, Size screen) { return std::make_unique<HeadlessRuntime>(run, screen); };
    parts.MakePlayer = [](Runtime& runtime, DrivenRun&) { return std::make_unique<HeadlessPlayer>(runtime); };
    parts.RegisterForms = [&heard](Program& program) {
        program.Register("Form11", [&heard](Program& p) { return std::make_unique<MainForm>(p, heard); });
    };
    std::vector<const char*> words{"driver"};
    for (const std::string& option : options) {
        words.push_back(option.c_str());
    }
    std::istringstream in(input);
    std::ostringstream out;
    std::ostringstream errors;
    const Diverted divertedIn(std::cin, in.rdbuf());
    const Diverted divertedOut(std::cout, out.rdbuf());
    const Diverted divertedErrors(std::cerr, errors.rdbuf());
    const int code = RunDriver(static_cast<int>(words.size()), words.data(), parts);
    return {code, out.str(), errors.str()};
}

TEST(DriverTest, StandardInputGoesOnAtErrors) {
    const Outcome outcome = Drive({}, "start\npress Form11.None\nshow screen\n");
    EXPECT_EQ(outcome.Code, 0);
    EXPECT_EQ(outcome.Out, "ok\nerror Form11 has no None\nok [15360,11520]\n");
    EXPECT_EQ(outcome.Errors, "");
}

TEST(DriverTest, ScriptStopsAtTheFirstError) {
    const TestFolder folder;
    folder.Put("a.script", "start\n# second\nexpect Form11.Text1.Text \"abd\"\nshow ended\n");
    const std::string script = (folder.Path() / "a.script").string();
    const Outcome outcome = Drive({"--dir", folder.Path().string(), script});
    EXPECT_EQ(outcome.Code, 1);
    EXPECT_EQ(outcome.Out, "ok\nerror expected \"abd\" but it is \"abc\"\n");
    EXPECT_EQ(outcome.Errors,
              script + ":3: expect Form11.Text1.Text \"abd\": error expected \"abd\" but it is \"abc\"\n");
}

TEST(DriverTest, ScriptWithoutErrors) {
    const TestFolder folder;
    folder.Put("a.script", "show screen\r\nshow files\r\nquit\r\nshow nothing\r\n");
    const Outcome outcome = Drive(
        {"--screen", "800x600", "--desktop", (folder.Path() / "a.script").string(), "--dir", folder.Path().string()});
    EXPECT_EQ(outcome.Code, 0);
    EXPECT_EQ(outcome.Out, "ok [12000,9000]\nok [\"a.script\"]\nok\n");
}

TEST(DriverTest, OptionsThatAreNotUnderstood) {
    const std::vector<std::vector<std::string>> wrong = {
        {"--dir"},
        {"--screen"},
        {"--screen", "800"},
        {"--screen", "800x"},
        {"--screen", "0x600"},
        {"--screen", "800x600x2"},
        {"--screen", "-8x6"},
        {"--fast"},
        {"a", "b"},
        {""},
    };
    for (const auto& options : wrong) {
        const Outcome outcome = Drive(options, "show ended\n");
        EXPECT_EQ(outcome.Code, 2) << options.front();
        EXPECT_EQ(outcome.Out, "");
        EXPECT_EQ(outcome.Errors, "usage: driver [--dir DIR] [--screen 1024x768] [--desktop] [SCRIPT]\n");
    }
}

TEST(DriverTest, WhatIsNotThere) {
    const TestFolder folder;
    const std::string missing = (folder.Path() / "none").string();
    EXPECT_EQ(Drive({"--dir", missing}).Errors, missing + " is no directory\n");
    EXPECT_EQ(Drive({"--dir", missing}).Code, 2);
    EXPECT_EQ(Drive({missing}).Errors, missing + " can't be read\n");
    EXPECT_EQ(Drive({folder.Path().string()}).Code, 2);
}

}  // namespace
}  // namespace brindlex
