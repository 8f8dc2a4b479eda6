#include "editing/DlgLinePenProp.h"
#include "editing/DlgLogarithmValueRange.h"
#include "editing/DlgNaturalValueRange.h"
#include "editing/Sheets.h"
#include "editing/TextPropDlg.h"
#include "penlode/text/StringUtil.h"

#include <gtest/gtest.h>
#include <set>

using namespace millichart;

namespace {

using enum ControlKind;

constexpr int kMargin = 7;

/// Room for a text: 8 units a Chinese character, 4 any other, and a mnemonic's mark takes none.
int TextWidth(std::string_view text) {
    int width = 0;
    for (const wchar_t character : penlode::CStringUtil::Utf8ToWideString(text)) {
        width += character == L'&' ? 0 : character < 0x80 ? 4 : 8;
    }
    return width;
}

/// What a control adds to its text.
int Decoration(ControlKind kind) {
    switch (kind) {
    case CheckBox:
    case RadioButton:
        return 12;
    case Button:
    case DefaultButton:
        return 8;
    default:
        return 0;
    }
}

bool Overlap(const Control& a, const Control& b) {
    return a.X < b.X + b.Width && b.X < a.X + a.Width && a.Y < b.Y + b.Height && b.Y < a.Y + a.Height;
}

bool Contains(const Control& group, const Control& control) {
    return control.X >= group.X + 6 && control.X + control.Width <= group.X + group.Width - 6 &&
           control.Y >= group.Y + 10 && control.Y + control.Height <= group.Y + group.Height - 6;
}

void CheckPlaces(const DialogTemplate& dialog) {
    const auto controls = dialog.Controls;
    for (std::size_t i = 0; i < controls.size(); ++i) {
        const Control& control = controls[i];
        SCOPED_TRACE(std::string(dialog.Title) + " " + std::to_string(control.Id) +
                     std::string(control.Text));
        EXPECT_GE(control.X, kMargin);
        EXPECT_GE(control.Y, kMargin);
        EXPECT_LE(control.X + control.Width, dialog.Width - kMargin);
        EXPECT_LE(control.Y + control.Height, dialog.Height - kMargin);
        EXPECT_LE(TextWidth(control.Text) + Decoration(control.Kind), control.Width);
        for (const Control& other : controls.subspan(i + 1)) {
            EXPECT_TRUE(!Overlap(control, other) || (control.Kind == GroupBox && Contains(control, other)))
                << other.Id << other.Text;
        }
    }
}

/// Rows go down, and in a row controls go to the right.
void CheckTabOrder(const DialogTemplate& dialog) {
    const Control* last = nullptr;
    for (const Control& control : dialog.Controls) {
        if (control.Kind == Label || control.Kind == GroupBox) {
            continue;
        }
        if (last != nullptr) {
            EXPECT_TRUE(control.Y >= last->Y + last->Height || control.X >= last->X + last->Width)
                << last->Id << " before " << control.Id;
        }
        last = &control;
    }
}

void CheckNames(const DialogTemplate& dialog) {
    std::set<int> ids;
    std::set<char> mnemonics;
    for (const Control& control : dialog.Controls) {
        EXPECT_TRUE(control.Id == kNoId || ids.insert(control.Id).second) << control.Id;
        if (const std::size_t mark = control.Text.find('&'); mark != std::string_view::npos) {
            EXPECT_TRUE(mnemonics.insert(control.Text[mark + 1]).second) << control.Text;
        }
    }
}

TEST(Templates, StandOnTheirGridWithRoomForTheirTexts) {
    for (const DialogTemplate* dialog :
         {&CDlgLinePenProp({}).Template(), &CTextPropDlg({}).Template(),
          &CDlgNaturalValueRange({}).Template(), &CDlgLogarithmValueRange({}).Template()}) {
        CheckPlaces(*dialog);
        CheckTabOrder(*dialog);
        CheckNames(*dialog);
        EXPECT_EQ(dialog->Controls[dialog->Controls.size() - 2].Id, kOkButton);
        EXPECT_EQ(dialog->Controls.back().Id, kCancelButton);
    }
}

TEST(Templates, AreTheSameForThePagesOfSheets) {
    CSheetPie pie({});
    CSheetHalfPieHistogram halfPieHistogram({});
    CSheetCurve curve({});
    for (Sheet* sheet : std::initializer_list<Sheet*>{&pie, &halfPieHistogram, &curve}) {
        for (const SheetPage& page : sheet->Pages()) {
            CheckPlaces(page.Page->Template());
            CheckTabOrder(page.Page->Template());
            CheckNames(page.Page->Template());
        }
    }
}

} // namespace
