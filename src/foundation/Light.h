#pragma once

#include "penlode/Color.h"

#include <algorithm>
#include <cmath>

/// Colours as the light that they stand for (IEC 61966-2-1, sRGB). Internal to the library.
namespace millichart {

/// Amounts from 0 to 1, in proportion to the light.
struct Light {
    double Red = 0.0;
    double Green = 0.0;
    double Blue = 0.0;
};

inline double LightOfChannel(std::uint32_t channel) {
    const double share = channel / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

inline Light LightOf(penlode::Color color) {
    return {LightOfChannel(color.R()), LightOfChannel(color.G()), LightOfChannel(color.B())};
}

inline std::uint32_t ChannelOf(double light) {
    const double inside = std::clamp(light, 0.0, 1.0);
    const double share = inside <= 0.0031308 ? inside * 12.92 : 1.055 * std::pow(inside, 1.0 / 2.4) - 0.055;
    return static_cast<std::uint32_t>(std::lround(share * 255.0));
}

/// The opaque colour of a light.
inline penlode::Color ColorOf(const Light& light) {
    return penlode::Color::FromArgb(0xFFU, ChannelOf(light.Red), ChannelOf(light.Green),
                                    ChannelOf(light.Blue));
}

/// The opaque colour whose lightness and chroma in OKLab (Björn Ottosson, 2020) are `factor` times as large,
/// and whose hue is the same. OKLab is linear in the cube roots of amounts of light, so that is the light
/// times the factor's third power.
inline penlode::Color Darkened(penlode::Color color, double factor) {
    const Light light = LightOf(color);
    const double amount = factor * factor * factor;
    return ColorOf({light.Red * amount, light.Green * amount, light.Blue * amount});
}

/// The opaque colour with so much white light, from 0 to 1, mixed in.
inline penlode::Color Lightened(penlode::Color color, double white) {
    const Light light = LightOf(color);
    const auto mixed = [white](double amount) { return amount + (1.0 - amount) * white; };
    return ColorOf({mixed(light.Red), mixed(light.Green), mixed(light.Blue)});
}

/// From 0 for black to 1 for white.
inline double LuminanceOf(penlode::Color color) {
    const Light light = LightOf(color);
    return 0.2126 * light.Red + 0.7152 * light.Green + 0.0722 * light.Blue;
}

/// Of the lighter to the darker, as the Web Content Accessibility Guidelines count it: 1 to 21.
inline double ContrastOf(penlode::Color a, penlode::Color b) {
    const auto [dark, light] = std::minmax({LuminanceOf(a), LuminanceOf(b)});
    return (light + 0.05) / (dark + 0.05);
}

/// What is seen of a colour over another.
constexpr penlode::Color Over(penlode::Color color, penlode::Color below) {
    const std::uint32_t alpha = color.A();
    const auto mixed = [alpha](std::uint32_t over, std::uint32_t under) {
        return (over * alpha + under * (255U - alpha)) / 255U;
    };
    return penlode::Color::FromArgb(0xFFU, mixed(color.R(), below.R()), mixed(color.G(), below.G()),
                                    mixed(color.B(), below.B()));
}

} // namespace millichart
