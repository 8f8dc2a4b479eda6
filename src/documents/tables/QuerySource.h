#pragma once

#include "documents/tables/TableInput.h"

#include <filesystem>
#include <string>
#include <string_view>

/// The names of data bases: "sqlite:FILE", or "odbc:" with a DSN or with attributes, as in
/// "odbc:Driver=PostgreSQL Unicode;Server=db;Database=sales". All are UTF-8.
namespace millichart {

bool IsQuerySource(std::string_view name);

/// A table of what the data base answers to the options' query, named as messages may call it.
TableInput QueryInput(const std::string& source, TableOptions options);

/// The source as a document in that folder means it, whose files stand there.
std::string QuerySourceIn(const std::filesystem::path& folder, const std::string& source);

/// The file of an SQLite data base; empty for another source.
std::string FileOfQuerySource(const std::string& source);

/// What a driver manager connects by; empty for another source than one of ODBC.
std::string OdbcConnection(const std::string& source);

/// As messages call it: an SQLite data base by its file; another one with *** for each password. Any other
/// name is left alone.
std::string ShownSource(const std::string& source);

/// Also where it only may hold one: a token, a key.
bool HoldsPassword(const std::string& source);

/// A text that may repeat the source, as a driver's messages do, with *** for each of its passwords.
std::string WithoutPasswords(std::string text, const std::string& source);

/// What is expected instead where a document, which may come from anybody, names what it must not: a
/// password, a library to load, or what is carried out or written while connecting. Empty if it may.
std::string ExpectedOfDocument(const std::string& source);

} // namespace millichart
