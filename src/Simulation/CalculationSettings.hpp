#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "Simulation/LevelList.hpp"

namespace Merivane::Simulation {

/// What the user chose for a calculation: the grid's distances [m], what is analysed, and what is
/// drawn of it.
struct CalculationSettings {
    double workPlaneHeight = 0.75; ///< above the Zone's floor [m], 0 or more
    double wallOffset = 0.05;      ///< of the points from the wall [m], at least 0.01
    double borderBand = 0.5;       ///< outside the statistics [m], at least `wallOffset`
    bool reviewReflectances = true;
    bool colouredReflection = true; ///< surfaces reflect in their hue
    bool verify = true;             ///< against the activity of each Zone
    bool planeFacesViewer = true;   ///< a vertical plane faces who looks at the section
    bool surfaces = true;           ///< walls and ceilings are calculated too
    bool ugr = true;

    double drawingScale = 0.0; ///< denominator; 0 or less = the host's when the drawing starts
    bool fills = true;         ///< colour bands
    bool model3D = true;
    std::uint32_t colorScale = 0; ///< palette, see `BandColor`
    bool legend = true;
    bool curves = true;
    bool curveLabels = true;
    bool values = false;       ///< values written in a mesh
    double valueSpacing = 0.5; ///< of that mesh, both ways [m], above 0
    LevelList levels = DefaultLevels();

    bool operator==(const CalculationSettings&) const = default;
};

/// Checks what the user accepts. `levelsText` is what stands in the field of the levels, which
/// `settings` takes over when all is well. On the first rule that is broken returns false, sets
/// `error` to the Portuguese message that the user sees and leaves `settings` as it was.
bool CheckCalculationSettings(CalculationSettings& settings, std::string_view levelsText,
                              std::string& error);

} // namespace Merivane::Simulation
