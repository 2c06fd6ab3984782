#include "Simulation/Glare/RoomPatches.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace Merivane::Simulation {

namespace {

constexpr double LeastPatch = 0.05; // [m]
constexpr double MostParts = 32.0;
constexpr double LeastSquare = 1e-12; // of a distance [m2]
constexpr int NearParts = 4;          // each way

// A side that is a whole number of patches stays so where rounding has left a trace above it; one
// more patch would make neighbouring heights of one luminaire jump.
int PartsOf(double side, double size) {
    const double parts = std::ceil(side / size - 1e-9);
    return static_cast<int>(parts >= 1.0 ? std::min(parts, MostParts) : 1.0);
}

bool IsLevel(RoomSide side) {
    return side == RoomSide::Floor || side == RoomSide::Ceiling;
}

bool IsWallAlongX(RoomSide side) {
    return side == RoomSide::WallY0 || side == RoomSide::WallY;
}

RoomSide Opposite(RoomSide side) {
    switch (side) {
    case RoomSide::Floor:
        return RoomSide::Ceiling;
    case RoomSide::Ceiling:
        return RoomSide::Floor;
    case RoomSide::WallY0:
        return RoomSide::WallY;
    case RoomSide::WallY:
        return RoomSide::WallY0;
    case RoomSide::WallX0:
        return RoomSide::WallX;
    case RoomSide::WallX:
        break;
    }
    return RoomSide::WallX0;
}

double Dot(const Point3D& a, const Point3D& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

void AppendQuarter(RoomSide side, int columns, int rows, int images, bool halfRows, double area,
                   std::vector<PatchOrbit>& orbits) {
    for (int v = 0; v < (halfRows ? (rows + 1) / 2 : rows); ++v) {
        for (int u = 0; u < (columns + 1) / 2; ++u) {
            const bool onPlaneU = 2 * u + 1 == columns;
            const bool onPlaneV = halfRows && 2 * v + 1 == rows;
            orbits.push_back(
                {{side, u, v}, images / (onPlaneU ? 2 : 1) / (onPlaneV ? 2 : 1), area});
        }
    }
}

} // namespace

RoomCut CutRoom(const UgrRoom& room) {
    const double size = std::max(room.height / 2.0, LeastPatch);
    RoomCut cut;
    cut.x = room.lengthX;
    cut.y = room.lengthY;
    cut.z = room.height + room.eyeHeight;
    cut.nx = PartsOf(cut.x, size);
    cut.ny = PartsOf(cut.y, size);
    cut.nz = PartsOf(cut.z, size);
    return cut;
}

bool IsRoom(const RoomCut& cut) {
    return cut.x > 0.0 && cut.y > 0.0 && cut.z > 0.0 && std::isfinite(cut.x * cut.y * cut.z);
}

Patch PatchAt(const RoomCut& cut, const PatchPlace& place) {
    const double sx = cut.x / cut.nx;
    const double sy = cut.y / cut.ny;
    const double sz = cut.z / cut.nz;
    const double u = place.u + 0.5;
    const double v = place.v + 0.5;
    if (IsLevel(place.side)) {
        const bool up = place.side == RoomSide::Ceiling;
        return {{u * sx, v * sy, up ? cut.z : 0.0},
                {0, 0, up ? -1.0 : 1.0},
                {sx / 2, 0, 0},
                {0, sy / 2, 0},
                sx * sy};
    }
    if (IsWallAlongX(place.side)) {
        const bool far = place.side == RoomSide::WallY;
        return {{u * sx, far ? cut.y : 0.0, v * sz},
                {0, far ? -1.0 : 1.0, 0},
                {sx / 2, 0, 0},
                {0, 0, sz / 2},
                sx * sz};
    }
    const bool far = place.side == RoomSide::WallX;
    return {{far ? cut.x : 0.0, u * sy, v * sz},
            {far ? -1.0 : 1.0, 0, 0},
            {0, sy / 2, 0},
            {0, 0, sz / 2},
            sy * sz};
}

PatchPlace MirroredPlace(const RoomCut& cut, const PatchPlace& place, int image) {
    const bool inX = (image & MirrorInX) != 0;
    const bool inY = (image & MirrorInY) != 0;
    PatchPlace mirrored = place;
    if (IsLevel(place.side)) {
        mirrored.u = inX ? cut.nx - 1 - place.u : place.u;
        mirrored.v = inY ? cut.ny - 1 - place.v : place.v;
        return mirrored;
    }
    const bool alongX = IsWallAlongX(place.side);
    if (alongX ? inX : inY) {
        mirrored.u = (alongX ? cut.nx : cut.ny) - 1 - place.u;
    }
    if (alongX ? inY : inX) {
        mirrored.side = Opposite(place.side);
    }
    return mirrored;
}

std::vector<PatchOrbit> QuarterOfRoom(const RoomCut& cut) {
    const double sx = cut.x / cut.nx;
    const double sy = cut.y / cut.ny;
    const double sz = cut.z / cut.nz;
    std::vector<PatchOrbit> orbits;
    AppendQuarter(RoomSide::Floor, cut.nx, cut.ny, 4, true, sx * sy, orbits);
    AppendQuarter(RoomSide::Ceiling, cut.nx, cut.ny, 4, true, sx * sy, orbits);
    AppendQuarter(RoomSide::WallY0, cut.nx, cut.nz, 4, false, sx * sz, orbits);
    AppendQuarter(RoomSide::WallX0, cut.ny, cut.nz, 4, false, sy * sz, orbits);
    return orbits;
}

double PointToPatch(const Point3D& point, const Point3D& normal, const Patch& patch) {
    const Point3D to = {patch.center.x - point.x, patch.center.y - point.y,
                        patch.center.z - point.z};
    const double halves = Dot(patch.halfU, patch.halfU) + Dot(patch.halfV, patch.halfV);
    const int n = 16.0 * halves > Dot(to, to) ? NearParts : 1;
    double sum = 0.0;
    for (int k = 0; k < n * n; ++k) {
        const int row = k / n;
        const double u = (2.0 * (k % n) + 1.0) / n - 1.0;
        const double v = (2.0 * row + 1.0) / n - 1.0;
        const Point3D d = {to.x + u * patch.halfU.x + v * patch.halfV.x,
                           to.y + u * patch.halfU.y + v * patch.halfV.y,
                           to.z + u * patch.halfU.z + v * patch.halfV.z};
        const double square = Dot(d, d);
        const double here = Dot(d, normal);
        const double there = -Dot(d, patch.normal);
        if (square > LeastSquare && here > 0.0 && there > 0.0) {
            sum += here * there / (std::numbers::pi * square * square);
        }
    }
    return sum * patch.area / (n * n);
}

} // namespace Merivane::Simulation
