#pragma once

#include "penlode/Color.h"

#include <cstdint>
#include <string>
#include <vector>

namespace millichart::documents {

/// Colours for charts that name none: as many as asked for, each unlike its neighbours. After ten the same
/// hues come again, paler.
std::vector<penlode::Color> PaletteColors(std::size_t count);

/// Fills a list of colours up to so many, each entry with the palette's at its position, or the next that is
/// not in the list yet.
void FillUp(std::vector<penlode::Color>& colors, std::size_t count);

/// Fills a list of markers, of CurveDotStyle, up to so many: lines whose last marker is none have none; after
/// any other each has the next that no line has yet.
void FillUpMarkers(std::vector<std::int32_t>& styles, std::size_t count);

/// The ten hues, as documents write them.
std::vector<std::string> PaletteTexts();

} // namespace millichart::documents
