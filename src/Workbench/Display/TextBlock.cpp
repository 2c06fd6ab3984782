#include "Workbench/Display/TextBlock.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <string>
#include <utility>

#include "Drawing/TextSize.hpp"
#include "Workbench/Display/PenLook.hpp"

namespace Merivane::Workbench {

namespace {

using Host::TextParagraph;
using Host::TextStretch;

constexpr double GroundReach = 0.3; // of the ground of an opaque text, in heights of capitals

// Letters of one look that stay together.
struct Piece {
    std::string text;
    TextStretch look;
    double x = 0.0;        // from the left of the line [mm]
    double width = 0.0;    // [mm]
    bool mayBreak = false; // a line may begin with it
    bool joinsOn = false;  // it goes on where the piece in front of it ends
    bool isTab = false;
};

struct Line {
    std::vector<Piece> pieces;
    double width = 0.0; // without the blanks at its end [mm]
    double size = 0.0;  // of its highest capitals [mm]
    bool hasTab = false;
    double left = 0.0; // of its first letter, from the anchor [mm]
    double base = 0.0; // that its letters stand on, above the anchor [mm]
};

// Lines in their places about the anchor, before they are turned.
struct Block {
    std::vector<Line> lines;
    double left = 0.0; // of the whole block
    double top = 0.0;
    double width = 0.0;
    double height = 0.0;
};

double Measure(const std::string& text, const TextStretch& look) {
    const auto weight = look.bold ? Drawing::TextWeight::Bold : Drawing::TextWeight::Normal;
    return text.empty() ? 0.0 : Drawing::MeasureText(text, look.size, weight).width;
}

std::string WithoutEndBlanks(const std::string& text) {
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

bool BeginsCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

// A paragraph cut where a stretch ends, around tabs, and behind blanks.
std::vector<Piece> CutParagraph(const TextParagraph& paragraph) {
    std::vector<Piece> pieces;
    std::size_t at = 0;
    char before = '\0';
    for (const TextStretch& stretch : paragraph.stretches) {
        bool begins = true;
        for (std::int32_t count = 0; count < stretch.count && at < paragraph.text.size(); ++count) {
            std::size_t end = at + 1;
            while (end < paragraph.text.size() && !BeginsCharacter(paragraph.text[end])) {
                ++end;
            }
            const char byte = paragraph.text[at];
            const bool afterBlank = before == ' ' && byte != ' ';
            if (begins || byte == '\t' || before == '\t' || afterBlank) {
                Piece& piece = pieces.emplace_back();
                piece.look = stretch;
                piece.mayBreak = afterBlank || before == '\t';
                piece.isTab = byte == '\t';
                begins = false;
            }
            pieces.back().text.append(paragraph.text, at, end - at);
            before = byte;
            at = end;
        }
    }
    return pieces;
}

double AfterTab(const TextParagraph& paragraph, const TextStretch& look, double x) {
    constexpr double Near = 1e-6; // a text that ends on a stop goes on to the next one
    const auto stop = std::upper_bound(paragraph.tabs.begin(), paragraph.tabs.end(), x + Near);
    return stop != paragraph.tabs.end() ? *stop : x + Measure(" ", look);
}

// Neighbours of one look become one run again, so that letters keep their distances.
void JoinPieces(Line& line) {
    std::vector<Piece> joined;
    for (Piece& piece : line.pieces) {
        if (!joined.empty() && piece.joinsOn && !joined.back().isTab) {
            joined.back().text += piece.text;
        } else {
            joined.push_back(std::move(piece));
        }
    }
    line.pieces.clear();
    for (Piece& piece : joined) {
        piece.text = WithoutEndBlanks(piece.text);
        if (!piece.isTab && !piece.text.empty()) {
            line.width = std::max(line.width, piece.x + Measure(piece.text, piece.look));
            line.pieces.push_back(std::move(piece));
        }
    }
}

void BreakIntoLines(const TextParagraph& paragraph, const Host::TextData& text,
                    std::vector<Line>& lines) {
    lines.push_back({});
    if (paragraph.text.empty() && !paragraph.stretches.empty()) {
        lines.back().size = paragraph.stretches.front().size;
    }
    double x = 0.0;
    for (Piece& piece : CutParagraph(paragraph)) {
        piece.width = Measure(piece.text, piece.look);
        const double end = x + Measure(WithoutEndBlanks(piece.text), piece.look);
        if (text.width > 0.0 && piece.mayBreak && x > 0.0 && end > text.width) {
            lines.push_back({});
            x = 0.0;
        }
        Line& line = lines.back();
        piece.x = x;
        piece.joinsOn = !line.pieces.empty() && line.pieces.back().look == piece.look &&
                        !piece.isTab && !line.pieces.back().isTab;
        x = piece.isTab ? AfterTab(paragraph, piece.look, x) : x + piece.width;
        line.size = std::max(line.size, piece.look.size);
        line.hasTab = line.hasTab || piece.isTab;
        line.pieces.push_back(std::move(piece));
    }
}

std::vector<Line> MakeLines(const Host::TextData& text,
                            const std::vector<TextParagraph>& paragraphs) {
    std::vector<Line> lines;
    for (const TextParagraph& paragraph : paragraphs) {
        BreakIntoLines(paragraph, text, lines);
    }
    for (Line& line : lines) {
        JoinPieces(line);
        line.size = line.size > 0.0 ? line.size : text.size; // an empty paragraph
    }
    return lines;
}

Drawing::TextRun MakeRun(const Piece& piece, const Drawing::Point& place, double angle) {
    Drawing::TextRun run;
    run.text = piece.text;
    run.position = place;
    run.height = piece.look.size;
    run.weight = piece.look.bold ? Drawing::TextWeight::Bold : Drawing::TextWeight::Normal;
    run.rotation = angle * 180.0 / std::numbers::pi;
    run.color = LookOfPen(piece.look.pen).color;
    return run;
}

Block BuildBlock(const Host::TextData& text, const std::vector<TextParagraph>& paragraphs) {
    Block block;
    block.lines = MakeLines(text, paragraphs);
    block.width = text.width;
    for (const Line& line : block.lines) {
        block.width = text.width > 0.0 ? block.width : std::max(block.width, line.width);
        block.height += &line == &block.lines.front() ? line.size : TextLineStep * line.size;
    }
    const auto anchor = static_cast<std::int32_t>(text.anchor);
    const std::int32_t row = anchor / 3;
    const double side = anchor % 3 / 2.0; // 0 left, 1 right
    block.left = -block.width * side;
    block.top = block.height * row / 2.0;
    double base = block.top;
    for (Line& line : block.lines) {
        base -= &line == &block.lines.front() ? line.size : TextLineStep * line.size;
        line.base = base;
        line.left = block.left + (line.hasTab ? 0.0 : (block.width - line.width) * side);
    }
    return block;
}

} // namespace

std::vector<Drawing::TextRun> LayOutText(const Host::TextData& text,
                                         const std::vector<TextParagraph>& paragraphs,
                                         const Drawing::Point& position) {
    const double cosine = std::cos(text.angle);
    const double sine = std::sin(text.angle);
    std::vector<Drawing::TextRun> runs;
    for (const Line& line : BuildBlock(text, paragraphs).lines) {
        for (const Piece& piece : line.pieces) {
            const double x = line.left + piece.x;
            runs.push_back(MakeRun(piece,
                                   {position.x + x * cosine - line.base * sine,
                                    position.y + x * sine + line.base * cosine},
                                   text.angle));
            runs.back().halo = text.opaque ? GroundReach * piece.look.size : 0.0;
        }
    }
    return runs;
}

TextFrame FrameText(const Host::TextData& text, const std::vector<TextParagraph>& paragraphs) {
    const Block block = BuildBlock(text, paragraphs);
    TextFrame frame{{block.left, block.top - block.height}, {block.left + block.width, block.top}};
    for (const Line& line : block.lines) { // a word can be wider than the box
        frame.lowest.x = std::min(frame.lowest.x, line.left);
        frame.highest.x = std::max(frame.highest.x, line.left + line.width);
    }
    return frame;
}

} // namespace Merivane::Workbench
