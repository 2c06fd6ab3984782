#include "Workbench/Interface/ResourceScript.hpp"

#include <algorithm>
#include <limits>
#include <utility>

#include "Workbench/Interface/ItemResourceReader.hpp"
#include "Workbench/Interface/ResourceCursor.hpp"

namespace Merivane::Workbench {

namespace {

constexpr std::size_t MostAlertButtons = 3;
constexpr int HighestResource = 65535;

template <typename Value>
bool Store(ResourceCursor& cursor, std::map<int, Value>& resources, int id, Value value) {
    return resources.emplace(id, std::move(value)).second ||
           cursor.Refuse("o recurso " + std::to_string(id) + " deste tipo já existe");
}

/// "name" { of every resource but dialogs and their tooltips; the name is for people alone.
bool ReadNameAndBrace(ResourceCursor& cursor) {
    std::string name;
    return cursor.ReadText(name) && cursor.ReadSign("{");
}

bool ReadStringList(ResourceCursor& cursor, int id, ResourceScript& script) {
    std::vector<std::string> strings;
    if (!ReadNameAndBrace(cursor)) {
        return false;
    }
    while (!cursor.TakeSign("}")) {
        if (!cursor.ReadText(strings.emplace_back())) {
            return false;
        }
    }
    return Store(cursor, script.stringLists, id, std::move(strings));
}

bool ReadIcon(ResourceCursor& cursor, int id, ResourceScript& script) {
    std::string file;
    return ReadNameAndBrace(cursor) && cursor.ReadText(file) && cursor.ReadSign("}") &&
           Store(cursor, script.icons, id, std::move(file));
}

bool ReadIdentity(ResourceCursor& cursor, int id, ResourceScript& script) {
    IdentityResource identity;
    return ReadNameAndBrace(cursor) && cursor.ReadNumber(identity.developer) &&
           cursor.ReadNumber(identity.addOn) && cursor.ReadSign("}") &&
           Store(cursor, script.identities, id, identity);
}

bool ReadAlert(ResourceCursor& cursor, int id, ResourceScript& script) {
    constexpr std::pair<std::string_view, AlertResourceKind> kinds[] = {
        {"DG_INFORMATION", AlertResourceKind::Information},
        {"DG_WARNING", AlertResourceKind::Warning},
        {"DG_ERROR", AlertResourceKind::Error},
    };
    AlertResource alert;
    std::string kind;
    if (!ReadNameAndBrace(cursor) || !cursor.ReadWord(kind)) {
        return false;
    }
    const auto* const found = std::find_if(std::begin(kinds), std::end(kinds),
                                           [&](const auto& each) { return each.first == kind; });
    if (found == std::end(kinds)) {
        return cursor.RefuseLast("tipo de alerta desconhecido: " + kind);
    }
    alert.kind = found->second;
    if (!cursor.ReadText(alert.largeText) || !cursor.ReadText(alert.smallText)) {
        return false;
    }
    while (!cursor.TakeSign("}")) {
        if (!cursor.ReadText(alert.buttons.emplace_back())) {
            return false;
        }
    }
    // A button without text is one that the alert does not have.
    std::erase(alert.buttons, std::string());
    if (alert.buttons.empty() || alert.buttons.size() > MostAlertButtons) {
        return cursor.RefuseLast("um alerta tem de um a três botões");
    }
    return Store(cursor, script.alerts, id, std::move(alert));
}

bool ReadDialogKind(ResourceCursor& cursor, DialogResource& dialog) {
    constexpr std::pair<std::string_view, DialogKind> kinds[] = {
        {"Modal", DialogKind::Modal},
        {"Modeless", DialogKind::Modeless},
        {"Palette", DialogKind::Palette},
        {"TabPage", DialogKind::TabPage},
    };
    constexpr std::string_view styles[] = {
        "grow",       "hGrow",       "vGrow", "noGrow",  "noCaption", "normalFrame", "thickFrame",
        "topCaption", "leftCaption", "close", "noClose", "minimize",  "maximize",
    };
    std::string kind;
    if (!cursor.ReadWord(kind)) {
        return false;
    }
    const auto* const found = std::find_if(std::begin(kinds), std::end(kinds),
                                           [&](const auto& each) { return each.first == kind; });
    if (found == std::end(kinds)) {
        return cursor.RefuseLast("tipo de diálogo desconhecido: " + kind);
    }
    dialog.kind = found->second;
    while (cursor.TakeSign("|")) {
        std::string style;
        if (!cursor.ReadWord(style)) {
            return false;
        }
        if (std::find(std::begin(styles), std::end(styles), style) == std::end(styles)) {
            return cursor.RefuseLast("estilo de diálogo desconhecido: " + style);
        }
        dialog.styles.push_back(std::move(style));
    }
    return true;
}

bool ReadDialog(ResourceCursor& cursor, int id, ResourceScript& script) {
    DialogResource dialog;
    if (!ReadDialogKind(cursor, dialog) || !ReadPixelBox(cursor, dialog.place) ||
        !cursor.ReadText(dialog.title) || !cursor.ReadSign("{")) {
        return false;
    }
    while (!cursor.TakeSign("}")) {
        if (dialog.items.size() >= std::numeric_limits<std::int16_t>::max()) {
            return cursor.Refuse("itens demais");
        }
        if (!ReadItemResource(cursor, dialog.items.emplace_back())) {
            return false;
        }
    }
    return Store(cursor, script.dialogs, id, std::move(dialog));
}

bool ReadDialogHelp(ResourceCursor& cursor, int id, ResourceScript& script) {
    DialogHelpResource help;
    if (!cursor.ReadWord(help.anchor) || !cursor.ReadSign("{")) {
        return false;
    }
    while (!cursor.TakeSign("}")) {
        int item = 0;
        std::string tooltip;
        std::string name;
        if (!cursor.ReadSmallNumber(item)) {
            return false;
        }
        if (item < 1 || help.tooltips.count(item) > 0) {
            return cursor.RefuseLast("o item " + std::to_string(item) +
                                     " da ajuda não existe ou se repete");
        }
        if (!cursor.ReadText(tooltip) || !cursor.ReadWord(name)) {
            return false;
        }
        help.tooltips.emplace(item, std::move(tooltip));
    }
    const auto dialog = script.dialogs.find(id);
    if (dialog != script.dialogs.end() && !help.tooltips.empty() &&
        help.tooltips.rbegin()->first > static_cast<int>(dialog->second.items.size())) {
        return cursor.RefuseLast("a ajuda fala de um item que o diálogo " + std::to_string(id) +
                                 " não tem");
    }
    return Store(cursor, script.dialogHelps, id, std::move(help));
}

/// A resource of a type that is of no use here.
bool PassOver(ResourceCursor& cursor, const std::string& type, int id, ResourceScript& script) {
    std::vector<int>& ids = script.others[type];
    if (std::find(ids.begin(), ids.end(), id) != ids.end()) {
        return cursor.Refuse("o recurso " + std::to_string(id) + " deste tipo já existe");
    }
    ids.push_back(id);
    while (!cursor.TakeSign("{")) {
        if (!cursor.Skip()) {
            return false;
        }
    }
    for (int depth = 1; depth > 0;) {
        if (cursor.TakeSign("{")) {
            ++depth;
        } else if (cursor.TakeSign("}")) {
            --depth;
        } else if (!cursor.Skip()) {
            return false;
        }
    }
    return true;
}

bool ReadResource(ResourceCursor& cursor, ResourceScript& script) {
    std::string type;
    int id = 0;
    if (!cursor.ReadType(type) || !cursor.ReadNumber(id)) {
        return false;
    }
    if (id < 1 || id > HighestResource) {
        return cursor.RefuseLast("o número de um recurso vai de 1 a " +
                                 std::to_string(HighestResource));
    }
    using Reader = bool (*)(ResourceCursor&, int, ResourceScript&);
    constexpr std::pair<std::string_view, Reader> readers[] = {
        {"STR#", ReadStringList}, {"GICN", ReadIcon},  {"GDLG", ReadDialog},
        {"DLGH", ReadDialogHelp}, {"GALR", ReadAlert}, {"MDID", ReadIdentity},
    };
    for (const auto& [name, reader] : readers) {
        if (type == name) {
            return reader(cursor, id, script);
        }
    }
    return PassOver(cursor, type, id, script);
}

} // namespace

bool HasStyle(const ItemResource& item, std::string_view word) {
    return std::find(item.styles.begin(), item.styles.end(), word) != item.styles.end();
}

bool ParseResourceScript(std::string_view text, ResourceScript& script, std::string& error) {
    ResourceCursor cursor;
    if (!SplitResourceScript(text, cursor.tokens, error)) {
        return false;
    }
    ResourceScript read = script;
    while (!cursor.AtEnd()) {
        if (!ReadResource(cursor, read)) {
            error = std::move(cursor.error);
            return false;
        }
    }
    script = std::move(read);
    return true;
}

} // namespace Merivane::Workbench
