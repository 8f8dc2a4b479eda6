// What becomes of a person's work when things go wrong, and how it comes in and goes out.
#include "documents/Files.h"

#include "designer/window/OpenWindow.h"

#include <QApplication>
#include <QClipboard>
#include <QDateTime>
#include <QDragEnterEvent>
#include <QFile>
#include <QMessageBox>
#include <QMimeData>
#include <QProcess>
#include <QProcessEnvironment>
#include <QUrl>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

namespace designer::test {
namespace {

using millichart::PartKind;

/// No file may grow beyond so many bytes while this lives, as on a disk that is full.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit little{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &little);
    }

    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &m_before); }

    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit m_before{};
};

class Files : public OpenWindow {
protected:
    QString SavedFile() {
        const QString file = Folder().filePath(QStringLiteral("sales.chart.json"));
        EXPECT_EQ(New("histogram").Save(file.toStdString()), "");
        EXPECT_TRUE(Window().Open(file));
        ShowAll();
        return file;
    }

    void TypeInto(int row, int column, const QString& text) {
        ClickItem(Table(), Table().model()->index(row, column));
        Type(text);
        Press(Qt::Key_Return);
        ShowAll();
    }

    static std::string Bytes(const QString& file) { return millichart::ReadFile(file.toStdString()).Text; }
};

TEST_F(Files, AFullDiskLeavesTheOldFileAndTheWindow) {
    const QString file = SavedFile();
    const std::string before = Bytes(file);
    TypeInto(0, 1, QStringLiteral("77"));
    QString told;
    {
        const FullDisk full(200);
        InModal(
            [&](QWidget& modal) {
                auto& box = dynamic_cast<QMessageBox&>(modal);
                told = box.text() + box.informativeText();
                Press(Qt::Key_Return);
            },
            [this] { QTest::keyClick(&Window(), Qt::Key_S, Qt::ControlModifier); });
    }
    EXPECT_TRUE(told.contains(QStringLiteral("“sales.chart.json”没有保存")));
    EXPECT_TRUE(told.contains(QStringLiteral("File too large"))) << told.toStdString();
    EXPECT_EQ(Bytes(file), before);
    EXPECT_EQ(Folder().entryList({QStringLiteral("sales*")}, QDir::Files).size(), 1)
        << "nothing half written";
    EXPECT_TRUE(Window().isVisible());
    EXPECT_TRUE(Window().isWindowModified());
    EXPECT_EQ(Bars().Values[0][0], 77.0);

    QTest::keyClick(&Window(), Qt::Key_S, Qt::ControlModifier); // there is room again
    EXPECT_FALSE(Window().isWindowModified());
    EXPECT_NE(Bytes(file), before);
}

/// What is edited by a process that is killed: this program, run once more with other words.
TEST_F(Files, DISABLED_EditUntilKilled) {
    ASSERT_TRUE(Window().Open(qEnvironmentVariable("MILLICHART_TEST_FILE")));
    TypeInto(0, 1, QStringLiteral("77"));
    TypeInto(1, 1, QStringLiteral("缺"));
    const QDateTime edited = QDateTime::currentDateTime();
    const QDir kept(qEnvironmentVariable("MILLICHART_TEST_KEPT"));
    ASSERT_TRUE(WaitUntil([&] {
        const QFileInfoList files = kept.entryInfoList({QStringLiteral("*.kept")}, QDir::Files);
        return !files.isEmpty() && files.front().lastModified() > edited;
    }));
    EXPECT_LT(edited.msecsTo(QDateTime::currentDateTime()), 10000);
    QFile sign(qEnvironmentVariable("MILLICHART_TEST_SIGN"));
    ASSERT_TRUE(sign.open(QIODevice::WriteOnly));
    sign.close();
    QTest::qWait(60000);
}

TEST_F(Files, AKilledProgramLosesAtMostTheLastSeconds) {
    const QString file = Folder().filePath(QStringLiteral("sales.chart.json"));
    ASSERT_EQ(New("histogram").Save(file.toStdString()), "");
    const std::string before = Bytes(file);
    const QString sign = Folder().filePath(QStringLiteral("sign"));
    const QString state = Folder().filePath(QStringLiteral("other-state"));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("MILLICHART_TEST_FILE"), file);
    environment.insert(QStringLiteral("MILLICHART_TEST_SIGN"), sign);
    environment.insert(QStringLiteral("MILLICHART_TEST_STATE"), state);
    environment.insert(QStringLiteral("MILLICHART_TEST_KEPT"), state + QStringLiteral("/millichart"));
    QProcess other;
    other.setProcessEnvironment(environment);
    other.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    other.start(QCoreApplication::applicationFilePath(),
                {QStringLiteral("--gtest_filter=Files.DISABLED_EditUntilKilled"),
                 QStringLiteral("--gtest_also_run_disabled_tests")});
    ASSERT_TRUE(other.waitForStarted());
    ASSERT_TRUE(WaitUntil([&] { return QFile::exists(sign) || other.state() == QProcess::NotRunning; }));
    ASSERT_EQ(other.state(), QProcess::Running);
    other.kill(); // SIGKILL: it can do nothing any more
    ASSERT_TRUE(other.waitForFinished());
    EXPECT_EQ(Bytes(file), before) << "the file itself was not touched";

    qputenv("XDG_STATE_HOME", state.toUtf8());
    bool isOpened = false;
    InModal(
        [](QWidget& modal) {
            EXPECT_TRUE(
                dynamic_cast<QMessageBox&>(modal).text().contains(QStringLiteral("“sales.chart.json”")));
            EXPECT_TRUE(PressButton(modal, QStringLiteral("恢复")));
        },
        [&] { isOpened = Window().OfferRecovered(); });
    ASSERT_TRUE(isOpened);
    EXPECT_EQ(Bars().Values[0][0], 77.0);
    EXPECT_EQ(Session().Current().Tables().front().Text(1, 1), "缺") << "what is no number is not lost";
    EXPECT_EQ(Session().Current().File(), file.toStdString());
    EXPECT_TRUE(Window().isWindowModified());
    EXPECT_FALSE(Window().OfferRecovered()) << "offered once";
}

TEST_F(Files, ClosingAsksAndEachAnswerIsObeyed) {
    const QString file = SavedFile();
    const std::string before = Bytes(file);
    TypeInto(0, 1, QStringLiteral("5"));
    const auto close = [this](const char* answer) {
        bool isClosed = false;
        InModal([&](QWidget& modal) { EXPECT_TRUE(PressButton(modal, QString::fromUtf8(answer))); },
                [&] { isClosed = Window().close(); });
        return isClosed;
    };
    EXPECT_FALSE(close("取消"));
    EXPECT_TRUE(Window().isVisible());
    EXPECT_TRUE(close("不保存"));
    EXPECT_EQ(Bytes(file), before);
    Window().show();
    EXPECT_TRUE(close("保存"));
    EXPECT_NE(Bytes(file), before);
}

TEST_F(Files, AnotherProgramsChangeIsNoticed) {
    const QString file = SavedFile();
    auto* const notice = Window().findChild<NoticeBar*>();
    EXPECT_FALSE(notice->isVisible());
    millichart::ChartDocument others = New("pie");
    ASSERT_EQ(others.Save(file.toStdString()), "");
    ASSERT_TRUE(WaitUntil([&] { return notice->isVisible(); }));
    EXPECT_TRUE(PressButton(*notice, QStringLiteral("重新读入")));
    ShowAll();
    EXPECT_TRUE(std::holds_alternative<millichart::PieDocument>(Document().Content));

    TypeInto(0, 1, QStringLiteral("5"));
    ASSERT_EQ(New("curve").Save(file.toStdString()), "");
    ASSERT_TRUE(WaitUntil([&] { return notice->isVisible(); }));
    EXPECT_TRUE(PressButton(*notice, QStringLiteral("保留窗口里的")));
    QTest::keyClick(&Window(), Qt::Key_S, Qt::ControlModifier); // no question: that was answered
    EXPECT_FALSE(Window().isWindowModified());
}

TEST_F(Files, ATableDroppedOnTheWindowBecomesAChart) {
    const QString file = Folder().filePath(QStringLiteral("销售.csv"));
    ASSERT_EQ(millichart::WriteFile(file.toStdString(), "月份,产量,出口\n一月,12.5,3\n二月,13,4\n"), "");
    QMimeData mime;
    mime.setUrls({QUrl::fromLocalFile(file)});
    const QPoint middle = Window().rect().center();
    QDragEnterEvent enter(middle, Qt::CopyAction, &mime, Qt::LeftButton, {});
    QApplication::sendEvent(&Window(), &enter);
    ASSERT_TRUE(enter.isAccepted());
    QDropEvent drop(middle, Qt::CopyAction, &mime, Qt::LeftButton, {});
    QApplication::sendEvent(&Window(), &drop);
    ShowAll();
    ASSERT_TRUE(Session().IsOpen());
    EXPECT_EQ(Bars().Values, (std::vector<std::vector<double>>{{12.5, 3.0}, {13.0, 4.0}}));
    EXPECT_EQ(Session().Current().File(), "") << "the table itself is never written over";

    QTest::keyClick(&Window(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    const QMimeData* const copied = QGuiApplication::clipboard()->mimeData();
    EXPECT_TRUE(copied->hasImage());
    EXPECT_TRUE(copied->data(QStringLiteral("image/svg+xml")).contains("<svg"));
    EXPECT_TRUE(copied->text().contains(QStringLiteral("二月\t13\t4")));
}

TEST_F(Files, WhatCannotBeOpenedIsTold) {
    const QString file = Folder().filePath(QStringLiteral("broken.chart.json"));
    ASSERT_EQ(millichart::WriteFile(file.toStdString(), "{ \"kind\": \"pie\",\n  \"data\": 5 }"), "");
    bool isOpened = true;
    InModal(
        [](QWidget& modal) {
            const QString more = dynamic_cast<QMessageBox&>(modal).informativeText();
            EXPECT_TRUE(more.contains(QStringLiteral("第 2 行"))) << more.toStdString();
            Press(Qt::Key_Return);
        },
        [&] { isOpened = Window().Open(file); });
    EXPECT_FALSE(isOpened);
    EXPECT_FALSE(Session().IsOpen());
}

} // namespace
} // namespace designer::test
