#include "kinds/CurveChart.h"

#include "data/CurveData.h"
#include "documents/Fields.h"
#include "kinds/CartesianLayoutToJson.h"
#include "kinds/ExampleDocument.h"
#include "kinds/Palette.h"
#include "kinds/PlotSize.h"
#include "kinds/ValueRange.h"
#include "millichart.h"

#include <algorithm>
#include <cmath>

namespace cli {
namespace {

using millichart::CurveProp;

constexpr const char* kNamesPlace = "property/CurvePlotProp/CurveName";
const std::string kPlot = "property/CurvePlotProp/";
const std::string kHorAxis = "property/CurveHorAxisProp/";

constexpr float kLineWidth = 0.4F;
constexpr float kMarkerWidth = 1.6F;
constexpr std::size_t kMaxLabels = 12;
constexpr std::size_t kManyLabels = 2000;

/// The largest value that is not null. -infinity when there is none.
double LargestOf(const std::vector<std::vector<double>>& curves) {
    double largest = -HUGE_VAL;
    for (const std::vector<double>& values : curves) {
        for (const double value : values) {
            largest = std::max(largest, value);
        }
    }
    return millichart::IsCurveNull(largest) ? -HUGE_VAL : largest;
}

/// 1, 2 or 5 times a power of ten, so that every so many of `count` labels are few enough to read.
std::int32_t ReadableStep(std::size_t count) {
    for (std::int32_t power = 1; power < 1000000000; power *= 10) {
        for (const std::int32_t digit : {1, 2, 5}) {
            if (count / static_cast<std::size_t>(digit * power) < kMaxLabels) {
                return digit * power;
            }
        }
    }
    return 1000000000;
}

Json FigureToJson(const millichart::CurveTrace& curve) {
    Json nulls = Json::array();
    for (std::size_t i = 0; curve.HasNull && i < curve.NullFlags.size(); ++i) {
        if (curve.NullFlags[i]) {
            nulls.push_back(i);
        }
    }
    return {{"points", ListToJson(curve.Points)}, {"nulls", std::move(nulls)}};
}

class CurveChart final : public Chart {
public:
    CurveChart(ChartStream& stream, const DataSource& source) {
        CurveProp prop = LoadProp(stream);
        CurveData data = LoadCurveData(stream, source);
        DropEmptyColumns(data, prop.Plot.CurveName.size());
        m_curves = data.Values.size();
        TakeNames(data, prop.Plot.CurveName, stream.TookDefault(kNamesPlace));
        TakeLooks(stream, prop.Plot);
        if (data.Labels.empty()) {
            data.Labels = TimeLabels(data);
        }
        TakeSteps(stream, data.Labels.size(), prop.HorAxis);
        ForgetUnseen(data.Labels, prop.HorAxis.LabelStep);
        m_chart.SetCurveProp(prop);
        ValueRange(stream, prop.Plot.LogarithmScale != 0, *source.Messages)
            .ApplyTo(m_chart, LargestOf(data.Values));
        LookForValuesOutside(data);
        m_file = data.File;
        m_chart.SetCurveData(std::move(data.Values), std::move(data.Times));
        m_chart.SetHorAxisLabel(std::move(data.Labels));
        m_chart.SetLocation(LoadPoint(stream, "location"));
        m_chart.Layout();
    }

    penlode::RectF Extent() const override { return m_chart.GetPositionAll(); }

    penlode::RectF InkExtent() const override { return m_chart.InkExtent(); }

    void VisitTexts(const millichart::TextVisitor& visit) const override { m_chart.VisitTexts(visit); }

    void Draw(penlode::IGraphicsEngine& engine) const override { m_chart.Draw(&engine); }

    Json Layout() const override {
        const millichart::CurveLayout& layout = m_chart.GetLayout();
        Json json = CartesianLayoutToJson(layout);
        json["horLabelRects"] = ListToJson(layout.HorLabelRects);
        Json curves = Json::array();
        for (const millichart::CurveTrace& curve : layout.Curves) {
            curves.push_back(FigureToJson(curve));
        }
        json["curves"] = std::move(curves);
        return json;
    }

    std::vector<Message> Doubts() const override {
        const millichart::CurvePlotProp& plot = m_chart.GetCurveProp().Plot;
        std::vector<Message> doubts =
            PlotSizeFaults("property/CurvePlotProp", plot.PlotWidth, plot.PlotHeight);
        doubts.insert(doubts.end(), m_doubts.begin(), m_doubts.end());
        if (const std::size_t names = plot.CurveName.size(); names != m_curves) {
            doubts.push_back({"", Severity::Warning, 0, kNamesPlace, Counted(names, "name"),
                              std::to_string(m_curves) + ", one a curve"});
        }
        return doubts;
    }

    Message Emptiness() const override {
        return {m_file,
                Severity::Error,
                0,
                m_file.empty() ? "data/curves" : "",
                "nothing to draw",
                "a curve with values"};
    }

private:
    static CurveProp LoadProp(ChartStream& stream) {
        stream.SetDefaultList("CurveColor", PaletteTexts());
        CurveProp prop;
        millichart::CCurvePropSerialize::SerializeCurveProp(stream, prop, "property");
        return prop;
    }

    /// The document's own names stand, unless the user put other data in its place. Without any, curves are
    /// drawn and have none.
    void TakeNames(const CurveData& data, std::vector<std::string>& names, bool areMissing) {
        if (!data.CurveNames.empty() && (areMissing || names.empty() || data.NamesGoFirst)) {
            names = data.CurveNames;
        } else if (areMissing) {
            names.assign(m_curves, "");
        } else if (!data.File.empty() && !data.CurveNames.empty() && data.CurveNames != names) {
            m_doubts.push_back(OtherNames(kNamesPlace));
        }
    }

    /// Where the document leaves the look of lines open, they can be told apart and seen.
    static void TakeLooks(const ChartStream& stream, millichart::CurvePlotProp& plot) {
        const std::size_t count = plot.CurveName.size();
        if (stream.TookDefault(kPlot + "CurveColor")) {
            plot.CurveColor = PaletteColors(count);
        }
        if (stream.TookDefault(kPlot + "CurveDotColor")) {
            plot.CurveDotColor = plot.CurveColor;
        }
        if (stream.TookDefault(kPlot + "CurveWidth")) {
            plot.CurveWidth.assign(count, kLineWidth);
        }
        if (stream.TookDefault(kPlot + "CurveDotWidth")) {
            plot.CurveDotWidth.assign(count, kMarkerWidth);
        }
    }

    static void TakeSteps(const ChartStream& stream, std::size_t labels, millichart::CurveHorAxisProp& axis) {
        for (const auto& [key, step] : {std::pair("ScaleStep", &axis.ScaleStep),
                                        {"LabelStep", &axis.LabelStep},
                                        {"VerGridStep", &axis.VerGridStep}}) {
            if (stream.TookDefault(kHorAxis + key)) {
                *step = ReadableStep(labels);
            }
        }
    }

    /// Columns that a spreadsheet program added are no curves, unless the document names them. One is left.
    static void DropEmptyColumns(CurveData& data, std::size_t names) {
        const std::size_t least = std::max(names, std::size_t{1});
        for (std::size_t i = 0; i < data.EmptyColumns && data.Values.size() > least; ++i) {
            data.Values.pop_back();
            data.Times.pop_back();
        }
    }

    /// A table of a million rows has as many labels. The chart measures all that it gets, whether a step
    /// passes over them or not, so that thousands are left empty where nobody sees them.
    static void ForgetUnseen(std::vector<std::string>& labels, std::int32_t labelStep) {
        if (labels.size() < kManyLabels || labelStep <= 1) {
            return;
        }
        for (std::size_t i = 0; i < labels.size(); ++i) {
            if (i % static_cast<std::size_t>(labelStep) != 0) {
                labels[i] = std::string();
            }
        }
    }

    void LookForValuesOutside(const CurveData& data) {
        const millichart::CurvePlotProp& plot = m_chart.GetCurveProp().Plot;
        RangeDoubts doubts = RangeDoubts::Of(m_chart, plot.LogarithmScale != 0);
        for (std::size_t curve = 0; curve < data.Values.size(); ++curve) {
            const bool nullsAreZero = curve < plot.NullValueStyle.size() &&
                                      plot.NullValueStyle[curve] != millichart::CurveNullValueStyle::Break;
            for (std::size_t i = 0; i < data.Values[curve].size(); ++i) {
                const double value = data.Values[curve][i];
                const bool isNull = millichart::IsCurveNull(value);
                if (!isNull || nullsAreZero) {
                    doubts.Look(isNull ? 0.0 : value, [&] { return data.PlaceOf(curve, i); });
                }
            }
        }
        const std::vector<Message> outside = doubts.Doubts();
        m_doubts.insert(m_doubts.end(), outside.begin(), outside.end());
    }

    millichart::CBasicCurve m_chart;
    std::size_t m_curves = 0;
    std::string m_file;            ///< of the CSV file that the data come from, or empty
    std::vector<Message> m_doubts; ///< those of the load
};

CurveProp ExampleProp() {
    using namespace millichart;
    CurveProp prop;
    FrameLikeAnExample(prop, "Visitors by month", "thousand");
    prop.HorAxis.HorLabelTextProperty.Font = kExampleFont;
    prop.Plot.ShowEdge = 0;
    // The blank keeps a name off its sample in the legend.
    prop.Plot.CurveName = {" Museum", " Gardens"};
    prop.Plot.CurveColor = PaletteColors(prop.Plot.CurveName.size());
    prop.Plot.CurveWidth = {0.5F, 0.5F};
    prop.Plot.CurveDashStyle = {0, 0};
    prop.Plot.CurveDotStyle = {CurveDotStyle::SolidCircle, CurveDotStyle::SolidSquare};
    prop.Plot.CurveDotColor = prop.Plot.CurveColor;
    prop.Plot.CurveDotWidth = {1.8F, 1.6F};
    prop.Plot.NullValueStyle = {CurveNullValueStyle::Break, CurveNullValueStyle::Break};
    return prop;
}

} // namespace

std::unique_ptr<Chart> LoadCurveChart(ChartStream& stream, const DataSource& source) {
    return std::make_unique<CurveChart>(stream, source);
}

Json CurveExample() {
    const Json months{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
    return ExampleDocument(
        "Visitors by month", SavedRecord(millichart::CCurvePropSerialize::SerializeCurveProp, ExampleProp()),
        {{"curves",
          {{{"times", months}, {"values", {41, 38, 45, 52, 57, 49, 63, 68, 55, 50, 43, 47}}},
           {{"times", months}, {"values", {6, 9, 22, 48, 71, 78, 83, 80, 54, 27, nullptr, 11}}}}},
         {"labels", {"J", "F", "M", "A", "M", "J", "J", "A", "S", "O", "N", "D"}}});
}

} // namespace cli
