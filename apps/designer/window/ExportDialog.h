#pragma once

#include "window/Pictures.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLabel;

namespace designer {

/// Asks what kind of picture a chart shall become.
class ExportDialog : public QDialog {
    Q_OBJECT

public:
    /// `page` in mm.
    ExportDialog(penlode::SizeF page, QWidget* parent);

    PictureWish Wish() const;

    /// ".png"
    QString Ending() const;

private:
    void Update();

    penlode::SizeF m_page;
    QComboBox* m_format;
    QDoubleSpinBox* m_dpi;
    QCheckBox* m_transparent;
    QLabel* m_size;
};

} // namespace designer
