// Notation: F[i][j] is the reciprocal form factor between patches times area [m2]; a block is the
// sum over the images g of patch j, F[i][g j] times the sign of the part in g. Orbits with fewer
// than four images come up more than once in that sum, hence the weight images / 4.

#include "Simulation/Glare/RoomTransport.hpp"

#include <algorithm>
#include <cmath>

#include "Simulation/Glare/PatchFactors.hpp"

namespace Merivane::Simulation {

namespace {

constexpr int MostClosures = 100;
constexpr double ClosedEnough = 1e-6;

using RawBlocks = std::array<std::vector<double>, MirrorPartCount>;

double WeightOf(const PatchOrbit& orbit) {
    return static_cast<double>(orbit.images) / MirrorImages;
}

RawBlocks BuildRawBlocks(const RoomCut& cut, const std::vector<PatchOrbit>& orbits,
                         std::size_t parts) {
    const PatchFactors factors = BuildPatchFactors(cut);
    const std::size_t n = orbits.size();
    RawBlocks raw;
    for (std::size_t part = 0; part < parts; ++part) {
        raw[part].resize(n * n);
    }
    for (std::size_t j = 0; j < n; ++j) {
        std::array<PatchPlace, MirrorImages> images;
        for (int image = 0; image < MirrorImages; ++image) {
            images[static_cast<std::size_t>(image)] = MirroredPlace(cut, orbits[j].place, image);
        }
        for (std::size_t i = 0; i <= j; ++i) {
            const PatchPlace& here = orbits[i].place;
            const double own = FactorBetween(factors, here, images[0]);
            const double inX = FactorBetween(factors, here, images[MirrorInX]);
            const double inY = FactorBetween(factors, here, images[MirrorInY]);
            const double inBoth = FactorBetween(factors, here, images[MirrorInX + MirrorInY]);
            const std::array<double, MirrorPartCount> sums = {(own + inX) + (inY + inBoth),
                                                              (own + inX) - (inY + inBoth),
                                                              (own + inY) - (inX + inBoth)};
            for (std::size_t part = 0; part < parts; ++part) {
                raw[part][i * n + j] = raw[part][j * n + i] = sums[part];
            }
        }
    }
    return raw;
}

// Factors that make every patch pass on all of what it emits: F[i][j] t[i] t[j] sums to the area
// of i over all j. Sums over all patches need the even part alone.
std::vector<double> CloseRoom(const std::vector<PatchOrbit>& orbits,
                              const std::vector<double>& even) {
    const std::size_t n = orbits.size();
    std::vector<double> scale(n, 1.0);
    std::vector<double> weighed(n);
    std::vector<double> ratio(n);
    for (int pass = 0; pass < MostClosures; ++pass) {
        for (std::size_t j = 0; j < n; ++j) {
            weighed[j] = WeightOf(orbits[j]) * scale[j];
        }
        double worst = 0.0;
        for (std::size_t i = 0; i < n; ++i) {
            double sum = 0.0;
            for (std::size_t j = 0; j < n; ++j) {
                sum += even[i * n + j] * weighed[j];
            }
            ratio[i] = sum > 0.0 ? scale[i] * sum / orbits[i].area : 1.0;
            worst = std::max(worst, std::abs(ratio[i] - 1.0));
        }
        if (worst < ClosedEnough) {
            break;
        }
        for (std::size_t i = 0; i < n; ++i) {
            scale[i] /= std::sqrt(ratio[i]);
        }
    }
    return scale;
}

std::vector<float> Normalised(const std::vector<PatchOrbit>& orbits, const std::vector<double>& raw,
                              const std::vector<double>& scale) {
    const std::size_t n = orbits.size();
    std::vector<float> block(n * n);
    for (std::size_t i = 0; i < n; ++i) {
        for (std::size_t j = 0; j < n; ++j) {
            block[i * n + j] = static_cast<float>(raw[i * n + j] * scale[i] * scale[j] *
                                                  WeightOf(orbits[j]) / orbits[i].area);
        }
    }
    return block;
}

FacingViews BuildViews(const RoomCut& cut, const std::vector<PatchOrbit>& orbits,
                       const UgrObserver& observer, MirrorPart odd) {
    const Point3D eye = {observer.x, observer.y, observer.z};
    const Point3D sight = {observer.dx, observer.dy, 0.0};
    FacingViews views;
    for (const PatchOrbit& orbit : orbits) {
        double even = 0.0;
        double signedSum = 0.0;
        for (int image = 0; image < MirrorImages; ++image) {
            const Patch patch = PatchAt(cut, MirroredPlace(cut, orbit.place, image));
            const double factor = PointToPatch(eye, sight, patch);
            even += factor;
            signedSum += MirrorSign(odd, image) * factor;
        }
        views.even.push_back(even * WeightOf(orbit));
        views.odd.push_back(signedSum * WeightOf(orbit));
    }
    return views;
}

double Product(const std::vector<double>& a, const std::vector<double>& b) {
    double sum = 0.0;
    for (std::size_t i = 0; i < std::min(a.size(), b.size()); ++i) {
        sum += a[i] * b[i];
    }
    return sum;
}

} // namespace

int MirrorSign(MirrorPart part, int image) {
    const bool changes = (part == OddInYPart && (image & MirrorInY) != 0) ||
                         (part == OddInXPart && (image & MirrorInX) != 0);
    return changes ? -1 : 1;
}

RoomTransport BuildRoomTransport(const RoomCut& cut, const std::array<UgrObserver, 4>& observers,
                                 RoomViews views) {
    const std::size_t parts = views == RoomViews::All ? MirrorPartCount : OddInXPart;
    RoomTransport transport;
    transport.cut = cut;
    transport.orbits = QuarterOfRoom(cut);
    const RawBlocks raw = BuildRawBlocks(cut, transport.orbits, parts);
    const std::vector<double> scale = CloseRoom(transport.orbits, raw[EvenPart]);
    for (std::size_t part = 0; part < parts; ++part) {
        transport.blocks[part] = Normalised(transport.orbits, raw[part], scale);
    }
    transport.alongY = BuildViews(cut, transport.orbits, observers[0], OddInYPart);
    if (views == RoomViews::All) {
        transport.alongX = BuildViews(cut, transport.orbits, observers[2], OddInXPart);
    }
    return transport;
}

std::array<double, 4> LightOnObservers(const RoomTransport& transport,
                                       const MirrorParts& radiosity) {
    const double evenY = Product(transport.alongY.even, radiosity[EvenPart]);
    const double oddY = Product(transport.alongY.odd, radiosity[OddInYPart]);
    const double evenX = Product(transport.alongX.even, radiosity[EvenPart]);
    const double oddX = Product(transport.alongX.odd, radiosity[OddInXPart]);
    return {evenY + oddY, evenY - oddY, evenX + oddX, evenX - oddX};
}

} // namespace Merivane::Simulation
