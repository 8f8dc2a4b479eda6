#include "documents/large/OpenLarge.h"

#include "documents/large/ByteSource.h"
#include "documents/points/TableCurves.h"

#include <utility>

namespace millichart::documents {

std::shared_ptr<LargeCurves> OpenLarge(const TableInput& input, const TableForm& /*form*/,
                                       const LineRules& rules,
                                       std::vector<penlode::Diagnostic>& /*diagnostics*/,
                                       penlode::Diagnostic& /*reason*/) {
    return OpenTableCurves(input, rules);
}

void Hold(TableInput& input, const penlode::Diagnostic& reason,
          std::vector<penlode::Diagnostic>& diagnostics) {
    constexpr std::size_t kMost = std::size_t{1} << 30U;
    constexpr std::size_t kPiece = std::size_t{1} << 20U;
    const std::shared_ptr<ByteSource> stream = std::move(input.Stream);
    if (stream == nullptr) {
        return;
    }
    stream->Seek(0);
    std::string& text = input.Input.Text;
    text.reserve(stream->Size().value_or(0) <= kMost ? stream->Size().value_or(0) : 0);
    std::string piece(kPiece, '\0');
    for (std::size_t read = kPiece; read == kPiece && text.size() <= kMost;) {
        read = stream->Read(piece.data(), kPiece);
        text.append(piece, 0, read);
    }
    input.Input.Fault = stream->Fault();
    if (text.size() > kMost) {
        std::string().swap(text);
        diagnostics.push_back(reason);
        diagnostics.back().File = input.Input.Name;
        diagnostics.back().Severity = penlode::Severity::Error;
        diagnostics.back().Text = "cannot be read: it is larger than 1 GB" +
                                  std::string(reason.Text.empty() ? "" : ", and " + reason.Text);
    }
}

} // namespace millichart::documents
