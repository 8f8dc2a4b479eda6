#pragma once

#include "charts/cartesian/CartesianChart.h"
#include "charts/cartesian/CartesianLayout.h"
#include "charts/histogram/HistogramProp.h"
#include "charts/reading/ValueLabels.h"
#include "foundation/ChartPart.h"
#include "foundation/ChartText.h"
#include "foundation/Export.h"
#include "penlode/Geometry.h"
#include "penlode/IGraphicsEngine.h"

#include <optional>
#include <vector>

namespace millichart {

class PartSink;

/// Where everything of a bar chart stands, in mm of the page.
struct HistogramLayout : CartesianLayout {
    std::vector<penlode::RectF> GroupNameRects; ///< one per group, or none
    std::vector<penlode::SizeF> GroupNameSizes; ///< parallel to the rectangles
    /// One list a group, one bar a component that has both a name and a value. A negative value's bar has a
    /// negative height unless bars stand on 0, that of a value without a place one that is not finite.
    std::vector<std::vector<penlode::RectF>> ComponentRects;
    float ComponentWidth = -1.0F; ///< of one bar, 0 if none has a name; -1 before a layout with groups
    float GroupGap = -1.0F;       ///< between groups, as it came out; -1 before a layout with groups
    /// Of bars that stand on the value 0: its place on the page, or that of the axis's end that is nearest.
    std::optional<float> BaseLine;
    /// Where labels stand that were made to fit: parallel to the bars, or none.
    std::vector<std::vector<PlacedValue>> ValueLabels;
};

/// A bar as it is drawn: its front, in mm of the page. A negative value's has a negative height.
struct BarShape {
    std::size_t Group = 0;
    std::size_t Component = 0; ///< of the group
    penlode::RectF Front;
    penlode::Color Fill; ///< of the front
    millichart::Hatch Hatch = millichart::Hatch::None;
};

/// All bars, in the order in which they are drawn. The top and the right side of each join its front to the
/// same rectangle moved by `Depth`, which is (0, 0) for flat bars.
struct BarShapes {
    penlode::PointF Depth;
    std::vector<BarShape> Bars;
};

/// The bar chart: a cluster of bars, or one stacked bar, a group, over a linear or logarithmic value axis.
///
///     CBasicHistogram chart;
///     chart.SetHistogramProp(prop);
///     chart.SetComponentValue({{12.0, 30.0}, {18.0, 25.0}});
///     chart.InitializeValueRange(30.0);
///     chart.SetLocation({20.0F, 20.0F});
///     chart.Layout();
///     chart.Draw(&engine);
///
/// Setters only store; Layout computes every rectangle from what is stored; Draw, the shapes and the texts
/// show the last layout with the record's present looks and the present values and names. Copies share the
/// value axis and nothing else. Lists may be shorter than they should be: what is missing is not drawn. A
/// segment of a stack without a finite place is not drawn and carries none of the others away.
class MILLICHART_API CBasicHistogram : public CCartesianChart {
public:
    CBasicHistogram() : CCartesianChart(true) {}

    /// Copies the record. True when that chose another scale for the values: the new axis is `PlotHeight`
    /// long and has no range yet. An axis that stays keeps its range and its length, whatever the plot's
    /// height is now.
    bool SetHistogramProp(const HistogramProp& prop);

    const HistogramProp& GetHistogramProp() const { return m_prop; }

    /// One list a group, one value a component.
    void SetComponentValue(const std::vector<std::vector<double>>& values) { m_values = values; }

    /// As set, whether or not they have been laid out since.
    const std::vector<std::vector<double>>& GetComponentValue() const { return m_values; }

    /// Narrow texts (GBK; CStringUtil::Utf8ToAnsi), one a group; shown only if there are as many as groups.
    void SetGroupName(const std::vector<std::string>& names) { m_groupNames = names; }

    /// As set, whether or not they have been laid out since.
    const std::vector<std::string>& GetGroupName() const { return m_groupNames; }

    /// With no groups, everything is empty at the location.
    void Layout();

    /// Everything, the legend included.
    penlode::RectF GetPositionAll() const { return m_layout.Whole; }

    const HistogramLayout& GetLayout() const { return m_layout; }

    /// Nothing on a null engine, or without groups.
    void Draw(penlode::IGraphicsEngine* engine) const;

    /// The bars as they would be drawn now: those that have a name, a colour and a value with a place. 0 has
    /// none on a logarithmic axis.
    BarShapes GetShapes() const;

    /// The texts as they would be drawn now: labels and caption of the value axis, names and caption of the
    /// group axis, labels of the bars, the chart's caption, the legend's names.
    void VisitTexts(const TextVisitor& visit) const;

    /// GetPositionAll with the texts that reach out of it, such as labels beside the last bar.
    penlode::RectF InkExtent() const { return InkExtentOf(*this); }

    /// The part at a point of the page, in mm, or of several the one that is drawn last; where there is none,
    /// the nearest within `reach`, before the plot is. Nothing beside the chart, or where a number is none.
    std::optional<PlacedPart> HitTest(penlode::PointF point, float reach = kUsualReach) const;

    /// All parts that can be seen, in the order in which they are drawn.
    void VisitParts(const PartVisitor& visit) const;

protected:
    penlode::SizeF CalcCaptionSize() const;
    penlode::SizeF CalcVerCaptionSize() const;
    penlode::SizeF CalcHorCaptionSize() const;
    penlode::SizeF CalcPlotSize() const;
    penlode::SizeF CalcVerAxisSize();
    penlode::SizeF CalcHorAxisSize();
    void CalcVerAxisLabelText();
    /// The names' largest height; 0 when they are not shown or not as many as the groups.
    float CalcGroupNameSize();
    void CalcComponentWidth();
    void CalcVerAxisScale();
    void CalcHorAxisScale();
    void CalcVerAxisLabelRect();
    void CalcGroupNameRect();
    void CalcConponentRect();
    /// From a bar's front to its back: right and, `dy` being negative, up. (0, 0) for flat bars.
    void Calc3DComponentBackSurfaceOffset(float& dx, float& dy) const;

    void DrawBackground(penlode::IGraphicsEngine* engine) const;
    void DrawVerAxis(penlode::IGraphicsEngine* engine) const;
    void DrawHorAxis(penlode::IGraphicsEngine* engine) const;
    void DrawPlot(penlode::IGraphicsEngine* engine) const;
    void DrawComponent2D(penlode::IGraphicsEngine* engine, const penlode::RectF& bar,
                         penlode::Color color) const;
    void DrawComponent3D(penlode::IGraphicsEngine* engine, const penlode::RectF& bar,
                         penlode::Color color) const;
    void DrawCaption(penlode::IGraphicsEngine* engine) const;

private:
    friend class CBasicHalfPieHistogram;

    void ListParts(PartSink& sink) const;
    void AddHorAxis(PartSink& sink) const;
    void CalcFrame();
    void PlaceLegendAndShift();
    /// What the options ask for once everything stands where the record puts it.
    void Read();
    void ReadFrame();
    void PlaceValueLabels();
    void MoveAll(penlode::PointF by);
    void FindBaseLine();
    float PositionInPlot(double value) const;
    std::vector<penlode::RectF> OnZero(const std::vector<double>& values, float& x) const;
    std::vector<std::size_t> DrawingOrder(std::size_t group, std::size_t bars) const;
    /// The bars of one group, whose left edge is at `x`; moves `x` to the group's right edge.
    std::vector<penlode::RectF> SideBySide(const std::vector<double>& values, float& x) const;
    std::vector<penlode::RectF> Stacked(const std::vector<double>& values, float& x) const;

    bool IsEmpty() const { return m_layout.ComponentRects.empty(); }

    bool ShowsGroupNames() const;
    template <class Visit> void VisitFronts(const Visit& visit) const;
    template <class Visit> void VisitBars(const Visit& visit) const;
    std::string ComponentInfo(std::size_t group, std::size_t component) const;
    std::vector<Fill> FillsOfBars() const;
    void VisitGroupNames(const TextVisitor& visit) const;
    void VisitBarLabels(const TextVisitor& visit) const;
    void VisitFittedLabels(const TextVisitor& visit) const;
    void DrawBaseLine(penlode::IGraphicsEngine& engine) const;
    void DrawFlatBackground(penlode::IGraphicsEngine& engine) const;
    void DrawFlatGrids(penlode::IGraphicsEngine& engine) const;
    void DrawDeepBackground(penlode::IGraphicsEngine& engine) const;
    void DrawDeepWalls(penlode::IGraphicsEngine& engine, const penlode::RectF& back) const;
    void DrawDeepGrids(penlode::IGraphicsEngine& engine, penlode::PointF depth) const;

    HistogramProp m_prop;
    std::vector<std::vector<double>> m_values;
    std::vector<std::string> m_groupNames;
    HistogramLayout m_layout;
};

} // namespace millichart
