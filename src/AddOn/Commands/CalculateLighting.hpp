#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Archicad/ModelReadingZones.hpp"
#include "Radiance/Installation.hpp"
#include "Simulation/CalculationSettings.hpp"
#include "Simulation/Reflectances.hpp"
#include "Simulation/SimulationRecords.hpp"
#include "Simulation/Study/CeilingDetection.hpp"
#include "Simulation/Study/LightingStudy.hpp"
#include "Simulation/Study/StudyScene.hpp"
#include "Simulation/Study/ZoneAnalysis.hpp"
#include "Simulation/Study/ZoneDrawing.hpp"

namespace Merivane::Commands {

/// How far one run of the calculation came.
enum class CalculationEnd {
    Refused,   ///< nothing to calculate with: no Zone, no luminaire, no Radiance
    Cancelled, ///< by the user, in a dialog or while Radiance ran; nothing is drawn
    Failed,    ///< Radiance failed, or the plan could not be shown
    Done,      ///< calculated; what could be drawn is drawn
};

/// One run of the calculation with all that it read, asked and worked out. Filled step by step:
/// what stands after the step at which it ended is empty.
struct Calculation {
    CalculationEnd end = CalculationEnd::Refused;
    std::vector<Archicad::ZoneRecord> zones;       ///< their heights are those of the real ceilings
    std::vector<Simulation::ZoneCeiling> ceilings; ///< of the Zones, in order
    Simulation::CalculationSettings settings;
    std::vector<Simulation::SurfaceReflectance> reflectances; ///< one for each material
    Radiance::Installation installation;
    Simulation::LightingStudy study; ///< its Zones are `zones`, in order
    Simulation::StudyScene built;
    Simulation::SimulationResult result;
    std::string workFolder;                         ///< files of the calculation
    double seconds = 0.0;                           ///< that Radiance took [s]
    std::vector<Simulation::ZoneAnalysis> analyses; ///< of the Zones, in order
    std::vector<Simulation::ZoneDrawing> drawings;  ///< of the Zones, in order
    std::vector<std::string> notices;               ///< for the reader of the results
};

/// Calculates the selected Zones, or those of the floor on the plan, and draws the results into the
/// project: the whole of `CalculateLighting`, with what it came to.
Calculation RunCalculation();

/// From Zones to isolux curves, colour maps, tables and views on the floor plan.
void CalculateLighting();

} // namespace Merivane::Commands
