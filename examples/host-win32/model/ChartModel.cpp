#include "model/ChartModel.h"

#include "canvas/ReadingOrder.h"
#include "model/PartNames.h"

#include <utility>

namespace host {
namespace {

using millichart::ChartDocument;
using millichart::ChartPart;
using millichart::PartKind;
using millichart::PlacedPart;
using penlode::PointF;
using penlode::RectF;

bool IsLegendEntry(const ChartPart& part) {
    return part.Kind == PartKind::LegendSample || part.Kind == PartKind::LegendName;
}

/// What moves as a whole with a part.
ChartPart Moving(const ChartPart& part) {
    return IsLegendEntry(part) ? ChartPart{PartKind::Legend, 0, 0, part.Part} : part;
}

PointF Times(PointF direction, float length) {
    return {direction.X * length, direction.Y * length};
}

/// So far that way that a docked part comes to another place, if there is one.
PointF ToNextPlace(const millichart::LaidOutChart& chart, const ChartPart& part, PointF direction) {
    constexpr float kStep = 5.0F;
    constexpr float kFarthest = 1000.0F;
    const auto present = designer::DockedPlace(chart, part, {});
    float length = kStep;
    while (length < kFarthest && designer::DockedPlace(chart, part, Times(direction, length)) == present) {
        length += kStep;
    }
    return Times(direction, length);
}

/// Steps of one part are one change.
std::string KeyOf(const ChartPart& part) {
    return "nudge " + std::to_string(static_cast<int>(part.Kind)) + ' ' + std::to_string(part.Index) + ' ' +
           std::to_string(part.Part);
}

} // namespace

ChartModel::ChartModel(designer::Editor editor) : m_editor(std::move(editor)) {
    Show(m_editor.Document());
}

RectF ChartModel::Sheet() const {
    constexpr float kMargin = 6.0F;
    const RectF ink = m_chart.InkExtent();
    return {ink.X - kMargin, ink.Y - kMargin, ink.Width + 2.0F * kMargin, ink.Height + 2.0F * kMargin};
}

std::string ChartModel::DescriptionOf(const ChartPart& part) const {
    return Described(part, designer::FactsOf(m_editor.Document(), m_chart, part));
}

designer::Mobility ChartModel::MobilityOf(const ChartPart& part) const {
    return designer::MobilityOf(m_chart, part);
}

std::optional<PlacedPart> ChartModel::PartAt(PointF point, float reach) const {
    return m_chart.HitTest(point, reach);
}

void ChartModel::Select(std::optional<ChartPart> part) {
    Cancel();
    const std::size_t place = part ? designer::PlaceOf(m_parts, *part) : m_parts.size();
    m_selected = place < m_parts.size() ? std::optional(m_parts[place]) : std::nullopt;
}

void ChartModel::SelectNext(int direction) {
    const std::size_t count = m_parts.size();
    if (count == 0) {
        return;
    }
    const std::size_t place = m_selected ? designer::PlaceOf(m_parts, m_selected->Part) : count;
    const std::size_t next = place >= count - 1 ? 0 : place + 1;
    const std::size_t before = place == 0 || place == count ? count - 1 : place - 1;
    Select(m_parts[direction > 0 ? next : before].Part);
}

bool ChartModel::Grab(PointF point, float reach) {
    Cancel();
    m_selected = PartAt(point, reach); // a curve's point, too, which is not among the parts
    if (m_selected && MobilityOf(m_selected->Part) != designer::Mobility::None) {
        m_grabbed = point;
    }
    return m_selected.has_value();
}

void ChartModel::DragTo(PointF point) {
    if (m_grabbed) {
        m_movement = point - *m_grabbed;
        m_outline = designer::MovedPlace(m_editor.Document(), m_chart, m_selected->Part, m_movement);
    }
}

std::string ChartModel::MovingName() const {
    return NameOf(Moving(m_selected->Part).Kind);
}

RectF ChartModel::MovingPlace() const {
    return designer::MovedPlace(m_editor.Document(), m_chart, m_selected->Part, {}).value_or(m_selected->Box);
}

void ChartModel::Drop() {
    const PointF by = m_movement;
    const bool isMoved = IsMoving() && by != PointF{}; // else labels would get offsets of 0
    Cancel();
    if (isMoved) {
        const ChartPart part = m_selected->Part;
        ChangeSelected("移动" + MovingName(),
                       [&](ChartDocument& document) { designer::MovePart(document, m_chart, part, by); });
    }
}

void ChartModel::Cancel() {
    m_grabbed.reset();
    m_movement = {};
    m_outline.reset();
}

bool ChartModel::Nudge(int x, int y, bool isFar) {
    const designer::Mobility how = m_selected ? MobilityOf(m_selected->Part) : designer::Mobility::None;
    if (how == designer::Mobility::None) {
        return false;
    }
    Cancel();
    const ChartPart part = m_selected->Part;
    const PointF direction{static_cast<float>(x), static_cast<float>(y)};
    const PointF by = how == designer::Mobility::Docked ? ToNextPlace(m_chart, part, direction)
                                                        : Times(direction, isFar ? 1.0F : 0.1F);
    ChangeSelected(
        "移动" + MovingName(),
        [&](ChartDocument& document) { designer::MovePart(document, m_chart, part, by); }, KeyOf(part));
    return true;
}

void ChartModel::Reset() {
    Cancel();
    if (m_selected) {
        const ChartPart part = m_selected->Part;
        ChangeSelected(MovingName() + "复位",
                       [&](ChartDocument& document) { designer::ResetPart(document, m_chart, part); });
    }
}

std::optional<std::string> ChartModel::EditableText() const {
    return m_selected ? designer::EditableText(m_editor.Document(), m_chart, m_selected->Part) : std::nullopt;
}

void ChartModel::SetText(const std::string& text) {
    if (EditableText().value_or(text) == text) {
        return;
    }
    const ChartPart part = m_selected->Part;
    ChangeSelected("修改" + NameOf(part.Kind),
                   [&](ChartDocument& document) { designer::SetText(document, m_chart, part, text); });
}

std::optional<penlode::Color> ChartModel::Color() const {
    return m_selected ? designer::ColorOf(m_editor.Document(), m_chart, m_selected->Part) : std::nullopt;
}

void ChartModel::SetColor(penlode::Color color) {
    if (!m_selected) {
        return;
    }
    const ChartPart part = m_selected->Part;
    ChangeSelected("修改颜色",
                   [&](ChartDocument& document) { designer::SetColor(document, m_chart, part, color); });
}

void ChartModel::Try(const ChartDocument& document) {
    Cancel();
    Show(document);
}

void ChartModel::EndTrial() {
    Show(m_editor.Document());
}

void ChartModel::Change(const std::string& name, const std::function<void(ChartDocument&)>& change) {
    m_editor.Change(name, change);
    EndTrial();
}

void ChartModel::ChangeTable(const std::string& name, std::size_t table,
                             const std::function<void(designer::DataTable&)>& change) {
    m_editor.ChangeTable(name, table, change);
    EndTrial();
}

void ChartModel::SwitchKind(const millichart::ChartKind& kind) {
    Cancel();
    m_selected.reset();
    m_editor.SwitchKind("改为" + NameOfKind(kind.Name), kind);
    EndTrial();
}

void ChartModel::Undo() {
    if (IsMoving()) {
        return Cancel();
    }
    const std::uint64_t before = m_editor.Revision();
    m_editor.Undo();
    ShowChange(before);
}

void ChartModel::Redo() {
    Cancel();
    const std::uint64_t before = m_editor.Revision();
    m_editor.Redo();
    ShowChange(before);
}

std::string ChartModel::Save(const std::string& file) {
    return m_editor.Save(file);
}

/// The selection stays on a part that is there still.
void ChartModel::Show(const ChartDocument& document) {
    m_chart = document.LayOut();
    m_parts = designer::InReadingOrder(m_chart);
    ++m_revision;
    Select(m_selected ? std::optional(m_selected->Part) : std::nullopt);
}

void ChartModel::ShowChange(std::uint64_t before) {
    if (m_editor.Revision() != before) {
        Show(m_editor.Document());
    }
}

void ChartModel::ChangeSelected(const std::string& name, const std::function<void(ChartDocument&)>& change,
                                const std::string& merge) {
    const std::uint64_t before = m_editor.Revision();
    m_editor.Change(name, change, merge);
    ShowChange(before);
}

} // namespace host
