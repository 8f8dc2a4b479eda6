#include "documents/Files.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <istream>
#include <random>
#include <system_error>
#include <vector>

namespace millichart {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMaxBytes = std::size_t{1} << 30U;
constexpr std::size_t kPiece = std::size_t{1} << 16U;
constexpr const char* kTooLarge = "cannot be read: it is larger than 1 GB";

std::string ReasonOf(int error) {
    return std::strerror(error);
}

/// What can be told before a file is opened, which may wait for ever or read without end. Finds its size.
std::string FaultOfKind(const std::string& name, NamedBy who, std::size_t& size) {
    std::error_code error;
    const fs::file_status status = fs::status(name, error);
    if (fs::is_directory(status)) {
        return "cannot be read: it is a folder";
    }
    if (who == NamedBy::Document && fs::exists(status) && !fs::is_regular_file(status)) {
        return "cannot be read: it is no file but a device or a pipe, which a document may not name";
    }
    const std::uintmax_t found = fs::is_regular_file(status) ? fs::file_size(name, error) : 0;
    size = error ? 0 : static_cast<std::size_t>(std::min<std::uintmax_t>(found, kMaxBytes));
    return !error && found > kMaxBytes ? kTooLarge : "";
}

void ReadAll(std::istream& stream, InputText& input) {
    std::vector<char> piece(kPiece);
    while (stream.read(piece.data(), static_cast<std::streamsize>(piece.size())) || stream.gcount() > 0) {
        input.Text.append(piece.data(), static_cast<std::size_t>(stream.gcount()));
        if (input.Text.size() > kMaxBytes) {
            input = {input.Name, "", kTooLarge};
            return;
        }
    }
}

/// Short and hidden, in the file's folder.
std::string AsideName(const std::string& name) {
    const std::string own = ".millichart-" + std::to_string(std::random_device{}());
    return fs::path(name).replace_filename(own).string();
}

/// Who may read and write the old file may do so with the new one.
void KeepMode(const std::string& old, const std::string& fresh) {
    std::error_code error;
    const fs::file_status status = fs::status(old, error);
    if (fs::exists(status)) {
        fs::permissions(fresh, status.permissions(), error);
    }
}

/// True when every byte reached the file and it closed without an error, which `errno` tells else.
bool WriteBytes(const std::string& name, std::string_view bytes) {
    std::FILE* file = std::fopen(name.c_str(), "wb");
    if (file == nullptr) {
        return false;
    }
    const bool written =
        std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size() && std::fflush(file) == 0;
    const int error = errno;
    const bool closed = std::fclose(file) == 0;
    if (!written) {
        errno = error;
    }
    return written && closed;
}

/// The file that a link leads to, there or not; empty if too many links lead from one to the next.
std::string BehindLinks(const std::string& name) {
    constexpr int kMaxLinks = 40;
    std::error_code error;
    fs::path file = name;
    for (int i = 0; fs::is_symlink(fs::symlink_status(file, error)); ++i) {
        if (i == kMaxLinks) {
            return {};
        }
        file = file.parent_path() / fs::read_symlink(file, error);
    }
    return file.string();
}

bool IsDeviceOrPipe(const std::string& name) {
    std::error_code error;
    const fs::file_status status = fs::status(name, error);
    return fs::exists(status) && !fs::is_regular_file(status) && !fs::is_directory(status);
}

} // namespace

InputText ReadFile(const std::string& name, NamedBy who) {
    std::size_t size = 0;
    InputText input{name, "", FaultOfKind(name, who, size)};
    if (!input.Fault.empty()) {
        return input;
    }
    std::ifstream file(name, std::ios::binary);
    if (!file) {
        input.Fault = "cannot be read: " + ReasonOf(errno);
        return input;
    }
    input.Text.reserve(size);
    ReadAll(file, input);
    if (file.bad()) {
        input.Fault = "cannot be read: " + ReasonOf(errno);
    }
    return input;
}

InputText ReadStream(std::istream& stream, const std::string& name) {
    InputText input{name};
    ReadAll(stream, input);
    return input;
}

std::string WriteFile(const std::string& name, std::string_view bytes,
                      const std::function<void(const std::string&)>& begin) {
    if (IsDeviceOrPipe(name)) {
        return WriteBytes(name, bytes) ? "" : "cannot be written: " + ReasonOf(errno);
    }
    const std::string target = BehindLinks(name);
    if (target.empty()) {
        return "cannot be written: too many links lead from one to the next";
    }
    const std::string part = AsideName(target);
    if (begin) {
        begin(part);
    }
    std::error_code error;
    if (!WriteBytes(part, bytes)) {
        error = std::error_code(errno, std::generic_category());
    } else {
        KeepMode(target, part);
        fs::rename(part, target, error);
    }
    if (!error) {
        return {};
    }
    const std::string reason = error.message();
    fs::remove(part, error);
    return "cannot be written: " + reason;
}

} // namespace millichart
