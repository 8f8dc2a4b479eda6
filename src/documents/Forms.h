#pragma once

#include "penlode/Color.h"

#include <optional>
#include <string>
#include <string_view>

/// Forms of values that people write and the records' serializers do not read.
///
///     colour     steelblue, #36C, rgb(51, 102, 204), rgba(51, 102, 204, 0.5), #3366CC, #803366CC
///     length     12, 12mm, 1.2cm, 9pt, 0.5in
///     pen        steelblue 1pt dash
///     font       Arial 9pt bold
///     point      1cm 12mm
namespace millichart::documents {

/// By any of its forms. Nothing when the text is none.
std::optional<penlode::Color> ColorOf(std::string_view text);

/// In mm, which a bare number is too. Nothing when the text is none.
std::optional<double> LengthOf(std::string_view text);

/// What serializers read for such a text. One that they read anyhow, or that means nothing, stays as it is.
std::string ColorForm(const std::string& text);
std::string LengthForm(const std::string& text);
std::string PenForm(const std::string& text);
std::string FontForm(const std::string& text);
std::string PointForm(const std::string& text);

} // namespace millichart::documents
