#include "editing/CellTexts.h"

#include "editing/DlgLinePenProp.h"
#include "editing/NumberInput.h"
#include "foundation/NumberText.h"
#include "penlode/text/Digits.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <array>
#include <limits>

namespace millichart {
namespace {

using penlode::CStringUtil;

std::string NewName(int) {
    return "成分";
}

/// What stands behind the next blank.
std::string_view Rest(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    text.remove_prefix(std::min(text.find(' '), text.size()));
    return text;
}

constexpr std::array kComponentColumns{
    ListColumn{"成分", CellKind::Text, 190, &NewName},
    ListColumn{"颜色", CellKind::Color, 70, &NewColorCell, {}, &EditColorCell},
};

std::vector<ListRow> ComponentRows(const std::vector<std::string>& names,
                                   const std::vector<penlode::Color>& colors) {
    std::vector<ListRow> rows;
    rows.reserve(names.size());
    for (std::size_t i = 0; i < names.size(); ++i) {
        rows.push_back(
            {CStringUtil::AnsiToUtf8(names[i]), ColorCell(i < colors.size() ? colors[i] : penlode::kBlack)});
    }
    return rows;
}

} // namespace

std::string ShortestText(float value) {
    return penlode::Digits(value, std::chars_format::fixed);
}

std::string WholeText(float value) {
    return FixedText(static_cast<double>(value), 0);
}

float TypedFloat(std::string_view text) {
    constexpr double kMost = std::numeric_limits<float>::max();
    return static_cast<float>(std::clamp(ReadNumber(text), -kMost, kMost));
}

std::string TypedText(const std::string& typed, const std::string& before) {
    return typed == CStringUtil::AnsiToUtf8(before) ? before : CStringUtil::Utf8ToAnsi(typed);
}

std::string ColorCell(penlode::Color color) {
    return std::to_string(ToColorRef(color));
}

penlode::Color ColorOfCell(std::string_view cell) {
    return penlode::FromColorRef(static_cast<std::uint32_t>(ReadInteger(cell)));
}

std::string LineCell(const LineCellValues& line) {
    return std::to_string(line.ColorRef) + ' ' + FixedText(static_cast<double>(line.Width), 6) + ' ' +
           std::to_string(line.DashStyle);
}

LineCellValues LineOfCell(std::string_view cell) {
    const std::string_view width = Rest(cell);
    return {ToColorRef(ColorOfCell(cell)), TypedFloat(width), ReadInteger(Rest(width))};
}

bool EditColorCell(DialogView& view, std::string& cell) {
    const auto picked = view.PickColor(ToColorRef(ColorOfCell(cell)));
    if (picked) {
        cell = std::to_string(*picked);
    }
    return picked.has_value();
}

bool EditLineCell(DialogView& view, std::string& cell) {
    const LineCellValues before = LineOfCell(cell);
    CDlgLinePenProp dialog({before.ColorRef, static_cast<double>(before.Width), before.DashStyle});
    if (!view.Run(dialog)) {
        return false;
    }
    const LinePenValues& line = dialog.Edited();
    cell = LineCell({line.ColorRef, static_cast<float>(line.Width),
                     line.DashStyle < 0 ? before.DashStyle : line.DashStyle});
    return true;
}

std::string NewColorCell(int row) {
    constexpr std::array<std::uint32_t, 6> kHues{0xFF4472C4U, 0xFFED7D31U, 0xFF70AD47U,
                                                 0xFFFFC000U, 0xFF7E57C2U, 0xFF26A69AU};
    return ColorCell({kHues[static_cast<std::size_t>(std::max(row, 0)) % kHues.size()]});
}

void ShowComponents(DialogView& view, int list, const std::vector<std::string>& names,
                    const std::vector<penlode::Color>& colors) {
    view.SetColumns(list, kComponentColumns);
    view.SetRows(list, ComponentRows(names, colors));
}

void ReadComponents(const DialogView& view, int list, std::vector<std::string>& names,
                    std::vector<penlode::Color>& colors) {
    const std::vector<ListRow> rows = view.Rows(list);
    if (rows != ComponentRows(names, colors)) {
        names.resize(rows.size());
        colors.resize(rows.size());
    }
    for (std::size_t i = 0; i < rows.size(); ++i) {
        names[i] = TypedText(rows[i][0], names[i]);
        if (i < colors.size()) {
            colors[i] = ColorOfCell(rows[i][1]);
        }
    }
}

} // namespace millichart
