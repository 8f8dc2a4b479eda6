#pragma once

#include "penlode/IGraphicsEngine.h"

#include <ostream>
#include <span>

/// A drawing without texts of which a picture is kept in tests/golden/, as Cairo draws it at 96 dots per inch
/// on white.
struct GoldenDrawing {
    const char* Name;
    penlode::SizeF Page; ///< mm
    void (*Draw)(penlode::IGraphicsEngine&);
};

inline std::ostream& operator<<(std::ostream& stream, const GoldenDrawing& golden) {
    return stream << golden.Name;
}

std::span<const GoldenDrawing> GoldenDrawings();
