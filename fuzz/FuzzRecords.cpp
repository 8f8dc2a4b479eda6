#include "millichart.h"
#include "penlode/cairo/GraphicsEngine.h"
#include "penlode/recording/RecordingEngine.h"

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string_view>
#include <type_traits>

/// A record of one kind from the bytes of a positional stream, in a chart with plain data that is laid out
/// and drawn. The first byte chooses the kind.
namespace {

using namespace millichart;

/// A small picture: what is drawn far out is to be cut off.
void Draw(const auto& chart) {
    penlode::CRecordingEngine recording;
    chart.Draw(&recording);
    const auto picture = penlode::CGraphicsEngine::ForRaster({60, 60}, 40, penlode::kWhite);
    chart.Draw(picture.get());
}

/// `load` reads the chart's record, `take` is the chart's member for it, `handOver` gives the chart its data.
template <class Chart, class Prop, class Result>
void DrawLoaded(penlode::ISerialize& stream, void (*load)(penlode::ISerialize&, std::type_identity_t<Prop>&),
                Result (Chart::*take)(const Prop&), const auto& handOver) {
    Prop prop;
    load(stream, prop);
    Chart chart;
    (chart.*take)(prop);
    handOver(chart);
    chart.Layout();
    Draw(chart);
}

void DrawPie(penlode::ISerialize& stream) {
    DrawLoaded(stream, CPiePropSerialize::SerializePieProp, &CBasicPie::SetPieProp, [](CBasicPie& chart) {
        chart.SetComponentValue({3, 0, 1.5, 2});
    });
}

void DrawHalfPieHalfPie(penlode::ISerialize& stream) {
    DrawLoaded(stream, CHalfPieHalfPiePropSerialize::SerializeHalfPieHalfPieProp,
               &CBasicHalfPieHalfPie::SetHalfPieHalfPieProp, [](CBasicHalfPieHalfPie& chart) {
                   chart.SetComponentValue({3, 0, 1.5}, {2, 4});
               });
}

void DrawHalfPieHistogram(penlode::ISerialize& stream) {
    DrawLoaded(stream, CHalfPieHistogramPropSerialize::SerializeHalfPieHistogramProp,
               &CBasicHalfPieHistogram::SetHalfPieHistogramProp, [](CBasicHalfPieHistogram& chart) {
                   chart.SetComponentValue({3, 0, 1.5}, {{2, 4}, {7, 1}}, 7);
               });
}

void DrawHistogram(penlode::ISerialize& stream) {
    DrawLoaded(stream, CHistogramPropSerialize::SerializeHistogramProp, &CBasicHistogram::SetHistogramProp,
               [](CBasicHistogram& chart) {
                   chart.InitializeValueRange(12);
                   chart.SetComponentValue({{3, 12, -1}, {0, 5, 0.5}});
                   chart.SetGroupName({"a", "b"});
               });
}

void DrawCurve(penlode::ISerialize& stream) {
    DrawLoaded(stream, CCurvePropSerialize::SerializeCurveProp, &CBasicCurve::SetCurveProp,
               [](CBasicCurve& chart) {
                   chart.InitializeValueRange(12);
                   chart.SetCurveData({{3, 12, -9999999.0, 4}, {0.5, 5}}, {{1, 2, 3, 4}, {4, -7}});
                   chart.SetHorAxisLabel({"a", "b", "c"});
               });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    constexpr void (*kDraw[])(penlode::ISerialize&) = {DrawPie, DrawHalfPieHalfPie, DrawHalfPieHistogram,
                                                       DrawHistogram, DrawCurve};
    if (size == 0) {
        return 0;
    }
    penlode::CBinarySerialize stream(std::string_view(reinterpret_cast<const char*>(bytes) + 1, size - 1));
    kDraw[bytes[0] % std::size(kDraw)](stream);
    return 0;
}
