#pragma once

#include "penlode/streams/Diagnostic.h"

#include <cstddef>
#include <string>
#include <vector>

/// Words that several doubts have alike.
namespace millichart::documents {

using Diagnostics = std::vector<penlode::Diagnostic>;

/// A narrow text as diagnostics show it: in quotes, on one line, not too long, in UTF-8.
std::string Quoted(const std::string& narrow);
std::string Quoted(const std::wstring& text);

/// "1 label is", "2 labels are"
std::string CountedAre(std::size_t count, const std::string& noun);

/// What leads from so many to the first of them: "the first is ", or nothing where there is but one.
std::string ToFirst(std::size_t count);

/// Narrow texts at an index, or nothing where there are not so many.
std::string NameAt(const std::vector<std::string>& names, std::size_t index);

} // namespace millichart::documents
