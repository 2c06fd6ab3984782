#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "Simulation/LevelList.hpp"

namespace Merivane::Simulation {

/// A colour as the screen shows it (sRGB), each part [0..1].
struct RgbColor {
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;

    bool operator==(const RgbColor&) const = default;
};

/// Number of palettes: 0 spectrum, 1 heat, 2 greys. Any other number is taken for the spectrum.
inline constexpr std::uint32_t ColorScaleCount = 3;

/// Name of a palette as the user sees it.
std::string ColorScaleName(std::uint32_t scale);

/// Colour of band `index` of `count` bands: the palette's stops, mixed linearly, the first colour
/// for band 0 and the last for the top band. A single band has the first colour.
RgbColor BandColor(std::uint32_t scale, std::size_t index, std::size_t count);

/// Title of the legend.
inline constexpr const char* LegendTitle = "Iluminância (lx)";

/// Text of a band's row in the legend: "< 50", "50 a 100", "≥ 1000". `band` counts from 0, up to
/// the number of levels; without levels, or beyond them, the text is empty.
std::string BandText(const LevelList& levels, std::size_t band);

/// The level as it stands on its curve: "150 lx".
std::string CurveLabelText(double level);

} // namespace Merivane::Simulation
