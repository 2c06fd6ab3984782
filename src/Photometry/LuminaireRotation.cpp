#include "Photometry/LuminaireRotation.hpp"

#include <algorithm>
#include <cmath>

#include "Photometry/PhotometricQuantities.hpp"

namespace Merivane::Photometry {

namespace {

RotationMatrix AboutZ(double degrees) {
    const double c = std::cos(degrees * RadiansInADegree);
    const double s = std::sin(degrees * RadiansInADegree);
    return {c, -s, 0, s, c, 0, 0, 0, 1};
}

RotationMatrix AboutY(double degrees) {
    const double c = std::cos(degrees * RadiansInADegree);
    const double s = std::sin(degrees * RadiansInADegree);
    return {c, 0, s, 0, 1, 0, -s, 0, c};
}

RotationMatrix Product(const RotationMatrix& a, const RotationMatrix& b) {
    RotationMatrix product{};
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            for (std::size_t k = 0; k < 3; ++k) {
                product[row * 3 + column] += a[row * 3 + k] * b[k * 3 + column];
            }
        }
    }
    return product;
}

} // namespace

RotationMatrix LuminaireRotation(const LuminaireSettings& settings) {
    // The beam leans away from the vertical in the plane that `tiltDirection` turns to; turning
    // back before keeps C0 where `c0Rotation` put it.
    return Product(
        AboutZ(settings.tiltDirection),
        Product(AboutY(-settings.tiltAngle), AboutZ(settings.c0Rotation - settings.tiltDirection)));
}

void DirectionToIesAngles(const RotationMatrix& rotation, const std::array<double, 3>& direction,
                          double& vertical, double& horizontal) {
    std::array<double, 3> d{};
    for (std::size_t column = 0; column < 3; ++column) {
        for (std::size_t k = 0; k < 3; ++k) {
            d[column] += rotation[k * 3 + column] * direction[k]; // the transpose is the inverse
        }
    }
    vertical = 0.0;
    horizontal = 0.0;
    const double length = std::hypot(d[0], d[1], d[2]);
    if (!(length > 0.0)) {
        return;
    }
    vertical = std::acos(std::clamp(-d[2] / length, -1.0, 1.0)) / RadiansInADegree;
    horizontal = std::atan2(d[1], d[0]) / RadiansInADegree;
    if (horizontal < 0.0) {
        horizontal += 360.0;
    }
}

} // namespace Merivane::Photometry
