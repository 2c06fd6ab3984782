#include "Simulation/ReflectanceText.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "Text/Number.hpp"

namespace Merivane::Simulation {

namespace {

// In the order of the versions, each of which added a number to the line.
constexpr std::array<std::string_view, 4> Headers = {
    "MerivaneReflectances 1", "MerivaneReflectances 2", "MerivaneReflectances 3",
    "MerivaneReflectances 4"};

constexpr double OpaqueMark = -1.0; // in the place of a transmittance

std::string_view TakeLine(std::string_view& rest) {
    const std::size_t end = std::min(rest.find('\n'), rest.size());
    const std::string_view line = rest.substr(0, end);
    rest.remove_prefix(std::min(end + 1, rest.size()));
    return line;
}

// How many numbers follow the key in a text with this first line; 0 for a text that is not ours.
std::size_t NumberCount(std::string_view firstLine) {
    const auto found = std::find(Headers.begin(), Headers.end(), firstLine);
    return found == Headers.end() ? 0 : static_cast<std::size_t>(found - Headers.begin()) + 1;
}

// Numbers are split off the line's right end, since a key of an older text may hold a tab.
bool TakeLastNumber(std::string_view& line, double& value) {
    const std::size_t tab = line.rfind('\t');
    if (tab == std::string_view::npos || !Text::ReadEntireNumber(line.substr(tab + 1), value) ||
        !std::isfinite(value)) {
        return false;
    }
    line = line.substr(0, tab);
    return true;
}

void ReadEntry(std::string_view line, std::size_t count, ReflectanceStore& store) {
    std::array<double, 4> numbers = {0.5, OpaqueMark, 0.08, 0.08};
    for (std::size_t i = count; i-- > 0;) {
        if (!TakeLastNumber(line, numbers[i])) {
            return;
        }
    }
    if (line.empty()) {
        return;
    }
    if (count == 3) {
        numbers[3] = numbers[2]; // one reflectance for both sides
    }
    const bool glass = numbers[1] >= 0.0;
    store[std::string(line)] = {numbers[0], glass, glass ? numbers[1] : 0.0, numbers[2],
                                numbers[3]};
}

// A glass with a negative transmittance would come back opaque.
bool CanBeStored(const std::string& key, const StoredReflectance& stored) {
    return !key.empty() && key.find_first_of("\t\r\n") == std::string::npos &&
           std::isfinite(stored.reflectance) && std::isfinite(stored.reflectanceInside) &&
           std::isfinite(stored.reflectanceOutside) &&
           (!stored.glass || (std::isfinite(stored.transmittance) && stored.transmittance >= 0.0));
}

} // namespace

bool ParseReflectances(std::string_view text, ReflectanceStore& store) {
    store.clear();
    const std::size_t count = NumberCount(TakeLine(text));
    if (count == 0) {
        return false;
    }
    while (!text.empty()) {
        ReadEntry(TakeLine(text), count, store);
    }
    return true;
}

std::string FormatReflectances(const ReflectanceStore& store) {
    std::string text = std::string(Headers.back()) + "\n";
    for (const auto& [key, stored] : store) {
        if (!CanBeStored(key, stored)) {
            continue;
        }
        text += key;
        for (const double number :
             {stored.reflectance, stored.glass ? stored.transmittance : OpaqueMark,
              stored.reflectanceInside, stored.reflectanceOutside}) {
            text += '\t';
            Text::AppendShortest(text, number);
        }
        text += '\n';
    }
    return text;
}

} // namespace Merivane::Simulation
