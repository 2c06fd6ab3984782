#pragma once

#include <string_view>

/// The kinds of items that a dialog's resource can hold.
namespace Merivane::Workbench {

enum class ItemKind {
    Button,
    IconButton,
    CheckBox,
    RadioButton,
    PushCheck,
    PushRadio,
    IconCheckBox,
    IconPushCheck,
    IconRadioButton,
    IconPushRadio,
    LeftText,
    CenterText,
    RightText,
    TextEdit,
    IntEdit,
    PosIntEdit,
    RealEdit,
    AngleEdit,
    PolarAngleEdit,
    AreaEdit,
    VolumeEdit,
    LengthEdit,
    MultiLineEdit,
    PopupControl,
    SingleSelList,
    MultiSelList,
    SingleSelTreeView,
    MultiSelTreeView,
    SingleSelListView,
    GroupBox,
    Separator,
    Splitter,
    UserItem,
    UserControl,
    Icon,
    ProgressBar,
    Slider,
    SingleSpin,
    EditSpin,
    ScrollBar,
    NormalTab,
    SimpleTab,
    TabBar,
    Browser,
    RichEdit,
    SplitButton,
};

/// How a kind is written in a resource script.
struct ItemKindRow {
    ItemKind kind;
    std::string_view name;
    /// What stands behind the rectangle, a letter each: `f` a font, `w` style words (any number,
    /// none too), `s` a text, `l` and `h` the text of the lowest and highest value, `i` a number,
    /// `g` the number of a radio group, `m` the longest text, `c` an icon, `*` anything.
    std::string_view arguments;
};

/// The row of a kind by its name in a script, or null.
const ItemKindRow* FindItemKind(std::string_view name);

/// The name of a kind in a script.
std::string_view ItemKindName(ItemKind kind);

/// Shown as one line of text, or several: static texts.
bool IsStaticText(ItemKind kind);

/// Keeps a text that the user writes.
bool IsTextField(ItemKind kind);

/// Keeps a number that the user writes.
bool IsNumberField(ItemKind kind);

/// Keeps whole numbers only.
bool IsIntegerField(ItemKind kind);

/// Is pressed: buttons of every form.
bool IsButton(ItemKind kind);

/// Is on or off by itself.
bool IsCheck(ItemKind kind);

/// Is one of a group of which one is on.
bool IsRadio(ItemKind kind);

/// Shows rows.
bool IsList(ItemKind kind);

/// Shows an icon that can be changed.
bool ShowsIcon(ItemKind kind);

/// Has a text: what `SetItemText` knows.
bool HasText(ItemKind kind);

} // namespace Merivane::Workbench
