#pragma once

#include "canvas/ChartCanvas.h"
#include "canvas/PartTree.h"

#include <QAccessibleWidget>
#include <map>
#include <utility>

namespace designer {

/// A canvas for programs for the blind: a chart whose parts are its children.
class CanvasAccess : public QAccessibleWidget {
public:
    explicit CanvasAccess(ChartCanvas& canvas);
    ~CanvasAccess() override;

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* focusChild() const override;
    QString text(QAccessible::Text kind) const override;

    /// The canvas shows another chart. Interfaces stay if the chart has the same parts.
    void Update();

    ChartCanvas& Canvas() const;

    const std::vector<PartNode>& Tree() const { return m_tree; }

    /// The interface of a node, which is made when it is first asked for; `point` is one of a curve's, or
    /// none. The canvas itself for the first node.
    QAccessibleInterface* At(std::size_t node, std::optional<std::size_t> point = std::nullopt) const;
    QAccessibleInterface* Of(const millichart::ChartPart& part) const;
    /// Among the children of a node; -1 for none.
    int IndexIn(std::size_t node, const QAccessibleInterface* child) const;
    /// Of a curve, spread over all that it has.
    std::size_t PointCount(const millichart::ChartPart& curve) const;
    millichart::ChartPart PointOf(const millichart::ChartPart& curve, std::size_t point) const;
    /// On the screen.
    QRect PlaceOf(const penlode::RectF& onPage) const;

private:
    using Key = std::pair<std::size_t, std::size_t>;

    void Drop();

    std::vector<PartNode> m_tree;
    mutable std::map<Key, QAccessible::Id> m_made; ///< by node and point + 1
};

/// From now on canvases have such interfaces.
void InstallCanvasAccess();

/// Does nothing while nobody listens.
void UpdateCanvasAccess(ChartCanvas& canvas);

/// A part is selected, which has the focus within the chart.
void TellSelectedPart(ChartCanvas& canvas, const millichart::ChartPart& part);

} // namespace designer
