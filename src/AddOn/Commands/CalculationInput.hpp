#pragma once

#include <vector>

#include "AddOn/Commands/CalculateLighting.hpp"
#include "Host/Types.hpp"

/// The first half of a calculation: what is read from the project and asked of the user, up to the
/// scene that Radiance gets. Each step returns false where the calculation ends there; the user has
/// then been told, and nothing has changed in the project but the activities of its Zones.
namespace Merivane::Commands {

/// Reads the Zones and the luminaires of their floors. `luminaireGuids` gets every luminaire, also
/// those that do not shine: none of their bodies is part of the room.
bool CollectZonesAndLuminaires(Calculation& calculation, std::vector<Host::Guid>& luminaireGuids);

/// Looks for Radiance.
bool FindRadiance(Calculation& calculation);

/// Asks for the settings.
bool AskSettings(Calculation& calculation);

/// Asks for the activities of the Zones where they are to be verified, and keeps them in the
/// project.
bool AskActivities(Calculation& calculation);

/// Reads the model round the Zones, takes their real ceilings, and has the user review the
/// reflectances.
bool CollectModel(Calculation& calculation, const std::vector<Host::Guid>& luminaireGuids);

/// Lays the calculation points.
void BuildPoints(Calculation& calculation);

} // namespace Merivane::Commands
