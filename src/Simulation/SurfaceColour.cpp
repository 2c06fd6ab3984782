#include "Simulation/SurfaceColour.hpp"

#include <algorithm>
#include <cmath>

namespace Merivane::Simulation {

namespace {

constexpr double DarkestReflectance = 0.02;
constexpr double BrightestReflectance = 0.9;
constexpr double NoLight = 0.000001; // up to here a colour has no hue

} // namespace

double Linearise(double channel) {
    // The transfer curve of sRGB, IEC 61966-2-1.
    const double value = std::clamp(channel, 0.0, 1.0);
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double Luminance(double red, double green, double blue) {
    return 0.2126 * red + 0.7152 * green + 0.0722 * blue;
}

double EstimateReflectance(double red, double green, double blue) {
    return std::clamp(Luminance(Linearise(red), Linearise(green), Linearise(blue)),
                      DarkestReflectance, BrightestReflectance);
}

Channels TintedValues(const SurfaceColour& colour, double target, double limit) {
    const Channels linear = {Linearise(colour.red), Linearise(colour.green),
                             Linearise(colour.blue)};
    const double luminance = Luminance(linear[0], linear[1], linear[2]);
    if (!(luminance > NoLight)) {
        return {target, target, target};
    }
    Channels tinted;
    for (std::size_t i = 0; i < tinted.size(); ++i) {
        tinted[i] = std::min(limit, linear[i] * target / luminance);
    }
    return tinted;
}

} // namespace Merivane::Simulation
