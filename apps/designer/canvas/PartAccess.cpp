#include "canvas/PartAccess.h"

#include "canvas/CanvasAccess.h"
#include "model/ChartEdits.h"

#include <QWindow>

namespace designer {

using millichart::ChartPart;
using millichart::PartKind;

PartAccess::PartAccess(CanvasAccess& chart, std::size_t node, std::optional<std::size_t> point)
    : m_chart(chart), m_node(node), m_point(point) {}

const PartNode& PartAccess::Node() const {
    return m_chart.Tree()[m_node];
}

std::optional<ChartPart> PartAccess::Part() const {
    if (!Node().IsPart()) {
        return std::nullopt;
    }
    return m_point ? m_chart.PointOf(*Node().Part, *m_point) : Node().Part;
}

QWindow* PartAccess::window() const {
    return m_chart.window();
}

QAccessibleInterface* PartAccess::parent() const {
    return m_chart.At(m_point ? m_node : Node().Parent);
}

int PartAccess::childCount() const {
    if (m_point) {
        return 0;
    }
    const bool isCurve = Node().IsPart() && Node().Part->Kind == PartKind::Curve;
    return static_cast<int>(isCurve ? m_chart.PointCount(*Node().Part) : Node().Children.size());
}

QAccessibleInterface* PartAccess::child(int index) const {
    if (index < 0 || index >= childCount()) {
        return nullptr;
    }
    const auto place = static_cast<std::size_t>(index);
    return Node().Children.empty() ? m_chart.At(m_node, place) : m_chart.At(Node().Children[place]);
}

QAccessibleInterface* PartAccess::childAt(int x, int y) const {
    QAccessibleInterface* at = m_chart.childAt(x, y);
    for (QAccessibleInterface* up = at; up != nullptr && up != &m_chart; up = up->parent()) {
        if (up->parent() == this) {
            return up;
        }
    }
    return nullptr;
}

int PartAccess::indexOfChild(const QAccessibleInterface* child) const {
    return m_chart.IndexIn(m_node, child);
}

QString PartAccess::text(QAccessible::Text kind) const {
    if (kind != QAccessible::Name && kind != QAccessible::Value) {
        return {};
    }
    return Node().IsPart() ? Facts(kind) : kind == QAccessible::Name ? GroupName() : QString();
}

/// A slice's share is told with its value.
QString PartAccess::Facts(QAccessible::Text kind) const {
    const auto shown = m_chart.Canvas().Shown();
    if (!shown || !shown->Document) {
        return {};
    }
    const PartFacts facts = FactsOf(*shown->Document, shown->Chart, *Part());
    if (kind == QAccessible::Name) {
        return QString::fromStdString(facts.Name).trimmed();
    }
    const bool hasBoth = !facts.Value.empty() && !facts.Share.empty();
    return QString::fromStdString(facts.Value + (hasBoth ? ", " : "") + facts.Share);
}

QString PartAccess::GroupName() const {
    switch (Node().Group) {
    case PartGroup::Data:
        return ChartCanvas::tr("数据");
    case PartGroup::Texts:
        return ChartCanvas::tr("文字");
    case PartGroup::Axes:
        return ChartCanvas::tr("坐标轴");
    case PartGroup::BarGroup:
        return ChartCanvas::tr("第 %1 组").arg(Node().Part->Index + 1);
    default:
        return ChartCanvas::tr("图表");
    }
}

QRect PartAccess::rect() const {
    if (!m_point) {
        return m_chart.PlaceOf(Node().Box);
    }
    const auto shown = m_chart.Canvas().Shown();
    const auto* chart = shown ? std::get_if<millichart::CBasicCurve>(&shown->Chart.Chart) : nullptr;
    const ChartPart point = *Part();
    if (chart == nullptr || point.Index >= chart->GetLayout().Curves.size() ||
        point.Component >= chart->GetLayout().Curves[point.Index].Size()) {
        return {};
    }
    constexpr float kHalf = 0.5F;
    const penlode::PointF place = chart->GetLayout().Curves[point.Index].Points()[point.Component];
    return m_chart.PlaceOf({place.X - kHalf, place.Y - kHalf, 2.0F * kHalf, 2.0F * kHalf});
}

QAccessible::Role PartAccess::role() const {
    if (!Node().IsPart()) {
        return QAccessible::Grouping;
    }
    switch (Part()->Kind) {
    case PartKind::Slice:
    case PartKind::Bar:
    case PartKind::CurvePoint:
    case PartKind::LegendName:
        return QAccessible::ListItem;
    case PartKind::Curve:
    case PartKind::Legend:
        return QAccessible::List;
    case PartKind::Plot:
    case PartKind::VerAxis:
    case PartKind::HorAxis:
    case PartKind::LegendSample:
        return QAccessible::Graphic;
    default:
        return QAccessible::StaticText;
    }
}

QAccessible::State PartAccess::state() const {
    QAccessible::State state;
    const ChartCanvas& canvas = m_chart.Canvas();
    const auto part = Part();
    state.invisible = !canvas.isVisible();
    state.offscreen = !canvas.viewport()->visibleRegion().intersects(
        rect().translated(-canvas.viewport()->mapToGlobal(QPoint())));
    if (part && !m_point) {
        state.selectable = true;
        state.focusable = true;
        state.selected = canvas.Selected() == part;
        state.focused = state.selected && canvas.hasFocus();
        state.movable = MobilityOf(canvas.Shown()->Chart, *part) != Mobility::None;
    }
    return state;
}

void* PartAccess::interface_cast(QAccessible::InterfaceType type) {
    const bool hasActions = type == QAccessible::ActionInterface && Node().IsPart() && !m_point;
    return hasActions ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

QStringList PartAccess::actionNames() const {
    return {setFocusAction(), pressAction()};
}

void PartAccess::doAction(const QString& name) {
    ChartCanvas& canvas = m_chart.Canvas();
    const auto part = Part(); // selecting may end this interface
    if (name == setFocusAction()) {
        canvas.setFocus();
        canvas.Select(part);
    } else if (name == pressAction()) {
        canvas.Select(part);
        Q_EMIT canvas.Opened(part);
    }
}

} // namespace designer
