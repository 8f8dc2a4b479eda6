#pragma once

#include "penlode/Color.h"

#include <QColor>
#include <QString>
#include <cstdint>
#include <string_view>

/// Texts and colours as dialogs speak of them (UTF-8, Windows RGB values) and as Qt does.
namespace millichart {

inline QString ToQString(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

inline QColor ToQColor(std::uint32_t colorRef) {
    return QColor::fromRgb(penlode::FromColorRef(colorRef).Argb);
}

inline std::uint32_t ToColorRef(const QColor& color) {
    return penlode::ToColorRef(penlode::Color{color.rgb()});
}

} // namespace millichart
