#pragma once

#include "charts/curve/CurveProp.h"
#include "charts/histogram/HistogramProp.h"
#include "charts/pie/HalfPieHistogramProp.h"
#include "charts/pie/HalfPieProp.h"
#include "charts/pie/PieProp.h"
#include "documents/ChartData.h"
#include "penlode/Geometry.h"

#include <array>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// What a chart document says of its chart: a plain structure for each kind, with the chart's own record.
/// Records are as documents have them. What a document leaves out and a person would have to count, such as a
/// colour a slice, is completed when the chart is laid out.
namespace millichart {

class LargeCurves;

/// Of a value axis, by one of four; without any it is found from the largest value.
struct ValueRange {
    bool IsFitted = false;         ///< found from the least and the largest value, which fill the plot
    std::optional<double> Largest; ///< is rounded up to a maximum with its steps
    std::optional<std::array<double, 4>> Natural;   ///< of a linear axis: minimum, maximum, step, minor step
    std::optional<std::array<double, 2>> Logarithm; ///< of a logarithmic axis: minimum, maximum

    friend bool operator==(const ValueRange& a, const ValueRange& b) {
        return penlode::HaveEqualMembers<4>(a, b);
    }
};

struct PieDocument {
    PieProp Prop;
    SliceData Data;
    std::vector<penlode::PointF> LabelOffsets;
    penlode::PointF LegendOffset;

    friend bool operator==(const PieDocument& a, const PieDocument& b) {
        return penlode::HaveEqualMembers<4>(a, b);
    }
};

struct HalfPieDocument {
    HalfPieProp Prop;
    SliceData Data;
    std::vector<penlode::PointF> LabelOffsets;

    friend bool operator==(const HalfPieDocument& a, const HalfPieDocument& b) {
        return penlode::HaveEqualMembers<3>(a, b);
    }
};

struct HalfPieHalfPieDocument {
    HalfPieHalfPieProp Prop;
    SliceData First;
    SliceData Second;
    std::vector<penlode::PointF> FirstLabelOffsets;
    std::vector<penlode::PointF> SecondLabelOffsets;

    friend bool operator==(const HalfPieHalfPieDocument& a, const HalfPieHalfPieDocument& b) {
        return penlode::HaveEqualMembers<5>(a, b);
    }
};

struct HalfPieHistogramDocument {
    HalfPieHistogramProp Prop;
    SliceData Slices;
    BarData Bars;
    bool IsFitted = false;         ///< the bars fill the plot, whatever `Largest` says
    std::optional<double> Largest; ///< of the bars' axis; without it that of their values
    std::vector<penlode::PointF> LabelOffsets;

    friend bool operator==(const HalfPieHistogramDocument& a, const HalfPieHistogramDocument& b) {
        return penlode::HaveEqualMembers<6>(a, b);
    }
};

struct HistogramDocument {
    HistogramProp Prop;
    BarData Data;
    ValueRange Range;

    friend bool operator==(const HistogramDocument&, const HistogramDocument&) = default;
};

struct CurveDocument {
    CurveProp Prop;
    CurveData Data;
    ValueRange Range;
    /// Of a table that is too large to be held; then the data are those of its extent.
    std::shared_ptr<LargeCurves> Large = {};

    friend bool operator==(const CurveDocument&, const CurveDocument&) = default;
};

using ChartContent = std::variant<std::monostate, PieDocument, HalfPieDocument, HalfPieHalfPieDocument,
                                  HalfPieHistogramDocument, HistogramDocument, CurveDocument>;

/// A kind of chart, as documents call it.
struct ChartKind {
    const char* Name;
    std::string_view Template; ///< the text of a complete document with data that draws well as it stands
    ChartContent (*Make)();    ///< a new record without data
};

std::span<const ChartKind> ChartKinds();

/// By its name or another that people use, in any case: "pie", "Bar chart", "折线图". UTF-8; null when there
/// is no such kind.
const ChartKind* FindChartKind(std::string_view name);

/// Null for content of no kind.
const ChartKind* KindOf(const ChartContent& content);

/// All kinds, for messages: "pie", "curve"
std::string ChartKindNames();

/// The same, and what `found`, which is none of them, was probably meant to be.
std::string ExpectedKind(const std::string& found);

} // namespace millichart
