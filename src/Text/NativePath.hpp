#pragma once

#include <filesystem>
#include <string>
#include <type_traits>

namespace Merivane::Text {

/// True where paths are wide: on the system that takes names which differ in case alone for one.
inline constexpr bool PathsAreWide = std::is_same_v<std::filesystem::path::value_type, wchar_t>;

/// A wide path as the standard library takes it: the same characters where paths are wide, their
/// UTF-8 bytes elsewhere. The library's own conversion refuses names that are not UTF-8; this one
/// gives every name of the disk back unchanged (see `Widen`).
std::filesystem::path NativePath(const std::wstring& path);

/// The wide form of a path of the standard library; the inverse of `NativePath`.
std::wstring WidePath(const std::filesystem::path& path);

} // namespace Merivane::Text
