#pragma once

#include <filesystem>
#include <string>

namespace Merivane::Tests {

/// Root folder of the checkout.
std::filesystem::path SourceFolder();

/// Folder of the build: it holds the program `vantoro` and the folder "Vantoro Radiance".
std::filesystem::path BuildFolder();

/// Folder with the field data (real IES files and glare tables), empty where the build was not
/// told of one. Tests on field data are left out then.
std::filesystem::path FieldDataFolder();

/// A folder of its own for one test, made empty, removed with everything in it at the end.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& Path() const { return path; }

private:
    std::filesystem::path path;
};

/// All bytes of a file; fails the running test when it can't be read.
std::string ReadBytes(const std::filesystem::path& path);

/// Writes a file; fails the running test when it can't be written.
void WriteBytes(const std::filesystem::path& path, const std::string& bytes);

} // namespace Merivane::Tests
