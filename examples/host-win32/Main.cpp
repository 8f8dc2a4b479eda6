#include "HostWindow.h"
#include "Resource.h"

#include <commctrl.h>
#include <shellapi.h>
#include <string>

namespace {

/// What the program was started with, if it is a file.
std::wstring FileToOpen() {
    int count = 0;
    wchar_t** const arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    const std::wstring file = count > 1 ? arguments[1] : L"";
    LocalFree(arguments);
    return file;
}

} // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int show) {
    InitCommonControls();
    host::HostWindow window;
    ShowWindow(window.Handle(), show);
    if (const std::wstring file = FileToOpen(); !file.empty()) {
        window.Open(file);
    }
    const HACCEL keys = LoadAcceleratorsW(instance, MAKEINTRESOURCEW(IDR_MAIN));
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (TranslateAcceleratorW(window.Handle(), keys, &message) == 0) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
    return static_cast<int>(message.wParam);
}
