#include "window/SizeDialog.h"

#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>

namespace designer {
namespace {

QDoubleSpinBox* LengthBox(float length, const char* name, QWidget* parent) {
    constexpr double kLeast = 10.0;
    constexpr double kMost = 2000.0;
    auto* const box = new QDoubleSpinBox(parent);
    box->setObjectName(QString::fromUtf8(name));
    box->setRange(kLeast, kMost);
    box->setDecimals(1);
    box->setSuffix(SizeDialog::tr(" 毫米"));
    box->setValue(static_cast<double>(length));
    return box;
}

} // namespace

SizeDialog::SizeDialog(penlode::SizeF now, QWidget* parent)
    : QDialog(parent), m_width(LengthBox(now.Width, "width", this)),
      m_height(LengthBox(now.Height, "height", this)) {
    setWindowTitle(tr("图表大小"));
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    auto* const form = new QFormLayout(this);
    form->addRow(tr("宽(&W)："), m_width);
    form->addRow(tr("高(&H)："), m_height);
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

penlode::SizeF SizeDialog::Size() const {
    return {static_cast<float>(m_width->value()), static_cast<float>(m_height->value())};
}

} // namespace designer
