#include "foundation/SerializeFrame.h"

#include "penlode/streams/TextForms.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <cmath>
#include <type_traits>

namespace millichart {

using penlode::ser_evaluate;

namespace {

constexpr const char* kTextSeparator = "||";

template <class T> std::string TextOf(T value) {
    std::string text;
    ser_evaluate(value, text, true);
    return text;
}

/// A number that is not finite means nothing in a record, though it has a text form.
template <class T> bool Evaluate(T& value, std::string& text, bool toText) {
    T read = value;
    bool isGood = ser_evaluate(read, text, toText);
    if constexpr (std::is_floating_point_v<T>) {
        isGood = isGood && (toText || std::isfinite(read));
    }
    value = isGood ? read : value;
    return isGood;
}

/// A stray byte at a text's end would take the separator behind it for its second half.
std::string WithWholeCharacters(const std::string& text) {
    return penlode::CStringUtil::WideToAnsiString(penlode::CStringUtil::AnsiToWideString(text));
}

/// one of "2D", "3D"
std::string ListedNames(EnumNames names) {
    std::string text;
    for (const EnumName& name : names) {
        text += (text.empty() ? "\"" : ", \"") + std::string(name.Name) + "\"";
    }
    return "one of " + text;
}

std::string NameOf(std::int32_t value, EnumNames names) {
    const auto found = std::find_if(names.begin(), names.end(),
                                    [value](const EnumName& name) { return name.Value == value; });
    return found == names.end() ? TextOf(value) : found->Name;
}

bool ValueOf(const std::string& text, EnumNames names, std::int32_t& value) {
    const auto found =
        std::find_if(names.begin(), names.end(), [&text](const EnumName& name) { return name.Name == text; });
    if (found == names.end()) {
        return false;
    }
    value = found->Value;
    return true;
}

} // namespace

KeyedRecord::KeyedRecord(penlode::CSerializeStream& stream, const char* tag) : m_stream(stream) {
    m_stream.Push(tag, -1);
}

KeyedRecord::~KeyedRecord() {
    m_stream.Pop();
}

template <class T> void KeyedRecord::Number(const char* key, T& value, T defaultValue, const char* form) {
    std::string text = TextOf(value);
    m_stream.Ser(key, text, TextOf(defaultValue));
    if (!m_stream.IsSaving()) {
        value = defaultValue;
        if (!Evaluate(value, text, false)) {
            m_stream.Refuse(key, text, form);
        }
    }
}

void KeyedRecord::Integer(const char* key, std::int32_t& value, std::int32_t defaultValue) {
    Number(key, value, defaultValue, penlode::kIntegerForm);
}

void KeyedRecord::Float(const char* key, float& value, float defaultValue) {
    Number(key, value, defaultValue, penlode::kFloatForm);
}

void KeyedRecord::Text(const char* key, std::string& value, const std::string& defaultValue) {
    m_stream.Ser(key, value, defaultValue);
}

void KeyedRecord::Enumeration(const char* key, std::int32_t& value, EnumNames names,
                              std::int32_t defaultValue) {
    std::string text = NameOf(value, names);
    m_stream.Ser(key, text, NameOf(defaultValue, names));
    if (!m_stream.IsSaving()) {
        value = defaultValue;
        if (!ValueOf(text, names, value)) {
            m_stream.Refuse(key, text, ListedNames(names));
        }
    }
}

void KeyedRecord::Color(const char* key, penlode::Color& value, penlode::Color defaultValue) {
    m_stream.Ser(key, value, defaultValue);
}

void KeyedRecord::Pen(const char* key, penlode::Owned<penlode::Pen>& value,
                      const penlode::Pen& defaultValue) {
    penlode::LendToStream(value, m_stream.IsSaving(),
                          [&](penlode::Pen** pen) { m_stream.Ser(key, pen, defaultValue); });
}

void KeyedRecord::Font(const std::string& key, penlode::Owned<penlode::Font>& value,
                       const penlode::Font& defaultValue) {
    penlode::LendToStream(value, m_stream.IsSaving(),
                          [&](penlode::Font** font) { m_stream.Ser(key, font, defaultValue); });
}

void KeyedRecord::TextList(const char* key, std::vector<std::string>& values) {
    m_stream.Ser(key, values, {});
}

template <class T, class Convert>
void KeyedRecord::List(const char* key, std::vector<T>& values, T fallback, const std::string& form,
                       Convert convert) {
    const bool isSaving = m_stream.IsSaving();
    std::vector<std::string> texts(isSaving ? values.size() : 0);
    for (std::size_t i = 0; i < texts.size(); ++i) {
        convert(values[i], texts[i], true);
    }
    m_stream.Ser(key, texts, {});
    if (isSaving) {
        return;
    }
    values.assign(texts.size(), fallback);
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (!convert(values[i], texts[i], false)) {
            m_stream.Refuse(key + std::string("/") + std::to_string(i), texts[i], form);
        }
    }
}

void KeyedRecord::ColorList(const char* key, std::vector<penlode::Color>& values) {
    List(key, values, penlode::kBlack, penlode::kColorForm, Evaluate<penlode::Color>);
}

void KeyedRecord::IntegerList(const char* key, std::vector<std::int32_t>& values) {
    List(key, values, 0, penlode::kIntegerForm, Evaluate<std::int32_t>);
}

void KeyedRecord::FloatList(const char* key, std::vector<float>& values, float fallback) {
    List(key, values, fallback, penlode::kFloatForm, Evaluate<float>);
}

void KeyedRecord::EnumerationList(const char* key, std::vector<std::int32_t>& values, EnumNames names) {
    List(key, values, 0, ListedNames(names), [names](std::int32_t& value, std::string& text, bool toText) {
        if (toText) {
            text = NameOf(value, names);
        }
        return toText || ValueOf(text, names, value);
    });
}

void KeyedRecord::JoinedTexts(const char* key, std::vector<std::string>& values) {
    std::string joined;
    for (const std::string& value : values) {
        joined += WithWholeCharacters(value) + kTextSeparator;
    }
    m_stream.Ser(key, joined, {});
    if (!m_stream.IsSaving()) {
        values = SplitJoinedTexts(joined);
    }
}

template <class T> void PositionalRecord::List(std::vector<T>& values, const char* items) {
    auto count = static_cast<std::int32_t>(values.size());
    Field(count);
    if (m_stream.IsSaving()) {
        std::for_each(values.begin(), values.end(), [this](T value) { m_stream.Write(value); });
        return;
    }
    values.clear();
    if (count < 0) {
        m_stream.Refuse("a count of " + TextOf(count), items);
    }
    // Item by item, so that a count which nothing follows takes no memory.
    for (std::int32_t i = 0; i < count && !m_stream.Failed(); ++i) {
        T value{};
        m_stream.Read(value);
        if (!m_stream.Failed()) {
            values.push_back(value);
        }
    }
}

void PositionalRecord::Field(std::vector<penlode::Color>& values) {
    List(values, "a count of colours");
}

void PositionalRecord::Field(std::vector<float>& values) {
    List(values, "a count of numbers");
}

void PositionalRecord::Field(std::vector<std::int32_t>& values) {
    List(values, "a count of whole numbers");
}

std::vector<std::string> SplitJoinedTexts(const std::string& joined) {
    std::vector<std::string> texts;
    std::size_t start = 0;
    for (std::size_t at = 0; at < joined.size();) {
        if (joined.compare(at, 2, kTextSeparator) == 0) {
            texts.push_back(joined.substr(start, at - start));
            at += 2;
            start = at;
        } else {
            at += penlode::CStringUtil::AnsiCharLength(joined, at);
        }
    }
    return texts;
}

} // namespace millichart
