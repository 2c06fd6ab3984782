#pragma once

#include <array>

#include "Photometry/IesFile.hpp"

namespace Merivane::Simulation {

/// The luminous opening that an IES file declares [m], in the luminaire's own frame: `length`
/// lies along x (C0), `width` along y (C90), `height` upright.
struct LuminousOpening {
    double width = 0.0; ///< of a round opening: its diameter
    double length = 0.0;
    double height = 0.0;
    bool round = false; ///< LM-63 tells it by a negative width or length
};

/// The opening of a file in metres. A round one takes the absolute width as its diameter, or the
/// absolute length where the width is 0. `lengthScale` multiplies the longer side of an opening
/// that is not round (pieces of a linear run); the length on a tie.
LuminousOpening DeclaredOpening(const Photometry::IesFile& file, double lengthScale = 1.0);

/// Luminous area [m2] that shows in `direction`, a unit vector in the luminaire's own frame from
/// the luminaire outwards, z upwards: the face that looks down and the sides, never the back.
double ApparentArea(const LuminousOpening& opening, const std::array<double, 3>& direction);

/// The area that shows from straight below [m2]; an opening without it has no luminance.
double DownwardArea(const LuminousOpening& opening);

} // namespace Merivane::Simulation
