// The panel of a document's texts and reading options.
#include "panel/OptionsPanel.h"

#include "designer/table/TableUser.h"
#include "documents/NewDocument.h"
#include "panel/OptionRows.h"
#include "penlode/text/StringUtil.h"

#include <QCheckBox>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QSpinBox>
#include <QTest>

namespace designer::test {
namespace {

using millichart::ChartDocument;
using millichart::ChartOptions;

/// Somebody at the panel of a document, which is changed and shown as the panel wants it.
struct PanelUser {
    explicit PanelUser(const char* kind) {
        Document.Content = millichart::FindChartKind(kind)->Make();
        QObject::connect(&Panel, &OptionsPanel::ChangeWanted,
                         [this](const QString& name, const auto& change, const QString& merge) {
                             change(Document);
                             Names.push_back(name.toStdString());
                             Merges.push_back(merge.toStdString());
                             Panel.Show(Document);
                         });
        Panel.Show(Document);
        Panel.resize(300, 700);
        Panel.show();
    }

    /// By what a screen reader calls it, if it is to be seen.
    template <class Control> Control* Find(const QString& name) {
        for (Control* control : Panel.findChildren<Control*>()) {
            if (control->accessibleName() == name && control->isVisible()) {
                return control;
            }
        }
        return nullptr;
    }

    QCheckBox& Master() { return *Panel.findChild<QCheckBox*>(); }

    const bool HasApplication = (NeedApplication(), true);
    ChartDocument Document;
    OptionsPanel Panel;
    std::vector<std::string> Names;
    std::vector<std::string> Merges;
};

TEST(OptionsPanel, SetsEachOptionAndShowsIt) {
    for (const millichart::ChartKind& kind : millichart::ChartKinds()) {
        PanelUser user(kind.Name);
        for (const OptionRow& row : OptionRows()) {
            const QString name = QString::fromUtf8(row.Text).section('(', 0, 0);
            const ChartOptions before = user.Document.Options;
            auto* box = user.Find<QCheckBox>(name);
            auto* list = user.Find<QComboBox>(name);
            ASSERT_EQ(box != nullptr || list != nullptr, IsKindIn(&kind, row.Kinds)) << kind.Name << row.Text;
            if (box != nullptr) {
                QTest::keyClick(box, Qt::Key_Space);
                EXPECT_TRUE(box->isChecked());
            } else if (list != nullptr) {
                QTest::keyClick(list, Qt::Key_End);
            } else {
                continue;
            }
            ChartOptions expected = before;
            expected.*row.Field = row.Choices.back().Value;
            EXPECT_EQ(user.Document.Options, expected) << row.Text;
            EXPECT_EQ(user.Names.back(), ("设置“" + name + "”").toStdString());
        }
    }
}

TEST(OptionsPanel, OpensAndClosesAllAndKeepsContent) {
    PanelUser user("pie");
    user.Document.Options.TimeUnit = millichart::TimeUnit::Days;
    user.Document.Options.Title.Caption = "t";
    user.Panel.Show(user.Document);
    EXPECT_EQ(user.Master().checkState(), Qt::Unchecked);
    const ChartOptions classical = user.Document.Options;
    QTest::keyClick(&user.Master(), Qt::Key_Space);
    EXPECT_EQ(user.Master().checkState(), Qt::Checked);
    ChartOptions readable = ChartOptions::Readable();
    readable.TimeUnit = classical.TimeUnit;
    readable.Title = classical.Title;
    readable.SecondTitle = classical.SecondTitle;
    EXPECT_EQ(user.Document.Options, readable);
    QTest::keyClick(user.Find<QCheckBox>("留白"), Qt::Key_Space);
    EXPECT_EQ(user.Master().checkState(), Qt::PartiallyChecked);
    QTest::keyClick(&user.Master(), Qt::Key_Space);
    EXPECT_EQ(user.Master().checkState(), Qt::Checked);
    QTest::keyClick(&user.Master(), Qt::Key_Space);
    EXPECT_EQ(user.Document.Options, classical);
}

TEST(OptionsPanel, TakesTextsAsTheyAreTyped) {
    PanelUser user("half-pie-half-pie");
    const auto type = [&](const char* name, const char* text) {
        auto* line = user.Find<QWidget>(QString::fromUtf8(name));
        ASSERT_NE(line, nullptr) << name;
        line->setFocus();
        QInputMethodEvent event;
        event.setCommitString(QString::fromUtf8(text));
        QApplication::sendEvent(line, &event);
        QTest::keyClicks(line, "ab");
    };
    type("标题", "甲");
    type("说明", "乙");
    type("来源", "丙");
    type("图标题", "丁");
    type("第二个图标题", "戊");
    EXPECT_EQ(user.Document.Title, "甲ab");
    EXPECT_EQ(user.Document.Description, "乙ab");
    EXPECT_EQ(user.Document.Source, "丙ab");
    const auto utf8 = [](const std::string& narrow) { return penlode::CStringUtil::AnsiToUtf8(narrow); };
    EXPECT_EQ(utf8(user.Document.Options.Title.Caption), "丁ab");
    EXPECT_EQ(utf8(user.Document.Options.SecondTitle.Caption), "戊ab");
    EXPECT_NE(user.Document.Options.Title.ShowCaption, 0);
    EXPECT_EQ(user.Merges[0], user.Merges[2]);
    EXPECT_EQ(std::set<std::string>(user.Merges.begin(), user.Merges.end()).size(), 5U);
}

TEST(OptionsPanel, CountsDecimalsAndLetsTheWheelScroll) {
    PanelUser user("bar");
    auto* box = user.Find<QSpinBox>("最多小数位数");
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->value(), 3);
    QTest::keyClick(box, Qt::Key_Up);
    EXPECT_EQ(user.Document.Options.MaxDecimals, 4);
    auto* list = user.Find<QComboBox>("千位分隔");
    list->clearFocus();
    QWheelEvent wheel({5, 5}, list->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, {}, {}, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(list, &wheel);
    EXPECT_EQ(user.Document.Options.Thousands, millichart::ThousandsStyle::None);
}

} // namespace
} // namespace designer::test
