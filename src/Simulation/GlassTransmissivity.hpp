#pragma once

namespace Merivane::Simulation {

/// The transmissivity that Radiance's `glass` takes for a pane of luminous transmittance
/// `transmittance` [0..1] at normal incidence, reflections inside the pane included (index 1.52).
double GlassTransmissivity(double transmittance);

} // namespace Merivane::Simulation
