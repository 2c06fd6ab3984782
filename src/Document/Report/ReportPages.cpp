#include "Document/Report/ReportPages.hpp"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

#include "Document/Report/MovedDrawing.hpp"
#include "Document/Report/ReportStrips.hpp"
#include "Document/SheetText.hpp"
#include "Simulation/PrintedValue.hpp"

namespace Merivane::Document {

namespace {

using Drawing::DisplayList;
using Drawing::Point;

constexpr double PaperWidth = 210.0;
constexpr double PaperHeight = 297.0;
constexpr double Left = 0.5 * (PaperWidth - TextWidth);
constexpr double BodyTop = 277.0;
constexpr double BodyBottom = 20.0;
constexpr double SmallText = 1.7;

// Of a page with a drawing.
constexpr double DrawingMargin = 12.0;
constexpr double DrawingHead = 17.0; // from the page's top to the title
constexpr double DrawingFoot = 15.0;
constexpr double LeastShrinking = 0.7;

/// The pages as they are filled.
struct Pages {
    Drawing::PdfBook book;
    double y = BodyBottom;   ///< foot of what stands on the last page
    bool isEmpty = true;     ///< nothing stands on the last page yet
    bool hasUpright = false; ///< the last page takes strips

    DisplayList& Last() { return book.pages.back(); }
};

void OpenPage(Pages& pages, double width, double height) {
    pages.book.pages.push_back({"", width, height, {{"Conteúdo", {}}}});
}

void OpenUprightPage(Pages& pages) {
    OpenPage(pages, PaperWidth, PaperHeight);
    pages.y = BodyTop;
    pages.isEmpty = true;
    pages.hasUpright = true;
}

void AddElements(DisplayList& page, const std::vector<Drawing::Element>& elements, Point corner) {
    for (const Drawing::Element& element : elements) {
        page.layers.front().elements.push_back(MovedElement(element, 1.0, corner));
    }
}

void AddBookmark(Pages& pages, const ReportStrip& strip) {
    if (strip.bookmark) {
        pages.book.bookmarks.push_back(
            {*strip.bookmark, pages.book.pages.size() - 1, strip.bookmarkUnderLast});
    }
}

/// Room that strips take when they begin at the head of a page or, otherwise, below others.
double RoomOf(const std::vector<ReportStrip>& strips, std::size_t first, std::size_t end,
              bool atHead) {
    double room = atHead ? strips[first].headHeight : 0.0;
    for (std::size_t i = first; i < end; ++i) {
        room += (atHead && i == first ? 0.0 : strips[i].space) + strips[i].height;
    }
    return room;
}

bool Fits(const Pages& pages, double room) {
    return pages.y - room >= BodyBottom - 1e-9;
}

void PlaceStrip(Pages& pages, const ReportStrip& strip) {
    if (pages.isEmpty) {
        AddElements(pages.Last(), strip.head, {Left, pages.y});
        pages.y -= strip.headHeight;
    } else {
        pages.y -= strip.space;
    }
    AddElements(pages.Last(), strip.elements, {Left, pages.y});
    AddBookmark(pages, strip);
    pages.y -= strip.height;
    pages.isEmpty = false;
}

/// Places strips that belong together, on a page of their own kind where they fit on one.
void PlaceGroup(Pages& pages, const std::vector<ReportStrip>& strips, std::size_t first,
                std::size_t end) {
    if (!pages.hasUpright ||
        (!pages.isEmpty && !Fits(pages, RoomOf(strips, first, end, pages.isEmpty)))) {
        OpenUprightPage(pages);
    }
    for (std::size_t i = first; i < end; ++i) {
        if (!pages.isEmpty && !Fits(pages, strips[i].space + strips[i].height)) {
            OpenUprightPage(pages);
        }
        PlaceStrip(pages, strips[i]);
    }
}

struct PageSize {
    double width;
    double height;
};

double ScaleOn(const PageSize& page, const DisplayList& drawing, double head) {
    return std::min({1.0, (page.width - 2.0 * DrawingMargin) / drawing.width,
                     (page.height - head - DrawingFoot) / drawing.height});
}

PageSize ChoosePage(const DisplayList& drawing, double head) {
    const bool across = drawing.width >= drawing.height;
    const PageSize small = across ? PageSize{297.0, 210.0} : PageSize{210.0, 297.0};
    const PageSize large = across ? PageSize{420.0, 297.0} : PageSize{297.0, 420.0};
    return ScaleOn(small, drawing, head) >= LeastShrinking ? small : large;
}

/// "Planta", or "Planta (reduzida a 87 % do desenho)".
std::string CaptionText(const ReportStrip& strip, double scale) {
    const std::string percent = Simulation::FormatDecimal(100.0 * scale, 0);
    return percent == "100" ? strip.drawingName
                            : strip.drawingName + " (reduzido a " + percent + " %)";
}

/// A page with one drawing, behind the headings that lead to it.
void PlaceDrawing(Pages& pages, const std::vector<ReportStrip>& strips, std::size_t first,
                  std::size_t last) {
    constexpr double captionPitch = 5.0;
    const ReportStrip& strip = strips[last];
    const double headings = first < last ? RoomOf(strips, first, last, true) : 0.0;
    const double head = DrawingHead + headings + captionPitch;
    const PageSize size = ChoosePage(*strip.drawing, head);
    OpenPage(pages, size.width, size.height);
    pages.hasUpright = false;

    Point corner{DrawingMargin, size.height - DrawingHead};
    for (std::size_t i = first; i < last; ++i) {
        AddElements(pages.Last(), strips[i].elements, corner);
        AddBookmark(pages, strips[i]);
        corner.y -= strips[i].height;
    }
    const double scale = ScaleOn(size, *strip.drawing, head);
    const double width = scale * strip.drawing->width;
    std::vector<Drawing::Element>& elements = pages.Last().layers.front().elements;
    elements.emplace_back(FittingText(CaptionText(strip, scale), DrawingMargin, corner.y - 3.0,
                                      size.width - 2.0 * DrawingMargin, {2.1, 1.4},
                                      Drawing::TextWeight::Bold));
    const Point lower{0.5 * (size.width - width),
                      size.height - head - scale * strip.drawing->height};
    for (const Drawing::Layer& layer : strip.drawing->layers) {
        for (const Drawing::Element& element : layer.elements) {
            elements.push_back(MovedElement(element, scale, lower));
        }
    }
}

void AddSmallText(DisplayList& page, const std::string& text, Point place, double width,
                  bool right) {
    Drawing::TextRun run = FittingText(text, place.x, place.y, width, {SmallText, SmallText});
    run.horizontal = right ? Drawing::HorizontalAnchor::Right : Drawing::HorizontalAnchor::Left;
    run.color = Muted;
    page.layers.back().elements.emplace_back(std::move(run));
}

/// Head and foot of a page; the first has no head.
void AddFrame(DisplayList& page, const Report& report, std::size_t number, std::size_t count) {
    const double margin = page.width == PaperWidth ? Left : DrawingMargin;
    const double right = page.width - margin;
    const double half = 0.5 * (right - margin) - 4.0;
    page.layers.push_back({"Quadro", {}});
    if (number > 1) {
        const double y = page.height - 12.0;
        AddSmallText(page, report.subject, {margin, y}, half, false);
        AddSmallText(page, report.title, {right, y}, half, true);
    }
    const std::string origin =
        report.moment.empty() ? report.origin : report.origin + " · " + report.moment;
    AddSmallText(page, origin, {margin, 9.0}, half, false);
    AddSmallText(page, "Página " + std::to_string(number) + " de " + std::to_string(count),
                 {right, 9.0}, half, true);
}

} // namespace

Drawing::PdfBook LayOutReport(const Report& report) {
    const std::vector<ReportStrip> strips = CutReport(report);
    Pages pages;
    pages.book.title = report.title + " – " + report.subject;
    std::size_t first = 0;
    for (std::size_t i = 0; i < strips.size(); ++i) {
        if (strips[i].drawing != nullptr) {
            PlaceDrawing(pages, strips, first, i);
            first = i + 1;
        } else if (!strips[i].keepWithNext || i + 1 == strips.size()) {
            PlaceGroup(pages, strips, first, i + 1);
            first = i + 1;
        }
    }
    std::vector<DisplayList>& sheets = pages.book.pages;
    for (std::size_t i = 0; i < sheets.size(); ++i) {
        AddFrame(sheets[i], report, i + 1, sheets.size());
    }
    return std::move(pages.book);
}

} // namespace Merivane::Document
