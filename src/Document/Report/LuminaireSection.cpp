#include "Document/Report/LuminaireSection.hpp"

#include <algorithm>
#include <string>

#include "Document/Report/ReportText.hpp"
#include "Simulation/PrintedValue.hpp"

namespace Merivane::Document {

namespace {

using Simulation::FormatDecimal;

std::string OrNoValue(const std::string& text) {
    return text.empty() ? NoValue : text;
}

/// Watts as they are declared: whole where they are whole.
std::string WattsText(const ValueRange& watts) {
    const std::string whole = RangeText(watts, 0);
    const std::string tenths = RangeText(watts, 1);
    const bool isWhole = FormatDecimal(watts.least, 1) == FormatDecimal(watts.least, 0) + ",0" &&
                         FormatDecimal(watts.most, 1) == FormatDecimal(watts.most, 0) + ",0";
    return isWhole ? whole : tenths;
}

std::string TotalText(double watts, std::size_t count, std::size_t withoutWatts) {
    if (count == withoutWatts) {
        return NoValue;
    }
    return (withoutWatts > 0 ? "≥ " : "") + FormatDecimal(watts, 1);
}

std::string TypeText(const LuminaireType& type) {
    const bool dimmed = type.dimming.any && type.dimming.least < 1.0;
    if (!dimmed) {
        return type.name;
    }
    const ValueRange percent{true, 100.0 * type.dimming.least, 100.0 * type.dimming.most};
    return type.name + " (regulada em " + RangeText(percent, 0) + " %)";
}

ReportTable TypeTable(const std::vector<LuminaireType>& types) {
    ReportTable table;
    table.columns = {
        {"Modelo", 4.0, false},    {"Fabricante", 2.3, false},  {"Lâmpada", 2.2, false},
        {"Ra", 0.8, true},         {"FM", 1.2, true},           {"Qtd.", 0.9, true},
        {"Fluxo (lm)", 1.9, true}, {"Potência (W)", 2.4, true}, {"Total (W)", 1.8, true}};
    double watts = 0.0;
    std::size_t count = 0;
    std::size_t without = 0;
    for (const LuminaireType& type : types) {
        table.rows.push_back({Cell(TypeText(type)), Cell(OrNoValue(type.manufacturer)),
                              Cell(OrNoValue(type.lamp)), Cell(RangeText(type.colourRendering, 0)),
                              Cell(RangeText(type.maintenance, 2)),
                              Cell(std::to_string(type.count)), Cell(RangeText(type.flux, 0)),
                              Cell(WattsText(type.watts)),
                              Cell(TotalText(type.totalWatts, type.count, type.withoutWatts))});
        watts += type.totalWatts;
        count += type.count;
        without += type.withoutWatts;
    }
    table.rows.push_back({Cell("Total", ReportTone::Plain, true), Cell(""), Cell(""), Cell(""),
                          Cell(""), Cell(std::to_string(count), ReportTone::Plain, true), Cell(""),
                          Cell(""),
                          Cell(TotalText(watts, count, without), ReportTone::Plain, true)});
    return table;
}

std::string NormalisedText(const ZonePower& power, double mean) {
    const bool known = power.withoutWatts == 0 && power.count > 0;
    return known && power.area > 0.0 && mean > 0.0
               ? FormatDecimal(power.watts / power.area * 100.0 / mean, 2)
               : NoValue;
}

ReportTable PowerTable(const ReportInput& input, const std::vector<ZonePower>& powers) {
    ReportTable table;
    table.columns = {{"Zona", 4.0, false},      {"Área (m²)", 1.4, true},
                     {"Luminárias", 1.4, true}, {"Potência (W)", 1.6, true},
                     {"Por área", 1.6, true},   {"W/m² por 100 lx", 1.8, true}};
    for (std::size_t i = 0; i < powers.size(); ++i) {
        const ZonePower& power = powers[i];
        table.rows.push_back({Cell(input.study.zones[i].name), Cell(FormatDecimal(power.area, 2)),
                              Cell(std::to_string(power.count)),
                              Cell(TotalText(power.watts, power.count, power.withoutWatts)),
                              Cell(PowerDensityText(power)),
                              Cell(NormalisedText(power, input.analyses[i].statistics.mean))});
    }
    return table;
}

} // namespace

ReportSection BuildLuminaireSection(const ReportInput& input,
                                    const std::vector<ZonePower>& powers) {
    ReportSection section{"Luminárias", {}};
    const std::vector<LuminaireType> types = CollectLuminaireTypes(input.built.scene.luminaires);
    if (types.empty()) {
        section.blocks.emplace_back(ReportParagraph{"Nenhuma luminária no cálculo.", false});
        return section;
    }
    section.blocks.emplace_back(TypeTable(types));
    section.blocks.emplace_back(ReportParagraph{
        "FM: fator de manutenção. Fluxo: inicial, integrado da curva fotométrica de uma peça. "
        "Potência: de uma peça em plena carga; nas peças lineares, pelo comprimento.",
        true});
    section.blocks.emplace_back(ReportHeading{"Potência instalada", false});
    section.blocks.emplace_back(PowerTable(input, powers));
    section.blocks.emplace_back(ReportParagraph{
        "Contam as luminárias dentro da Zona em planta, do piso a 0,50 m acima do teto. \"≥\": há "
        "luminárias sem potência declarada.",
        true});
    return section;
}

} // namespace Merivane::Document
