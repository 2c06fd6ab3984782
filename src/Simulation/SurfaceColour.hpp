#pragma once

#include <array>

namespace Merivane::Simulation {

/// A surface as the model shows it: the colour that was chosen for pictures, not a measured one.
struct SurfaceColour {
    double red = 0.8; ///< sRGB [0..1]
    double green = 0.8;
    double blue = 0.8;
    double diffuse = 1.0;      ///< diffuse share [0..1]
    double transparency = 0.0; ///< [0..1]

    bool operator==(const SurfaceColour&) const = default;
};

/// Red, green, blue.
using Channels = std::array<double, 3>;

/// Light of an sRGB channel: both [0..1], clamped.
double Linearise(double channel);

/// Luminance of linear channels of sRGB's primaries.
double Luminance(double red, double green, double blue);

/// Diffuse reflectance guessed from a colour in sRGB [0.02..0.9].
double EstimateReflectance(double red, double green, double blue);

/// Linear channels of the colour's hue with the luminance `target`, none above `limit`: where one
/// is cut, the luminance falls short. A colour without light gives `target` three times.
Channels TintedValues(const SurfaceColour& colour, double target, double limit);

} // namespace Merivane::Simulation
