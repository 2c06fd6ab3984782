#include "Workbench/Script/ShapeInput.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace Merivane::Workbench {

std::string ReadNumbers(const std::vector<ScriptValue>& arguments, std::vector<double>& numbers) {
    numbers.clear();
    numbers.reserve(arguments.size());
    for (const ScriptValue& value : arguments) {
        if (value.isText) {
            return "o argumento " + std::to_string(numbers.size() + 1) + " deve ser um número";
        }
        if (!std::isfinite(value.number)) {
            return "o argumento " + std::to_string(numbers.size() + 1) + " não é um número finito";
        }
        numbers.push_back(value.number);
    }
    return {};
}

double TakeNumber(ShapeInput& input) {
    return input.at < input.numbers.size() ? input.numbers[input.at++] : 0.0;
}

std::int32_t WholeArgument(double number) {
    constexpr double most = 1e9;
    return static_cast<std::int32_t>(std::clamp(std::round(number), -most, most));
}

std::int32_t TakeBits(ShapeInput& input) {
    return WholeArgument(TakeNumber(input));
}

std::int32_t SurfaceNumber(const ShapeInput& input, double number) {
    const std::int32_t whole = WholeArgument(number);
    if (whole == 0) {
        return -1;
    }
    if (whole > 0 && whole < Host::FirstScriptSurface) {
        return whole;
    }
    const std::int32_t place = whole < 0 ? -whole - 1 : whole - Host::FirstScriptSurface;
    return static_cast<std::size_t>(place) < input.ownSurfaces ? Host::FirstScriptSurface + place
                                                               : -1;
}

std::int32_t TakeSurface(ShapeInput& input) {
    return SurfaceNumber(input, TakeNumber(input));
}

std::string TakeCount(ShapeInput& input, std::size_t least, std::size_t& count) {
    const double number = TakeNumber(input);
    if (!(number >= static_cast<double>(least)) || number != std::floor(number)) {
        return "o número de pontos deve ser inteiro e pelo menos " + std::to_string(least);
    }
    // More than there are arguments is refused by `CheckRest`; here it must only fit.
    constexpr double most = 1e9;
    count = static_cast<std::size_t>(std::min(number, most));
    return {};
}

std::string CheckRest(const ShapeInput& input, std::size_t rest) {
    if (input.numbers.size() - input.at == rest) {
        return {};
    }
    return "pede " + std::to_string(input.at + rest) + " argumentos e tem " +
           std::to_string(input.numbers.size());
}

std::size_t ChordsOf(const ShapeInput& input, double radius) {
    return static_cast<std::size_t>(CircleSegments(input.curves, radius));
}

double AngleAt(std::size_t i, std::size_t count) {
    return 2.0 * std::numbers::pi * static_cast<double>(i) / static_cast<double>(count);
}

Host::Coordinate3D TakePlace(ShapeInput& input) {
    const double x = TakeNumber(input);
    const double y = TakeNumber(input);
    const double z = TakeNumber(input);
    return {x, y, z};
}

} // namespace Merivane::Workbench
