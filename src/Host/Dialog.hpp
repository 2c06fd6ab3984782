#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "Host/Types.hpp"
#include "Host/UserPicture.hpp"

/// Dialogs and palettes from the add-on's resources. Items are known by their number in the
/// resource, from 1; texts are UTF-8. A function that names an item which the dialog does not have,
/// or whose kind does not know the operation, changes nothing and gives an empty answer. Defined by
/// whichever host is linked; nothing throws. Main thread only.
namespace Merivane::Host {

/// A dialog or palette that stands open.
using DialogId = std::int32_t;

/// What the mouse does on an item that the add-on paints itself. While its button is held the item
/// keeps the mouse: moves and the release may lie outside of it. A double click follows a press and
/// its release, and is itself followed by a release.
enum class MouseAction { Wheel, Pressed, Moved, Released, DoubleClicked };

struct MouseEvent {
    MouseAction action = MouseAction::Moved;
    ItemPoint position;
    std::int16_t notches = 0; ///< of the wheel, above 0 away from the user

    bool operator==(const MouseEvent&) const = default;
};

/// What a dialog tells the add-on. Changes that the add-on makes itself are not told to it.
struct DialogEvents {
    std::function<void(DialogId)> opened;
    std::function<void(DialogId, std::int16_t item)> buttonClicked;
    std::function<void(DialogId, std::int16_t item)> changed; ///< check box, field, pop-up
    std::function<void(DialogId, std::int16_t item)> listSelected;
    std::function<void(DialogId, std::int16_t item)> listDoubleClicked;
    std::function<void(DialogId, std::int16_t item, const MouseEvent&)> mouseUsed; ///< user item
    /// Asked before a dialog closes by its frame or by `CloseDialog`; false keeps it open.
    std::function<bool(DialogId, bool accepted)> closeRequested;
};

/// Shows the modal dialog of a resource until it closes. `accepted` tells how. BadId when there is
/// no such resource; the dialog is then not shown.
ErrorCode RunDialog(std::int16_t resource, const DialogEvents& events, bool& accepted);

/// Closes a modal dialog after the running event.
void CloseDialog(DialogId dialog, bool accept);

void SetDialogTitle(DialogId dialog, std::string_view title);

/// Size of the inside [pixels at 100 %].
void SetClientSize(DialogId dialog, std::int16_t width, std::int16_t height);
void GetClientSize(DialogId dialog, std::int16_t& width, std::int16_t& height);

std::int16_t ItemCount(DialogId dialog);

void ShowItem(DialogId dialog, std::int16_t item, bool visible);
bool IsItemVisible(DialogId dialog, std::int16_t item);
void EnableItem(DialogId dialog, std::int16_t item, bool enabled);
bool IsItemEnabled(DialogId dialog, std::int16_t item);

/// Upper left corner of an item in the dialog's inside [pixels].
void MoveItem(DialogId dialog, std::int16_t item, std::int16_t x, std::int16_t y);
void GetItemPosition(DialogId dialog, std::int16_t item, std::int16_t& x, std::int16_t& y);

/// Size of an item [pixels].
void GetItemSize(DialogId dialog, std::int16_t item, std::int16_t& width, std::int16_t& height);

/// Text of a static text, button, group box, check box or text field.
void SetItemText(DialogId dialog, std::int16_t item, std::string_view text);
std::string ItemText(DialogId dialog, std::int16_t item);

/// Value of a number field, held inside the field's limits.
void SetItemNumber(DialogId dialog, std::int16_t item, double value);
double ItemNumber(DialogId dialog, std::int16_t item);
void SetItemLimits(DialogId dialog, std::int16_t item, double lowest, double highest);

/// State of a check box or radio button.
void SetItemChecked(DialogId dialog, std::int16_t item, bool checked);
bool IsItemChecked(DialogId dialog, std::int16_t item);

/// Icon of an icon button, by its resource.
void SetItemIcon(DialogId dialog, std::int16_t item, std::int16_t icon);
std::int16_t ItemIcon(DialogId dialog, std::int16_t item);

/// What a user item shows until the next call; the host paints it whenever it is uncovered.
void SetItemPicture(DialogId dialog, std::int16_t item, const UserPicture& picture);

/// Adds an icon behind the last item; gives its number.
std::int16_t AppendIcon(DialogId dialog, std::int16_t icon);

/// Entries of a pop-up, from 1; 0 = none selected.
void ClearEntries(DialogId dialog, std::int16_t item);
void AppendEntry(DialogId dialog, std::int16_t item, std::string_view text);
void SetEntryText(DialogId dialog, std::int16_t item, std::int16_t entry, std::string_view text);
std::string EntryText(DialogId dialog, std::int16_t item, std::int16_t entry);
std::int16_t EntryCount(DialogId dialog, std::int16_t item);
void SelectEntry(DialogId dialog, std::int16_t item, std::int16_t entry);
std::int16_t SelectedEntry(DialogId dialog, std::int16_t item);

/// How texts stand in a column of a list.
enum class ColumnAlignment { Left, Center, Right };

/// A column of a list, between two places from the list's left [pixels].
struct ListColumn {
    std::string header;
    std::int16_t begin = 0;
    std::int16_t end = 0;
    ColumnAlignment alignment = ColumnAlignment::Left;
};

/// Columns of a list, which empties it. Rows and columns count from 1; row 0 = none selected.
void SetListColumns(DialogId dialog, std::int16_t item, const std::vector<ListColumn>& columns);
void ClearRows(DialogId dialog, std::int16_t item);
std::int16_t AppendRow(DialogId dialog, std::int16_t item);
std::int16_t RowCount(DialogId dialog, std::int16_t item);
void SetCell(DialogId dialog, std::int16_t item, std::int16_t row, std::int16_t column,
             std::string_view text);
std::string CellText(DialogId dialog, std::int16_t item, std::int16_t row, std::int16_t column);
void SelectRow(DialogId dialog, std::int16_t item, std::int16_t row);
std::int16_t SelectedRow(DialogId dialog, std::int16_t item);

/// Shows an alert; gives the number of the button pressed, from 1. At least one button.
enum class AlertKind { Information, Warning, Error };
std::int16_t ShowAlert(AlertKind kind, std::string_view largeText, std::string_view smallText,
                       const std::vector<std::string>& buttons);

/// Makes the palette of a resource, hidden; its items are reached as those of a dialog. BadId.
ErrorCode CreatePalette(std::int16_t resource, const DialogEvents& events, DialogId& palette);
void ShowPalette(DialogId palette); ///< in front of the others
void HidePalette(DialogId palette);
bool IsPaletteVisible(DialogId palette);
void DestroyPalette(DialogId palette);

} // namespace Merivane::Host
