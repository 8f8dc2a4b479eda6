#include "penlode/streams/JsonSerializeStream.h"

#include "penlode/streams/JsonReader.h"
#include "penlode/streams/JsonSetting.h"
#include "penlode/streams/JsonText.h"
#include "penlode/streams/JsonWriter.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <cstdint>
#include <tuple>
#include <utility>

namespace penlode {

struct CJsonSerializeStream::Document {
    JsonTree Tree;
    JsonReader Reader{Tree};
    JsonWriter Writer{Tree};
    bool Saving = true;
    std::string FileName;
    std::vector<Diagnostic> UnknownBeforeSaving;

    JsonCursor& Cursor() { return Saving ? static_cast<JsonCursor&>(Writer) : Reader; }

    /// The entry of the current group, or null.
    const JsonNode* Find(const std::string& tag) {
        const JsonGroup* const group = Cursor().Current();
        return group == nullptr ? nullptr : group->Find(CStringUtil::AnsiToUtf8(tag));
    }
};

CJsonSerializeStream::CJsonSerializeStream() : m_document(std::make_unique<Document>()) {}

CJsonSerializeStream::CJsonSerializeStream(std::string_view json, std::string fileName)
    : m_document(std::make_unique<Document>()) {
    m_document->Reader.Parse(json);
    m_document->FileName = std::move(fileName);
    m_document->Saving = false;
}

CJsonSerializeStream::CJsonSerializeStream(CJsonSerializeStream&&) noexcept = default;
CJsonSerializeStream& CJsonSerializeStream::operator=(CJsonSerializeStream&&) noexcept = default;
CJsonSerializeStream::~CJsonSerializeStream() = default;

/// What was unknown is kept, as saving changes the tree.
void CJsonSerializeStream::BeginSaving() {
    m_document->UnknownBeforeSaving = UnknownKeys();
    m_document->Writer.PopAll();
    m_document->Saving = true;
}

std::string CJsonSerializeStream::Text() const {
    return DocumentText(m_document->Tree);
}

const std::vector<Diagnostic>& CJsonSerializeStream::Problems() const {
    return m_document->Reader.Problems();
}

std::vector<Diagnostic> CJsonSerializeStream::UnknownKeys() const {
    return m_document->Saving ? m_document->UnknownBeforeSaving : m_document->Reader.UnknownKeys();
}

bool CJsonSerializeStream::IsUnreadable() const {
    return m_document->Reader.IsUnreadable();
}

void CJsonSerializeStream::PutInOrder(std::vector<Diagnostic>& diagnostics) const {
    const JsonTree& tree = m_document->Tree;
    std::vector<std::tuple<bool, std::uint32_t, std::size_t>> order;
    for (std::size_t i = 0; i < diagnostics.size(); ++i) {
        Diagnostic& told = diagnostics[i];
        const bool isHere = told.File.empty() && !told.Place.empty();
        const JsonNode* const node = isHere ? tree.Find(tree.Root(), told.Place) : nullptr;
        if (node != nullptr) {
            told.Line = std::max(told.Line, tree.LineOf(*node));
        }
        order.emplace_back(told.Severity == Severity::Note,
                           node == nullptr ? JsonNode::kNowhere : node->Offset, i);
    }
    std::sort(order.begin(), order.end());
    std::vector<Diagnostic> sorted;
    for (const auto& entry : order) {
        sorted.push_back(std::move(diagnostics[std::get<2>(entry)]));
    }
    diagnostics = std::move(sorted);
}

void CJsonSerializeStream::Ser(const std::string& tag, std::vector<std::string>& values,
                               const std::vector<std::string>& defaults) {
    if (m_document->Saving) {
        m_document->Writer.Save(tag, values);
    } else {
        m_document->Reader.Load(tag, values, defaults);
    }
}

void CJsonSerializeStream::Ser(const std::string& tag, std::string& value, const std::string& defaultValue) {
    if (m_document->Saving) {
        m_document->Writer.Save(tag, value);
    } else {
        m_document->Reader.Load(tag, value, defaultValue);
    }
}

int CJsonSerializeStream::GetSize() {
    const JsonGroup* const group = m_document->Cursor().Current();
    return group == nullptr ? 0 : static_cast<int>(group->Entries().size());
}

bool CJsonSerializeStream::Push(const std::string& tag, int index) {
    return m_document->Saving ? m_document->Writer.Push(tag, index) : m_document->Reader.Push(tag, index);
}

bool CJsonSerializeStream::Push(const char* tag, int index) {
    return Push(std::string(tag == nullptr ? "" : tag), index);
}

void CJsonSerializeStream::Pop() {
    m_document->Cursor().Pop();
}

bool CJsonSerializeStream::IsSaving() const {
    return m_document->Saving;
}

std::string CJsonSerializeStream::GetTag() {
    return m_document->Cursor().Tag();
}

void* CJsonSerializeStream::GetObjectCreator() {
    return nullptr;
}

std::string CJsonSerializeStream::GetFullFileName() {
    return m_document->FileName;
}

void CJsonSerializeStream::Refuse(const std::string& tag, const std::string& found,
                                  const std::string& expected) {
    if (!m_document->Saving) {
        m_document->Reader.Refuse(tag, found, expected);
    }
}

bool CJsonSerializeStream::Has(const std::string& tag) const {
    return m_document->Find(tag) != nullptr;
}

bool CJsonSerializeStream::IsList(const std::string& tag) const {
    const JsonNode* const entry = m_document->Find(tag);
    return entry != nullptr && entry->Is(JsonType::List);
}

bool CJsonSerializeStream::IsText(const std::string& tag) const {
    const JsonNode* const entry = m_document->Find(tag);
    return entry != nullptr && entry->IsScalar() && !entry->Is(JsonType::Null);
}

std::size_t CJsonSerializeStream::CountGroups(const std::string& tag) {
    return m_document->Saving ? 0 : m_document->Reader.CountGroups(tag);
}

std::vector<double> CJsonSerializeStream::LoadNumbersAndGaps(const std::string& tag) {
    return m_document->Saving ? std::vector<double>() : m_document->Reader.NumbersAndGaps(tag);
}

void CJsonSerializeStream::SaveNumbers(const std::string& tag, std::span<const double> numbers) {
    if (m_document->Saving) {
        m_document->Writer.Save(tag, numbers);
    }
}

void CJsonSerializeStream::Remove(const std::string& tag) {
    if (m_document->Saving) {
        m_document->Writer.Remove(tag);
    }
}

bool CJsonSerializeStream::Set(std::string_view place, std::string_view value) {
    return SetValue(m_document->Tree, place, value);
}

} // namespace penlode
