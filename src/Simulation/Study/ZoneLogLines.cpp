#include "Simulation/Study/ZoneLogLines.hpp"

#include "Simulation/PrintedValue.hpp"

namespace Merivane::Simulation {

namespace {

std::string Verdict(bool met) {
    return met ? " - atende" : " - NAO ATENDE";
}

} // namespace

std::string PlaneLogLine(const std::string& name, const PointStatistics& statistics) {
    return name + ": Em " + FormatDecimal(statistics.mean, 0) + " lx, U0 " +
           FormatDecimal(statistics.uniformity, 2);
}

std::string ZoneFiguresLogLine(const ZoneDrawing& drawing) {
    const PointStatistics& statistics = drawing.analysis.statistics;
    return drawing.zone.name + ": Em " + FormatDecimal(statistics.mean, 0) + " lx, Emin " +
           FormatDecimal(statistics.minimum, 0) + " lx, Emax " +
           FormatDecimal(statistics.maximum, 0) + " lx, U0 " +
           FormatDecimal(statistics.uniformity, 2) + " (" + std::to_string(statistics.count) +
           " pontos, " + std::to_string(drawing.curves.size()) + " curva(s))";
}

std::string ZoneTaskLogLine(const ZoneDrawing& drawing) {
    const ZoneRequirement& requirement = drawing.zone.task.requirement;
    const PointStatistics& statistics = drawing.analysis.statistics;
    const TaskCheck check = CheckAgainstTask(statistics, requirement);
    if (drawing.analysis.task == nullptr || !check.defined) {
        return "";
    }
    return drawing.zone.name + " (" + drawing.analysis.task->activity + "): Em " +
           FormatDecimal(statistics.mean, 0) + " lx / minimo " + FormatDecimal(requirement.em, 0) +
           Verdict(check.emOk) + "; U0 " + FormatDecimal(statistics.uniformity, 2) + " / minimo " +
           FormatDecimal(requirement.u0, 2) + Verdict(check.u0Ok);
}

} // namespace Merivane::Simulation
