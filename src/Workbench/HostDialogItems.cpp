#include "Host/Dialog.hpp"
#include "Workbench/Session.hpp"

// The items of open dialogs: each operation finds its item and leaves the rest to the records.
namespace Merivane::Host {

namespace {

using Workbench::DialogItem;

Workbench::Dialog* Reach(std::string_view operation, DialogId dialog) {
    auto& open = Workbench::CurrentSession().userInterface.open;
    const ErrorCode code = Workbench::CountCall(operation);
    const auto found = open.find(dialog);
    return code == NoError && found != open.end() ? &found->second.state : nullptr;
}

DialogItem* Reach(std::string_view operation, DialogId dialog, std::int16_t item) {
    Workbench::Dialog* const found = Reach(operation, dialog);
    return found ? Workbench::FindItem(*found, item) : nullptr;
}

/// The text at a number from 1; empty when there is none.
std::string Numbered(const std::vector<std::string>& texts, std::int16_t number) {
    return number >= 1 && static_cast<std::size_t>(number) <= texts.size()
               ? texts[static_cast<std::size_t>(number) - 1]
               : std::string();
}

} // namespace

void ShowItem(DialogId dialog, std::int16_t item, bool visible) {
    if (DialogItem* const found = Reach("ShowItem", dialog, item)) {
        found->visible = visible;
    }
}

bool IsItemVisible(DialogId dialog, std::int16_t item) {
    const DialogItem* const found = Reach("IsItemVisible", dialog, item);
    return found && found->visible;
}

void EnableItem(DialogId dialog, std::int16_t item, bool enabled) {
    if (DialogItem* const found = Reach("EnableItem", dialog, item)) {
        found->enabled = enabled;
    }
}

bool IsItemEnabled(DialogId dialog, std::int16_t item) {
    const DialogItem* const found = Reach("IsItemEnabled", dialog, item);
    return found && found->enabled;
}

void MoveItem(DialogId dialog, std::int16_t item, std::int16_t x, std::int16_t y) {
    if (DialogItem* const found = Reach("MoveItem", dialog, item)) {
        found->place.left = x;
        found->place.top = y;
    }
}

void GetItemPosition(DialogId dialog, std::int16_t item, std::int16_t& x, std::int16_t& y) {
    const DialogItem* const found = Reach("GetItemPosition", dialog, item);
    x = found ? static_cast<std::int16_t>(found->place.left) : std::int16_t{0};
    y = found ? static_cast<std::int16_t>(found->place.top) : std::int16_t{0};
}

void GetItemSize(DialogId dialog, std::int16_t item, std::int16_t& width, std::int16_t& height) {
    const DialogItem* const found = Reach("GetItemSize", dialog, item);
    width = found ? static_cast<std::int16_t>(found->place.width) : std::int16_t{0};
    height = found ? static_cast<std::int16_t>(found->place.height) : std::int16_t{0};
}

void SetItemPicture(DialogId dialog, std::int16_t item, const UserPicture& picture) {
    if (DialogItem* const found = Reach("SetItemPicture", dialog, item)) {
        Workbench::SetPicture(*found, picture);
    }
}

void SetItemText(DialogId dialog, std::int16_t item, std::string_view text) {
    if (DialogItem* const found = Reach("SetItemText", dialog, item)) {
        Workbench::SetText(*found, text);
    }
}

std::string ItemText(DialogId dialog, std::int16_t item) {
    const DialogItem* const found = Reach("ItemText", dialog, item);
    return found ? found->text : std::string();
}

void SetItemNumber(DialogId dialog, std::int16_t item, double value) {
    if (DialogItem* const found = Reach("SetItemNumber", dialog, item)) {
        Workbench::SetNumber(*found, value);
    }
}

double ItemNumber(DialogId dialog, std::int16_t item) {
    const DialogItem* const found = Reach("ItemNumber", dialog, item);
    return found ? found->value : 0.0;
}

void SetItemLimits(DialogId dialog, std::int16_t item, double lowest, double highest) {
    if (DialogItem* const found = Reach("SetItemLimits", dialog, item)) {
        Workbench::SetLimits(*found, lowest, highest);
    }
}

void SetItemChecked(DialogId dialog, std::int16_t item, bool checked) {
    if (Workbench::Dialog* const found = Reach("SetItemChecked", dialog)) {
        Workbench::SetChecked(*found, item, checked);
    }
}

bool IsItemChecked(DialogId dialog, std::int16_t item) {
    const DialogItem* const found = Reach("IsItemChecked", dialog, item);
    return found && found->checked;
}

void SetItemIcon(DialogId dialog, std::int16_t item, std::int16_t icon) {
    if (DialogItem* const found = Reach("SetItemIcon", dialog, item)) {
        Workbench::SetIcon(*found, icon);
    }
}

std::int16_t ItemIcon(DialogId dialog, std::int16_t item) {
    const DialogItem* const found = Reach("ItemIcon", dialog, item);
    return found ? found->icon : std::int16_t{0};
}

void ClearEntries(DialogId dialog, std::int16_t item) {
    if (DialogItem* const found = Reach("ClearEntries", dialog, item)) {
        Workbench::ClearEntries(*found);
    }
}

void AppendEntry(DialogId dialog, std::int16_t item, std::string_view text) {
    if (DialogItem* const found = Reach("AppendEntry", dialog, item)) {
        Workbench::AppendEntry(*found, text);
    }
}

void SetEntryText(DialogId dialog, std::int16_t item, std::int16_t entry, std::string_view text) {
    if (DialogItem* const found = Reach("SetEntryText", dialog, item)) {
        Workbench::SetEntryText(*found, entry, text);
    }
}

std::string EntryText(DialogId dialog, std::int16_t item, std::int16_t entry) {
    const DialogItem* const found = Reach("EntryText", dialog, item);
    return found ? Numbered(found->entries, entry) : std::string();
}

std::int16_t EntryCount(DialogId dialog, std::int16_t item) {
    const DialogItem* const found = Reach("EntryCount", dialog, item);
    return found ? static_cast<std::int16_t>(found->entries.size()) : std::int16_t{0};
}

void SelectEntry(DialogId dialog, std::int16_t item, std::int16_t entry) {
    if (DialogItem* const found = Reach("SelectEntry", dialog, item)) {
        Workbench::SelectEntry(*found, entry);
    }
}

std::int16_t SelectedEntry(DialogId dialog, std::int16_t item) {
    const DialogItem* const found = Reach("SelectedEntry", dialog, item);
    return found && found->resource.kind == Workbench::ItemKind::PopupControl ? found->selected
                                                                              : std::int16_t{0};
}

void SetListColumns(DialogId dialog, std::int16_t item, const std::vector<ListColumn>& columns) {
    if (DialogItem* const found = Reach("SetListColumns", dialog, item)) {
        Workbench::SetColumns(*found, columns);
    }
}

void ClearRows(DialogId dialog, std::int16_t item) {
    if (DialogItem* const found = Reach("ClearRows", dialog, item)) {
        Workbench::ClearRows(*found);
    }
}

std::int16_t AppendRow(DialogId dialog, std::int16_t item) {
    DialogItem* const found = Reach("AppendRow", dialog, item);
    return found ? Workbench::AppendRow(*found) : std::int16_t{0};
}

std::int16_t RowCount(DialogId dialog, std::int16_t item) {
    const DialogItem* const found = Reach("RowCount", dialog, item);
    return found ? static_cast<std::int16_t>(found->rows.size()) : std::int16_t{0};
}

void SetCell(DialogId dialog, std::int16_t item, std::int16_t row, std::int16_t column,
             std::string_view text) {
    if (DialogItem* const found = Reach("SetCell", dialog, item)) {
        Workbench::SetCell(*found, row, column, text);
    }
}

std::string CellText(DialogId dialog, std::int16_t item, std::int16_t row, std::int16_t column) {
    const DialogItem* const found = Reach("CellText", dialog, item);
    const bool exists = found && row >= 1 && static_cast<std::size_t>(row) <= found->rows.size();
    return exists ? Numbered(found->rows[static_cast<std::size_t>(row) - 1], column)
                  : std::string();
}

void SelectRow(DialogId dialog, std::int16_t item, std::int16_t row) {
    if (DialogItem* const found = Reach("SelectRow", dialog, item)) {
        Workbench::SelectRow(*found, row);
    }
}

std::int16_t SelectedRow(DialogId dialog, std::int16_t item) {
    const DialogItem* const found = Reach("SelectedRow", dialog, item);
    return found && Workbench::IsList(found->resource.kind) ? found->selected : std::int16_t{0};
}

} // namespace Merivane::Host
