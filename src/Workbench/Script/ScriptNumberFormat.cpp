#include "Workbench/Script/ScriptNumberFormat.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "Text/Ascii.hpp"
#include "Text/Number.hpp"

namespace Merivane::Workbench {

namespace {

constexpr int MostDecimals = 15;
constexpr int MostWidth = 1000;

struct UnitRow {
    std::string_view name;
    double factor; ///< of metres, square metres or degrees
};

constexpr double Inch = 0.0254; // m
constexpr double Foot = 0.3048; // m

constexpr UnitRow Units[] = {
    {"m", 1.0},
    {"cm", 100.0},
    {"c", 100.0},
    {"cc", 100.0},
    {"mm", 1000.0},
    {"di", 1.0 / Inch},
    {"fi", 1.0 / Inch},
    {"df", 1.0 / Foot},
    {"ffi", 1.0 / Foot},
    {"fdi", 1.0 / Foot},
    {"sqm", 1.0},
    {"sqcm", 1e4},
    {"sqmm", 1e6},
    {"sqi", 1.0 / (Inch * Inch)},
    {"sqf", 1.0 / (Foot * Foot)},
    {"dd", 1.0},
    {"surv", 1.0},
    {"gr", 400.0 / 360.0},
    {"rad", std::numbers::pi / 180.0},
};

struct NumberFormat {
    bool left = false;
    bool plus = false;
    bool blank = false;
    bool trim = false;
    int width = 0;
    int decimals = 2;
    std::string_view unit;
};

int ReadDigits(std::string_view text, std::size_t& place, int most) {
    int number = 0;
    while (place < text.size() && Text::IsDigit(text[place])) {
        constexpr int base = 10;
        number = std::min(most, number * base + (text[place] - '0'));
        ++place;
    }
    return number;
}

bool ReadFlag(std::string_view format, std::size_t& place, NumberFormat& result) {
    switch (format[place]) {
    case '-':
        result.left = true;
        break;
    case '+':
        result.plus = true;
        break;
    case ' ':
        result.blank = true;
        break;
    case '#':
        result.trim = true;
        break;
    case '~':
    case '^':
        break;
    case '*':
        // Its digit tells how the last digits are rounded in dimensions.
        if (place + 1 < format.size() && Text::IsDigit(format[place + 1])) {
            ++place;
        }
        break;
    default:
        return false;
    }
    ++place;
    return true;
}

bool ReadFormat(std::string_view format, NumberFormat& result) {
    if (format.empty() || format.front() != '%') {
        return false;
    }
    std::size_t place = 1;
    while (place < format.size() && ReadFlag(format, place, result)) {
    }
    result.width = ReadDigits(format, place, MostWidth);
    if (place < format.size() && format[place] == '.') {
        ++place;
        result.decimals = ReadDigits(format, place, MostDecimals);
    }
    result.unit = Text::Trim(format.substr(place));
    return true;
}

std::string WithoutClosingZeros(std::string text) {
    if (text.find('.') != std::string::npos) {
        text.erase(text.find_last_not_of('0') + 1);
        if (text.back() == '.') {
            text.pop_back();
        }
    }
    return text;
}

/// Degrees, minutes and, with two decimals or more, seconds.
std::string DegreesMinutes(double value, int decimals) {
    constexpr double sixty = 60.0;
    const bool seconds = decimals > 1;
    const double unit = seconds ? sixty * sixty : sixty;
    const double whole = std::round(std::abs(value) * unit);
    const double minutes = seconds ? std::floor(whole / sixty) : whole;
    std::string text = value < 0.0 && whole > 0.0 ? "-" : "";
    text += Text::FormatFixed(std::floor(minutes / sixty), 0) + "°";
    text += Text::FormatFixed(std::fmod(minutes, sixty), 0) + "'";
    return seconds ? text + Text::FormatFixed(std::fmod(whole, sixty), 0) + "\"" : text;
}

std::string Exponent(double value, int decimals) {
    if (value == 0.0) {
        return Text::FormatFixed(0.0, decimals) + "e+00";
    }
    constexpr double base = 10.0;
    double power = std::floor(std::log10(std::abs(value)));
    std::string digits = Text::FormatFixed(value / std::pow(base, power), decimals);
    double shown = 0.0;
    if (Text::ReadEntireNumber(digits, shown) && std::abs(shown) >= base) {
        power += 1.0;
        digits = Text::FormatFixed(value / std::pow(base, power), decimals);
    }
    std::string exponent = Text::FormatFixed(std::abs(power), 0);
    exponent.insert(0, exponent.size() < 2 ? 1 : 0, '0');
    return digits + (power < 0.0 ? "e-" : "e+") + exponent;
}

bool FormatUnit(const NumberFormat& format, double value, std::string& text) {
    if (format.unit == "dms") {
        text = DegreesMinutes(value, format.decimals);
        return true;
    }
    if (format.unit == "e") {
        text = Exponent(value, format.decimals);
        return true;
    }
    for (const UnitRow& row : Units) {
        if (row.name == format.unit) {
            text = Text::FormatFixed(value * row.factor, format.decimals);
            text = format.trim ? WithoutClosingZeros(std::move(text)) : text;
            return true;
        }
    }
    return false;
}

} // namespace

std::string FormatWidth(double value, int width, int decimals) {
    std::string text = Text::FormatFixed(value, std::clamp(decimals, 0, MostDecimals));
    const auto wide = static_cast<std::size_t>(std::clamp(width, 0, MostWidth));
    text.insert(0, wide > text.size() ? wide - text.size() : 0, ' ');
    return text;
}

std::string FormatByUnit(std::string_view format, double value) {
    NumberFormat parts;
    std::string text;
    if (!ReadFormat(format, parts) || !FormatUnit(parts, value, text)) {
        return Text::FormatShortest(value);
    }
    if (value >= 0.0 && (parts.plus || parts.blank)) {
        text.insert(0, 1, parts.plus ? '+' : ' ');
    }
    const auto wide = static_cast<std::size_t>(parts.width);
    text.insert(parts.left ? text.size() : 0, wide > text.size() ? wide - text.size() : 0, ' ');
    return text;
}

} // namespace Merivane::Workbench
