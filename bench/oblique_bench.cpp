// What an oblique triangle costs: each of the nineteen cases, all of them in checked and in plain arithmetic, and a
// press of Calculate up to the finished display list.
#include "app/forms.h"
#include "frame/drivenrun.h"
#include "frame/program.h"
#include "headless/headlessruntime.h"
#include "oblique/form2.h"
#include "oblique/solver.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cmath>
#include <filesystem>
#include <string>

namespace {

using namespace brindlex;
using oblique::Case;
using oblique::Element;
using oblique::Family;
using oblique::Triangle;

/// The entries of a case, from the triangle with the sides 7, 9, 11.
std::array<double, 3> EntriesOf(const Case& row) {
    static constexpr std::array<double, oblique::ElementCount> Values = {
        39.40056875374, 54.69547500441, 85.90395624185, 7, 9, 11};
    return {Values[oblique::Index(row.Given[0])], Values[oblique::Index(row.Given[1])],
            Values[oblique::Index(row.Given[2])]};
}

void SolveCase(benchmark::State& state) {
    const Case& row = oblique::Cases()[static_cast<std::size_t>(state.range(0))];
    const auto entries = EntriesOf(row);
    state.SetLabel(std::string(row.Entry));
    Triangle triangle;
    for (auto _ : state) {
        oblique::SolveOblique(triangle, row.Entry, entries[0], entries[1], entries[2], row.ObtuseFirst);
        benchmark::DoNotOptimize(oblique::AcceptOblique(triangle));
    }
}
BENCHMARK(SolveCase)->DenseRange(0, 18);

/// The same formulas in plain doubles, without table and checks.
double PlainSolve(Family kind, const std::array<double, 3>& v) {
    constexpr double Rad = 3.14159265358979323846 / 180;
    constexpr double Deg = 1 / Rad;
    const auto arccosine = [](double y) { return (90 * Rad - std::atan(y / std::sqrt(1 - y * y))) * Deg; };
    switch (kind) {
        case Family::TwoAngles: {
            const double third = 180 - (v[0] + v[1]);
            const double sine = std::sin(v[0] * Rad);
            return v[2] * std::sin(v[1] * Rad) / sine + v[2] * std::sin(third * Rad) / sine + third;
        }
        case Family::Ambiguous: {
            const double sine = std::sin(v[0] * Rad);
            const double x = v[2] * sine / v[1];
            const double angle = std::atan(x / std::sqrt(std::fabs(1 - x * x))) * Deg;
            return v[1] * std::sin((180 - v[0] - angle) * Rad) / sine + angle;
        }
        case Family::IncludedAngle: {
            const double side = std::sqrt(v[1] * v[1] + v[2] * v[2] - 2 * v[1] * v[2] * std::cos(v[0] * Rad));
            return side + arccosine((v[2] * v[2] + side * side - v[1] * v[1]) / (2 * v[2] * side));
        }
        case Family::ThreeSides:
            break;
    }
    return arccosine((v[2] * v[2] + v[0] * v[0] - v[1] * v[1]) / (2 * v[2] * v[0])) +
           arccosine((v[0] * v[0] + v[1] * v[1] - v[2] * v[2]) / (2 * v[0] * v[1]));
}

void NineteenCasesChecked(benchmark::State& state) {
    Triangle triangle;
    for (auto _ : state) {
        for (const Case& row : oblique::Cases()) {
            oblique::SolveOblique(triangle, row, EntriesOf(row), row.ObtuseFirst);
            benchmark::DoNotOptimize(triangle);
        }
    }
}
BENCHMARK(NineteenCasesChecked);

void NineteenCasesPlain(benchmark::State& state) {
    for (auto _ : state) {
        for (const Case& row : oblique::Cases()) {
            benchmark::DoNotOptimize(PlainSolve(row.Kind, EntriesOf(row)));
        }
    }
}
BENCHMARK(NineteenCasesPlain);

void PressCalculate(benchmark::State& state) {
    const auto directory = std::filesystem::temp_directory_path() / "brindlex-bench";
    std::filesystem::create_directories(directory);
    DrivenRun run;
    HeadlessRuntime runtime(run, {1024, 768});
    Program program(runtime, Folder(directory));
    RegisterForms(program);
    auto& form = dynamic_cast<oblique::Form2&>(program.Get("Form2"));
    form.Show();
    form.TextOn.Checked(state.range(0) != 0);
    form.Combo1.Text("Angle A, side a, side b");
    form.Text1.Text("30");
    form.Text2.Text("6");
    form.Text3.Text("10");
    for (auto _ : state) {
        form.TypeByPerson(form.Text3, 13);
        benchmark::DoNotOptimize(form.Picture1.Drawn().Items().size());
    }
    state.SetLabel(state.range(0) != 0 ? "Text On" : "Text Off");
}
BENCHMARK(PressCalculate)->Arg(0)->Arg(1);

}  // namespace
