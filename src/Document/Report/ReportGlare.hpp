#pragma once

#include <cstddef>
#include <vector>

#include "Document/Report/Report.hpp"
#include "Document/Report/ReportInput.hpp"

namespace Merivane::Document {

/// The glare of the Zone at index `zone`: the value of the table and how it was read, what the
/// observers see, and, where the analysis kept them, the largest terms of the one who sees most.
/// Nothing where glare was not analysed.
std::vector<ReportBlock> BuildGlareBlocks(const ReportInput& input, std::size_t zone);

} // namespace Merivane::Document
