#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "Workbench/Interface/ItemKind.hpp"

/// The add-on's resources as records, and the reader of the host's own resource script (`.grc`):
/// string lists, icons, dialogs, their tooltips, alerts and the add-on's identity.
namespace Merivane::Workbench {

/// An upright rectangle in the inside of a dialog, from its upper left corner [pixels at 100 %].
struct PixelBox {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    bool operator==(const PixelBox&) const = default;
};

enum class FontSize { Large, Small, ExtraSmall };

/// One item of a dialog as its resource has it; what a kind does not have keeps its default.
struct ItemResource {
    ItemKind kind = ItemKind::Separator;
    PixelBox place;
    FontSize fontSize = FontSize::Large;
    bool bold = false;
    std::string text;
    std::vector<std::string> styles; ///< style words in their order
    std::string lowest;              ///< of a number field; empty = no limit
    std::string highest;
    std::int16_t icon = 0;          ///< 0 = none
    std::int16_t group = 0;         ///< of radio buttons
    std::int16_t maximumLength = 0; ///< of a text field [characters]; 0 = no limit
    std::vector<int> numbers;       ///< further numbers in their order
    std::vector<std::string> texts; ///< further texts: entries of a pop-up, tabs

    bool operator==(const ItemResource&) const = default;
};

/// True when a style word stands at the item.
bool HasStyle(const ItemResource& item, std::string_view word);

enum class DialogKind { Modal, Modeless, Palette, TabPage };

struct DialogResource {
    DialogKind kind = DialogKind::Modal;
    std::vector<std::string> styles;
    PixelBox place; ///< its inside; 0, 0 centres
    std::string title;
    std::vector<ItemResource> items; ///< item n stands at n - 1

    bool operator==(const DialogResource&) const = default;
};

/// Tooltips of a dialog, by item number; an item without one has an empty text.
struct DialogHelpResource {
    std::string anchor;
    std::map<int, std::string> tooltips;

    bool operator==(const DialogHelpResource&) const = default;
};

enum class AlertResourceKind { Information, Warning, Error };

struct AlertResource {
    AlertResourceKind kind = AlertResourceKind::Information;
    std::string largeText;
    std::string smallText;
    std::vector<std::string> buttons; ///< one to three

    bool operator==(const AlertResource&) const = default;
};

/// The two numbers by which the host knows the add-on.
struct IdentityResource {
    int developer = 0;
    int addOn = 0;

    bool operator==(const IdentityResource&) const = default;
};

/// All resources of a script, by number (1 to 65535) within their type.
struct ResourceScript {
    std::map<int, std::vector<std::string>> stringLists; ///< 'STR#'
    std::map<int, std::string> icons;                    ///< 'GICN': base name of the SVG file
    std::map<int, DialogResource> dialogs;               ///< 'GDLG'
    std::map<int, DialogHelpResource> dialogHelps;       ///< 'DLGH'
    std::map<int, AlertResource> alerts;                 ///< 'GALR'
    std::map<int, IdentityResource> identities;          ///< 'MDID'
    std::map<std::string, std::vector<int>> others;      ///< numbers of the types passed over

    bool operator==(const ResourceScript&) const = default;
};

/// Reads a script behind what `script` holds already. Returns false and sets `error` to one
/// Portuguese sentence, "linha N: " in front, at the first thing that the host's compiler would not
/// take: a broken form, an unknown kind or style word, a number out of range, a resource that
/// stands twice, a tooltip of an item that its dialog above does not have. `script` is then as it
/// was.
bool ParseResourceScript(std::string_view text, ResourceScript& script, std::string& error);

} // namespace Merivane::Workbench
