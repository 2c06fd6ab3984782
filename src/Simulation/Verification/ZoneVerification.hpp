#pragma once

#include <string>
#include <vector>

#include "Simulation/Scene.hpp"
#include "Simulation/Verification/Verification.hpp"
#include "Simulation/ZoneSpace.hpp"

namespace Merivane::Simulation {

/// What a Zone's results bring to its verification.
struct ZoneResults {
    ZoneRequirement requirement;
    PointStatistics statistics;
    bool hasUgr = false;
    double ugr = 0.0;
    double workPlaneHeight = 0.75; ///< parts floor from ceiling among the surfaces [m]
};

/// The verification of one Zone.
struct ZoneVerification {
    VerificationInput input;
    std::vector<VerificationRow> rows; ///< none for a Zone that is not verified
    bool passes = true;
    std::vector<std::string> log;   ///< lines of the run log; their fixed words have no accents
    std::vector<std::string> notes; ///< of its screens, printed with the mark "  [7]" behind them
};

/// Gathers what the scene tells of a Zone and verifies it. A Zone without activity, or with one
/// that the table does not hold, has no rows. Every copy of an array counts as a luminaire; the log
/// tells the luminance of the whole array in one line.
ZoneVerification VerifyZoneOfScene(const ZoneSpace& zone, const Scene& scene,
                                   const ZoneResults& results);

} // namespace Merivane::Simulation
