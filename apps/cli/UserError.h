#pragma once

#include <stdexcept>
#include <string>

namespace cli {

/// What a person has to put right, in words for that person (UTF-8): the file, the place in it, what was
/// found and what was expected.
class UserError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace cli
