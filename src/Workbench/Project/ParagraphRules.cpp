#include "Workbench/Project/ParagraphRules.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "Text/Utf8.hpp"
#include "Workbench/Project/PenTable.hpp"
#include "Workbench/Project/TextLimits.hpp"

namespace Merivane::Workbench {

namespace {

using Host::TextParagraph;
using Host::TextStretch;

bool StretchesCover(const TextParagraph& paragraph) {
    const std::size_t characters = CountCharacters(paragraph.text);
    if (characters == 0) {
        return paragraph.stretches.empty() ||
               (paragraph.stretches.size() == 1 && paragraph.stretches[0].count == 0);
    }
    std::size_t covered = 0;
    for (const TextStretch& stretch : paragraph.stretches) {
        if (stretch.count < 1) {
            return false;
        }
        covered += static_cast<std::size_t>(stretch.count);
    }
    return covered == characters;
}

bool TabsAscend(const std::vector<double>& tabs) {
    double last = 0.0;
    for (const double tab : tabs) {
        if (!std::isfinite(tab) || tab <= last) {
            return false;
        }
        last = tab;
    }
    return true;
}

bool IsPlain(const std::string& text) {
    return Text::IsUtf8(text) && std::none_of(text.begin(), text.end(), [](char c) {
               return c == '\n' || c == '\r' || c == '\0';
           });
}

} // namespace

Host::ErrorCode CheckParagraphs(const std::vector<TextParagraph>& paragraphs) {
    if (paragraphs.empty()) {
        return Host::BadParagraphs;
    }
    for (const TextParagraph& paragraph : paragraphs) {
        if (!IsPlain(paragraph.text) || !StretchesCover(paragraph) || !TabsAscend(paragraph.tabs)) {
            return Host::BadParagraphs;
        }
        for (const TextStretch& stretch : paragraph.stretches) {
            if (!std::isfinite(stretch.size) || stretch.size <= 0.0) {
                return Host::BadParagraphs;
            }
            if (!IsPen(stretch.pen)) {
                return Host::BadIndex;
            }
        }
    }
    return Host::NoError;
}

} // namespace Merivane::Workbench
