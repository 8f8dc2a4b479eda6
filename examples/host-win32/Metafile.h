#pragma once

#include "Handles.h"
#include "penlode/gdiplus/GraphicsEngine.h"

namespace host {

/// The metafile that an engine of CGraphicsEngine::ForMetafile has drawn; ends it.
KeptMetafile FinishedMetafile(penlode::CGraphicsEngine& engine);

} // namespace host
