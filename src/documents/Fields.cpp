#include "documents/Fields.h"

#include "foundation/SerializeFrame.h"
#include "penlode/streams/TextForms.h"
#include "penlode/text/Digits.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>

namespace millichart::documents {
namespace {

using penlode::CSerializeStream;
using penlode::PointF;

constexpr const char* kPointForm = "a point such as \"12.5 40\"";

template <class T> std::string TextOf(T value) {
    std::string text;
    penlode::ser_evaluate(value, text, true);
    return text;
}

std::string PointText(PointF point) {
    return TextOf(point.X) + " " + TextOf(point.Y);
}

std::string ItemKey(const std::string& key, std::size_t index) {
    return key + "/" + std::to_string(index);
}

template <class T> bool Parse(const std::string& text, T& value) {
    std::string form = text;
    return penlode::ser_evaluate(value, form, false) && std::isfinite(value);
}

bool ParsePoint(const std::string& text, PointF& point) {
    const std::size_t blank = text.find(' ');
    PointF read;
    const bool isRead = blank != std::string::npos && Parse(text.substr(0, blank), read.X) &&
                        Parse(text.substr(blank + 1), read.Y);
    point = isRead ? read : point;
    return isRead;
}

void RefuseFarPoint(CSerializeStream& stream, const std::string& key, PointF point) {
    if (std::abs(point.X) > kMaxPoint || std::abs(point.Y) > kMaxPoint) {
        stream.Refuse(key, "a point far away", "a point at most 1000000 mm away");
    }
}

template <class T>
std::vector<T> LoadList(CSerializeStream& stream, const std::string& key,
                        bool (*parse)(const std::string&, T&), const char* form, T unread) {
    std::vector<std::string> texts;
    stream.Ser(key, texts, {});
    std::vector<T> values(texts.size(), unread);
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (!parse(texts[i], values[i])) {
            stream.Refuse(ItemKey(key, i), texts[i], form);
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
    const std::string text = LoadText(stream, key, TextOf(defaultNumber));
    double number = defaultNumber;
    if (!ParseNumber(text, number)) {
        stream.Refuse(key, text, penlode::kFloatForm);
    }
    return number;
}

void SerPoint(CSerializeStream& stream, const char* key, PointF& point) {
    std::string text = PointText(point);
    stream.Ser(key, text, "0 0");
    if (stream.IsSaving()) {
        return;
    }
    point = {};
    if (!ParsePoint(text, point)) {
        stream.Refuse(key, text, kPointForm);
    }
    RefuseFarPoint(stream, key, point);
}

void SerPoints(CSerializeStream& stream, const char* key, std::vector<PointF>& points) {
    if (stream.IsSaving()) {
        std::vector<std::string> texts;
        std::transform(points.begin(), points.end(), std::back_inserter(texts), PointText);
        stream.Ser(key, texts, {});
        return;
    }
    points = LoadList<PointF>(stream, key, ParsePoint, kPointForm, {});
    for (std::size_t i = 0; i < points.size(); ++i) {
        RefuseFarPoint(stream, ItemKey(key, i), points[i]);
    }
}

std::vector<double> LoadNumbers(CSerializeStream& stream, const char* key, double unread) {
    return LoadList<double>(stream, key, ParseNumber, penlode::kFloatForm, unread);
}

std::string NumberText(double number) {
    return penlode::PlainDigits(number == 0.0 ? 0.0 : number); // nobody writes a negative zero
}

std::string NumberText(float number) {
    return TextOf(number);
}

bool ParseNumber(const std::string& text, double& number) {
    return Parse(text, number);
}

bool IsJoinable(const std::string& text) {
    return SplitJoinedTexts(text + std::string(kTextSeparator)) == std::vector{text};
}

const std::string& FontTag() {
    static const std::string kTag = penlode::CStringUtil::WideToAnsiString(L"字体");
    return kTag;
}

std::string Counted(std::size_t count, const std::string& noun) {
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

} // namespace millichart::documents
