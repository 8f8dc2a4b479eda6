#include "files/InputFile.h"

#include "files/UserError.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <vector>

namespace cli {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMaxBytes = std::size_t{1} << 30U;
constexpr std::size_t kPiece = std::size_t{1} << 16U;

UserError Unreadable(const std::string& name, const std::string& reason) {
    return {ShownName(name), "cannot be read: " + reason};
}

/// What can be told before a file is opened, which may wait for ever or read without end. Gives a file's
/// size.
std::size_t RefuseByKind(const std::string& name, NamedBy who) {
    std::error_code error;
    const fs::file_status status = fs::status(name, error);
    if (fs::is_directory(status)) {
        throw Unreadable(name, "it is a folder");
    }
    if (who == NamedBy::Document && fs::exists(status) && !fs::is_regular_file(status)) {
        throw Unreadable(name, "it is no file but a device or a pipe, which a document may not name");
    }
    const std::uintmax_t size = fs::is_regular_file(status) ? fs::file_size(name, error) : 0;
    if (error) {
        return 0;
    }
    if (size > kMaxBytes) {
        throw Unreadable(name, "it is larger than 1 GB");
    }
    return static_cast<std::size_t>(size);
}

/// `size` is what a file is known to hold; 0 for a stream.
std::string ReadAll(std::istream& stream, const std::string& name, std::size_t size) {
    std::string bytes;
    bytes.reserve(size);
    std::vector<char> piece(kPiece);
    while (stream.read(piece.data(), static_cast<std::streamsize>(piece.size())) || stream.gcount() > 0) {
        bytes.append(piece.data(), static_cast<std::size_t>(stream.gcount()));
        if (bytes.size() > kMaxBytes) {
            throw Unreadable(name, "it is larger than 1 GB");
        }
    }
    return bytes;
}

} // namespace

std::string ReadInput(const std::string& name, NamedBy who) {
    if (name == kStandardStream && who == NamedBy::User) {
        return ReadAll(std::cin, name, 0);
    }
    const std::size_t size = RefuseByKind(name, who);
    std::ifstream file(name, std::ios::binary);
    if (!file) {
        throw Unreadable(name, std::strerror(errno));
    }
    std::string bytes = ReadAll(file, name, size);
    if (file.bad()) {
        throw Unreadable(name, std::strerror(errno));
    }
    return bytes;
}

std::string ShownName(const std::string& name) {
    return name == kStandardStream ? "standard input" : name;
}

} // namespace cli
