#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Catalog/Json.hpp"
#include "Photometry/IesFile.hpp"

namespace Merivane::Document {

/// What a photometric file holds, as a person wants to know it.
struct IesReport {
    std::string fileName; ///< as the user named it
    bool ok = false;
    std::string error;                 ///< one Portuguese sentence when not `ok`
    std::vector<std::string> warnings; ///< also on a refusal
    Photometry::IesFile file;          ///< header texts in UTF-8 fit to be shown; only when `ok`
    double flux = -1.0;                ///< of the candela table [lm]; -1 when not of type C
    double peak = 0.0;                 ///< largest intensity [cd]
    double halfAngle = -1.0; ///< from the axis to half of it [deg]; -1 where there is none
};

/// Reads the bytes of a photometric file and derives its quantities.
IesReport BuildIesReport(const std::string& fileName, std::string_view bytes);

/// The same of a file on disk; one that can't be read gives a report that is not `ok`.
IesReport ReadIesReport(const std::string& fileName);

/// The luminous opening in words, in metres: "retangular, 0,60 x 0,60 m". `file` as read.
std::string OpeningText(const Photometry::IesFile& file);

/// The report as lines of text for a person, without line ends.
std::vector<std::string> IesReportLines(const IesReport& report);

/// The report for a program: `arquivo`, `ok`, `erro` (null when there is none), `avisos`, and of a
/// file that could be read `fluxo` [lm], `pico` [cd], `semiangulo` [deg] (null where the table has
/// none) and the fields of its header.
Catalog::JsonValue IesReportJson(const IesReport& report);

} // namespace Merivane::Document
