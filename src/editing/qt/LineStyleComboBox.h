#pragma once

#include "foundation/Export.h"

#include <QComboBox>

class QPainter;

namespace millichart {

/// A list of the dash styles, each shown as a sample; item i stands for dash style i.
class MILLICHART_API CLineStyleComboBox : public QComboBox {
public:
    explicit CLineStyleComboBox(QWidget* parent = nullptr);

    /// Adds the five items, whose texts are "0" to "4". None of them is selected.
    void Initialize();

    /// Every item's height in pixels, which a screen's scaling multiplies.
    int MeasureItem() const;
    /// 0: items keep the order in which they were added.
    int CompareItem(int first, int second) const;
    void DrawItem(QPainter& painter, const QRect& box, int item, bool hasFocus, bool isSelected) const;

protected:
    /// The closed list shows its selection like an item of the open one, selected while it has the focus.
    void paintEvent(QPaintEvent* event) override;
};

} // namespace millichart
