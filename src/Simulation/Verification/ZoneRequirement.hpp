#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "Simulation/PointStatistics.hpp"

namespace Merivane::Simulation {

/// The edition of the standard that a project is verified against; both have the same values.
enum class ReferenceStandard : std::uint32_t { Brazilian = 0, International = 1 };

/// "ABNT NBR ISO/CIE 8995-1:2013" or "ISO/CIE 8995-1:2002".
std::string ReferenceStandardName(ReferenceStandard standard);

/// Screens of a workplace, as `ZoneRequirement::screens` tells them.
inline constexpr std::int32_t ScreensAutomatic = -1;
inline constexpr std::int32_t ScreensNone = 0;
inline constexpr std::int32_t ScreensClass1And2 = 1;
inline constexpr std::int32_t ScreensClass3 = 3;

/// What is required of a Zone.
struct ZoneRequirement {
    std::string taskId; ///< id of a `TaskRow`; empty = the Zone is not verified
    double em = 0.0;    ///< [lux]
    double u0 = 0.7;    ///< [0..1]
    std::int32_t screens = ScreensAutomatic;

    bool operator==(const ZoneRequirement&) const = default;
};

/// Requirements by Zone key, the text form of the Zone element's GUID.
using ZoneRequirementMap = std::map<std::string, ZoneRequirement>;

/// The requirement that an activity makes, by its id or old word key. An unknown id keeps Em 0 and
/// U0 0.7.
ZoneRequirement RequirementFromTask(std::string_view id);

/// Quick check of Em and U0 as printed.
struct TaskCheck {
    bool defined = false; ///< there is an activity and there are points
    bool emOk = false;
    bool u0Ok = false;
};

TaskCheck CheckAgainstTask(const PointStatistics& statistics, const ZoneRequirement& requirement);

/// A Zone of a calculation, as the choice of activities needs it.
struct ZoneName {
    std::string key; ///< text form of the GUID
    std::string name;
};

/// One row of the choice of activities.
struct ZoneRequirementRow {
    ZoneName zone;
    ZoneRequirement requirement;
    bool suggested = false; ///< by the Zone's name, not yet accepted
};

/// The rows for the Zones of a calculation, same order: what is stored for a Zone, otherwise what
/// its name suggests.
std::vector<ZoneRequirementRow> PrepareRequirements(const std::vector<ZoneName>& zones,
                                                    const ZoneRequirementMap& stored);

/// Takes the rows into the stored requirements; entries of other Zones stay.
void StoreRequirements(const std::vector<ZoneRequirementRow>& rows, ZoneRequirementMap& stored);

} // namespace Merivane::Simulation
