#include "Photometry/NumberCursor.hpp"

#include <algorithm>
#include <cmath>

#include "Text/Ascii.hpp"
#include "Text/Number.hpp"

namespace Merivane::Photometry {

namespace {

constexpr double WholeNumberTolerance = 1e-9;
constexpr double LargestWholeNumber = 1e9;

bool IsSeparator(char c) {
    return c == ',' || Text::IsWhiteSpace(c);
}

} // namespace

void AppendTokens(std::string_view line, std::vector<std::string_view>& tokens) {
    const auto end = line.end();
    auto begin = std::find_if_not(line.begin(), end, IsSeparator);
    while (begin != end) {
        const auto tokenEnd = std::find_if(begin, end, IsSeparator);
        tokens.emplace_back(begin, tokenEnd);
        begin = std::find_if_not(tokenEnd, end, IsSeparator);
    }
}

bool ReadReal(NumberCursor& cursor, std::string_view label, double& value) {
    if (cursor.next >= cursor.tokens.size()) {
        cursor.error = "arquivo termina antes de ";
        cursor.error += label;
        return false;
    }
    const std::string_view token = cursor.tokens[cursor.next++];
    if (!Text::ReadEntireNumber(token, value)) {
        cursor.error = "valor nao numerico \"";
        cursor.error += token;
        cursor.error += "\" em ";
        cursor.error += label;
        return false;
    }
    return true;
}

bool ReadInteger(NumberCursor& cursor, std::string_view label, int& value) {
    double real = 0.0;
    if (!ReadReal(cursor, label, real)) {
        return false;
    }
    const double rounded = std::round(real);
    // Asked so that NaN, for which every comparison is false, is refused.
    const bool whole =
        std::abs(real - rounded) <= WholeNumberTolerance && std::abs(rounded) <= LargestWholeNumber;
    if (!whole) {
        cursor.error = "esperado numero inteiro em ";
        cursor.error += label;
        return false;
    }
    value = static_cast<int>(rounded);
    return true;
}

bool ReadRealList(NumberCursor& cursor, std::string_view label, int count,
                  std::vector<double>& values) {
    values.clear();
    const auto wanted = static_cast<std::size_t>(std::max(count, 0));
    // A count can be told that no file holds; only what is there gets memory.
    values.reserve(std::min(wanted, cursor.tokens.size() - cursor.next));
    for (std::size_t i = 0; i < wanted; ++i) {
        double value = 0.0;
        if (!ReadReal(cursor, label, value)) {
            return false;
        }
        values.push_back(value);
    }
    return true;
}

} // namespace Merivane::Photometry
