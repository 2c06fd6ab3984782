// A script of a library part, whatever its bytes, is run as plan, model and parameter script, calls
// itself as a macro, and ends: by itself or with an error that tells where and why.

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "Workbench/Script/ScriptRun.hpp"

using namespace Merivane;
using namespace Merivane::Workbench;

namespace {

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

/// So few that a script which goes to all limits takes milliseconds.
ScriptLimits SmallLimits() {
    ScriptLimits limits;
    limits.statements = 20'000;
    limits.depth = 20;
    limits.values = 5'000;
    limits.textBytes = 5'000;
    limits.shapes = 2'000;
    limits.vertices = 20'000;
    limits.solidWork = 1'000'000;
    return limits;
}

void CheckError(const std::optional<ScriptError>& error) {
    if (error) {
        Require(error->line >= 1 && !error->explanation.empty());
        Require(!DescribeScriptError(*error).empty());
    }
}

void CheckDrawing(const PlanSymbolDrawing& drawing) {
    for (const PlanShape& shape : drawing.shapes) {
        if (const auto* polygon = std::get_if<PlanPolygon>(&shape)) {
            Require(!polygon->rings.empty());
            for (const PlanRingShape& ring : polygon->rings) {
                Require(!ring.vertices.empty() && ring.vertices.size() == ring.visible.size());
                Require(std::all_of(ring.vertices.begin(), ring.vertices.end(), [](const auto& p) {
                    return std::isfinite(p.x) && std::isfinite(p.y);
                }));
            }
        }
    }
}

void CheckModel(const PartModel& model) {
    for (const FacedBody& body : model.bodies) {
        const auto count = static_cast<std::int32_t>(body.vertices.size());
        for (const ContouredFace& face : body.faces) {
            for (const std::vector<std::int32_t>& contour : face.contours) {
                Require(std::all_of(contour.begin(), contour.end(), [count](std::int32_t vertex) {
                    return vertex >= 0 && vertex < count;
                }));
            }
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ScriptPart part;
    part.name = "Peca";
    part.plan.assign(reinterpret_cast<const char*>(data), size);
    part.model = part.plan;
    part.parameter = part.plan;
    Host::LibraryParameter table;
    table.name = "dados";
    table.isArray = true;
    table.dim1 = 2;
    table.dim2 = 3;
    table.numbers = {1, 2, 3, 4, 5, 6};
    part.parameters.push_back(table);
    ScriptEnvironment environment;
    environment.limits = SmallLimits();
    environment.findMacro = [&part](std::string_view name) {
        return name == "eu" ? &part : nullptr;
    };
    PlanSymbolDrawing drawing;
    CheckError(RunPlanScript(part, environment, drawing));
    CheckDrawing(drawing);
    PartModel model;
    CheckError(RunModelScript(part, environment, model));
    CheckModel(model);
    ParameterRules rules;
    CheckError(RunParameterScript(part, environment, rules));
    return 0;
}
