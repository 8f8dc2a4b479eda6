#include "model/FileMark.h"

#include "documents/Files.h"

#include <filesystem>
#include <functional>

namespace designer {

namespace fs = std::filesystem;

FileMark StampOf(const std::string& file) {
    const fs::path path = millichart::PathFromUtf8(file);
    std::error_code error;
    FileMark stamp;
    stamp.IsThere = fs::is_regular_file(path, error);
    if (stamp.IsThere) {
        const std::uintmax_t size = fs::file_size(path, error);
        stamp.Size = error ? 0 : size;
        const fs::file_time_type time = fs::last_write_time(path, error);
        stamp.Written = error ? 0 : static_cast<std::int64_t>(time.time_since_epoch().count());
    }
    return stamp;
}

FileMark WithBytes(FileMark stamp, std::string_view bytes) {
    stamp.Hash = std::hash<std::string_view>()(bytes);
    return stamp;
}

FileMark MarkOf(const std::string& file) {
    const FileMark stamp = StampOf(file);
    return stamp.IsThere ? WithBytes(stamp, millichart::ReadFile(file).Text) : stamp;
}

bool HasChanged(const std::string& file, const FileMark& mark) {
    const FileMark now = StampOf(file);
    if (now.IsThere != mark.IsThere) {
        return true;
    }
    if (!now.IsThere || (now.Size == mark.Size && now.Written == mark.Written)) {
        return false;
    }
    return now.Size != mark.Size || MarkOf(file).Hash != mark.Hash;
}

} // namespace designer
