#include "canvas/DrawingThread.h"

#include "canvas/ChartCanvas.h"
#include "canvas/ReadingOrder.h"

#include <QMutexLocker>
#include <utility>

namespace designer {
namespace {

using penlode::RectF;

/// The sheet of a document that draws nothing.
constexpr RectF kEmptySheet{0.0F, 0.0F, 120.0F, 80.0F};

RectF SheetOf(const millichart::LaidOutChart& chart) {
    constexpr float kMargin = 6.0F;
    const RectF ink = chart.InkExtent();
    if (!(ink.Width > 0.0F) || !(ink.Height > 0.0F)) {
        return kEmptySheet;
    }
    return {ink.X - kMargin, ink.Y - kMargin, ink.Width + 2.0F * kMargin, ink.Height + 2.0F * kMargin};
}

} // namespace

void TakeSheet(PageView& view, const RectF& sheet, bool isFitted, bool isFirst) {
    if (isFirst) {
        view.ShowSheet(sheet);
    } else {
        view.UpdateSheet(sheet);
    }
    if (isFitted) {
        view.Fit();
    }
}

DrawingThread::DrawingThread() {
    start();
}

DrawingThread::~DrawingThread() {
    {
        const QMutexLocker lock(&m_mutex);
        m_isEnding = true;
        m_order.reset();
        m_ordered.wakeAll();
    }
    wait();
}

void DrawingThread::Order(DrawingOrder order) {
    const QMutexLocker lock(&m_mutex);
    m_order = std::move(order);
    m_ordered.wakeAll();
}

std::shared_ptr<const Drawing> DrawingThread::Take() {
    const QMutexLocker lock(&m_mutex);
    return std::exchange(m_drawing, nullptr);
}

void DrawingThread::WaitUntilIdle() {
    QMutexLocker lock(&m_mutex);
    while (m_order || m_isBusy) {
        m_idle.wait(&m_mutex);
    }
}

bool DrawingThread::IsIdle() const {
    const QMutexLocker lock(&m_mutex);
    return !m_order && !m_isBusy;
}

int DrawingThread::DrawnCount() const {
    const QMutexLocker lock(&m_mutex);
    return m_drawnCount;
}

int DrawingThread::LaidOutCount() const {
    const QMutexLocker lock(&m_mutex);
    return m_laidOutCount;
}

void DrawingThread::run() {
    QMutexLocker lock(&m_mutex);
    while (!m_isEnding) {
        if (!m_order) {
            m_idle.wakeAll();
            m_ordered.wait(&m_mutex);
            continue;
        }
        const DrawingOrder order = *std::exchange(m_order, std::nullopt);
        m_isBusy = true;
        lock.unlock();
        auto drawing = CarryOut(order);
        lock.relock();
        m_isBusy = false;
        m_drawing = std::move(drawing);
        ++m_drawnCount;
        lock.unlock();
        Q_EMIT Ready();
        lock.relock();
    }
}

std::shared_ptr<const Drawing> DrawingThread::CarryOut(const DrawingOrder& order) {
    if (!m_chart || m_chart->Document != order.Document || m_chart->Revision != order.Revision) {
        LayOut(order);
    }
    PageView view = order.View;
    TakeSheet(view, m_sheet, order.IsFitted, order.IsFirst);
    return std::make_shared<const Drawing>(
        Drawing{m_chart, m_parts, m_sheet, order.IsFirst,
                Drawn(m_chart->Chart, AreaToDraw(view), view.PixelsPerMillimetre())});
}

void DrawingThread::LayOut(const DrawingOrder& order) {
    auto chart = std::make_shared<ShownChart>();
    chart->Document = order.Document;
    chart->Revision = order.Revision;
    if (order.Document) {
        chart->Chart = order.Document->LayOut();
    }
    m_sheet = SheetOf(chart->Chart);
    m_parts = std::make_shared<const std::vector<millichart::PlacedPart>>(InReadingOrder(chart->Chart));
    m_chart = std::move(chart);
    const QMutexLocker lock(&m_mutex);
    ++m_laidOutCount;
}

} // namespace designer
