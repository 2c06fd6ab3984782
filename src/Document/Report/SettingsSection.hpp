#pragma once

#include "Document/Report/Report.hpp"
#include "Document/Report/ReportInput.hpp"

namespace Merivane::Document {

/// The section on engine and settings: every number that the calculation was told.
ReportSection BuildSettingsSection(const ReportInput& input);

/// The section on versions: program, Radiance, and what else the caller tells.
ReportSection BuildVersionSection(const ReportInput& input);

} // namespace Merivane::Document
