#pragma once

#include "canvas/ChartCanvas.h"
#include "window/EditSession.h"

#include <QObject>

class QWidget;

namespace designer {

/// What a person does to the chart on the canvas, as named changes of the open document.
class ChartCommands : public QObject {
    Q_OBJECT

public:
    ChartCommands(EditSession& session, ChartCanvas& canvas, QWidget& window);

    /// The property sheet, at a part if there is one; with a live preview.
    void EditProperties(const std::optional<millichart::ChartPart>& at);
    /// Of the part or what it belongs to; does nothing for one without a colour.
    void PickColor(const millichart::ChartPart& part);
    void Reset(const millichart::ChartPart& part);
    /// Asks for the whole figure's width and height.
    void Resize();

    bool HasColor(const millichart::ChartPart& part);
    bool CanReset(const millichart::ChartPart& part);

Q_SIGNALS:
    /// For the status bar.
    void Told(QString text);

private:
    const millichart::LaidOutChart& Chart();
    void Move(const millichart::ChartPart& part, penlode::PointF by, bool isNudge);
    void TakeText(const millichart::ChartPart& part, const QString& text);
    void ShowMenu(const std::optional<millichart::ChartPart>& part, QPoint where);

    EditSession& m_session;
    ChartCanvas& m_canvas;
    QWidget& m_window;
    std::shared_ptr<const ShownChart> m_chart; ///< of the present document
};

} // namespace designer
