#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Simulation/Verification/TaskTable.hpp"
#include "Text/FoldAccents.hpp"

namespace Merivane::Simulation {

/// The id that an old word key ("escritorio") stands for; any other text unchanged. Projects saved
/// by an earlier release hold word keys.
std::string MigrateTaskId(std::string_view id);

/// The row of an id or an old word key; null when there is none. Compares bytes.
const TaskRow* FindTask(std::string_view id);

using Text::FoldAccents;

/// The id of the activity that the name of a Zone speaks of, by the first keyword that occurs in
/// it; empty without one.
std::string SuggestTaskId(std::string_view name);

/// The rows that every word of `text` speaks of, in the table's order: a word is an id ("s22.3"), a
/// section ("s22"), or occurs in the section's name, the activity or the note, without regard to
/// accents and case. All rows for a text without words.
std::vector<const TaskRow*> SearchTasks(std::string_view text);

} // namespace Merivane::Simulation
