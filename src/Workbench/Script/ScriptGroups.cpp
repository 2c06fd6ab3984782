#include "Workbench/Script/ScriptGroups.hpp"

#include <utility>

#include "Workbench/Script/BodyClipping.hpp"

namespace Merivane::Workbench {

namespace {

std::vector<BooleanTool> MakeTools(const std::vector<FacedBody>& bodies) {
    std::vector<BooleanTool> tools;
    tools.reserve(bodies.size());
    for (const FacedBody& body : bodies) {
        tools.push_back(MakeTool(body));
    }
    return tools;
}

/// Bodies made one where they meet. False when the budget does not reach.
bool UniteBodies(std::vector<FacedBody> bodies, std::vector<FacedBody>& united,
                 SolidBudget& budget) {
    std::vector<SpaceBox> boxes; // of the united ones
    for (FacedBody& body : bodies) {
        const bool closed = IsClosedBody(body);
        SpaceBox box = BodyBox(body);
        for (std::size_t i = 0; closed && i < united.size();) {
            if (!Spend(budget, 1)) {
                return false;
            }
            if (!BoxesMeet(box, boxes[i], SamePlace) || !IsClosedBody(united[i])) {
                ++i;
                continue;
            }
            // The earlier body comes first: of faces in one plane its surface stays.
            if (!CombineBodies(united[i], MakeTool(body), BodyOperation::Union, budget)) {
                return false;
            }
            body = std::move(united[i]);
            box = BodyBox(body);
            united.erase(united.begin() + static_cast<std::ptrdiff_t>(i));
            boxes.erase(boxes.begin() + static_cast<std::ptrdiff_t>(i));
            i = 0;
        }
        united.push_back(std::move(body));
        boxes.push_back(box);
    }
    return true;
}

/// Every body of the first group less those of the second. False when the budget does not reach.
bool SubtractBodies(const ShapeGroup& first, const std::vector<BooleanTool>& tools,
                    ShapeGroup& result, SolidBudget& budget) {
    for (FacedBody body : first.bodies) {
        SpaceBox box = BodyBox(body);
        for (const BooleanTool& tool : tools) {
            if (!Spend(budget, 1)) {
                return false;
            }
            if (!BoxesMeet(box, tool.probe.box, SamePlace)) {
                continue;
            }
            if (!CombineBodies(body, tool, BodyOperation::Difference, budget)) {
                return false;
            }
            box = BodyBox(body);
        }
        if (!body.faces.empty()) {
            result.bodies.push_back(std::move(body));
        }
    }
    return true;
}

/// What each body of the first group has in common with each of the second, which are apart from
/// each other. False when the budget does not reach.
bool IntersectBodies(const ShapeGroup& first, const std::vector<BooleanTool>& tools,
                     ShapeGroup& result, SolidBudget& budget) {
    for (const FacedBody& whole : first.bodies) {
        const SpaceBox box = BodyBox(whole);
        for (const BooleanTool& tool : tools) {
            if (!Spend(budget, 1)) {
                return false;
            }
            if (!BoxesMeet(box, tool.probe.box, SamePlace)) {
                continue;
            }
            FacedBody body = whole;
            if (!CombineBodies(body, tool, BodyOperation::Intersection, budget)) {
                return false;
            }
            if (!body.faces.empty()) {
                result.bodies.push_back(std::move(body));
            }
        }
    }
    return true;
}

/// The lines of the first group outside the bodies of the second, or inside them.
bool CutWires(const ShapeGroup& first, const std::vector<BooleanTool>& tools, bool inside,
              ShapeGroup& result, SolidBudget& budget) {
    for (const PartWire& wire : first.wires) {
        std::vector<BodyLine> kept;
        std::vector<BodyLine> rest = {{wire.begin, wire.end}};
        for (const BooleanTool& tool : tools) {
            std::vector<BodyLine> within = inside ? rest : std::vector<BodyLine>{};
            if (!ClipLines(within, tool, true, budget) || !ClipLines(rest, tool, false, budget)) {
                return false;
            }
            kept.insert(kept.end(), within.begin(), within.end());
        }
        for (const BodyLine& line : inside ? kept : rest) {
            result.wires.push_back({line[0], line[1], wire.pen});
        }
    }
    return true;
}

} // namespace

std::optional<ShapeGroup> CombineGroups(const ShapeGroup& first, const ShapeGroup& second,
                                        BodyOperation operation, SolidBudget& budget) {
    ShapeGroup result;
    if (operation == BodyOperation::Union) {
        std::vector<FacedBody> bodies = first.bodies;
        bodies.insert(bodies.end(), second.bodies.begin(), second.bodies.end());
        result.wires = first.wires;
        result.wires.insert(result.wires.end(), second.wires.begin(), second.wires.end());
        return UniteBodies(std::move(bodies), result.bodies, budget) ? std::optional(result)
                                                                     : std::nullopt;
    }
    const bool inside = operation == BodyOperation::Intersection;
    std::vector<FacedBody> united;
    if (inside && !UniteBodies(second.bodies, united, budget)) {
        return std::nullopt;
    }
    const std::vector<BooleanTool> tools = MakeTools(inside ? united : second.bodies);
    const bool done = inside ? IntersectBodies(first, tools, result, budget)
                             : SubtractBodies(first, tools, result, budget);
    if (!done || !CutWires(first, tools, inside, result, budget)) {
        return std::nullopt;
    }
    return result;
}

} // namespace Merivane::Workbench
