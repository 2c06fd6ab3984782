#pragma once

#include <cstddef>
#include <vector>

#include "Document/Report/LuminaireTypes.hpp"
#include "Document/Report/Report.hpp"
#include "Document/Report/ReportInput.hpp"

namespace Merivane::Document {

/// What is told of the Zone at index `zone`: its figures, the verification with what is recommended
/// and the surfaces, its planes, its glare, its notes.
std::vector<ReportBlock> BuildZoneBlocks(const ReportInput& input, std::size_t zone,
                                         const ZonePower& power);

/// The result of a Zone in one cell: "ATENDE", "NÃO ATENDE", "SEM DADO" where none of what is
/// required could be compared, "sem verificação" without activity.
ReportCell VerdictCell(const Simulation::ZoneAnalysis& analysis);

} // namespace Merivane::Document
