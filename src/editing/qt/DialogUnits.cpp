#include "editing/qt/DialogUnits.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <algorithm>

namespace millichart {
namespace {

constexpr qreal kLeastPoints = 9.0;

QString ChineseFamily() {
    const QStringList families = QFontDatabase::families(QFontDatabase::SimplifiedChinese);
    for (const char* name : {"Noto Sans CJK SC", "Source Han Sans SC", "WenQuanYi Zen Hei"}) {
        if (families.contains(QLatin1String(name))) {
            return QLatin1String(name);
        }
    }
    return families.value(0);
}

} // namespace

QFont DialogFont() {
    QFont font = QApplication::font();
    const QFontInfo shown(font);
    if (!QFontDatabase::writingSystems(shown.family()).contains(QFontDatabase::SimplifiedChinese)) {
        font.setFamily(ChineseFamily());
    }
    font.setPointSizeF(std::max(shown.pointSizeF(), kLeastPoints));
    return font;
}

/// A Chinese character is as wide as two letters of a Chinese font, and wider than two of some others.
DialogUnits::DialogUnits(const QFont& font) {
    const QFontMetricsF metrics(font);
    const QString letters = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
    m_width = std::max(metrics.horizontalAdvance(letters) / static_cast<double>(letters.size()),
                       metrics.horizontalAdvance(QStringLiteral("中")) / 2);
    m_height = metrics.height();
}

int DialogUnits::Across(int units) const {
    return qRound(units * m_width / 4);
}

int DialogUnits::Down(int units) const {
    return qRound(units * m_height / 8);
}

QSize DialogUnits::SizeOf(const DialogTemplate& shown) const {
    return {Across(shown.Width), Down(shown.Height)};
}

QRect DialogUnits::PlaceOf(const Control& control) const {
    const int left = Across(control.X);
    return {left, Down(control.Y), Across(control.X + control.Width) - left, Down(control.Height)};
}

} // namespace millichart
