#include "Simulation/EngineDialogTexts.hpp"

#include "Text/Number.hpp"

namespace Merivane::Simulation {

std::string EngineTimeLine(const EngineSettings& settings, const LastRunRecord& lastRun) {
    const double cost = CostFactor(settings);
    std::string line = "Tempo: ~" + Text::FormatFixed(cost, 1) + "x o perfil Projeto.";
    if (lastRun.valid && lastRun.costFactor > 0.0) {
        line += " O último cálculo (" + std::to_string(lastRun.points) + " pontos) levou " +
                Text::FormatFixed(lastRun.seconds, 0) + " s; com esta configuração levaria ~" +
                Text::FormatFixed(lastRun.seconds * cost / lastRun.costFactor, 0) + " s.";
    }
    return line;
}

std::string EngineWarningsText(const EngineSettings& settings) {
    std::string text;
    for (const std::string& warning : EngineWarnings(settings)) {
        text += (text.empty() ? "⚠ " : "\n⚠ ") + warning;
    }
    return text;
}

} // namespace Merivane::Simulation
