#include "Simulation/GlassTransmissivity.hpp"

#include <algorithm>
#include <cmath>

namespace Merivane::Simulation {

double GlassTransmissivity(double transmittance) {
    // The inverse, as the Radiance manual gives it, of T = tn (1 - r)^2 / (1 - r^2 tn^2).
    const double t = std::clamp(transmittance, 0.000001, 1.0);
    const double transmissivity =
        (std::sqrt(0.8402528435 + 0.0072522239 * t * t) - 0.9166530661) / 0.0036261119 / t;
    // The ten digits of the constants leave -1.4e-8 / t, which outweighs the value near darkness.
    return std::max(transmissivity, 0.0);
}

} // namespace Merivane::Simulation
