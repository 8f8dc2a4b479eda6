#include "documents/SavingStream.h"

#include "documents/ChartDocument.h"
#include "documents/Fields.h"
#include "foundation/SerializeFrame.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <functional>
#include <string_view>

namespace millichart::documents {
namespace {

std::size_t HashOf(std::string_view bytes) {
    return std::hash<std::string_view>()(bytes);
}

std::size_t HashOf(const std::vector<std::string>& texts) {
    std::string all;
    for (const std::string& text : texts) {
        all += std::to_string(text.size()) + ":" + text;
    }
    return HashOf(all);
}

} // namespace

std::size_t HashOfNothing() {
    return HashOf("");
}

std::string SavingStream::PlaceOf(const std::string& tag) const {
    const std::string key = penlode::CStringUtil::AnsiToUtf8(tag);
    return m_groups.empty() ? key : m_groups.back().Place + "/" + key;
}

bool SavingStream::IsChanged(const std::string& place) const {
    return m_changed->contains(place) ||
           std::any_of(m_rewritten.begin(), m_rewritten.end(),
                       [&place](const std::string& group) { return IsPlaceIn(place, group); });
}

template <class Write> void SavingStream::InGroup(const Write& write) {
    for (const Group& group : m_groups) {
        m_json->Push(group.Tag, group.Index);
    }
    write();
    for (std::size_t i = 0; i < m_groups.size(); ++i) {
        m_json->Pop();
    }
}

template <class Write> void SavingStream::Take(const std::string& tag, std::size_t hash, const Write& write) {
    const std::string place = PlaceOf(tag);
    if (m_hashes != nullptr) {
        (*m_hashes)[place] = hash;
    } else if (IsChanged(place)) {
        InGroup(write);
    }
}

void SavingStream::Ser(const std::string& tag, std::vector<std::string>& values,
                       const std::vector<std::string>& defaults) {
    Take(tag, HashOf(values), [&] { m_json->Ser(tag, values, defaults); });
}

/// A text's font stays under its other name.
std::string SavingStream::KeyInDocument(const std::string& tag) const {
    const bool isFont = tag == FontTag() && !m_json->Has(tag) && m_json->Has(kFontAlias);
    return isFont ? kFontAlias : tag;
}

void SavingStream::Ser(const std::string& tag, std::string& value, const std::string& defaultValue) {
    Take(tag, HashOf(value), [&] {
        if (tag == "ComponentName" && m_json->IsList(tag)) {
            std::vector<std::string> names = SplitJoinedTexts(value);
            m_json->Ser(tag, names, {});
        } else {
            m_json->Ser(KeyInDocument(tag), value, defaultValue);
        }
    });
}

void SavingStream::Note(const std::string& tag, const std::vector<std::string>& texts) {
    Take(tag, HashOf(texts), [] {});
}

void SavingStream::CheckJoined(const std::string& place, const std::vector<std::string>& names) {
    for (std::size_t i = 0; i < names.size() && m_fault.empty(); ++i) {
        if (!IsJoinable(names[i])) {
            m_fault = "cannot be saved: " + place + "/" + std::to_string(i) + ": found \"" +
                      penlode::CStringUtil::AnsiToUtf8(names[i]) + "\", expected " + kJoinableForm;
        }
    }
}

void SavingStream::Numbers(const std::string& tag, const std::vector<double>& numbers) {
    const std::string_view bytes(reinterpret_cast<const char*>(numbers.data()),
                                 numbers.size() * sizeof(double));
    Take(tag, HashOf(bytes), [&] { m_json->SaveNumbers(tag, numbers); });
}

/// Groups beyond the count would stay, so that the list is written anew; a longer one keeps what it has. The
/// hash is the count.
void SavingStream::AnnounceGroups(const std::string& tag, std::size_t count) {
    Take(tag, count, [&] {
        const auto loaded = m_loaded->find(PlaceOf(tag));
        if (loaded != m_loaded->end() && loaded->second > count) {
            m_json->Remove(tag);
            m_rewritten.push_back(PlaceOf(tag));
        }
        if (count == 0) {
            std::vector<std::string> none;
            m_json->Ser(tag, none, {});
        }
    });
}

void SavingStream::Groups(const std::string& tag, std::size_t count, const std::vector<std::string>& names,
                          const std::function<void(std::size_t)>& save) {
    AnnounceGroups(tag, count);
    for (std::size_t i = 0; i < count; ++i) {
        Push(tag, static_cast<int>(i));
        if (i < names.size()) {
            Text("name", names[i]);
        } else {
            Remove("name");
        }
        save(i);
        Pop();
    }
}

void SavingStream::Remove(const std::string& tag) {
    Take(tag, 0, [&] { m_json->Remove(tag); });
}

void SavingStream::ReplaceTable(const std::vector<std::string>& keys, const std::vector<std::string>& tags) {
    const bool isReplaced =
        m_json != nullptr && std::any_of(tags.begin(), tags.end(), [this](const std::string& tag) {
            const std::string place = PlaceOf(tag);
            return std::any_of(m_changed->begin(), m_changed->end(),
                               [&place](const std::string& changed) { return IsPlaceIn(changed, place); });
        });
    if (!isReplaced) {
        return;
    }
    bool hadTable = false;
    InGroup([&] {
        for (const std::string& key : keys) {
            hadTable = hadTable || m_json->Has(key);
            m_json->Remove(key);
        }
    });
    for (std::size_t i = 0; hadTable && i < tags.size(); ++i) {
        m_rewritten.push_back(PlaceOf(tags[i]));
    }
}

bool SavingStream::Push(const std::string& tag, int index) {
    std::string place = PlaceOf(tag) + (index < 0 ? "" : "/" + std::to_string(index));
    m_groups.push_back({tag, index, std::move(place)});
    return true;
}

} // namespace millichart::documents
