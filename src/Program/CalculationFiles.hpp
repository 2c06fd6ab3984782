#pragma once

#include <string>
#include <vector>

#include "AddOn/Commands/CalculateLighting.hpp"
#include "Program/OutputFiles.hpp"

namespace Merivane::Program {

/// The files of a calculation that is done and drawn into the open project: "resultado.json" first,
/// a table of values (CSV) for each plane, the report ("relatorio.pdf", "relatorio.html"), every
/// window as SVG, PDF and PNG. A repeatable run tells no times but in "resultado.json". Returns
/// false with one Portuguese sentence for what can't be drawn.
bool BuildCalculationFiles(const Commands::Calculation& calculation, bool repeatable,
                           std::vector<OutputFile>& files, std::string& error);

/// Names of the files to look at first: the report, then the plans with results.
std::vector<std::string> FilesToOpen(const Commands::Calculation& calculation,
                                     const std::vector<OutputFile>& files);

} // namespace Merivane::Program
