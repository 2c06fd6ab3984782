#include "Text/Utf16Length.hpp"

#include "Text/Utf8.hpp"

namespace Merivane::Text {

namespace {

/// Bytes of the character at the start of a text that is not empty; 1 where there is none.
std::size_t CharacterLength(std::string_view utf8) {
    for (std::size_t length = 1; length <= 4 && length <= utf8.size(); ++length) {
        if (IsUtf8(utf8.substr(0, length))) {
            return length;
        }
    }
    return 1;
}

// Only what takes four bytes lies beyond the first plane and needs a pair.
std::size_t UnitsOf(std::size_t characterLength) {
    return characterLength == 4 ? 2 : 1;
}

} // namespace

std::size_t Utf16Length(std::string_view utf8) {
    std::size_t units = 0;
    while (!utf8.empty()) {
        const std::size_t length = CharacterLength(utf8);
        units += UnitsOf(length);
        utf8.remove_prefix(length);
    }
    return units;
}

std::string TruncateUtf16(std::string_view utf8, std::size_t maximumUnits) {
    std::size_t units = 0;
    std::size_t end = 0;
    while (end < utf8.size()) {
        const std::size_t length = CharacterLength(utf8.substr(end));
        units += UnitsOf(length);
        if (units > maximumUnits) {
            break;
        }
        end += length;
    }
    return std::string(utf8.substr(0, end));
}

} // namespace Merivane::Text
