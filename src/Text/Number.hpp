#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Merivane::Text {

/// Reads a number at the start of `text` as the C library's `strtod` does in the "C" locale,
/// whatever locale the host has set: white space is skipped; sign, decimal and hexadecimal forms,
/// exponents, "inf", "infinity", "nan" and "nan(...)" are read; too large gives infinity, too
/// small gives 0 or the nearest denormal.
///
/// Returns how many bytes were read, 0 when there is no number; `value` is then untouched.
std::size_t ReadNumber(std::string_view text, double& value);

/// Reads a number that must be the whole of `text`, by the rules of `ReadNumber`. Returns false,
/// leaving `value` untouched, for an empty text and for anything left over.
bool ReadEntireNumber(std::string_view text, double& value);

/// Shortest decimal text that reads back as the same double, plain or exponent form, whichever is
/// shorter ("0.1", "1e+20", "1500"); "inf", "-inf", "nan" for what is not finite.
std::string FormatShortest(double value);

/// `FormatShortest` behind what `text` holds, for long rows of numbers.
void AppendShortest(std::string& text, double value);

/// The C format "%.*f" with a point, whatever the locale.
std::string FormatFixed(double value, int decimals);

/// The C format "%.*g" with a point, whatever the locale; "%g" is 6 digits.
std::string FormatGeneral(double value, int digits = 6);

} // namespace Merivane::Text
