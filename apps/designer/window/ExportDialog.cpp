#include "window/ExportDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <cmath>

namespace designer {
namespace {

constexpr double kMillimetresPerInch = 25.4;
constexpr double kMinDpi = 36.0;
constexpr double kMaxDpi = 2400.0;
constexpr double kUsualDpi = 300.0;

QString DpiKey() {
    return QStringLiteral("export/dpi");
}

QString FormatKey() {
    return QStringLiteral("export/format");
}

} // namespace

ExportDialog::ExportDialog(penlode::SizeF page, QWidget* parent)
    : QDialog(parent), m_page(page), m_format(new QComboBox(this)), m_dpi(new QDoubleSpinBox(this)),
      m_transparent(new QCheckBox(tr("透明背景(&T)"), this)), m_size(new QLabel(this)) {
    setWindowTitle(tr("导出图片"));
    m_format->setObjectName(QStringLiteral("format"));
    m_format->addItem(tr("PNG 图片"), static_cast<int>(PictureFormat::Png));
    m_format->addItem(tr("SVG 矢量图"), static_cast<int>(PictureFormat::Svg));
    m_format->addItem(tr("PDF 文档"), static_cast<int>(PictureFormat::Pdf));
    m_format->setCurrentIndex(QSettings().value(FormatKey(), 0).toInt());
    m_dpi->setObjectName(QStringLiteral("dpi"));
    m_dpi->setRange(kMinDpi, kMaxDpi);
    m_dpi->setDecimals(0);
    m_dpi->setValue(QSettings().value(DpiKey(), kUsualDpi).toDouble());
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Save)->setText(tr("导出(&E)…"));
    auto* const form = new QFormLayout(this);
    form->addRow(tr("格式(&F)："), m_format);
    form->addRow(tr("每英寸点数(&D)："), m_dpi);
    form->addRow(QString(), m_transparent);
    form->addRow(tr("大小："), m_size);
    form->addRow(buttons);
    connect(m_format, &QComboBox::currentIndexChanged, this, &ExportDialog::Update);
    connect(m_dpi, &QDoubleSpinBox::valueChanged, this, &ExportDialog::Update);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] {
        QSettings settings;
        settings.setValue(FormatKey(), m_format->currentIndex());
        settings.setValue(DpiKey(), m_dpi->value());
        accept();
    });
    Update();
}

PictureWish ExportDialog::Wish() const {
    const auto format = static_cast<PictureFormat>(m_format->currentData().toInt());
    return {format, m_dpi->value(), m_transparent->isChecked() && format != PictureFormat::Pdf};
}

QString ExportDialog::Ending() const {
    switch (Wish().Format) {
    case PictureFormat::Svg:
        return QStringLiteral(".svg");
    case PictureFormat::Pdf:
        return QStringLiteral(".pdf");
    case PictureFormat::Png:
        break;
    }
    return QStringLiteral(".png");
}

void ExportDialog::Update() {
    const PictureFormat format = Wish().Format;
    m_dpi->setEnabled(format == PictureFormat::Png);
    m_transparent->setEnabled(format != PictureFormat::Pdf);
    const auto width = static_cast<double>(m_page.Width);
    const auto height = static_cast<double>(m_page.Height);
    QString text = tr("%1 × %2 毫米").arg(width, 0, 'f', 1).arg(height, 0, 'f', 1);
    if (format == PictureFormat::Png) {
        const double scale = m_dpi->value() / kMillimetresPerInch;
        text += tr("，%1 × %2 像素").arg(std::lround(width * scale)).arg(std::lround(height * scale));
    }
    m_size->setText(text);
}

} // namespace designer
