// The program in each of its languages: nothing of another, and keys that choose one thing each.
#include "window/Language.h"

#include "designer/window/OpenWindow.h"
#include "designer/window/Texts.h"
#include "table/TableMenus.h"
#include "window/Examples.h"
#include "window/ExportDialog.h"
#include "window/SizeDialog.h"

#include <QApplication>
#include <QMenu>
#include <QMessageBox>
#include <QTimer>
#include <gtest/gtest.h>

namespace designer::test {
namespace {

/// Before the window is made, and back afterwards.
class Speaking {
protected:
    explicit Speaking(const char* language) { InstallLanguage(QString::fromUtf8(language)); }

    ~Speaking() { InstallLanguage(QStringLiteral("zh_CN")); }
};

class LanguageWindow : public OpenWindow {
protected:
    void StartKind(const millichart::ChartKind& kind) {
        Window().StartNew(QString::fromUtf8(kind.Name));
        ShowAll();
    }

    /// The canvas's menu on a part, while it is open.
    void WithCanvasMenu(const millichart::ChartPart& part, const std::function<void(QMenu&)>& act) {
        bool isSeen = false;
        QTimer::singleShot(0, &Window(), [&] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (menu != nullptr) {
                isSeen = true;
                act(*menu);
                menu->close();
            }
        });
        Q_EMIT Canvas().MenuWanted(part, PlaceOf(part));
        EXPECT_TRUE(isSeen);
    }

    void ExpectSingleMnemonics(const millichart::ChartKind& kind) {
        EXPECT_EQ(Doubles(MnemonicsOf(Window())).toStdString(), "") << kind.Name;
        for (const QMenu* const menu : Window().findChildren<QMenu*>()) {
            EXPECT_EQ(Doubles(MnemonicsOf(menu->actions())).toStdString(), "")
                << kind.Name << " " << menu->title().toStdString();
        }
    }

    void ExpectSingleMnemonicsEverywhere() {
        for (const millichart::ChartKind& kind : millichart::ChartKinds()) {
            StartKind(kind);
            ExpectSingleMnemonics(kind);
        }
        QMenu cells;
        AddCellActions(cells, Table());
        for (const QMenu* const menu : cells.findChildren<QMenu*>() + QList<QMenu*>{&cells}) {
            EXPECT_GT(MnemonicsOf(menu->actions()).size(), 4);
            EXPECT_EQ(Doubles(MnemonicsOf(menu->actions())).toStdString(), "");
        }
        WithCanvasMenu({millichart::PartKind::Caption}, [](QMenu& menu) {
            EXPECT_EQ(Doubles(MnemonicsOf(menu.actions())).toStdString(), "");
        });
        ExportDialog exporting({100.0F, 80.0F}, nullptr);
        SizeDialog sizing({100.0F, 80.0F}, nullptr);
        for (QDialog* const dialog : std::initializer_list<QDialog*>{&exporting, &sizing}) {
            EXPECT_GE(MnemonicsOf(*dialog).size(), 2);
            EXPECT_EQ(Doubles(MnemonicsOf(*dialog)).toStdString(), "");
        }
    }
};

class English : Speaking, public LanguageWindow {
protected:
    English() : Speaking("en") {}

    static void ExpectEnglish(const QStringList& texts, const char* where) {
        EXPECT_FALSE(texts.isEmpty()) << where;
        for (const QString& text : texts) {
            // The one text that is Chinese for whoever reads no English.
            EXPECT_TRUE(!HasChinese(text) || text == QStringLiteral("中文"))
                << where << ": " << text.toStdString();
        }
    }
};

class Chinese : Speaking, public LanguageWindow {
protected:
    Chinese() : Speaking("zh_CN") {}
};

TEST_F(English, NoTextOfTheWindowIsChinese) {
    ExpectEnglish(TextsOf(Window()), "start page");
    for (const millichart::ChartKind& kind : millichart::ChartKinds()) {
        StartKind(kind);
        const QStringList texts = TextsOf(Window());
        ExpectEnglish(texts, kind.Name);
        EXPECT_TRUE(texts.contains(QStringLiteral("&File")));
        EXPECT_TRUE(texts.contains(QStringLiteral("&Palette")));
        EXPECT_TRUE(texts.contains(QStringLiteral("Palette"))) << "its name, without a mnemonic";
    }
}

TEST_F(English, NoTextOfMenusDialogsAndQuestionsIsChinese) {
    StartKind(*millichart::FindChartKind("histogram"));
    QMenu cells;
    AddCellActions(cells, Table());
    ExpectEnglish(TextsOf(cells), "cells");
    WithCanvasMenu({millichart::PartKind::Caption},
                   [](QMenu& menu) { ExpectEnglish(TextsOf(menu), "canvas"); });
    ExportDialog exporting({100.0F, 80.0F}, nullptr);
    ExpectEnglish(TextsOf(exporting), "export");
    SizeDialog sizing({100.0F, 80.0F}, nullptr);
    ExpectEnglish(TextsOf(sizing), "size");

    ClickItem(Table(), Table().model()->index(0, 1));
    Type(QStringLiteral("none"));
    Press(Qt::Key_Return);
    ClickItem(Table(), Table().model()->index(1, 1));
    Type(QStringLiteral("none"));
    Press(Qt::Key_Return);
    ExpectEnglish(TextsOf(Window()), "odd cells");
    EXPECT_TRUE(TextsOf(Window()).contains(QStringLiteral("&Undo typing")));
    const auto question = [](const char* expected, const char* answer) {
        return [=](QWidget& modal) {
            ExpectEnglish(TextsOf(modal), expected);
            EXPECT_EQ(dynamic_cast<QMessageBox&>(modal).text().toStdString(), expected);
            EXPECT_TRUE(PressButton(modal, QString::fromUtf8(answer)));
        };
    };
    const QString file = Folder().filePath(QStringLiteral("sales.chart.json"));
    InModals({question("Save the changes to “Untitled”?", "Save"),
              [&](QWidget& modal) {
                  ExpectEnglish(TextsOf(modal), "file dialog");
                  ChooseFile(modal, file);
              },
              question("2 cells are not numbers.", "Save anyway")},
             [this] { Window().close(); });
    EXPECT_TRUE(QFile::exists(file));
}

TEST_F(English, EachKeyChoosesOneThing) {
    ExpectSingleMnemonicsEverywhere();
}

TEST_F(Chinese, EachKeyChoosesOneThing) {
    ExpectSingleMnemonicsEverywhere();
}

/// The same figures under names of one's own language, and nothing to undo or to save.
TEST_F(Chinese, ANewChartHasChineseNames) {
    for (const millichart::ChartKind& kind : millichart::ChartKinds()) {
        StartKind(kind);
        EXPECT_TRUE(Document().IsSound()) << kind.Name;
        EXPECT_FALSE(Session().Current().CanUndo());
        EXPECT_TRUE(Session().Current().IsSaved());
        EXPECT_TRUE(HasChinese(QString::fromStdString(Document().Title))) << kind.Name;
        Shown().Chart.VisitTexts([&](const millichart::ChartText& text) {
            const QString drawn = QString::fromStdWString(text.Text);
            const bool hasWord = std::any_of(drawn.begin(), drawn.end(), [](QChar sign) {
                return sign.isLetter() && sign.unicode() < 0x80;
            });
            EXPECT_FALSE(hasWord) << kind.Name << ": " << drawn.toStdString();
        });
        const std::vector<DataTable> figures = Session().Current().Tables();
        const Editor plain = Editor::New(kind);
        ASSERT_EQ(figures.size(), plain.Tables().size());
        for (std::size_t i = 0; i < figures.size(); ++i) {
            for (std::size_t row = 0; row < figures[i].RowCount(); ++row) {
                EXPECT_EQ(figures[i].Text(row, 1), plain.Tables()[i].Text(row, 1)) << kind.Name;
            }
        }
    }
}

} // namespace
} // namespace designer::test
