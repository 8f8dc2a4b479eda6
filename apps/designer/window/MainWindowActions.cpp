#include "documents/ChartDocument.h"
#include "window/Language.h"
#include "window/MainWindow.h"
#include "window/PartNames.h"
#include "window/RecentFiles.h"

#include <QActionGroup>
#include <QApplication>
#include <QDockWidget>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QRegularExpression>
#include <QStackedWidget>
#include <QToolBar>
#include <array>

namespace designer {
namespace {

/// "打开(&O)…" is "打开".
QString WithoutMnemonic(QString text) {
    static const QRegularExpression mark(QStringLiteral("\\(&.\\)|&|…"));
    return text.remove(mark);
}

} // namespace

QAction* MainWindow::Add(QMenu* menu, const char* name, const QString& text, const QKeySequence& keys,
                         const std::function<void()>& act) {
    auto* const action = new QAction(text, this);
    action->setObjectName(QString::fromUtf8(name));
    action->setIconText(WithoutMnemonic(text));
    action->setToolTip(WithoutMnemonic(text));
    action->setShortcut(keys);
    connect(action, &QAction::triggered, this, act);
    menu->addAction(action);
    return action;
}

QAction* MainWindow::AddForChart(QMenu* menu, const char* name, const QString& text, const QKeySequence& keys,
                                 const std::function<void()>& act) {
    QAction* const action = Add(menu, name, text, keys, act);
    m_chartActions.push_back(action);
    return action;
}

void MainWindow::MakeFileActions() {
    QMenu* const menu = menuBar()->addMenu(tr("文件(&F)"));
    m_bar->addAction(Add(menu, "new", tr("新建(&N)"), QKeySequence::New, [this] { ShowStart(); }));
    m_bar->addAction(Add(menu, "open", tr("打开(&O)…"), QKeySequence::Open, [this] { AskAndOpen(); }));
    m_recent = menu->addMenu(tr("最近打开(&R)"));
    connect(m_recent, &QMenu::aboutToShow, this, &MainWindow::FillRecentMenu);
    menu->addSeparator();
    m_bar->addAction(
        AddForChart(menu, "save", tr("保存(&S)"), QKeySequence::Save, [this] { m_files.Save(); }));
    AddForChart(menu, "saveAs", tr("另存为(&A)…"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S),
                [this] { m_files.SaveAs(); });
    m_bar->addAction(AddForChart(menu, "export", tr("导出图片(&E)…"), QKeySequence(Qt::CTRL | Qt::Key_E),
                                 [this] { m_files.Export(); }));
    menu->addSeparator();
    AddForChart(menu, "preview", tr("打印预览(&V)…"), {}, [this] { m_files.PreviewPrint(); });
    AddForChart(menu, "print", tr("打印(&P)…"), QKeySequence::Print, [this] { m_files.Print(); });
    menu->addSeparator();
    Add(menu, "quit", tr("退出(&Q)"), QKeySequence::Quit, [this] { close(); });
    m_bar->addSeparator();
}

void MainWindow::MakeEditActions() {
    QMenu* const menu = menuBar()->addMenu(tr("编辑(&E)"));
    m_undo = AddForChart(menu, "undo", tr("撤销(&U)"), QKeySequence::Undo, [this] { m_session.Undo(); });
    m_redo = AddForChart(menu, "redo", tr("重做(&R)"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z),
                         [this] { m_session.Redo(); });
    m_redo->setShortcuts(
        {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)});
    m_bar->addAction(m_undo);
    m_bar->addAction(m_redo);
    menu->addSeparator();
    AddForChart(menu, "copyPicture", tr("复制图表(&C)"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C),
                [this] { m_files.CopyPicture(); });
    m_bar->addSeparator();
}

void MainWindow::MakeChartActions() {
    QMenu* const menu = menuBar()->addMenu(tr("图表(&C)"));
    QMenu* const kinds = menu->addMenu(tr("类型(&K)"));
    kinds->setObjectName(QStringLiteral("kindMenu"));
    m_kinds = new QActionGroup(this);
    for (const millichart::ChartKind& kind : millichart::ChartKinds()) {
        QAction* const action =
            AddForChart(kinds, kind.Name, NameOfKind(kind.Name), {},
                        [this, name = QString::fromUtf8(kind.Name)] { SwitchKind(name); });
        action->setCheckable(true);
        m_kinds->addAction(action);
    }
    m_bar->addAction(AddForChart(menu, "properties", tr("属性(&P)…"), QKeySequence(Qt::ALT | Qt::Key_Return),
                                 [this] { m_commands.EditProperties(m_canvas->Selected()); }));
    AddForChart(menu, "size", tr("大小(&S)…"), {}, [this] { m_commands.Resize(); });
    menu->addSeparator();
    const auto withSelected = [this](const std::function<void(const millichart::ChartPart&)>& act) {
        return [this, act] {
            if (const auto part = m_canvas->Selected()) {
                act(*part);
            }
        };
    };
    AddForChart(menu, "editText", tr("编辑文字(&T)"), {},
                withSelected([this](const auto& part) { m_canvas->EditText(part); }));
    AddForChart(menu, "color", tr("颜色(&C)…"), {},
                withSelected([this](const auto& part) { m_commands.PickColor(part); }));
    AddForChart(menu, "reset", tr("位置复位(&R)"), {},
                withSelected([this](const auto& part) { m_commands.Reset(part); }));
}

void MainWindow::MakeViewActions() {
    QMenu* const menu = menuBar()->addMenu(tr("视图(&V)"));
    AddForChart(menu, "zoomIn", tr("放大(&I)"), QKeySequence::ZoomIn, [this] {
        m_canvas->ZoomIn();
    })->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)});
    AddForChart(menu, "zoomOut", tr("缩小(&O)"), QKeySequence(Qt::CTRL | Qt::Key_Minus),
                [this] { m_canvas->ZoomOut(); });
    AddForChart(menu, "trueSize", tr("实际大小(&A)"), QKeySequence(Qt::CTRL | Qt::Key_1),
                [this] { m_canvas->SetZoom(1.0); });
    AddForChart(menu, "fit", tr("适合窗口(&F)"), QKeySequence(Qt::CTRL | Qt::Key_0),
                [this] { m_canvas->FitPage(); });
    menu->addSeparator();
    for (QDockWidget* const dock : {m_dataDock, m_panelDock}) {
        QAction* const action = dock->toggleViewAction();
        menu->addAction(action);
        m_chartActions.push_back(action);
    }
    m_dataDock->toggleViewAction()->setShortcut(QKeySequence(Qt::Key_F9));
    m_panelDock->toggleViewAction()->setShortcut(QKeySequence(Qt::Key_F10));
    AddForChart(menu, "nextPane", tr("切换到下一窗格(&N)"), QKeySequence(Qt::Key_F6),
                [this] { FocusNextPane(); });
    menu->addSeparator();
    QMenu* const languages = menu->addMenu(tr("语言(&L)"));
    auto* const group = new QActionGroup(this);
    for (const auto& [code, name] : kLanguages) {
        QAction* const action = Add(languages, code, QString::fromUtf8(name), {}, [this, code = code] {
            RememberLanguage(QString::fromUtf8(code));
            QMessageBox::information(this, QCoreApplication::applicationName(),
                                     tr("下次启动时使用所选的语言。"));
        });
        action->setCheckable(true);
        action->setChecked(QString::fromUtf8(code) == ShownLanguage());
        group->addAction(action);
    }
}

void MainWindow::MakeHelpActions() {
    QMenu* const menu = menuBar()->addMenu(tr("帮助(&H)"));
    Add(menu, "keys", tr("键盘操作(&K)"), QKeySequence::HelpContents, [this] { ShowKeys(); });
    Add(menu, "about", tr("关于(&A)"), {}, [this] { ShowAbout(); });
}

void MainWindow::FillRecentMenu() {
    m_recent->clear();
    for (const QString& file : RecentFiles()) {
        m_recent->addAction(QFileInfo(file).fileName(), this, [this, file] { OpenHere(file); })
            ->setToolTip(file);
    }
    if (m_recent->isEmpty()) {
        m_recent->addAction(tr("（还没有）"))->setEnabled(false);
    }
}

void MainWindow::RefreshActions() {
    const bool isShown = m_session.IsOpen() && m_stack->currentIndex() == 1;
    for (QAction* const action : m_chartActions) {
        action->setEnabled(isShown);
    }
    if (!m_session.IsOpen()) {
        return;
    }
    const Editor& editor = m_session.Current();
    m_undo->setEnabled(isShown && editor.CanUndo());
    m_redo->setEnabled(isShown && editor.CanRedo());
    m_undo->setText(tr("撤销 %1(&U)").arg(QString::fromStdString(editor.UndoName())));
    m_redo->setText(tr("重做 %1(&R)").arg(QString::fromStdString(editor.RedoName())));
    m_undo->setToolTip(tr("撤销 %1").arg(QString::fromStdString(editor.UndoName())));
    m_redo->setToolTip(tr("重做 %1").arg(QString::fromStdString(editor.RedoName())));
    const millichart::ChartKind* const kind = millichart::KindOf(editor.Document().Content);
    for (QAction* const action : m_kinds->actions()) {
        action->setChecked(kind != nullptr && action->objectName() == QString::fromUtf8(kind->Name));
    }
}

void MainWindow::ShowKeys() {
    QMessageBox box(QMessageBox::NoIcon, tr("键盘操作"), QString(), QMessageBox::Ok, this);
    box.setText(
        tr("<table cellpadding=3>"
           "<tr><td><b>Tab</b></td><td>图上的下一个部分</td></tr>"
           "<tr><td><b>方向键</b></td><td>移动选中的标签或图例 0.1 毫米；加 Shift 移动 1 毫米</td></tr>"
           "<tr><td><b>Delete</b></td><td>放回原处</td></tr>"
           "<tr><td><b>F2</b></td><td>就地编辑文字</td></tr>"
           "<tr><td><b>空格</b></td><td>选颜色</td></tr>"
           "<tr><td><b>Enter</b></td><td>打开属性</td></tr>"
           "<tr><td><b>Ctrl+滚轮</b></td><td>缩放；Ctrl+0 适合窗口，Ctrl+1 实际大小</td></tr>"
           "<tr><td><b>F9、F10</b></td><td>数据表、选项</td></tr>"
           "<tr><td><b>F6</b></td><td>在图、数据表和选项之间切换</td></tr></table>"));
    box.exec();
}

void MainWindow::ShowAbout() {
    QMessageBox::about(
        this, tr("关于 Millichart"),
        tr("<h3>Millichart %1</h3><p>以毫米排版的图表。</p>").arg(QCoreApplication::applicationVersion()));
}

} // namespace designer
