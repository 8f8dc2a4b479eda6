#pragma once

#include "charts/histogram/BasicHistogram.h"
#include "charts/pie/BasicHalfPie.h"
#include "charts/pie/HalfPieHistogramProp.h"
#include "foundation/ChartPart.h"

#include <optional>

namespace millichart {

class PartSink;

/// Slices and bars, in the order in which they are drawn.
struct HalfPieHistogramShapes {
    PieShapes HalfPie;
    BarShapes Histogram;
};

/// A half pie, usually a lower one, with bars standing on the line through its centre:
///
///          | |  |
///        | | |  | |     the bar chart, centred over the pie's centre
///     ---------------
///      \           /    the half pie
///        `-.___.-'
///
/// Setters only store; Layout hands everything to the half pie and the bar chart and lays them out; Draw and
/// the getters read the last layout. Copies share the bar chart's value axis and nothing else.
class MILLICHART_API CBasicHalfPieHistogram {
public:
    /// What the chart does so that it reads well; at first nothing. To be followed by a Layout, as the places
    /// that the last one found are not those of other options.
    void SetOptions(const ChartOptions& options) { m_options = options; }

    const ChartOptions& GetOptions() const { return m_options; }

    /// Copies the record and, in the copy, switches off what would stand round the bars: caption, axes with
    /// their labels and captions, grids. The plot's background, the bars with their labels and the legend
    /// stay as given. An upper half overlaps the bars, unless options keep its labels apart: the bars then
    /// stand on top of it.
    void SetHalfPieHistogramProp(const HalfPieHistogramProp& prop);

    const HalfPieHistogramProp& GetHalfPieHistogramProp() const { return m_prop; }

    /// The half pie's values; the bars', one list a group; and the largest value that the bars' axis has to
    /// hold. The axis takes its range from the last, and with RangeStyle::BothEnds from the groups too, at
    /// the first Layout and at any that follows a change of scale, and keeps it otherwise (see
    /// ResetValueRange).
    void SetComponentValue(const std::vector<double>& slices, const std::vector<std::vector<double>>& groups,
                           double largest);

    /// Gives the bars' axis the range of the present largest value. To be called after SetComponentValue, and
    /// before Layout, when new data shall have an axis of their own and not that of the first.
    void ResetValueRange();

    /// The slices', as set, whether or not they have been laid out since.
    const std::vector<double>& GetHalfPieValue() const { return m_slices; }

    /// The bars', one list a group, as set, whether or not they have been laid out since.
    const std::vector<std::vector<double>>& GetHistogramValue() const { return m_groups; }

    /// What the bars' axis was asked to hold; its range may come from an earlier one.
    double GetLargestValue() const { return m_largest; }

    /// The half pie's centre.
    void SetLocation(penlode::PointF location) { m_location = location; }

    penlode::PointF GetLocation() const { return m_location; }

    void Layout();

    /// Half pie, labels, bars and their legend.
    penlode::RectF GetPositionAll() const { return m_whole; }

    /// Both as the last Layout left them.
    const CBasicHalfPie& GetHalfPie() const { return m_halfPie; }

    const CBasicHistogram& GetHistogram() const { return m_histogram; }

    /// The half pie, then the bars over it. Nothing on a null engine.
    void Draw(penlode::IGraphicsEngine* engine) const;

    /// Slices and bars as they would be drawn now.
    HalfPieHistogramShapes GetShapes() const { return {m_halfPie.GetShapes(), m_histogram.GetShapes()}; }

    /// The half pie's labels, then the bar chart's texts, of part 1, as they would be drawn now.
    void VisitTexts(const TextVisitor& visit) const;

    /// GetPositionAll with the texts that reach out of it.
    penlode::RectF InkExtent() const { return InkExtentOf(*this); }

    /// The part at a point of the page, in mm, or of several the one that is drawn last; where there is none,
    /// the nearest within `reach`. Nothing beside the chart, or where a number is none.
    std::optional<PlacedPart> HitTest(penlode::PointF point, float reach = kUsualReach) const;

    /// All parts that can be seen, in the order in which they are drawn; the bar chart's are of part 1.
    void VisitParts(const PartVisitor& visit) const;

    /// The half pie's movable parts; the bar chart's do not move.
    void GetChildPosition(penlode::RectF& pie, std::vector<penlode::RectF>& labels,
                          std::vector<penlode::RectF>& legend) const;
    void SetChildPosition(const penlode::RectF& pie, const std::vector<penlode::RectF>& labels,
                          const std::vector<penlode::RectF>& legend);
    void GetChildOffset(std::vector<penlode::PointF>& labels, std::vector<penlode::PointF>& legend) const;
    void SetChildOffset(const std::vector<penlode::PointF>& labels,
                        const std::vector<penlode::PointF>& legend);

private:
    void ListParts(PartSink& sink) const;
    float BarsBase() const;
    void StandOnTheBase();

    ChartOptions m_options;
    HalfPieHistogramProp m_prop;
    std::vector<double> m_slices;
    std::vector<std::vector<double>> m_groups;
    penlode::PointF m_location;
    double m_largest = 0.0;
    penlode::RectF m_whole;
    CBasicHalfPie m_halfPie;
    CBasicHistogram m_histogram;
};

} // namespace millichart
