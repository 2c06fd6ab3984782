#include "Simulation/Glare/UpwardFlux.hpp"

#include <cmath>

#include "Photometry/CandelaLookup.hpp"
#include "Photometry/PhotometricQuantities.hpp"

namespace Merivane::Simulation {

namespace {

constexpr int Bands = 180;
constexpr int Planes = 360;

// Sum of the intensities of one band, a degree of the vertical angle, all around.
double BandSum(const Photometry::IesFile& photometry, double gamma) {
    double sum = 0.0;
    for (int c = 0; c < Planes; ++c) {
        sum += Photometry::CandelaAt(photometry, gamma, c);
    }
    return sum;
}

} // namespace

double UpwardFluxFraction(const Photometry::IesFile& photometry) {
    double upward = 0.0;
    double whole = 0.0;
    for (int band = 0; band < Bands; ++band) {
        const double gamma = band + 0.5;
        const double flux =
            BandSum(photometry, gamma) * std::sin(gamma * Photometry::RadiansInADegree);
        whole += flux;
        upward += gamma > 90.0 ? flux : 0.0;
    }
    return whole > 0.0 ? upward / whole : 0.0;
}

} // namespace Merivane::Simulation
