#include <utility>

#include "Document/JsonParts.hpp"
#include "Document/ZoneExplanation.hpp"
#include "Document/ZoneResultJson.hpp"
#include "Simulation/Glare/StandardRoom.hpp"

namespace Merivane::Document {

namespace {

using Catalog::JsonValue;
using Simulation::ModelGlare;
using Simulation::TabularOmission;
using Simulation::ZoneGlare;

JsonValue OmissionJson(TabularOmission omission) {
    switch (omission) {
    case TabularOmission::None:
        return {};
    case TabularOmission::Linear:
        return JsonValue::MakeString("fita ou linear contínua");
    case TabularOmission::BelowEye:
        return JsonValue::MakeString("menos de 0,30 m acima do olho");
    case TabularOmission::NoOpening:
        return JsonValue::MakeString("o IES não informa a abertura luminosa");
    }
    return {};
}

/// Where the table was read: standard room and reflectances, the sight of the worst case.
JsonValue ReadingJson(const Simulation::TabularUgr& tabular) {
    const auto set = static_cast<std::size_t>(tabular.reflectanceSet);
    const Simulation::ReflectanceSet& reflectances = Simulation::ReflectanceSets[set];
    JsonValue json;
    json.Set("sala", Numbers({tabular.roomX, tabular.roomY}));
    json.Set("zona", Numbers({tabular.ratioX, tabular.ratioY}));
    json.Set("refletancias",
             Numbers({reflectances.ceiling, reflectances.walls, reflectances.floor}));
    json.Set("visada", JsonValue::MakeString(tabular.crosswise ? "transversal" : "ao longo"));
    return json;
}

JsonValue ModelJson(const ModelGlare& model) {
    const bool read = model.omission == TabularOmission::None;
    JsonValue json;
    json.Set("nome", JsonValue::MakeString(model.name));
    json.Set("luminarias", Integer(static_cast<std::int64_t>(model.count)));
    json.Set("H", JsonValue::MakeNumber(model.height));
    json.Set("UGR", NumberOrNull(read, model.tabular.ugr));
    json.Set("leitura", read ? ReadingJson(model.tabular) : JsonValue());
    json.Set("referencia", NumberOrNull(read, model.referenceUgr));
    json.Set("CIE147", NumberOrNull(read && model.isSmall, model.smallSourceUgr));
    json.Set("fluxoParaCima", JsonValue::MakeNumber(model.upwardFlux));
    json.Set("motivo", OmissionJson(model.omission));
    return json;
}

JsonValue ObserverJson(const Simulation::ObserverGlareRecord& record) {
    const Simulation::UgrObserver& observer = record.observer.observer;
    const Simulation::GlareResult& result = record.result;
    JsonValue json;
    json.Set("nome", JsonValue::MakeString(observer.label));
    json.Set("colocado", JsonValue::MakeBool(record.observer.placed));
    json.Set("posicao", Numbers({observer.x, observer.y, observer.z}));
    json.Set("visada", Numbers({observer.dx, observer.dy}));
    json.Set("refletida", JsonValue::MakeNumber(record.observer.verticalIlluminance));
    json.Set("UGR", NumberOrNull(result.valid, result.ugr));
    json.Set("Lb", NumberOrNull(result.valid, result.background));
    json.Set("naSoma", Integer(result.sources));
    json.Set("fontesGrandes", Integer(result.largeSources));
    json.Set("semArea", Integer(result.withoutArea));
    json.Set("foraDoCampo", Integer(result.outOfField));
    return json;
}

JsonValue ObserversJson(const Simulation::ZoneAnalysis& analysis, const Simulation::Scene& scene,
                        bool explained) {
    JsonValue list = JsonValue::MakeArray();
    for (const Simulation::ObserverGlareRecord& record : analysis.glare.observers) {
        list.items.push_back(ObserverJson(record));
    }
    if (!explained) {
        return list;
    }
    const JsonValue room = GlareExplanationJson(ExplainZone("", analysis, scene));
    const std::vector<JsonValue>& rows = room.Find("observadores")->items;
    for (std::size_t i = 0; i < list.items.size(); ++i) {
        for (const char* key : {"soma", "linhas"}) {
            list.items[i].Set(key, *rows[i].Find(key));
        }
    }
    return list;
}

JsonValue ReflectancesJson(const ZoneGlare& glare) {
    JsonValue json;
    json.Set("teto", JsonValue::MakeNumber(glare.ceilingReflectance));
    json.Set("paredes", JsonValue::MakeNumber(glare.wallReflectance));
    return json;
}

} // namespace

JsonValue GlareJson(const Simulation::ZoneAnalysis& analysis, const Simulation::Scene& scene,
                    bool explained) {
    const ZoneGlare& glare = analysis.glare;
    JsonValue models = JsonValue::MakeArray();
    for (const ModelGlare& model : glare.models) {
        models.items.push_back(ModelJson(model));
    }
    JsonValue json;
    json.Set("UGR", NumberOrNull(glare.hasUgr, glare.ugr));
    json.Set("referencia", NumberOrNull(glare.hasUgr, glare.referenceUgr));
    json.Set("CIE147", NumberOrNull(glare.hasSmallSourceUgr, glare.smallSourceUgr));
    json.Set("refletancias", ReflectancesJson(glare));
    json.Set("fatorDeManutencao", JsonValue::MakeNumber(glare.maintenanceFactor));
    json.Set("modelos", std::move(models));
    json.Set("observadores", ObserversJson(analysis, scene, explained));
    json.Set("observacoes", Texts(glare.notes));
    json.Set("avisos", Texts(glare.warnings));
    return json;
}

} // namespace Merivane::Document
