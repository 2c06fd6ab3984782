#pragma once

#include "Document/Report/Report.hpp"
#include "Drawing/PdfWriter.hpp"

namespace Merivane::Document {

/// Lays a report out on numbered upright A4 pages. Heads of tables are repeated, no heading stands
/// at the foot of a page. Each drawing has a page of its own behind the one that names it, upright
/// or across as it is itself, A4 or, where that would shrink it below 70 %, A3; the text goes on
/// below its name. The outline leads to sections and Zones.
Drawing::PdfBook LayOutReport(const Report& report);

} // namespace Merivane::Document
