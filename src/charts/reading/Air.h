#pragma once

#include "foundation/ChartOptions.h"

#include <string>

namespace millichart {

/// A third of a line of this font, if the options ask for air, else 0.
float AirOf(const ChartOptions& options, const penlode::Owned<penlode::Font>& font);

/// A caption as it is drawn: with air, without the line breaks at its end that stood for it.
std::string CaptionShown(const ChartOptions& options, const std::string& caption);

} // namespace millichart
