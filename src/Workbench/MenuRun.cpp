#include "Workbench/MenuRun.hpp"

#include <algorithm>

#include "Workbench/Interface/MenuText.hpp"
#include "Workbench/Session.hpp"
#include "Workbench/SessionResources.hpp"

namespace Merivane::Workbench {

RegisteredMenu* FindMenu(std::int16_t resource) {
    std::vector<RegisteredMenu>& menus = CurrentSession().userInterface.menus;
    const auto found = std::find_if(menus.begin(), menus.end(), [&](const RegisteredMenu& menu) {
        return menu.resource == resource;
    });
    return found == menus.end() ? nullptr : &*found;
}

RegisteredPalette* FindRegisteredPalette(const Host::Guid& palette) {
    std::vector<RegisteredPalette>& palettes = CurrentSession().userInterface.registeredPalettes;
    const auto found =
        std::find_if(palettes.begin(), palettes.end(),
                     [&](const RegisteredPalette& each) { return each.guid == palette; });
    return found == palettes.end() ? nullptr : &*found;
}

Host::ErrorCode ChooseMenuItem(std::int16_t resource, std::int32_t item) {
    const RegisteredMenu* const menu = FindMenu(resource);
    if (!menu || !menu->handler) {
        return Host::BadId;
    }
    const MenuTexts texts = ReadMenuTexts(*FindStringList(resource));
    if (item < 1 || static_cast<std::size_t>(item) > texts.items.size()) {
        return Host::BadIndex;
    }
    CurrentSession().userInterface.keepInMemory = false;
    return menu->handler(resource, static_cast<std::int16_t>(item));
}

Host::ErrorCode SendPaletteMessage(const Host::Guid& palette, Host::PaletteMessage message,
                                   bool& visible) {
    const RegisteredPalette* const found = FindRegisteredPalette(palette);
    return found ? found->handler(message, visible) : Host::BadId;
}

} // namespace Merivane::Workbench
