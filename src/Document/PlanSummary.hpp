#pragma once

#include <string>

#include "Document/PlanSheet.hpp"
#include "Document/ResultPlan.hpp"

namespace Merivane::Document {

/// The summary of a Zone: its name and activity; the verification with its result, or that there is
/// none; what is recommended; Em, Emin, Emax, U0 and number of points over the task area, the
/// height of its work plane and its border band, or the sentence that it has none; its glare; its
/// surfaces against their reference.
SheetBlock BuildSummaryBlock(const PlanZone& zone);

/// A note as a paragraph of small text.
SheetBlock BuildNoteBlock(const std::string& note);

} // namespace Merivane::Document
