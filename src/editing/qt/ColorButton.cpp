#include "editing/qt/ColorButton.h"

#include "editing/qt/StandardDialogs.h"
#include "editing/qt/Swatch.h"

#include <QStyleOptionButton>
#include <QStylePainter>

namespace marrowkit {
namespace {

constexpr int kMargin = 5;

} // namespace

CColorButton::CColorButton(QWidget* parent) : QPushButton(parent) {
    millichart::DescribeColor(*this, m_colorRef);
    connect(this, &QPushButton::clicked, this, &CColorButton::Pick);
}

void CColorButton::SetColor(std::uint32_t colorRef) {
    m_colorRef = colorRef;
    millichart::DescribeColor(*this, colorRef);
    update();
}

void CColorButton::Pick() {
    if (const auto picked = millichart::PickColor(window(), m_colorRef)) {
        SetColor(*picked);
        if (OnPicked) {
            OnPicked();
        }
    }
}

void CColorButton::paintEvent(QPaintEvent*) {
    QStyleOptionButton option;
    initStyleOption(&option);
    QStylePainter(this).drawControl(QStyle::CE_PushButton, option);
    millichart::PaintSwatch(*this, rect().adjusted(kMargin, kMargin, -kMargin, -kMargin), m_colorRef);
}

} // namespace marrowkit
