#pragma once

#include <string>
#include <string_view>

namespace Merivane::Text {

/// True for blank, tab, LF, VT, FF and CR: white space in every locale.
bool IsWhiteSpace(char c);

/// True for 0 to 9.
inline bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

/// `text` without white space at both ends.
std::string_view Trim(std::string_view text);

/// Copy with ASCII letters in upper case; bytes of 128 and above stay as they are.
std::string ToUpper(std::string_view text);

/// Copy with ASCII letters in lower case; bytes of 128 and above stay as they are.
std::string ToLower(std::string_view text);

} // namespace Merivane::Text
