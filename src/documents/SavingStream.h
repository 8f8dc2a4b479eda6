#pragma once

#include "penlode/streams/JsonSerializeStream.h"

#include <cstddef>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace millichart::documents {

/// A hash of what each place of a document holds.
using PlaceHashes = std::map<std::string, std::size_t>;

/// Of an empty text or list.
std::size_t HashOfNothing();

/// Takes what a document would save: either notes a hash of each place, or writes the places that changed,
/// and nothing else, into the document as it was loaded.
class SavingStream final : public penlode::CSerializeStream {
public:
    explicit SavingStream(PlaceHashes& hashes) : m_hashes(&hashes) {}

    /// `loaded` was noted of the document when it was loaded.
    SavingStream(const PlaceHashes& loaded, const std::set<std::string>& changed,
                 penlode::CJsonSerializeStream& json)
        : m_loaded(&loaded), m_changed(&changed), m_json(&json) {}

    using CSerializeStream::Ser;
    void Ser(const std::string& tag, std::vector<std::string>& values,
             const std::vector<std::string>& defaults) override;
    void Ser(const std::string& tag, std::string& value, const std::string& defaultValue) override;

    void Text(const std::string& tag, std::string text) { Ser(tag, text, {}); }

    /// NaN is null.
    void Numbers(const std::string& tag, const std::vector<double>& numbers);

    /// A list of groups, each with its name, if there is one, and what `save` saves of it.
    void Groups(const std::string& tag, std::size_t count, const std::vector<std::string>& names,
                const std::function<void(std::size_t)>& save);

    /// There is nothing under this tag.
    void Remove(const std::string& tag);

    /// Takes texts that a table gave, which are written elsewhere: that they changed counts under this tag.
    void Note(const std::string& tag, const std::vector<std::string>& texts);

    /// Takes names that are saved at `place` as one text, each with two bars behind it, or as the list that
    /// stands there. The fault of the first that no such form can hold is kept.
    void CheckJoined(const std::string& place, const std::vector<std::string>& names);

    /// Why the document cannot be saved; empty when it can.
    const std::string& Fault() const { return m_fault; }

    /// In the place of a table that the document names and describes under `keys` comes what it gave, under
    /// these tags of the current group, once any of it has changed.
    void ReplaceTable(const std::vector<std::string>& keys, const std::vector<std::string>& tags);

    int GetSize() override { return 0; }

    bool Push(const std::string& tag, int index) override;

    bool Push(const char* tag, int index) override { return Push(std::string(tag), index); }

    void Pop() override { m_groups.pop_back(); }

    bool IsSaving() const override { return true; }

    std::string GetTag() override { return m_groups.empty() ? std::string() : m_groups.back().Tag; }

    void* GetObjectCreator() override { return nullptr; }

    std::string GetFullFileName() override { return {}; }

private:
    struct Group {
        std::string Tag;
        int Index;
        std::string Place;
    };

    std::string PlaceOf(const std::string& tag) const;
    std::string KeyInDocument(const std::string& tag) const;
    bool IsChanged(const std::string& place) const;
    /// Calls `write` in the current group of the document.
    template <class Write> void InGroup(const Write& write);
    void AnnounceGroups(const std::string& tag, std::size_t count);
    template <class Write> void Take(const std::string& tag, std::size_t hash, const Write& write);

    PlaceHashes* m_hashes = nullptr;
    const PlaceHashes* m_loaded = nullptr;
    const std::set<std::string>* m_changed = nullptr;
    penlode::CJsonSerializeStream* m_json = nullptr;
    std::vector<Group> m_groups;
    std::string m_fault;
    std::vector<std::string> m_rewritten; ///< places that are written with all that is in them
};

} // namespace millichart::documents
