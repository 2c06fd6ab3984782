#pragma once

#include <string>
#include <vector>

#include "Catalog/Json.hpp"
#include "Simulation/Verification/TaskTable.hpp"

namespace Merivane::Document {

/// The activities as lines of text for a person, without line ends and at most 100 columns wide:
/// under the name of each section its rows with id, activity, Em [lux], U0, UGRL ("-" for none)
/// and Ra, and below each its note. `rows` in the table's order.
std::vector<std::string> TaskReportLines(const std::vector<const Simulation::TaskRow*>& rows);

/// The activities for a program, a list of objects: `id`, `secao`, `nomeDaSecao`, `atividade`, `Em`
/// [lux], `U0`, `UGRL` (null where the standard gives none), `Ra`, `observacao` (null without one).
Catalog::JsonValue TaskReportJson(const std::vector<const Simulation::TaskRow*>& rows);

} // namespace Merivane::Document
