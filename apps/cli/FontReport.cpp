#include "FontReport.h"

#include "penlode/FontFace.h"
#include "penlode/StringUtil.h"
#include "penlode/recording/RecordingEngine.h"

#include <map>
#include <variant>

namespace cli {
namespace {

using penlode::CStringUtil;
using penlode::RecordedCall;

constexpr std::size_t kMostShown = 20;

/// A font and a text of one drawing call, if it has them.
template <class T> const T* ArgumentOf(const RecordedCall& call) {
    for (const RecordedCall::Value& value : call.Arguments) {
        if (const T* found = std::get_if<T>(&value)) {
            return found;
        }
    }
    return nullptr;
}

void AddNew(std::wstring& characters, const std::wstring& more) {
    for (const wchar_t character : more) {
        if (characters.find(character) == std::wstring::npos && characters.size() < kMostShown) {
            characters += character;
        }
    }
}

std::string FaceMessage(const std::wstring& family) {
    const std::wstring face = penlode::ResolvedFamily(family);
    return CStringUtil::WideToUtf8(family) + " is drawn in " +
           (face.empty() ? "nothing: no font is installed" : CStringUtil::WideToUtf8(face));
}

} // namespace

FontReport ReportFonts(const Chart& chart) {
    penlode::CRecordingEngine recorder;
    chart.Draw(recorder);
    std::map<std::wstring, std::wstring> missingByFamily;
    for (const RecordedCall& call : recorder.Calls()) {
        const auto* font = ArgumentOf<penlode::Font>(call);
        const auto* text = ArgumentOf<std::wstring>(call);
        if (font != nullptr && text != nullptr) {
            AddNew(missingByFamily[font->Family], penlode::MissingCharacters(*text, *font));
        }
    }
    FontReport report;
    for (const auto& [family, missing] : missingByFamily) {
        report.Faces.push_back(FaceMessage(family));
        if (!missing.empty()) {
            report.Warnings.push_back(
                "no installed font has " + CStringUtil::WideToUtf8(missing) +
                "; install one that does, such as fonts-noto-cjk or fonts-wqy-zenhei for Chinese");
        }
    }
    return report;
}

} // namespace cli
