// brindlex-drive: the whole program without a person. Without windows it runs here; with --desktop its sibling takes
// over, so that this program needs no window system.
#include "app/forms.h"
#include "headless/driver.h"
#include "headless/headlessplayer.h"
#include "headless/headlessruntime.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>
#include <string_view>

namespace {

constexpr int CannotRun = 2;

// Becomes the sibling; returns only where that fails.
int BecomeDesktop(char** argv) {
    const std::filesystem::path sibling =
        std::filesystem::read_symlink("/proc/self/exe").parent_path() / "brindlex-drive-desktop";
    execv(sibling.c_str(), argv);
    std::cerr << sibling.string() << ": " << std::strerror(errno) << '\n';  // NOLINT(concurrency-mt-unsafe)
    return CannotRun;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        if (std::any_of(argv + 1, argv + argc, [](std::string_view option) { return option == "--desktop"; })) {
            return BecomeDesktop(argv);
        }
        brindlex::DriverParts parts;
        parts.MakeRuntime = [](brindlex::DrivenRun& run, brindlex::Size screen) {
            return std::make_unique<brindlex::HeadlessRuntime>(run, screen);
        };
        parts.MakePlayer = [](brindlex::Runtime& runtime, brindlex::DrivenRun&) {
            return std::make_unique<brindlex::HeadlessPlayer>(runtime);
        };
        parts.RegisterForms = brindlex::RegisterForms;
        return brindlex::RunDriver(argc, argv, parts);
    } catch (const std::exception& failure) {
        std::cerr << "brindlex-drive: " << failure.what() << '\n';
        return CannotRun;
    }
}
