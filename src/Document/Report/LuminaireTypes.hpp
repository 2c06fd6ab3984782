#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "Document/Report/ReportText.hpp"
#include "Simulation/Scene.hpp"
#include "Simulation/Study/LightingStudy.hpp"

namespace Merivane::Document {

/// All luminaires of one type: what they share, and the range of what they need not share. Pieces
/// of a linear run have flux and power by their length.
struct LuminaireType {
    std::string name;
    std::string manufacturer;
    std::string lamp;
    const Simulation::SceneLuminaire* sample = nullptr; ///< the first, not owned
    std::size_t count = 0;                              ///< light sources, every copy of an array
    ValueRange flux;                                    ///< [lm]
    ValueRange watts;
    ValueRange colourRendering;
    ValueRange maintenance;
    ValueRange dimming;                     ///< [0..1]
    double totalWatts = 0.0;                ///< of those whose power is known
    std::size_t withoutWatts = 0;           ///< light sources
    std::size_t withoutColourRendering = 0; ///< light sources
    std::size_t usualMaintenance = 0;       ///< light sources with the factor that none has chosen
};

/// Name of a luminaire's type, as a schedule calls it.
std::string LuminaireTypeName(const Simulation::SceneLuminaire& luminaire);

/// Power that a luminaire takes at full output, its length counted [W]; 0 when unknown.
double LuminairePower(const Simulation::SceneLuminaire& luminaire);

/// The types in the order of their first luminaire. `luminaires` must outlive the result.
std::vector<LuminaireType>
CollectLuminaireTypes(const std::vector<Simulation::SceneLuminaire>& luminaires);

/// Power over a Zone.
struct ZonePower {
    std::size_t count = 0;        ///< light sources over the Zone
    std::size_t withoutWatts = 0; ///< those of unknown power
    double watts = 0.0;           ///< of the others
    double area = 0.0;            ///< of the Zone [m2]
};

/// The power over each Zone of the study, in order.
std::vector<ZonePower> CollectZonePowers(const Simulation::LightingStudy& study,
                                         const Simulation::Scene& scene);

/// "9,4 W/m²"; `NoValue` where no power is known, "≥ 9,4 W/m²" where some are unknown.
std::string PowerDensityText(const ZonePower& power);

} // namespace Merivane::Document
