#include "documents/large/OpenLarge.h"

#include "documents/large/ByteSource.h"
#include "documents/large/CsvCurves.h"
#include "documents/points/TableCurves.h"

#include <utility>

namespace millichart::documents {

namespace {

/// False if there is too much.
bool ReadAll(ByteSource& stream, std::string& text) {
    constexpr std::size_t kMost = std::size_t{1} << 30U;
    constexpr std::size_t kPiece = std::size_t{1} << 20U;
    const std::uint64_t size = stream.Size().value_or(0);
    if (size > kMost) {
        return false;
    }
    text.reserve(static_cast<std::size_t>(size));
    std::string piece(kPiece, '\0');
    for (std::size_t read = kPiece; read == kPiece && text.size() <= kMost;) {
        read = stream.Read(piece.data(), kPiece);
        text.append(piece, 0, read);
    }
    return text.size() <= kMost;
}

} // namespace

std::shared_ptr<LargeCurves> OpenLarge(const TableInput& input, const TableForm& form, const LineRules& rules,
                                       std::vector<penlode::Diagnostic>& diagnostics,
                                       penlode::Diagnostic& reason) {
    if (input.Stream != nullptr && input.Input.Fault.empty()) {
        return OpenCsvCurves(input, form, rules, diagnostics, reason);
    }
    return OpenTableCurves(input, rules);
}

void Hold(TableInput& input, const penlode::Diagnostic& reason,
          std::vector<penlode::Diagnostic>& diagnostics) {
    const std::shared_ptr<ByteSource> stream = std::move(input.Stream);
    if (stream == nullptr) {
        return;
    }
    const bool canBegin = stream->Seek(0);
    if (canBegin && ReadAll(*stream, input.Input.Text)) {
        input.Input.Fault = stream->Fault();
        return;
    }
    std::string().swap(input.Input.Text);
    const std::string fault =
        canBegin ? "it is larger than 1 GB" : "it is a pipe, which can be read but once";
    diagnostics.push_back(reason);
    diagnostics.back().File = input.Input.Name;
    diagnostics.back().Text =
        "cannot be read: " + fault + (reason.Text.empty() ? "" : ", and " + reason.Text);
}

} // namespace millichart::documents
