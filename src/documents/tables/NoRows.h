#pragma once

#include "documents/tables/RowReader.h"

#include <string>
#include <utility>

namespace millichart::documents {

/// Of what cannot be opened.
class NoRows final : public RowReader {
public:
    explicit NoRows(std::string fault) : m_fault(std::move(fault)) {}

    bool Next(TableRow& /*row*/) override { return false; }

    std::string Fault() const override { return m_fault; }

    bool IsExact() const override { return true; }

private:
    std::string m_fault;
};

} // namespace millichart::documents
