#include "Workbench/Interface/DialogPicture.hpp"

#include <algorithm>
#include <string>
#include <utility>

#include "Workbench/Interface/ItemPicture.hpp"
#include "Workbench/Interface/PixelCanvas.hpp"

namespace Merivane::Workbench {

namespace {

constexpr int Edge = 1;
constexpr int TitleHeight = 30;
constexpr int PaletteTitleHeight = 22;
constexpr FontMeasures TitleFont = {8.2, 16.0, false};
constexpr int CloseBox = 36; // at the right end of the title bar

/// Frame and title bar around an inside of a size; the canvas then stands at the inside's corner.
PixelCanvas DrawWindow(const std::string& title, int width, int height, bool palette,
                       const Theme& theme) {
    const int titleHeight = palette ? PaletteTitleHeight : TitleHeight;
    const int fullWidth = width + 2 * Edge;
    const int fullHeight = height + titleHeight + 2 * Edge;
    PixelCanvas canvas = MakeCanvas(fullWidth, fullHeight, theme);
    canvas.list.title = title;
    FillBox(canvas, {0, 0, fullWidth, fullHeight}, theme.body);
    FillBox(canvas, {0, 0, fullWidth, titleHeight + Edge}, theme.titleBar);
    StrokeBox(canvas, {0, 0, fullWidth, fullHeight}, theme.frame);
    const double middle = Edge + titleHeight / 2.0;
    DrawLine(canvas, ShortenText(title, fullWidth - CloseBox - 16.0, TitleFont), {12.0, middle},
             TitleFont, theme.title);
    const double x = fullWidth - CloseBox / 2.0;
    const double arm = palette ? 3.5 : 4.5;
    StrokeLine(canvas, {{x - arm, middle - arm}, {x + arm, middle + arm}}, theme.title);
    StrokeLine(canvas, {{x - arm, middle + arm}, {x + arm, middle - arm}}, theme.title);
    canvas.origin = {Edge + 0.0, titleHeight + Edge + 0.0};
    return canvas;
}

const Theme& ThemeOf(bool dark) {
    return dark ? DarkTheme() : LightTheme();
}

DialogItem MakeText(const std::string& text, const PixelBox& place, bool bold) {
    DialogItem item;
    item.resource.kind = ItemKind::LeftText;
    item.resource.bold = bold;
    item.resource.styles = {"vTop"};
    item.text = text;
    item.place = place;
    return item;
}

int TextHeight(const DialogItem& item) {
    const FontMeasures font = MeasuresOf(item.resource);
    return item.text.empty() ? 0
                             : static_cast<int>(WrapText(item.text, item.place.width, font).size() *
                                                static_cast<std::size_t>(font.line));
}

} // namespace

Drawing::DisplayList DialogPicture(const Dialog& dialog, bool dark) {
    PixelCanvas canvas = DrawWindow(dialog.title, dialog.width, dialog.height,
                                    dialog.kind == DialogKind::Palette, ThemeOf(dark));
    const std::int16_t defaultButton =
        dialog.kind == DialogKind::Modal ? DefaultButton(dialog) : std::int16_t{0};
    // Group boxes lie below what they hold, whatever their numbers.
    for (const bool groups : {true, false}) {
        for (std::size_t i = 0; i < dialog.items.size(); ++i) {
            const DialogItem& item = dialog.items[i];
            if (item.visible && (item.resource.kind == ItemKind::GroupBox) == groups) {
                DrawItem(canvas, item, static_cast<std::size_t>(defaultButton) == i + 1);
            }
        }
    }
    return std::move(canvas.list);
}

Drawing::DisplayList AlertPicture(const ShownAlert& alert, bool dark) {
    constexpr int width = 460;
    constexpr int margin = 16;
    constexpr int sign = 32;
    constexpr int buttonWidth = 100;
    constexpr int buttonHeight = 24;
    constexpr int gap = 10;
    const int left = margin + sign + margin;
    DialogItem large = MakeText(alert.largeText, {left, margin, width - left - margin, 0}, true);
    large.place.height = TextHeight(large);
    DialogItem small = MakeText(alert.smallText, large.place, false);
    small.place.top += large.place.height + (large.place.height > 0 ? 8 : 0);
    small.place.height = TextHeight(small);
    const int textEnd = std::max(small.place.top + small.place.height, margin + sign);
    const int height = textEnd + margin + buttonHeight + margin;
    PixelCanvas canvas = DrawWindow("Vantoro", width, height, false, ThemeOf(dark));
    DrawIcon(canvas, static_cast<std::int16_t>(-1 - static_cast<int>(alert.kind)),
             {margin, margin, sign, sign}, false);
    DrawItem(canvas, large, false);
    DrawItem(canvas, small, false);
    int right = width - margin;
    for (std::size_t i = alert.buttons.size(); i > 0; --i) {
        DialogItem button;
        button.resource.kind = ItemKind::Button;
        button.text = alert.buttons[i - 1];
        const int wide = static_cast<int>(TextWidth(button.text, MeasuresOf(button.resource))) + 24;
        const int size = std::max(buttonWidth, wide);
        button.place = {right - size, textEnd + margin, size, buttonHeight};
        right -= size + gap;
        DrawItem(canvas, button, i == 1);
    }
    return std::move(canvas.list);
}

} // namespace Merivane::Workbench
