#include "Clipboard.h"

#include "Metafile.h"
#include "Pictures.h"

#include <algorithm>
#include <string>

namespace host {
namespace {

constexpr float kMargin = 1.0F; // mm

KeptMemory MemoryOf(const std::string& bytes) {
    KeptMemory memory(GlobalAlloc(GMEM_MOVEABLE, bytes.size()));
    if (memory) {
        std::copy(bytes.begin(), bytes.end(), static_cast<char*>(GlobalLock(memory.get())));
        GlobalUnlock(memory.get());
    }
    return memory;
}

/// The system owns what it has taken.
template <class Kept> void Put(UINT format, Kept& data) {
    if (data && SetClipboardData(format, data.get()) != nullptr) {
        data.release();
    }
}

} // namespace

bool CopyChart(HWND owner, const millichart::LaidOutChart& chart) {
    KeptMetafile metafile = MetafileOf(EmfOf(chart, kMargin));
    const std::string pngBytes = PngOf(chart, kMargin);
    KeptMemory png = pngBytes.empty() ? nullptr : MemoryOf(pngBytes);
    if (OpenClipboard(owner) == FALSE) {
        return false;
    }
    EmptyClipboard();
    Put(CF_ENHMETAFILE, metafile);
    Put(RegisterClipboardFormatW(L"PNG"), png);
    CloseClipboard();
    return true;
}

} // namespace host
