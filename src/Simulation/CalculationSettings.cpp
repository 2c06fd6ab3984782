#include "Simulation/CalculationSettings.hpp"

#include <utility>

namespace Merivane::Simulation {

namespace {

// A centimetre, less what typing and units lose of it.
constexpr double LeastWallOffset = 0.009999999;

std::string RepresentationError(const CalculationSettings& settings) {
    if (!settings.fills && !settings.curves && !settings.values) {
        return "Escolha ao menos uma representacao: mapa de cor falsa, curvas isolux ou valores.";
    }
    if (settings.values && !(settings.valueSpacing > 0.0)) {
        return "O espacamento dos valores precisa ser maior que zero.";
    }
    return {};
}

std::string DistanceError(const CalculationSettings& settings) {
    if (!(settings.wallOffset >= LeastWallOffset)) {
        return "O afastamento dos pontos da parede precisa ser de pelo menos 1 cm.";
    }
    if (!(settings.workPlaneHeight >= 0.0)) {
        return "A altura do plano de trabalho nao pode ser negativa.";
    }
    if (!(settings.wallOffset <= settings.borderBand)) {
        return "A faixa de borda das estatisticas nao pode ser menor que o afastamento dos pontos.";
    }
    return {};
}

} // namespace

bool CheckCalculationSettings(CalculationSettings& settings, std::string_view levelsText,
                              std::string& error) {
    error = RepresentationError(settings);
    if (!error.empty()) {
        return false;
    }
    LevelList levels;
    if (!ParseLevels(levelsText, levels, error)) {
        error = "Niveis de iluminancia: " + error +
                ".\nExemplo: 50; 100; 150; 200; 300; 500; 750; 1000";
        return false;
    }
    error = DistanceError(settings);
    if (!error.empty()) {
        return false;
    }
    settings.levels = std::move(levels);
    return true;
}

} // namespace Merivane::Simulation
