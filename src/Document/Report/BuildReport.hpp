#pragma once

#include "Document/Report/Report.hpp"
#include "Document/Report/ReportInput.hpp"

namespace Merivane::Document {

/// Puts the report of a calculation together, in the order in which it is read.
Report BuildReport(const ReportInput& input);

} // namespace Merivane::Document
