#pragma once

#include "penlode/Color.h"
#include "penlode/Geometry.h"
#include "penlode/IGraphicsEngine.h"

#include <memory>
#include <optional>
#include <string>

namespace cli {

enum class PictureFormat { Png, Svg, Pdf, Emf };

/// Is it drawn on this platform? One of PDF and EMF is not.
bool IsDrawn(PictureFormat format);

/// "png, svg or pdf": what is drawn on this platform.
std::string FormatList(const std::string& beforeEach = "");

/// The format of ".png" and the like, in either case; nothing for other endings.
std::optional<PictureFormat> FormatOfEnding(std::string ending);

/// The format that a file name's ending names, in either case; nothing for other endings.
std::optional<PictureFormat> FormatOfName(const std::string& fileName);

/// ".png"
const char* EndingOf(PictureFormat format);

/// What a picture is made for. Texts are UTF-8.
struct PictureSettings {
    PictureFormat Format = PictureFormat::Png;
    penlode::SizeF Page; ///< mm
    double Dpi = 96.0;   ///< of a PNG
    /// White, if there is none, under a PNG or SVG; the paper of a page, PDF or EMF, is left as it is.
    std::optional<penlode::Color> Background;
    std::string Title;           ///< of an SVG or PDF
    std::string Description;     ///< of an SVG, and a PDF's subject
    bool TextAsOutlines = false; ///< of an SVG: glyphs that need no font
};

/// A page that is drawn on and then becomes a file.
class Picture {
public:
    virtual ~Picture() = default;
    virtual penlode::IGraphicsEngine& Engine() = 0;
    /// The file's bytes. Ends the page.
    virtual std::string Finish() = 0;
};

/// Null when the page has more pixels or millimetres than the format can hold. For formats that are drawn.
std::unique_ptr<Picture> MakePicture(const PictureSettings& settings);

} // namespace cli
