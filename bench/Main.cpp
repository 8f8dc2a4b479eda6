#include "Processes.h"
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

    /// Of one of its parts, in milliseconds; 0 for a way that did not run.
    double Of(const bench::Suite& suite, const std::string& name) const {
        const auto found = m_times.find(name);
        const auto way = std::find_if(suite.Ways.begin(), suite.Ways.end(),
                                      [&](const bench::NamedWay& each) { return each.Name == name; });
        return found == m_times.end() ? 0.0 : found->second / static_cast<double>(way->Parts);
    }

private:
    std::map<std::string, double> m_times;
};

void Register(const bench::Suite& suite) {
    for (const bench::NamedWay& way : suite.Ways) {
        const auto run = [prepare = way.Prepare, memory = way.Memory](benchmark::State& state) {
            for (auto _ : state) {
                state.PauseTiming();
                const bench::Way make = prepare();
                if (memory == bench::Memory::New) {
                    malloc_trim(0);
                }
                state.ResumeTiming();
                benchmark::DoNotOptimize(make());
            }
        };
        benchmark::RegisterBenchmark(way.Name.c_str(), run)->Unit(benchmark::kMillisecond);
    }
}

std::string TimeText(double milliseconds) {
    char text[32];
    if (milliseconds < 0.1) {
        std::snprintf(text, sizeof text, "%.0f ns", milliseconds * 1e6);
    } else {
        std::snprintf(text, sizeof text, "%.2f ms", milliseconds);
    }
    return text;
}

/// Prints a line; 1 if it is above its bound.
int PrintLine(const std::string& name, double measured, double reference, double bound) {
    const bool isAbove = measured > bound * reference;
    std::printf("%-52s %11s %11s %7.2f %7.2f%s\n", name.c_str(), TimeText(measured).c_str(),
                TimeText(reference).c_str(), measured / reference, bound, isAbove ? "  above" : "");
    return isAbove ? 1 : 0;
}

int PrintMemory(const char* name, double ratio, double bound) {
    std::printf("%-52s %11s %11s %7.2f %7.2f%s\n", name, "", "", ratio, bound,
                ratio > bound ? "  above" : "");
    return ratio > bound ? 1 : 0;
}

int PrintBytes(const char* name, double bytes, double bound) {
    std::printf("%-52s %9.1f B %11s %7s %7.0f%s\n", name, bytes, "", "", bound,
                bytes > bound ? "  above" : "");
    return bytes > bound ? 1 : 0;
}

/// The command beside a process that reads and parses alone. What the picture takes comes on top of that, so
/// it is taken off first.
int PrintProcess(const bench::ProcessCosts& costs, double picture) {
    constexpr double kMaxBytes = 100.0;
    if (picture == 0.0) {
        return 0;
    }
    if (costs.Million.Bytes == 0.0 || costs.Thousand.Bytes == 0.0 || costs.Parsing.Bytes == 0.0 ||
        costs.Json.Bytes == 0.0) {
        std::printf("a process failed\n");
        return 1;
    }
    const double bytes = (costs.Million.Bytes - costs.Thousand.Bytes) / (1e6 - 1e3);
    return PrintBytes("command, CSV of 1e6 rows, memory of a point", bytes, kMaxBytes) +
           PrintLine("command, CSV of 1e6 rows, less the picture / parsed",
                     costs.Million.Milliseconds - picture, costs.Parsing.Milliseconds, 3.0) +
           PrintLine("command, JSON of 1e6 rows, time / CSV", costs.Json.Milliseconds,
                     costs.Million.Milliseconds, 2.0) +
           PrintMemory("command, JSON of 1e6 rows, memory / CSV", costs.Json.Bytes / costs.Million.Bytes,
                       2.0);
}

int PrintPoints(const bench::PointCosts& costs) {
    constexpr double kPoints = 1e7;
    constexpr double kData = sizeof(double) + sizeof(std::int32_t);
    if (costs.Few.Bytes == 0.0 || costs.Borrowed.Bytes == 0.0 || costs.Handed.Bytes == 0.0 ||
        costs.Most.Bytes == 0.0) {
        std::printf("a process with many points failed\n");
        return 1;
    }
    const auto perPoint = [&costs](const bench::ProcessCost& cost, double points) {
        return (cost.Bytes - costs.Few.Bytes) / points;
    };
    return PrintBytes("point of 1e7, borrowed, memory beside the data",
                      perPoint(costs.Borrowed, kPoints) - kData, 2.0) +
           PrintBytes("point of 1e7, handed over, memory in all", perPoint(costs.Handed, kPoints), 20.0) +
           PrintBytes("point of 1e8, handed over, memory in all", perPoint(costs.Most, 10.0 * kPoints),
                      20.0) +
           PrintLine("line 1e8 / 1e7, handed over, PNG", costs.Most.Milliseconds, costs.Handed.Milliseconds,
                     12.0);
}

void PrintTable(const bench::Suite& suite, const bench::ProcessCosts& costs, const bench::PointCosts& points,
                const ShortestTimes& times) {
    std::printf("\n%-52s %11s %11s %7s %7s\n", "", "time", "against", "ratio", "bound");
    int above = 0;
    for (const bench::Comparison& c : suite.Comparisons) {
        const double measured = times.Of(suite, c.Measured);
        const double reference = times.Of(suite, c.Reference);
        if (measured > 0.0 && reference > 0.0) {
            above += PrintLine(c.Name, measured, reference, c.Bound);
        }
    }
    if (times.Of(suite, "line 1e7 walk, PNG") > 0.0) {
        above += PrintPoints(points);
    }
    above += PrintProcess(costs, times.Of(suite, "line 1e6 walk, PNG"));
    std::printf("%d above their bound\n", above);
}

} // namespace

int main(int argc, char** argv) {
    // Whether the C library gives megabytes back to the system between two pictures would depend on all that
    // ran before, so it keeps them.
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
    const bench::ProcessCosts costs = bench::MeasureProcesses();
    const bench::PointCosts points = bench::MeasureManyPoints();
    bench::Suite suite;
    bench::AddLineCases(suite);
    bench::AddLayoutCases(suite);
    bench::AddPieCases(suite);
    bench::AddBarCases(suite);
    bench::AddCurveCases(suite);
    Register(suite);
    ShortestTimes times;
    benchmark::RunSpecifiedBenchmarks(&times);
    PrintTable(suite, costs, points, times);
    return 0;
}
