#pragma once

#include <vector>

#include "Drawing/DisplayList.hpp"
#include "Host/Elements.hpp"

namespace Merivane::Workbench {

/// From one line of a text to the next, in heights of capitals.
inline constexpr double TextLineStep = 1.5;

/// The paragraphs of a text as lines on the paper, each run of letters in the look of its stretch.
/// `position` is the place of the text's anchor on the paper [mm].
///
/// The block reaches from the head of the capitals of its first line to the line that its last one
/// stands on, and is as wide as the text's box, or as its longest line where that has none; lines
/// too long for a box break between words. Lines stand at the side of the anchor, those with tabs
/// at the left. A tab goes on to the paragraph's next tab stop, behind the last one by a blank.
std::vector<Drawing::TextRun> LayOutText(const Host::TextData& text,
                                         const std::vector<Host::TextParagraph>& paragraphs,
                                         const Drawing::Point& position);

/// Two corners of an upright rectangle [mm].
struct TextFrame {
    Drawing::Point lowest;
    Drawing::Point highest;
};

/// The rectangle around that block, as it stands about its anchor before it is turned, and around
/// lines that reach out of their box.
TextFrame FrameText(const Host::TextData& text, const std::vector<Host::TextParagraph>& paragraphs);

} // namespace Merivane::Workbench
