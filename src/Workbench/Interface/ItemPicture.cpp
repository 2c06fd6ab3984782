#include "Workbench/Interface/ItemPicture.hpp"

#include <algorithm>
#include <string>

#include "Text/Number.hpp"
#include "Workbench/Interface/UserPicturePainting.hpp"

namespace Merivane::Workbench {

namespace {

using Drawing::Color;
using Drawing::HorizontalAnchor;
using Drawing::Point;

constexpr double Corner = 3.0;
constexpr int BoxSize = 13; // of a check box
constexpr int ScrollWidth = 12;
constexpr int CellPadding = 6;

const Color& TextColor(const PixelCanvas& canvas, const DialogItem& item) {
    return item.enabled ? canvas.theme->text : canvas.theme->greyed;
}

double MiddleOf(const PixelBox& box) {
    return box.top + box.height / 2.0;
}

/// Text and anchor of a line in a box.
void DrawInBox(PixelCanvas& canvas, std::string_view text, const PixelBox& box,
               HorizontalAnchor anchor, double y, const FontMeasures& font, const Color& color) {
    const double x = anchor == HorizontalAnchor::Left     ? box.left
                     : anchor == HorizontalAnchor::Center ? box.left + box.width / 2.0
                                                          : box.left + box.width;
    DrawLine(canvas, text, {x, y}, font, color, anchor);
}

void DrawStaticText(PixelCanvas& canvas, const DialogItem& item) {
    const FontMeasures font = MeasuresOf(item.resource);
    const PixelBox box = TextBox(item);
    const std::vector<std::string> lines = WrapText(item.text, box.width, font);
    const double textHeight = static_cast<double>(lines.size()) * font.line;
    const double room = box.height - textHeight;
    const double gap = HasStyle(item.resource, "vTop")      ? 0.0
                       : HasStyle(item.resource, "vBottom") ? room
                                                            : room / 2.0;
    const HorizontalAnchor anchor =
        item.resource.kind == ItemKind::LeftText     ? HorizontalAnchor::Left
        : item.resource.kind == ItemKind::CenterText ? HorizontalAnchor::Center
                                                     : HorizontalAnchor::Right;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const double y = box.top + gap + (static_cast<double>(i) + 0.5) * font.line;
        DrawInBox(canvas, lines[i], box, anchor, y, font, TextColor(canvas, item));
    }
}

void DrawButton(PixelCanvas& canvas, const DialogItem& item, bool isDefault) {
    const Theme& theme = *canvas.theme;
    FillBox(canvas, item.place, item.enabled ? theme.button : theme.body, Corner);
    StrokeBox(canvas, item.place,
              isDefault && item.enabled ? theme.accent
              : item.enabled            ? theme.buttonEdge
                                        : theme.groupEdge,
              Corner, isDefault && item.enabled ? 1.5 : 1.0);
    DrawInBox(canvas, item.text, TextBox(item), HorizontalAnchor::Center, MiddleOf(item.place),
              MeasuresOf(item.resource), TextColor(canvas, item));
}

void DrawIconButton(PixelCanvas& canvas, const DialogItem& item) {
    const Theme& theme = *canvas.theme;
    FillBox(canvas, item.place, theme.button, Corner);
    StrokeBox(canvas, item.place, item.checked ? theme.accent : theme.groupEdge, Corner);
    DrawIcon(canvas, item.icon, item.place, !item.enabled);
}

void DrawCheckBox(PixelCanvas& canvas, const DialogItem& item) {
    const Theme& theme = *canvas.theme;
    const int top = item.place.top + (item.place.height - BoxSize) / 2;
    const PixelBox box{item.place.left, top, BoxSize, BoxSize};
    const Color& mark = item.enabled ? theme.accent : theme.greyed;
    if (item.checked) {
        FillBox(canvas, box, mark, 2.0);
        StrokeLine(canvas,
                   {{box.left + 3.0, box.top + 6.8},
                    {box.left + 5.6, box.top + 9.4},
                    {box.left + 10.2, box.top + 3.8}},
                   theme.field, 1.6);
    } else {
        FillBox(canvas, box, item.enabled ? theme.field : theme.body, 2.0);
        StrokeBox(canvas, box, item.enabled ? theme.fieldEdge : theme.greyed, 2.0);
    }
    DrawInBox(canvas, item.text, TextBox(item), HorizontalAnchor::Left, MiddleOf(item.place),
              MeasuresOf(item.resource), TextColor(canvas, item));
}

void DrawRadioButton(PixelCanvas& canvas, const DialogItem& item) {
    const Theme& theme = *canvas.theme;
    const double radius = BoxSize / 2.0;
    const Point center{item.place.left + radius, MiddleOf(item.place)};
    FillCircle(canvas, center, radius, item.enabled ? theme.field : theme.body);
    StrokeCircle(canvas, center, radius - 0.5, item.enabled ? theme.fieldEdge : theme.greyed);
    if (item.checked) {
        FillCircle(canvas, center, radius - 3.0, item.enabled ? theme.accent : theme.greyed);
    }
    DrawInBox(canvas, item.text, TextBox(item), HorizontalAnchor::Left, center.y,
              MeasuresOf(item.resource), TextColor(canvas, item));
}

void DrawFieldFrame(PixelCanvas& canvas, const DialogItem& item) {
    if (HasStyle(item.resource, "noFrame")) {
        return;
    }
    const Theme& theme = *canvas.theme;
    FillBox(canvas, item.place, item.enabled ? theme.field : theme.body, 2.0);
    StrokeBox(canvas, item.place, item.enabled ? theme.fieldEdge : theme.groupEdge, 2.0);
}

void DrawField(PixelCanvas& canvas, const DialogItem& item) {
    constexpr int digits = 10;
    DrawFieldFrame(canvas, item);
    const FontMeasures font = MeasuresOf(item.resource);
    const PixelBox box = TextBox(item);
    const bool isNumber = IsNumberField(item.resource.kind);
    const std::string text = isNumber ? Text::FormatGeneral(item.value, digits) : item.text;
    DrawInBox(canvas, ShortenText(text, box.width, font), box,
              isNumber ? HorizontalAnchor::Right : HorizontalAnchor::Left, MiddleOf(item.place),
              font, TextColor(canvas, item));
}

/// A bar at the right of a box that shows `shown` of `all` lines from the line `first` on.
void DrawScrollBar(PixelCanvas& canvas, const PixelBox& box, double first, double shown,
                   double all) {
    const Theme& theme = *canvas.theme;
    const PixelBox bar{box.left + box.width - ScrollWidth, box.top + 1, ScrollWidth - 1,
                       box.height - 2};
    FillBox(canvas, bar, theme.header);
    const double scale = bar.height / all;
    const PixelBox thumb{bar.left + 3, bar.top + static_cast<int>(first * scale), bar.width - 6,
                         std::max(static_cast<int>(shown * scale), 12)};
    FillBox(canvas, thumb, theme.scrollBar, 2.0);
}

void DrawMultiLine(PixelCanvas& canvas, const DialogItem& item) {
    DrawFieldFrame(canvas, item);
    const FontMeasures font = MeasuresOf(item.resource);
    PixelBox box = TextBox(item);
    const auto room = static_cast<std::size_t>(std::max(box.height - 4, 0) / font.line);
    std::vector<std::string> lines = WrapText(item.text, box.width, font);
    if (lines.size() > room) {
        box.width = std::max(box.width - ScrollWidth, 0);
        lines = WrapText(item.text, box.width, font);
        DrawScrollBar(canvas, item.place, 0.0, static_cast<double>(room),
                      static_cast<double>(lines.size()));
    }
    for (std::size_t i = 0; i < std::min(room, lines.size()); ++i) {
        DrawInBox(canvas, ShortenText(lines[i], box.width, font), box, HorizontalAnchor::Left,
                  box.top + 2 + (static_cast<double>(i) + 0.5) * font.line, font,
                  TextColor(canvas, item));
    }
}

void DrawPopup(PixelCanvas& canvas, const DialogItem& item) {
    const Theme& theme = *canvas.theme;
    FillBox(canvas, item.place, item.enabled ? theme.button : theme.body, Corner);
    StrokeBox(canvas, item.place, item.enabled ? theme.buttonEdge : theme.groupEdge, Corner);
    const double x = item.place.left + item.place.width - 12.0;
    const double y = MiddleOf(item.place);
    StrokeLine(canvas, {{x - 4.0, y - 2.0}, {x, y + 2.0}, {x + 4.0, y - 2.0}},
               TextColor(canvas, item), 1.3);
    if (item.selected >= 1) {
        const FontMeasures font = MeasuresOf(item.resource);
        const PixelBox box = TextBox(item);
        const std::string& entry = item.entries[static_cast<std::size_t>(item.selected) - 1];
        DrawInBox(canvas, ShortenText(entry, box.width, font), box, HorizontalAnchor::Left, y, font,
                  TextColor(canvas, item));
    }
}

/// Height of a row and of the header, as the resource has them.
struct ListSizes {
    int row = 20;
    int header = 0;
};

ListSizes SizesOf(const DialogItem& item) {
    constexpr int least = 12;
    constexpr int most = 100;
    ListSizes sizes;
    const std::vector<int>& numbers = item.resource.numbers;
    if (!numbers.empty()) {
        sizes.row = std::clamp(numbers[0], least, most);
    }
    if (HasStyle(item.resource, "HasHeader")) {
        sizes.header = numbers.size() > 1 ? std::clamp(numbers[1], least, most) : sizes.row;
    }
    return sizes;
}

void DrawCells(PixelCanvas& canvas, const DialogItem& item, const std::vector<std::string>& cells,
               const PixelBox& row, const FontMeasures& font, int right) {
    for (std::size_t i = 0; i < item.columns.size() && i < cells.size(); ++i) {
        const Host::ListColumn& column = item.columns[i];
        const int end = std::min(row.left + column.end, right);
        const PixelBox box{row.left + column.begin + CellPadding, row.top,
                           std::max(end - row.left - column.begin - 2 * CellPadding, 0),
                           row.height};
        const HorizontalAnchor anchor =
            column.alignment == Host::ColumnAlignment::Left     ? HorizontalAnchor::Left
            : column.alignment == Host::ColumnAlignment::Center ? HorizontalAnchor::Center
                                                                : HorizontalAnchor::Right;
        DrawInBox(canvas, ShortenText(cells[i], box.width, font), box, anchor, MiddleOf(box), font,
                  TextColor(canvas, item));
    }
}

void DrawHeader(PixelCanvas& canvas, const DialogItem& item, int height, const FontMeasures& font) {
    const Theme& theme = *canvas.theme;
    const PixelBox strip{item.place.left + 1, item.place.top + 1, item.place.width - 2, height};
    FillBox(canvas, strip, theme.header);
    std::vector<std::string> headers;
    for (const Host::ListColumn& column : item.columns) {
        headers.push_back(column.header);
        const double x = item.place.left + column.end + 0.5;
        if (x < item.place.left + item.place.width - 2) {
            StrokeLine(canvas, {{x, strip.top + 3.0}, {x, strip.top + height - 3.0}},
                       theme.groupEdge);
        }
    }
    const PixelBox row{item.place.left, strip.top, strip.width, height};
    DrawCells(canvas, item, headers, row, font, item.place.left + item.place.width - 1);
    const double bottom = strip.top + height + 0.5;
    StrokeLine(canvas, {{strip.left + 0.0, bottom}, {strip.left + strip.width + 0.0, bottom}},
               theme.groupEdge);
}

void DrawList(PixelCanvas& canvas, const DialogItem& item) {
    const Theme& theme = *canvas.theme;
    const FontMeasures font = MeasuresOf(item.resource);
    const ListSizes sizes = SizesOf(item);
    FillBox(canvas, item.place, item.enabled ? theme.field : theme.body);
    if (sizes.header > 0) {
        DrawHeader(canvas, item, sizes.header, font);
    }
    const PixelBox inside{item.place.left + 1, item.place.top + 2 + sizes.header,
                          item.place.width - 2, item.place.height - 3 - sizes.header};
    const auto room = static_cast<std::size_t>(std::max(inside.height / sizes.row, 0));
    const bool scrolls = item.rows.size() > room && room > 0;
    // The selected row is in sight.
    const auto selected = static_cast<std::size_t>(item.selected);
    const std::size_t first = scrolls && selected > room ? selected - room : 0;
    const int right = inside.left + inside.width - (scrolls ? ScrollWidth : 0);
    for (std::size_t i = first; i < std::min(first + room, item.rows.size()); ++i) {
        const PixelBox row{item.place.left, inside.top + static_cast<int>(i - first) * sizes.row,
                           right - item.place.left, sizes.row};
        if (selected == i + 1) {
            FillBox(canvas, {inside.left, row.top, right - inside.left, row.height},
                    theme.selection);
        }
        DrawCells(canvas, item, item.rows[i], row, font, right);
    }
    if (scrolls) {
        DrawScrollBar(canvas, inside, static_cast<double>(first), static_cast<double>(room),
                      static_cast<double>(item.rows.size()));
    }
    StrokeBox(canvas, item.place, item.enabled ? theme.fieldEdge : theme.groupEdge);
}

void DrawGroupBox(PixelCanvas& canvas, const DialogItem& item) {
    const Theme& theme = *canvas.theme;
    const FontMeasures font = MeasuresOf(item.resource);
    const PixelBox title = TextBox(item);
    const double y = item.place.top + title.height / 2.0;
    const PixelBox frame{item.place.left, item.place.top + title.height / 2, item.place.width,
                         item.place.height - title.height / 2};
    StrokeBox(canvas, frame, theme.groupEdge, 4.0);
    if (!item.text.empty()) {
        const int width = static_cast<int>(TextWidth(item.text, font)) + 8;
        FillBox(canvas, {title.left - 4, item.place.top, width, title.height}, theme.body);
        DrawInBox(canvas, item.text, title, HorizontalAnchor::Left, y, font,
                  TextColor(canvas, item));
    }
}

void DrawSeparator(PixelCanvas& canvas, const DialogItem& item) {
    const PixelBox& box = item.place;
    const double x = box.left + box.width / 2.0;
    const double y = MiddleOf(box);
    const bool upright = box.height > box.width;
    StrokeLine(canvas,
               upright ? std::vector<Point>{{x, box.top + 0.0}, {x, box.top + box.height + 0.0}}
                       : std::vector<Point>{{box.left + 0.0, y}, {box.left + box.width + 0.0, y}},
               canvas.theme->groupEdge);
}

/// A drawing that is not painted yet, and kinds that none of the add-on's dialogs has.
void DrawPlainBox(PixelCanvas& canvas, const DialogItem& item) {
    FillBox(canvas, item.place, canvas.theme->field);
    StrokeBox(canvas, item.place, canvas.theme->groupEdge);
}

} // namespace

void DrawItem(PixelCanvas& canvas, const DialogItem& item, bool isDefault) {
    const ItemKind kind = item.resource.kind;
    if (IsStaticText(kind)) {
        DrawStaticText(canvas, item);
    } else if (kind == ItemKind::Button || kind == ItemKind::PushCheck ||
               kind == ItemKind::PushRadio) {
        DrawButton(canvas, item, isDefault || item.checked);
    } else if (kind == ItemKind::CheckBox) {
        DrawCheckBox(canvas, item);
    } else if (kind == ItemKind::RadioButton) {
        DrawRadioButton(canvas, item);
    } else if (kind == ItemKind::MultiLineEdit) {
        DrawMultiLine(canvas, item);
    } else if (kind == ItemKind::TextEdit || IsNumberField(kind)) {
        DrawField(canvas, item);
    } else if (kind == ItemKind::PopupControl) {
        DrawPopup(canvas, item);
    } else if (IsList(kind)) {
        DrawList(canvas, item);
    } else if (kind == ItemKind::GroupBox) {
        DrawGroupBox(canvas, item);
    } else if (kind == ItemKind::Separator) {
        DrawSeparator(canvas, item);
    } else if (kind == ItemKind::Icon) {
        DrawIcon(canvas, item.icon, item.place, !item.enabled);
    } else if (ShowsIcon(kind)) {
        DrawIconButton(canvas, item);
    } else if (item.picture) {
        DrawUserPicture(canvas, *item.picture, item.place);
    } else {
        DrawPlainBox(canvas, item);
    }
}

} // namespace Merivane::Workbench
