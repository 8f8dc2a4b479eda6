#pragma once

#include "table/CellEditor.h"

#include <QPoint>
#include <QPointer>
#include <QStyledItemDelegate>

namespace designer {

/// Draws the cells of a TableModel and opens a CellEditor in them.
class CellDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// The one that was opened last, while there is one.
    CellEditor* OpenEditor() const { return m_editor; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    /// Nothing: all was told while it was typed.
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

Q_SIGNALS:
    void ChangeWanted(QString name, std::function<void(designer::DataTable&)> change, QString merge) const;
    /// By a key, after the editor was closed: `by` columns and rows.
    void Left(QPoint by, bool isEnter);

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
    bool eventFilter(QObject* editor, QEvent* event) override;

private:
    mutable QPointer<CellEditor> m_editor;
};

} // namespace designer
