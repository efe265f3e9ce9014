// The random walker on the headless runtime: random-walker [ACTS [SEED]]. Runs programs one after the other until the
// acts are done; ends with 1 and the trail where something did not hold.
#include "walker.h"

#include "app/forms.h"
#include "headless/headlessplayer.h"
#include "headless/headlessruntime.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

#include <unistd.h>

namespace {

using namespace brindlex;

// A fresh working directory with documents of each kind, whole and broken.
std::filesystem::path MakeFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "brindlex-walk-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) {
        std::cerr << "no working directory\n";
        std::exit(1);
    }
    const std::filesystem::path folder = name;
    std::filesystem::create_directory(folder / "folder");
    const auto write = [&](const char* file, const std::string& content) {
        std::ofstream(folder / file, std::ios::binary) << content;
    };
    write("a.rgt", "Angle B and side a\r\n5\r\n30\r\n");
    write("b.obl", "Angle A, side a, side b\r\n30\r\n6\r\n10\r\n");
    write("c.bcf", "0\r\n0\r\n5\r\n6\r\n30\r\n 0 \r\n");
    write("d.sin", "5\"\r\nTrue\r\nFalse\r\n30\r\n\r\n");
    write("e.pgf", "7\r\nTrue\r\nFalse\r\nTrue\r\nFalse\r\nFalse\r\n1\r\n");
    using namespace std::string_literals;
    write("f.geo", "I\r\n");
    write("rubbish", "\0\x01\xFF rubbish\r\n\r\n1e999\r\n"s);
    return folder;
}

// One program from its start to its end; returns the acts done, or nothing good.
int WalkOnce(const std::filesystem::path& folder, int acts, unsigned seed) {
    DrivenRun run;
    HeadlessRuntime runtime(run, {1280, 1024});
    HeadlessPlayer player(runtime);
    Program program(runtime, Folder(folder));
    RegisterForms(program);
    Walker walker(program, run, player, seed);
    program.Start();
    const int done = walker.Walk(acts);
    if (!walker.Broken().empty()) {
        std::cerr << "seed " << seed << ", act " << done << ": " << walker.Broken() << "\n" << walker.Trail();
        return -1;
    }
    return done;
}

}  // namespace

int main(int argc, char** argv) {
    int left = argc > 1 ? std::atoi(argv[1]) : 20000;
    unsigned seed = argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : 1;
    const int all = left;
    const std::filesystem::path folder = MakeFolder();
    int status = 0;
    while (left > 0) {
        const int done = WalkOnce(folder, left, seed++);
        if (done < 0) {
            status = 1;
            break;
        }
        left -= done;
    }
    std::filesystem::remove_all(folder);
    std::cout << all - left << " acts\n";
    return status;
}
