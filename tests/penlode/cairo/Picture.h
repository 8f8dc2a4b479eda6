#pragma once

#include "penlode/cairo/GraphicsEngine.h"

#include <algorithm>
#include <memory>
#include <string>

/// A small white picture on which one millimetre is one pixel.
inline std::unique_ptr<penlode::CGraphicsEngine> PixelSurface(float width, float height,
                                                              penlode::Color background = penlode::kWhite) {
    return penlode::CGraphicsEngine::ForRaster({width, height}, 25.4, background);
}

inline penlode::Color PixelAt(const penlode::Image& image, int x, int y) {
    return image.Pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(image.Width) +
                        static_cast<std::size_t>(x)];
}

/// The picture as rows of text: "." white, "#" black, "+" anything between.
inline std::string Drawn(const penlode::CGraphicsEngine& engine) {
    const penlode::Image image = engine.Pixels();
    std::string text;
    for (int y = 0; y < image.Height; ++y) {
        for (int x = 0; x < image.Width; ++x) {
            const penlode::Color c = PixelAt(image, x, y);
            text += c == penlode::kWhite ? '.' : c == penlode::kBlack ? '#' : '+';
        }
        text += '\n';
    }
    return text;
}

inline std::ptrdiff_t CountOf(const penlode::Image& image, penlode::Color color) {
    return std::count(image.Pixels.begin(), image.Pixels.end(), color);
}

inline std::ptrdiff_t InkOf(const penlode::CGraphicsEngine& engine) {
    const penlode::Image image = engine.Pixels();
    return static_cast<std::ptrdiff_t>(image.Pixels.size()) - CountOf(image, penlode::kWhite);
}
