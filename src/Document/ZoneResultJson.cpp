#include "Document/ZoneResultJson.hpp"

#include "Document/JsonParts.hpp"
#include "Simulation/Verification/ScreenLuminance.hpp"

namespace Merivane::Document {

namespace {

using Catalog::JsonValue;

JsonValue ActivityJson(const Simulation::StudyZone& zone, const Simulation::TaskRow& task) {
    JsonValue json;
    json.Set("id", JsonValue::MakeString(task.id));
    json.Set("secao", Integer(task.section));
    json.Set("nomeDaSecao", JsonValue::MakeString(task.sectionName));
    json.Set("nome", JsonValue::MakeString(task.activity));
    json.Set("sugerida", JsonValue::MakeBool(zone.task.byName));
    return json;
}

std::string ScreensText(std::int32_t screens) {
    switch (screens) {
    case Simulation::ScreensClass1And2:
        return "classes I e II";
    case Simulation::ScreensClass3:
        return "classe III";
    default:
        return "nenhuma";
    }
}

JsonValue RequirementJson(const Simulation::StudyZone& zone, const Simulation::TaskRow& task) {
    const Simulation::ZoneRequirement& requirement = zone.task.requirement;
    const std::int32_t screens = Simulation::ResolveScreens(requirement);
    const double luminance = Simulation::ScreenLuminanceLimit(screens);
    JsonValue json;
    json.Set("Em", JsonValue::MakeNumber(requirement.em));
    json.Set("U0", JsonValue::MakeNumber(requirement.u0));
    json.Set("UGRL", NumberOrNull(task.ugrLimit > 0, task.ugrLimit));
    json.Set("Ra", Integer(task.ra));
    json.Set("telas", JsonValue::MakeString(ScreensText(screens)));
    json.Set("luminancia", NumberOrNull(luminance > 0.0, luminance));
    return json;
}

JsonValue RowJson(const Simulation::VerificationRow& row) {
    JsonValue json;
    json.Set("criterio", JsonValue::MakeString(row.criterion));
    json.Set("calculado", JsonValue::MakeString(row.calculated));
    json.Set("exigido", JsonValue::MakeString(row.required));
    json.Set("estado", JsonValue::MakeString(Simulation::RowState(row)));
    json.Set("recomendacao",
             JsonValue::MakeBool(row.kind == Simulation::VerificationKind::Recommendation));
    return json;
}

JsonValue RowsJson(const std::vector<Simulation::VerificationRow>& rows) {
    JsonValue list = JsonValue::MakeArray();
    for (const Simulation::VerificationRow& row : rows) {
        list.items.push_back(RowJson(row));
    }
    return list;
}

JsonValue VerificationJson(const Simulation::ZoneAnalysis& analysis) {
    const std::string state = Simulation::OverallState(analysis);
    JsonValue json;
    json.Set("linhas", RowsJson(analysis.verification.rows));
    json.Set("resultado", state.empty() ? JsonValue() : JsonValue::MakeString(state));
    json.Set("observacoes", Texts(analysis.verification.notes));
    return json;
}

} // namespace

JsonValue ZoneResultJson(const Simulation::StudyZone& zone,
                         const Simulation::ZoneAnalysis& analysis, const Simulation::Scene& scene,
                         bool explained) {
    const Simulation::TaskRow* task = analysis.task;
    JsonValue json;
    json.Set("nome", JsonValue::MakeString(zone.name));
    json.Set("atividade", task != nullptr ? ActivityJson(zone, *task) : JsonValue());
    json.Set("exigido", task != nullptr ? RequirementJson(zone, *task) : JsonValue());
    json.Set("verificacao", VerificationJson(analysis));
    json.Set("superficies", RowsJson(analysis.surfaces));
    json.Set("ofuscamento",
             analysis.glareAnalysed ? GlareJson(analysis, scene, explained) : JsonValue());
    return json;
}

} // namespace Merivane::Document
