#pragma once

#include <cstdint>
#include <string>

#include "Host/Dialog.hpp"
#include "Simulation/CalculationSettings.hpp"

namespace Merivane {

/// What a calculation is asked for. Begins with the settings last accepted, of whichever
/// calculation, and remembers those that are accepted now.
class CalculationDialog {
public:
    /// `summaryText` tells what will be calculated. `section` is the calculation of a vertical
    /// plane, `walls` that of an interior elevation, neither that of the plan. What only the plan
    /// knows is greyed in the other two and stays as it was last accepted.
    CalculationDialog(std::string summaryText, bool section, bool walls);

    /// Shows the dialog until it closes. True when the user goes on, which takes settings that
    /// `CheckCalculationSettings` lets pass: it stays open on others, with its message.
    bool Invoke();

    /// As accepted, else those last accepted.
    const Simulation::CalculationSettings& Settings() const { return settings; }

private:
    void Open(Host::DialogId opened);
    void Fill() const;
    void GreyUnusedItems() const;
    void Click(std::int16_t item);
    void Accept();
    Simulation::CalculationSettings ReadItems() const;
    void ShowEngine() const;

    Host::DialogId dialog = 0;
    std::string summaryText;
    bool section = false;
    bool walls = false;
    Simulation::CalculationSettings settings;
};

} // namespace Merivane
