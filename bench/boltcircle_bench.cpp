// What a bolt circle costs: the pattern with its report, and a press of Calculate with its drawing, up to the most
// holes that there can be.
#include "app/forms.h"
#include "boltcircle/form8.h"
#include "boltcircle/report.h"
#include "boltcircle/solver.h"
#include "frame/drivenrun.h"
#include "frame/program.h"
#include "headless/headlessruntime.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <numbers>
#include <string>

namespace {

using namespace brindlex;

constexpr double Rad = std::numbers::pi / 180;
constexpr const char* Mask = ".0000";

void Report(benchmark::State& state, bool anglesOnly) {
    const boltcircle::Entries entries{"1.2345", "-2", "10", std::to_string(state.range(0)), "30", anglesOnly};
    for (auto _ : state) {
        const boltcircle::Pattern pattern = boltcircle::SolveBoltCircle(entries, Mask, Rad);
        benchmark::DoNotOptimize(boltcircle::ReportText(pattern, entries.StartAngle, Mask));
    }
}

void ReportCoordinates(benchmark::State& state) {
    Report(state, false);
}
BENCHMARK(ReportCoordinates)->Arg(6)->Arg(1000)->Arg(boltcircle::MostHoles)->Unit(benchmark::kMicrosecond);

void ReportAngles(benchmark::State& state) {
    Report(state, true);
}
BENCHMARK(ReportAngles)->Arg(6)->Arg(1000)->Arg(boltcircle::MostHoles)->Unit(benchmark::kMicrosecond);

void PressCalculate(benchmark::State& state) {
    const auto directory = std::filesystem::temp_directory_path() / "brindlex-boltcircle-bench";
    std::filesystem::create_directories(directory);
    DrivenRun run;
    HeadlessRuntime runtime(run, {1024, 768});
    Program program(runtime, Folder(directory));
    RegisterForms(program);
    program.Start();
    auto& form = dynamic_cast<boltcircle::Form8&>(program.Get("Form8"));
    form.Show();
    form.Text1.Text("1.2345");
    form.Text2.Text("-2");
    form.Text3.Text("10");
    form.Text4.Text(std::to_string(state.range(0)));
    form.Text5.Text("30");
    for (auto _ : state) {
        form.TypeByPerson(form.Text5, 13);
        benchmark::DoNotOptimize(form.Text6.Text().size());
    }
}
BENCHMARK(PressCalculate)->Arg(6)->Arg(1000)->Arg(boltcircle::MostHoles)->Unit(benchmark::kMicrosecond);

}  // namespace
