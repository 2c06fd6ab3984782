#include "Workbench/Interface/ItemResourceReader.hpp"

#include <algorithm>
#include <cmath>

#include "Text/Number.hpp"

namespace Merivane::Workbench {

namespace {

constexpr std::string_view StyleWords[] = {
    "frame",        "noFrame",          "RoundedEdge", "SquaredEdge",  "BevelEdge",
    "NoEdge",       "RoundedBevelEdge", "vTop",        "vCenter",      "vBottom",
    "noTrunc",      "truncEnd",         "truncMiddle", "Default",      "StaticEdge",
    "ClientEdge",   "ModalFrame",       "update",      "noUpdate",     "editable",
    "readOnly",     "absolute",         "nonEditable", "changeFont",   "NoScroll",
    "HScroll",      "VScroll",          "HVScroll",    "PartialItems", "NoPartialItems",
    "HasHeader",    "HasFrame",         "Primary",     "Secondary",    "Normal",
    "Transparent",  "PartialUpdate",    "BottomRight", "TopLeft",      "Focusable",
    "NonFocusable",
};

struct FontRow {
    std::string_view prefix;
    FontSize size;
};

constexpr FontRow Fonts[] = {
    {"ExtraSmall", FontSize::ExtraSmall}, {"Small", FontSize::Small}, {"Large", FontSize::Large}};
constexpr std::string_view FontStyles[] = {"Plain",     "Bold",   "Italic",
                                           "Underline", "Shadow", "Outline"};

struct NamedIcon {
    std::string_view name;
    std::int16_t number;
};

// The host's own icons lie below all numbers that an add-on can give.
constexpr NamedIcon NamedIcons[] = {
    {"NoIcon", 0}, {"DG_INFORMATION_ICON", -1}, {"DG_WARNING_ICON", -2}, {"DG_ERROR_ICON", -3}};

bool ReadFont(ResourceCursor& cursor, ItemResource& item) {
    std::string word;
    if (!cursor.ReadWord(word)) {
        return false;
    }
    for (const FontRow& font : Fonts) {
        if (!word.starts_with(font.prefix)) {
            continue;
        }
        const std::string style = word.substr(font.prefix.size());
        if (std::find(std::begin(FontStyles), std::end(FontStyles), style) !=
            std::end(FontStyles)) {
            item.fontSize = font.size;
            item.bold = style == "Bold";
            return true;
        }
    }
    return cursor.RefuseLast("fonte desconhecida: " + word);
}

bool ReadStyle(ResourceCursor& cursor, ItemResource& item) {
    std::string word;
    if (!cursor.ReadWord(word)) {
        return false;
    }
    if (std::find(std::begin(StyleWords), std::end(StyleWords), word) == std::end(StyleWords)) {
        return cursor.RefuseLast("estilo de item desconhecido: " + word);
    }
    item.styles.push_back(std::move(word));
    return true;
}

/// A word that begins the next item ends the styles of this one.
bool StyleStandsHere(const ResourceCursor& cursor) {
    return cursor.Now().kind == TokenKind::Word && FindItemKind(cursor.Now().text) == nullptr;
}

bool ReadStyles(ResourceCursor& cursor, ItemResource& item) {
    while (StyleStandsHere(cursor) || cursor.TakeSign("|")) {
        if (!ReadStyle(cursor, item)) {
            return false;
        }
    }
    return true;
}

bool ReadSmall(ResourceCursor& cursor, std::int16_t& number) {
    int read = 0;
    if (!cursor.ReadSmallNumber(read)) {
        return false;
    }
    number = static_cast<std::int16_t>(read);
    return true;
}

bool ReadIconNumber(ResourceCursor& cursor, std::int16_t& icon) {
    if (cursor.Now().kind == TokenKind::Number) {
        return ReadSmall(cursor, icon);
    }
    std::string word;
    if (!cursor.ReadWord(word)) {
        return false;
    }
    for (const NamedIcon& named : NamedIcons) {
        if (named.name == word) {
            icon = named.number;
            return true;
        }
    }
    return cursor.RefuseLast("ícone desconhecido: " + word);
}

bool ReadLimit(ResourceCursor& cursor, std::string& limit) {
    if (!cursor.ReadText(limit)) {
        return false;
    }
    double value = 0.0;
    return limit.empty() || (Text::ReadEntireNumber(limit, value) && std::isfinite(value)) ||
           cursor.RefuseLast("o limite \"" + limit + "\" não é um número");
}

/// Numbers, texts and styles in any order, up to the next item.
bool ReadAnything(ResourceCursor& cursor, ItemResource& item) {
    for (;;) {
        if (cursor.Now().kind == TokenKind::Number) {
            if (!cursor.ReadNumber(item.numbers.emplace_back())) {
                return false;
            }
        } else if (cursor.Now().kind == TokenKind::Text) {
            if (!cursor.ReadText(item.texts.emplace_back())) {
                return false;
            }
        } else if (cursor.TakeSign("|")) {
            continue;
        } else if (!StyleStandsHere(cursor)) {
            return true;
        } else if (cursor.Now().text == "NoIcon") {
            ++cursor.at; // in front of an entry's text
        } else if (!ReadStyle(cursor, item)) {
            return false;
        }
    }
}

bool ReadArgument(ResourceCursor& cursor, char argument, ItemResource& item) {
    switch (argument) {
    case 'f':
        return ReadFont(cursor, item);
    case 'w':
        return ReadStyles(cursor, item);
    case 's':
        return cursor.ReadText(item.text);
    case 'l':
        return ReadLimit(cursor, item.lowest);
    case 'h':
        return ReadLimit(cursor, item.highest);
    case 'g':
        return ReadSmall(cursor, item.group);
    case 'm':
        return ReadSmall(cursor, item.maximumLength);
    case 'c':
        return ReadIconNumber(cursor, item.icon);
    case 'i':
        return cursor.ReadNumber(item.numbers.emplace_back());
    default:
        return ReadAnything(cursor, item);
    }
}

} // namespace

bool ReadPixelBox(ResourceCursor& cursor, PixelBox& box) {
    if (!cursor.ReadSmallNumber(box.left) || !cursor.ReadSmallNumber(box.top) ||
        !cursor.ReadSmallNumber(box.width) || !cursor.ReadSmallNumber(box.height)) {
        return false;
    }
    return (box.width >= 0 && box.height >= 0) || cursor.RefuseLast("tamanho negativo");
}

bool ReadItemResource(ResourceCursor& cursor, ItemResource& item) {
    std::string name;
    if (!cursor.ReadWord(name)) {
        return false;
    }
    const ItemKindRow* const row = FindItemKind(name);
    if (!row) {
        return cursor.RefuseLast("tipo de item desconhecido: " + name);
    }
    item.kind = row->kind;
    if (!ReadPixelBox(cursor, item.place)) {
        return false;
    }
    return std::all_of(row->arguments.begin(), row->arguments.end(),
                       [&](char argument) { return ReadArgument(cursor, argument, item); });
}

} // namespace Merivane::Workbench
