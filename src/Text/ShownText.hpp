#pragma once

#include <string>
#include <string_view>

namespace Merivane::Text {

/// True when every character of `text` can stand in a line of a drawing, a table or a JSON text:
/// well-formed UTF-8 without control characters, lone surrogates and the two non-characters that
/// XML refuses.
bool IsPlainText(std::string_view text);

/// `text` as a line that `IsPlainText` accepts: white space and control characters become blanks,
/// every other byte that can't be shown becomes U+FFFD. The ends are trimmed.
std::string ShownText(std::string_view text);

/// `text` as lines that an XML document can hold: every line end becomes LF, tabs stay, other
/// control characters become blanks, every byte that can't be shown becomes U+FFFD. The ends stay.
std::string ShownLines(std::string_view text);

/// `ShownText` in quotation marks and cut to about 60 bytes, for messages.
std::string QuotedText(std::string_view text);

} // namespace Merivane::Text
