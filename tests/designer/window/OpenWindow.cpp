#include "designer/window/OpenWindow.h"

#include "window/Examples.h"

#include <QApplication>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QSettings>

namespace designer::test {

OpenWindow::OpenWindow() {
    const QString state =
        qEnvironmentVariable("MILLICHART_TEST_STATE", Folder().filePath(QStringLiteral("state")));
    qputenv("XDG_STATE_HOME", state.toUtf8());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                       Folder().filePath(QStringLiteral("settings")));
    QSettings().clear();
    m_window = std::make_unique<MainWindow>();
    m_window->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
}

OpenWindow::~OpenWindow() {
    m_window->Session().DropRecovery();
}

DataView& OpenWindow::Table(int which) {
    return *m_window->findChild<DataView*>(QStringLiteral("table%1").arg(which));
}

void OpenWindow::ShowAll() {
    Settle();
    if (Session().IsOpen()) {
        Canvas().WaitUntilShown();
    }
    Settle();
}

const ShownChart& OpenWindow::Shown() {
    ShowAll();
    return *Canvas().Shown();
}

void OpenWindow::ChooseKind(const char* kind) {
    auto* const kinds = m_window->findChild<QListWidget*>(QStringLiteral("kinds"));
    for (int i = 0; i < kinds->count(); ++i) {
        if (kinds->item(i)->data(Qt::UserRole).toString() == QString::fromUtf8(kind)) {
            ClickItem(*kinds, kinds->model()->index(i, 0));
        }
    }
    ASSERT_TRUE(Session().IsOpen()) << kind;
    ShowAll();
}

void OpenWindow::Reopen(const QString& file) {
    ASSERT_TRUE(m_window->close());
    m_window = std::make_unique<MainWindow>();
    m_window->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
    ASSERT_TRUE(m_window->Open(file));
    ShowAll();
}

void OpenWindow::Export(const QString& ending, const QString& file) {
    const auto chooseName = [&](QWidget& modal) { ChooseFile(modal, file); };
    const auto chooseFormat = [&](QWidget& modal) {
        auto* const formats = modal.findChild<QComboBox*>(QStringLiteral("format"));
        formats->setFocus();
        Press(Qt::Key_Home);
        for (int i = 0; i < (ending == QLatin1String(".png")   ? 0
                             : ending == QLatin1String(".svg") ? 1
                                                               : 2);
             ++i) {
            Press(Qt::Key_Down);
        }
        EXPECT_TRUE(PressButton(modal, QStringLiteral("导出")));
    };
    InModals({chooseFormat, chooseName},
             [this] { QTest::keyClick(m_window.get(), Qt::Key_E, Qt::ControlModifier); });
    EXPECT_TRUE(QFile::exists(file)) << file.toStdString();
}

penlode::RectF OpenWindow::BoxOf(const millichart::ChartPart& part) {
    penlode::RectF box;
    Shown().Chart.VisitParts([&](const millichart::PlacedPart& placed) {
        if (placed.Part == part) {
            box = placed.Box;
        }
    });
    EXPECT_GT(box.Width + box.Height, 0.0F) << "no such part";
    return box;
}

QPoint OpenWindow::PlaceOf(const millichart::ChartPart& part) {
    return Canvas().ToViewport(BoxOf(part).Center());
}

PartFacts OpenWindow::Facts(const millichart::ChartPart& part) {
    const ShownChart& shown = Shown();
    return FactsOf(*shown.Document, shown.Chart, part);
}

millichart::ChartDocument OpenWindow::New(const char* kind) {
    return ExampleOf(*millichart::FindChartKind(kind));
}

} // namespace designer::test
