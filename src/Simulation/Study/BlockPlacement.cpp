#include "Simulation/Study/BlockPlacement.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <limits>
#include <optional>
#include <utility>

namespace Merivane::Simulation {

namespace {

constexpr double Touching = 1e-9; // [m]: boxes that only touch do not cover each other

/// A stretch of one axis [m].
struct Range {
    double low = 0.0;
    double high = 0.0;
};

/// Plan axes by number, so that one road serves blocks beside and blocks above.
constexpr std::size_t AxisX = 0;
constexpr std::size_t AxisY = 1;

/// A box as its stretches along x and y.
using Box = std::array<Range, 2>;

Box BoxOf(const Bounds2D& bounds) {
    return {{{bounds.minimum.x, bounds.maximum.x}, {bounds.minimum.y, bounds.maximum.y}}};
}

bool Meets(const Range& a, const Range& b, double gap) {
    return a.low < b.high + gap - Touching && b.low < a.high + gap - Touching;
}

bool Meets(const Box& a, const Box& b, double gap) {
    return Meets(a[AxisX], b[AxisX], gap) && Meets(a[AxisY], b[AxisY], gap);
}

void Extend(Box& box, const Box& other) {
    for (const std::size_t axis : {AxisX, AxisY}) {
        box[axis].low = std::min(box[axis].low, other[axis].low);
        box[axis].high = std::max(box[axis].high, other[axis].high);
    }
}

bool Holds(const Range& outer, const Range& inner) {
    return outer.low <= inner.low && inner.high <= outer.high;
}

/// True for the owner of several blocks' owners, as all Zones are for a legend.
bool HoldsAnotherOwner(const Box& owner, const std::vector<Box>& owners) {
    return std::any_of(owners.begin(), owners.end(), [&owner](const Box& other) {
        const bool inside = Holds(owner[AxisX], other[AxisX]) && Holds(owner[AxisY], other[AxisY]);
        const bool same = Holds(other[AxisX], owner[AxisX]) && Holds(other[AxisY], owner[AxisY]);
        return inside && !same;
    });
}

/// The extents of what hangs together with `owner`: everything that comes nearer than `gap` to
/// them is part of them. What lies apart, as a stray element or another building, is not, since it
/// would send every block away from its Zone. `others` ascend along x.
Box ExtentsAround(const Box& owner, std::vector<Box> others, double gap) {
    Box extents = owner;
    for (bool grew = true; grew;) {
        std::vector<Box> apart;
        for (const Box& other : others) {
            if (Meets(extents, other, gap)) {
                Extend(extents, other);
            } else {
                apart.push_back(other);
            }
        }
        grew = apart.size() < others.size();
        std::reverse(apart.begin(),
                     apart.end()); // a chain is met link by link one way or the other
        others = std::move(apart);
    }
    return extents;
}

/// A side of the extents: blocks stand beyond it along `axis`, at higher coordinates or at lower.
struct Side {
    std::size_t axis = AxisX;
    bool high = true;
};

constexpr std::array<Side, 4> Sides = {
    {{AxisX, true}, {AxisX, false}, {AxisY, false}, {AxisY, true}}};

/// Where on `axis` a stretch of `length` begins that is free of `blocked` (ascending by `low`) and
/// as near to `wanted` as that allows.
double NearestFree(const std::vector<Range>& blocked, double length, double wanted) {
    // Past the last stretch there is always room; of the rooms between them each offers its nearest
    // place.
    constexpr double Infinity = std::numeric_limits<double>::infinity();
    double best = Infinity;
    double roomBegin = -Infinity;
    const auto offer = [&](double roomEnd) {
        if (roomEnd - roomBegin >= length - Touching) {
            const double place = std::max(std::min(wanted, roomEnd - length), roomBegin);
            best = std::abs(place - wanted) < std::abs(best - wanted) ? place : best;
        }
    };
    for (const Range& stretch : blocked) {
        offer(stretch.low);
        roomBegin = std::max(roomBegin, stretch.high);
    }
    offer(Infinity);
    return best;
}

/// A place for a block and how far it is from where the block would like to stand [m].
struct Place {
    Box box;
    double distance = 0.0;
};

/// Chooses the places of blocks one after the other.
class BlockPlacer {
public:
    BlockPlacer(std::vector<Box> obstaclesToMiss, double gapToKeep)
        : obstacles(std::move(obstaclesToMiss)), gap(gapToKeep) {}

    Box Place(const BlockRequest& block) {
        const Box owner = BoxOf(block.owner);
        const Box extents = ExtentsAround(owner, obstacles, gap);
        std::optional<Simulation::Place> best;
        for (const Side& side : Sides) {
            SearchSide(block, extents, side, best);
        }
        placed.push_back(best->box);
        return best->box;
    }

private:
    // Columns beside the extents, nearest first: one along them, others behind blocks that stand
    // there already. In each the block slides to the free place nearest to its owner.
    void SearchSide(const BlockRequest& block, const Box& extents, const Side& side,
                    std::optional<Simulation::Place>& best) const {
        const Box owner = BoxOf(block.owner);
        const double depth = side.axis == AxisX ? block.width : block.height;
        for (const double start : ColumnStarts(extents, side)) {
            const Range across =
                side.high ? Range{start, start + depth} : Range{start - depth, start};
            const double outward =
                side.high ? across.low - owner[side.axis].high : owner[side.axis].low - across.high;
            if (best && outward >= best->distance) {
                return;
            }
            const Simulation::Place place = SlideAlong(block, owner, side, across, outward);
            if (!best || place.distance < best->distance - Touching) {
                best = place;
            }
        }
    }

    std::vector<double> ColumnStarts(const Box& extents, const Side& side) const {
        const double first =
            side.high ? extents[side.axis].high + gap : extents[side.axis].low - gap;
        std::vector<double> starts = {first};
        for (const Box& block : placed) {
            const double behind =
                side.high ? block[side.axis].high + gap : block[side.axis].low - gap;
            if (side.high ? behind > first : behind < first) {
                starts.push_back(behind);
            }
        }
        std::sort(starts.begin(), starts.end(),
                  [&side](double a, double b) { return side.high ? a < b : a > b; });
        starts.erase(std::unique(starts.begin(), starts.end()), starts.end());
        return starts;
    }

    Simulation::Place SlideAlong(const BlockRequest& block, const Box& owner, const Side& side,
                                 const Range& across, double outward) const {
        const std::size_t along = side.axis == AxisX ? AxisY : AxisX;
        const double length = along == AxisX ? block.width : block.height;
        // Beside its owner a block begins at the owner's top, above and below at its left.
        const double wanted = along == AxisX ? owner[AxisX].low : owner[AxisY].high - length;
        std::vector<Range> blocked;
        for (const std::vector<Box>* boxes : {&obstacles, &placed}) {
            for (const Box& box : *boxes) {
                if (Meets(box[side.axis], across, gap)) {
                    blocked.push_back({box[along].low - gap, box[along].high + gap});
                }
            }
        }
        std::sort(blocked.begin(), blocked.end(),
                  [](const Range& a, const Range& b) { return a.low < b.low; });
        const double begin = NearestFree(blocked, length, wanted);
        Simulation::Place place;
        place.box[side.axis] = across;
        place.box[along] = {begin, begin + length};
        place.distance = std::hypot(outward, begin - wanted);
        return place;
    }

    std::vector<Box> obstacles;
    std::vector<Box> placed;
    double gap;
};

/// What no block may cover, ascending along x. The extents of all Zones are no obstacle themselves,
/// or two buildings would become one.
std::vector<Box> ObstaclesOf(const std::vector<BlockRequest>& blocks,
                             const std::vector<Bounds2D>& occupied) {
    std::vector<Box> owners;
    for (const BlockRequest& block : blocks) {
        owners.push_back(BoxOf(block.owner));
    }
    std::vector<Box> obstacles;
    obstacles.reserve(occupied.size() + owners.size());
    std::transform(occupied.begin(), occupied.end(), std::back_inserter(obstacles), BoxOf);
    std::copy_if(owners.begin(), owners.end(), std::back_inserter(obstacles),
                 [&owners](const Box& owner) { return !HoldsAnotherOwner(owner, owners); });
    std::stable_sort(obstacles.begin(), obstacles.end(),
                     [](const Box& a, const Box& b) { return a[AxisX].low < b[AxisX].low; });
    return obstacles;
}

} // namespace

std::vector<Point2D> PlaceBlocks(const std::vector<BlockRequest>& blocks,
                                 const std::vector<Bounds2D>& occupied, double gap) {
    BlockPlacer placer(ObstaclesOf(blocks, occupied), std::max(gap, 0.0));
    std::vector<Point2D> corners;
    corners.reserve(blocks.size());
    for (const BlockRequest& block : blocks) {
        const Box box = placer.Place(block);
        corners.push_back({box[AxisX].low, box[AxisY].high});
    }
    return corners;
}

} // namespace Merivane::Simulation
