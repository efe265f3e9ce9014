// Options, and the parts of a run put together.
#include "headless/driver.h"

#include "headless/script.h"

#include <charconv>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace brindlex {

namespace {

constexpr int Good = 0;
constexpr int Stopped = 1;
constexpr int CannotRun = 2;

struct Options {
    std::filesystem::path Directory = ".";
    Size Screen{1024, 768};
    std::string Script;
};

std::optional<double> PixelsOf(std::string_view text) {
    constexpr int most = 100000;
    int pixels = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, failure] = std::from_chars(text.data(), end, pixels);
    if (failure != std::errc() || stop != end || pixels < 1 || pixels > most) {
        return std::nullopt;
    }
    return pixels;
}

std::optional<Size> ScreenOf(std::string_view text) {
    const std::size_t cross = text.find('x');
    if (cross == std::string_view::npos) {
        return std::nullopt;
    }
    const auto width = PixelsOf(text.substr(0, cross));
    const auto height = PixelsOf(text.substr(cross + 1));
    if (!width || !height) {
        return std::nullopt;
    }
    return Size{*width, *height};
}

std::optional<Options> OptionsOf(const std::vector<std::string>& words) {
    Options options;
    for (std::size_t at = 0; at < words.size(); ++at) {
        const std::string& word = words[at];
        const bool hasValue = at + 1 < words.size();
        if (word == "--desktop") {
            continue;
        }
        if (word == "--dir" && hasValue) {
            options.Directory = words[++at];
        } else if (word == "--screen" && hasValue) {
            const auto screen = ScreenOf(words[++at]);
            if (!screen) {
                return std::nullopt;
            }
            options.Screen = *screen;
        } else if (word.starts_with("-") || word.empty() || !options.Script.empty()) {
            return std::nullopt;
        } else {
            options.Script = word;
        }
    }
    return options;
}

int RunScript(const Options& options, const DriverParts& parts, std::istream& commands, Script::AtError atError) {
    DrivenRun run;
    const auto runtime = parts.MakeRuntime(run, options.Screen);
    const auto player = parts.MakePlayer(*runtime, run);
    Program program(*runtime, Folder(std::filesystem::absolute(options.Directory)));
    parts.RegisterForms(program);
    Script script(program, run, *player, commands, std::cout, atError);
    if (const auto stop = script.Run()) {
        std::cerr << options.Script << ':' << stop->Line << ": " << stop->Command << ": " << stop->Answer << '\n';
        return Stopped;
    }
    return Good;
}

}  // namespace

int RunDriver(int argc, const char* const* argv, const DriverParts& parts) {
    const auto options = OptionsOf({argv + 1, argv + argc});
    if (!options) {
        std::cerr << "usage: " << argv[0] << " [--dir DIR] [--screen 1024x768] [--desktop] [SCRIPT]\n";
        return CannotRun;
    }
    std::error_code failure;
    if (!std::filesystem::is_directory(options->Directory, failure)) {
        std::cerr << options->Directory.string() << " is no directory\n";
        return CannotRun;
    }
    if (options->Script.empty()) {
        return RunScript(*options, parts, std::cin, Script::AtError::GoOn);
    }
    std::ifstream script(options->Script);
    if (!script || std::filesystem::is_directory(options->Script, failure)) {
        std::cerr << options->Script << " can't be read\n";
        return CannotRun;
    }
    return RunScript(*options, parts, script, Script::AtError::Stop);
}

}  // namespace brindlex
