#include "Document/Report/ReportPages.hpp"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

#include "Document/Report/MovedDrawing.hpp"
#include "Document/Report/ReportStrips.hpp"
#include "Document/SheetText.hpp"
#include "Drawing/TextSize.hpp"
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
constexpr double LineText = 2.1;

// Of a page with a drawing.
constexpr double DrawingMargin = 12.0;
constexpr double DrawingHead = 24.0; // running head and caption
constexpr double DrawingFoot = 15.0;
constexpr double LeastShrinking = 0.7;

/// The pages as they are filled.
struct Pages {
    Drawing::PdfBook book;
    std::size_t current = 0; ///< the page that takes strips; those behind it show drawings
    double y = 0.0;          ///< foot of what stands on it
    bool isEmpty = true;     ///< nothing stands on it yet

    DisplayList& Current() { return book.pages[current]; }
};

void OpenPage(Pages& pages, double width, double height) {
    pages.book.pages.push_back({"", width, height, {{"Conteúdo", {}}}});
}

void OpenUprightPage(Pages& pages) {
    OpenPage(pages, PaperWidth, PaperHeight);
    pages.current = pages.book.pages.size() - 1;
    pages.y = BodyTop;
    pages.isEmpty = true;
}

void AddElements(DisplayList& page, const std::vector<Drawing::Element>& elements, Point corner) {
    for (const Drawing::Element& element : elements) {
        page.layers.front().elements.push_back(MovedElement(element, 1.0, corner));
    }
}

void AddBookmark(Pages& pages, const ReportStrip& strip) {
    if (strip.bookmark) {
        pages.book.bookmarks.push_back({*strip.bookmark, pages.current, strip.bookmarkUnderLast});
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
        AddElements(pages.Current(), strip.head, {Left, pages.y});
        pages.y -= strip.headHeight;
    } else {
        pages.y -= strip.space;
    }
    AddElements(pages.Current(), strip.elements, {Left, pages.y});
    AddBookmark(pages, strip);
    pages.y -= strip.height;
    pages.isEmpty = false;
}

struct PageSize {
    double width;
    double height;
};

double ScaleOn(const PageSize& page, const DisplayList& drawing) {
    return std::min({1.0, (page.width - 2.0 * DrawingMargin) / drawing.width,
                     (page.height - DrawingHead - DrawingFoot) / drawing.height});
}

PageSize ChoosePage(const DisplayList& drawing) {
    const bool across = drawing.width >= drawing.height;
    const PageSize small = across ? PageSize{297.0, 210.0} : PageSize{210.0, 297.0};
    const PageSize large = across ? PageSize{420.0, 297.0} : PageSize{297.0, 420.0};
    return ScaleOn(small, drawing) >= LeastShrinking ? small : large;
}

/// "Planta", or "Planta (reduzido a 87 %)".
std::string CaptionText(const ReportStrip& strip, double scale) {
    const std::string percent = Simulation::FormatDecimal(100.0 * scale, 0);
    return percent == "100" ? strip.drawingName
                            : strip.drawingName + " (reduzido a " + percent + " %)";
}

/// Shows a drawing on a page of its own behind all others.
void AddDrawingPage(Pages& pages, const ReportStrip& strip) {
    const PageSize size = ChoosePage(*strip.drawing);
    const double scale = ScaleOn(size, *strip.drawing);
    OpenPage(pages, size.width, size.height);
    std::vector<Drawing::Element>& elements = pages.book.pages.back().layers.front().elements;
    elements.emplace_back(
        FittingText(CaptionText(strip, scale), DrawingMargin, size.height - DrawingHead + 4.0,
                    size.width - 2.0 * DrawingMargin, {2.4, 1.4}, Drawing::TextWeight::Bold));
    const Point lower{0.5 * (size.width - scale * strip.drawing->width),
                      size.height - DrawingHead - scale * strip.drawing->height};
    for (const Drawing::Layer& layer : strip.drawing->layers) {
        for (const Drawing::Element& element : layer.elements) {
            elements.push_back(MovedElement(element, scale, lower));
        }
    }
}

/// The line in the text that leads to the page of a drawing, and that page.
void PlaceDrawing(Pages& pages, const ReportStrip& strip) {
    const std::string page = " – página " + std::to_string(pages.book.pages.size() + 1);
    const double numberWidth = Drawing::MeasureText(page, LineText).width;
    Drawing::TextRun name = FittingText(strip.drawingName, Left, pages.y + 1.1,
                                        TextWidth - numberWidth, {LineText, LineText});
    name.text += page;
    pages.Current().layers.front().elements.emplace_back(std::move(name));
    AddDrawingPage(pages, strip);
}

/// Places strips that belong together, on a page of their own kind where they fit on one.
void PlaceGroup(Pages& pages, const std::vector<ReportStrip>& strips, std::size_t first,
                std::size_t end) {
    if (!pages.isEmpty && !Fits(pages, RoomOf(strips, first, end, false))) {
        OpenUprightPage(pages);
    }
    for (std::size_t i = first; i < end; ++i) {
        if (!pages.isEmpty && !Fits(pages, strips[i].space + strips[i].height)) {
            OpenUprightPage(pages);
        }
        PlaceStrip(pages, strips[i]);
        if (strips[i].drawing != nullptr) {
            PlaceDrawing(pages, strips[i]);
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
    OpenUprightPage(pages);
    std::size_t first = 0;
    for (std::size_t i = 0; i < strips.size(); ++i) {
        if (!strips[i].keepWithNext || i + 1 == strips.size()) {
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
