#pragma once

#include <optional>
#include <string>
#include <windows.h>

/// The system's dialogs that ask for a file's name; none when they are cancelled.
namespace host {

/// A document's, or a table's.
std::optional<std::wstring> AskOpenName(HWND owner);
/// `suggested` may be a path.
std::optional<std::wstring> AskSaveName(HWND owner, const std::wstring& suggested);
/// For a picture; `ending` is one of L"png", L"svg" and L"emf".
std::optional<std::wstring> AskPictureName(HWND owner, const std::wstring& suggested,
                                           const std::wstring& ending);
/// For a page as a metafile.
std::optional<std::wstring> AskPageName(HWND owner, const std::wstring& suggested);
/// For what is sent to a printer.
std::optional<std::wstring> AskPrintName(HWND owner, const std::wstring& suggested);

} // namespace host
