#pragma once

#include <optional>
#include <vector>

#include "Workbench/Bodies/FacedBody.hpp"
#include "Workbench/Script/BodyBooleans.hpp"
#include "Workbench/Script/PartModel.hpp"

/// Groups of shapes of model scripts, and what two of them make together.
namespace Merivane::Workbench {

/// A group of shapes, in the frame that was in force where it began.
struct ShapeGroup {
    std::vector<FacedBody> bodies;
    std::vector<PartWire> wires;
};

/// Both groups as one, what of the first lies outside the second, or what they have in common.
/// Bodies that meet unite into one in a union; the others and open ones stay by themselves. Lines
/// are cut as bodies are, those of the second group stand in a union alone. None when the budget
/// does not reach.
std::optional<ShapeGroup> CombineGroups(const ShapeGroup& first, const ShapeGroup& second,
                                        BodyOperation operation, SolidBudget& budget);

} // namespace Merivane::Workbench
