#include <algorithm>

#include "Simulation/Glare/ObserverGlare.hpp"
#include "Simulation/Glare/StandardRoom.hpp"
#include "Simulation/Glare/ZoneGlareTexts.hpp"
#include "Simulation/PrintedValue.hpp"
#include "Simulation/Study/GlareSummary.hpp"
#include "Simulation/Study/SummaryTexts.hpp"
#include "Simulation/Study/ZoneSummary.hpp"

namespace Merivane::Simulation {

namespace {

using Lines = std::vector<std::string>;

// Marks of the notes on method that the lines refer to.
const char* const GlareMark = "  [4]";
const char* const SurfaceMark = "  [5]";
const char* const ScreenMark = "  [7]";

std::string Lux(double value) {
    return FormatDecimal(value, 0) + " lx";
}

std::string Metres(double value) {
    return FormatDecimal(value, 2) + " m";
}

std::string HeadLine(const ZoneDrawing& drawing) {
    const PointStatistics& statistics = drawing.analysis.statistics;
    const std::string plane =
        drawing.planeName.empty()
            ? "Plano de trabalho a " + Metres(drawing.zone.grid.workPlaneHeight)
            : drawing.planeName;
    const std::string engine = drawing.engine.empty() ? "" : ", motor " + drawing.engine;
    return plane + ": " + (drawing.vertical ? "Ev " : "Em ") + Lux(statistics.mean) + ", Emin " +
           Lux(statistics.minimum) + ", Emax " + Lux(statistics.maximum) + ", U0 " +
           FormatDecimal(statistics.uniformity, 2) + " (" + std::to_string(statistics.count) +
           " pontos" + engine + ")  [1] [2]";
}

void TellBorder(const ZoneDrawing& drawing, Lines& lines) {
    if (drawing.grid.narrow) {
        lines.emplace_back(NarrowZoneText);
    } else if (!drawing.taskOutline.empty()) {
        lines.push_back("Faixa de borda de " + Metres(drawing.zone.grid.borderBand) +
                        " junto às paredes fora das estatísticas (linha tracejada na planta)  [2]");
    }
}

void TellGlare(const ZoneAnalysis& analysis, Lines& lines) {
    const ZoneGlare& glare = analysis.glare;
    if (glare.hasUgr) {
        lines.push_back("UGR: " + WorstReading(glare) + GlareMark);
        if (!HasUgrLimit(analysis)) {
            lines.push_back("UGR " + FormatUgr(glare.ugr) + ": " +
                            NoLimitText(analysis.task != nullptr) + GlareMark);
        }
    }
    const std::string small = SmallSourceNote(glare);
    if (!small.empty()) {
        lines.push_back(small + GlareMark);
    }
    const std::string positions = PositionsNote(glare.observers);
    if (!positions.empty()) {
        lines.push_back(positions + GlareMark);
    }
}

void TellFloor(const PointStatistics& floor, Lines& lines) {
    if (floor.count > 0) {
        lines.push_back("Piso (só no 3D, sem verificação): Em " + Lux(floor.mean) + ", U0 " +
                        FormatDecimal(floor.uniformity, 2) + SurfaceMark);
    }
}

// What the lines above have told already, in the words of the notes.
bool IsTold(const ZoneAnalysis& analysis, const std::string& note) {
    const ZoneGlare& glare = analysis.glare;
    return note == PositionsNote(glare.observers) ||
           (glare.hasUgr && (note == WorstReading(glare) ||
                             note == NoLimitNote(glare.ugr, analysis.task != nullptr)));
}

void TellOtherNotes(const ZoneAnalysis& analysis, Lines& lines) {
    const std::vector<std::string>& warnings = analysis.glare.warnings;
    for (const std::string& note : analysis.glare.notes) {
        if (std::find(warnings.begin(), warnings.end(), note) != warnings.end()) {
            lines.push_back(GlareWarningText(note));
        } else if (!IsTold(analysis, note)) {
            lines.push_back(note);
        }
    }
}

} // namespace

std::vector<std::string> ZoneSummaryLines(const ZoneDrawing& drawing) {
    const ZoneAnalysis& analysis = drawing.analysis;
    Lines lines = {HeadLine(drawing)};
    TellBorder(drawing, lines);
    TellGlare(analysis, lines);
    TellFloor(analysis.floor, lines);
    for (const std::string& note : analysis.verification.notes) {
        lines.push_back(note + ScreenMark);
    }
    TellOtherNotes(analysis, lines);
    return lines;
}

} // namespace Merivane::Simulation
