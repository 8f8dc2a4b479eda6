#pragma once

#include "penlode/Color.h"

#include <string>
#include <vector>

namespace millichart::documents {

/// Colours for charts that name none: as many as asked for, each unlike its neighbours. After ten the same
/// hues come again, paler.
std::vector<penlode::Color> PaletteColors(std::size_t count);

/// The ten hues, as documents write them.
std::vector<std::string> PaletteTexts();

} // namespace millichart::documents
