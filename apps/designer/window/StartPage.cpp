#include "window/StartPage.h"

#include "window/KindTiles.h"
#include "window/LineIcons.h"
#include "window/RecentFiles.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace designer {
namespace {

constexpr int kRoom = 16;
constexpr int kShownFiles = 5; ///< others by scrolling

QLabel* Heading(const QString& text, QWidget* parent) {
    auto* const label = new QLabel(text, parent);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * 1.3);
    font.setBold(true);
    label->setFont(font);
    return label;
}

/// A click or Enter; told once by styles in which a click is like Enter.
template <class Act> void OnChoice(const QListWidget& list, Act act) {
    QObject::connect(&list, &QListWidget::itemActivated, &list, act);
    if (list.style()->styleHint(QStyle::SH_ItemView_ActivateItemOnSingleClick, nullptr, &list) == 0) {
        QObject::connect(&list, &QListWidget::itemClicked, &list, act);
    }
}

} // namespace

StartPage::StartPage(QWidget* parent)
    : QWidget(parent), m_kinds(new KindTiles(this)), m_files(new QListWidget(this)),
      m_filesTitle(Heading(tr("最近打开"), this)) {
    setObjectName(QStringLiteral("startPage"));
    m_kinds->setObjectName(QStringLiteral("kinds"));
    m_kinds->setAccessibleName(tr("图表类型"));
    m_files->setObjectName(QStringLiteral("recentFiles"));
    m_files->setAccessibleName(m_filesTitle->text());
    m_files->setFrameShape(QFrame::NoFrame);
    m_files->viewport()->setAutoFillBackground(false);
    m_files->setMaximumHeight(fontMetrics().height() * kShownFiles * 3 / 2);
    auto* const open = new QPushButton(tr("打开图表或数据表(&O)…"), this);
    open->setObjectName(QStringLiteral("openFile"));
    open->setIcon(IconOf(LineIcon::Open));

    auto* const top = new QHBoxLayout;
    top->addWidget(Heading(tr("新建图表"), this), 1);
    top->addWidget(open);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(2 * kRoom, kRoom, 2 * kRoom, kRoom);
    layout->setSpacing(kRoom / 2);
    layout->addLayout(top);
    layout->addWidget(m_kinds, 1);
    layout->addWidget(m_filesTitle);
    layout->addWidget(m_files);

    ShowRecentFiles();
    // The second click of two comes when the page is gone.
    const auto chooseKind = [this](const QListWidgetItem* item) {
        if (isVisible()) {
            Q_EMIT KindChosen(item->data(Qt::UserRole).toString());
        }
    };
    OnChoice(*m_kinds, chooseKind);
    const auto chooseFile = [this](const QListWidgetItem* item) {
        if (isVisible()) {
            Q_EMIT FileChosen(item->data(Qt::UserRole).toString());
        }
    };
    OnChoice(*m_files, chooseFile);
    connect(open, &QPushButton::clicked, this, &StartPage::OpenWanted);
    setFocusProxy(m_kinds);
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
