#pragma once

#include "canvas/ChartCanvas.h"

#include <QImage>
#include <memory>

namespace designer::test {

using Document = std::shared_ptr<const millichart::ChartDocument>;

/// Makes the application, on no screen, before any widget.
class WithWidgets {
public:
    WithWidgets();
};

/// A canvas in a window of its own, as large as most; the page is shown when the constructor ends.
class OpenCanvas : WithWidgets {
public:
    explicit OpenCanvas(Document document, QSize size = QSize(900, 640));

    ChartCanvas* operator->() { return &Widget; }

    /// Another document, as its owner would show it.
    void Show(Document document);

    /// The box of the first part of a kind, which must be there.
    millichart::PlacedPart Part(millichart::PartKind kind, std::size_t index = 0) const;
    QPoint Middle(const millichart::PlacedPart& part) const;

    void Click(QPoint at, Qt::MouseButton button = Qt::LeftButton);
    void Drag(QPoint from, QPoint to, Qt::MouseButton button = Qt::LeftButton, bool isKept = true);
    void MoveTo(QPoint at, Qt::MouseButtons pressed = Qt::NoButton, Qt::KeyboardModifiers keys = {});

    /// The canvas as it is on the screen, in its own pixels.
    QImage Seen();
    /// The same into a file, in the folder that MILLICHART_SEEN names, if it does.
    void Picture(const char* name);

    ChartCanvas Widget;

private:
    std::uint64_t m_revision = 0;
};

/// Of an example, as in "pie-oceans".
Document Example(const char* name);
/// A curve chart with so many points.
Document LongCurve(std::size_t points);

} // namespace designer::test
