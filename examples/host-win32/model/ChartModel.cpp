#include "model/ChartModel.h"

#include <utility>

namespace host {

using penlode::PointF;
using penlode::RectF;

ChartModel::ChartModel(millichart::ChartDocument document) : m_history(std::move(document)) {
    LayOut();
}

RectF ChartModel::Sheet() const {
    constexpr float kMargin = 6.0F;
    const RectF ink = m_chart.InkExtent();
    return {ink.X - kMargin, ink.Y - kMargin, ink.Width + 2.0F * kMargin, ink.Height + 2.0F * kMargin};
}

const MovablePart* ChartModel::Selected() const {
    return m_selected ? &m_parts[*m_selected] : nullptr;
}

void ChartModel::Deselect() {
    Cancel();
    m_selected.reset();
}

void ChartModel::SelectNext(int direction) {
    Drop();
    if (m_parts.empty()) {
        return;
    }
    const std::size_t last = m_parts.size() - 1;
    if (direction > 0) {
        m_selected = m_selected && *m_selected < last ? *m_selected + 1 : 0;
    } else {
        m_selected = m_selected && *m_selected > 0 ? *m_selected - 1 : last;
    }
}

bool ChartModel::Grab(PointF point) {
    Drop();
    m_selected = PartAt(m_parts, point);
    m_grabbed = point;
    return m_selected.has_value();
}

void ChartModel::DragTo(PointF point) {
    if (m_selected) {
        m_moving = point - m_grabbed;
    }
}

void ChartModel::Nudge(PointF by) {
    if (m_selected) {
        m_moving = Movement() + by;
    }
}

std::optional<RectF> ChartModel::Outline() const {
    return m_moving ? std::optional(penlode::Translated(Selected()->Place, *m_moving)) : std::nullopt;
}

void ChartModel::Drop() {
    const PointF by = Movement();
    m_moving.reset();
    if (by == PointF{}) {
        return;
    }
    millichart::ChartDocument next = Document();
    MovePart(next, m_chart, *Selected(), by);
    m_history.Change(std::move(next));
    LayOut();
}

void ChartModel::Cancel() {
    m_moving.reset();
}

void ChartModel::Undo() {
    if (IsMoving()) {
        return Cancel();
    }
    m_history.Undo();
    LayOut();
}

void ChartModel::Redo() {
    Cancel();
    m_history.Redo();
    LayOut();
}

std::string ChartModel::Save(const std::string& file) {
    std::string fault = Document().Save(file);
    if (fault.empty()) {
        m_history.MarkSaved();
    }
    return fault;
}

void ChartModel::LayOut() {
    m_chart = Document().LayOut();
    m_parts = MovablePartsOf(m_chart);
    if (m_selected >= m_parts.size()) {
        m_selected.reset();
    }
    ++m_revision;
}

} // namespace host
