#pragma once

#include <cstdio>
#include <memory>
#include <string>

namespace Merivane::Text {

/// What `OpenFile` opens a file for, always in binary. `Write` empties or makes it, `Append` makes
/// it or goes on at its end, `Create` makes it and refuses where anything stands, a link too.
enum class FileMode { Read, Write, Append, Create };

/// Closes a file at the end of its owner.
struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using FileHandle = std::unique_ptr<std::FILE, CloseFile>;

/// Opens a file by its wide path; null on failure. The caller closes it.
std::FILE* OpenFile(const std::wstring& path, FileMode mode);

/// Opens a plain file for reading, in binary; null on failure and for anything else: a folder, a
/// device, a pipe, which is not waited for. The caller closes it.
std::FILE* OpenPlainFile(const std::wstring& path);

/// Where an opened file stands, free of links; empty when the system can't tell.
std::wstring RealPathOf(std::FILE* file);

/// Asks the system to bring a flushed file to the disk; false when it can't.
bool FlushToDisk(std::FILE* file);

/// Renames a file over another, in one step where the system can; false when it can't.
bool RenameOver(const std::wstring& from, const std::wstring& to);

/// Removes a file; silent when there is none.
void RemoveFile(const std::wstring& path);

} // namespace Merivane::Text
