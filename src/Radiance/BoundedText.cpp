#include "Radiance/BoundedText.hpp"

#include <algorithm>

namespace Merivane::Radiance {

void Append(BoundedText& text, std::string_view bytes) {
    const std::size_t room = BoundedText::HeadLimit - text.head.size();
    const std::size_t toHead = std::min(room, bytes.size());
    text.head.append(bytes.substr(0, toHead));
    text.tail.append(bytes.substr(toHead));
    // Cut back only when it has doubled, so that many small pieces cost no more than a few.
    if (text.tail.size() > 2 * BoundedText::TailLimit) {
        text.tail.erase(0, text.tail.size() - BoundedText::TailLimit);
        text.cut = true;
    }
}

std::string JoinedText(const BoundedText& text) {
    if (!text.cut && text.tail.size() <= BoundedText::TailLimit) {
        return text.head + text.tail;
    }
    const std::size_t length = std::min(text.tail.size(), BoundedText::TailLimit);
    return text.head + "\n[...]\n" + text.tail.substr(text.tail.size() - length);
}

} // namespace Merivane::Radiance
