#include "Document/Report/BuildReport.hpp"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

#include "Document/Report/AdoptedValues.hpp"
#include "Document/Report/LuminaireSection.hpp"
#include "Document/Report/ReflectanceTable.hpp"
#include "Document/Report/ReportText.hpp"
#include "Document/Report/ReportZone.hpp"
#include "Document/Report/SettingsSection.hpp"
#include "Simulation/Glare/ObserverGlare.hpp"
#include "Simulation/PlacedLuminaire.hpp"
#include "Simulation/PrintedValue.hpp"

namespace Merivane::Document {

namespace {

using Simulation::FormatDecimal;
using Simulation::ZoneAnalysis;

struct VerdictCounts {
    std::size_t met = 0;
    std::size_t notMet = 0;
    std::size_t noData = 0;
    std::size_t unverified = 0;
};

VerdictCounts CountVerdicts(const std::vector<ZoneAnalysis>& analyses) {
    VerdictCounts counts;
    for (const ZoneAnalysis& analysis : analyses) {
        const ReportTone tone = VerdictCell(analysis).tone;
        counts.met += tone == ReportTone::Met ? 1 : 0;
        counts.notMet += tone == ReportTone::NotMet ? 1 : 0;
        counts.noData += tone == ReportTone::NoData ? 1 : 0;
        counts.unverified += tone == ReportTone::Muted ? 1 : 0;
    }
    return counts;
}

/// "3 Zonas atendem, 1 Zona não atende, 1 Zona sem verificação".
std::string VerdictText(const VerdictCounts& counts) {
    std::vector<std::string> parts;
    const auto add = [&parts](std::size_t count, const char* one, const char* many) {
        if (count > 0) {
            parts.push_back(CountText(count, one, many));
        }
    };
    add(counts.met, "Zona atende", "Zonas atendem");
    add(counts.notMet, "Zona não atende", "Zonas não atendem");
    add(counts.noData, "Zona sem dado para verificar", "Zonas sem dado para verificar");
    add(counts.unverified, "Zona sem verificação", "Zonas sem verificação");
    return ListText(parts);
}

ReportTone VerdictTone(const VerdictCounts& counts) {
    if (counts.notMet > 0) {
        return ReportTone::NotMet;
    }
    return counts.met > 0 && counts.noData == 0 ? ReportTone::Met : ReportTone::Plain;
}

ReportFacts FrontFacts(const ReportInput& input) {
    const std::size_t lights = Simulation::PlaceLuminaires(input.built.scene.luminaires).size();
    ReportFacts facts;
    if (!input.moment.empty()) {
        facts.facts.push_back({"Data do cálculo", input.moment});
    }
    facts.facts.push_back({"Norma", Simulation::ReferenceStandardName(input.study.standard)});
    facts.facts.push_back({"Extensão", CountText(input.study.zones.size(), "Zona", "Zonas") + ", " +
                                           CountText(lights, "luminária", "luminárias")});
    facts.facts.push_back({"Motor", Simulation::EngineSummary(input.study.engine)});
    const VerdictCounts counts = CountVerdicts(input.analyses);
    const std::string verdict = VerdictText(counts);
    if (!verdict.empty()) {
        facts.facts.push_back({"Resultado", verdict, VerdictTone(counts)});
    }
    return facts;
}

std::string ActivityText(const ZoneAnalysis& analysis) {
    return analysis.task == nullptr ? "sem atividade" : analysis.task->activity;
}

/// A calculated value with what it is compared with, where it is.
std::string AgainstText(const std::string& value, const std::string& limit, bool compared) {
    return compared ? value + " / " + limit : value;
}

ReportRow GlanceRow(const Simulation::StudyZone& zone, const ZoneAnalysis& analysis) {
    const Simulation::ZoneRequirement& required = zone.task.requirement;
    const bool verified = analysis.task != nullptr;
    const Simulation::PointStatistics& statistics = analysis.statistics;
    const bool limited = verified && analysis.task->ugrLimit > 0;
    const std::string ugr =
        analysis.glare.hasUgr
            ? AgainstText(Simulation::FormatUgr(analysis.glare.ugr),
                          limited ? std::to_string(analysis.task->ugrLimit) : "", limited)
            : NoValue;
    return {Cell(zone.name, ReportTone::Plain, true),
            Cell(ActivityText(analysis), ReportTone::Muted),
            Cell(statistics.count == 0 ? NoValue
                                       : AgainstText(FormatDecimal(statistics.mean, 0),
                                                     FormatDecimal(required.em, 0), verified)),
            Cell(statistics.count == 0 ? NoValue
                                       : AgainstText(FormatDecimal(statistics.uniformity, 2),
                                                     FormatDecimal(required.u0, 2), verified)),
            Cell(ugr),
            VerdictCell(analysis)};
}

ReportTable GlanceTable(const ReportInput& input) {
    ReportTable table;
    table.columns = {{"Zona", 3.2, false}, {"Atividade", 4.4, false}, {"Em (lx)", 1.6, true},
                     {"U0", 1.7, true},    {"UGR", 1.5, true},        {"Resultado", 2.2, false}};
    for (std::size_t i = 0; i < input.study.zones.size(); ++i) {
        table.rows.push_back(GlanceRow(input.study.zones[i], input.analyses[i]));
    }
    return table;
}

std::vector<ReportBlock> BuildFront(const ReportInput& input) {
    std::vector<ReportBlock> blocks;
    blocks.emplace_back(FrontFacts(input));
    if (input.study.zones.empty()) {
        blocks.emplace_back(ReportParagraph{"Nenhuma Zona foi calculada.", false});
        return blocks;
    }
    blocks.emplace_back(GlanceTable(input));
    blocks.emplace_back(
        ReportParagraph{"Calculado / exigido. Em: iluminância mantida média no plano de trabalho; "
                        "U0: uniformidade; UGR: ofuscamento pelo método tabular.",
                        true});
    return blocks;
}

ReportSection BuildAdopted(const ReportInput& input) {
    ReportSection section{"Valores adotados por falta de informação", {}};
    const std::vector<AdoptedGroup> groups = CollectAdoptedValues(input);
    if (groups.empty()) {
        section.blocks.emplace_back(
            ReportParagraph{"Nenhum: todos os valores foram informados.", false});
        return section;
    }
    section.blocks.emplace_back(
        ReportParagraph{"O cálculo tomou os valores abaixo porque o projeto não os informa ou "
                        "porque ninguém os mudou. Confira-os antes de usar os resultados.",
                        false});
    ReportTable table;
    table.columns = {{"Onde", 3.6, false}, {"Valor adotado", 3.8, false}, {"Por quê", 4.6, false}};
    for (const AdoptedGroup& group : groups) {
        table.rows.push_back(GroupRow(group.title));
        for (const AdoptedValue& value : group.values) {
            table.rows.push_back({Cell(value.subject), Cell(value.value, ReportTone::Plain, true),
                                  Cell(value.reason)});
        }
    }
    section.blocks.emplace_back(std::move(table));
    return section;
}

void AddUnique(std::vector<std::string>& all, const std::vector<std::string>& more) {
    for (const std::string& text : more) {
        if (std::find(all.begin(), all.end(), text) == all.end()) {
            all.push_back(text);
        }
    }
}

void AddNotices(const ReportInput& input, Report& report) {
    std::vector<std::string> notices;
    AddUnique(notices, input.study.warnings);
    AddUnique(notices, input.built.notices);
    AddUnique(notices, input.run.notices);
    AddUnique(notices, Simulation::EngineWarnings(input.study.engine));
    if (notices.empty()) {
        return;
    }
    ReportSection section{"Avisos", {}};
    for (const std::string& notice : notices) {
        section.blocks.emplace_back(ReportParagraph{notice, false});
    }
    report.sections.push_back(std::move(section));
}

void AddPictures(const ReportInput& input, Report& report) {
    if (input.pictures.empty()) {
        return;
    }
    ReportSection section{"Planta com resultados", {}};
    for (const ReportPicture& picture : input.pictures) {
        section.blocks.emplace_back(ReportDrawing{picture.name, picture.drawing});
    }
    report.sections.push_back(std::move(section));
}

void AddZones(const ReportInput& input, const std::vector<ZonePower>& powers, Report& report) {
    if (input.study.zones.empty()) {
        return;
    }
    ReportSection section{"Zonas", {}};
    for (std::size_t i = 0; i < input.study.zones.size(); ++i) {
        for (ReportBlock& block : BuildZoneBlocks(input, i, powers[i])) {
            section.blocks.push_back(std::move(block));
        }
    }
    report.sections.push_back(std::move(section));
}

void AddLog(const ReportInput& input, Report& report) {
    if (!input.log.empty()) {
        report.sections.push_back({"Registro do cálculo", {ReportListing{input.log}}});
    }
}

} // namespace

Report BuildReport(const ReportInput& input) {
    const std::vector<ZonePower> powers = CollectZonePowers(input.study, input.built.scene);
    Report report;
    report.title = "Relatório luminotécnico";
    report.subject = input.study.name.empty() ? "Projeto sem nome" : input.study.name;
    report.moment = input.moment;
    report.origin = "Vantoro " + input.run.programVersion;
    report.front = BuildFront(input);
    report.sections.push_back(BuildAdopted(input));
    AddNotices(input, report);
    AddPictures(input, report);
    AddZones(input, powers, report);
    report.sections.push_back(BuildReflectanceSection(input));
    report.sections.push_back(BuildLuminaireSection(input, powers));
    report.sections.push_back(BuildSettingsSection(input));
    report.sections.push_back(BuildVersionSection(input));
    AddLog(input, report);
    return report;
}

} // namespace Merivane::Document
