#pragma once

#include "editing/DialogTemplate.h"

#include <QFont>
#include <QRect>

namespace millichart {

/// The application's font, or one that can write Chinese, at no less than 9 points.
QFont DialogFont();

/// A font's dialog units in pixels.
class DialogUnits {
public:
    explicit DialogUnits(const QFont& font);

    QSize SizeOf(const DialogTemplate& shown) const;
    /// Equal heights stay equal, and middles and right edges that are in line stay in line.
    QRect PlaceOf(const Control& control) const;

private:
    int Across(int units) const;
    int Down(int units) const;

    double m_width;  ///< of four units
    double m_height; ///< of eight
};

} // namespace millichart
