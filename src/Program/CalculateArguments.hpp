#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Simulation/Verification/ZoneRequirement.hpp"

namespace Merivane::Program {

/// What the command line changes in the calculation dialog; the rest stays as the dialog has it.
struct CalculationChoices {
    std::optional<std::string> levels; ///< as typed; the dialog judges them
    std::optional<double> workPlaneHeight;
    std::optional<double> wallOffset;
    std::optional<double> borderBand;
    std::optional<double> valueSpacing; ///< values are written then
    std::optional<std::uint32_t> colorScale;
    bool noVerification = false;
    bool noSurfaces = false;
    bool noGlare = false;
    bool noColour = false;
    bool noFills = false;
    bool noCurves = false;
    bool noLabels = false;
    bool noLegend = false;
};

/// The activity of a Zone, as the command line names both.
struct ZoneActivity {
    std::string zone;
    std::string taskId; ///< of a row of the table; empty = none
};

/// `vantoro calcular`: the main command on a project.
struct CalculateArguments {
    std::string projectFile;
    std::string outputFolder;             ///< empty = beside the project that is written
    std::string saveAs;                   ///< empty = the project's own file
    std::string workFolder;               ///< empty = the one that all runs of the user share
    std::string answerFile;               ///< further answers to the dialogs
    std::vector<std::string> zones;       ///< "*" = all; empty = as in the host
    std::optional<std::uint32_t> profile; ///< of the engine, for this run
    double scale = 0.0;                   ///< of the plan; 0 = the project's
    CalculationChoices choices;
    std::vector<ZoneActivity> activities;
    std::optional<Simulation::ReferenceStandard> standard;
    bool verify = false; ///< exit status 3 when a required row fails
    bool repeatable = false;
    bool silent = false;
    bool json = false;
};

} // namespace Merivane::Program
