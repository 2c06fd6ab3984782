#include "Drawing/PdfWriter.hpp"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include <cairo-pdf.h>

#include "Drawing/CairoPainter.hpp"
#include "Drawing/TextLayout.hpp"
#include "Text/Number.hpp"

namespace Merivane::Drawing {
namespace {

constexpr double PointsPerMillimetre = 72.0 / 25.4;
constexpr std::int64_t Year2000 = 946684800;
constexpr std::int64_t Year10000 = 253402300800;

// SOURCE_DATE_EPOCH is the variable by which builds that must repeat tell their time
// (reproducible-builds.org).
std::int64_t CreationTime(const PdfOptions& options) {
    std::int64_t time = Year2000;
    if (options.creationTime) {
        time = *options.creationTime;
    } else if (const char* text = std::getenv("SOURCE_DATE_EPOCH")) {
        double seconds = 0.0;
        if (Merivane::Text::ReadEntireNumber(text, seconds) && seconds >= 0.0 &&
            seconds < static_cast<double>(Year10000)) {
            time = static_cast<std::int64_t>(seconds);
        }
    }
    return time >= 0 && time < Year10000 ? time : Year2000;
}

std::string IsoTime(std::int64_t secondsSince1970) {
    using namespace std::chrono;
    const sys_seconds time{seconds(secondsSince1970)};
    const sys_days day = floor<days>(time);
    const year_month_day date(day);
    const hh_mm_ss clock(time - day);
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02u-%02uT%02d:%02d:%02dZ",
                  static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
                  static_cast<unsigned>(date.day()), static_cast<int>(clock.hours().count()),
                  static_cast<int>(clock.minutes().count()),
                  static_cast<int>(clock.seconds().count()));
    return text.data();
}

bool CheckPages(const std::vector<DisplayList>& pages, std::string& error) {
    if (pages.empty()) {
        error = "O documento precisa de pelo menos uma folha.";
        return false;
    }
    return std::all_of(pages.begin(), pages.end(),
                       [&error](const DisplayList& page) { return CheckDisplayList(page, error); });
}

bool PaintPages(const std::vector<DisplayList>& pages, cairo_surface_t* surface,
                std::string& error) {
    for (const DisplayList& page : pages) {
        cairo_pdf_surface_set_size(surface, page.width * PointsPerMillimetre,
                                   page.height * PointsPerMillimetre);
        if (!PaintDisplayList(page, surface, PointsPerMillimetre, TextForm::Letters, error)) {
            return false;
        }
        cairo_surface_show_page(surface);
    }
    return true;
}

void AddBookmarks(const PdfBook& book, cairo_surface_t* surface) {
    int parent = CAIRO_PDF_OUTLINE_ROOT;
    for (const PdfBookmark& bookmark : book.bookmarks) {
        const std::string target = "page=" + std::to_string(bookmark.page + 1);
        const int entry = cairo_pdf_surface_add_outline(
            surface, bookmark.underLast ? parent : CAIRO_PDF_OUTLINE_ROOT,
            CleanText(bookmark.title).c_str(), target.c_str(), CAIRO_PDF_OUTLINE_FLAG_OPEN);
        parent = bookmark.underLast ? parent : entry;
    }
}

} // namespace

bool WritePdf(const DisplayList& list, std::string& bytes, std::string& error,
              const PdfOptions& options) {
    return WritePdfBook({list.title, {list}, {}}, bytes, error, options);
}

bool WritePdfBook(const PdfBook& book, std::string& bytes, std::string& error,
                  const PdfOptions& options) {
    if (!CheckPages(book.pages, error)) {
        return false;
    }
    std::string written;
    const SurfacePointer surface(cairo_pdf_surface_create_for_stream(
        AppendToString, &written, book.pages.front().width * PointsPerMillimetre,
        book.pages.front().height * PointsPerMillimetre));
    cairo_pdf_surface_set_metadata(surface.get(), CAIRO_PDF_METADATA_TITLE,
                                   CleanText(book.title).c_str());
    cairo_pdf_surface_set_metadata(surface.get(), CAIRO_PDF_METADATA_CREATE_DATE,
                                   IsoTime(CreationTime(options)).c_str());
    if (!PaintPages(book.pages, surface.get(), error)) {
        return false;
    }
    AddBookmarks(book, surface.get());
    cairo_surface_finish(surface.get());
    const cairo_status_t status = cairo_surface_status(surface.get());
    if (status != CAIRO_STATUS_SUCCESS) {
        error = PaintingError(status);
        return false;
    }
    bytes = std::move(written);
    return true;
}

} // namespace Merivane::Drawing
