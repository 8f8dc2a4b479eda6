#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <random>
#include <string>

namespace designer::test {

/// A folder that no other run of the tests has; goes with this.
class OwnFolder {
public:
    OwnFolder()
        : m_path(std::filesystem::path(testing::TempDir()) /
                 ("designer-" + std::to_string(std::random_device()()))) {
        std::filesystem::create_directories(m_path);
    }

    ~OwnFolder() {
        std::error_code error;
        std::filesystem::remove_all(m_path, error);
    }

    OwnFolder(const OwnFolder&) = delete;
    OwnFolder& operator=(const OwnFolder&) = delete;

    /// Of something in it, which may not be there.
    std::string Path(const std::string& name) const { return (m_path / name).string(); }

private:
    std::filesystem::path m_path;
};

} // namespace designer::test
