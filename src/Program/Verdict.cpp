#include "Program/Verdict.hpp"

#include "Program/CommandLine.hpp"
#include "Program/Message.hpp"
#include "Program/ZoneReport.hpp"

namespace Merivane::Program {

int Verdict(const Simulation::LightingStudy& study,
            const std::vector<Simulation::ZoneAnalysis>& analyses) {
    const std::string failing = FailingZones(study, analyses);
    if (!failing.empty()) {
        TellError("não atende à norma: " + failing);
        return StatusNotMet;
    }
    if (!AnyVerified(analyses)) { // a gate that checks nothing should not go unnoticed
        TellError("nenhuma Zona tem atividade: nada foi verificado");
    }
    return StatusDone;
}

} // namespace Merivane::Program
