#include "Program/ArgumentValues.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "Text/Number.hpp"

namespace Merivane::Program {

namespace {

/// Reads a positive number with a decimal point or comma.
bool ReadPositive(std::string text, double& value) {
    std::replace(text.begin(), text.end(), ',', '.');
    double read = 0.0;
    if (!Text::ReadEntireNumber(text, read) || !std::isfinite(read) || read <= 0.0) {
        return false;
    }
    value = read;
    return true;
}

std::string ShortDecimal(double value) {
    std::string text = Text::FormatShortest(value);
    std::replace(text.begin(), text.end(), '.', ',');
    return text;
}

} // namespace

bool JudgeScale(const std::string& text, double& scale, std::string& error) {
    double read = 0.0;
    const std::string number = text.starts_with("1:") ? text.substr(2) : text;
    if (text.empty() || (ReadPositive(number, read) && read >= 5.0 && read <= 5000.0)) {
        scale = read;
        return true;
    }
    error = "--escala: \"" + text + "\" não é uma escala de 5 (1:5) a 5000 (1:5000)";
    return false;
}

bool JudgePositive(const char* option, const std::string& text, double& value, std::string& error) {
    if (text.empty() || ReadPositive(text, value)) {
        return true;
    }
    error = std::string(option) + ": \"" + text + "\" não é um número maior que zero";
    return false;
}

bool JudgeRange(const char* option, const std::string& text, double lowest, double highest,
                double& value, std::string& error) {
    double read = 0.0;
    if (text.empty()) {
        return true;
    }
    if (ReadPositive(text, read) && read >= lowest && read <= highest) {
        value = read;
        return true;
    }
    error = std::string(option) + ": \"" + text + "\" não é um número de " + ShortDecimal(lowest) +
            " a " + ShortDecimal(highest);
    return false;
}

bool JudgeFloor(const std::string& text, std::optional<int>& floor, std::string& error) {
    constexpr double Farthest = 1000.0; // as project files have them
    if (text.empty()) {
        return true;
    }
    double read = 0.0;
    if (Text::ReadEntireNumber(text, read) && std::abs(read) <= Farthest &&
        std::round(read) == read) {
        floor = static_cast<int>(read);
        return true;
    }
    error = "--pavimento: \"" + text + "\" não é um índice de pavimento";
    return false;
}

bool JudgePalette(const std::string& text, std::uint32_t& colorScale, std::string& error) {
    constexpr std::array<std::string_view, 3> names = {"espectro", "calor", "cinza"};
    const auto found = std::find(names.begin(), names.end(), text);
    if (!text.empty() && found == names.end()) {
        error = "--paleta: \"" + text + "\" não existe (use espectro, calor ou cinza)";
        return false;
    }
    colorScale = text.empty() ? 0U : static_cast<std::uint32_t>(found - names.begin());
    return true;
}

} // namespace Merivane::Program
