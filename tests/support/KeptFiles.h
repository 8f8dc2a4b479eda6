#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>

/// What the file `name` of data holds. With MILLICHART_KEEP=1, one that is not there is first written of
/// `now`.
inline std::string Kept(const std::string& name, const std::string& now) {
    const std::string path = MILLICHART_TEST_DATA "/" + name;
    if (std::getenv("MILLICHART_KEEP") != nullptr && !std::filesystem::exists(path)) {
        std::ofstream(path, std::ios::binary) << now;
    }
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << path << " is missing; with MILLICHART_KEEP=1 this test writes it";
    return {std::istreambuf_iterator<char>(file), {}};
}
