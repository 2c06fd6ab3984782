#pragma once

#include <cstdio>
#include <functional>
#include <string>
#include <string_view>

namespace Merivane::Text {

/// Reads a whole file in binary. Returns false when it can't be opened or read to its end;
/// `bytes` then holds what was read. A folder is no file, nor is a device, which may have no end.
bool ReadFileBytes(const std::wstring& path, std::string& bytes);

/// Takes a block of a file; false when no more of it is wanted.
using TakeBlock = std::function<bool(std::string_view block)>;

/// Reads the rest of an opened file, of which nothing was read yet, block by block. Returns false
/// where it can't be read to its end or `take` returns false.
bool ReadBlocks(std::FILE* file, const TakeBlock& take);

/// Writes a file in binary, replacing one that exists. Returns false when it can't be opened,
/// written or closed (a full disk shows at the latest when closing); a part may then stand there.
bool WriteFileBytes(const std::wstring& path, std::string_view bytes);

/// `WriteFileBytes`, and the bytes are brought to the disk before it returns; false when they
/// can't be.
bool WriteFileFlushed(const std::wstring& path, std::string_view bytes);

/// Writes a file whole or not at all: beside its place under a name that nobody else has (its own,
/// ".parcial-" and 16 digits), flushed to the disk, then renamed; through a link the file that it
/// leads to. Returns false when any of it fails; the file at `path` is then as it was and nothing
/// is left beside it. What writers that were killed left there more than ten minutes ago goes.
bool ReplaceFile(const std::wstring& path, std::string_view bytes);

} // namespace Merivane::Text
