#pragma once

#include <stdexcept>
#include <string>

namespace cli {

/// What a person has to put right, in words for that person (UTF-8): the file, and what is the matter.
class UserError : public std::runtime_error {
public:
    UserError(const std::string& file, std::string reason)
        : std::runtime_error(file + ": " + reason), m_reason(std::move(reason)) {}

    /// Without the file's name.
    const std::string& Reason() const { return m_reason; }

private:
    std::string m_reason;
};

/// Why something was not done when memory ran out.
inline constexpr const char* kTooLittleMemory = "there is too little memory";

/// A wish that cannot be carried out as it was spelt, told after the name of the option.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace cli
