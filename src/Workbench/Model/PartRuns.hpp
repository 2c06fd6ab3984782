#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "Host/Model3D.hpp"
#include "Workbench/Project/Project.hpp"
#include "Workbench/Script/PartModel.hpp"
#include "Workbench/Script/PlanSymbolDrawing.hpp"
#include "Workbench/Script/ScriptRun.hpp"

/// Objects and lamps get their bodies, lights and plan symbols by running the scripts of their
/// parts. What a run gave is kept with the project, so that a thousand luminaires of one type run
/// once.
namespace Merivane::Workbench {

/// What the scripts of the project's parts gave so far.
struct PartRuns {
    std::map<std::string, PartModel> models; ///< by part, sizes and values
    std::map<std::string, PlanSymbolDrawing> symbols;
    std::vector<Host::ModelSurface> surfaces; ///< that scripts defined, each once
    std::map<std::string, ScriptPart> macros; ///< parts that scripts called, by name in upper case
    std::vector<std::string> complaints;      ///< why scripts stopped, each once, in their order
};

/// True for a part whose model comes from its scripts; one that the project tells by its faces
/// has none.
bool HasModelScript(const ProjectPart& part);

/// True for a part that draws its plan by a script.
bool HasPlanScript(const ProjectPart& part);

/// The model of a placed object or lamp in its part's frame, before it is mirrored and placed;
/// faces with a script's own surface name it by its number in the project. What was built before an
/// error is there, the error among the complaints; nothing where that is over 100,000 faces: a loop
/// that did not end. The part must have a model script.
const PartModel& ModelOfObject(const Project& project, const ProjectPart& part,
                               const ProjectElement& element);

/// What its plan script draws at a scale (the denominator), in the part's frame. The part must have
/// a plan script.
const PlanSymbolDrawing& SymbolOfObject(const Project& project, const ProjectPart& part,
                                        const ProjectElement& element, double scale);

/// Why scripts of the project's parts stopped, one Portuguese sentence each, in their order.
std::vector<std::string> ScriptComplaints(const Project& project);

/// Forgets what was run; after parts have come, gone or changed.
void ForgetPartRuns(const Project& project);

} // namespace Merivane::Workbench
