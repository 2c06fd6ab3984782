#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>

#include "AddOn/RunLog/RunLog.hpp"
#include "Archicad/ResultDrawing.hpp"
#include "Archicad/ResultElements.hpp"
#include "Archicad/ResultLabels.hpp"
#include "Simulation/ColorScale.hpp"
#include "Simulation/CurveLabels.hpp"
#include "Simulation/Study/ZoneSummary.hpp"

// One Zone's result on the plan, from the fills at the bottom to the texts.
namespace Merivane::Archicad {

namespace {

using Commands::Progress;
using Simulation::ZoneDrawing;

/// What the steps of a Zone share.
struct ZoneRun {
    const ZonePlacement& zone;
    const ZoneDrawing& drawing;
    const DrawingOptions& options;
    const ResultStructure& structure;
    std::vector<std::string>& warnings;
    ResultSheet sheet;
};

double MillimetreOf(const ZoneRun& run) {
    return PaperMillimetre(run.structure.scale);
}

// What the project lacks is told once, however many Zones miss it.
void WarnOnce(std::vector<std::string>& warnings, const std::string& text) {
    if (std::find(warnings.begin(), warnings.end(), text) == warnings.end()) {
        warnings.push_back(text);
    }
}

std::string BandProgress(std::uint64_t band, const Simulation::BandPolygon& polygon) {
    std::size_t vertices = polygon.outer.size();
    for (const std::vector<Simulation::Point2D>& hole : polygon.holes) {
        vertices += hole.size();
    }
    return "2D: preenchimento faixa " + std::to_string(band) + ", " +
           std::to_string(polygon.holes.size()) + " furo(s), " + std::to_string(vertices) +
           " vertice(s)";
}

void DrawBands(ZoneRun& run) {
    if (run.structure.solidFill == Host::AttributeIndex()) {
        WarnOnce(run.warnings, "mapa de cor falsa nao desenhado: o projeto nao tem um "
                               "Preenchimento solido");
        return;
    }
    for (const Simulation::ColorBand& band : run.drawing.bands) {
        const Simulation::RgbColor color = Simulation::BandColor(run.options.colorScale, band.index,
                                                                 run.options.levels.size() + 1);
        for (const Simulation::BandPolygon& polygon : band.polygons) {
            Progress(BandProgress(band.index, polygon));
            DrawFill(run.sheet, run.structure.layers.falseColor, run.structure.solidFill, color,
                     polygon);
        }
    }
}

// A curve that the host refuses gets no label either.
void DrawCurves(ZoneRun& run) {
    std::vector<Simulation::IsoCurve> drawn;
    for (const Simulation::IsoCurve& curve : run.drawing.curves) {
        if (DrawCurve(run.sheet, run.structure.layers.isolux, {}, curve)) {
            drawn.push_back(curve);
        }
    }
    if (!run.options.curveLabels) {
        return;
    }
    const CurveTexts labels = PlaceCurveTexts(
        drawn, LabelSpaceOf(run.drawing, run.zone.otherLabels, run.options, MillimetreOf(run)),
        MillimetreOf(run));
    for (const PlacedText& text : labels.texts) {
        DrawText(run.sheet, run.structure.layers.isolux, text);
    }
    if (labels.unlabelled > 0) {
        run.warnings.push_back(Simulation::UnlabelledCurvesText(labels.unlabelled));
    }
}

void DrawValues(ZoneRun& run) {
    for (const PlacedText& text : PlaceValueTexts(run.drawing, run.options)) {
        DrawText(run.sheet, run.structure.layers.values, text);
    }
}

void DrawTaskLimit(ZoneRun& run) {
    if (run.drawing.taskOutline.empty()) {
        return;
    }
    if (run.structure.dashedLine == Host::AttributeIndex()) {
        WarnOnce(run.warnings, "nao foi possivel criar o tipo de linha \"Vantoro - Tracejada\": "
                               "limite da faixa de borda desenhado continuo");
    }
    for (const Simulation::IsoCurve& curve : run.drawing.taskOutline) {
        DrawCurve(run.sheet, run.structure.layers.isolux, run.structure.dashedLine, curve);
    }
    if (const std::optional<PlacedText> label =
            PlaceOutlineText(run.drawing.taskOutline, MillimetreOf(run))) {
        DrawText(run.sheet, run.structure.layers.isolux, *label);
    }
}

} // namespace

void DrawZone(const ZonePlacement& zone, const DrawingOptions& options,
              const ResultStructure& structure, std::vector<std::string>& warnings) {
    ZoneRun run{zone,      *zone.drawing, options,
                structure, warnings,      {static_cast<std::int16_t>(zone.floorIndex), 0}};
    if (options.fills) {
        DrawBands(run);
    }
    Progress("2D: preenchimentos feitos; curvas (" + std::to_string(run.drawing.curves.size()) +
             ")");
    if (options.curves) {
        DrawCurves(run);
    }
    Progress("2D: curvas e rotulos feitos");
    if (options.values) {
        DrawValues(run);
    }
    Progress("2D: valores feitos; limite da area de tarefa");
    DrawTaskLimit(run);
    Progress("2D: limite feito; textos do resumo");
    const std::vector<Simulation::SummaryParagraph> summary =
        Simulation::BuildZoneSummary(run.drawing);
    if (!DrawSummary(run.sheet, structure.layers.legend, zone.summary, summary)) {
        warnings.emplace_back("1 elemento(s) das tabelas nao puderam ser criados");
    }
    Progress("2D: resumo (" + std::to_string(summary.size()) + " paragrafos)");
    Progress("2D: zona concluida");
    if (run.sheet.refused > 0) {
        warnings.push_back(std::to_string(run.sheet.refused) +
                           " elemento(s) de desenho nao puderam ser criados na zona " +
                           run.drawing.zone.name);
    }
}

} // namespace Merivane::Archicad
