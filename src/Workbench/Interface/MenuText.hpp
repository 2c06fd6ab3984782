#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// The strings of a menu's resource, read as the host does.
namespace Merivane::Workbench {

/// A string without the marks behind its text.
struct MenuItemText {
    std::string text;
    std::vector<std::string> marks; ///< without `^`: "E3", "ES" ...; the icon's left out
    std::int16_t icon = 0;          ///< 0 = none

    bool operator==(const MenuItemText&) const = default;
};

struct MenuTexts {
    std::string menu;  ///< of the menu bar
    std::string group; ///< sub-menu; empty when the items stand in the menu itself
    std::vector<MenuItemText> items;

    bool operator==(const MenuTexts&) const = default;
};

/// One string: text, then marks " ^XX" parted by blanks. What is no mark belongs to the text.
MenuItemText ReadMenuItem(std::string_view string);

/// The first string names the menu; of two more or further ones the first names the group.
MenuTexts ReadMenuTexts(const std::vector<std::string>& strings);

} // namespace Merivane::Workbench
