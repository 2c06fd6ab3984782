#include "Simulation/Study/SurfaceReference.hpp"

#include <algorithm>

#include "Simulation/PrintedValue.hpp"

namespace Merivane::Simulation {

namespace {

/// The statistics of two sets of points as those of one.
PointStatistics Join(const PointStatistics& a, const PointStatistics& b) {
    if (a.count == 0 || b.count == 0) {
        return a.count == 0 ? b : a;
    }
    PointStatistics both;
    both.count = a.count + b.count;
    both.mean = (a.mean * static_cast<double>(a.count) + b.mean * static_cast<double>(b.count)) /
                static_cast<double>(both.count);
    both.minimum = std::min(a.minimum, b.minimum);
    both.maximum = std::max(a.maximum, b.maximum);
    both.uniformity = both.mean > 0.0 ? both.minimum / both.mean : 0.0;
    return both;
}

void AppendRows(const std::string& name, const PointStatistics& statistics, double em, double u0,
                std::vector<VerificationRow>& rows) {
    if (statistics.count == 0) {
        return;
    }
    const auto row = [](const std::string& criterion, double value, double limit, int decimals,
                        const char* unit) {
        return VerificationRow{criterion,
                               FormatDecimal(value, decimals) + unit,
                               "≥ " + FormatDecimal(limit, decimals) + unit,
                               true,
                               MeetsMinimum(value, limit, decimals),
                               VerificationKind::Recommendation};
    };
    rows.push_back(row(name, statistics.mean, em, 0, " lx"));
    rows.push_back(row(name + " U0", statistics.uniformity, u0, 2, ""));
}

} // namespace

PointStatistics PlaneStatistics(const StudyScene& built, const SimulationResult& result,
                                std::size_t zone, PlaneKind kind) {
    PointStatistics all;
    for (std::size_t i = 0; i < built.planes.size() && i < result.zones.size(); ++i) {
        if (built.planes[i].zone == zone && built.planes[i].kind == kind) {
            all = Join(all, result.zones[i].statistics);
        }
    }
    return all;
}

std::vector<VerificationRow> SurfaceRows(const StudyScene& built, const SimulationResult& result,
                                         std::size_t zone, const TaskRow* task) {
    const ReferenceSurfaces reference =
        ReferenceSurfaceValues(task != nullptr ? task->sectionName : std::string());
    std::vector<VerificationRow> rows;
    AppendRows("Teto", PlaneStatistics(built, result, zone, PlaneKind::Ceiling),
               reference.ceilingEm, reference.u0, rows);
    AppendRows("Paredes", PlaneStatistics(built, result, zone, PlaneKind::Wall), reference.wallEm,
               reference.u0, rows);
    return rows;
}

} // namespace Merivane::Simulation
