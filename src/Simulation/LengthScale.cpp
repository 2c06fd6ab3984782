#include "Simulation/LengthScale.hpp"

#include <cmath>

namespace Merivane::Simulation {

double AppliedLengthScale(const SceneLuminaire& luminaire) {
    return std::abs(luminaire.lengthScale - 1.0) < 1e-12 ? 1.0 : luminaire.lengthScale;
}

void ScaleLongerSide(double& width, double& length, double scale) {
    if (width >= 0.0 && length >= 0.0) {
        double& longerSide = width > length ? width : length;
        longerSide *= scale;
    }
}

} // namespace Merivane::Simulation
