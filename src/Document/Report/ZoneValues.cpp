#include "Document/Report/ZoneValues.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>
#include <utility>

#include "Document/Report/ReportText.hpp"
#include "Simulation/PrintedValue.hpp"
#include "Simulation/Verification/ScreenLuminance.hpp"

namespace Merivane::Document {

namespace {

using Simulation::FormatDecimal;
using Simulation::StudyZone;

/// Lines that several Zones share, in the order of their first Zone.
struct SharedValues {
    struct Shared {
        std::string value;
        std::string reason;
        std::vector<std::string> zones;
    };
    std::vector<Shared> values;

    void Add(const std::string& zone, const std::string& value, const std::string& reason) {
        const auto found = std::find_if(values.begin(), values.end(), [&](const Shared& shared) {
            return shared.value == value && shared.reason == reason;
        });
        if (found != values.end()) {
            found->zones.push_back(zone);
        } else {
            values.push_back({value, reason, {zone}});
        }
    }
};

std::string ZonesText(const std::vector<std::string>& names, std::size_t all) {
    if (names.size() == all && all > 1) {
        return "Todas as Zonas";
    }
    return (names.size() == 1 ? "Zona " : "Zonas ") + ListText(names);
}

void TakeTask(const StudyZone& zone, const Simulation::ZoneAnalysis& analysis,
              SharedValues& shared) {
    if (analysis.task == nullptr) {
        const std::string& id = zone.task.requirement.taskId;
        shared.Add(zone.name, "sem verificação",
                   id.empty() ? "nenhuma atividade definida"
                              : "a atividade \"" + id + "\" não está na tabela");
        return;
    }
    if (zone.task.byName) {
        shared.Add(zone.name, analysis.task->activity + " (" + analysis.task->id + ")",
                   "atividade sugerida pelo nome da Zona");
    }
}

void TakeCeiling(const StudyZone& zone, const Simulation::ZoneCeiling& ceiling,
                 SharedValues& shared) {
    constexpr double noticed = 0.005; // m
    if (!ceiling.detected) {
        shared.Add(zone.name, "pé-direito " + MetresText(zone.height),
                   "nenhum forro encontrado no modelo: vale a altura da Zona");
    } else if (std::abs(ceiling.detected->height - ceiling.zoneHeight) >= noticed) {
        shared.Add(zone.name, "pé-direito " + MetresText(ceiling.detected->height),
                   "forro do modelo sobre " + PercentText(ceiling.detected->share) +
                       " da área; a altura da Zona é " + MetresText(ceiling.zoneHeight));
    }
}

std::string ScreensText(std::int32_t screens) {
    switch (screens) {
    case Simulation::ScreensNone:
        return "sem telas";
    case Simulation::ScreensClass3:
        return "telas da classe III, luminância até 200 cd/m²";
    default:
        return "telas das classes I e II, luminância até 1000 cd/m²";
    }
}

void TakeScreens(const StudyZone& zone, const Simulation::ZoneAnalysis& analysis,
                 SharedValues& shared) {
    const Simulation::ZoneRequirement& requirement = zone.task.requirement;
    if (analysis.task != nullptr && requirement.screens == Simulation::ScreensAutomatic) {
        shared.Add(zone.name, ScreensText(Simulation::ResolveScreens(requirement)),
                   "deduzido do texto da atividade");
    }
}

void TakeTaskArea(const StudyZone& zone, const Simulation::ZoneAnalysis& analysis,
                  SharedValues& shared) {
    if (analysis.task != nullptr && !analysis.verification.input.hasSurround) {
        shared.Add(zone.name, "área de tarefa: a Zona menos a faixa de borda",
                   "nenhum posto de trabalho definido: o entorno imediato não é verificado");
    }
}

void TakeGrid(const StudyZone& zone, const Simulation::CalculationGrid& grid,
              SharedValues& shared) {
    const Simulation::GridSettings usual;
    const std::string kept = "ajuste de partida, mantido";
    if (zone.grid.workPlaneHeight == usual.workPlaneHeight) {
        shared.Add(zone.name, "plano de trabalho a " + MetresText(usual.workPlaneHeight), kept);
    }
    if (zone.grid.borderBand == usual.borderBand) {
        shared.Add(zone.name, "faixa de borda de " + MetresText(usual.borderBand), kept);
    }
    if (zone.grid.wallOffset == usual.wallOffset) {
        shared.Add(zone.name, "pontos a " + MetresText(usual.wallOffset) + " das paredes", kept);
    }
    if (!(zone.grid.spacing > 0.0)) {
        shared.Add(zone.name,
                   "pontos a cada " + FormatDecimal(grid.stepX, 2) + " × " + MetresText(grid.stepY),
                   "espaçamento automático, pela área da Zona");
    }
}

void TakeGlareRoom(const StudyZone& zone, const Simulation::ZoneAnalysis& analysis,
                   SharedValues& shared) {
    const Simulation::ZoneGlare& glare = analysis.glare;
    if (!glare.hasUgr) {
        return;
    }
    if (analysis.verification.input.ceilingReflectance < 0.0) {
        shared.Add(zone.name, "teto de " + PercentText(glare.ceilingReflectance) + " na tabela UGR",
                   "nenhum teto encontrado no modelo");
    }
    if (analysis.verification.input.wallReflectance < 0.0) {
        shared.Add(zone.name, "paredes de " + PercentText(glare.wallReflectance) + " na tabela UGR",
                   "nenhuma parede encontrada no modelo");
    }
    shared.Add(zone.name, "piso de 20 % na tabela UGR",
               "o piso das tabelas padronizadas vale para qualquer sala");
}

} // namespace

std::vector<AdoptedValue> CollectZoneValues(const ReportInput& input) {
    const std::vector<StudyZone>& zones = input.study.zones;
    SharedValues tasks;
    SharedValues others;
    for (std::size_t i = 0; i < zones.size(); ++i) {
        const Simulation::ZoneAnalysis& analysis = input.analyses[i];
        TakeTask(zones[i], analysis, tasks);
        if (i < input.ceilings.size()) {
            TakeCeiling(zones[i], input.ceilings[i], tasks);
        }
        TakeScreens(zones[i], analysis, others);
        TakeTaskArea(zones[i], analysis, others);
        const std::size_t plane = Simulation::WorkPlaneOf(input.built, i);
        TakeGrid(zones[i], input.built.scene.sensorPlanes[plane].grid, others);
        TakeGlareRoom(zones[i], analysis, others);
    }
    std::vector<AdoptedValue> values;
    for (const SharedValues* shared : {&tasks, &others}) {
        for (const SharedValues::Shared& line : shared->values) {
            values.push_back({ZonesText(line.zones, zones.size()), line.value, line.reason});
        }
    }
    return values;
}

} // namespace Merivane::Document
