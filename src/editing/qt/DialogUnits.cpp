#include "editing/qt/DialogUnits.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <algorithm>

namespace millichart {
namespace {

constexpr qreal kLeastPoints = 9.0;
constexpr double kMaxLineHeight = 1.2; ///< em

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

/// A Chinese character is as wide as two letters of a Chinese font, and wider than two of some others. Its
/// font's lines may be half as high again as itself, which is for pages of text.
DialogUnits::DialogUnits(const QFont& font) {
    const QFontMetricsF metrics(font);
    const QString letters = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
    const double letter = metrics.horizontalAdvance(letters) / static_cast<double>(letters.size());
    const double character = metrics.horizontalAdvance(QStringLiteral("中"));
    m_width = std::max(letter, character / 2);
    m_height = std::min(metrics.height(), character * kMaxLineHeight);
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
    const int height = Down(control.Height);
    const double middle = (control.Y + control.Height / 2.0) * m_height / 8;
    return {left, qRound(middle - height / 2.0), Across(control.X + control.Width) - left, height};
}

} // namespace millichart
