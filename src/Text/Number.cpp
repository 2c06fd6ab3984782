#include "Text/Number.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <system_error>

#include "Text/Ascii.hpp"

namespace Merivane::Text {

namespace {

bool IsHexDigit(char c) {
    return IsDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

// `digits` begins behind "0x". strtod takes the prefix only when a digit follows it.
bool BeginsHexMantissa(std::string_view digits) {
    if (!digits.empty() && digits[0] == '.') {
        digits.remove_prefix(1);
    }
    return !digits.empty() && IsHexDigit(digits[0]);
}

// Where from_chars meets a value out of range it gives none, and does not say at which end.
// The size of the first digit that is not zero, in powers of the base, tells.
double OutOfRangeValue(std::string_view number, bool hexadecimal) {
    const char exponentMark = hexadecimal ? 'p' : 'e';
    const std::string text = ToLower(number);
    const std::string_view lower = text;
    const std::size_t mark = lower.find(exponentMark);
    const std::string_view mantissa = lower.substr(0, mark);

    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
    const std::size_t first = mantissa.find_first_not_of("0.");
    const double digitsBeforePoint = static_cast<double>(point) - static_cast<double>(first);
    double size = hexadecimal ? 4.0 * digitsBeforePoint : digitsBeforePoint;

    if (mark != std::string_view::npos) {
        const bool negative = lower[mark + 1] == '-';
        double exponent = 0.0;
        for (const char c : lower.substr(mark + 1)) {
            if (IsDigit(c)) {
                exponent = std::min(exponent * 10.0 + (c - '0'), 1e15); // beyond any double
            }
        }
        size += negative ? -exponent : exponent;
    }
    return size > 0.0 ? std::numeric_limits<double>::infinity() : 0.0;
}

} // namespace

std::size_t ReadNumber(std::string_view text, double& value) {
    std::size_t start = 0;
    while (start < text.size() && IsWhiteSpace(text[start])) {
        ++start;
    }
    bool negative = false;
    if (start < text.size() && (text[start] == '+' || text[start] == '-')) {
        negative = text[start] == '-';
        ++start;
    }
    std::string_view rest = text.substr(start);
    if (rest.empty() || rest[0] == '-') {
        return 0; // from_chars would take a second minus sign
    }

    bool hexadecimal = false;
    if (rest.size() > 2 && rest[0] == '0' && (rest[1] == 'x' || rest[1] == 'X') &&
        BeginsHexMantissa(rest.substr(2))) {
        hexadecimal = true;
        rest.remove_prefix(2);
    }

    double magnitude = 0.0;
    const auto [end, code] =
        std::from_chars(rest.data(), rest.data() + rest.size(), magnitude,
                        hexadecimal ? std::chars_format::hex : std::chars_format::general);
    if (code == std::errc::invalid_argument) {
        return 0;
    }
    const auto length = static_cast<std::size_t>(end - rest.data());
    if (code == std::errc::result_out_of_range) {
        magnitude = OutOfRangeValue(rest.substr(0, length), hexadecimal);
    }
    value = negative ? -magnitude : magnitude;
    return static_cast<std::size_t>(end - text.data());
}

bool ReadEntireNumber(std::string_view text, double& value) {
    double read = 0.0;
    const std::size_t length = ReadNumber(text, read);
    if (length == 0 || length != text.size()) {
        return false;
    }
    value = read;
    return true;
}

std::string FormatShortest(double value) {
    std::string text;
    AppendShortest(text, value);
    return text;
}

namespace {

// Most numbers in a document have a few decimals, and for those there is a faster way. A decimal of
// at most 15 digits is the shortest text of the double next to it, and dividing two integers below
// 2^53 gives exactly that double; from 0.001 up to five digits before the point the plain form is
// never longer than the one with an exponent. Returns false, with `text` as it was, for all others.
bool AppendShortDecimal(std::string& text, double value) {
    constexpr int MostDecimals = 4;
    constexpr double Scale = 10000.0;
    const double size = std::fabs(value);
    if (!(size >= 0.001 && size < 100000.0)) {
        return false;
    }
    auto scaled = static_cast<std::uint32_t>(std::lround(size * Scale));
    if (static_cast<double>(scaled) / Scale != size) {
        return false;
    }
    int decimals = MostDecimals;
    for (; decimals > 0 && scaled % 10 == 0; --decimals) {
        scaled /= 10;
    }
    std::array<char, 16> buffer;
    char* const end = buffer.data() + buffer.size();
    char* begin = end;
    for (; decimals > 0; --decimals) {
        *--begin = static_cast<char>('0' + scaled % 10);
        scaled /= 10;
        if (decimals == 1) {
            *--begin = '.';
        }
    }
    do {
        *--begin = static_cast<char>('0' + scaled % 10);
        scaled /= 10;
    } while (scaled > 0);
    if (value < 0.0) {
        *--begin = '-';
    }
    text.append(begin, end);
    return true;
}

} // namespace

void AppendShortest(std::string& text, double value) {
    if (AppendShortDecimal(text, value)) {
        return;
    }
    std::array<char, 64> buffer;
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    text.append(buffer.data(), result.ptr);
}

namespace {

std::string FormatWith(double value, std::chars_format format, int precision) {
    // 309 digits before the point at most, the sign, the point and the decimals.
    std::string buffer(static_cast<std::size_t>(std::max(precision, 0)) + 320, '\0');
    const auto result =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format, precision);
    buffer.resize(static_cast<std::size_t>(result.ptr - buffer.data()));
    return buffer;
}

} // namespace

std::string FormatFixed(double value, int decimals) {
    return FormatWith(value, std::chars_format::fixed, decimals);
}

std::string FormatGeneral(double value, int digits) {
    return FormatWith(value, std::chars_format::general, digits);
}

} // namespace Merivane::Text
