#pragma once

#include "charts/cartesian/CartesianChart.h"
#include "charts/cartesian/CartesianLayout.h"
#include "charts/curve/CurveDataView.h"
#include "charts/curve/CurveProp.h"
#include "charts/curve/CurveTrace.h"
#include "foundation/ChartPart.h"
#include "foundation/ChartText.h"
#include "foundation/Export.h"
#include "penlode/IGraphicsEngine.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace millichart {

class PartSink;

/// A curve's sample in the legend is twice as wide as its item is high.
inline constexpr float kLegendSampleFactor = 2.0F;

/// Which labels stand below a line chart, and where.
enum class HorLabels {
    Spread,  ///< the host's, evenly
    AtTimes, ///< the host's, at their times
    Made     ///< the chart's own, at round dates
};

/// Where everything of a line chart stands, in mm of the page.
struct CurveLayout : CartesianLayout {
    HorLabels LabelsBelow = HorLabels::Spread;
    std::vector<std::int32_t> HorLabelTimes;   ///< of those that are not spread, ascending
    std::vector<std::string> HorLabelTexts;    ///< parallel to the times
    std::vector<penlode::RectF> HorLabelRects; ///< one per label, or none
    std::vector<penlode::SizeF> HorLabelSizes; ///< parallel to the rectangles
    std::vector<CurveTrace> Curves;            ///< one per list of values
};

/// The line chart: curves of values over whole-number times, on a linear or logarithmic value axis.
///
///     CBasicCurve chart;
///     chart.SetCurveProp(prop);
///     chart.SetCurveData({{12.0, 30.0, 18.0}}, {{0, 10, 15}});
///     chart.SetHorAxisLabel({"2000", "2015"});
///     chart.InitializeValueRange(30.0);
///     chart.SetLocation({20.0F, 20.0F});
///     chart.Layout();
///     chart.Draw(&engine);
///
/// Setters only store; Layout computes every point from what is stored; Draw, the shapes and the texts show
/// the last layout with the record's present looks and the present labels. Copies share the value axis and
/// nothing else. Lists may be shorter than they should be: what is missing is not drawn, or looks as
/// CurvePlotProp says. A line breaks at a point without a finite place, such as 0 on a logarithmic axis, and
/// has no marker there. If all times are equal, all points stand at the plot's left edge.
class MILLICHART_API CBasicCurve : public CCartesianChart {
public:
    CBasicCurve() : CCartesianChart(false) {}

    /// Copies the record. True when that chose another scale for the values: the new axis is `PlotHeight`
    /// long and has no range yet. An axis that stays keeps its range and its length, whatever the plot's
    /// height is now.
    bool SetCurveProp(const CurveProp& prop);

    const CurveProp& GetCurveProp() const { return m_prop; }

    /// One list a curve; value j of a curve is at its time j, and a value without a time is not there. Times
    /// need no order. A value below kCurveNullThreshold is null. Lists that are handed over are not copied.
    void SetCurveData(std::vector<std::vector<double>> values, std::vector<std::vector<std::int32_t>> times);

    /// Curves in lists that the caller keeps, alive and as they are, for as long as this chart or a copy
    /// shows a layout of them. Nothing is copied; the times are looked through once here, and values when
    /// they are drawn. In the place of any lists that were handed over.
    void SetCurveDataView(std::vector<CurveDataView> curves);

    /// One list a curve, as handed over, whether or not they have been laid out since.
    const std::vector<std::vector<double>>& GetCurveValue() const { return HandedOver().Values; }

    /// One list a curve, as handed over; the lists need not be as long as those of the values.
    const std::vector<std::vector<std::int32_t>>& GetCurveTime() const { return HandedOver().Times; }

    /// The curves as set, whoever keeps their lists; good until other ones are.
    const std::vector<CurveDataView>& GetCurveDataView() const { return m_data; }

    /// Narrow texts (GBK; CStringUtil::Utf8ToAnsi), spread evenly over the plot's width whatever the times
    /// are, and shown if there are two or more; or at times of their own (see SetHorAxisLabelTimes).
    void SetHorAxisLabel(std::vector<std::string> labels) { m_labels = std::move(labels); }

    /// As set, whether or not they have been laid out since.
    const std::vector<std::string>& GetHorAxisLabel() const { return m_labels; }

    /// With TimeLabels::AtTimes label j stands at time j of these, in the unit of the data's times. A label
    /// without a time, a time without a label, and one outside the data's times is not there. With a unit of
    /// dates the chart has labels of its own.
    void SetHorAxisLabelTimes(std::vector<std::int32_t> times) { m_labelTimes = std::move(times); }

    /// As set, whether or not they have been laid out since.
    const std::vector<std::int32_t>& GetHorAxisLabelTimes() const { return m_labelTimes; }

    /// With no curves, everything is empty at the location.
    void Layout();

    /// Everything, the legend included.
    penlode::RectF GetPositionAll() const { return m_layout.Whole; }

    const CurveLayout& GetLayout() const { return m_layout; }

    /// Nothing on a null engine, or without curves. A line's call is made even for a run of no or one point,
    /// which draws nothing.
    void Draw(penlode::IGraphicsEngine* engine) const;

    /// Of the last layout, the ascending whole times at which a column of the engine's surface begins under
    /// its present transform: of rows in the order of their times that fall in one, only the first, the
    /// lowest, the highest and the last show, in a line of 65 points or more. None on an engine that is not
    /// this library's, where columns do not stand upright, and for times beyond 32 bits.
    std::vector<std::int32_t> DataColumns(const penlode::IGraphicsEngine& engine) const;

    /// The curves as they would be drawn now: those of the last layout that have a name.
    /// Lists of the points are made for it.
    std::vector<CurveShape> GetShapes() const;

    /// The texts as they would be drawn now: labels and caption of the value axis and of the other, the
    /// chart's caption, the legend's names.
    void VisitTexts(const TextVisitor& visit) const;

    /// GetPositionAll with the texts that reach out of it.
    penlode::RectF InkExtent() const { return InkExtentOf(*this); }

    /// The part at a point of the page, in mm, or of several the one that is drawn last; where there is none,
    /// the nearest within `reach`, before the plot is. Nothing beside the chart, or where a number is none.
    /// Of a curve, the nearest of its points that is there is hit.
    std::optional<PlacedPart> HitTest(penlode::PointF point, float reach = kUsualReach) const;

    /// All parts that can be seen, in the order in which they are drawn; of a
    /// curve, the curve and not its points.
    void VisitParts(const PartVisitor& visit) const;

protected:
    /// The chart's caption, which runs across; the time axis's is measured in CalcHorAxisSize.
    penlode::SizeF CalcHorCaptionSize() const;
    penlode::SizeF CalcVerCaptionSize() const;
    penlode::SizeF CalcCaptionSize() const;
    penlode::SizeF CalcPlotSize() const;
    penlode::SizeF CalcVerAxisSize();
    penlode::SizeF CalcHorAxisSize();
    /// The labels' largest width and height; (0, 0) when they are not shown or fewer than two.
    penlode::SizeF CalcHorAxisLabelSize();
    void CalcVerAxisLabelText();
    void CalcVerAxisScale();
    void CalcHorAxisScale();
    void CalcVerAxisLabelRect();
    void CalcHorAxisLabelRect();
    void CalcTimeSpan();
    /// The points' places follow from what is kept here, and are found as they are needed.
    void CalcCurvePoint();

    void DrawVerAxis(penlode::IGraphicsEngine* engine) const;
    void DrawHorAxis(penlode::IGraphicsEngine* engine) const;
    void DrawPlot(penlode::IGraphicsEngine* engine) const;
    /// One curve, or one sample in the legend: the line, then a marker at each of `markers` that is not null.
    /// A point without a flag of its own is not null; one that is not finite is left out of both. Widths in
    /// mm, styles as in CurvePlotProp.
    void DrawLine(penlode::IGraphicsEngine* engine, const std::vector<penlode::PointF>& line,
                  const std::vector<penlode::PointF>& markers, const std::vector<bool>& nulls,
                  penlode::Color color, float width, std::int32_t dashStyle, std::int32_t dotStyle,
                  penlode::Color dotColor, float dotWidth, std::int32_t nullStyle) const;
    void DrawLegend(penlode::IGraphicsEngine* engine) const;
    void DrawCaption(penlode::IGraphicsEngine* engine) const;

private:
    /// Lists that were handed over. What a layout shows keeps them.
    struct Lists {
        std::vector<std::vector<double>> Values;
        std::vector<std::vector<std::int32_t>> Times;
    };

    const Lists& HandedOver() const;
    void ListParts(PartSink& sink) const;
    void AddCurves(PartSink& sink) const;
    /// The fewest labels that can be spread from edge to edge.
    static constexpr std::size_t kFewestLabels = 2;

    HorLabels ChooseLabels() const;
    /// The texts and times of labels that are not spread.
    void TakeHorLabels();
    bool HasTimes() const;
    const std::vector<std::string>& HorLabelTexts() const;
    bool ShowsHorLabels() const;
    float Inset() const;
    /// The part of the plot over whose width the times span.
    penlode::RectF TimeArea() const;
    /// Of ticks, labels and lines below the plot; the chart's own are all drawn.
    std::size_t StepOf(std::int32_t step) const;
    void PlaceLegendAndShift();
    void ReadFrame();
    /// Everything but the points.
    void MoveFrame(penlode::PointF by);
    void VisitHorLabels(const TextVisitor& visit) const;
    void DrawHorGrids(penlode::IGraphicsEngine& engine) const;
    void DrawVerGrids(penlode::IGraphicsEngine& engine) const;
    void DrawSample(penlode::IGraphicsEngine& engine, std::size_t index, const penlode::RectF& item) const;

    CurveProp m_prop;
    std::shared_ptr<const Lists> m_lists; ///< null without any
    std::vector<CurveDataView> m_data;    ///< of those lists, or of the caller's
    std::vector<std::string> m_labels;
    std::vector<std::int32_t> m_labelTimes;
    CurveLayout m_layout;
    TimeSpan m_timeSpan;
};

} // namespace millichart
