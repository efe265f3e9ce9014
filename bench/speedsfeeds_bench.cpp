// What years of cutting data cost: filling the lists, a choice in them, a save, and the opening of the form, with
// 20,000 records, once with many tools and once with few.
#include "app/forms.h"
#include "frame/drivenrun.h"
#include "frame/program.h"
#include "headless/headlessruntime.h"
#include "speedsfeeds/calculation.h"
#include "speedsfeeds/form19.h"
#include "speedsfeeds/store.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <numbers>
#include <string>

namespace {

using namespace brindlex;
using speedsfeeds::Form19;
using speedsfeeds::Store;
using speedsfeeds::Unit;

constexpr int Records = 20000;

/// A working directory with a store of 20,000 records of so many tools, three materials each at the least.
Folder WorkingDirectory(int tools) {
    const auto directory = std::filesystem::temp_directory_path() / "brindlex-bench-data";
    std::filesystem::create_directories(directory);
    std::ofstream store(directory / "Mill.dat", std::ios::binary | std::ios::trunc);
    for (int i = 0; i < Records; ++i) {
        const int round = i / tools;
        store << "I_End Mill " << i % tools << "!High Speed " << round % 3 << "@Tool Steel-D" << round / 3
              << "#80-120$.001-.004%.8^\r\n";
    }
    return Folder(directory);
}

struct OpenForm {
    explicit OpenForm(const Folder& folder) : App(Runtime, folder) {
        RegisterForms(App);
        App.Start();
    }
    Form19& Show() {
        App.Get("Form11").GoTo("Form19");
        return dynamic_cast<Form19&>(App.Get("Form19"));
    }

    DrivenRun Run;
    HeadlessRuntime Runtime{Run, {1024, 768}};
    Program App;
};

void FillTools(benchmark::State& state) {
    const Store store(WorkingDirectory(static_cast<int>(state.range(0))), "Mill");
    for (auto _ : state) {
        benchmark::DoNotOptimize(store.Tools(Unit::Inch, {}));
    }
}
BENCHMARK(FillTools)->Arg(Records)->Arg(20)->Unit(benchmark::kMillisecond);

void SwitchUnits(benchmark::State& state) {
    OpenForm open(WorkingDirectory(static_cast<int>(state.range(0))));
    Form19& form = open.Show();
    for (auto _ : state) {
        form.InchTo.FireClick();
        form.InchTo.FireClick();
    }
    state.SetLabel("two fills");
}
BENCHMARK(SwitchUnits)->Arg(Records)->Arg(20)->Unit(benchmark::kMillisecond);

void ChooseTool(benchmark::State& state) {
    OpenForm open(WorkingDirectory(static_cast<int>(state.range(0))));
    Form19& form = open.Show();
    for (auto _ : state) {
        form.Combo2.ChooseByPerson(form.Combo2.ListCount() - 1);
    }
}
BENCHMARK(ChooseTool)->Arg(Records)->Arg(20)->Unit(benchmark::kMillisecond);

void ChooseWorkMaterial(benchmark::State& state) {
    OpenForm open(WorkingDirectory(static_cast<int>(state.range(0))));
    Form19& form = open.Show();
    form.Combo2.ChooseByPerson(form.Combo2.ListCount() - 1);
    form.Combo3.ChooseByPerson(0);
    for (auto _ : state) {
        form.Combo4.ChooseByPerson(form.Combo4.ListCount() - 1);
    }
}
BENCHMARK(ChooseWorkMaterial)->Arg(Records)->Arg(20)->Unit(benchmark::kMillisecond);

void OpenTheForm(benchmark::State& state) {
    const Folder folder = WorkingDirectory(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        state.PauseTiming();
        auto open = std::make_unique<OpenForm>(folder);
        state.ResumeTiming();
        benchmark::DoNotOptimize(open->Show().Combo2.ListCount());
        state.PauseTiming();
        open.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(OpenTheForm)->Arg(Records)->Arg(20)->Unit(benchmark::kMillisecond);

void SaveARecord(benchmark::State& state) {
    const Store store(WorkingDirectory(20), "Mill");
    for (auto _ : state) {
        store.AppendRecord("I_Reamer!Carbide@Brass#100-200$.005-.01%.3^");
    }
    state.SetLabel("to the disk");
}
BENCHMARK(SaveARecord)->Unit(benchmark::kMillisecond);

void CalculateAll(benchmark::State& state) {
    const speedsfeeds::Entries entries{"100", ".002", ".5", "4", ".25", ".5", ".8", "10", "2", "80-120", ".001-.004"};
    for (auto _ : state) {
        benchmark::DoNotOptimize(speedsfeeds::OutOfRange(entries, speedsfeeds::Machine::Mill));
        benchmark::DoNotOptimize(
            speedsfeeds::Calculate(entries, Unit::Inch, speedsfeeds::Machine::Mill, std::numbers::pi, false));
    }
}
BENCHMARK(CalculateAll);

}  // namespace
