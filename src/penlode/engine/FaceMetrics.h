#pragma once

namespace penlode {

/// Measures of a face in its em.
struct FaceMetrics {
    double Ascent = 0.0;
    double Descent = 0.0;
};

/// Some Chinese faces leave so much air between lines (Noto Serif CJK 1.44 em) that a frame round a text no
/// longer fits it. A line is at most 1.25 em high, and these stand in it as in faces that were made for
/// tables: an ideograph's box (0.88 em up, 0.12 em down) a hair above the middle, and the Latin letters'
/// tails (0.25 em down) still inside.
inline constexpr FaceMetrics kCompactLine{0.98, 0.27};

inline FaceMetrics WithoutExcessAir(FaceMetrics face) {
    return face.Ascent + face.Descent > kCompactLine.Ascent + kCompactLine.Descent ? kCompactLine : face;
}

} // namespace penlode
