#include "FileDialogs.h"

#include <array>
#include <commdlg.h>
#include <memory>

namespace host {
namespace {

constexpr wchar_t kDocuments[] = L"图表文档 (*.chart.json; *.json)\0*.chart.json;*.json\0所有文件\0*.*\0";
constexpr wchar_t kOpened[] = L"图表和数据表 (*.json; *.csv; *.tsv; *.txt)\0*.json;*.csv;*.tsv;*.txt\0"
                              L"图表文档 (*.chart.json; *.json)\0*.chart.json;*.json\0所有文件\0*.*\0";
constexpr wchar_t kMetafiles[] = L"增强型图元文件 (*.emf)\0*.emf\0";
constexpr wchar_t kPrintFiles[] = L"打印机文件 (*.prn)\0*.prn\0";

/// Room for the longest path that the system has.
using NameBuffer = std::array<wchar_t, 32768>;

struct Question {
    HWND Owner = nullptr;
    const wchar_t* Filter = nullptr;
    const wchar_t* Ending = nullptr; ///< for a name without one
    std::wstring Suggested = {};
};

std::optional<std::wstring> Ask(const Question& question, BOOL(WINAPI* show)(OPENFILENAMEW*), DWORD flags) {
    auto name = std::make_unique<NameBuffer>();
    question.Suggested.copy(name->data(), name->size() - 1);
    OPENFILENAMEW dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = question.Owner;
    dialog.lpstrFilter = question.Filter;
    dialog.lpstrDefExt = question.Ending;
    dialog.lpstrFile = name->data();
    dialog.nMaxFile = static_cast<DWORD>(name->size());
    dialog.Flags = flags | OFN_EXPLORER | OFN_NOCHANGEDIR;
    return show(&dialog) != FALSE ? std::optional<std::wstring>(name->data()) : std::nullopt;
}

} // namespace

std::optional<std::wstring> AskOpenName(HWND owner) {
    return Ask({owner, kOpened, L"json"}, GetOpenFileNameW, OFN_FILEMUSTEXIST);
}

std::optional<std::wstring> AskSaveName(HWND owner, const std::wstring& suggested) {
    return Ask({owner, kDocuments, L"json", suggested}, GetSaveFileNameW, OFN_OVERWRITEPROMPT);
}

std::optional<std::wstring> AskPictureName(HWND owner, const std::wstring& suggested,
                                           const std::wstring& ending) {
    std::wstring filter = ending + L" 图片 (*." + ending + L")";
    filter += L'\0';
    filter += L"*." + ending;
    filter += L'\0';
    return Ask({owner, filter.c_str(), ending.c_str(), suggested}, GetSaveFileNameW, OFN_OVERWRITEPROMPT);
}

std::optional<std::wstring> AskPageName(HWND owner, const std::wstring& suggested) {
    return Ask({owner, kMetafiles, L"emf", suggested}, GetSaveFileNameW, OFN_OVERWRITEPROMPT);
}

std::optional<std::wstring> AskPrintName(HWND owner, const std::wstring& suggested) {
    return Ask({owner, kPrintFiles, L"prn", suggested}, GetSaveFileNameW, OFN_OVERWRITEPROMPT);
}

} // namespace host
