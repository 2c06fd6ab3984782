#include "Simulation/Glare/PatchFactors.hpp"

#include <cstddef>
#include <cstdlib>

namespace Merivane::Simulation {

namespace {

double MeanFactor(const RoomCut& cut, const PatchPlace& a, const PatchPlace& b) {
    const Patch here = PatchAt(cut, a);
    const Patch there = PatchAt(cut, b);
    return 0.5 * (here.area * PointToPatch(here.center, here.normal, there) +
                  there.area * PointToPatch(there.center, there.normal, here));
}

// `pair(i, j)` gives the two places of a distinct pair.
template <class Pair> std::vector<double> Table(const RoomCut& cut, int ni, int nj, Pair pair) {
    std::vector<double> table;
    table.reserve(static_cast<std::size_t>(ni) * static_cast<std::size_t>(nj));
    for (int i = 0; i < ni; ++i) {
        for (int j = 0; j < nj; ++j) {
            const auto [a, b] = pair(i, j);
            table.push_back(MeanFactor(cut, a, b));
        }
    }
    return table;
}

struct Pair {
    PatchPlace a;
    PatchPlace b;
};

std::size_t Index(int i, int j, int nj) {
    return static_cast<std::size_t>(i) * static_cast<std::size_t>(nj) + static_cast<std::size_t>(j);
}

std::size_t Index(int i, int j, int k, int nj, int nk) {
    return Index(static_cast<int>(Index(i, j, nj)), k, nk);
}

// Steps from the wall y = 0 or x = 0, or from the one across the room.
int StepsFrom(bool farWall, int steps, int count) {
    return farWall ? count - 1 - steps : steps;
}

double LevelToWall(const PatchFactors& factors, const PatchPlace& level, const PatchPlace& wall) {
    const RoomCut& cut = factors.cut;
    const int up = StepsFrom(level.side == RoomSide::Ceiling, wall.v, cut.nz);
    if (wall.side == RoomSide::WallY0 || wall.side == RoomSide::WallY) {
        const int from = StepsFrom(wall.side == RoomSide::WallY, level.v, cut.ny);
        return factors.levelToWallY[Index(std::abs(level.u - wall.u), from, up, cut.ny, cut.nz)];
    }
    const int from = StepsFrom(wall.side == RoomSide::WallX, level.u, cut.nx);
    return factors.levelToWallX[Index(std::abs(level.v - wall.u), from, up, cut.nx, cut.nz)];
}

double WallToWall(const PatchFactors& factors, const PatchPlace& a, const PatchPlace& b) {
    const RoomCut& cut = factors.cut;
    const int up = std::abs(a.v - b.v);
    if (b.side == RoomSide::WallY) {
        return factors.wallYToWallY[Index(std::abs(a.u - b.u), up, cut.nz)];
    }
    if (a.side == RoomSide::WallX0) {
        return factors.wallXToWallX[Index(std::abs(a.u - b.u), up, cut.nz)];
    }
    const int fromX = StepsFrom(b.side == RoomSide::WallX, a.u, cut.nx);
    const int fromY = StepsFrom(a.side == RoomSide::WallY, b.u, cut.ny);
    return factors.wallYToWallX[Index(fromX, fromY, up, cut.ny, cut.nz)];
}

} // namespace

PatchFactors BuildPatchFactors(const RoomCut& cut) {
    using enum RoomSide;
    const int nz = cut.nz;
    PatchFactors factors;
    factors.cut = cut;
    factors.floorToCeiling = Table(cut, cut.nx, cut.ny, [&](int i, int j) {
        return Pair{{Floor, 0, 0}, {Ceiling, i, j}};
    });
    factors.wallYToWallY = Table(cut, cut.nx, nz, [&](int i, int k) {
        return Pair{{WallY0, 0, 0}, {WallY, i, k}};
    });
    factors.wallXToWallX = Table(cut, cut.ny, nz, [&](int j, int k) {
        return Pair{{WallX0, 0, 0}, {WallX, j, k}};
    });
    factors.levelToWallY = Table(cut, cut.nx, cut.ny * nz, [&](int i, int jk) {
        return Pair{{Floor, 0, jk / nz}, {WallY0, i, jk % nz}};
    });
    factors.levelToWallX = Table(cut, cut.ny, cut.nx * nz, [&](int j, int ik) {
        return Pair{{Floor, ik / nz, 0}, {WallX0, j, ik % nz}};
    });
    factors.wallYToWallX = Table(cut, cut.nx, cut.ny * nz, [&](int i, int jk) {
        return Pair{{WallY0, i, 0}, {WallX0, jk / nz, jk % nz}};
    });
    return factors;
}

double FactorBetween(const PatchFactors& factors, const PatchPlace& a, const PatchPlace& b) {
    if (a.side == b.side) {
        return 0.0;
    }
    if (b.side < a.side) {
        return FactorBetween(factors, b, a);
    }
    if (b.side == RoomSide::Ceiling) {
        return factors
            .floorToCeiling[Index(std::abs(a.u - b.u), std::abs(a.v - b.v), factors.cut.ny)];
    }
    return a.side < RoomSide::WallY0 ? LevelToWall(factors, a, b) : WallToWall(factors, a, b);
}

} // namespace Merivane::Simulation
