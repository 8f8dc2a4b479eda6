#pragma once

#include "charts/pie/PieLayout.h"
#include "charts/pie/PieProp.h"
#include "foundation/ChartOptions.h"
#include "foundation/ChartText.h"
#include "foundation/Export.h"
#include "foundation/Palette.h"

#include <algorithm>
#include <vector>

namespace millichart {

/// What a pie and a half pie have alike: values, a place, and labels that the user may move.
class MILLICHART_API CSlicedCircle {
public:
    /// What the chart does so that it reads well; at first nothing. To be followed by a Layout, as the places
    /// that the last one found are not those of other options.
    void SetOptions(const ChartOptions& options) { m_options = options; }

    const ChartOptions& GetOptions() const { return m_options; }

    /// One a slice.
    void SetComponentValue(const std::vector<double>& values) { m_values = values; }

    /// As set, whether or not they have been laid out since.
    const std::vector<double>& GetComponentValue() const { return m_values; }

    /// The centre of the full circle, in mm of the page: for a half pie, the middle of its flat side.
    void SetLocation(penlode::PointF location) { m_location = location; }

    penlode::PointF GetLocation() const { return m_location; }

    /// Everything of the last layout together: what can be seen of the circle, labels and legend.
    penlode::RectF GetPositionAll() const { return m_layout.Whole; }

    /// `Pie` is the square of the full circle.
    const PieLayout& GetLayout() const { return m_layout; }

    /// Where the movable parts stand: the square of the full circle and one rectangle per label. `legend` is
    /// left as it is, here and below.
    void GetChildPosition(penlode::RectF& pie, std::vector<penlode::RectF>& labels,
                          std::vector<penlode::RectF>& legend) const;
    /// Where the user moved the labels. Each move is added to the label's offset and shows after the next
    /// Layout; labels that either list lacks stay. The pie does not move.
    void SetChildPosition(const penlode::RectF& pie, const std::vector<penlode::RectF>& labels,
                          const std::vector<penlode::RectF>& legend);
    /// The user's displacements, which every Layout adds.
    void GetChildOffset(std::vector<penlode::PointF>& labels, std::vector<penlode::PointF>& legend) const;
    void SetChildOffset(const std::vector<penlode::PointF>& labels,
                        const std::vector<penlode::PointF>& legend);

protected:
    enum class TitleSide { Above, Below };

    /// Unites `pie` and the labels; of labels that are kept apart, all that their letters cover.
    void TakeWhole(const penlode::RectF& pie, const TextProperty& look);
    /// The whole, and beside it as much room as the options' title will take.
    penlode::RectF WholeUnderTitle() const;
    /// Places the options' title beside everything else of the layout, whose whole it becomes a part of.
    void PlaceTitle(TitleSide side);
    void VisitLabels(const PieLabelProp& label, const TextVisitor& visit) const;
    void VisitTitle(const TextVisitor& visit) const;

    /// What the slices, and the names in a legend, are filled with. For a PieBasicProp or a HalfPieBasicProp.
    template <class Basic> std::vector<Fill> FillsFor(const Basic& basic) const {
        return FillsOf(m_options, basic.ComponentColor,
                       std::max(m_values.size(), basic.ComponentName.size()));
    }

    ChartOptions m_options;
    std::vector<double> m_values;
    penlode::PointF m_location;
    PieLayout m_layout;
    std::vector<penlode::PointF> m_labelOffsets;
};

} // namespace millichart
