#pragma once

#include "documents/ChartDocument.h"

#include <QImage>
#include <QMimeData>
#include <QString>
#include <memory>
#include <string>

namespace designer {

enum class PictureFormat { Png, Svg, Pdf };

struct PictureWish {
    PictureFormat Format = PictureFormat::Png;
    double Dpi = 300.0;         ///< of a PNG
    bool IsTransparent = false; ///< of a PNG or SVG: no white ground
};

/// The chart with a margin of 5 mm, in mm.
penlode::SizeF PageSizeOf(const millichart::LaidOutChart& chart);

/// The bytes of such a file; empty when there is too little memory or the page is too large for the format.
std::string PictureOf(const millichart::ChartDocument& document, const millichart::LaidOutChart& chart,
                      const PictureWish& wish);

/// The same as pixels; null when it cannot be.
QImage ImageOf(const millichart::LaidOutChart& chart, double dpi, bool isTransparent = false);

/// A chart for the clipboard: a picture, an SVG, and its data as tab-separated text.
std::unique_ptr<QMimeData> MimeDataOf(const millichart::ChartDocument& document,
                                      const millichart::LaidOutChart& chart, const std::string& data);

} // namespace designer
