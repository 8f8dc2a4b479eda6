#pragma once

#include "table/CellEditor.h"

#include <QHeaderView>
#include <QPointer>
#include <optional>

namespace designer {

/// The headings of columns, which can be edited in place, or the numbers of rows. Sections that are selected
/// as a whole can be dragged to another place; dragging over others selects, as ever. The sections themselves
/// never move: that is told, and the table changes.
class TableHeader : public QHeaderView {
    Q_OBJECT

public:
    explicit TableHeader(Qt::Orientation orientation, QWidget* parent = nullptr);

    /// Of a column, which is scrolled to before.
    void EditHeading(int section);
    /// What the open editor edits is this now; moves it to where its section is.
    void TakeShown();

    CellEditor* OpenEditor() const { return m_editor; }

    /// Are all cells of that row or column selected?
    bool IsWholeSelected(int section) const;

Q_SIGNALS:
    void ChangeWanted(QString name, std::function<void(designer::DataTable&)> change, QString merge);
    /// The selected sections shall stand before this one.
    void MoveWanted(int before);
    void MenuWanted(int section, QPoint onScreen);
    /// Enter was pressed in a heading.
    void HeadingEntered(int section);
    /// Editing would go on with this heading.
    void HeadingWanted(int section);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    int Along(QPoint at) const;
    int BoundaryAt(int along) const;
    bool LeaveEditor(int key);
    void CloseEditor();
    void PlaceEditor();

    QPointer<CellEditor> m_editor;
    int m_edited = -1;
    int m_pressed = -1; ///< the section by which those selected may be dragged
    QPoint m_pressedAt;
    std::optional<int> m_drop; ///< while dragging: before which section
};

} // namespace designer
