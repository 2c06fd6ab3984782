#pragma once

#include <cstdio>
#include <string>

namespace Merivane::Text {

/// What `OpenFile` opens a file for, always in binary. `Write` empties or makes it, `Append` makes
/// it or goes on at its end.
enum class FileMode { Read, Write, Append };

/// Opens a file by its wide path; null on failure. The caller closes it.
std::FILE* OpenFile(const std::wstring& path, FileMode mode);

/// Asks the system to bring a flushed file to the disk; false when it can't.
bool FlushToDisk(std::FILE* file);

/// Renames a file over another, in one step where the system can; false when it can't.
bool RenameOver(const std::wstring& from, const std::wstring& to);

/// Removes a file; silent when there is none.
void RemoveFile(const std::wstring& path);

} // namespace Merivane::Text
