#pragma once

#include "documents/tables/SqlSession.h"

#include <memory>

namespace millichart::documents {

/// Of a file, which is only read. A blob is a text that tells its length.
std::unique_ptr<SqlSession> OpenSqliteSession(const TableInput& input);

} // namespace millichart::documents
