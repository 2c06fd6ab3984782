#include "exemplos/Distribution.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace Merivane::Examples {

namespace {

double Radians(double degrees) {
    return degrees * std::numbers::pi / 180.0;
}

double Cosine(double degrees) {
    return std::max(0.0, std::cos(Radians(degrees)));
}

double SineSquared(double degrees) {
    const double sine = std::sin(Radians(degrees));
    return sine * sine;
}

// 1 far below `edge`, 0 far above it, one half on it.
double FadeAbove(double degrees, double edge, double softness) {
    return 1.0 / (1.0 + std::exp((degrees - edge) / softness));
}

// 1 at 0, one half at `half`.
double Beam(double degrees, double half) {
    return std::exp2(-(degrees / half) * (degrees / half));
}

} // namespace

double Downlight(double vertical, double /*horizontal*/) {
    return vertical >= 90.0 ? 0.0 : Cosine(vertical) * FadeAbove(vertical, 50.0, 4.0);
}

double Panel(double vertical, double horizontal) {
    const double edge = 68.0 + 4.0 * (1.0 - SineSquared(horizontal));
    return std::pow(Cosine(vertical), 1.15) * (0.35 + 0.65 * FadeAbove(vertical, edge, 5.0));
}

double LouvredPanel(double vertical, double horizontal) {
    const double edge = 55.0 + 3.0 * (1.0 - SineSquared(horizontal));
    return Cosine(vertical) * (0.004 + 0.996 * FadeAbove(vertical, edge, 3.5));
}

double Batwing(double vertical, double horizontal) {
    const double wing = Beam(vertical - 38.0, 18.0);
    return Cosine(vertical) * (0.8 + 1.5 * wing * SineSquared(horizontal));
}

double Wallwasher(double vertical, double horizontal) {
    constexpr double Lean = 35.0;
    const double cosine =
        std::cos(Radians(vertical)) * std::cos(Radians(Lean)) +
        std::sin(Radians(vertical)) * std::sin(Radians(Lean)) * std::sin(Radians(horizontal));
    const double away = std::acos(std::clamp(cosine, -1.0, 1.0)) * 180.0 / std::numbers::pi;
    return vertical >= 90.0 ? 0.0 : Beam(away, 30.0) * FadeAbove(vertical, 78.0, 3.0);
}

double Spot(double vertical, double horizontal) {
    constexpr double Turn = 25.0;
    const double across = SineSquared(horizontal - Turn);
    const double half = 12.0 + 8.0 * across;
    return vertical >= 90.0 ? 0.0 : Beam(vertical, half) + 0.004 * Cosine(vertical);
}

double Indirect(double vertical, double horizontal) {
    const double fromZenith = 180.0 - vertical;
    const double wing = Beam(fromZenith - 50.0, 22.0);
    return Cosine(fromZenith) * (0.7 + 1.1 * wing * (0.4 + 0.6 * SineSquared(horizontal)));
}

double DirectIndirect(double vertical, double horizontal) {
    const double down = Cosine(vertical) * FadeAbove(vertical, 62.0, 4.0);
    return vertical <= 90.0 ? 1.05 * down : 0.72 * Indirect(vertical, horizontal);
}

double HighBay(double vertical, double /*horizontal*/) {
    const double ring = 1.0 + 0.4 * Beam(vertical - 25.0, 15.0);
    return vertical >= 90.0 ? 0.0 : Cosine(vertical) * ring * FadeAbove(vertical, 58.0, 5.0);
}

double Opal(double vertical, double /*horizontal*/) {
    return 0.05 + FadeAbove(vertical, 110.0, 14.0);
}

} // namespace Merivane::Examples
