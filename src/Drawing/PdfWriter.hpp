#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Drawing/DisplayList.hpp"

namespace Merivane::Drawing {

/// How a PDF is written.
struct PdfOptions {
    /// Creation time in the document [s since 1970, UTC]. Without one, that of the environment
    /// variable SOURCE_DATE_EPOCH, else the start of the year 2000: never the clock.
    std::optional<std::int64_t> creationTime;
};

/// Writes the list as a PDF document of one page of the page's real size, its font embedded.
/// The same list and the same time give the same bytes.
///
/// Returns false and sets `error` to one Portuguese sentence where `CheckDisplayList` refuses or
/// the drawing library fails; `bytes` is then untouched.
bool WritePdf(const DisplayList& list, std::string& bytes, std::string& error,
              const PdfOptions& options = {});

/// An entry of the outline that readers show beside a document.
struct PdfBookmark {
    std::string title;
    std::size_t page = 0;   ///< index of the page that it leads to
    bool underLast = false; ///< stands below the last entry without this
};

/// Several pages, each of its own size, as one document.
struct PdfBook {
    std::string title;
    std::vector<DisplayList> pages; ///< at least one
    std::vector<PdfBookmark> bookmarks;
};

/// Writes a book as a PDF document; otherwise as `WritePdf`. A book without pages is refused.
bool WritePdfBook(const PdfBook& book, std::string& bytes, std::string& error,
                  const PdfOptions& options = {});

} // namespace Merivane::Drawing
