#pragma once

#include "penlode/Geometry.h"
#include "penlode/SerializeStream.h"

#include <string>
#include <vector>

/// The fields of a chart document round the chart's record. What does not parse is refused to the stream with
/// its place.
namespace cli {

/// A narrow text.
std::string LoadText(penlode::CSerializeStream& stream, const char* key, const std::string& defaultText);
double LoadNumber(penlode::CSerializeStream& stream, const char* key, double defaultNumber);
penlode::PointF LoadPoint(penlode::CSerializeStream& stream, const char* key);
std::vector<penlode::PointF> LoadPoints(penlode::CSerializeStream& stream, const char* key);
std::vector<double> LoadNumbers(penlode::CSerializeStream& stream, const char* key);

/// The whole text as a finite number.
bool ParseNumber(const std::string& text, double& number);

} // namespace cli
