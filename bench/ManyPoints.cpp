#include "Series.h"
#include "penlode/GraphicsEngine.h"

#include <cstdlib>
#include <cstring>
#include <ctime>
#include <fstream>
#include <sys/resource.h>

/// `many-points borrowed|handed COUNT FILE`: a process that draws one line of so many points and writes into
/// the file how long that took of the processor, in milliseconds from its lists to the PNG, and the most
/// memory that it had, in bytes.
namespace {

bench::Series Walk(std::size_t count) {
    bench::Series walk{std::vector<double>(count), std::vector<std::int32_t>(count)};
    std::uint32_t state = 1;
    double value = 0.5;
    for (std::size_t i = 0; i < count; ++i) {
        state = state * 1664525U + 1013904223U;
        value += (state / 4294967296.0 - value) * 1e-4;
        walk.Values[i] = value;
        walk.Times[i] = static_cast<std::int32_t>(i);
    }
    return walk;
}

double Milliseconds() {
    return static_cast<double>(std::clock()) * 1e3 / CLOCKS_PER_SEC;
}

double MostBytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) * 1024.0;
}

} // namespace

int main(int count, char** arguments) {
    if (count != 4) {
        return 2;
    }
    bench::Series walk = Walk(static_cast<std::size_t>(std::atoll(arguments[2])));
    const double begin = Milliseconds();
    millichart::CurveProp prop = bench::BareRecord();
    prop.Plot.CurveName = {"curve"};
    prop.Plot.CurveWidth = {1.5F};
    const bool isBorrowed = std::strcmp(arguments[1], "borrowed") == 0;
    std::vector<bench::Series> handed;
    if (!isBorrowed) {
        handed.push_back(std::move(walk));
    }
    millichart::CBasicCurve chart = bench::ChartOf(std::move(handed), prop);
    if (isBorrowed) {
        chart.SetCurveDataView(
            {{std::span<const double>(walk.Values), std::span<const std::int32_t>(walk.Times)}});
    }
    chart.Layout();
    const auto engine = bench::PictureEngine();
    chart.Draw(engine.get());
    const bool isDrawn = !engine->EncodePng().empty();
    std::ofstream(arguments[3]) << Milliseconds() - begin << ' ' << MostBytes() << '\n';
    return isDrawn ? 0 : 1;
}
