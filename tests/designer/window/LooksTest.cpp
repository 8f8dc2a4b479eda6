// What can be seen is seen whole, in its place and in colours that differ from what is behind it.
#include "designer/window/OpenWindow.h"
#include "window/ExportDialog.h"
#include "window/KindTiles.h"
#include "window/Language.h"
#include "window/SizeDialog.h"

#include <QApplication>
#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QPrintPreviewDialog>
#include <QPushButton>
#include <QStatusBar>
#include <QStyleFactory>
#include <QToolBar>
#include <QToolButton>
#include <cmath>
#include <gtest/gtest.h>
#include <map>

namespace designer::test {
namespace {

using millichart::PartKind;

constexpr double kReadable = 4.5; ///< the least contrast of small texts, 1 to 21
constexpr double kSeen = 3.0;     ///< and of what is no text

double Light(QRgb color) {
    const auto linear = [](int channel) {
        const double share = channel / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) + 0.0722 * linear(qBlue(color));
}

/// Between the most frequent colour and the one that differs most from it.
double ContrastIn(const QImage& picture) {
    std::map<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ++counts[picture.pixel(x, y)];
        }
    }
    const auto ground = std::max_element(counts.begin(), counts.end(),
                                         [](const auto& a, const auto& b) { return a.second < b.second; });
    double most = 1.0;
    for (const auto& [color, count] : counts) {
        const double a = Light(color) + 0.05;
        const double b = Light(ground->first) + 0.05;
        most = std::max(most, std::max(a, b) / std::min(a, b));
    }
    return most;
}

double ContrastOf(QWidget& widget, QRect part = {}) {
    return ContrastIn((part.isNull() ? widget.grab() : widget.grab(part)).toImage());
}

/// Texts of what is smaller than it would need to be.
std::string CutTexts(QWidget& window) {
    QStringList cut;
    for (QWidget* const widget : window.findChildren<QWidget*>()) {
        const auto* const label = qobject_cast<QLabel*>(widget);
        const auto* const button = qobject_cast<QAbstractButton*>(widget);
        const bool isText = (label != nullptr && !label->wordWrap() && !label->text().isEmpty()) ||
                            (button != nullptr && !button->text().isEmpty());
        const QSize needed = widget->sizeHint();
        if (isText && widget->isVisibleTo(&window) &&
            (widget->width() < needed.width() || widget->height() < needed.height() - 2)) {
            cut << (label != nullptr ? label->text() : button->text());
        }
    }
    return cut.join(QStringLiteral(", ")).toStdString();
}

class Looks : public OpenWindow {
protected:
    /// Where pictures are wanted; at another scale, under another name.
    static void Picture(QWidget& widget, const char* name) {
        const QString folder = qEnvironmentVariable("MILLICHART_DESIGNER_PICTURES");
        if (!folder.isEmpty()) {
            const int percent = qRound(widget.devicePixelRatioF() * 100.0);
            const QString scale = percent == 100 ? QString() : QStringLiteral("-%1").arg(percent);
            EXPECT_TRUE(widget.grab().save(
                QStringLiteral("%1/look-%2%3.png").arg(folder, QString::fromUtf8(name), scale)));
        }
    }

    void Start(const char* kind) {
        Window().StartNew(QString::fromUtf8(kind));
        ShowAll();
    }

    void TypeAt(int row, int column, const QString& text) {
        ClickItem(Table(), Table().model()->index(row, column));
        Type(text);
        Press(Qt::Key_Return);
        ShowAll();
    }

    void ExpectWhole(const char* where) { EXPECT_EQ(CutTexts(Window()), "") << where; }

    void ExpectKindsWhole() {
        ExpectWhole("start");
        for (const millichart::ChartKind& kind : millichart::ChartKinds()) {
            Start(kind.Name);
            ExpectWhole(kind.Name);
        }
    }

    /// A document with much and odd data in it, pointed at and selected.
    void FillWindow() {
        Start("histogram");
        TypeAt(0, 1, QStringLiteral("缺"));
        Hover(*Canvas().viewport(), PlaceOf({PartKind::Bar, 1, 0}));
        ShowAll();
    }

    void ExpectContrasts() {
        auto& hovered = *Window().findChild<QLabel*>(QStringLiteral("hovered"));
        ASSERT_FALSE(hovered.text().isEmpty());
        EXPECT_GE(ContrastOf(hovered), kReadable);
        EXPECT_GE(ContrastOf(*Table().horizontalHeader()), kReadable);
        const QRect odd = Table().visualRect(Table().model()->index(0, 1)).adjusted(2, 2, -2, -2);
        EXPECT_GE(ContrastOf(*Table().viewport(), odd), kReadable);
        for (QCheckBox* const box : Window().findChildren<QCheckBox*>()) {
            if (box->isVisible()) {
                EXPECT_GE(ContrastOf(*box), kReadable) << box->text().toStdString();
            }
        }
        auto& bar = *Window().findChild<QToolBar*>(QStringLiteral("toolBar"));
        for (const char* const name : {"new", "open", "save", "export", "undo", "properties"}) {
            QWidget* const button =
                bar.widgetForAction(Window().findChild<QAction*>(QString::fromUtf8(name)));
            ASSERT_NE(button, nullptr);
            EXPECT_GE(ContrastOf(*button, QRect(0, 0, button->height(), button->height())), kSeen) << name;
            EXPECT_GE(ContrastOf(*button), kReadable) << name;
        }
        auto& notice = *Window().findChild<NoticeBar*>();
        notice.Tell(QStringLiteral("“产量”已被其他程序修改。"), {{QStringLiteral("重新读入"), [] {}}});
        Settle();
        EXPECT_GE(ContrastOf(*notice.findChild<QLabel*>()), kReadable);
    }
};

/// As systems with a dark look give it to programs, before any window.
class DarkPalette {
protected:
    DarkPalette() : m_before(QApplication::palette()) {
        QPalette dark(QColor(0x35, 0x35, 0x35), QColor(0x2d, 0x2d, 0x2d));
        dark.setColor(QPalette::Base, QColor(0x1e, 0x1e, 0x1e));
        dark.setColor(QPalette::Highlight, QColor(0x2a, 0x82, 0xda));
        dark.setColor(QPalette::PlaceholderText, QColor(0xa0, 0xa0, 0xa0));
        dark.setColor(QPalette::ToolTipBase, QColor(0x45, 0x45, 0x30));
        dark.setColor(QPalette::ToolTipText, Qt::white);
        QApplication::setPalette(dark);
    }

    ~DarkPalette() { QApplication::setPalette(m_before); }

private:
    QPalette m_before;
};

class DarkLooks : DarkPalette, public Looks {};

class EnglishWords {
protected:
    EnglishWords() { InstallLanguage(QStringLiteral("en")); }

    ~EnglishWords() { InstallLanguage(QStringLiteral("zh_CN")); }
};

class EnglishLooks : EnglishWords, public Looks {};

TEST_F(Looks, AllTextsFitAndCanBeRead) {
    ExpectKindsWhole();
    FillWindow();
    ExpectContrasts();
    Picture(Window(), "odd-cells");
}

TEST_F(DarkLooks, AllTextsCanBeRead) {
    Picture(Window(), "dark-start");
    EXPECT_GE(ContrastOf(*Window().findChild<QPushButton*>(QStringLiteral("openFile"))), kReadable);
    FillWindow();
    ExpectContrasts();
    Picture(Window(), "dark");
}

TEST_F(EnglishLooks, AllTextsFit) {
    Picture(Window(), "english-start");
    ExpectKindsWhole();
    Picture(Window(), "english");
}

TEST_F(Looks, TheStartPageShowsAllKindsLargeAndFilesBelow) {
    for (const char* const name : {"各季度产量", "sales", "人口"}) {
        const QString file = Folder().filePath(QString::fromUtf8(name) + QStringLiteral(".chart.json"));
        ASSERT_EQ(New("pie").Save(file.toStdString()), "");
        ASSERT_TRUE(Window().Open(file));
    }
    ASSERT_TRUE(ChooseFromMenus(Window(), {"文件", "新建"}));
    ShowAll();
    Picture(Window(), "start-with-files");
    auto& tiles = *Window().findChild<KindTiles*>();
    QRect all;
    for (int i = 0; i < tiles.count(); ++i) {
        all |= tiles.visualItemRect(tiles.item(i));
    }
    EXPECT_TRUE(tiles.viewport()->rect().adjusted(0, 0, 1, 1).contains(all)) << "nothing to scroll for";
    const QPoint at = tiles.viewport()->mapTo(&tiles, all.topLeft());
    EXPECT_NEAR(at.x(), tiles.width() - at.x() - all.width(), 24) << "in the middle";
    EXPECT_GE(tiles.iconSize().width(), 300);
    auto& files = *Window().findChild<QListWidget*>(QStringLiteral("recentFiles"));
    ASSERT_EQ(files.count(), 3);
    EXPECT_TRUE(files.item(0)->text().startsWith(QStringLiteral("人口")));
    ClickItem(files, files.model()->index(1, 0));
    EXPECT_TRUE(Window().windowTitle().startsWith(QStringLiteral("sales")));
}

TEST_F(Looks, TheDialogsAreWhole) {
    Start("pie");
    ExportDialog exporting({120.0F, 90.0F}, &Window());
    SizeDialog sizing({120.0F, 90.0F}, &Window());
    for (QDialog* const dialog : std::initializer_list<QDialog*>{&exporting, &sizing}) {
        dialog->show();
        Settle();
        EXPECT_EQ(CutTexts(*dialog), "");
        Picture(*dialog, dialog == &exporting ? "export" : "size");
        dialog->hide();
    }
    TypeAt(0, 1, QStringLiteral("5"));
    InModal(
        [](QWidget& modal) {
            Picture(modal, "close");
            EXPECT_EQ(CutTexts(modal), "");
            EXPECT_TRUE(PressButton(modal, QStringLiteral("取消")));
        },
        [this] { Window().close(); });
    InModal(
        [](QWidget& modal) {
            Settle();
            Picture(modal, "print-preview");
            EXPECT_EQ(CutTexts(modal), "");
            EXPECT_GE(ContrastOf(modal), kReadable);
            modal.close();
        },
        [this] {
            EXPECT_TRUE(ChooseFromMenus(Window(), {"文件", "打印预览"}));
        });
}

/// The curve fills its plot, and the numbers of its last rows have room.
TEST_F(Looks, AMillionPointsAreALine) {
    constexpr std::size_t kMany = 1'000'000;
    Start("curve");
    Session().Change(QStringLiteral("数据"), [](millichart::ChartDocument& document) {
        auto& data = std::get<millichart::CurveDocument>(document.Content).Data;
        data.Labels.clear();
        data.Times.assign(2, std::vector<std::int32_t>(kMany));
        data.Values.assign(2, std::vector<double>(kMany));
        for (std::size_t i = 0; i < kMany; ++i) {
            data.Times[0][i] = data.Times[1][i] = static_cast<std::int32_t>(i);
            data.Values[0][i] = std::sin(static_cast<double>(i) * 1e-5) * 40.0;
            data.Values[1][i] = std::cos(static_cast<double>(i) * 1e-4) * 20.0;
        }
    });
    ShowAll();
    Table().scrollToBottom();
    ShowAll();
    Picture(Window(), "million");
    ASSERT_EQ(Table().model()->rowCount(), static_cast<int>(kMany) + 1);
    EXPECT_GE(Table().verticalHeader()->width(),
              Table().fontMetrics().horizontalAdvance(QStringLiteral("1000000")));
    const millichart::ChartPart curve{PartKind::Curve, 0};
    EXPECT_GT(BoxOf(curve).Width, BoxOf({PartKind::Plot}).Width * 0.9F);
}

} // namespace
} // namespace designer::test
