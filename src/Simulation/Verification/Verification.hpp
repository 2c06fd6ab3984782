#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Simulation/PointStatistics.hpp"
#include "Simulation/Verification/ZoneRequirement.hpp"

namespace Merivane::Simulation {

/// What was calculated for a Zone and what its luminaires declare.
struct VerificationInput {
    ZoneRequirement requirement;
    PointStatistics statistics; ///< task area of the work plane
    bool hasSurround = false;   ///< immediate surround of the task area
    PointStatistics surround;
    bool hasUgr = false;
    double ugr = 0.0;          ///< tabular value
    std::int32_t ugrLimit = 0; ///< the activity's UGRL
    std::int32_t luminaireCount = 0;
    std::int32_t raCount = 0; ///< luminaires that declare a Ra
    double raMinimum = 0.0;
    std::int32_t luminanceCount = 0;  ///< luminaires whose luminance could be worked out
    double luminanceMaximum = 0.0;    ///< [cd/m2]
    double ceilingReflectance = -1.0; ///< area mean [0..1]; -1 = unknown
    double wallReflectance = -1.0;
    double floorReflectance = -1.0;
    double maintenanceFactor = 0.0; ///< smallest; 0 = unknown
};

/// Whether a criterion counts in the result.
enum class VerificationKind : std::uint32_t { Requirement = 0, Recommendation = 1 };

/// One criterion of the standard against the Zone.
struct VerificationRow {
    std::string criterion;
    std::string calculated; ///< as printed, with its unit
    std::string required;
    bool hasData = true;
    bool passes = false; ///< meaningful only with `hasData`
    VerificationKind kind = VerificationKind::Requirement;

    bool operator==(const VerificationRow&) const = default;
};

/// The rows of a Zone, in the order of print; none without activity or without points. Values are
/// compared as printed.
std::vector<VerificationRow> VerifyZone(const VerificationInput& input);

/// False when a required row has data and fails; true otherwise, without rows too.
bool VerificationPasses(const std::vector<VerificationRow>& rows);

/// "ATENDE", "NÃO ATENDE" or "SEM DADO".
std::string RowState(const VerificationRow& row);

/// The row as the run log tells it, without accents in its state.
std::string RowLogLine(const VerificationRow& row);

/// Illuminance of the immediate surround that the standard asks for beside a task of `em` [lux].
double SurroundIlluminance(double em);

/// Reference illuminances of a room's surfaces (EN 12464-1) [lux] and their uniformity [0..1].
struct ReferenceSurfaces {
    double wallEm = 50.0;
    double ceilingEm = 30.0;
    double u0 = 0.1;
};

/// The reference of a section of the table of activities, by its name.
ReferenceSurfaces ReferenceSurfaceValues(std::string_view sectionName);

} // namespace Merivane::Simulation
