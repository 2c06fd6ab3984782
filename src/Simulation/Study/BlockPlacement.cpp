#include "Simulation/Study/BlockPlacement.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
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

/// The extents of the building that `owner` is part of: everything that comes nearer than `gap` to
/// them belongs to them. What lies apart, as a stray element or another building, does not, since
/// it would send every block away from its Zone. `others` ascend along x.
Box ExtentsAround(const Box& owner, std::vector<Box> others, double gap) {
    Box extents = owner;
    for (bool grew = true; grew;) {
        const auto end = std::remove_if(others.begin(), others.end(), [&](const Box& other) {
            if (!Meets(extents, other, gap)) {
                return false;
            }
            Extend(extents, other);
            return true;
        });
        grew = end != others.end();
        others.erase(end, others.end());
        std::reverse(others.begin(), others.end()); // a chain is met link by link one way or other
    }
    return extents;
}

/// A side of the extents: blocks stand beyond it along `axis`, at higher coordinates or at lower.
struct Side {
    std::size_t axis = AxisX;
    bool high = true;
};

std::size_t AlongAxis(const Side& side) {
    return side.axis == AxisX ? AxisY : AxisX;
}

constexpr std::array<Side, 4> Sides = {
    {{AxisX, true}, {AxisX, false}, {AxisY, false}, {AxisY, true}}};

/// The place nearest to `wanted` where a stretch of `length` begins that is free of `blocked`
/// (ascending by `low`). Before the first and behind the last there is always room.
double NearestFree(const std::vector<Range>& blocked, double length, double wanted) {
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

/// What no block may cover, ascending along x and once more along y.
using Obstacles = std::array<std::vector<Box>, 2>;

/// What the search for a block's place goes by.
struct Search {
    std::array<double, 2> size; ///< of the block along x and y [m]
    Box owner;
    Box extents; ///< of the owner's building
    const Obstacles& obstacles;
    const std::vector<Box>& placed; ///< blocks that have their places
    double gap = 0.0;
};

/// A place for a block, and how far it is from where the block would like to stand [m].
struct BlockPlace {
    Box box;
    double distance = 0.0;
};

/// A strip beside the building in which a block may stand.
struct Column {
    Side side;
    Range across;         ///< on the side's axis
    double outward = 0.0; ///< from the owner to the block [m]
};

/// The columns of a side: one along the building, others behind blocks that stand there already.
void AppendColumns(const Search& search, const Side& side, std::vector<Column>& columns) {
    const Range& owner = search.owner[side.axis];
    const double depth = search.size[side.axis];
    const auto append = [&](double start) {
        const Range across = side.high ? Range{start, start + depth} : Range{start - depth, start};
        columns.push_back(
            {side, across, side.high ? across.low - owner.high : owner.low - across.high});
    };
    const auto beyond = [&](const Box& box) {
        return side.high ? box[side.axis].high + search.gap : box[side.axis].low - search.gap;
    };
    const double first = beyond(search.extents);
    append(first);
    for (const Box& block : search.placed) {
        const double behind = beyond(block);
        if (side.high ? behind > first : behind < first) {
            append(behind);
        }
    }
}

/// Nearest to the owner first, of equals in the order of the sides.
std::vector<Column> CollectColumns(const Search& search) {
    std::vector<Column> columns;
    for (const Side& side : Sides) {
        AppendColumns(search, side, columns);
    }
    std::stable_sort(columns.begin(), columns.end(),
                     [](const Column& a, const Column& b) { return a.outward < b.outward; });
    return columns;
}

/// What is in the way in a column, as ascending stretches along it.
std::vector<Range> BlockedStretches(const Search& search, const Column& column) {
    const std::size_t along = AlongAxis(column.side);
    std::vector<Range> blocked;
    const auto add = [&](const Box& box) {
        if (Meets(box[column.side.axis], column.across, search.gap)) {
            blocked.push_back({box[along].low - search.gap, box[along].high + search.gap});
        }
    };
    const auto lower = [](const Range& a, const Range& b) { return a.low < b.low; };
    std::for_each(search.obstacles[along].begin(), search.obstacles[along].end(), add);
    const auto obstacleCount = static_cast<std::ptrdiff_t>(blocked.size());
    std::for_each(search.placed.begin(), search.placed.end(), add);
    std::sort(blocked.begin() + obstacleCount, blocked.end(), lower);
    std::inplace_merge(blocked.begin(), blocked.begin() + obstacleCount, blocked.end(), lower);
    return blocked;
}

/// The free place of a column that is nearest to the owner.
BlockPlace SlideAlong(const Search& search, const Column& column) {
    const std::size_t along = AlongAxis(column.side);
    const double length = search.size[along];
    // Beside its owner a block begins at the owner's top, above and below at its left.
    const double wanted =
        along == AxisX ? search.owner[AxisX].low : search.owner[AxisY].high - length;
    const double begin = NearestFree(BlockedStretches(search, column), length, wanted);
    BlockPlace place;
    place.box[column.side.axis] = column.across;
    place.box[along] = {begin, begin + length};
    place.distance = std::hypot(column.outward, begin - wanted);
    return place;
}

Box FindPlace(const Search& search) {
    std::optional<BlockPlace> best;
    for (const Column& column : CollectColumns(search)) {
        if (best && column.outward >= best->distance) {
            break; // and so are all columns behind it
        }
        const BlockPlace place = SlideAlong(search, column);
        if (!best || place.distance < best->distance - Touching) {
            best = place;
        }
    }
    return best->box;
}

/// The extents of all Zones are no obstacle themselves, or two buildings would become one.
Obstacles ObstaclesOf(const std::vector<BlockRequest>& blocks,
                      const std::vector<Bounds2D>& occupied) {
    std::vector<Box> owners;
    owners.reserve(blocks.size());
    for (const BlockRequest& block : blocks) {
        owners.push_back(BoxOf(block.owner));
    }
    std::vector<Box> boxes;
    boxes.reserve(occupied.size() + owners.size());
    std::transform(occupied.begin(), occupied.end(), std::back_inserter(boxes), BoxOf);
    std::copy_if(owners.begin(), owners.end(), std::back_inserter(boxes),
                 [&owners](const Box& owner) { return !HoldsAnotherOwner(owner, owners); });
    Obstacles obstacles = {boxes, boxes};
    for (const std::size_t axis : {AxisX, AxisY}) {
        std::sort(obstacles[axis].begin(), obstacles[axis].end(),
                  [axis](const Box& a, const Box& b) { return a[axis].low < b[axis].low; });
    }
    return obstacles;
}

} // namespace

std::vector<Point2D> PlaceBlocks(const std::vector<BlockRequest>& blocks,
                                 const std::vector<Bounds2D>& occupied, double gap) {
    const double distance = std::max(gap, 0.0);
    const Obstacles obstacles = ObstaclesOf(blocks, occupied);
    std::vector<Box> placed;
    std::vector<Point2D> corners;
    for (const BlockRequest& block : blocks) {
        const Box owner = BoxOf(block.owner);
        placed.push_back(FindPlace({{block.width, block.height},
                                    owner,
                                    ExtentsAround(owner, obstacles[AxisX], distance),
                                    obstacles,
                                    placed,
                                    distance}));
        corners.push_back({placed.back()[AxisX].low, placed.back()[AxisY].high});
    }
    return corners;
}

} // namespace Merivane::Simulation
