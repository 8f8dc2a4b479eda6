#include "penlode/Matrix.h"

#include <cmath>
#include <numbers>

namespace penlode {

Matrix Matrix::Rotation(double degrees) {
    double turn = std::fmod(degrees, 360.0);
    if (turn < 0.0) {
        turn += 360.0;
    }
    double sine = std::sin(turn * std::numbers::pi / 180.0);
    double cosine = std::cos(turn * std::numbers::pi / 180.0);
    if (std::fmod(turn, 90.0) == 0.0) {
        sine = std::round(sine);
        cosine = std::round(cosine);
    }
    return {cosine, sine, -sine, cosine, 0.0, 0.0};
}

PointF Matrix::Apply(PointF point) const {
    const double x = point.X;
    const double y = point.Y;
    return {static_cast<float>(x * M11 + y * M21 + Dx), static_cast<float>(x * M12 + y * M22 + Dy)};
}

bool Matrix::IsInvertible() const {
    const double determinant = Determinant();
    return std::isfinite(determinant) && determinant != 0.0 && std::isfinite(1.0 / determinant) &&
           std::isfinite(Dx) && std::isfinite(Dy);
}

Matrix Matrix::Inverted() const {
    if (!IsInvertible()) {
        return {};
    }
    const double d = Determinant();
    return {M22 / d, -M12 / d, -M21 / d, M11 / d, (M21 * Dy - M22 * Dx) / d, (M12 * Dx - M11 * Dy) / d};
}

double Matrix::LengthFactor() const {
    return std::sqrt(std::abs(Determinant()));
}

Matrix operator*(const Matrix& first, const Matrix& second) {
    return {first.M11 * second.M11 + first.M12 * second.M21,
            first.M11 * second.M12 + first.M12 * second.M22,
            first.M21 * second.M11 + first.M22 * second.M21,
            first.M21 * second.M12 + first.M22 * second.M22,
            first.Dx * second.M11 + first.Dy * second.M21 + second.Dx,
            first.Dx * second.M12 + first.Dy * second.M22 + second.Dy};
}

} // namespace penlode
