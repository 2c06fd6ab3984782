#include "Workbench/Interface/ItemKind.hpp"

#include <algorithm>
#include <array>
#include <initializer_list>

namespace Merivane::Workbench {

namespace {

using enum ItemKind;

constexpr auto Rows = std::to_array<ItemKindRow>({
    {Button, "Button", "fws"},
    {IconButton, "IconButton", "cw"},
    {CheckBox, "CheckBox", "fs"},
    {RadioButton, "RadioButton", "fgs"},
    {PushCheck, "PushCheck", "fws"},
    {PushRadio, "PushRadio", "fwgs"},
    {IconCheckBox, "IconCheckBox", "c"},
    {IconPushCheck, "IconPushCheck", "cw"},
    {IconRadioButton, "IconRadioButton", "gc"},
    {IconPushRadio, "IconPushRadio", "gcw"},
    {LeftText, "LeftText", "fws"},
    {CenterText, "CenterText", "fws"},
    {RightText, "RightText", "fws"},
    {TextEdit, "TextEdit", "fwm"},
    {IntEdit, "IntEdit", "fwlh"},
    {PosIntEdit, "PosIntEdit", "fwlh"},
    {RealEdit, "RealEdit", "fwlh"},
    {AngleEdit, "AngleEdit", "fwlh"},
    {PolarAngleEdit, "PolarAngleEdit", "fwlh"},
    {AreaEdit, "AreaEdit", "fwlh"},
    {VolumeEdit, "VolumeEdit", "fwlh"},
    {LengthEdit, "LengthEdit", "fwlh"},
    {MultiLineEdit, "MultiLineEdit", "fw"},
    {PopupControl, "PopupControl", "ii*"},
    {SingleSelList, "SingleSelList", "f*"},
    {MultiSelList, "MultiSelList", "f*"},
    {SingleSelTreeView, "SingleSelTreeView", "f*"},
    {MultiSelTreeView, "MultiSelTreeView", "f*"},
    {SingleSelListView, "SingleSelListView", "f*"},
    {GroupBox, "GroupBox", "fws"},
    {Separator, "Separator", ""},
    {Splitter, "Splitter", "w"},
    {UserItem, "UserItem", "w"},
    {UserControl, "UserControl", "i*"},
    {Icon, "Icon", "cw"},
    {ProgressBar, "ProgressBar", "iiw"},
    {Slider, "Slider", "iiiw"},
    {SingleSpin, "SingleSpin", "ii"},
    {EditSpin, "EditSpin", "i"},
    {ScrollBar, "ScrollBar", "iiiw"},
    {NormalTab, "NormalTab", "*"},
    {SimpleTab, "SimpleTab", "*"},
    {TabBar, "TabBar", "*"},
    {Browser, "Browser", "*"},
    {RichEdit, "RichEdit", "*"},
    {SplitButton, "SplitButton", "*"},
});

bool IsOneOf(ItemKind kind, std::initializer_list<ItemKind> kinds) {
    return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
}

} // namespace

const ItemKindRow* FindItemKind(std::string_view name) {
    const auto* const row = std::find_if(
        Rows.begin(), Rows.end(), [&](const ItemKindRow& each) { return each.name == name; });
    return row == Rows.end() ? nullptr : row;
}

std::string_view ItemKindName(ItemKind kind) {
    const auto* const row = std::find_if(
        Rows.begin(), Rows.end(), [&](const ItemKindRow& each) { return each.kind == kind; });
    return row == Rows.end() ? std::string_view() : row->name;
}

bool IsStaticText(ItemKind kind) {
    return IsOneOf(kind, {LeftText, CenterText, RightText});
}

bool IsTextField(ItemKind kind) {
    return IsOneOf(kind, {TextEdit, MultiLineEdit});
}

bool IsNumberField(ItemKind kind) {
    return IsOneOf(kind, {IntEdit, PosIntEdit, RealEdit, AngleEdit, PolarAngleEdit, AreaEdit,
                          VolumeEdit, LengthEdit});
}

bool IsIntegerField(ItemKind kind) {
    return IsOneOf(kind, {IntEdit, PosIntEdit});
}

bool IsButton(ItemKind kind) {
    return IsOneOf(kind, {Button, IconButton, SplitButton});
}

bool IsCheck(ItemKind kind) {
    return IsOneOf(kind, {CheckBox, PushCheck, IconCheckBox, IconPushCheck});
}

bool IsRadio(ItemKind kind) {
    return IsOneOf(kind, {RadioButton, PushRadio, IconRadioButton, IconPushRadio});
}

bool IsList(ItemKind kind) {
    return IsOneOf(kind, {SingleSelList, MultiSelList});
}

bool ShowsIcon(ItemKind kind) {
    return IsOneOf(kind,
                   {IconButton, Icon, IconCheckBox, IconPushCheck, IconRadioButton, IconPushRadio});
}

bool HasText(ItemKind kind) {
    return IsStaticText(kind) || IsTextField(kind) ||
           IsOneOf(kind, {Button, CheckBox, RadioButton, PushCheck, PushRadio, GroupBox});
}

} // namespace Merivane::Workbench
