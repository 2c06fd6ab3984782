#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Workbench/Interface/DialogState.hpp"

namespace Merivane::Workbench {
namespace {

Dialog Make(const std::string& items) {
    ResourceScript script;
    std::string error;
    EXPECT_TRUE(ParseResourceScript("'GDLG' 100 Modal 0 0 300 200 \"Prova\" {" + items +
                                        "} 'DLGH' 100 A { 1 \"dica\" B }",
                                    script, error))
        << error;
    return MakeDialog(100, script.dialogs.at(100), &script.dialogHelps.at(100));
}

const std::string OneOfEach = R"(
    Button 0 0 9 9 LargePlain "OK"
    LeftText 0 0 9 9 LargePlain vCenter "texto"
    IntEdit 0 0 9 9 LargePlain frame "2" "8"
    RealEdit 0 0 9 9 LargePlain frame "" "0.5"
    PopupControl 0 0 9 9 200 20
    SingleSelList 0 0 9 9 LargePlain NoPartialItems VScroll 20 HasFrame
    CheckBox 0 0 9 9 LargePlain "caixa"
    RadioButton 0 0 9 9 LargePlain 1 "a"
    RadioButton 0 0 9 9 LargePlain 1 "b"
    RadioButton 0 0 9 9 LargePlain 2 "c"
    IconButton 0 0 9 9 10006
    PosIntEdit 0 0 9 9 LargePlain frame "" "")";

TEST(DialogState, BeginsAsItsResourceSays) {
    const Dialog dialog = Make(OneOfEach);
    EXPECT_EQ(dialog.resource, 100);
    EXPECT_EQ(dialog.title, "Prova");
    EXPECT_EQ(dialog.width, 300);
    EXPECT_EQ(dialog.height, 200);
    ASSERT_EQ(dialog.items.size(), 12U);
    EXPECT_EQ(dialog.items[0].tooltip, "dica");
    EXPECT_EQ(dialog.items[1].text, "texto");
    EXPECT_EQ(dialog.items[2].value, 2.0); // the limit nearest to 0
    EXPECT_EQ(dialog.items[3].value, 0.0);
    EXPECT_EQ(dialog.items[10].icon, 10006);
    for (const DialogItem& item : dialog.items) {
        EXPECT_TRUE(item.visible && item.enabled);
    }
}

TEST(DialogState, HoldsNumbersInsideTheirLimits) {
    struct Case {
        std::int16_t item;
        double value;
        double expected;
    };
    const Case cases[] = {
        {3, 2.0, 2.0},     {3, 1.99, 2.0},  {3, 8.0, 8.0},  {3, 8.6, 8.0},  {3, 3.4, 3.0},
        {3, 3.5, 4.0},     {3, 1e300, 8.0}, {4, 0.5, 0.5},  {4, 0.51, 0.5}, {4, -1e9, -1e9},
        {4, 0.123, 0.123}, {12, -1.0, 0.0}, {12, 1e9, 1e9},
    };
    for (const Case& c : cases) {
        Dialog dialog = Make(OneOfEach);
        SetNumber(*FindItem(dialog, c.item), c.value);
        EXPECT_EQ(FindItem(dialog, c.item)->value, c.expected) << c.item << ' ' << c.value;
    }
    Dialog dialog = Make(OneOfEach);
    SetNumber(dialog.items[2], 5.0);
    SetNumber(dialog.items[2], std::nan(""));
    EXPECT_EQ(dialog.items[2].value, 5.0);
    SetLimits(dialog.items[2], 6.0, 7.0);
    EXPECT_EQ(dialog.items[2].value, 6.0);
    SetLimits(dialog.items[2], 9.0, 7.0); // turned round: not taken
    EXPECT_EQ(dialog.items[2].highest, 7.0);
}

TEST(DialogState, KeepsOneRadioButtonOfAGroup) {
    Dialog dialog = Make(OneOfEach);
    SetChecked(dialog, 8, true);
    SetChecked(dialog, 10, true);
    SetChecked(dialog, 9, true);
    EXPECT_FALSE(dialog.items[7].checked);
    EXPECT_TRUE(dialog.items[8].checked);
    EXPECT_TRUE(dialog.items[9].checked);
    SetChecked(dialog, 9, false);
    EXPECT_TRUE(dialog.items[8].checked);
    SetChecked(dialog, 7, true);
    SetChecked(dialog, 7, false);
    EXPECT_FALSE(dialog.items[6].checked);
}

TEST(DialogState, CountsEntriesFromOne) {
    Dialog dialog = Make(OneOfEach);
    DialogItem& popup = dialog.items[4];
    AppendEntry(popup, "um");
    AppendEntry(popup, "dois");
    EXPECT_EQ(popup.selected, 0);
    for (const std::int16_t entry : {std::int16_t{2}, std::int16_t{3}, std::int16_t{-1}}) {
        SelectEntry(popup, entry); // only the first of these exists
        EXPECT_EQ(popup.selected, 2);
    }
    SetEntryText(popup, 1, "hum");
    SetEntryText(popup, 3, "fora");
    EXPECT_EQ(popup.entries, (std::vector<std::string>{"hum", "dois"}));
    SelectEntry(popup, 0);
    EXPECT_EQ(popup.selected, 0);
    SelectEntry(popup, 1);
    ClearEntries(popup);
    EXPECT_EQ(popup.selected, 0);
    EXPECT_TRUE(popup.entries.empty());
}

TEST(DialogState, EmptiesAListWhoseColumnsAreSet) {
    Dialog dialog = Make(OneOfEach);
    DialogItem& list = dialog.items[5];
    SetColumns(list, {{"A", 0, 50}, {"B", 50, 90}});
    EXPECT_EQ(AppendRow(list), 1);
    EXPECT_EQ(AppendRow(list), 2);
    SetCell(list, 2, 2, "x");
    SetCell(list, 2, 3, "fora");
    SetCell(list, 3, 1, "fora");
    SelectRow(list, 2);
    SelectRow(list, 3);
    EXPECT_EQ(list.selected, 2);
    EXPECT_EQ(list.rows, (std::vector<std::vector<std::string>>{{"", ""}, {"", "x"}}));
    SetColumns(list, {{"A", 0, 50}});
    EXPECT_TRUE(list.rows.empty());
    EXPECT_EQ(list.selected, 0);
}

TEST(DialogState, LeavesKindsAloneThatDoNotKnowAnOperation) {
    Dialog dialog = Make(OneOfEach);
    DialogItem& button = dialog.items[0];
    DialogItem& popup = dialog.items[4];
    SetNumber(button, 4.0);
    SetLimits(button, 1.0, 2.0);
    SetChecked(dialog, 1, true);
    SetChecked(dialog, 99, true);
    SetIcon(button, 5);
    AppendEntry(button, "x");
    SelectEntry(button, 1);
    EXPECT_EQ(AppendRow(button), 0);
    SetColumns(button, {{"A", 0, 50}});
    SetText(popup, "x");
    SelectRow(popup, 1);
    EXPECT_EQ(button.value, 0.0);
    EXPECT_EQ(button.icon, 0);
    EXPECT_FALSE(button.checked);
    EXPECT_TRUE(button.entries.empty() && button.rows.empty() && button.columns.empty());
    EXPECT_EQ(popup.text, "");
    EXPECT_EQ(FindItem(dialog, 0), nullptr);
    EXPECT_EQ(FindItem(dialog, 13), nullptr);
    EXPECT_EQ(FindItem(dialog, -1), nullptr);
}

TEST(DialogState, AddsAnIconBehindTheLastItemInTheUpperRightCorner) {
    Dialog dialog = Make(OneOfEach);
    EXPECT_EQ(AppendIcon(dialog, 10203), 13);
    EXPECT_EQ(dialog.items[12].resource.kind, ItemKind::Icon);
    EXPECT_EQ(dialog.items[12].icon, 10203);
    EXPECT_EQ(dialog.items[12].place, (PixelBox{278, 4, 18, 18}));
}

TEST(DialogState, FindsTheButtonThatEnterPresses) {
    struct Case {
        std::string items;
        std::int16_t expected;
    };
    const std::string text = "LeftText 0 0 9 9 LargePlain vTop \"x\" ";
    const std::string other = "Button 0 0 9 9 LargePlain \"Outro\" ";
    const std::string cancel = "Button 0 0 9 9 LargePlain \"Cancelar\" ";
    const Case cases[] = {
        {other + cancel, 1},                // the first item
        {cancel + other, 1},                // whatever it says
        {text, 0},                          // none
        {text + other, 2},                  // the last one
        {text + other + other, 3},          //
        {text + other + other + cancel, 3}, // the one before
        {text + cancel + other, 3},         // nothing before it
        {text + other + cancel + other, 2},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(DefaultButton(Make(c.items)), c.expected) << c.items;
    }
    Dialog dialog = Make(text + other + other + cancel);
    dialog.items[2].visible = false;
    EXPECT_EQ(DefaultButton(dialog), 2);
}

} // namespace
} // namespace Merivane::Workbench
