#pragma once

#include "penlode/RecordedCall.h"
#include "penlode/engine/Drawings.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

/// The arguments of an engine's calls as a recorder keeps them, each with its name.
namespace penlode {

/// What a value of each type is called where the call has no better name for it.
inline constexpr std::array<const char*, std::variant_size_v<RecordedCall::Value>> kArgumentNames{
    "",     "",      "",     "",          "point",  "rect",   "points",     "text",
    "pen",  "brush", "font", "align",     "path",   "region", "matrix",     "image",
    "mode", "order", "unit", "smoothing", "colors", "mesh",   "colorMatrix"};

template <class T> RecordedCall::Argument ArgumentOf(const T& value) {
    const RecordedCall::Value held(value);
    return {kArgumentNames[held.index()], held};
}

template <class T> RecordedCall::Argument ArgumentOf(const T* pointer) {
    RecordedCall::Argument argument = ArgumentOf(pointer == nullptr ? T{} : *pointer);
    if (pointer == nullptr) {
        argument.Held = {};
    }
    return argument;
}

template <class T> RecordedCall::Argument ArgumentOf(const std::pair<const char*, T>& named) {
    return {named.first, named.second};
}

inline RecordedCall::Argument ArgumentOf(std::wstring_view text) {
    return ArgumentOf(std::wstring(text));
}

/// Points as a call gives them: perhaps none, perhaps fewer than 0.
struct PointList {
    const PointF* Points;
    std::int32_t Count;
};

inline RecordedCall::Argument ArgumentOf(const PointList& list) {
    const std::vector<PointF> points(list.Points,
                                     list.Points + (list.Points == nullptr ? 0 : std::max(list.Count, 0)));
    return ArgumentOf(list.Points == nullptr ? nullptr : &points);
}

inline RectF RectOf(const RectL& r) {
    return {static_cast<float>(r.Left), static_cast<float>(r.Top),
            static_cast<float>(r.Right) - static_cast<float>(r.Left),
            static_cast<float>(r.Bottom) - static_cast<float>(r.Top)};
}

/// The vertices, moved to where they are filled.
inline std::vector<PointF> PointsOf(const GradientMesh& mesh) {
    std::vector<PointF> points;
    for (const GradientVertex& v : mesh.Vertices) {
        points.push_back(mesh.Origin + PointF{static_cast<float>(v.X), static_cast<float>(v.Y)});
    }
    return points;
}

inline std::vector<Color> ColorsOf(const GradientMesh& mesh) {
    std::vector<Color> colors;
    for (const GradientVertex& v : mesh.Vertices) {
        colors.push_back(Color::FromArgb(v.Alpha >> 8U, v.Red >> 8U, v.Green >> 8U, v.Blue >> 8U));
    }
    return colors;
}

inline std::vector<std::uint32_t> IndicesOf(const GradientMesh& mesh) {
    std::vector<std::uint32_t> indices;
    for (const GradientRect& r : mesh.Rects) {
        indices.insert(indices.end(), {r.UpperLeft, r.LowerRight});
    }
    for (const GradientTriangle& t : mesh.Triangles) {
        indices.insert(indices.end(), {t.Vertex1, t.Vertex2, t.Vertex3});
    }
    return indices;
}

} // namespace penlode
