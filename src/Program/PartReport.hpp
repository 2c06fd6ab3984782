#pragma once

#include <string>
#include <vector>

#include "Workbench/Project/Project.hpp"

namespace Merivane::Program {

/// What a library part holds, as lines of text for a person, without line ends: who it is, sizes,
/// parameters, scripts, pictures, and of a luminaire its photometry.
std::vector<std::string> PartReportLines(const Workbench::ProjectPart& part);

} // namespace Merivane::Program
