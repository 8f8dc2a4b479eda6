#pragma once

#include "documents/ChartDocument.h"

#include <string>

/// A chart as the bytes of a picture's file, of its true size with a margin of so many mm; empty when there
/// is too little memory or the page is too large for the format.
namespace host {

/// 300 dpi, on white.
std::string PngOf(const millichart::LaidOutChart& chart, float margin);
/// An enhanced metafile.
std::string EmfOf(const millichart::LaidOutChart& chart, float margin);
/// With the document's title and description.
std::string SvgOf(const millichart::ChartDocument& document, const millichart::LaidOutChart& chart,
                  float margin);

} // namespace host
