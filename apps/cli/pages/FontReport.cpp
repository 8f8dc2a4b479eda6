#include "pages/LoadedChart.h"
#include "pages/Platform.h"
#include "penlode/text/FontFace.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <map>

namespace cli {
namespace {

using penlode::CStringUtil;

constexpr std::size_t kMaxShown = 20;

void AddNew(std::wstring& characters, const std::wstring& more) {
    for (const wchar_t character : more) {
        if (characters.find(character) == std::wstring::npos && characters.size() < kMaxShown) {
            characters += character;
        }
    }
}

/// Of Latin letters alone, whatever the locale.
wchar_t Lowered(wchar_t c) {
    return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c - L'A' + L'a') : c;
}

bool AreOneName(const std::wstring& a, const std::wstring& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](wchar_t one, wchar_t other) { return Lowered(one) == Lowered(other); });
}

/// Is a family drawn in a face that has nothing to do with it?
bool IsTakenForAnother(const std::wstring& family) {
    const std::wstring face = penlode::ResolvedFamily(family);
    return !family.empty() && !face.empty() && !AreOneName(face, family) && !penlode::HasStandIns(family);
}

std::string FaceMessage(const std::wstring& family) {
    const std::wstring face = penlode::ResolvedFamily(family);
    return CStringUtil::WideToUtf8(family) + " is drawn in " +
           (face.empty() ? "nothing: no font is installed" : CStringUtil::WideToUtf8(face));
}

} // namespace

FontReport ReportFonts(const millichart::LaidOutChart& chart) {
    std::map<std::wstring, std::wstring> missingByFamily;
    chart.VisitTexts([&](const millichart::ChartText& text) {
        if (text.Font != nullptr) {
            AddNew(missingByFamily[text.Font->Family], penlode::MissingCharacters(text.Text, *text.Font));
        }
    });
    FontReport report;
    for (const auto& [family, missing] : missingByFamily) {
        report.Faces.push_back(penlode::Note("", FaceMessage(family)));
        if (IsTakenForAnother(family)) {
            report.Warnings.push_back(
                penlode::Warning("", FaceMessage(family) + ", which may have other widths, as it is not "
                                                           "installed; install it, or name another font"));
        }
        if (!missing.empty()) {
            report.Warnings.push_back(penlode::Warning(
                "", "no installed font has " + CStringUtil::WideToUtf8(missing) +
                        "; install one that does, such as " + kPlatform.ChineseFonts + " for Chinese"));
        }
    }
    return report;
}

} // namespace cli
