#pragma once

#include "foundation/Export.h"
#include "foundation/NumberFormat.h"

#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace millichart {

/// The most major or minor ticks that an axis has. A range that would need more has none.
inline constexpr std::size_t kMaxTicks = 100000;

/// A value axis: where a value lies along a line, and where its ticks are and what they say. It knows nothing
/// of drawing. Positions are distances from the axis's origin, in mm; values outside the range lie outside
/// the line. Output lists are emptied first.
///
/// A range with a bound or a step that is not finite, or a step that is not positive, has no ticks.
class MILLICHART_API CCoordinate {
public:
    virtual ~CCoordinate() = default;

    /// Takes a round range that holds `largest`.
    virtual void AutoRange(double largest) = 0;
    virtual void SetLength(float length) = 0;

    /// Each kind of axis answers the form of range that fits it; the other form changes and gives nothing.
    virtual void SetRange(double /*min*/, double /*max*/, double /*step*/, double /*minorStep*/) {}

    virtual void GetRange(double& /*min*/, double& /*max*/, double& /*step*/, double& /*minorStep*/) const {}

    virtual void SetRange(double /*min*/, double /*max*/) {}

    virtual void GetRange(double& /*min*/, double& /*max*/) const {}

    /// Not finite where the value has no place, such as 0 on a logarithmic axis.
    virtual float ValueToPosition(double value) const = 0;
    virtual void GetMajorTickPositions(std::vector<float>& positions) const = 0;
    virtual void GetMinorTickPositions(std::vector<float>& positions) const = 0;
    /// The values at the major ticks.
    virtual void GetMajorTickValues(std::vector<double>& values) const = 0;
    /// One text a major tick.
    virtual void GetTickLabels(std::vector<std::string>& labels, const NumberFormat& numbers) const = 0;

    void GetTickLabels(std::vector<std::string>& labels) const { GetTickLabels(labels, NumberFormat()); }

    /// Do values between two others lie between their positions, rounding included?
    virtual bool KeepsOrder() const { return false; }

    virtual std::unique_ptr<CCoordinate> Clone() const = 0;

    /// ValueToPosition of each value, with the very same results, in one call for a whole run of data.
    /// `positions` is as long as `values`.
    virtual void ValuesToPositions(std::span<const double> values, std::span<float> positions) const;
};

} // namespace millichart
