/* A host in C: opens both range dialogs, works them by a timer, and tells by its result what went wrong. */
#include "editing/ValueRanges.h"

#include <stdio.h>
#include <windows.h>

static const wchar_t* g_title;
static int g_edit;
static int g_button;

static void CALLBACK Work(HWND window, UINT message, UINT_PTR timer, DWORD time) {
    HWND dialog = FindWindowW(L"#32770", g_title);
    (void)window;
    (void)message;
    (void)timer;
    (void)time;
    if (dialog != NULL && IsWindowVisible(dialog)) {
        if (g_edit != 0) {
            SetDlgItemTextW(dialog, g_edit, L"250");
        }
        PostMessageW(dialog, WM_COMMAND, (WPARAM)g_button, 0);
    }
}

int main(void) {
    double minimum = 0.0, maximum = 100.0, major = 10.0, minor = 2.5;
    double low = 0.01, high = 1000.0;
    int failures = 0;
    SetTimer(NULL, 0, 50, Work);

    g_title = L"\u81EA\u7136\u5750\u6807\u8BBE\u7F6E";
    g_edit = 18481;
    g_button = IDOK;
    failures += !EditNaturalValueRange(&minimum, &maximum, &major, &minor);
    failures += maximum != 250.0 || minimum != 0.0 || major != 10.0 || minor != 2.5;
    g_button = IDCANCEL;
    failures += EditNaturalValueRange(&minimum, &minor, &major, &maximum);
    failures += maximum != 250.0 || minor != 2.5;

    g_title = L"\u5BF9\u6570\u5750\u6807\u8BBE\u7F6E";
    g_edit = 0;
    g_button = IDOK;
    failures += !EditLogarithmValueRange(&low, &high);
    failures += low != 0.01 || high != 1000.0;
    failures += EditLogarithmValueRange(NULL, &high);
    printf("%d failures\n", failures);
    return failures;
}
