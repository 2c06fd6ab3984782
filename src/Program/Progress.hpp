#pragma once

#include <cstdint>
#include <string>

#include "Simulation/SimulationRecords.hpp"

namespace Merivane::Program {

/// How progress is told: a moving bar on a terminal, a line at the start of each stage elsewhere,
/// nothing at all where the user wants silence. All of it goes to standard error.
enum class ProgressStyle { Bar, Lines, None };

/// `Bar` when standard error is a terminal, else `Lines`; `None` when `silent`.
ProgressStyle ChooseProgressStyle(bool silent);

/// What was last told of the progress.
struct ProgressState {
    ProgressStyle style = ProgressStyle::Lines;
    std::uint64_t pointCount = 0; ///< stands in the title of the stage of points
    int stage = -1;
    int percent = -1;
};

/// Tells that the stage of this number and title is done to `fraction` [0..1], where that is news.
void TellProgress(ProgressState& state, int stage, const std::string& title, double fraction);

/// The same of a stage of a calculation.
void TellProgress(ProgressState& state, Simulation::SimulationStage stage, double fraction);

/// Takes the bar away for a line that is about to be written; the next progress draws it again.
void EraseProgress(ProgressState& state);

/// Ends the progress of one piece of work: its bar goes, the next piece begins anew.
void EndProgress(ProgressState& state);

} // namespace Merivane::Program
