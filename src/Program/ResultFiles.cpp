#include "Program/ResultFiles.hpp"

#include <algorithm>
#include <filesystem>

#include "Document/ResultTable.hpp"
#include "Document/TextColumns.hpp"
#include "Drawing/PdfWriter.hpp"
#include "Drawing/PngWriter.hpp"
#include "Drawing/SvgWriter.hpp"
#include "Program/Message.hpp"
#include "Simulation/PrintedValue.hpp"

namespace Merivane::Program {

namespace {

/// Of the table that explains the observers' glare; a Zone of this name keeps it for its own.
constexpr const char* ExplanationName = "ofuscamento";

using Document::CharacterCount;
using Document::PadLeft;
using Document::PadRight;

std::string StatisticsRow(const Simulation::ZoneResult& zone, std::size_t nameWidth) {
    const Simulation::PointStatistics& statistics = zone.statistics;
    return PadRight(zone.name, nameWidth) +
           PadLeft(Simulation::FormatDecimal(statistics.mean, 0), 8) +
           PadLeft(Simulation::FormatDecimal(statistics.minimum, 0), 8) +
           PadLeft(Simulation::FormatDecimal(statistics.maximum, 0), 8) +
           PadLeft(Simulation::FormatDecimal(statistics.uniformity, 2), 7) +
           PadLeft(std::to_string(statistics.count), 9);
}

void TellPlanes(const std::vector<Simulation::ZoneResult>& zones) {
    if (zones.empty()) {
        return;
    }
    std::size_t nameWidth = 5;
    for (const Simulation::ZoneResult& zone : zones) {
        nameWidth = std::max(nameWidth, CharacterCount(zone.name));
    }
    TellLine(PadRight("Plano", nameWidth) + "  Em (lx)    Emin    Emax     U0   pontos");
    for (const Simulation::ZoneResult& zone : zones) {
        TellLine(StatisticsRow(zone, nameWidth + 1));
    }
}

void TellLoosePoints(const Simulation::SimulationResult& result, std::size_t count) {
    for (std::size_t i = 0; i < std::min(count, result.pointIlluminance.size()); ++i) {
        TellLine("Ponto " + std::to_string(i + 1) + ": " +
                 Simulation::FormatDecimal(result.pointIlluminance[i], 1) + " lx (luz direta " +
                 Simulation::FormatDecimal(result.pointDirectIlluminance[i], 1) + " lx)");
    }
}

} // namespace

Document::PlanStyle PlanStyleOf(const SimulateArguments& arguments) {
    Document::PlanStyle style;
    style.scale = arguments.scale;
    style.colorScale = arguments.colorScale;
    style.values = arguments.valueSpacing > 0.0;
    if (style.values) {
        style.valueSpacingX = arguments.valueSpacing;
        style.valueSpacingY = arguments.valueSpacing;
    }
    return style;
}

void BuildTables(const Simulation::StudyScene& built, const Simulation::SimulationResult& result,
                 const std::string& explanation, std::vector<OutputFile>& files) {
    std::vector<std::string> titles;
    for (const Simulation::SensorPlane& plane : built.scene.sensorPlanes) {
        titles.push_back(plane.name);
    }
    titles.emplace_back(ExplanationName);
    const std::vector<std::string> names = Document::UniqueFileNames(titles, ".csv");
    for (std::size_t i = 0; i < built.scene.sensorPlanes.size(); ++i) {
        files.push_back({names[i], Document::WritePlaneTable(built.scene.sensorPlanes[i],
                                                             result.zones[i].illuminance)});
    }
    if (!explanation.empty()) {
        files.push_back({names.back(), explanation});
    }
}

bool BuildPlans(const std::vector<Document::FloorPlan>& plans, const Document::PlanStyle& style,
                std::vector<OutputFile>& files, std::string& error) {
    for (const Document::FloorPlan& plan : plans) {
        const Drawing::DisplayList list = Document::BuildResultPlan(plan.contents, style);
        OutputFile svg{plan.fileName + ".svg", ""};
        OutputFile pdf{plan.fileName + ".pdf", ""};
        OutputFile png{plan.fileName + ".png", ""};
        if (!Drawing::WriteSvg(list, svg.bytes, error) ||
            !Drawing::WritePdf(list, pdf.bytes, error) ||
            !Drawing::WritePng(list, png.bytes, error)) {
            return false;
        }
        files.insert(files.end(), {svg, pdf, png});
    }
    return true;
}

void TellValues(const Simulation::StudyScene& built, const Simulation::SimulationResult& result) {
    TellPlanes(result.zones);
    TellLoosePoints(result, built.pointCount);
}

void TellClosing(const Document::RunRecord& record, const std::vector<std::string>& notices,
                 const std::string& folder, const std::vector<OutputFile>& files) {
    for (const std::string& notice : notices) {
        TellLine("Aviso: " + notice);
    }
    TellLine("Calculado em " + Simulation::FormatDecimal(record.seconds, 1) + " s com " +
             record.radianceVersion + ".");
    for (const OutputFile& file : files) {
        if (file.name.ends_with(".png")) {
            TellLine("Planta: " + (std::filesystem::path(folder) / file.name).string());
        }
    }
}

} // namespace Merivane::Program
