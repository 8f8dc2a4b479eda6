#pragma once

#include "penlode/Export.h"
#include "penlode/streams/Diagnostic.h"
#include "penlode/streams/SerializeStream.h"

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace penlode {

/// The keyed stream as JSON (UTF-8): a group is an object, a value a text, a list an array of texts. On load
/// a number or a boolean is as good as its text. Keys keep their order.
///
/// A stream loads from a document or saves into one. Saving into a loaded document keeps what it held under
/// other keys, so that nothing that a newer version or another program wrote is lost; and what was a number
/// stays one where the text is a number's.
///
/// Groups of one name are a list of objects, and an index from 0 chooses one of them; 0 is also a lone object
/// that is there. A save begins such a list, or adds to it, at the index that is its length; a save into a
/// higher index, or deeper than 63 levels, has a Push that gives false and keeps nothing until its Pop.
class PENLODE_API CJsonSerializeStream final : public CSerializeStream {
public:
    /// An empty document, saving.
    CJsonSerializeStream();
    /// Loads `json`. What is not JSON (or nests deeper than 64 levels) is an empty document and one
    /// Unreadable problem with its line and column. `fileName` is what GetFullFileName answers.
    explicit CJsonSerializeStream(std::string_view json, std::string fileName = {});
    CJsonSerializeStream(CJsonSerializeStream&&) noexcept;
    CJsonSerializeStream& operator=(CJsonSerializeStream&&) noexcept;
    ~CJsonSerializeStream() override;

    /// From here on values are saved into the document, beginning at its root.
    void BeginSaving();

    /// The document, indented by two blanks, with a final line feed.
    std::string Text() const;

    /// What the load met so far, in order: at most the first 10000. A group that is missing is one problem
    /// and each key missing in it another. A key that the document has twice is Refused; its last value
    /// counts.
    const std::vector<Diagnostic>& Problems() const;
    /// The keys of the document that no load asked for, in document order, as UnknownKey problems; a group
    /// among them is one. From BeginSaving on, what it was then.
    std::vector<Diagnostic> UnknownKeys() const;
    /// True when the document itself could not be read.
    bool IsUnreadable() const;
    /// Sorts what was told of this document and of other files into the order of the document, and gives each
    /// place in it its line: first what has a place there, then the rest, notes last.
    void PutInOrder(std::vector<Diagnostic>& diagnostics) const;

    using CSerializeStream::Ser;
    void Ser(const std::string& tag, std::vector<std::string>& values,
             const std::vector<std::string>& defaults) override;
    void Ser(const std::string& tag, std::string& value, const std::string& defaultValue) override;
    int GetSize() override;
    bool Push(const std::string& tag, int index) override;
    bool Push(const char* tag, int index) override;
    void Pop() override;
    bool IsSaving() const override;
    std::string GetTag() override;
    void* GetObjectCreator() override;
    std::string GetFullFileName() override;
    void Refuse(const std::string& tag, const std::string& found, const std::string& expected) override;

    /// Is there an entry of this tag in the current group? Asking does not count as loading it.
    bool Has(const std::string& tag) const;
    /// Is that entry a list? Asking does not count as loading it.
    bool IsList(const std::string& tag) const;
    /// Is that entry a text, a number or a boolean? Asking does not count as loading it.
    bool IsText(const std::string& tag) const;
    /// How many groups there are to load from a list of them; 0 for what is no list.
    std::size_t CountGroups(const std::string& tag);

    /// Loads a list of numbers or booleans, or of numbers' texts. A null or an empty text is a gap, NaN; what
    /// is no finite number is a gap too, and refused. Nothing where there is no list.
    std::vector<double> LoadNumbersAndGaps(const std::string& tag);
    /// Saves a list of numbers as JSON numbers, each the shortest that reads back the same; a NaN is null.
    void SaveNumbers(const std::string& tag, std::span<const double> numbers);
    /// Removes an entry of the current group while saving; nothing if there is none.
    void Remove(const std::string& tag);
    /// Sets what stands at a place: keys and indexes from the root, joined by "/". Groups that are missing on
    /// the way are made, and the index behind a list's last item adds one. The value is JSON, or else a text;
    /// both are UTF-8. It has no line in the document. False where no place can be, as below a text.
    bool Set(std::string_view place, std::string_view value);

private:
    struct Document;
    std::unique_ptr<Document> m_document;
};

} // namespace penlode
