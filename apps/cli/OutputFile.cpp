#include "OutputFile.h"

#include "UserError.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>
#include <random>
#include <system_error>

namespace cli {
namespace {

std::string BesideName(const std::string& name) {
    return name + "." + std::to_string(std::random_device{}()) + ".part";
}

/// True when every byte reached the file and it closed without an error.
bool WriteBytes(const std::string& name, std::string_view bytes) {
    std::FILE* file = std::fopen(name.c_str(), "wb");
    if (file == nullptr) {
        return false;
    }
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    const int error = errno;
    const bool closed = std::fclose(file) == 0;
    if (!written) {
        errno = error;
    }
    return written && closed;
}

} // namespace

void WriteFileWhole(const std::string& name, std::string_view bytes) {
    const std::string part = BesideName(name);
    std::error_code error;
    if (!WriteBytes(part, bytes)) {
        const std::string reason = std::strerror(errno);
        std::filesystem::remove(part, error);
        throw UserError(name + ": cannot be written: " + reason);
    }
    std::filesystem::rename(part, name, error);
    if (error) {
        const std::string reason = error.message();
        std::filesystem::remove(part, error);
        throw UserError(name + ": cannot be written: " + reason);
    }
}

} // namespace cli
