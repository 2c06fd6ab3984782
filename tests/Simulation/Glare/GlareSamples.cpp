#include "Simulation/Glare/GlareSamples.hpp"

namespace Merivane::Tests {

Simulation::SceneLuminaire UniformLuminaire(double candela, double width, double length,
                                            double height) {
    Simulation::SceneLuminaire luminaire;
    luminaire.photometry.verticalAngles = {0, 180};
    luminaire.photometry.horizontalAngles = {0};
    luminaire.photometry.candela = {{candela, candela}};
    luminaire.photometry.width = width;
    luminaire.photometry.length = length;
    luminaire.photometry.height = height;
    return luminaire;
}

Simulation::SceneLuminaire At(Simulation::SceneLuminaire luminaire, double x, double y, double z) {
    luminaire.x = x;
    luminaire.y = y;
    luminaire.z = z;
    return luminaire;
}

} // namespace Merivane::Tests
