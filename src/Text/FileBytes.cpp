#include "Text/FileBytes.hpp"

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <random>
#include <system_error>
#include <utility>
#include <vector>

#include "Text/NativeFile.hpp"
#include "Text/NativePath.hpp"

namespace Merivane::Text {

namespace {

constexpr std::size_t ReadAtOnce = std::size_t{128} * 1024; // bytes; stays in the processor's cache

bool WriteAndClose(FileHandle file, std::string_view bytes, bool sync) {
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

constexpr std::wstring_view PartWritten = L".parcial-";
constexpr std::size_t DigitsOfName = 16;

/// A name beside a file that nobody guesses.
std::wstring FreshNameBeside(const std::wstring& path) {
    std::random_device random;
    std::uniform_int_distribution<std::size_t> digit(0, 15);
    std::wstring name = path + std::wstring(PartWritten);
    for (std::size_t i = 0; i < DigitsOfName; ++i) {
        name += L"0123456789abcdef"[digit(random)];
    }
    return name;
}

/// Takes away what writers that were killed have left beside a file. One that still writes is
/// younger.
void RemoveLeftovers(const std::wstring& path) {
    namespace fs = std::filesystem;
    constexpr std::chrono::minutes longest(10);
    const std::wstring begin = path + std::wstring(PartWritten);
    const auto now = fs::file_time_type::clock::now();
    std::error_code code; // what can't be looked at stays
    for (fs::directory_iterator at(NativePath(path).parent_path(), code), end; !code && at != end;
         at.increment(code)) {
        const std::wstring name = WidePath(at->path());
        std::error_code unknown;
        if (name.size() == begin.size() + DigitsOfName && name.starts_with(begin) &&
            now - at->last_write_time(unknown) > longest && !unknown) {
            RemoveFile(name);
        }
    }
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
    return ReadBlocks(file.get(), [&bytes](std::string_view block) {
        bytes.append(block);
        return true;
    });
}

bool ReadBlocks(std::FILE* file, const TakeBlock& take) {
    std::setvbuf(file, nullptr, _IONBF, 0); // straight into the buffer below
    std::vector<char> buffer(ReadAtOnce);
    std::size_t count = 0;
    while ((count = std::fread(buffer.data(), 1, buffer.size(), file)) > 0) {
        if (!take({buffer.data(), count})) {
            return false;
        }
    }
    return std::ferror(file) == 0;
}

bool WriteFileBytes(const std::wstring& path, std::string_view bytes) {
    return WriteAndClose(FileHandle(OpenFile(path, FileMode::Write)), bytes, false);
}

bool WriteFileFlushed(const std::wstring& path, std::string_view bytes) {
    return WriteAndClose(FileHandle(OpenFile(path, FileMode::Write)), bytes, true);
}

bool ReplaceFile(const std::wstring& path, std::string_view bytes) {
    std::error_code code;
    const std::filesystem::path linked = std::filesystem::canonical(NativePath(path), code);
    const std::wstring target = code ? path : WidePath(linked); // no file yet: no link to follow
    const std::wstring beside = FreshNameBeside(target);
    FileHandle file(OpenFile(beside, FileMode::Create));
    if (!file) {
        return false; // nothing of ours stands there
    }
    if (WriteAndClose(std::move(file), bytes, true) && RenameOver(beside, target)) {
        RemoveLeftovers(target);
        return true;
    }
    RemoveFile(beside);
    return false;
}

} // namespace Merivane::Text
