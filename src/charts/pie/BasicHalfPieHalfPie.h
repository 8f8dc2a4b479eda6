#pragma once

#include "charts/pie/BasicHalfPie.h"
#include "foundation/ChartPart.h"

#include <optional>

namespace millichart {

class PartSink;

/// Stands between the entries of the two halves in one list. No label stands so far off the page.
inline constexpr penlode::PointF kHalvesSeparator{-99999.0F, -99999.0F};

/// Both halves' slices, in the order in which they are drawn.
struct HalfPieHalfPieShapes {
    PieShapes First;
    PieShapes Second;
};

/// Two half pies round one centre, usually an upper and a lower one, to compare two series across the
/// diameter.
///
///     CBasicHalfPieHalfPie chart;
///     chart.SetHalfPieHalfPieProp(prop); // prop.Second.Basic.WhichPart = HalfPiePart::Lower
///     chart.SetComponentValue({30.0, 70.0}, {20.0, 60.0});
///     chart.SetLocation({50.0F, 50.0F});
///     chart.Layout();
///     chart.Draw(&engine);
///
/// Setters only store; Layout hands everything to the two halves and lays them out; Draw and the getters read
/// the last layout. A plain value: copies share nothing.
///
/// Where options keep labels apart and both fill the same half, the first has neither labels nor title.
///
/// The labels of both halves are exchanged as one list: the first half's,
/// kHalvesSeparator, the second half's.
class MILLICHART_API CBasicHalfPieHalfPie {
public:
    /// What the chart does so that it reads well; at first nothing. To be followed by a Layout, as the places
    /// that the last one found are not those of other options.
    void SetOptions(const ChartOptions& options) { m_options = options; }

    const ChartOptions& GetOptions() const { return m_options; }

    /// Copies the record. At the next Layout each half's label offsets become as many as its names.
    void SetHalfPieHalfPieProp(const HalfPieHalfPieProp& prop) { m_prop = prop; }

    const HalfPieHalfPieProp& GetHalfPieHalfPieProp() const { return m_prop; }

    /// One a slice of each half; shown after the next Layout.
    void SetComponentValue(const std::vector<double>& first, const std::vector<double>& second);

    /// As set, whether or not they have been laid out since.
    const std::vector<double>& GetFirstComponentValue() const { return m_firstValues; }

    /// As set, whether or not they have been laid out since.
    const std::vector<double>& GetSecondComponentValue() const { return m_secondValues; }

    /// The common centre of both circles.
    void SetLocation(penlode::PointF location) { m_location = location; }

    penlode::PointF GetLocation() const { return m_location; }

    void Layout();

    /// Both halves with their labels. A half without values counts as the bare location.
    penlode::RectF GetPositionAll() const { return m_whole; }

    /// The halves as the last Layout left them.
    const CBasicHalfPie& GetFirstHalf() const { return m_first; }

    const CBasicHalfPie& GetSecondHalf() const { return m_second; }

    /// The first half, then the second over it. Nothing on a null engine.
    void Draw(penlode::IGraphicsEngine* engine) const;

    /// Both halves' slices as they would be drawn now.
    HalfPieHalfPieShapes GetShapes() const { return {m_first.GetShapes(), m_second.GetShapes()}; }

    /// Both halves' labels as they would be drawn now; those of the second are of part 1.
    void VisitTexts(const TextVisitor& visit) const;

    /// GetPositionAll with the texts that reach out of it.
    penlode::RectF InkExtent() const { return InkExtentOf(*this); }

    /// The part at a point of the page, in mm, or of several the one that is drawn last; where there is none,
    /// the nearest within `reach`. Nothing beside the chart, or where a number is none.
    std::optional<PlacedPart> HitTest(penlode::PointF point, float reach = kUsualReach) const;

    /// All parts that can be seen, in the order in which they are drawn; the second half's are of part 1.
    void VisitParts(const PartVisitor& visit) const;

    /// Where the labels stand. `pie` and `legend` are left as they are.
    void GetChildPosition(penlode::RectF& pie, std::vector<penlode::RectF>& labels,
                          std::vector<penlode::RectF>& legend) const;
    /// Where the user moved the labels; shows after the next Layout. A list without a separator changes
    /// nothing.
    void SetChildPosition(const penlode::RectF& pie, const std::vector<penlode::RectF>& labels,
                          const std::vector<penlode::RectF>& legend);
    /// The user's displacements, which every Layout adds. `legend` is left as it is.
    void GetChildOffset(std::vector<penlode::PointF>& labels, std::vector<penlode::PointF>& legend) const;
    /// A list without a separator changes nothing.
    void SetChildOffset(const std::vector<penlode::PointF>& labels,
                        const std::vector<penlode::PointF>& legend);

private:
    void ListParts(PartSink& sink) const;
    /// By the second, which fills the same half. Its labels would lie under the second's.
    bool IsFirstCovered() const;

    ChartOptions m_options;
    HalfPieHalfPieProp m_prop;
    std::vector<double> m_firstValues;
    std::vector<double> m_secondValues;
    penlode::PointF m_location;
    penlode::RectF m_whole;
    CBasicHalfPie m_first;
    CBasicHalfPie m_second;
};

} // namespace millichart
