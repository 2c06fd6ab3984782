#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "Host/Dialog.hpp"
#include "Simulation/Reflectances.hpp"

namespace Merivane {

/// The review of the reflectances of a scene's surfaces before they are calculated with.
class ReflectanceDialog {
public:
    explicit ReflectanceDialog(std::vector<Simulation::SurfaceReflectance> records);

    /// Shows the dialog until it closes. True when the user goes on; the records are then as
    /// edited.
    bool Invoke();

    const std::vector<Simulation::SurfaceReflectance>& Records() const { return records; }

    /// Whether the corrections are to be kept for later calculations.
    bool Remember() const { return remember; }

private:
    void Open(Host::DialogId opened);
    void Click(std::int16_t item);
    void Change(std::int16_t item);
    void TakeField(std::int16_t item);
    void RefreshRow(std::int16_t row) const;
    void RefreshFields();
    Simulation::SurfaceReflectance* Selected();

    Host::DialogId dialog = 0;
    std::vector<Simulation::SurfaceReflectance> records;
    bool remember = true;
};

/// Shows the dialog on `records`, as the review of reflectances asks for it. False when the user
/// cancels; both are then as they were.
bool ShowReflectanceDialog(std::vector<Simulation::SurfaceReflectance>& records, bool& remember);

} // namespace Merivane
