#include "Document/ZoneExplanation.hpp"

namespace Merivane::Document {

ExplainedRoom ExplainZone(const std::string& zoneName, const Simulation::ZoneAnalysis& analysis,
                          const Simulation::Scene& scene) {
    ExplainedRoom room;
    room.title = "Ofuscamento na Zona \"" + zoneName + "\", posições reais";
    for (const Simulation::ZoneLight& light : analysis.glare.lights) {
        room.lights.push_back({scene.luminaires[light.luminaire].displayName, light.center});
    }
    for (const Simulation::ObserverGlareRecord& record : analysis.glare.observers) {
        room.observers.push_back({record.observer.observer, record.result, record.terms});
    }
    return room;
}

} // namespace Merivane::Document
