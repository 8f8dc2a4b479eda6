#pragma once

#include "charts/curve/CurveTrace.h"

#include <cstdint>
#include <span>
#include <vector>

/// Where the points of curves stand.
namespace millichart {

/// Values that have a time.
std::size_t SizeOf(const CurveDataView& data);

/// The times of all curves together, those without a value too; `previous` if there are none.
TimeSpan TimeSpanOf(std::span<const CurveDataView> curves, const TimeSpan& previous);

/// Where times stand across a rectangle, over whose whole width they span; at its left edge if there is only
/// one.
class TimeScale {
public:
    TimeScale(const penlode::RectF& area, const TimeSpan& times)
        : m_left(area.X), m_start(times.Min), m_wholeStart(times.WholeMin), m_isWhole(times.IsWhole),
          m_perTime(Extent(times) > 0.0 ? area.Width / Extent(times) : 0.0) {}

    float At(std::int32_t time) const { return Placed(time - m_start); }

    float At(double time) const { return Placed(time - m_start); }

    /// Moments in nanoseconds are more than a double holds.
    float At(std::int64_t time) const {
        const auto since = static_cast<std::uint64_t>(time) - static_cast<std::uint64_t>(m_wholeStart);
        return Placed(m_isWhole ? static_cast<double>(since) : static_cast<double>(time) - m_start);
    }

private:
    float Placed(double since) const { return static_cast<float>(since * m_perTime + m_left); }

    static double Extent(const TimeSpan& times) {
        return times.IsWhole ? static_cast<double>(static_cast<std::uint64_t>(times.WholeMax) -
                                                   static_cast<std::uint64_t>(times.WholeMin))
                             : times.Max - times.Min;
    }

    double m_left;
    double m_start;
    std::int64_t m_wholeStart;
    bool m_isWhole;
    double m_perTime;
};

/// A curve as a line of data, with gaps where it has none: at points without a place, and at null values
/// unless it runs through the value 0 there.
class CurveLine final : public penlode::DataLine {
public:
    /// The trace must outlive it.
    CurveLine(const CurveTrace& trace, bool breaks) : m_trace(trace), m_breaks(breaks) {}

    std::size_t Size() const override { return m_trace.Size(); }

    void Place(std::size_t first, std::span<penlode::PointF> points) const override;

    bool Bound(std::size_t first, std::size_t count, penlode::PointBounds& bounds) const override;

private:
    const CurveTrace& m_trace;
    bool m_breaks;
};

} // namespace millichart
