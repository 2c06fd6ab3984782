#pragma once

#include <string>
#include <vector>

#include "Simulation/Study/ZoneDrawing.hpp"

/// The text that stands beside a Zone with what its values mean. Portuguese, UTF-8.
namespace Merivane::Simulation {

/// How a state is shown: the text's own ink, that of what is met, that of what is not.
enum class SummaryInk { Own, Met, NotMet };

/// Letters of one look.
struct SummaryText {
    std::string text;    ///< a tab character goes to the paragraph's next tab stop
    double height = 2.4; ///< of capitals [mm on paper]
    bool bold = false;
    SummaryInk ink = SummaryInk::Own;

    bool operator==(const SummaryText&) const = default;
};

/// One paragraph of the summary; without texts a blank one.
struct SummaryParagraph {
    std::vector<SummaryText> texts;
    std::vector<double> tabs; ///< left tab stops from the paragraph's left, ascending [mm on paper]
    double blankHeight = 1.8; ///< of a paragraph without texts [mm on paper]

    bool operator==(const SummaryParagraph&) const = default;
};

/// Lines of the result summary: the plane with Em, Emin, Emax, U0, then the border band, glare,
/// floor, screens and the Zone's other notes, each with the mark of its note.
std::vector<std::string> ZoneSummaryLines(const ZoneDrawing& drawing);

/// The whole summary: title; blank; the verification's table and its result, or that the Zone has
/// no activity; what is recommended; `ZoneSummaryLines`; ceiling and walls against their reference.
/// The columns of all tables stand below each other, wide enough for their texts.
std::vector<SummaryParagraph> BuildZoneSummary(const ZoneDrawing& drawing);

/// Room that a summary takes [mm on paper].
struct SummaryExtent {
    double width = 0.0; ///< of the text's box: set it, so that longer paragraphs break in it
    double height = 0.0;
};

/// A summary is as wide as its longest paragraph, at most as wide as its widest table or 120 mm,
/// whichever is more; what is longer breaks into lines between words. An estimate on the safe side.
SummaryExtent MeasureSummary(const std::vector<SummaryParagraph>& paragraphs);

} // namespace Merivane::Simulation
