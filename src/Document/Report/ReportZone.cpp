#include "Document/Report/ReportZone.hpp"

#include <algorithm>
#include <string>

#include "Document/Report/ReportGlare.hpp"
#include "Document/Report/ReportText.hpp"
#include "Simulation/PrintedValue.hpp"
#include "Simulation/Verification/Verification.hpp"

namespace Merivane::Document {

namespace {

using Simulation::FormatDecimal;
using Simulation::PointStatistics;
using Simulation::VerificationKind;
using Simulation::VerificationRow;
using Simulation::ZoneAnalysis;

ReportTone ToneOf(const VerificationRow& row) {
    if (!row.hasData) {
        return ReportTone::NoData;
    }
    return row.passes ? ReportTone::Met : ReportTone::NotMet;
}

std::string StatisticsText(const PointStatistics& statistics) {
    if (statistics.count == 0) {
        return "nenhum ponto de cálculo cabe na Zona";
    }
    return "Em " + FormatDecimal(statistics.mean, 0) + " lx, Emín " +
           FormatDecimal(statistics.minimum, 0) + " lx, Emáx " +
           FormatDecimal(statistics.maximum, 0) + " lx, U0 " +
           FormatDecimal(statistics.uniformity, 2) + " (" +
           CountText(statistics.count, "ponto", "pontos") + ")";
}

std::string ActivityText(const Simulation::StudyZone& zone, const ZoneAnalysis& analysis) {
    if (analysis.task == nullptr) {
        return "sem atividade definida na Zona: sem verificação";
    }
    std::string text = analysis.task->activity + " (" + analysis.task->id + ")";
    const Simulation::ZoneRequirement& own = zone.task.requirement;
    if (own.em != analysis.task->em || own.u0 != analysis.task->u0) {
        text += "; exigências próprias da Zona: Em " + FormatDecimal(own.em, 0) + " lx, U0 " +
                FormatDecimal(own.u0, 2);
    }
    return text;
}

std::string PlaneText(const Simulation::StudyZone& zone, const Simulation::CalculationGrid& grid) {
    std::string text = MetresText(zone.grid.workPlaneHeight) + " acima do piso, pontos a cada " +
                       FormatDecimal(grid.stepX, 2) + " × " + MetresText(grid.stepY);
    if (grid.narrow) {
        return text + "; Zona estreita: sem faixa de borda";
    }
    return text + ", faixa de borda de " + MetresText(zone.grid.borderBand);
}

std::string LuminairesText(const ZonePower& power, const PointStatistics& statistics) {
    if (power.count == 0) {
        return "nenhuma sobre a Zona";
    }
    std::string text = CountText(power.count, "luminária", "luminárias");
    if (power.withoutWatts == power.count) {
        return text + ", potência não declarada";
    }
    text += ", " + FormatDecimal(power.watts, 1) + " W, " + PowerDensityText(power);
    if (power.withoutWatts > 0) {
        return text + " (" + std::to_string(power.withoutWatts) + " sem potência declarada)";
    }
    if (statistics.mean > 0.0 && power.area > 0.0) {
        text += " (" + FormatDecimal(power.watts / power.area * 100.0 / statistics.mean, 2) +
                " W/m² por 100 lx)";
    }
    return text;
}

void AddReflectance(std::string& text, const std::string& surface, double reflectance) {
    if (reflectance >= 0.0) {
        text += (text.empty() ? "" : ", ") + surface + " " + FormatDecimal(reflectance, 2);
    }
}

std::string MeansText(const Simulation::VerificationInput& input) {
    std::string text;
    AddReflectance(text, "teto", input.ceilingReflectance);
    AddReflectance(text, "paredes", input.wallReflectance);
    AddReflectance(text, "piso", input.floorReflectance);
    return text.empty() ? "nenhuma superfície em volta da Zona" : text;
}

ReportFacts BuildFacts(const ReportInput& input, std::size_t index, const ZonePower& power) {
    const Simulation::StudyZone& zone = input.study.zones[index];
    const ZoneAnalysis& analysis = input.analyses[index];
    const std::size_t plane = Simulation::WorkPlaneOf(input.built, index);
    ReportFacts facts;
    facts.facts = {
        {"Atividade", ActivityText(zone, analysis)},
        {"Ambiente", FormatDecimal(power.area, 2) + " m², pé-direito " + MetresText(zone.height) +
                         ", piso na cota " + MetresText(zone.floorLevel)},
        {"Plano de trabalho", PlaneText(zone, input.built.scene.sensorPlanes[plane].grid)},
        {"Iluminância", StatisticsText(analysis.statistics)},
        {"Luminárias", LuminairesText(power, analysis.statistics)},
        {"Refletâncias médias", MeansText(analysis.verification.input)}};
    if (analysis.verification.input.maintenanceFactor > 0.0) {
        facts.facts.push_back({"Fator de manutenção",
                               FormatDecimal(analysis.verification.input.maintenanceFactor, 2) +
                                   (power.count > 1 ? " (o menor das luminárias)" : "")});
    }
    return facts;
}

void AddRows(ReportTable& table, const std::vector<VerificationRow>& rows, VerificationKind kind) {
    for (const VerificationRow& row : rows) {
        if (row.kind == kind) {
            table.rows.push_back({Cell(row.criterion), Cell(row.calculated), Cell(row.required),
                                  Cell(Simulation::RowState(row), ToneOf(row), true)});
        }
    }
}

bool HasRecommendation(const std::vector<VerificationRow>& rows) {
    return std::any_of(rows.begin(), rows.end(), [](const VerificationRow& row) {
        return row.kind == VerificationKind::Recommendation;
    });
}

bool LacksData(const std::vector<VerificationRow>& rows) {
    return std::any_of(rows.begin(), rows.end(), [](const VerificationRow& row) {
        return row.kind == VerificationKind::Requirement && !row.hasData;
    });
}

/// What is required with its result, what is recommended, the surfaces.
ReportTable VerificationTable(const ReportInput& input, const ZoneAnalysis& analysis) {
    ReportTable table;
    table.columns = {{"Critério", 3.4, false},
                     {"Calculado", 2.2, false},
                     {"Exigido", 2.4, false},
                     {"Situação", 2.0, false}};
    const std::vector<VerificationRow>& rows = analysis.verification.rows;
    if (!rows.empty()) {
        table.rows.push_back(
            GroupRow("Verificação – " + Simulation::ReferenceStandardName(input.study.standard)));
        AddRows(table, rows, VerificationKind::Requirement);
        ReportCell result = VerdictCell(analysis);
        table.rows.push_back(
            {Cell("RESULTADO", ReportTone::Plain, true), Cell(""), Cell(""), std::move(result)});
    }
    if (HasRecommendation(rows)) {
        table.rows.push_back(GroupRow("Recomendações – 4.2 e 4.8 (não entram no resultado)"));
        AddRows(table, rows, VerificationKind::Recommendation);
    }
    if (!analysis.surfaces.empty()) {
        table.rows.push_back(GroupRow("Superfícies – EN 12464-1 (referência)"));
        AddRows(table, analysis.surfaces, VerificationKind::Recommendation);
    }
    return table;
}

/// The planes of a Zone beside its work plane; no rows without any.
ReportTable PlaneTable(const ReportInput& input, std::size_t zone) {
    ReportTable table;
    table.columns = {{"Plano", 4.0, false},    {"Em (lx)", 1.2, true}, {"Emín (lx)", 1.2, true},
                     {"Emáx (lx)", 1.2, true}, {"U0", 1.0, true},      {"Pontos", 1.0, true}};
    for (std::size_t i = 0; i < input.built.planes.size(); ++i) {
        const Simulation::PlaneRole& role = input.built.planes[i];
        if (role.zone != zone || role.kind == Simulation::PlaneKind::WorkPlane) {
            continue;
        }
        const PointStatistics& statistics = input.result.zones[i].statistics;
        std::string name = Simulation::PlaneKindName(role.kind);
        name += role.wall > 0 ? " " + std::to_string(role.wall) : "";
        table.rows.push_back({Cell(name), Cell(FormatDecimal(statistics.mean, 0)),
                              Cell(FormatDecimal(statistics.minimum, 0)),
                              Cell(FormatDecimal(statistics.maximum, 0)),
                              Cell(FormatDecimal(statistics.uniformity, 2)),
                              Cell(std::to_string(statistics.count))});
    }
    return table;
}

void AddTable(std::vector<ReportBlock>& blocks, ReportTable table) {
    if (!table.rows.empty()) {
        blocks.emplace_back(std::move(table));
    }
}

} // namespace

ReportCell VerdictCell(const ZoneAnalysis& analysis) {
    const std::vector<VerificationRow>& rows = analysis.verification.rows;
    if (rows.empty()) {
        return Cell("sem verificação", ReportTone::Muted);
    }
    const bool compared = std::any_of(rows.begin(), rows.end(), [](const VerificationRow& row) {
        return row.kind == VerificationKind::Requirement && row.hasData;
    });
    if (!compared) {
        return Cell("SEM DADO", ReportTone::NoData, true);
    }
    const bool passes = Simulation::VerificationPasses(rows);
    return Cell(passes ? "ATENDE" : "NÃO ATENDE", passes ? ReportTone::Met : ReportTone::NotMet,
                true);
}

std::vector<ReportBlock> BuildZoneBlocks(const ReportInput& input, std::size_t zone,
                                         const ZonePower& power) {
    const ZoneAnalysis& analysis = input.analyses[zone];
    std::vector<ReportBlock> blocks;
    blocks.emplace_back(ReportHeading{input.study.zones[zone].name, true});
    blocks.emplace_back(BuildFacts(input, zone, power));
    AddTable(blocks, VerificationTable(input, analysis));
    if (LacksData(analysis.verification.rows)) {
        blocks.emplace_back(ReportParagraph{
            "Itens SEM DADO não entram no resultado: complete-os na luminária ou no projeto.",
            true});
    }
    AddTable(blocks, PlaneTable(input, zone));
    for (const std::string& note : analysis.verification.notes) {
        blocks.emplace_back(ReportParagraph{note, false});
    }
    for (ReportBlock& block : BuildGlareBlocks(input, zone)) {
        blocks.push_back(std::move(block));
    }
    return blocks;
}

} // namespace Merivane::Document
