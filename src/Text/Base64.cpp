#include "Text/Base64.hpp"

#include <cstddef>
#include <cstdint>

#include "Text/Ascii.hpp"

namespace Merivane::Text {

namespace {

constexpr std::string_view Digits =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::size_t GroupBytes = 3;
constexpr std::size_t GroupDigits = 4;
constexpr unsigned DigitBits = 6;
constexpr unsigned ByteBits = 8;

/// Four digits of up to three bytes, those that are missing as "=".
void AppendGroup(std::string& text, std::string_view group) {
    std::uint32_t bits = 0;
    for (std::size_t i = 0; i < GroupBytes; ++i) {
        bits = (bits << ByteBits) | (i < group.size() ? static_cast<unsigned char>(group[i]) : 0U);
    }
    for (std::size_t i = 0; i < GroupDigits; ++i) {
        const std::uint32_t digit = (bits >> (DigitBits * (GroupDigits - 1 - i))) & 63U;
        text += i <= group.size() ? Digits[digit] : '=';
    }
}

} // namespace

std::string ToBase64(std::string_view bytes, std::size_t lineLength) {
    std::string text;
    std::size_t line = 0;
    for (std::size_t i = 0; i < bytes.size(); i += GroupBytes) {
        if (lineLength > 0 && line + GroupDigits > lineLength) {
            text += '\n';
            line = 0;
        }
        AppendGroup(text, bytes.substr(i, GroupBytes));
        line += GroupDigits;
    }
    return text;
}

bool FromBase64(std::string_view text, std::string& bytes) {
    std::uint32_t bits = 0;
    std::size_t digits = 0;
    std::size_t padding = 0;
    for (const char c : text) {
        if (IsWhiteSpace(c)) {
            continue;
        }
        const std::size_t digit = Digits.find(c);
        if (c == '=') {
            ++padding;
            continue;
        }
        if (digit == std::string_view::npos || padding > 0) {
            return false;
        }
        bits = (bits << DigitBits) | static_cast<std::uint32_t>(digit);
        ++digits;
        // Each digit but the first of a group ends a byte.
        if (const std::size_t place = digits % GroupDigits; place != 1) {
            const unsigned shift = place == 2 ? 4U : place == 3 ? 2U : 0U; // bits of the next one
            bytes += static_cast<char>((bits >> shift) & 0xFFU);
        }
    }
    return digits % GroupDigits != 1 && (digits + padding) % GroupDigits == 0 && padding < 3;
}

} // namespace Merivane::Text
