#pragma once

#include "model/PageView.h"

namespace host {

using designer::AreaToDraw;
using designer::NextZoom;
using designer::PageView;
using designer::PixelPoint;
using designer::PixelRect;

} // namespace host
