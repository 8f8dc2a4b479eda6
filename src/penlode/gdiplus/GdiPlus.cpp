#include "penlode/gdiplus/GdiPlus.h"

namespace penlode {

bool StartGdiplus() {
    static const bool kStarted = [] {
        ULONG_PTR token = 0;
        const Gdiplus::GdiplusStartupInput input;
        return Gdiplus::GdiplusStartup(&token, &input, nullptr) == Gdiplus::Ok;
    }();
    return kStarted;
}

} // namespace penlode
