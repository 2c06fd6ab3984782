#include "Program/CommandChoice.hpp"

#include <algorithm>
#include <vector>

#include "AddOn/CommandTable.hpp"
#include "AddOn/MenuTable.hpp"
#include "Text/Ascii.hpp"
#include "Text/FoldAccents.hpp"
#include "Text/ShownText.hpp"

namespace Merivane::Program {

namespace {

using Commands::CommandRow;

/// The rows whose text holds `words`; the one that is `words` alone where there is one.
std::vector<const CommandRow*> RowsNamed(const std::string& words) {
    const std::string folded = Text::FoldAccents(words);
    std::vector<const CommandRow*> rows;
    for (const CommandRow& row : Commands::CommandTable()) {
        const std::string name = Text::FoldAccents(row.name);
        if (name == folded) {
            return {&row};
        }
        if (name.find(folded) != std::string::npos) {
            rows.push_back(&row);
        }
    }
    return rows;
}

std::vector<const CommandRow*> RowsMeant(const std::string& text) {
    const bool isNumber = std::all_of(text.begin(), text.end(), Text::IsDigit);
    if (!isNumber) {
        return RowsNamed(text);
    }
    std::vector<const CommandRow*> rows;
    for (const CommandRow& row : Commands::CommandTable()) {
        if (std::to_string(row.number) == text) {
            rows.push_back(&row);
        }
    }
    return rows;
}

} // namespace

bool JudgeCommand(const std::string& text, std::int16_t& number, std::string& error) {
    const std::vector<const CommandRow*> rows = RowsMeant(text);
    if (rows.empty()) {
        error = "nenhum comando do menu é " + Text::QuotedText(text) +
                " (\"vantoro comandos\" mostra todos)";
        return false;
    }
    if (rows.size() > 1) {
        error = "mais de um comando do menu contém " + Text::QuotedText(text) + ":";
        for (const CommandRow* row : rows) {
            error += (row == rows.front() ? " " : ", ") + std::to_string(row->number);
        }
        return false;
    }
    number = rows.front()->number;
    return true;
}

bool JudgeProjectOf(std::int16_t number, const std::string& projectFile, std::string& error) {
    const CommandRow* const row = Commands::FindCommand(number);
    if (row && row->run && row->needsProject && projectFile.empty()) {
        error = "falta PROJETO";
        return false;
    }
    return true;
}

MenuPlace FindMenuPlace(std::int16_t number) {
    for (const Commands::MenuGroup& group : Commands::MenuTable()) {
        const auto* const end = group.commands.begin() + group.itemCount;
        const auto* const found = std::find(group.commands.begin(), end, number);
        if (found != end) {
            return {Commands::MenuResource(group, Commands::MenuThemeOffset()),
                    static_cast<std::int16_t>(found - group.commands.begin() + 1)};
        }
    }
    return {};
}

} // namespace Merivane::Program
