#include "Document/Report/ReportGlare.hpp"

#include <algorithm>
#include <string>

#include "Document/Report/ReportText.hpp"
#include "Document/ZoneExplanation.hpp"
#include "Simulation/Glare/ObserverGlare.hpp"
#include "Simulation/PrintedValue.hpp"
#include "Simulation/Study/GlareSummary.hpp"

namespace Merivane::Document {

namespace {

using Simulation::FormatDecimal;
using Simulation::GlareTerm;
using Simulation::ObserverGlareRecord;

constexpr std::size_t MostTerms = 6;

std::string ValueText(const Simulation::GlareResult& result) {
    return result.valid ? Simulation::FormatUgr(result.ugr) : NoValue;
}

ReportTable ObserverTable(const std::vector<ObserverGlareRecord>& observers) {
    ReportTable table;
    table.columns = {{"Observador (posições reais)", 5.4, false},
                     {"Olho em x; y; z (m)", 2.6, false},
                     {"UGR", 1.0, true},
                     {"Lb (cd/m²)", 1.3, true},
                     {"Fontes", 1.0, true}};
    for (const ObserverGlareRecord& record : observers) {
        const Simulation::UgrObserver& observer = record.observer.observer;
        const Simulation::GlareResult& result = record.result;
        table.rows.push_back(
            {Cell((observer.label.empty() ? "observador" : observer.label)),
             Cell(FormatDecimal(observer.x, 2) + "; " + FormatDecimal(observer.y, 2) + "; " +
                  FormatDecimal(observer.z, 2)),
             Cell(ValueText(result), ReportTone::Plain, true),
             Cell(result.valid ? FormatDecimal(result.background, 1) : NoValue),
             Cell(std::to_string(result.sources))});
    }
    return table;
}

/// The observer who sees most glare and whose terms were kept; null without one.
const ExplainedObserver* WorstObserver(const ExplainedRoom& room) {
    const ExplainedObserver* worst = nullptr;
    for (const ExplainedObserver& observer : room.observers) {
        const bool counts =
            observer.result.valid && observer.result.sources > 0 && !observer.terms.empty();
        if (counts && (worst == nullptr || observer.result.ugr > worst->result.ugr)) {
            worst = &observer;
        }
    }
    return worst;
}

/// The terms of the sum, the largest first, equal ones in the order of the lights.
std::vector<GlareTerm> SortedTerms(const std::vector<GlareTerm>& all) {
    std::vector<GlareTerm> terms;
    std::copy_if(all.begin(), all.end(), std::back_inserter(terms), [](const GlareTerm& term) {
        return term.omission == Simulation::GlareOmission::None;
    });
    std::stable_sort(terms.begin(), terms.end(),
                     [](const GlareTerm& a, const GlareTerm& b) { return a.term > b.term; });
    return terms;
}

std::string LightText(const ExplainedRoom& room, const GlareTerm& term) {
    const ExplainedLight& light = room.lights[term.luminaire];
    return (light.name.empty() ? "luminária" : light.name) + " em " +
           FormatDecimal(light.center.x, 2) + "; " + FormatDecimal(light.center.y, 2) + "; " +
           FormatDecimal(light.center.z, 2);
}

ReportRow TermRow(const ExplainedRoom& room, const GlareTerm& term, double sum) {
    const std::string share =
        sum > 0.0 ? FormatDecimal(100.0 * term.term / sum, 1) + " %" : NoValue;
    return {Cell(LightText(room, term)),
            Cell(FormatDecimal(term.distance, 2)),
            Cell(FormatDecimal(term.luminance, 0)),
            Cell(FormatDecimal(term.solidAngle * 1000.0, 3)),
            Cell(FormatDecimal(term.positionIndex, 2)),
            Cell(FormatDecimal(term.term, 1)),
            Cell(share)};
}

/// The largest terms of the worst observer's sum, and how much the others make.
void AddTerms(const ExplainedRoom& room, std::vector<ReportBlock>& blocks) {
    const ExplainedObserver* worst = WorstObserver(room);
    if (worst == nullptr) {
        return;
    }
    const std::vector<GlareTerm> terms = SortedTerms(worst->terms);
    const double sum = TermSum(terms);
    blocks.emplace_back(ReportParagraph{"Maiores parcelas do observador \"" +
                                            worst->observer.label + "\" (UGR " +
                                            ValueText(worst->result) + ", Lb " +
                                            FormatDecimal(worst->result.background, 1) + " cd/m²):",
                                        false});
    ReportTable table;
    table.columns = {{"Fonte, centro em x; y; z (m)", 5.0, false},
                     {"Dist. (m)", 1.3, true},
                     {"L (cd/m²)", 1.3, true},
                     {"ω (10⁻³ sr)", 1.4, true},
                     {"p", 0.9, true},
                     {"L²ω/p²", 1.4, true},
                     {"Parte", 1.2, true}};
    double told = 0.0;
    const std::size_t count = std::min(terms.size(), MostTerms);
    for (std::size_t i = 0; i < count; ++i) {
        table.rows.push_back(TermRow(room, terms[i], sum));
        told += terms[i].term;
    }
    if (terms.size() > count && sum > 0.0) {
        const std::string others = CountText(terms.size() - count, "outra fonte", "outras fontes");
        table.rows.push_back({Cell(others, ReportTone::Muted), Cell(""), Cell(""), Cell(""),
                              Cell(""), Cell(FormatDecimal(sum - told, 1)),
                              Cell(FormatDecimal(100.0 * (sum - told) / sum, 1) + " %")});
    }
    table.rows.push_back({Cell("soma", ReportTone::Plain, true), Cell(""), Cell(""), Cell(""),
                          Cell(""), Cell(FormatDecimal(sum, 1), ReportTone::Plain, true),
                          Cell("")});
    blocks.emplace_back(std::move(table));
    blocks.emplace_back(
        ReportParagraph{"UGR = 8 log10 (0,25 / Lb × soma de L²ω/p²). Lb: luminância de fundo; L: "
                        "luminância da fonte; ω: ângulo sólido; p: índice de posição de Guth.",
                        true});
}

} // namespace

std::vector<ReportBlock> BuildGlareBlocks(const ReportInput& input, std::size_t zone) {
    std::vector<ReportBlock> blocks;
    if (!input.study.glare) {
        return blocks;
    }
    const Simulation::ZoneAnalysis& analysis = input.analyses[zone];
    blocks.emplace_back(ReportHeading{"Ofuscamento", false});
    for (const std::string& line : Simulation::GlareSummary(analysis)) {
        blocks.emplace_back(ReportParagraph{line, false});
    }
    for (const std::string& warning : analysis.glare.warnings) {
        blocks.emplace_back(ReportParagraph{"Atenção (UGR): " + warning, false});
    }
    if (!analysis.glare.observers.empty()) {
        blocks.emplace_back(ObserverTable(analysis.glare.observers));
        AddTerms(ExplainZone(input.study.zones[zone].name, analysis, input.built.scene), blocks);
    }
    return blocks;
}

} // namespace Merivane::Document
