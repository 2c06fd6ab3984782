#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Workbench/Interface/DialogLayout.hpp"

namespace Merivane::Workbench {
namespace {

const FontMeasures Font = {8.2, 16.0, false};

DialogItem Item(ItemKind kind, const PixelBox& place, const std::string& text = {}) {
    DialogItem item;
    item.resource.kind = kind;
    item.place = place;
    item.text = text;
    return item;
}

Dialog Holding(std::vector<DialogItem> items) {
    Dialog dialog;
    dialog.width = 200;
    dialog.height = 100;
    dialog.items = std::move(items);
    return dialog;
}

TEST(DialogLayout, BreaksTextsAtBlanksAndLineEnds) {
    struct Case {
        std::string text;
        double letters; ///< width of a line, in letters "m"
        std::vector<std::string> lines;
    };
    const Case cases[] = {
        {"", 9.0, {""}},
        {"mm mm", 9.0, {"mm mm"}},
        {"mm mm", 4.0, {"mm", "mm"}},
        {"mm\n\nmm", 9.0, {"mm", "", "mm"}},
        {"mmmmmm mm", 4.0, {"mmmmmm", "mm"}}, // too wide alone
        {"  mm mm", 9.0, {"  mm mm"}},        // set in
        {"m m m m", 3.5, {"m m", "m m"}},
    };
    const double letter = TextWidth("m", Font);
    for (const Case& c : cases) {
        EXPECT_EQ(WrapText(c.text, c.letters * letter, Font), c.lines) << c.text;
    }
}

TEST(DialogLayout, ShortensOnlyWhatDoesNotFit) {
    const std::string text = "ããããããããã";
    const double width = TextWidth(text, Font);
    EXPECT_EQ(ShortenText(text, width, Font), text);
    const std::string shortened = ShortenText(text, width * 0.6, Font);
    EXPECT_TRUE(shortened.starts_with("ãã") && shortened.ends_with("…")) << shortened;
    EXPECT_LE(TextWidth(shortened, Font), width * 0.6);
    EXPECT_EQ(ShortenText(text, 0.0, Font), "…");
}

TEST(DialogLayout, FindsTextsThatAreCut) {
    const std::string text = "Mostrar parâmetros";
    const int width = static_cast<int>(TextWidth(text, Font)) + 1;
    struct Case {
        ItemKind kind;
        int width;
        int height;
        bool cut;
    };
    const Case cases[] = {
        {ItemKind::LeftText, width, 16, false},      {ItemKind::LeftText, width, 15, true},
        {ItemKind::LeftText, width - 2, 16, true}, // a second line
        {ItemKind::LeftText, width - 2, 32, false},  {ItemKind::CheckBox, width + 19, 16, false},
        {ItemKind::CheckBox, width + 17, 16, true},  {ItemKind::Button, width + 16, 16, false},
        {ItemKind::Button, width + 14, 64, true}, // a button has one line
        {ItemKind::GroupBox, width + 16, 50, false}, {ItemKind::TextEdit, 20, 16, false}, // scrolls
    };
    for (const Case& c : cases) {
        Dialog dialog = Holding({Item(c.kind, {0, 0, c.width, c.height}, text)});
        EXPECT_EQ(!ItemsWithCutText(dialog).empty(), c.cut) << c.width << 'x' << c.height;
        dialog.items[0].visible = false;
        EXPECT_TRUE(ItemsWithCutText(dialog).empty());
    }
}

TEST(DialogLayout, FindsItemsOnEachOtherAndOutside) {
    const ItemKind text = ItemKind::LeftText;
    Dialog dialog = Holding({Item(text, {0, 0, 10, 10}), Item(text, {10, 0, 10, 10}),
                             Item(text, {9, 9, 10, 10}), Item(text, {190, 90, 10, 10}),
                             Item(text, {191, 50, 10, 10}), Item(text, {-1, 50, 10, 10}),
                             Item(ItemKind::GroupBox, {0, 0, 200, 100})});
    const std::vector<Misplaced> expected = {{1, 3}, {2, 3}, {5, 0}, {6, 0}};
    EXPECT_EQ(FindMisplaced(dialog), expected);
    dialog.items[2].visible = false;
    dialog.items[4].visible = false;
    dialog.items[5].visible = false;
    EXPECT_TRUE(FindMisplaced(dialog).empty());
}

} // namespace
} // namespace Merivane::Workbench
