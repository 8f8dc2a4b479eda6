#pragma once

#include <memory>
#include <type_traits>
#include <windows.h>

/// Handles of the system that are given back when they go.
namespace host {

struct ObjectDeleter {
    void operator()(HGDIOBJ object) const { DeleteObject(object); }
};

struct ContextDeleter {
    void operator()(HDC context) const { DeleteDC(context); }
};

struct MemoryDeleter {
    void operator()(HGLOBAL memory) const { GlobalFree(memory); }
};

struct MetafileDeleter {
    void operator()(HENHMETAFILE metafile) const { DeleteEnhMetaFile(metafile); }
};

template <class Handle, class Deleter> using Kept = std::unique_ptr<std::remove_pointer_t<Handle>, Deleter>;

using KeptBitmap = Kept<HBITMAP, ObjectDeleter>;
using KeptBrush = Kept<HBRUSH, ObjectDeleter>;
using KeptPen = Kept<HPEN, ObjectDeleter>;
using KeptContext = Kept<HDC, ContextDeleter>;
using KeptMemory = Kept<HGLOBAL, MemoryDeleter>;
using KeptMetafile = Kept<HENHMETAFILE, MetafileDeleter>;

/// An object that a context draws with for a while.
class Selection {
public:
    Selection(HDC context, HGDIOBJ object) : m_context(context), m_before(SelectObject(context, object)) {}

    ~Selection() { SelectObject(m_context, m_before); }

    Selection(const Selection&) = delete;
    Selection& operator=(const Selection&) = delete;

private:
    HDC m_context;
    HGDIOBJ m_before;
};

} // namespace host
