#include "Workbench/Script/BoxTree.hpp"

#include <algorithm>
#include <numeric>
#include <utility>

namespace Merivane::Workbench {

namespace {

using Host::Coordinate3D;

constexpr std::int32_t LargestLeaf = 4;

/// Stretch of a half line between two levels of an axis, narrowed from the one given.
void NarrowStretch(double from, double way, double low, double high, double& begin, double& end) {
    const double first = (low - from) / way;
    const double second = (high - from) / way;
    begin = std::max(begin, std::min(first, second));
    end = std::min(end, std::max(first, second));
}

bool LineMeets(const SpaceBox& box, const Coordinate3D& from, const Coordinate3D& way,
               double margin) {
    double begin = 0.0;
    double end = SpaceBox::Far;
    NarrowStretch(from.x, way.x, box.low.x - margin, box.high.x + margin, begin, end);
    NarrowStretch(from.y, way.y, box.low.y - margin, box.high.y + margin, begin, end);
    NarrowStretch(from.z, way.z, box.low.z - margin, box.high.z + margin, begin, end);
    return begin <= end;
}

/// Orders the boxes of a node by their middles along its longest axis.
void HalveNode(BoxTree& tree, const BoxTree::Node& node, std::int32_t middle) {
    const Coordinate3D size = {node.box.high.x - node.box.low.x, node.box.high.y - node.box.low.y,
                               node.box.high.z - node.box.low.z};
    const auto sum = [&](std::int32_t at) {
        const SpaceBox& box = tree.boxes[static_cast<std::size_t>(at)];
        if (size.x >= size.y && size.x >= size.z) {
            return box.low.x + box.high.x;
        }
        return size.y >= size.z ? box.low.y + box.high.y : box.low.z + box.high.z;
    };
    std::nth_element(tree.order.begin() + node.begin, tree.order.begin() + middle,
                     tree.order.begin() + node.end, [&](std::int32_t a, std::int32_t b) {
                         const double first = sum(a);
                         const double second = sum(b);
                         return first != second ? first < second : a < b;
                     });
}

template <typename Meets>
void Search(const BoxTree& tree, Meets meets, std::vector<std::int32_t>& found) {
    found.clear();
    std::vector<std::int32_t> open;
    if (!tree.nodes.empty()) {
        open.push_back(0);
    }
    while (!open.empty()) {
        const BoxTree::Node& node = tree.nodes[static_cast<std::size_t>(open.back())];
        open.pop_back();
        if (!meets(node.box)) {
            continue;
        }
        if (node.children >= 0) {
            open.push_back(node.children);
            open.push_back(node.children + 1);
            continue;
        }
        for (std::int32_t i = node.begin; i < node.end; ++i) {
            const std::int32_t box = tree.order[static_cast<std::size_t>(i)];
            if (meets(tree.boxes[static_cast<std::size_t>(box)])) {
                found.push_back(box);
            }
        }
    }
    std::sort(found.begin(), found.end());
}

} // namespace

void Enclose(SpaceBox& box, const Coordinate3D& place) {
    box.low = {std::min(box.low.x, place.x), std::min(box.low.y, place.y),
               std::min(box.low.z, place.z)};
    box.high = {std::max(box.high.x, place.x), std::max(box.high.y, place.y),
                std::max(box.high.z, place.z)};
}

void Enclose(SpaceBox& box, const SpaceBox& other) {
    Enclose(box, other.low);
    Enclose(box, other.high);
}

bool BoxesMeet(const SpaceBox& a, const SpaceBox& b, double margin) {
    return a.low.x <= b.high.x + margin && b.low.x <= a.high.x + margin &&
           a.low.y <= b.high.y + margin && b.low.y <= a.high.y + margin &&
           a.low.z <= b.high.z + margin && b.low.z <= a.high.z + margin;
}

SpaceBox FaceBox(const FacedBody& body, const ContouredFace& face) {
    SpaceBox box;
    for (const std::int32_t vertex : face.contours.front()) {
        Enclose(box, body.vertices[static_cast<std::size_t>(vertex)]);
    }
    return box;
}

SpaceBox BodyBox(const FacedBody& body) {
    SpaceBox box;
    for (const Coordinate3D& vertex : body.vertices) {
        Enclose(box, vertex);
    }
    return box;
}

BoxTree BuildBoxTree(std::vector<SpaceBox> boxes) {
    BoxTree tree;
    tree.boxes = std::move(boxes);
    tree.order.resize(tree.boxes.size());
    std::iota(tree.order.begin(), tree.order.end(), 0);
    if (!tree.order.empty()) {
        tree.nodes.push_back({{}, 0, static_cast<std::int32_t>(tree.order.size())});
    }
    for (std::size_t at = 0; at < tree.nodes.size(); ++at) {
        BoxTree::Node node = tree.nodes[at];
        for (std::int32_t i = node.begin; i < node.end; ++i) {
            const std::int32_t box = tree.order[static_cast<std::size_t>(i)];
            Enclose(node.box, tree.boxes[static_cast<std::size_t>(box)]);
        }
        if (node.end - node.begin > LargestLeaf) {
            const std::int32_t middle = node.begin + (node.end - node.begin) / 2;
            HalveNode(tree, node, middle);
            node.children = static_cast<std::int32_t>(tree.nodes.size());
            tree.nodes.push_back({{}, node.begin, middle});
            tree.nodes.push_back({{}, middle, node.end});
        }
        tree.nodes[at] = node;
    }
    return tree;
}

void FindBoxes(const BoxTree& tree, const SpaceBox& box, double margin,
               std::vector<std::int32_t>& found) {
    Search(
        tree, [&](const SpaceBox& other) { return BoxesMeet(box, other, margin); }, found);
}

void FindBoxesAlong(const BoxTree& tree, const Coordinate3D& from, const Coordinate3D& way,
                    double margin, std::vector<std::int32_t>& found) {
    Search(
        tree, [&](const SpaceBox& box) { return LineMeets(box, from, way, margin); }, found);
}

} // namespace Merivane::Workbench
