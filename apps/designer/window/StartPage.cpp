#include "window/StartPage.h"

#include "window/Examples.h"
#include "window/PartNames.h"
#include "window/Pictures.h"
#include "window/RecentFiles.h"

#include <QFileInfo>
#include <QIcon>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

namespace designer {
namespace {

constexpr QSize kPicture{288, 192};
constexpr int kRoom = 16;

QLabel* Heading(const QString& text, QWidget* parent) {
    auto* const label = new QLabel(text, parent);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * 1.3);
    font.setBold(true);
    label->setFont(font);
    return label;
}

/// The example of a kind, small and whole on white, as sharp as the screen.
QIcon PictureOfKind(const millichart::ChartKind& kind, double scale) {
    const auto chart = ExampleOf(kind).LayOut();
    const QSize pixels = kPicture * scale;
    const penlode::SizeF page = PageSizeOf(chart);
    constexpr double kMillimetresPerInch = 25.4;
    const double dpi = kMillimetresPerInch * std::min(pixels.width() / static_cast<double>(page.Width),
                                                      pixels.height() / static_cast<double>(page.Height));
    QPixmap canvas(pixels);
    canvas.fill(Qt::white);
    QPainter painter(&canvas);
    const QImage picture = ImageOf(chart, dpi);
    painter.drawImage(
        QPoint((pixels.width() - picture.width()) / 2, (pixels.height() - picture.height()) / 2), picture);
    painter.setPen(QColor(0, 0, 0, 60));
    painter.drawRect(canvas.rect().adjusted(0, 0, -1, -1));
    painter.end();
    canvas.setDevicePixelRatio(scale);
    return QIcon(canvas);
}

} // namespace

StartPage::StartPage(QWidget* parent)
    : QWidget(parent), m_kinds(new QListWidget(this)), m_files(new QListWidget(this)),
      m_filesTitle(Heading(tr("最近打开"), this)) {
    setObjectName(QStringLiteral("startPage"));
    m_kinds->setObjectName(QStringLiteral("kinds"));
    m_kinds->setAccessibleName(tr("图表类型"));
    m_kinds->setViewMode(QListView::IconMode);
    m_kinds->setMovement(QListView::Static);
    m_kinds->setResizeMode(QListView::Adjust);
    m_kinds->setIconSize(kPicture);
    m_kinds->setGridSize(kPicture + QSize(kRoom, 2 * kRoom + fontMetrics().height()));
    m_kinds->setFrameShape(QFrame::NoFrame);
    m_kinds->setUniformItemSizes(true);
    m_files->setObjectName(QStringLiteral("recentFiles"));
    m_files->setAccessibleName(m_filesTitle->text());
    m_files->setMaximumHeight(fontMetrics().height() * 9);
    auto* const open = new QPushButton(tr("打开图表或数据表(&O)…"), this);
    open->setObjectName(QStringLiteral("openFile"));

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(2 * kRoom, kRoom, 2 * kRoom, kRoom);
    layout->setSpacing(kRoom / 2);
    layout->addWidget(Heading(tr("新建图表"), this));
    layout->addWidget(m_kinds, 1);
    layout->addWidget(m_filesTitle);
    layout->addWidget(m_files);
    layout->addWidget(open, 0, Qt::AlignLeft);

    AddKinds();
    ShowRecentFiles();
    // One click begins a chart; a click that activates too is told once, as the page is gone by then.
    const auto chooseKind = [this](const QListWidgetItem* item) {
        if (isVisible()) {
            Q_EMIT KindChosen(item->data(Qt::UserRole).toString());
        }
    };
    connect(m_kinds, &QListWidget::itemClicked, this, chooseKind);
    connect(m_kinds, &QListWidget::itemActivated, this, chooseKind);
    connect(m_files, &QListWidget::itemActivated, this,
            [this](const QListWidgetItem* item) { Q_EMIT FileChosen(item->data(Qt::UserRole).toString()); });
    connect(open, &QPushButton::clicked, this, &StartPage::OpenWanted);
    setFocusProxy(m_kinds);
}

void StartPage::AddKinds() {
    for (const millichart::ChartKind& kind : millichart::ChartKinds()) {
        auto* const item =
            new QListWidgetItem(PictureOfKind(kind, devicePixelRatioF()), Capitalised(NameOfKind(kind.Name)), m_kinds);
        item->setData(Qt::UserRole, QString::fromUtf8(kind.Name));
        item->setTextAlignment(Qt::AlignHCenter | Qt::AlignTop);
    }
    m_kinds->setCurrentRow(0);
}

void StartPage::ShowRecentFiles() {
    m_files->clear();
    for (const QString& file : RecentFiles()) {
        const QFileInfo info(file);
        auto* const item =
            new QListWidgetItem(info.fileName() + QStringLiteral("  —  ") + info.absolutePath(), m_files);
        item->setData(Qt::UserRole, file);
        item->setToolTip(file);
    }
    m_filesTitle->setVisible(m_files->count() > 0);
    m_files->setVisible(m_files->count() > 0);
}

} // namespace designer
