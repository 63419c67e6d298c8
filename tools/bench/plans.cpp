// Timings of the planner: a year's waters and windows, all ports, and a month as its window makes it anew. Run it from
// the release build: build/release/bin/benchplans
#include <benchmark/benchmark.h>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <filesystem>
#include <future>
#include <thread>

#include "engine/daywaters.h"
#include "planner/plan.h"
#include "platform/systemzones/systemzones.h"
#include "portdata/recordfiles.h"
#include "text/singlebyte.h"

namespace {

using namespace tarvane;

constexpr Date newyear = std::chrono::sys_days{std::chrono::year{2026} / 1 / 1};

/// The ports of the area that ships.
const std::vector<HarmonicRecord>& ports() {
    static const auto all =
        readports((std::filesystem::read_symlink("/proc/self/exe").parent_path() / "UK.hc").string());
    return all;
}

const HarmonicRecord& dover() {
    return *std::find_if(ports().begin(), ports().end(),
                         [](const HarmonicRecord& port) { return trim(port.PortName) == "Dover"; });
}

Passage oversill() {
    Passage boat;
    boat.draught = 1.9;
    boat.clearance = 0.5;
    boat.bottom = -2;
    return boat;
}

/// Wanted under 60 ms.
void yearwaters(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(watersof(dover(), newyear, 365));
}
BENCHMARK(yearwaters)->Unit(benchmark::kMillisecond);

/// The plan made, and its windows: wanted under 100 ms for a year and 16 ms for a month.
void planandwindows(benchmark::State& state) {
    const SystemZones zones;
    for (auto _ : state) {
        const Plan plan({dover(), "Europe/London", newyear, static_cast<int>(state.range(0))}, zones);
        benchmark::DoNotOptimize(plan.access(oversill(), {Daylight::part, 30}, false));
    }
}
BENCHMARK(planandwindows)->Arg(31)->Arg(365)->Unit(benchmark::kMillisecond);

/// The windows alone, as when a draught is changed.
void windowsalone(benchmark::State& state) {
    const SystemZones zones;
    const Plan plan({dover(), "Europe/London", newyear, static_cast<int>(state.range(0))}, zones);
    for (auto _ : state)
        benchmark::DoNotOptimize(plan.access(oversill(), {Daylight::part, 30}, false));
}
BENCHMARK(windowsalone)->Arg(31)->Arg(365)->Unit(benchmark::kMillisecond);

/// The ten-minute waters of a year of every port by themselves, on one processor; and as the whole predictions have
/// them.
void yearofwaters(benchmark::State& state) {
    const bool whole = state.range(0) != 0;
    Prediction prediction;
    for (auto _ : state)
        for (std::int16_t number = 1; number <= 365; ++number) {
            const TideDay day{2026, monthof(newyear + std::chrono::days(number - 1)), number, 0};
            const auto span = spanofday(day);
            for (const HarmonicRecord& record : ports()) {
                if (whole) {
                    predictday({record, 1, 0, 1}, day, prediction);
                    findturningpoints(prediction);
                    benchmark::DoNotOptimize(prediction);
                } else {
                    benchmark::DoNotOptimize(daywaters({record, 1, 0, 1}, day, span));
                }
            }
        }
}
BENCHMARK(yearofwaters)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

/// A year of every port on all processors: wanted under 3 s.
void allports(benchmark::State& state) {
    for (auto _ : state) {
        std::atomic<std::size_t> next = 0;
        std::vector<std::future<void>> workers;
        for (unsigned i = 0; i < std::max(1U, std::thread::hardware_concurrency()); ++i)
            workers.push_back(std::async(std::launch::async, [&next] {
                for (std::size_t port = next++; port < ports().size(); port = next++)
                    benchmark::DoNotOptimize(watersof(ports()[port], newyear, 365));
            }));
        for (std::future<void>& worker : workers)
            worker.get();
    }
}
BENCHMARK(allports)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

int main(int argc, char** argv) {
    if (ports().empty()) {
        std::fputs("benchplans: the area UK.hc doesn't lie beside it\n", stderr);
        return 2;
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
