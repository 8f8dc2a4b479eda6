#include "penlode/gdiplus/GdiPlus.h"

namespace penlode {

bool StartGdiplus() {
    static const bool kStarted = [] {
        ULONG_PTR token = 0;
        const Gdiplus::GdiplusStartupInput input;
        // GDI+ has a thread that must not outlive its code: this library, and GDI+ with it, stays loaded.
        HMODULE self = nullptr;
        GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_PIN | GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                           reinterpret_cast<LPCWSTR>(&StartGdiplus), &self);
        return Gdiplus::GdiplusStartup(&token, &input, nullptr) == Gdiplus::Ok;
    }();
    return kStarted;
}

} // namespace penlode
