#pragma once

#include <string>

#include "Document/PlanSheet.hpp"
#include "Document/ResultPlan.hpp"

namespace Merivane::Document {

/// The summary of a Zone: its name, Em, Emin, Emax, U0 and number of points over the task area,
/// the height of its work plane and its border band, or the sentence that it has none.
SheetBlock BuildSummaryBlock(const PlanZone& zone);

/// A note as a paragraph of small text.
SheetBlock BuildNoteBlock(const std::string& note);

} // namespace Merivane::Document
