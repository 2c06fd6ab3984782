#include "Document/Report/ReflectanceTable.hpp"

#include <algorithm>
#include <cmath>
#include <vector>

#include "Document/Report/ReportText.hpp"
#include "Simulation/PrintedValue.hpp"
#include "Simulation/SurfaceGeometry.hpp"

namespace Merivane::Document {

namespace {

using Simulation::FormatDecimal;
using Simulation::ReflectanceSource;
using Simulation::SceneMaterial;
using Simulation::SurfaceReflectance;

std::string ValueText(const Simulation::StoredReflectance& values) {
    if (!values.glass) {
        return PercentText(values.reflectance);
    }
    return "vidro: TL " + PercentText(values.transmittance) + ", RL " +
           FormatDecimal(100.0 * values.reflectanceInside, 0) + "/" +
           PercentText(values.reflectanceOutside);
}

std::string EstimateText(const SurfaceReflectance& record) {
    return ValueText({record.estimatedReflectance, record.estimatedGlass,
                      record.estimatedTransmittance, record.estimatedInside,
                      record.estimatedOutside});
}

ReportCell SourceCell(ReflectanceSource source) {
    switch (source) {
    case ReflectanceSource::Colour:
        return Cell("estimada pela cor", ReportTone::Muted);
    case ReflectanceSource::Orientation:
        return Cell("usual pela orientação", ReportTone::Muted);
    case ReflectanceSource::CorrectedBefore:
        return Cell("corrigida antes, guardada");
    case ReflectanceSource::CorrectedNow:
        break;
    }
    return Cell("corrigida neste cálculo");
}

ReportTable RecordTable(std::vector<SurfaceReflectance> records) {
    std::stable_sort(
        records.begin(), records.end(),
        [](const SurfaceReflectance& a, const SurfaceReflectance& b) { return a.area > b.area; });
    ReportTable table;
    table.columns = {{"Superfície", 4.2, false},
                     {"Área (m²)", 1.6, true},
                     {"Estimada", 3.2, false},
                     {"Usada", 3.2, false},
                     {"Origem", 3.0, false}};
    for (const SurfaceReflectance& record : records) {
        table.rows.push_back({Cell(record.name), Cell(FormatDecimal(record.area, 2)),
                              Cell(EstimateText(record), ReportTone::Muted),
                              Cell(ReflectanceText(record), ReportTone::Plain, true),
                              SourceCell(record.source)});
    }
    return table;
}

std::string MaterialText(const SceneMaterial& material) {
    const std::string channels = PercentText(material.red) + ", " + PercentText(material.green) +
                                 ", " + PercentText(material.blue);
    const bool grey = material.red == material.green && material.green == material.blue;
    if (material.isGlass) {
        return "vidro: transmissividade " + (grey ? PercentText(material.red) : channels);
    }
    return PercentText(Simulation::GreyReflectance(material)) +
           (grey ? "" : " (R, G, B: " + channels + ")");
}

std::vector<double> MaterialAreas(const Simulation::LightingStudy& study) {
    std::vector<double> areas(study.materials.size(), 0.0);
    for (const Simulation::SceneSurface& surface : study.surfaces) {
        const auto material = static_cast<std::size_t>(std::max(surface.materialIndex, 0));
        if (surface.materialIndex >= 0 && material < areas.size()) {
            const Simulation::Point3D normal = Simulation::NewellNormal(surface.vertices);
            areas[material] += 0.5 * std::hypot(normal.x, normal.y, normal.z);
        }
    }
    return areas;
}

ReportTable MaterialTable(const Simulation::LightingStudy& study) {
    ReportTable table;
    table.columns = {{"Material", 4.0, false},
                     {"Área (m²)", 1.6, true},
                     {"Refletância", 4.0, false},
                     {"Origem", 3.0, false}};
    const std::vector<double> areas = MaterialAreas(study);
    for (std::size_t i = 0; i < study.materials.size(); ++i) {
        table.rows.push_back({Cell(study.materials[i].name), Cell(FormatDecimal(areas[i], 2)),
                              Cell(MaterialText(study.materials[i]), ReportTone::Plain, true),
                              Cell("declarada na cena")});
    }
    return table;
}

} // namespace

std::string ReflectanceText(const SurfaceReflectance& record) {
    return ValueText({record.reflectance, record.glass, record.transmittance,
                      record.reflectanceInside, record.reflectanceOutside});
}

ReportSection BuildReflectanceSection(const ReportInput& input) {
    ReportSection section{"Refletâncias", {}};
    if (!input.reflectances.empty()) {
        section.blocks.emplace_back(RecordTable(input.reflectances));
        section.blocks.emplace_back(
            ReportParagraph{"TL: transmitância luminosa do vidro. RL: refletância luminosa, para "
                            "dentro / para fora. Área: a encontrada no modelo.",
                            true});
    } else if (!input.study.materials.empty()) {
        section.blocks.emplace_back(MaterialTable(input.study));
    } else {
        section.blocks.emplace_back(
            ReportParagraph{"O modelo não tem superfícies: só a luz direta conta.", false});
    }
    return section;
}

} // namespace Merivane::Document
