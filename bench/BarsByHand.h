#pragma once

#include <string>
#include <vector>

namespace byhand {

/// Groups of bars side by side over a value axis from 0, with ticks, a grid, the value on each bar, a name
/// below each group and a framed legend on the right.
struct Bars {
    double PageWidth; ///< millimetres, as all lengths
    double PageHeight;
    double Left; ///< of the plot
    double Top;
    double Width;
    double Height;
    double Gap; ///< between groups
    double FontSize;
    std::string Family;
    double Largest; ///< the axis's end
    double Step;
    double MinorStep;
    std::vector<std::vector<double>> Values; ///< one list a group
    std::vector<std::string> GroupNames;
    std::vector<std::string> Names; ///< one a bar of a group
    std::vector<unsigned> Colors;   ///< 0xRRGGBB
};

std::string BarsPng(const Bars& bars, double dpi);
std::string BarsSvg(const Bars& bars);

} // namespace byhand
