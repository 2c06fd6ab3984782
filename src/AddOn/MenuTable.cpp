#include "AddOn/MenuTable.hpp"

#include "AddOn/CommandTable.hpp"
#include "Host/Menus.hpp"

namespace Merivane::Commands {

namespace {

constexpr MenuGroup Groups[] = {
    {32531, 2, {32520, 32519}},
    {32530, 4, {32504, 32503, 32513, 32514}},
    {32532, 1, {32521}},
    {32533, 5, {32505, 32507, 32509, 32511, 32508}},
    {32536, 3, {32516, 32517, 32515}},
    {32534, 3, {32512, 32510, 32518}},
    {ToolbarMenuGroup, 5, {32523, 32500, 32501, 32502, 32506}},
};

/// Either interface's number of a group as that of the light one. It does not ask which one the
/// host has: a number of the other one keeps working.
std::int16_t LightResource(std::int16_t menuResource) {
    for (const MenuGroup& group : Groups) {
        if (menuResource == MenuResource(group, DarkMenuOffset)) {
            return group.resourceId;
        }
    }
    return menuResource;
}

} // namespace

std::span<const MenuGroup> MenuTable() {
    return Groups;
}

std::int16_t MenuThemeOffset() {
    return Host::IsDarkMode() ? DarkMenuOffset : std::int16_t{0};
}

std::int16_t MenuResource(const MenuGroup& group, std::int16_t themeOffset) {
    return static_cast<std::int16_t>(group.resourceId + themeOffset);
}

std::int16_t FindMenuCommand(std::int16_t menuResource, std::int32_t item) {
    const std::int16_t resource = LightResource(menuResource);
    for (const MenuGroup& group : Groups) {
        if (group.resourceId == resource && item >= 1 && item <= group.itemCount) {
            return group.commands[static_cast<std::size_t>(item - 1)];
        }
    }
    return 0;
}

Host::ErrorCode MenuCommandHandler(std::int16_t menuResource, std::int16_t item) {
    ExecuteCommand(FindMenuCommand(menuResource, item));
    return Host::NoError;
}

} // namespace Merivane::Commands
