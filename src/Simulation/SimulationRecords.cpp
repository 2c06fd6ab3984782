#include "Simulation/SimulationRecords.hpp"

namespace Merivane::Simulation {

std::string StageTitle(SimulationStage stage, std::uint64_t pointCount) {
    switch (stage) {
    case SimulationStage::Preparing:
        return "Preparando a cena (luminárias e geometria)";
    case SimulationStage::Seed:
        return "Luz refletida entre as superfícies (semente)";
    case SimulationStage::Points:
        return "Pontos de cálculo (" + std::to_string(pointCount) + ")";
    case SimulationStage::Observers:
        return "Observadores (UGR)";
    }
    return {};
}

} // namespace Merivane::Simulation
