#pragma once

#include "designer/window/Person.h"
#include "model/ChartEdits.h"
#include "window/MainWindow.h"

#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>

namespace designer::test {

/// A window of the designer on a screen that nobody sees, with settings and a state of its own.
class OpenWindow : public testing::Test {
protected:
    OpenWindow();
    ~OpenWindow() override;

    MainWindow& Window() { return *m_window; }

    EditSession& Session() { return m_window->Session(); }

    ChartCanvas& Canvas() { return m_window->Canvas(); }

    DataView& Table(int which = 0);

    QDir Folder() const { return QDir(m_folder.path()); }

    const millichart::ChartDocument& Document() { return Session().Current().Document(); }

    /// Once all that was done is on the screen.
    void ShowAll();
    const ShownChart& Shown();

    /// By a click on the start page's picture.
    void ChooseKind(const char* kind);
    /// Closes the window and opens the file in a new one.
    void Reopen(const QString& file);
    /// By the dialog, as ".png" and the like, at 300 dots per inch.
    void Export(const QString& ending, const QString& file);

    /// Of a part that is on the screen: its rectangle on the page, and its middle in the viewport.
    penlode::RectF BoxOf(const millichart::ChartPart& part);
    QPoint PlaceOf(const millichart::ChartPart& part);
    PartFacts Facts(const millichart::ChartPart& part);

    const millichart::HistogramDocument& Histogram() {
        return std::get<millichart::HistogramDocument>(Document().Content);
    }

    const millichart::BarData& Bars() { return Histogram().Data; }

    static millichart::ChartDocument New(const char* kind);

private:
    QTemporaryDir m_folder;
    std::unique_ptr<MainWindow> m_window;
};

} // namespace designer::test
