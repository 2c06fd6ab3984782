#include "Workbench/Interface/MenuText.hpp"

#include <algorithm>
#include <charconv>

#include "Text/Ascii.hpp"

namespace Merivane::Workbench {

namespace {

bool IsMark(std::string_view word) {
    return word.size() >= 2 && word.front() == '^' &&
           std::all_of(word.begin() + 1, word.end(), [](char c) {
               return Text::IsDigit(c) || (c >= 'A' && c <= 'Z') || c == '~';
           });
}

/// The number of `^10006` or `^~10006`; 0 for another mark.
std::int16_t IconOf(std::string_view mark) {
    mark.remove_prefix(mark.starts_with('~') ? 1 : 0);
    std::int16_t icon = 0;
    const auto read = std::from_chars(mark.data(), mark.data() + mark.size(), icon);
    return read.ec == std::errc() && read.ptr == mark.data() + mark.size() ? icon : std::int16_t{0};
}

} // namespace

MenuItemText ReadMenuItem(std::string_view string) {
    MenuItemText item;
    for (;;) {
        const std::size_t blank = string.rfind(' ');
        const std::string_view word =
            blank == std::string_view::npos ? string : string.substr(blank + 1);
        if (!IsMark(word)) {
            break;
        }
        const std::int16_t icon = IconOf(word.substr(1));
        if (icon != 0) {
            item.icon = icon;
        } else {
            item.marks.emplace_back(word.substr(1));
        }
        string = string.substr(0, blank == std::string_view::npos ? 0 : blank);
    }
    std::reverse(item.marks.begin(), item.marks.end());
    item.text = string;
    return item;
}

MenuTexts ReadMenuTexts(const std::vector<std::string>& strings) {
    MenuTexts texts;
    std::size_t first = 0;
    if (strings.size() > 1) {
        texts.menu = strings[first++];
    }
    if (strings.size() > 2) {
        texts.group = strings[first++];
    }
    for (; first < strings.size(); ++first) {
        texts.items.push_back(ReadMenuItem(strings[first]));
    }
    return texts;
}

} // namespace Merivane::Workbench
