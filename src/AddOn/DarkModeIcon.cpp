#include "AddOn/DarkModeIcon.hpp"

#include "AddOn/Entry/ResourceIds.hpp"
#include "Host/Menus.hpp"

namespace Merivane {

void DarkModeIcon(Host::DialogId panel) {
    if (Host::IsDarkMode() && Host::ItemCount(panel) >= 1) {
        Host::AppendIcon(panel, ResourceIds::LightMarkIcon);
    }
}

} // namespace Merivane
