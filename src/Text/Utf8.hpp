#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Merivane::Text {

/// `text` cut to at most `maximumBytes` bytes, earlier where it would end inside a UTF-8 sequence.
std::string TruncateUtf8(std::string_view text, std::size_t maximumBytes);

/// True when the whole text is UTF-8 by the form of its bytes: lead bytes C2..DF, E0..EF, F0..F4
/// with one, two, three continuation bytes.
bool IsUtf8(std::string_view text);

/// The code point `code` (up to 0x10FFFF) as one to four UTF-8 bytes behind `text`.
void AppendUtf8(std::string& text, char32_t code);

/// Wide form of UTF-8 bytes, for file system paths. A byte that is no part of a valid sequence
/// becomes the lone surrogate 0xDC00 + byte, so that `Narrow` gives every path back unchanged.
/// Wide characters are UTF-16 where they have 16 bits, code points elsewhere.
std::wstring Widen(std::string_view text);

/// UTF-8 bytes of a wide text; the inverse of `Widen`.
std::string Narrow(std::wstring_view text);

} // namespace Merivane::Text
