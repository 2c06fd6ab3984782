#include "Simulation/LevelList.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "Simulation/PrintedValue.hpp"
#include "Text/Number.hpp"

namespace Merivane::Simulation {

namespace {

bool ReadLevel(std::string_view token, bool decimalComma, double& level) {
    std::string number(token);
    if (decimalComma) {
        std::replace(number.begin(), number.end(), ',', '.');
    }
    return Text::ReadEntireNumber(number, level) && level > 0.0 && std::isfinite(level);
}

bool IsWhole(double level) {
    return level == std::floor(level);
}

std::string WithDecimalComma(std::string number) {
    std::replace(number.begin(), number.end(), '.', ',');
    return number;
}

} // namespace

const LevelList& DefaultLevels() {
    static const LevelList Levels{50, 100, 150, 200, 300, 500, 750, 1000};
    return Levels;
}

bool ParseLevels(std::string_view text, LevelList& levels, std::string& error) {
    levels.clear();
    const bool decimalComma = text.find(';') != std::string_view::npos;
    const std::string_view separators = decimalComma ? "; \t" : "; \t,";

    std::size_t start = 0;
    while ((start = text.find_first_not_of(separators, start)) != std::string_view::npos) {
        const std::size_t end = std::min(text.find_first_of(separators, start), text.size());
        const std::string_view token = text.substr(start, end - start);
        double level = 0.0;
        if (!ReadLevel(token, decimalComma, level)) {
            error = '"';
            error += token;
            error += "\" nao e um nivel valido (use numeros positivos, em lux)";
            return false;
        }
        levels.push_back(level);
        start = end;
    }
    std::sort(levels.begin(), levels.end());
    levels.erase(std::unique(levels.begin(), levels.end()), levels.end());
    if (levels.empty()) {
        error = "nenhum nivel informado";
        return false;
    }
    return true;
}

std::string FormatLevels(const LevelList& levels) {
    std::string text;
    for (const double level : levels) {
        text += text.empty() ? "" : "; ";
        text += IsWhole(level) ? Text::FormatFixed(level, 0)
                               : WithDecimalComma(Text::FormatShortest(level));
    }
    // Without any ";" the comma of a lone level would be read as a separator.
    if (levels.size() == 1 && !IsWhole(levels.front())) {
        text += ";";
    }
    return text;
}

std::string FormatLevelLabel(double level) {
    return FormatDecimal(level, IsWhole(level) ? 0 : 1);
}

} // namespace Merivane::Simulation
