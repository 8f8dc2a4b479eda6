#pragma once

#include "documents/ChartDocument.h"
#include "foundation/ChartPart.h"
#include "penlode/Color.h"
#include "penlode/Font.h"

#include <optional>

namespace designer {

/// How a part's text stands on the page, for who edits it there: turned texts are edited upright, about their
/// middle.
struct PartLook {
    penlode::RectF Box; ///< mm
    penlode::Font Font;
    penlode::Color Color; ///< opaque
};

/// Nothing for a part without a text, or one whose text is not on the page. A slice has its label's, a
/// legend's sample its name's.
std::optional<PartLook> LookOf(const millichart::LaidOutChart& chart, const millichart::ChartPart& part);

} // namespace designer
