#include "window/MainWindow.h"

#include "window/PartNames.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QMimeData>
#include <QSettings>
#include <QSlider>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabWidget>
#include <QToolBar>
#include <QUrl>
#include <QVBoxLayout>
#include <algorithm>
#include <vector>

namespace designer {
namespace {

using millichart::ChartDocument;

constexpr QSize kUsualSize{1280, 860};
/// What the canvas shows for a preview, which no revision of a document is called.
constexpr auto kPreview = static_cast<std::uint64_t>(-1);

QWidget* WithNotice(NoticeBar* notice, QWidget* below) {
    auto* const both = new QWidget;
    auto* const layout = new QVBoxLayout(both);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(notice);
    layout->addWidget(below, 1);
    return both;
}

/// "半饼图" and "直方图" where there are two.
QStringList TableNames(const millichart::ChartContent& content) {
    if (std::holds_alternative<millichart::HalfPieHalfPieDocument>(content)) {
        return {MainWindow::tr("第一个半饼"), MainWindow::tr("第二个半饼")};
    }
    if (std::holds_alternative<millichart::HalfPieHistogramDocument>(content)) {
        return {MainWindow::tr("半饼"), MainWindow::tr("柱")};
    }
    return {MainWindow::tr("数据")};
}

} // namespace

MainWindow::MainWindow()
    : m_stack(new QStackedWidget(this)), m_start(new StartPage), m_canvas(new ChartCanvas),
      m_notice(new NoticeBar), m_files(m_session, *this), m_commands(m_session, *m_canvas, *this),
      m_tables(new QTabWidget), m_panel(new OptionsPanel) {
    setObjectName(QStringLiteral("mainWindow"));
    setAcceptDrops(true);
    resize(kUsualSize);
    m_canvas->setObjectName(QStringLiteral("canvas"));
    m_stack->addWidget(m_start);
    m_stack->addWidget(WithNotice(m_notice, m_canvas));
    setCentralWidget(m_stack);
    MakeDocks();
    m_bar = addToolBar(tr("工具栏"));
    m_bar->setObjectName(QStringLiteral("toolBar"));
    m_bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    MakeFileActions();
    MakeEditActions();
    MakeChartActions();
    MakeViewActions();
    MakeHelpActions();
    MakeStatusBar();
    ConnectParts();
    const QSettings settings;
    restoreGeometry(settings.value(QStringLiteral("window/geometry")).toByteArray());
    restoreState(settings.value(QStringLiteral("window/state")).toByteArray());
    ShowStart();
}

void MainWindow::MakeDocks() {
    m_dataDock = new QDockWidget(tr("数据"), this);
    m_dataDock->setObjectName(QStringLiteral("dataDock"));
    m_tables->setObjectName(QStringLiteral("tables"));
    m_tables->setDocumentMode(true);
    m_dataDock->setWidget(m_tables);
    addDockWidget(Qt::LeftDockWidgetArea, m_dataDock);
    m_panelDock = new QDockWidget(tr("选项"), this);
    m_panelDock->setObjectName(QStringLiteral("panelDock"));
    m_panelDock->setWidget(m_panel);
    addDockWidget(Qt::RightDockWidgetArea, m_panelDock);
    constexpr int kDataWidth = 350;
    constexpr int kPanelWidth = 260;
    resizeDocks({m_dataDock, m_panelDock}, {kDataWidth, kPanelWidth}, Qt::Horizontal);
}

void MainWindow::MakeStatusBar() {
    m_hovered = new QLabel;
    m_hovered->setObjectName(QStringLiteral("hovered"));
    m_numbers = new QLabel;
    m_size = new QLabel;
    m_zoom = new QSlider(Qt::Horizontal);
    m_zoom->setObjectName(QStringLiteral("zoom"));
    m_zoom->setAccessibleName(tr("缩放"));
    constexpr int kLeastPercent = 25;
    constexpr int kMostPercent = 800;
    constexpr int kSliderWidth = 140;
    m_zoom->setRange(kLeastPercent, kMostPercent);
    m_zoom->setFixedWidth(kSliderWidth);
    statusBar()->addWidget(m_hovered, 1);
    statusBar()->addPermanentWidget(m_numbers);
    statusBar()->addPermanentWidget(m_size);
    statusBar()->addPermanentWidget(m_zoom);
}

void MainWindow::ConnectParts() {
    constexpr double kPercent = 100.0;
    connect(m_start, &StartPage::KindChosen, this, &MainWindow::StartNew);
    connect(m_start, &StartPage::FileChosen, this, &MainWindow::OpenHere);
    connect(m_start, &StartPage::OpenWanted, this, &MainWindow::AskAndOpen);
    connect(&m_session, &EditSession::Started, this, [this] {
        m_notice->hide();
        m_canvas->Show(nullptr, 0);
        m_canvas->FitPage();
    });
    connect(&m_session, &EditSession::Changed, this, &MainWindow::Refresh);
    connect(&m_session, &EditSession::FileChangedByOthers, this, &MainWindow::TellOthersChange);
    connect(&m_session, &EditSession::Previewed, this,
            [this](auto document) { m_canvas->Show(std::move(document), kPreview); });
    connect(m_canvas, &ChartCanvas::Hovered, this, &MainWindow::TellHovered);
    connect(m_canvas, &ChartCanvas::ZoomChanged, this, [this](double zoom) {
        const QSignalBlocker quiet(m_zoom);
        m_zoom->setValue(qRound(zoom * kPercent));
        m_zoom->setToolTip(tr("%1%").arg(qRound(zoom * kPercent)));
    });
    connect(m_canvas, &ChartCanvas::ChartShown, this, [this] {
        const auto shown = m_canvas->Shown();
        const penlode::RectF extent = shown ? shown->Chart.FullExtent() : penlode::RectF{};
        m_size->setText(tr("%1 × %2 毫米")
                            .arg(static_cast<double>(extent.Width), 0, 'f', 1)
                            .arg(static_cast<double>(extent.Height), 0, 'f', 1));
    });
    connect(m_zoom, &QSlider::valueChanged, this,
            [this](int percent) { m_canvas->SetZoom(percent / kPercent); });
    connect(m_panel, &OptionsPanel::ChangeWanted, this,
            [this](const QString& name, const std::function<void(ChartDocument&)>& change,
                   const QString& merge) { m_session.Change(name, change, merge); });
    connect(&m_commands, &ChartCommands::Told, this, [this](const QString& text) {
        constexpr int kLong = 6000;
        statusBar()->showMessage(text, kLong);
    });
}

bool MainWindow::Open(const QString& file) {
    return m_files.Open(file);
}

void MainWindow::OpenHere(const QString& file) {
    if (m_files.MayClose()) {
        m_files.Open(file);
    }
}

void MainWindow::AskAndOpen() {
    if (const QString file = m_files.AskForFile(); !file.isEmpty()) {
        OpenHere(file);
    }
}

void MainWindow::StartNew(const QString& kind) {
    const millichart::ChartKind* const found = millichart::FindChartKind(kind.toStdString());
    if (found != nullptr && m_files.MayClose()) {
        m_session.Start(Editor::New(*found));
    }
}

/// A document that is open stays so until another is chosen.
void MainWindow::ShowStart() {
    m_start->ShowRecentFiles();
    m_stack->setCurrentIndex(0);
    m_dataDock->hide();
    m_panelDock->hide();
    m_start->setFocus();
    RefreshActions();
    RefreshTitle();
}

void MainWindow::SwitchKind(const QString& kind) {
    const millichart::ChartKind* const found = millichart::FindChartKind(kind.toStdString());
    if (found != nullptr) {
        m_session.SwitchKind(tr("改为%1").arg(NameOfKind(found->Name)), *found);
    }
}

void MainWindow::Refresh() {
    const Editor& editor = m_session.Current();
    if (m_stack->currentIndex() == 0) {
        m_stack->setCurrentIndex(1);
        m_dataDock->show();
        m_panelDock->show();
        m_canvas->setFocus();
    }
    m_canvas->Show(editor.Shared(), editor.Revision());
    RefreshTables();
    m_panel->Show(editor.Document());
    RefreshActions();
    RefreshTitle();
}

void MainWindow::RefreshTables() {
    const auto tables = m_session.Current().SharedTables();
    const int count = static_cast<int>(tables->size());
    while (m_tables->count() > count) {
        QWidget* const gone = m_tables->widget(count);
        m_tables->removeTab(count);
        gone->deleteLater();
    }
    while (m_tables->count() < count) {
        m_tables->addTab(AddTable(), QString());
    }
    const QStringList names = TableNames(m_session.Current().Document().Content);
    for (int i = 0; i < count; ++i) {
        m_tables->setTabText(i, names.value(i));
        // The table lives as long as the list that it stands in.
        static_cast<DataView*>(m_tables->widget(i))
            ->Show(std::shared_ptr<const DataTable>(tables, &(*tables)[static_cast<std::size_t>(i)]));
    }
    m_tables->tabBar()->setVisible(count > 1);
}

DataView* MainWindow::AddTable() {
    auto* const view = new DataView;
    view->setObjectName(QStringLiteral("table%1").arg(m_tables->count()));
    connect(view, &DataView::ChangeWanted, this,
            [this, view](const QString& name, const std::function<void(DataTable&)>& change,
                         const QString& merge) {
                m_session.ChangeTable(name, static_cast<std::size_t>(m_tables->indexOf(view)), change, merge);
            });
    connect(view, &DataView::SelectionSummed, this, &MainWindow::TellSum);
    return view;
}

void MainWindow::TellSum(const SelectionFacts& facts) {
    const QLocale locale;
    m_numbers->setText(facts.Numbers < 2 ? QString()
                                         : tr("计数 %1　合计 %2　平均 %3")
                                               .arg(facts.Numbers)
                                               .arg(locale.toString(facts.Sum, 'g', 10))
                                               .arg(locale.toString(facts.Mean, 'g', 6)));
}

/// From the chart to its data, to the options, and back.
void MainWindow::FocusNextPane() {
    std::vector<QWidget*> panes{m_canvas, m_tables->currentWidget(), m_panel};
    std::erase_if(panes, [](const QWidget* pane) { return pane == nullptr || !pane->isVisible(); });
    const QWidget* const focus = QApplication::focusWidget();
    const auto current = std::find_if(panes.begin(), panes.end(), [focus](const QWidget* pane) {
        return pane == focus || pane->isAncestorOf(focus);
    });
    QWidget* const next =
        current == panes.end() || current + 1 == panes.end() ? panes.front() : *(current + 1);
    QWidget* const inside = next == m_panel ? m_panel->nextInFocusChain() : next;
    inside->setFocus(Qt::ShortcutFocusReason);
}

void MainWindow::RefreshTitle() {
    if (!m_session.IsOpen()) {
        setWindowTitle(QCoreApplication::applicationName());
        return;
    }
    setWindowTitle(m_files.ShownName() + QStringLiteral("[*] — ") + QCoreApplication::applicationName());
    setWindowFilePath(QString::fromStdString(m_session.Current().File()));
    setWindowModified(!m_session.Current().IsSaved());
}

void MainWindow::TellHovered(const std::optional<millichart::ChartPart>& part) {
    const auto shown = m_canvas->Shown();
    m_hovered->setText(part && shown ? Described(*part, FactsOf(*shown->Document, shown->Chart, *part))
                                     : QString());
}

void MainWindow::TellOthersChange() {
    const QString file = QString::fromStdString(m_session.Current().File());
    m_notice->Tell(tr("“%1”已被其他程序修改。").arg(m_files.ShownName()),
                   {{tr("重新读入"), [this, file] { m_files.Open(file); }},
                    {tr("保留窗口里的"), [this] { m_session.AcceptFile(); }}});
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (!m_files.MayClose()) {
        event->ignore();
        return;
    }
    QSettings settings;
    settings.setValue(QStringLiteral("window/geometry"), saveGeometry());
    if (m_session.IsOpen()) {
        settings.setValue(QStringLiteral("window/state"), saveState());
    }
    event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasUrls() && event->mimeData()->urls().front().isLocalFile()) {
        event->acceptProposedAction();
    }
}

void MainWindow::dropEvent(QDropEvent* event) {
    const QString file = event->mimeData()->urls().front().toLocalFile();
    event->acceptProposedAction();
    OpenHere(file);
}

/// Others may have written the file while the window was behind.
void MainWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && m_session.IsOpen() &&
        m_session.Current().IsFileOthers()) {
        TellOthersChange();
    }
}

} // namespace designer
