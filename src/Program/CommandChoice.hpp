#pragma once

#include <cstdint>
#include <string>

/// Commands of the add-on's menu, as the user of the program names them.
namespace Merivane::Program {

/// The number of the command that `text` names: by its number, or by words of its menu text that
/// no other command's text holds, without regard to accents and case; its whole text always names
/// it. Returns false with one Portuguese sentence for none and for several.
bool JudgeCommand(const std::string& text, std::int16_t& number, std::string& error);

/// Returns false with one Portuguese sentence where a command that is built works on a project and
/// none was given. An unknown number is no such command.
bool JudgeProjectOf(std::int16_t number, const std::string& projectFile, std::string& error);

/// Where a command stands in the menu that the host has now.
struct MenuPlace {
    std::int16_t resource = 0;
    std::int16_t item = 0; ///< from 1; 0 = in no menu
};

MenuPlace FindMenuPlace(std::int16_t number);

} // namespace Merivane::Program
