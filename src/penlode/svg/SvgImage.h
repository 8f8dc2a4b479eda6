#pragma once

#include "penlode/engine/Drawings.h"
#include "penlode/svg/SvgGeometry.h"

#include <string>

namespace penlode::svg {

/// An <image> with its pixels in it.
struct DrawnImage {
    std::string Element;  ///< empty if nothing of the image is shown
    std::string ClipData; ///< path data of what is shown; empty where that is the whole element
};

/// The source rectangle's corners land on the destination's; what the source leaves out is not written, but
/// for the pixels that its edges cut.
DrawnImage ImageElement(const PageMap& map, const ImagePart& part);

} // namespace penlode::svg
