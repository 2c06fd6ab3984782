#include "Workbench/Interface/DialogLayout.hpp"

#include <algorithm>

#include "Drawing/TextSize.hpp"

namespace Merivane::Workbench {

namespace {

// What a check box has in front of its text, and what a button has on either side of it.
constexpr int CheckSize = 19;
constexpr int ButtonPadding = 8;
constexpr int FieldPadding = 5;
constexpr int GroupPadding = 8;
constexpr int GroupTitleHeight = 16;
constexpr int PopupArrow = 22;
constexpr std::string_view Ellipsis = "…";

Drawing::TextWeight WeightOf(const FontMeasures& font) {
    return font.bold ? Drawing::TextWeight::Bold : Drawing::TextWeight::Normal;
}

void WrapLine(std::string_view text, double width, const FontMeasures& font,
              std::vector<std::string>& lines) {
    // Blanks in front belong to the first word: they set a line in.
    std::string line;
    std::size_t end = std::min(text.find(' ', text.find_first_not_of(' ')), text.size());
    line = text.substr(0, end);
    while (end < text.size()) {
        const std::size_t begin = end + 1;
        end = std::min(text.find(' ', begin), text.size());
        const std::string_view word = text.substr(begin, end - begin);
        std::string longer = line + ' ' + std::string(word);
        if (TextWidth(longer, font) > width) {
            lines.push_back(std::move(line));
            longer = word;
        }
        line = std::move(longer);
    }
    lines.push_back(std::move(line));
}

bool Overlap(const PixelBox& a, const PixelBox& b) {
    return a.left < b.left + b.width && b.left < a.left + a.width && a.top < b.top + b.height &&
           b.top < a.top + a.height;
}

bool IsInside(const PixelBox& box, const Dialog& dialog) {
    return box.left >= 0 && box.top >= 0 && box.left + box.width <= dialog.width &&
           box.top + box.height <= dialog.height;
}

bool Fits(const DialogItem& item) {
    const FontMeasures font = MeasuresOf(item.resource);
    const PixelBox box = TextBox(item);
    const std::vector<std::string> lines = IsStaticText(item.resource.kind)
                                               ? WrapText(item.text, box.width, font)
                                               : std::vector<std::string>{item.text};
    const bool wide = std::any_of(lines.begin(), lines.end(), [&](const std::string& line) {
        return TextWidth(line, font) > box.width;
    });
    return !wide && static_cast<double>(lines.size()) * font.line <= box.height;
}

} // namespace

FontMeasures MeasuresOf(const ItemResource& item) {
    switch (item.fontSize) {
    case FontSize::ExtraSmall:
        return {6.4, 11.0, item.bold};
    case FontSize::Small:
        return {7.4, 13.0, item.bold};
    case FontSize::Large:
        break;
    }
    return {8.2, 16.0, item.bold};
}

double TextWidth(std::string_view text, const FontMeasures& font) {
    return text.empty() ? 0.0 : Drawing::MeasureText(text, font.capital, WeightOf(font)).width;
}

std::vector<std::string> WrapText(std::string_view text, double width, const FontMeasures& font) {
    std::vector<std::string> lines;
    for (std::size_t begin = 0; begin <= text.size();) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        WrapLine(text.substr(begin, end - begin), width, font, lines);
        begin = end + 1;
    }
    return lines;
}

std::string ShortenText(std::string_view text, double width, const FontMeasures& font) {
    if (TextWidth(text, font) <= width) {
        return std::string(text);
    }
    // The longest beginning that leaves room for the mark, never cut inside a character.
    std::vector<std::size_t> ends;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if ((static_cast<unsigned char>(text[i]) & 0xC0U) != 0x80U) {
            ends.push_back(i);
        }
    }
    const auto shortened = [&](std::size_t end) {
        return std::string(text.substr(0, end)) + std::string(Ellipsis);
    };
    const auto tooLong = std::partition_point(ends.begin(), ends.end(), [&](std::size_t end) {
        return TextWidth(shortened(end), font) <= width;
    });
    return tooLong == ends.begin() ? std::string(Ellipsis) : shortened(*(tooLong - 1));
}

PixelBox TextBox(const DialogItem& item) {
    const auto inner = [&](int before, int behind) {
        return PixelBox{item.place.left + before, item.place.top,
                        std::max(item.place.width - before - behind, 0), item.place.height};
    };
    const ItemKind kind = item.resource.kind;
    if (IsStaticText(kind)) {
        return inner(0, 0);
    }
    if (kind == ItemKind::Button || kind == ItemKind::PushCheck || kind == ItemKind::PushRadio) {
        return inner(ButtonPadding, ButtonPadding);
    }
    if (kind == ItemKind::CheckBox || kind == ItemKind::RadioButton) {
        return inner(CheckSize, 0);
    }
    if (kind == ItemKind::PopupControl) {
        return inner(FieldPadding, PopupArrow);
    }
    if (kind == ItemKind::GroupBox) {
        PixelBox box = inner(GroupPadding, GroupPadding);
        box.height = std::min(box.height, GroupTitleHeight);
        return box;
    }
    return IsTextField(kind) || IsNumberField(kind) ? inner(FieldPadding, FieldPadding)
                                                    : PixelBox{};
}

std::vector<std::int16_t> ItemsWithCutText(const Dialog& dialog) {
    std::vector<std::int16_t> numbers;
    for (std::size_t i = 0; i < dialog.items.size(); ++i) {
        const DialogItem& item = dialog.items[i];
        const bool shown = HasText(item.resource.kind) && !IsTextField(item.resource.kind);
        if (shown && item.visible && !item.text.empty() && !Fits(item)) {
            numbers.push_back(static_cast<std::int16_t>(i + 1));
        }
    }
    return numbers;
}

std::vector<Misplaced> FindMisplaced(const Dialog& dialog) {
    std::vector<Misplaced> found;
    for (std::size_t i = 0; i < dialog.items.size(); ++i) {
        const DialogItem& item = dialog.items[i];
        if (!item.visible) {
            continue;
        }
        const auto number = static_cast<std::int16_t>(i + 1);
        if (!IsInside(item.place, dialog)) {
            found.push_back({number, 0});
        }
        for (std::size_t j = i + 1; j < dialog.items.size(); ++j) {
            const DialogItem& other = dialog.items[j];
            const bool holds = item.resource.kind == ItemKind::GroupBox ||
                               other.resource.kind == ItemKind::GroupBox;
            if (other.visible && !holds && Overlap(item.place, other.place)) {
                found.push_back({number, static_cast<std::int16_t>(j + 1)});
            }
        }
    }
    return found;
}

} // namespace Merivane::Workbench
