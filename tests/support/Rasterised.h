#pragma once

#include "penlode/IGraphicsEngine.h"

#include <array>
#include <functional>

using Drawing = std::function<void(penlode::IGraphicsEngine&)>;

/// What a surface shows of a drawing.
struct ShownPicture {
    const char* Surface;
    penlode::Image Picture;
};

/// A white page on which drawings become pixels.
struct Raster {
    penlode::SizeF Page; ///< in millimetres
    int PixelsPerMillimetre = 10;

    /// On Cairo's pixels.
    penlode::Image OnPixels(const Drawing& draw) const;
    /// On a page of Cairo's, as PDF has it.
    penlode::Image OnPage(const Drawing& draw) const;
    /// As SVG, its texts outlines, which librsvg shows.
    penlode::Image AsSvg(const Drawing& draw) const;

    std::array<ShownPicture, 3> OnEverySurface(const Drawing& draw) const {
        return {{{"pixels", OnPixels(draw)}, {"page", OnPage(draw)}, {"SVG", AsSvg(draw)}}};
    }

private:
    int Pixels(float millimetres) const {
        return static_cast<int>(millimetres * static_cast<float>(PixelsPerMillimetre));
    }
};
