#pragma once

#include <string>
#include <string_view>

namespace Merivane::Text {

/// The base64 form of RFC 4648, padded; a line end behind every `lineLength` characters but the
/// last ones, none for 0.
std::string ToBase64(std::string_view bytes, std::size_t lineLength = 0);

/// The bytes that a base64 text stands for, behind what `bytes` holds; white space in it is passed
/// over. Returns false, with a part read, for any other character and for a text that is cut.
bool FromBase64(std::string_view text, std::string& bytes);

} // namespace Merivane::Text
