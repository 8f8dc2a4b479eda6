#pragma once

/// CGraphicsEngine, this platform's surface. Both have pictures in common: ForRaster, EncodePng and Pixels.
#ifdef _WIN32
#include "penlode/gdiplus/GraphicsEngine.h"
#include "penlode/gdiplus/GraphicsUtil.h"
#else
#include "penlode/cairo/GraphicsEngine.h"
#endif
