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
#include <vector>

/// The frame of every record's serializer: one function serves saving and loading, and reads as a list of
/// fields.
///
///     KeyedRecord record(stream, "CaptionProp");
///     record.Integer("ShowCaption", prop.ShowCaption, 0);
///     record.Text("Caption", prop.Caption, "");
namespace millichart {

/// An enumeration's value and the name under which documents store it.
struct EnumName {
    std::int32_t Value;
    const char* Name;
};

using EnumNames = std::span<const EnumName>;

/// Flat or with depth, as pies and bars are drawn.
inline constexpr EnumName kPieStyleNames[] = {{0, "2D"}, {1, "3D"}};

/// What a pen is where no other default is stated.
inline constexpr penlode::Pen kDefaultPen{penlode::kBlack, 0.1F};

/// One group of a keyed stream, open from construction to destruction. Each member saves the field under its
/// key, or loads it: a missing key, or a text that means nothing, gives the default. A number that is not
/// finite means nothing.
class MILLICHART_API KeyedRecord {
public:
    KeyedRecord(penlode::CSerializeStream& stream, const char* tag);
    ~KeyedRecord();
    KeyedRecord(const KeyedRecord&) = delete;
    KeyedRecord& operator=(const KeyedRecord&) = delete;

    void Integer(const char* key, std::int32_t& value, std::int32_t defaultValue);
    void Float(const char* key, float& value, float defaultValue);
    void Text(const char* key, std::string& value, const std::string& defaultValue);
    /// Stored by name. A value without a name is stored as its number, for people to see; only names are
    /// loaded.
    void Enumeration(const char* key, std::int32_t& value, EnumNames names, std::int32_t defaultValue);
    void Color(const char* key, penlode::Color& value, penlode::Color defaultValue);
    void Pen(const char* key, penlode::Owned<penlode::Pen>& value,
             const penlode::Pen& defaultValue = kDefaultPen);
    /// `key` is narrow.
    void Font(const std::string& key, penlode::Owned<penlode::Font>& value,
              const penlode::Font& defaultValue = penlode::Font{});
    void TextList(const char* key, std::vector<std::string>& values);
    /// Lists have no default. An item that means nothing keeps its place, so that the others keep theirs: as
    /// opaque black, as 0, or as `fallback`.
    void ColorList(const char* key, std::vector<penlode::Color>& values);
    void IntegerList(const char* key, std::vector<std::int32_t>& values);
    void FloatList(const char* key, std::vector<float>& values, float fallback);
    /// Items stored as Enumeration stores them.
    void EnumerationList(const char* key, std::vector<std::int32_t>& values, EnumNames names);
    /// All texts in one, each followed by "||". What follows the last "||" is dropped on load.
    void JoinedTexts(const char* key, std::vector<std::string>& values);

private:
    template <class T> void Number(const char* key, T& value, T defaultValue, const char* form);
    /// `convert` turns an item into its text, or the text into the item and tells whether it could.
    template <class T, class Convert>
    void List(const char* key, std::vector<T>& values, T fallback, const std::string& form, Convert convert);

    penlode::CSerializeStream& m_stream;
};

/// The fields of a positional stream, in the order in which they are named.
class MILLICHART_API PositionalRecord {
public:
    explicit PositionalRecord(penlode::ISerialize& stream) : m_stream(stream) {}

    /// One field after another: integers, floats, texts, colours, pens, fonts, lists of texts, colours,
    /// floats or integers.
    template <class... Fields> void operator()(Fields&... fields) { (Field(fields), ...); }

private:
    template <class T> void Field(T& value) {
        if (m_stream.IsSaving()) {
            m_stream.Write(value);
        } else {
            m_stream.Read(value);
        }
    }
    template <class T> void Field(penlode::Owned<T>& value);
    void Field(std::vector<penlode::Color>& values);
    void Field(std::vector<float>& values);
    void Field(std::vector<std::int32_t>& values);
    /// A count and the items.
    template <class T> void List(std::vector<T>& values, const char* items);

    penlode::ISerialize& m_stream;
};

template <class T> void PositionalRecord::Field(penlode::Owned<T>& value) {
    penlode::LendToStream(value, m_stream.IsSaving(), [this](T** object) {
        if (m_stream.IsSaving()) {
            m_stream.Write(static_cast<const T*>(*object));
        } else {
            m_stream.Read(object);
        }
    });
}

/// Splits a narrow text at every "||", by whole characters, since a second byte may look like "|". Each piece
/// that is followed by "||" is one text.
MILLICHART_API std::vector<std::string> SplitJoinedTexts(const std::string& joined);

} // namespace millichart
