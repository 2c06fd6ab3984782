#pragma once

#include <array>

#include "Photometry/LuminaireContract.hpp"

namespace Merivane::Photometry {

/// A rotation, 3 x 3, row after row; a point is multiplied from the right.
using RotationMatrix = std::array<double, 9>;

/// Turns the photometric frame (light along (0, 0, -1), plane C0 along +X) into the luminaire's
/// own, by the settings' aiming: first C0 about the vertical, then the beam away from the vertical
/// towards the tilt's direction.
RotationMatrix LuminaireRotation(const LuminaireSettings& settings);

/// Photometric angles of a direction given in the frame that `rotation` leads to: `vertical`
/// [deg, 0..180] from the axis of the light, `horizontal` [deg, 0..360] from the plane C0. The
/// direction may have any length; a zero vector gives 0 and 0.
void DirectionToIesAngles(const RotationMatrix& rotation, const std::array<double, 3>& direction,
                          double& vertical, double& horizontal);

} // namespace Merivane::Photometry
