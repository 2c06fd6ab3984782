#pragma once

#include <string>
#include <vector>

#include "Program/CalculateArguments.hpp"
#include "Program/ZoneChoice.hpp"
#include "Workbench/Interface/AnswerScript.hpp"

namespace Merivane::Program {

/// Puts what the command line says into the answers to a calculation's dialogs, so that the dialogs
/// judge it as they judge a person. `answers` holds those of the user's own file, if any: the
/// command line's are carried out behind them in the same dialog, and come first where the file
/// does not answer that dialog. `zones` are those that will be calculated, in order.
///
/// Returns false with one Portuguese sentence for an activity of a Zone that is not among them.
bool AddCalculationAnswers(const CalculateArguments& arguments, const std::vector<NamedZone>& zones,
                           Workbench::AnswerScript& answers, std::string& error);

} // namespace Merivane::Program
