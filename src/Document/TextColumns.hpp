#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Text laid out in columns of characters, for terminals and spreadsheets.
namespace Merivane::Document {

/// Characters of a UTF-8 text.
std::size_t CharacterCount(std::string_view text);

/// `text` with blanks before it up to `width` characters; longer text stays as it is.
std::string PadLeft(std::string_view text, std::size_t width);

/// `text` with blanks behind it up to `width` characters; longer text stays as it is.
std::string PadRight(std::string_view text, std::size_t width);

/// A number with at most six significant digits and a decimal comma, for quantities that span
/// powers of ten: "0,00140625", "12345,7", "2,5e+06".
std::string FormatSignificant(double value);

/// A text as one cell of a table parted by ";": in quotation marks where it holds one, a ";" or a
/// line end.
std::string TableCell(std::string_view text);

} // namespace Merivane::Document
