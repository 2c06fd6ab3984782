#pragma once

#include <string>

#include "Simulation/Study/LightingStudy.hpp"
#include "Simulation/Study/StudyScene.hpp"

namespace Merivane::Document {

/// Lays the calculation points of a document's study, see `BuildStudyScene`.
///
/// Returns false with one Portuguese sentence that names the Zone by its place in the document when
/// a work plane has no point or a plane would need more than `MaximumGridNodes` nodes; `built` must
/// then not be used.
bool BuildScene(const Simulation::LightingStudy& study, Simulation::StudyScene& built,
                std::string& error);

} // namespace Merivane::Document
