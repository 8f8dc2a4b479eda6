#include "pages/Platform.h"

namespace cli {

using penlode::CGraphicsEngine;

const Platform kPlatform{
    PictureFormat::Pdf,
    "PDF",
    "an EMF is drawn on Windows only, expected .svg or .pdf, which are as sharp",
    "fonts-noto-cjk or fonts-wqy-zenhei",
    "millichart-designer",
    [](const PictureSettings& settings) {
        return CGraphicsEngine::ForPdf(settings.Page, {settings.Title, settings.Description});
    },
    [](CGraphicsEngine& page) { return page.FinishPdf(); }};

} // namespace cli
