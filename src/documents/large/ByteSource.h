#pragma once

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace millichart {

/// Bytes that are read one after the other and not held.
class ByteSource {
public:
    ByteSource() = default;
    ByteSource(const ByteSource&) = delete;
    ByteSource& operator=(const ByteSource&) = delete;
    virtual ~ByteSource() = default;

    /// The first megabyte, or all; of what cannot be read, nothing.
    virtual std::string_view Beginning() const = 0;

    /// How many were read: as many as asked for, or fewer at the end, and where reading failed.
    virtual std::size_t Read(char* to, std::size_t most) = 0;

    /// Goes on from a place counted from the first byte; false if that cannot be, as for what
    /// a pipe has passed.
    virtual bool Seek(std::uint64_t at) = 0;

    /// Nothing of a pipe.
    virtual std::optional<std::uint64_t> Size() const = 0;

    /// Why reading failed, as in "cannot be read: Input/output error"; or empty.
    virtual std::string Fault() const = 0;
};

/// Of a file, which is opened here.
std::shared_ptr<ByteSource> OpenBytes(const std::string& name);

/// Of a stream, such as a pipe's, of which `begun` was read before. The stream must outlive the source, or
/// become its own.
std::shared_ptr<ByteSource> GoOnReading(std::string begun, std::istream& stream);
std::shared_ptr<ByteSource> GoOnReading(std::string begun, std::unique_ptr<std::istream> stream);

} // namespace millichart
