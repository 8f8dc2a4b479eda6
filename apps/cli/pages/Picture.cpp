#include "pages/Picture.h"

#include "documents/Files.h"
#include "pages/Platform.h"
#include "penlode/svg/SvgEngine.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <utility>

namespace cli {
namespace {

using penlode::CGraphicsEngine;

constexpr std::array<std::pair<const char*, PictureFormat>, 4> kEndings{{{".png", PictureFormat::Png},
                                                                         {".svg", PictureFormat::Svg},
                                                                         {".pdf", PictureFormat::Pdf},
                                                                         {".emf", PictureFormat::Emf}}};

penlode::Color BackgroundOf(const PictureSettings& settings) {
    return settings.Background.value_or(penlode::kWhite);
}

/// Nothing for one that cannot be seen.
std::optional<penlode::Color> SvgBackground(const PictureSettings& settings) {
    const penlode::Color color = BackgroundOf(settings);
    return color.A() == 0 ? std::nullopt : std::optional(color);
}

class EnginePicture final : public Picture {
public:
    EnginePicture(std::unique_ptr<CGraphicsEngine> engine, std::string (*finish)(CGraphicsEngine&))
        : m_engine(std::move(engine)), m_finish(finish) {}

    penlode::IGraphicsEngine& Engine() override { return *m_engine; }

    std::string Finish() override { return m_finish(*m_engine); }

private:
    std::unique_ptr<CGraphicsEngine> m_engine;
    std::string (*m_finish)(CGraphicsEngine&);
};

class SvgPicture final : public Picture {
public:
    explicit SvgPicture(const PictureSettings& settings)
        : m_engine(settings.Page,
                   {settings.Title, settings.Description, SvgBackground(settings), settings.TextAsOutlines}) {
    }

    penlode::IGraphicsEngine& Engine() override { return m_engine; }

    std::string Finish() override { return m_engine.Text(); }

private:
    penlode::CSvgEngine m_engine;
};

std::unique_ptr<CGraphicsEngine> PageOf(const PictureSettings& settings) {
    auto engine = kPlatform.Begin(settings);
    if (engine != nullptr && settings.Background) {
        const penlode::SolidBrush brush{*settings.Background};
        engine->FillRectangle(&brush, 0.0F, 0.0F, settings.Page.Width, settings.Page.Height);
    }
    return engine;
}

std::unique_ptr<Picture> OnEngine(std::unique_ptr<CGraphicsEngine> engine,
                                  std::string (*finish)(CGraphicsEngine&)) {
    return engine == nullptr ? nullptr : std::make_unique<EnginePicture>(std::move(engine), finish);
}

} // namespace

bool IsDrawn(PictureFormat format) {
    return format == PictureFormat::Png || format == PictureFormat::Svg || format == kPlatform.Page;
}

std::string FormatList(const std::string& beforeEach) {
    const auto name = [&beforeEach](PictureFormat format) { return beforeEach + (EndingOf(format) + 1); };
    return name(PictureFormat::Png) + ", " + name(PictureFormat::Svg) + " or " + name(kPlatform.Page);
}

std::optional<PictureFormat> FormatOfName(const std::string& fileName) {
    return FormatOfEnding(millichart::Utf8FromPath(millichart::PathFromUtf8(fileName).extension()));
}

std::optional<PictureFormat> FormatOfEnding(std::string ending) {
    std::transform(ending.begin(), ending.end(), ending.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    for (const auto& [known, format] : kEndings) {
        if (ending == known) {
            return format;
        }
    }
    return std::nullopt;
}

const char* EndingOf(PictureFormat format) {
    for (const auto& [ending, known] : kEndings) {
        if (known == format) {
            return ending;
        }
    }
    return "";
}

std::unique_ptr<Picture> MakePicture(const PictureSettings& settings) {
    switch (settings.Format) {
    case PictureFormat::Svg:
        return std::make_unique<SvgPicture>(settings);
    case PictureFormat::Png:
        return OnEngine(CGraphicsEngine::ForRaster(settings.Page, settings.Dpi, BackgroundOf(settings)),
                        [](CGraphicsEngine& engine) { return engine.EncodePng(); });
    default:
        return OnEngine(PageOf(settings), kPlatform.Finish);
    }
}

} // namespace cli
