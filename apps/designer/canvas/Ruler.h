#pragma once

#include "model/PageView.h"

#include <QWidget>
#include <optional>

namespace designer {

/// How a ruler is divided at a zoom, in mm.
struct RulerSteps {
    int Numbered = 10; ///< between two ticks with numbers
    int Middle = 5;    ///< between two longer ticks
    int Least = 1;     ///< between two ticks
};

/// So that numbers and ticks stand apart. `pixels` are the toolkit's own, a millimetre.
RulerSteps StepsAt(double pixels);

/// Millimetres of the page along one edge of the view, with the sheet's extent and the mouse's place.
class Ruler : public QWidget {
    Q_OBJECT

public:
    explicit Ruler(Qt::Orientation orientation, QWidget* parent = nullptr);

    /// Pixels across, for this font.
    static int Thickness(const QWidget& widget);

    void Show(const PageView& view);
    /// In mm of the page; none when the mouse is elsewhere.
    void Mark(std::optional<float> place);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    double Along(double millimetres) const;
    QLineF Tick(double along, double length) const;
    void DrawSheet(QPainter& painter) const;
    void DrawTicks(QPainter& painter) const;
    void DrawNumber(QPainter& painter, double along, int number) const;
    void DrawMark(QPainter& painter) const;

    Qt::Orientation m_orientation;
    PageView m_view;
    std::optional<float> m_mark;
};

} // namespace designer
