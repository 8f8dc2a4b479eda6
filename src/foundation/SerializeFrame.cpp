#include "foundation/SerializeFrame.h"

#include "penlode/streams/TextForms.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <type_traits>

namespace millichart {

using penlode::ser_evaluate;

namespace {

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

/// As Evaluate, by name. A value without one is shown as its number, which is not read.
auto ByName(EnumNames names) {
    return [names](std::int32_t& value, std::string& text, bool toText) {
        const auto found = std::find_if(names.begin(), names.end(), [&](const EnumName& name) {
            return toText ? name.Value == value : name.Name == text;
        });
        const bool isFound = found != names.end();
        if (toText) {
            text = isFound ? found->Name : TextOf(value);
        } else if (isFound) {
            value = found->Value;
        }
        return isFound;
    };
}

std::array<EnumName, 2> NamesOf(FlagNames flag) {
    return {{{0, flag.Zero}, {1, flag.Other}}};
}

/// As ByName, but every value has a name.
auto ByEffect(FlagNames flag) {
    return [names = NamesOf(flag)](std::int32_t& value, std::string& text, bool toText) {
        std::int32_t effect = value == 0 ? 0 : 1;
        const bool isGood = ByName(names)(effect, text, toText);
        value = toText || !isGood ? value : effect;
        return isGood;
    };
}

} // namespace

KeyedRecord::KeyedRecord(penlode::CSerializeStream& stream, const char* tag) : m_stream(stream) {
    m_stream.Push(tag, -1);
}

KeyedRecord::~KeyedRecord() {
    m_stream.Pop();
}

template <class T, class Convert>
void KeyedRecord::Single(const char* key, T& value, T defaultValue, const std::string& form,
                         Convert convert) {
    std::string text;
    std::string defaultText;
    convert(value, text, true);
    convert(defaultValue, defaultText, true);
    m_stream.Ser(key, text, defaultText);
    if (!m_stream.IsSaving()) {
        value = defaultValue;
        if (!convert(value, text, false)) {
            m_stream.Refuse(key, text, form);
        }
    }
}

void KeyedRecord::Field(const char* key, std::int32_t& value, std::int32_t defaultValue) {
    Single(key, value, defaultValue, penlode::kIntegerForm, Evaluate<std::int32_t>);
}

void KeyedRecord::Field(const char* key, float& value, float defaultValue) {
    Single(key, value, defaultValue, penlode::kFloatForm, Evaluate<float>);
}

void KeyedRecord::Field(const char* key, std::string& value, const std::string& defaultValue) {
    m_stream.Ser(key, value, defaultValue);
}

void KeyedRecord::Field(const char* key, std::int32_t& value, EnumNames names, std::int32_t defaultValue) {
    Single(key, value, defaultValue, ListedNames(names), ByName(names));
}

void KeyedRecord::Field(const char* key, std::int32_t& value, FlagNames names, std::int32_t defaultValue) {
    Single(key, value, defaultValue, ListedNames(NamesOf(names)), ByEffect(names));
}

void KeyedRecord::Field(const char* key, penlode::Color& value, penlode::Color defaultValue) {
    m_stream.Ser(key, value, defaultValue);
}

void KeyedRecord::Field(const char* key, penlode::Owned<penlode::Pen>& value,
                        const penlode::Pen& defaultValue) {
    penlode::LendToStream(value, m_stream.IsSaving(),
                          [&](penlode::Pen** pen) { m_stream.Ser(key, pen, defaultValue); });
}

void KeyedRecord::Field(const std::string& key, penlode::Owned<penlode::Font>& value) {
    penlode::LendToStream(value, m_stream.IsSaving(),
                          [&](penlode::Font** font) { m_stream.Ser(key, font, penlode::Font{}); });
}

void KeyedRecord::Field(const char* key, std::vector<std::string>& values) {
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

void KeyedRecord::Field(const char* key, std::vector<penlode::Color>& values) {
    List(key, values, penlode::kBlack, penlode::kColorForm, Evaluate<penlode::Color>);
}

void KeyedRecord::Field(const char* key, std::vector<std::int32_t>& values) {
    List(key, values, 0, penlode::kIntegerForm, Evaluate<std::int32_t>);
}

void KeyedRecord::Field(const char* key, std::vector<float>& values, float fallback) {
    List(key, values, fallback, penlode::kFloatForm, Evaluate<float>);
}

void KeyedRecord::Field(const char* key, std::vector<std::int32_t>& values, EnumNames names) {
    List(key, values, 0, ListedNames(names), ByName(names));
}

void KeyedRecord::Field(const char* key, std::vector<std::int32_t>& values, FlagNames names) {
    List(key, values, 0, ListedNames(NamesOf(names)), ByEffect(names));
}

void KeyedRecord::JoinedTexts(const char* key, std::vector<std::string>& values) {
    std::string joined;
    for (const std::string& value : values) {
        joined.append(WithWholeCharacters(value)).append(kTextSeparator);
    }
    m_stream.Ser(key, joined, {});
    if (!m_stream.IsSaving()) {
        values = SplitJoinedTexts(joined);
    }
}

template <class T> void PositionalRecord::List(std::vector<T>& values, const char* items) {
    auto count = static_cast<std::int32_t>(values.size());
    Put(count);
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

void PositionalRecord::Put(std::vector<penlode::Color>& values) {
    List(values, "a count of colours");
}

void PositionalRecord::Put(std::vector<float>& values) {
    List(values, "a count of numbers");
}

void PositionalRecord::Put(std::vector<std::int32_t>& values) {
    List(values, "a count of whole numbers");
}

std::vector<std::string> SplitJoinedTexts(const std::string& joined) {
    std::vector<std::string> texts;
    std::size_t start = 0;
    for (std::size_t at = 0; at < joined.size();) {
        if (joined.compare(at, kTextSeparator.size(), kTextSeparator) == 0) {
            texts.push_back(joined.substr(start, at - start));
            at += kTextSeparator.size();
            start = at;
        } else {
            at += penlode::CStringUtil::AnsiCharLength(joined, at);
        }
    }
    return texts;
}

} // namespace millichart
