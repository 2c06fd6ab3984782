#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Document/ResultDocument.hpp"
#include "Drawing/DisplayList.hpp"
#include "Simulation/CalculationSettings.hpp"
#include "Simulation/Reflectances.hpp"
#include "Simulation/SimulationRecords.hpp"
#include "Simulation/Study/CeilingDetection.hpp"
#include "Simulation/Study/LightingStudy.hpp"
#include "Simulation/Study/StudyScene.hpp"
#include "Simulation/Study/ZoneAnalysis.hpp"

namespace Merivane::Document {

/// A window of the project as a picture of the report: the plan with its results, a section.
struct ReportPicture {
    std::string name; ///< the window's, as the user knows it
    Drawing::DisplayList drawing;
};

/// A value that was taken because nobody had given one.
struct AdoptedValue {
    std::string subject; ///< whose: "Zona Sala 1", "Luminária Painel"
    std::string value;   ///< what was taken, with its unit
    std::string reason;  ///< what was missing, a Portuguese sentence without the point at its end

    bool operator==(const AdoptedValue&) const = default;
};

/// A thing and its version: {"Pango", "1.50.12"}.
struct ReportVersion {
    std::string name;
    std::string version;
};

/// Everything that a report is made of. The first five are looked at, not owned, and must fit each
/// other: `result` that of `built.scene`, `analyses` those of the study's Zones, in order. The
/// tables of glare terms are there only where the analyses were made with `explain`.
struct ReportInput {
    const Simulation::LightingStudy& study;
    const Simulation::StudyScene& built;
    const Simulation::SimulationResult& result;
    const std::vector<Simulation::ZoneAnalysis>& analyses;
    const RunRecord& run; ///< 0 seconds are not told, so that a run can be repeated byte for byte
    Simulation::CalculationSettings settings = {};
    /// Of the project's surfaces, with where each value comes from; without any the study's
    /// materials are told as they are given.
    std::vector<Simulation::SurfaceReflectance> reflectances = {};
    std::vector<Simulation::ZoneCeiling> ceilings = {}; ///< one for each Zone, or none at all
    std::vector<AdoptedValue> adopted = {};        ///< what only the caller knows of, told first
    std::vector<ReportPicture> pictures = {};      ///< the plan with its results first
    std::vector<ReportVersion> versions = {};      ///< beside those of `run`
    std::vector<std::string> log = {};             ///< every line of the run, in order
    std::string moment = {};                       ///< of the run: "21/11/2026 20:15"; may be empty
    std::optional<std::int64_t> creationTime = {}; ///< of the PDF [s since 1970, UTC], see
                                                   ///< `Drawing::PdfOptions`
};

} // namespace Merivane::Document
