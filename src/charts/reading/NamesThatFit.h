#pragma once

#include "foundation/Export.h"
#include "penlode/Geometry.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace millichart {

/// A name under an axis, as it reads there.
struct FittedName {
    std::size_t Index = 0; ///< of the name in its list
    std::string Text;      ///< narrow; with line breaks where it was wrapped
    penlode::RectF Box;    ///< upright, round the turned text, in mm
    std::int32_t Angle = 0;
};

/// What stands where under an axis.
struct NamesToFit {
    const std::vector<std::string>& Names; ///< narrow, none of them empty
    const std::vector<float>& Centers;     ///< parallel to the names, ascending, in mm
    float Top;                             ///< of the names
    std::int32_t Angle;                    ///< that the record gives them
    bool AreOnScale; ///< what is left out can be told from its neighbours, as of numbers
    /// The size of a level text of one or more lines.
    std::function<penlode::SizeF(const std::string&)> Measure;
};

/// Names that would touch are, in this order, wrapped at blanks and between Chinese characters, turned by 45
/// degrees and hung by their end, and thinned to every n-th. Names on a scale are rather thinned than turned,
/// as long as five are left. A turned one that is longer than 25 times its height ends in "…". Those that the
/// record turns are thinned at most. Gives those that are left.
///
/// Every name is measured; beyond that it takes n log n steps for n names.
MILLICHART_API std::vector<FittedName> FitNames(const NamesToFit& names);

/// Narrow text in lines of at most `width` as far as its blanks and Chinese characters allow it.
MILLICHART_API std::string WrappedText(const std::string& text, float width,
                                       const std::function<penlode::SizeF(const std::string&)>& measure);

} // namespace millichart
