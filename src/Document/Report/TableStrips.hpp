#pragma once

#include <vector>

#include "Document/Report/ReportStrips.hpp"

namespace Merivane::Document {

/// Ink of a text on paper, by what it means.
Drawing::Color ToneColor(ReportTone tone);

/// Cuts a table of the given width [mm] into its rows, texts wrapped in their columns. Its head
/// stands above the first row and is repeated on every further page. A row of very many lines goes
/// over the page.
std::vector<ReportStrip> CutTable(const ReportTable& table, double width);

} // namespace Merivane::Document
