#include "pages/PaperSize.h"

#include "penlode/streams/TextForms.h"
#include "penlode/text/Digits.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <string_view>
#include <utility>

namespace cli {
namespace {

constexpr float kMaxSide = 5000.0F;
constexpr std::pair<std::string_view, float> kUnits[] = {
    {"mm", 1.0F}, {"cm", 10.0F}, {"in", 25.4F}, {"pt", 25.4F / 72.0F}};

/// Takes an ending away, and tells whether it was there.
bool Drop(std::string& text, std::string_view ending) {
    const bool isThere = text.ends_with(ending);
    text.resize(text.size() - (isThere ? ending.size() : 0));
    return isThere;
}

/// Each sheet is half of the one before, to the whole millimetre.
bool ParseSheet(std::string name, penlode::SizeF& size) {
    const bool isWide = Drop(name, "-landscape") || (Drop(name, "-portrait"), false);
    if (name.size() != 2 || name.front() != 'a' || name.back() < '0' || name.back() > '9') {
        return false;
    }
    int width = 841;
    int height = 1189;
    for (int i = '0'; i < name.back(); ++i) {
        width = std::exchange(height, width) / 2;
    }
    size = {static_cast<float>(isWide ? height : width), static_cast<float>(isWide ? width : height)};
    return true;
}

void DropBlanks(std::string& text) {
    while (Drop(text, " ")) {
    }
}

/// Takes a unit away; gives `otherwise` where there is none.
float DropUnit(std::string& text, float otherwise) {
    DropBlanks(text);
    for (const auto& [name, length] : kUnits) {
        if (Drop(text, name)) {
            return length;
        }
    }
    return otherwise;
}

/// `unit` is what the other side is in.
bool ParseSide(std::string text, float unit, float& side) {
    unit = DropUnit(text, unit);
    DropBlanks(text);
    if (!penlode::ser_evaluate(side, text, false)) {
        return false;
    }
    side *= unit;
    return side > 0.0F && side <= kMaxSide;
}

std::string Rounded(float length) {
    constexpr double kSteps = 1000.0;
    return penlode::PlainDigits(std::round(static_cast<double>(length) * kSteps) / kSteps);
}

} // namespace

bool ParseSize(const std::string& text, penlode::SizeF& size) {
    std::string plain = text;
    std::transform(plain.begin(), plain.end(), plain.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    if (ParseSheet(plain, size)) {
        return true;
    }
    constexpr std::string_view kTimes = "\u00D7";
    if (const std::size_t times = plain.find(kTimes); times != std::string::npos) {
        plain.replace(times, kTimes.size(), "x");
    }
    const std::size_t cross = plain.find('x');
    if (cross == std::string::npos) {
        return false;
    }
    std::string height = plain.substr(cross + 1);
    const float unit = DropUnit(height, 1.0F);
    return ParseSide(plain.substr(0, cross), unit, size.Width) && ParseSide(height, unit, size.Height);
}

std::string Millimetres(penlode::SizeF size) {
    return Rounded(size.Width) + " x " + Rounded(size.Height) + " mm";
}

} // namespace cli
