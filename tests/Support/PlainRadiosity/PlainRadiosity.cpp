#include "Support/PlainRadiosity/PlainRadiosity.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>

#include "Photometry/PhotometricQuantities.hpp"
#include "Simulation/Glare/ObserverGlare.hpp"
#include "Simulation/Glare/StandardRoom.hpp"
#include "Simulation/PlacedLuminaire.hpp"

namespace Merivane::Tests {

using namespace Simulation;

namespace {

constexpr double LeastSquare = 1e-12; // [m2], samples that stand on each other
constexpr int MostParts = 32;

double Dot(const Point3D& a, const Point3D& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

Point3D Between(const Point3D& from, const Point3D& to) {
    return {to.x - from.x, to.y - from.y, to.z - from.z};
}

Point3D Sample(const PlainPatch& patch, int i, int j, int n) {
    const double u = (2.0 * i + 1.0) / n - 1.0;
    const double v = (2.0 * j + 1.0) / n - 1.0;
    return {patch.center.x + u * patch.halfU.x + v * patch.halfV.x,
            patch.center.y + u * patch.halfU.y + v * patch.halfV.y,
            patch.center.z + u * patch.halfU.z + v * patch.halfV.z};
}

// A side that is a whole number of patches stays so where rounding has left a trace above it; one
// more patch would make neighbouring heights of one luminaire jump.
int PartsOf(double side, double size) {
    return static_cast<int>(std::clamp(std::ceil(side / size - 1e-9), 1.0, double{MostParts}));
}

void AppendSurface(const Point3D& corner, const Point3D& u, const Point3D& v, const Point3D& normal,
                   double size, double reflectance, std::vector<PlainPatch>& patches) {
    const double lengthU = std::sqrt(Dot(u, u));
    const double lengthV = std::sqrt(Dot(v, v));
    const int nu = PartsOf(lengthU, size);
    const int nv = PartsOf(lengthV, size);
    for (int j = 0; j < nv; ++j) {
        for (int i = 0; i < nu; ++i) {
            PlainPatch patch;
            const double s = (i + 0.5) / nu;
            const double t = (j + 0.5) / nv;
            patch.center = {corner.x + s * u.x + t * v.x, corner.y + s * u.y + t * v.y,
                            corner.z + s * u.z + t * v.z};
            patch.normal = normal;
            patch.halfU = {u.x / (2 * nu), u.y / (2 * nu), u.z / (2 * nu)};
            patch.halfV = {v.x / (2 * nv), v.y / (2 * nv), v.z / (2 * nv)};
            patch.area = lengthU / nu * (lengthV / nv);
            patch.reflectance = reflectance;
            patches.push_back(patch);
        }
    }
}

double SquaredHalves(const PlainPatch& patch) {
    return Dot(patch.halfU, patch.halfU) + Dot(patch.halfV, patch.halfV);
}

double FromOne(const PlacedLuminaire& luminaire, const Point3D& place, const Point3D& normal) {
    const Point3D d = Between(place, luminaire.center);
    const double square = Dot(d, d);
    if (!(square > LeastSquare)) {
        return 0.0;
    }
    const double cosine = Dot(d, normal) / std::sqrt(square);
    double area = 0.0;
    return cosine > 0.0 ? LuminousIntensityTowards(luminaire, place, area) * cosine / square : 0.0;
}

double DirectOn(const PlainPatch& patch, const PlacedLuminaire& luminaire) {
    const Point3D d = Between(patch.center, luminaire.center);
    if (Dot(d, d) > 9.0 * 4.0 * SquaredHalves(patch)) {
        return FromOne(luminaire, patch.center, patch.normal);
    }
    double sum = 0.0;
    for (int j = 0; j < 3; ++j) {
        for (int i = 0; i < 3; ++i) {
            sum += FromOne(luminaire, Sample(patch, i, j, 3), patch.normal) / 9.0;
        }
    }
    return sum;
}

std::vector<double> Factors(const std::vector<PlainPatch>& patches) {
    const std::size_t n = patches.size();
    std::vector<double> factors(n * n, 0.0);
    for (std::size_t i = 0; i < n; ++i) {
        for (std::size_t j = 0; j < n; ++j) {
            if (i != j) {
                factors[i * n + j] =
                    patches[i].area *
                    PlainPointToPatch(patches[i].center, patches[i].normal, patches[j]);
            }
        }
    }
    for (std::size_t i = 0; i < n; ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            const double mean = 0.5 * (factors[i * n + j] + factors[j * n + i]);
            factors[i * n + j] = factors[j * n + i] = mean;
        }
    }
    return factors;
}

void Close(const std::vector<PlainPatch>& patches, std::vector<double>& factors) {
    const std::size_t n = patches.size();
    std::vector<double> scale(n);
    for (int pass = 0; pass < 100; ++pass) {
        double worst = 0.0;
        for (std::size_t i = 0; i < n; ++i) {
            double sum = 0.0;
            for (std::size_t j = 0; j < n; ++j) {
                sum += factors[i * n + j];
            }
            const double ratio = sum > 0.0 ? sum / patches[i].area : 1.0;
            worst = std::max(worst, std::abs(ratio - 1.0));
            scale[i] = 1.0 / std::sqrt(ratio);
        }
        if (worst < 1e-6) {
            return;
        }
        for (std::size_t i = 0; i < n; ++i) {
            for (std::size_t j = 0; j < n; ++j) {
                factors[i * n + j] *= scale[i] * scale[j];
            }
        }
    }
}

double Worst(const std::array<GlareResult, 4>& results) {
    return std::max(results[0].valid ? results[0].ugr : 0.0,
                    results[1].valid ? results[1].ugr : 0.0);
}

} // namespace

std::vector<PlainPatch> PlainPatches(const UgrRoom& room) {
    const double x = room.lengthX;
    const double y = room.lengthY;
    const double z = room.height + room.eyeHeight;
    const double size = std::max(room.height / 2, 0.05);
    const double walls = room.wallReflectance;
    std::vector<PlainPatch> patches;
    AppendSurface({0, 0, 0}, {x, 0, 0}, {0, y, 0}, {0, 0, 1}, size, room.floorReflectance, patches);
    AppendSurface({0, 0, z}, {x, 0, 0}, {0, y, 0}, {0, 0, -1}, size, room.ceilingReflectance,
                  patches);
    AppendSurface({0, 0, 0}, {x, 0, 0}, {0, 0, z}, {0, 1, 0}, size, walls, patches);
    AppendSurface({0, y, 0}, {x, 0, 0}, {0, 0, z}, {0, -1, 0}, size, walls, patches);
    AppendSurface({0, 0, 0}, {0, y, 0}, {0, 0, z}, {1, 0, 0}, size, walls, patches);
    AppendSurface({x, 0, 0}, {0, y, 0}, {0, 0, z}, {-1, 0, 0}, size, walls, patches);
    return patches;
}

double PlainPointToPatch(const Point3D& point, const Point3D& normal, const PlainPatch& patch) {
    const Point3D toCenter = Between(point, patch.center);
    const int n = 16.0 * SquaredHalves(patch) > Dot(toCenter, toCenter) ? 4 : 1;
    double sum = 0.0;
    for (int j = 0; j < n; ++j) {
        for (int i = 0; i < n; ++i) {
            const Point3D d = Between(point, Sample(patch, i, j, n));
            const double square = Dot(d, d);
            const double here = Dot(d, normal);
            const double there = -Dot(d, patch.normal);
            if (square > LeastSquare && here > 0.0 && there > 0.0) {
                sum += here * there / (std::numbers::pi * square * square);
            }
        }
    }
    return sum * patch.area / (n * n);
}

std::vector<double> PlainIrradiance(const std::vector<PlainPatch>& patches,
                                    const SceneLuminaire& luminaire, const UgrRoom& room) {
    const StandardRoom built = BuildStandardRoom(luminaire, room);
    const std::vector<PlacedLuminaire> luminaires = PlaceLuminaires(built.scene.luminaires);
    std::vector<double> irradiance;
    double landed = 0.0;
    for (const PlainPatch& patch : patches) {
        double sum = 0.0;
        for (const PlacedLuminaire& source : luminaires) {
            sum += DirectOn(patch, source);
        }
        irradiance.push_back(sum);
        landed += sum * patch.area;
    }
    double flux = 0.0;
    for (const PlacedLuminaire& source : luminaires) {
        flux += source.outputFactor * Photometry::TotalFlux(luminaire.photometry);
    }
    if (flux > 0.0 && landed > 0.0) {
        for (double& value : irradiance) {
            value *= flux / landed;
        }
    }
    return irradiance;
}

std::vector<float> PlainTransport(const std::vector<PlainPatch>& patches) {
    const std::size_t n = patches.size();
    std::vector<double> factors = Factors(patches);
    Close(patches, factors);
    std::vector<float> transport(n * n);
    for (std::size_t i = 0; i < n; ++i) {
        for (std::size_t j = 0; j < n; ++j) {
            transport[i * n + j] = static_cast<float>(factors[i * n + j] / patches[i].area);
        }
    }
    return transport;
}

std::vector<double> PlainRadiosity(const std::vector<PlainPatch>& patches,
                                   const std::vector<double>& irradiance,
                                   const std::vector<float>& transport) {
    const std::size_t n = patches.size();
    std::vector<double> radiosity(n);
    for (std::size_t i = 0; i < n; ++i) {
        radiosity[i] = patches[i].reflectance * irradiance[i];
    }
    for (int sweep = 0; sweep < 200; ++sweep) {
        double change = 0.0;
        double largest = 0.0;
        for (std::size_t i = 0; i < n; ++i) {
            double received = irradiance[i];
            for (std::size_t j = 0; j < n; ++j) {
                received += transport[i * n + j] * radiosity[j];
            }
            const double value = patches[i].reflectance * received;
            change = std::max(change, std::abs(value - radiosity[i]));
            largest = std::max(largest, value);
            radiosity[i] = value;
        }
        if (change <= 1e-6 * largest) {
            break;
        }
    }
    return radiosity;
}

std::array<double, 4> PlainBackground(const UgrRoom& room, const SceneLuminaire& luminaire) {
    const std::vector<PlainPatch> patches = PlainPatches(room);
    const std::vector<double> radiosity =
        PlainRadiosity(patches, PlainIrradiance(patches, luminaire, room), PlainTransport(patches));
    const StandardRoom built = BuildStandardRoom(luminaire, room);
    std::array<double, 4> illuminance{};
    for (std::size_t k = 0; k < 4; ++k) {
        const UgrObserver& eye = built.observers[k];
        for (std::size_t i = 0; i < patches.size(); ++i) {
            illuminance[k] +=
                PlainPointToPatch({eye.x, eye.y, eye.z}, {eye.dx, eye.dy, 0.0}, patches[i]) *
                radiosity[i];
        }
    }
    return illuminance;
}

std::array<GlareResult, 4> PlainEvaluateRoom(const SceneLuminaire& luminaire, const UgrRoom& room,
                                             const GlareOptions& options) {
    const std::array<double, 4> background = PlainBackground(room, luminaire);
    const StandardRoom built = BuildStandardRoom(luminaire, room);
    const std::vector<PlacedLuminaire> luminaires = PlaceLuminaires(built.scene.luminaires);
    std::array<GlareResult, 4> results;
    for (std::size_t k = 0; k < 4; ++k) {
        results[k] = ObserverGlare(built.observers[k], luminaires, background[k], options);
    }
    return results;
}

UgrTableValues PlainTable(const SceneLuminaire& luminaire, double height,
                          const GlareOptions& options) {
    UgrTableValues table;
    for (std::size_t row = 0; row < StandardRooms.size(); ++row) {
        for (std::size_t set = 0; set < ReflectanceSets.size(); ++set) {
            for (const bool crosswise : {true, false}) {
                const UgrRoom room =
                    TableRoom(StandardRooms[row], ReflectanceSets[set], height, crosswise);
                (crosswise ? table.crosswise : table.lengthwise)[row][set] =
                    Worst(PlainEvaluateRoom(luminaire, room, options));
            }
        }
    }
    return table;
}

} // namespace Merivane::Tests
