#pragma once

#include <cstddef>
#include <string_view>

/// Lengths of texts as the host counts them.
namespace Merivane::Workbench {

/// Units of UTF-16 that a UTF-8 text takes.
std::size_t CountUtf16(std::string_view text);

/// Characters (code points) of a UTF-8 text.
std::size_t CountCharacters(std::string_view text);

/// Longest name of an attribute [bytes], and longest text of a parameter, a Zone or a window
/// [units of UTF-16].
inline constexpr std::size_t LongestAttributeName = 255;
inline constexpr std::size_t LongestText = 255;

/// Longest number text of a Zone [units of UTF-16].
inline constexpr std::size_t LongestZoneNumber = 31;

} // namespace Merivane::Workbench
