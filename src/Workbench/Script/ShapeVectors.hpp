#pragma once

#include <cmath>

#include "Host/Types.hpp"

/// Arithmetic of places and directions in space, for the shapes of part scripts.
namespace Merivane::Workbench {

inline Host::Coordinate3D Sum(const Host::Coordinate3D& a, const Host::Coordinate3D& b) {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}

inline Host::Coordinate3D Difference(const Host::Coordinate3D& a, const Host::Coordinate3D& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

inline Host::Coordinate3D Scaled(const Host::Coordinate3D& vector, double factor) {
    return {vector.x * factor, vector.y * factor, vector.z * factor};
}

inline double Dot(const Host::Coordinate3D& a, const Host::Coordinate3D& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

inline Host::Coordinate3D Cross(const Host::Coordinate3D& a, const Host::Coordinate3D& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

inline double Length(const Host::Coordinate3D& vector) {
    return std::sqrt(Dot(vector, vector));
}

/// Length 1; a vector without length stays as it is.
inline Host::Coordinate3D Unit(const Host::Coordinate3D& vector) {
    const double length = Length(vector);
    return length > 0.0 ? Scaled(vector, 1.0 / length) : vector;
}

} // namespace Merivane::Workbench
