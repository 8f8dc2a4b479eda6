#pragma once

#include "canvas/Picture.h"
#include "model/PageView.h"

#include <QMutex>
#include <QThread>
#include <QWaitCondition>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace designer {

struct ShownChart;

/// A document to be laid out, if it was not the last time, and drawn as a view has it.
struct DrawingOrder {
    std::shared_ptr<const millichart::ChartDocument> Document;
    std::uint64_t Revision = 0;
    PageView View;         ///< of the sheet that is shown now
    bool IsFitted = false; ///< the new sheet is to be seen as a whole
    bool IsFirst = false;  ///< no sheet was shown before
};

/// What came of an order.
struct Drawing {
    std::shared_ptr<const ShownChart> Chart;
    std::shared_ptr<const std::vector<millichart::PlacedPart>> Parts; ///< in reading order
    penlode::RectF Sheet;
    bool IsFirst = false; ///< as the order had it
    designer::Picture Picture;
};

/// Puts a sheet into a view, as an order has it; the interface does the same when the drawing arrives.
void TakeSheet(PageView& view, const penlode::RectF& sheet, bool isFitted, bool isFirst);

/// Lays out and draws beside the interface. Of several orders that wait only the latest is carried out; one
/// that has begun is finished. A document is laid out once, however often it is drawn.
class DrawingThread : public QThread {
    Q_OBJECT

public:
    DrawingThread();
    /// Waits for an order that has begun.
    ~DrawingThread() override;

    void Order(DrawingOrder order);
    /// The latest drawing since the last call, if any.
    std::shared_ptr<const Drawing> Take();
    /// Until no order is left.
    void WaitUntilIdle();

    bool IsIdle() const;
    /// Of all orders until now, and of layouts; for tests.
    int DrawnCount() const;
    int LaidOutCount() const;

Q_SIGNALS:
    /// A drawing can be taken.
    void Ready();

protected:
    void run() override;

private:
    std::shared_ptr<const Drawing> CarryOut(const DrawingOrder& order);
    void LayOut(const DrawingOrder& order);

    mutable QMutex m_mutex;
    QWaitCondition m_ordered;
    QWaitCondition m_idle;
    std::optional<DrawingOrder> m_order;
    std::shared_ptr<const Drawing> m_drawing;
    bool m_isBusy = false;
    bool m_isEnding = false;
    int m_drawnCount = 0;
    int m_laidOutCount = 0;

    // The thread's own.
    std::shared_ptr<const ShownChart> m_chart;
    std::shared_ptr<const std::vector<millichart::PlacedPart>> m_parts;
    penlode::RectF m_sheet;
};

} // namespace designer
