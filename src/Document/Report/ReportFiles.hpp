#pragma once

#include <string>

#include "Document/Report/ReportInput.hpp"

namespace Merivane::Document {

/// The report of a calculation in both of its forms.
struct ReportFiles {
    std::string html; ///< one page that needs nothing beside it
    std::string pdf;  ///< A4
};

/// Builds the report of a calculation, to be handed over: title and the verdict of each Zone, every
/// value that was adopted for want of information, the plan with results, each Zone with its
/// verification and glare, reflectances, luminaires, engine and settings, versions, the log. The
/// same input gives the same bytes.
///
/// Returns false and sets `error` to one Portuguese sentence where a picture can't be drawn;
/// `files` is then untouched.
bool BuildReportFiles(const ReportInput& input, ReportFiles& files, std::string& error);

} // namespace Merivane::Document
