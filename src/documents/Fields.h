#pragma once

#include "penlode/Geometry.h"
#include "penlode/streams/SerializeStream.h"

#include <string>
#include <vector>

/// The fields of a chart document round the chart's record. What does not parse is refused to the stream with
/// its place.
namespace millichart::documents {

/// In mm, in each direction. Farther away single-precision numbers no longer tell a chart's parts apart.
inline constexpr float kMaxPoint = 1e6F;

/// A narrow text.
std::string LoadText(penlode::CSerializeStream& stream, const char* key, const std::string& defaultText);
double LoadNumber(penlode::CSerializeStream& stream, const char* key, double defaultNumber);
/// Loads or saves: "12.5 40". Points are at most kMaxPoint away.
void SerPoint(penlode::CSerializeStream& stream, const char* key, penlode::PointF& point);
void SerPoints(penlode::CSerializeStream& stream, const char* key, std::vector<penlode::PointF>& points);
/// What is no number is `unread`.
std::vector<double> LoadNumbers(penlode::CSerializeStream& stream, const char* key, double unread = 0.0);

/// As people write it, reading back the same: 5, 0.1, 1e+300.
std::string NumberText(double number);
std::string NumberText(float number);

/// The whole text as a finite number.
bool ParseNumber(const std::string& text, double& number);

/// What is expected of names that a record holds joined in one text.
inline constexpr const char* kJoinableForm = "a text without || and without | at its end";

/// Does a narrow text come out again whole when it is joined to others?
bool IsJoinable(const std::string& text);

/// The key of the font in a text's look, narrow, and what else a document may call it.
const std::string& FontTag();
inline const std::string kFontAlias = "Font";

/// "1 value", "2 values"
std::string Counted(std::size_t count, const std::string& noun);

} // namespace millichart::documents
