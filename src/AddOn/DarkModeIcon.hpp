#pragma once

#include "Host/Dialog.hpp"

namespace Merivane {

/// In the host's dark interface, gives a dialog that has items the product's mark in its light
/// form, as one more item.
void DarkModeIcon(Host::DialogId panel);

} // namespace Merivane
