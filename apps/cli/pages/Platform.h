#pragma once

#include "pages/Picture.h"
#include "penlode/GraphicsEngine.h"

namespace cli {

/// What differs from platform to platform: which pages its engine draws beside pictures, and what its user
/// must know.
struct Platform {
    PictureFormat Page;
    const char* PageName; ///< "PDF"
    /// What to do for a page that only other platforms draw.
    const char* OtherPage;
    const char* ChineseFonts; ///< some to install
    const char* Designer;     ///< the program that shows charts in a window
    std::unique_ptr<penlode::CGraphicsEngine> (*Begin)(const PictureSettings& settings);
    std::string (*Finish)(penlode::CGraphicsEngine& page);
};

extern const Platform kPlatform;

} // namespace cli
