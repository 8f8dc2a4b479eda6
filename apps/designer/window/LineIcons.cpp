#include "window/LineIcons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

namespace designer {
namespace {

constexpr double kGrid = 16.0; // the drawings' own units to a side
constexpr double kLine = 1.3;

QPainterPath Lines(std::initializer_list<QPointF> points) {
    QPainterPath path(*points.begin());
    for (const QPointF& point : points) {
        path.lineTo(point);
    }
    return path;
}

/// A sheet with a folded corner.
QPainterPath NewSheet() {
    QPainterPath path = Lines({{9.5, 1.5}, {3.0, 1.5}, {3.0, 14.5}, {13.0, 14.5}, {13.0, 5.0}, {9.5, 1.5}});
    path.addPath(Lines({{9.5, 1.5}, {9.5, 5.0}, {13.0, 5.0}}));
    return path;
}

QPainterPath OpenFolder() {
    QPainterPath path = Lines({{1.5, 13.5}, {1.5, 3.0}, {6.0, 3.0}, {7.5, 5.0}, {13.0, 5.0}, {13.0, 7.0}});
    path.addPath(Lines({{1.5, 13.5}, {4.0, 7.0}, {15.0, 7.0}, {12.5, 13.5}, {1.5, 13.5}}));
    return path;
}

QPainterPath Disk() {
    QPainterPath path = Lines({{2.0, 2.0}, {11.5, 2.0}, {14.0, 4.5}, {14.0, 14.0}, {2.0, 14.0}, {2.0, 2.0}});
    path.addPath(Lines({{5.0, 2.0}, {5.0, 6.0}, {10.0, 6.0}, {10.0, 2.0}}));
    path.addPath(Lines({{4.5, 14.0}, {4.5, 9.0}, {11.5, 9.0}, {11.5, 14.0}}));
    return path;
}

/// An arrow that leaves a box.
QPainterPath OutOfBox() {
    QPainterPath path = Lines({{5.0, 6.5}, {2.5, 6.5}, {2.5, 14.5}, {13.5, 14.5}, {13.5, 6.5}, {11.0, 6.5}});
    path.addPath(Lines({{8.0, 10.5}, {8.0, 1.5}}));
    path.addPath(Lines({{5.0, 4.5}, {8.0, 1.5}, {11.0, 4.5}}));
    return path;
}

QPainterPath BackArrow() {
    QPainterPath path = Lines({{5.5, 2.0}, {2.0, 5.5}, {5.5, 9.0}});
    path.addPath(Lines({{2.0, 5.5}, {10.0, 5.5}}));
    path.arcTo(QRectF(6.0, 5.5, 8.0, 8.0), 90.0, -180.0);
    path.lineTo(6.0, 13.5);
    return path;
}

/// Three sliders.
QPainterPath Sliders() {
    QPainterPath path;
    const auto add = [&path](double y, double knob) {
        path.addPath(Lines({{1.5, y}, {knob - 1.8, y}}));
        path.addPath(Lines({{knob + 1.8, y}, {14.5, y}}));
        path.addEllipse(QPointF(knob, y), 1.8, 1.8);
    };
    add(3.0, 10.5);
    add(8.0, 5.0);
    add(13.0, 9.0);
    return path;
}

QPainterPath PathOf(LineIcon what) {
    switch (what) {
    case LineIcon::New:
        return NewSheet();
    case LineIcon::Open:
        return OpenFolder();
    case LineIcon::Save:
        return Disk();
    case LineIcon::Export:
        return OutOfBox();
    case LineIcon::Undo:
        return BackArrow();
    case LineIcon::Redo:
        return QTransform(-1.0, 0.0, 0.0, 1.0, kGrid, 0.0).map(BackArrow());
    case LineIcon::Properties:
        return Sliders();
    }
    return {};
}

/// Drawn when it is shown, so that it follows the palette.
class LineIconEngine : public QIconEngine {
public:
    explicit LineIconEngine(LineIcon what) : m_what(what) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const double scale = std::min(rect.width(), rect.height()) / kGrid;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(scale, scale);
        painter->setPen(QPen(QGuiApplication::palette().color(group, QPalette::ButtonText), kLine,
                             Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->drawPath(PathOf(m_what));
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return picture;
    }

    QIconEngine* clone() const override { return new LineIconEngine(m_what); }

private:
    LineIcon m_what;
};

} // namespace

QIcon IconOf(LineIcon what) {
    return QIcon(new LineIconEngine(what));
}

} // namespace designer
