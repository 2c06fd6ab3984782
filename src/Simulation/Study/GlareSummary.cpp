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
    return HasUgrLimit(analysis) ? " (UGRL " + std::to_string(analysis.task->ugrLimit) + ")"
                                 : " (" + NoLimitText(true) + ")";
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
    if (const std::string reading = WorstReading(glare); !reading.empty()) {
        lines.push_back("UGR " + FormatUgr(glare.ugr) + LimitText(analysis) + ": " + reading);
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
    for (const std::string& note : {SmallSourceNote(glare), PositionsNote(glare.observers)}) {
        if (!note.empty()) {
            lines.push_back(note);
        }
    }
    return lines;
}

std::string WorstReading(const ZoneGlare& glare) {
    const ModelGlare* worst = WorstModel(glare);
    return worst != nullptr ? ReadingText(*worst, glare) : "";
}

bool HasUgrLimit(const ZoneAnalysis& analysis) {
    return analysis.task != nullptr && analysis.task->ugrLimit >= 1;
}

} // namespace Merivane::Simulation
