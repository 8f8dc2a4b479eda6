// What charts draw by their records alone is held by thousands of random ones: documents and hosts rely on
// it.
#include "support/Fingerprint.h"
#include "support/RandomCharts.h"

#include <gtest/gtest.h>

using namespace millichart;

namespace {

constexpr std::uint32_t kCharts = 2000;
constexpr std::uint32_t kBatch = 50;

/// The fingerprints of batches of charts, each on a line that begins with its first seed; it is of that seed
/// and the 49 after it. Every other chart is a moderate one.
template <class Chart> std::string Fingerprints(Chart (*random)(std::uint32_t, Variety)) {
    std::string lines;
    for (std::uint32_t first = 0; first < kCharts; first += kBatch) {
        Fingerprint batch;
        for (std::uint32_t seed = first; seed < first + kBatch; ++seed) {
            Chart chart = random(seed, seed % 2 == 0 ? Variety::Full : Variety::Moderate);
            chart.Layout();
            penlode::CRecordingEngine engine;
            chart.Draw(&engine);
            batch.Add(engine.Calls());
            batch.Add(chart.GetPositionAll());
        }
        lines += std::to_string(first) + ": " + batch.Text() + "\n";
    }
    return lines;
}

} // namespace

TEST(ClassicalDrawing, OfPiesStays) {
    ExpectKeptFingerprints("random-pies", Fingerprints(RandomPie));
}

TEST(ClassicalDrawing, OfHalfPiesStays) {
    ExpectKeptFingerprints("random-half-pies", Fingerprints(RandomHalfPie));
}

TEST(ClassicalDrawing, OfTwoHalfPiesStays) {
    ExpectKeptFingerprints("random-two-half-pies", Fingerprints(RandomHalfPieHalfPie));
}

TEST(ClassicalDrawing, OfBarsOnAHalfPieStays) {
    ExpectKeptFingerprints("random-bars-on-a-half-pie", Fingerprints(RandomHalfPieHistogram));
}

TEST(ClassicalDrawing, OfBarsStays) {
    ExpectKeptFingerprints("random-bars", Fingerprints(RandomHistogram));
}

TEST(ClassicalDrawing, OfCurvesStays) {
    ExpectKeptFingerprints("random-curves", Fingerprints(RandomCurve));
}
