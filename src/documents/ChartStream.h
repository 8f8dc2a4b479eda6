#pragma once

#include "penlode/streams/JsonSerializeStream.h"

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace millichart::documents {

/// Loads a chart document: the keyed stream, and the short forms that people write, which the records' own
/// serializers do not know: names that a record holds joined may be a list, colours and lengths have more
/// forms (Forms.h), a text's font may stand under "Font", and what is missing is what a document takes
/// (DocumentDefaults.h). It remembers which keys were asked for, to guess what an unknown key was meant to
/// be.
class ChartStream final : public penlode::CSerializeStream {
public:
    explicit ChartStream(penlode::CJsonSerializeStream& json) : m_json(json) {}

    /// Defaults are those of documents of this kind from here on.
    void SetKind(std::string_view kind) { m_kind = kind; }

    /// The places of the texts and lists that were asked for and not there, as in
    /// "property/PieBasicProp/ComponentColor".
    const std::set<std::string>& Missing() const { return m_missing; }

    /// Is there an entry of this tag? Either way it is a key that may stand here.
    bool Has(const std::string& tag) {
        Ask(tag);
        return m_json.Has(tag);
    }

    /// Keys joined by "/".
    std::string PlaceOf(const std::string& tag) const;

    bool IsList(const std::string& tag) const { return m_json.IsList(tag); }

    /// A text, a number or a boolean.
    bool IsText(const std::string& tag) const { return m_json.IsText(tag); }

    /// How many groups there are to push in a list of them; 0 for what is no list.
    std::size_t CountGroups(const std::string& tag) {
        Ask(tag);
        return m_json.CountGroups(tag);
    }

    /// Numbers, and NaN for each null or empty text.
    std::vector<double> LoadNumbersAndGaps(const std::string& tag);

    /// What is doubtful about the short forms.
    const std::vector<penlode::Diagnostic>& Warnings() const { return m_warnings; }

    /// The keys that were asked for, UTF-8, by the place of their group.
    const std::map<std::string, std::vector<std::string>>& AskedKeys() const { return m_asked; }

    using CSerializeStream::Ser;
    void Ser(const std::string& tag, std::vector<std::string>& values,
             const std::vector<std::string>& defaults) override;
    void Ser(const std::string& tag, std::string& value, const std::string& defaultValue) override;

    int GetSize() override { return m_json.GetSize(); }

    bool Push(const std::string& tag, int index) override;

    bool Push(const char* tag, int index) override { return Push(std::string(tag), index); }

    void Pop() override;

    bool IsSaving() const override { return false; }

    std::string GetTag() override { return m_json.GetTag(); }

    void* GetObjectCreator() override { return nullptr; }

    std::string GetFullFileName() override { return m_json.GetFullFileName(); }

    void Refuse(const std::string& tag, const std::string& found, const std::string& expected) override {
        m_json.Refuse(tag, found, expected);
    }

private:
    std::string Ask(const std::string& tag);
    std::string DefaultOf(const std::string& tag, const std::string& ofRecord) const;
    const std::string& NameGiven(const std::string& tag);
    std::string JoinedList(const std::string& tag);
    void WarnOfDroppedName(const std::string& place, const std::string& joined);

    penlode::CJsonSerializeStream& m_json;
    std::set<std::string> m_missing; ///< places
    std::vector<penlode::Diagnostic> m_warnings;
    std::map<std::string, std::vector<std::string>> m_asked;
    std::vector<std::string> m_places{""};
    std::string m_kind;
};

/// What a load met: errors, unknown keys as warnings with what they were probably meant to be, and missing
/// keys as notes.
std::vector<penlode::Diagnostic> LoadDiagnostics(const penlode::CJsonSerializeStream& json,
                                                 const ChartStream& stream);

} // namespace millichart::documents
