#pragma once

#include "penlode/Color.h"
#include "penlode/Export.h"
#include "penlode/Font.h"
#include "penlode/Owned.h"
#include "penlode/Pen.h"

#include <array>
#include <cstdint>
#include <iosfwd>
#include <string>

/// The text forms in which keyed streams store values, to be read and written by people too.
///
///     integer    -3
///     float      0.1            shortest text that reads back the same, whatever the locale
///     colour     #FF336699      #AARRGGBB; #RRGGBB is opaque
///     pen        #FF000000 0.1 dash-dot
///                               colour, width in mm, then solid (may be left out),
///                               dash, dot, dash-dot, dash-dot-dot or custom
///     font       宋体 4 bold italic
///                               family, size in mm, then any of bold, italic,
///                               underline, strikeout; other style bits are lost,
///                               and an empty family is sans-serif
///     nothing    none           no pen, no font
///
/// Every function turns the value into its text when `toText` is true, else the text into the value. A text
/// that does not parse as a whole, blanks at its ends aside, leaves the value as it was and gives false; so
/// does a pen or a font whose size is not finite.
namespace penlode {

PENLODE_API bool ser_evaluate(std::int32_t& value, std::string& text, bool toText);
PENLODE_API bool ser_evaluate(float& value, std::string& text, bool toText);
PENLODE_API bool ser_evaluate(double& value, std::string& text, bool toText);
PENLODE_API bool ser_evaluate(Color& value, std::string& text, bool toText);
PENLODE_API bool ser_evaluate(Owned<Pen>& value, std::string& text, bool toText);
PENLODE_API bool ser_evaluate(Owned<Font>& value, std::string& text, bool toText);

/// One float of a list: written with a blank after it, or read up to the next blank.
PENLODE_API bool ser_evaluate_vector(float& value, std::stringstream& stream, bool toText);

/// The words for dash styles, by number.
inline constexpr std::array<const char*, 6> kDashNames = {"solid",    "dash",         "dot",
                                                          "dash-dot", "dash-dot-dot", "custom"};

/// What a text of each kind looks like, for messages.
inline constexpr const char* kIntegerForm = "a whole number";
inline constexpr const char* kFloatForm = "a number";
inline constexpr const char* kColorForm = "a colour such as #FF336699";
inline constexpr const char* kPenForm = "a pen such as \"#FF000000 0.1 dash\"";
inline constexpr const char* kFontForm = "a font such as \"Arial 4 bold\"";

} // namespace penlode
