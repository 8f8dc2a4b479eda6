#pragma once

#include "documents/Files.h"
#include "penlode/streams/Diagnostic.h"

#include <stdexcept>
#include <string>
#include <string_view>

namespace cli {

/// What a person has to put right, in words for that person (UTF-8): the file, and what is the matter.
class UserError : public std::runtime_error {
public:
    UserError(const std::string& file, const std::string& reason)
        : std::runtime_error(file + ": " + reason), m_told(penlode::Error("", reason)) {
        m_told.File = file;
    }

    const penlode::Diagnostic& Told() const { return m_told; }

private:
    penlode::Diagnostic m_told;
};

/// A wish that cannot be carried out as it was spelt, told after the name of the option.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Why something was not done when memory ran out.
inline constexpr const char* kTooLittleMemory = "there is too little memory";

/// The file name that means the standard input or output.
inline constexpr const char* kStandardStream = "-";

/// How messages call an input; without a data base's password.
std::string ShownName(const std::string& name);

/// How messages call an output.
std::string ShownOutput(const std::string& name);

/// The bytes of a file, or of the standard input for "-".
millichart::InputText ReadInput(const std::string& name);

/// Writes a file as a whole or not at all, or the standard output for "-". Throws UserError.
void WriteOutput(const std::string& name, std::string_view bytes);

} // namespace cli
