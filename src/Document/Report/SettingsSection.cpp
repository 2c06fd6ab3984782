#include "Document/Report/SettingsSection.hpp"

#include <string>
#include <utility>

#include "Document/Report/ReportText.hpp"
#include "Simulation/ColorScale.hpp"
#include "Simulation/PrintedValue.hpp"
#include "Text/Number.hpp"

namespace Merivane::Document {

namespace {

using Simulation::FormatDecimal;

std::string YesOrNo(bool value) {
    return value ? "sim" : "não";
}

/// Small numbers with all their digits and a decimal comma.
std::string GeneralText(double value) {
    std::string text = Merivane::Text::FormatGeneral(value);
    if (const std::size_t point = text.find('.'); point != std::string::npos) {
        text[point] = ',';
    }
    return text;
}

ReportFacts EngineFacts(const Simulation::EngineSettings& engine) {
    ReportFacts facts;
    facts.facts = {{"Perfil", Simulation::EngineSummary(engine)},
                   {"Reflexões da luz (-ab)", std::to_string(engine.bounces)},
                   {"Raios por ponto (-ad)", std::to_string(engine.divisions)},
                   {"Raios adicionais (-as)", std::to_string(engine.supersamples)},
                   {"Resolução (-ar)", std::to_string(engine.resolution)},
                   {"Tolerância (-aa)", GeneralText(engine.accuracy)},
                   {"Peso limite (-lw)", GeneralText(engine.limitWeight)},
                   {"Processos", engine.maxProcesses == 0
                                     ? "automático"
                                     : "até " + std::to_string(engine.maxProcesses)}};
    return facts;
}

std::string ScaleText(double scale) {
    return scale > 0.0 ? "1:" + FormatDecimal(scale, 0) : "a do projeto";
}

ReportFacts CalculationFacts(const ReportInput& input) {
    const Simulation::CalculationSettings& settings = input.settings;
    ReportFacts facts;
    facts.facts = {{"Plano de trabalho", MetresText(settings.workPlaneHeight)},
                   {"Afastamento das paredes", MetresText(settings.wallOffset)},
                   {"Faixa de borda", MetresText(settings.borderBand)},
                   {"Níveis das curvas", Simulation::FormatLevels(input.study.levels) + " lx"},
                   {"Norma", Simulation::ReferenceStandardName(input.study.standard)},
                   {"Verificação", YesOrNo(settings.verify)},
                   {"Ofuscamento (UGR)", YesOrNo(input.study.glare)},
                   {"Paredes e tetos calculados", YesOrNo(settings.surfaces)},
                   {"Reflexão com a cor das superfícies", YesOrNo(settings.colouredReflection)},
                   {"Revisão das refletâncias", YesOrNo(settings.reviewReflectances)}};
    return facts;
}

ReportFacts DrawingFacts(const Simulation::CalculationSettings& settings) {
    ReportFacts facts;
    facts.facts = {
        {"Escala", ScaleText(settings.drawingScale)},
        {"Faixas de cor", settings.fills ? Simulation::ColorScaleName(settings.colorScale) : "não"},
        {"Curvas isolux", YesOrNo(settings.curves)},
        {"Rótulos das curvas", YesOrNo(settings.curveLabels)},
        {"Legenda", YesOrNo(settings.legend)},
        {"Valores escritos",
         settings.values ? "a cada " + MetresText(settings.valueSpacing) : "não"}};
    return facts;
}

} // namespace

ReportSection BuildSettingsSection(const ReportInput& input) {
    ReportSection section{"Motor e ajustes", {}};
    section.blocks.emplace_back(ReportHeading{"Motor", false});
    section.blocks.emplace_back(EngineFacts(input.study.engine));
    section.blocks.emplace_back(ReportHeading{"Cálculo", false});
    section.blocks.emplace_back(CalculationFacts(input));
    section.blocks.emplace_back(ReportHeading{"Desenho", false});
    section.blocks.emplace_back(DrawingFacts(input.settings));
    return section;
}

ReportSection BuildVersionSection(const ReportInput& input) {
    ReportFacts facts;
    facts.facts.push_back({"Vantoro", input.run.programVersion});
    facts.facts.push_back({"Radiance", input.run.radianceVersion.empty()
                                           ? "versão não informada"
                                           : input.run.radianceVersion});
    for (const ReportVersion& version : input.versions) {
        facts.facts.push_back({version.name, version.version});
    }
    if (input.run.seconds > 0.0) {
        facts.facts.push_back({"Tempo de cálculo", FormatDecimal(input.run.seconds, 1) + " s"});
    }
    ReportSection section{"Versões", {}};
    section.blocks.emplace_back(std::move(facts));
    return section;
}

} // namespace Merivane::Document
