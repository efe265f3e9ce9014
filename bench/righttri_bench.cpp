// What a right triangle costs: the nine cases in checked and in plain arithmetic, a press of Calculate, a whole run.
#include "app/forms.h"
#include "frame/drivenrun.h"
#include "frame/program.h"
#include "frame/text.h"
#include "frame/textbox.h"
#include "headless/headlessruntime.h"
#include "righttri/form1.h"
#include "righttri/solver.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cmath>
#include <filesystem>
#include <string>
#include <string_view>

namespace {

using namespace brindlex;

constexpr double Pi = 3.14159265358979323846;
constexpr double Rad = Pi / 180;

struct NamedEntries {
    std::string_view Case;
    righttri::Entries Given;
};

const std::array<NamedEntries, 9>& NineCases() {
    static const std::array<NamedEntries, 9> cases{{{"Side a and side b", {"5", "3"}},
                                                    {"Side a and side c", {"5", "4"}},
                                                    {"Side b and side c", {"3", "4"}},
                                                    {"Angle B and side a", {"5", "36.87"}},
                                                    {"Angle B and side b", {"3", "36.87"}},
                                                    {"Angle B and side c", {"4", "36.87"}},
                                                    {"Angle C and side a", {"5", "53.13"}},
                                                    {"Angle C and side b", {"3", "53.13"}},
                                                    {"Angle C and side c", {"4", "53.13"}}}};
    return cases;
}

// The same work as the solver's, texts and look-up included, in plain doubles.
double PlainSolve(std::string_view name, const righttri::Entries& given) {
    constexpr double Degrees = 57.2957795130824;
    if (given.Text1.empty() || given.Text2.empty() || Val(given.Text1) == 0 || Val(given.Text2) == 0 ||
        given.Text1.find(DegreeSign) != std::string::npos || given.Text2.find(DegreeSign) != std::string::npos) {
        return 0;
    }
    const auto& cases = NineCases();
    std::size_t row = 0;
    while (cases[row].Case != name) {
        ++row;
    }
    const double x = Val(given.Text1);
    const double y = Val(given.Text2);
    const double r = y * Rad;
    switch (row) {
        case 0:
        case 1: {
            const double leg = std::sqrt(x * x - y * y);
            return leg + std::atan(y / leg) * Degrees + std::atan(leg / y) * Degrees;
        }
        case 2:
            return std::sqrt(x * x + y * y) + std::atan(x / y) * Degrees + std::atan(y / x) * Degrees;
        case 3:
        case 6:
            return x * std::sin(r) + x * std::cos(r) + 90 - y;
        case 4:
        case 8:
            return x / std::sin(r) + x / std::tan(r) + 90 - y;
        default:
            return x / std::cos(r) + x * std::tan(r) + 90 - y;
    }
}

void NineCasesChecked(benchmark::State& state) {
    for (auto _ : state) {
        for (const NamedEntries& given : NineCases()) {
            righttri::Entries entries = given.Given;
            benchmark::DoNotOptimize(righttri::Solve(given.Case, entries, Rad));
        }
    }
}
BENCHMARK(NineCasesChecked);

void NineCasesPlain(benchmark::State& state) {
    for (auto _ : state) {
        for (const NamedEntries& given : NineCases()) {
            righttri::Entries entries = given.Given;
            benchmark::DoNotOptimize(PlainSolve(given.Case, entries));
        }
    }
}
BENCHMARK(NineCasesPlain);

std::filesystem::path WorkingDirectory() {
    const auto directory = std::filesystem::temp_directory_path() / "brindlex-bench";
    std::filesystem::create_directories(directory);
    return directory;
}

void PressCalculate(benchmark::State& state) {
    DrivenRun run;
    HeadlessRuntime runtime(run, {1024, 768});
    Program program(runtime, Folder(WorkingDirectory()));
    RegisterForms(program);
    program.Start();
    auto& form = dynamic_cast<righttri::Form1&>(program.Get("Form1"));
    form.Show();
    form.Text1.Text("5");
    form.Text2.Text("3");
    for (auto _ : state) {
        form.TypeByPerson(form.Text2, 13);
        benchmark::DoNotOptimize(form.Picture1.Drawn().Items().size());
    }
}
BENCHMARK(PressCalculate);

void StartSolveQuit(benchmark::State& state) {
    for (auto _ : state) {
        DrivenRun run;
        HeadlessRuntime runtime(run, {1024, 768});
        Program program(runtime, Folder(WorkingDirectory()));
        RegisterForms(program);
        program.Start();
        auto* menu = program.Find("Form11");
        menu->PressByPerson(*menu->FindControl("Command1"));
        auto& form = dynamic_cast<righttri::Form1&>(program.Get("Form1"));
        form.Text1.Text("5");
        form.Text2.Text("3");
        form.TypeByPerson(form.Text2, 13);
        form.ChooseByPerson(form.Menu);
        menu->PressByPerson(*menu->FindControl("Command5"));
        benchmark::DoNotOptimize(program.Ended());
    }
}
BENCHMARK(StartSolveQuit);

}  // namespace
