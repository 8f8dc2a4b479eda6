#include "Metafile.h"

#include <string>

namespace host {

KeptMetafile FinishedMetafile(penlode::CGraphicsEngine& engine) {
    const std::string bytes = engine.FinishMetafile();
    return KeptMetafile(
        SetEnhMetaFileBits(static_cast<UINT>(bytes.size()), reinterpret_cast<const BYTE*>(bytes.data())));
}

} // namespace host
