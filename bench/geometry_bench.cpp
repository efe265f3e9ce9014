// What the drawing board costs: a pointer move over a full board, a Place It with all files written, a fit, a refresh
// of the pairs of lines, a connection.
#include "app/forms.h"
#include "frame/drivenrun.h"
#include "frame/program.h"
#include "geometry/form17.h"
#include "headless/headlessruntime.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>
#include <system_error>

namespace {

using namespace brindlex;
using geometry::Form17;

/// On a RAM disk where there is one.
std::filesystem::path WorkingDirectory() {
    std::error_code ignored;
    const std::filesystem::path memory = "/dev/shm";
    const bool there = std::filesystem::is_directory(memory, ignored);
    const auto directory = (there ? memory : std::filesystem::temp_directory_path()) / "brindlex-geometry-bench";
    std::filesystem::create_directories(directory);
    return directory;
}

/// The board on a headless runtime.
struct Stand {
    DrivenRun Run;
    HeadlessRuntime Runtime{Run, {1024, 768}};
    Program Owner{Runtime, Folder(WorkingDirectory())};
    Form17* Board = nullptr;

    Stand() {
        RegisterForms(Owner);
        Owner.Start();
        Board = &dynamic_cast<Form17&>(Owner.Get("Form17"));
        Board->Show();
    }
    void PlaceCircle(double x) {
        Board->Frame1.Text1.Text(std::to_string(x));
        Board->Frame1.Text2.Text("0");
        Board->Frame1.Text3.Text(".5");
        Board->Command1.Value(true);
    }
    void PlaceLines(int count) {
        Board->Toolbar1.PressByPerson("Line");
        for (int i = 0; i < count; ++i) {
            Board->Frame2.Text6.Text(std::to_string(0.2 * i - 1));
            Board->Frame2.Text7.Text("-1");
            Board->Frame2.Text8.Text(std::to_string(0.1 * i));
            Board->Frame2.Text9.Text("1");
            Board->Command1.Value(true);
        }
    }
    /// 12 circles, 14 lines, 14 points.
    void Fill() {
        for (int i = 0; i < 12; ++i) {
            PlaceCircle(0.15 * i - 1);
        }
        PlaceLines(14);
        Board->Toolbar1.PressByPerson("Point");
        for (int i = 0; i < 14; ++i) {
            Board->Frame3.Text10.Text(std::to_string(0.2 * i - 1));
            Board->Frame3.Text11.Text(".5");
            Board->Command1.Value(true);
        }
    }
};

void PointerMove(benchmark::State& state) {
    Stand stand;
    stand.Fill();
    PictureBox& picture = stand.Board->Picture1;
    double x = 0;
    for (auto _ : state) {
        x = x > 4 ? 0 : x + 0.01;
        picture.Fire(picture.MouseMove, "MouseMove", Mouse{0, 0, x, -1.2});
        benchmark::DoNotOptimize(picture.Drawn().Items().size());
    }
}
BENCHMARK(PointerMove)->Unit(benchmark::kMicrosecond);

void PlaceIt(benchmark::State& state) {
    Stand stand;
    stand.Fill();
    stand.Board->Toolbar1.PressByPerson("Circle");
    for (auto _ : state) {
        state.PauseTiming();
        // Room for one more: the last of the twelve goes from the arrays, the store stays full.
        stand.Board->Work.Entities.CircleTop -= geometry::CircleWidth;
        stand.Board->Work.Entities.CircleIdx -= geometry::CircleWidth;
        if (stand.Board->Work.Live().Count() > 60) {
            state.SkipWithError("the store grew beyond a full board");
            break;
        }
        const auto lines = stand.Board->Work.Live().Lines();
        state.ResumeTiming();
        stand.PlaceCircle(1);
        state.PauseTiming();
        stand.Board->Work.Live().Rewrite("geo.tmp", lines);
        state.ResumeTiming();
    }
}
BENCHMARK(PlaceIt)->Unit(benchmark::kMicrosecond);

void FitInWindow(benchmark::State& state) {
    Stand stand;
    stand.Fill();
    for (auto _ : state) {
        stand.Board->Toolbar1.PressByPerson("Fit");
    }
}
BENCHMARK(FitInWindow)->Unit(benchmark::kMicrosecond);

/// Both lists of pairs of 14 lines, the store read and the copy of the lines written and deleted.
void RefreshOfPairs(benchmark::State& state) {
    Stand stand;
    stand.Fill();
    if (stand.Board->Frame8.Combo1.ListCount() + stand.Board->Frame10.Combo2.ListCount() != 14 * 13 / 2) {
        state.SkipWithError("not every pair is listed");
    }
    for (auto _ : state) {
        stand.Board->Pairs.FindAng();
    }
}
BENCHMARK(RefreshOfPairs)->Unit(benchmark::kMicrosecond);

/// From the press of Place It to the picture with four tangents of two circles, on a board that has ten lines already:
/// no board with room for a connection has more. Cancel, which takes them away again, is not counted.
void ConnectTwoCircles(benchmark::State& state) {
    Stand stand;
    stand.PlaceCircle(-1);
    stand.PlaceCircle(1);
    stand.PlaceLines(10);
    stand.Board->Toolbar1.PressByPerson("Connect");
    geometry::ConnectPanel& panel = stand.Board->Frame4;
    for (auto _ : state) {
        state.PauseTiming();
        panel.Option1.Value(true);
        panel.Text12.Text("1");
        panel.Option4.Value(true);
        panel.Text15.Text("2");
        state.ResumeTiming();
        stand.Board->Command1.Value(true);
        state.PauseTiming();
        if (stand.Board->Work.Live().Count() != 16) {
            state.SkipWithError("the circles were not connected");
            break;
        }
        stand.Board->Command3.Value(true);
        state.ResumeTiming();
    }
}
BENCHMARK(ConnectTwoCircles)->Unit(benchmark::kMicrosecond);

}  // namespace
