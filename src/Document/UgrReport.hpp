#pragma once

#include <string>
#include <vector>

#include "Catalog/Json.hpp"
#include "Document/GlareExplanation.hpp"
#include "Document/IesReport.hpp"
#include "Photometry/IesFile.hpp"
#include "Simulation/Glare/UgrTable.hpp"

namespace Merivane::Document {

/// The glare table of one luminaire model (CIE 117), as a data sheet gives it.
struct UgrReport {
    std::string fileName; ///< as the user named it
    bool ok = false;
    std::string error;                 ///< one Portuguese sentence when not `ok`
    std::vector<std::string> warnings; ///< also on a refusal; the last of them `UpwardWarning`
    std::string luminaire;             ///< the file's name of it, else the file's own name
    std::string product;               ///< maker, catalogue number and file name; may be empty
    Photometry::IesFile photometry;    ///< header texts in UTF-8 fit to be shown
    double height = 0.0;               ///< H, from the eye to the photometric centre [m]
    double flux = 0.0;                 ///< initial [lm]
    Simulation::UgrTableValues table;
    double referenceUgr = 0.0;   ///< room 4H x 8H, worst observer and direction
    bool isSmall = false;        ///< less than 0.005 m2 of luminous area shows from straight below
    double smallSourceUgr = 0.0; ///< CIE 147 in the same room, informative; only where `isSmall`
    double upwardFlux = 0.0;     ///< part of the light that goes above the horizontal [0..1]
};

/// Calculates the table of a file that was read, `height` (H) [m] above the eye, above 0. Not `ok`
/// when the file could not be read, is not of type C, has no light or declares no luminous opening.
UgrReport BuildUgrReport(const IesReport& file, double height);

/// The luminaire of a report as the calculation takes it.
Simulation::SceneLuminaire UgrLuminaire(const UgrReport& report);

/// The limits under which a data sheet's table is calculated.
Simulation::GlareOptions TableOptions();

/// A warning where more than 65 % of the light goes up, which the method does not cover; else
/// empty. `upwardFlux` [0..1].
std::string UpwardWarning(double upwardFlux);

/// What is told of a small source, to stand below the table; empty for any other.
std::string SmallSourceNote(const UgrReport& report);

/// The reference room of a report explained, luminaires turned and not turned: every observer,
/// every luminaire.
std::vector<ExplainedRoom> ExplainReferenceRoom(const UgrReport& report);

/// The table as lines of text for a person, without line ends. Only of a report that is `ok`.
std::vector<std::string> UgrReportLines(const UgrReport& report);

/// The table for a program: `arquivo`, `ok`, `erro` (null when there is none), `avisos`, and of a
/// file that has one `luminaria`, `altura` [m], `fluxo` [lm], `luzParaCima` [0..1], `salas` (19
/// pairs X, Y in multiples of H), `refletancias` (5 times ceiling, walls, floor), `transversal` and
/// `longitudinal` (19 rows of 5, unrounded), `referencia`, `fontePequena` (null where the source is
/// not small).
Catalog::JsonValue UgrReportJson(const UgrReport& report);

/// The table for a spreadsheet: UTF-8 with a byte order mark, columns parted by ";", decimal comma,
/// lines ended by CR LF; a row for each room, X and Y in multiples of H, two decimals.
std::string WriteUgrTable(const UgrReport& report);

} // namespace Merivane::Document
