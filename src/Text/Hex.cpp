#include "Text/Hex.hpp"

#include <cstddef>

namespace Merivane::Text {

namespace {

constexpr std::string_view HexDigits = "0123456789abcdef";

} // namespace

std::string ToHex(std::string_view bytes) {
    std::string hex;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        hex += HexDigits[byte / 16];
        hex += HexDigits[byte % 16];
    }
    return hex;
}

bool FromHex(std::string_view hex, std::string& bytes) {
    if (hex.size() % 2 != 0) {
        return false;
    }
    for (std::size_t i = 0; i < hex.size(); i += 2) {
        const std::size_t high = HexDigits.find(hex[i]);
        const std::size_t low = HexDigits.find(hex[i + 1]);
        if (high == std::string_view::npos || low == std::string_view::npos) {
            return false;
        }
        bytes += static_cast<char>(high * 16 + low);
    }
    return true;
}

} // namespace Merivane::Text
