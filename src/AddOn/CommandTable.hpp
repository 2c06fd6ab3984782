#pragma once

#include <cstdint>
#include <span>
#include <string_view>

/// What a user can have the add-on do, by number. Menu and toolbar both go through
/// `ExecuteCommand`.
namespace Merivane::Commands {

/// One command.
struct CommandRow {
    std::int16_t number = 0;
    std::string_view name;    ///< as the menu tells it
    void (*run)() = nullptr;  ///< reports its own failures; null as long as it is not built
    bool needsProject = true; ///< works on the open project
};

/// All commands, by number.
std::span<const CommandRow> CommandTable();

/// The row of a number, or null.
const CommandRow* FindCommand(std::int16_t number);

/// Carries a command out. Any other number, and one that is not built, does nothing.
void ExecuteCommand(std::int16_t number);

} // namespace Merivane::Commands
