// Programs one after the other, the folder they work in, and the memory that they leave.
#include "walks.h"

#include "walker.h"

#include "app/forms.h"

#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>

#include <malloc.h>
#include <unistd.h>

namespace brindlex {

namespace {

// A program that nobody ends is left after so many acts.
constexpr int MostActs = 3000;
// What libraries keep for themselves is there after so many programs.
constexpr int WarmUp = 30;

std::string GeometryLine(int number, const std::string& values, const std::string& kind) {
    std::string line = " " + std::to_string(number);
    line.resize(14, ' ');
    return line + values + kind + "\r\n";
}

std::string SampleDrawing() {
    const auto value = [](std::string text) {
        text.resize(28, ' ');
        return text;
    };
    return "I\r\n" + GeometryLine(1, value("1.50") + value("-2") + value(".5"), "Circle") +
           GeometryLine(2, value(".75") + value("1") + value(".25"), "Circle") +
           GeometryLine(3, value("0") + value("0") + value("1") + value("2.25"), "Line") +
           GeometryLine(4, value("0") + value("1") + value("2") + value("0"), "Line") +
           GeometryLine(5, value(".25") + value("3"), "Point");
}

// Documents of each kind, whole and broken.
void Fill(const std::filesystem::path& folder) {
    const auto write = [&](const char* file, const std::string& content) {
        std::ofstream(folder / file, std::ios::binary) << content;
    };
    write("a.rgt", "Angle B and side a\r\n5\r\n30\r\n");
    write("b.obl", "Angle A, side a, side b\r\n30\r\n6\r\n10\r\n");
    write("c.bcf", "0\r\n0\r\n5\r\n6\r\n30\r\n 0 \r\n");
    write("d.sin", "5\"\r\nTrue\r\nFalse\r\n30\r\n\r\n");
    write("e.pgf", "7\r\nTrue\r\nFalse\r\nTrue\r\nFalse\r\nFalse\r\n1\r\n");
    write("f.geo", SampleDrawing());
    using namespace std::string_literals;
    write("rubbish", "\0\x01\xFF rubbish\r\n\r\n1e999\r\n"s);
    std::filesystem::create_directory(folder / "folder");
}

std::filesystem::path MakeFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "brindlex-walk-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) {
        std::cerr << "no working directory\n";
        std::exit(1);
    }
    return name;
}

/// One program from its start to its end; the acts done, or below 0 where something did not hold.
int WalkOnce(const WalkParts& parts, const std::filesystem::path& folder, int acts, unsigned seed) {
    DrivenRun run;
    const auto runtime = parts.MakeRuntime(run);
    const auto player = parts.MakePlayer(*runtime);
    Program program(*runtime, Folder(folder));
    RegisterForms(program);
    Walker walker(program, run, *player, seed);
    if (parts.LookAtWindows) {
        walker.AlsoLook([&] { return parts.LookAtWindows(program, *runtime); });
    }
    program.Start();
    const int done = walker.Walk(acts);
    if (!walker.Broken().empty()) {
        std::cerr << "seed " << seed << ", act " << done << ": " << walker.Broken() << "\n" << walker.Trail();
        return -1;
    }
    return done;
}

/// Whether the heap grows from program to program.
class Memory {
public:
    explicit Memory(std::size_t slack) : slack_(slack) {}

    /// Bytes in use beyond those after the warm-up; 0 while nothing is wrong.
    std::size_t GrownAfter(int programs) {
        const std::size_t used = mallinfo2().uordblks;
        if (programs <= WarmUp) {
            warm_ = std::max(warm_, used);
            return 0;
        }
        most_ = std::max(most_, used);
        return used > warm_ + slack_ ? used - warm_ : 0;
    }
    [[nodiscard]] std::string Told() const {
        return std::to_string(warm_ / 1024) + " KiB in use after the warm-up, " + std::to_string(most_ / 1024) +
               " KiB at most afterwards";
    }

private:
    std::size_t slack_;
    std::size_t warm_ = 0;
    std::size_t most_ = 0;
};

}  // namespace

int RunWalks(int argc, const char* const* argv, const WalkParts& parts) {
    const int all = argc > 1 ? std::atoi(argv[1]) : 20000;
    unsigned seed = argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : 1;
    const std::filesystem::path folder = MakeFolder();
    Memory memory(parts.Slack);
    int left = all;
    int programs = 0;
    int status = 0;
    while (left > 0 && status == 0) {
        Fill(folder);
        const int done = WalkOnce(parts, folder, std::min(left, MostActs), seed++);
        left -= std::max(done, 0);
        status = done < 0 ? 1 : 0;
        const std::string fault = parts.LookAfterwards ? parts.LookAfterwards() : std::string();
        if (!fault.empty()) {
            std::cerr << "seed " << seed - 1 << ": " << fault << "\n";
            status = 1;
        }
        if (const std::size_t grown = memory.GrownAfter(++programs); grown > 0) {
            std::cerr << "seed " << seed - 1 << ": the memory in use has grown by " << grown << " bytes\n";
            status = 1;
        }
        std::filesystem::remove_all(folder / "folder");
    }
    std::filesystem::remove_all(folder);
    std::cout << all - left << " acts, " << programs << " programs, " << memory.Told() << "\n";
    return status;
}

}  // namespace brindlex
