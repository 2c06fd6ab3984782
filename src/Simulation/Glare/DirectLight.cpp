#include "Simulation/Glare/DirectLight.hpp"

#include <cmath>

#include "Photometry/PhotometricQuantities.hpp"

namespace Merivane::Simulation {

namespace {

constexpr double LeastSquare = 1e-12; // of a distance [m2]
constexpr int NearSamples = 3;        // each way
constexpr double SameStep = 1e-9;     // relative

Point3D Moved(const Point3D& p, const Point3D& u, double s, const Point3D& v, double t) {
    return {p.x + s * u.x + t * v.x, p.y + s * u.y + t * v.y, p.z + s * u.z + t * v.z};
}

double Square(const Point3D& d) {
    return d.x * d.x + d.y * d.y + d.z * d.z;
}

double LightOnPoint(const PlacedLuminaire& luminaire, const Point3D& point, const Point3D& normal) {
    const Point3D& center = luminaire.center;
    const Point3D d = {center.x - point.x, center.y - point.y, center.z - point.z};
    const double square = Square(d);
    const double ahead = d.x * normal.x + d.y * normal.y + d.z * normal.z;
    if (!(square > LeastSquare) || !(ahead > 0.0)) {
        return 0.0;
    }
    double area = 0.0;
    return LuminousIntensityTowards(luminaire, point, area) * ahead / (square * std::sqrt(square));
}

bool AreSame(double a, double b) {
    return std::abs(a - b) <= SameStep * std::abs(b);
}

// A patch and a luminaire at the origin, for the offset tables: `apart` steps of the grid from the
// luminaire to the patch's first luminaire cell, of which the patch covers `across`.
double Offset(int apart, int across, double step) {
    return (apart + (across - 1) / 2.0) * step;
}

SummedTable FloorTable(const OffsetLight& light, const PlacedLuminaire& luminaire,
                       const RoomCut& cut) {
    Patch patch = PatchAt(cut, {RoomSide::Floor, 0, 0});
    const int backX = light.mostX - 1;
    const int backY = light.mostY - 1;
    return BuildSummedTable(
        2 * light.mostX - light.acrossX, 2 * light.mostY - light.acrossY, [&](int row, int column) {
            patch.center = {Offset(row - backX, light.acrossX, light.stepX),
                            Offset(column - backY, light.acrossY, light.stepY), -light.z};
            return LightOnPatch(luminaire, patch);
        });
}

SummedTable WallTable(const OffsetLight& light, const PlacedLuminaire& luminaire,
                      const RoomCut& cut, RoomSide side, int rowOfPatches) {
    Patch patch = PatchAt(cut, {side, 0, rowOfPatches});
    const double up = patch.center.z - light.z;
    const bool alongX = side == RoomSide::WallY0 || side == RoomSide::WallY;
    const double step = alongX ? light.stepX : light.stepY;
    const int across = alongX ? light.acrossX : light.acrossY;
    const int most = alongX ? light.mostX : light.mostY;
    return BuildSummedTable(
        alongX ? light.mostY : light.mostX, 2 * most - across, [&](int fromWall, int column) {
            const double along = Offset(column - (most - 1), across, step);
            const double away = (fromWall + 0.5) * (alongX ? light.stepY : light.stepX);
            patch.center = alongX ? Point3D{along, -away * patch.normal.y, up}
                                  : Point3D{-away * patch.normal.x, along, up};
            return LightOnPatch(luminaire, patch);
        });
}

double FromTables(const OffsetLight& light, const LuminaireGrid& grid, const PatchPlace& place) {
    const int firstX = place.u * light.acrossX - (grid.nx - 1) + (light.mostX - 1);
    if (place.side == RoomSide::Ceiling) {
        return 0.0; // the luminaires hang in its plane
    }
    if (place.side == RoomSide::Floor) {
        const int firstY = place.v * light.acrossY - (grid.ny - 1) + (light.mostY - 1);
        return SumOver(light.floor, firstX, grid.nx, firstY, grid.ny);
    }
    const auto wall =
        static_cast<std::size_t>(place.side) - static_cast<std::size_t>(RoomSide::WallY0);
    const SummedTable& table = light.walls[wall][static_cast<std::size_t>(place.v)];
    if (place.side == RoomSide::WallY0 || place.side == RoomSide::WallY) {
        return SumOver(table, 0, grid.ny, firstX, grid.nx);
    }
    const int firstY = place.u * light.acrossY - (grid.ny - 1) + (light.mostY - 1);
    return SumOver(table, 0, grid.nx, firstY, grid.ny);
}

double OneByOne(const LuminaireGrid& grid, const Patch& patch) {
    PlacedLuminaire luminaire = grid.first;
    double sum = 0.0;
    for (int i = 0; i < grid.nx; ++i) {
        luminaire.center.x = grid.first.center.x + i * grid.stepX;
        for (int j = 0; j < grid.ny; ++j) {
            luminaire.center.y = grid.first.center.y + j * grid.stepY;
            sum += LightOnPatch(luminaire, patch);
        }
    }
    return sum;
}

void ScaleToFlux(const std::vector<PatchOrbit>& orbits, double flux, MirrorParts& irradiance) {
    double landed = 0.0;
    for (std::size_t i = 0; i < orbits.size(); ++i) {
        landed += orbits[i].images * orbits[i].area * irradiance[EvenPart][i];
    }
    if (!(flux > 0.0) || !(landed > 0.0)) {
        return;
    }
    for (std::vector<double>& part : irradiance) {
        for (double& value : part) {
            value *= flux / landed;
        }
    }
}

} // namespace

LuminaireGrid BuildLuminaireGrid(const StandardRoom& room) {
    const SceneLuminaire& luminaire = room.scene.luminaires.front();
    std::vector<SceneLuminaire> alone = {luminaire};
    alone.front().arrayCountX = alone.front().arrayCountY = 1;
    LuminaireGrid grid;
    grid.first = PlaceLuminaires(alone).front();
    grid.first.luminaire = &luminaire;
    grid.nx = luminaire.arrayCountX;
    grid.ny = luminaire.arrayCountY;
    grid.stepX = luminaire.arrayStepX;
    grid.stepY = luminaire.arrayStepY;
    grid.flux =
        Photometry::TotalFlux(luminaire.photometry) * grid.first.outputFactor * grid.nx * grid.ny;
    return grid;
}

double LightOnPatch(const PlacedLuminaire& luminaire, const Patch& patch) {
    const Point3D& center = luminaire.center;
    const double square =
        Square({center.x - patch.center.x, center.y - patch.center.y, center.z - patch.center.z});
    const double diagonal = 4.0 * (Square(patch.halfU) + Square(patch.halfV)); // squared
    if (square > 9.0 * diagonal) {
        return LightOnPoint(luminaire, patch.center, patch.normal);
    }
    double sum = 0.0;
    for (int k = 0; k < NearSamples * NearSamples; ++k) {
        const int row = k / NearSamples;
        const double u = (2.0 * (k % NearSamples) + 1.0) / NearSamples - 1.0;
        const double v = (2.0 * row + 1.0) / NearSamples - 1.0;
        sum += LightOnPoint(luminaire, Moved(patch.center, patch.halfU, u, patch.halfV, v),
                            patch.normal);
    }
    return sum / (NearSamples * NearSamples);
}

OffsetLight BuildOffsetLight(const RoomCut& cut, const LuminaireGrid& grid, int mostX, int mostY) {
    OffsetLight light;
    if (grid.nx % cut.nx != 0 || grid.ny % cut.ny != 0) {
        return light;
    }
    light.stepX = grid.stepX;
    light.stepY = grid.stepY;
    light.z = cut.z;
    light.acrossX = grid.nx / cut.nx;
    light.acrossY = grid.ny / cut.ny;
    light.nz = cut.nz;
    light.mostX = mostX;
    light.mostY = mostY;
    PlacedLuminaire luminaire = grid.first;
    luminaire.center = {};
    light.floor = FloorTable(light, luminaire, cut);
    std::size_t wall = 0;
    for (const RoomSide side :
         {RoomSide::WallY0, RoomSide::WallY, RoomSide::WallX0, RoomSide::WallX}) {
        for (int row = 0; row < cut.nz; ++row) {
            light.walls[wall].push_back(WallTable(light, luminaire, cut, side, row));
        }
        ++wall;
    }
    return light;
}

bool ServesGrid(const OffsetLight& light, const RoomCut& cut, const LuminaireGrid& grid) {
    return light.acrossX > 0 && light.acrossX * cut.nx == grid.nx &&
           light.acrossY * cut.ny == grid.ny && light.nz == cut.nz && grid.nx <= light.mostX &&
           grid.ny <= light.mostY && AreSame(light.stepX, grid.stepX) &&
           AreSame(light.stepY, grid.stepY) && AreSame(light.z, cut.z);
}

MirrorParts DirectIrradiance(const RoomTransport& transport, const LuminaireGrid& grid,
                             const OffsetLight& light) {
    const RoomCut& cut = transport.cut;
    const bool tabulated = ServesGrid(light, cut, grid);
    MirrorParts irradiance;
    for (const PatchOrbit& orbit : transport.orbits) {
        std::array<double, MirrorPartCount> sums{};
        for (int image = 0; image < MirrorImages; ++image) {
            const PatchPlace place = MirroredPlace(cut, orbit.place, image);
            const double value =
                tabulated ? FromTables(light, grid, place) : OneByOne(grid, PatchAt(cut, place));
            for (const MirrorPart part : {EvenPart, OddInYPart, OddInXPart}) {
                sums[part] += MirrorSign(part, image) * value / MirrorImages;
            }
        }
        for (const MirrorPart part : {EvenPart, OddInYPart, OddInXPart}) {
            irradiance[part].push_back(sums[part]);
        }
    }
    ScaleToFlux(transport.orbits, grid.flux, irradiance);
    return irradiance;
}

} // namespace Merivane::Simulation
