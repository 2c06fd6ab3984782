#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Merivane::Text {

/// Units of UTF-16 that a UTF-8 text takes. A byte that is no part of a sequence counts as one.
std::size_t Utf16Length(std::string_view utf8);

/// `utf8` cut to at most `maximumUnits` units of UTF-16, earlier where it would end inside a
/// character.
std::string TruncateUtf16(std::string_view utf8, std::size_t maximumUnits);

} // namespace Merivane::Text
