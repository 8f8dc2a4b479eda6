#include "designer/canvas/Canvas.h"
#include "model/ChartEdits.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QPlainTextEdit>
#include <QTest>
#include <gtest/gtest.h>

namespace designer::test {
namespace {

using millichart::ChartPart;
using millichart::PartKind;

/// Somebody who writes on the page.
struct Writer {
    Writer() : Canvas(Example("histogram-crude-steel")) {
        QObject::connect(&Canvas.Widget, &ChartCanvas::TextEdited,
                         [this](ChartPart part, const QString& text) {
                             Part = part;
                             Text = text;
                             ++Count;
                         });
    }

    QPlainTextEdit* Editor() { return Canvas->viewport()->findChild<QPlainTextEdit*>(); }

    /// To whatever has the keyboard.
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }

    void Compose(const char* preedit, const char* commit) {
        QInputMethodEvent event(QString::fromUtf8(preedit), {});
        event.setCommitString(QString::fromUtf8(commit));
        QApplication::sendEvent(QApplication::focusWidget(), &event);
    }

    /// Until editors that are done are gone.
    bool HasNoEditor() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return Editor() == nullptr;
    }

    OpenCanvas Canvas;
    ChartPart Part;
    QString Text;
    int Count = 0;
};

TEST(EditText, TakesChineseInThePlaceOfTheText) {
    Writer writer;
    const auto caption = writer.Canvas.Part(PartKind::Caption);
    writer.Canvas->Select(caption.Part);
    writer.Press(Qt::Key_F2);
    ASSERT_NE(writer.Editor(), nullptr);
    EXPECT_TRUE(writer.Editor()->hasFocus());
    const QRect box = writer.Canvas->ToViewport(caption.Box);
    EXPECT_TRUE(writer.Editor()->geometry().adjusted(-1, -1, 1, 1).contains(box));
    EXPECT_LT((writer.Editor()->geometry().center() - box.center()).manhattanLength(), 12);
    EXPECT_FALSE(writer.Editor()->toPlainText().endsWith(u'\n'));
    writer.Canvas.Picture("editor");
    writer.Compose("chan", "");
    EXPECT_EQ(writer.Count, 0);
    writer.Compose("", "产量");
    writer.Press(Qt::Key_Return, Qt::ControlModifier);
    writer.Compose("", "甲");
    writer.Press(Qt::Key_Return);
    EXPECT_EQ(writer.Count, 1);
    EXPECT_EQ(writer.Part, caption.Part);
    EXPECT_EQ(writer.Text, QStringLiteral("产量\n甲"));
    EXPECT_TRUE(writer.HasNoEditor());
    EXPECT_TRUE(writer.Canvas->hasFocus());
}

TEST(EditText, EndsByEscapeAndByLosingTheKeyboard) {
    Writer writer;
    const ChartPart name = writer.Canvas.Part(PartKind::GroupName, 2).Part;
    EXPECT_TRUE(writer.Canvas->EditText(name));
    writer.Compose("", "没有");
    writer.Press(Qt::Key_Escape);
    EXPECT_TRUE(writer.HasNoEditor());
    EXPECT_TRUE(writer.Canvas->EditText(name));
    writer.Press(Qt::Key_Return);
    EXPECT_EQ(writer.Count, 0) << "nothing was changed";
    EXPECT_TRUE(writer.HasNoEditor());

    EXPECT_TRUE(writer.Canvas->EditText(name));
    writer.Compose("", "乙");
    writer.Canvas.Click({3, 3});
    writer.Canvas->setFocus();
    EXPECT_EQ(writer.Count, 1);
    EXPECT_EQ(writer.Text, QStringLiteral("乙"));
    EXPECT_TRUE(writer.HasNoEditor());
    EXPECT_FALSE(writer.Canvas->EditText(writer.Canvas.Part(PartKind::Plot).Part));
}

TEST(EditText, BeginsByTypingAndByASlowSecondClick) {
    Writer writer;
    const auto name = writer.Canvas.Part(PartKind::GroupName, 1);
    writer.Canvas->Select(name.Part);
    writer.Press(Qt::Key_7);
    ASSERT_NE(writer.Editor(), nullptr);
    EXPECT_EQ(writer.Editor()->toPlainText(), QStringLiteral("7"));
    writer.Press(Qt::Key_Escape);
    EXPECT_TRUE(writer.HasNoEditor());
    writer.Compose("", "丙");
    ASSERT_NE(writer.Editor(), nullptr);
    EXPECT_EQ(writer.Editor()->toPlainText(), QStringLiteral("丙"));
    writer.Press(Qt::Key_Escape);
    EXPECT_TRUE(writer.HasNoEditor());

    QApplication::setDoubleClickInterval(40);
    writer.Canvas->Select(std::nullopt);
    writer.Canvas.Click(writer.Canvas.Middle(name));
    QTest::qWait(80);
    EXPECT_EQ(writer.Editor(), nullptr) << "the first click selects";
    writer.Canvas.Click(writer.Canvas.Middle(name));
    EXPECT_EQ(writer.Editor(), nullptr) << "it may become a double click";
    QTest::qWait(80);
    EXPECT_NE(writer.Editor(), nullptr);
}

TEST(EditText, GrowsWithTheTextAndFollowsTheZoom) {
    Writer writer;
    const auto caption = writer.Canvas.Part(PartKind::Caption);
    ASSERT_TRUE(writer.Canvas->EditText(caption.Part));
    const int before = writer.Editor()->width();
    writer.Compose("", "一个很长很长很长很长很长很长很长很长很长很长很长很长的标题");
    EXPECT_GT(writer.Editor()->width(), before);
    writer.Canvas->SetZoom(2.0);
    const int size = writer.Editor()->font().pixelSize();
    writer.Canvas->SetZoom(4.0);
    EXPECT_NEAR(writer.Editor()->font().pixelSize(), 2 * size, 1);
    EXPECT_TRUE(writer.Canvas->viewport()->rect().contains(writer.Editor()->geometry()));
    writer.Press(Qt::Key_Escape);
}

} // namespace
} // namespace designer::test
