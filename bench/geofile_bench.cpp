// What a full drawing costs, all files included: opening it, changing its unit, its report.
#include "app/forms.h"
#include "frame/drivenrun.h"
#include "frame/program.h"
#include "frame/text.h"
#include "geometry/form17.h"
#include "geometry/geofile.h"
#include "geometry/record.h"
#include "headless/headlessruntime.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

namespace {

using namespace brindlex;
using geometry::Form17;

constexpr const char* File = "full.geo";
constexpr std::size_t Entities = 40;

/// On a RAM disk where there is one.
std::filesystem::path WorkingDirectory() {
    std::error_code ignored;
    const std::filesystem::path memory = "/dev/shm";
    const bool there = std::filesystem::is_directory(memory, ignored);
    const auto directory = (there ? memory : std::filesystem::temp_directory_path()) / "brindlex-geofile-bench";
    std::filesystem::create_directories(directory);
    return directory;
}

/// 12 circles, 14 points and 14 lines, of which 7 cross the other 7.
std::vector<std::string> FullDrawing() {
    std::vector<std::string> records;
    int number = 0;
    for (int i = 0; i < 12; ++i) {
        records.push_back(geometry::CircleRecord(++number, 0.5, Str(0.15 * i - 1), "0"));
    }
    for (int i = 0; i < 7; ++i) {
        records.push_back(geometry::LineRecord(++number, Str(0.2 * i - 1), "-1", Str(0.2 * i - 0.9), "1"));
        records.push_back(geometry::LineRecord(++number, "-1", Str(0.2 * i - 1), "1", Str(0.2 * i - 0.9)));
    }
    for (int i = 0; i < 14; ++i) {
        records.push_back(geometry::PointRecord(++number, Str(0.2 * i - 1), ".5"));
    }
    return records;
}

/// The board on a headless runtime, the drawing open.
struct Stand {
    DrivenRun Run;
    HeadlessRuntime Runtime{Run, {1024, 768}};
    Program Owner{Runtime, Folder(WorkingDirectory())};
    Form17* Board = nullptr;

    explicit Stand(benchmark::State& state) {
        RegisterForms(Owner);
        Owner.Start();
        Board = &dynamic_cast<Form17&>(Owner.Get("Form17"));
        Board->Show();
        Owner.Files().RewriteLines(File, geometry::GeoLines(FullDrawing(), geometry::Unit::Inch), Durability::Step);
        Open();
        if (Board->Work.Live().Lines().size() != Entities) {
            state.SkipWithError("the drawing is not open");
        }
    }
    void Open() {
        Run.Files.emplace_back(File);
        Board->ChooseByPerson(Board->OpenIt);
    }
};

void OpenDrawing(benchmark::State& state) {
    Stand stand(state);
    for (auto _ : state) {
        stand.Open();
    }
}
BENCHMARK(OpenDrawing)->Unit(benchmark::kMicrosecond);

/// There and back: two conversions a turn.
void ChangeUnitTwice(benchmark::State& state) {
    Stand stand(state);
    for (auto _ : state) {
        stand.Board->ChooseByPerson(stand.Board->MM);
        stand.Board->ChooseByPerson(stand.Board->InchTo);
    }
    if (stand.Board->Work.Live().Lines().size() != Entities) {
        state.SkipWithError("the drawing was lost");
    }
}
BENCHMARK(ChangeUnitTwice)->Unit(benchmark::kMicrosecond);

void Report(benchmark::State& state) {
    Stand stand(state);
    for (auto _ : state) {
        Form& report = stand.Owner.Get("Form18");
        report.Load();
        report.Unload();
    }
}
BENCHMARK(Report)->Unit(benchmark::kMicrosecond);

}  // namespace
