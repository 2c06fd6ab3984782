#pragma once

#include "Simulation/Glare/GlareRecords.hpp"
#include "Simulation/Scene.hpp"

namespace Merivane::Tests {

/// Like no mirror image of itself: planes all round, strongest towards C40, an eighth of its light
/// upwards, an opening of 0.3 x 0.8 x 0.06 m.
Simulation::SceneLuminaire SkewLuminaire();

/// The same in every plane, none above the horizontal, an opening of 0.6 x 0.6 m.
Simulation::SceneLuminaire EvenLuminaire();

/// `SkewLuminaire` turned about its axis by so many quarters, by its table and opening alone.
Simulation::SceneLuminaire TurnedSkewLuminaire(int quarters);

/// A room of `x` by `y` [m] with H [m], reflectances 0.7 / 0.5 / 0.2.
Simulation::UgrRoom RoomOf(double x, double y, double height, bool crosswise = false);

} // namespace Merivane::Tests
