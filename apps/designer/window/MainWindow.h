#pragma once

#include "canvas/ChartCanvas.h"
#include "panel/OptionsPanel.h"
#include "table/DataView.h"
#include "window/ChartCommands.h"
#include "window/EditSession.h"
#include "window/FileCommands.h"
#include "window/NoticeBar.h"
#include "window/StartPage.h"

#include <QMainWindow>
#include <vector>

class QActionGroup;
class QDockWidget;
class QLabel;
class QSlider;
class QStackedWidget;
class QTabWidget;
class QToolBar;

namespace designer {

/// The window of one document: the chart on its page, its data beside it, the panel of options; or, before
/// there is a document, what to start from.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    MainWindow();

    /// False, and the person was told, when it cannot be opened.
    bool Open(const QString& file);
    void StartNew(const QString& kind);

    /// Offers what was lost with a program that ended suddenly.
    bool OfferRecovered() { return m_files.OfferRecovered(); }

    EditSession& Session() { return m_session; }

    ChartCanvas& Canvas() { return *m_canvas; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void MakeDocks();
    void MakeFileActions();
    void MakeEditActions();
    void MakeChartActions();
    void MakeViewActions();
    void MakeHelpActions();
    void MakeStatusBar();
    void ConnectParts();
    QAction* Add(class QMenu* menu, const char* name, const QString& text, const QKeySequence& keys,
                 const std::function<void()>& act);
    /// An action that needs an open document.
    QAction* AddForChart(class QMenu* menu, const char* name, const QString& text, const QKeySequence& keys,
                         const std::function<void()>& act);

    void AskAndOpen();
    void OpenHere(const QString& file);
    void ShowStart();
    void FillRecentMenu();
    void SwitchKind(const QString& kind);
    /// Everything as the document is now.
    void Refresh();
    void RefreshTables();
    void RefreshActions();
    void RefreshTitle();
    DataView* AddTable();
    void TellHovered(const std::optional<millichart::ChartPart>& part);
    void TellSum(const SelectionFacts& facts);
    void FocusNextPane();
    void TellOthersChange();
    void ShowKeys();
    void ShowAbout();

    EditSession m_session;
    QStackedWidget* m_stack;
    StartPage* m_start;
    ChartCanvas* m_canvas;
    NoticeBar* m_notice;
    FileCommands m_files;
    ChartCommands m_commands;
    QTabWidget* m_tables;
    QDockWidget* m_dataDock;
    OptionsPanel* m_panel;
    QDockWidget* m_panelDock;
    QToolBar* m_bar;
    QMenu* m_recent;
    QAction* m_undo;
    QAction* m_redo;
    QActionGroup* m_kinds;
    std::vector<QAction*> m_chartActions;
    QLabel* m_hovered;
    QLabel* m_numbers;
    QLabel* m_size;
    QSlider* m_zoom;
};

} // namespace designer
