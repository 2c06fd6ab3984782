#include "Simulation/Glare/RoomRadiosity.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace Merivane::Simulation {

namespace {

constexpr int MostSweeps = 200;
constexpr double SmallChange = 1e-6; // of the largest radiosity

// Cases solved side by side: a table has five reflectances in two directions. A number known when
// compiling lets the innermost loop stay in registers.
constexpr std::size_t TableLanes = 10;
constexpr std::size_t FewLanes = 2;

template <std::size_t Lanes> using Row = std::array<double, Lanes>;

double ReflectanceAt(const ReflectanceSet& set, RoomSide side) {
    switch (side) {
    case RoomSide::Floor:
        return set.floor;
    case RoomSide::Ceiling:
        return set.ceiling;
    default:
        return set.walls;
    }
}

template <std::size_t Lanes> struct System {
    const std::vector<float>* block = nullptr;
    std::vector<Row<Lanes>> reflectance;
    std::vector<Row<Lanes>> irradiance;
    std::vector<Row<Lanes>> radiosity;
};

template <std::size_t Lanes>
Row<Lanes> Received(const float* row, const System<Lanes>& system, std::size_t i) {
    Row<Lanes> sum = system.irradiance[i];
    for (const Row<Lanes>& other : system.radiosity) {
        const double factor = *row++;
        for (std::size_t k = 0; k < Lanes; ++k) {
            sum[k] += factor * other[k];
        }
    }
    return sum;
}

// One sweep over all patches; gives the largest change of each case.
template <std::size_t Lanes> Row<Lanes> Sweep(System<Lanes>& system) {
    const std::size_t n = system.radiosity.size();
    Row<Lanes> change{};
    for (std::size_t i = 0; i < n; ++i) {
        const Row<Lanes> received = Received(system.block->data() + i * n, system, i);
        for (std::size_t k = 0; k < Lanes; ++k) {
            const double value = system.reflectance[i][k] * received[k];
            change[k] = std::max(change[k], std::abs(value - system.radiosity[i][k]));
            system.radiosity[i][k] = value;
        }
    }
    return change;
}

template <std::size_t Lanes> Row<Lanes> Largest(const std::vector<Row<Lanes>>& rows) {
    Row<Lanes> largest{};
    for (const Row<Lanes>& row : rows) {
        for (std::size_t k = 0; k < Lanes; ++k) {
            largest[k] = std::max(largest[k], row[k]);
        }
    }
    return largest;
}

// `scale` is the largest radiosity so far, of the even part: the parts that change sign are often
// next to nothing, and what they leave undone is measured by the whole.
template <std::size_t Lanes> void Solve(System<Lanes>& system, Row<Lanes>& scale, bool isEven) {
    for (int sweep = 0; sweep < MostSweeps; ++sweep) {
        const Row<Lanes> change = Sweep(system);
        if (isEven) {
            scale = Largest<Lanes>(system.radiosity);
        }
        bool done = true;
        for (std::size_t k = 0; k < Lanes; ++k) {
            done = done && change[k] <= SmallChange * scale[k];
        }
        if (done) {
            return;
        }
    }
}

template <std::size_t Lanes>
System<Lanes> BuildSystem(const RoomTransport& transport, const RadiosityCase* cases,
                          std::size_t count, std::size_t part) {
    const std::size_t n = transport.orbits.size();
    System<Lanes> system;
    system.block = &transport.blocks[part];
    system.reflectance.resize(n);
    system.irradiance.resize(n);
    system.radiosity.resize(n);
    for (std::size_t i = 0; i < n; ++i) {
        for (std::size_t k = 0; k < count; ++k) {
            const double reflectance =
                ReflectanceAt(cases[k].reflectances, transport.orbits[i].place.side);
            system.reflectance[i][k] = reflectance;
            system.irradiance[i][k] = cases[k].irradiance[part][i];
            system.radiosity[i][k] = reflectance * system.irradiance[i][k];
        }
    }
    return system;
}

template <std::size_t Lanes>
void SolveSome(const RoomTransport& transport, const RadiosityCase* cases, std::size_t count,
               MirrorParts* solutions) {
    Row<Lanes> scale{};
    for (std::size_t part = 0; part < MirrorPartCount; ++part) {
        if (transport.blocks[part].empty()) {
            continue;
        }
        System<Lanes> system = BuildSystem<Lanes>(transport, cases, count, part);
        Solve(system, scale, part == EvenPart);
        for (std::size_t k = 0; k < count; ++k) {
            for (const Row<Lanes>& row : system.radiosity) {
                solutions[k][part].push_back(row[k]);
            }
        }
    }
}

} // namespace

std::vector<MirrorParts> SolveRadiosity(const RoomTransport& transport,
                                        const std::vector<RadiosityCase>& cases) {
    std::vector<MirrorParts> solutions(cases.size());
    for (std::size_t first = 0; first < cases.size();) {
        const std::size_t left = cases.size() - first;
        const std::size_t count = std::min(left, left > FewLanes ? TableLanes : FewLanes);
        if (count > FewLanes) {
            SolveSome<TableLanes>(transport, &cases[first], count, &solutions[first]);
        } else {
            SolveSome<FewLanes>(transport, &cases[first], count, &solutions[first]);
        }
        first += count;
    }
    return solutions;
}

} // namespace Merivane::Simulation
