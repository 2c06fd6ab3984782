#include <algorithm>
#include <string>

#include "AddOn/CommandTable.hpp"
#include "AddOn/MenuTable.hpp"
#include "Program/Commands.hpp"
#include "Program/Message.hpp"
#include "Workbench/Interface/MenuText.hpp"
#include "Workbench/SessionResources.hpp"

namespace Merivane::Program {

namespace {

Workbench::MenuTexts TextsOf(const Commands::MenuGroup& group) {
    const std::vector<std::string>* const strings =
        Workbench::FindStringList(Commands::MenuResource(group, Commands::MenuThemeOffset()));
    return strings ? Workbench::ReadMenuTexts(*strings) : Workbench::MenuTexts{};
}

/// Menu texts are ASCII: bytes are columns.
std::size_t LongestItem() {
    std::size_t longest = 0;
    for (const Commands::MenuGroup& group : Commands::MenuTable()) {
        for (const Workbench::MenuItemText& item : TextsOf(group).items) {
            longest = std::max(longest, item.text.size());
        }
    }
    return longest;
}

void TellItem(std::int16_t number, std::string text, std::size_t width) {
    const Commands::CommandRow* const command = Commands::FindCommand(number);
    if (!command || !command->run) {
        text.resize(width, ' ');
        text += "  ainda não construído";
    }
    TellLine("  " + std::to_string(number) + "  " + text);
}

} // namespace

int ListCommandsCommand(const ListCommandsArguments& /*arguments*/) {
    const std::size_t width = LongestItem();
    for (const Commands::MenuGroup& group : Commands::MenuTable()) {
        const Workbench::MenuTexts texts = TextsOf(group);
        TellLine(texts.group);
        for (std::size_t i = 0; i < texts.items.size() && i < group.commands.size(); ++i) {
            TellItem(group.commands[i], texts.items[i].text, width);
        }
    }
    return StatusDone;
}

} // namespace Merivane::Program
