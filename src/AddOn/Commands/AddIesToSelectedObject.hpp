#pragma once

namespace Merivane::Commands {

/// Turns the selected Object or Lamp into a luminaire: asks for an IES file and how its light
/// stands in the object, copies the object's part with the photometry inside it, and puts the copy
/// in the placed element's place.
void AddIesToSelectedObject();

} // namespace Merivane::Commands
