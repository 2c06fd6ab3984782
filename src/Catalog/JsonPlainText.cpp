#include "Catalog/JsonPlainText.hpp"

#include <cstdint>
#include <cstring>

namespace Merivane::Catalog {

namespace {

constexpr std::uint64_t EachByte(std::uint64_t byte) {
    return byte * 0x0101010101010101U;
}

// True when some byte of the eight is 0: only then does taking 1 off set a high bit that was clear.
bool HasZeroByte(std::uint64_t bytes) {
    return ((bytes - EachByte(1)) & ~bytes & EachByte(0x80)) != 0;
}

bool HasByteBelow32(std::uint64_t bytes) {
    return ((bytes - EachByte(32)) & ~bytes & EachByte(0x80)) != 0;
}

bool IsPlain(char c) {
    return c != '"' && c != '\\' && static_cast<unsigned char>(c) >= 32;
}

} // namespace

std::size_t PlainLength(std::string_view text) {
    std::size_t length = 0;
    for (std::uint64_t bytes = 0; text.size() - length >= sizeof bytes; length += sizeof bytes) {
        std::memcpy(&bytes, text.data() + length, sizeof bytes);
        if (HasByteBelow32(bytes) || HasZeroByte(bytes ^ EachByte('"')) ||
            HasZeroByte(bytes ^ EachByte('\\'))) {
            break;
        }
    }
    while (length < text.size() && IsPlain(text[length])) {
        ++length;
    }
    return length;
}

} // namespace Merivane::Catalog
