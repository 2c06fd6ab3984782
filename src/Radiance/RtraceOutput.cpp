#include "Radiance/RtraceOutput.hpp"

#include <cmath>
#include <cstddef>

#include "Radiance/RtraceShares.hpp"
#include "Text/Number.hpp"

namespace Merivane::Radiance {

namespace {

// Reads a number at the front of `line` and takes it off. "nan" and "inf" are no illuminance.
bool TakeNumber(std::string_view& line, double& value) {
    const std::size_t length = Text::ReadNumber(line, value);
    line.remove_prefix(length);
    return length > 0 && std::isfinite(value);
}

} // namespace

bool JoinOutputs(const std::vector<std::string>& texts, std::uint64_t expected,
                 std::string& joined) {
    joined.clear();
    std::uint64_t count = 0;
    for (const std::string& text : texts) {
        for (const std::string_view line : NonEmptyLines(text)) {
            joined += line;
            joined += '\n';
            ++count;
        }
    }
    return count == expected;
}

bool ParseIlluminance(std::string_view text, std::uint64_t expected, std::vector<double>& values) {
    values.clear();
    for (std::string_view line : NonEmptyLines(text)) {
        double red = 0.0;
        double green = 0.0;
        double blue = 0.0;
        if (!TakeNumber(line, red)) {
            continue;
        }
        if (!TakeNumber(line, green) || !TakeNumber(line, blue)) {
            return false;
        }
        values.push_back(IlluminanceFromRgb(red, green, blue));
    }
    return values.size() == expected;
}

double IlluminanceFromRgb(double red, double green, double blue) {
    return 179.0 * (0.265 * red + 0.67 * green + 0.065 * blue);
}

} // namespace Merivane::Radiance
