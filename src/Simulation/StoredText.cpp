#include "Simulation/StoredText.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <system_error>

#include "Text/Ascii.hpp"
#include "Text/Number.hpp"

namespace Merivane::Simulation {

namespace {

void SkipWhiteSpace(std::string_view& rest) {
    while (!rest.empty() && Text::IsWhiteSpace(rest.front())) {
        rest.remove_prefix(1);
    }
}

std::size_t EndOfDigits(std::string_view text, std::size_t start) {
    return std::min(text.find_first_not_of("0123456789", start), text.size());
}

std::size_t EndOfSign(std::string_view text, std::size_t start) {
    return start < text.size() && (text[start] == '+' || text[start] == '-') ? start + 1 : start;
}

// Length of what can belong to one decimal number; "1e" belongs to none and is refused as a whole.
std::size_t NumberLength(std::string_view text) {
    const std::size_t start = EndOfSign(text, 0);
    std::size_t end = EndOfDigits(text, start);
    std::size_t digits = end - start;
    if (end < text.size() && text[end] == '.') {
        const std::size_t fraction = end + 1;
        end = EndOfDigits(text, fraction);
        digits += end - fraction;
    }
    if (digits > 0 && end < text.size() && (text[end] == 'e' || text[end] == 'E')) {
        end = EndOfDigits(text, EndOfSign(text, end + 1));
    }
    return end;
}

} // namespace

bool TakeHeaderLine(std::string_view& rest, std::string_view header) {
    const std::size_t end = std::min(rest.find('\n'), rest.size());
    const bool same = rest.substr(0, end) == header;
    rest.remove_prefix(std::min(end + 1, rest.size()));
    return same;
}

bool TakeInteger(std::string_view& rest, std::int32_t& value) {
    SkipWhiteSpace(rest);
    const std::size_t length = EndOfDigits(rest, EndOfSign(rest, 0));
    std::string_view number = rest.substr(0, length);
    rest.remove_prefix(length);
    if (!number.empty() && number.front() == '+') {
        number.remove_prefix(1); // from_chars knows no plus sign
    }
    std::int32_t read = 0;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), read);
    if (result.ec != std::errc()) {
        return false;
    }
    value = read;
    return true;
}

bool TakeNumber(std::string_view& rest, double& value) {
    SkipWhiteSpace(rest);
    const std::size_t length = NumberLength(rest);
    double read = 0.0;
    const bool whole = Text::ReadEntireNumber(rest.substr(0, length), read);
    rest.remove_prefix(length);
    if (!whole || !std::isfinite(read)) {
        return false;
    }
    value = read;
    return true;
}

} // namespace Merivane::Simulation
