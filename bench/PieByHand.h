#pragma once

#include <string>
#include <vector>

namespace byhand {

/// A pie of these slices: each filled and outlined, with its name and share beside it, and a framed legend on
/// the right.
struct Pie {
    double PageWidth; ///< millimetres, as all lengths
    double PageHeight;
    double CenterX;
    double CenterY;
    double Diameter;
    double FontSize;
    std::string Family;
    std::vector<double> Values;
    std::vector<std::string> Names;
    std::vector<unsigned> Colors; ///< 0xRRGGBB
};

std::string PiePng(const Pie& pie, double dpi);
std::string PieSvg(const Pie& pie);

} // namespace byhand
