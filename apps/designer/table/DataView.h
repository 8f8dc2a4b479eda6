#pragma once

#include "model/DataTable.h"

#include <QTableView>
#include <functional>
#include <memory>

namespace designer {

/// A chart's table that behaves as a spreadsheet does. Changes nothing itself: a wanted change is told by a
/// signal, and whoever owns the table shows the next one.
class DataView : public QTableView {
    Q_OBJECT

public:
    explicit DataView(QWidget* parent = nullptr);

    /// Selection and what is being typed stay as far as the cells are the same.
    void Show(const DataTable& table);

Q_SIGNALS:
    /// `name` is for the undo menu; `merge` as in Editor::ChangeTable: a cell being typed in is one change,
    /// told at each keystroke.
    void ChangeWanted(QString name, std::function<void(designer::DataTable&)> change, QString merge);
    /// The row and column (0: the heads) that the user is at, for the canvas to show the part.
    void CurrentCellChanged(std::size_t row, std::size_t column);
};

} // namespace designer
