#include "Document/Report/ReportStrips.hpp"

#include <algorithm>
#include <iterator>
#include <utility>

#include "Document/Report/TableStrips.hpp"
#include "Document/SheetText.hpp"

namespace Merivane::Document {

namespace {

using Drawing::Element;
using Drawing::TextWeight;

constexpr double BodyText = 2.1; // capitals
constexpr double BodyPitch = 4.3;
constexpr double NoteText = 1.8;
constexpr double NotePitch = 3.6;
constexpr double ListingText = 1.45;
constexpr double ListingPitch = 2.75;
constexpr double LabelWidth = 46.0; // of facts

/// One line of text as a strip of the height of its pitch.
ReportStrip LineStrip(Drawing::TextRun run, double pitch, double drop) {
    ReportStrip strip;
    strip.height = pitch;
    run.position.y = -drop;
    strip.elements.emplace_back(std::move(run));
    return strip;
}

/// The first two lines and the last two of a paragraph stay together.
void KeepEnds(std::vector<ReportStrip>& lines) {
    if (lines.size() > 1) {
        lines.front().keepWithNext = true;
        lines[lines.size() - 2].keepWithNext = true;
    }
}

void Append(std::vector<ReportStrip>& strips, std::vector<ReportStrip> more) {
    std::move(more.begin(), more.end(), std::back_inserter(strips));
}

struct LineStyle {
    double height = BodyText;
    double pitch = BodyPitch;
    double space = 0.0; ///< above the first line
    TextWeight weight = TextWeight::Normal;
    Drawing::Color color = Drawing::Black;
};

std::vector<ReportStrip> TextLines(const std::string& text, const LineStyle& style) {
    std::vector<ReportStrip> lines;
    for (const std::string& line : WrapText(text, TextWidth, style.height, style.weight)) {
        Drawing::TextRun run = SheetText(line, 0.0, 0.0, style.height, style.weight);
        run.color = style.color;
        lines.push_back(LineStrip(run, style.pitch, 0.5 * (style.pitch + style.height)));
    }
    lines.front().space = style.space;
    KeepEnds(lines);
    return lines;
}

/// A heading's lines, all kept with what follows.
std::vector<ReportStrip> HeadingLines(const std::string& text, const LineStyle& style) {
    std::vector<ReportStrip> lines = TextLines(text, style);
    for (ReportStrip& line : lines) {
        line.keepWithNext = true;
    }
    return lines;
}

void AddRule(ReportStrip& strip, double width, const Drawing::Color& color) {
    strip.height += 1.2;
    strip.elements.emplace_back(Drawing::Polyline{
        {{0.0, -strip.height}, {TextWidth, -strip.height}}, false, {width, color, {}}});
    strip.height += 1.6;
}

/// Cuts the blocks of a section.
struct BlockCutter {
    std::vector<ReportStrip>& strips;

    void operator()(const ReportHeading& heading) const;
    void operator()(const ReportParagraph& paragraph) const;
    void operator()(const ReportFacts& facts) const;
    void operator()(const ReportTable& table) const;
    void operator()(const ReportDrawing& drawing) const;
    void operator()(const ReportListing& listing) const;
};

void BlockCutter::operator()(const ReportHeading& heading) const {
    const LineStyle style = heading.listed
                                ? LineStyle{2.7, 5.0, 7.0, TextWeight::Bold, Drawing::Black}
                                : LineStyle{2.2, 4.6, 3.4, TextWeight::Bold, Drawing::Black};
    std::vector<ReportStrip> lines = HeadingLines(heading.text, style);
    if (heading.listed) {
        lines.front().bookmark = heading.text;
        lines.front().bookmarkUnderLast = true;
    }
    Append(strips, std::move(lines));
}

void BlockCutter::operator()(const ReportParagraph& paragraph) const {
    Append(strips, paragraph.note ? TextLines(paragraph.text,
                                              {NoteText, NotePitch, 1.2, TextWeight::Normal, Muted})
                                  : TextLines(paragraph.text, {BodyText, BodyPitch, 1.6}));
}

/// Label and value of a fact side by side, one strip for both.
ReportStrip FactStrip(const ReportFact& fact) {
    ReportStrip strip;
    const bool stressed = fact.tone != ReportTone::Plain;
    const TextWeight weight = stressed ? TextWeight::Bold : TextWeight::Normal;
    const auto add = [&strip](const std::vector<std::string>& lines, double x, TextWeight bold,
                              const Drawing::Color& color) {
        double y = -0.5 * (BodyPitch + BodyText);
        for (const std::string& line : lines) {
            Drawing::TextRun run = SheetText(line, x, y, BodyText, bold);
            run.color = color;
            strip.elements.emplace_back(run);
            y -= BodyPitch;
        }
        strip.height = std::max(strip.height, static_cast<double>(lines.size()) * BodyPitch);
    };
    add(WrapText(fact.label, LabelWidth - 2.0, BodyText), 0.0, TextWeight::Normal, Muted);
    add(WrapText(fact.value, TextWidth - LabelWidth, BodyText, weight), LabelWidth, weight,
        ToneColor(fact.tone));
    strip.height += 0.4;
    return strip;
}

void BlockCutter::operator()(const ReportFacts& facts) const {
    std::vector<ReportStrip> lines;
    for (const ReportFact& fact : facts.facts) {
        lines.push_back(FactStrip(fact));
    }
    if (lines.empty()) {
        return;
    }
    lines.front().space = 1.0;
    KeepEnds(lines);
    Append(strips, std::move(lines));
}

void BlockCutter::operator()(const ReportTable& table) const {
    Append(strips, CutTable(table, TextWidth));
}

void BlockCutter::operator()(const ReportDrawing& drawing) const {
    ReportStrip strip;
    strip.drawing = &drawing.drawing;
    strip.drawingName = drawing.name;
    strip.height = BodyPitch;
    strips.push_back(std::move(strip));
}

/// Pieces of a line of at most `most` letters; what follows the first is set in by two.
std::vector<std::string> FoldLine(const std::string& line, std::size_t most) {
    std::vector<std::string> pieces(1);
    std::size_t letters = 0;
    for (const char c : line) {
        const bool startsLetter = (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
        if (startsLetter && letters == most) {
            pieces.emplace_back("  ");
            letters = 2;
        }
        pieces.back() += c;
        letters += startsLetter ? 1 : 0;
    }
    return pieces;
}

void BlockCutter::operator()(const ReportListing& listing) const {
    // A letter of the face of one width is 0.602 em wide, its capitals 0.729 em high.
    constexpr double letterWidth = ListingText * 0.602 / 0.729;
    const auto most = static_cast<std::size_t>(TextWidth / letterWidth);
    std::vector<ReportStrip> lines;
    for (const std::string& line : listing.lines) {
        for (const std::string& piece : FoldLine(line, most)) {
            Drawing::TextRun run = SheetText(piece, 0.0, 0.0, ListingText);
            run.face = Drawing::TextFace::Monospaced;
            lines.push_back(LineStrip(run, ListingPitch, 0.5 * (ListingPitch + ListingText)));
        }
    }
    KeepEnds(lines);
    Append(strips, std::move(lines));
}

void CutBlocks(const std::vector<ReportBlock>& blocks, std::vector<ReportStrip>& strips) {
    const BlockCutter cutter{strips};
    for (const ReportBlock& block : blocks) {
        std::visit(cutter, block);
    }
}

void CutTitle(const Report& report, std::vector<ReportStrip>& strips) {
    std::vector<ReportStrip> kind =
        HeadingLines(report.title, {2.3, 5.0, 0.0, TextWeight::Normal, Muted});
    kind.front().bookmark = report.title;
    Append(strips, std::move(kind));
    std::vector<ReportStrip> subject =
        HeadingLines(report.subject, {5.0, 8.6, 0.0, TextWeight::Bold, Drawing::Black});
    AddRule(subject.back(), 0.6, Drawing::Black);
    Append(strips, std::move(subject));
}

} // namespace

std::vector<ReportStrip> CutReport(const Report& report) {
    std::vector<ReportStrip> strips;
    CutTitle(report, strips);
    CutBlocks(report.front, strips);
    for (const ReportSection& section : report.sections) {
        std::vector<ReportStrip> title =
            HeadingLines(section.title, {3.4, 6.4, 9.0, TextWeight::Bold, Drawing::Black});
        title.front().bookmark = section.title;
        AddRule(title.back(), 0.25, Muted);
        Append(strips, std::move(title));
        CutBlocks(section.blocks, strips);
    }
    return strips;
}

} // namespace Merivane::Document
