#include "Simulation/PlacedLuminaire.hpp"

#include <array>
#include <cmath>
#include <cstdint>

#include "Photometry/CandelaLookup.hpp"
#include "Simulation/LengthScale.hpp"

namespace Merivane::Simulation {

namespace {

using Photometry::RotationMatrix;

constexpr RotationMatrix NoRotation = {1, 0, 0, 0, 1, 0, 0, 0, 1};

// The object's own turn: mirrored in x, then rotated about the vertical.
void MirrorAndTurn(const SceneLuminaire& luminaire, double& x, double& y) {
    const double c = std::cos(luminaire.rotation);
    const double s = std::sin(luminaire.rotation);
    const double own = luminaire.mirrored ? -x : x;
    x = c * own - s * y;
    y = s * own + c * y;
}

// The light source at the place of the object itself, the first of its array.
PlacedLuminaire FirstCopy(const SceneLuminaire& luminaire, std::size_t index) {
    PlacedLuminaire placed;
    placed.luminaire = &luminaire;
    placed.index = index;
    placed.center = {luminaire.contract.centerX, luminaire.contract.centerY,
                     luminaire.contract.centerZ + luminaire.z};
    MirrorAndTurn(luminaire, placed.center.x, placed.center.y);
    placed.center.x += luminaire.x;
    placed.center.y += luminaire.y;
    placed.frame = Photometry::LuminaireRotation(luminaire.contract);
    for (std::size_t column = 0; column < 3; ++column) {
        MirrorAndTurn(luminaire, placed.frame[column], placed.frame[3 + column]);
    }
    const double scale = AppliedLengthScale(luminaire);
    placed.opening = DeclaredOpening(luminaire.photometry, scale);
    placed.outputFactor = luminaire.dimming * scale;
    return placed;
}

void AppendCopies(const SceneLuminaire& luminaire, std::size_t index, const PlaceFilter& keep,
                  std::vector<PlacedLuminaire>& placed) {
    PlacedLuminaire copy = FirstCopy(luminaire, index);
    const Point3D first = copy.center;
    for (std::int32_t i = 0; i < luminaire.arrayCountX || i == 0; ++i) {
        copy.center.x = first.x + i * luminaire.arrayStepX;
        for (std::int32_t j = 0; j < luminaire.arrayCountY || j == 0; ++j) {
            copy.center.y = first.y + j * luminaire.arrayStepY;
            if (!keep || keep(copy.center)) {
                placed.push_back(copy);
            }
        }
    }
}

} // namespace

std::vector<PlacedLuminaire> PlaceLuminaires(const std::vector<SceneLuminaire>& luminaires,
                                             const PlaceFilter& keep) {
    std::vector<PlacedLuminaire> placed;
    for (std::size_t index = 0; index < luminaires.size(); ++index) {
        AppendCopies(luminaires[index], index, keep, placed);
    }
    return placed;
}

double LuminousIntensityTowards(const PlacedLuminaire& luminaire, const Point3D& point,
                                double& apparentArea) {
    apparentArea = 0.0;
    const std::array<double, 3> towards = {
        point.x - luminaire.center.x, point.y - luminaire.center.y, point.z - luminaire.center.z};
    const double distance = std::hypot(towards[0], towards[1], towards[2]);
    if (!(distance > 0.0)) {
        return 0.0;
    }
    std::array<double, 3> own{};
    for (std::size_t column = 0; column < 3; ++column) {
        for (std::size_t row = 0; row < 3; ++row) { // the transpose is the inverse
            own[column] += luminaire.frame[row * 3 + column] * towards[row] / distance;
        }
    }
    apparentArea = ApparentArea(luminaire.opening, own);
    double vertical = 0.0;
    double horizontal = 0.0;
    Photometry::DirectionToIesAngles(NoRotation, own, vertical, horizontal);
    return Photometry::CandelaAt(luminaire.luminaire->photometry, vertical, horizontal) *
           luminaire.outputFactor;
}

} // namespace Merivane::Simulation
