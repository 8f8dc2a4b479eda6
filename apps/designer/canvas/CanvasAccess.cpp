#include "canvas/CanvasAccess.h"

#include "canvas/PartAccess.h"

#include <algorithm>

namespace designer {

using millichart::ChartPart;
using millichart::PartKind;

namespace {

QAccessibleInterface* MakeAccess(const QString&, QObject* object) {
    auto* canvas = qobject_cast<ChartCanvas*>(object);
    return canvas != nullptr ? new CanvasAccess(*canvas) : nullptr;
}

/// Points of the longest curves that are told; more nobody goes through.
constexpr std::size_t kMostPoints = 1000;

std::size_t AllPoints(const ShownChart& shown, const ChartPart& curve) {
    const auto* chart = std::get_if<millichart::CBasicCurve>(&shown.Chart.Chart);
    if (chart == nullptr) {
        return 0;
    }
    const auto& curves = chart->GetLayout().Curves;
    return curve.Index < curves.size() ? curves[curve.Index].Size() : 0;
}

/// Of those canvases that somebody asked for theirs.
std::map<const QObject*, CanvasAccess*>& AllAccess() {
    static std::map<const QObject*, CanvasAccess*> all;
    return all;
}

CanvasAccess* AccessOf(const ChartCanvas& canvas) {
    const auto found = AllAccess().find(&canvas);
    return found == AllAccess().end() ? nullptr : found->second;
}

} // namespace

void InstallCanvasAccess() {
    static const bool isInstalled = [] {
        QAccessible::installFactory(MakeAccess);
        return true;
    }();
    static_cast<void>(isInstalled);
}

void UpdateCanvasAccess(ChartCanvas& canvas) {
    if (CanvasAccess* access = AccessOf(canvas)) {
        access->Update();
    }
}

void TellSelectedPart(ChartCanvas& canvas, const ChartPart& part) {
    CanvasAccess* access = AccessOf(canvas);
    QAccessibleInterface* selected = access != nullptr ? access->Of(part) : nullptr;
    if (selected == nullptr) {
        return;
    }
    QAccessibleEvent selection(selected, QAccessible::Selection);
    QAccessible::updateAccessibility(&selection);
    if (canvas.hasFocus()) {
        QAccessibleEvent focus(selected, QAccessible::Focus);
        QAccessible::updateAccessibility(&focus);
    }
}

CanvasAccess::CanvasAccess(ChartCanvas& canvas)
    : QAccessibleWidget(&canvas, QAccessible::Chart), m_tree(TreeOf(canvas.Parts())) {
    AllAccess()[&canvas] = this;
}

CanvasAccess::~CanvasAccess() {
    std::erase_if(AllAccess(), [this](const auto& entry) { return entry.second == this; });
    Drop();
}

ChartCanvas& CanvasAccess::Canvas() const {
    return *static_cast<ChartCanvas*>(widget());
}

void CanvasAccess::Drop() {
    for (const auto& made : std::exchange(m_made, {})) {
        QAccessible::deleteAccessibleInterface(made.second);
    }
}

void CanvasAccess::Update() {
    auto tree = TreeOf(Canvas().Parts());
    const bool isSame = AreAlike(m_tree, tree);
    if (!isSame) {
        Drop();
    }
    m_tree = std::move(tree);
    if (!isSame) {
        QAccessibleEvent event(widget(), QAccessible::ObjectReorder);
        QAccessible::updateAccessibility(&event);
    }
}

QAccessibleInterface* CanvasAccess::At(std::size_t node, std::optional<std::size_t> point) const {
    if (node == 0) {
        return const_cast<CanvasAccess*>(this);
    }
    const Key key{node, point ? *point + 1 : 0};
    const auto known = m_made.find(key);
    if (known != m_made.end()) {
        return QAccessible::accessibleInterface(known->second);
    }
    auto* made = new PartAccess(const_cast<CanvasAccess&>(*this), node, point); // the registry's from here
    m_made[key] = QAccessible::registerAccessibleInterface(made);
    return made;
}

QAccessibleInterface* CanvasAccess::Of(const ChartPart& part) const {
    ChartPart sought = part;
    if (part.Kind == PartKind::CurvePoint) {
        sought = {PartKind::Curve, part.Index, 0, part.Part};
    }
    for (std::size_t node = 0; node < m_tree.size(); ++node) {
        if (m_tree[node].IsPart() && m_tree[node].Part == sought) {
            return At(node);
        }
    }
    return nullptr;
}

int CanvasAccess::IndexIn(std::size_t node, const QAccessibleInterface* child) const {
    const auto& children = m_tree[node].Children;
    for (const auto& [key, id] : m_made) {
        if (QAccessible::accessibleInterface(id) != child) {
            continue;
        }
        if (key.second > 0) {
            return key.first == node ? static_cast<int>(key.second) - 1 : -1;
        }
        const auto found = std::find(children.begin(), children.end(), key.first);
        return found == children.end() ? -1 : static_cast<int>(found - children.begin());
    }
    return -1;
}

std::size_t CanvasAccess::PointCount(const ChartPart& curve) const {
    const auto shown = Canvas().Shown();
    return shown ? std::min(AllPoints(*shown, curve), kMostPoints) : 0;
}

ChartPart CanvasAccess::PointOf(const ChartPart& curve, std::size_t point) const {
    const std::size_t count = std::max<std::size_t>(PointCount(curve), 1);
    return {PartKind::CurvePoint, curve.Index, point * AllPoints(*Canvas().Shown(), curve) / count,
            curve.Part};
}

QRect CanvasAccess::PlaceOf(const penlode::RectF& onPage) const {
    const QRect box = Canvas().ToViewport(onPage);
    return {Canvas().viewport()->mapToGlobal(box.topLeft()), box.size()};
}

int CanvasAccess::childCount() const {
    return static_cast<int>(m_tree.front().Children.size());
}

QAccessibleInterface* CanvasAccess::child(int index) const {
    return index >= 0 && index < childCount() ? At(m_tree.front().Children[static_cast<std::size_t>(index)])
                                              : nullptr;
}

/// The part itself, however deep it stands.
QAccessibleInterface* CanvasAccess::childAt(int x, int y) const {
    const auto shown = Canvas().Shown();
    const QPoint place = Canvas().viewport()->mapFromGlobal(QPoint(x, y));
    if (!shown || !Canvas().viewport()->rect().contains(place)) {
        return nullptr;
    }
    const auto part = shown->Chart.HitTest(Canvas().ToPage(place));
    return part ? Of(part->Part) : nullptr;
}

int CanvasAccess::indexOfChild(const QAccessibleInterface* child) const {
    return IndexIn(0, child);
}

QAccessibleInterface* CanvasAccess::focusChild() const {
    const auto selected = Canvas().Selected();
    return selected && Canvas().hasFocus() ? Of(*selected) : nullptr;
}

QString CanvasAccess::text(QAccessible::Text kind) const {
    const auto shown = Canvas().Shown();
    if (kind == QAccessible::Description && shown && shown->Document) {
        return QString::fromStdString(shown->Document->Title);
    }
    return QAccessibleWidget::text(kind);
}

} // namespace designer
