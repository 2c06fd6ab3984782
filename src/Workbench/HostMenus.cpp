#include "Host/Menus.hpp"

#include <algorithm>

#include "Workbench/MenuRun.hpp"
#include "Workbench/Session.hpp"
#include "Workbench/SessionResources.hpp"

namespace Merivane::Host {

namespace {

using Workbench::CountCall;
using Workbench::CurrentSession;

Workbench::UserInterface& Interface() {
    return CurrentSession().userInterface;
}

} // namespace

std::string ResourceString(std::int16_t resource, std::int16_t index) {
    const ErrorCode code = CountCall("ResourceString");
    const std::vector<std::string>* const strings = Workbench::FindStringList(resource);
    const bool exists = code == NoError && strings && index >= 1 &&
                        static_cast<std::size_t>(index) <= strings->size();
    return exists ? (*strings)[static_cast<std::size_t>(index) - 1] : std::string();
}

ErrorCode RegisterMenu(std::int16_t resource, bool separatorBefore) {
    if (const ErrorCode code = CountCall("RegisterMenu")) {
        return code;
    }
    const std::vector<std::string>* const strings = Workbench::FindStringList(resource);
    if (!strings || strings->empty() || Workbench::FindMenu(resource)) {
        return BadId;
    }
    Interface().menus.push_back({resource, separatorBefore});
    return NoError;
}

ErrorCode InstallMenuHandler(std::int16_t resource, MenuHandler handler) {
    if (const ErrorCode code = CountCall("InstallMenuHandler")) {
        return code;
    }
    Workbench::RegisteredMenu* const menu = Workbench::FindMenu(resource);
    if (!menu) {
        return BadId;
    }
    if (!handler) {
        return BadParameters;
    }
    menu->handler = handler;
    return NoError;
}

ErrorCode CatchProjectEvents(std::int32_t events, ProjectEventHandler handler) {
    if (const ErrorCode code = CountCall("CatchProjectEvents")) {
        return code;
    }
    // The host keeps one handler for an add-on; a new one takes the place of the one before.
    CurrentSession().eventCatchers.clear();
    if (handler && events != 0) {
        CurrentSession().eventCatchers.push_back({events, handler});
    }
    return NoError;
}

ErrorCode RegisterPalette(const Guid& palette, PaletteHandler handler, std::int32_t flags) {
    if (const ErrorCode code = CountCall("RegisterPalette")) {
        return code;
    }
    if (palette == Guid{} || !handler) {
        return BadParameters;
    }
    if (Workbench::FindRegisteredPalette(palette)) {
        return BadId;
    }
    Interface().registeredPalettes.push_back({palette, handler, flags});
    return NoError;
}

ErrorCode UnregisterPalette(const Guid& palette) {
    if (const ErrorCode code = CountCall("UnregisterPalette")) {
        return code;
    }
    const auto removed = std::erase_if(
        Interface().registeredPalettes,
        [&](const Workbench::RegisteredPalette& each) { return each.guid == palette; });
    return removed > 0 ? NoError : BadId;
}

void KeepInMemory() {
    if (CountCall("KeepInMemory") == NoError) {
        Interface().keepInMemory = true;
    }
}

bool IsDarkMode() {
    return CountCall("IsDarkMode") == NoError && CurrentSession().options.darkMode;
}

} // namespace Merivane::Host
