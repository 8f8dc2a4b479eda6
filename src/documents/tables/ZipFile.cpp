#include "documents/tables/ZipFile.h"

#include <cstddef>
#include <cstdint>
#include <zip.h>

namespace millichart::documents {

ZipFile::ZipFile(std::string_view bytes) {
    zip_source_t* const source = zip_source_buffer_create(bytes.data(), bytes.size(), 0, nullptr);
    m_zip = source == nullptr ? nullptr : zip_open_from_source(source, ZIP_RDONLY, nullptr);
    if (m_zip == nullptr) {
        zip_source_free(source);
    }
}

ZipFile::~ZipFile() {
    if (m_zip != nullptr) {
        zip_discard(m_zip);
    }
}

std::optional<std::string> ZipFile::Part(const std::string& name) const {
    constexpr std::uint64_t kMaxBytes = std::uint64_t{1} << 28U; // ten times as much when parsed
    zip_stat_t about;
    if (m_zip == nullptr || zip_stat(m_zip, name.c_str(), 0, &about) != 0 ||
        (about.valid & ZIP_STAT_SIZE) == 0 || about.size > kMaxBytes) {
        return std::nullopt;
    }
    const std::unique_ptr<zip_file_t, int (*)(zip_file_t*)> file(zip_fopen(m_zip, name.c_str(), 0),
                                                                 zip_fclose);
    if (!file) {
        return std::nullopt;
    }
    // The size that a file claims may be a lie: no more is kept than comes.
    constexpr std::size_t kPiece = std::size_t{1} << 16U;
    std::string bytes;
    for (zip_int64_t read = 1; read > 0 && bytes.size() <= about.size;) {
        const std::size_t before = bytes.size();
        bytes.resize(before + kPiece);
        read = zip_fread(file.get(), bytes.data() + before, kPiece);
        bytes.resize(before + static_cast<std::size_t>(read > 0 ? read : 0));
        if (read < 0) {
            return std::nullopt;
        }
    }
    return bytes.size() == about.size ? std::optional(std::move(bytes)) : std::nullopt;
}

} // namespace millichart::documents
