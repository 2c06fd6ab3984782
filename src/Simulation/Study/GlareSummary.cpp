#include "Simulation/Study/GlareSummary.hpp"

#include "Simulation/Glare/ObserverGlare.hpp"
#include "Simulation/Glare/StandardRoom.hpp"
#include "Simulation/Glare/ZoneGlareTexts.hpp"

namespace Merivane::Simulation {

namespace {

/// The model whose value is the Zone's; null without one.
const ModelGlare* WorstModel(const ZoneGlare& glare) {
    const ModelGlare* worst = nullptr;
    for (const ModelGlare& model : glare.models) {
        if (model.omission == TabularOmission::None &&
            (worst == nullptr || model.tabular.ugr > worst->tabular.ugr)) {
            worst = &model;
        }
    }
    return worst;
}

std::string LimitText(const ZoneAnalysis& analysis) {
    if (analysis.task == nullptr) {
        return "";
    }
    const std::int32_t limit = analysis.task->ugrLimit;
    return limit > 0 ? " (UGRL " + std::to_string(limit) + ")" : " (" + NoLimitText(true) + ")";
}

/// How the table was read for a model, or why it has no value.
std::string ReadingText(const ModelGlare& model, const ZoneGlare& glare) {
    const ReflectanceSet room = {glare.ceilingReflectance, glare.wallReflectance,
                                 ReflectanceSets.front().floor};
    return ModelNote(model, room, glare.models.size() > 1);
}

} // namespace

std::vector<std::string> GlareSummary(const ZoneAnalysis& analysis) {
    const ZoneGlare& glare = analysis.glare;
    std::vector<std::string> lines;
    if (const ModelGlare* worst = WorstModel(glare)) {
        lines.push_back("UGR " + FormatUgr(glare.ugr) + LimitText(analysis) + ": " +
                        ReadingText(*worst, glare));
        lines.push_back("UGR na sala de referência 4H x 8H: " + FormatUgr(glare.referenceUgr));
    }
    for (const ModelGlare& model : glare.models) {
        if (model.omission != TabularOmission::None) {
            lines.push_back("UGR, " + ReadingText(model, glare));
        }
    }
    if (glare.models.empty()) {
        lines.insert(lines.end(), glare.notes.begin(), glare.notes.end());
    }
    if (glare.hasSmallSourceUgr && glare.smallSourceUgr > 0.0) {
        lines.push_back("Fonte pequena: pela CIE 147 o UGR seria " +
                        FormatUgr(glare.smallSourceUgr) + " (só informativo)");
    }
    const std::string positions = PositionsNote(glare.observers);
    if (!positions.empty()) {
        lines.push_back(positions);
    }
    return lines;
}

} // namespace Merivane::Simulation
