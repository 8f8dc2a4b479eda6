#pragma once

#include "documents/tables/SqlSession.h"

#include <memory>

namespace millichart::documents {

/// Of whatever an ODBC driver reaches. Floating point numbers come exactly, decimal ones as the nearest.
std::unique_ptr<SqlSession> OpenOdbcSession(const TableInput& input);

} // namespace millichart::documents
