#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Host/Dialog.hpp"
#include "Workbench/Interface/ResourceScript.hpp"

/// A dialog that stands open, as records, and what can be done to it. Whether the user or the
/// add-on does it makes no difference here.
namespace Merivane::Workbench {

/// One item as it is now.
struct DialogItem {
    ItemResource resource; ///< kind, font and styles; its place, text and icon are those below
    PixelBox place;
    std::string text; ///< UTF-8; several lines are parted by "\n"
    std::int16_t icon = 0;
    double value = 0.0; ///< of a number field
    double lowest = -std::numeric_limits<double>::infinity();
    double highest = std::numeric_limits<double>::infinity();
    bool checked = false;
    std::vector<std::string> entries; ///< of a pop-up
    std::int16_t selected = 0;        ///< entry or row, from 1; 0 = none
    std::vector<Host::ListColumn> columns;
    std::vector<std::vector<std::string>> rows; ///< as many cells as columns
    std::optional<Host::UserPicture> picture;   ///< of a drawing that the add-on has painted
    bool visible = true;
    bool enabled = true;
    std::string tooltip;
};

/// A dialog or palette. Items are known by their number, from 1.
struct Dialog {
    std::int16_t resource = 0;
    DialogKind kind = DialogKind::Modal;
    std::string title;
    std::int16_t width = 0; ///< of the inside [pixels]
    std::int16_t height = 0;
    bool visible = true;
    std::vector<DialogItem> items;
};

/// A dialog as its resources describe it: everything visible and enabled, number fields at 0 or the
/// limit nearest to it. `help` may be null.
Dialog MakeDialog(std::int16_t number, const DialogResource& resource,
                  const DialogHelpResource* help);

/// The item of a number, or null.
DialogItem* FindItem(Dialog& dialog, std::int16_t item);
const DialogItem* FindItem(const Dialog& dialog, std::int16_t item);

/// Each of these changes nothing where the item's kind does not know it.
void SetText(DialogItem& item, std::string_view text);
void SetNumber(DialogItem& item, double value); ///< held inside the limits; NaN changes nothing
void SetLimits(DialogItem& item, double lowest, double highest);
void SetChecked(Dialog& dialog, std::int16_t item, bool checked); ///< a radio ends its group's
void SetIcon(DialogItem& item, std::int16_t icon);
void SetPicture(DialogItem& item, const Host::UserPicture& picture);
void ClearEntries(DialogItem& item);
void AppendEntry(DialogItem& item, std::string_view text);
void SetEntryText(DialogItem& item, std::int16_t entry, std::string_view text);
void SelectEntry(DialogItem& item, std::int16_t entry); ///< 0 = none; else one that exists
void SetColumns(DialogItem& item, const std::vector<Host::ListColumn>& columns);
void ClearRows(DialogItem& item);
std::int16_t AppendRow(DialogItem& item); ///< its number, 0 where the kind does not know it
void SetCell(DialogItem& item, std::int16_t row, std::int16_t column, std::string_view text);
void SelectRow(DialogItem& item, std::int16_t row); ///< 0 = none; else one that exists

/// Adds an icon in the upper right corner of the inside; gives its number.
std::int16_t AppendIcon(Dialog& dialog, std::int16_t icon);

/// The button that Enter presses: item 1 where that is a button, else the last visible one that
/// stands before "Cancelar", else the last visible one; 0 where there is none.
std::int16_t DefaultButton(const Dialog& dialog);

} // namespace Merivane::Workbench
