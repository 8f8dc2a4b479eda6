#include "canvas/PageOnScreen.h"

#include <utility>

namespace designer {

PageOnScreen::PageOnScreen() {
    connect(&m_thread, &DrawingThread::Ready, this, &PageOnScreen::Take, Qt::QueuedConnection);
}

void PageOnScreen::Show(std::shared_ptr<const millichart::ChartDocument> document, std::uint64_t revision) {
    m_isFirst = m_isFirst || !document;
    m_document = std::move(document);
    m_revision = revision;
    Order();
}

void PageOnScreen::WaitUntilShown() {
    while (!m_thread.IsIdle()) {
        m_thread.WaitUntilIdle();
        Take(); // may order once more, for a sheet that is another
    }
    Take();
}

std::shared_ptr<const ShownChart> PageOnScreen::Shown() const {
    return m_drawing ? m_drawing->Chart : nullptr;
}

const std::vector<millichart::PlacedPart>& PageOnScreen::Parts() const {
    static const std::vector<millichart::PlacedPart> none;
    return m_drawing ? *m_drawing->Parts : none;
}

const Picture* PageOnScreen::LastPicture() const {
    return m_drawing && !m_drawing->Picture.Pixels.isNull() ? &m_drawing->Picture : nullptr;
}

void PageOnScreen::Change(const std::function<void(PageView& view)>& change) {
    change(m_view);
    if (m_isFitted) {
        m_view.Fit();
    }
    Refresh();
    Q_EMIT Changed();
}

void PageOnScreen::Fit() {
    m_isFitted = true;
    Change([](PageView&) {});
}

void PageOnScreen::Take() {
    const auto drawing = m_thread.Take();
    if (!drawing) {
        return;
    }
    const bool isNew = !m_drawing || m_drawing->Chart != drawing->Chart;
    if (isNew) {
        TakeSheet(m_view, drawing->Sheet, m_isFitted, drawing->IsFirst);
    }
    m_isFirst = m_isFirst && !drawing->IsFirst;
    m_drawing = drawing;
    if (drawing->Chart->Document == m_document) { // or else its own drawing is under way
        Refresh();
    }
    Q_EMIT Changed();
    if (isNew) {
        Q_EMIT ChartShown(drawing->Chart->Revision);
    }
}

void PageOnScreen::Refresh() {
    if (m_drawing && !HasPicture()) {
        Order();
    }
}

void PageOnScreen::Order() {
    m_thread.Order({m_document, m_revision, m_view, m_isFitted, m_isFirst});
}

/// A view of a document that is still to come is drawn with it, when it is there.
bool PageOnScreen::HasPicture() const {
    const Picture& picture = m_drawing->Picture;
    return picture.PixelsPerMillimetre == m_view.PixelsPerMillimetre() &&
           picture.Area.Contains(AreaInSight(m_view)) && m_drawing->Chart->Document == m_document;
}

} // namespace designer
