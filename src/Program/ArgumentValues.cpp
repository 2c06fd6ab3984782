#include "Program/ArgumentValues.hpp"

#include <algorithm>
#include <cmath>

#include "Text/Number.hpp"

namespace Merivane::Program {

namespace {

/// Reads a number with a decimal point or comma.
bool ReadNumber(std::string text, double& value) {
    std::replace(text.begin(), text.end(), ',', '.');
    return Text::ReadEntireNumber(text, value) && std::isfinite(value);
}

bool ReadPositive(const std::string& text, double& value) {
    double read = 0.0;
    if (!ReadNumber(text, read) || read <= 0.0) {
        return false;
    }
    value = read;
    return true;
}

/// "a, b ou c".
std::string ListWords(const std::vector<std::string_view>& words) {
    std::string list;
    for (std::size_t i = 0; i < words.size(); ++i) {
        list += i == 0 ? "" : i + 1 < words.size() ? ", " : " ou ";
        list += words[i];
    }
    return list;
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

bool JudgeNumber(const char* option, const std::string& text, double lowest, double highest,
                 std::optional<double>& value, std::string& error) {
    double read = 0.0;
    if (text.empty()) {
        return true;
    }
    if (ReadNumber(text, read) && read >= lowest && read <= highest) {
        value = read;
        return true;
    }
    error = std::string(option) + ": \"" + text + "\" não é um número de " + ShortDecimal(lowest) +
            " a " + ShortDecimal(highest);
    return false;
}

bool JudgeWord(const char* option, const std::string& text,
               const std::vector<std::string_view>& words, std::optional<std::uint32_t>& place,
               std::string& error) {
    if (text.empty()) {
        return true;
    }
    const auto found = std::find(words.begin(), words.end(), text);
    if (found == words.end()) {
        error =
            std::string(option) + ": \"" + text + "\" não existe (use " + ListWords(words) + ")";
        return false;
    }
    place = static_cast<std::uint32_t>(found - words.begin());
    return true;
}

bool JudgeStandard(const std::string& text, std::optional<Simulation::ReferenceStandard>& standard,
                   std::string& error) {
    std::optional<std::uint32_t> place;
    if (!JudgeWord("--norma", text, {"nbr", "iso"}, place, error)) {
        return false;
    }
    if (place) {
        standard = *place == 0 ? Simulation::ReferenceStandard::Brazilian
                               : Simulation::ReferenceStandard::International;
    }
    return true;
}

bool JudgePalette(const std::string& text, std::uint32_t& colorScale, std::string& error) {
    std::optional<std::uint32_t> place;
    if (!JudgeWord("--paleta", text, {"espectro", "calor", "cinza"}, place, error)) {
        return false;
    }
    colorScale = place.value_or(0);
    return true;
}

} // namespace Merivane::Program
