#pragma once

#include "canvas/ChartCanvas.h"
#include "canvas/DrawingThread.h"

#include <QObject>
#include <functional>

namespace designer {

/// The page as it is seen: its view, the latest picture of it, and the thread that draws the next one. Knows
/// no widget. What is seen and the chart that answers for it always belong together.
class PageOnScreen : public QObject {
    Q_OBJECT

public:
    PageOnScreen();

    void Show(std::shared_ptr<const millichart::ChartDocument> document, std::uint64_t revision);
    void WaitUntilShown();

    /// Of the number that was given to Show() last.
    std::uint64_t Wanted() const { return m_revision; }

    /// Null before the first.
    std::shared_ptr<const ShownChart> Shown() const;
    /// In reading order.
    const std::vector<millichart::PlacedPart>& Parts() const;
    /// Null as long as nothing was drawn; of another zoom or area than the view's while the next one is made.
    const Picture* LastPicture() const;

    const PageView& View() const { return m_view; }

    bool IsFitted() const { return m_isFitted; }

    /// Does something to the view and sees to it that a picture of what it shows then will come.
    void Change(const std::function<void(PageView& view)>& change);
    /// The whole sheet from now on.
    void Fit();

    void StopFitting() { m_isFitted = false; }

    const DrawingThread& Thread() const { return m_thread; }

Q_SIGNALS:
    /// The view or the picture is another.
    void Changed();
    void ChartShown(std::uint64_t revision);

private:
    void Take();
    void Refresh();
    void Order();
    bool HasPicture() const;

    PageView m_view;
    bool m_isFitted = false;
    bool m_isFirst = true;
    std::shared_ptr<const millichart::ChartDocument> m_document;
    std::uint64_t m_revision = 0;
    std::shared_ptr<const Drawing> m_drawing;
    DrawingThread m_thread;
};

} // namespace designer
