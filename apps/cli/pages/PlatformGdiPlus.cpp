#include "pages/Platform.h"

namespace cli {

using penlode::CGraphicsEngine;

const Platform kPlatform{
    PictureFormat::Emf,
    "EMF",
    "a PDF is printed on Windows, expected .svg or .emf, which a PDF printer such as "
    "Microsoft Print to PDF makes one of",
    "SimSun or Microsoft YaHei",
    "host-win32",
    [](const PictureSettings& settings) { return CGraphicsEngine::ForMetafile(settings.Page); },
    [](CGraphicsEngine& page) { return page.FinishMetafile(); }};

} // namespace cli
