#include "Simulation/Verification/ZoneRequirementTexts.hpp"

#include "Simulation/Verification/ScreenLuminance.hpp"
#include "Simulation/Verification/TaskSearch.hpp"
#include "Text/Number.hpp"

namespace Merivane::Simulation {

namespace {

std::string Lux(double illuminance) {
    return Text::FormatFixed(illuminance, 0) + " lx";
}

} // namespace

std::string StandardEntry(ReferenceStandard standard) {
    const bool brazilian = standard == ReferenceStandard::Brazilian;
    return ReferenceStandardName(standard) + (brazilian ? " (Brasil)" : " (internacional)");
}

std::string SectionEntry(std::int32_t number, const std::string& name) {
    return std::to_string(number) + ". " + name;
}

std::string ActivityEntry(const TaskRow& task) {
    return task.activity + "  (" + Lux(task.em) + ")";
}

std::string ActivityCell(const ZoneRequirementRow& row) {
    const TaskRow* const task = FindTask(row.requirement.taskId);
    if (!task) {
        return "(não verificar)";
    }
    return SectionEntry(task->section, task->activity) +
           (row.suggested ? " (sugerida pelo nome)" : "");
}

std::string IlluminanceCell(const ZoneRequirement& requirement) {
    return Lux(requirement.em);
}

std::string UniformityCell(const ZoneRequirement& requirement) {
    return Text::FormatFixed(requirement.u0, 2);
}

std::string AutomaticScreensEntry(const ZoneRequirement& requirement) {
    ZoneRequirement automatic = requirement;
    automatic.screens = ScreensAutomatic;
    return ResolveScreens(automatic) == ScreensNone
               ? "Automático (pela atividade: sem telas)"
               : "Automático (pela atividade: telas classes I e II)";
}

std::string ActivityNote(const ZoneRequirement& requirement) {
    const TaskRow* const task = FindTask(requirement.taskId);
    if (!task) {
        return {};
    }
    const std::string ugr = task->ugrLimit == 0 ? "-" : std::to_string(task->ugrLimit);
    return "Tabela da norma: Em " + Lux(task->em) + ", UGRL " + ugr + ", Ra " +
           std::to_string(task->ra) + (task->note.empty() ? "" : ".  Observações: " + task->note);
}

} // namespace Merivane::Simulation
