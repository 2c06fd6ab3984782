#include "Simulation/ColorScale.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace Merivane::Simulation {

namespace {

struct Palette {
    const char* name;
    std::vector<RgbColor> stops;
};

const Palette& FindPalette(std::uint32_t scale) {
    static const std::array<Palette, ColorScaleCount> Palettes = {{
        {"Espectro (azul a vermelho)",
         {{0.12, 0.10, 0.50},
          {0.15, 0.40, 0.95},
          {0.10, 0.80, 0.90},
          {0.30, 0.78, 0.30},
          {0.98, 0.90, 0.20},
          {0.98, 0.55, 0.10},
          {0.85, 0.10, 0.10}}},
        {"Calor (violeta a amarelo)",
         {{0.20, 0.05, 0.35},
          {0.55, 0.05, 0.45},
          {0.85, 0.20, 0.20},
          {0.98, 0.55, 0.10},
          {1.00, 0.85, 0.30},
          {1.00, 0.98, 0.80}}},
        {"Tons de cinza", {{0.30, 0.30, 0.30}, {0.95, 0.95, 0.95}}},
    }};
    return Palettes[scale < ColorScaleCount ? scale : 0];
}

double Mix(double from, double to, double weight) {
    return from + (to - from) * weight;
}

} // namespace

std::string ColorScaleName(std::uint32_t scale) {
    return FindPalette(scale).name;
}

RgbColor BandColor(std::uint32_t scale, std::size_t index, std::size_t count) {
    const std::vector<RgbColor>& stops = FindPalette(scale).stops;
    const double t =
        count < 2 ? 0.0
                  : std::min(static_cast<double>(index) / static_cast<double>(count - 1), 1.0);
    const double x = t * static_cast<double>(stops.size() - 1);
    const std::size_t k = std::min(static_cast<std::size_t>(std::floor(x)), stops.size() - 2);
    const double weight = x - static_cast<double>(k);
    const RgbColor& from = stops[k];
    const RgbColor& to = stops[k + 1];
    return {Mix(from.red, to.red, weight), Mix(from.green, to.green, weight),
            Mix(from.blue, to.blue, weight)};
}

std::string BandText(const LevelList& levels, std::size_t band) {
    if (levels.empty() || band > levels.size()) {
        return {};
    }
    if (band == 0) {
        return "< " + FormatLevelLabel(levels.front());
    }
    if (band == levels.size()) {
        return "≥ " + FormatLevelLabel(levels.back());
    }
    return FormatLevelLabel(levels[band - 1]) + " a " + FormatLevelLabel(levels[band]);
}

std::string CurveLabelText(double level) {
    return FormatLevelLabel(level) + " lx";
}

} // namespace Merivane::Simulation
