#include "editing/qt/ColorPane.h"

#include "editing/qt/Swatch.h"

namespace millichart {

CColorPane::CColorPane(QWidget* parent) : QWidget(parent) {
    DescribeColor(*this, m_colorRef);
}

void CColorPane::SetColor(std::uint32_t colorRef) {
    m_colorRef = colorRef;
    DescribeColor(*this, colorRef);
    update();
}

void CColorPane::paintEvent(QPaintEvent*) {
    PaintSwatch(*this, rect(), m_colorRef);
}

} // namespace millichart
