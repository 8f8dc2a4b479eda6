#include "editing/qt/PositionPicker.h"

#include "editing/LegendPlaces.h"
#include "editing/qt/SurfacePainter.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace millichart {
namespace {

penlode::SizeF PictureOf(const QWidget& widget) {
    return {static_cast<float>(widget.width()), static_cast<float>(widget.height())};
}

} // namespace

PositionPicker::PositionPicker(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
}

void PositionPicker::Select(int place) {
    m_selection = place >= 0 && place < kLegendPlaceCount ? place : -1;
    setAccessibleDescription(QString::fromUtf8(LegendPlaceName(m_selection)));
    update();
}

void PositionPicker::Pick(int place) {
    if (place < 0 || place == m_selection) {
        return;
    }
    Select(place);
    if (OnPicked) {
        OnPicked();
    }
}

void PositionPicker::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    const auto color = [this](QPalette::ColorRole role) {
        return penlode::Color{palette().color(role).rgba()};
    };
    PaintByEngine(painter, rect(), [&](penlode::IGraphicsEngine& engine) {
        DrawLegendPlaces(engine, PictureOf(*this), m_selection,
                         {color(QPalette::Base), color(QPalette::Text), color(QPalette::Highlight)});
    });
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
    }
}

void PositionPicker::mousePressEvent(QMouseEvent* event) {
    const QPointF at = event->position();
    Pick(LegendPlaceAt({static_cast<float>(at.x()), static_cast<float>(at.y())}, PictureOf(*this)));
}

void PositionPicker::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Left:
        return Pick(LegendPlaceBeside(m_selection, -1, 0));
    case Qt::Key_Right:
        return Pick(LegendPlaceBeside(m_selection, 1, 0));
    case Qt::Key_Up:
        return Pick(LegendPlaceBeside(m_selection, 0, -1));
    case Qt::Key_Down:
        return Pick(LegendPlaceBeside(m_selection, 0, 1));
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace millichart
