#include "canvas/Ruler.h"

#include "canvas/CanvasColors.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace designer {

RulerSteps StepsAt(double pixels) {
    constexpr double kNumberRoom = 36.0;
    constexpr double kTickRoom = 3.5;
    RulerSteps steps{100, 50, 10};
    for (const RulerSteps& finer : {RulerSteps{50, 10, 10}, RulerSteps{20, 10, 5}, RulerSteps{10, 5, 1},
                                    RulerSteps{5, 5, 1}, RulerSteps{2, 1, 1}, RulerSteps{1, 1, 1}}) {
        if (finer.Numbered * pixels >= kNumberRoom) {
            steps = finer;
        }
    }
    while (steps.Least * pixels < kTickRoom) {
        steps.Least = steps.Least == 1 ? 5 : steps.Least * 2;
    }
    return steps;
}

Ruler::Ruler(Qt::Orientation orientation, QWidget* parent) : QWidget(parent), m_orientation(orientation) {
    QFont small = font();
    small.setPointSizeF(std::max(6.5, small.pointSizeF() * 0.75));
    setFont(small);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

int Ruler::Thickness(const QWidget& widget) {
    return std::max(20, QFontMetrics(widget.font()).height() + 6);
}

void Ruler::Show(const PageView& view) {
    m_view = view;
    update();
}

void Ruler::Mark(std::optional<float> place) {
    if (m_mark != place) {
        m_mark = place;
        update();
    }
}

void Ruler::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const CanvasColors colors = ColorsOf(palette());
    painter.fillRect(rect(), colors.Ruler);
    DrawSheet(painter);
    DrawTicks(painter);
    painter.setPen(QPen(colors.RulerEdge, 0.0));
    const QRectF edge = QRectF(rect()).adjusted(0.0, 0.0, -0.5, -0.5);
    painter.drawLine(m_orientation == Qt::Horizontal ? QLineF(edge.bottomLeft(), edge.bottomRight())
                                                     : QLineF(edge.topRight(), edge.bottomRight()));
    DrawMark(painter);
}

double Ruler::Along(double millimetres) const {
    const int scroll = m_orientation == Qt::Horizontal ? m_view.Scroll().X : m_view.Scroll().Y;
    return (millimetres * m_view.PixelsPerMillimetre() - scroll) / devicePixelRatioF();
}

QLineF Ruler::Tick(double along, double length) const {
    return m_orientation == Qt::Horizontal ? QLineF(along, height() - length, along, height())
                                           : QLineF(width() - length, along, width(), along);
}

void Ruler::DrawSheet(QPainter& painter) const {
    const penlode::RectF& sheet = m_view.Sheet();
    const QRectF part = m_orientation == Qt::Horizontal
                            ? QRectF(QPointF(Along(sheet.X), 0.0), QPointF(Along(sheet.Right()), height()))
                            : QRectF(QPointF(0.0, Along(sheet.Y)), QPointF(width(), Along(sheet.Bottom())));
    painter.fillRect(part, ColorsOf(palette()).RulerOnSheet);
}

void Ruler::DrawTicks(QPainter& painter) const {
    const double pixels = m_view.PixelsPerMillimetre() / devicePixelRatioF();
    const RulerSteps steps = StepsAt(pixels);
    const int length = m_orientation == Qt::Horizontal ? width() : height();
    const auto first = static_cast<int>(std::floor(-Along(0.0) / pixels / steps.Numbered)) * steps.Numbered;
    painter.setPen(QPen(ColorsOf(palette()).RulerInk, 0.0));
    for (int place = first; Along(place) < length; place += steps.Least) {
        // In the middle of a pixel, or else the line is two pale ones.
        const double ratio = devicePixelRatioF();
        const double along = (std::floor(Along(place) * ratio) + 0.5) / ratio;
        if (place % steps.Numbered == 0) {
            painter.drawLine(Tick(along, m_orientation == Qt::Horizontal ? height() : width()));
            DrawNumber(painter, along, place);
        } else {
            painter.drawLine(Tick(along, place % steps.Middle == 0 ? 6.0 : 3.0));
        }
    }
}

/// Beside its tick; along an upright ruler it reads upwards.
void Ruler::DrawNumber(QPainter& painter, double along, int number) const {
    const QString text = QString::number(number);
    const double baseline = QFontMetricsF(font()).ascent();
    if (m_orientation == Qt::Horizontal) {
        painter.drawText(QPointF(along + 3.0, baseline), text);
        return;
    }
    painter.save();
    painter.translate(baseline, along - 3.0);
    painter.rotate(-90.0);
    painter.drawText(QPointF(), text);
    painter.restore();
}

void Ruler::DrawMark(QPainter& painter) const {
    if (!m_mark) {
        return;
    }
    constexpr double kHalf = 3.5;
    const double along = Along(*m_mark);
    QPolygonF arrow;
    if (m_orientation == Qt::Horizontal) {
        const double tip = height();
        arrow << QPointF(along, tip) << QPointF(along - kHalf, tip - kHalf - 1.5)
              << QPointF(along + kHalf, tip - kHalf - 1.5);
    } else {
        const double tip = width();
        arrow << QPointF(tip, along) << QPointF(tip - kHalf - 1.5, along - kHalf)
              << QPointF(tip - kHalf - 1.5, along + kHalf);
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ColorsOf(palette()).Accent);
    painter.drawPolygon(arrow);
}

} // namespace designer
