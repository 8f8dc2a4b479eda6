#include "charts/reading/LegendSeat.h"
#include "charts/reading/NamesThatFit.h"
#include "charts/reading/SlicesApart.h"
#include "charts/reading/ValueLabels.h"

#include <benchmark/benchmark.h>
#include <cmath>

/// What the rules of reading take on 10,000 labels of a kind, texts being measured by simple arithmetic: at
/// most 10 ms each.
namespace {

using penlode::RectF;
using penlode::SizeF;

constexpr std::size_t kLabels = 10000;
constexpr float kWidth = 200.0F;

std::vector<std::string> Names() {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < kLabels; ++i) {
        names.push_back("name of " + std::to_string(i * 7919 % 1000));
    }
    return names;
}

/// Under a plot that is `width` wide.
void NamesUnderAxis(benchmark::State& state, float width, bool areOnScale) {
    const std::vector<std::string> names = Names();
    std::vector<float> centers;
    for (std::size_t i = 0; i < kLabels; ++i) {
        centers.push_back(width * static_cast<float>(i) / kLabels);
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            millichart::FitNames({names, centers, 0.0F, 0, areOnScale, [](const std::string& text) {
                                      return SizeF{static_cast<float>(text.size()), 4.0F};
                                  }}));
    }
}

/// Bars of every height; in the narrowest cases thousands of labels would be over each other.
void ValuesAtBars(benchmark::State& state, float width, SizeF label, bool areBeside) {
    std::vector<millichart::ValueToPlace> values;
    const float pitch = width / kLabels;
    for (std::size_t i = 0; i < kLabels; ++i) {
        const auto height = static_cast<float>(i * 7919 % 9973) * 0.01F;
        values.push_back({{pitch * static_cast<float>(i), 100.0F - height, pitch * 0.8F, height},
                          label,
                          static_cast<double>(height),
                          false,
                          areBeside});
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(millichart::PlaceValues(values, {0.0F, 0.0F, width, 100.0F}, {}));
    }
}

void LabelsOfSlices(benchmark::State& state, float radius, bool areEqual) {
    std::vector<millichart::SliceLabel> labels;
    for (std::size_t i = 0; i < kLabels; ++i) {
        const double turn = static_cast<double>(i) / kLabels;
        const double share = areEqual ? 1.0 : static_cast<double>(i * 7919 % 9973);
        const double angle = areEqual ? turn * 360.0 : std::pow(turn, 3.0) * 360.0;
        labels.push_back({static_cast<float>(angle), {12.0F, 4.0F}, share});
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(millichart::SlicesApart(
            {{0.0F, 0.0F}, radius, radius * 0.675F, radius * 0.2F, true, true}, 2.0F, true, labels));
    }
}

/// At the side, or above and below; in `room`, a square.
void NamesInLegend(benchmark::State& state, std::int32_t position, float room) {
    millichart::LegendProp prop;
    prop.ShowLegend = 1;
    prop.LegendPos = position;
    const std::vector<std::string> names = Names();
    const RectF plot{0.0F, 0.0F, room, room};
    for (auto _ : state) {
        benchmark::DoNotOptimize(millichart::SeatLegend(prop, names, 1.0F, plot, plot, true));
    }
}

BENCHMARK_CAPTURE(NamesUnderAxis, fitting, kWidth * 1000.0F, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(NamesUnderAxis, turned, kLabels * 8.0F, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(NamesUnderAxis, thinned, kWidth, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(NamesUnderAxis, thinned on a scale, kWidth, true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ValuesAtBars, fitting, kLabels * 10.0F, (SizeF{8.0F, 4.0F}), false)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ValuesAtBars, overlapping, kLabels * 3.0F, (SizeF{8.0F, 4.0F}), false)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ValuesAtBars, crowded, kWidth, (SizeF{8.0F, 4.0F}), false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ValuesAtBars, crowded dots, kWidth, (SizeF{0.1F, 0.1F}), false)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ValuesAtBars, crowded beside, kWidth, (SizeF{8.0F, 4.0F}), true)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(LabelsOfSlices, fitting, 1e5F, true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(LabelsOfSlices, of one share, 50.0F, true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(LabelsOfSlices, of all shares, 50.0F, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(NamesInLegend, at the side, millichart::LegendPosition::RightCenter, 200.0F)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(NamesInLegend, below, millichart::LegendPosition::BottomCenter, 200.0F)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(NamesInLegend, at the side of a wall, millichart::LegendPosition::RightCenter, 1e5F)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(NamesInLegend, below a wall, millichart::LegendPosition::BottomCenter, 1e5F)
    ->Unit(benchmark::kMillisecond);

} // namespace
