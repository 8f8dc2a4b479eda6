#include "Metafile.h"

namespace host {

KeptMetafile MetafileOf(const std::string& bytes) {
    return KeptMetafile(
        SetEnhMetaFileBits(static_cast<UINT>(bytes.size()), reinterpret_cast<const BYTE*>(bytes.data())));
}

} // namespace host
