#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

#include "Host/Types.hpp"
#include "Workbench/Bodies/FacedBody.hpp"

/// Boxes along the axes, and a tree that finds those of many that one box or one line meets.
namespace Merivane::Workbench {

struct SpaceBox {
    static constexpr double Far = std::numeric_limits<double>::infinity();
    Host::Coordinate3D low = {Far, Far, Far};
    Host::Coordinate3D high = {-Far, -Far, -Far};
};

/// Makes a box large enough for a place, or for another box.
void Enclose(SpaceBox& box, const Host::Coordinate3D& place);
void Enclose(SpaceBox& box, const SpaceBox& other);

/// True when two boxes are nearer to each other than `margin` [m] along every axis.
bool BoxesMeet(const SpaceBox& a, const SpaceBox& b, double margin);

SpaceBox FaceBox(const FacedBody& body, const ContouredFace& face);
SpaceBox BodyBox(const FacedBody& body);

/// Halves of halves: a node's boxes stand together in `order`.
struct BoxTree {
    struct Node {
        SpaceBox box;
        std::int32_t begin = 0; ///< in `order`
        std::int32_t end = 0;
        std::int32_t children = -1; ///< the first of two that follow each other; -1 = a leaf
    };
    std::vector<SpaceBox> boxes;
    std::vector<std::int32_t> order;
    std::vector<Node> nodes;
};

BoxTree BuildBoxTree(std::vector<SpaceBox> boxes);

/// The boxes that meet a box, ascending.
void FindBoxes(const BoxTree& tree, const SpaceBox& box, double margin,
               std::vector<std::int32_t>& found);

/// The boxes that a half line meets, ascending. `way` must have no component of 0.
void FindBoxesAlong(const BoxTree& tree, const Host::Coordinate3D& from,
                    const Host::Coordinate3D& way, double margin, std::vector<std::int32_t>& found);

} // namespace Merivane::Workbench
