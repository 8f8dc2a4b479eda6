#pragma once

#include "table/TableChange.h"

#include <QLineEdit>
#include <functional>
#include <optional>

namespace designer {

/// Where a person types: a cell, or the heading of its column.
struct TypingPlace {
    std::optional<std::size_t> Row; ///< nothing: the heading
    std::size_t Column = 0;
};

/// A line in the place of a cell or a heading, for one session of typing, in which each change of the text is
/// told with the same `merge`. Texts that an input method is still composing are not told.
class CellEditor : public QLineEdit {
    Q_OBJECT

public:
    /// `rows` and `columns` are those of the table before anything was typed, to which Revert brings it back.
    CellEditor(TypingPlace place, const QString& original, std::size_t rows, std::size_t columns,
               QWidget* parent);

    /// Tells the change that restores what was there, unless nothing was told.
    void Revert();
    /// The table has this text now. It is taken over if somebody else changed it.
    void TakeShown(const QString& text);

    bool IsComposing() const { return m_isComposing; }

    /// Was it opened by typing? Then arrows to the sides leave it too, as nobody needs them yet.
    bool IsTypedOver() const { return m_isTypedOver; }

    void SetTypedOver(bool isTypedOver);

Q_SIGNALS:
    void ChangeWanted(QString name, std::function<void(designer::DataTable&)> change, QString merge);

protected:
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    /// With a line round it, as it has no frame of its own.
    void paintEvent(QPaintEvent* event) override;

private:
    void TellText();
    void Tell(const TableChange& change);

    TypingPlace m_place;
    QString m_original;
    std::size_t m_rows;
    std::size_t m_columns;
    QString m_merge = NewMergeKey();
    QString m_told;  ///< what was typed when it was told last
    QString m_shown; ///< what the table has for it
    bool m_wasTold = false;
    bool m_isTelling = false;
    bool m_isComposing = false;
    bool m_isTypedOver = false;
};

} // namespace designer
