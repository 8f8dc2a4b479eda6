#include "documents/Files.h"

#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <random>
#include <system_error>
#include <type_traits>
#include <vector>

namespace millichart {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMaxBytes = std::size_t{1} << 30U;
constexpr std::size_t kPiece = std::size_t{1} << 16U;
constexpr const char* kTooLarge = "cannot be read: it is larger than 1 GB";

// Where the system's names are wide, a narrow one would be read in whatever code page is set.
constexpr bool kAreWide = std::is_same_v<fs::path::value_type, wchar_t>;

std::string NotRead(int error) {
    return std::string("cannot be read: ") + std::strerror(error);
}

/// Windows knows a device by its name alone, in any folder; status does not tell, but the name in full does.
bool IsDeviceOrPipe(const fs::path& file) {
    std::error_code error;
    const fs::file_status status = fs::status(file, error);
    return (fs::exists(status) && !fs::is_regular_file(status) && !fs::is_directory(status)) ||
           (kAreWide && fs::absolute(file.filename(), error).wstring().starts_with(LR"(\\.\)"));
}

/// What can be told before a file is opened, which may wait for ever or read without end. Finds its size.
std::string FaultOfKind(const fs::path& file, NamedBy who, std::size_t& size) {
    std::error_code error;
    const fs::file_status status = fs::status(file, error);
    if (fs::is_directory(status)) {
        return "cannot be read: it is a folder";
    }
    if (who == NamedBy::Document && IsDeviceOrPipe(file)) {
        return "cannot be read: it is no file but a device or a pipe, which a document may not name";
    }
    const std::uintmax_t found = fs::is_regular_file(status) ? fs::file_size(file, error) : 0;
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
fs::path AsideOf(fs::path file) {
    return file.replace_filename(".millichart-" + std::to_string(std::random_device{}()));
}

/// Who may read and write the old file may do so with the new one.
void KeepMode(const fs::path& old, const fs::path& fresh) {
    std::error_code error;
    const fs::file_status status = fs::status(old, error);
    if (fs::exists(status)) {
        fs::permissions(fresh, status.permissions(), error);
    }
}

/// True when every byte reached the file and it closed without an error, which `errno` tells else.
bool WriteBytes(const fs::path& file, std::string_view bytes) {
    std::ofstream stream(file, std::ios::binary);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    return !stream.fail();
}

/// The file that a link leads to, there or not; empty if too many links lead from one to the next.
fs::path BehindLinks(fs::path file) {
    constexpr int kMaxLinks = 40;
    std::error_code error;
    for (int i = 0; fs::is_symlink(fs::symlink_status(file, error)); ++i) {
        if (i == kMaxLinks) {
            return {};
        }
        file = file.parent_path() / fs::read_symlink(file, error);
    }
    return file;
}

} // namespace

fs::path PathFromUtf8(const std::string& name) {
    return kAreWide ? fs::path(penlode::CStringUtil::Utf8ToWideString(name)) : fs::path(name);
}

std::string Utf8FromPath(const fs::path& path) {
    return kAreWide ? penlode::CStringUtil::WideToUtf8(path.wstring()) : path.string();
}

InputText ReadFile(const std::string& name, NamedBy who) {
    const fs::path path = PathFromUtf8(name);
    std::size_t size = 0;
    InputText input{name, "", FaultOfKind(path, who, size)};
    if (!input.Fault.empty()) {
        return input;
    }
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        input.Fault = NotRead(errno);
        return input;
    }
    input.Text.reserve(size);
    ReadAll(file, input);
    if (file.bad()) {
        input.Fault = NotRead(errno);
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
    const fs::path path = PathFromUtf8(name);
    if (IsDeviceOrPipe(path)) {
        return WriteBytes(path, bytes) ? "" : std::string("cannot be written: ") + std::strerror(errno);
    }
    const fs::path target = BehindLinks(path);
    if (target.empty()) {
        return "cannot be written: too many links lead from one to the next";
    }
    const fs::path part = AsideOf(target);
    if (begin) {
        begin(Utf8FromPath(part));
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
    // As C tells it, in one language and without an end of line.
    const std::string reason = error.default_error_condition().message();
    fs::permissions(part, fs::perms::owner_write, fs::perm_options::add, error); // else Windows keeps it
    fs::remove(part, error);
    return "cannot be written: " + reason;
}

} // namespace millichart
