#include "files/OutputFile.h"

#include "files/InputFile.h"
#include "files/System.h"
#include "files/UserError.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <random>
#include <system_error>

namespace cli {
namespace {

namespace fs = std::filesystem;

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

bool Put(std::FILE* file, std::string_view bytes) {
    return std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size() && std::fflush(file) == 0;
}

/// True when every byte reached the file and it closed without an error.
bool WriteBytes(const std::string& name, std::string_view bytes) {
    std::FILE* file = std::fopen(name.c_str(), "wb");
    if (file == nullptr) {
        return false;
    }
    const bool written = Put(file, bytes);
    const int error = errno;
    const bool closed = std::fclose(file) == 0;
    if (!written) {
        errno = error;
    }
    return written && closed;
}

void Require(bool written, const std::string& name) {
    if (!written) {
        throw UserError(ShownOutput(name), std::string("cannot be written: ") + std::strerror(errno));
    }
}

/// The file that a link leads to, there or not, so that the link stays one.
std::string BehindLinks(const std::string& name) {
    constexpr int kMaxLinks = 40;
    std::error_code error;
    fs::path file = name;
    for (int i = 0; fs::is_symlink(fs::symlink_status(file, error)); ++i) {
        if (i == kMaxLinks) {
            throw UserError(name, "cannot be written: too many links lead from one to the next");
        }
        file = file.parent_path() / fs::read_symlink(file, error);
    }
    return file.string();
}

void WriteFileWhole(const std::string& name, std::string_view bytes) {
    const std::string target = BehindLinks(name);
    const std::string part = AsideName(target);
    const UnfinishedFile unfinished(part);
    std::error_code error;
    if (!WriteBytes(part, bytes)) {
        error = std::error_code(errno, std::generic_category());
    } else {
        KeepMode(target, part);
        fs::rename(part, target, error);
    }
    if (error) {
        std::error_code ignored;
        fs::remove(part, ignored);
        throw UserError(name, "cannot be written: " + error.message());
    }
}

bool IsDeviceOrPipe(const std::string& name) {
    std::error_code error;
    const fs::file_status status = fs::status(name, error);
    return fs::exists(status) && !fs::is_regular_file(status) && !fs::is_directory(status);
}

} // namespace

void WriteOutput(const std::string& name, std::string_view bytes) {
    if (name == kStandardStream) {
        Require(Put(stdout, bytes), name);
    } else if (IsDeviceOrPipe(name)) {
        Require(WriteBytes(name, bytes), name);
    } else {
        WriteFileWhole(name, bytes);
    }
}

std::string ShownOutput(const std::string& name) {
    return name == kStandardStream ? "standard output" : name;
}

} // namespace cli
