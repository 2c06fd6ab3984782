#include "SummarySamples.hpp"

#include "Simulation/Glare/ZoneGlareTexts.hpp"
#include "Simulation/Verification/TaskSearch.hpp"

namespace Merivane::Tests {

using namespace Simulation;

ZoneDrawing PlainDrawing() {
    ZoneDrawing drawing;
    drawing.zone.name = "Sala 1";
    drawing.zone.grid.workPlaneHeight = 0.75;
    drawing.zone.grid.borderBand = 0.5;
    drawing.analysis.statistics = {96, 499.5, 300.4, 700.5, 0.6014};
    drawing.taskOutline.resize(1);
    return drawing;
}

ModelGlare TabularModel(const std::string& name, double ugr) {
    ModelGlare model;
    model.name = name;
    model.height = 1.6;
    model.tabular = {ugr, 4.0, 8.0, 3.9, 8.4, 1, true};
    return model;
}

ObserverGlareRecord ObserverOf(const std::string& label, bool placed, double ugr) {
    ObserverGlareRecord record;
    record.observer.observer.label = label;
    record.observer.placed = placed;
    record.result.valid = true;
    record.result.ugr = ugr;
    return record;
}

namespace {

ZoneGlare FullGlare() {
    ZoneGlare glare;
    glare.hasUgr = true;
    glare.ugr = 17.34;
    glare.ceilingReflectance = 0.66;
    glare.wallReflectance = 0.41;
    glare.hasSmallSourceUgr = true;
    glare.smallSourceUgr = 21.04;
    glare.models = {TabularModel("Spot", 12.0), TabularModel("Painel", 17.34),
                    TabularModel("Fita", 0.0)};
    glare.models[2].omission = TabularOmission::Linear;
    glare.models[1].upwardFlux = 0.7;
    glare.observers = {ObserverOf("meio da parede 1", false, 14.2), ObserverOf("Mesa", true, 9.0)};
    glare.warnings = {UpwardFluxWarning(glare.models[1])};
    const ReflectanceSet room = {0.66, 0.41, 0.2};
    glare.notes = {ModelNote(glare.models[0], room, true), ModelNote(glare.models[1], room, true),
                   glare.warnings[0], ModelNote(glare.models[2], room, true),
                   PositionsNote(glare.observers)};
    return glare;
}

} // namespace

ZoneDrawing FullDrawing() {
    ZoneDrawing drawing = PlainDrawing();
    drawing.engine = "Radiance";
    ZoneAnalysis& analysis = drawing.analysis;
    analysis.task = FindTask("s22.2");
    analysis.glare = FullGlare();
    const auto advice = VerificationKind::Recommendation;
    analysis.verification.rows = {
        {"Iluminância Em", "500 lx", "≥ 500 lx", true, true},
        {"Uniformidade U0", "0,60", "≥ 0,70", true, false},
        {"Reprodução Ra (IRC)", "-", "≥ 80", false, false},
        {"Luminância (telas)", "3400 cd/m²", "≤ 1000 cd/m²", true, false},
        {"Refletância paredes", "0,41", "0,30 a 0,80", true, true, advice}};
    analysis.verification.notes = {
        "Luminância para telas (limite 1000 cd/m²): a maior é de Painel (gama 65, C 90)"};
    analysis.surfaces = {{"Teto", "80 lx", "≥ 50 lx", true, true, advice},
                         {"Teto U0", "0,09", "≥ 0,10", true, false, advice}};
    analysis.floor = {120, 320.6, 100.0, 500.0, 0.312};
    return drawing;
}

} // namespace Merivane::Tests
