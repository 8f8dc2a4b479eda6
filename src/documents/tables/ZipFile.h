#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

struct zip;

namespace millichart::documents {

/// A zip archive in memory, whose bytes must outlive it.
class ZipFile {
public:
    explicit ZipFile(std::string_view bytes);
    ~ZipFile();
    ZipFile(const ZipFile&) = delete;
    ZipFile& operator=(const ZipFile&) = delete;

    /// The bytes of a file in it; nothing of one that is not there, cannot be unpacked, is encrypted or
    /// larger than 1 GB.
    std::optional<std::string> Part(const std::string& name) const;

private:
    zip* m_zip = nullptr;
};

} // namespace millichart::documents
