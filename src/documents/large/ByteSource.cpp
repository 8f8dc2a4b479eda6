#include "documents/large/ByteSource.h"

#include "documents/Files.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <istream>
#include <utility>

namespace millichart {
namespace {

constexpr std::size_t kBeginning = std::size_t{1} << 20U;

std::string Failed(int error) {
    return std::string("cannot be read: ") + std::strerror(error);
}

/// Sets the reason if it failed.
std::size_t ReadFrom(std::istream& stream, char* to, std::size_t most, std::string& fault) {
    stream.read(to, static_cast<std::streamsize>(most));
    if (stream.bad()) {
        fault = Failed(errno);
    }
    return static_cast<std::size_t>(stream.gcount());
}

class FileBytes final : public ByteSource {
public:
    explicit FileBytes(const std::string& name) {
        const std::filesystem::path path = PathFromUtf8(name);
        m_stream.rdbuf()->pubsetbuf(nullptr, 0); // whoever reads has room of its own
        m_stream.open(path, std::ios::binary);
        if (!m_stream) {
            m_fault = Failed(errno);
            return;
        }
        std::error_code error;
        m_size = std::filesystem::file_size(path, error);
        m_beginning.resize(kBeginning);
        m_beginning.resize(FileBytes::Read(m_beginning.data(), kBeginning));
        FileBytes::Seek(0);
    }

    std::string_view Beginning() const override { return m_beginning; }

    std::size_t Read(char* to, std::size_t most) override { return ReadFrom(m_stream, to, most, m_fault); }

    bool Seek(std::uint64_t at) override {
        m_stream.clear();
        m_stream.seekg(static_cast<std::streamoff>(at));
        return m_stream.good();
    }

    std::optional<std::uint64_t> Size() const override { return m_size; }

    std::string Fault() const override { return m_fault; }

private:
    std::ifstream m_stream;
    std::uint64_t m_size = 0;
    std::string m_beginning;
    std::string m_fault;
};

class StreamBytes final : public ByteSource {
public:
    StreamBytes(std::string begun, std::istream& stream, std::unique_ptr<std::istream> own)
        : m_begun(std::move(begun)), m_stream(stream), m_own(std::move(own)),
          m_beginning(m_begun.substr(0, kBeginning)) {}

    std::string_view Beginning() const override { return m_beginning; }

    std::size_t Read(char* to, std::size_t most) override {
        const std::size_t begun = m_begun.copy(to, most, m_at);
        m_at += begun;
        m_passed += begun;
        if (m_at == m_begun.size() && m_at != 0) {
            std::string().swap(m_begun);
            m_at = 0;
        }
        const std::size_t read = begun < most ? ReadFrom(m_stream, to + begun, most - begun, m_fault) : 0;
        m_passed += read;
        return begun + read;
    }

    bool Seek(std::uint64_t at) override { return at == m_passed; }

    std::optional<std::uint64_t> Size() const override { return std::nullopt; }

    std::string Fault() const override { return m_fault; }

private:
    std::string m_begun;
    std::size_t m_at = 0;
    std::uint64_t m_passed = 0;
    std::istream& m_stream;
    std::unique_ptr<std::istream> m_own;
    std::string m_beginning;
    std::string m_fault;
};

} // namespace

std::shared_ptr<ByteSource> OpenBytes(const std::string& name) {
    return std::make_shared<FileBytes>(name);
}

std::shared_ptr<ByteSource> GoOnReading(std::string begun, std::istream& stream) {
    return std::make_shared<StreamBytes>(std::move(begun), stream, nullptr);
}

std::shared_ptr<ByteSource> GoOnReading(std::string begun, std::unique_ptr<std::istream> stream) {
    std::istream& read = *stream;
    return std::make_shared<StreamBytes>(std::move(begun), read, std::move(stream));
}

} // namespace millichart
