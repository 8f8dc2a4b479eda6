#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace designer {

/// What tells a file's bytes from others: the mark of a file that is not there is that of a new FileMark.
struct FileMark {
    bool IsThere = false;
    std::uintmax_t Size = 0;
    std::int64_t Written = 0; ///< when, in the file system's own count
    std::size_t Hash = 0;     ///< of the bytes
};

/// Size and time alone.
FileMark StampOf(const std::string& file);
/// Of a file with those bytes, when `stamp` was taken.
FileMark WithBytes(FileMark stamp, std::string_view bytes);
FileMark MarkOf(const std::string& file);

/// Has the file other bytes than it had when it was marked, or is it there or gone since? Reads them only
/// where size or time are others.
bool HasChanged(const std::string& file, const FileMark& mark);

} // namespace designer
