#pragma once

#include "canvas/PartTree.h"

#include <QAccessible>

namespace designer {

class CanvasAccess;

/// One node of a chart's tree for programs for the blind. Curves have points below them, which are no nodes:
/// their interfaces are made when somebody asks.
class PartAccess : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    /// `point` is none for the node itself, or the number of one of its points.
    PartAccess(CanvasAccess& chart, std::size_t node, std::optional<std::size_t> point);

    bool isValid() const override { return true; }

    QObject* object() const override { return nullptr; }

    QWindow* window() const override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int index) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QString text(QAccessible::Text kind) const override;

    void setText(QAccessible::Text, const QString&) override {}

    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString& name) override;

    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    const PartNode& Node() const;
    std::optional<millichart::ChartPart> Part() const;
    QString GroupName() const;
    QString Facts(QAccessible::Text kind) const;

    CanvasAccess& m_chart;
    std::size_t m_node;
    std::optional<std::size_t> m_point;
};

} // namespace designer
