#pragma once

#include <string>
#include <string_view>

#include "Host/Types.hpp"

namespace Merivane::Host {

/// "{XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}", upper case.
inline std::string GuidText(const Guid& guid) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text = "{";
    for (std::size_t i = 0; i < guid.bytes.size(); ++i) {
        if (i == 4 || i == 6 || i == 8 || i == 10) {
            text += '-';
        }
        text += digits[guid.bytes[i] >> 4U];
        text += digits[guid.bytes[i] & 15U];
    }
    return text + "}";
}

/// Reads the text form, with or without braces, in either case. Returns false, leaving `guid` as it
/// was, for any other text.
inline bool ParseGuid(std::string_view text, Guid& guid) {
    if (text.size() == 38 && text.front() == '{' && text.back() == '}') {
        text = text.substr(1, 36);
    }
    if (text.size() != 36) {
        return false;
    }
    Guid read;
    std::size_t digit = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (i == 8 || i == 13 || i == 18 || i == 23) {
            if (text[i] != '-') {
                return false;
            }
            continue;
        }
        const char c = text[i];
        const int value = c >= '0' && c <= '9'   ? c - '0'
                          : c >= 'A' && c <= 'F' ? c - 'A' + 10
                          : c >= 'a' && c <= 'f' ? c - 'a' + 10
                                                 : -1;
        if (value < 0) {
            return false;
        }
        std::uint8_t& byte = read.bytes[digit / 2];
        byte = static_cast<std::uint8_t>(byte * 16 + value);
        ++digit;
    }
    guid = read;
    return true;
}

} // namespace Merivane::Host
