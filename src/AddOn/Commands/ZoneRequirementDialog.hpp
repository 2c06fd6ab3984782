#pragma once

#include <cstdint>
#include <vector>

#include "Host/Dialog.hpp"
#include "Simulation/Verification/TaskTable.hpp"
#include "Simulation/Verification/ZoneRequirement.hpp"

namespace Merivane {

/// The choice of the standard and of each Zone's activity before a calculation.
class ZoneRequirementDialog {
public:
    ZoneRequirementDialog(std::vector<Simulation::ZoneRequirementRow> rows,
                          Simulation::ReferenceStandard standard);

    /// Shows the dialog until it closes. True when the user goes on; rows and standard are then as
    /// chosen.
    bool Invoke();

    const std::vector<Simulation::ZoneRequirementRow>& Rows() const { return rows; }
    Simulation::ReferenceStandard Standard() const { return standard; }

private:
    void Open(Host::DialogId opened);
    void FillPopUps() const;
    void FillZones() const;
    void Click(std::int16_t item);
    void Change(std::int16_t item);
    void ChooseActivity(Simulation::ZoneRequirementRow& row);
    void ChooseScreens(Simulation::ZoneRequirementRow& row) const;
    void TakeNumbers(Simulation::ZoneRequirementRow& row) const;
    void UseForAll(std::int16_t chosen);
    void ShowSelectedZone();
    void ListActivities();
    void RefreshRow(std::int16_t row) const;
    void RefreshRequirement();
    Simulation::ZoneRequirementRow* Selected();

    Host::DialogId dialog = 0;
    std::vector<Simulation::ZoneRequirementRow> rows;
    Simulation::ReferenceStandard standard = Simulation::ReferenceStandard::Brazilian;
    /// Behind the pop-up's entries from the second on.
    std::vector<const Simulation::TaskRow*> listedActivities;
};

} // namespace Merivane
