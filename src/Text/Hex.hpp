#pragma once

#include <string>
#include <string_view>

namespace Merivane::Text {

/// Two small hexadecimal digits for each byte.
std::string ToHex(std::string_view bytes);

/// The bytes that `hex` stands for, behind what `bytes` holds. Returns false, with a part read, for
/// an odd number of digits and for anything but small ones.
bool FromHex(std::string_view hex, std::string& bytes);

} // namespace Merivane::Text
