#include "editing/qt/StandardDialogs.h"

#include "editing/qt/ColorButton.h"
#include "editing/qt/QtValues.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QFontDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>

namespace millichart {
namespace {

using marrowkit::CColorButton;

std::int32_t StyleOf(const QFont& font) {
    namespace Style = penlode::FontStyle;
    return (font.bold() ? Style::Bold : 0) | (font.italic() ? Style::Italic : 0) |
           (font.underline() ? Style::Underline : 0) | (font.strikeOut() ? Style::Strikeout : 0);
}

QFont ToQFont(const penlode::LogicalFont& logical) {
    namespace Style = penlode::FontStyle;
    QFont font(QString::fromStdWString(logical.Family));
    if (logical.Height > 0) {
        font.setPixelSize(logical.Height);
    }
    font.setBold((logical.Style & Style::Bold) != 0);
    font.setItalic((logical.Style & Style::Italic) != 0);
    font.setUnderline((logical.Style & Style::Underline) != 0);
    font.setStrikeOut((logical.Style & Style::Strikeout) != 0);
    return font;
}

/// The dialog counts in points, and shows a family or a style that is not installed as its nearest: whatever
/// is as it `opened` is what was `shown`.
penlode::LogicalFont Picked(const QFont& font, const QFont& opened, const penlode::LogicalFont& shown,
                            int pixelsPerInch) {
    penlode::LogicalFont picked = shown;
    if (font.family() != opened.family()) {
        picked.Family = font.family().toStdWString();
    }
    if (font.pointSizeF() != opened.pointSizeF()) {
        picked.Height = qRound(font.pointSizeF() * pixelsPerInch / 72);
    }
    if (StyleOf(font) != StyleOf(opened)) {
        picked.Style = StyleOf(font);
    }
    return picked;
}

/// Puts a colour among the font dialog's effects, which has none of its own.
CColorButton* AddColorRow(QFontDialog& dialog) {
    const auto* strikeout = dialog.findChild<QCheckBox*>();
    QLayout* effects = strikeout ? strikeout->parentWidget()->layout() : dialog.layout();
    auto* row = new QWidget(&dialog);
    auto* label = new QLabel(QStringLiteral("颜色(&C):"), row);
    auto* button = new CColorButton(row);
    button->setAccessibleName(QStringLiteral("颜色(C)"));
    label->setBuddy(button);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
    layout->addWidget(button, 1);
    effects->addWidget(row);
    return button;
}

} // namespace

Answer ShowMessage(QWidget* window, std::string_view text, MessageButtons buttons) {
    QMessageBox box(window);
    box.setFont(window->font());
    box.setWindowTitle(window->windowTitle());
    box.setTextFormat(Qt::PlainText);
    box.setText(ToQString(text));
    box.setStandardButtons(buttons == MessageButtons::YesNo ? QMessageBox::Yes | QMessageBox::No
                                                            : QMessageBox::Ok);
    switch (box.exec()) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    default:
        return Answer::Ok;
    }
}

std::optional<std::uint32_t> PickColor(QWidget* window, std::uint32_t colorRef) {
    QColorDialog dialog(ToQColor(colorRef), window);
    dialog.setFont(window->font());
    dialog.setOption(QColorDialog::DontUseNativeDialog);
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    return ToColorRef(dialog.selectedColor());
}

std::optional<FontChoice> PickFont(QWidget* window, const FontChoice& shown, int pixelsPerInch) {
    QFontDialog dialog(window);
    dialog.setFont(window->font());
    dialog.setOption(QFontDialog::DontUseNativeDialog);
    dialog.setCurrentFont(ToQFont(shown.Font));
    CColorButton* color = AddColorRow(dialog);
    color->SetColor(shown.TextColor);
    dialog.resize(dialog.width(), dialog.width()); // the lists keep more than a few lines
    const QFont opened = dialog.currentFont();
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    return FontChoice{Picked(dialog.selectedFont(), opened, shown.Font, pixelsPerInch), color->Color()};
}

} // namespace millichart
