// Every dialog as it stands on the screen. With MILLICHART_DIALOG_PICTURES=FOLDER, pictures go there.
#include "editing/Edit.h"
#include "editing/LineStyleComboBox.h"
#include "editing/qt/User.h"
#include "foundation/TextProperty.h"
#include "penlode/Pen.h"
#include "support/SomeRecords.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QTabWidget>
#include <gtest/gtest.h>

namespace millichart::test {
namespace {

/// No text is wider or higher than what shows it.
void ExpectWholeTexts(const QWidget& window) {
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        const auto* label = dynamic_cast<const QLabel*>(widget);
        const auto* button = dynamic_cast<const QAbstractButton*>(widget);
        const QString text = label ? label->text() : button ? button->text() : QString();
        if (text.isEmpty() || !widget->isVisible()) {
            continue;
        }
        EXPECT_LE(widget->minimumSizeHint().width(), widget->width()) << text.toStdString();
        EXPECT_LE(QFontMetrics(widget->font()).tightBoundingRect(text).height(), widget->height())
            << text.toStdString();
    }
}

/// Of a window, and of a list that is open on it.
QPixmap PictureOf(QWidget& window) {
    QPixmap picture = window.grab();
    if (QWidget* popup = QApplication::activePopupWidget()) {
        const QPoint place = popup->mapToGlobal(QPoint()) - window.mapToGlobal(QPoint());
        QPixmap whole(window.rect().united(QRect(place, popup->size())).size() * picture.devicePixelRatio());
        whole.setDevicePixelRatio(picture.devicePixelRatio());
        whole.fill(Qt::transparent);
        QPainter painter(&whole);
        painter.drawPixmap(0, 0, picture);
        painter.drawPixmap(place, popup->grab());
        return whole;
    }
    return picture;
}

/// Without a name, no picture: it would look like another one's.
void Look(const std::string& name) {
    QWidget& window = User::Front();
    ExpectWholeTexts(window);
    if (const char* folder = std::getenv("MILLICHART_DIALOG_PICTURES"); folder && !name.empty()) {
        const QPixmap picture = PictureOf(window);
        const std::string scale = picture.devicePixelRatio() > 1 ? "-200" : "";
        EXPECT_TRUE(picture.save(QString::fromStdString(folder + ("/" + name) + scale + ".png")));
    }
}

void LookAndCancel(const std::string& name) {
    Look(name);
    User::Press(Qt::Key_Escape);
}

TEST(Pictures, PenDialog) {
    User user;
    user.In("线条属性", [] {
        Look("pen");
        User::Find<CLineStyleComboBox>("线型(S)").showPopup();
    });
    const auto isOpen = [] { return QApplication::activePopupWidget() != nullptr; };
    user.In("线条属性", isOpen, [] {
        Look("pen-styles");
        QApplication::activePopupWidget()->close();
    });
    user.In("线条属性", [] { User::Press(Qt::Key_Escape); });
    penlode::Pen pen({0xFF1F77B4U}, 0.25F);
    EXPECT_FALSE(EditPen(&pen));
}

TEST(Pictures, TextDialogAndThoseOnIt) {
    User user;
    user.In("文本框属性", [] {
        Look("text");
        User::Press(Qt::Key_D, Qt::AltModifier);
    });
    user.In("选择颜色", [] { LookAndCancel("colour"); });
    user.In("文本框属性", [] { User::Press(Qt::Key_F, Qt::AltModifier); });
    user.In("选择字体", [] { LookAndCancel("font"); });
    user.In("文本框属性", [] { User::Press(Qt::Key_Escape); });
    TextProperty property;
    property.DrawEdge = 1;
    property.EdgeColor = {0xFFD62728U};
    property.BkColor = {0xFFFFF7DFU};
    property.Prefix = "(";
    property.Postfix = ")";
    EXPECT_FALSE(EditTextProperty(&property));
}

TEST(Pictures, RangeDialogsAndMessage) {
    User user;
    user.In("自然坐标设置", [] {
        Look("natural-range");
        User::Find<QLineEdit>("次刻度步长").setText("0.001");
        User::Press(Qt::Key_Return);
    });
    const auto isBox = [] { return dynamic_cast<QMessageBox*>(&User::Front()) != nullptr; };
    user.In("自然坐标设置", isBox, [] { LookAndCancel("message"); });
    user.In("自然坐标设置", [] { User::Press(Qt::Key_Escape); });
    double minimum = 0;
    double maximum = 100;
    double major = 10;
    double minor = 2;
    EXPECT_FALSE(EditNaturalValueRange(&minimum, &maximum, &major, &minor));
    user.In("对数坐标设置", [] { LookAndCancel("logarithm-range"); });
    minimum = 0.01;
    EXPECT_FALSE(EditLogarithmValueRange(&minimum, &maximum));
}

/// Turns to each page of the sheet in front, and closes it.
void LookAtPages(const std::vector<std::string>& names) {
    auto& tabs = *User::Front().findChild<QTabWidget*>();
    ASSERT_EQ(tabs.count(), static_cast<int>(names.size()));
    for (int page = 0; page < tabs.count(); ++page) {
        tabs.setCurrentIndex(page);
        Look(names[static_cast<std::size_t>(page)]);
    }
    User::Press(Qt::Key_Escape);
}

TEST(Pictures, BarAndLineSheets) {
    User user;
    user.In("直方图属性", [] {
        LookAtPages({"histogram-plot", "histogram-vertical", "histogram-horizontal", "caption", "legend"});
    });
    HistogramProp bars = SomeHistogram();
    EXPECT_FALSE(EditHistogramProp(&bars));
    user.In("曲线属性", [] { LookAtPages({"curve-plot", "curve-vertical", "curve-horizontal", "", ""}); });
    CurveProp curves = SomeCurves();
    EXPECT_FALSE(EditCurveProp(&curves));
}

TEST(Pictures, PieSheets) {
    User user;
    user.In("饼图属性", [] { LookAtPages({"pie", "pie-label", ""}); });
    PieProp pie = SomePie();
    EXPECT_FALSE(EditPieProp(&pie));
    user.In("半饼图属性", [] { LookAtPages({"half-pie", ""}); });
    HalfPieProp half = SomeHalf();
    EXPECT_FALSE(EditHalfPieProp(&half));
    user.In("半饼_半饼图属性", [] { LookAtPages({"two-halves", "", "", ""}); });
    HalfPieHalfPieProp halves{half, half};
    EXPECT_FALSE(EditHalfPieHalfPieProp(&halves));
    user.In("半饼_直方图属性", [] { LookAtPages({"", "", "", "", "", "", ""}); });
    HalfPieHistogramProp both{SomeHistogram(), half};
    EXPECT_FALSE(EditHalfPieHistogramProp(&both));
}

} // namespace
} // namespace millichart::test
