#include "InputFile.h"

#include "UserError.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>

namespace cli {

std::string ReadInput(const std::string& name) {
    if (name == kStandardStream) {
        return {std::istreambuf_iterator<char>(std::cin), {}};
    }
    std::error_code error;
    if (std::filesystem::is_directory(name, error)) {
        throw UserError(name, "cannot be read: it is a folder");
    }
    std::ifstream file(name, std::ios::binary);
    std::ostringstream content;
    if (!file || (file.peek() != std::ifstream::traits_type::eof() && !(content << file.rdbuf()))) {
        throw UserError(name, std::string("cannot be read: ") + std::strerror(errno));
    }
    return std::move(content).str();
}

std::string ShownName(const std::string& name) {
    return name == kStandardStream ? "standard input" : name;
}

} // namespace cli
