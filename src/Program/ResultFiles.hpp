#pragma once

#include <string>
#include <vector>

#include "Document/PlanAssembly.hpp"
#include "Document/ResultDocument.hpp"
#include "Document/SceneBuild.hpp"
#include "Program/CommandLine.hpp"
#include "Program/OutputFiles.hpp"
#include "Simulation/SimulationRecords.hpp"

namespace Merivane::Program {

/// How the command line asks the plans to be drawn.
Document::PlanStyle PlanStyleOf(const SimulateArguments& arguments);

/// Adds a table of values (CSV) for each plane of the scene, and the one that explains the
/// observers' glare where there is one.
void BuildTables(const Simulation::StudyScene& built, const Simulation::SimulationResult& result,
                 const std::string& explanation, std::vector<OutputFile>& files);

/// Adds each plan as SVG, PDF and PNG. Returns false with one Portuguese sentence when a plan
/// can't be drawn.
bool BuildPlans(const std::vector<Document::FloorPlan>& plans, const Document::PlanStyle& style,
                std::vector<OutputFile>& files, std::string& error);

/// Writes a row of statistics for each plane and the document's loose points to standard output.
void TellValues(const Simulation::StudyScene& built, const Simulation::SimulationResult& result);

/// Writes what stands last to standard output: notices, time, and the pictures to open in `folder`.
void TellClosing(const Document::RunRecord& record, const std::vector<std::string>& notices,
                 const std::string& folder, const std::vector<OutputFile>& files);

} // namespace Merivane::Program
