// What the solvers cost that have no benchmark of their own: sine plates, polygons, cutting data.
#include "polygon/solver.h"
#include "sineplate/solver.h"
#include "speedsfeeds/calculation.h"

#include <benchmark/benchmark.h>

#include <numbers>

namespace {

using namespace brindlex;

constexpr double Rad = std::numbers::pi / 180;

void SinePlateCompound(benchmark::State& state) {
    double angle = 10;
    for (auto _ : state) {
        benchmark::DoNotOptimize(angle);
        benchmark::DoNotOptimize(sineplate::SolveCompound(angle, 25.5, 5, 1, Rad));
    }
}
BENCHMARK(SinePlateCompound);

void PolygonHexagon(benchmark::State& state) {
    polygon::PolygonCase hexagon;
    for (auto _ : state) {
        benchmark::DoNotOptimize(hexagon);
        benchmark::DoNotOptimize(polygon::SolvePolygon(hexagon, Rad));
    }
}
BENCHMARK(PolygonHexagon);

void CuttingData(benchmark::State& state) {
    const speedsfeeds::Entries entries{"100", ".002", ".5", "4", ".25", ".5", ".8", "6", "2", "80-120", ".001-.004"};
    for (auto _ : state) {
        benchmark::DoNotOptimize(speedsfeeds::Calculate(entries, speedsfeeds::Unit::Inch, speedsfeeds::Machine::Mill,
                                                        std::numbers::pi, false));
    }
    state.SetLabel("from texts to texts");
}
BENCHMARK(CuttingData);

}  // namespace
