#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Workbench/Script/ModelStatements.hpp"
#include "Workbench/Script/ScriptValue.hpp"

/// Bodies that a script gives by vertices, edges and polygons: BASE, VERT, TEVE, VECT, EDGE, PGON,
/// PIPG, COOR and BODY, with their further forms. Numbers count from 1 since BASE.
namespace Merivane::Workbench {

bool IsLowLevelStatement(std::string_view keyword);

/// Carries out one of them on the body that is open. BODY ends the body but keeps its vertices and
/// edges for the next one. Returns an empty text, or why it can't be done, in Portuguese.
std::string RunLowLevelStatement(ModelBuild& build, std::string_view keyword,
                                 const std::vector<ScriptValue>& arguments);

} // namespace Merivane::Workbench
