#include "Fields.h"

#include "penlode/TextForms.h"

#include <cmath>

namespace cli {
namespace {

using penlode::CSerializeStream;
using penlode::PointF;

constexpr const char* kPointForm = "a point such as \"12.5 40\"";

template <class T> bool Parse(const std::string& text, T& value) {
    std::string form = text;
    return penlode::ser_evaluate(value, form, false) && std::isfinite(value);
}

bool ParsePoint(const std::string& text, PointF& point) {
    const std::size_t blank = text.find(' ');
    PointF read;
    if (blank == std::string::npos || !Parse(text.substr(0, blank), read.X) ||
        !Parse(text.substr(blank + 1), read.Y)) {
        return false;
    }
    point = read;
    return true;
}

template <class T>
std::vector<T> LoadList(CSerializeStream& stream, const std::string& key,
                        bool (*parse)(const std::string&, T&), const char* form) {
    std::vector<std::string> texts;
    stream.Ser(key, texts, {});
    std::vector<T> values(texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (!parse(texts[i], values[i])) {
            stream.Refuse(key + "/" + std::to_string(i), texts[i], form);
        }
    }
    return values;
}

} // namespace

std::string LoadText(CSerializeStream& stream, const char* key, const std::string& defaultText) {
    std::string text;
    stream.Ser(key, text, defaultText);
    return text;
}

double LoadNumber(CSerializeStream& stream, const char* key, double defaultNumber) {
    std::string defaultText;
    penlode::ser_evaluate(defaultNumber, defaultText, true);
    const std::string text = LoadText(stream, key, defaultText);
    double number = defaultNumber;
    if (!ParseNumber(text, number)) {
        stream.Refuse(key, text, penlode::kFloatForm);
    }
    return number;
}

PointF LoadPoint(CSerializeStream& stream, const char* key) {
    const std::string text = LoadText(stream, key, "0 0");
    PointF point;
    if (!ParsePoint(text, point)) {
        stream.Refuse(key, text, kPointForm);
    }
    return point;
}

std::vector<PointF> LoadPoints(CSerializeStream& stream, const char* key) {
    return LoadList<PointF>(stream, key, ParsePoint, kPointForm);
}

std::vector<double> LoadNumbers(CSerializeStream& stream, const char* key) {
    return LoadList<double>(stream, key, ParseNumber, penlode::kFloatForm);
}

bool ParseNumber(const std::string& text, double& number) {
    return Parse(text, number);
}

} // namespace cli
