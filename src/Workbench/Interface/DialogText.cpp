#include "Workbench/Interface/DialogText.hpp"

#include <algorithm>
#include <string_view>
#include <utility>

#include "Text/Number.hpp"

namespace Merivane::Workbench {

namespace {

constexpr std::size_t KindWidth = 14;
constexpr std::string_view Indent = "                     "; // number, kind and the gaps behind

std::size_t Length(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
    }));
}

std::string PadBehind(std::string text, std::size_t width) {
    text.append(width - std::min(width, Length(text)), ' ');
    return text;
}

std::string PadBefore(const std::string& text, std::size_t width) {
    return std::string(width - std::min(width, Length(text)), ' ') + text;
}

std::string_view KindWord(ItemKind kind) {
    constexpr std::pair<ItemKind, std::string_view> words[] = {
        {ItemKind::Button, "botão"},        {ItemKind::IconButton, "botão de ícone"},
        {ItemKind::CheckBox, "caixa"},      {ItemKind::RadioButton, "opção"},
        {ItemKind::PushCheck, "caixa"},     {ItemKind::PushRadio, "opção"},
        {ItemKind::LeftText, "texto"},      {ItemKind::CenterText, "texto"},
        {ItemKind::RightText, "texto"},     {ItemKind::TextEdit, "campo"},
        {ItemKind::MultiLineEdit, "campo"}, {ItemKind::PopupControl, "seleção"},
        {ItemKind::SingleSelList, "lista"}, {ItemKind::MultiSelList, "lista"},
        {ItemKind::GroupBox, "grupo"},      {ItemKind::Separator, "separador"},
        {ItemKind::UserItem, "desenho"},    {ItemKind::Icon, "ícone"},
    };
    for (const auto& [each, word] : words) {
        if (each == kind) {
            return word;
        }
    }
    return IsNumberField(kind) ? "número" : ItemKindName(kind);
}

/// Several lines stand one below the other.
std::string Lines(std::string_view text) {
    std::string lines;
    for (const char c : text) {
        lines += c;
        if (c == '\n') {
            lines += Indent;
        }
    }
    return lines;
}

std::string Value(double value) {
    return Text::FormatGeneral(value, 10);
}

std::string NumberText(const DialogItem& item) {
    std::string text = Value(item.value);
    constexpr double unlimited = 1e300;
    if (item.lowest > -unlimited && item.highest < unlimited) {
        text += "  (" + Value(item.lowest) + " a " + Value(item.highest) + ")";
    }
    return text;
}

std::string EntriesText(const DialogItem& item) {
    std::string text = item.selected == 0
                           ? std::string("(nenhuma)")
                           : item.entries[static_cast<std::size_t>(item.selected) - 1];
    for (std::size_t i = 0; i < item.entries.size(); ++i) {
        text += '\n' + std::string(Indent) +
                (static_cast<std::size_t>(item.selected) == i + 1 ? "> " : "  ") +
                std::to_string(i + 1) + "  " + item.entries[i];
    }
    return text;
}

std::string RowText(const DialogItem& item, const std::vector<std::string>& cells,
                    const std::vector<std::size_t>& widths) {
    std::string row;
    for (std::size_t column = 0; column < cells.size(); ++column) {
        const bool right = item.columns[column].alignment == Host::ColumnAlignment::Right;
        row += (column == 0 ? "" : "  ") + (right ? PadBefore(cells[column], widths[column])
                                                  : PadBehind(cells[column], widths[column]));
    }
    row.erase(row.find_last_not_of(' ') + 1);
    return row;
}

std::string RowsText(const DialogItem& item) {
    std::vector<std::string> headers;
    std::vector<std::size_t> widths;
    for (std::size_t column = 0; column < item.columns.size(); ++column) {
        headers.push_back(item.columns[column].header);
        widths.push_back(Length(headers.back()));
        for (const std::vector<std::string>& row : item.rows) {
            widths.back() = std::max(widths.back(), Length(row[column]));
        }
    }
    std::string text =
        item.rows.size() == 1 ? "1 linha" : std::to_string(item.rows.size()) + " linhas";
    text += '\n' + std::string(Indent) + "  " + RowText(item, headers, widths);
    for (std::size_t i = 0; i < item.rows.size(); ++i) {
        text += '\n' + std::string(Indent) +
                (static_cast<std::size_t>(item.selected) == i + 1 ? "> " : "  ") +
                RowText(item, item.rows[i], widths);
    }
    return text;
}

std::string Content(const DialogItem& item) {
    const ItemKind kind = item.resource.kind;
    if (IsCheck(kind) || IsRadio(kind)) {
        return (item.checked ? "[x] " : "[ ] ") + Lines(item.text);
    }
    if (IsNumberField(kind)) {
        return NumberText(item);
    }
    if (kind == ItemKind::PopupControl) {
        return EntriesText(item);
    }
    if (IsList(kind)) {
        return RowsText(item);
    }
    if (kind == ItemKind::IconButton && !item.tooltip.empty()) {
        return std::to_string(item.icon) + "  " + item.tooltip;
    }
    return ShowsIcon(kind) ? std::to_string(item.icon) : Lines(item.text);
}

std::string ItemLine(std::size_t number, const DialogItem& item) {
    const std::string state = item.visible
                                  ? item.enabled ? std::string() : std::string("  [desabilitado]")
                                  : std::string("  [oculto]");
    std::string line = PadBefore(std::to_string(number), 4) + "  " +
                       PadBehind(std::string(KindWord(item.resource.kind)), KindWidth) + " ";
    const std::string content = Content(item);
    // Behind the first line: below it entries and rows follow.
    const std::size_t end = std::min(content.find('\n'), content.size());
    line += content.substr(0, end) + state;
    line.erase(line.find_last_not_of(' ') + 1);
    return line + content.substr(end) + '\n';
}

std::string Body(const Dialog& dialog) {
    std::string text;
    for (std::size_t i = 0; i < dialog.items.size(); ++i) {
        text += ItemLine(i + 1, dialog.items[i]);
    }
    return text;
}

std::string Head(const Dialog& dialog) {
    return std::string(dialog.kind == DialogKind::Palette ? "Paleta" : "Diálogo") + " \"" +
           dialog.title + "\" (" + std::to_string(dialog.resource) + "), " +
           std::to_string(dialog.width) + " x " + std::to_string(dialog.height);
}

} // namespace

std::string DialogText(const Dialog& dialog) {
    return Head(dialog) + (dialog.visible ? "" : ", oculta") + '\n' + Body(dialog);
}

std::string DialogText(const ShownDialog& shown) {
    return Head(shown.state) + (shown.accepted ? ", aceito" : ", cancelado") + '\n' +
           Body(shown.state);
}

std::string AlertText(const ShownAlert& alert) {
    const char* const kind = alert.kind == Host::AlertKind::Information ? "Aviso"
                             : alert.kind == Host::AlertKind::Warning   ? "Atenção"
                                                                        : "Erro";
    std::string text = std::string(kind) + " \"" + alert.largeText + "\"\n";
    if (!alert.smallText.empty()) {
        text += "      " + alert.smallText + '\n';
    }
    for (std::size_t i = 0; i < alert.buttons.size(); ++i) {
        text += static_cast<std::size_t>(alert.pressed) == i + 1 ? "    > " : "      ";
        text += "[" + alert.buttons[i] + "]\n";
    }
    return text;
}

std::string FileChoiceText(const ShownFileChoice& choice) {
    return "Arquivo \"" + choice.title + "\" [" + choice.filter.text + "]\n      " +
           (choice.path.empty() ? "(cancelado)" : choice.path) + '\n';
}

} // namespace Merivane::Workbench
