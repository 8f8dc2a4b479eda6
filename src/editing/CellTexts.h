#pragma once

#include "editing/DialogView.h"
#include "penlode/Color.h"

#include <string>
#include <string_view>
#include <vector>

/// Values as controls and cells show them, and back.
namespace millichart {

/// The shortest text without an exponent that reads back the same.
std::string ShortestText(float value);

/// Without decimals.
std::string WholeText(float value);

/// The number that a text begins with, in single precision; beyond its range the largest.
float TypedFloat(std::string_view text);

/// What was typed (UTF-8) as a narrow text. One that was not touched keeps its bytes, whatever they mean.
std::string TypedText(const std::string& typed, const std::string& before);

/// A colour is a Windows RGB value in decimal digits; what comes back is opaque.
std::string ColorCell(penlode::Color color);
penlode::Color ColorOfCell(std::string_view cell);

/// The colour, width in mm and dash style of a line's cell: "255 0.300000 0".
struct LineCellValues {
    std::uint32_t ColorRef = 0;
    float Width = 0.0F;
    std::int32_t DashStyle = 0;
};

std::string LineCell(const LineCellValues& line);
LineCellValues LineOfCell(std::string_view cell);

/// Let the user pick another colour, or edit a line in the pen's dialog.
bool EditColorCell(DialogView& view, std::string& cell);
bool EditLineCell(DialogView& view, std::string& cell);

/// The colour of a row that was added, of six in turn.
std::string NewColorCell(int row);

/// The list "成分", "颜色": a row a name. Colours that are missing are shown as black; both lists come back
/// as long as there are rows, once the user has changed one.
void ShowComponents(DialogView& view, int list, const std::vector<std::string>& names,
                    const std::vector<penlode::Color>& colors);
void ReadComponents(const DialogView& view, int list, std::vector<std::string>& names,
                    std::vector<penlode::Color>& colors);

} // namespace millichart
