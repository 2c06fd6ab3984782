#include "Workbench/Interface/DialogState.hpp"

#include <algorithm>
#include <cmath>

#include "Text/Number.hpp"

namespace Merivane::Workbench {

namespace {

constexpr int IconSize = 18;
constexpr int IconMargin = 4;
constexpr std::size_t MostNumbered = std::numeric_limits<std::int16_t>::max();

double LimitOr(const std::string& limit, double none) {
    Text::ReadEntireNumber(limit, none);
    return none;
}

/// `items` by their number from 1, or null.
template <typename Items> auto* Numbered(Items& items, std::int16_t number) {
    return number >= 1 && static_cast<std::size_t>(number) <= items.size()
               ? &items[static_cast<std::size_t>(number) - 1]
               : nullptr;
}

DialogItem MakeItem(const ItemResource& resource) {
    DialogItem item;
    item.resource = resource;
    item.place = resource.place;
    item.text = resource.text;
    item.icon = resource.icon;
    if (resource.kind == ItemKind::PopupControl) {
        item.entries = resource.texts;
        item.selected = item.entries.empty() ? 0 : 1;
    }
    if (resource.kind == ItemKind::PosIntEdit) {
        item.lowest = 0.0;
    }
    if (IsNumberField(resource.kind)) {
        item.lowest = LimitOr(resource.lowest, item.lowest);
        item.highest = LimitOr(resource.highest, item.highest);
        SetNumber(item, 0.0);
    }
    return item;
}

bool IsCancelButton(const DialogItem& item) {
    return item.text == "Cancelar";
}

} // namespace

Dialog MakeDialog(std::int16_t number, const DialogResource& resource,
                  const DialogHelpResource* help) {
    Dialog dialog;
    dialog.resource = number;
    dialog.kind = resource.kind;
    dialog.title = resource.title;
    dialog.width = static_cast<std::int16_t>(resource.place.width);
    dialog.height = static_cast<std::int16_t>(resource.place.height);
    for (const ItemResource& item : resource.items) {
        dialog.items.push_back(MakeItem(item));
    }
    if (help) {
        for (const auto& [item, tooltip] : help->tooltips) {
            if (DialogItem* const found = FindItem(dialog, static_cast<std::int16_t>(item))) {
                found->tooltip = tooltip;
            }
        }
    }
    return dialog;
}

DialogItem* FindItem(Dialog& dialog, std::int16_t item) {
    return Numbered(dialog.items, item);
}

const DialogItem* FindItem(const Dialog& dialog, std::int16_t item) {
    return Numbered(dialog.items, item);
}

void SetText(DialogItem& item, std::string_view text) {
    if (HasText(item.resource.kind)) {
        item.text = text;
    }
}

void SetNumber(DialogItem& item, double value) {
    if (!IsNumberField(item.resource.kind) || std::isnan(value)) {
        return;
    }
    const double number = IsIntegerField(item.resource.kind) ? std::round(value) : value;
    item.value = std::max(item.lowest, std::min(item.highest, number));
}

void SetLimits(DialogItem& item, double lowest, double highest) {
    if (IsNumberField(item.resource.kind) && lowest <= highest) {
        item.lowest = lowest;
        item.highest = highest;
        SetNumber(item, item.value);
    }
}

void SetChecked(Dialog& dialog, std::int16_t item, bool checked) {
    DialogItem* const found = FindItem(dialog, item);
    if (!found || (!IsCheck(found->resource.kind) && !IsRadio(found->resource.kind))) {
        return;
    }
    if (IsRadio(found->resource.kind)) {
        if (!checked) {
            return; // only another one of the group ends it
        }
        for (DialogItem& other : dialog.items) {
            if (IsRadio(other.resource.kind) && other.resource.group == found->resource.group) {
                other.checked = false;
            }
        }
    }
    found->checked = checked;
}

void SetIcon(DialogItem& item, std::int16_t icon) {
    if (ShowsIcon(item.resource.kind)) {
        item.icon = icon;
    }
}

void SetPicture(DialogItem& item, const Host::UserPicture& picture) {
    if (item.resource.kind == ItemKind::UserItem) {
        item.picture = picture;
    }
}

void ClearEntries(DialogItem& item) {
    item.entries.clear();
    if (item.resource.kind == ItemKind::PopupControl) {
        item.selected = 0;
    }
}

void AppendEntry(DialogItem& item, std::string_view text) {
    if (item.resource.kind == ItemKind::PopupControl && item.entries.size() < MostNumbered) {
        item.entries.emplace_back(text);
    }
}

void SetEntryText(DialogItem& item, std::int16_t entry, std::string_view text) {
    if (std::string* const found = Numbered(item.entries, entry)) {
        *found = text;
    }
}

void SelectEntry(DialogItem& item, std::int16_t entry) {
    if (item.resource.kind == ItemKind::PopupControl &&
        (entry == 0 || Numbered(item.entries, entry))) {
        item.selected = entry;
    }
}

void SetColumns(DialogItem& item, const std::vector<Host::ListColumn>& columns) {
    if (IsList(item.resource.kind)) {
        ClearRows(item);
        item.columns = columns;
    }
}

void ClearRows(DialogItem& item) {
    item.rows.clear();
    if (IsList(item.resource.kind)) {
        item.selected = 0;
    }
}

std::int16_t AppendRow(DialogItem& item) {
    if (!IsList(item.resource.kind) || item.rows.size() >= MostNumbered) {
        return 0;
    }
    item.rows.emplace_back(item.columns.size());
    return static_cast<std::int16_t>(item.rows.size());
}

void SetCell(DialogItem& item, std::int16_t row, std::int16_t column, std::string_view text) {
    if (auto* const cells = Numbered(item.rows, row)) {
        if (std::string* const cell = Numbered(*cells, column)) {
            *cell = text;
        }
    }
}

void SelectRow(DialogItem& item, std::int16_t row) {
    if (IsList(item.resource.kind) && (row == 0 || Numbered(item.rows, row))) {
        item.selected = row;
    }
}

std::int16_t AppendIcon(Dialog& dialog, std::int16_t icon) {
    if (dialog.items.size() >= MostNumbered) {
        return 0;
    }
    DialogItem item;
    item.resource.kind = ItemKind::Icon;
    item.icon = icon;
    item.place = {dialog.width - IconSize - IconMargin, IconMargin, IconSize, IconSize};
    dialog.items.push_back(std::move(item));
    return static_cast<std::int16_t>(dialog.items.size());
}

std::int16_t DefaultButton(const Dialog& dialog) {
    if (!dialog.items.empty() && dialog.items.front().resource.kind == ItemKind::Button) {
        return 1;
    }
    std::int16_t last = 0;
    std::int16_t beforeCancel = 0;
    for (std::size_t i = 0; i < dialog.items.size(); ++i) {
        const DialogItem& item = dialog.items[i];
        if (item.resource.kind != ItemKind::Button || !item.visible) {
            continue;
        }
        if (IsCancelButton(item) && last != 0) {
            beforeCancel = last;
        }
        last = static_cast<std::int16_t>(i + 1);
    }
    return beforeCancel != 0 ? beforeCancel : last;
}

} // namespace Merivane::Workbench
