#pragma once

#include "foundation/ChartText.h"
#include "foundation/Export.h"
#include "foundation/TextProperty.h"
#include "penlode/Geometry.h"
#include "penlode/IGraphicsEngine.h"

#include <string>
#include <vector>

namespace millichart {

/// What of a turned text's bounding box is held at a point.
enum class TextAnchor { Center, BottomCenter, LeftCenter };

/// Measures, places and draws texts that may be turned, boxed and framed. Texts are narrow (GBK;
/// CStringUtil::Utf8ToAnsi); "\n" breaks a line. The record's prefix and postfix are the caller's to apply
/// (see Decorated).
class MILLICHART_API CTextPropertyOperation {
public:
    /// The four corners of the turned text box, with the unturned box's top-left corner at (0, 0):
    ///
    ///     P0 ---- P1        turned counter-clockwise on screen by `Angle`
    ///     |        |
    ///     P3 ---- P2
    static void GetTextBound(const std::string& text, const TextProperty& property,
                             std::vector<penlode::PointF>& corners);

    /// Width and height of the axis-aligned box that holds the turned text; (0, 0) for an empty text.
    static penlode::SizeF GetTextSize(const std::string& text, const TextProperty& property);

    /// What a text covers whose bounding box stands there: the box and the letters, which are a little low in
    /// it.
    static penlode::RectF GetReach(const penlode::RectF& box, std::int32_t angle);

    /// Hands on a text that looks as `property` says and is held at `point`; nothing where that is not
    /// finite.
    static void Visit(const TextVisitor& visit, TextOwner owner, const std::string& text,
                      const TextProperty& property, penlode::PointF point,
                      TextAnchor anchor = TextAnchor::Center);
    /// Draws a text as it was placed. The surface is left as it was found.
    static void Draw(penlode::IGraphicsEngine& engine, const ChartText& text);
    /// A visitor that draws what it gets. The engine must outlive it.
    static TextVisitor DrawingOn(penlode::IGraphicsEngine& engine);

    /// Draws with the box's centre at `point`; nothing where that is not finite.
    static void DrawTextAtCenter(penlode::IGraphicsEngine* engine, const std::string& text,
                                 const TextProperty& property, penlode::PointF point);
    /// Draws with the bottom centre of the turned bounding box at `point`.
    static void DrawTextAtBottomCenter(penlode::IGraphicsEngine* engine, const std::string& text,
                                       const TextProperty& property, penlode::PointF point);
    /// Draws with the left centre of the turned bounding box at `point`.
    static void DrawTextAtLeftCenter(penlode::IGraphicsEngine* engine, const std::string& text,
                                     const TextProperty& property, penlode::PointF point);
};

} // namespace millichart
