#pragma once

#include <string>
#include <vector>

#include "Document/Report/ReportInput.hpp"

namespace Merivane::Tests {

/// Everything that a report of a calculation is made of, kept together.
struct ReportSample {
    Simulation::LightingStudy study;
    Simulation::StudyScene built;
    Simulation::SimulationResult result;
    std::vector<Simulation::ZoneAnalysis> analyses;
    Document::RunRecord run;
};

/// A calculation of a scene document without running Radiance: every point of the work planes has
/// values of 450 lux and more, rising along the rows, every other plane 100 lux, every observer 80
/// lux of which 30 are direct.
ReportSample CalculateSample(const std::string& text);

/// A project of an office with screens, a corridor that fails, and a store without activity, under
/// luminaires of three types. The study is named "Escritório Modelo".
ReportSample OfficeSample();

/// As many Zones as wanted, side by side, each under its own luminaire.
ReportSample ManyZones(int count);

/// The input that a caller makes of a sample, with a small plan as its picture.
Document::ReportInput InputOf(const ReportSample& sample);

} // namespace Merivane::Tests
