#include "Text/FileBytes.hpp"

#include <array>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>

#include "Text/NativeFile.hpp"
#include "Text/NativePath.hpp"

namespace Merivane::Text {

namespace {

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using FileHandle = std::unique_ptr<std::FILE, CloseFile>;

bool WriteAndClose(const std::wstring& path, std::string_view bytes, bool sync) {
    FileHandle file(OpenFile(path, FileMode::Write));
    if (!file) {
        return false;
    }
    bool written = std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
    written = std::fflush(file.get()) == 0 && written;
    if (sync) {
        written = FlushToDisk(file.get()) && written;
    }
    return std::fclose(file.release()) == 0 && written;
}

} // namespace

bool ReadFileBytes(const std::wstring& path, std::string& bytes) {
    bytes.clear();
    std::error_code error; // a device such as /dev/zero has no end
    if (std::filesystem::is_character_file(NativePath(path), error)) {
        return false;
    }
    const FileHandle file(OpenFile(path, FileMode::Read));
    if (!file) {
        return false;
    }
    std::array<char, 65536> buffer;
    std::size_t count = 0;
    while ((count = std::fread(buffer.data(), 1, buffer.size(), file.get())) > 0) {
        bytes.append(buffer.data(), count);
    }
    return std::ferror(file.get()) == 0;
}

bool WriteFileBytes(const std::wstring& path, std::string_view bytes) {
    return WriteAndClose(path, bytes, false);
}

bool WriteFileFlushed(const std::wstring& path, std::string_view bytes) {
    return WriteAndClose(path, bytes, true);
}

bool ReplaceFile(const std::wstring& path, std::string_view bytes) {
    std::error_code code;
    const std::filesystem::path linked = std::filesystem::canonical(NativePath(path), code);
    const std::wstring target = code ? path : WidePath(linked); // no file yet: no link to follow
    const std::wstring beside = target + L".parcial";
    if (WriteFileFlushed(beside, bytes) && RenameOver(beside, target)) {
        return true;
    }
    RemoveFile(beside);
    return false;
}

} // namespace Merivane::Text
