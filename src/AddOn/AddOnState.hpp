#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "Archicad/RunRadiance.hpp"
#include "Host/Dialog.hpp"
#include "Simulation/CalculationSettings.hpp"

namespace Merivane {

/// A palette of the add-on; it is made when it is first shown.
struct PaletteState {
    std::optional<Host::DialogId> dialog; ///< none until it is made
    bool shownBeforeHiding = false;       ///< to be shown again with all palettes
};

/// All that the add-on keeps while it is loaded.
struct AddOnState {
    std::string name; ///< the host reads these two after `CheckEnvironment` has returned
    std::string description;
    /// Of the menus that were registered. The host may load the add-on anew behind the
    /// registration; there is none then.
    std::optional<std::int16_t> menuThemeOffset;
    PaletteState toolbar;
    Simulation::CalculationSettings calculation; ///< those last accepted
    Archicad::RunOptions run;                    ///< of calculations; no dialog asks for them
};

AddOnState& CurrentAddOnState();

} // namespace Merivane
