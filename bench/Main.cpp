#include "Suite.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <limits>
#include <malloc.h>
#include <map>

/// Runs every way several times, in random order, and prints how they compare. Times are the processor's, the
/// shortest of each way: what else the machine does makes a run longer, never shorter.
namespace {

class ShortestTimes final : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.run_type == Run::RT_Iteration && !run.error_occurred) {
                const double time = run.GetAdjustedCPUTime();
                const auto [found, isNew] = m_times.try_emplace(run.run_name.function_name, time);
                found->second = std::min(found->second, time);
            }
        }
    }

    /// In milliseconds; 0 for a way that did not run.
    double Of(const std::string& way) const {
        const auto found = m_times.find(way);
        return found == m_times.end() ? 0.0 : found->second;
    }

private:
    std::map<std::string, double> m_times;
};

void Register(const bench::Suite& suite) {
    for (const bench::NamedWay& way : suite.Ways) {
        const auto run = [make = way.Run](benchmark::State& state) {
            for (auto _ : state) {
                benchmark::DoNotOptimize(make());
            }
        };
        benchmark::RegisterBenchmark(way.Name.c_str(), run)->Unit(benchmark::kMillisecond);
    }
}

void PrintTable(const bench::Suite& suite, const ShortestTimes& times) {
    std::printf("\n%-52s %10s %10s %7s %7s\n", "", "ms", "against", "ratio", "bound");
    int above = 0;
    for (const bench::Comparison& c : suite.Comparisons) {
        const double measured = times.Of(c.Measured);
        const double reference = times.Of(c.Reference);
        if (measured == 0.0 || reference == 0.0) {
            continue;
        }
        const bool isAbove = measured > c.Bound * reference;
        above += isAbove ? 1 : 0;
        std::printf("%-52s %10.2f %10.2f %7.2f %7.2f%s\n", c.Name.c_str(), measured, reference,
                    measured / reference, c.Bound, isAbove ? "  above" : "");
    }
    std::printf("%d of %zu above their bound\n", above, suite.Comparisons.size());
}

} // namespace

int main(int argc, char** argv) {
    // A warm process: whether the C library gives megabytes back to the system between two pictures, which
    // then clears them page by page, would depend on all that ran before.
    mallopt(M_MMAP_MAX, 0);
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
    std::vector<std::string> defaults{"bench", "--benchmark_repetitions=7", "--benchmark_min_time=0.1",
                                      "--benchmark_enable_random_interleaving=true"};
    std::vector<char*> arguments;
    for (std::string& argument : defaults) {
        arguments.push_back(argument.data());
    }
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) {
        return 2;
    }
    bench::Suite suite;
    bench::AddLineCases(suite);
    bench::AddPieCases(suite);
    bench::AddCurveCases(suite);
    Register(suite);
    ShortestTimes times;
    benchmark::RunSpecifiedBenchmarks(&times);
    PrintTable(suite, times);
    return 0;
}
