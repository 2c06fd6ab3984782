#pragma once

#include <string>

#include "Document/Report/Report.hpp"

namespace Merivane::Document {

/// Writes the report as one HTML page that needs nothing beside it: no script, no link but those to
/// its own sections, drawings within. Readable on a phone, printable on A4. The same report gives
/// the same bytes.
///
/// Returns false and sets `error` to one Portuguese sentence where a drawing can't be drawn; `html`
/// is then untouched.
bool WriteReportHtml(const Report& report, std::string& html, std::string& error);

} // namespace Merivane::Document
