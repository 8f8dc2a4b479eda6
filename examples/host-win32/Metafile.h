#pragma once

#include "Handles.h"

#include <string>

namespace host {

/// The metafile of a file's bytes, as an engine of CGraphicsEngine::ForMetafile finishes them; null for none.
KeptMetafile MetafileOf(const std::string& bytes);

} // namespace host
