#include "AddOn/Entry/EntryPoints.hpp"

#include <iterator>
#include <optional>

#include "AddOn/AddOnState.hpp"
#include "AddOn/Commands/ToolbarPalette.hpp"
#include "AddOn/Entry/ResourceIds.hpp"
#include "AddOn/MenuTable.hpp"
#include "AddOn/ProjectEvents.hpp"

namespace Merivane {

namespace {

/// How a palette of the add-on comes and goes.
struct PaletteRow {
    Host::ErrorCode (*registerPalette)();
    void (*unregisterPalette)();
};

constexpr PaletteRow Palettes[] = {
    {Commands::RegisterToolbar, Commands::UnregisterToolbar},
};

/// The theme counts at registration: a menu of the other one does not exist for the host.
std::int16_t RegisteredThemeOffset() {
    const std::optional<std::int16_t>& registered = CurrentAddOnState().menuThemeOffset;
    return registered ? *registered : Commands::MenuThemeOffset();
}

Host::ErrorCode InstallMenuHandlers() {
    const std::int16_t offset = RegisteredThemeOffset();
    for (const Commands::MenuGroup& group : Commands::MenuTable()) {
        const std::int16_t resource = Commands::MenuResource(group, offset);
        if (const auto code = Host::InstallMenuHandler(resource, Commands::MenuCommandHandler)) {
            return code;
        }
    }
    return Host::NoError;
}

Host::ErrorCode RegisterPalettes() {
    for (const PaletteRow& palette : Palettes) {
        if (const Host::ErrorCode code = palette.registerPalette()) {
            return code;
        }
    }
    return Host::NoError;
}

} // namespace

Host::AddOnType CheckEnvironment(Host::AddOnEnvironment& environment) {
    AddOnState& state = CurrentAddOnState();
    state.name = Host::ResourceString(ResourceIds::AddOnStrings, ResourceIds::NameString);
    state.description =
        Host::ResourceString(ResourceIds::AddOnStrings, ResourceIds::DescriptionString);
    environment.name = state.name.c_str();
    environment.description = state.description.c_str();
    return Host::AddOnType::Normal;
}

Host::ErrorCode RegisterInterface() {
    const std::int16_t offset = Commands::MenuThemeOffset();
    CurrentAddOnState().menuThemeOffset = offset;
    for (const Commands::MenuGroup& group : Commands::MenuTable()) {
        const std::int16_t resource = Commands::MenuResource(group, offset);
        const bool separatorBefore = group.resourceId == Commands::ToolbarMenuGroup;
        if (const Host::ErrorCode code = Host::RegisterMenu(resource, separatorBefore)) {
            return code;
        }
    }
    return Host::NoError;
}

Host::ErrorCode Initialize() {
    if (const Host::ErrorCode code = InstallMenuHandlers()) {
        return code;
    }
    if (const Host::ErrorCode code =
            Host::CatchProjectEvents(Host::ProjectNew + Host::ProjectOpen, HandleProjectEvent)) {
        return code;
    }
    return RegisterPalettes();
}

Host::ErrorCode FreeData() {
    for (auto palette = std::rbegin(Palettes); palette != std::rend(Palettes); ++palette) {
        palette->unregisterPalette();
    }
    CurrentAddOnState().calculation = {};
    CurrentAddOnState().run = {};
    return Host::NoError;
}

} // namespace Merivane
