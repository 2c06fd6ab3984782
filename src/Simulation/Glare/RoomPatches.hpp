#pragma once

#include <cstddef>
#include <vector>

#include "Simulation/Geometry.hpp"
#include "Simulation/Glare/GlareRecords.hpp"

/// The lining of an empty room cut into patches, each side of the box into a lattice of its own.
namespace Merivane::Simulation {

/// One patch of the lining. Its reflectance is not kept: one lining serves many of them.
struct Patch {
    Point3D center; ///< [m]
    Point3D normal; ///< unit vector into the room
    Point3D halfU;  ///< from the centre to the middle of an edge [m]
    Point3D halfV;
    double area = 0.0; ///< [m2]
};

/// A room's size and into how many equal parts each of its three dimensions is cut.
struct RoomCut {
    double x = 0.0; ///< [m]
    double y = 0.0;
    double z = 0.0; ///< floor to ceiling [m]
    int nx = 1;     ///< [1..32]
    int ny = 1;
    int nz = 1;
};

/// The sides of a room; the walls by the plane that they stand in.
enum class RoomSide { Floor, Ceiling, WallY0, WallY, WallX0, WallX };

/// Where a patch is. `u` counts along x (along y on the walls x = 0 and x = X), `v` along y on
/// floor and ceiling and upwards on walls.
struct PatchPlace {
    RoomSide side = RoomSide::Floor;
    int u = 0;
    int v = 0;
};

/// A patch in the quarter of the room next to the origin, standing for its images in the two mirror
/// planes of the room.
struct PatchOrbit {
    PatchPlace place;
    int images = 4;    ///< patches that it stands for: 4, 2 or 1 (those on a mirror plane)
    double area = 0.0; ///< of one of them [m2]
};

/// The two mirror planes as bits; an image is named by their sum, 0 being the patch itself.
inline constexpr int MirrorInX = 1; ///< x becomes X - x
inline constexpr int MirrorInY = 2;
inline constexpr int MirrorImages = 4;

/// Cuts a room into patches of about half of H, at least 0.05 m.
RoomCut CutRoom(const UgrRoom& room);

/// True for a room with a volume, its sizes finite.
bool IsRoom(const RoomCut& cut);

Patch PatchAt(const RoomCut& cut, const PatchPlace& place);

/// The same patch seen in the mirrors of `image`.
PatchPlace MirroredPlace(const RoomCut& cut, const PatchPlace& place, int image);

/// The patches of one quarter: floor, ceiling, wall y = 0, wall x = 0.
std::vector<PatchOrbit> QuarterOfRoom(const RoomCut& cut);

/// Form factor from a point with a unit normal to a patch [0..1], by the middles of 4 x 4 parts
/// where the patch is near, else by its own.
double PointToPatch(const Point3D& point, const Point3D& normal, const Patch& patch);

} // namespace Merivane::Simulation
