#include "Support/Places.hpp"

#include <atomic>
#include <fstream>
#include <iterator>
#include <system_error>

#include <gtest/gtest.h>

#include <unistd.h>

namespace Merivane::Tests {

std::filesystem::path SourceFolder() {
    return VANTORO_SOURCE_FOLDER;
}

std::filesystem::path BuildFolder() {
    return VANTORO_BUILD_FOLDER;
}

std::filesystem::path FieldDataFolder() {
    return VANTORO_FIELD_DATA;
}

TemporaryFolder::TemporaryFolder() {
    static std::atomic<int> serial{0};
    path = std::filesystem::temp_directory_path() /
           ("vantoro-test-" + std::to_string(::getpid()) + "-" + std::to_string(serial++));
    std::filesystem::remove_all(path);
    std::filesystem::create_directories(path);
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
}

std::string ReadBytes(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file.good()) << "can't read " << path;
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void WriteBytes(const std::filesystem::path& path, const std::string& bytes) {
    std::ofstream file(path, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    EXPECT_TRUE(file.good()) << "can't write " << path;
}

} // namespace Merivane::Tests
