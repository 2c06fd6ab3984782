#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string_view>

#include "Simulation/Study/TextExtent.hpp"
#include "Simulation/Study/ZoneSummary.hpp"

namespace Merivane::Simulation {

namespace {

// A measure that still reads well at these heights; tables are about as wide.
constexpr double ReadingWidth = 120.0; // [mm on paper]
constexpr double Reserve = 1.0;        // [mm on paper]: the last letter of the widest line

double WidthOf(std::string_view text, const SummaryText& look) {
    return EstimateTextWidth(text, look.height, look.bold);
}

/// Of the paragraph on one line, tabs followed.
double NaturalWidth(const SummaryParagraph& paragraph) {
    double x = 0.0;
    auto stop = paragraph.tabs.begin();
    for (const SummaryText& part : paragraph.texts) {
        std::string_view rest = part.text;
        for (std::size_t tab = rest.find('\t'); tab != std::string_view::npos;
             tab = rest.find('\t')) {
            x += WidthOf(rest.substr(0, tab), part);
            stop = std::upper_bound(stop, paragraph.tabs.end(), x);
            x = stop != paragraph.tabs.end() ? *stop : x + WidthOf(" ", part);
            rest.remove_prefix(tab + 1);
        }
        x += WidthOf(rest, part);
    }
    return x;
}

/// Lines that the words of a paragraph without tabs fill.
int LineCount(const SummaryParagraph& paragraph, double width) {
    int lines = 1;
    double x = 0.0;
    for (const SummaryText& part : paragraph.texts) {
        std::string_view rest = part.text;
        while (!rest.empty()) {
            const std::size_t wordEnd = std::min(rest.find(' '), rest.size());
            const std::size_t next = std::min(rest.find_first_not_of(' ', wordEnd), rest.size());
            if (x > 0.0 && x + WidthOf(rest.substr(0, wordEnd), part) > width) {
                ++lines;
                x = 0.0;
            }
            x += WidthOf(rest.substr(0, next), part);
            rest.remove_prefix(next);
        }
    }
    return lines;
}

double HeightOf(const SummaryParagraph& paragraph) {
    double height = paragraph.texts.empty() ? paragraph.blankHeight : 0.0;
    for (const SummaryText& part : paragraph.texts) {
        height = std::max(height, part.height);
    }
    return height;
}

} // namespace

SummaryExtent MeasureSummary(const std::vector<SummaryParagraph>& paragraphs) {
    double longest = 0.0;
    double widest = ReadingWidth;
    for (const SummaryParagraph& paragraph : paragraphs) {
        const double natural = NaturalWidth(paragraph);
        longest = std::max(longest, natural);
        widest = paragraph.tabs.empty() ? widest : std::max(widest, natural);
    }
    SummaryExtent extent;
    extent.width = std::ceil(std::min(longest, widest) + Reserve);
    for (const SummaryParagraph& paragraph : paragraphs) {
        const int lines = paragraph.tabs.empty() ? LineCount(paragraph, extent.width) : 1;
        extent.height += lines * TextLinePitch(HeightOf(paragraph));
    }
    return extent;
}

} // namespace Merivane::Simulation
