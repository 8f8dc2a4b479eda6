#include "HostWindow.h"
#include "Resource.h"

#include <commctrl.h>
#include <shellapi.h>
#include <string>
#include <vector>

namespace {

/// What the program was started with.
std::vector<std::wstring> FilesToOpen() {
    int count = 0;
    wchar_t** const arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    const std::vector<std::wstring> files(arguments + (count > 0 ? 1 : 0), arguments + count);
    LocalFree(arguments);
    return files;
}

/// A window shows one document.
void OpenElsewhere(const std::wstring& file) {
    std::wstring program(32768, L'\0');
    program.resize(GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size())));
    ShellExecuteW(nullptr, L"open", program.c_str(), (L"\"" + file + L"\"").c_str(), nullptr, SW_SHOWNORMAL);
}

void OpenAll(host::HostWindow& window, const std::vector<std::wstring>& files) {
    bool isTaken = window.OfferRecovered();
    for (const std::wstring& file : files) {
        if (isTaken) {
            OpenElsewhere(file);
        } else {
            window.Open(file);
            isTaken = true;
        }
    }
}

} // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int show) {
    InitCommonControls();
    host::HostWindow window;
    ShowWindow(window.Handle(), show);
    OpenAll(window, FilesToOpen());
    const HACCEL keys = LoadAcceleratorsW(instance, MAKEINTRESOURCEW(IDR_MAIN));
    const HACCEL chartKeys = LoadAcceleratorsW(instance, MAKEINTRESOURCEW(IDR_CHART_KEYS));
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (TranslateAcceleratorW(window.Handle(), keys, &message) == 0 &&
            (window.IsEditingText() || TranslateAcceleratorW(window.Handle(), chartKeys, &message) == 0)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
    return static_cast<int>(message.wParam);
}
