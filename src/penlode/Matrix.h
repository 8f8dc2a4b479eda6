#pragma once

#include "penlode/Export.h"
#include "penlode/Geometry.h"
#include "penlode/GraphicsTypes.h"

namespace penlode {

/// An affine map of row vectors: x' = x·M11 + y·M21 + Dx, y' = x·M12 + y·M22 + Dy. Kept in double precision,
/// so that long chains of containers do not drift.
struct Matrix {
    double M11 = 1.0;
    double M12 = 0.0;
    double M21 = 0.0;
    double M22 = 1.0;
    double Dx = 0.0;
    double Dy = 0.0;

    static Matrix Translation(double dx, double dy) { return {1.0, 0.0, 0.0, 1.0, dx, dy}; }

    static Matrix Scale(double sx, double sy) { return {sx, 0.0, 0.0, sy, 0.0, 0.0}; }

    /// Clockwise on screen for positive degrees, since y grows downwards. Quarter turns are exact.
    PENLODE_API static Matrix Rotation(double degrees);

    PENLODE_API PointF Apply(PointF point) const;

    double Determinant() const { return M11 * M22 - M12 * M21; }

    /// All elements finite and the determinant neither zero nor beyond range.
    PENLODE_API bool IsInvertible() const;
    /// The inverse; identity when there is none.
    PENLODE_API Matrix Inverted() const;

    /// True when axis-parallel lines stay axis-parallel (no turn but by quarters, no shear).
    bool KeepsAxes() const { return (M12 == 0.0 && M21 == 0.0) || (M11 == 0.0 && M22 == 0.0); }

    /// The factor by which lengths grow: exact for turns and equal scales, else the geometric mean of both
    /// axes.
    PENLODE_API double LengthFactor() const;

    friend bool operator==(const Matrix&, const Matrix&) = default;
};

/// A point under the map, in double precision.
inline PointD Mapped(const Matrix& m, PointD p) {
    return {p.X * m.M11 + p.Y * m.M21 + m.Dx, p.X * m.M12 + p.Y * m.M22 + m.Dy};
}

inline PointD Mapped(const Matrix& m, PointF p) {
    return Mapped(m, PointD{p.X, p.Y});
}

/// The map that applies `first`, then `second`.
PENLODE_API Matrix operator*(const Matrix& first, const Matrix& second);

/// `step` joined to `matrix` on the side that `order` names.
inline Matrix Combined(const Matrix& matrix, const Matrix& step, MatrixOrder order) {
    return order == MatrixOrder::Prepend ? step * matrix : matrix * step;
}

} // namespace penlode
