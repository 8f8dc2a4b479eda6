#include "Processes.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <fstream>
#include <random>
#include <spawn.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace bench {
namespace {

constexpr int kRuns = 5;
constexpr const char* kMillionRows = "bench-1e6.csv";
constexpr const char* kThousandRows = "bench-1e3.csv";

/// Written row by row: not even the list of values stays in this process's memory.
void WriteRows(const char* file, int count) {
    std::mt19937_64 random(20);
    std::normal_distribution<double> step;
    std::ofstream out(file, std::ios::binary);
    double place = 0.0;
    for (int i = 0; i < count; ++i) {
        place += step(random);
        std::array<char, 32> text{};
        const auto end = std::to_chars(text.data(), text.data() + text.size(), place).ptr;
        out << i << ',';
        out.write(text.data(), end - text.data()) << '\n';
    }
}

/// The file's rows as the lists of a document.
std::string ListsOf(const std::string& csv) {
    std::ifstream in(csv, std::ios::binary);
    std::string times;
    std::string values;
    for (std::string time, value; std::getline(in, time, ',') && std::getline(in, value);) {
        times += (times.empty() ? "" : ",") + time;
        values += (values.empty() ? "" : ",") + value;
    }
    return R"({"curves": [{"times": [)" + times + "], \"values\": [" + values + "]}]}";
}

/// A plot and 5 mm round it: 400 × 300 mm.
std::string WriteDocument(const std::string& file, const std::string& data) {
    std::ofstream(file) << R"({"kind": "curve", "property": {
        "CurveVerAxisProp": {"ShowVerAxis": 0}, "CurveHorAxisProp": {"ShowHorAxis": 0},
        "CurvePlotProp": {"CurveName": ["walk"], "CurveColor": ["#FF000000"], "CurveWidth": [0.375],
                          "PlotWidth": 390, "PlotHeight": 290}},
        "range": {"NaturalValueRange": [-2000, 2000, 500, 100]}, "data": )"
                        << data << "}\n";
    return file;
}

double MillisecondsOf(const timeval& time) {
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
}

using Words = std::vector<std::string>;

ProcessCost RunOnce(Words words) {
    std::vector<char*> arguments;
    for (std::string& word : words) {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);
    pid_t child = 0;
    int status = 0;
    rusage usage{};
    if (posix_spawn(&child, arguments[0], nullptr, nullptr, arguments.data(), environ) != 0 ||
        wait4(child, &status, 0, &usage) != child || status != 0) {
        return {0.0, 0.0};
    }
    return {MillisecondsOf(usage.ru_utime) + MillisecondsOf(usage.ru_stime),
            static_cast<double>(usage.ru_maxrss) * 1024.0};
}

ProcessCost Measure(const Words& words) {
    ProcessCost least = RunOnce(words);
    for (int i = 1; i < kRuns; ++i) {
        const ProcessCost cost = RunOnce(words);
        least = {std::min(least.Milliseconds, cost.Milliseconds), std::min(least.Bytes, cost.Bytes)};
    }
    return least;
}

ProcessCost MeasureCommand(const std::string& document) {
    return Measure({MILLICHART_COMMAND, "draw", document, "-o", document + ".png", "--dpi", "101.6"});
}

std::string CsvDocument(const std::string& csv) {
    return WriteDocument(csv + ".json", "{\"csv\": \"" + csv + "\"}");
}

/// By what the process tells of itself: it first makes the points.
ProcessCost MeasurePoints(const std::string& way, const std::string& count, int runs) {
    const std::string file = "bench-points.txt";
    ProcessCost least{0.0, 0.0};
    for (int i = 0; i < runs; ++i) {
        if (RunOnce({MANY_POINTS, way, count, file}).Bytes == 0.0) {
            return {0.0, 0.0};
        }
        ProcessCost cost{};
        std::ifstream(file) >> cost.Milliseconds >> cost.Bytes;
        least = i == 0 ? cost
                       : ProcessCost{std::min(least.Milliseconds, cost.Milliseconds),
                                     std::min(least.Bytes, cost.Bytes)};
    }
    return least;
}

} // namespace

PointCosts MeasureManyPoints() {
    constexpr int kFewRuns = 3;
    return {MeasurePoints("borrowed", "1000", kFewRuns), MeasurePoints("borrowed", "10000000", kFewRuns),
            MeasurePoints("handed", "10000000", kFewRuns), MeasurePoints("handed", "100000000", 1)};
}

ProcessCosts MeasureProcesses() {
    WriteRows(kMillionRows, 1000000);
    WriteRows(kThousandRows, 1000);
    return {MeasureCommand(CsvDocument(kMillionRows)), MeasureCommand(CsvDocument(kThousandRows)),
            Measure({PARSE_BY_HAND, kMillionRows}),
            MeasureCommand(WriteDocument("bench-1e6-lists.json", ListsOf(kMillionRows)))};
}

} // namespace bench
