#include "Simulation/Verification/ZoneRequirement.hpp"

#include "Simulation/PrintedValue.hpp"
#include "Simulation/Verification/TaskSearch.hpp"

namespace Merivane::Simulation {

std::string ReferenceStandardName(ReferenceStandard standard) {
    return standard == ReferenceStandard::International ? "ISO/CIE 8995-1:2002"
                                                        : "ABNT NBR ISO/CIE 8995-1:2013";
}

ZoneRequirement RequirementFromTask(std::string_view id) {
    ZoneRequirement requirement;
    requirement.taskId = MigrateTaskId(id);
    if (const TaskRow* row = FindTask(requirement.taskId)) {
        requirement.em = row->em;
        requirement.u0 = row->u0;
    }
    return requirement;
}

TaskCheck CheckAgainstTask(const PointStatistics& statistics, const ZoneRequirement& requirement) {
    TaskCheck check;
    check.defined = !requirement.taskId.empty() && statistics.count > 0;
    check.emOk = MeetsMinimum(statistics.mean, PrintedValue(requirement.em, 0), 0);
    check.u0Ok = MeetsMinimum(statistics.uniformity, PrintedValue(requirement.u0, 2), 2);
    return check;
}

std::vector<ZoneRequirementRow> PrepareRequirements(const std::vector<ZoneName>& zones,
                                                    const ZoneRequirementMap& stored) {
    std::vector<ZoneRequirementRow> rows;
    rows.reserve(zones.size());
    for (const ZoneName& zone : zones) {
        ZoneRequirementRow row;
        row.zone = zone;
        if (const auto found = stored.find(zone.key); found != stored.end()) {
            row.requirement = found->second;
        } else {
            row.requirement = RequirementFromTask(SuggestTaskId(zone.name));
            row.suggested = !row.requirement.taskId.empty();
        }
        rows.push_back(row);
    }
    return rows;
}

void StoreRequirements(const std::vector<ZoneRequirementRow>& rows, ZoneRequirementMap& stored) {
    for (const ZoneRequirementRow& row : rows) {
        stored[row.zone.key] = row.requirement;
    }
}

} // namespace Merivane::Simulation
