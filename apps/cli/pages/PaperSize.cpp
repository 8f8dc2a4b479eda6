#include "pages/PaperSize.h"

#include "documents/Forms.h"
#include "penlode/text/Digits.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <string_view>
#include <utility>

namespace cli {
namespace {

constexpr float kMaxSide = 5000.0F;

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

constexpr std::string_view kDigits = "0123456789.";

/// Without blanks, but for those within a number.
std::string Unblanked(std::string text) {
    const std::size_t blank = text.find(' ', std::min(text.find_first_of(kDigits), text.size()));
    if (blank == std::string::npos || text.find_first_of(kDigits, blank) == std::string::npos) {
        std::erase(text, ' ');
    }
    return text;
}

/// A side without a unit is in that of the other.
bool ParseSide(const std::string& text, std::string_view unit, float& side) {
    const bool isBare = !text.empty() && std::isalpha(static_cast<unsigned char>(text.back())) == 0;
    const auto length = millichart::documents::LengthOf(isBare ? text + std::string(unit) : text);
    side = static_cast<float>(length.value_or(0.0));
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
    const std::string width = Unblanked(plain.substr(0, cross));
    const std::string height = Unblanked(plain.substr(cross + 1));
    return ParseSide(width, std::string_view(height).substr(height.find_last_of(kDigits) + 1), size.Width) &&
           ParseSide(height, "mm", size.Height);
}

std::string Millimetres(penlode::SizeF size) {
    return Rounded(size.Width) + " x " + Rounded(size.Height) + " mm";
}

} // namespace cli
