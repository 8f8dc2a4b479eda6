#pragma once

#include "foundation/Export.h"
#include "penlode/Color.h"
#include "penlode/Font.h"
#include "penlode/Owned.h"
#include "penlode/Pen.h"
#include "penlode/streams/ISerialize.h"
#include "penlode/streams/SerializeStream.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// The frame of every record's serializer. A record's fields stand in one list, a line a field, which both
/// paths walk, saving and loading:
///
///     template <class Fields> void Describe(Fields& record, CaptionProp& prop) {
///         record.Field("ShowCaption", prop.ShowCaption, 0);
///         record.Field("Caption", prop.Caption, "");
///         record.Record("CaptionTextProperty", prop.CaptionTextProperty);
///     }
namespace millichart {

/// An enumeration's value and the name under which documents store it.
struct EnumName {
    std::int32_t Value;
    const char* Name;
};

using EnumNames = std::span<const EnumName>;

/// The names of a choice of two, stored as 0 and 1, where every number but 0 means the other one.
struct FlagNames {
    const char* Zero;
    const char* Other;
};

/// What a pen is where no other default is stated.
inline constexpr penlode::Pen kDefaultPen{penlode::kBlack, 0.1F};

/// One group of a keyed stream, open from construction to destruction. Each member saves the field under its
/// key, or loads it: a missing key, or a text that means nothing, gives the default. A number that is not
/// finite means nothing. Texts are narrow (GBK; CStringUtil::Utf8ToAnsi).
class MILLICHART_API KeyedRecord {
public:
    KeyedRecord(penlode::CSerializeStream& stream, const char* tag);
    ~KeyedRecord();
    KeyedRecord(const KeyedRecord&) = delete;
    KeyedRecord& operator=(const KeyedRecord&) = delete;

    void Field(const char* key, std::int32_t& value, std::int32_t defaultValue);
    void Field(const char* key, float& value, float defaultValue);
    void Field(const char* key, std::string& value, const std::string& defaultValue);
    /// Stored by name. A value without a name is stored as its number, for people to see; only names are
    /// loaded.
    void Field(const char* key, std::int32_t& value, EnumNames names, std::int32_t defaultValue);
    /// Stored by the name of what it does, so that a load does the same.
    void Field(const char* key, std::int32_t& value, FlagNames names, std::int32_t defaultValue);
    void Field(const char* key, penlode::Color& value, penlode::Color defaultValue);
    void Field(const char* key, penlode::Owned<penlode::Pen>& value,
               const penlode::Pen& defaultValue = kDefaultPen);
    /// `key` is narrow.
    void Field(const std::string& key, penlode::Owned<penlode::Font>& value);
    void Field(const char* key, std::vector<std::string>& values);
    /// Lists have no default. An item that means nothing keeps its place, so that the others keep theirs: as
    /// opaque black, as 0, or as `fallback`.
    void Field(const char* key, std::vector<penlode::Color>& values);
    void Field(const char* key, std::vector<std::int32_t>& values);
    void Field(const char* key, std::vector<float>& values, float fallback);
    /// Items stored as a single value is.
    void Field(const char* key, std::vector<std::int32_t>& values, EnumNames names);
    void Field(const char* key, std::vector<std::int32_t>& values, FlagNames names);
    /// All texts in one, each followed by "||". What follows the last "||" is dropped on load.
    void JoinedTexts(const char* key, std::vector<std::string>& values);

    /// A record within this one, in a group of its own.
    template <class Prop> void Record(const char* tag, Prop& prop) { SerializeFields(m_stream, prop, tag); }

private:
    /// `convert` turns a value into its text, or the text into the value and tells whether it could.
    template <class T, class Convert>
    void Single(const char* key, T& value, T defaultValue, const std::string& form, Convert convert);
    template <class T, class Convert>
    void List(const char* key, std::vector<T>& values, T fallback, const std::string& form, Convert convert);

    penlode::CSerializeStream& m_stream;
};

/// A positional stream has no names, and an order of its own: in each record all that is no list and no
/// text's look comes first, then those, each in the order of the record's list.
template <class T> inline constexpr bool kIsStoredLast = false;
template <class T> inline constexpr bool kIsStoredLast<std::vector<T>> = true;

/// The fields of a positional stream; keys, defaults and names of values mean nothing to it.
class MILLICHART_API PositionalRecord {
public:
    explicit PositionalRecord(penlode::ISerialize& stream, bool takesLast = false)
        : m_stream(stream), m_takesLast(takesLast) {}

    /// One field after another, as they are named here: for a record whose order is neither list's.
    template <class... Fields> void operator()(Fields&... fields) { (Put(fields), ...); }

    template <class Key, class T, class... Forms> void Field(const Key&, T& value, const Forms&...) {
        if (kIsStoredLast<T> == m_takesLast) {
            Put(value);
        }
    }

    void JoinedTexts(const char* key, std::vector<std::string>& values) { Field(key, values); }

    template <class Prop> void Record(const char* tag, Prop& prop) { Field(tag, prop); }

private:
    template <class T> void Put(T& value);
    template <class T> void Put(penlode::Owned<T>& value);
    void Put(std::vector<penlode::Color>& values);
    void Put(std::vector<float>& values);
    void Put(std::vector<std::int32_t>& values);
    /// A count and the items.
    template <class T> void List(std::vector<T>& values, const char* items);

    penlode::ISerialize& m_stream;
    bool m_takesLast;
};

/// Saves or loads a record by the list that `Describe` makes of it.
template <class Prop> void SerializeFields(penlode::CSerializeStream& stream, Prop& prop, const char* tag) {
    KeyedRecord record(stream, tag);
    Describe(record, prop);
}

template <class Prop> void SerializeFields(penlode::ISerialize& stream, Prop& prop) {
    for (const bool takesLast : {false, true}) {
        PositionalRecord record(stream, takesLast);
        Describe(record, prop);
    }
}

template <class T> void PositionalRecord::Put(T& value) {
    if constexpr (requires { m_stream.Read(value); }) {
        if (m_stream.IsSaving()) {
            m_stream.Write(value);
        } else {
            m_stream.Read(value);
        }
    } else {
        SerializeFields(m_stream, value);
    }
}

template <class T> void PositionalRecord::Put(penlode::Owned<T>& value) {
    penlode::LendToStream(value, m_stream.IsSaving(), [this](T** object) {
        if (m_stream.IsSaving()) {
            m_stream.Write(static_cast<const T*>(*object));
        } else {
            m_stream.Read(object);
        }
    });
}

/// Follows each of several texts that are stored in one.
inline constexpr std::string_view kTextSeparator = "||";

/// Splits a narrow text at every "||", by whole characters, since a second byte may look like "|". Each piece
/// that is followed by "||" is one text.
MILLICHART_API std::vector<std::string> SplitJoinedTexts(const std::string& joined);

} // namespace millichart
