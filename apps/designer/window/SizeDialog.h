#pragma once

#include "penlode/Geometry.h"

#include <QDialog>

class QDoubleSpinBox;

namespace designer {

/// Asks for a figure's width and height, in mm.
class SizeDialog : public QDialog {
    Q_OBJECT

public:
    SizeDialog(penlode::SizeF now, QWidget* parent);

    penlode::SizeF Size() const;

private:
    QDoubleSpinBox* m_width;
    QDoubleSpinBox* m_height;
};

} // namespace designer
