#pragma once

#include "foundation/Export.h"
#include "foundation/TextProperty.h"
#include "penlode/Geometry.h"
#include "penlode/IGraphicsEngine.h"

#include <string>
#include <vector>

namespace millichart {

/// Measures and draws texts that may be turned, boxed and framed. Texts are narrow; "\n" breaks a line. The
/// record's prefix and postfix are the caller's to apply (see Decorated).
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

    /// Draws with the box's centre at `point`; nothing where that is not finite. The surface is left as it
    /// was found.
    static void DrawTextAtCenter(penlode::IGraphicsEngine* engine, const std::string& text,
                                 const TextProperty& property, penlode::PointF point);
    /// Draws with the bottom centre of the turned bounding box at `point`.
    static void DrawTextAtBottomCenter(penlode::IGraphicsEngine* engine, const std::string& text,
                                       const TextProperty& property, penlode::PointF point);
    /// Draws with the left centre of the turned bounding box at `point`.
    static void DrawTextAtLeftCenter(penlode::IGraphicsEngine* engine, const std::string& text,
                                     const TextProperty& property, penlode::PointF point);
};

/// A container of the surface that keeps the caller's page unit and scale; ends with the scope.
class MILLICHART_API ScopedContainer {
public:
    explicit ScopedContainer(penlode::IGraphicsEngine& engine);
    ~ScopedContainer();
    ScopedContainer(const ScopedContainer&) = delete;
    ScopedContainer& operator=(const ScopedContainer&) = delete;

private:
    penlode::IGraphicsEngine& m_engine;
    std::uint32_t m_container;
};

/// Across and down in the middle of the layout rectangle, as all chart texts stand.
inline constexpr penlode::StringFormat kCenteredFormat{0, 0, penlode::StringAlignment::Center,
                                                       penlode::StringAlignment::Center};

} // namespace millichart
