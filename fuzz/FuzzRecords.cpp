#include "millichart.h"
#include "penlode/cairo/GraphicsEngine.h"
#include "penlode/recording/RecordingEngine.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

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

void DrawPie(penlode::ISerialize& stream) {
    PieProp prop;
    CPiePropSerialize::SerializePieProp(stream, prop);
    CBasicPie chart;
    chart.SetPieProp(prop);
    chart.SetComponentValue({3, 0, 1.5, 2});
    chart.Layout();
    Draw(chart);
}

void DrawHalfPieHalfPie(penlode::ISerialize& stream) {
    HalfPieHalfPieProp prop;
    CHalfPieHalfPiePropSerialize::SerializeHalfPieHalfPieProp(stream, prop);
    CBasicHalfPieHalfPie chart;
    chart.SetHalfPieHalfPieProp(prop);
    chart.SetComponentValue({3, 0, 1.5}, {2, 4});
    chart.Layout();
    Draw(chart);
}

void DrawHalfPieHistogram(penlode::ISerialize& stream) {
    HalfPieHistogramProp prop;
    CHalfPieHistogramPropSerialize::SerializeHalfPieHistogramProp(stream, prop);
    CBasicHalfPieHistogram chart;
    chart.SetHalfPieHistogramProp(prop);
    chart.SetComponentValue({3, 0, 1.5}, {{2, 4}, {7, 1}}, 7);
    chart.Layout();
    Draw(chart);
}

void DrawHistogram(penlode::ISerialize& stream) {
    HistogramProp prop;
    CHistogramPropSerialize::SerializeHistogramProp(stream, prop);
    CBasicHistogram chart;
    chart.SetHistogramProp(prop);
    chart.InitializeValueRange(12);
    chart.SetComponentValue({{3, 12, -1}, {0, 5, 0.5}});
    chart.SetGroupName({"a", "b"});
    chart.Layout();
    Draw(chart);
}

void DrawCurve(penlode::ISerialize& stream) {
    CurveProp prop;
    CCurvePropSerialize::SerializeCurveProp(stream, prop);
    CBasicCurve chart;
    chart.SetCurveProp(prop);
    chart.InitializeValueRange(12);
    chart.SetCurveData({{3, 12, -9999999.0, 4}, {0.5, 5}}, {{1, 2, 3, 4}, {4, -7}});
    chart.SetHorAxisLabel({"a", "b", "c"});
    chart.Layout();
    Draw(chart);
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
